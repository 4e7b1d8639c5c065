// A form that makes its report at the press of a button, and shows it.
#include <gtest/gtest.h>

#include "app/Hoofdmodule.h"
#include "reporting/WerkFormulier.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class Controlevorm final : public WerkFormulier {
 public:
  Controlevorm(Hoofdmodule& hoofd, Einde einde)
      : WerkFormulier("Controlevorm", "Controleer", hoofd, WerkBegin::OpKnop), einde_(einde) {
    Koppel(OKButton, BackButton);
  }
  Knop OKButton{*this, "OKButton", "Start Controle"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void Werk() override {
    EXPECT_FALSE(OKButton.Ingeschakeld());
    const std::filesystem::path pad = Hoofd().programmaMap / "CTRL.TMP";
    const bool heel = MaakVerslag({pad}, [this](TekstSchrijver& uit) {
      uit.VolleRegel("Controle");
      return einde_ == Einde::Leesfout ? Uitslag(Leesfout{BestandSoort::Relaties, 12}) : einde_;
    });
    if (!heel) return;
    ToonTekstbestand(pad, "Controle", false);
    Sluit();
  }

 private:
  Einde einde_;
};

class KnopWerk : public FamilieToets {
 protected:
  void Speel(Einde einde, std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [einde](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = 5;
          Controlevorm vorm(hoofd, einde);
          hoofd.gesprek.ToonModaal(vorm);
          EXPECT_FALSE(vorm.Bezig());
          EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 5);  // no chain to stop
        },
        verslag, plek);
  }
};

TEST_F(KnopWerk, BegintBijDeKnopEnToontHetVerslag) {
  Speel(Einde::Klaar, "druk OKButton\ndruk BackButton\n", R"(
      + Controlevorm "Controleer"
      + ToonTekst "Controle"
      - ToonTekst
      - Controlevorm
    )");
}

TEST_F(KnopWerk, GaatWegMetTerug) {
  Speel(Einde::Klaar, "druk BackButton\n", "+ Controlevorm \"Controleer\"\n- Controlevorm\n");
}

TEST_F(KnopWerk, ZegtWatOnleesbaarIsEnSluit) {
  Speel(Einde::Leesfout, "druk OKButton\n", R"(
      + Controlevorm "Controleer"
      ! stop "Relatierecord 12 kan niet worden gelezen. Er is geen verslag gemaakt."
      - Controlevorm
    )");
}

TEST_F(KnopWerk, BlijftNaEenStopVanDeGebruiker) {
  Speel(Einde::Afgebroken, "druk OKButton\ntoon OKButton\nsluit\n", R"(
      + Controlevorm "Controleer"
      = OKButton "Start Controle"
      - Controlevorm
    )");
}

}  // namespace
}  // namespace lb77
