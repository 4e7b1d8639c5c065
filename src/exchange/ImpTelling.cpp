#include "exchange/ImpTelling.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "exchange/GedKop.h"
#include "exchange/GedPad.h"
#include "exchange/GedPlaatsNaam.h"
#include "exchange/GedRegel.h"
#include "exchange/GedTekenset.h"
#include "exchange/OverigePaden.h"
#include "exchange/Padtabel.h"
#include "exchange/PersoonPaden.h"
#include "exchange/RelatiePaden.h"
#include "store/PlaatsIndex.h"
#include "store/PlaatsLB77.h"
#include "store/PlaatsVelden.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::int32_t kRegelsPerVraag = 1024;

using Namen = std::unordered_set<std::string>;

Namen Bekend(RecordBestand& plaatsen, SysteemFout& fout) {
  Namen namen;
  std::string bytes(plaatsen.RecordLengte(), '\0');
  for (std::int32_t nr = 2; nr <= kHoogstePlaats; ++nr) {
    Leesuitslag uitslag = plaatsen.Lees(nr, bytes);
    if (uitslag.fout) {
      if (!fout) fout = std::move(uitslag.fout);
      continue;
    }
    if (uitslag.gelezen == 0) break;
    const std::string_view naam =
        std::string_view(bytes).substr(plaatsveld::Naam.plaats, plaatsveld::Naam.breedte);
    namen.insert(PlaatsIndex::Sleutel(DosNaarWindows(Trim(naam))));
  }
  return namen;
}

bool IsPlaats(PersoonActie actie) {
  return actie == PersoonActie::Plaats || actie == PersoonActie::DoopPlaats ||
         actie == PersoonActie::BegrPlaats;
}

// Follows the lines as the passes do.
class Teller {
 public:
  explicit Teller(Namen bekend)
      : bekend_(std::move(bekend)),
        personen_(AllePersoonPaden()),
        relaties_(AlleRelatiePaden()),
        overige_(AlleOverigePaden()) {}

  // False at the end of the file, and at what is none.
  [[nodiscard]] bool Neem(std::string_view regel) {
    const GedDelen delen = GedRegel(regel);
    if (!delen.fout.empty()) return false;
    pad_.Zet(delen.level, delen.tag == "_ORIG" ? "BIRT" : delen.tag);
    if (delen.level > 0) {
      NeemRegel(delen);
      return true;
    }
    soort_ = GedSoortVan(delen.tag);
    if (soort_ == GedSoort::Persoon) ++telling.personen;
    if (soort_ == GedSoort::Relatie) ++telling.relaties;
    return soort_ != GedSoort::Einde;
  }

  ImpTelling telling;

 private:
  void NeemRegel(const GedDelen& delen) {
    if (delen.tag == "PLAC") {
      if (IsPlaatsregel(pad_.Van(delen.level))) NeemPlaats(delen.waarde);
    } else if (delen.tag == "CHAR") {
      const auto* rij = overige_.Zoek(pad_.Van(delen.level));
      if (rij && rij->actie == OverigeActie::Tekenset) tekenset_ = GedTekensetVan(delen.waarde);
    }
  }

  [[nodiscard]] bool IsPlaatsregel(std::string_view pad) const {
    if (soort_ == GedSoort::Persoon) {
      const auto* rij = personen_.Zoek(pad);
      return rij && IsPlaats(rij->actie);
    }
    const auto* rij = soort_ == GedSoort::Relatie ? relaties_.Zoek(pad) : nullptr;
    return rij && rij->actie == RelatieActie::Plaats;
  }

  void NeemPlaats(std::string_view waarde) {
    const std::string tekst = GedNaarWindows(tekenset_, Trim(waarde));
    const std::string_view naam = GedPlaatsNaam(tekst);
    std::string sleutel = PlaatsIndex::Sleutel(Trim(naam.substr(0, kPlaatsnaam)));
    if (!sleutel.empty() && bekend_.insert(std::move(sleutel)).second) ++telling.plaatsen;
  }

  static constexpr std::size_t kPlaatsnaam = plaatsveld::Naam.breedte;

  Namen bekend_;
  Padtabel<PersoonPad> personen_;
  Padtabel<RelatiePad> relaties_;
  Padtabel<OverigPad> overige_;
  GedPad pad_;
  GedSoort soort_ = GedSoort::Anders;
  GedTekenset tekenset_ = GedTekenset::Geen;
};

std::string Aantal(int aantal, std::string_view een, std::string_view meer) {
  return GetalTekst(aantal) + " " + std::string(aantal == 1 ? een : meer);
}

}  // namespace

ImpTelling TelImport(RegelLezer& lezer, RecordBestand& plaatsen,
                     const std::function<bool()>& gaatDoor) {
  SysteemFout fout;
  Teller teller(Bekend(plaatsen, fout));
  std::string_view regel;
  for (std::int32_t nr = 1; lezer.Volgende(regel) && teller.Neem(regel); ++nr) {
    if (nr % kRegelsPerVraag == 0 && gaatDoor && !gaatDoor()) break;
  }
  teller.telling.fout = std::move(fout);
  return std::move(teller.telling);
}

std::string TellingTekst(const ImpTelling& telling) {
  return "Erbij komen " + Aantal(telling.personen, "persoon", "personen") + ", " +
         Aantal(telling.relaties, "relatie", "relaties") + " en " +
         Aantal(telling.plaatsen, "plaats", "plaatsen");
}

}  // namespace lb77
