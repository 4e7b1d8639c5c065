#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "script/Voorraad.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VoorraadTest : public ::testing::Test {
 protected:
  void ZetKlaar(std::string_view draaiboek) {
    for (const Instructie& instructie : LeesDraaiboek(draaiboek).instructies) {
      voorraad_.ZetKlaar(instructie);
    }
  }

  Voorraad voorraad_;
};

TEST_F(VoorraadTest, GeeftAntwoordenInVolgorde) {
  ZetKlaar("antwoord Ja Nee\nantwoord OK");
  EXPECT_EQ(voorraad_.NeemAntwoord(), Antwoord::Ja);
  EXPECT_EQ(voorraad_.NeemAntwoord(), Antwoord::Nee);
  EXPECT_EQ(voorraad_.NeemAntwoord(), Antwoord::OK);
  EXPECT_EQ(voorraad_.NeemAntwoord(), std::nullopt);
}

TEST_F(VoorraadTest, BestandenEnAntwoordenStaanElkaarNietInDeWeg) {
  ZetKlaar("bestand een.ged\nantwoord Ja\nbestand");
  EXPECT_EQ(voorraad_.NeemAntwoord(), Antwoord::Ja);
  EXPECT_EQ(voorraad_.NeemBestand(), "een.ged");
  EXPECT_EQ(voorraad_.NeemBestand(), "");
  EXPECT_EQ(voorraad_.NeemBestand(), std::nullopt);
}

TEST_F(VoorraadTest, EenStopValtBijZijnEigenTestEnEenKeer) {
  EXPECT_FALSE(voorraad_.TelStopTest());
  ZetKlaar("onderbreek 3\nonderbreek 1");
  EXPECT_FALSE(voorraad_.TelStopTest());
  EXPECT_FALSE(voorraad_.TelStopTest());
  EXPECT_TRUE(voorraad_.TelStopTest());
  EXPECT_TRUE(voorraad_.TelStopTest());
  EXPECT_FALSE(voorraad_.TelStopTest());
}

TEST_F(VoorraadTest, NoemtWatNiemandNam) {
  ZetKlaar("antwoord Ja Nee\nbestand x.ged\n\nonderbreek 3");
  static_cast<void>(voorraad_.NeemAntwoord());
  static_cast<void>(voorraad_.TelStopTest());
  EXPECT_THAT(voorraad_.Ongebruikt(),
              ElementsAre("regel 1: antwoord Nee", "regel 2: bestand \"x.ged\"",
                          "regel 4: onderbreek, nog 2 keer te gaan"));
}

TEST_F(VoorraadTest, NoemtNietsAlsAllesGenomenIs) {
  ZetKlaar("antwoord Ja");
  static_cast<void>(voorraad_.NeemAntwoord());
  EXPECT_THAT(voorraad_.Ongebruikt(), IsEmpty());
}

}  // namespace
}  // namespace lb77
