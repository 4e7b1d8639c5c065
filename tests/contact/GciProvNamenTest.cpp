// The names of provinces and countries.
#include <gtest/gtest.h>

#include "contact/ContactToets.h"
#include "contact/GciProvNamen.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

struct Rij {
  std::string_view code;
  std::string_view land;
  std::string_view naam;
  std::string_view tweede = {};
};

// "X" is a country that the table does not know.
// clang-format off
constexpr Rij kRijen[] = {
    {"AR", "CH", "Appenzell-Ausser Ro"},
    {"AR", "USA", "Arkansas"},
    {"AR", "S", "Arhus"},
    {"AR", "X", "Arakan"},
    {"BE", "GB", "Bedfordshire"},
    {"BE", "CH", "Bern"},
    {"BE", "X", "Bengkulu"},
    {"BS", "CH", "Basel - Stadt"},
    {"BS", "X", "Brescia"},
    {"CA", "GB", "Cambridgehire"},
    {"CA", "USA", "California"},
    {"CA", "NZ", "Auckland Central-"},
    {"CA", "TR", "Anatolië Central-"_w, "Centraal - Anatolië"_w},
    {"CH", "GB", "Cheshire"},
    {"CH", "X", "Chieti"},
    {"CO", "USA", "Colorado"},
    {"CO", "X", "Coast"},
    {"DE", "GB", "Derbyshire"},
    {"DE", "USA", "Delaware"},
    {"FI", "I", "Firenze"},
    {"FI", "X", "Fife"},
    {"FL", "NL", "Flevoland"},
    {"FL", "USA", "Florida"},
    {"FR", "NL", "Friesland"},
    {"FR", "X", "Fribourg", "Frosinone"},
    {"GE", "CH", "Genève "_w},
    {"GE", "I", "Genova"},
    {"GL", "GB", "Greater London"},
    {"GL", "X", "Glarus"},
    {"GR", "NL", "Groningen"},
    {"GR", "CH", "Graubünden"_w},
    {"GR", "E", "Granada"},
    {"IW", "GB", "Island of Wight"},
    {"KAL", "X", "Kalmar", "Kaliningrad"},
    {"KB", "RI", "Kalimantan West-"},
    {"KS", "USA", "Kansas"},
    {"KS", "RI", "Borneo Zuid-"},
    {"LA", "GB", "Lancashire"},
    {"LA", "USA", "Louisiana"},
    {"LA", "X", "Lampung", "Luanda"},
    {"LI", "NL", "Limburg", "Lincolnshire"},
    {"MAR", "SME", "Marowijne "},
    {"MAR", "X", "Maranhao"},
    {"ME", "USA", "Maine"},
    {"ME", "X", "Merseyside"},
    {"MI", "USA", "Michigan"},
    {"MI", "I", "Milano"},
    {"MO", "USA", "Missouri"},
    {"MO", "X", "Modena"},
    {"MS", "USA", "Mississippi"},
    {"MS", "SK", "Slowakije Midden-"},
    {"NB", "NL", "Noord-Brabant"},
    {"NB", "CDN", "New Brunswick"},
    {"NB", "X", "Noord-Bohemen"},
    {"NE", "CH", "Neuchâtel"_w},
    {"NE", "USA", "Nebraska"},
    {"NE", "X", "Nelson"},
    {"NH", "NL", "Noord - Holland"},
    {"NH", "GB", "Northamptonshire"},
    {"NH", "USA", "New Hampshire"},
    {"NM", "USA", "New Mexico"},
    {"NM", "X", "Noord-Moravië"_w},
    {"NO", "GB", "Norfolk"},
    {"NO", "A", "Niederösterreich"_w},
    {"NO", "X", "Novara"},
    {"NT", "GB", "Nottinghamshire"},
    {"NT", "CDN", "Northern Territory"},
    {"NY", "USA", "New York"},
    {"NY", "GB", "North Yorkshire"},
    {"OV", "NL", "Overijssel"},
    {"OV", "SA", "Oranje Vrijstaat"},
    {"SA", "CDN", "Saskatchewan"},
    {"SA", "AUS", "Australia South-"},
    {"SA", "NZ", "Auckland South-"},
    {"SA", "X", "Salop", "Salerno"},
    {"SAR", "RI", "Sarawak"},
    {"SAR", "I", "Sardinië"_w},
    {"SH", "A", "Schaffhausen"},
    {"SH", "GB", "Staffordshire"},
    {"SH", "X", "Shaba"},
    {"SO", "GB", "Somerset"},
    {"SO", "X", "Solothurn"},
    {"SS", "RI", "Celebes Zuid-"},
    {"SS", "X", "Sassari"},
    {"ST", "RI", "Celebes Midden-"},
    {"ST", "S", "Stockholm"},
    {"ST", "X", "Strathclide"},
    {"SU", "GB", "Suffolk"},
    {"SU", "RI", "Celebes Noord-"},
    {"TO", "E", "Toledo"},
    {"TO", "J", "Tokio"},
    {"UT", "NL", "Utrecht"},
    {"UT", "USA", "Utah"},
    {"WA", "USA", "Washington"},
    {"WA", "AUS", "Australia Western"},
    {"WA", "GB", "Warwickshire"},
    {"WE", "A", "Wenen"},
    {"WE", "NZ", "Wellington"},
    {"WE", "X", "Western"},
    {"WS", "GB", "West-Sussex"},
    {"WS", "SK", "Slowakije West-"},
    {"WY", "USA", "Wyoming"},
    {"WY", "GB", "West-Yorkshire"},
    {"ZH", "NL", "Zuid-Holland"},
    {"ZH", "CH", "Zürich"_w},
};
// clang-format on

