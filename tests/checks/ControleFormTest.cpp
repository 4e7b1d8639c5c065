// The dialogs of the checks: head, options, counter, messages, report.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>

#include "app/Start.h"
#include "checks/ControleForm.h"
#include "checks/ControleSessie.h"
#include "steun/BezigKijker.h"
#include "steun/Gouden.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

class ControleFormToets : public ControleSessie {
 protected:
  static constexpr const ControleSoort* kAlle[] = {&kControlePrs, &kControleRel, &kControlePlts,
                                                   &kControleOpm};
  static constexpr std::string_view kGeenFouten = "Geen fouten gevonden\r\n\r\n";

  // A couple with one child, a place that is used, a remark: nothing is wrong.
  void BouwGoed() {
    Bouw().Plaats("Delft", "ZH");
    const std::int16_t man = Bouw().Man("Jan", "Proef", {{"GebDatum", "00-00-1800"}});
    const std::int16_t vrouw = Bouw().Vrouw("Els", "Proef", {{"GebDatum", "00-00-1802"}});
    const std::int16_t kind =
        Bouw().Man("Piet", "Proef", {{"GebDatum", "01-02-1830"}, {"GebPlaats", "2"}});
    Bouw().Relatie(man, vrouw, {kind}, {{"WHuwDatum", "00-00-1828"}});
    Bouw().OpmerkingBijPersoon(man, persoonrubriek::kBeroep, {"een", "twee"});
  }
  // A child of 1830 and its parents, with the years of their birth and of their marriage.
  void BouwOuders(std::string_view vader, std::string_view moeder, std::string_view huwelijk) {
    const std::int16_t kind = Bouw().Man("Kind", "Proef", {{"GebDatum", "00-00-1830"}});
    const std::int16_t man = Bouw().Man("Vader", "Proef", {{"GebDatum", vader}});
    const std::int16_t vrouw = Bouw().Vrouw("Moeder", "Proef", {{"GebDatum", moeder}});
    Bouw().Relatie(man, vrouw, {kind}, {{"WHuwDatum", huwelijk}});
  }
  // On that family each kind of damage.
  void Beschadig() {
    Bouw().WijzigPersoon(2, {{"Relatie2", "3"}, {"BegrDatum", "00-00-1901"}});
    Bouw().Relatie(0, 0, {}, {{"ManNr", "99"}, {"VrouwNr", "98"}});
    Bouw().Relatie(3, 0, {}, {{"WHuwDatum", "00-00-1819"}, {"Kind1", "97"}, {"Kind2", "4"}});
    Bouw().WijzigRelatie(4, {{"ManNr", "5"}, {"VrouwNr", "6"}});
    Bouw().Man("Oud", "Proef", {{"GebDatum", "00-00-1820"}, {"Ouders", "2"}});
    Bouw().Vrouw("Jong", "Proef",
                 {{"GebDatum", "00-00-1802"}, {"DoopDatum", "00-00-1801"}, {"Ouders", "96"}});
    Bouw().WijzigPersoon(6, {{"Relatie1", "2"}});
    Bouw().Man("Alles", "Om",
               {{"GebDatum", "00-00-1804"},
                {"DoopDatum", "00-00-1803"},
                {"OvlDatum", "00-00-1802"},
                {"BegrDatum", "00-00-1801"}});
    Bouw().Relatie(
        0, 0, {},
        {{"OtrDatum", "00-00-1803"}, {"WHuwDatum", "00-00-1802"}, {"KHuwDatum", "00-00-1801"}});
    BouwOuders("00-00-1815", "00-00-1845", "00-00-1840");
    BouwOuders("00-00-1835", "00-00-1820", "00-00-1850");
    Bouw().Plaats("", "");
    Bouw().Plaats("Delft", "ZH");
    Bouw().Plaats("Delft", "GD");
    Bouw().OpmerkingBijPersoon(3, persoonrubriek::kBeroep, {"drie", "vier"});
    Bouw().WijzigPersoon(3, {{"OpmRecord", "0"}});
  }
};

