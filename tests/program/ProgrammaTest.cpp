#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <stdexcept>

#include "app/OverLB77Form.h"
#include "program/Programma.h"
#include "program/ProgrammaToets.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1900\n"
    "2 PLAC Delft\n1 FAMC @F1@\n0 @I2@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 FAMS @F1@\n"
    "0 @F1@ FAM\n1 HUSB @I2@\n1 CHIL @I1@\n0 TRLR\n";

class Programmaloop : public ProgrammaToets {};

TEST_F(Programmaloop, GaatDeHeleWegVanEenLegeDirectoryNaarEenVerslag) {
  SchrijfBytes(Map() / "familie.ged", kGedcom);
  basismap_ = Map();
  const std::string pad = (Map() / "LIJNBOOM.INI").string();
  Verwacht(R"(
      antwoord OK
      kies MaakSet
      vul SetNaam familie
      vul SetOmsch Mijn familie
      druk OKButton
      kies ImportGedcom
      bestand familie.ged
      druk BrowseButton
      druk OKButton
      druk BackButton
      toon AantalPersonen
      toon Pass3box
      druk BackButton
      kies TekstKwst
      vul RecordNr 2
      druk OKButton
      stel CopyrightBox Nee
      druk OKButton
      toon UitvoerBox
      druk BackButton
      toon Statusbalk
      kies KeuzeAfsluiten
    )",
           Sessie(), R"~(
      ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden\n\nDruk op OK om een nieuw IniBestand te maken\nDruk op CANCEL om te stoppen" -> OK
      + MenuWindow "LB77 voor Windows"
      + NieuweSet "Nieuwe Bestandenset"
      - NieuweSet
      + ImpGedcom "Importeer Gegevens - Gedcom"
      > openen "GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt" -> "familie.ged"
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      = AantalPersonen "2"
      = Pass3box aan [uit]
      - ImpGedcom
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      - KwstBereken
      + KwstMaakTemp "Kwartierstaat Schrijven"
      - KwstMaakTemp
      + ToonTekst "Kwartierstaat in Tekstvorm"
      = UitvoerBox "Generatie I\n\n     1  Jan van Dam, geb. Delft 1-2-1900.\n\n\nGeneratie II\n\n     2  Piet van Dam.\n\n\n          Gemaakt met LB77 voor Windows\n"
      - ToonTekst
      - KwstTxtPrs
      = Statusbalk "Actieve bestandenset: FAMILIE,Mijn familie"
      - MenuWindow
    )~");
}

TEST_F(Programmaloop, KeuzenVanWatErNietIsZijnGrijs) {
  MaakFamilie();
  Verwacht("toon TekstGen\ntoon ImportDBase\ntoon TekstKwst\ntoon ExpVVF\n", Sessie(), R"(
      + MenuWindow "LB77 voor Windows"
      = TekstGen "&Genealogie of Parenteel"
      = ImportDBase "&dBase" [uit]
      = TekstKwst "&Kwartierstaat"
      = ExpVVF "&VVFContact" [uit] [verborgen]
    )");
}

// What an entry of the menu changes in the settings before something goes wrong.
class Noodgeval : public ProgrammaToets {
 protected:
  // Starts a session in which "Over LB77" changes a setting and then does `doe`.
  void Begin(Gesprek& gesprek, const std::function<void(lb77::Programma&)>& doe,
             const std::function<void(lb77::Programma&)>& voer) {
    lb77::Programma programma(gesprek, klok_, Map());
    ASSERT_TRUE(programma.Start());
    programma.Menu().Hang("AboutLB77", [&programma, &doe] {
      programma.Hoofd().Ini.IniZet("Gebruiker", "Naam", "Noodgeval");
      doe(programma);
    });
    voer(programma);
  }
  [[nodiscard]] bool IsBewaard() const {
    return LeesBytes(Map() / "LIJNBOOM.INI").find("\r\nNaam=Noodgeval\r\n") != std::string::npos;
  }

 private:
  VasteKlok klok_{{2026, 11, 21, 12, 0, 0}};
};

TEST_F(Noodgeval, EenFoutDieNiemandVingBewaartDeInstellingen) {
  MaakFamilie();
  Speel("kies AboutLB77\n", [this](Gesprek& gesprek) {
    Begin(
        gesprek, [](lb77::Programma&) { throw std::runtime_error("geheugen vol"); },
        [](lb77::Programma& programma) { EXPECT_THROW(programma.Voer(), std::runtime_error); });
  });
  EXPECT_TRUE(IsBewaard());
}

