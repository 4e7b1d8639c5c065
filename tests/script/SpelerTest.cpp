#include <gmock/gmock.h>

#include "script/SpeelFormulieren.h"
#include "script/Speler.h"
#include "steun/SpeelToets.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

class SpelerTest : public SpeelToets {
 protected:
  static void ToonHoofd(Gesprek& gesprek) {
    Hoofd hoofd(gesprek);
    gesprek.ToonModaal(hoofd);
  }
  // A program without forms that asks and tells at start-up.
  static Programma Doet(std::function<void(Gesprek&)> doe) { return doe; }
};

// Forms.

TEST_F(SpelerTest, EenGenestFormulierNeemtDeVolgendeInstructies) {
  Verwacht(R"(
    kies Nieuw
    vul Nummer 12
    druk BackButton
    toon
  )",
           ToonHoofd, R"(
    + Hoofd "Hoofdvenster"
    + Invoer "Invoer"
    - Invoer
    : Hoofd "Hoofdvenster na 12"
    = Menu "&Bestand"
    = Nieuw "&Nieuw"
    = Sub "&Sub"
    = Diep "&Diep"
    = Grijs "&Grijs" [uit]
    = Weg "&Weg" [verborgen]
    = Einde "&Einde"
  )");
}

TEST_F(SpelerTest, DrieFormulierenDiepGaatElkeAfhandelingVerderWaarZijWas) {
  Verwacht(R"(
    kies Nieuw
    druk WerkButton
    toon Stand
    druk BackButton
    kies Einde
  )",
           ToonHoofd, R"(
    + Hoofd "Hoofdvenster"
    + Invoer "Invoer"
    + Werk "Bezig"
    ! geen "Geteld tot 10"
    - Werk
    = Stand "gewerkt"
    - Invoer
    - Hoofd
  )");
}

TEST_F(SpelerTest, HetEindeVanHetDraaiboekLaatOpenFormulierenStilVallen) {
  Verwacht("kies Nieuw\nvul Naam x", ToonHoofd, R"(
    + Hoofd "Hoofdvenster"
    + Invoer "Invoer"
  )");
  Verwacht("", ToonHoofd, R"(+ Hoofd "Hoofdvenster")");
}

TEST_F(SpelerTest, BerichtenVanHetLadenKomenVoorHetFormulierErStaat) {
  const auto programma = [](Gesprek& gesprek) {
    Levensloop formulier("Leven");
    formulier.laden = [&](Levensloop&) { gesprek.Waarschuw("laden"); };
    formulier.activeren = [&](Levensloop&) { gesprek.Waarschuw("actief"); };
    formulier.klik = [&](Levensloop& zelf) {
      gesprek.Waarschuw("klik");
      zelf.Sluit();
    };
    formulier.gesloten = [&](Levensloop&) { gesprek.Waarschuw("gesloten"); };
    gesprek.ToonModaal(formulier);
  };
  Verwacht("druk Knop1", programma, R"(
    ! uitroep "laden"
    + Leven "Levensloop"
    ! uitroep "actief"
    ! uitroep "klik"
    - Leven
    ! uitroep "gesloten"
  )");
}

TEST_F(SpelerTest, EenFormulierDatBijHetLadenSluitStaatNietInHetVerslag) {
  const auto programma = [](Gesprek& gesprek) {
    Levensloop formulier("Leven");
    formulier.laden = [](Levensloop& zelf) { zelf.Sluit(); };
    gesprek.ToonModaal(formulier);
    gesprek.Informeer("verder");
  };
  Verwacht("", programma, R"(! info "verder")");
}

TEST_F(SpelerTest, VerbergenStaatNietInHetVerslagEnDeKetenGaatDoor) {
  const auto programma = [](Gesprek& gesprek) {
    Levensloop eerste("Eerste");
    eerste.klik = [&](Levensloop& zelf) {
      zelf.Verberg();
      Levensloop tweede("Tweede");
      tweede.klik = [](Levensloop& ander) { ander.Sluit(); };
      gesprek.ToonModaal(tweede);
      zelf.Sluit();
    };
    gesprek.ToonModaal(eerste);
  };
  Verwacht("druk Knop1\ndruk Knop1", programma, R"(
    + Eerste "Levensloop"
    + Tweede "Levensloop"
    - Tweede
    - Eerste
  )");
}

