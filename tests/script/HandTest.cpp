#include "script/Hand.h"
#include "script/InvoerToets.h"

namespace lb77 {
namespace {

using HandTest = InvoerToets;

// druk and dubbelklik.

TEST_F(HandTest, DrukKlikt) {
  InInvoer(R"(
    druk Vink
    druk Vrouw
    druk Man
    druk Kop
    toon Vink
    toon Man
    toon Vrouw
    vul Naam Zoë
    druk OKButton
  )",
           R"(
    = Vink aan
    = Man aan
    = Vrouw uit
    ! info "Opgeslagen: Zoë"
    - Invoer
  )");
}

TEST_F(HandTest, DrukWeigertWatNietKlikt) {
  for (const std::string naam : {"Plat", "Naam", "Keuze", "Stand"}) {
    InvoerWeigert("druk " + naam, "Invoer." + naam + " kan niet worden aangeklikt");
  }
}

TEST_F(HandTest, DubbelklikDubbelklikt) {
  InInvoer("dubbelklik Kop\ntoon Kop", R"(= Kop "Crematie")");
  InvoerWeigert("dubbelklik Plat", "Invoer.Plat doet niets bij een dubbelklik");
}

TEST_F(HandTest, EenWissellabelWisseltDoorDubbelklikEnSpatie) {
  InInvoer("dubbelklik Wissel\ntoon Wissel\ntoets Wissel Space\ntoon Wissel", R"(
    = Wissel "Crematie"
    = Wissel "Begraven"
  )");
  InvoerWeigert("druk Wissel", "Invoer.Wissel kan niet worden aangeklikt");
}

// toets.

TEST_F(HandTest, ToetsGaatNaarHetVeldMetDeFocus) {
  InInvoer(R"(
    typ Naam a
    toets b
    toets Num5
    toets Space
    toets c
    toon Naam
  )",
           R"(= Naam "ab5 c")");
}

TEST_F(HandTest, ToetsMetNaamGaatEerstNaarDatVeld) {
  EXPECT_EQ(LaatsteVan("toets Naam x"), "* Naam");
  InInvoer("typ Nummer 5\ntoets Naam x\ntoon Naam\ntoon Nummer", R"(
    = Naam "x"
    = Nummer "5"
  )");
}

TEST_F(HandTest, ToetsZonderFocusGaatNaarHetFormulier) {
  InInvoer("toets F1\ntoon Stand\ntoets Shift+F1\ntoon Stand", R"(
    = Stand "F1"
    = Stand "Shift+F1"
  )");
}

TEST_F(HandTest, ToetsZonderFocusTyptNergens) {
  InInvoer("toets a\ntoets Enter\ntoon Naam", R"(= Naam "")");
}

TEST_F(HandTest, ToetsBijEenVerborgenFocusveldGaatNaarHetFormulier) {
  InInvoer(R"(
    typ Naam x
    toets F2
    toets y
    toets F1
    toon Naam
    toon Stand
  )",
           R"(
    = Naam "x" [verborgen]
    = Stand "F1"
  )");
}

TEST_F(HandTest, ToetsTyptNietInEenVeldDatAlleenNogTeLezenIs) {
  InInvoer("typ Naam x\ntoets F8\ntoets y\ntoon Naam", R"(= Naam "x")");
}

TEST_F(HandTest, ToetsEnterEnTabGaanVerder) {
  EXPECT_EQ(LaatsteVan("typ Nummer 5\ntoets Enter"), "* Naam");
  EXPECT_EQ(LaatsteVan("typ Nummer 5\ntoets Tab"), "* Naam");
  EXPECT_EQ(LaatsteVan("typ Nummer 5\ntoets Shift+Tab"), "* BackButton");
}

TEST_F(HandTest, ToetsEnterInEenTekstblokIsEenRegeleinde) {
  InInvoer("typ Opm a\ntoets Enter\ntoets b\ntoon Opm", R"(= Opm "a\nb")");
}

TEST_F(HandTest, ToetsDruktEnKiest) {
  InInvoer(R"(
    toets Vink Space
    toets Keuze Down
    toets Down
    toon Vink
    toon Keuze
    toets BackButton Enter
  )",
           R"(
    = Vink aan
    = Keuze "Nee"
    #0 "Ja"
    #1 "Nee"
    #2 "#1"
    - Invoer
  )");
}

TEST_F(HandTest, ToetsWeigertWatGeenFocusNeemt) {
  InvoerWeigert("toets Kop F1", "Invoer.Kop neemt geen toetsen aan");
  InvoerWeigert("toets Lezen Enter", "Invoer.Lezen neemt geen toetsen aan");
}

// stel.

