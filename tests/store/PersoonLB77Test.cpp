#include <gtest/gtest.h>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"
#include "store/PersoonLB77.h"

using namespace lb77;
using Boxen = std::vector<std::string>;

namespace {

struct PersoonLB77Test : ::testing::Test {
  std::int16_t Man(VeldWaarden velden = {}) { return set.bouw.Man("Jan", "Jansen", velden); }
  PersoonLB77& Lees(std::int16_t nr) {
    EXPECT_TRUE(set.Persoon.Lees(nr));
    return set.Persoon;
  }
  Storing storing;
  ProefSet set{FalendeOpener(storing)};
  Huwtab tab{9, 9, 9, 9, 9, 9};
};

}  // namespace

TEST_F(PersoonLB77Test, RecordEenLeestAlsEenPersoon) {
  ASSERT_TRUE(set.Persoon.Lees(1));
  EXPECT_EQ(set.Persoon.GebDagMaand(), 87);
  EXPECT_EQ(set.volgers.PersBufNr, 1);
}

TEST_F(PersoonLB77Test, LezenEnSchrijvenZetDePlaatsbufferOpNul) {
  const auto man = Man();
  const auto plaats = set.bouw.Plaats("Delft");
  EXPECT_EQ(set.volgers.PlaatsBufNr, plaats);
  Lees(man);
  EXPECT_EQ(set.volgers.PlaatsBufNr, 0);
  EXPECT_EQ(set.Plaats.Naam(plaats), "Delft");
  EXPECT_EQ(set.volgers.PlaatsBufNr, plaats);
  ASSERT_TRUE(set.Persoon.Schrijf(man));
  EXPECT_EQ(set.volgers.PlaatsBufNr, 0);
}

TEST_F(PersoonLB77Test, EenNulInDeSondeVanHetAdministratierecordMagAlsErPersonenZijn) {
  const auto zetTelling = [&](const std::string& telling) {
    set.bestanden.SluitAlles();
    std::string bytes = LeesBytes(set.paden.prs);
    bytes[83] = '\0';
    bytes.replace(55, 2, telling);
    SchrijfBytes(set.paden.prs, bytes);
    set.Heropen();
  };
  zetTelling("\1\2");
  ASSERT_TRUE(set.Persoon.LeesAdmin());
  EXPECT_EQ(set.Persoon.Bytes()[83], ' ');
  zetTelling("\xFF\xFF");
  EXPECT_EQ(set.Persoon.AantalInAdmin(), -1);
  zetTelling(std::string(2, '\0'));
  EXPECT_FALSE(set.Persoon.LeesAdmin());
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Fout bij het lezen van het Administratierecord van het "
                                 "Persoonsbestand\""});
}

TEST_F(PersoonLB77Test, EenAdministratierecordMetEenNulInDeSondeIsHetHoogsteAlsErGeenPersoonIs) {
  Man();
  set.bestanden.SluitAlles();
  std::string bytes = LeesBytes(set.paden.prs).substr(0, 128);
  bytes[83] = '\0';
  SchrijfBytes(set.paden.prs, bytes);
  set.Heropen();
  EXPECT_EQ(set.Persoon.AantalRecords(), 1);
  EXPECT_EQ(set.Getoond(), Boxen{"! uitroep \"Aantal persoonsrecords in administratierecord is "
                                 "onjuist\\nGevonden:1\\nVolgens administratierecord:2\""});
  EXPECT_TRUE(set.Persoon.Nieuw(2));
}

TEST_F(PersoonLB77Test, EenGeweigerdNieuwRecordLaatGeenPlaatsInDeBuffer) {
  const auto man = Man();
  const auto plaats = set.bouw.Plaats("Delft");
  EXPECT_FALSE(set.Persoon.Nieuw(man));
  EXPECT_EQ(set.Getoond().size(), 1U);
  EXPECT_EQ(set.volgers.PersBufNr, -1);
  EXPECT_EQ(set.volgers.PlaatsBufNr, 0);
  EXPECT_EQ(set.Plaats.Naam(plaats), "Delft");
}

TEST_F(PersoonLB77Test, EenPersoonMetHetTekenVanDeSchildwachtLeestAlsAfwezig) {
  const auto man = Man({{"Geslacht", "X"}});
  EXPECT_FALSE(set.Persoon.Lees(man));
}

