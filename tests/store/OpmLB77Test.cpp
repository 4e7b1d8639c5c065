#include <gtest/gtest.h>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"
#include "store/OpmLB77.h"
#include "store/OpmVelden.h"
#include "store/Recordbeeld.h"
#include "text/Letterlijk.h"

using namespace lb77;
using Boxen = std::vector<std::string>;

namespace {

struct OpmLB77Test : ::testing::Test {
  ~OpmLB77Test() override { EXPECT_EQ(set.Getoond(), Boxen{}); }

  void Veld(std::string_view veld, std::string_view waarde, std::size_t plaats,
            std::string_view bytes) {
    set.Opmerking.LeegOpmBuffer();
    VerwachtVeld(set.Opmerking, veld, waarde, plaats, bytes);
  }
  void VoegBytesToe(const std::string& bytes) {
    set.bestanden.SluitAlles();
    SchrijfBytes(set.paden.opm, LeesBytes(set.paden.opm) + bytes);
    set.Heropen();
  }
  bool Lees(std::int16_t nr) {
    set.volgers.HuidigOpmNr = nr;
    return set.Opmerking.Lees();
  }
  Storing storing;
  ProefSet set{FalendeOpener(storing)};
};

std::string MetStaart(char eerste, std::int16_t bijRecord) {
  std::string beeld(96, '\0');
  ZetGetalOp(beeld, 2, bijRecord);
  beeld[90] = eerste;
  return beeld;
}

}  // namespace

TEST_F(OpmLB77Test, HetAdministratierecordVanEenNieuwBestand) {
  EXPECT_EQ(LeesBytes(set.paden.opm),
            Beeld(96, {{0, B("\x01\0")},
                       {2, B("\0\0")},
                       {4, B("\x02\0")},
                       {6, B("\x57\0")},  // 87
                       {8, B("\0\0")},
                       {10, "Opm.Best Lijnboom 1.60" + std::string(58, ' ')},
                       {90, "      "}}));
}

TEST_F(OpmLB77Test, EenRecordMetDeHandIsHetzelfdeAlsHetGelezene) {
  const std::string beeld = Beeld(96, {{0, B("\x00\x10")},  // 4096
                                       {2, B("\x03\x01")},  // 259
                                       {4, B("\x57\x00")},  // 87: all output, HTML only
                                       {6, B("\x05\x00")},
                                       {8, B("\x09\x00")},
                                       {10, " caf\x82" + std::string(75, ' ')},
                                       {90, "      "}});
  VoegBytesToe(beeld);
  ASSERT_TRUE(Lees(2));
  EXPECT_EQ(set.Opmerking.Rubriek(), 4096);
  EXPECT_EQ(set.Opmerking.BijRecord(), 259);
  EXPECT_EQ(set.Opmerking.BijProg(), 87);
  EXPECT_EQ(set.Opmerking.VolgRegel(), 5);
  EXPECT_EQ(set.Opmerking.BijZelfde(), 9);
  EXPECT_EQ(set.Opmerking.Tekstregel(), "café"_w);
  EXPECT_TRUE(set.Opmerking.AlleenHTML());
  EXPECT_EQ(std::string(set.Opmerking.Bytes().data(), 96), beeld);
}

TEST_F(OpmLB77Test, VeldenVeranderenPreciesHunBytes) {
  Veld("Rubriek", "-256", 0, B("\x00\xFF"));
  Veld("BijRecord", "258", 2, B("\x02\x01"));
  Veld("BijProg", "64", 4, B("\x40\x00"));
  Veld("VolgRegel", "3", 6, B("\x03\x00"));
  Veld("BijZelfde", "4", 8, B("\x04\x00"));
  Veld("Tekstregel", "tekst", 10, "tekst" + std::string(75, ' '));
}

TEST_F(OpmLB77Test, ZetTekstKaptAfOp80Tekens) {
  set.Opmerking.LeegOpmBuffer();
  set.Opmerking.ZetTekst(std::string(79, 'x') + "yz");
  EXPECT_EQ(set.Opmerking.Tekstregel(), std::string(79, 'x') + "y");
  EXPECT_EQ(set.Opmerking.Bytes()[90], ' ');
}

TEST_F(OpmLB77Test, EenNulInDeStaartMagAlsErEenEigenaarIs) {
  VoegBytesToe(MetStaart('\0', 1) + MetStaart('\0', 0) + MetStaart('\0', -1) + MetStaart('*', 0));
  ASSERT_TRUE(Lees(2));
  EXPECT_EQ(std::string(set.Opmerking.Bytes().data() + 90, 6), "      ");
  EXPECT_FALSE(Lees(3));
  EXPECT_FALSE(Lees(4));
  ASSERT_TRUE(Lees(5));
  EXPECT_EQ(set.Opmerking.Bytes()[90], '*');
}

