#include <gtest/gtest.h>

#include "steun/ProefSet.h"
#include "store/Recordbeeld.h"
#include "store/RelatieLB77.h"
#include "store/RelatieVelden.h"

using namespace lb77;
using Boxen = std::vector<std::string>;

namespace {

struct RelatieLB77Test : ::testing::Test {
  ~RelatieLB77Test() override { EXPECT_EQ(set.Getoond(), Boxen{}); }

  void Veld(std::string_view veld, std::string_view waarde, std::size_t plaats,
            std::string_view bytes) {
    set.Relatie.LeegRelBuffer();
    VerwachtVeld(set.Relatie, veld, waarde, plaats, bytes);
  }
  RelatieLB77& Lees(std::int16_t nr) {
    EXPECT_TRUE(set.Relatie.Lees(nr));
    return set.Relatie;
  }
  std::vector<std::int16_t> Kinderen(int aantal) {
    std::vector<std::int16_t> kinderen;
    for (int i = 0; i < aantal; ++i) kinderen.push_back(set.bouw.Man("Kind", ""));
    return kinderen;
  }
  ProefSet set;
  Kindtab tab{};
};

}  // namespace

TEST_F(RelatieLB77Test, EenRecordMetDeHandIsHetzelfdeAlsHetGelezene) {
  const std::string beeld = Beeld(64, {{0, B("\x02\x00")},   // man 2
                                       {2, B("\x03\x01")},   // woman 259
                                       {4, B("\x04\x00")},   // banns
                                       {6, B("\x31\x01")},   // 3 May
                                       {8, B("\x3A\x07")},   // 1850
                                       {10, B("\x05\x00")},  // civil marriage
                                       {12, B("\xCA\x09")},  // 25 June
                                       {14, B("\x3B\x07")},  // 1851
                                       {16, "C"},            // about
                                       {17, B("\x06\x00")},  // church marriage
                                       {19, B("\x06\x00")},  // June
                                       {21, B("\x3C\x07")},  // 1852
                                       {23, "RK"},
                                       {25, B("\x0A\0\x0B\0\x0C\0\x0D\0\x0E\0")},
                                       {35, B("\x0F\0\x10\0\x11\0\x12\0\x13\0")},
                                       {45, B("\x14\0\x15\0\x16\0\x17\0\x9C\xFF")},  // -100
                                       {55, "b "},
                                       {57, B("\x07\x00")},  // first remark
                                       {59, B("\x00\xFF")},  // general: -256
                                       {61, "S"},
                                       {62, "P"},
                                       {63, " "}});
  set.bestanden.SluitAlles();
  SchrijfBytes(set.paden.rlt, LeesBytes(set.paden.rlt) + beeld);
  set.Heropen();
  RelatieLB77& r = Lees(2);
  EXPECT_EQ(r.ManNr(), 2);
  EXPECT_EQ(r.VrouwNr(), 259);
  EXPECT_EQ(r.OtrPlaatsNr(), 4);
  EXPECT_EQ(r.OtrDagMaand(), 305);
  EXPECT_EQ(r.OtrJaar(), 1850);
  EXPECT_EQ(r.WetHuwPlaatsNr(), 5);
  EXPECT_EQ(r.WetHuwDagMaand(), 2506);
  EXPECT_EQ(r.WetHuwJaar(), 1851);
  EXPECT_EQ(r.HuwCorr(), "C");
  EXPECT_EQ(r.KHuwPlaatsNr(), 6);
  EXPECT_EQ(r.KHuwDagMaand(), 6);
  EXPECT_EQ(r.KHuwJaar(), 1852);
  EXPECT_EQ(r.Religie(), "RK");
  for (std::int16_t i = 1; i <= 14; ++i) EXPECT_EQ(r.KindNr(i), i + 9);
  EXPECT_EQ(r.kind(15), "-100");
  EXPECT_EQ(r.HuwSoort(), "b");
  EXPECT_EQ(r.OpmRecord(), 7);
  EXPECT_EQ(r.OpmCode(), -256);
  EXPECT_TRUE(r.KHuwSch());
  EXPECT_EQ(r.HuwSwPs(), "P");
  EXPECT_EQ(std::string(r.Bytes().data(), r.Bytes().size()), beeld);
}

