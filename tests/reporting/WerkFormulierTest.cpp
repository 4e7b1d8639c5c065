#include <gtest/gtest.h>

#include "reporting/WerkFormulier.h"
#include "steun/FamilieToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

// Works through ten steps, and closes itself when it was not stopped.
class Telvorm final : public WerkFormulier {
 public:
  explicit Telvorm(Hoofdmodule& hoofd) : WerkFormulier("Telvorm", "Tellen", hoofd) {
    Koppel(OKButton, BackButton);
  }
  Teller Stappen{*this, "Stappen"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void Werk() override {
    for (int i = 1; i <= 10; ++i) {
      if (Afbreken()) return;
      Stappen.ZetTekst(GetalTekst(i));
      Ververs();
    }
    Sluit();
  }
};

class WerkFormulierToets : public FamilieToets {
 protected:
  void Speel(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [this](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = 5;
          Telvorm vorm(hoofd);
          hoofd.gesprek.ToonModaal(vorm);
          EXPECT_FALSE(vorm.Bezig());
          gebleven_ = hoofd.volgers.HuidigPersoonNr;
        },
        verslag, plek);
  }
  std::int16_t gebleven_ = 0;
};

TEST_F(WerkFormulierToets, SluitVanzelfAlsHetKlaarIs) {
  Speel("", "+ Telvorm \"Tellen\"\n- Telvorm\n");
  EXPECT_EQ(gebleven_, 5);
}

TEST_F(WerkFormulierToets, StoptAlsDeGebruikerHetBevestigtEnWacht) {
  Speel(R"(
      onderbreek 4
      antwoord Ja
      toon Stappen
      druk OKButton
    )",
        R"(
      + Telvorm "Tellen"
      ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
      = Stappen "3"
      - Telvorm
    )");
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(WerkFormulierToets, NeeVergeetHetVerzoek) {
  Speel(R"(
      onderbreek 4
      antwoord Nee
    )",
        R"(
      + Telvorm "Tellen"
      ? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee
      - Telvorm
    )");
  EXPECT_EQ(gebleven_, 5);
}

}  // namespace
}  // namespace lb77
