#include "output/TekstSchrijver.h"

#include <cerrno>
#include <cstddef>

#include "store/StroomFout.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kBufferGrootte = std::size_t{64} * 1024;
constexpr std::string_view kRegelEinde = "\r\n";

// The room on a line of which the left margin lies at or behind the right one: without it a text
// would never end.
constexpr int kMinsteRuimte = 10;

int Lengte(std::string_view tekst) {
  return static_cast<int>(tekst.size());
}

}  // namespace

void TekstSchrijver::ZetMarge(bool absoluut, int waarde) {
  vorigeMarge_ = linkerMarge_;
  linkerMarge_ = absoluut ? waarde : linkerMarge_ + waarde;
}

void TekstSchrijver::ZetRechterMarge(int marge) {
  rechterMarge_ = marge > 0 ? marge : kGewoneRechterMarge;
}

void TekstSchrijver::TekstUit(std::string_view tekst, bool regelEinde, bool vast) {
  const bool aanBegin = huidigeKolom_ <= linkerMarge_;
  if (aanBegin) SchrijfWachtWoordAanBegin();
  if (tekst.empty() && regelEinde) {
    EindigMetWachtWoord();
  } else {
    SchrijfTekst(tekst, regelEinde, vast, vast || aanBegin);
  }
  vorigeMarge_ = linkerMarge_;
}

// kept: the word does not count in the column; report layouts rest on it.
void TekstSchrijver::SchrijfWachtWoordAanBegin() {
  if (wachtWoord_.empty()) return;
  SchrijfBlanco(linkerMarge_ - huidigeKolom_);
  Schrijf(wachtWoord_);
  huidigeKolom_ = linkerMarge_;
  wachtWoord_.clear();
}

void TekstSchrijver::EindigMetWachtWoord() {
  if (!wachtWoord_.empty()) {
    if (Lengte(wachtWoord_) + 1 > rechterMarge_ - huidigeKolom_) {
      SchrijfRegelEinde();
      SchrijfBlanco(vorigeMarge_);
    } else {
      SchrijfBlanco(1);
    }
    Schrijf(wachtWoord_);
    wachtWoord_.clear();
  }
  SchrijfRegelEinde();
  huidigeKolom_ = 0;
}

// `vast` is what the caller asked; `aansluiten` holds at a line's start too.
void TekstSchrijver::SchrijfTekst(std::string_view tekst, bool regelEinde, bool vast,
                                  bool aansluiten) {
  const std::string geheel = MetWachtWoord(tekst, aansluiten);
  std::string_view nu = geheel;
  wachtWoord_.clear();
  if (!regelEinde && !(nu.ends_with(' ') && aansluiten)) {
    const std::size_t blanco = nu.rfind(' ');
    if (blanco != std::string_view::npos) {
      wachtWoord_ = TrimLinks(nu.substr(blanco));
      nu = nu.substr(0, blanco);
    }
  }
  if (huidigeKolom_ < linkerMarge_) {
    SchrijfBlanco(linkerMarge_ - huidigeKolom_);
    huidigeKolom_ = linkerMarge_;
  }
  SchrijfVloeiend(nu, vast);
  if (!regelEinde) return;
  SchrijfRegelEinde();
  huidigeKolom_ = 0;
}

std::string TekstSchrijver::MetWachtWoord(std::string_view tekst, bool aansluiten) const {
  std::string geheel;
  if (!wachtWoord_.empty()) geheel.append(" ").append(wachtWoord_);
  if (!aansluiten) geheel += ' ';
  return geheel.append(tekst);
}

void TekstSchrijver::SchrijfVloeiend(std::string_view tekst, bool vast) {
  while (!tekst.empty()) {
    const int ruimte = Ruimte();
    if (ruimte < Lengte(tekst)) {
      tekst = BreekRegel(tekst, ruimte);
      continue;
    }
    if (huidigeKolom_ == linkerMarge_ && !vast) tekst = TrimLinks(tekst);
    Schrijf(tekst);
    huidigeKolom_ += Lengte(tekst);
    tekst = {};
  }
}

int TekstSchrijver::Ruimte() const {
  const int ruimte = rechterMarge_ - huidigeKolom_;
  return ruimte <= 0 && huidigeKolom_ == linkerMarge_ ? kMinsteRuimte : ruimte;
}

// Writes what goes on this line, ends it, and gives the rest. kept: a blank just behind a word that
// fills the room exactly is not found, so that such a word moves on or is broken.
std::string_view TekstSchrijver::BreekRegel(std::string_view tekst, int ruimte) {
  const std::string_view kop = tekst.substr(0, static_cast<std::size_t>(ruimte > 0 ? ruimte : 0));
  const std::size_t blanco = kop.rfind(' ');
  if (blanco != std::string_view::npos) {
    Schrijf(kop.substr(0, blanco));
    tekst = TrimLinks(tekst.substr(blanco));
  } else if (huidigeKolom_ == linkerMarge_) {
    Schrijf(kop);
    tekst = TrimLinks(tekst.substr(kop.size()));
  }
  SchrijfRegelEinde();
  SchrijfBlanco(linkerMarge_);
  huidigeKolom_ = linkerMarge_;
  return tekst;
}

bool TekstSchrijver::Open(const std::filesystem::path& pad) {
  bestand_ = std::ofstream();
  buffer_.clear();
  wachtWoord_.clear();
  mislukt_ = false;
  fout_ = {};
  huidigeKolom_ = linkerMarge_ = vorigeMarge_ = 0;
  errno = 0;
  bestand_.open(pad, std::ios::binary | std::ios::trunc);
  if (bestand_.is_open()) return true;
  fout_ = FoutVanStroom(pad);
  mislukt_ = true;
  return false;
}

TekstSchrijver::~TekstSchrijver() {
  if (bestand_.is_open()) static_cast<void>(Sluit());
}

bool TekstSchrijver::Sluit() {
  Leeg();
  errno = 0;
  bestand_.close();
  if (!bestand_) OnthoudFout();
  return !mislukt_;
}

void TekstSchrijver::Schrijf(std::string_view bytes) {
  buffer_.append(bytes);
  if (buffer_.size() >= kBufferGrootte) Leeg();
}

void TekstSchrijver::SchrijfBlanco(int aantal) {
  if (aantal > 0) buffer_.append(static_cast<std::size_t>(aantal), ' ');
}

void TekstSchrijver::SchrijfRegelEinde() {
  Schrijf(kRegelEinde);
}

void TekstSchrijver::Leeg() {
  if (!mislukt_) {
    errno = 0;
    bestand_.write(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    bestand_.flush();
    if (!bestand_) OnthoudFout();
  }
  buffer_.clear();
}

// The first failure counts: what follows it is its consequence.
void TekstSchrijver::OnthoudFout() {
  if (!mislukt_) fout_ = FoutVanStroom();
  mislukt_ = true;
}

}  // namespace lb77
