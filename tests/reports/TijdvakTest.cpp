// Is a date in a period?
#include <gtest/gtest.h>

#include "reports/Tijdvak.h"

namespace lb77 {
namespace {

constexpr std::string_view kLeeg = "  -  -    ";

TEST(Tijdvak, EenLeegTijdvakBevatElkeDatumEnOokGeenDatum) {
  const Tijdvak leeg(kLeeg, kLeeg);
  EXPECT_TRUE(leeg.IsLeeg());
  EXPECT_TRUE(leeg.Bevat("01-02-1800"));
  EXPECT_TRUE(leeg.Bevat(kLeeg));
  EXPECT_TRUE(leeg.Bevat(""));
  EXPECT_TRUE(Tijdvak().IsLeeg());
  EXPECT_TRUE(Tijdvak().Bevat("01-02-1800"));
}

TEST(Tijdvak, BeideGrenzenHorenErbij) {
  const Tijdvak tijdvak("02-02-1800", "04-02-1800");
  EXPECT_FALSE(tijdvak.IsLeeg());
  EXPECT_FALSE(tijdvak.Bevat("01-02-1800"));
  EXPECT_TRUE(tijdvak.Bevat("02-02-1800"));
  EXPECT_TRUE(tijdvak.Bevat("03-02-1800"));
  EXPECT_TRUE(tijdvak.Bevat("04-02-1800"));
  EXPECT_FALSE(tijdvak.Bevat("05-02-1800"));
  EXPECT_FALSE(tijdvak.Bevat("03-02-1801"));
}

TEST(Tijdvak, AlleenEenBeginHeeftGeenEinde) {
  const Tijdvak tijdvak("02-02-1800", kLeeg);
  EXPECT_FALSE(tijdvak.Bevat("01-02-1800"));
  EXPECT_TRUE(tijdvak.Bevat("02-02-1800"));
  EXPECT_TRUE(tijdvak.Bevat("31-12-2100"));
}

TEST(Tijdvak, AlleenEenEindeHeeftGeenBegin) {
  const Tijdvak tijdvak(kLeeg, "02-02-1800");
  EXPECT_TRUE(tijdvak.Bevat("01-01-0001"));
  EXPECT_TRUE(tijdvak.Bevat("02-02-1800"));
  EXPECT_FALSE(tijdvak.Bevat("03-02-1800"));
}

TEST(Tijdvak, GeenDatumOfEenVanEenAndereLengteValtErbuiten) {
  const Tijdvak tijdvak("02-02-1800", kLeeg);
  EXPECT_FALSE(tijdvak.Bevat(kLeeg));
  EXPECT_FALSE(tijdvak.Bevat(""));
  EXPECT_FALSE(tijdvak.Bevat("123-02-1850"));
  EXPECT_FALSE(tijdvak.Bevat("1-02-1850"));
}

TEST(Tijdvak, EenOnbekendDeelLigtVoorElkeDagErvan) {
  const Tijdvak van("00-00-1850", kLeeg);
  EXPECT_TRUE(van.Bevat("01-01-1850"));
  EXPECT_TRUE(van.Bevat("00-00-1850"));
  const Tijdvak tot(kLeeg, "00-00-1850");
  EXPECT_TRUE(tot.Bevat("00-00-1850"));
  EXPECT_FALSE(tot.Bevat("01-01-1850"));
  EXPECT_TRUE(tot.Bevat("31-12-1849"));
}

TEST(Tijdvak, EenDagVanGeenJaarLigtVoorElkJaar) {
  EXPECT_FALSE(Tijdvak("01-01-0001", kLeeg).Bevat("05-06-0000"));
  EXPECT_TRUE(Tijdvak(kLeeg, "31-12-2100").Bevat("05-06-0000"));
}

TEST(Tijdvak, EenGrensVanEenAndereLengteIsGeenGrens) {
  EXPECT_TRUE(Tijdvak("", "1850").IsLeeg());
  EXPECT_TRUE(Tijdvak("1-1-1850", "02-02-1800").Bevat("01-01-1799"));
}

TEST(Tijdvak, HetScheidingstekenDoetErNietToe) {
  EXPECT_EQ(Jaardag("01/02/1800"), "18000201");
  EXPECT_EQ(Jaardag("01-02-1800"), "18000201");
  EXPECT_EQ(Jaardag(kLeeg), "        ");
}

}  // namespace
}  // namespace lb77
