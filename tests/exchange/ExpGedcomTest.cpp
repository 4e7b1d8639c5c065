// The dialog of the export: a whole run with its file and its log, its messages, and how it fails.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "app/Start.h"
#include "app/ZonderRechten.h"
#include "exchange/ExpGedcom.h"
#include "exchange/ImportToets.h"
#include "steun/Gouden.h"
#include "steun/VolleSchijf.h"
#include "store/Rubrieken.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

namespace rubriek = persoonrubriek;

constexpr const char* kOpen = "+ ExpGedcom \"Exporteer Gegevens - Gedcom\"\n";
constexpr const char* kKies = "druk KiesAllesButton\ndruk OKButton\ndruk OKButton\n";
constexpr const char* kGekozen = R"~(
      ! uitroep "Druk in de volgende schermen steeds op VOEG TOE"
      + ExpSelPers "Exporteer gegevens - Selecteer Personen"
      - ExpSelPers
      + ExpSelRel "Exporteer gegevens - Selecteer Relaties"
      - ExpSelRel
)~";
constexpr const char* kVerslag = R"~(
      + ToonTekst "Exporteren - Resultaat"
      - ToonTekst
)~";

class ExpGedcomToets : public ImportToets {
 protected:
  void Speel(const std::string& draaiboek, const std::string& verslag,
             const Plek& plek = Plek::current()) {
    const Taak taak = [](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.ActieveSetNaam = "PROEF";
      ExpGedcom form(hoofd);
      hoofd.gesprek.ToonModaal(form);
    };
    Verwacht(draaiboek, taak, kOpen + verslag + "\n- ExpGedcom\n", plek);
  }
  static std::string Naar(const std::filesystem::path& pad) {
    return "vul Bestandsnaam " + pad.string() + "\n";
  }
  // A run that fails once it has begun, and leaves the dialog open.
  void Mislukt(const std::filesystem::path& pad, const std::string& gemeld,
               const Plek& plek = Plek::current()) {
    Speel(Naar(pad) + kKies +
              "druk OKButton\ndruk BackButton\ntoon OKButton\n"
              "toon PersonenGedaan\ntoon RelatiesGedaan\ntoon BronnenGedaan\ndruk BackButton\n",
          kGekozen + gemeld + kVerslag +
              "= OKButton \"&Start Export\" [uit]\n"
              "= PersonenGedaan \"0\"\n= RelatiesGedaan \"0\"\n= BronnenGedaan \"0\"\n",
          plek);
  }
  [[nodiscard]] std::filesystem::path Uit() const { return Map() / "UIT.GED"; }

  // Three generations with the odd rules that a user meets.
  void MaakFamilie() {
    const auto pl = [this](std::string_view naam) { return std::to_string(Bouw().Plaats(naam)); };
    const std::string koeln = pl("K\xF6ln");
    const std::string breda = pl("Breda");
    const std::int16_t opa = Bouw().Man("Ren\xE9", "van den Berg",
                                        {{"GebDatum", "00-00-1860"},
                                         {"GebCorr", "T"},
                                         {"DoopDatum", "31-12-1865"},
                                         {"GebPlaats", koeln},
                                         {"OvlDatum", "03-02-1930"},
                                         {"OvlCorr", "V"},
                                         {"BegrDatum", "05-02-1930"},
                                         {"BegrPlaats", breda},
                                         {"Beroep", "smid"}});
    const std::int16_t oma = Bouw().Vrouw("Els", "Vos",
                                          {{"DoopPlaats", breda},
                                           {"DoopReligie", "RK"},
                                           {"BegrDatum", "00-00-1940"},
                                           {"BegrCrem", "1"}});
    const std::int16_t zoon = Bouw().Man("Jan", "van den Berg", {{"GebDatum", "12-03-1890"}});
    static_cast<void>(Bouw().Persoon('?', "", "Onbekend"));
    const std::int16_t dochter = Bouw().Vrouw("An", "", {{"OvlPlaats", breda}});
    static_cast<void>(Bouw().Relatie(opa, oma, {zoon, dochter},
                                     {{"OtrDatum", "01-04-1888"},
                                      {"WHuwDatum", "20-04-1888"},
                                      {"WHuwPlaats", breda},
                                      {"HuwSoort", "B"},
                                      {"KHuwDatum", "21-04-1888"},
                                      {"KHuwPlaats", breda},
                                      {"Religie", "RK"}}));
    static_cast<void>(Bouw().Relatie(
        zoon, 0, {}, {{"HuwSwPs", "Sw"}, {"KHuwSch", "1"}, {"KHuwDatum", "00-05-1920"}}));
    Bouw().OpmerkingBijPersoon(opa, rubriek::kGebDatum, {"Volgens zijn", "trouwakte."});
    Bouw().OpmerkingBijPersoon(opa, rubriek::kBeroep, {"Ook boer."});
    Bouw().OpmerkingBijPersoon(opa, rubriek::kBeroep, {"En herbergier."});
    Bouw().OpmerkingBijPersoon(dochter, rubriek::kGebPlaats, {"Niet gevonden."});
  }
};