TEST_F(RelatieLB77Test, RecordEenLeestAlsEenRelatie) {
  EXPECT_EQ(Lees(1).OtrDagMaand(), 87);
  EXPECT_EQ(set.volgers.RelBufNr, 1);
}

TEST_F(RelatieLB77Test, EenNulInDeSondeVanHetAdministratierecordMagAlsErRelatiesZijn) {
  const auto zetSonde = [&](char telling) {
    set.bestanden.SluitAlles();
    std::string bytes = LeesBytes(set.paden.rlt);
    bytes[16] = '\0';
    bytes[0] = telling;
    SchrijfBytes(set.paden.rlt, bytes);
    set.Heropen();
  };
  zetSonde('\1');
  ASSERT_TRUE(set.Relatie.LeesAdmin());
  EXPECT_EQ(set.Relatie.Bytes()[16], ' ');
  zetSonde('\0');
  EXPECT_FALSE(set.Relatie.LeesAdmin());
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Fout bij het lezen van het Administratierecord van het "
                                 "Relatiebestand\""});
}

TEST_F(RelatieLB77Test, EenRelatieMetHetTekenVanDeSchildwachtLeestAlsAfwezig) {
  Lees(set.bouw.Relatie(0, 0));
  set.Relatie.Zet("HuwCorr", "X");
  ASSERT_TRUE(set.Relatie.Schrijf(2));
  EXPECT_FALSE(set.Relatie.Lees(2));
}

TEST_F(RelatieLB77Test, HetAdministratierecordVanEenNieuwBestand) {
  EXPECT_EQ(LeesBytes(set.paden.rlt), Beeld(64, {{0, B("\0\0\0\0\0\0")},
                                                 {6, B("\x57\0")},  // 87
                                                 {8, B("\0\0\0\0\0\0\0\0")},
                                                 {16, " "},
                                                 {17, B("\0\0\0\0\0\0")},
                                                 {23, "  "},
                                                 {25, std::string(30, '\0')},
                                                 {55, "  "},
                                                 {57, B("\0\0\0\0")},
                                                 {61, "   "}}));
}

TEST_F(RelatieLB77Test, VeldenVeranderenPreciesHunBytes) {
  Veld("ManNr", "258", 0, B("\x02\x01"));
  Veld("VrouwNr", "3", 2, B("\x03\x00"));
  Veld("OtrPlaats", "4", 4, B("\x04\x00"));
  Veld("OtrDatum", "03-05-1850", 6, B("\x31\x01\x3A\x07"));
  Veld("WHuwPlaats", "5", 10, B("\x05\x00"));
  Veld("WHuwDatum", "03-05-1850", 12, B("\x31\x01\x3A\x07"));
  // A continuation record names its owner there.
  Veld("WetHuwJaar", "258", 14, B("\x02\x01"));
  Veld("HuwCorr", "Z", 16, "Z");
  Veld("KHuwPlaats", "6", 17, B("\x06\x00"));
  Veld("KHuwDatum", "03-05-1850", 19, B("\x31\x01\x3A\x07"));
  Veld("Religie", "RK", 23, "RK");
  Veld("HuwSoort", "b", 55, "b ");
  Veld("OpmRecord", "7", 57, B("\x07\x00"));
  Veld("OpmCode", "-256", 59, B("\x00\xFF"));
}

TEST_F(RelatieLB77Test, ElkKindHeeftZijnEigenBytes) {
  for (std::size_t i = 1; i <= 15; ++i) {
    Veld("Kind" + std::to_string(i), "513", 23 + 2 * i, B("\x01\x02"));
    EXPECT_EQ(set.Relatie.KindNr(static_cast<std::int16_t>(i)), 513);
  }
}