TEST_F(ControleFormToets, HetVerslagHeeftZijnKopEnZijnSlot) {
  BouwGoed();
  EXPECT_EQ(Rapport(kControlePrs),
            "Controle Persoonsbestand\r\n\r\nGekozen extra controle-opties:\r\n"
            "Verwijzing naar ouders: Ja\r\nVolgorde geboorte-doop-overlijden-begraven: Ja\r\n"
            "Leeftijd meer dan 100 jaar: Ja\r\nLeeftijd ouders bij geboorte: Ja\r\n"
            "Verwijzing naar relaties: Ja\r\nResultaat (zie CTRL_PRS.TMP):\r\n\r\n"
            "Geen fouten gevonden\r\n\r\n");
  EXPECT_EQ(Rapport(kControleRel),
            "Controle Relatiebestand\r\n\r\nGekozen extra controle-opties:\r\n"
            "Verwijzing naar partners: Ja\r\nVolgorde otr-huw-khuw: Ja\r\n"
            "Verschil leeftijd partners meer dan 10 jaar: Ja\r\n"
            "Leeftijd partners bij huwelijk < 18 jaar: Ja\r\nVerwijzing naar kinderen: Ja\r\n"
            "Resultaat (zie CTRL_REL.TMP):\r\n\r\nGeen fouten gevonden\r\n\r\n");
  EXPECT_EQ(Rapport(kControlePlts),
            "Controle Plaatsbestand\r\n\r\nGekozen extra controle-opties:\r\n"
            "Test op dubbele plaatsnamen: Ja\r\nTest op ongebruikte plaatsnamen: Ja\r\n"
            "Resultaat (zie CTRLPLTS.TMP):\r\n\r\nGeen fouten gevonden\r\n\r\n");
  EXPECT_EQ(Rapport(kControleOpm),
            "Controle Opmerkingenbestand\r\n\r\nResultaat (zie CTRL_OPM.TMP):\r\n\r\n"
            "Geen fouten gevonden\r\n\r\n");
}

TEST_F(ControleFormToets, WatNietIsGekozenHeetNee) {
  BouwGoed();
  const std::string prs = Rapport(kControlePrs, "stel VerwijsOuders uit\nstel GebDoop uit");
  EXPECT_NE(prs.find("Verwijzing naar ouders: Nee\r\n"
                     "Volgorde geboorte-doop-overlijden-begraven: Nee\r\n"
                     "Leeftijd meer dan 100 jaar: Ja\r\n"),
            std::string::npos);
  const std::string plts = Rapport(kControlePlts, "stel OngebruiktePlaatsen uit");
  EXPECT_NE(plts.find("Test op dubbele plaatsnamen: Ja\r\nTest op ongebruikte plaatsnamen: Nee"),
            std::string::npos);
}

TEST_F(ControleFormToets, DeKeuzeVoorPartnersStaatAlleenInDeKop) {
  BouwGoed();
  Bouw().WijzigRelatie(2, {{"ManNr", "99"}});
  const std::string uit = Rapport(kControleRel, "stel VerwijsPartners uit");
  EXPECT_NE(uit.find("Verwijzing naar partners: Nee\r\n"), std::string::npos);
  EXPECT_TRUE(uit.ends_with("\r\n\r\nRelatie 2: Verwijzing naar man klopt niet\r\n\r\n"));
}

TEST_F(ControleFormToets, TienInDeKopEnVijftienInDeRegel) {
  BouwGoed();
  Bouw().WijzigPersoon(3, {{"GebDatum", "00-00-1816"}, {"DoopDatum", ""}});
  Bouw().WijzigRelatie(2, {{"WHuwDatum", ""}});
  const std::string uit = Rapport(kControleRel);
  EXPECT_NE(uit.find("Verschil leeftijd partners meer dan 10 jaar: Ja\r\n"), std::string::npos);
  EXPECT_TRUE(
      uit.ends_with("\r\n\r\nRelatie 2: Leeftijdsverschil Partners is meer dan 15 jaar\r\n\r\n"));
}

TEST_F(ControleFormToets, EenBestandZonderRecordsGeeftGeenVerslag) {
  Speel(kControlePrs, "druk OKButton\n", R"(
    + ControlePrs "Controleer Persoonsbestand"
    ! uitroep "Er zijn geen persoonsrecords aanwezig"
    - ControlePrs
  )");
  Speel(kControleRel, "druk OKButton\n", R"(
    + ControleRel "Controleer Relatiebestand"
    ! uitroep "Er zijn geen relatierecords aanwezig"
    - ControleRel
  )");
  Speel(kControlePlts, "druk OKButton\n", R"(
    + ControlePlts "Controleer Plaatsbestand"
    ! uitroep "Er zijn geen plaatsrecords aanwezig"
    - ControlePlts
  )");
  Speel(kControleOpm, "druk OKButton\n", R"(
    + ControleOpm "Controleer Opmerkingenbestand"
    ! uitroep "Er zijn geen opmerkingen in deze bestandenset aanwezig"
    - ControleOpm
  )");
  for (const ControleSoort* soort : kAlle) EXPECT_FALSE(std::filesystem::exists(PadVan(*soort)));
}

