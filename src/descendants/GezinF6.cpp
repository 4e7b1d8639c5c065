#include "descendants/GezinF6.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::size_t kKolomBreedte = 48;
constexpr std::size_t kZinBreedte = 40;
constexpr int kKindMarge = 8;

constexpr std::array<std::string_view, 16> kLabels = {
    "Achternaam   : ", "Voornamen    : ", "Geb. plaats  : ", "     datum   : ",
    "Ged. plaats  : ", "     datum   : ", "Ovl. plaats  : ", "     datum   : ",
    "Beg. plaats  : ", "     datum   : ", "Geloof       : ", "Beroep       : ",
    "Ouders(man)  : ", "             : ", "Ouders(vrouw): ", "             : "};

constexpr NaarGeslacht kZoonDochter{"zn.", "dr.", " ? "};

// The left of two columns: a text that is cut off does not touch the right one.
std::string Linkerkolom(std::string_view tekst) {
  if (tekst.size() > kKolomBreedte) tekst = tekst.substr(0, kKolomBreedte - 1);
  return Links(tekst, kKolomBreedte);
}

// Both with `tussen` between them where neither is empty.
std::string Samen(std::string_view een, std::string_view tussen, std::string_view twee) {
  std::string uit(een);
  if (!een.empty() && !twee.empty()) uit += tussen;
  return uit.append(twee);
}

std::string DatumVan(const Gebeurtenis& gebeurtenis) {
  return BladDatum(gebeurtenis.dagMaand, gebeurtenis.jaar);
}

}  // namespace

std::string BladDatum(std::int16_t dagMaand, std::int16_t jaar) {
  return GetalTekst(dagMaand / 100) + "-" + GetalTekst(dagMaand % 100) + "-" + GetalTekst(jaar);
}

Uitslag GezinF6::Schrijf() {
  const std::int16_t relNr = opties_.HuidigRelatieNr;
  std::optional<GezinBlik> gezin;
  if (relNr > 0) {
    const auto hoofd = LeesPersoon(opties_.GezinHoofdNr);
    if (!bronnen_.relatie.Lees(relNr)) return Leesfout{BestandSoort::Relaties, relNr};
    gezin = GezinVan(bronnen_.relatie, relNr, opties_.GezinHoofdNr, hoofd && hoofd->IsMan());
  }
  const Paar paar = LeesPaar(gezin);
  SchrijfKop(paar);
  SchrijfPaar(paar);
  uit_.LegeRegel();
  if (!gezin) {
    uit_.VolleRegel(kGeenRelatie);
    return Einde::Klaar;
  }
  SchrijfVerbintenis(gezin->verbintenis);
  uit_.LegeRegel();
  SchrijfKinderen(LeesKinderen(bronnen_.relatie, relNr));
  return Einde::Klaar;
}

std::optional<PersoonBlik> GezinF6::LeesPersoon(std::int16_t nr) {
  if (nr == 0) return std::nullopt;
  return LeesPersoonBlik(bronnen_.persoon, nr);
}

GezinF6::Paar GezinF6::LeesPaar(const std::optional<GezinBlik>& gezin) {
  auto hoofd = LeesPersoon(opties_.GezinHoofdNr);
  auto partner = LeesPersoon(gezin ? gezin->partner : std::int16_t{0});
  // Of a head who can't be read the relation knows the side.
  const bool links = hoofd ? hoofd->IsMan() : gezin && gezin->man == opties_.GezinHoofdNr;
  if (links) return {std::move(hoofd), std::move(partner)};
  return {std::move(partner), std::move(hoofd)};
}

GezinF6::Ouder GezinF6::LeesOuder(std::int16_t nr) {
  if (nr == 0) return {};
  PersoonLB77& persoon = bronnen_.persoon;
  if (!persoon.Lees(nr)) return {std::string(kOnleesbaar), {}};
  const std::string jaren = persoon.Periode(nr);
  const std::string_view kaal = Trim(jaren);
  return {persoon.NaamVoluit(),
          Samen(kaal == "-" ? std::string_view() : kaal, " ", persoon.beroep())};
}

GezinF6::Ouders GezinF6::LeesOuders(const PersoonBlik& persoon) {
  if (persoon.relNrOuders <= 0) return {};
  if (!bronnen_.relatie.Lees(persoon.relNrOuders)) {
    const Ouder onbekend{std::string(kOnleesbaar), {}};
    return {onbekend, onbekend};
  }
  const std::int16_t vader = bronnen_.relatie.ManNr();
  const std::int16_t moeder = bronnen_.relatie.VrouwNr();
  return {LeesOuder(vader), LeesOuder(moeder)};
}