TEST_F(SpelerTest, EenFormulierDatVerborgenBlijftTeltAlsGesloten) {
  const auto programma = [](Gesprek& gesprek) {
    Levensloop formulier("Leven");
    formulier.klik = [](Levensloop& zelf) { zelf.Verberg(); };
    gesprek.ToonModaal(formulier);
    gesprek.Informeer("verder");
  };
  Verwacht("druk Knop1", programma, R"(
    + Leven "Levensloop"
    - Leven
    ! info "verder"
  )");
}

TEST_F(SpelerTest, MetEchoStaatElkeInstructieVoorWatZijDoet) {
  echo_ = true;
  Verwacht(R"(
    antwoord Ja
    kies Nieuw
      vul Nummer   0
    druk OKButton
    druk BackButton
  )",
           [](Gesprek& gesprek) {
             static_cast<void>(gesprek.Vraag("Doorgaan ?"));
             ToonHoofd(gesprek);
           },
           R"(
    $ antwoord Ja
    ? vraag Ja/Nee "Doorgaan ?" -> Ja
    + Hoofd "Hoofdvenster"
    $ kies Nieuw
    + Invoer "Invoer"
    $ vul Nummer   0
    ! uitroep "Nummer bestaat niet"
    $ druk OKButton
    ! uitroep "Nummer bestaat niet"
    $ druk BackButton
    - Invoer
  )");
}

// Boxes.

TEST_F(SpelerTest, ElkBerichtMetEenKnopHeeftGeenAntwoordNodig) {
  Verwacht("", Doet([](Gesprek& gesprek) {
             gesprek.Meld(BerichtSoort::Geen, "a");
             gesprek.Informeer("b");
             gesprek.Waarschuw("c \"d\"\nrij\r\ntwee"_w);
             gesprek.Fout("één"_w);
             gesprek.Meld(BerichtSoort::Vraag, "e");
             EXPECT_FALSE(gesprek.BerichtMetVinkje("f", "Niet meer tonen"));
           }),
           R"(
    ! geen "a"
    ! info "b"
    ! uitroep "c \"d\"\nrij\ntwee"
    ! stop "één"
    ! vraag "e"
    ! info "f"
  )");
}

TEST_F(SpelerTest, EenKeuzeKrijgtHetVolgendeAntwoord) {
  Verwacht("antwoord Ja Annuleren\nantwoord OK Nee", Doet([](Gesprek& gesprek) {
             EXPECT_TRUE(gesprek.Vraag("a ?"));
             EXPECT_EQ(gesprek.Bericht(BerichtSoort::Uitroep, Knoppen::JaNeeAnnuleren, "b ?"),
                       Antwoord::Annuleren);
             EXPECT_EQ(gesprek.Bericht(BerichtSoort::Stop, Knoppen::OKAnnuleren, "c ?"),
                       Antwoord::OK);
             EXPECT_FALSE(gesprek.Vraag("d ?"));
           }),
           R"(
    ? vraag Ja/Nee "a ?" -> Ja
    ? uitroep Ja/Nee/Annuleren "b ?" -> Annuleren
    ? stop OK/Annuleren "c ?" -> OK
    ? vraag Ja/Nee "d ?" -> Nee
  )");
}

TEST_F(SpelerTest, EenKeuzeZonderAntwoordKanNietWordenGespeeld) {
  VerwachtFout("", Doet([](Gesprek& gesprek) { static_cast<void>(gesprek.Vraag("a ?")); }),
               R"(voor de eerste instructie: er staat geen antwoord klaar voor "a ?")");
  EXPECT_EQ(verslag_, "");
}

