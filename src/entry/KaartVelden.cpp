#include "entry/KaartVelden.h"

#include <string>

#include "entry/Invoer.h"
#include "forms/Gesprek.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/Rubrieken.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::string_view kOnbekend = "<onbekend>";
constexpr std::string_view kOpschriftBegin = ">> ";
constexpr std::int16_t kVervolgSlot = 15;

std::string Samen(std::string_view een, std::string_view ander) {
  return std::string(een).append(ander);
}

}  // namespace

PlaatsToon::PlaatsToon(Formulier& formulier, std::string_view stam)
    : Nm(formulier, Samen(stam, "Nm")), Nr(formulier, Samen(stam, "Nr")) {}

void PlaatsToon::Toon(PlaatsLB77& plaats, std::int16_t nr) {
  Nm.ZetTekst(plaats.Naam(nr));
  Nr.ZetTekst(NrTekst(nr));
}

void PlaatsToon::ZetZichtbaar(bool zichtbaar) {
  Nm.ZetZichtbaar(zichtbaar);
  Nr.ZetZichtbaar(zichtbaar);
}

GezindteToon::GezindteToon(Formulier& formulier, std::string_view stam)
    : Code(formulier, Samen(stam, "Code")), Tekst(formulier, Samen(stam, "Tekst")) {}

void GezindteToon::Toon(std::string_view code, const Gezindten& gezindten) {
  Code.ZetTekst(code);
  Tekst.ZetTekst(GezindteNaam(code, gezindten));
}

void GezindteToon::ZetZichtbaar(bool zichtbaar) {
  Code.ZetZichtbaar(zichtbaar);
  Tekst.ZetZichtbaar(zichtbaar);
}

PersoonToon::PersoonToon(Formulier& formulier, std::string_view nrNaam,
                         std::string_view achtervoegsel, std::string_view prompt,
                         std::string_view leesnaam)
    : Nr(formulier, nrNaam, prompt, leesnaam),
      VoorNm(formulier, Samen("VoorNm", achtervoegsel)),
      AchterNm(formulier, Samen("AchterNm", achtervoegsel)) {
  VoorNm.ZetLeesnaam(Samen("Voornamen ", leesnaam));
  AchterNm.ZetLeesnaam(Samen("Achternaam ", leesnaam));
}

void PersoonToon::Toon(PersoonLB77& persoon, std::int16_t nr) {
  std::string voor;
  std::string achter;
  std::string tekst;
  HaalNaam(persoon, nr, voor, achter, tekst);
  Nr.ZetNr(nr);
  VoorNm.ZetTekst(voor);
  AchterNm.ZetTekst(achter);
}

void PersoonToon::ToonHeleNaam(PersoonLB77& persoon, std::int16_t nr) {
  std::string voor;
  std::string achter;
  persoon.HeleNaam(nr, voor, achter, kOnbekend);
  Nr.ZetNr(nr);
  VoorNm.ZetTekst(voor);
  AchterNm.ZetTekst(achter);
}

OpmKnop::OpmKnop(Formulier& formulier, std::string_view naam, std::int16_t rubriek,
                 const Bediening& veld)
    : Knop(formulier, naam, "-"), rubriek_(rubriek), veld_(veld) {}

void OpmKnop::Toon(std::int16_t opmCode) {
  const int bits = opmCode < 0 ? -int{opmCode} : int{opmCode};
  const bool heeft = (bits & RubriekBits(rubriek_)) != 0;
  const std::string_view veld = RubriekOpschrift(rubriek_).substr(kOpschriftBegin.size());
  ZetBijschrift(heeft ? ">" : "-");
  ZetLeesnaam(Samen(heeft ? "Opmerking bij " : "Geen opmerking bij ", veld));
}

bool MagErheen(Gesprek& gesprek, int nr, std::string_view geen, std::string_view komtNietVoor) {
  if (nr > 0) return true;
  gesprek.Waarschuw(nr == 0 ? geen : komtNietVoor);
  return false;
}

Kindtab LeesKinderen(RelatieLB77& relatie, Gesprek& gesprek, std::int16_t nr) {
  const std::int32_t vervolg = -std::int32_t{relatie.KindNr(kVervolgSlot)};
  Kindtab tab{};
  if (!relatie.VulKindtab(nr, tab).heel) {
    gesprek.Fout(std::string(kLeesfoutRelatie) + GetalTekst(vervolg));
  }
  return tab;
}

std::string KindertalTekst(int aantal) {
  return aantal > 0 ? GetalTekst(aantal) : "geen";
}

std::string_view DatumOpKaart(std::string_view datum10) {
  const bool leeg = datum10.find_first_not_of(" -./") == std::string_view::npos;
  return leeg ? std::string_view() : datum10;
}

}  // namespace lb77
