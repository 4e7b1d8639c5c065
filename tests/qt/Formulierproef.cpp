#include "Formulierproef.h"

#include <gmock/gmock.h>

#include <QDir>
#include <map>
#include <set>

#include "forms/Bijschrift.h"
#include "qt/Indelingskeuze.h"
#include "qt/Vertaling.h"
#include "steun/Plekken.h"

namespace lb77 {

void Formulierproef::Bewaar(QWidget& venster, std::string_view naam) {
  const QString elders = qEnvironmentVariable("LB77_SCHERMEN");
  const QDir map = elders.isEmpty() ? QDir(BouwMap() / "schermen") : QDir(elders);
  map.mkpath(QStringLiteral("."));
  EXPECT_TRUE(venster.grab().save(map.filePath(NaarQt(naam) + QStringLiteral(".png"))));
}

void Formulierproef::Beproef(Formulier& formulier) {
  ASSERT_TRUE(formulier.Laad());
  EXPECT_TRUE(GeschrevenIndeling(formulier.Naam())) << "geen indeling in qt/indeling";
  EXPECT_THAT(LayoutFouten(formulier), testing::IsEmpty());
  Binder binder(formulier, gesprek, instellingen_, nullptr);
  binder.Toon();
  EXPECT_LE(binder.Venster().minimumSizeHint().width(), 1008);
  EXPECT_LE(binder.Venster().minimumSizeHint().height(), 720);
  QTimer::singleShot(0, qApp, [&] {
    ElkeBedieningStaatErEenmaal(formulier);
    NietsLigtOverElkaar(formulier);
    SneltoetsenZijnUniek(formulier);
    Bewaar(binder.Venster(), formulier.Naam());
    TabKomtOveral(formulier);
    Toets(Qt::Key_Escape);
    EXPECT_TRUE(formulier.Gesloten());
  });
  binder.Voer();
}

void Formulierproef::ElkeBedieningStaatErEenmaal(const Formulier& formulier) {
  for (const Bediening* een : formulier.Bedieningen()) {
    if (!InIndeling(*een)) continue;
    const auto gevonden = Bovenste().findChildren<QWidget*>(NaarQt(een->Naam()));
    ASSERT_EQ(gevonden.size(), 1) << een->Naam();
    EXPECT_EQ(gevonden[0]->isVisible(), een->Zichtbaar()) << een->Naam();
    EXPECT_EQ(gevonden[0]->isEnabled(), een->Ingeschakeld()) << een->Naam();
    EXPECT_FALSE(een->KanFocus() && gevonden[0]->accessibleName().isEmpty()) << een->Naam();
  }
}

void Formulierproef::NietsLigtOverElkaar(const Formulier& formulier) {
  QWidget& venster = Bovenste();
  std::vector<std::pair<std::string, QRect>> gehad;
  for (const Bediening* een : formulier.Bedieningen()) {
    const auto* widget = venster.findChild<QWidget*>(NaarQt(een->Naam()));
    if (!widget || !widget->isVisible()) continue;
    const QRect plek(widget->mapTo(&venster, QPoint(0, 0)), widget->size());
    EXPECT_TRUE(venster.rect().contains(plek)) << een->Naam();
    for (const auto& [naam, ander] : gehad) {
      EXPECT_FALSE(plek.intersects(ander)) << een->Naam() << " over " << naam;
    }
    gehad.emplace_back(een->Naam(), plek);
  }
}

void Formulierproef::SneltoetsenZijnUniek(const Formulier& formulier) {
  std::map<char, std::string> gehad;
  for (const Bediening* een : formulier.Bedieningen()) {
    const char toets = Sneltoets(een->Prompt().empty() ? een->Bijschrift() : een->Prompt());
    if (!toets || een->Soort() == BedieningSoort::MenuKeuze) continue;
    const auto [ander, nieuw] = gehad.emplace(toets, een->Naam());
    const std::string dubbel = formulier.Naam() + " " + ander->second + " " + een->Naam();
    const bool mag = std::find(toegestaan_.begin(), toegestaan_.end(), dubbel) != toegestaan_.end();
    EXPECT_TRUE(nieuw || mag) << dubbel;
  }
}

void Formulierproef::TabKomtOveral(const Formulier& formulier) {
  std::set<std::string> verwacht;
  for (const Bediening* een : formulier.Bedieningen()) {
    if (een->Bruikbaar() && een->KanFocus()) verwacht.insert(een->Naam());
  }
  // With nothing to go to, the window keeps it.
  if (verwacht.empty()) verwacht.insert(formulier.Naam());
  std::set<std::string> bezocht;
  for (std::size_t i = 0; i <= verwacht.size(); ++i) {
    Toets(Qt::Key_Tab);
    bezocht.insert(Focus());
  }
  EXPECT_EQ(bezocht, verwacht);
}

}  // namespace lb77