TEST_F(PersoonLB77Test, EenLeegPersoonsbestandGeeftNulRecords) {
  set.bestanden.SluitAlles();
  SchrijfBytes(set.paden.prs, "");
  set.Heropen();
  EXPECT_EQ(set.Persoon.AantalRecords(), 0);
  EXPECT_EQ(set.Getoond(), (Boxen{"! stop \"Fout bij het lezen van het Administratierecord van het "
                                  "Persoonsbestand\"",
                                  "! uitroep \"Aantal persoonsrecords in administratierecord is "
                                  "onjuist\\nGevonden:0\\nVolgens administratierecord:1\""}));
}

TEST_F(PersoonLB77Test, AantalHuwTeltDeRelaties) {
  const auto man = Man();
  for (std::int16_t n = 0; n <= 5; ++n) {
    Lees(man);
    EXPECT_EQ(set.Persoon.AantalHuw(man), n);
    EXPECT_EQ(set.volgers.PersBufNr, man);
    EXPECT_EQ(set.Persoon.AchterNaamTrue(), "Jansen");
    if (n < 5) set.bouw.Relatie(man, 0);
  }
}

TEST_F(PersoonLB77Test, AantalHuwTeltInHetVervolgrecordVanAchterNaarVoren) {
  const auto man = Man({{"Relatie1", "5"}, {"Relatie2", "6"}, {"Relatie3", "-3"}});
  const auto vervolg = set.bouw.Persoon('?', "", "", {{"GebCorr", "Z"}});
  const auto aantal = [&](VeldWaarden relaties) {
    set.bouw.WijzigPersoon(vervolg, relaties);
    Lees(man);
    return set.Persoon.AantalHuw(man);
  };
  EXPECT_EQ(aantal({}), 3);
  EXPECT_EQ(aantal({{"Relatie2", "8"}}), 4);
  EXPECT_EQ(aantal({{"Relatie3", "-9"}}), 4);
  EXPECT_EQ(aantal({{"Relatie2", "-8"}}), 3);
  EXPECT_EQ(aantal({{"Relatie3", "9"}}), 5);
}

TEST_F(PersoonLB77Test, EenOnleesbaarVervolgrecordLaatTweeRelatiesOver) {
  const auto man = Man({{"Relatie1", "2"}, {"Relatie2", "3"}, {"Relatie3", "-1200"}});
  Lees(man);
  EXPECT_EQ(set.Persoon.AantalHuw(man), 2);
  EXPECT_EQ(set.volgers.PersBufNr, man);
  EXPECT_EQ(set.Persoon.VulHuwtab(man, tab).aantal, 2);
  EXPECT_EQ(tab, (Huwtab{0, 2, 3, 0, 0, 0}));
  EXPECT_EQ(set.volgers.HuidigPersoonNr, 1200);
  EXPECT_EQ(set.Getoond(), Boxen{});
}

TEST_F(PersoonLB77Test, EenVervolgnummerDatNietBestaanKanIsOnleesbaar) {
  const auto man = Man({{"Relatie1", "2"}, {"Relatie3", "-32768"}});
  Lees(man);
  EXPECT_EQ(set.Persoon.AantalHuw(man), 2);
  EXPECT_EQ(set.Persoon.VulHuwtab(man, tab).aantal, 2);
  EXPECT_EQ(tab, (Huwtab{0, 2, 0, 0, 0, 0}));
  EXPECT_EQ(set.volgers.HuidigPersoonNr, man);
}

TEST_F(PersoonLB77Test, VulHuwtabLeestDePersoonEnStaatDanOpHem) {
  const auto man = Man({{"Relatie1", "5"}, {"Relatie3", "6"}});
  EXPECT_EQ(set.Persoon.VulHuwtab(man, tab).aantal, 2);
  EXPECT_EQ(tab, (Huwtab{0, 5, 0, 6, 0, 0}));
  EXPECT_EQ(set.volgers.HuidigPersoonNr, man);
  EXPECT_EQ(set.volgers.PersBufNr, man);
}

TEST_F(PersoonLB77Test, EenNegatiefRelatienummerTeltNiet) {
  const auto man = Man({{"Relatie1", "5"}, {"Relatie2", "-6"}});
  EXPECT_EQ(set.Persoon.VulHuwtab(man, tab).aantal, 1);
  EXPECT_EQ(tab, (Huwtab{0, 5, -6, 0, 0, 0}));
  EXPECT_EQ(set.Persoon.AantalHuw(man), 1);
}