TEST_F(ControleFormToets, EenVerslagDatNietKanWordtGemeld) {
  BouwGoed();
  for (const ControleSoort* soort : kAlle) {
    std::filesystem::create_directories(PadVan(*soort));
    const std::string naam(soort->naam);
    Speel(*soort, "druk OKButton\n",
          "+ " + naam + " \"" + std::string(soort->titel) + "\"\n! stop \"Kan tijdelijk bestand " +
              PadVan(*soort).string() + " niet openen\"\n- " + naam + "\n");
  }
}

TEST_F(ControleFormToets, TerugDoetNiets) {
  BouwGoed();
  for (const ControleSoort* soort : kAlle) {
    const std::string naam(soort->naam);
    for (const std::string_view weg : {"druk BackButton\n", "toets Escape\n", "sluit\n"}) {
      Speel(*soort, weg, "+ " + naam + " \"" + std::string(soort->titel) + "\"\n- " + naam + "\n");
    }
    EXPECT_FALSE(std::filesystem::exists(PadVan(*soort)));
  }
}

TEST_F(ControleFormToets, DeTellerTeltOokVervolgrecords) {
  BouwGoed();
  MaakVervolg(3);
  EXPECT_THAT(Rapport(kControlePrs), ::testing::Not(::testing::IsEmpty()));
  EXPECT_EQ(geteld_, "3");
  Rapport(kControleRel);
  EXPECT_EQ(geteld_, "1");
  Rapport(kControlePlts);
  EXPECT_EQ(geteld_, "1");
  Rapport(kControleOpm);
  EXPECT_EQ(geteld_, "2");
}

TEST_F(ControleFormToets, AchterHetVerslagIsDeControleNietMeerBezig) {
  BouwGoed();
  BezigKijker kijker;
  Sessie([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.gesprek.Toon<ControleForm>(kControlePrs, hoofd);
  })(kijker);
  EXPECT_EQ(kijker.Gezien(), "ToonTekst ");
}

TEST_F(ControleFormToets, DeVolgersBlijvenStaan) {
  BouwGoed();
  Beschadig();
  for (const ControleSoort* soort : kAlle) {
    Rapport(*soort);
    EXPECT_EQ(na_.HuidigPersoonNr, voor_.HuidigPersoonNr) << soort->naam;
    EXPECT_EQ(na_.HuidigRelatieNr, voor_.HuidigRelatieNr) << soort->naam;
    EXPECT_EQ(na_.HuidigOpmNr, voor_.HuidigOpmNr) << soort->naam;
  }
}

TEST_F(ControleFormToets, EenControleVerandertGeenRecord) {
  BouwGoed();
  Beschadig();
  const auto bytes = [this] {
    const SetPaden paden = SetPaden::Van(Map(), "PROEF");
    return LeesBytes(paden.prs) + LeesBytes(paden.rlt) + LeesBytes(paden.plt) +
           LeesBytes(paden.opm);
  };
  const std::string voor = bytes();
  ASSERT_NE(voor, "");
  for (const ControleSoort* soort : kAlle) Rapport(*soort);
  EXPECT_EQ(bytes(), voor);
}

TEST_F(ControleFormToets, VanElkeSchadeStaatEenRegelInHetVerslagEnNietsAnders) {
  BouwGoed();
  Beschadig();
  const std::string_view gouden[] = {"controle_prs.txt", "controle_rel.txt", "controle_plts.txt",
                                     "controle_opm.txt"};
  std::set<BevindingSoort> soorten;
  for (std::size_t i = 0; i < std::size(kAlle); ++i) {
    const std::string uit = Rapport(*kAlle[i]);
    VerwachtGouden(gouden[i], uit);
    std::string regels;
    for (const Bevinding& bevinding : gevonden_) {
      soorten.insert(bevinding.soort);
      regels += bevinding.tekst + "\r\n";
    }
    EXPECT_TRUE(uit.ends_with("):\r\n\r\n" + regels + "\r\n"));
  }
  EXPECT_EQ(soorten.size(), static_cast<std::size_t>(BevindingSoort::LosseOpmerking) + 1);
}

