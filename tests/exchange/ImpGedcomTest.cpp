// The dialog of the import: its controls, its messages and how each kind of run ends.
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <utility>

#include "app/Start.h"
#include "exchange/ImpGedcom.h"
#include "exchange/ImportToets.h"
#include "steun/Gouden.h"
#include "steun/Plekken.h"
#include "steun/VolleSchijf.h"

namespace lb77 {
namespace {

class ImpGedcomTest : public ImportToets {
 protected:
  void Speel(const std::string& draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    const Taak taak = [](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.ActieveSetNaam = "PROEF";
      ImpGedcom form(hoofd);
      hoofd.gesprek.ToonModaal(form);
    };
    Verwacht(draaiboek, taak, verslag, plek);
  }
  [[nodiscard]] std::string Vul() const { return "vul Bestandsnaam " + Bestand().string() + "\n"; }
};

constexpr std::string_view kOpen = "+ ImpGedcom \"Importeer Gegevens - Gedcom\"\n";

// As a set comes from a DOS disk.
TEST_F(ImpGedcomTest, DeMapVanHetVerslagWordtGemaakt) {
  std::filesystem::remove_all(TekstMap());
  SchrijfBytes(Bestand(), Ged("0 @I1@ INDI\n1 NAME Jan /Jansen/"));
  Speel(Vul() + "druk OKButton\ndruk BackButton\ndruk BackButton", std::string(kOpen) + R"~(
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      - ImpGedcom
    )~");
  EXPECT_TRUE(std::filesystem::exists(TekstMap() / "GEDCOM.LOG"));
}

TEST_F(ImpGedcomTest, OpentLeegEnZonderLabelVanWerk) {
  Speel("toon\ndruk BackButton", R"~(
      + ImpGedcom "Importeer Gegevens - Gedcom"
      : ImpGedcom "Importeer Gegevens - Gedcom"
      = Bestandsnaam ""
      = BrowseButton "&Browse"
      = DoelLabel "Wordt toegevoegd aan PROEF (0 personen)"
      = TellingLabel ""
      = Pass1Label "Bezig met ... ==>" [verborgen]
      = Pass1box uit [uit]
      = Pass2Label "Bezig met ... ==>" [verborgen]
      = Pass2box uit [uit]
      = Pass3Label "Bezig met ... ==>" [verborgen]
      = Pass3box uit [uit]
      = RegelNr ""
      = AantalPersonen ""
      = AantalRelaties ""
      = AantalBronnen ""
      = VoorNm ""
      = AchterNm ""
      = BronNm ""
      = OKButton "&Start Import"
      = BackButton "&Terug"
      * Bestandsnaam
      - ImpGedcom
    )~");
}

TEST_F(ImpGedcomTest, NaAfloopStaanErDeTellingenVanDeLaatsteGang) {
  SchrijfBytes(Bestand(), GedIn("ANSEL", R"(
      0 @I1@ INDI
      1 NAME Andr)"
                                         "\xE2"
                                         R"(e /Jansen/
      0 @I2@ INDI
      1 NAME Piet /Pietersen/
      0 @F1@ FAM
      0 @S1@ SOUR
      1 TITL Doopboek
      0 @S2@ SOUR
      1 AUTH Niemand
    )"));
  Speel(Vul() + "druk OKButton\ndruk BackButton\ntoon\ndruk BackButton", std::string(kOpen) + R"~(
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      : ImpGedcom "Importeer Gegevens - Gedcom"
      = Bestandsnaam ")~" + Bestand().string() +
                                                                             R"~("
      = BrowseButton "&Browse"
      = DoelLabel "Wordt toegevoegd aan PROEF (2 personen)"
      = TellingLabel "Erbij komen 2 personen, 1 relatie en 0 plaatsen"
      = Pass1Label "Bezig met ... ==>" [verborgen]
      = Pass1box aan [uit]
      = Pass2Label "Bezig met ... ==>" [verborgen]
      = Pass2box aan [uit]
      = Pass3Label "Bezig met ... ==>" [verborgen]
      = Pass3box aan [uit]
      = RegelNr "12"
      = AantalPersonen "2"
      = AantalRelaties "1"
      = AantalBronnen "2"
      = VoorNm "Piet"
      = AchterNm "Pietersen"
      = BronNm "Doopboek"
      = OKButton "&Start Import" [uit]
      = BackButton "&Terug"
      * OKButton
      - ImpGedcom
    )~");
}

TEST_F(ImpGedcomTest, VraagtEerstEenBestand) {
  Speel("druk OKButton\nvul Bestandsnaam \"  \"\ndruk OKButton\ndruk BackButton",
        std::string(kOpen) + R"(
      ! uitroep "Geen GEDCOM-bestand gekozen"
      ! uitroep "Geen GEDCOM-bestand gekozen"
      - ImpGedcom
    )");
}

TEST_F(ImpGedcomTest, BladertVanafDeTekstmap) {
  SchrijfBytes(Bestand(), Ged("0 @I1@ INDI"));
  Speel("bestand " + Bestand().string() + "\ndruk BrowseButton\ntoon Bestandsnaam\nbestand\n" +
            "druk BrowseButton\ntoon Bestandsnaam\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        std::string(kOpen) +
            "> openen \"GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|Tekstbestanden "
            "(*.txt)|*.txt\" -> \"" +
            Bestand().string() + "\"\n= Bestandsnaam \"" + Bestand().string() +
            "\"\n> openen \"GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|Tekstbestanden "
            "(*.txt)|*.txt\" -> -\n= Bestandsnaam \"" +
            Bestand().string() + "\"\n" + R"(
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      - ImpGedcom
    )");
  EXPECT_EQ(Aantallen(), "2 1 1 1");
}

TEST_F(ImpGedcomTest, EenBestandWordtNietTweemaalGelezenDoorNogEenKlik) {
  SchrijfBytes(Bestand(), Ged("0 @I1@ INDI"));
  VerwachtFout(Vul() + "druk OKButton\ndruk BackButton\ndruk OKButton",
               Sessie([](Hoofdmodule& hoofd) {
                 ASSERT_TRUE(Start(hoofd));
                 hoofd.ActieveSetNaam = "PROEF";
                 ImpGedcom form(hoofd);
                 hoofd.gesprek.ToonModaal(form);
               }),
               "OKButton");
  EXPECT_EQ(Aantallen(), "2 1 1 1");
}

TEST_F(ImpGedcomTest, EenBestandDatWegIs) {
  SchrijfBytes(TekstMap() / "GEDCOM.LOG", "van een vorige keer");
  Speel(Vul() + "druk OKButton\ndruk BackButton\ndruk BackButton", std::string(kOpen) + R"(
      ! uitroep "Bestand niet gevonden"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      - ImpGedcom
    )");
  EXPECT_EQ(Log(), "Importeren mislukt: Bestand niet gevonden (IN.GED)\r\n");
}

TEST_F(ImpGedcomTest, EenMapIsGeenBestand) {
  Speel("vul Bestandsnaam " + Map().string() + "\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        std::string(kOpen) + R"(
      ! stop "Leesfout: Pad is een directory"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      - ImpGedcom
    )");
}

TEST_F(ImpGedcomTest, HetVerslagZelfKanNietWordenIngelezen) {
  const auto log = TekstMap() / "GEDCOM.LOG";
  SchrijfBytes(log, Ged("0 @I1@ INDI"));
  Speel("vul Bestandsnaam " + log.string() + "\ndruk OKButton\ndruk BackButton",
        std::string(kOpen) + R"(
      ! stop "Leesfout: Bestand is in gebruik"
      - ImpGedcom
    )");
  EXPECT_EQ(Log(), Ged("0 @I1@ INDI"));
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpGedcomTest, EenVerslagDatNietHeelKanWordenGeschrevenWordtGenoemd) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  std::string regels = "0 @I1@ INDI\n";
  for (int i = 0; i < 2000; ++i) regels += "1 XYZ iets\n";
  SchrijfBytes(Bestand(), Ged(regels));
  const VolleSchijf schijf(40000);  // room for the rest of some 22,000 bytes
  Speel(Vul() + "druk OKButton\ndruk BackButton\ndruk BackButton", std::string(kOpen) + R"~(
      ! stop "Leesfout: Bestand te groot (GEDCOM.LOG)"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      - ImpGedcom
    )~");
}

TEST_F(ImpGedcomTest, EenTekstmapDieWegIsWordtGemaakt) {
  EXPECT_FALSE(std::filesystem::exists(TekstMap()));
  Importeer(Ged("0 @I1@ INDI"));
  EXPECT_EQ(Log(), "Importeren voltooid\r\n");
}

TEST_F(ImpGedcomTest, EenVerslagDatNietTeSchrijvenIsStoptVoorHetOpslaan) {
  SchrijfBytes(TekstMap(), "een bestand op de plaats van de map");
  SchrijfBytes(Bestand(), Ged("0 @I1@ INDI"));
  Speel(Vul() + "druk OKButton\ndruk BackButton", std::string(kOpen) + R"~(
      ! stop "Leesfout: Pad niet gevonden (GEDCOM.LOG)"
      - ImpGedcom
    )~");
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpGedcomTest, EenFoutInDeEersteGangZetDeVinkjesToch) {
  SchrijfBytes(Bestand(), "0 HEAD\n0 HEAD\n");
  Speel(Vul() + "druk OKButton\ndruk BackButton\ntoon Pass1box\ntoon Pass3box\ndruk BackButton",
        std::string(kOpen) + R"(
      ! uitroep "GEDCOM Fout: bestand heeft 2 headers"
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      = Pass1box aan [uit]
      = Pass3box aan [uit]
      - ImpGedcom
    )");
}

// A window in which the user imports one file, and ticks each box that has a tick.
class Vinkgebruiker final : public Gesprek {
 public:
  explicit Vinkgebruiker(std::filesystem::path bestand) : bestand_(std::move(bestand)) {}

  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view) override { return Antwoord::OK; }
  bool BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) override {
    EXPECT_EQ(tekst, "Codepage 860 wordt nog niet ondersteund.\nCodepage 437 wordt gebruikt");
    EXPECT_EQ(vinkje, "Niet meer tonen tijdens deze import");
    ++vinkjes;
    return true;
  }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