TEST_F(ExpGedcomToets, AfbrekenVraagtEnHetLogZegtHet) {
  MaakFamilie();
  Speel(
      Naar(Uit()) + kKies +
          "onderbreek 1\nonderbreek 1\nantwoord Nee\nantwoord Ja\ndruk OKButton\ndruk BackButton\n"
          "toon PersonenGedaan\ndruk BackButton\n",
      std::string(kGekozen) +
          "? vraag Ja/Nee \"Opbouw Afbreken ?\" -> Nee\n"
          "? vraag Ja/Nee \"Opbouw Afbreken ?\" -> Ja\n" +
          kVerslag + "= PersonenGedaan \"1\"\n");
  EXPECT_EQ(Log(), "Start export (20000101000000)\r\nExporteren afgebroken\r\n");
}

TEST_F(ExpGedcomToets, EenLegeSetLevertNiets) {
  Speel("", "! uitroep \"Export uit een leeg bestand is niet mogelijk\"\n");
}

TEST_F(ExpGedcomToets, OpentMetEenNaamEnZonderKeuze) {
  MaakFamilie();
  Speel("toon\ndruk BackButton", R"~(
      : ExpGedcom "Exporteer Gegevens - Gedcom"
      = Bestandsnaam ")~" + (TekstMap() / "PROEF.GED").string() +
                                     R"~("
      = BrowseButton "&Browse"
      = KiesAllesButton "Kies &Alles"
      = KiesPersButton "Kies &Personen"
      = KiesRelButton "Kies &Relaties"
      = KiesGenButton "Kies &Genealogie" [uit]
      = KiesKwstButton "Kies &Kwartierstaat" [uit]
      = KiesBronButton "Kies &Bronnen" [uit]
      = AantalPersonen "0"
      = AantalRelaties "0"
      = AantalBronnen "0"
      = ToonLijstButton "&Toon lijst met geselecteerde records"
      = PersonenGedaan ""
      = RelatiesGedaan ""
      = BronnenGedaan ""
      = Utf8Box uit
      = OKButton "&Start Export"
      = BackButton "&Terug"
      * Bestandsnaam
)~");
}

TEST_F(ExpGedcomToets, EenFamilieStaatRegelVoorRegelInHetBestand) {
  MaakFamilie();
  Speel(
      "vul Bestandsnaam \" UIT.GED \"\n" + std::string(kKies) + "druk OKButton\ndruk BackButton\n",
      std::string(kGekozen) + "! info \"Exporteren voltooid\"\n" + kVerslag);
  VerwachtGouden("export.ged", LeesBytes(Uit()));
  VerwachtGouden("export.log", Log());
}

TEST_F(ExpGedcomToets, DeInzenderIsDeGebruikerVanDeInstellingen) {
  MaakFamilie();
  SchrijfBytes(Map() / "LIJNBOOM.INI",
               LeesBytes(Map() / "LIJNBOOM.INI") +
                   "[Gebruiker]\r\nNaam=Bos\r\nVoornaam=Jan\r\nAdres=Markt 1\r\n"
                   "Postcode=1234 AB\r\nPlaats=Breda\r\nLand=Nederland\r\nTelefoon=076\r\n");
  Speel(Naar(Uit()) + kKies + "druk OKButton\ndruk BackButton\n",
        std::string(kGekozen) + "! info \"Exporteren voltooid\"\n" + kVerslag);
  const std::string bytes = LeesBytes(Uit());
  const std::size_t begin = bytes.find("0 @SUBM0001@ SUBM\r\n");
  ASSERT_NE(begin, std::string::npos);
  EXPECT_EQ(bytes.substr(begin, bytes.find("1 LANG DUTCH", begin) - begin),
            "0 @SUBM0001@ SUBM\r\n1 NAME Jan Bos\r\n1 ADDR Markt 1\r\n2 CONT 1234 AB Breda\r\n"
            "2 CONT Nederland\r\n2 ADR1 Markt 1\r\n2 ADR2 1234 AB; Breda\r\n"
            "2 POST 1234 AB\r\n2 CITY Breda\r\n2 CTRY Nederland\r\n1 PHON 076\r\n");
}

TEST_F(ExpGedcomToets, BladertNaarEenBestand) {
  MaakFamilie();
  const std::string vraag =
      "> opslaan \"GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|"
      "Tekstbestanden (*.txt)|*.txt\" -> ";
  Speel("bestand " + Uit().string() +
            "\ndruk BrowseButton\nbestand\ndruk BrowseButton\ntoon Bestandsnaam\ndruk BackButton\n",
        vraag + "\"" + Uit().string() + "\"\n" + vraag + "-\n= Bestandsnaam \"" + Uit().string() +
            "\"\n");
}

TEST_F(ExpGedcomToets, VraagtEenNaamEnDaarnaEenKeuze) {
  MaakFamilie();
  Speel(
      "vul Bestandsnaam \"  \"\ndruk OKButton\n" + Naar(Uit()) + "druk OKButton\ndruk BackButton\n",
      "! uitroep \"Geen bestandsnaam opgegeven\"\n! uitroep \"Geen gegevens geselecteerd\"\n");
  EXPECT_FALSE(std::filesystem::exists(Uit()));
  EXPECT_FALSE(std::filesystem::exists(TekstMap() / "GEDCOM.LOG"));
}