TEST_F(Noodgeval, HetEindeVanEenDraaiboekLaatDeSessieVallen) {
  MaakFamilie();
  Speel("kies AboutLB77\n", [this](Gesprek& gesprek) {
    Begin(
        gesprek,
        [&gesprek](lb77::Programma&) {
          OverLB77Form over;
          gesprek.ToonModaal(over);
        },
        [](lb77::Programma& programma) { programma.Voer(); });
  });
  EXPECT_FALSE(IsBewaard());
}

TEST_F(Programmaloop, ElkeKeuzeDieTeKiezenIsToontZijnFormulier) {
  MaakFamilie();
  Verwacht(R"(
      kies MaakSet
      sluit
      kies OpenSet
      sluit
      kies VerwijderSet
      sluit
      kies SetupGebruiker
      sluit
      kies SetupGezindte
      sluit
      kies SetupVoorvoeg
      sluit
      kies SetupVoorkeur
      sluit
      kies SetupToetsen
      sluit
      kies SetupSysteem
      sluit
      kies ImportGedcom
      sluit
      kies ExpHSK
      sluit
      bestand
      kies ViewTekst
      kies AboutLB77
      sluit
    )",
           Sessie(), R"~(
      + MenuWindow "LB77 voor Windows"
      + NieuweSet "Nieuwe Bestandenset"
      - NieuweSet
      + OpenSetForm "Open Bestandendset"
      - OpenSetForm
      + VerwijderSetForm "Verwijder Bestandendset"
      - VerwijderSetForm
      + IniGebruiker "Systeem Instellingen - Gebruikersgegevens"
      - IniGebruiker
      + IniGezindte "Systeem Instellingen - Gezindten"
      - IniGezindte
      + IniVoorvoeg "Systeem Instellingen - Voorvoegsels"
      - IniVoorvoeg
      + IniVoorkeur "Systeem Instellingen - Genealogische Voorkeuren"
      - IniVoorkeur
      + IniFunctie "Systeem Instellingen - Functietoetsen"
      - IniFunctie
      + IniSysteem "Systeem Instellingen - Systeem"
      - IniSysteem
      + ImpGedcom "Importeer Gegevens - Gedcom"
      - ImpGedcom
      + ExpGCIParam "Exporteer in HSK Contactdienst formaat (GCI)"
      - ExpGCIParam
      > openen "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt|GEDCOM-bestanden (*.GED)|*.GED" -> -
      + OverLB77Form "Over LB77 voor Windows"
      - OverLB77Form
    )~");
}

TEST_F(Programmaloop, ElkVerslagOverEenPersoonVraagtWieHetIs) {
  MaakFamilie();
  Verwacht(R"(
      kies TekstKwst
      sluit
      kies IndexKwst
      sluit
      kies SchemaKwst
      sluit
      kies SchemaKwBlad
      sluit
    )",
           Sessie(), R"(
      + MenuWindow "LB77 voor Windows"
      + KwstTxtPrs "Nummer Proband"
      - KwstTxtPrs
      + KwstIdxPrs "Nummer Proband"
      - KwstIdxPrs
      + KwstSchPrs "Nummer Proband"
      - KwstSchPrs
      + KwstBldPrs "Nummer Proband"
      - KwstBldPrs
    )");
}

TEST_F(Programmaloop, VerslagenVanNakomelingenVragenOmEenPersoon) {
  MaakFamilie();
  Verwacht(R"(
      kies TekstGen
      sluit
      kies IndexGen
      sluit
      kies SchemaGen
      sluit
      kies SchemaGezin
      sluit
    )",
           Sessie(), R"~(
      + MenuWindow "LB77 voor Windows"
      + GenTxtPrs "Nummer Stamouder"
      - GenTxtPrs
      + GenIdxPrs "Nummer Stamouder"
      - GenIdxPrs
      + GenSchPrs "Nummer Stamouder"
      - GenSchPrs
      + GezinSchPrs "Nummer Gezinshoofd"
      - GezinSchPrs
    )~");
}

