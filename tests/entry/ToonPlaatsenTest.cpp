#include "entry/PlaatsenToets.h"
#include "entry/ToonPlaatsen.h"

namespace lb77 {
namespace {

class ToonPlaatsenTest : public PlaatsenToets {};

TEST_F(ToonPlaatsenTest, ToontCodeNaamEnProvincie) {
  MaakDrie();
  Speelt(R"(
    toon PlaatsnrTekst(0)
    toon PlaatsnaamTekst(0)
    toon ProvcodeTekst(0)
    toon PlaatsnaamTekst(2)
    toon ProvcodeTekst(2)
    toon PlaatsnrTekst(3)
    toon PlaatsnaamTekst(3)
    toon PlaatsnrTekst(9)
    druk BackButton
  )",
         R"(
    = PlaatsnrTekst(0) "2"
    = PlaatsnaamTekst(0) "Amsterdam"
    = ProvcodeTekst(0) "NH"
    = PlaatsnaamTekst(2) "Breda"
    = ProvcodeTekst(2) ""
    = PlaatsnrTekst(3) "5"
    = PlaatsnaamTekst(3) ""
    = PlaatsnrTekst(9) "11"
  )");
  EXPECT_EQ(focus_, "PlaatsnaamTekst(0)");
}

TEST_F(ToonPlaatsenTest, BegintBijDePlaatsInDeBuffer) {
  MaakReeks(30);
  EXPECT_EQ(Pagina("", 5), "5-14: P5 P6 P7 P8 P9 P10 P11 P12 P13 P14");
  for (const int begin : {-1, 0, 1, 2}) {
    EXPECT_EQ(Pagina("", static_cast<std::int16_t>(begin)), "2-11: P2 P3 P4 P5 P6 P7 P8 P9 P10 P11")
        << begin;
  }
}

TEST_F(ToonPlaatsenTest, BladertTienPlaatsenVooruitEnTerug) {
  MaakReeks(30);
  EXPECT_EQ(Pagina("druk VolgendeButton"), "12-21: P12 P13 P14 P15 P16 P17 P18 P19 P20 P21");
  EXPECT_EQ(Pagina("druk VolgendeButton\ndruk VolgendeButton\ndruk VorigeButton"),
            "12-21: P12 P13 P14 P15 P16 P17 P18 P19 P20 P21");
  EXPECT_EQ(Pagina("druk VorigeButton", 7), "2-11: P2 P3 P4 P5 P6 P7 P8 P9 P10 P11");
}

TEST_F(ToonPlaatsenTest, VoorbijDeLaatstePaginaBlijvenDeLaatstePlaatsenStaan) {
  MaakReeks(23);
  EXPECT_EQ(Pagina("druk VolgendeButton", 14), "18-27: P18 P19 P20 P21 P22 P23    ");
  EXPECT_EQ(Pagina("druk VolgendeButton", 13), "23-32: P23         ");
  MaakReeks(4);
  EXPECT_EQ(Pagina("druk VolgendeButton"), "2-11: P2 P3 P4       ");
}

TEST_F(ToonPlaatsenTest, EenSetZonderPlaatsenToontLegeRegels) {
  EXPECT_EQ(Pagina("druk VolgendeButton\ndruk VorigeButton"), "2-11:          ");
  Speelt("vul PlaatsnaamTekst(0) Delft\ndruk OKButton", "");
  EXPECT_EQ(Plaatsen(), "\n2 Delft \n");
}

TEST_F(ToonPlaatsenTest, TerugEnEscapeSlaanNietsOp) {
  MaakDrie();
  const std::string voor = LeesBytes(Bestand());
  for (const auto* uit : {"druk BackButton", "toets Escape", "toets F10", "sluit"}) {
    Speelt(std::string("vul PlaatsnaamTekst(0) Leiden\ntyp PlaatsnaamTekst(5) Goes\n") + uit, "");
    EXPECT_EQ(LeesBytes(Bestand()), voor) << uit;
  }
}

TEST_F(ToonPlaatsenTest, ZonderWijzigingBlijftElkeByteStaan) {
  std::string bytes{'\x03', '\0'};
  for (const std::string_view record :
       {"87", " z  delft \x81 het   \xFF", "zhNaam met \x01 en \xE1 "}) {
    bytes += record;
    bytes.resize((bytes.size() / plaatsveld::kLengte + 1) * plaatsveld::kLengte, ' ');
  }
  bytes.resize(4 * plaatsveld::kLengte, ' ');
  bytes[3 * plaatsveld::kLengte - 1] = '\0';
  SchrijfBytes(Bestand(), bytes);
  std::string overal;
  for (int i = 0; i < 20; ++i) overal += "toets Tab\n";
  Speelt(overal + "druk VolgendeButton\ndruk VorigeButton\ndruk OKButton", "");
  EXPECT_EQ(LeesBytes(Bestand()), bytes);
}

TEST_F(ToonPlaatsenTest, AlleenHetGewijzigdeVeldWordtGeschreven) {
  Bouw().Plaats("Oud", "x");
  std::string bytes = LeesBytes(Bestand());
  bytes.replace(plaatsveld::kLengte, 6, std::string("zh\0Oud", 6));
  SchrijfBytes(Bestand(), bytes);
  Speelt("vul ProvcodeTekst(0) nb\ndruk OKButton", "");
  bytes.replace(plaatsveld::kLengte, 2, "NB");
  EXPECT_EQ(LeesBytes(Bestand()), bytes);
}

TEST_F(ToonPlaatsenTest, DeVeldenNemenNietMeerDanHetRecordHeeft) {
  MaakDrie();
  Speelt(R"(
    vul PlaatsnaamTekst(0) Abcdefghijklmnopqrstuvwxyz
    vul ProvcodeTekst(0) zhx
    toon ProvcodeTekst(0)
    druk OKButton
  )",
         R"(= ProvcodeTekst(0) "ZH")");
  EXPECT_EQ(Plaatsen(), "\n2 Abcdefghijklmnopqrstuvwxy ZH\n3 Delft ZH\n4 Breda \n");
}

TEST_F(ToonPlaatsenTest, EenFunctietoetsBrengtZijnTekst) {
  MaakDrie();
  Verwacht(
      "toets ProvcodeTekst(0) Shift+F1\ntoets Tab\ntoon ProvcodeTekst(0)\ndruk BackButton",
      [](Hoofdmodule& hoofd) {
        hoofd.Ini.IniZet("Funktietoetsen", "F1", "zuid");
        hoofd.gesprek.Toon<ToonPlaatsen>(hoofd);
      },
      R"(
    + ToonPlaatsen "Toon Plaatsen"
    = ProvcodeTekst(0) "ZU"
    - ToonPlaatsen
  )");
}

TEST_F(ToonPlaatsenTest, TienduizendPlaatsenZijnHetMaximum) {
  MaakReeks(10000);
  EXPECT_EQ(Pagina("druk VolgendeButton", 9991),
            "9995-10004: P9995 P9996 P9997 P9998 P9999 P10000    ");
  Speelt("vul PlaatsnaamTekst(2) Delft\nvul PlaatsnaamTekst(3) Leiden\ndruk OKButton",
         R"(! stop "Het maximum van 10000 plaatsen is bereikt")", 9998);
  Stil([](Hoofdmodule& hoofd) {
    EXPECT_EQ(hoofd.Plaats.AantalRecords(), 10000);
    EXPECT_EQ(hoofd.Plaats.Naam(10000), "Delft");
  });
}

}  // namespace
}  // namespace lb77