TEST_F(ExpGedcomToets, AlleenRelatiesMagOok) {
  MaakFamilie();
  Speel(Naar(Uit()) + "druk KiesRelButton\ndruk OKButton\ndruk OKButton\ndruk BackButton\n",
        std::string("+ ExpSelRel \"Exporteer gegevens - Selecteer Relaties\"\n- ExpSelRel\n") +
            "! info \"Exporteren voltooid\"\n" + kVerslag);
  const std::string bytes = LeesBytes(Uit());
  EXPECT_EQ(bytes.find("HUSB"), std::string::npos);
  EXPECT_EQ(bytes.find("INDI"), std::string::npos);
  EXPECT_NE(bytes.find("0 @F2@ FAM\r\n1 MARB\r\n"), std::string::npos);
  EXPECT_NE(Log().find(std::string("Totaal 0 Personen geëxporteerd\r\n"_w)), std::string::npos);
}

TEST_F(ExpGedcomToets, EenMapInDePlaatsVanHetBestandIsEenFout) {
  MaakFamilie();
  std::filesystem::create_directories(Uit());
  Mislukt(Uit(), "! stop \"Pad is een directory\"\n");
  EXPECT_TRUE(Log().starts_with("Start export (20000101000000)\r\n")) << Log();
}

TEST_F(ExpGedcomToets, EenMapDieErNietIsIsEenWaarschuwing) {
  MaakFamilie();
  Mislukt(Map() / "WEG" / "UIT.GED", "! uitroep \"Bestand niet gevonden\"\n");
}

TEST_F(ExpGedcomToets, EenMapZonderRechtenIsEenFout) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  MaakFamilie();
  const std::filesystem::path dicht = Map() / "DICHT";
  std::filesystem::create_directories(dicht);
  std::filesystem::create_directories(TekstMap());
  std::filesystem::permissions(TekstMap(), std::filesystem::perms::all);
  const Taak taak = [&dicht](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.ActieveSetNaam = "PROEF";
    const ZonderRechten zonder(dicht);
    ExpGedcom form(hoofd);
    hoofd.gesprek.ToonModaal(form);
  };
  Verwacht(
      Naar(dicht / "UIT.GED") + kKies + "druk OKButton\ndruk BackButton\ndruk BackButton\n", taak,
      std::string(kOpen) + kGekozen + "! stop \"Geen toegang\"\n" + kVerslag + "- ExpGedcom\n");
  EXPECT_EQ(Log(), "Start export (20000101000000)\r\n");
}

TEST_F(ExpGedcomToets, EenBestandVanDeSetWordtNietVervangen) {
  MaakFamilie();
  for (const char* naam : {"PROEF/PROEF.PRS", "PROEF/PROEF.OPM", "LIJNBOOM.INI"}) {
    const std::string eerst = LeesBytes(Map() / naam);
    Mislukt(Map() / naam, "! stop \"Bestand is in gebruik\"\n");
    EXPECT_EQ(LeesBytes(Map() / naam), eerst) << naam;
  }
  Mislukt(TekstMap() / "GEDCOM.LOG", "! stop \"Bestand is in gebruik\"\n");
}

TEST_F(ExpGedcomToets, EenVolleSchijfLaatStaanWatErStaat) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  Reeks(4000);
  const Taak taak = [](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.ActieveSetNaam = "PROEF";
    const VolleSchijf schijf(150000);
    ExpGedcom form(hoofd);
    hoofd.gesprek.ToonModaal(form);
  };
  Verwacht(Naar(Uit()) +
               "druk KiesPersButton\ndruk OKButton\ntoon AantalPersonen\ndruk OKButton\n"
               "druk BackButton\ndruk BackButton\n",
           taak, std::string(kOpen) + R"~(
      + ExpSelPers "Exporteer gegevens - Selecteer Personen"
      - ExpSelPers
      = AantalPersonen "4000"
      ! stop "Bestand te groot"
)~" + kVerslag + "- ExpGedcom\n");
  EXPECT_EQ(std::filesystem::file_size(Uit()), 150000U);
  EXPECT_TRUE(LeesBytes(Uit()).starts_with("0 HEAD\r\n"));
  EXPECT_EQ(Log(), "Start export (20000101000000)\r\n");
}

TEST_F(ExpGedcomToets, EenLeesfoutBijEenPersoonStaatInHetVerslag) {
  MaakFamilie();
  MaakGat(5);
  Speel(Naar(Uit()) + kKies + "druk OKButton\ndruk BackButton\n",
        std::string(kGekozen) + "! info \"Exporteren voltooid\"\n" + kVerslag);
  EXPECT_NE(LeesBytes(Uit()).find("0 @I5@ INDI\r\n0 @I6@ INDI\r\n"), std::string::npos);
  EXPECT_NE(
      Log().find(std::string("Leesfout bij Persoonsrecord 5. Record niet geëxporteerd.\r\n"_w)),
      std::string::npos);
}

}  // namespace
}  // namespace lb77
