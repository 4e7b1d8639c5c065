// What goes out as GEDCOM 5.5.1 comes in as the same records. May differ, and is not compared: the
// numbers of persons, relations and remarks (continuation records come behind all others), the order of
// remarks of different rubrics in one chain (they follow the lines of their elements), and the bytes
// without a meaning at the end of a record.
#include <gtest/gtest.h>

#include <filesystem>

#include "exchange/Ged551Grammatica.h"
#include "exchange/Ged551Toets.h"
#include "exchange/Ged551Vulling.h"
#include "steun/Plekken.h"

namespace lb77 {
namespace {

std::string MetCrLf(std::string_view regels) {
  std::string uit;
  for (const char teken : regels) uit.append(teken == '\n' ? "\r" : "").append(1, teken);
  return uit;
}

// The set goes out, comes into a new one, and that one goes out once more.
void Rond(ProefSet& set, bool metTerugwegen) {
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  EXPECT_EQ(GrammaticaFouten(MetCrLf(uitvoer.bestand), metTerugwegen), std::vector<std::string>());
  ProefSet nieuw;
  nieuw.schrijfwijze = set.schrijfwijze;
  std::string niet;
  EXPECT_EQ(LeesIn(nieuw, uitvoer.bestand, &niet), "");
  EXPECT_EQ(niet, "");
  const std::vector<std::string> eerst = Beschrijf(set);
  const std::vector<std::string> daarna = Beschrijf(nieuw);
  ASSERT_EQ(eerst.size(), daarna.size());
  int fouten = 0;
  for (std::size_t i = 0; i < eerst.size() && fouten < 10; ++i) {
    EXPECT_EQ(eerst[i], daarna[i]);
    fouten += eerst[i] == daarna[i] ? 0 : 1;
  }
}

void RondVan(const std::filesystem::path& pad, bool metTerugwegen) {
  ProefSet set;
  set.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  set.schrijfwijze.gezindten[2] = "RKRooms Katholiek";
  static_cast<void>(LeesIn(set, LeesBytes(pad)));
  ASSERT_GT(set.Persoon.AantalRecords(), 10);
  Rond(set, metTerugwegen);
}

TEST(Ged551Ronde, HetVoorbeeldKomtGelijkTerug) {
  RondVan(BronMap() / "voorbeeld/oranje-nassau.ged", true);
}

TEST(Ged551Ronde, EenGrootBestandKomtGelijkTerug) {
  const std::filesystem::path pad = BronMap() / "../shared/data/royal92.ged";
  if (!std::filesystem::exists(pad)) GTEST_SKIP() << pad;
  // One person has a relation more than a record holds: that one knows of no way back.
  RondVan(pad, false);
}

// Who reads a file may have other denominations than who wrote it.
TEST(Ged551Ronde, EenGezindteKomtOokInEenAndereLijstTerug) {
  ProefSet set;
  set.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  set.schrijfwijze.gezindten[2] = "MEDoopsgezind";
  set.schrijfwijze.gezindten[3] = "LULuthers";
  set.schrijfwijze.gezindten[4] = "H Hernhutter";
  for (const char* code : {"NH", "nh", "ME", "LU", "ZZ", "H"}) {
    set.bouw.Man("", "X", {{"DoopReligie", code}});
  }
  ProefSet nieuw;
  nieuw.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  nieuw.schrijfwijze.gezindten[5] = "EVluthers";
  nieuw.schrijfwijze.gezindten[6] = "LULutjebroeks";
  nieuw.schrijfwijze.gezindten[7] = "ZZZondagszwijger";
  std::string niet;
  EXPECT_EQ(LeesIn(nieuw, Exporteer551(set).bestand, &niet), "");
  std::string codes;
  for (std::int16_t nr = 2; nr <= nieuw.Persoon.AantalRecords(); ++nr) {
    ASSERT_TRUE(nieuw.Persoon.Lees(nr));
    codes += nieuw.Persoon.Religie() + ";";
  }
  // Without a name of that list the code stands, and the name is told as not stored.
  EXPECT_EQ(codes, "NH;nh;ME;EV;ZZ;H;");
  EXPECT_EQ(niet.substr(niet.find("0 @I")),
            "0 @I4@ INDI\r\n1 REFN 4\r\n1 RELI Doopsgezind\r\n"
            "0 @I7@ INDI\r\n1 REFN 7\r\n1 RELI Hernhutter\r\n0 TRLR\r\n");
}

class Ged551RondeGevuld : public ::testing::TestWithParam<unsigned> {};

TEST_P(Ged551RondeGevuld, ElkVeldKomtAanZijnGrenzenGelijkTerug) {
  ProefSet set;
  VulMetToeval(set, GetParam());
  Rond(set, false);
}

INSTANTIATE_TEST_SUITE_P(Zaden, Ged551RondeGevuld, ::testing::Range(1U, 13U));

}  // namespace
}  // namespace lb77
