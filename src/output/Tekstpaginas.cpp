#include "output/Tekstpaginas.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fstream>
#include <ios>
#include <limits>
#include <string_view>
#include <system_error>

#include "output/Regelstroom.h"
#include "store/PlatformNamen.h"
#include "store/StroomFout.h"
#include "text/Getallen.h"
#include "text/Unicode.h"
#include "text/Utf8.h"
#include "text/Zoekvorm.h"

namespace lb77 {

namespace {

constexpr std::size_t kBreedte = Tekstpaginas::kBreedte;

std::uint64_t LengteVanRegel(Regelstroom& stroom) {
  std::uint64_t lengte = 0;
  for (std::string_view stuk = stroom.Stuk(); !stuk.empty(); stuk = stroom.Stuk()) {
    lengte += stuk.size();
  }
  return lengte;
}

// The part of the present line that stands in a column which begins behind `links` characters.
std::string DeelVanRegel(Regelstroom& stroom, std::uint64_t links) {
  std::string uit;
  std::uint64_t plaats = 0;
  for (std::string_view stuk = stroom.Stuk(); !stuk.empty(); stuk = stroom.Stuk()) {
    const std::uint64_t einde = plaats + stuk.size();
    if (einde > links && uit.size() < kBreedte) {
      const std::uint64_t van = links > plaats ? links - plaats : 0;
      uit += stuk.substr(static_cast<std::size_t>(van), kBreedte - uit.size());
    }
    plaats = einde;
  }
  std::replace(uit.begin(), uit.end(), '\0', ' ');
  return uit;
}

// Where the present line holds `vorm`, from column `kolom` on. A line of any length is searched piece
// by piece: what a hit might begin in is kept for the next.
std::optional<Tekstpaginas::Plek> ZoekInRegel(Regelstroom& stroom, std::string_view vorm,
                                              std::uint64_t regel, std::uint64_t kolom) {
  std::string tekst;
  std::uint64_t begin = 0;  // the column of `tekst`
  for (std::string_view stuk = stroom.Stuk(); !stuk.empty(); stuk = stroom.Stuk()) {
    tekst += stuk;
    const std::uint64_t vanaf = kolom > begin ? kolom - begin : 0;
    const Zoekplek plek = VindVorm(tekst, vorm, static_cast<std::size_t>(vanaf));
    if (plek.Gevonden()) return Tekstpaginas::Plek{regel, begin + plek.begin, plek.lengte};
    // A character has one letter of the form at least.
    const std::size_t over = std::min(tekst.size(), vorm.size());
    begin += tekst.size() - over;
    tekst.erase(0, tekst.size() - over);
  }
  return std::nullopt;
}

}  // namespace

Tekstpaginas::Stempel Tekstpaginas::StempelVan(const std::filesystem::path& pad) {
  std::error_code code;  // of a file that can't be asked the reading tells why
  return {std::filesystem::file_size(pad, code), std::filesystem::last_write_time(pad, code)};
}

bool Tekstpaginas::Open(const std::filesystem::path& pad) {
  pad_ = pad;
  Tel();
  return !fout_;
}

void Tekstpaginas::Tel() {
  stempel_ = StempelVan(pad_);
  rijBegin_.clear();
  std::uint64_t langste = 0;
  Regelstroom stroom;
  if (stroom.Open(pad_)) {
    std::uint64_t begin = 0;
    for (std::uint64_t regel = 0; stroom.VolgendeRegel(); ++regel) {
      if (regel % kRegels == 0) rijBegin_.push_back(begin);
      langste = std::max(langste, LengteVanRegel(stroom));
      begin = stroom.Plaats();
    }
  }
  fout_ = stroom.Fout();
  if (fout_) {
    rijBegin_.clear();
    langste = 0;
  }
  kolommen_ = static_cast<int>(
      std::min<std::uint64_t>(langste / kBreedte + 1, std::numeric_limits<int>::max()));
}

int Tekstpaginas::Rijen() const {
  return std::max(1, static_cast<int>(rijBegin_.size()));
}

bool Tekstpaginas::Lees(int kolom, int rij, std::vector<std::string>& regels) {
  regels.clear();
  if (fout_ || StempelVan(pad_) != stempel_) Tel();
  if (fout_ || Leeg() || rij > Rijen()) return !fout_;
  const auto links = static_cast<std::uint64_t>(kolom - 1) * kBreedte;
  Regelstroom stroom;
  if (stroom.Open(pad_, rijBegin_.at(static_cast<std::size_t>(rij - 1)))) {
    while (regels.size() < kRegels && stroom.VolgendeRegel()) {
      regels.push_back(DeelVanRegel(stroom, links));
    }
  }
  fout_ = stroom.Fout();
  if (fout_) regels.clear();
  return !fout_;
}

std::optional<Tekstpaginas::Plek> Tekstpaginas::Zoek(std::string_view vorm, const Plek& vanaf) {
  if (fout_ || StempelVan(pad_) != stempel_) Tel();
  if (fout_ || vorm.empty()) return std::nullopt;
  constexpr std::uint64_t kEinde = std::numeric_limits<std::uint64_t>::max();
  if (auto plek = ZoekTot(vorm, vanaf, kEinde)) return plek;
  if (fout_) return std::nullopt;
  return ZoekTot(vorm, {}, vanaf.regel);
}

// Up to and with line `tot`.
std::optional<Tekstpaginas::Plek> Tekstpaginas::ZoekTot(std::string_view vorm, const Plek& vanaf,
                                                        std::uint64_t tot) {
  const std::uint64_t rij = vanaf.regel / kRegels;
  if (rij >= rijBegin_.size()) return std::nullopt;
  Regelstroom stroom;
  if (stroom.Open(pad_, rijBegin_.at(static_cast<std::size_t>(rij)))) {
    for (std::uint64_t regel = rij * kRegels; regel <= tot && stroom.VolgendeRegel(); ++regel) {
      if (regel < vanaf.regel) continue;
      const std::uint64_t kolom = regel == vanaf.regel ? vanaf.kolom : 0;
      if (auto plek = ZoekInRegel(stroom, vorm, regel, kolom)) return plek;
    }
  }
  fout_ = stroom.Fout();
  return std::nullopt;
}

namespace {

// Is this text UTF-8, with a character beyond ASCII?
bool IsUtf8(const std::filesystem::path& pad) {
  Regelstroom stroom;
  if (!stroom.Open(pad)) return false;
  constexpr std::size_t kLangste = 4;  // bytes of a character
  bool meer = false;
  std::string rest;
  while (stroom.VolgendeRegel()) {
    rest.clear();
    for (std::string_view stuk = stroom.Stuk(); !stuk.empty(); stuk = stroom.Stuk()) {
      rest += stuk;
      std::size_t plaats = 0;
      // A character may go on in the next piece.
      while (plaats + kLangste <= rest.size()) {
        const std::size_t lengte = LeesUtf8(rest, plaats).lengte;
        if (lengte == 0) return false;
        meer = meer || lengte > 1;
        plaats += lengte;
      }
      rest.erase(0, plaats);
    }
    for (std::size_t plaats = 0; plaats < rest.size();) {
      const std::size_t lengte = LeesUtf8(rest, plaats).lengte;
      if (lengte == 0) return false;
      meer = meer || lengte > 1;
      plaats += lengte;
    }
  }
  return meer;
}

// A name beside that of the file which nothing has yet.
std::filesystem::path VrijeNaamNaast(const std::filesystem::path& pad) {
  std::error_code code;
  for (int poging = 1;; ++poging) {
    std::filesystem::path naam = pad;
    naam += ".nieuw" + NrTekst(poging - 1);
    if (!std::filesystem::exists(std::filesystem::symlink_status(naam, code))) return naam;
  }
}

bool Schrijf(std::ofstream& uit, std::string_view stuk, bool omzetten) {
  const std::string nieuw = omzetten ? WindowsNaarUtf8(stuk) : std::string();
  const std::string_view bytes = omzetten ? std::string_view(nieuw) : stuk;
  return static_cast<bool>(uit.write(bytes.data(), static_cast<std::streamsize>(bytes.size())));
}

// Writes the copy; what went wrong, or success.
SysteemFout SchrijfKopie(const std::filesystem::path& van, const std::filesystem::path& naar,
                         Tekencode code) {
  const bool omzetten = code == Tekencode::Utf8 && !IsUtf8(van);
  Regelstroom stroom;
  if (!stroom.Open(van)) return stroom.Fout();
  errno = 0;
  std::ofstream uit(naar, std::ios::binary | std::ios::trunc);
  if (!uit) return FoutVanStroom(naar);
  while (uit && stroom.VolgendeRegel()) {
    // No read behind a write that failed: it would hide why.
    std::string_view stuk = stroom.Stuk();
    while (!stuk.empty() && Schrijf(uit, stuk, omzetten)) stuk = stroom.Stuk();
    uit << "\r\n";
  }
  uit.close();
  if (!uit) return FoutVanStroom();
  return stroom.Fout();
}

}  // namespace

SysteemFout KopieerTekst(const std::filesystem::path& van, const std::filesystem::path& naar,
                         Tekencode tekencode) {
  const std::filesystem::path ernaast = VrijeNaamNaast(naar);
  if (IsTeLang(ernaast)) return FoutVan(std::make_error_code(std::errc::filename_too_long));
  SysteemFout fout = SchrijfKopie(van, ernaast, tekencode);
  std::error_code code;
  if (!fout) {
    HernoemOpSchijf(ernaast, naar, code);
    fout = FoutVan(code);
  }
  if (fout) static_cast<void>(VerwijderVanSchijf(ernaast, code));
  return fout;
}

}  // namespace lb77