TEST_F(SpelerTest, EenAntwoordAchterDeInstructieKomtTeLaat) {
  const auto programma = [](Gesprek& gesprek) {
    Levensloop formulier("Leven");
    formulier.klik = [&](Levensloop&) { static_cast<void>(gesprek.Vraag("a ?")); };
    gesprek.ToonModaal(formulier);
  };
  VerwachtFout("toon Knop1\ndruk Knop1\nantwoord Ja", programma,
               R"(regel 2: er staat geen antwoord klaar voor "a ?")");
  EXPECT_EQ(verslag_, Regels(R"(
    + Leven "Levensloop"
    = Knop1 "&Knop"
  )"));
}

TEST_F(SpelerTest, EenAntwoordDatNietPastKanNietWordenGespeeld) {
  VerwachtFout("antwoord OK",
               Doet([](Gesprek& gesprek) { static_cast<void>(gesprek.Vraag("a ?")); }),
               R"(het antwoord OK past niet bij Ja/Nee "a ?")");
}

// Files and the printer.

TEST_F(SpelerTest, EenBestandsvraagKrijgtHetVolgendePad) {
  basismap_ = "/basis";
  Verwacht("bestand map/Zoë.ged\nbestand /vast.txt\nbestand", Doet([](Gesprek& gesprek) {
             EXPECT_EQ(gesprek.VraagBestand({BestandsWijze::Openen, "GEDCOM|*.GED", {}}),
                       std::filesystem::path(u8"/basis/map/Zoë.ged"));
             EXPECT_EQ(gesprek.VraagBestand({BestandsWijze::Opslaan, "", {}}),
                       std::filesystem::path("/vast.txt"));
             EXPECT_EQ(gesprek.VraagBestand({BestandsWijze::Map, "", {}}), std::nullopt);
           }),
           R"(
    > openen "GEDCOM|*.GED" -> "map/Zoë.ged"
    > opslaan "" -> "/vast.txt"
    > map "" -> -
  )");
}

TEST_F(SpelerTest, ZonderBasismapBlijftEenPadZoalsHetIs) {
  Verwacht("bestand x.ged", Doet([](Gesprek& gesprek) {
             EXPECT_EQ(gesprek.VraagBestand({}), std::filesystem::path("x.ged"));
           }),
           R"(> openen "" -> "x.ged")");
}

TEST_F(SpelerTest, EenBestandsvraagZonderPadKanNietWordenGespeeld) {
  VerwachtFout("antwoord Ja",
               Doet([](Gesprek& gesprek) { static_cast<void>(gesprek.VraagBestand({})); }),
               R"(er staat geen bestand klaar voor openen "")");
}

TEST_F(SpelerTest, EenAfdrukStaatMetZijnPaginasInHetVerslag) {
  Verwacht("", Doet([](Gesprek& gesprek) {
             EXPECT_TRUE(gesprek.DrukAf({"titel", {{"regel"}, {"regel"}, {}}}));
           }),
           "% afdruk 3");
}

// Stop requests.

TEST_F(SpelerTest, OnderbreekVraagtBijDeEersteTestenEnNeeGaatVerder) {
  Verwacht(R"(
    kies Nieuw
    onderbreek 3
    onderbreek 2
    antwoord Nee Ja
    druk WerkButton
    druk WerkButton
  )",
           ToonHoofd, R"(
    + Hoofd "Hoofdvenster"
    + Invoer "Invoer"
    + Werk "Bezig"
    ? vraag Ja/Nee "Afbreken bij 3 ?" -> Nee
    ? vraag Ja/Nee "Afbreken bij 5 ?" -> Ja
    ! geen "Geteld tot 4"
    - Werk
    + Werk "Bezig"
    ! geen "Geteld tot 10"
    - Werk
  )");
}

TEST_F(SpelerTest, OnderbreekNaDeLaatsteTestBlijftOver) {
  const SpeelUitslag uitslag = Speel("kies Nieuw\nonderbreek 11\ndruk WerkButton", ToonHoofd);
  EXPECT_EQ(uitslag.status, 0);
  EXPECT_THAT(uitslag.ongebruikt, ElementsAre("regel 2: onderbreek, nog 1 keer te gaan"));
}

}  // namespace
}  // namespace lb77
