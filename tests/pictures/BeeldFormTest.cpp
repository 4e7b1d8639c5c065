// The pictures from the prompt to the file, by script.
#include <gtest/gtest.h>

#include <functional>

#include "app/Start.h"
#include "pictures/BeeldPrs.h"
#include "pictures/SvgSchrijver.h"
#include "steun/FamilieToets.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class BeeldFormToets : public FamilieToets {
 protected:
  // Persons 2 to 7: Jan and Anna, their children Piet and Mia, Piet's wife Els and their child Wim.
  BeeldFormToets() {
    BouwFamilie& bouw = Bouw();
    const auto jan = bouw.Man("Jan Pieter", "de Vries",
                              {{"GebDatum", "00-00-1802"}, {"OvlDatum", "00-00-1870"}});
    const auto anna = bouw.Vrouw("Anna", "Kok");
    const auto piet = bouw.Man("Piet", "de Vries", {{"GebDatum", "00-00-1830"}});
    const auto mia = bouw.Persoon('?', "Mia", "de Vries");
    const auto els = bouw.Vrouw("Els", "Bos");
    const auto wim =
        bouw.Man("Wim", "de Vries", {{"GebDatum", "00-00-1861"}, {"OvlDatum", "00-00-1929"}});
    bouw.Relatie(jan, anna, {piet, mia});
    bouw.Relatie(piet, els, {wim});
    SchrijfBytes(Map() / "LIJNBOOM.INI",
                 "[Systeem]\r\nSet=PROEF\r\nDatumScheider=-\r\n[Printer]\r\nTekstbr=40\r\n");
  }

  // The transcript from the opening of the picture on, without its closing and that of the prompt.
  template <class Prompt, class... Args>
  void Speel(int nr, std::string_view draaiboek, std::string_view verslag, const Args&... args) {
    const Taak taak = [&](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      Prompt prompt(args..., hoofd);
      EXPECT_EQ(prompt.HulpOnderwerp(), "beelden");
      hoofd.gesprek.ToonModaal(prompt);
      gebleven_ = hoofd.volgers.HuidigPersoonNr;
    };
    Verwacht(vooraf_ + "vul RecordNr " + std::to_string(nr) + "\ndruk OKButton\n" +
                 std::string(draaiboek),
             taak, verslag);
  }
  void SpeelWaaier(int nr, std::string_view draaiboek, std::string_view verslag) {
    Speel<KwartierBeeldPrs>(
        nr, opties_ + "druk OKButton\n" + std::string(draaiboek),
        "+ WaaierPrs \"Waaier\"\n+ KwstSchParam \"Schema Kwartierstaat Uitvoeropties\"\n" +
            Regels(vanOpties_) +
            "- KwstSchParam\n+ KwstBereken \"Opbouwen Kwartierstaat\"\n- KwstBereken\n"
            "+ WaaierBeeld \"Waaier\"\n" +
            Regels(verslag) + "- WaaierBeeld\n- WaaierPrs\n",
        kWaaierPrs);
  }
  [[nodiscard]] std::string Bestand(std::string_view naam) const { return LeesBytes(Map() / naam); }

  std::string vooraf_;     // instructions ahead of the prompt
  std::string opties_;     // the same of the options
  std::string vanOpties_;  // what they say
  std::int16_t gebleven_ = -2;
};

TEST_F(BeeldFormToets, DeWaaierToontDeVoorouders) {
  SpeelWaaier(7, "toon Beeld\ntoon GeneratiesBox\ntoon VellenLabel\ndruk BackButton", R"(
    = Beeld "Wim de Vries 1861-1929"
    #0 "Wim de Vries 1861-1929"
    #1 "Piet de Vries 1830-"
    #2 "Els Bos"
    #3 "Jan Pieter de Vries 1802-1870"
    #4 "Anna Kok"
    = GeneratiesBox "3"
    #0 "1"
    #1 "2"
    #2 "3"
    = VellenLabel "Een PDF van 1 vel papier"
  )");
  EXPECT_EQ(gebleven_, 0);
}

TEST_F(BeeldFormToets, DeKeuzenVeranderenHetBeeld) {
  SpeelWaaier(7, R"(
      stel GeneratiesBox 2
      stel NummerBox Kwartiernummers
      stel OokJaarBox Nee
      toon Beeld
      stel NummerBox Persoonsnummers
      toon Beeld
      druk BackButton
    )",
              R"(
      = Beeld "1. Wim de Vries"
      #0 "1. Wim de Vries"
      #1 "2. Piet de Vries"
      #2 "3. Els Bos"
      = Beeld "7 Wim de Vries"
      #0 "7 Wim de Vries"
      #1 "4 Piet de Vries"
      #2 "6 Els Bos"
    )");
}

