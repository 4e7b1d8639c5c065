// Another program reads what goes out: gramps, where it is installed.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <regex>
#include <sstream>

#include "exchange/Ged551Toets.h"
#include "steun/Plekken.h"

namespace lb77 {
namespace {

class Ged551Gramps : public ::testing::Test {
 protected:
  void SetUp() override {
    if (std::system("command -v gramps >/dev/null 2>&1") != 0) GTEST_SKIP() << "zonder gramps";
  }

  // Has it read the file and write its own GEDCOM, a directory of its own for its data; what it says.
  std::string Lees(const Ged551Uitvoer& uitvoer) {
    std::string bytes;
    for (const char teken : uitvoer.bestand)
      bytes.append(teken == '\n' ? "\r" : "").append(1, teken);
    SchrijfBytes(map / "in.ged", bytes);
    const std::string pad = map.Pad().string();
    const std::string opdracht = "cd '" + pad + "' && HOME='" + pad + "' GRAMPSHOME='" + pad +
                                 "' LANG=C.UTF-8 timeout 120 gramps -i in.ged -e uit.ged "
                                 ">gezegd.txt 2>&1";
    EXPECT_EQ(std::system(opdracht.c_str()), 0) << LeesBytes(map / "gezegd.txt");
    return LeesBytes(map / "gezegd.txt");
  }
  // Its complaints about lines that are no tags of our own. Of a place record it passes over all.
  static std::string Klachten(const std::string& gezegd) {
    static const std::regex kKlacht("^(.*[^ ]) +Line +[0-9]+: (.*)$");
    std::istringstream regels(gezegd);
    std::string uit;
    bool plaats = false;
    for (std::string regel; std::getline(regels, regel);) {
      std::smatch delen;
      if (!std::regex_match(regel, delen, kKlacht)) continue;
      const std::string wat = delen[2];
      if (wat.starts_with("0 ")) plaats = wat.ends_with(" _LBPLTS");
      const bool eronder = plaats && delen[1] == "Skipped subordinate line";
      if (wat.find(" _LB") == std::string::npos && !eronder) uit += regel + "\n";
    }
    return uit;
  }
  std::string Geschreven() { return LeesBytes(map / "uit.ged"); }

  static int Keer(const std::string& tekst, const std::string& regel) {
    const std::regex zoek(regel);
    return static_cast<int>(std::distance(std::sregex_iterator(tekst.begin(), tekst.end(), zoek),
                                          std::sregex_iterator()));
  }

  ProefSet set;
  TijdelijkeMap map;
};

TEST_F(Ged551Gramps, LeestHetVoorbeeldZonderKlacht) {
  set.schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
  static_cast<void>(LeesIn(set, LeesBytes(BronMap() / "voorbeeld/oranje-nassau.ged")));
  const Ged551Uitvoer uitvoer = Exporteer551(set);
  const std::string gezegd = Lees(uitvoer);
  EXPECT_NE(gezegd.find("_LBPLTS"), std::string::npos) << gezegd;
  EXPECT_EQ(Klachten(gezegd), "");
  const std::string terug = Geschreven();
  for (const char* regel :
       {"\n0 @I[0-9]+@ INDI", "\n0 @F[0-9]+@ FAM", "\n1 BAPM", "\n1 BURI", "\n1 DEAT", "\n1 BIRT",
        "\n1 MARR", "\n2 SURN", "\n2 SPFX", "\n1 CHIL", "\n1 OCCU", "\n1 RELI"}) {
    EXPECT_EQ(Keer(terug, regel), Keer(uitvoer.bestand, regel)) << regel;
    EXPECT_GT(Keer(terug, regel), 0) << regel;
  }
}

}  // namespace
}  // namespace lb77
