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
    SpeelBytes(Ged("0 @I1@ INDI\n1 NAME Jan //\n1 BIRT\n2 PLAC Delft\n1 XYZ iets\n0 @F1@ FAM"),
               draaiboek, verslag, daarna, plek);
  }
  void SpeelBytes(std::string_view bytes, std::string_view draaiboek, std::string_view verslag,
                  const std::function<void(Hoofdmodule&)>& daarna = {},
                  const Plek& plek = Plek::current()) {
    SchrijfBytes(Bestand(), bytes);
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
    Speel("onderbreek " + std::string(toets) +
              "\nantwoord Ja\nantwoord Nee\ndruk OKButton\ndruk BackButton\ndruk BackButton",
          R"(? vraag Ja/Nee "Import afbreken ?" -> Ja
             ? vraag Ja/Nee "Wat is ingelezen behouden ?" -> Nee
             + ToonTekst "Importeren - Resultaat"
             - ToonTekst
             - ImpGedcom)");
    EXPECT_EQ(Aantallen(), "1 1 1 1");
    EXPECT_FALSE(std::filesystem::exists(TekstMap() / "GEDCOM.RST"));
    EXPECT_FALSE(std::filesystem::exists(TekstMap() / "GEDCOM.RS~"));
  }
}

TEST_F(ImpVeilig, WatHalverwegeIsIngelezenBlijftMetJa) {
  Speel(R"(onderbreek 1
           antwoord Ja
           antwoord Ja
           druk OKButton
           druk BackButton
           toon Pass1box
           druk BackButton)",
        R"(? vraag Ja/Nee "Import afbreken ?" -> Ja
           ? vraag Ja/Nee "Wat is ingelezen behouden ?" -> Ja
           + ToonTekst "Importeren - Resultaat"
           - ToonTekst
           = Pass1box uit [uit]
           - ImpGedcom)",
        [](Hoofdmodule& hoofd) {
          EXPECT_EQ(hoofd.bestanden.HetJournaal()->Geschiedenis().size(), 1U);
        });
  EXPECT_EQ(Aantallen(), "2 2 1 1");
}

TEST_F(ImpVeilig, WieTochNietAfbreektLeestVerder) {
  Speel("onderbreek 1\nantwoord Nee\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        R"(? vraag Ja/Nee "Import afbreken ?" -> Nee)" + std::string(kKlaar));
  EXPECT_EQ(Aantallen(), "2 2 2 1");
}

// A long file: the question comes in the middle of a record, which is stored whole.
TEST_F(ImpVeilig, AfbrekenEindigtBijEenRecordEnHetLogZegtHet) {
  std::string regels;
  for (int i = 1; i <= 20; ++i) {
    regels += "0 @I" + std::to_string(i) + "@ INDI\n1 NAME P" + std::to_string(i) + " //\n";
    for (int n = 0; n < 20; ++n) regels += "1 NOTE x\n";
    regels += "1 SEX M\n";
  }
  const std::string bytes = Ged(regels);
  // 462 lines: three tests in each pass and one behind it; the second pass is stopped at line 256.
  SpeelBytes(bytes, R"(onderbreek 6
                       antwoord Ja
                       antwoord Ja
                       druk OKButton
                       druk BackButton
                       druk BackButton)",
             R"(? vraag Ja/Nee "Import afbreken ?" -> Ja
                ? vraag Ja/Nee "Wat is ingelezen behouden ?" -> Ja
                + ToonTekst "Importeren - Resultaat"
                - ToonTekst
                - ImpGedcom)");
  EXPECT_EQ(LeesBytes(TekstMap() / "GEDCOM.LOG"), "Importeren afgebroken bij regel 256\r\n");
  EXPECT_EQ(Persoon(13), "voor P12; seks M");
  EXPECT_EQ(Persoon(14).find("P13"), std::string::npos);
}

TEST_F(ImpVeilig, OokHetTellenVoorafKanAfgebrokenWorden) {
  std::string regels = "0 @I1@ INDI\n";
  for (int n = 0; n < 1100; ++n) regels += "1 NOTE x\n";
  SpeelBytes(Ged(regels), "onderbreek 1\nantwoord Ja\ndruk OKButton\ndruk BackButton",
             R"(? vraag Ja/Nee "Import afbreken ?" -> Ja
                - ImpGedcom)");
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpVeilig, DeTellingStaatErVoorErGeschrevenWordt) {
  Speel(R"(onderbreek 1
           antwoord Ja
           antwoord Nee
           druk OKButton
           druk BackButton
           toon TellingLabel
           druk BackButton)",
        R"(? vraag Ja/Nee "Import afbreken ?" -> Ja
           ? vraag Ja/Nee "Wat is ingelezen behouden ?" -> Nee
           + ToonTekst "Importeren - Resultaat"
           - ToonTekst
           = TellingLabel "Erbij komen 1 persoon, 1 relatie en 1 plaats"
           - ImpGedcom)");
}

}  // namespace
}  // namespace lb77
