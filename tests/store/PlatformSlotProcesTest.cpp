// The lock of a directory between programs.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "steun/TijdelijkeMap.h"
#include "store/PlatformSlot.h"

using namespace lb77;

namespace {

struct SlotProcesTest : ::testing::Test {
  TijdelijkeMap map;
  Slot een;
  Slot ander;
};

// Runs `doe` in a process of its own, which ends without any tidying up; its result.
template <typename Doe>
int InEigenProces(Doe doe) {
  const pid_t kind = ::fork();
  if (kind == 0) ::_exit(doe());
  int stand = 0;
  ::waitpid(kind, &stand, 0);
  return WEXITSTATUS(stand);
}

}  // namespace

TEST_F(SlotProcesTest, EenAnderProcesWordtOokTegengehouden) {
  EXPECT_FALSE(een.Neem(map.Pad()));
  EXPECT_EQ(InEigenProces([&] { return ander.Neem(map.Pad()) ? 1 : 0; }), 1);
  een.Laat();
  EXPECT_EQ(InEigenProces([&] { return ander.Neem(map.Pad()) ? 1 : 0; }), 0);
}

TEST_F(SlotProcesTest, EenProgrammaDatStopteHoudtNietsVastEnLaatNietsAchter) {
  ASSERT_EQ(InEigenProces([&] { return een.Neem(map.Pad()) ? 1 : 0; }), 0);
  EXPECT_FALSE(ander.Neem(map.Pad()));
  EXPECT_TRUE(std::filesystem::is_empty(map.Pad()));
}
