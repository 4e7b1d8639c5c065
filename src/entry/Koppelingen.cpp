#include "entry/Koppelingen.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>

#include "store/Codes.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// How a list lies in its records: in one, or in two when it is longer.
struct KindLijst {
  using Klasse = RelatieLB77;
  static constexpr std::size_t kInRecord = 15;
  static constexpr std::string_view kVeld = "Kind";
  static constexpr std::string_view kMerk = "HuwCorr";
  static constexpr std::string_view kVan = "kinderen van relatie ";
  static std::int16_t Laatste(const RelatieLB77& relatie) { return relatie.KindNr(15); }
};
struct HuwLijst {
  using Klasse = PersoonLB77;
  static constexpr std::size_t kInRecord = 3;
  static constexpr std::string_view kVeld = "Relatie";
  static constexpr std::string_view kMerk = "GebCorr";
  static constexpr std::string_view kVan = "relaties van persoon ";
  static std::int16_t Laatste(const PersoonLB77& persoon) { return persoon.relatie3(); }
};

// Always False, for the caller to hand on.
template <class Lijst>
bool MeldOnleesbaar(Gesprek& gesprek, std::int16_t nr) {
  gesprek.Fout("De lijst van " + std::string(Lijst::kVan) + GetalTekst(nr) +
               " kan niet helemaal worden gelezen.\nDe lijst is niet gewijzigd.");
  return false;
}

template <class Lijst>
class LijstSchrijver {
 public:
  using Klasse = typename Lijst::Klasse;

  LijstSchrijver(Klasse& klasse, Gesprek& gesprek) : klasse_(klasse), gesprek_(gesprek) {}

  // The continuation is written before the record that names it, so that no number is ever in
  // neither of them.
  [[nodiscard]] bool Schrijf(std::int16_t nr, Plaatsen plaatsen) {
    Ontdubbel(plaatsen);
    Verdicht(plaatsen);
    if (!klasse_.Lees(nr)) return false;
    if (klasse_.IsVolgRecord()) return MeldOnleesbaar<Lijst>(gesprek_, nr);
    if (!NeemVervolg(nr)) return false;
    const bool lang = plaatsen[Lijst::kInRecord] != 0;
    if (lang && !(SchrijfVervolg(plaatsen.subspan(Lijst::kInRecord - 1)) && klasse_.Lees(nr))) {
      return false;
    }
    for (std::size_t i = 0; i < Lijst::kInRecord; ++i) ZetPlaats(i, plaatsen[i]);
    if (lang) ZetPlaats(Lijst::kInRecord - 1, static_cast<std::int16_t>(-vervolg_));
    return klasse_.Schrijf(nr);
  }

 private:
  // The continuation that the record at hand names, which must be there and be one.
  [[nodiscard]] bool NeemVervolg(std::int16_t nr) {
    const std::int16_t laatste = Lijst::Laatste(klasse_);
    if (laatste >= 0) return true;
    vervolg_ = laatste == kGeenGetal ? std::int16_t{0} : static_cast<std::int16_t>(-laatste);
    if (klasse_.Lees(vervolg_) && klasse_.IsVolgRecord()) return klasse_.Lees(nr);
    return MeldOnleesbaar<Lijst>(gesprek_, nr);
  }

  // The numbers from the last place of the main record on.
  [[nodiscard]] bool SchrijfVervolg(Plaatsen rest) {
    if (vervolg_ == 0) {
      const std::int32_t nieuw = klasse_.AantalRecords() + 1;
      if (!klasse_.Nieuw(nieuw)) return false;
      vervolg_ = static_cast<std::int16_t>(nieuw);
    } else if (!klasse_.Lees(vervolg_)) {
      return false;
    }
    klasse_.Zet(Lijst::kMerk, std::string(1, correctie::kVervolg));
    for (std::size_t i = 0; i < Lijst::kInRecord; ++i) ZetPlaats(i, rest[i]);
    return klasse_.Schrijf(vervolg_);
  }

