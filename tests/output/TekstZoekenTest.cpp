// Searching in a text, its keys, and what the viewer does on a desktop.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "app/Hoofdmodule.h"
#include "app/Klok.h"
#include "forms/Bureaublad.h"
#include "output/ToonTekst.h"
#include "steun/SpeelToets.h"
#include "steun/TijdelijkeMap.h"
#include "text/Letterlijk.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

// A user at a desktop, who does what the test says.
class Desktop final : public Gesprek, public Bureaublad {
 public:
  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view tekst) override {
    berichten.emplace_back(tekst);
    NoteerGetoond(WindowsNaarUtf8(tekst));
    return Antwoord::OK;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override {
    ADD_FAILURE() << "a desktop is asked for a name to save under";
    return std::nullopt;
  }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }
  [[nodiscard]] bool OpenInBrowser(const std::filesystem::path& pad) override {
    geopend.push_back(pad);
    return browser;
  }
  [[nodiscard]] std::optional<std::filesystem::path> VraagOpslag(
      const BestandsVraag&, const std::filesystem::path& naam) override {
    namen.push_back(naam.string());
    return antwoord;
  }

  std::function<void(Formulier&)> doe;
  bool browser = true;
  std::optional<std::filesystem::path> antwoord;
  std::vector<std::string> berichten;
  std::vector<std::string> namen;
  std::vector<std::filesystem::path> geopend;

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier& formulier) override { doe(formulier); }
  void Dicht(Formulier&) override {}
};

class TekstZoekenTest : public ::testing::Test {
 protected:
  void Lees(std::string_view inhoud, const std::function<void(ToonTekst&)>& doe, bool html = false,
            std::string_view titel = "Rapport") {
    SchrijfBytes(map_ / "uit.txt", inhoud);
    desktop_.doe = [&doe](Formulier& formulier) { doe(static_cast<ToonTekst&>(formulier)); };
    Hoofdmodule hoofd(desktop_, klok_, map_.Pad());
    ToonTekst toon(hoofd, map_ / "uit.txt", titel, html);
    desktop_.ToonModaal(toon);
  }
  static void Zoek(ToonTekst& toon, std::string_view tekst) {
    toon.GaNaar(toon.ZoekTekst);
    toon.Bewerkt(toon.ZoekTekst, tekst);
    EXPECT_TRUE(toon.Toets(&toon.ZoekTekst, {.code = toets::kEnter}));
  }
  // "pagina k,r regel kolom lengte", the mark on the page.
  static std::string Stand(const ToonTekst& toon) {
    const Vindpagina::Plek& plek = toon.UitvoerBox.Gemerkt();
    return toon.XY_label.Bijschrift().substr(7) + " " + std::to_string(plek.regel) + " " +
           std::to_string(plek.kolom) + " " + std::to_string(plek.lengte);
  }
  static std::string Gelijk(int aantal, const std::string& regel) {
    std::string uit;
    for (int i = 0; i < aantal; ++i) uit += regel + "\n";
    return uit;
  }

  TijdelijkeMap map_;
  VasteKlok klok_{Tijdstip{2024, 1, 2, 3, 4, 5}};
  Desktop desktop_;
};

TEST_F(TekstZoekenTest, EnterGaatNaarDeVolgendePlaatsEnAchterDeLaatsteNaarDeEerste) {
  Lees(std::string("een\ntwee Müller\n"_w) + Gelijk(70, "") + "MULLER muller\n",
       [](ToonTekst& toon) {
         Zoek(toon, "müller"_w);
         EXPECT_EQ(Stand(toon), "1,1 1 5 6");
         EXPECT_EQ(toon.ZoekLabel.Bijschrift(), "regel 2");
         toon.Klik(toon.ZoekButton);
         EXPECT_EQ(Stand(toon), "1,2 3 0 6");
         EXPECT_EQ(toon.ZoekLabel.Bijschrift(), "regel 73");
         EXPECT_TRUE(toon.Toets(&toon.ZoekButton, {.code = toets::kF1 + 2}));
         EXPECT_EQ(Stand(toon), "1,2 3 7 6");
         Zoek(toon, "muller");
         EXPECT_EQ(Stand(toon), "1,1 1 5 6");
       });
}

