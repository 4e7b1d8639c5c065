// Labels that toggle, buttons that refer, and what both are called aloud.
#include <gmock/gmock.h>

#include "forms/Formulier.h"

namespace lb77 {
namespace {

class WisselVorm : public Formulier {
 public:
  WisselVorm() : Formulier("Wissel", "") {
    Begraven.BijWijziging([this] { ++wijzigingen; });
    Vak.BijVerlaten([this] { return vakGoed; });
  }

  Tekstvak Vak{*this, "Vak", "&Voornaam: "};
  Wissellabel Begraven{*this, "Begraven", {"Begraven", "Crematie", "Anders"}};
  Verwijzing RecordNrPa{*this, "RecordNrPa", "&Vader"};
  Verwijzing RelNrP{*this, "RelNrP", {}, "Relatie"};
  Verwijzing Kaal{*this, "Kaal"};
  Knop Teken{*this, "Teken", "&>"};
  Teller Stand{*this, "Stand", "Stand"};
  int wijzigingen = 0;
  bool vakGoed = true;
};

class WissellabelTest : public ::testing::Test {
 protected:
  WisselVorm vorm_;
};

TEST_F(WissellabelTest, BegintMetDeEersteTekst) {
  EXPECT_EQ(vorm_.Begraven.Index(), 0);
  EXPECT_EQ(vorm_.Begraven.Waarde(), "Begraven");
}

TEST_F(WissellabelTest, EenDubbelklikGaatNaarDeVolgendeEnVanDeLaatsteNaarDeEerste) {
  for (const char* tekst : {"Crematie", "Anders", "Begraven"}) {
    vorm_.Dubbelklik(vorm_.Begraven);
    EXPECT_EQ(vorm_.Begraven.Waarde(), tekst);
  }
  EXPECT_EQ(vorm_.wijzigingen, 3);
  EXPECT_TRUE(vorm_.Gewijzigd());
}

TEST_F(WissellabelTest, EenEnkeleKlikDoetNiets) {
  vorm_.Klik(vorm_.Begraven);
  EXPECT_EQ(vorm_.Begraven.Index(), 0);
  EXPECT_FALSE(vorm_.Gewijzigd());
}

TEST_F(WissellabelTest, TabKomtErEnDeSpatieWisselt) {
  EXPECT_EQ(vorm_.Buur(&vorm_.Vak, 1), &vorm_.Begraven);
  EXPECT_TRUE(vorm_.Toets(&vorm_.Begraven, ToetsVanTeken(' ')));
  EXPECT_EQ(vorm_.Begraven.Index(), 1);
}

TEST_F(WissellabelTest, EenMislukteControleHoudtDeDubbelklikTegen) {
  vorm_.GaNaar(vorm_.Vak);
  vorm_.vakGoed = false;
  EXPECT_FALSE(vorm_.Dubbelklik(vorm_.Begraven));
  EXPECT_EQ(vorm_.Begraven.Index(), 0);
}

TEST_F(WissellabelTest, CodeKiestZonderGebeurtenis) {
  vorm_.Begraven.ZetIndex(2);
  EXPECT_EQ(vorm_.Begraven.Waarde(), "Anders");
  vorm_.Begraven.ZetIndex(3);
  EXPECT_EQ(vorm_.Begraven.Index(), 0);
  vorm_.Begraven.ZetIndex(-1);
  EXPECT_EQ(vorm_.Begraven.Waarde(), "Begraven");
  EXPECT_EQ(vorm_.wijzigingen, 0);
}

TEST_F(WissellabelTest, EenVerwijzingToontHaarNummerOfWatErBijNulHoort) {
  vorm_.RelNrP.ZetNr(12, "<+>");
  EXPECT_EQ(vorm_.RelNrP.Waarde(), "12");
  EXPECT_EQ(vorm_.RelNrP.Nr(), 12);
  vorm_.RelNrP.ZetNr(0, "<+>");
  EXPECT_EQ(vorm_.RelNrP.Waarde(), "<+>");
  vorm_.RelNrP.ZetNr(0);
  EXPECT_EQ(vorm_.RelNrP.Waarde(), "");
  EXPECT_EQ(vorm_.RelNrP.Nr(), 0);
}

TEST_F(WissellabelTest, DeLeesnaamIsDePromptHetBijschriftOfDeNaam) {
  EXPECT_EQ(vorm_.Vak.Leesnaam(), "Voornaam:");
  EXPECT_EQ(vorm_.Begraven.Leesnaam(), "Begraven");
  EXPECT_EQ(vorm_.Teken.Leesnaam(), ">");
  EXPECT_EQ(vorm_.Stand.Leesnaam(), "Stand");
  EXPECT_EQ(vorm_.Kaal.Leesnaam(), "Kaal");
  vorm_.Teken.ZetLeesnaam("Opmerking bij voornaam");
  EXPECT_EQ(vorm_.Teken.Leesnaam(), "Opmerking bij voornaam");
  EXPECT_EQ(vorm_.Teken.Waarde(), "&>");
}

TEST_F(WissellabelTest, EenVerwijzingLeestHaarPromptEnNummerVoor) {
  EXPECT_EQ(vorm_.RecordNrPa.Leesnaam(), "Vader");
  vorm_.RecordNrPa.ZetNr(12);
  EXPECT_EQ(vorm_.RecordNrPa.Leesnaam(), "Vader 12");
  vorm_.RelNrP.ZetNr(3);
  EXPECT_EQ(vorm_.RelNrP.Leesnaam(), "Relatie 3");
  vorm_.Kaal.ZetNr(7);
  EXPECT_EQ(vorm_.Kaal.Leesnaam(), "7");
}

TEST_F(WissellabelTest, DePromptStaatVoorWatErEenHeeft) {
  EXPECT_EQ(vorm_.RecordNrPa.Prompt(), "&Vader");
  EXPECT_EQ(vorm_.Vak.Prompt(), "&Voornaam: ");
  EXPECT_EQ(vorm_.Stand.Prompt(), "Stand");
  EXPECT_EQ(vorm_.Teken.Prompt(), "");
  EXPECT_EQ(vorm_.Begraven.Prompt(), "");
}

}  // namespace
}  // namespace lb77
