// What a screen reader says of every form, asked as it asks.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <algorithm>
#include <map>

#include "Programmaproef.h"
#include "forms/Bijschrift.h"
#include "qt/Binder.h"
#include "qt/Indelingskeuze.h"
#include "qt/Vertaling.h"

namespace lb77 {
namespace {

class Luisterproef : public Programmaproef {
 protected:
  // Of a pick box the name is its choice; what it is about says the label that belongs to it.
  static std::string NaamVan(QWidget& widget) {
    const QAccessibleInterface* const uit = QAccessible::queryAccessibleInterface(&widget);
    if (!uit) return {};
    if (uit->role() != QAccessible::ComboBox) return uit->text(QAccessible::Name).toStdString();
    const auto labels = uit->relations(QAccessible::Label);
    return labels.isEmpty() ? std::string()
                            : labels.front().first->text(QAccessible::Name).toStdString();
  }

  // What only shows is heard with its value, and nothing by its name in the code.
  static void VerwachtWaarde(const Bediening& een, const std::string& naam) {
    const bool toont =
        een.Soort() == BedieningSoort::Teller || een.Soort() == BedieningSoort::Label;
    const QString waarde = toont ? NaarQt(ZonderSneltoets(een.Waarde())).trimmed() : QString();
    EXPECT_TRUE(QString::fromStdString(naam).contains(waarde)) << een.Naam() << ": " << naam;
    EXPECT_FALSE(naam.empty() && !(toont && een.Prompt().empty() && waarde.isEmpty()))
        << een.Naam();
    if ((een.Prompt() + een.Waarde()).find(een.Naam()) != std::string::npos) return;
    EXPECT_EQ(naam.find(een.Naam()), std::string::npos) << naam << " is the name in the code";
  }

  // A name, and one that says more than a number or a mark.
  static void VerwachtNaam(const Bediening& een, QWidget& widget) {
    const std::string naam = NaamVan(widget);
    if (!een.KanFocus()) return VerwachtWaarde(een, naam);
    EXPECT_FALSE(naam.empty()) << een.Naam();
    const bool woord = std::any_of(naam.begin(), naam.end(), [](char c) {
      return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    });
    EXPECT_TRUE(woord) << een.Naam() << ": " << naam;
    const bool bijschrift = naam == ZonderSneltoets(een.Bijschrift());
    EXPECT_TRUE(bijschrift || naam != een.Naam()) << naam << " is the name in the code";
  }

  // The prompt before it is its own, so that its accelerator leads there.
  static void VerwachtMaat(const Bediening& een, QWidget& widget, const QWidget& venster) {
    const auto labels = venster.findChildren<QLabel*>();
    const auto eigen = std::find_if(labels.begin(), labels.end(),
                                    [&](const QLabel* label) { return label->buddy() == &widget; });
    if (eigen == labels.end()) return;
    EXPECT_EQ((*eigen)->text(), NaarQt(een.Prompt())) << een.Naam();
  }

  // All that a form says.
  void Beluister(Formulier& formulier);

  VensterInstellingen instellingen_{{}};
};

void Luisterproef::Beluister(Formulier& formulier) {
  ASSERT_TRUE(formulier.Laad());
  Binder binder(formulier, gesprek, instellingen_, nullptr);
  std::map<std::string, std::string> gehad;
  for (const Bediening* een : formulier.Bedieningen()) {
    if (!InIndeling(*een)) continue;
    auto* const widget = binder.Venster().findChild<QWidget*>(NaarQt(een->Naam()));
    ASSERT_TRUE(widget) << een->Naam();
    VerwachtNaam(*een, *widget);
    VerwachtMaat(*een, *widget, binder.Venster());
    if (!een->KanFocus() || !een->Bruikbaar()) continue;
    const auto [ander, nieuw] = gehad.emplace(NaamVan(*widget), een->Naam());
    EXPECT_TRUE(nieuw) << een->Naam() << " and " << ander->second << " are both " << ander->first;
  }
}

class ToegankelijkTest : public Luisterproef, public testing::WithParamInterface<FormulierRij> {};

TEST_P(ToegankelijkTest, ElkeBedieningHeeftEenNaamVoorHetOor) {
  const GemaaktFormulier gemaakt = Maak(GetParam());
  Beluister(*gemaakt.formulier);
}

class ToegankelijkHoofdschermTest : public Luisterproef,
                                    public testing::WithParamInterface<bool> {};

TEST_P(ToegankelijkHoofdschermTest, OokHetStartbladIsTeHoren) {
  Beluister(MaakHoofdscherm(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Alle, ToegankelijkHoofdschermTest, testing::Bool(),
                         [](const auto& met) { return met.param ? "MetSet" : "ZonderSet"; });

INSTANTIATE_TEST_SUITE_P(Alle, ToegankelijkTest, testing::ValuesIn(AlleFormulieren()),
                         [](const auto& rij) { return std::string(rij.param.naam); });

}  // namespace
}  // namespace lb77
