// `exporteer` as a command.
#include "cli/OpdrachtToets.h"
#include "store/PersoonVelden.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n"
    "0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 FAMS @F1@\n"
    "0 @I2@ INDI\n1 NAME Els /Vos/\n1 SEX F\n1 FAMS @F1@\n"
    "0 @I3@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 FAMC @F1@\n1 FAMS @F2@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 CHIL @I3@\n"
    "0 @F2@ FAM\n1 HUSB @I3@\n0 TRLR\n";

class ExporteerToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }
  int Exporteer(std::string personen = "", std::string relaties = "") {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie"};
    argumenten.bestand = Uit();
    argumenten.personen = std::move(personen);
    argumenten.relaties = std::move(relaties);
    return Doe("exporteer", argumenten);
  }
  // The lines from the first record on.
  std::string Records() const {
    std::string bytes = LeesBytes(Uit());
    std::erase(bytes, '\r');
    const std::size_t begin = bytes.find("2 DATE", bytes.find("1 CHAN"));
    return begin == std::string::npos ? bytes : bytes.substr(bytes.find('\n', begin) + 1);
  }
  std::filesystem::path Uit() const { return map_ / "uit.ged"; }
};

TEST_F(ExporteerToets, AllesGaatMeeEnHetVerslagKomtUit) {
  EXPECT_EQ(Exporteer(), 0) << fout_;
  EXPECT_EQ(Records(),
            "0 @I2@ INDI\n1 NAME Piet /van Dam/\n2 GIVN Piet\n2 SURN van Dam\n2 SPFX van\n1 SEX M\n"
            "1 FAMS @F2@\n"
            "0 @I3@ INDI\n1 NAME Els /Vos/\n2 GIVN Els\n2 SURN Vos\n1 SEX F\n1 FAMS @F2@\n"
            "0 @I4@ INDI\n1 NAME Jan /van Dam/\n2 GIVN Jan\n2 SURN van Dam\n2 SPFX van\n1 SEX M\n"
            "1 FAMC @F2@\n1 FAMS @F3@\n"
            "0 @F2@ FAM\n1 HUSB @I2@\n1 WIFE @I3@\n1 CHIL @I4@\n0 @F3@ FAM\n1 HUSB @I4@\n0 TRLR\n");
  EXPECT_TRUE(uit_.starts_with("Start export (20261121120000)\n")) << uit_;
  EXPECT_TRUE(
      uit_.ends_with("Totaal 2 Relaties geëxporteerd\nTotaal 0 Bronnen geëxpoteerd\n"
                     "Exporteren voltooid\n"))
      << uit_;
  EXPECT_EQ(fout_, "Exporteren voltooid\n");
}

// A selection has room for 32,000.
TEST_F(ExporteerToets, EenSetDieNietInDeSelectiePastGaatNietHeelMee) {
  constexpr std::size_t kRecord = 128;
  constexpr int kLaatste = 32100;
  const std::filesystem::path pad = SetPaden::Van(map_ / "DATA", "FAMILIE").prs;
  std::string bytes = LeesBytes(pad);
  const std::string laatste = bytes.substr(bytes.size() - kRecord);
  while (bytes.size() < kRecord * kLaatste) bytes += laatste;
  bytes[persoonveld::GebPlaatsNr.plaats] = static_cast<char>((kLaatste - 1) & 255);
  bytes[persoonveld::GebPlaatsNr.plaats + 1] = static_cast<char>((kLaatste - 1) >> 8);
  SchrijfBytes(pad, bytes);
  EXPECT_EQ(Exporteer(), 1);
  EXPECT_NE(fout_.find("Maximaal aantal Persoonsrecords (32000) bereikt\n"), std::string::npos);
  EXPECT_NE(fout_.find("Er is niets uitgevoerd, of niet alles\n"), std::string::npos) << fout_;
  EXPECT_TRUE(uit_.ends_with(
      "Exporteren voltooid\n"
      "LET OP: niet alle gekozen records zijn uitgevoerd: een lijst houdt er 32000\n"))
      << uit_;
  EXPECT_NE(uit_.find("Totaal 32000 Personen"), std::string::npos);
}

TEST_F(ExporteerToets, EenReeksKiestPersonenOfRelaties) {
  EXPECT_EQ(Exporteer("3-4", "3"), 0) << fout_;
  EXPECT_EQ(Records(),
            "0 @I3@ INDI\n1 NAME Els /Vos/\n2 GIVN Els\n2 SURN Vos\n1 SEX F\n"
            "0 @I4@ INDI\n1 NAME Jan /van Dam/\n2 GIVN Jan\n2 SURN van Dam\n2 SPFX van\n1 SEX M\n"
            "1 FAMS @F3@\n0 @F3@ FAM\n1 HUSB @I4@\n0 TRLR\n");
}

TEST_F(ExporteerToets, WieAlleenPersonenNoemtKrijgtGeenRelaties) {
  EXPECT_EQ(Exporteer("3"), 0) << fout_;
  EXPECT_EQ(Records(), "0 @I3@ INDI\n1 NAME Els /Vos/\n2 GIVN Els\n2 SURN Vos\n1 SEX F\n0 TRLR\n");
  EXPECT_EQ(Exporteer("", "3"), 0) << fout_;
  EXPECT_EQ(Records(), "0 @F3@ FAM\n0 TRLR\n");
}

TEST_F(ExporteerToets, EenReeksDieDeDialoogNietNeemtLevertNiets) {
  EXPECT_EQ(Exporteer("2-99"), 1);
  EXPECT_FALSE(std::filesystem::exists(Uit()));
  EXPECT_NE(fout_.find("Er is niets uitgevoerd"), std::string::npos) << fout_;
  EXPECT_EQ(Exporteer("", "3-2"), 1);
  EXPECT_FALSE(std::filesystem::exists(Uit()));
  EXPECT_NE(fout_.find("Ongeldige reeks: 2e recordnummer is kleiner dan het 1e"), std::string::npos)
      << fout_;
}

TEST_F(ExporteerToets, EenMapInDePlaatsVanHetBestandMislukt) {
  std::filesystem::create_directories(Uit());
  EXPECT_EQ(Exporteer(), 1);
  EXPECT_EQ(fout_, "Pad is een directory\nEr is niets uitgevoerd, of niet alles\n");
  EXPECT_EQ(uit_, "Start export (20261121120000)\n");
}

TEST_F(ExporteerToets, EenLegeSetMislukt) {
  ASSERT_EQ(Doe("nieuw", {"leeg"}), 0);
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"leeg"};
  argumenten.bestand = Uit();
  EXPECT_EQ(Doe("exporteer", argumenten), 1);
  EXPECT_EQ(
      fout_,
      "Export uit een leeg bestand is niet mogelijk\nEr is niets uitgevoerd, of niet alles\n");
}

}  // namespace
}  // namespace lb77