TEST_F(BeeldFormToets, DeWaaierVolgtDeOptiesVanHetSchema) {
  opties_ = R"(
    toon BreedteGen
    toon UitlijnBox
    toon InHTMLBox
    toon OokNrsBox
    toon OokJaarBox
    toon Inleiding1
    toon CopyrightBox
    vul KwNrProband 4
    vul MaxGen 4
    vul TitelTekst Mijn kwartieren
  )";
  vanOpties_ = R"(
    = BreedteGen "8" [verborgen]
    = UitlijnBox "Nee" [verborgen]
    #0 "Ja"
    #1 "Nee"
    = InHTMLBox "Nee" [verborgen]
    #0 "Ja"
    #1 "Nee"
    = OokNrsBox "Nee" [verborgen]
    #0 "Ja"
    #1 "Nee"
    = OokJaarBox "Nee" [verborgen]
    #0 "Ja"
    #1 "Nee"
    = Inleiding1 "" [verborgen]
    = CopyrightBox "Ja" [verborgen]
    #0 "Ja"
    #1 "Nee"
  )";
  SpeelWaaier(
      7, "toon Beeld\ntoon GeneratiesBox\ntoon VormBox\nbestand\ndruk OKButton\ndruk BackButton",
      R"(
    = Beeld "4. Wim de Vries 1861-1929"
    #0 "4. Wim de Vries 1861-1929"
    #1 "8. Piet de Vries 1830-"
    #2 "9. Els Bos"
    = GeneratiesBox "2"
    #0 "1"
    #1 "2"
    #2 "3"
    = VormBox "Driekwart cirkel"
    #0 "Halve cirkel"
    #1 "Driekwart cirkel"
    #2 "Hele cirkel"
    > opslaan "SVG-tekening (*.svg)|*.svg|PDF-bestand (*.pdf)|*.pdf" -> -
  )");
  EXPECT_NE(Bestand("TEMP/BEELD.TMP").find("<title>Mijn kwartieren</title>"), std::string::npos);
}

TEST_F(BeeldFormToets, DeStamboomVolgtDeOptiesVanHetSchema) {
  Speel<StamBeeldPrs>(2, R"(
      stel ZonenBox Alle Zonen
      stel DochtersBox Alle Dochters
      stel OokPartnersBox Onder elkaar
      stel OokDatumsBox Jaartallen
      vul TitelTekst Mijn familie
      stel HorVerBox Verticaal
      druk OKButton
      toon Beeld
      toon VormBox
      toon NummerBox
      bestand
      druk OKButton
      druk BackButton
    )",
                      Regels(R"(
      + StamPrs "Stamboom van nakomelingen"
      + GenSchParam "Genealogie / Parenteel Schema Uitvoeropties"
      - GenSchParam
      + GenBereken "Opbouwen Genealogie / Parenteel"
      - GenBereken
      + StamBeeld "Stamboom van nakomelingen"
      = Beeld "Jan de Vries 1802-1870"
      #0 "Jan de Vries 1802-1870"
      #1 "Piet de Vries 1830-"
      #2 "Mia de Vries"
      #3 "Wim de Vries 1861-1929"
      = VormBox "Omlaag"
      #0 "Naar rechts"
      #1 "Omlaag"
      = NummerBox "Nee" [verborgen]
      #0 "Nee"
      #1 "Kwartiernummers"
      #2 "Persoonsnummers"
      > opslaan "SVG-tekening (*.svg)|*.svg|PDF-bestand (*.pdf)|*.pdf" -> -
      - StamBeeld
      - StamPrs
    )"));
  const std::string svg = Bestand("TEMP/BEELD.TMP");
  EXPECT_NE(svg.find("<title>Mijn familie</title>"), std::string::npos);
  EXPECT_NE(svg.find(">x Anna Kok</text>"), std::string::npos);
}