TEST_F(RelatieLB77Test, ScheidingEnSamenlevingZijnGetallen) {
  Veld("KHuwSch", "1", 61, "S");
  Veld("KHuwSch", "0", 61, " ");
  Veld("HuwSwPs", "0", 62, " ");
  Veld("HuwSwPs", "1", 62, "S");
  Veld("HuwSwPs", "2", 62, "P");
  Veld("HuwSwPs", "9", 62, "P");
}

TEST_F(RelatieLB77Test, SamenlevingNeemtOokDeWoordenVanEenImport) {
  Veld("HuwSwPs", "Sw", 62, "S");
  Veld("HuwSwPs", "Ps", 62, "P");
  Veld("HuwSwPs", " ", 62, " ");
}

TEST_F(RelatieLB77Test, KindBuitenHetRecordIsLeeg) {
  Lees(set.bouw.Relatie(0, 0, Kinderen(1)));
  EXPECT_EQ(set.Relatie.kind(1), "2");
  EXPECT_EQ(set.Relatie.kind(2), "0");
  for (const std::int16_t i : std::initializer_list<std::int16_t>{0, 16, -1}) {
    EXPECT_EQ(set.Relatie.kind(i), "");
    EXPECT_EQ(set.Relatie.KindNr(i), 0);
  }
}

TEST_F(RelatieLB77Test, VijftienKinderenHebbenGeenVervolgrecord) {
  const auto kinderen = Kinderen(15);
  const auto nr = set.bouw.Relatie(0, 0, kinderen);
  EXPECT_EQ(set.Relatie.VulKindtab(nr, tab).aantal, 15);
  EXPECT_GT(set.Relatie.KindNr(15), 0);
  EXPECT_EQ(std::vector<std::int16_t>(tab.begin() + 1, tab.begin() + 16), kinderen);
  EXPECT_EQ(set.volgers.HuidigRelatieNr, nr);
  EXPECT_EQ(set.Relatie.AantalRecords(), 2);
}

TEST_F(RelatieLB77Test, MetEenVervolgrecordIsZijnEersteKindHetVijftiende) {
  const auto kinderen = Kinderen(29);
  const auto nr = set.bouw.Relatie(0, 0, kinderen);
  EXPECT_EQ(set.Relatie.VulKindtab(nr, tab).aantal, 29);
  EXPECT_EQ(std::vector<std::int16_t>(tab.begin() + 1, tab.end()), kinderen);
  EXPECT_EQ(set.volgers.HuidigRelatieNr, 3);
  EXPECT_TRUE(set.Relatie.IsVolgRecord());
  EXPECT_EQ(set.Relatie.KindNr(1), kinderen[14]);
}

TEST_F(RelatieLB77Test, EenOnleesbaarVervolgrecordLaatVeertienKinderenOver) {
  for (const char* vervolg : {"-900", "-32768"}) {
    const auto nr = set.bouw.Relatie(0, 0, {}, {{"Kind1", "5"}, {"Kind15", vervolg}});
    EXPECT_EQ(set.Relatie.VulKindtab(nr, tab).aantal, 14);
    EXPECT_EQ(tab[1], 5);
    for (std::size_t i = 15; i <= 29; ++i) EXPECT_EQ(tab[i], 0);
  }
}

TEST_F(RelatieLB77Test, GatenInDeKinderenBlijvenEnTellenNiet) {
  const auto nr = set.bouw.Relatie(0, 0, {}, {{"Kind2", "5"}, {"Kind4", "-5"}, {"Kind9", "6"}});
  EXPECT_EQ(set.Relatie.VulKindtab(nr, tab).aantal, 2);
  EXPECT_EQ(tab[4], -5);
  EXPECT_EQ(tab[1], 0);
  EXPECT_EQ(tab[2], 5);
  EXPECT_EQ(tab[9], 6);
}