TEST_F(PersoonLB77Test, VulHuwtabStaatNaEenVervolgOpHetVervolgrecord) {
  const auto man = Man({{"Relatie1", "5"}, {"Relatie2", "6"}, {"Relatie3", "-3"}});
  const auto vervolg =
      set.bouw.Persoon('?', "", "", {{"GebCorr", "Z"}, {"Relatie1", "7"}, {"Relatie2", "8"}});
  EXPECT_EQ(set.Persoon.VulHuwtab(man, tab).aantal, 4);
  EXPECT_EQ(tab, (Huwtab{0, 5, 6, 7, 8, 0}));
  EXPECT_EQ(set.volgers.HuidigPersoonNr, vervolg);
  EXPECT_TRUE(set.Persoon.IsVolgRecord());
}

TEST_F(PersoonLB77Test, VulHuwtabVanEenAfwezigePersoonIsLeeg) {
  EXPECT_EQ(set.Persoon.VulHuwtab(77, tab).aantal, 0);
  EXPECT_EQ(tab, Huwtab{});
  EXPECT_EQ(set.volgers.HuidigPersoonNr, 77);
}

TEST_F(PersoonLB77Test, EenTabelIsHeelAlsAlleRecordsGelezenZijn) {
  const auto alleen = Man();
  EXPECT_TRUE(set.Persoon.VulHuwtab(alleen, tab).heel);
  const auto man = Man({{"Relatie3", "-4"}});
  const auto vervolg = set.bouw.Persoon('?', "", "", {{"GebCorr", "Z"}, {"Relatie1", "7"}});
  EXPECT_EQ(vervolg, 4);
  EXPECT_TRUE(set.Persoon.VulHuwtab(man, tab).heel);
  EXPECT_FALSE(set.Persoon.VulHuwtab(77, tab).heel);
}

TEST_F(PersoonLB77Test, EenTabelMetEenOnbruikbaarVervolgrecordIsNietHeel) {
  const auto ander = Man({{"Relatie1", "7"}});
  const auto lus = set.bouw.Persoon('?', "", "", {{"GebCorr", "Z"}, {"Relatie3", "-3"}});
  for (const std::int16_t vervolg : {std::int16_t{1200}, ander, lus}) {
    const auto man = Man({{"Relatie1", "2"}, {"Relatie3", std::to_string(-vervolg)}});
    EXPECT_FALSE(set.Persoon.VulHuwtab(man, tab).heel) << vervolg;
  }
}

TEST_F(PersoonLB77Test, HeleNaamGeeftBeideNamenOfWatErVoorInDePlaatsKomt) {
  std::string voor = "oud";
  std::string achter = "oud";
  const auto naamloos = set.bouw.Man("Jan", "");
  set.Persoon.HeleNaam(naamloos, voor, achter, "?");
  EXPECT_EQ(voor, "Jan");
  EXPECT_EQ(achter, "?");
  const auto voornaamloos = set.bouw.Man("", "Jansen");
  set.Persoon.HeleNaam(voornaamloos, voor, achter, "?");
  EXPECT_EQ(voor, "?");
  EXPECT_EQ(achter, "Jansen");
  set.Persoon.HeleNaam(0, voor, achter, "?");
  EXPECT_EQ(voor + achter, "");
  EXPECT_EQ(set.volgers.PersBufNr, voornaamloos) << "nummer 0 hoeft niet gelezen te worden";
  voor = achter = "oud";
  set.Persoon.HeleNaam(77, voor, achter, "?");
  EXPECT_EQ(voor + achter, "");
}

TEST_F(PersoonLB77Test, NaamVoluitVanEenNaamlozeIsOnbekend) {
  EXPECT_EQ(Lees(set.bouw.Man("Jan", "Jansen")).NaamVoluit(), "Jan Jansen");
  EXPECT_EQ(Lees(set.bouw.Man("", "Jansen")).NaamVoluit(), "Jansen");
  EXPECT_EQ(Lees(set.bouw.Man("Jan", "")).NaamVoluit(), "Jan ");
  EXPECT_EQ(Lees(set.bouw.Man("", "")).NaamVoluit(), "<onbekend>");
}

TEST_F(PersoonLB77Test, IsManKentMannenVrouwenEnDeRest) {
  EXPECT_EQ(set.Persoon.IsMan(set.bouw.Man("a", "")), 1);
  EXPECT_EQ(set.Persoon.IsMan(set.bouw.Vrouw("b", "")), 0);
  EXPECT_EQ(set.Persoon.IsMan(set.bouw.Persoon('O', "c", "")), -1);
  EXPECT_EQ(set.Persoon.IsMan(set.bouw.Persoon('?', "d", "")), -1);
  const std::int16_t gelezen = set.volgers.PersBufNr;
  EXPECT_EQ(set.Persoon.IsMan(0), -1);
  EXPECT_EQ(set.volgers.PersBufNr, gelezen);
  EXPECT_EQ(set.Persoon.IsMan(77), -1);
}

