#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "app/Hoofdmodule.h"
#include "app/Klok.h"
#include "output/ToonTekst.h"
#include "steun/SpeelToets.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

constexpr std::string_view kLosFilter =
    R"("Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt")";

class ToonTekstTest : public SpeelToets {
 protected:
  ToonTekstTest() { basismap_ = map_.Pad(); }

  // The program that shows the file "uit.txt" with this content.
  Programma Toont(std::string_view inhoud, bool html = false) {
    SchrijfBytes(map_ / "uit.txt", inhoud);
    return ToontBestand(html);
  }
  Programma ToontBestand(bool html = false) {
    return [this, html](Gesprek& gesprek) {
      Hoofdmodule hoofd(gesprek, klok_, map_.Pad());
      ToonTekst toon(hoofd, map_ / "uit.txt", "Rapport", html);
      gesprek.ToonModaal(toon);
    };
  }
  // `aantal` numbered lines.
  static std::string Genummerd(int aantal) {
    std::string uit;
    for (int i = 1; i <= aantal; ++i) uit += "regel " + std::to_string(i) + "\r\n";
    return uit;
  }
  // What `toon UitvoerBox` tells of a file with this content.
  std::string Pagina(std::string_view inhoud, std::string_view ervoor = "") {
    const SpeelUitslag uitslag =
        Speel(std::string(ervoor) + "\ntoon UitvoerBox\ndruk BackButton", Toont(inhoud));
    EXPECT_EQ(uitslag.reden, "");
    const std::size_t van = verslag_.find("= UitvoerBox ");
    return verslag_.substr(van + 13, verslag_.find('\n', van) - van - 13);
  }

  TijdelijkeMap map_;
  VasteKlok klok_{Tijdstip{2024, 1, 2, 3, 4, 5}};
};

TEST_F(ToonTekstTest, ToontDeEersteBladzijde) {
  Verwacht(R"(
      toon
      druk BackButton
    )",
           Toont("een\r\ntwee\r\n"), R"(
      + ToonTekst "Rapport"
      : ToonTekst "Rapport"
      = ZoekTekst ""
      = ZoekButton "&Volgende"
      = ZoekLabel ""
      = UTF8Box uit
      = BrowserButton "Open in bro&wser" [verborgen]
      = UitvoerBox "een\ntwee"
      = XY_label "pagina 1,1"
      = MoveButton(1) "Naar &links" [uit]
      = MoveButton(2) "Naar &rechts" [uit]
      = MoveButton(3) "Om&hoog" [uit]
      = MoveButton(4) "O&mlaag" [uit]
      = PrintButton(1) "&Print deze"
      = PrintButton(2) "Print &Alles"
      = SaveButton "&Opslaan Als"
      = BackButton "&Terug"
      * BackButton
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, EscapeEnHetKaderSluiten) {
  for (const std::string weg : {"toets Escape", "sluit"}) {
    Verwacht(weg, Toont("een\r\n"), "+ ToonTekst \"Rapport\"\n- ToonTekst\n");
  }
}

TEST_F(ToonTekstTest, EenLeegBestandZegtHetOpZijnEneBladzijde) {
  Verwacht(R"(
      toon UitvoerBox
      toon XY_label
      druk PrintButton(2)
      druk BackButton
    )",
           Toont(""), R"(
      + ToonTekst "Rapport"
      = UitvoerBox "<< Het bestand is leeg >>"
      = XY_label "pagina 1,1"
      % afdruk 1
      ! info "De tekst is naar de printer verstuurd."
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, EenBestandDatErNietIsMeldtWaarom) {
  Verwacht(R"(
      toon
      druk BackButton
    )",
           ToontBestand(), R"(
      + ToonTekst "Rapport"
      : ToonTekst "Rapport"
      = ZoekTekst ""
      = ZoekButton "&Volgende"
      = ZoekLabel ""
      = UTF8Box uit
      = BrowserButton "Open in bro&wser" [verborgen]
      = UitvoerBox "Fout: Bestand niet gevonden"
      = XY_label "pagina 1,1"
      = MoveButton(1) "Naar &links" [uit]
      = MoveButton(2) "Naar &rechts" [uit]
      = MoveButton(3) "Om&hoog" [uit]
      = MoveButton(4) "O&mlaag" [uit]
      = PrintButton(1) "&Print deze" [uit]
      = PrintButton(2) "Print &Alles" [uit]
      = SaveButton "&Opslaan Als" [uit]
      = BackButton "&Terug"
      * BackButton
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, EenMapIsGeenBestand) {
  std::filesystem::create_directory(map_ / "uit.txt");
  EXPECT_EQ(Speel("toon UitvoerBox\ndruk BackButton", ToontBestand()).status, 0);
  EXPECT_NE(verslag_.find("= UitvoerBox \"Fout: "), std::string::npos) << verslag_;
}