TEST_F(Programmaloop, HetMenuControleOpentElkeControle) {
  MaakFamilie();
  Verwacht(R"(
      kies ContrPrs
      sluit
      kies ContrRel
      sluit
      kies ContrPlts
      sluit
      kies ContrOpm
      sluit
    )",
           Sessie(), R"~(
      + MenuWindow "LB77 voor Windows"
      + ControlePrs "Controleer Persoonsbestand"
      - ControlePrs
      + ControleRel "Controleer Relatiebestand"
      - ControleRel
      + ControlePlts "Controleer Plaatsbestand"
      - ControlePlts
      + ControleOpm "Controleer Opmerkingenbestand"
      - ControleOpm
    )~");
}

TEST_F(Programmaloop, KaartenEnVerwantschapVragenOmNummers) {
  MaakFamilie();
  Verwacht(R"(
      kies UitvPKaart
      sluit
      kies UitvRKaart
      sluit
      kies SchemaVerwant
      sluit
    )",
           Sessie(), R"(
      + MenuWindow "LB77 voor Windows"
      + PrsKrtn "Persoonskaarten"
      - PrsKrtn
      + RelKrtn "Relatiekaarten"
      - RelKrtn
      + SchemaVerwantschap "Schema Verwantschap"
      - SchemaVerwantschap
    )");
}

TEST_F(Programmaloop, ElkeLijstHeeftZijnKeuze) {
  MaakFamilie();
  Verwacht(R"(
      kies RptSelPrs
      sluit
      kies RptSelRel
      sluit
      kies RptSelPlts
      sluit
      kies RptSelOpm
      sluit
      kies RapportTakken
      sluit
      kies RapportFamilies
      sluit
      kies RapportTijdbalk
      sluit
    )",
           Sessie(), R"(
      + MenuWindow "LB77 voor Windows"
      + SelectPrs "Selecteer Personen"
      - SelectPrs
      + SelectRel "Selecteer Relaties"
      - SelectRel
      + SelectPlts "Selecteer Plaatsen"
      - SelectPlts
      + SelectOpm "Selecteer Opmerkingen"
      - SelectOpm
      + RptTakken "Rapport Takkenverdeling"
      - RptTakken
      + RptFamilies "Rapport Verdeling Familienamen"
      - RptFamilies
      + RptTijdbalk "Rapport Populatiegrafiek"
      - RptTijdbalk
    )");
}

TEST_F(Programmaloop, HetMenuVeiligheidToontZijnVensters) {
  MaakFamilie();
  Verwacht(R"(
      kies VeiligOngedaan
      kies VeiligGeschiedenis
      sluit
      kies VeiligKopie
      kies VeiligTerugzetten
      sluit
    )",
           Sessie(),
           R"~(
      + MenuWindow "LB77 voor Windows"
      ! info "Er is niets ongedaan te maken"
      + Geschiedenis "Geschiedenis van de Bestandenset"
      - Geschiedenis
      ! info "Veiligheidskopie gemaakt: )~" +
               (Map() / "KOPIE" / "PROEF").string() + R"~(/2026-11-21_120000"
      + KopieTerugzetten "Veiligheidskopie Terugzetten"
      - KopieTerugzetten
    )~");
}

// What is ours to call: "..." stands where a dialog follows, and nowhere else.
TEST_F(Programmaloop, DrieStippenBelovenEenVenster) {
  MaakFamilie();
  std::map<std::string, std::string> bijschriften;
  Speel("", Met([&](lb77::Programma& programma) {
          for (const Bediening* een : programma.Menu().Bedieningen()) {
            const bool eigen =
                een->Naam().starts_with("Veilig") || een->Naam().starts_with("Beeld");
            if (eigen) bijschriften[een->Naam()] = een->Bijschrift();
          }
        }));
  EXPECT_EQ(bijschriften.size(), 9U);
  for (const auto& [naam, bijschrift] : bijschriften) {
    EXPECT_EQ(Speel("kies " + naam + "\nsluit", Sessie()).reden, "") << naam;
    const bool venster = verslag_.find("\n+ ") != std::string::npos;
    EXPECT_EQ(bijschrift.ends_with("..."), venster) << verslag_;
  }
}

TEST_F(Programmaloop, TonenBegintBijPersonenOfBijPlaatsen) {
  MaakFamilie();
  Verwacht("kies InvPersRel\nsluit\nkies InvPlaats\nsluit\n", Sessie(), R"(
      + MenuWindow "LB77 voor Windows"
      + StartRecord "Start Persoon / Relatie"
      - StartRecord
      + ToonPlaatsen "Toon Plaatsen"
      - ToonPlaatsen
    )");
}

}  // namespace
}  // namespace lb77
