#include "descendants/GezinDelen.h"

#include "output/DatumZin.h"
#include "text/Getallen.h"
#include "text/Gezindte.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr NaarGeslacht kNaamloosKind{"een zoon", "een dochter", "een kind"};

}  // namespace

std::string_view NaarGeslacht::Voor(const PersoonBlik& persoon) const {
  if (persoon.IsMan()) return man;
  return IsCode(persoon.geslacht, geslacht::kVrouw) ? vrouw : anders;
}

bool Gebeurtenispaar::IsSpan() const {
  return IsCode(corr, correctie::kTussen) && een.DatumBekend() && twee.DatumBekend();
}

Gebeurtenispaar GeboortePaar(const Levensloop& leven, std::string_view gedoopt) {
  return {"geb.", std::string(gedoopt), leven.geboorte, leven.doop, leven.gebCorr};
}

Gebeurtenispaar OverlijdenPaar(const Levensloop& leven) {
  return {"ovl.", "begr.", leven.overlijden, leven.begrafenis, leven.ovlCorr};
}

std::string MetBlanco(std::string_view tekst) {
  return tekst.empty() ? std::string() : " " + std::string(tekst);
}

std::string GezinDelen::KindNaam(const PersoonBlik& kind) const {
  std::string naam = kind.voornaam;
  if (opties_.FamNaamWeerg) naam += " " + kind.achternaam;
  const std::string_view kaal = Trim(naam);
  return std::string(kaal.empty() ? kNaamloosKind.Voor(kind) : kaal);
}

std::string GezinDelen::Naam(std::int16_t nr) {
  if (nr == 0) return std::string(kNietBekend);
  if (!bronnen_.persoon.Lees(nr)) return std::string(kOnleesbaar);
  const std::string naam =
      bronnen_.persoon.VoorNaamTrue() + " " + bronnen_.persoon.AchterNaamTrue();
  const std::string_view kaal = Trim(naam);
  return std::string(kaal.empty() ? kNietBekend : kaal) + MetBlanco(Nummer(nr));
}

std::string GezinDelen::Nummer(std::int16_t nr) const {
  return opties_.GezinOokNrs ? "[" + GetalTekst(nr) + "]" : std::string();
}

std::string GezinDelen::RelatieNummer() const {
  if (!opties_.GezinOokNrs || opties_.HuidigRelatieNr <= 0) return {};
  return " [rel.nr. " + GetalTekst(opties_.HuidigRelatieNr) + "]";
}

std::string GezinDelen::Zin(const Gebeurtenispaar& paar) {
  return DatumZin(DelenVan(paar.label1, paar.een, paar.corr, paar.label2, paar.twee),
                  bronnen_.plaats, bronnen_.schrijfwijze.DatumScheider);
}

std::string GezinDelen::GezindteVan(std::string_view code) const {
  return GezindteNaam(code, bronnen_.schrijfwijze.gezindten);
}

std::vector<KindHuwelijk> GezinDelen::Huwelijken(std::int16_t kind) {
  std::vector<KindHuwelijk> uit;
  const auto gezinnen = LeesGezinnen(bronnen_.persoon, bronnen_.relatie, kind);
  if (!gezinnen) return uit;
  const bool meer = gezinnen->lijst.size() > 1;
  for (const GezinBlik& gezin : gezinnen->lijst) {
    uit.push_back({meer ? "(" + GetalTekst(gezin.volgNr) + ")" : std::string(),
                   gezin.gelezen ? Naam(gezin.partner) : std::string(kOnleesbaar)});
  }
  return uit;
}

}  // namespace lb77
