#include "OpdrachtToets.h"
#include "steun/Bestandsstelsel.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n0 @I1@ INDI\n1 NAME Jan /van Dam/\n1 FAMC @F1@\n0 @I2@ INDI\n1 NAME Piet /van Dam/\n"
    "1 SEX M\n1 FAMS @F1@\n0 @F1@ FAM\n1 HUSB @I2@\n1 CHIL @I1@\n0 TRLR\n";

class BewarenToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }

  static OpdrachtArgumenten Verslag() {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", "2"};
    return argumenten;
  }
};

TEST_F(BewarenToets, WieAlleenLeestSchrijftNiets) {
  ASSERT_EQ(Doe("nieuw", {"ander"}), 0);
  const auto voor = Inhoud();
  EXPECT_EQ(Doe("sets", OpdrachtArgumenten{}), 0);
  EXPECT_EQ(Doe("zoek", {"familie", "dam"}), 0) << fout_;
  OpdrachtArgumenten argumenten = Verslag();
  argumenten.html = true;
  argumenten.zet = {"MaxGen=3", "OokNrsBox=Ja"};
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  EXPECT_EQ(Inhoud(), voor);
}

TEST_F(BewarenToets, ZonderInstellingenMaaktLezenErGeen) {
  for (const auto& plek : std::filesystem::directory_iterator(map_.Pad())) {
    std::filesystem::remove_all(plek.path());
  }
  EXPECT_EQ(Doe("sets", OpdrachtArgumenten{}), 0);
  EXPECT_EQ(uit_, "");
  EXPECT_EQ(Doe("zoek", {"familie", "dam"}), 1);
  EXPECT_TRUE(std::filesystem::is_empty(map_.Pad()));
}

TEST_F(BewarenToets, MetBewaarGeldenDeKeuzesOokLater) {
  OpdrachtArgumenten argumenten = Verslag();
  argumenten.zet = {"OokNrsBox=Nee"};
  argumenten.bewaar = true;
  ASSERT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  EXPECT_NE(LeesBytes(map_ / "LIJNBOOM.INI").find("\r\nOokNummers=N\r\n"), std::string::npos);
  EXPECT_EQ(Doe("kwartierstaat", Verslag()), 0) << fout_;
  EXPECT_NE(uit_.find("Jan van Dam"), std::string::npos);
  EXPECT_EQ(uit_.find("[2]"), std::string::npos);
}

TEST_F(BewarenToets, EenSetDieNietCompleetIsWordtNietAangevuldDoorLezen) {
  const auto weg = map_ / "DATA" / "FAMILIE" / "FAMILIE.OPM";
  std::filesystem::remove(weg);
  EXPECT_EQ(Doe("zoek", {"familie", "dam"}), 1);
  EXPECT_NE(fout_.find("Bestandenset FAMILIE is niet compleet: "), std::string::npos);
  EXPECT_NE(fout_.find("FAMILIE.OPM ontbreekt\n"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(weg));
}

TEST_F(BewarenToets, EenOnleesbaarInstellingenbestandWordtNietVervangen) {
  std::filesystem::remove(map_ / "LIJNBOOM.INI");
  std::filesystem::create_directory(map_ / "LIJNBOOM.INI");
  const auto voor = Inhoud();
  EXPECT_EQ(Doe("nieuw", {"ander"}), 1);
  EXPECT_NE(fout_.find("Druk op CANCEL om te stoppen -> Annuleren\n"), std::string::npos);
  EXPECT_EQ(Inhoud(), voor);
}

TEST_F(BewarenToets, InstellingenDieNietBewaardWordenMakenDeUitkomstEen) {
  // A directory where the file is written before it takes its place.
  std::filesystem::create_directories(map_ / "LIJNBOOM.TMP" / "vol");
  EXPECT_EQ(Doe("nieuw", {"ander"}), 1);
  EXPECT_NE(fout_.find("De opdracht is niet uitgevoerd\n"), std::string::npos) << fout_;
  OpdrachtArgumenten argumenten = Verslag();
  argumenten.bewaar = true;
  EXPECT_EQ(Doe("kwartierstaat", argumenten), 1);
  EXPECT_EQ(Doe("kwartierstaat", Verslag()), 0) << fout_;
}

TEST_F(BewarenToets, UitWeigertWatVanHetProgrammaIs) {
  ASSERT_EQ(Doe("nieuw", {"ander"}), 0);
  SchrijfBytes(map_ / "KOPIE.PAD", "stick");
  std::filesystem::create_directories(map_ / "stick/ANDER");
  const auto voor = Inhoud();
  std::vector<std::pair<std::filesystem::path, std::string>> gevallen = {
      {map_ / "LIJNBOOM.INI", "het bestand met instellingen"},
      {map_ / "lb77_ini.bak", "het bestand met instellingen"},
      {map_ / "DATA" / "." / "FAMILIE" / "FAMILIE.PRS", "een bestand van bestandenset FAMILIE"},
      {map_ / "DATA" / "ANDER" / "ANDER.OPM", "een bestand van bestandenset ANDER"},
      {map_ / "LIJNBOOM.OUD", "een reserve van de instellingen"},
      {map_ / "KOPIE" / "ANDER" / "x", "van een veiligheidskopie"},
      {map_ / "KOPIE.PAD", "het bestand met instellingen"},
      {map_ / "stick" / "ANDER" / "x", "van een veiligheidskopie"},
      {map_ / "DATA" / "ANDER" / "JOURNAAL" / "00000001.HND",
       "van het journaal van bestandenset ANDER"}};
  if (!kKastTelt) {
    gevallen.emplace_back(map_ / "lijnboom.oud", "een reserve van de instellingen");
    gevallen.emplace_back(map_ / "LIJNBOOM.OUD.", "een reserve van de instellingen");
  }
  for (const auto& [pad, rol] : gevallen) {
    OpdrachtArgumenten argumenten = Verslag();
    argumenten.naar = pad;
    const bool koppeling = kKastTelt && pad.filename() == "lb77_ini.bak";
    if (koppeling) std::filesystem::create_symlink("LB77_INI.BAK", pad);
    EXPECT_EQ(Doe("kwartierstaat", argumenten), 1) << pad;
    EXPECT_NE(fout_.find(" is " + rol + " en wordt niet overschreven\n"), std::string::npos)
        << fout_;
    if (koppeling) std::filesystem::remove(pad);
  }
  EXPECT_EQ(Inhoud(), voor);
}

}  // namespace
}  // namespace lb77