TEST_F(TekstZoekenTest, EenTrefferRechtsToontZijnKolom) {
  Lees(std::string(100, '.') + "Jan\n", [](ToonTekst& toon) {
    Zoek(toon, "jan");
    EXPECT_EQ(Stand(toon), "2,1 0 20 3");
  });
}

TEST_F(TekstZoekenTest, EenTrefferOverDeRandWordtTotDeRandGemerkt) {
  Lees(std::string(78, '.') + "Johannes\n", [](ToonTekst& toon) {
    Zoek(toon, "johannes");
    EXPECT_EQ(Stand(toon), "1,1 0 78 2");
  });
}

TEST_F(TekstZoekenTest, EenTrefferInEenRegelVanMeerDanEenBlokWordtGevonden) {
  const std::string lang(200001, 'x');
  Lees("a\n" + lang + "Jan" + lang + "Jan\n", [&](ToonTekst& toon) {
    Zoek(toon, "xjan");
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 2501,1");
    EXPECT_EQ(toon.UitvoerBox.Gemerkt().kolom, 0);
    toon.Klik(toon.ZoekButton);
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 5001,1");
    EXPECT_EQ(toon.UitvoerBox.Gemerkt().kolom, 4);
  });
}

TEST_F(TekstZoekenTest, WatErNietStaatLaatDeBladzijdeStaan) {
  Lees(Gelijk(100, "tekst"), [](ToonTekst& toon) {
    toon.Klik(toon.MoveButton(4));
    Zoek(toon, "niets");
    EXPECT_EQ(Stand(toon), "1,2 0 0 0");
    EXPECT_EQ(toon.ZoekLabel.Bijschrift(), "Niet gevonden");
    toon.Bewerkt(toon.ZoekTekst, "niet");
    EXPECT_EQ(toon.ZoekLabel.Bijschrift(), "");
  });
}

TEST_F(TekstZoekenTest, ZoekenBegintOpDeBladzijdeDieGetoondWordt) {
  Lees(Gelijk(140, "tekst"), [](ToonTekst& toon) {
    toon.Klik(toon.MoveButton(4));
    Zoek(toon, "tekst");
    EXPECT_EQ(Stand(toon), "1,2 0 0 5");
    toon.Klik(toon.MoveButton(3));
    EXPECT_EQ(Stand(toon), "1,1 0 0 0");
  });
}

TEST_F(TekstZoekenTest, ZonderWoordGaatDeFocusNaarHetVeld) {
  Lees("een\n", [](ToonTekst& toon) {
    toon.Klik(toon.ZoekButton);
    EXPECT_EQ(toon.FocusVeld(), &toon.ZoekTekst);
    EXPECT_EQ(toon.ZoekLabel.Bijschrift(), "");
  });
}

TEST_F(TekstZoekenTest, EenVerdwenenBestandZegtWaarom) {
  Lees("een\n", [this](ToonTekst& toon) {
    std::filesystem::remove(map_ / "uit.txt");
    Zoek(toon, "een");
    EXPECT_EQ(toon.ZoekLabel.Bijschrift(), "Fout: Bestand niet gevonden");
  });
}

TEST_F(TekstZoekenTest, InHetZoekveldZijnPijlenVanDeLetters) {
  Lees(std::string(100, 'a') + "\n" + Gelijk(140, "b"), [](ToonTekst& toon) {
    toon.GaNaar(toon.ZoekTekst);
    EXPECT_FALSE(toon.Toets(&toon.ZoekTekst, {.code = toets::kRechts}));
    EXPECT_FALSE(toon.Toets(&toon.ZoekTekst, {.code = toets::kEnd}));
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 1,1");
    EXPECT_TRUE(toon.Toets(&toon.ZoekTekst, {.code = toets::kPageDown}));
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 1,2");
    toon.GaNaar(toon.BackButton);
    EXPECT_TRUE(toon.Toets(&toon.BackButton, {.code = toets::kRechts}));
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 2,2");
    EXPECT_TRUE(toon.Toets(&toon.BackButton, {.code = toets::kEnd}));
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 2,3");
    EXPECT_TRUE(toon.Toets(&toon.BackButton, {.code = toets::kHome}));
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 2,1");
  });
}

