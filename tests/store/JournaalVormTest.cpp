#include <gtest/gtest.h>

#include "store/Crc32.h"
#include "store/JournaalVorm.h"

using namespace lb77;
using namespace std::string_literals;
using enum BestandSoort;

namespace {

const std::string kKopBytes =
    "LB77JRNL"
    "\x01\x00"
    "\x0c\x00\x00\x00"
    "\x07\x00\x00\x00"
    "1999-12-31 23:59:58"
    "\x05"
    "Proef"
    "\x8d\xb8\x9f\x10"s;

std::string MaakProef() {
  JournaalEinde einde;
  einde.lengten = {640, kGeenLengte, kGeenLengte, 127};
  einde.standen = {StandVan({Personen, 3}, std::string(128, 'x')), StandVan({Plaatsen, 5}, "kort")};
  return CodeerKop({12, 0, "1999-12-31 23:59:58", "Proef"}) + CodeerLengte({Personen, false, 512}) +
         CodeerBeeld({{Personen, 3}, std::string(128, 'a')}) + CodeerLengte({Plaatsen, true, 118}) +
         CodeerBeeld({{Plaatsen, 5}, "half"}) + CodeerEinde(einde);
}

}  // namespace

TEST(Crc32Test, IsDieVanDeStandaard) {
  EXPECT_EQ(Crc32(std::string_view("123456789")), 0xCBF43926U);
  EXPECT_EQ(Crc32(std::string_view("")), 0U);
  EXPECT_EQ(Crc32(std::string_view("The quick brown fox jumps over the lazy dog")), 0x414FA339U);
}

TEST(JournaalVormTest, DeKopStaatByteVoorByteVast) {
  EXPECT_EQ(CodeerKop({12, 7, "1999-12-31 23:59:58", "Proef"}), kKopBytes);
  EXPECT_EQ(kKopBytes.size(), 47U);
}

TEST(JournaalVormTest, EenLengteStaatByteVoorByteVast) {
  const std::string stuk = CodeerLengte({Plaatsen, true, 0x0102030405U});
  EXPECT_EQ(stuk.substr(0, 12), "L\x04\x01\x00\x05\x04\x03\x02\x01\x00\x00\x00"s);
  EXPECT_EQ(stuk.size(), 16U);
}

TEST(JournaalVormTest, EenBeeldStaatByteVoorByteVast) {
  const std::string stuk = CodeerBeeld({{Relaties, 258}, "abc"});
  EXPECT_EQ(stuk.substr(0, 11), "V\x02\x03\x00\x02\x01\x00\x00"s + "abc");
  EXPECT_EQ(stuk.size(), 15U);
}

TEST(JournaalVormTest, HetEindeStaatByteVoorByteVast) {
  JournaalEinde einde;
  einde.lengten = {1, 2, 3, kGeenLengte};
  einde.standen = {{{Opmerkingen, 9}, 96, 0x01020304U}};
  const std::string stuk = CodeerEinde(einde);
  EXPECT_EQ(stuk.substr(0, 8), "E\x00\x00\x00\x01\x00\x00\x00"s);
  EXPECT_EQ(stuk.substr(32, 8), "\xff\xff\xff\xff\xff\xff\xff\xff"s);
  EXPECT_EQ(stuk.substr(40, 12), "\x09\x00\x00\x00\x03\x60\x00\x00\x04\x03\x02\x01"s);
  EXPECT_EQ(stuk.size(), 56U);
}

TEST(JournaalVormTest, WatGeschrevenIsWordtTeruggelezen) {
  const JournaalInhoud inhoud = OntleedJournaal(MaakProef());
  ASSERT_TRUE(inhoud.IsCompleet());
  EXPECT_EQ(inhoud.kop->nummer, 12U);
  EXPECT_EQ(inhoud.kop->label, "Proef");
  EXPECT_EQ(inhoud.kop->tijd, "1999-12-31 23:59:58");
  EXPECT_EQ(inhoud.lengten, (Lengten{512, kGeenLengte, kGeenLengte, 118}));
  EXPECT_TRUE(inhoud.centraal);
  ASSERT_EQ(inhoud.beelden.size(), 2U);
  EXPECT_EQ(inhoud.beelden[1].plek, (RecordPlek{Plaatsen, 5}));
  EXPECT_EQ(inhoud.beelden[1].bytes, "half");
  EXPECT_EQ(inhoud.einde->lengten, (Lengten{640, kGeenLengte, kGeenLengte, 127}));
  ASSERT_EQ(inhoud.einde->standen.size(), 2U);
  EXPECT_EQ(inhoud.einde->standen[1], StandVan({Plaatsen, 5}, "kort"));
}

