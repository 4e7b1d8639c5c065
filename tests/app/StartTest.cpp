#include "app/SessieToets.h"
#include "app/Start.h"

namespace lb77 {
namespace {

class StartVanSessie : public SessieToets {};

TEST_F(StartVanSessie, DeDirectoryVanDeExecutableTeltAlsErInstellingenLiggen) {
  const std::filesystem::path gebruiker = map_ / "gebruiker";
  EXPECT_EQ(ZoekProgrammaMap({}, map_, gebruiker), gebruiker);
  ZetIni("");
  EXPECT_EQ(ZoekProgrammaMap({}, map_, gebruiker), map_);
}

TEST_F(StartVanSessie, InstellingenOnderEenAndereKastTellenOok) {
  Schrijf("Lijnboom.ini", "");
  EXPECT_EQ(ZoekProgrammaMap({}, map_, map_ / "gebruiker"), map_);
}

TEST_F(StartVanSessie, EenGevraagdeDirectoryGaatVoor) {
  ZetIni("");
  EXPECT_EQ(ZoekProgrammaMap(map_ / "elders/", map_, "/g"), map_ / "elders");
  EXPECT_EQ(ZoekProgrammaMap("x/../hier", map_, "/g"), std::filesystem::current_path() / "hier");
  EXPECT_EQ(ZoekProgrammaMap(map_), map_);
}

TEST_F(StartVanSessie, ZonderVraagZegtHetSysteemWaarHetProgrammaLigt) {
  EXPECT_TRUE(ZoekProgrammaMap({}).is_absolute());
}

TEST_F(StartVanSessie, DeStartZetDeVolgersEnMaaktDeTijdelijkeDirectory) {
  ZetIni("[Namenfile]\nGez1=NHNederlands Hervormd\nGez20=XXLaatste\n[Sets]\nSet1=ABC\n");
  const std::filesystem::path huidige = std::filesystem::current_path();
  Verwacht("", Met([](Hoofdmodule& hoofd) {
             hoofd.volgers.HuidigPersoonNr = 5;
             hoofd.volgers.PersBufNr = 5;
             hoofd.ActieveSetNaam = "ABC";
             ASSERT_TRUE(Start(hoofd));
             EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
             EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, -1);
             EXPECT_EQ(hoofd.volgers.PersBufNr, -1);
             EXPECT_EQ(hoofd.volgers.RelBufNr, -1);
             EXPECT_EQ(hoofd.ActieveSetNaam, "<geen bestandenset aanwezig>");
             EXPECT_EQ(hoofd.schrijfwijze.gezindten[1], "NHNederlands Hervormd");
             EXPECT_EQ(hoofd.schrijfwijze.gezindten[2], "");
             EXPECT_EQ(hoofd.schrijfwijze.gezindten[20], "XXLaatste");
           }),
           "");
  EXPECT_TRUE(Bestaat("TEMP"));
  EXPECT_EQ(std::filesystem::current_path(), huidige);
}

TEST_F(StartVanSessie, EenTijdelijkeDirectoryDieNietKanHoudtNietsTegen) {
  Schrijf("TEMP", "een bestand");
  ZetIni("");
  Verwacht("", Met([](Hoofdmodule& hoofd) { EXPECT_TRUE(Start(hoofd)); }), "");
}

TEST_F(StartVanSessie, DeDirectoryVanHetProgrammaWordtGemaakt) {
  map_ /= "nieuw/dieper";
  Speel("antwoord OK", Met([](Hoofdmodule& hoofd) { EXPECT_TRUE(Start(hoofd)); }));
  EXPECT_TRUE(Bestaat("LIJNBOOM.INI"));
  map_ = map_.parent_path().parent_path();
}

TEST_F(StartVanSessie, AnnulerenBijDeInstellingenEindigtHetProgramma) {
  Speel("antwoord Annuleren", Met([](Hoofdmodule& hoofd) { EXPECT_FALSE(Start(hoofd)); }));
  EXPECT_FALSE(Bestaat("TEMP"));
}

TEST_F(StartVanSessie, TweeSessiesNaastElkaarStorenElkaarNiet) {
  ZetIni("[KWGR]\nBreedte=12\n");
  Verwacht("", Met([this](Hoofdmodule& een) {
             Hoofdmodule twee(een.gesprek, klok_, map_);
             ASSERT_TRUE(Start(een) && Start(twee));
             een.Ini.IniZet("KWGR", "Breedte", "5");
             een.volgers.HuidigPersoonNr = 9;
             EXPECT_EQ(twee.Ini.IniWaarde("KWGR", "Breedte"), "12");
             EXPECT_EQ(twee.volgers.HuidigPersoonNr, -1);
             EXPECT_EQ(twee.klok.Nu().jaar, 2026);
           }),
           "");
}

}  // namespace
}  // namespace lb77