TEST_F(HandTest, StelKiestOpTekstEnOpPlaats) {
  static_cast<void>(Speel("stel Keuze Nee\ntoon Keuze", ToonInvoer));
  EXPECT_NE(verslag_.find("= Keuze \"Nee\""), std::string::npos);
  static_cast<void>(Speel("stel Keuze #0\ntoon Keuze", ToonInvoer));
  EXPECT_NE(verslag_.find("= Keuze \"Ja\""), std::string::npos);
  static_cast<void>(Speel("stel Keuze \"#1\"\ntoon Keuze", ToonInvoer));
  EXPECT_NE(verslag_.find("= Keuze \"#1\""), std::string::npos);
}

TEST_F(HandTest, StelWeigertEenRijDieErNietIs) {
  InvoerWeigert("stel Keuze nee", R"(Invoer.Keuze heeft geen rij "nee")");
  for (const std::string rij : {"#3", "#-1", "#", "#x", "#01"}) {
    InvoerWeigert("stel Keuze " + rij, "heeft geen rij \"" + rij + "\"");
  }
}

TEST_F(HandTest, StelZetEenVinkjeAanEnUit) {
  InInvoer(R"(
    stel Vink aan
    stel Vink aan
    toon Vink
    stel Vink uit
    stel Vink uit
    toon Vink
  )",
           R"(
    = Vink aan
    = Vink uit
  )");
}

TEST_F(HandTest, StelZetEenOptieAanEnDieGaatAlleenUitDoorEenAndere) {
  InInvoer("stel Man aan\nstel Vrouw aan\nstel Man uit\ntoon Man\ntoon Vrouw", R"(
    = Man uit
    = Vrouw aan
  )");
  InvoerWeigert("stel Man aan\nstel Man uit",
                "regel 2: Invoer.Man gaat alleen uit door een andere optie te kiezen");
}

TEST_F(HandTest, EenPijlKiestDeVolgendeOptie) {
  InInvoer("toets Man Down\ntoon Vrouw\ntoets Down\ntoon Man", R"(
    = Vrouw aan
    = Man aan
  )");
}

TEST_F(HandTest, StelWeigertWatGeenKeuzeIs) {
  InvoerWeigert("stel Vink ja", "Invoer.Vink kan alleen aan of uit");
  InvoerWeigert("stel Naam aan", "Invoer.Naam is geen keuze");
}

// kies.

TEST_F(HandTest, KiesVoertEenMenukeuzeUit) {
  Verwacht("kies Diep\ntoon Sub\nkies Einde", ToonHoofd, R"(
    + Hoofd "Hoofdvenster"
    = Sub "&Sub"
    - Hoofd
  )");
}

TEST_F(HandTest, KiesWeigertEenMenukeuzeDieNietBeschikbaarIs) {
  for (const std::string naam : {"Grijs", "Weg", "Menu", "Sub"}) {
    VerwachtFout("kies " + naam, ToonHoofd, "Hoofd." + naam + " is niet beschikbaar");
  }
}

TEST_F(HandTest, KiesWeigertEenMenukeuzeInEenUitgeschakeldMenu) {
  const auto metMenuUit = [](Gesprek& gesprek) {
    Hoofd hoofd(gesprek);
    hoofd.Menu.ZetIngeschakeld(false);
    gesprek.ToonModaal(hoofd);
  };
  VerwachtFout("kies Nieuw", metMenuUit, "Hoofd.Nieuw is niet beschikbaar");
  VerwachtFout("kies Diep", metMenuUit, "Hoofd.Diep is niet beschikbaar");
}

TEST_F(HandTest, KiesWeigertWatGeenMenukeuzeIs) {
  InvoerWeigert("kies OKButton", "Invoer.OKButton is geen menukeuze");
  VerwachtFout("druk Nieuw", ToonHoofd, "Hoofd.Nieuw kan niet worden aangeklikt");
}

// What can be reached, and the frame.

TEST_F(HandTest, OnbekendVerborgenEnUitgeschakeldKanNiet) {
  const auto programma = [](Gesprek& gesprek) {
    Invoer invoer(gesprek);
    invoer.OKButton.ZetIngeschakeld(false);
    invoer.Naam.ZetZichtbaar(false);
    gesprek.ToonModaal(invoer);
  };
  VerwachtFout("druk OKButton", programma, "regel 1: Invoer.OKButton is uitgeschakeld");
  VerwachtFout("toon\nvul Naam x", programma, "regel 2: Invoer.Naam is verborgen");
  VerwachtFout("toets Naam Escape", programma, "Invoer.Naam is verborgen");
  VerwachtFout("stel Onzin aan", programma, "Invoer.Onzin bestaat niet");
  VerwachtFout("toon Onzin", programma, "Invoer.Onzin bestaat niet");
  VerwachtFout("kies Onzin", programma, "Invoer.Onzin bestaat niet");
}

TEST_F(HandTest, SluitDoetWatDeTerugknopDoet) {
  InInvoer("typ Nummer 0\nsluit", "- Invoer");
  Verwacht("sluit", ToonHoofd, "+ Hoofd \"Hoofdvenster\"\n- Hoofd");
}

}  // namespace
}  // namespace lb77
