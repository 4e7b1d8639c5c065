#include "app/SessieToets.h"
#include "app/Welkom.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"
#include "steun/FaalBestand.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class WelkomVenster : public SessieToets {
 protected:
  std::optional<Weg> gekozen_;
  SpeelToets::Programma Toont() {
    return Met([this](Hoofdmodule& hoofd) {
      Welkom welkom(hoofd);
      hoofd.gesprek.ToonModaal(welkom);
      gekozen_ = welkom.Gekozen();
    });
  }
};

constexpr const char* kOpen = "+ Welkom \"LB77 voor Windows\"\n";

TEST_F(WelkomVenster, ZegtWaarDeGegevensKomenEnBiedtVierWegen) {
  Verwacht("toon\ndruk BackButton", Toont(), kOpen + MetMap(R"(
      : Welkom "LB77 voor Windows"
      = WelkomKop "Welkom bij LB77"
      = WelkomUitleg "LB77 houdt de gegevens van uw familie bij en schrijft er de verslagen van die genealogen gebruiken. Kies hoe u wilt beginnen; alles wat u kiest kunt u later ook nog doen."
      = GevondenLabel "" [verborgen]
      = Terugnemen "&Deze families weer openen" [verborgen]
      = WaarLabel "Uw gegevens komen te staan in de map\n<map>/DATA\nen gaan nergens anders heen. Een andere map kiest u later onder Bestand, Instellingen, Systeem."
      = NieuweFamilie "&Nieuwe familie"
      = NieuweUitleg "Begin met niets en voer de eerste persoon zelf in."
      = GedcomInlezen "&GEDCOM inlezen"
      = GedcomUitleg "Neem de gegevens over uit een ander programma (een .ged-bestand)."
      = OudeBestanden "&Oude bestanden openen"
      = OudeUitleg "Werk verder met bestanden van vroeger, van een diskette bijvoorbeeld."
      = Voorbeeldfamilie "Voorbeeldfamilie be&kijken"
      = VoorbeeldUitleg "Kijk rond bij het huis Oranje-Nassau; u kunt er niets aan bederven."
      = BackButton "&Afsluiten"
      * NieuweFamilie
      - Welkom)"));
}

TEST_F(WelkomVenster, WieNietsKiestHeeftNietsGemaakt) {
  Verwacht("toets Escape", Toont(), kOpen + std::string("- Welkom"));
  EXPECT_FALSE(gekozen_);
  EXPECT_TRUE(std::filesystem::is_empty(map_));
}

TEST_F(WelkomVenster, ElkeWegMaaktDeInstellingenEnWordtOnthouden) {
  const std::pair<const char*, Weg> wegen[] = {{"NieuweFamilie", Weg::NieuweFamilie},
                                               {"GedcomInlezen", Weg::Gedcom},
                                               {"OudeBestanden", Weg::OudeBestanden},
                                               {"Voorbeeldfamilie", Weg::Voorbeeld}};
  map_ /= "nog/niet";
  for (const auto& [knop, weg] : wegen) {
    std::filesystem::remove_all(map_);
    Verwacht("druk " + std::string(knop), Toont(), kOpen + std::string("- Welkom"));
    EXPECT_EQ(gekozen_, weg) << knop;
    EXPECT_TRUE(IniHeeft("DatumForm=0")) << knop;
    EXPECT_TRUE(IniHeeft("Versie=2.1")) << knop;
    // The start-up finds it, and says nothing.
    Verwacht("", MetMenu([](Hoofdmodule&, MenuWindow&) {}), "");
  }
}

TEST_F(WelkomVenster, BlijftStaanAlsDeInstellingenNietTeMakenZijn) {
  Schrijf("bezet", "");
  map_ /= "bezet";
  Verwacht("antwoord OK\ndruk NieuweFamilie\ndruk BackButton", Toont(),
           kOpen + std::string(R"(
      ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\n)") +
               kAchterBestand + R"(" -> OK
      - Welkom)");
  EXPECT_FALSE(gekozen_);
}

TEST_F(WelkomVenster, WieDanStoptKiestNiets) {
  Schrijf("bezet", "");
  map_ /= "bezet";
  Verwacht("antwoord Annuleren\ndruk NieuweFamilie", Toont(),
           kOpen + std::string(R"(
      ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\n)") +
               kAchterBestand + R"(" -> Annuleren
      - Welkom)");
  EXPECT_FALSE(gekozen_);
}

TEST_F(WelkomVenster, FamiliesDieErAlZijnWordenGenoemdEnTeruggenomen) {
  MaakSet("ORANJE");
  MaakSet("JANSEN");
  Verwacht("toon GevondenLabel\ntoon Terugnemen\ntoets Enter", Toont(), kOpen + std::string(R"(
      = GevondenLabel "Er staan hier al families: JANSEN, ORANJE. Alleen de instellingen zijn weg, met de lijst van families erin; de families niet."
      = Terugnemen "&Deze families weer openen"
      - Welkom)"));
  EXPECT_EQ(gekozen_, Weg::Teruggevonden);
  EXPECT_TRUE(IniHeeft("Set1=JANSEN,"));
  EXPECT_TRUE(IniHeeft("Set2=ORANJE,"));
}

TEST_F(WelkomVenster, WieZeLaatStaanHeeftEenLegeLijst) {
  MaakSet("JANSEN");
  Verwacht("druk NieuweFamilie", Toont(), kOpen + std::string("- Welkom"));
  EXPECT_EQ(gekozen_, Weg::NieuweFamilie);
  EXPECT_FALSE(IniHeeft("Set1=JANSEN,"));
  EXPECT_TRUE(Bestaat("DATA/JANSEN/JANSEN.PRS"));
}

TEST_F(WelkomVenster, MeerFamiliesDanDeLijstHoudtWordenGemeld) {
  for (int i = 1; i <= 100; ++i) {
    const std::string naam = "F" + GetalTekst(i);
    Schrijf("DATA/" + naam + "/" + naam + ".PRS", "x");
  }
  Speel("druk Terugnemen", Toont());
  EXPECT_NE(verslag_.find("De lijst met bestandensets is vol"), std::string::npos) << verslag_;
  EXPECT_TRUE(IniHeeft("Set99=F98,"));
}

TEST_F(WelkomVenster, TerugnemenBlijftStaanAlsDeInstellingenNietTeMakenZijn) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  MaakSet("JANSEN");
  const ZonderRechten rechten(map_);
  Verwacht("antwoord OK\ndruk Terugnemen\ndruk BackButton", Toont(), kOpen + std::string(R"(
      ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nGeen toegang" -> OK
      - Welkom)"));
  EXPECT_FALSE(gekozen_);
}

TEST_F(WelkomVenster, DeEersteKeerIsHetAlleenZonderInstellingenEnZonderKopieErvan) {
  EXPECT_TRUE(IsEersteKeer(map_));
  EXPECT_TRUE(IsEersteKeer(map_ / "weg"));
  for (const char* naam : {"LIJNBOOM.INI", "lijnboom.ini"}) {
    Schrijf(naam, "[Einde]\r\n");
    EXPECT_FALSE(IsEersteKeer(map_)) << naam;
    std::filesystem::remove(map_ / naam);
  }
  if (!kKoppelingen) return;
  std::filesystem::create_symlink(map_ / "weg", map_ / "LIJNBOOM.INI");
  EXPECT_FALSE(IsEersteKeer(map_));
}

}  // namespace
}  // namespace lb77
