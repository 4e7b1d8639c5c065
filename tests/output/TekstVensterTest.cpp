// What goes to the printer, and a file that changes while it is shown.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/Hoofdmodule.h"
#include "app/Klok.h"
#include "output/ToonTekst.h"
#include "steun/Bestandsstelsel.h"
#include "steun/SpeelToets.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

// A user who does what the test says with the one form that is shown, and a printer that keeps what
// it gets.
class Lezer final : public Gesprek {
 public:
  explicit Lezer(std::function<void(Formulier&)> doe) : doe_(std::move(doe)) {}

  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view tekst) override {
    berichten.emplace_back(tekst);
    return Antwoord::OK;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) override {
    vragen.push_back(vraag);
    return antwoord;
  }
  bool DrukAf(const Afdruk& afdruk) override {
    afdrukken.push_back(afdruk);
    return printerWerkt;
  }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

  bool printerWerkt = true;
  std::optional<std::filesystem::path> antwoord;
  std::vector<std::string> berichten;
  std::vector<BestandsVraag> vragen;
  std::vector<Afdruk> afdrukken;

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier& formulier) override { doe_(formulier); }
  void Dicht(Formulier&) override {}

 private:
  std::function<void(Formulier&)> doe_;
};

class TekstVensterTest : public ::testing::Test {
 protected:
  // Shows a file with this content and presses these buttons.
  void Druk(std::string_view inhoud, std::vector<std::string> knoppen) {
    SchrijfBytes(map_ / "uit.txt", inhoud);
    doe_ = [knoppen = std::move(knoppen)](Formulier& formulier) {
      for (const std::string& knop : knoppen) EXPECT_TRUE(formulier.Klik(*formulier.Zoek(knop)));
    };
    Toon();
  }
  void Toon() {
    Hoofdmodule hoofd(lezer_, klok_, map_.Pad());
    ToonTekst toon(hoofd, map_ / "uit.txt", "Rapport");
    lezer_.ToonModaal(toon);
  }
  static std::string Genummerd(int aantal) {
    std::string uit;
    for (int i = 1; i <= aantal; ++i) uit += "regel " + std::to_string(i) + "\n";
    return uit;
  }
  static std::string Regel1(const Formulier& formulier) {
    const auto& pagina = static_cast<const Tekstpagina&>(*formulier.Zoek("UitvoerBox"));
    return pagina.Regels().empty() ? "" : pagina.Regels().front();
  }

  using Regels = std::vector<std::string>;
  TijdelijkeMap map_;
  VasteKlok klok_{Tijdstip{2024, 1, 2, 3, 4, 5}};
  std::function<void(Formulier&)> doe_;
  Lezer lezer_{[this](Formulier& formulier) { doe_(formulier); }};
};

TEST_F(TekstVensterTest, AlleBladzijdenWordenPerRijKolomNaKolomGedrukt) {
  const std::string breed = std::string(80, 'a') + "bb";
  Druk(breed + "\n" + Genummerd(69), {"PrintButton(2)"});
  ASSERT_EQ(lezer_.afdrukken.size(), 1U);
  const Afdruk& afdruk = lezer_.afdrukken.front();
  EXPECT_EQ(afdruk.titel, "Rapport");
  ASSERT_EQ(afdruk.paginas.size(), 4U);
  ASSERT_EQ(afdruk.paginas[0].size(), 69U);
  EXPECT_EQ(afdruk.paginas[0][0], std::string(80, 'a'));
  EXPECT_EQ(afdruk.paginas[0][68], "regel 68");
  EXPECT_EQ(afdruk.paginas[1][0], "bb");
  EXPECT_EQ(afdruk.paginas[2], Regels{"regel 69"});
  EXPECT_EQ(afdruk.paginas[3], Regels{""});
  EXPECT_EQ(lezer_.berichten, Regels{"De tekst is naar de printer verstuurd."});
}

TEST_F(TekstVensterTest, DezeBladzijdeIsDieGetoondWordt) {
  Druk(Genummerd(70), {"MoveButton(4)", "PrintButton(1)"});
  ASSERT_EQ(lezer_.afdrukken.size(), 1U);
  EXPECT_EQ(lezer_.afdrukken.front().titel, "Rapport");
  EXPECT_EQ(lezer_.afdrukken.front().paginas, std::vector<Regels>{Regels{"regel 70"}});
}

TEST_F(TekstVensterTest, EenLosVelHeeftHetNummerDatHetOnderAlleVellenHeeft) {
  Druk(std::string(80, 'a') + "bb\n" + Genummerd(69) + "slot\n",
       {"PrintButton(1)", "MoveButton(2)", "PrintButton(1)", "MoveButton(1)", "MoveButton(4)",
        "PrintButton(1)", "PrintButton(2)"});
  ASSERT_EQ(lezer_.afdrukken.size(), 4U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(lezer_.afdrukken[i].eerste, i + 1);
    EXPECT_EQ(lezer_.afdrukken[i].totaal, 3U);  // nothing stands on the fourth
  }
  EXPECT_EQ(lezer_.afdrukken[3].eerste, 1U);
  EXPECT_EQ(lezer_.afdrukken[3].totaal, 0U);
}

TEST_F(TekstVensterTest, EenLeegBestandWordtGedruktZoalsHetGetoondWordt) {
  Druk("", {"PrintButton(1)", "PrintButton(2)"});
  ASSERT_EQ(lezer_.afdrukken.size(), 2U);
  for (const Afdruk& afdruk : lezer_.afdrukken) {
    EXPECT_EQ(afdruk.paginas, std::vector<Regels>{Regels{"<< Het bestand is leeg >>"}});
  }
}