const GciCodes& Provincies() {
  static const GciCodes codes({CodeRij("DR", "Drenthe"), CodeRij("GE", "Gelderland"),
                               CodeRij("FR", "Uit de tabel"), CodeRij("BLG", "Luik")});
  return codes;
}

const GciCodes& Landen() {
  static const GciCodes codes({CodeRij("B", "Belgi\xEB"), CodeRij("D", "Duitsland"),
                               CodeRij("F", "Frankrijk"), CodeRij("GB", "Engeland"),
                               CodeRij("DEN", "Denemarken"), CodeRij("US", "Amerika"),
                               CodeRij("NL", "Uit de tabel")});
  return codes;
}

TEST(ProvincieNaam, KentElkeSleutelVanDeTabel) {
  EXPECT_EQ(std::size(kRijen), 105U);
  for (const Rij& rij : kRijen) {
    EXPECT_EQ(ProvincieNaam(rij.code, rij.land, Provincies()), rij.naam) << rij.code << rij.land;
  }
}

TEST(ProvincieNaam, KiestVanTweeNamenDieWaarnaarWordtGezocht) {
  int twee = 0;
  for (const Rij& rij : kRijen) {
    if (rij.tweede.empty()) continue;
    ++twee;
    EXPECT_EQ(ProvincieNaam(rij.code, rij.land, Provincies(), rij.tweede), rij.tweede);
    EXPECT_EQ(ProvincieNaam(rij.code, rij.land, Provincies(), rij.naam), rij.naam);
    EXPECT_EQ(ProvincieNaam(rij.code, rij.land, Provincies(), "iets anders"), rij.naam);
  }
  EXPECT_EQ(twee, 6);
  EXPECT_EQ(ProvincieNaam("fr", "x", Provincies(), " FROSINONE "), "Frosinone");
}

TEST(ProvincieNaam, DeTabelGaatVoorHetProvinciebestand) {
  EXPECT_EQ(ProvincieNaam("FR", "NL", Provincies()), "Friesland");
  EXPECT_EQ(ProvincieNaam("GE", "CH", Provincies()), "Gen\xE8ve ");
  EXPECT_EQ(ProvincieNaam("GE", "NL", Provincies()), "Gelderland");
  EXPECT_EQ(ProvincieNaam("dr", "NL", Provincies()), "Drenthe");
  EXPECT_EQ(ProvincieNaam("QQ", "NL", Provincies()), "???");
  EXPECT_EQ(ProvincieNaam("", "NL", Provincies()), "");
}

TEST(ProvincieCode, VindtElkeNaamVanDeTabel) {
  for (const Rij& rij : kRijen) {
    EXPECT_EQ(ProvincieCode(rij.naam, rij.land, Provincies()), rij.code) << rij.naam;
    if (!rij.tweede.empty()) {
      EXPECT_EQ(ProvincieCode(rij.tweede, rij.land, Provincies()), rij.code) << rij.tweede;
    }
  }
}

TEST(ProvincieCode, VindtNaamOfCodeInElkeKast) {
  EXPECT_EQ(ProvincieCode(" DRENTHE ", "NL", Provincies()), "DR");
  EXPECT_EQ(ProvincieCode("luik", "NL", Provincies()), "BLG");
  EXPECT_EQ(ProvincieCode("blg", "B", Provincies()), "BLG");
  EXPECT_EQ(ProvincieCode("kal", "S", Provincies()), "KAL");
  EXPECT_EQ(ProvincieCode("", "NL", Provincies()), "");
  EXPECT_EQ(ProvincieCode("Nergensland", "NL", Provincies()), std::nullopt);
  EXPECT_EQ(ProvincieCode("IW", "NL", Provincies()), std::nullopt);  // of another country only
}

TEST(ProvincieCode, EenNaamUitHetLandGaatVoor) {
  const GciCodes codes({CodeRij("XX", "Utrecht")});
  EXPECT_EQ(ProvincieCode("Utrecht", "NL", codes), "UT");
  EXPECT_EQ(ProvincieCode("Utrecht", "B", codes), "XX");
  EXPECT_EQ(ProvincieCode("Utrecht", "B", GciCodes()), "UT");
}

TEST(LandNaam, KentDeAliassen) {
  for (const char* code : {"D", "BRD", "DDR", "DLD", "d"}) {
    EXPECT_EQ(LandNaam(code, Landen()), "Duitsland") << code;
  }
  for (const char* code : {"B", "BEL"}) EXPECT_EQ(LandNaam(code, Landen()), "Belgi\xEB");
  for (const char* code : {"F", "FRA", "FR"}) EXPECT_EQ(LandNaam(code, Landen()), "Frankrijk");
  for (const char* code : {"GB", "EN"}) EXPECT_EQ(LandNaam(code, Landen()), "Engeland");
  EXPECT_EQ(LandNaam("DEN", Landen()), "Denemarken");
  EXPECT_EQ(LandNaam("US", Landen()), "Amerika");
  EXPECT_EQ(LandNaam("VS", Landen()), "???");
  EXPECT_EQ(LandNaam("nl", Landen()), "Nederland");
  EXPECT_EQ(LandNaam("", Landen()), "");
}

TEST(LandCode, VindtNaamOfCodeInElkeKast) {
  EXPECT_EQ(LandCode("nederland", Landen()), "NL");
  EXPECT_EQ(LandCode(" nl ", Landen()), "NL");
  EXPECT_EQ(LandCode("duitsland", Landen()), "D");
  EXPECT_EQ(LandCode("brd", Landen()), "D");
  EXPECT_EQ(LandCode("BELGI\xCB", Landen()), "B");
  EXPECT_EQ(LandCode("", Landen()), "");
  EXPECT_EQ(LandCode("Atlantis", Landen()), std::nullopt);
}

}  // namespace
}  // namespace lb77
