#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "forms/Weergave.h"

namespace lb77 {
namespace {

class WeergaveTest : public ::testing::Test {
 protected:
  Formulier formulier_{"Proef", ""};
};

TEST_F(WeergaveTest, EenTellerToontZijnTekstEnNietZijnBijschrift) {
  Teller teller(formulier_, "Aantal", "Aantal:");
  teller.ZetTekst("12");
  EXPECT_EQ(teller.Waarde(), "12");
  EXPECT_EQ(teller.Bijschrift(), "Aantal:");
  EXPECT_FALSE(teller.KanFocus());
}

TEST_F(WeergaveTest, EenTekstpaginaVoegtHaarRegelsSamen) {
  Tekstpagina pagina(formulier_, "Pagina");
  EXPECT_EQ(pagina.Waarde(), "");
  pagina.ZetRegels({"een", "", "drie"});
  EXPECT_EQ(pagina.Waarde(), "een\n\ndrie");
}

TEST_F(WeergaveTest, EenTekstpaginaMetEenLegeEersteRegelHoudtDie) {
  Tekstpagina pagina(formulier_, "Pagina");
  pagina.ZetRegels({"", "twee"});
  EXPECT_EQ(pagina.Waarde(), "\ntwee");
}

TEST_F(WeergaveTest, EenStatusbalkToontZijnTekst) {
  Statusbalk balk(formulier_, "Balk");
  balk.ZetTekst("Actieve bestandenset: X");
  EXPECT_EQ(balk.Waarde(), "Actieve bestandenset: X");
}

TEST_F(WeergaveTest, EenMenukeuzeKentZijnMenu) {
  const MenuKeuze keuze(formulier_, "Keuze", "&Keuze", "Menu");
  EXPECT_EQ(keuze.Menu(), "Menu");
  EXPECT_EQ(keuze.Waarde(), "&Keuze");
  EXPECT_FALSE(keuze.KanFocus());
}

TEST_F(WeergaveTest, EenLabelIsKlikbaarMetEenAfhandeling) {
  Label label(formulier_, "Label", "Tekst");
  EXPECT_FALSE(label.HeeftKlik());
  EXPECT_FALSE(label.HeeftDubbelklik());
  label.BijKlik([] {});
  label.BijDubbelklik([] {});
  EXPECT_TRUE(label.HeeftKlik());
  EXPECT_TRUE(label.HeeftDubbelklik());
}

TEST_F(WeergaveTest, BruikbaarIsZichtbaarEnIngeschakeld) {
  Label label(formulier_, "Label", "Tekst");
  EXPECT_TRUE(label.Bruikbaar());
  label.ZetIngeschakeld(false);
  EXPECT_FALSE(label.Bruikbaar());
  label.ZetIngeschakeld(true);
  label.ZetZichtbaar(false);
  EXPECT_FALSE(label.Bruikbaar());
}

}  // namespace
}  // namespace lb77