TEST_F(TekstZoekenTest, HetWielSlaatBladzijdenOm) {
  Lees(Gelijk(140, "b"), [](ToonTekst& toon) {
    Bladeraar& wiel = toon;
    wiel.Blader(1);
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 1,2");
    wiel.Blader(-1);
    wiel.Blader(-1);
    EXPECT_EQ(toon.XY_label.Bijschrift(), "pagina 1,1");
  });
}

TEST_F(TekstZoekenTest, CtrlMetEenLetterStaatVoorEenKnopOfVeld) {
  Lees("een\n", [](ToonTekst& toon) {
    EXPECT_EQ(toon.BijCtrl('P'), &toon.PrintButton(2));
    EXPECT_EQ(toon.BijCtrl('S'), &toon.SaveButton);
    EXPECT_EQ(toon.BijCtrl('F'), &toon.ZoekTekst);
    EXPECT_EQ(toon.BijCtrl('Q'), nullptr);
  });
}

TEST_F(TekstZoekenTest, AlleenEenInternetpaginaOpentInDeBrowser) {
  Lees("een\n", [](ToonTekst& toon) {
    EXPECT_FALSE(toon.BrowserButton.Zichtbaar());
    EXPECT_TRUE(toon.UTF8Box.Zichtbaar());
  });
  const auto open = [](ToonTekst& toon) {
    EXPECT_FALSE(toon.UTF8Box.Zichtbaar());
    EXPECT_TRUE(toon.Klik(toon.BrowserButton));
  };
  Lees("<HTML>\n", open, true);
  EXPECT_EQ(desktop_.geopend, std::vector{map_ / "uit.txt"});
  EXPECT_TRUE(desktop_.berichten.empty());
  desktop_.browser = false;
  Lees("<HTML>\n", open, true);
  EXPECT_EQ(desktop_.berichten,
            std::vector<std::string>{"Er is geen browser gevonden om het verslag te tonen."});
}

TEST_F(TekstZoekenTest, OpslaanSteltEenNaamVoorNaarTitelEnSoort) {
  const auto bewaar = [](ToonTekst& toon) { toon.Klik(toon.SaveButton); };
  Lees("een\n", bewaar, false, "Kwartierstaat: 1/2");
  Lees("<HTML>\n", bewaar, true, "Genealogie");
  EXPECT_EQ(desktop_.namen, (std::vector<std::string>{"Kwartierstaat- 1-2.txt", "Genealogie.htm"}));
  EXPECT_TRUE(desktop_.berichten.empty());
}

TEST_F(TekstZoekenTest, OpslaanKanInUtf8) {
  desktop_.antwoord = map_ / "bewaard.txt";
  Lees("Müller\n"_w, [](ToonTekst& toon) { toon.Klik(toon.SaveButton); });
  EXPECT_EQ(LeesBytes(map_ / "bewaard.txt"), "Müller\r\n"_w);
  Lees("Müller\n"_w, [](ToonTekst& toon) {
    toon.Klik(toon.UTF8Box);
    toon.Klik(toon.SaveButton);
  });
  EXPECT_EQ(LeesBytes(map_ / "bewaard.txt"), "M\xC3\xBCller\r\n");
}

TEST_F(TekstZoekenTest, WatAlUtf8IsBlijftZoals) {
  desktop_.antwoord = map_ / "bewaard.txt";
  const auto bewaar = [](ToonTekst& toon) {
    toon.Klik(toon.UTF8Box);
    toon.Klik(toon.SaveButton);
  };
  Lees("M\xC3\xBCller\n", bewaar);
  EXPECT_EQ(LeesBytes(map_ / "bewaard.txt"), "M\xC3\xBCller\r\n");
  Lees("M\xC3\xBCller M\xFCller\n", bewaar);
  EXPECT_EQ(LeesBytes(map_ / "bewaard.txt"), "M\xC3\x83\xC2\xBCller M\xC3\xBCller\r\n");
  Lees("M\xC3\xBCller\nM\xC3\n", bewaar);
  EXPECT_EQ(LeesBytes(map_ / "bewaard.txt"), "M\xC3\x83\xC2\xBCller\r\nM\xC3\x83\r\n");
}

}  // namespace
}  // namespace lb77