  void ZetPlaats(std::size_t i, std::int16_t nr) {
    klasse_.Zet(std::string(Lijst::kVeld) + GetalTekst(static_cast<std::int64_t>(i) + 1),
                GetalTekst(nr));
  }

  static constexpr std::int16_t kGeenGetal = INT16_MIN;  // has no positive counterpart

  Klasse& klasse_;
  Gesprek& gesprek_;
  std::int16_t vervolg_ = 0;
};

}  // namespace

bool Koppelingen::SchrijfKindtab(std::int16_t relatie, Kindtab& tab) {
  const bool gelukt =
      LijstSchrijver<KindLijst>(relatie_, gesprek_).Schrijf(relatie, PlaatsenVan(tab));
  volgers_.HuidigRelatieNr = relatie;
  return gelukt;
}

bool Koppelingen::SchrijfHuwtab(std::int16_t persoon, Huwtab& tab) {
  const bool gelukt =
      LijstSchrijver<HuwLijst>(persoon_, gesprek_).Schrijf(persoon, PlaatsenVan(tab));
  volgers_.HuidigPersoonNr = persoon;
  return gelukt;
}

bool Koppelingen::VoegRelatieToe(std::int16_t persoon, std::int16_t relatie) {
  Huwtab tab{};
  if (!persoon_.VulHuwtab(persoon, tab).heel) return MeldOnleesbaar<HuwLijst>(gesprek_, persoon);
  return WijzigHuwtab(relatie, tab, TabelActie::Voeg) && SchrijfHuwtab(persoon, tab);
}

bool Koppelingen::HaalRelatieUit(std::int16_t persoon, std::int16_t relatie) {
  Huwtab tab{};
  const TabUitslag uitslag = persoon_.VulHuwtab(persoon, tab);
  if (!uitslag.heel || uitslag.aantal == 0) return false;
  return !WijzigHuwtab(relatie, tab, TabelActie::Verwijder) || SchrijfHuwtab(persoon, tab);
}

// The children without gaps, so that none stands behind one and is lost.
bool Koppelingen::VulVerdicht(std::int16_t relatie, Kindtab& tab) {
  if (!relatie_.VulKindtab(relatie, tab).heel) return MeldOnleesbaar<KindLijst>(gesprek_, relatie);
  Verdicht(PlaatsenVan(tab));
  return true;
}

bool Koppelingen::HaalWeg(std::int16_t kind, std::int16_t oud) {
  Kindtab tab{};
  const TabUitslag uitslag = relatie_.VulKindtab(oud, tab);
  // Without any list there is no child in it either.
  if (!uitslag.heel && uitslag.aantal > 0) return MeldOnleesbaar<KindLijst>(gesprek_, oud);
  Verdicht(PlaatsenVan(tab));
  const std::int16_t plaats = PlaatsVan(PlaatsenVan(tab), kind);
  if (plaats == 0) {
    gesprek_.Waarschuw("Het kind ontbreekt in de relatie van de oude ouders");
    return false;
  }
  HaalUit(PlaatsenVan(tab), plaats);
  return SchrijfKindtab(oud, tab);
}

bool Koppelingen::VerplaatsKind(std::int16_t kind, std::int16_t oud, std::int16_t nieuw) {
  const bool los = oud == 0 || HaalWeg(kind, oud);
  if (nieuw == 0) return los;
  Kindtab tab{};
  if (!VulVerdicht(nieuw, tab)) return false;
  const Plaatsen plaatsen = PlaatsenVan(tab);
  const std::int16_t aantal = AantalBezet(plaatsen);
  if (aantal == static_cast<std::int16_t>(plaatsen.size())) {
    gesprek_.Waarschuw("Er zijn al 29 kinderen bij de nieuwe ouders");
    return false;
  }
  // kept: the last child is not looked at; added twice, it loses its double when it is written.
  const std::int16_t plaats = PlaatsVan(plaatsen, kind);
  if (plaats > 0 && plaats < aantal) {
    gesprek_.Waarschuw("Het kind is al vermeld bij de nieuwe ouders");
    return false;
  }
  plaatsen[static_cast<std::size_t>(aantal)] = kind;
  return los && SchrijfKindtab(nieuw, tab);
}

