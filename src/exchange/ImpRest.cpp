#include "exchange/ImpRest.h"

#include <algorithm>
#include <cerrno>
#include <ios>
#include <system_error>
#include <utility>

#include "app/HeelBestand.h"
#include "exchange/OpmTags.h"
#include "store/StroomFout.h"
#include "text/Bestandstekst.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::string_view kAchterSlot = "0 NOTE achter TRLR";
constexpr std::string_view kTweedeHoofd = "0 NOTE HEAD";
constexpr std::string_view kTekenset = "1 CHAR UTF-8";

bool IsHoofd(std::string_view bron) {
  return GedSoortVan(GedRegel(bron).tag) == GedSoort::Hoofd;
}

}  // namespace

void ImpRest::Begin(const std::filesystem::path& pad, NaarUtf8 naarUtf8) {
  naarUtf8_ = std::move(naarUtf8);
  pad_ = pad;
  bezig_ = pad.parent_path() / kRestBezig;
  fout_ = Bestandswerk().Verwijder(pad_);
}

ImpRest::~ImpRest() {
  if (bestand_.is_open()) Weg();
}

void ImpRest::Weg() {
  bestand_.close();
  // A file that stays has a name that tells it is not whole.
  static_cast<void>(Bestandswerk().Verwijder(bezig_));
}

void ImpRest::NeemKop(std::string_view bron, GedSoort soort, std::int16_t nr) {
  Neem(0, bron);
  nr_ = nr;
  telt_ = soort != GedSoort::Hoofd && soort != GedSoort::Inzender && soort != GedSoort::Inzending;
  // The file begins with a line of its own.
  boven_.front().geschreven = soort == GedSoort::Hoofd;
}

void ImpRest::Neem(int level, std::string_view bron) {
  for (int i = level + 1; i <= diepste_; ++i) boven_[static_cast<std::size_t>(i)].aanwezig = false;
  Regel& regel = boven_[static_cast<std::size_t>(level)];
  regel.tekst = bron;
  regel.aanwezig = true;
  regel.geschreven = false;
  level_ = diepste_ = level;
}

void ImpRest::NeemTweedeHoofd() {
  NeemKop(kTweedeHoofd, GedSoort::Anders, 0);
}

void ImpRest::Schrijf() {
  const Regel& regel = boven_[static_cast<std::size_t>(level_)];
  if (regel.geschreven || IsTekensetVanHoofd(level_)) return;
  SchrijfOuders(level_ + 1);
  Tel();
}

// The line that tells of the input's characters; those of this file are its own.
bool ImpRest::IsTekensetVanHoofd(int level) const {
  return level == 1 && GedRegel(boven_[1].tekst).tag == "CHAR" && IsHoofd(boven_.front().tekst);
}

// Writes what stands above that level and has not been written yet.
void ImpRest::SchrijfOuders(int level) {
  for (int i = 0; i < level; ++i) {
    Regel& regel = boven_[static_cast<std::size_t>(i)];
    if (!regel.aanwezig || regel.geschreven) continue;
    SchrijfBron(IsTekensetVanHoofd(i) ? kTekenset : regel.tekst);
    regel.geschreven = true;
    if (i == 0 && nr_ != 0) SchrijfRegel("1 REFN " + GetalTekst(nr_));
  }
}

void ImpRest::SchrijfVreemd(std::string_view bron) {
  const std::string_view boven = boven_[static_cast<std::size_t>(level_)].tekst;
  const bool vervolg = IsVervolgTag(GedRegel(boven).tag) || level_ == kHoogsteLevel;
  const int level = vervolg ? level_ : level_ + 1;
  Neem(level, GetalTekst(level) + " CONT " + std::string(bron));
  SchrijfOuders(level + 1);
  ++aantal_;
}

void ImpRest::BeginNoot() {
  noot_.clear();
  nootLevel_ = level_;
  VervolgNoot();
}

void ImpRest::VervolgNoot() {
  noot_.append(boven_[static_cast<std::size_t>(level_)].tekst).append("\n");
}

void ImpRest::NootKwijt() {
  if (noot_.empty()) return;
  SchrijfOuders(nootLevel_);
  for (std::size_t begin = 0; begin < noot_.size();) {
    const std::size_t eind = noot_.find('\n', begin);
    SchrijfBron(std::string_view(noot_).substr(begin, eind - begin));
    Tel();
    begin = eind + 1;
  }
  for (int i = nootLevel_; i <= diepste_; ++i)
    boven_[static_cast<std::size_t>(i)].geschreven = true;
  noot_.clear();
}

void ImpRest::BeginAchterSlot() {
  NeemKop(kAchterSlot, GedSoort::Anders, 0);
}

void ImpRest::SchrijfAchterSlot(std::string_view bron) {
  const GedDelen delen = GedRegel(bron);
  const GedSoort soort = GedSoortVan(delen.tag);
  const bool isKop = delen.fout.empty() && delen.level == 0;
  // One more end would end this file, too.
  if (!delen.fout.empty() || (isKop && (soort == GedSoort::Einde || soort == GedSoort::Hoofd))) {
    BeginAchterSlot();
    Neem(1, "1 NOTE " + std::string(bron));
  } else if (isKop) {
    NeemKop(bron, GedSoort::Anders, 0);
  } else {
    Neem(delen.level, bron);
  }
  Schrijf();
}

void ImpRest::ZetOpen() {
  errno = 0;
  bestand_.open(bezig_, std::ios::binary | std::ios::trunc);
  if (!bestand_) {
    fout_ = FoutVanStroom(bezig_);
    return;
  }
  SchrijfRegel("0 HEAD");
  SchrijfRegel(kTekenset);
}

void ImpRest::SchrijfBron(std::string_view bron) {
  SchrijfRegel(IsAscii(bron) ? std::string(bron) : naarUtf8_(bron));
}

void ImpRest::SchrijfRegel(std::string_view utf8) {
  if (!fout_ && !bestand_.is_open()) ZetOpen();
  if (fout_) return;
  errno = 0;
  bestand_.write(utf8.data(), static_cast<std::streamsize>(utf8.size()));
  bestand_.write("\r\n", 2);
  if (!bestand_) fout_ = FoutVanStroom();
}

SysteemFout ImpRest::Sluit(Bestandswerk& werk) {
  if (bestand_.is_open()) {
    SchrijfRegel("0 TRLR");
    errno = 0;
    bestand_.close();
    if (!bestand_ && !fout_) fout_ = FoutVanStroom();
    // Otherwise a power cut may leave the name without the bytes.
    if (!fout_ && aantal_ > 0) fout_ = werk.Veiligstellen(bezig_);
    if (!fout_ && aantal_ > 0) fout_ = werk.Hernoem(bezig_, pad_);
    if (fout_ || aantal_ == 0) Weg();
  }
  return aantal_ > 0 ? std::move(fout_) : SysteemFout{};
}

}  // namespace lb77