TEST_F(ControleFormToets, EenPersoonDieHetSysteemNietLeestWordtOvergeslagen) {
  BouwGoed();
  MaakOnleesbaar(BestandSoort::Personen, 3);
  Speel(kControlePrs, "druk OKButton\ndruk BackButton\n", R"(
    + ControlePrs "Controleer Persoonsbestand"
    + ToonTekst "Controle Persoonsbestand"
    - ToonTekst
    - ControlePrs
  )");
  EXPECT_TRUE(LeesBytes(PadVan(kControlePrs)).ends_with(kGeenFouten));
}

TEST_F(ControleFormToets, EenVerkeerdeTellingWordtEersteGemeld) {
  BouwGoed();
  Bouw().ZetAantalPersonen(9);
  Speel(kControlePrs, "druk OKButton\ndruk BackButton\n", R"(
    + ControlePrs "Controleer Persoonsbestand"
    ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:4\nVolgens administratierecord:10"
    + ToonTekst "Controle Persoonsbestand"
    - ToonTekst
    - ControlePrs
  )");
  EXPECT_TRUE(LeesBytes(PadVan(kControlePrs)).ends_with(kGeenFouten));
}

// Every pair of places of one name has its line. A repair elsewhere leaves what stands beside the list.
TEST_F(ControleFormToets, WatNietInDeLijstPastStaatAlleenInHetVerslag) {
  constexpr std::size_t kPlaatsen = 450;
  for (std::size_t i = 0; i < kPlaatsen; ++i) {
    const std::string prov{static_cast<char>('A' + i / 26), static_cast<char>('A' + i % 26)};
    Bouw().Plaats("Bergen", prov);
  }
  Bouw().Man("Jan", "Proef", {{"GebPlaats", "2"}});
  constexpr std::size_t kParen = kPlaatsen * (kPlaatsen - 1) / 2;
  Speel(kControlePlts, R"(
    stel OngebruiktePlaatsen uit
    druk OKButton
    druk Bevindingen
    toon MeerLabel
    toon Open
    druk CorrigeerButton
    vul PlaatsNrOud 2
    vul PlaatsNrNieuw 3
    antwoord Ja
    druk OKButton
    druk OKButton
    toon MeerLabel
    toon Open
    druk BackButton
    druk BackButton
  )",
        R"(
    + ControlePlts "Controleer Plaatsbestand"
    + ToonTekst "Controle Plaatsbestand"
    + Bevindingen "Bevindingen"
    = MeerLabel "1025 bevindingen meer staan alleen in het verslag"
    = Open "100000"
    + CorrPltsAlg "Vervang Plaatscode"
    ? vraag Ja/Nee "Vervang 2(Bergen,AA) ==> 3(Bergen,AB) in alle Persoonsrecords en Relatierecords ?" -> Ja
    + CorrPltsTemp "Vervang Plaatscode"
    - CorrPltsTemp
    - CorrPltsAlg
    = MeerLabel "1025 bevindingen meer staan alleen in het verslag"
    = Open "100000"
    - Bevindingen
    - ToonTekst
    - ControlePlts
  )");
  EXPECT_EQ(gevonden_.size(), BevindingLijst::kMeeste);
  const std::string uit = LeesBytes(PadVan(kControlePlts));
  EXPECT_EQ(std::ranges::count(uit, '\n'), static_cast<std::ptrdiff_t>(kParen + 8));
}

TEST_F(ControleFormToets, EenLangeNaamBlijftOpZijnRegel) {
  Bouw().Plaats("Een plaats van 25 tekens ", "ZH");
  Bouw().Plaats("Een plaats van 25 tekens ", "NH");
  EXPECT_EQ(Resultaat(kControlePlts),
            "Plaats 2(Een plaats van 25 tekens,ZH) lijkt op plaatscode 3(Een plaats van 25 "
            "tekens,NH)\r\nPlaats 2(Een plaats van 25 tekens,ZH) wordt niet gebruikt\r\n"
            "Plaats 3(Een plaats van 25 tekens,NH) wordt niet gebruikt\r\n\r\n");
}

}  // namespace
}  // namespace lb77
