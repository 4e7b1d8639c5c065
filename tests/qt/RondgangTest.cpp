// A whole session on real windows: a new set, an import, a Kwartierstaat, the viewer.
#include <gmock/gmock.h>

#include <QLabel>
#include <QPlainTextEdit>

#include "Formulierproef.h"
#include "Piloot.h"
#include "app/Klok.h"
#include "program/Programma.h"
#include "qt/Hoofdvenster.h"
#include "steun/Plekken.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

class RondgangTest : public Formulierproef {
 protected:
  void Menu(const char* keuze) {
    auto& hoofd = dynamic_cast<Hoofdvenster&>(Bovenste());
    ASSERT_TRUE(hoofd.Actie(keuze)->isEnabled()) << keuze;
    hoofd.Actie(keuze)->trigger();
  }
  void Druk(const char* naam) { QTest::mouseClick(&Vind(naam), Qt::LeftButton); }
  void Vul(const char* naam, const char* tekst) {
    Druk(naam);
    Typ(tekst);
  }
  QString Pagina() { return Vind<QPlainTextEdit>("UitvoerBox").toPlainText(); }

  std::vector<Piloot::Stap> MaakSet() {
    return {{"MenuWindow", [this] { Menu("MaakSet"); }}, {"NieuweSet", [this] {
                                                            Vul("SetNaam", "oranje");
                                                            Vul("SetOmsch", "Huis Oranje-Nassau");
                                                            Druk("OKButton");
                                                          }}};
  }
  std::vector<Piloot::Stap> Importeer() {
    return {{"MenuWindow", [this] { Menu("ImportGedcom"); }},
            {"ImpGedcom",
             [this] {
               Bestand((BronMap() / "voorbeeld/oranje-nassau.ged").string());
               Druk("BrowseButton");
               Druk("OKButton");
             }},
            {"ToonTekst",
             [this] {
               log_ = Pagina();
               Druk("BackButton");
             }},
            {"ImpGedcom", [this] { Druk("BackButton"); }}};
  }
  std::vector<Piloot::Stap> Kwartierstaat() {
    return {{"MenuWindow", [this] { Menu("TekstKwst"); }},
            {"KwstTxtPrs",
             [this] {
               Vul("RecordNr", "2");
               Druk("OKButton");
             }},
            {"KwstTxtParam", [this] { Druk("OKButton"); }},
            {"ToonTekst",
             [this] {
               verslag_ = Pagina();
               Bewaar(Bovenste(), "Kwartierstaat");
               Druk("BackButton");
             }},
            {"MenuWindow", [this] { Menu("KeuzeAfsluiten"); }}};
  }

  QString log_;
  QString verslag_;
  TijdelijkeMap map_;
  VasteKlok klok_{{2026, 1, 2, 3, 4, 5}};
};

TEST_F(RondgangTest, NieuweSetImportEnKwartierstaat) {
  std::vector<Piloot::Stap> stappen = MaakSet();
  for (auto& deel : {Importeer(), Kwartierstaat()}) {
    stappen.insert(stappen.end(), deel.begin(), deel.end());
  }
  Piloot piloot(stappen);
  bool aanHetWerk = false;
  gesprek.ZetVerversingstijd(0);  // however fast the machine, each step of the work is seen
  piloot.bijBlik = [&](const std::string& bovenop) {
    if (bovenop != "ImpGedcom" || !Vind("Pass2Label").isVisible()) return;
    aanHetWerk = true;
    Bewaar(Bovenste(), "ImportAanHetWerk");
  };
  VoerProgramma(gesprek, klok_, map_.Pad());
  EXPECT_TRUE(piloot.Klaar());
  EXPECT_TRUE(aanHetWerk);
  EXPECT_THAT(boxen, testing::Contains("Importeren voltooid"));
  EXPECT_TRUE(log_.contains("Importeren voltooid"));
  EXPECT_TRUE(verslag_.contains("Generatie I")) << verslag_.toStdString();
  EXPECT_TRUE(verslag_.contains("Wilhelmina")) << verslag_.toStdString();
}

}  // namespace
}  // namespace lb77
