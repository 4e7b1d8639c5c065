#include "contact/GciLezer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>

#include "forms/Gesprek.h"
#include "store/Paden.h"
#include "store/Platform.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Pad.h"

namespace lb77 {
namespace {

constexpr std::size_t kTelling = 4;  // where the count of the records stands
constexpr std::size_t kBlok = 1024;  // records a read
constexpr std::size_t kWisbyte = 1;  // the deletion byte before each record

// What a read past the last byte says.
SysteemFout FoutTeKort() {
  return {62, "Het bestand is korter dan het zelf zegt"};
}

// Fills all of `doel`.
SysteemFout LeesHeel(const Bestandsgreep& greep, std::uint64_t plaats, std::span<char> doel) {
  Leesuitslag uitslag = greep.Lees(plaats, doel);
  if (uitslag.fout) return std::move(uitslag.fout);
  return uitslag.gelezen == doel.size() ? SysteemFout{} : FoutTeKort();
}

std::uint32_t LeesTelling(std::span<const char> kop) {
  std::uint32_t aantal = 0;
  for (std::size_t i = 4; i-- > 0;) {
    aantal = aantal * 256 + static_cast<unsigned char>(kop[kTelling + i]);
  }
  return aantal;
}

// One reading of one file.
class Lezer {
 public:
  Lezer(const GciBestand& bestand, const Bestandsgreep& greep,
        const std::function<bool(int)>& verder, std::vector<std::string>& rijen)
      : bestand_(bestand), greep_(greep), verder_(verder), rijen_(rijen) {}

  // The header, whose length is given from outside.
  SysteemFout LeesKop(std::uint32_t& aantal) const {
    std::vector<char> kop(bestand_.kop);
    SysteemFout fout = LeesHeel(greep_, 0, kop);
    if (!fout) aantal = LeesTelling(kop);
    return fout;
  }

  // The records up to the highest number of a row, of which there may be more.
  SysteemFout LeesRijen(std::uint32_t aantal) {
    const std::size_t stap = kWisbyte + bestand_.breedte;
    const std::size_t hoogstens = std::min<std::size_t>(aantal, kMaxRecords);
    std::vector<char> blok;
    while (rijen_.size() < hoogstens && !gestopt_) {
      const std::size_t dit = std::min(hoogstens - rijen_.size(), kBlok);
      blok.resize(dit * stap);
      if (SysteemFout fout = LeesHeel(greep_, bestand_.kop + rijen_.size() * stap, blok)) {
        return fout;
      }
      for (std::size_t i = 0; i < dit && !gestopt_; ++i) Neem(&blok[i * stap]);
    }
    return {};
  }

  [[nodiscard]] bool Gestopt() const { return gestopt_; }

 private:
  void Neem(const char* record) {
    rijen_.push_back(DosNaarWindows(std::string_view(record + kWisbyte, bestand_.breedte)));
    gestopt_ = !verder_(static_cast<int>(rijen_.size()));
  }

  const GciBestand& bestand_;
  const Bestandsgreep& greep_;
  const std::function<bool(int)>& verder_;
  std::vector<std::string>& rijen_;
  bool gestopt_ = false;
};

}  // namespace

GciLezing LeesGciBestand(const GciBestand& bestand, const std::filesystem::path& map,
                         Gesprek& gesprek, const std::function<bool(int)>& verder,
                         std::vector<std::string>& rijen) {
  rijen.clear();
  const std::filesystem::path pad = VindPad(map / bestand.naam);
  Bestandsgreep greep;
  if (greep.Open(pad, Openwijze::AlleenLezen)) {
    gesprek.Fout(std::string(bestand.nietOpen) + PadTekst(pad) + " niet openen");
    return GciLezing::Mislukt;
  }
  Lezer lezer(bestand, greep, verder, rijen);
  std::uint32_t aantal = 0;
  SysteemFout fout = lezer.LeesKop(aantal);
  if (!fout) fout = lezer.LeesRijen(aantal);
  if (!fout && !lezer.Gestopt() && aantal > kMaxRecords) fout = {6, std::string(kMaximumBereikt)};
  if (!fout && !lezer.Gestopt() && aantal > 0) return GciLezing::Gelezen;
  rijen.clear();
  if (lezer.Gestopt()) return GciLezing::Gestopt;
  if (fout) {
    gesprek.Fout(fout.tekst);
  } else {
    gesprek.Waarschuw(bestand.leeg);
  }
  return GciLezing::Mislukt;
}

}  // namespace lb77