TEST_F(BeeldFormToets, DeStamboomStoptNaTerug) {
  Speel<StamBeeldPrs>(2, "druk BackButton", Regels(R"(
      + StamPrs "Stamboom van nakomelingen"
      + GenSchParam "Genealogie / Parenteel Schema Uitvoeropties"
      - GenSchParam
      - StamPrs
    )"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(BeeldFormToets, DePopulatiegrafiekTeltDeNazaten) {
  Speel<TijdBeeldPrs>(2, "toon KleurBox\ntoon KaartButton\ndruk BackButton", Regels(R"(
      + TijdPrs "Populatiegrafiek"
      + TijdBereken "Opbouwen Populatiegrafiek"
      - TijdBereken
      + TijdBeeld "Populatiegrafiek"
      = KleurBox "In kleur"
      #0 "In kleur"
      #1 "Zonder kleur"
      = KaartButton "Persoons&kaart..." [verborgen]
      - TijdBeeld
      - TijdPrs
    )"));
}

TEST_F(BeeldFormToets, ZonderStamouderIsErGeenPopulatiegrafiek) {
  Speel<TijdBeeldPrs>(1, "", Regels(R"(
      + TijdPrs "Populatiegrafiek"
      + TijdBereken "Opbouwen Populatiegrafiek"
      ! stop "Persoonsrecord 1 kan niet worden gelezen. Er is geen verslag gemaakt."
      - TijdBereken
      - TijdPrs
    )"));
  EXPECT_EQ(gebleven_, -1);
}

// A stop leaves the form open, so that the user sees how far it came.
TEST_F(BeeldFormToets, EenStopVanHetTellenToontGeenBeeld) {
  vooraf_ = "onderbreek 1\nantwoord Ja\n";
  Speel<TijdBeeldPrs>(2, "druk BackButton", Regels(R"(
      + TijdPrs "Populatiegrafiek"
      + TijdBereken "Opbouwen Populatiegrafiek"
      ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
      - TijdBereken
      - TijdPrs
    )"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(BeeldFormToets, HetBeeldWordtOpgeslagenAlsSvg) {
  const std::string pad = (Map() / "mijn waaier").string();
  SpeelWaaier(7, "bestand " + pad + "\ndruk OKButton\ndruk BackButton",
              "> opslaan \"SVG-tekening (*.svg)|*.svg|PDF-bestand (*.pdf)|*.pdf\" -> \"" + pad +
                  "\"\n! info \"Het beeld is opgeslagen.\"\n");
  const std::string svg = Bestand("mijn waaier.svg");
  EXPECT_NE(svg.find("<title>Kwartierstaat van Wim de Vries</title>"), std::string::npos);
  EXPECT_NE(svg.find("<title>Jan Pieter de Vries 1802-1870</title>"), std::string::npos);
}

TEST_F(BeeldFormToets, ZonderVensterIsErGeenPdf) {
  const std::string pad = (Map() / "waaier.PDF").string();
  SpeelWaaier(7, "bestand " + pad + "\ndruk OKButton\ndruk BackButton",
              "> opslaan \"SVG-tekening (*.svg)|*.svg|PDF-bestand (*.pdf)|*.pdf\" -> \"" + pad +
                  "\"\n! stop \"Fout bij het opslaan van het beeld.\\nEen PDF wordt alleen in het "
                  "venster van LB77 gemaakt.\"\n");
  EXPECT_FALSE(std::filesystem::exists(pad));
}

TEST_F(BeeldFormToets, WieGeenBestandKiestSlaatNietsOp) {
  SpeelWaaier(7, "bestand\ndruk OKButton\ndruk BackButton",
              "> opslaan \"SVG-tekening (*.svg)|*.svg|PDF-bestand (*.pdf)|*.pdf\" -> -\n");
}

TEST_F(BeeldFormToets, EenBeeldNeemtNooitDePlaatsVanDeInstellingen) {
  const std::string pad = (Map() / "LIJNBOOM.INI").string();
  const std::string ini = Bestand("LIJNBOOM.INI");
  SpeelWaaier(7, "bestand " + pad + "\ndruk OKButton\ndruk BackButton",
              "> opslaan \"SVG-tekening (*.svg)|*.svg|PDF-bestand (*.pdf)|*.pdf\" -> \"" + pad +
                  "\"\n! stop \"Fout bij het opslaan van het beeld.\\nBestand is in gebruik\"\n");
  EXPECT_EQ(Bestand("LIJNBOOM.INI").find("<svg"), std::string::npos);
  EXPECT_FALSE(ini.empty());
}

TEST_F(BeeldFormToets, EenBestandDatNietKanWordtGemeld) {
  const std::string pad = (Map() / "weg" / "waaier.svg").string();
  std::filesystem::create_directories(Map() / "TEMP");
  SpeelWaaier(7, "bestand " + pad + "\ndruk OKButton\ndruk BackButton",
              "> opslaan \"SVG-tekening (*.svg)|*.svg|PDF-bestand (*.pdf)|*.pdf\" -> \"" + pad +
                  "\"\n! stop \"Fout bij het opslaan van het beeld.\\nBestand niet "
                  "gevonden\"\n");
}

TEST_F(BeeldFormToets, EenTijdelijkBestandDatNietKanWordtGemeld) {
  const std::filesystem::path tijdelijk = Map() / "TEMP" / "BEELD.TMP";
  std::filesystem::create_directories(tijdelijk);
  SpeelWaaier(
      7, "druk OKButton\ndruk BackButton",
      "! stop \"Fout bij het schrijven van " + tijdelijk.string() + "\\nPad is een directory\"\n");
}

// A form with one large rectangle.
std::function<void(Hoofdmodule&)> Vlak(double breedte, double hoogte) {
  return [breedte, hoogte](Hoofdmodule& hoofd) {
    hoofd.gesprek.Toon<BeeldForm>(kTijdBeeld, hoofd, 0, [breedte, hoogte](const BeeldKeuzen&) {
      Tekening tekening;
      tekening.breedte = breedte;
      tekening.hoogte = hoogte;
      tekening.vormen.assign(2, {.wat = Rechthoek{0, 0, breedte, hoogte}});
      return tekening;
    });
  };
}

TEST_F(BeeldFormToets, HetVelVanEenBeeldZegtHoeGrootHetIs) {
  for (const auto& [breedte, tekst] :
       {std::pair{2000.0, "Een PDF van 1 vel papier van 71 bij 25 cm"},
        std::pair{20000.0,
                  "Een PDF van 1 vel papier van 706 bij 25 cm, "
                  "groter dan de meeste programma's tonen"}}) {
    Verwacht("stel PapierBox Zo groot als het beeld\ntoon VellenLabel\ndruk BackButton",
             Vlak(breedte, 700),
             "+ TijdBeeld \"Populatiegrafiek\"\n= VellenLabel \"" + std::string(tekst) +
                 "\"\n- TijdBeeld\n");
  }
}

TEST_F(BeeldFormToets, HetPapierTeltDeVellen) {
  Verwacht(R"(
      toon VellenLabel
      stel VerdeelBox Ware grootte
      toon VellenLabel
      stel StandBox Staand
      toon VellenLabel
      stel PapierBox A0
      toon VellenLabel
      druk BackButton
    )",
           Vlak(1200, 700), R"~(
      + TijdBeeld "Populatiegrafiek"
      = VellenLabel "Een PDF van 1 vel papier"
      = VellenLabel "Een PDF van 4 vellen papier (2 breed, 2 hoog)"
      = VellenLabel "Een PDF van 3 vellen papier (3 breed, 1 hoog)"
      = VellenLabel "Een PDF van 1 vel papier"
      - TijdBeeld
    )~");
}

// By the button, a double click and Enter; who is chosen stays so.
TEST_F(BeeldFormToets, DeKaartVanEenPersoonGaatOpen) {
  for (const std::string_view weg : {"druk KaartButton", "dubbelklik Beeld", "toets Beeld Enter"}) {
    SpeelWaaier(7,
                "stel Beeld #1\n" + std::string(weg) +
                    "\ndruk BackButton\ntoon NummerBox\n"
                    "druk BackButton",
                R"(
      + ToonPersoon "Toon Persoon"
      - ToonPersoon
      = NummerBox "Nee"
      #0 "Nee"
      #1 "Kwartiernummers"
      #2 "Persoonsnummers"
    )");
  }
}

TEST_F(BeeldFormToets, WieNietTeLezenIsHoudtZijnPlaats) {
  BeeldPersonen personen;
  Stil([&](Hoofdmodule& hoofd) {
    KwstTabel tabel;
    tabel.Begin(2, true, Kwartiernummer("1"));
    EXPECT_TRUE(tabel.VoegToe(99, 0, false));
    EXPECT_TRUE(tabel.VoegToe(98, 0, true));
    personen = LeesKwartieren(tabel, {.generaties = 2}, hoofd.MaakGegevens());
  });
  ASSERT_EQ(personen.size(), 3U);
  EXPECT_EQ(personen[0].voornamen, "Jan Pieter");
  EXPECT_EQ(personen[1].voornamen, "<onbekend>");
  EXPECT_EQ(personen[1].geslacht, Geslacht::Onbekend);
  EXPECT_TRUE(personen[2].moeder);
}

TEST_F(BeeldFormToets, EenHerhalingZegtWaarHijStaat) {
  BeeldPersonen personen;
  Stil([&](Hoofdmodule& hoofd) {
    KwstTabel tabel;
    tabel.Begin(7, true, Kwartiernummer("1"));
    EXPECT_TRUE(tabel.VoegToe(2, 0, false));
    EXPECT_TRUE(tabel.VoegToe(2, 1, false));
    personen = LeesKwartieren(tabel, {3, Nummering::Kwartier, false}, hoofd.MaakGegevens());
  });
  ASSERT_EQ(personen.size(), 3U);
  EXPECT_EQ(personen[2].nummer, "4.");
  EXPECT_EQ(personen[2].elders, "= 2");
  EXPECT_TRUE(personen[1].elders.empty());
  EXPECT_TRUE(personen[1].datums.empty());
}

}  // namespace
}  // namespace lb77