TEST_F(ToonTekstTest, EenBestandVanZeventigRegelsHeeftTweeRijen) {
  Verwacht(R"(
      druk MoveButton(4)
      toon UitvoerBox
      toon XY_label
      toon MoveButton(3)
      toon MoveButton(4)
      druk MoveButton(3)
      toon XY_label
      druk BackButton
    )",
           Toont(Genummerd(70)), R"(
      + ToonTekst "Rapport"
      = UitvoerBox "regel 70"
      = XY_label "pagina 1,2"
      = MoveButton(3) "Om&hoog"
      = MoveButton(4) "O&mlaag" [uit]
      = XY_label "pagina 1,1"
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, EenBestandVanNegenenzestigRegelsHeeftEenRij) {
  Verwacht("toon MoveButton(4)\ndruk BackButton", Toont(Genummerd(69)), R"(
      + ToonTekst "Rapport"
      = MoveButton(4) "O&mlaag" [uit]
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, EenJuistVolleRegelMaaktEenLegeTweedeKolom) {
  Verwacht(R"(
      druk MoveButton(2)
      toon UitvoerBox
      toon XY_label
      toon MoveButton(2)
      druk PrintButton(2)
      druk BackButton
    )",
           Toont(std::string(80, 'x') + "\r\nkort\r\n"), R"(
      + ToonTekst "Rapport"
      = UitvoerBox "\n"
      = XY_label "pagina 2,1"
      = MoveButton(2) "Naar &rechts" [uit]
      % afdruk 2
      ! info "De tekst is naar de printer verstuurd."
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, EenRegelVanNegenenzeventigMaaktEenKolom) {
  Verwacht("toon MoveButton(2)\ndruk BackButton", Toont(std::string(79, 'x')), R"(
      + ToonTekst "Rapport"
      = MoveButton(2) "Naar &rechts" [uit]
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, EenLangeRegelGaatInDeVolgendeKolomVerder) {
  const std::string regel = std::string(80, 'a') + std::string(80, 'b') + "c";
  EXPECT_EQ(Pagina(regel), "\"" + std::string(80, 'a') + "\"");
  EXPECT_EQ(Pagina(regel, "druk MoveButton(2)"), "\"" + std::string(80, 'b') + "\"");
  EXPECT_EQ(Pagina(regel, "druk MoveButton(2)\ndruk MoveButton(2)"), "\"c\"");
}

TEST_F(ToonTekstTest, DeToetsenGaanOverDeBladzijden) {
  Verwacht(R"(
      toets PageDown
      toon XY_label
      toets Right
      toon XY_label
      toets Down
      toon XY_label
      toets Up
      toon XY_label
      toets Left
      toon XY_label
      toets PageUp
      toon XY_label
      toets PageUp
      toets Left
      toon XY_label
      druk BackButton
    )",
           Toont(Genummerd(200) + std::string(100, 'x')), R"(
      + ToonTekst "Rapport"
      = XY_label "pagina 1,2"
      = XY_label "pagina 2,2"
      = XY_label "pagina 2,3"
      = XY_label "pagina 2,2"
      = XY_label "pagina 1,2"
      = XY_label "pagina 1,1"
      = XY_label "pagina 1,1"
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, DruktEenBladzijdeOfAlle) {
  Verwacht(R"(
      druk PrintButton(1)
      druk PrintButton(2)
      druk BackButton
    )",
           Toont(Genummerd(200) + std::string(100, 'x')), R"(
      + ToonTekst "Rapport"
      % afdruk 1
      ! info "De tekst is naar de printer verstuurd."
      % afdruk 6
      ! info "De tekst is naar de printer verstuurd."
      - ToonTekst
    )");
}

TEST_F(ToonTekstTest, RegeleindenVanElkSoortTellen) {
  EXPECT_EQ(Pagina("een\r\ntwee\ndrie\rvier"), R"("een\ntwee\ndrie\nvier")");
  EXPECT_EQ(Pagina("\r\n\n\r"), R"("\n\n")");
  EXPECT_EQ(Pagina("een\r\r\ntwee"), R"("een\n\ntwee")");
}

TEST_F(ToonTekstTest, EenNulbyteStaatErAlsBlanco) {
  EXPECT_EQ(Pagina(std::string_view("a\0b\0", 4)), "\"a b \"");
}

TEST_F(ToonTekstTest, CrLfOverTweeBlokkenIsEenRegeleinde) {
  const std::string lang(65535, 'x');
  std::string verwacht = "\"" + std::string(80, 'x') + "\\n";
  EXPECT_EQ(Pagina(lang + "\r\neinde\r\n"), verwacht + "einde\"");
  EXPECT_EQ(Pagina(lang + "\reinde"), verwacht + "einde\"");
  EXPECT_EQ(Pagina(lang + "\r"), "\"" + std::string(80, 'x') + "\"");
}

TEST_F(ToonTekstTest, BladzijdenAchterRegelsVanEenMegabyteWordenGevonden) {
  std::string inhoud = Genummerd(68) + std::string(1000000, 'x') + "\r\nachter\r\n";
  EXPECT_EQ(Pagina(inhoud, "druk MoveButton(4)"), "\"achter\"");
}

TEST_F(ToonTekstTest, EenBestandDatVerdwijntZegtHetBijDeVolgendeStap) {
  const Programma toont = Toont(Genummerd(70));
  const auto programma = [this, &toont](Gesprek& gesprek) {
    Hoofdmodule hoofd(gesprek, klok_, map_.Pad());
    ToonTekst toon(hoofd, map_ / "uit.txt", "Rapport");
    toon.MoveButton(4).BijBetreden([this] { std::filesystem::remove(map_ / "uit.txt"); });
    gesprek.ToonModaal(toon);
  };
  Verwacht(R"(
      druk MoveButton(4)
      toon UitvoerBox
      druk PrintButton(2)
      bestand nieuw.txt
      druk SaveButton
      druk BackButton
    )",
           programma,
           std::string(R"(
      + ToonTekst "Rapport"
      = UitvoerBox "Fout: Bestand niet gevonden"
      ! stop "Fout bij het printen van de tekst.\nBestand niet gevonden"
      > opslaan )") +
               std::string(kLosFilter) +
               R"( -> "nieuw.txt"
      ! stop "Fout bij het opslaan van de tekst.\nBestand niet gevonden"
      - ToonTekst
    )");
  EXPECT_FALSE(std::filesystem::exists(map_ / "nieuw.txt"));
}

