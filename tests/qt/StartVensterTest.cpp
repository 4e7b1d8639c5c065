// The frame around the program.
#include <gmock/gmock.h>

#include <stdexcept>

#include "Vensterproef.h"
#include "qt/StartVenster.h"

namespace lb77 {
namespace {

class StartVensterTest : public Vensterproef {
 protected:
  static std::filesystem::path Map() { return {}; }
  static constexpr const char* kOnverwacht =
      "Er is een onverwachte fout opgetreden. Het programma wordt beëindigd.";
};

TEST_F(StartVensterTest, EenProgrammaDatEindigtGeeftNul) {
  std::filesystem::path gekregen;
  const int status = VoerMetVangnet({.map = [] { return std::filesystem::path("ergens"); },
                                     .voer =
                                         [&](Gesprek& deur, const std::filesystem::path& map) {
                                           gekregen = map;
                                           deur.Informeer("begin");
                                         }});
  EXPECT_EQ(status, 0);
  EXPECT_EQ(gekregen, "ergens");
  EXPECT_THAT(boxen, testing::ElementsAre("begin"));
}

TEST_F(StartVensterTest, EenUitzonderingDieNiemandVingWordtGemeldEnGeeftEen) {
  EXPECT_EQ(VoerMetVangnet({.map = Map,
                            .voer =
                                [](Gesprek&, const std::filesystem::path&) {
                                  throw std::runtime_error("schijf stuk");
                                }}),
            1);
  EXPECT_EQ(
      VoerMetVangnet({.map = Map, .voer = [](Gesprek&, const std::filesystem::path&) { throw 7; }}),
      1);
  // What the code calls it is nothing for the user.
  EXPECT_THAT(boxen, testing::ElementsAre(kOnverwacht, kOnverwacht));
}

TEST_F(StartVensterTest, EenUitzonderingVoorHetEersteVensterWordtOokGemeld) {
  EXPECT_EQ(VoerMetVangnet({.map = []() -> std::filesystem::path {
                              throw std::filesystem::filesystem_error(
                                  "mkdir", std::make_error_code(std::errc::no_space_on_device));
                            },
                            .voer = [](Gesprek&, const std::filesystem::path&) { FAIL(); }}),
            1);
  ASSERT_EQ(boxen.size(), 1U);
  EXPECT_EQ(boxen.front(), std::string(kOnverwacht) + "\n(Schijf vol)");
}

}  // namespace
}  // namespace lb77
