// The import as one action: undone as a whole, and asked about when it is stopped halfway.
#include <gtest/gtest.h>

#include "app/SetOpenen.h"
#include "app/Start.h"
#include "exchange/ImpGedcom.h"
#include "exchange/ImportToets.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

class ImpVeilig : public ImportToets {
 protected:
  void Speel(std::string_view draaiboek, std::string_view verslag,
             const std::function<void(Hoofdmodule&)>& daarna = {},
             const Plek& plek = Plek::current()) {
    SchrijfBytes(Bestand(),
                 Ged("0 @I1@ INDI\n1 NAME Jan //\n1 BIRT\n2 PLAC Delft\n1 XYZ iets\n0 @F1@ FAM"));
    const Taak taak = [this, &daarna](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.ActieveSetNaam = "PROEF";
      GeefJournaal(hoofd);
      ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
      ImpGedcom form(hoofd);
      hoofd.gesprek.ToonModaal(form);
      if (daarna) daarna(hoofd);
    };
    Verwacht("vul Bestandsnaam " + Bestand().string() + "\n" + std::string(draaiboek), taak,
             "+ ImpGedcom \"Importeer Gegevens - Gedcom\"\n" + std::string(verslag), plek);
  }
};

constexpr std::string_view kKlaar = R"(
    ! info "Importeren voltooid"
    + ToonTekst "Importeren - Resultaat"
    - ToonTekst
    - ImpGedcom
  )";

TEST_F(ImpVeilig, IsEenBewerkingMetDeNaamVanHetBestand) {
  Speel("druk OKButton\ndruk BackButton\ndruk BackButton", kKlaar, [](Hoofdmodule& hoofd) {
    Journaal& journaal = *hoofd.bestanden.HetJournaal();
    const auto regels = journaal.Geschiedenis();
    ASSERT_EQ(regels.size(), 1U);
    EXPECT_EQ(regels[0].label, "GEDCOM ingelezen: IN.GED");
    EXPECT_TRUE(journaal.MaakOngedaan(1));
  });
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpVeilig, WatHalverwegeIsIngelezenGaatMetNeeWeerWeg) {
  for (const char* toets : {"1", "2", "3"}) {
    Speel("onderbreek " + std::string(toets) + "\nantwoord Nee\ndruk OKButton\ndruk BackButton",
          R"(? vraag Ja/Nee "Wat is ingelezen behouden ?" -> Nee
             - ImpGedcom)");
    EXPECT_EQ(Aantallen(), "1 1 1 1");
    EXPECT_FALSE(std::filesystem::exists(TekstMap() / "GEDCOM.RST"));
    EXPECT_FALSE(std::filesystem::exists(TekstMap() / "GEDCOM.RS~"));
  }
}

TEST_F(ImpVeilig, WatHalverwegeIsIngelezenBlijftMetJa) {
  Speel("onderbreek 1\nantwoord Ja\ndruk OKButton\ntoon Pass1box\ndruk BackButton",
        R"(? vraag Ja/Nee "Wat is ingelezen behouden ?" -> Ja
           = Pass1box uit [uit]
           - ImpGedcom)",
        [](Hoofdmodule& hoofd) {
          EXPECT_EQ(hoofd.bestanden.HetJournaal()->Geschiedenis().size(), 1U);
        });
  EXPECT_EQ(Aantallen(), "2 2 1 1");
}

TEST_F(ImpVeilig, DeTellingStaatErVoorErGeschrevenWordt) {
  Speel("onderbreek 1\nantwoord Nee\ndruk OKButton\ntoon TellingLabel\ndruk BackButton",
        R"(? vraag Ja/Nee "Wat is ingelezen behouden ?" -> Nee
           = TellingLabel "Erbij komen 1 persoon, 1 relatie en 1 plaats"
           - ImpGedcom)");
}

}  // namespace
}  // namespace lb77
