#include <gtest/gtest.h>

#include "app/Installatie.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

TEST(Installatie, WatErnaastLigtGaatVoorWatGeinstalleerdIs) {
  const TijdelijkeMap map;
  const auto mappen = InstallatieMappen(map / "bin");
  EXPECT_FALSE(VindInstallatie(mappen, kVoorbeeldGedcom));
  SchrijfBytes(map / "share/lb77/voorbeeld/oranje-nassau.ged", "x");
  EXPECT_EQ(VindInstallatie(mappen, kVoorbeeldGedcom),
            map / "share/lb77/voorbeeld/oranje-nassau.ged");
  SchrijfBytes(map / "bin/voorbeeld/oranje-nassau.ged", "x");
  EXPECT_EQ(VindInstallatie(mappen, kVoorbeeldGedcom), map / "bin/voorbeeld/oranje-nassau.ged");
  SchrijfBytes(map / "share/doc/lb77/handleiding.html", "x");
  EXPECT_EQ(VindInstallatie(mappen, "handleiding.html"), map / "share/doc/lb77/handleiding.html");
}

}  // namespace
}  // namespace lb77