TEST_F(RelatieLB77Test, VulKindtabVanEenAfwezigeRelatieIsLeeg) {
  tab.fill(9);
  EXPECT_EQ(set.Relatie.VulKindtab(77, tab).aantal, 0);
  EXPECT_EQ(tab, Kindtab{});
  EXPECT_EQ(set.volgers.HuidigRelatieNr, 77);
}

TEST_F(RelatieLB77Test, EenTabelIsHeelAlsAlleRecordsGelezenZijn) {
  EXPECT_TRUE(set.Relatie.VulKindtab(set.bouw.Relatie(0, 0), tab).heel);
  EXPECT_TRUE(set.Relatie.VulKindtab(set.bouw.Relatie(0, 0, Kinderen(29)), tab).heel);
  EXPECT_FALSE(set.Relatie.VulKindtab(77, tab).heel);
}

TEST_F(RelatieLB77Test, EenTabelMetEenOnbruikbaarVervolgrecordIsNietHeel) {
  const auto andere = set.bouw.Relatie(0, 0, {}, {{"Kind1", "7"}});
  const auto lus = set.bouw.Relatie(0, 0, {}, {{"HuwCorr", "Z"}, {"Kind15", "-3"}});
  for (const std::int16_t vervolg : {std::int16_t{900}, andere, lus}) {
    const auto nr = set.bouw.Relatie(0, 0, {}, {{"Kind15", std::to_string(-vervolg)}});
    EXPECT_FALSE(set.Relatie.VulKindtab(nr, tab).heel) << vervolg;
  }
}

TEST_F(RelatieLB77Test, EenLegeDatumHeeftAltijdStreepjes) {
  set.schrijfwijze.DatumScheider = '.';
  RelatieLB77& r = Lees(set.bouw.Relatie(0, 0, {}, {{"WHuwDatum", "25-06-1802"}}));
  EXPECT_EQ(r.OtrDatum10(), "  -  -    ");
  EXPECT_EQ(r.WetHuwDatum10(), "25.06.1802");
  EXPECT_EQ(r.KHuwDatum10(), "  -  -    ");
  r.Zet("OtrDatum", "00-00-1803");
  r.Zet("KHuwDatum", "00-05-0000");
  EXPECT_EQ(r.OtrDatum10(), "00.00.1803");
  EXPECT_EQ(r.KHuwDatum10(), "00.05.0000");
}

TEST_F(RelatieLB77Test, DatumsAlsGetal) {
  RelatieLB77& r = Lees(set.bouw.Relatie(
      0, 0, {},
      {{"OtrDatum", "01-02-1802"}, {"WHuwDatum", "00-03-1802"}, {"KHuwDatum", "00-00-1803"}}));
  EXPECT_EQ(r.OtrDatum(), 18020201);
  EXPECT_EQ(r.WHuwDatum(), 18020300);
  EXPECT_EQ(r.KHuwDatum(), 18030000);
}

TEST_F(RelatieLB77Test, EenOnbekendeSoortSamenlevingIsLeeg) {
  EXPECT_EQ(Lees(set.bouw.Relatie(0, 0)).HuwSwPs(), "");
  set.bestanden.SluitAlles();
  std::string bytes = LeesBytes(set.paden.rlt);
  bytes[64 + 62] = 'Q';
  SchrijfBytes(set.paden.rlt, bytes);
  set.Heropen();
  EXPECT_EQ(Lees(2).HuwSwPs(), "");
  EXPECT_FALSE(set.Relatie.KHuwSch());
}

TEST_F(RelatieLB77Test, LezenEnSchrijvenZetDePlaatsbufferOpNul) {
  const auto nr = set.bouw.Relatie(0, 0);
  const auto plaats = set.bouw.Plaats("Delft");
  Lees(nr);
  EXPECT_EQ(set.volgers.PlaatsBufNr, 0);
  EXPECT_EQ(set.Plaats.Naam(plaats), "Delft");
  ASSERT_TRUE(set.Relatie.Schrijf(nr));
  EXPECT_EQ(set.volgers.PlaatsBufNr, 0);
}
