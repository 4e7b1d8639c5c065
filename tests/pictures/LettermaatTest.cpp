#include <gtest/gtest.h>

#include "pictures/Lettermaat.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class LettermaatToets : public testing::Test {
 protected:
  const Helveticamaat maat_;
  const Letter letter_{maat_, 10};
  const Letter vet_{maat_, 10, true};
};

TEST_F(LettermaatToets, EenTekstIsZoBreedAlsZijnLetters) {
  EXPECT_DOUBLE_EQ(letter_.Breedte("Jan"), 10 * (0.500 + 0.556 + 0.556));
  EXPECT_DOUBLE_EQ(vet_.Breedte("Jan"), 10 * (0.556 + 0.556 + 0.611));
  EXPECT_DOUBLE_EQ(letter_.Breedte("é"_w), 5.56);
  EXPECT_DOUBLE_EQ(letter_.Breedte(""), 0);
}

TEST_F(LettermaatToets, EenTeLangeTekstEindigtInPuntjes) {
  EXPECT_EQ(Ingekort("Jansen", letter_, letter_.Breedte("Jansen")), "Jansen");
  EXPECT_EQ(Ingekort("Jansen", letter_, letter_.Breedte("Jansen") - 0.01), "Jans…"_w);
  EXPECT_EQ(Ingekort("Jan Smit", letter_, letter_.Breedte("Jan …"_w)), "Jan…"_w);
  EXPECT_EQ(Ingekort("Jansen", letter_, 5), "");
  EXPECT_EQ(Ingekort("", letter_, 0), "");
}

TEST_F(LettermaatToets, VoornamenWordenVoorlettersAlsZeNietPassen) {
  const std::string namen = "Willem Frederik George";
  EXPECT_EQ(PasVoornamen(namen, letter_, 500), namen);
  EXPECT_EQ(PasVoornamen(namen, letter_, letter_.Breedte(namen) - 1), "Willem F.G.");
  EXPECT_EQ(PasVoornamen(namen, letter_, letter_.Breedte("Willem F.G.") - 1), "W.F.G.");
  EXPECT_EQ(PasVoornamen(namen, letter_, letter_.Breedte("W.F.G.") - 1), "W.F…"_w);
}

TEST_F(LettermaatToets, DeAchternaamGaatVoorDeVoornamen) {
  EXPECT_EQ(PasNaam("Jan Piet", "de Vries", letter_, 500), "Jan Piet de Vries");
  EXPECT_EQ(PasNaam("Jan Piet", "de Vries", letter_, letter_.Breedte("Jan P. de Vries")),
            "Jan P. de Vries");
  EXPECT_EQ(PasNaam("Jan Piet", "de Vries", letter_, letter_.Breedte("J.P. de Vries")),
            "J.P. de Vries");
  EXPECT_EQ(PasNaam("Jan Piet", "de Vries", letter_, letter_.Breedte("de Vries")), "de Vries");
  EXPECT_EQ(PasNaam("Jan", "", letter_, 500), "Jan");
  EXPECT_EQ(PasNaam("", "", letter_, 500), "");
}

}  // namespace
}  // namespace lb77