TEST_F(ToonTekstTest, BewaartRegelVoorRegel) {
  Verwacht(R"(
      bestand kopie.txt
      druk SaveButton
      druk BackButton
    )",
           Toont("een\ntwee\r\ndrie"), R"(
      + ToonTekst "Rapport"
      > opslaan "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt" -> "kopie.txt"
      ! info "De tekst is opgeslagen."
      - ToonTekst
    )");
  EXPECT_EQ(LeesBytes(map_ / "kopie.txt"), "een\r\ntwee\r\ndrie\r\n");
}

TEST_F(ToonTekstTest, HtmlBiedtEigenSoortenBestandAan) {
  Verwacht(R"(
      bestand kopie.htm
      druk SaveButton
      druk BackButton
    )",
           Toont("<HTML>\r\n", true), R"(
      + ToonTekst "Rapport"
      > opslaan "Alle Bestanden (*.*)|*.*|Internetbestanden (*.htm)|*.htm|Internetbestanden (*.html)|*.html" -> "kopie.htm"
      ! info "De tekst is opgeslagen."
      - ToonTekst
    )");
  EXPECT_EQ(LeesBytes(map_ / "kopie.htm"), "<HTML>\r\n");
}

TEST_F(ToonTekstTest, OpslaanAnnulerenVerandertNiets) {
  Verwacht("bestand\ndruk SaveButton\ndruk BackButton", Toont("een\r\n"),
           "+ ToonTekst \"Rapport\"\n> opslaan " + std::string(kLosFilter) + " -> -\n- ToonTekst");
}

TEST_F(ToonTekstTest, OpslaanOverHetGetoondeBestandBehoudtHet) {
  Speel("bestand uit.txt\ndruk SaveButton\ndruk BackButton", Toont("een\ntwee\n"));
  EXPECT_EQ(LeesBytes(map_ / "uit.txt"), "een\r\ntwee\r\n");
}

TEST_F(ToonTekstTest, MisluktOpslaanLaatWatErWas) {
  std::filesystem::create_directories(map_ / "bezet" / "vol");
  SchrijfBytes(map_ / "bezet/vol/oud.txt", "oud");
  EXPECT_EQ(Speel("bestand bezet\ndruk SaveButton\ndruk BackButton", Toont("een\r\n")).status, 0);
  EXPECT_NE(verslag_.find(R"(! stop "Fout bij het opslaan van de tekst.\n)"), std::string::npos)
      << verslag_;
  EXPECT_EQ(LeesBytes(map_ / "bezet/vol/oud.txt"), "oud");
  EXPECT_FALSE(std::filesystem::exists(map_ / "bezet.nieuw"));
}

TEST_F(ToonTekstTest, OpslaanInEenVerdwenenMapZegtWaarom) {
  Speel("bestand weg/kopie.txt\ndruk SaveButton\ndruk BackButton", Toont("een\r\n"));
  EXPECT_NE(verslag_.find(R"(! stop "Fout bij het opslaan van de tekst.\n)"), std::string::npos)
      << verslag_;
}

}  // namespace
}  // namespace lb77