TEST_F(OpmLB77Test, EenNulInDeStaartVanHetAdministratierecordMagAlsErRecordsZijn) {
  const auto zet = [&](char telling) {
    set.bestanden.SluitAlles();
    std::string bytes = LeesBytes(set.paden.opm);
    bytes[0] = telling;
    bytes[90] = '\0';
    SchrijfBytes(set.paden.opm, bytes);
    set.Heropen();
  };
  zet('\1');
  EXPECT_TRUE(set.Opmerking.LeesAdmin());
  zet('\0');
  EXPECT_FALSE(set.Opmerking.LeesAdmin());
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Fout bij het lezen van Opmrecord 1\""});
}

TEST_F(OpmLB77Test, EenAdministratierecordMetNulInDeStaartIsHetHoogsteAlsErGeenOpmerkingIs) {
  set.bestanden.SluitAlles();
  std::string bytes = LeesBytes(set.paden.opm);
  bytes.replace(90, 6, std::string(6, '\0'));
  SchrijfBytes(set.paden.opm, bytes);
  set.Heropen();
  EXPECT_EQ(set.Opmerking.AantalRecords(), 1);
  const auto man = set.bouw.Man("Jan", "");
  set.bouw.OpmerkingBijPersoon(man, 1, {"een"});
  EXPECT_EQ(set.Opmerking.OpmerkingTekst(1, 2, 1, 1, false), "een");
}

TEST_F(OpmLB77Test, EenLeegBestandTeltStilNul) {
  set.bestanden.SluitAlles();
  SchrijfBytes(set.paden.opm, "");
  set.Heropen();
  EXPECT_EQ(set.Opmerking.AantalInAdmin(), 0);
  EXPECT_EQ(set.Opmerking.AantalRecords(), 0);
}

TEST_F(OpmLB77Test, NieuwWerktDeTellersBijEnStaatOpHetRecord) {
  ASSERT_TRUE(set.Opmerking.Nieuw(2));
  EXPECT_EQ(set.volgers.HuidigOpmNr, 2);
  ASSERT_TRUE(set.Opmerking.LeesAdmin());
  EXPECT_EQ(set.Opmerking.Rubriek(), 2);
  EXPECT_EQ(set.Opmerking.BijRecord(), 0);
  EXPECT_EQ(set.Opmerking.BijProg(), 2);
  set.Opmerking.Zet("BijProg", "9");
  ASSERT_TRUE(set.Opmerking.SchrijfAdmin());
  ASSERT_TRUE(set.Opmerking.Nieuw(3));
  ASSERT_TRUE(set.Opmerking.LeesAdmin());
  EXPECT_EQ(set.Opmerking.BijProg(), 3);
}

TEST_F(OpmLB77Test, EenNieuwRecordDatNietTerugTeLezenIsMeldtDat) {
  // In use?, can it be counted?, write, read record 1, write record 1, read back.
  storing = {.bij = 6};
  EXPECT_FALSE(set.Opmerking.Nieuw(2));
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Fout bij het lezen van het nieuwe "
                                 "Opmerkingenrecord\\nFout van de schijf\""});
}

TEST_F(OpmLB77Test, SchrijfAdmZetDeDrieTellers) {
  ASSERT_TRUE(set.Opmerking.LeesAdmin());
  ASSERT_TRUE(set.Opmerking.SchrijfAdm(30, 20, 10));
  ASSERT_TRUE(set.Opmerking.LeesAdmin());
  EXPECT_EQ(set.Opmerking.Rubriek(), 30);
  EXPECT_EQ(set.Opmerking.BijProg(), 20);
  EXPECT_EQ(set.Opmerking.BijRecord(), 10);
  EXPECT_EQ(set.Opmerking.VolgRegel(), 87);
  storing = {.bij = 1};
  EXPECT_FALSE(set.Opmerking.SchrijfAdm(1, 2, 3));
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Bijwerken van het Administratierecord (Opm) "
                                 "mislukt\\nSchijf vol\""});
}

TEST_F(OpmLB77Test, DeRubriekenVanEenCodeSamen) {
  EXPECT_EQ(OpmCodeMet(0, 4096), 4096);
  EXPECT_EQ(OpmCodeMet(1, 4096), 4097);
  EXPECT_EQ(OpmCodeMet(0, -256), -256);
  EXPECT_EQ(OpmCodeMet(-1, -256), -257);
  EXPECT_EQ(OpmCodeMet(-256, -256), -256);
  EXPECT_EQ(OpmCodeMet(-256, 0), -256);
  EXPECT_EQ(OpmCodeMet(-32768, -1), -1);
}
