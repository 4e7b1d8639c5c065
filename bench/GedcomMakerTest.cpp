#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "GedcomMaker.h"
#include "Stamboom.h"
#include "steun/TijdelijkeMap.h"

using namespace lb77;
using namespace lb77::bench;

namespace {

std::string Gedcom(int personen, int gezinnen, std::uint64_t zaad) {
  const TijdelijkeMap map;
  MaakGedcom(map / "A.GED", personen, gezinnen, zaad);
  return LeesBytes(map / "A.GED");
}

std::uint64_t Fnv1a(const std::string& bytes) {
  std::uint64_t som = 0xCBF29CE484222325U;
  for (const char teken : bytes) {
    som = (som ^ static_cast<unsigned char>(teken)) * 0x100000001B3U;
  }
  return som;
}

// The links of a file by their tag, each from the record in which the line stands.
std::map<std::string, std::set<std::pair<std::string, std::string>>> Verwijzingen(
    const std::string& gedcom) {
  std::map<std::string, std::set<std::pair<std::string, std::string>>> verwijzingen;
  std::string record;
  for (std::size_t begin = 0; begin < gedcom.size();) {
    const std::size_t eind = gedcom.find('\n', begin);
    const std::string regel = gedcom.substr(begin, eind - begin);
    begin = eind + 1;
    if (regel.starts_with("0 @")) record = regel.substr(2, regel.rfind(' ') - 2);
    if (const std::size_t plek = regel.find(" @"); !regel.starts_with('0') && plek != regel.npos) {
      verwijzingen[regel.substr(2, plek - 2)].emplace(record, regel.substr(plek + 1));
    }
  }
  return verwijzingen;
}

}  // namespace

TEST(GedcomMakerTest, GeeftOveralDezelfdeBytes) {
  const std::string gedcom = Gedcom(300, 120, 77);
  EXPECT_EQ(gedcom, Gedcom(300, 120, 77));
  EXPECT_NE(gedcom, Gedcom(300, 120, 78));
  EXPECT_EQ(Fnv1a(gedcom), 1587062960470883491U);
}

TEST(GedcomMakerTest, VerwijstNaarTweeKanten) {
  auto verwijzingen = Verwijzingen(Gedcom(3000, 1200, 1));
  std::set<std::pair<std::string, std::string>> partners;
  for (const char* tag : {"HUSB", "WIFE"}) {
    for (const auto& [gezin, mens] : verwijzingen[tag]) partners.emplace(mens, gezin);
  }
  std::set<std::pair<std::string, std::string>> kinderen;
  for (const auto& [gezin, mens] : verwijzingen["CHIL"]) kinderen.emplace(mens, gezin);
  EXPECT_EQ(partners.size(), 2400U);
  EXPECT_EQ(partners, verwijzingen["FAMS"]);
  EXPECT_GT(kinderen.size(), 1500U);
  EXPECT_EQ(kinderen, verwijzingen["FAMC"]);
}

TEST(StamboomTest, HeeftGezinnenDieKunnenBestaan) {
  Toeval toeval(1);
  const Stamboom boom = MaakBevolking(3000, 1200, toeval);
  const auto mens = [&boom](int nr) { return boom.mensen[static_cast<std::size_t>(nr)]; };
  ASSERT_EQ(boom.gezinnen.size(), 1200U);
  for (const Gezin& gezin : boom.gezinnen) {
    EXPECT_TRUE(mens(gezin.man).man);
    EXPECT_FALSE(mens(gezin.vrouw).man);
    EXPECT_GE(gezin.jaar, std::max(mens(gezin.man).jaar, mens(gezin.vrouw).jaar) + 20);
    for (const int kind : gezin.kinderen) {
      EXPECT_GT(mens(kind).jaar, gezin.jaar);
      EXPECT_LT(mens(kind).jaar, gezin.jaar + 20);
      EXPECT_EQ(mens(kind).familie, mens(gezin.man).familie);
    }
  }
}

TEST(StamboomTest, HeeftZoveelNakomelingenAlsGevraagd) {
  Toeval toeval(1);
  const Stamboom boom = MaakNakomelingen(500, toeval);
  // Whoever has no parents is the first or a partner.
  EXPECT_EQ(std::count_if(boom.mensen.begin(), boom.mensen.end(),
                          [](const Mens& mens) { return mens.ouders != kGeen; }),
            499);
  EXPECT_EQ(boom.mensen.size(), 500U + boom.gezinnen.size());
  for (const Gezin& gezin : boom.gezinnen) {
    EXPECT_TRUE(boom.mensen[static_cast<std::size_t>(gezin.man)].man);
    EXPECT_FALSE(boom.mensen[static_cast<std::size_t>(gezin.vrouw)].man);
    EXPECT_FALSE(gezin.kinderen.empty());
    EXPECT_LE(gezin.kinderen.size(), 5U);
  }
}

TEST(StamboomTest, HeeftAlleVooroudersVanEenPersoon) {
  Toeval toeval(1);
  const Stamboom boom = MaakVoorouders(5, toeval);
  EXPECT_EQ(boom.mensen.size(), 31U);
  EXPECT_EQ(boom.gezinnen.size(), 15U);
  EXPECT_EQ(std::count_if(boom.mensen.begin(), boom.mensen.end(),
                          [](const Mens& mens) { return mens.ouders == kGeen; }),
            16);
}