TEST(JournaalVormTest, EenTeLangLabelWordtAfgekapt) {
  const auto inhoud = OntleedJournaal(CodeerKop({1, 0, "", std::string(300, 'l')}));
  ASSERT_TRUE(inhoud.kop);
  EXPECT_EQ(inhoud.kop->label, std::string(255, 'l'));
}

TEST(JournaalVormTest, OpElkeLengteAfgekaptGeldtWatHeelIs) {
  const std::string heel = MaakProef();
  for (std::size_t lengte = 0; lengte < heel.size(); ++lengte) {
    const JournaalInhoud inhoud = OntleedJournaal(heel.substr(0, lengte));
    EXPECT_EQ(inhoud.kop.has_value(), lengte >= 47) << lengte;
    EXPECT_EQ(inhoud.beelden.size() >= 1, lengte >= 47 + 16 + 140) << lengte;
    EXPECT_FALSE(inhoud.einde) << lengte;
    EXPECT_LE(inhoud.heel, lengte);
  }
}

TEST(JournaalVormTest, ElkVeranderdByteWordtGemerkt) {
  const std::string heel = MaakProef();
  for (std::size_t plaats = 0; plaats < heel.size(); ++plaats) {
    for (const int bit : {1, 128}) {
      std::string stuk = heel;
      stuk[plaats] = static_cast<char>(stuk[plaats] ^ bit);
      const JournaalInhoud inhoud = OntleedJournaal(stuk);
      EXPECT_FALSE(inhoud.IsCompleet()) << plaats;
      for (const JournaalBeeld& beeld : inhoud.beelden) {
        EXPECT_TRUE(beeld.bytes == "half" || beeld.bytes == std::string(128, 'a')) << plaats;
      }
    }
  }
}

TEST(JournaalVormTest, EenLengteDieGeenBestandHeeftTeltNiet) {
  const std::string kop = CodeerKop({1, 0, "", "Proef"});
  const auto lengte = [&kop](std::uint64_t bytes) {
    return OntleedJournaal(kop + CodeerLengte({Plaatsen, false, bytes})).lengten[3];
  };
  EXPECT_EQ(lengte(32767 * 27), 32767U * 27);
  EXPECT_EQ(lengte(32767 * 27 + 1), kGeenLengte);
}

TEST(JournaalVormTest, NaamVanHetBestand) {
  EXPECT_EQ(JournaalNaam(12, true), "00000012.BEZ");
  EXPECT_EQ(JournaalNaam(12, false), "00000012.HND");
  EXPECT_EQ(LeesJournaalNaam("00000012.BEZ")->nummer, 12U);
  EXPECT_TRUE(LeesJournaalNaam("00000012.BEZ")->bezig);
  EXPECT_FALSE(LeesJournaalNaam("00000012.HND")->bezig);
  for (const char* naam : {"", "0000012.BEZ", "00000000.HND", "0000001a.HND", "00000012.TXT"}) {
    EXPECT_FALSE(LeesJournaalNaam(naam)) << naam;
  }
}

TEST(JournaalVormTest, EenLengteMetEenFouteSomTeltNiet) {
  std::string bytes = kKopBytes + CodeerLengte({Personen, false, 512});
  bytes[bytes.size() - 10] = '\x07';
  const JournaalInhoud inhoud = OntleedJournaal(bytes);
  EXPECT_TRUE(inhoud.beschadigd);
  EXPECT_EQ(inhoud.lengten[0], kGeenLengte);
}

TEST(JournaalVormTest, EenBeeldDatLangerIsDanEenRecordTeltNiet) {
  const JournaalInhoud inhoud =
      OntleedJournaal(kKopBytes + CodeerBeeld({{Personen, 3}, std::string(129, 'a')}));
  EXPECT_TRUE(inhoud.beschadigd);
  EXPECT_TRUE(inhoud.beelden.empty());
}

TEST(JournaalVormTest, CentralePlaatsenBlijvenCentraal) {
  EXPECT_TRUE(OntleedJournaal(kKopBytes + CodeerLengte({Plaatsen, true, 118}) +
                              CodeerLengte({Personen, false, 512}))
                  .centraal);
}