// The relations of a person, as they lie in the records; of a number that is nobody's none.
bool Koppelingen::LeesRelaties(std::int16_t persoon, Huwtab& tab) {
  // Read first: a count that fails must not make somebody nobody, and his list empty.
  if (persoon < 2 || persoon_.VulHuwtab(persoon, tab).heel) return true;
  if (persoon > persoon_.AantalRecords()) {
    tab = {};
    return true;
  }
  gesprek_.Fout("Fout bij het lezen van Persoon " + GetalTekst(persoon));
  return false;
}

// kept: the man of the last relation of hers that was read, known or not.
std::int16_t Koppelingen::ManVan(const Huwtab& vanMoeder) {
  std::int16_t man = 0;
  for (const std::int16_t nr : vanMoeder) {
    if (nr == 0) continue;
    if (!relatie_.Lees(nr)) {
      gesprek_.Fout("Fout bij het lezen van Relatie " + GetalTekst(nr));
      break;
    }
    man = relatie_.ManNr();
    if (man == 0) break;
  }
  return man;
}

std::int16_t Koppelingen::ZoekRelatie(std::int16_t vader, std::int16_t moeder) {
  if (vader == 0 && moeder == 0) return 0;
  Huwtab vanVader{};
  Huwtab vanMoeder{};
  if (!LeesRelaties(vader, vanVader) || !LeesRelaties(moeder, vanMoeder)) return 0;
  if (vader != 0) {
    const auto samen = std::find_if(vanVader.begin(), vanVader.end(), [&](std::int16_t nr) {
      return nr != 0 && std::find(vanMoeder.begin(), vanMoeder.end(), nr) != vanMoeder.end();
    });
    if (samen != vanVader.end()) return *samen;
  } else {
    // kept: without a father no relation is found, but the new one gets the man of hers, whose
    // list then holds the new relation alone.
    vader = ManVan(vanMoeder);
  }
  if (!gesprek_.Vraag("Geen relatie bekend tussen deze partners.\nRelatie aanmaken ?")) return 0;
  return MaakRelatie(vader, vanVader, moeder, vanMoeder);
}

std::int16_t Koppelingen::MaakRelatie(std::int16_t vader, Huwtab& vanVader, std::int16_t moeder,
                                      Huwtab& vanMoeder) {
  const std::int16_t bijVader = PlaatsVan(PlaatsenVan(vanVader), 0);
  const std::int16_t bijMoeder = PlaatsVan(PlaatsenVan(vanMoeder), 0);
  if (bijVader == 0 || bijMoeder == 0) {
    gesprek_.Waarschuw(bijVader == 0 ? "De Man heeft al 5 Relaties"
                                     : "De Vrouw heeft al 5 Relaties");
    return 0;
  }
  const std::int32_t nieuw = relatie_.AantalRecords() + 1;
  if (!relatie_.Nieuw(nieuw)) return 0;
  const auto nr = static_cast<std::int16_t>(nieuw);
  vanVader.at(static_cast<std::size_t>(bijVader)) = nr;
  vanMoeder.at(static_cast<std::size_t>(bijMoeder)) = nr;
  Koppel(vader, vanVader, nr, "ManNr");
  Koppel(moeder, vanMoeder, nr, "VrouwNr");
  return nr;
}

// Both sides of the link between a partner and the new relation; his own list first.
void Koppelingen::Koppel(std::int16_t persoon, Huwtab& tab, std::int16_t relatie,
                         std::string_view veld) {
  if (persoon < 2 || !SchrijfHuwtab(persoon, tab) || !relatie_.Lees(relatie)) return;
  relatie_.Zet(veld, GetalTekst(persoon));
  volgers_.HuidigRelatieNr = relatie;
  static_cast<void>(relatie_.Schrijf(relatie));  // a failure has its own message
}

}  // namespace lb77
