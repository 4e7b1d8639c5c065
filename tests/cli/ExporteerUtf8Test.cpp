// `exporteer --utf8`, and what comes of it by `importeer`.
#include <filesystem>

#include "cli/OpdrachtToets.h"
#include "steun/Plekken.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

class ExporteerUtf8 : public OpdrachtToets {
 protected:
  void SetUp() override {
    MaakFamilie(
        "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Ren\xE2"
        "e /van Dam/\n1 SEX M\n0 TRLR\n");
  }
};

TEST_F(ExporteerUtf8, SchrijftGedcom551EnZegtDat) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.bestand = map_ / "uit.ged";
  argumenten.utf8 = true;
  EXPECT_EQ(Doe("exporteer", argumenten), 0) << fout_;
  const std::string bytes = LeesBytes(map_ / "uit.ged");
  EXPECT_TRUE(
      bytes.starts_with("\xEF\xBB\xBF"
                        "0 HEAD\r\n1 SOUR LB77\r\n"));
  EXPECT_TRUE(
      bytes.ends_with("0 @I2@ INDI\r\n1 NAME Ren\xC3\xA9 /van Dam/\r\n2 GIVN Ren\xC3\xA9\r\n"
                      "2 _LBACHT van Dam\r\n2 SPFX van\r\n2 SURN Dam\r\n1 SEX M\r\n0 TRLR\r\n"));
  EXPECT_NE(uit_.find("Soort bestand: GEDCOM 5.5.1, tekenset UTF-8\n"), std::string::npos) << uit_;
}

class ExporteerUtf8Terug : public OpdrachtToets {
 protected:
  // The set goes out and comes into a new one: the same four files, and nothing to tell.
  void Rond() {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie"};
    argumenten.bestand = map_ / "uit.ged";
    argumenten.utf8 = true;
    ASSERT_EQ(Doe("exporteer", argumenten), 0) << fout_;
    ASSERT_EQ(Doe("nieuw", {"terug"}), 0) << fout_;
    argumenten.woorden = {"terug"};
    ASSERT_EQ(Doe("importeer", argumenten), 0) << fout_;
    EXPECT_NE(fout_.find("Omzetten naar de tekenset van het programma ? -> Ja\n"),
              std::string::npos)
        << fout_;
    EXPECT_EQ(uit_, "Importeren voltooid\n");
    EXPECT_FALSE(std::filesystem::exists(map_ / "DATA/TERUG/TEKST/GEDCOM.RST"));
    const SetPaden eerst = SetPaden::Van(map_ / "DATA", "FAMILIE");
    const SetPaden daarna = SetPaden::Van(map_ / "DATA", "TERUG");
    EXPECT_EQ(LeesBytes(eerst.prs), LeesBytes(daarna.prs));
    EXPECT_EQ(LeesBytes(eerst.rlt), LeesBytes(daarna.rlt));
    EXPECT_EQ(LeesBytes(eerst.plt), LeesBytes(daarna.plt));
    EXPECT_EQ(LeesBytes(eerst.opm), LeesBytes(daarna.opm));
  }
};

TEST_F(ExporteerUtf8Terug, HetVoorbeeldKomtGelijkBinnenZonderRest) {
  MaakFamilie(LeesBytes(BronMap() / "voorbeeld/oranje-nassau.ged"));
  Rond();
}

TEST_F(ExporteerUtf8Terug, AccentenApenstaartjesEnLangeOpmerkingenKomenGelijkBinnen) {
  std::string lang;
  for (int i = 0; i < 25; ++i)
    lang +=
        " g\xE9ho"
        "ord @ in een l\xE1nge reeks";
  MaakFamilie(
      "0 HEAD\n1 CHAR ANSI\n0 @I1@ INDI\n1 NAME Zo\xEB Fran\xE7oise /d'A\xFCr\xE9t/\n1 SEX F\n"
      "1 OCCU n\xE9gociant @ c\xE9r\xE8s\n1 BIRT\n2 DATE ABT 3 DEC 1850\n2 PLAC K\xF6ln\n"
      "2 NOTE akte @12@, zie jan@@example.org\n3 CONT @begin en eind@\n1 NOTE" +
      lang +
      "\n1 FAMS @F1@\n0 @I2@ INDI\n1 NAME Jan /de V\xF6s/\n1 SEX M\n1 FAMS @F1@\n"
      "0 @F1@ FAM\n1 HUSB @I2@\n1 WIFE @I1@\n1 MARR\n2 DATE 4 MAY 1875\n2 PLAC Li\xE8ge\n"
      "2 NOTE @F1@\n1 NOTE g\xE9huwd\n0 TRLR\n");
  const std::string bytes = LeesBytes(SetPaden::Van(map_ / "DATA", "FAMILIE").opm);
  EXPECT_NE(bytes.find("jan@@example.org"), std::string::npos);
  Rond();
}

}  // namespace
}  // namespace lb77
