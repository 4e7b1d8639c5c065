#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>

#include "store/Uitzondering.h"

namespace lb77 {
namespace {

TEST(Uitzondering, DeGebruikerHoortDeRedenInHetNederlandsEnGeenNamenVanBinnen) {
  const std::filesystem::filesystem_error schijf(
      "cannot copy", std::make_error_code(std::errc::no_space_on_device));
  EXPECT_EQ(UitzonderingTekst(schijf), "Schijf vol");
  EXPECT_EQ(UitzonderingTekst(std::bad_alloc()), "Onvoldoende geheugen");
  EXPECT_EQ(UitzonderingTekst(std::runtime_error("vector::_M_range_check")), "");
}

}  // namespace
}  // namespace lb77