TEST_F(TekstVensterTest, EenPrinterDieNietBereiktIsWordtNietBereiktGenoemd) {
  lezer_.printerWerkt = false;
  Druk("een\n", {"PrintButton(1)", "PrintButton(2)"});
  EXPECT_EQ(lezer_.afdrukken.size(), 2U);
  EXPECT_EQ(lezer_.berichten, Regels{});
}

TEST_F(TekstVensterTest, EenVerdwenenBladzijdeWordtNietGedrukt) {
  SchrijfBytes(map_ / "uit.txt", "een\n");
  doe_ = [this](Formulier& formulier) {
    std::filesystem::remove(map_ / "uit.txt");
    EXPECT_TRUE(formulier.Klik(*formulier.Zoek("PrintButton(1)")));
    EXPECT_TRUE(formulier.Klik(*formulier.Zoek("PrintButton(2)")));
  };
  Toon();
  EXPECT_TRUE(lezer_.afdrukken.empty());
  const std::string melding = "Fout bij het printen van de tekst.\nBestand niet gevonden";
  EXPECT_EQ(lezer_.berichten, (Regels{melding, melding}));
}

TEST_F(TekstVensterTest, EenBestandDatVerandertIsBijDeVolgendeStapZoalsHetIs) {
  SchrijfBytes(map_ / "uit.txt", Genummerd(140));
  doe_ = [this](Formulier& formulier) {
    SchrijfBytes(map_ / "uit.txt", "vooraf\n" + Genummerd(140));
    EXPECT_TRUE(formulier.Klik(*formulier.Zoek("MoveButton(4)")));
    EXPECT_EQ(Regel1(formulier), "regel 69");
    SchrijfBytes(map_ / "uit.txt", "kort\n");
    EXPECT_TRUE(formulier.Klik(*formulier.Zoek("MoveButton(3)")));
    EXPECT_EQ(Regel1(formulier), "kort");
    EXPECT_FALSE(formulier.Zoek("MoveButton(4)")->Ingeschakeld());
  };
  Toon();
}

// Saving gives every line CR LF, so that its pages begin elsewhere in the file.
TEST_F(TekstVensterTest, HetGetoondeBestandOverZichzelfBewaardHoudtZijnBladzijden) {
  lezer_.antwoord = map_ / "uit.txt";
  SchrijfBytes(map_ / "uit.txt", Genummerd(140));
  doe_ = [](Formulier& formulier) {
    EXPECT_TRUE(formulier.Klik(*formulier.Zoek("SaveButton")));
    EXPECT_TRUE(formulier.Klik(*formulier.Zoek("MoveButton(4)")));
    EXPECT_EQ(Regel1(formulier), "regel 70");
  };
  Toon();
}

TEST_F(TekstVensterTest, GeenFamilieEnGeenInstellingenWordenOverschreven) {
  constexpr std::string_view kIni = "[Systeem]\nSet=ABC\n[Sets]\nSet1=ABC,\nSet2=ANDER,\n";
  SchrijfBytes(map_ / "LIJNBOOM.INI", kIni);
  SchrijfBytes(map_ / "uit.txt", "een\n");
  for (const std::string_view set : {"ABC", "ANDER", "LOS"}) {
    const std::filesystem::path map = map_ / "DATA" / set;
    std::filesystem::create_directories(map);
    SchrijfBytes(map / (std::string(set) + ".PRS"), "personen");
  }
  Hoofdmodule hoofd(lezer_, klok_, map_.Pad());
  ASSERT_TRUE(hoofd.Ini.IniLees());
  hoofd.ActieveSetNaam = "LOS";
  doe_ = [](Formulier& formulier) { formulier.Klik(*formulier.Zoek("SaveButton")); };
  for (const std::string_view naam :
       {"DATA/ABC/ABC.PRS", "DATA/ANDER/ANDER.PRS", "DATA/LOS/LOS.PRS", "LIJNBOOM.INI"}) {
    lezer_.antwoord = map_ / naam;
    lezer_.berichten.clear();
    ToonTekst toon(hoofd, map_ / "uit.txt", "Rapport");
    lezer_.ToonModaal(toon);
    EXPECT_EQ(lezer_.berichten, Regels{"Fout bij het opslaan van de tekst.\nBestand is in gebruik"})
        << naam;
    EXPECT_EQ(LeesBytes(map_ / naam), naam == "LIJNBOOM.INI" ? kIni : "personen");
  }
}

TEST_F(TekstVensterTest, DeVraagWaarOpTeSlaanBegintInDeTekstmap) {
  SchrijfBytes(map_ / "LIJNBOOM.INI", "[Systeem]\nSet=ABC\n");
  std::filesystem::create_directories(map_ / "DATA/ABC/Tekst");
  SchrijfBytes(map_ / "uit.txt", "een\n");
  Hoofdmodule hoofd(lezer_, klok_, map_.Pad());
  ASSERT_TRUE(hoofd.Ini.IniLees());
  doe_ = [](Formulier& formulier) { formulier.Klik(*formulier.Zoek("SaveButton")); };
  ToonTekst toon(hoofd, map_ / "uit.txt", "Rapport");
  lezer_.ToonModaal(toon);
  ASSERT_EQ(lezer_.vragen.size(), 1U);
  EXPECT_EQ(lezer_.vragen.front().beginmap,
            map_ / (kKastTelt ? "DATA/ABC/Tekst" : "DATA/ABC/TEKST"));
}

}  // namespace
}  // namespace lb77
