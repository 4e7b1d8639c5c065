#include <gtest/gtest.h>

#include "steun/ProefSet.h"
#include "store/PlaatsLB77.h"
#include "store/PlaatsVelden.h"
#include "store/Recordbeeld.h"
#include "text/Letterlijk.h"

using namespace lb77;
using Boxen = std::vector<std::string>;

namespace {

struct PlaatsLB77Test : ::testing::Test {
  ~PlaatsLB77Test() override { EXPECT_EQ(set.Getoond(), Boxen{}); }

  void Veld(std::string_view veld, std::string_view waarde, std::size_t plaats,
            std::string_view bytes) {
    set.Plaats.LeegPltsBuffer();
    VerwachtVeld(set.Plaats, veld, waarde, plaats, bytes);
  }
  void ZetBestand(const std::string& bytes) {
    set.bestanden.SluitAlles();
    SchrijfBytes(set.paden.plt, bytes);
    set.Heropen();
  }
  ProefSet set;
};

}  // namespace

TEST_F(PlaatsLB77Test, HetAdministratierecordVanEenNieuwBestand) {
  EXPECT_EQ(LeesBytes(set.paden.plt),
            Beeld(27, {{0, B("\0\0")}, {2, "87                       "}}));
}

TEST_F(PlaatsLB77Test, EenRecordMetDeHandIsHetzelfdeAlsHetGelezene) {
  const std::string beeld = Beeld(27, {{0, "ZH"},
                                       {2,
                                        "Cura\x87"
                                        "ao                  "}});
  ZetBestand(LeesBytes(set.paden.plt) + beeld);
  ASSERT_TRUE(set.Plaats.Lees(2));
  EXPECT_EQ(set.Plaats.Naam(2), "Curaçao"_w);
  EXPECT_EQ(set.Plaats.Prov(2), "ZH");
  EXPECT_EQ(std::string(set.Plaats.Bytes().data(), 27), beeld);
}

TEST_F(PlaatsLB77Test, VeldenVeranderenPreciesHunBytes) {
  Veld("Provcode", "ZH", 0, "ZH");
  Veld("Provcode", "B", 0, "B ");
  Veld("Plaatsnaam", " Delft ", 2, "Delft                    ");
  Veld("Plaatsnaam", "Een naam van meer dan 25 tekens", 2, "Een naam van meer dan 25 ");
}

TEST_F(PlaatsLB77Test, RecordEenIsGeenPlaats) {
  EXPECT_FALSE(set.Plaats.Lees(1));
  EXPECT_EQ(set.volgers.PlaatsBufNr, 0);
  EXPECT_EQ(set.Plaats.Naam(1), "");
  EXPECT_EQ(set.Plaats.Prov(1), "");
}

TEST_F(PlaatsLB77Test, DeTellingStaatInTweeBytesMetHetLageVooraan) {
  for (int i = 0; i < 300; ++i) set.bouw.Plaats("p");
  EXPECT_EQ(LeesBytes(set.paden.plt).substr(0, 2), "\x2C\x01");
  EXPECT_EQ(set.Plaats.AantalInAdmin(), 300);
  EXPECT_EQ(set.Plaats.AantalRecords(), 301);
}

TEST_F(PlaatsLB77Test, EenTellingDieOpDeSchildwachtLijktIsEenTelling) {
  ASSERT_TRUE(set.Plaats.LeesAdmin());
  set.Plaats.ZetAantal(0x2526);
  EXPECT_EQ(std::string(set.Plaats.Bytes().data(), 2), "&%");
  ASSERT_TRUE(set.Plaats.SchrijfAdmin());
  EXPECT_EQ(set.Plaats.AantalInAdmin(), 9510);
}

TEST_F(PlaatsLB77Test, EenPlaatsMetDeSchildwachtAlsProvincieLeestAlsAfwezig) {
  const auto plaats = set.bouw.Plaats("Delft", "&%");
  EXPECT_FALSE(set.Plaats.Lees(plaats));
}

