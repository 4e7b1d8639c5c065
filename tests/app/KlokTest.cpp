#include <gtest/gtest.h>

#include <chrono>

#include "app/Klok.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

TEST(Klok, EenTijdstipWordtGelezen) {
  EXPECT_EQ(LeesTijdstip("2024-02-29 23:59:07"), (Tijdstip{2024, 2, 29, 23, 59, 7}));
  EXPECT_EQ(LeesTijdstip("1900-01-01 00:00:00"), (Tijdstip{1900, 1, 1, 0, 0, 0}));
}

TEST(Klok, EenAndereVormGeeftGeenTijdstip) {
  for (const char* tekst :
       {"", "2024-02-29", "2024-02-29T23:59:07", "24-02-29 23:59:07", "2024-02-29 23:59:07 ",
        "2024-2-29 23:59:07", "+024-02-29 23:59:07", "2024/02/29 23:59:07"}) {
    EXPECT_FALSE(LeesTijdstip(tekst)) << tekst;
  }
}

TEST(Klok, WatGeenDagOfUurIsGeeftGeenTijdstip) {
  for (const char* tekst :
       {"2023-02-29 00:00:00", "1900-02-29 00:00:00", "2024-13-01 00:00:00", "2024-00-01 00:00:00",
        "2024-04-31 00:00:00", "2024-04-00 00:00:00", "2024-01-01 24:00:00", "2024-01-01 00:60:00",
        "2024-01-01 00:00:60", "0000-01-01 00:00:00"}) {
    EXPECT_FALSE(LeesTijdstip(tekst)) << tekst;
  }
  EXPECT_TRUE(LeesTijdstip("2000-02-29 00:00:00"));
}

TEST(Klok, EenMomentStaatErInWoorden) {
  EXPECT_EQ(DagTekst({2019, 5, 3, 9, 5, 0}), "3 mei 2019");
  EXPECT_EQ(DagTekst({1999, 12, 31, 0, 0, 0}), "31 december 1999");
  EXPECT_EQ(DagTekst({2026, 1, 2, 0, 0, 0}), "2 januari 2026");
  EXPECT_EQ(DagEnUurTekst({2019, 5, 3, 9, 5, 0}), "3 mei 2019 om 9:05");
}

TEST(Klok, EenBestandZegtWanneerHetIsGewijzigd) {
  const TijdelijkeMap map;
  SchrijfBytes(map / "vers", "x");
  const auto nu = WijzigMoment(map / "vers");
  ASSERT_TRUE(nu);
  EXPECT_LE(*nu, SysteemKlok().Nu());
  EXPECT_GE(nu->jaar, 2024);
  std::filesystem::last_write_time(
      map / "vers", std::filesystem::last_write_time(map / "vers") - std::chrono::hours(24 * 400));
  EXPECT_LT(*WijzigMoment(map / "vers"), *nu);
  EXPECT_FALSE(WijzigMoment(map / "weg"));
}

TEST(Klok, EenVasteKlokStaatStil) {
  const VasteKlok klok({2026, 5, 4, 3, 2, 1});
  EXPECT_EQ(klok.Nu(), (Tijdstip{2026, 5, 4, 3, 2, 1}));
  EXPECT_EQ(klok.Nu(), klok.Nu());
}

TEST(Klok, DeSysteemklokGeeftEenMomentDatBestaat) {
  const Tijdstip nu = SysteemKlok().Nu();
  EXPECT_GE(nu.jaar, 2024);
  EXPECT_TRUE(nu.maand >= 1 && nu.maand <= 12);
  EXPECT_TRUE(nu.dag >= 1 && nu.dag <= 31);
  EXPECT_TRUE(nu.uur >= 0 && nu.uur < 24 && nu.minuut >= 0 && nu.minuut < 60);
}

}  // namespace
}  // namespace lb77
