#include <gtest/gtest.h>

#include <sstream>

#include "program/Aanroep.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

using Woorden = std::vector<std::string>;

std::string Antwoord(const Woorden& woorden) {
  std::ostringstream uit;
  return BeantwoordAanroep(woorden, uit) ? uit.str() : "-";
}

TEST(Aanroep, HulpEnVersieWordenBeantwoord) {
  EXPECT_EQ(Antwoord({"--version"}), "LB77 " LB77_VERSIE "\n");
  const std::string hulp = Antwoord({"--help"});
  EXPECT_NE(hulp.find("Gebruik: lb77 [KEUZES] [BESTAND]\n"), std::string::npos);
  EXPECT_EQ(Antwoord({"a.ged", "-h"}), hulp);
  EXPECT_EQ(Antwoord({"a.ged"}), "-");
  EXPECT_EQ(Antwoord({"--", "--help"}), "-");
  EXPECT_EQ(Antwoord({}), "-");
}

TEST(Aanroep, EenBestandEnEenMapWordenGelezen) {
  const TijdelijkeMap map;
  std::ostringstream fout;
  const Aanroep leeg = LeesAanroep(Woorden{}, fout);
  EXPECT_FALSE(leeg.status || leeg.map || leeg.bestand);
  const Aanroep beide = LeesAanroep(Woorden{"--map", map.Pad().string(), "zo\xC3\xAB.ged"}, fout);
  EXPECT_FALSE(beide.status);
  EXPECT_EQ(beide.map, map.Pad());
  EXPECT_EQ(beide.bestand, std::filesystem::current_path() / u8"zoë.ged");
  EXPECT_EQ(LeesAanroep(Woorden{"--", "--map"}, fout).bestand,
            std::filesystem::current_path() / "--map");
  EXPECT_EQ(fout.str(), "");
}

TEST(Aanroep, VerkeerdGebruikWordtGezegd) {
  struct Geval {
    Woorden woorden;
    const char* tekst;
  };
  for (const Geval& g :
       {Geval{{"--bestaatniet"}, "Onbekende keuze: --bestaatniet"},
        Geval{{"a.ged", "b.ged"}, "Onverwacht: b.ged"}, Geval{{"--map"}, "--map: MAP ontbreekt"},
        Geval{{"--map", "/er/is/geen"}, "--map: /er/is/geen is geen map"}}) {
    std::ostringstream fout;
    EXPECT_EQ(LeesAanroep(g.woorden, fout).status, 2);
    EXPECT_EQ(fout.str(), "lb77: " + std::string(g.tekst) + "\nlb77 --help toont het gebruik.\n");
  }
}

}  // namespace
}  // namespace lb77