TEST_F(PlaatsLB77Test, EenProvincieVanNulIsAlleenEenGatAlsDeNaamOokNulIs) {
  ZetBestand(LeesBytes(set.paden.plt) + std::string(2, '\0') + "Delft                    " +
             std::string(27, '\0'));
  EXPECT_TRUE(set.Plaats.Lees(2));
  EXPECT_FALSE(set.Plaats.Lees(3));
}

TEST_F(PlaatsLB77Test, EenTellingNulEnEenLeegBestandEindigenInEen) {
  EXPECT_EQ(set.Plaats.AantalRecords(), 1);
  ZetBestand("");
  EXPECT_EQ(set.Plaats.AantalRecords(), 1);
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Fout bij het lezen van het administratierecord van het "
                                 "Plaatsbestand\""});
}

TEST_F(PlaatsLB77Test, EenPlaatsnummerVerliestZijnAanduiding) {
  EXPECT_EQ(PlaatsRecordNr(0), 0);
  EXPECT_EQ(PlaatsRecordNr(12), 12);
  EXPECT_EQ(PlaatsRecordNr(10000), 10000);
  EXPECT_EQ(PlaatsRecordNr(10012), 12);
  EXPECT_EQ(PlaatsRecordNr(20000), 10000);
  EXPECT_EQ(PlaatsRecordNr(20012), 12);
  EXPECT_EQ(PlaatsRecordNr(30000), 10000);
  EXPECT_EQ(PlaatsRecordNr(30012), 12);
  EXPECT_EQ(PlaatsRecordNr(-5), -5);
}

TEST_F(PlaatsLB77Test, DeNaamMetAanduiding) {
  set.bouw.Plaats("Delft", "ZH");
  EXPECT_EQ(set.Plaats.Naam(2), "Delft");
  EXPECT_EQ(set.Plaats.Naam(10002), "Delft");
  EXPECT_EQ(set.Plaats.Naam(20002), "Delft");
  EXPECT_EQ(set.Plaats.Naam2(2), "Delft");
  EXPECT_EQ(set.Plaats.Naam2(10002), "verm. Delft");
  EXPECT_EQ(set.Plaats.Naam2(20002), "Delft(?)");
  EXPECT_EQ(set.Plaats.Naam2(30002), "Delft(?)");
  EXPECT_EQ(set.Plaats.Prov(10002), "ZH");
}

TEST_F(PlaatsLB77Test, OpDeGrensVanEenAanduidingHoortHetNummerErNogOnder) {
  std::string bytes = LeesBytes(set.paden.plt);
  bytes.resize(9999 * 27);
  ZetBestand(bytes + "ZHDelft                    ");
  EXPECT_EQ(set.Plaats.Naam2(10000), "Delft");
  EXPECT_EQ(set.Plaats.Naam2(20000), "verm. Delft");
  EXPECT_EQ(set.Plaats.Naam2(30000), "Delft(?)");
}

TEST_F(PlaatsLB77Test, EenOnleesbarePlaatsHeeftGeenNaamEnGeenAanduiding) {
  for (const std::int16_t nr : std::initializer_list<std::int16_t>{0, 77, 10077, 20077, -1}) {
    EXPECT_EQ(set.Plaats.Naam(nr), "");
    EXPECT_EQ(set.Plaats.Naam2(nr), "");
    EXPECT_EQ(set.Plaats.Prov(nr), "");
  }
}

TEST_F(PlaatsLB77Test, DeBufferIsDieVanDeLaatstGelezenPlaats) {
  const auto een = set.bouw.Plaats("Delft");
  const auto twee = set.bouw.Plaats("Leiden");
  EXPECT_EQ(set.volgers.PlaatsBufNr, twee);
  ASSERT_TRUE(set.Plaats.Lees(een));
  EXPECT_EQ(set.volgers.PlaatsBufNr, een);
  ASSERT_TRUE(set.Plaats.Schrijf(een));
  EXPECT_EQ(set.volgers.PlaatsBufNr, een);
  set.Plaats.LeegPltsBuffer();
  EXPECT_EQ(set.volgers.PlaatsBufNr, 0);
}
