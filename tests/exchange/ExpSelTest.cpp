// The dialogs that select a range, by script.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Start.h"
#include "exchange/ExpSel.h"
#include "steun/FaalBestand.h"
#include "steun/FamilieToets.h"
#include "steun/KaartFamilie.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

class ExpSelTest : public FamilieToets {
 protected:
  ExpSelTest() { SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\n"); }

  void Speel(const ExpSelSoort& soort, std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    const Taak taak = [this, &soort](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.schrijfwijze.DatumScheider = '-';
      hoofd.volgers.HuidigPersoonNr = 4;
      hoofd.gesprek.Toon<ExpSel>(soort, hoofd, lijst_);
      huidig_ = hoofd.volgers.HuidigPersoonNr;
    };
    Verwacht(draaiboek, taak,
             "+ " + std::string(soort.naam) + " \"" + std::string(soort.titel) + "\"\n" +
                 Regels(verslag) + "- " + std::string(soort.naam) + "\n",
             plek);
  }

  // Does a script show these lines when the disk fails from some operation on?
  bool WordtGetoond(const ExpSelSoort& soort, std::string_view draaiboek, std::string_view regels) {
    for (int bij = 1; bij < 100; ++bij) {
      Storing storing{.bij = bij, .blijvend = true};
      const auto programma = [&](Gesprek& gesprek) {
        const VasteKlok klok({.jaar = 2000, .maand = 1, .dag = 1});
        Hoofdmodule hoofd(gesprek, klok, Map());
        hoofd.bestanden = Bestandenset(FalendeOpener(storing));
        ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
        hoofd.gesprek.Toon<ExpSel>(soort, hoofd, lijst_);
      };
      static_cast<void>(SpeelToets::Speel(draaiboek, programma));
      if (verslag_.find(regels) != std::string::npos) return true;
    }
    return false;
  }

  SelectieLijst lijst_;
  std::int16_t huidig_ = 0;
};

TEST_F(ExpSelTest, BegintMetAllePersonen) {
  BouwKaartFamilie(Bouw());
  Speel(kExpSelPers, "toon\ndruk BackButton", R"~(
    : ExpSelPers "Exporteer gegevens - Selecteer Personen"
    = VraagLabel "Gegevens van de volgende Personen opnemen in het exportbestand"
    = (*) RecordNrPers VoorNmPersoon AchterNmPersoon PeriodePersoon ZoekPersButton
    = (0) "2" "Jan Pieter" "van Dam" "1800-1870" "Zoek"
    = (1) "7" "<onbekend>" "<onbekend>" "    -    " "Zoek"
    = OKButton "&Voeg toe"
    = BackButton "&Terug"
    * RecordNrPers(0)
  )~");
  EXPECT_EQ(lijst_.Aantal(), 0U);
}

TEST_F(ExpSelTest, BegintMetAlleRelaties) {
  BouwKaartFamilie(Bouw());
  Speel(kExpSelRel, "vul RecordNrRel(1) 4\ntoon\ndruk OKButton", R"~(
    : ExpSelRel "Exporteer gegevens - Selecteer Relaties"
    = VraagLabel "Gegevens van de volgende Relaties opnemen in het exportbestand"
    = (*) RecordNrRel RecordNrMan VoorNmMan AchterNmMan RecordNrVrouw VoorNmVrouw AchterNmVrouw
    = (0) "2" "2" "Jan Pieter" "van Dam" "3" "Cornelia" "Cool"
    = (1) "4" "2" "Jan Pieter" "van Dam" "" "" ""
    = OKButton "&Voeg toe"
    = BackButton "&Terug"
  )~");
  EXPECT_THAT(lijst_.Nummers(), ElementsAre(2, 3, 4));
}

TEST_F(ExpSelTest, WatNaZijnNummerNietMeerTeLezenIsIsOnbekend) {
  BouwKaartFamilie(Bouw());
  EXPECT_TRUE(WordtGetoond(kExpSelRel,
                           "vul RecordNrRel(1) 4\ntoon RecordNrMan(1)\ntoon VoorNmMan(1)\n"
                           "toon AchterNmMan(1)\ntoon RecordNrVrouw(1)\ntoon VoorNmVrouw(1)\n"
                           "toon AchterNmVrouw(1)\ndruk BackButton",
                           "= RecordNrMan(1) \"\"\n= VoorNmMan(1) \"<onbekend>\"\n"
                           "= AchterNmMan(1) \"<onbekend>\"\n= RecordNrVrouw(1) \"\"\n"
                           "= VoorNmVrouw(1) \"<onbekend>\"\n= AchterNmVrouw(1) \"<onbekend>\"\n"));
  EXPECT_TRUE(WordtGetoond(kExpSelPers,
                           "vul RecordNrPers(1) 4\ntoon RecordNrPers(1)\ntoon VoorNmPersoon(1)\n"
                           "toon AchterNmPersoon(1)\ntoon PeriodePersoon(1)\ndruk BackButton",
                           "= RecordNrPers(1) \"4\"\n= VoorNmPersoon(1) \"<onbekend>\"\n"
                           "= AchterNmPersoon(1) \"<onbekend>\"\n= PeriodePersoon(1) \"\"\n"));
}

TEST_F(ExpSelTest, EenLeegBestandVultNietsIn) {
  Speel(kExpSelPers, "toon RecordNrPers(0)\ntoon RecordNrPers(1)\ntoon OKButton\ndruk OKButton",
        R"~(
    = RecordNrPers(0) ""
    = RecordNrPers(1) ""
    = OKButton "&Voeg toe"
  )~");
  EXPECT_EQ(lijst_.Aantal(), 0U);
}

TEST_F(ExpSelTest, EenOngeldigNummerMaaktZijnRijLeeg) {
  Reeks(3);
  Speel(kExpSelPers,
        "vul RecordNrPers(0) 5\ntoon RecordNrPers(0)\ntoon VoorNmPersoon(0)\n"
        "toon AchterNmPersoon(0)\ntoon PeriodePersoon(0)\n"
        "vul RecordNrPers(1) 3a\ntoon RecordNrPers(1)\nvul RecordNrPers(0) 1\n"
        "vul RecordNrPers(0) 99999\nvul RecordNrPers(0) 4\ntoon VoorNmPersoon(0)\ndruk BackButton",
        R"~(
    ! uitroep "Recordnummer bestaat niet"
    = RecordNrPers(0) ""
    = VoorNmPersoon(0) ""
    = AchterNmPersoon(0) ""
    = PeriodePersoon(0) ""
    ! uitroep "Recordnummer is niet numeriek"
    = RecordNrPers(1) ""
    ! uitroep "Recordnummer bestaat niet"
    ! uitroep "Recordnummer bestaat niet"
    = VoorNmPersoon(0) "A3"
  )~");
}

TEST_F(ExpSelTest, EenLegeRijToontNiemand) {
  Reeks(3);
  Speel(kExpSelPers,
        "vul RecordNrPers(1)\ntoon VoorNmPersoon(1)\ntoon PeriodePersoon(1)\ndruk BackButton",
        "= VoorNmPersoon(1) \"\"\n= PeriodePersoon(1) \"\"");
}

TEST_F(ExpSelTest, EnterGaatVerderEnZoektDeNaamOp) {
  Reeks(3);
  Speel(kExpSelPers,
        "typ RecordNrPers(0) 3\ntoets RecordNrPers(0) Enter\ntoon VoorNmPersoon(0)\n"
        "toets Escape",
        "= VoorNmPersoon(0) \"A2\"");
  Speel(kExpSelPers, "typ RecordNrPers(0) 3\ntoets RecordNrPers(0) Enter\ntoon\ndruk BackButton",
        R"~(
    : ExpSelPers "Exporteer gegevens - Selecteer Personen"
    = VraagLabel "Gegevens van de volgende Personen opnemen in het exportbestand"
    = (*) RecordNrPers VoorNmPersoon AchterNmPersoon PeriodePersoon ZoekPersButton
    = (0) "3" "A2" "Reeks" "    -    " "Zoek"
    = (1) "4" "A3" "Reeks" "    -    " "Zoek"
    = OKButton "&Voeg toe"
    = BackButton "&Terug"
    * ZoekPersButton(0)
  )~");
}

TEST_F(ExpSelTest, EscapeVoegtNietsToe) {
  Reeks(3);
  Speel(kExpSelPers, "toets RecordNrPers(0) Escape", "");
  EXPECT_EQ(lijst_.Aantal(), 0U);
}

TEST_F(ExpSelTest, TweemaalDezelfdeReeksVerandertNiets) {
  Reeks(4);
  Speel(kExpSelPers, "vul RecordNrPers(0) 3\nvul RecordNrPers(1) 4\ndruk OKButton", "");
  EXPECT_THAT(lijst_.Nummers(), ElementsAre(3, 4));
  Speel(kExpSelPers, "vul RecordNrPers(0) 3\nvul RecordNrPers(1) 4\ndruk OKButton", "");
  EXPECT_THAT(lijst_.Nummers(), ElementsAre(3, 4));
  Speel(kExpSelPers, "druk OKButton", "");
  EXPECT_THAT(lijst_.Nummers(), ElementsAre(3, 4, 2, 5));
}

TEST_F(ExpSelTest, ZonderEersteNummerBegintDeReeksBijTwee) {
  Reeks(4);
  Speel(kExpSelPers, "vul RecordNrPers(0)\nvul RecordNrPers(1) 2\ndruk OKButton", "");
  EXPECT_THAT(lijst_.Nummers(), ElementsAre(2));
  Speel(kExpSelPers, "vul RecordNrPers(0)\nvul RecordNrPers(1) 3\ndruk OKButton", "");
  EXPECT_THAT(lijst_.Nummers(), ElementsAre(2, 3));
}

TEST_F(ExpSelTest, TweeLegeVeldenVoegenNietsToe) {
  Reeks(4);
  Speel(kExpSelPers, "vul RecordNrPers(0)\nvul RecordNrPers(1)\ndruk OKButton", "");
  EXPECT_EQ(lijst_.Aantal(), 0U);
}

TEST_F(ExpSelTest, EenReeksDieTerugLooptWordtGeweigerd) {
  Reeks(4);
  Speel(kExpSelPers,
        "vul RecordNrPers(0) 4\nvul RecordNrPers(1) 3\ndruk OKButton\ntoon\nvul RecordNrPers(1)\n"
        "druk OKButton\nvul RecordNrPers(1) 4\ndruk OKButton",
        R"~(
    ! uitroep "Ongeldige reeks: 2e recordnummer is kleiner dan het 1e"
    : ExpSelPers "Exporteer gegevens - Selecteer Personen"
    = VraagLabel "Gegevens van de volgende Personen opnemen in het exportbestand"
    = (*) RecordNrPers VoorNmPersoon AchterNmPersoon PeriodePersoon ZoekPersButton
    = (0) "4" "A3" "Reeks" "    -    " "Zoek"
    = (1) "3" "A2" "Reeks" "    -    " "Zoek"
    = OKButton "&Voeg toe"
    = BackButton "&Terug"
    * RecordNrPers(1)
    ! uitroep "Ongeldige reeks: 2e recordnummer is kleiner dan het 1e"
  )~");
  EXPECT_THAT(lijst_.Nummers(), ElementsAre(4));
}

TEST_F(ExpSelTest, EenVolleLijstZegtDatEnHoudtWatErWas) {
  Reeks(4);
  for (int nr = 100; nr < 32098; ++nr) ASSERT_TRUE(lijst_.Voeg(static_cast<std::int16_t>(nr)));
  Speel(kExpSelPers, "vul RecordNrPers(1) 3\ndruk OKButton", "");
  EXPECT_EQ(lijst_.Aantal(), SelectieLijst::kHoogsteAantal);
  Speel(kExpSelPers, "vul RecordNrPers(1) 3\ndruk OKButton", "");
  Speel(kExpSelPers, "druk OKButton",
        "! uitroep \"Maximaal aantal Persoonsrecords (32000) bereikt\"");
  EXPECT_TRUE(lijst_.Bevat(3));
  EXPECT_FALSE(lijst_.Bevat(4));
}

TEST_F(ExpSelTest, EenVolleLijstMetRelatiesZegtDatOok) {
  BouwKaartFamilie(Bouw());
  for (int nr = 100; nr < 32100; ++nr) ASSERT_TRUE(lijst_.Voeg(static_cast<std::int16_t>(nr)));
  Speel(kExpSelRel, "druk OKButton",
        "! uitroep \"Maximaal aantal Relatierecords (32000) bereikt\"");
}

TEST_F(ExpSelTest, ZoekenVultHetVeldErnaast) {
  Reeks(4);
  Speel(kExpSelPers,
        "druk ZoekPersButton(1)\ndruk RecordNrPrs(2)\ntoon RecordNrPers(1)\n"
        "toon VoorNmPersoon(1)\ndruk ZoekPersButton(0)\ndruk BackButton\ntoon RecordNrPers(0)\n"
        "toets RecordNrPers(0) F2\ndruk RecordNrPrs(2)\ntoon RecordNrPers(0)\ndruk BackButton",
        R"~(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    = RecordNrPers(1) "3"
    = VoorNmPersoon(1) "A2"
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    = RecordNrPers(0) "2"
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    = RecordNrPers(0) "3"
  )~");
  EXPECT_EQ(huidig_, 4);
}

TEST_F(ExpSelTest, EenPartnerDieNietBestaatIsOnbekend) {
  const std::int16_t man = Bouw().Man("", "Jansen");
  Bouw().Relatie(man, 0);
  Bouw().WijzigRelatie(2, {{"VrouwNr", "77"}});
  Speel(kExpSelRel,
        "toon VoorNmMan(0)\ntoon AchterNmMan(0)\ntoon RecordNrVrouw(0)\ntoon VoorNmVrouw(0)\n"
        "toon AchterNmVrouw(0)\ndruk BackButton",
        R"~(
    = VoorNmMan(0) "<onbekend>"
    = AchterNmMan(0) "Jansen"
    = RecordNrVrouw(0) "77"
    = VoorNmVrouw(0) "<onbekend>"
    = AchterNmVrouw(0) "<onbekend>"
  )~");
}

TEST_F(ExpSelTest, EenOnleesbaarEersteRecordMaaktZijnRijLeeg) {
  Reeks(3);
  MaakOnleesbaar(BestandSoort::Personen, 2);
  const Taak taak = [this](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.gesprek.Toon<ExpSel>(kExpSelPers, hoofd, lijst_);
  };
  Verwacht("toon RecordNrPers(0)\ntoon RecordNrPers(1)\ndruk BackButton", taak, R"~(
    ! stop "Fout bij het lezen van Persoonsrecord 2\nFout van de schijf"
    ! uitroep "Recordnummer bestaat niet"
    + ExpSelPers "Exporteer gegevens - Selecteer Personen"
    = RecordNrPers(0) ""
    = RecordNrPers(1) "4"
    - ExpSelPers
  )~");
}

}  // namespace
}  // namespace lb77
