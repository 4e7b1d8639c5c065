#include <gtest/gtest.h>

#include "exchange/FaalUitvoer.h"
#include "exchange/Ged551Kop.h"

namespace lb77 {
namespace {

// The lines of the head, and of who sends it.
class Ged551KopTest : public ::testing::Test {
 protected:
  std::string Kop() {
    FaalUitvoer uit;
    Ged551Regels regels(uit);
    SchrijfGed551Kop(kop, regels);
    const std::string alles = uit.Regels();
    return alles.substr(0, alles.find("0 @S1@ SUBM\n"));
  }
  std::string Inzender() {
    FaalUitvoer uit;
    Ged551Regels regels(uit);
    SchrijfGed551Kop(kop, regels);
    const std::string begin = "0 @S1@ SUBM\n";
    return uit.Regels().substr(uit.Regels().find(begin) + begin.size());
  }
  static bool Heeft(const std::string& tekst, const std::string& regel) {
    return tekst.find("\n" + regel + "\n") != std::string::npos;
  }

  GedKopGegevens kop{.nu = {2024, 12, 31, 4, 7, 9}, .bestandsnaam = "PROEF.GED"};
};

TEST_F(Ged551KopTest, DatumEnTijdHebbenHunNullen) {
  const std::string tekst = Kop();
  EXPECT_TRUE(Heeft(tekst, "1 DATE 31 DEC 2024")) << tekst;
  EXPECT_TRUE(Heeft(tekst, "2 TIME 04:07:09")) << tekst;
}

TEST_F(Ged551KopTest, VanEenPadStaatAlleenDeNaam) {
  for (const char* pad : {"proef.ged", "/thuis/jan/proef.ged", "C:\\LB77\\TEKST\\proef.ged",
                          "C:\\LB77/proef.ged", "  proef.ged  "}) {
    kop.bestandsnaam = pad;
    EXPECT_TRUE(Heeft(Kop(), "1 FILE proef.ged")) << pad;
  }
  kop.bestandsnaam = "/thuis/";
  EXPECT_EQ(Kop().find("1 FILE"), std::string::npos);
}

// As settings are typed: blanks take no room.
TEST_F(Ged551KopTest, ElkeTekstIsHoogstensZoLangAlsDeStandaardZegt) {
  const std::string lang(100, 'x');
  kop.bestandsnaam = lang;
  kop.inzender = {.voornaam = "",
                  .naam = "  " + lang,
                  .adres = "  " + lang,
                  .postcode = "  " + lang,
                  .plaats = "  " + lang,
                  .land = "  " + lang,
                  .telefoon = "  " + lang};
  EXPECT_TRUE(Heeft(Kop(), "1 FILE " + lang.substr(0, 90)));
  EXPECT_TRUE(Heeft(Kop(), "1 COPR " + lang.substr(0, 90)));
  const std::string x60 = lang.substr(0, 60);
  EXPECT_EQ(Inzender(), "1 NAME " + x60 + "\n1 ADDR " + x60 + "\n2 ADR1 " + x60 + "\n2 CITY " +
                            x60 + "\n2 POST " + lang.substr(0, 10) + "\n2 CTRY " + x60 +
                            "\n1 PHON " + lang.substr(0, 25) + "\n");
}

TEST_F(Ged551KopTest, TussenVoornaamEnNaamStaatEenSpatie) {
  kop.inzender.voornaam = " Jan ";
  kop.inzender.naam = " de Boer ";
  EXPECT_EQ(Inzender(), "1 NAME Jan de Boer\n");
  EXPECT_TRUE(Heeft(Kop(), "1 COPR Jan de Boer"));
  kop.inzender.naam = " ";
  EXPECT_EQ(Inzender(), "1 NAME Jan\n");
  kop.inzender = {.voornaam = "", .naam = "de Boer"};
  EXPECT_EQ(Inzender(), "1 NAME de Boer\n");
}

TEST_F(Ged551KopTest, WieZichNietNoemtIsOnbekend) {
  EXPECT_EQ(Inzender(), "1 NAME Onbekend\n");
  EXPECT_EQ(Kop().find("1 COPR"), std::string::npos);
}

// What stands below ADDR would have nothing above it.
TEST_F(Ged551KopTest, ZonderAdresIsErGeenPlaats) {
  kop.inzender.adres = "  ";
  kop.inzender.plaats = "Delft";
  kop.inzender.land = "Nederland";
  kop.inzender.telefoon = "015";
  EXPECT_EQ(Inzender(), "1 NAME Onbekend\n1 PHON 015\n");
}

}  // namespace
}  // namespace lb77
