// The pick lists of all forms: Enter and a double click choose.
#include <gmock/gmock.h>

#include <QListWidget>
#include <QTimer>
#include <algorithm>
#include <string>
#include <vector>

#include "Programmaproef.h"

namespace lb77 {
namespace {

// They only tell: there is nothing to choose for.
const std::vector<std::string> kVertellers = {"Geschiedenis InhoudLijst"};

class KeuzelijstenTest : public Programmaproef {
 protected:
  // Counts what is chosen in a list of two lines, in place of what the form does with it.
  void Hoor(Formulier& formulier, Lijst& lijst) {
    lijst.BijWijziging(nullptr);
    lijst.BijKlik(nullptr);
    lijst.ZetZichtbaar(true);
    lijst.ZetIngeschakeld(true);
    lijst.ZetRijen({"een", "twee"});
    lijst.ZetIndex(1);
    const auto tel = [this] { ++keer_; };
    if (lijst.HeeftDubbelklik()) lijst.BijDubbelklik(tel);
    if (Bediening* const ok = formulier.Zoek("OKButton")) {
      ok->ZetIngeschakeld(true);
      ok->BijKlik(tel);
    }
  }

  void Beproef(Formulier& formulier, Lijst& lijst) {
    const std::string naam = formulier.Naam() + " " + lijst.Naam();
    SCOPED_TRACE(naam);
    const bool vertelt = std::count(kVertellers.begin(), kVertellers.end(), naam) > 0;
    keer_ = 0;
    auto& vak = Vind<QListWidget>(lijst.Naam().c_str());
    const QPoint regel = vak.visualItemRect(vak.item(1)).center();
    QTest::mouseClick(vak.viewport(), Qt::LeftButton, Qt::NoModifier, regel);
    EXPECT_EQ(Focus(), lijst.Naam());
    Toets(Qt::Key_Return);
    EXPECT_EQ(keer_, vertelt ? 0 : 1);
    QTest::mouseClick(vak.viewport(), Qt::LeftButton, Qt::NoModifier, regel);
    QTest::mouseDClick(vak.viewport(), Qt::LeftButton, Qt::NoModifier, regel);
    EXPECT_EQ(keer_, vertelt ? 0 : 2);
    gezien_.push_back(naam);
  }

  void Beproef(Formulier& formulier) {
    std::vector<Lijst*> lijsten;
    for (Bediening* een : formulier.Bedieningen()) {
      if (een->Soort() != BedieningSoort::Keuzelijst) continue;
      lijsten.push_back(static_cast<Lijst*>(een));
      Hoor(formulier, *lijsten.back());
    }
    if (lijsten.empty()) return;
    Binder binder(formulier, gesprek, instellingen_, nullptr);
    binder.Toon();
    QTimer::singleShot(0, qApp, [&] {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&binder.Venster()));
      for (Lijst* lijst : lijsten) Beproef(formulier, *lijst);
      binder.Venster().close();
      if (!formulier.Gesloten()) formulier.Klik(*formulier.TerugKnop());
    });
    binder.Voer();
  }

  VensterInstellingen instellingen_{{}};
  int keer_ = 0;
  std::vector<std::string> gezien_;
};

TEST_F(KeuzelijstenTest, InElkeLijstKiezenEnterEnEenDubbeleKlikHetzelfde) {
  for (const FormulierRij& rij : AlleFormulieren()) {
    GemaaktFormulier gemaakt = Maak(rij);
    ASSERT_TRUE(gemaakt.formulier->Laad()) << rij.naam;
    Beproef(*gemaakt.formulier);
  }
  programma_->Menu().MaakStartblad();
  Beproef(programma_->Menu());
  EXPECT_THAT(gezien_, testing::IsSupersetOf(kVertellers));
  EXPECT_THAT(gezien_, testing::IsSupersetOf({"OpenSetForm SetPicklist", "MenuWindow GezienLijst",
                                              "Bevindingen BevindingenLijst",
                                              "Geschiedenis HandelingLijst"}));
}

}  // namespace
}  // namespace lb77
