#include <gtest/gtest.h>

#include <string>

#include "exchange/FaalUitvoer.h"
#include "exchange/GedcomKop.h"

namespace lb77 {
namespace {

class GedcomKopToets : public ::testing::Test {
 protected:
  // The lines from the name of the user on.
  std::string Inzender() {
    FaalUitvoer uit;
    SchrijfKop(kop_, uit);
    const std::string begin = "0 @SUBM0001@ SUBM\n";
    const std::size_t plaats = uit.Regels().find(begin);
    EXPECT_NE(plaats, std::string::npos);
    return uit.Regels().substr(plaats + begin.size());
  }

  static constexpr const char* kSlot =
      "1 LANG DUTCH\n1 LANG ENGLISH\n1 LANG FRENCH\n1 CHAN\n2 DATE 02 NOV 2026\n";
  GedKopGegevens kop_{
      .nu = {2026, 11, 2, 9, 5, 7}, .bestandsnaam = " C:\\UIT.GED ", .set = " PROEF "};
};

TEST_F(GedcomKopToets, DeKopStaatRegelVoorRegel) {
  kop_.inzender = {.voornaam = "Jan",
                   .naam = "Jansen",
                   .adres = " Markt 1 ",
                   .postcode = "1234 AB ",
                   .plaats = " Breda",
                   .land = " Nederland ",
                   .telefoon = "  076-1234"};
  FaalUitvoer uit;
  SchrijfKop(kop_, uit);
  EXPECT_EQ(uit.Regels(),
            "0 HEAD\n1 SOUR LB77_voor_Windows\n2 VERS 2.2.2\n"
            "1 DEST Any GEDCOM 5.5 supporting software package\n"
            "1 DATE 02 NOV 2026\n2 TIME 09:05:07\n1 FILE C:\\UIT.GED\n1 COPR Jan Jansen\n"
            "1 GEDC\n2 VERS 5.5\n2 FORM LINEAGE-LINKED\n1 CHAR ANSEL\n1 LANG DUTCH\n"
            "0 @PROEF20261102090507@ SUBN\n1 SUBM @SUBM0001@\n0 @SUBM0001@ SUBM\n"
            "1 NAME Jan Jansen\n1 ADDR Markt 1\n2 CONT 1234 AB Breda\n2 CONT Nederland\n"
            "2 ADR1 Markt 1\n2 ADR2 1234 AB; Breda\n2 POST 1234 AB\n2 CITY Breda\n"
            "2 CTRY Nederland\n1 PHON 076-1234\n" +
                std::string(kSlot));
}

TEST_F(GedcomKopToets, ZonderGebruikerBlijvenDeNamenLeeg) {
  EXPECT_EQ(Inzender(), "1 NAME \n" + std::string(kSlot));
}

TEST_F(GedcomKopToets, EenNaamZonderVoornaamHeeftGeenSpatieErvoor) {
  kop_.inzender.naam = "Jansen";
  EXPECT_EQ(Inzender(), "1 NAME Jansen\n" + std::string(kSlot));
  kop_.inzender = {.voornaam = "Jan", .naam = ""};
  EXPECT_EQ(Inzender(), "1 NAME Jan \n" + std::string(kSlot));
}

TEST_F(GedcomKopToets, ZonderAdresStaatErGeenWoonplaats) {
  kop_.inzender = {.voornaam = "",
                   .naam = "",
                   .adres = " ",
                   .postcode = "1234 AB",
                   .plaats = "Breda",
                   .land = "Nederland"};
  EXPECT_EQ(Inzender(), "1 NAME \n" + std::string(kSlot));
}

TEST_F(GedcomKopToets, EenPlaatsZonderPostcodeHoudtDePuntkomma) {
  kop_.inzender = {.voornaam = "", .naam = "", .adres = "Markt 1", .plaats = "Breda"};
  EXPECT_EQ(
      Inzender(),
      "1 NAME \n1 ADDR Markt 1\n2 CONT Breda\n2 ADR1 Markt 1\n2 ADR2 ; Breda\n2 CITY Breda\n" +
          std::string(kSlot));
}

TEST_F(GedcomKopToets, EenPostcodeZonderPlaatsHoudtDePuntkommaOok) {
  kop_.inzender = {.voornaam = "", .naam = "", .adres = "Markt 1", .postcode = "1234 AB"};
  EXPECT_EQ(Inzender(),
            "1 NAME \n1 ADDR Markt 1\n2 CONT 1234 AB\n2 ADR1 Markt 1\n2 ADR2 1234 AB;\n"
            "2 POST 1234 AB\n" +
                std::string(kSlot));
}

TEST_F(GedcomKopToets, EenAdresMetAlleenEenLandHeeftGeenWoonplaats) {
  kop_.inzender = {.voornaam = "", .naam = "", .adres = "Markt 1", .land = "Nederland"};
  EXPECT_EQ(Inzender(),
            "1 NAME \n1 ADDR Markt 1\n2 CONT Nederland\n2 ADR1 Markt 1\n2 CTRY Nederland\n" +
                std::string(kSlot));
}

TEST_F(GedcomKopToets, EenLandVanSpatiesIsGeenLand) {
  kop_.inzender = {.voornaam = "", .naam = "", .adres = "Markt 1", .land = "  "};
  EXPECT_EQ(Inzender(), "1 NAME \n1 ADDR Markt 1\n2 ADR1 Markt 1\n" + std::string(kSlot));
}

TEST_F(GedcomKopToets, EenTelefoonAlleenStaatErOok) {
  kop_.inzender = {.voornaam = "", .naam = "", .telefoon = " 076"};
  EXPECT_EQ(Inzender(), "1 NAME \n1 PHON 076\n" + std::string(kSlot));
}

}  // namespace
}  // namespace lb77