TEST_F(PersoonLB77Test, EenBlankGeslachtIsO) {
  EXPECT_EQ(Lees(set.bouw.Persoon('?', "a", "")).Geslacht(), "O");
  EXPECT_EQ(Lees(set.bouw.Persoon('O', "a", "")).Geslacht(), "O");
}

TEST_F(PersoonLB77Test, PeriodeNeemtGeboorteOfDoopEnOverlijdenOfBegraven) {
  const auto periode = [&](VeldWaarden velden) { return set.Persoon.Periode(Man(velden)); };
  EXPECT_EQ(periode({{"GebJaar", "1802"}}), "1802-    ");
  EXPECT_EQ(periode({{"DoopDatum", "00-00-1803"}, {"BegrDatum", "00-00-1870"}}), "1803-1870");
  EXPECT_EQ(periode({{"GebJaar", "802"}, {"OvlDatum", "01-01-1869"}, {"BegrDatum", "00-00-1870"}}),
            " 802-1869");
  EXPECT_EQ(periode({{"GebJaar", "1802"}, {"DoopDatum", "00-00-1803"}}), "1802-    ");
  EXPECT_EQ(periode({}), "    -    ");
}

TEST_F(PersoonLB77Test, PeriodeVanNiemandEnVanEenOnleesbare) {
  EXPECT_EQ(set.Persoon.Periode(0), "    -    ");
  EXPECT_EQ(set.Persoon.Periode(77),
            "????"
            "-????");
}

TEST_F(PersoonLB77Test, PeriodeVanWieAlInDeBufferStaatLeestHetBestandNiet) {
  const auto man = Man({{"GebJaar", "1802"}});
  Lees(man);
  storing = {.bij = 1, .blijvend = true};
  EXPECT_EQ(set.Persoon.Periode(man), "1802-    ");
  EXPECT_EQ(storing.teller, 0);
}

TEST_F(PersoonLB77Test, DeGesorteerdeNaamHeeftDeVoorvoegselsAchteraan) {
  EXPECT_EQ(Lees(set.bouw.Man("", "van der Berg")).AchterNaamVVC(), "Berg, van der");
  set.schrijfwijze.voorvoegsels = {.Voor1 = "el", .Voor2 = ""};
  EXPECT_EQ(Lees(set.bouw.Man("", "El Greco")).AchterNaamVVC(), "Greco, el");
}

TEST_F(PersoonLB77Test, DatumsAlsGetal) {
  PersoonLB77& p = Lees(Man({{"GebDatum", "25-06-1802"},
                             {"DoopDatum", "00-06-1802"},
                             {"OvlDatum", "25-00-1870"},
                             {"BegrDatum", "00-00-1870"}}));
  EXPECT_EQ(p.GebDatum(), 18020625);
  EXPECT_EQ(p.DoopDatum(), 18020600);
  EXPECT_EQ(p.OvlDatum(), 18700025);
  EXPECT_EQ(p.BegrDatum(), 18700000);
}

TEST_F(PersoonLB77Test, DatumsInInvoervormVolgenDeScheider) {
  PersoonLB77& p = Lees(Man({{"GebDatum", "25-06-1802"}, {"OvlDatum", "01-02-0000"}}));
  set.schrijfwijze.DatumScheider = '-';
  EXPECT_EQ(p.GebDatum10(), "25-06-1802");
  EXPECT_EQ(p.DoopDatum10(), "  -  -    ");
  set.schrijfwijze.DatumScheider = '.';
  EXPECT_EQ(p.GebDatum10(), "25.06.1802");
  EXPECT_EQ(p.OvlDatum10(), "01.02.0000");
  EXPECT_EQ(p.BegrDatum10(), "  .  .    ");
}

TEST_F(PersoonLB77Test, EenLegeBufferIsVanNiemand) {
  const auto man = Man();
  Lees(man);
  set.Persoon.LeegPersBuffer();
  EXPECT_EQ(set.volgers.PersBufNr, -1);
  EXPECT_EQ(set.Persoon.NaamVoluit(), "<onbekend>");
}
