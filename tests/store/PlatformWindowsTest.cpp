// What only Windows has.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <string>

#include "steun/TijdelijkeMap.h"
#include "store/Platform.h"
#include "store/PlatformNamen.h"
#include "store/PlatformSlot.h"

using namespace lb77;

namespace {

// A file that another program has for itself alone.
class AlleenVanMij {
 public:
  explicit AlleenVanMij(const std::filesystem::path& pad)
      : greep_(CreateFileW(pad.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(greep_, INVALID_HANDLE_VALUE);
  }
  ~AlleenVanMij() { CloseHandle(greep_); }
  AlleenVanMij(const AlleenVanMij&) = delete;
  AlleenVanMij& operator=(const AlleenVanMij&) = delete;

 private:
  HANDLE greep_;
};

// Puts the variable of the environment back.
class DataVanGebruiker {
 public:
  DataVanGebruiker() {
    if (const wchar_t* oud = _wgetenv(L"LOCALAPPDATA")) oud_ = oud;
  }
  ~DataVanGebruiker() { Zet(oud_.c_str()); }
  DataVanGebruiker(const DataVanGebruiker&) = delete;
  DataVanGebruiker& operator=(const DataVanGebruiker&) = delete;
  static void Zet(const wchar_t* waarde) { ASSERT_EQ(_wputenv_s(L"LOCALAPPDATA", waarde), 0); }

 private:
  std::wstring oud_;
};

struct PlatformWindowsTest : ::testing::Test {
  TijdelijkeMap map;
  std::error_code code;
};

}  // namespace

TEST_F(PlatformWindowsTest, EenBestandVanEenAnderAlleenIsInGebruik) {
  SchrijfBytes(map / "a", "x");
  SchrijfBytes(map / "b", "y");
  {
    const AlleenVanMij ander(map / "a");
    Bestandsgreep greep;
    EXPECT_EQ(greep.Open(map / "a").tekst, "Bestand is in gebruik");
    EXPECT_EQ(greep.Open(map / "a", Openwijze::AlleenLezen).tekst, "Bestand is in gebruik");
    EXPECT_FALSE(VerwijderVanSchijf(map / "a", code));
    EXPECT_EQ(FoutVan(code).tekst, "Bestand is in gebruik");
    HernoemOpSchijf(map / "b", map / "a", code);
    EXPECT_TRUE(code);
    EXPECT_EQ(LeesBytes(map / "b"), "y");
  }
  EXPECT_EQ(LeesBytes(map / "a"), "x");
  HernoemOpSchijf(map / "b", map / "a", code);
  EXPECT_FALSE(code);
  EXPECT_EQ(LeesBytes(map / "a"), "y");
}

// As it stays behind when the power goes.
TEST_F(PlatformWindowsTest, EenOudSlotbestandHoudtNiemandTegenEnGaatWeg) {
  SchrijfBytes(map / "LB77.LCK", "");
  ASSERT_TRUE(SetFileAttributesW((map / "LB77.LCK").c_str(), FILE_ATTRIBUTE_HIDDEN));
  Slot slot;
  EXPECT_FALSE(slot.Neem(map.Pad()));
  Slot ander;
  EXPECT_EQ(ander.Neem(map.Pad()).tekst, "Bestand is in gebruik");
  slot.Laat();
  EXPECT_TRUE(std::filesystem::is_empty(map.Pad()));
}

TEST_F(PlatformWindowsTest, DeGebruikersmapVolgtDeOmgeving) {
  const DataVanGebruiker omgeving;
  DataVanGebruiker::Zet(L"C:\\Zo\u00EB\\\u0416");
  EXPECT_EQ(GebruikersDataMap(), std::filesystem::path(L"C:\\Zo\u00EB\\\u0416\\lb77"));
  DataVanGebruiker::Zet(L"");
  EXPECT_EQ(GebruikersDataMap(), ProgrammaMap());
}