  int vinkjes = 0;

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier& formulier) override {
    auto* import = dynamic_cast<ImpGedcom*>(&formulier);
    if (import == nullptr) return;
    import->Bestandsnaam.ZetPad(bestand_);
    EXPECT_TRUE(import->Klik(import->OKButton));
  }
  void Dicht(Formulier&) override {}

 private:
  std::filesystem::path bestand_;
};

TEST_F(ImpGedcomTest, DeMeldingVanCodepagina850KanVoorEenImportWeg) {
  SchrijfBytes(Bestand(), GedIn("CP850", "0 @I1@ INDI\n1 NAME Andr\x82 /Sm\x9Bt/\n1 OCCU \x82"));
  Vinkgebruiker gebruiker(Bestand());
  for (int keer = 1; keer <= 2; ++keer) {
    Sessie([](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.ActieveSetNaam = "PROEF";
      ImpGedcom form(hoofd);
      hoofd.gesprek.ToonModaal(form);
    })(gebruiker);
    EXPECT_EQ(gebruiker.vinkjes, keer);
  }
  EXPECT_EQ(Persoon(3), "voor Andr\xE9; achter Sm\xF8t; beroep \xE9");
}

TEST_F(ImpGedcomTest, EenHeleFamilieEnHaarVerslag) {
  const std::string bytes = LeesBytes(BronMap() / "tests/gouden/import.ged");
  ASSERT_FALSE(bytes.empty());
  Importeer(bytes);
  VerwachtGouden("import.log", Log());
  for (const std::string_view soort : {"PRS", "RLT", "OPM", "PLT"}) {
    VerwachtGouden("import." + std::string(soort),
                   LeesBytes(Map() / "PROEF" / ("PROEF." + std::string(soort))));
  }
}

TEST_F(ImpGedcomTest, HetVensterZegtWaarHetBestandHeengaat) {
  const auto doel = [this] {
    std::string tekst;
    InSessie([&tekst](Hoofdmodule& hoofd) {
      hoofd.ActieveSetNaam = "PROEF";
      ImpGedcom form(hoofd);
      ASSERT_TRUE(form.Laad());
      tekst = form.DoelLabel.Bijschrift();
    });
    return tekst;
  };
  EXPECT_EQ(doel(), "Wordt toegevoegd aan PROEF (0 personen)");
  Importeer(Ged("0 @I1@ INDI\n1 NAME Jan //"));
  EXPECT_EQ(doel(), "Wordt toegevoegd aan PROEF (1 persoon)");
  Importeer(Ged("0 @I1@ INDI\n1 NAME Piet //"));
  EXPECT_EQ(doel(), "Wordt toegevoegd aan PROEF (2 personen)");
}

}  // namespace
}  // namespace lb77
