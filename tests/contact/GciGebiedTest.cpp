// Province and country of an own code, and the synonyms of places.
#include <gtest/gtest.h>

#include "contact/ContactToets.h"
#include "contact/GciGebied.h"
#include "text/Letterlijk.h"

namespace lb77 {

static void PrintTo(const GciGebied& gebied, std::ostream* uit) {
  *uit << gebied.prov << '/' << gebied.land;
}

namespace {

GciGebied Van(std::string_view code, const GciCodes& provincies = GciCodes(),
              const GciCodes& landen = GciCodes()) {
  return GebiedVan(code, provincies, landen);
}

TEST(GebiedVan, KentElkeEigenCode) {
  for (const char* code : {"GR", "FR", "DR", "OV", "NH", "ZH", "NB"}) {
    EXPECT_EQ(Van(code), (GciGebied{code, "NL"})) << code;
  }
  for (const char* code : {"GE", "GL"}) EXPECT_EQ(Van(code), (GciGebied{"GE", "NL"}));
  for (const char* code : {"U", "UT"}) EXPECT_EQ(Van(code), (GciGebied{"UT", "NL"}));
  for (const char* code : {"ZE", "ZL"}) EXPECT_EQ(Van(code), (GciGebied{"ZE", "NL"}));
  for (const char* code : {"L", "LI"}) EXPECT_EQ(Van(code), (GciGebied{"LI", "NL"}));
  for (const char* code : {"B", "BEL"}) EXPECT_EQ(Van(code), (GciGebied{"", "B"}));
  for (const char* code : {"F", "FRA"}) EXPECT_EQ(Van(code), (GciGebied{"", "F"}));
  for (const char* code : {"D", "DU", "DLD", "BRD", "DDR"}) {
    EXPECT_EQ(Van(code), (GciGebied{"", "D"})) << code;
  }
  for (const char* code : {"GB", "UK"}) EXPECT_EQ(Van(code), (GciGebied{"", "GB"}));
  for (const char* code : {"US", "VS"}) EXPECT_EQ(Van(code), (GciGebied{"", "USA"}));
}

TEST(GebiedVan, EenKleineLetterIsHetzelfde) {
  EXPECT_EQ(Van(" zl "), (GciGebied{"ZE", "NL"}));
  EXPECT_EQ(Van("du"), (GciGebied{"", "D"}));
}

TEST(GebiedVan, EenAndereCodeIsEenNederlandseProvincie) {
  EXPECT_EQ(Van("QQ"), (GciGebied{"QQ", "NL"}));
  EXPECT_EQ(Van(""), (GciGebied{"", "NL"}));
}

TEST(GebiedVan, EenProvincieZonderRijKrijgtHaarTweeLetters) {
  EXPECT_EQ(Van("G"), (GciGebied{"GR", "NL"}));
  EXPECT_EQ(Van("G", GciCodes({CodeRij("G", "Gooi")})), (GciGebied{"G", "NL"}));
  EXPECT_EQ(Van("qq", GciCodes({CodeRij("Qq", "Ergens")})), (GciGebied{"Qq", "NL"}));
}

TEST(GebiedVan, HetLandKomtUitDeTabelOpCodeEnDanOpNaam) {
  EXPECT_EQ(Van("US", GciCodes(), GciCodes({CodeRij("AM", "usa"), CodeRij("Usa", "Amerika")})),
            (GciGebied{"", "Usa"}));
  EXPECT_EQ(Van("US", GciCodes(), GciCodes({CodeRij("AM", "usa")})), (GciGebied{"", "AM"}));
  EXPECT_EQ(Van("US", GciCodes(), GciCodes({CodeRij("AM", "Amerika")})), (GciGebied{"", "USA"}));
}

void VerwachtSynoniem(std::initializer_list<std::string_view> namen, const GciSynoniem& wordt) {
  for (const std::string_view naam : namen) {
    const GciSynoniem* gevonden = SynoniemVan(naam);
    ASSERT_TRUE(gevonden) << naam;
    EXPECT_EQ(gevonden->naam, wordt.naam) << naam;
    EXPECT_EQ(gevonden->prov, wordt.prov) << naam;
    EXPECT_EQ(gevonden->land, wordt.land) << naam;
  }
}

TEST(SynoniemVan, KentElkeRijVanDeTabel) {
  VerwachtSynoniem(
      {"'S-GRAVENHAGE", "'S GRAVENHAGE", "'S-HAGE", "'S HAGE", "DEN HAAG", " den Haag "},
      {"Gravenhage, 's-", "ZH", "NL"});
  VerwachtSynoniem({"'S-HERTOGENBOSCH", "'S HERTOGENBOSCH", "'S-BOSCH", "'S BOSCH", "DEN BOSCH"},
                   {"Hertogenbosch, 's-", "NB", "NL"});
  VerwachtSynoniem({"DEN HELDER"}, {"Helder, Den", "NH", "NL"});
  VerwachtSynoniem({"JAKARTA", "DJAKARTA", "BATAVIA"}, {"Jakarta", "DJR", "RI"});
  VerwachtSynoniem({"LUIK", "LÜTTICH"_w, "LUTTICH", "LIÈGE"_w, "Liège"_w, "LIEGE"},
                   {"Liège"_w, "BLG", "B"});
  VerwachtSynoniem({"CLEVE", "KLEEF"}, {"Cleve", "DNW", "D"});
}

TEST(SynoniemVan, AndereNamenHebbenErGeen) {
  for (const char* naam : {"", "Delft", "HAAG", "DEN HAAG-ZUID"}) {
    EXPECT_EQ(SynoniemVan(naam), nullptr) << naam;
  }
}

}  // namespace
}  // namespace lb77
