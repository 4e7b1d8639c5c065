// What an operating system that fails behind a file's back brings about.
#include <gtest/gtest.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <string>
#include <system_error>

#include "steun/ProefSet.h"
#include "steun/TijdelijkeMap.h"
#include "store/Platform.h"
#include "store/SchijfBestand.h"

using namespace lb77;

namespace {

// Closes the system's file under whoever has it open. False where the system does not list them.
bool OntneemGreep(const std::filesystem::path& pad) {
  std::error_code fout;
  const auto echt = std::filesystem::canonical(pad, fout);
  for (const auto& greep : std::filesystem::directory_iterator("/proc/self/fd", fout)) {
    std::error_code weg;
    if (std::filesystem::read_symlink(greep.path(), weg) != echt) continue;
    const std::string naam = greep.path().filename().string();
    int nummer = -1;
    std::from_chars(naam.data(), naam.data() + naam.size(), nummer);
    return ::close(nummer) == 0;
  }
  return false;
}

struct SluitTest : ::testing::Test {
  TijdelijkeMap map;
};

}  // namespace

TEST_F(SluitTest, VeiligstellenVraagtHetAanHetSysteem) {
  Bestandsgreep greep;
  ASSERT_FALSE(greep.Open(map / "r"));
  EXPECT_FALSE(greep.Veiligstellen());
  if (!OntneemGreep(map / "r")) GTEST_SKIP() << "geen lijst van open bestanden";
  EXPECT_TRUE(greep.Veiligstellen());
}

TEST_F(SluitTest, VeiligstellenDatMisluktIsDeVolgendeKeerNogNodig) {
  SchijfBestand bestand(4);
  ASSERT_FALSE(bestand.Open(map / "r"));
  ASSERT_FALSE(bestand.Schrijf(1, std::string_view("aaaa")));
  if (!OntneemGreep(map / "r")) GTEST_SKIP() << "geen lijst van open bestanden";
  EXPECT_TRUE(bestand.Veiligstellen());
  EXPECT_TRUE(bestand.Veiligstellen());
}

TEST_F(SluitTest, VanEenSetDieNietOpengaatBlijftDeOudeNietOpen) {
  ProefSet set;
  const SetPaden ander = SetPaden::Van(set.map.Pad(), "ANDER");
  std::filesystem::create_directories(ander.prs);
  ASSERT_TRUE(set.bestanden.OpenSet(ander));
  for (const BestandSoort soort : kBestandSoorten) EXPECT_FALSE(set.bestanden.IsOpen(soort));
}
