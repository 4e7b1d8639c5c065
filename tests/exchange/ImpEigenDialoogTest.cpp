// A file of our own through the dialog, with either answer to the question about its Unicode.
#include <gtest/gtest.h>

#include "exchange/Ged551Toets.h"
#include "exchange/Ged551Vulling.h"
#include "exchange/ImportToets.h"

namespace lb77 {
namespace {

class ImpEigenDialoogGevuld : public ImportToets, public ::testing::WithParamInterface<unsigned> {};

TEST_P(ImpEigenDialoogGevuld, MetJaIsErNietsVerlorenEnGeenRest) {
  ProefSet set;
  VulMetToeval(set, GetParam());
  set.schrijfwijze.gezindten[2] = "RKRooms Katholiek";  // as those of the dialog
  Antwoord("Ja");
  Importeer(Exporteer551(set).bestand);
  EXPECT_EQ(LogRegels(), "");
  EXPECT_EQ(Rest(), "");
  EXPECT_NE(Aantallen(), "1 1 1 1");
}

INSTANTIATE_TEST_SUITE_P(Zaden, ImpEigenDialoogGevuld, ::testing::Range(1U, 4U));

class ImpEigenDialoogTest : public ImportToets {
 protected:
  // A name with an accent that is as long as a record takes, and one that is not.
  static std::string Bestand551() {
    ProefSet set;
    set.bouw.Man("Zo\xEB", "Ledebo\xEBr van der Aa-Vosse");
    set.bouw.Man("Ren\xE9", "Vos");
    return Exporteer551(set).bestand;
  }
};

TEST_F(ImpEigenDialoogTest, MetJaKomtElkVeldGelijkTerug) {
  Antwoord("Ja");
  Importeer(Bestand551());
  EXPECT_EQ(Persoon(2), "voor Zo\xEB; achter Ledebo\xEBr van der Aa-Vosse; seks M");
  EXPECT_EQ(Persoon(3), "voor Ren\xE9; achter Vos; seks M");
  EXPECT_EQ(LogRegels(), "");
  EXPECT_EQ(Rest(), "");
}

TEST_F(ImpEigenDialoogTest, MetNeeBlijvenDeBytesEnZegtDeRestWatNietPast) {
  Antwoord("Nee");
  Importeer(Bestand551());
  EXPECT_EQ(Aantallen(), "3 1 1 1");
  // As the record keeps the characters of both bytes.
  EXPECT_EQ(Persoon(3),
            "voor Ren\x98"
            "A(C); achter Vos; seks M");
  EXPECT_NE(Log().find("LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: "),
            std::string::npos)
      << Log();
  EXPECT_NE(Rest().find("0 @I2@ INDI\n1 REFN 2\n1 NAME "), std::string::npos) << Rest();
  EXPECT_EQ(Rest().find("0 @I3@ INDI\n"), std::string::npos) << Rest();
}

}  // namespace
}  // namespace lb77
