#include "app/SessieToets.h"
#include "app/SetVerwijderen.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"

namespace lb77 {
namespace {

class VanSchijf : public SessieToets {
 protected:
  void SetUp() override { MaakSet("ABC"); }
  void Verwijdert(std::string_view verslag) {
    Verwacht("", Met([this](Hoofdmodule& hoofd) {
               VerwijderSetVanSchijf(hoofd.gesprek, map_ / "DATA", "ABC");
             }),
             MetMap(verslag));
  }
  std::filesystem::path Pad(const char* naam) const { return map_ / "DATA/ABC" / naam; }
};

TEST_F(VanSchijf, EenHeleSetGaatZonderMelding) {
  Verwijdert("");
  EXPECT_FALSE(Bestaat("DATA/ABC"));
  EXPECT_TRUE(Bestaat("DATA"));
}

TEST_F(VanSchijf, ElkBestandDatErNietIsHeeftZijnMelding) {
  for (const char* naam : {"ABC.PRS", "ABC.RLT", "ABC.OPM", "ABC.PLT"}) {
    std::filesystem::remove(Pad(naam));
  }
  Verwijdert(
      R"~(! stop "Fout bij het verwijderen van het Persoonsbestand (<map>/DATA/ABC/ABC.PRS, 53 Bestand niet gevonden)"
         ! stop "Fout bij het verwijderen van het Relatiebestand (<map>/DATA/ABC/ABC.RLT, 53 Bestand niet gevonden)"
         ! stop "Fout bij het verwijderen van het Opmerkingenbestand (<map>/DATA/ABC/ABC.OPM, 53 Bestand niet gevonden)"
         ! uitroep "Verwijderen gaat nog even niet uit van het gebruik van eencentraal plaatsbestand.")~");
  EXPECT_FALSE(Bestaat("DATA/ABC"));
}

TEST_F(VanSchijf, EenPlaatsbestandDatNietWegWilHeeftZijnMelding) {
  std::filesystem::remove(Pad("ABC.PLT"));
  std::filesystem::create_directories(Pad("ABC.PLT") / "vol");
  Verwijdert(
      R"~(! stop "Fout bij het verwijderen van het Plaatsbestand (<map>/DATA/ABC/ABC.PLT, 75 Directory is niet leeg)"
         ! uitroep "Verwijderen van de data-directory voor bestandenset ABCis niet gelukt (Directory is niet leeg). Verwijder de directory <map>/DATA/ABCzelf via de Windows Verkenner.")~");
  EXPECT_TRUE(Bestaat("DATA/ABC/ABC.PLT/vol"));
}

TEST_F(VanSchijf, WatVanDeGebruikerIsBlijftMetDeDirectoryWaarHetInLigt) {
  Schrijf("DATA/ABC/stamboek.doc", "brief");
  Schrijf("DATA/ABC/Scans/akte.jpg", "akte");
  Schrijf("DATA/ABC/TEKST/verslag.txt", "x");
  Schrijf("DATA/ABC/INDEX/diep/index.txt", "x");
  Verwijdert(
      R"(! uitroep "Verwijderen van de data-directory voor bestandenset ABCis niet gelukt (Directory is niet leeg). Verwijder de directory <map>/DATA/ABCzelf via de Windows Verkenner.")");
  EXPECT_EQ(Inhoud("DATA/ABC/stamboek.doc"), "brief");
  EXPECT_EQ(Inhoud("DATA/ABC/Scans/akte.jpg"), "akte");
  for (const char* weg : {"ABC.PRS", "ABC.RLT", "ABC.OPM", "ABC.PLT", "TEKST", "INDEX"}) {
    EXPECT_FALSE(std::filesystem::exists(Pad(weg))) << weg;
  }
}

TEST_F(VanSchijf, EenKoppelingGaatMaarWaarZeHeenWijstBlijft) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  Schrijf("BUITEN/a.txt", "x");
  std::filesystem::create_directory_symlink(map_ / "BUITEN", Pad("TEKST") / "diep");
  std::filesystem::create_directory_symlink(map_ / "BUITEN", Pad("INDEX"));
  std::filesystem::remove(Pad("ABC.RLT"));
  std::filesystem::create_symlink(map_ / "BUITEN/a.txt", Pad("ABC.RLT"));
  Verwijdert("");
  EXPECT_FALSE(Bestaat("DATA/ABC"));
  EXPECT_EQ(Inhoud("BUITEN/a.txt"), "x");
}

TEST_F(VanSchijf, EenSetDieZelfEenKoppelingIsBlijftHeel) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  std::filesystem::rename(map_ / "DATA/ABC", map_ / "ELDERS");
  std::filesystem::create_directory_symlink(map_ / "ELDERS", map_ / "DATA/ABC");
  Verwijdert(
      R"(! uitroep "Verwijderen van de data-directory voor bestandenset ABCis niet gelukt (Het is een koppeling naar een andere directory). Verwijder de directory <map>/DATA/ABCzelf via de Windows Verkenner.")");
  EXPECT_TRUE(Bestaat("ELDERS/ABC.PRS"));
  EXPECT_TRUE(Bestaat("ELDERS/TEKST"));
}

TEST_F(VanSchijf, EenSetOnderEenAndereKastGaatOok) {
  std::filesystem::rename(map_ / "DATA/ABC", map_ / "DATA/Abc");
  std::filesystem::rename(map_ / "DATA/Abc/ABC.PRS", map_ / "DATA/Abc/abc.prs");
  Verwijdert("");
  EXPECT_FALSE(Bestaat("DATA/Abc"));
}

TEST_F(VanSchijf, ZonderRechtenHeeftElkBestandEnElkeDirectoryZijnMelding) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  std::filesystem::create_directory(Pad("INDEX"));
  {
    const ZonderRechten rechten(map_ / "DATA/ABC");
    Verwijdert(
        R"~(! stop "Fout bij het verwijderen van het Persoonsbestand (<map>/DATA/ABC/ABC.PRS, 70 Geen toegang)"
           ! stop "Fout bij het verwijderen van het Relatiebestand (<map>/DATA/ABC/ABC.RLT, 70 Geen toegang)"
           ! stop "Fout bij het verwijderen van het Opmerkingenbestand (<map>/DATA/ABC/ABC.OPM, 70 Geen toegang)"
           ! stop "Fout bij het verwijderen van het Plaatsbestand (<map>/DATA/ABC/ABC.PLT, 70 Geen toegang)"
           ! uitroep "Verwijderen van de TEKST-directory voor bestandenset ABCis niet gelukt (Geen toegang). Verwijder de directory <map>/DATA/ABC/TEKSTzelf via de Windows Verkenner."
           ! uitroep "Verwijderen van de INDEX-directory voor bestandenset ABCis niet gelukt (Geen toegang). Verwijder de directory <map>/DATA/ABC/INDEXzelf via de Windows Verkenner."
           ! uitroep "Verwijderen van de data-directory voor bestandenset ABCis niet gelukt (Geen toegang). Verwijder de directory <map>/DATA/ABCzelf via de Windows Verkenner.")~");
  }
  EXPECT_TRUE(Bestaat("DATA/ABC/ABC.PRS"));
}

}  // namespace
}  // namespace lb77