void GezinF6::SchrijfKop(const Paar& paar) {
  const std::string man = paar.man ? paar.man->achternaam : std::string();
  const std::string vrouw = paar.vrouw ? paar.vrouw->achternaam : std::string();
  uit_.VolleRegel("GEZINSBLAD " + Samen(man, "-", vrouw) + delen_.RelatieNummer());
  uit_.LegeRegel();
}

void GezinF6::SchrijfPaar(const Paar& paar) {
  const Kolom man = KolomVan(paar.man);
  const Kolom vrouw = KolomVan(paar.vrouw);
  for (std::size_t i = 0; i < kRegels; ++i) {
    const std::string regel = Linkerkolom(man[i]) + Links(vrouw[i], kKolomBreedte);
    uit_.VolleRegel(TrimRechts(regel));
  }
}

GezinF6::Kolom GezinF6::KolomVan(const std::optional<PersoonBlik>& persoon) {
  if (!persoon) return {};
  const Levensloop& leven = persoon->leven;
  PlaatsLB77& plaats = bronnen_.plaats;
  const Ouders ouders = LeesOuders(*persoon);
  const std::string achternaam = persoon->achternaam + MetBlanco(delen_.Nummer(persoon->nr));
  Kolom uit = {std::string(TrimLinks(achternaam)),
               persoon->voornaam,
               plaats.Naam2(leven.geboorte.plaatsNr),
               DatumVan(leven.geboorte),
               plaats.Naam2(leven.doop.plaatsNr),
               DatumVan(leven.doop),
               plaats.Naam2(leven.overlijden.plaatsNr),
               DatumVan(leven.overlijden),
               plaats.Naam2(leven.begrafenis.plaatsNr),
               DatumVan(leven.begrafenis),
               delen_.GezindteVan(leven.religie),
               persoon->beroep,
               ouders.vader.naam,
               ouders.vader.gegevens,
               ouders.moeder.naam,
               ouders.moeder.gegevens};
  for (std::size_t i = 0; i < kRegels; ++i) uit[i].insert(0, kLabels[i]);
  return uit;
}

void GezinF6::SchrijfVerbintenis(const Verbintenis& verbintenis) {
  const std::pair<std::string_view, const Gebeurtenis&> regels[] = {
      {"Ondertr. plaats  : ", verbintenis.ondertrouw},
      {"Tr. plaats   : ", verbintenis.wettig},
      {"Tr. plaats(K): ", verbintenis.kerk}};
  for (const auto& [label, gebeurtenis] : regels) {
    const std::string plaats = std::string(label) + bronnen_.plaats.Naam2(gebeurtenis.plaatsNr);
    uit_.VolleRegel(Linkerkolom(plaats) + "datum : " + DatumVan(gebeurtenis));
  }
}

void GezinF6::SchrijfKinderen(const KinderenBlik& kinderen) {
  uit_.VolleRegel("Kinderen: ");
  uit_.VolleRegel("Nr  z/d Voornamen ");
  uit_.VolleRegel("        geb. plaats/datum                      ovl. plaats/datum");
  for (std::size_t plaats = 1; plaats < kinderen.plaatsen.size(); ++plaats) {
    const std::int16_t kind = kinderen.plaatsen[plaats];
    if (kind > 0) SchrijfKind(static_cast<int>(plaats), kind);
  }
  if (!kinderen.heel) uit_.VolleRegel(kOnleesbaar);
}

void GezinF6::SchrijfKind(int plaats, std::int16_t nr) {
  const std::string nummer = lb77::Kolom(plaats, 2, Richting::Rechts) + ". ";
  const auto kind = LeesPersoon(nr);
  if (!kind)
    return uit_.VolleRegel(nummer + std::string(kZoonDochter.anders) + " " +
                           std::string(kOnleesbaar));
  uit_.VolleRegel(nummer + std::string(kZoonDochter.Voor(*kind)) + " " + delen_.KindNaam(*kind));
  uit_.ZetMarge(false, kKindMarge);
  std::string geboren = delen_.Zin(GeboortePaar(kind->leven, "ged."));
  const std::string overleden = delen_.Zin(OverlijdenPaar(kind->leven));
  if (!overleden.empty()) geboren.resize(std::max(geboren.size() + 1, kZinBreedte), ' ');
  if (const std::string regel = geboren + overleden; !regel.empty()) uit_.VolleRegel(regel);
  for (const KindHuwelijk& huwelijk : delen_.Huwelijken(nr)) {
    uit_.VolleRegel(Samen(huwelijk.volgNr, " ", "tr. " + huwelijk.partner));
  }
  uit_.ZetMarge(false, -kKindMarge);
}

}  // namespace lb77
