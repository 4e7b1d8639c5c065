#include "exchange/ImpTelling.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "exchange/EigenPaden.h"
#include "exchange/GedKop.h"
#include "exchange/GedPad.h"
#include "exchange/GedPlaatsNaam.h"
#include "exchange/GedRegel.h"
#include "exchange/GedTekenset.h"
#include "exchange/ImpPlaatsen.h"
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

// The places of the set: their names, and how many there are of each likeness.
struct Bekenden {
  std::unordered_set<std::string> namen;
  std::unordered_map<std::string, int> gelijken;
};

std::string Opgeslagen(std::string_view record, const Veld& veld) {
  return DosNaarWindows(Trim(record.substr(veld.plaats, veld.breedte)));
}

Bekenden Bekend(RecordBestand& plaatsen, SysteemFout& fout) {
  Bekenden bekend;
  std::string bytes(plaatsen.RecordLengte(), '\0');
  for (std::int32_t nr = 2; nr <= kHoogstePlaats; ++nr) {
    Leesuitslag uitslag = plaatsen.Lees(nr, bytes);
    if (uitslag.fout) {
      if (!fout) fout = std::move(uitslag.fout);
      continue;
    }
    if (uitslag.gelezen == 0) break;
    const std::string naam = Opgeslagen(bytes, plaatsveld::Naam);
    bekend.namen.insert(PlaatsIndex::Sleutel(naam));
    ++bekend.gelijken[PlaatsGelijkenis(naam, Opgeslagen(bytes, plaatsveld::Prov))];
  }
  return bekend;
}

// From the fourth relation and the sixteenth child on a record has a continuation.
constexpr int kRelatiesInRecord = 3;
constexpr int kKinderenInRecord = 15;

bool IsPlaats(PersoonActie actie) {
  return actie == PersoonActie::Plaats || actie == PersoonActie::DoopPlaats ||
         actie == PersoonActie::BegrPlaats;
}

// Follows the lines as the passes do.
class Teller {
 public:
  // `windows`: the lines are in Windows-1252, whatever the file says.
  Teller(Bekenden bekend, bool windows)
      : bekend_(std::move(bekend)),
        windows_(windows),
        personen_(AllePersoonPaden()),
        relaties_(AlleRelatiePaden()),
        overige_(AlleOverigePaden()) {}

  // False at the end of the file, and at what is none.
  [[nodiscard]] bool Neem(std::string_view regel) {
    const GedDelen delen = GedRegel(regel);
    if (!delen.fout.empty()) return false;
    pad_.Zet(delen.level, delen.tag == "_ORIG" ? "BIRT" : delen.tag);
    if (NoemGebeurtenis(pad_, delen)) return true;
    if (delen.level > 0) {
      NeemRegel(delen);
      return true;
    }
    soort_ = GedSoortVan(delen.tag);
    prov_.clear();
    verwijzingen_ = 0;
    if (soort_ == GedSoort::Persoon) ++telling.personen;
    if (soort_ == GedSoort::Relatie) ++telling.relaties;
    return soort_ != GedSoort::Einde;
  }

  ImpTelling telling;

 private:
  void NeemRegel(const GedDelen& delen) {
    if (delen.level == 1) gekend_.clear();
    if (delen.tag == "PLAC") {
      // A link to a place record tells the place before it is named.
      const bool gekend = pad_.Ouder(delen.level) == gekend_;
      if (!gekend && IsPlaatsregel(pad_.Van(delen.level))) NeemPlaats(delen.waarde);
    } else if (delen.tag == eigen::kPlaats) {
      gekend_ = pad_.Ouder(delen.level);
    } else if (pad_.Van(0) == eigen::kPlaats) {
      NeemPlaatsRecord(delen);
    } else if (IsVerwijzing(delen)) {
      TelVervolg();
    } else if (delen.tag == "CHAR" && !windows_) {
      const auto* rij = overige_.Zoek(pad_.Van(delen.level));
      if (rij && rij->actie == OverigeActie::Tekenset) tekenset_ = GedTekensetVan(delen.waarde);
    }
  }

  void NeemPlaatsRecord(const GedDelen& delen) {
    const std::string waarde = GedNaarWindows(tekenset_, MetEnkeleAt(Trim(delen.waarde)));
    if (delen.tag == eigen::kProv) prov_ = waarde;
    if (delen.tag != "NAME") return;
    int& gelijken = bekend_.gelijken[PlaatsGelijkenis(waarde, prov_)];
    const bool nieuw = gelijken == 0 || PlaatsIndex::Sleutel(waarde).empty();
    telling.plaatsen += nieuw ? 1 : 0;
    gelijken -= nieuw ? 0 : 1;
  }

  // A link to one of many: to a relation of a person, to a child of a relation.
  [[nodiscard]] bool IsVerwijzing(const GedDelen& delen) const {
    if (soort_ == GedSoort::Persoon && (delen.tag == "FAMS" || delen.tag == eigen::kRelatie)) {
      const auto* rij = personen_.Zoek(pad_.Van(delen.level));
      return rij && rij->actie == PersoonActie::Relatie;
    }
    if (soort_ != GedSoort::Relatie || (delen.tag != "CHIL" && delen.tag != eigen::kKind))
      return false;
    const auto* rij = relaties_.Zoek(pad_.Van(delen.level));
    return rij && rij->actie == RelatieActie::Kind;
  }

  void TelVervolg() {
    ++verwijzingen_;
    if (soort_ == GedSoort::Persoon && verwijzingen_ == kRelatiesInRecord + 1) {
      ++telling.vervolgPersonen;
    }
    if (soort_ == GedSoort::Relatie && verwijzingen_ == kKinderenInRecord + 1) {
      ++telling.vervolgRelaties;
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
    if (!sleutel.empty() && bekend_.namen.insert(std::move(sleutel)).second) ++telling.plaatsen;
  }

  static constexpr std::size_t kPlaatsnaam = plaatsveld::Naam.breedte;

  Bekenden bekend_;
  bool windows_;
  int verwijzingen_ = 0;  // of the record at hand to others of which it may have many
  std::string prov_;      // of the place record at hand
  std::string gekend_;    // the path above the last link to such a record
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
  Teller teller(Bekend(plaatsen, fout), lezer.ZetOm());
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
