// What is typed and pasted: characters, filters, lengths.
#include <gmock/gmock.h>

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "Proefvorm.h"
#include "Vensterproef.h"
#include "qt/Invoercontrole.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kGeweigerd = "Dit teken kan niet worden opgeslagen";

class InvoerTest : public Vensterproef {
 protected:
  Proefvorm vorm{gesprek};
  // Runs `doe` with the focus in the field.
  void In(Invoerveld& veld, const std::function<void()>& doe) {
    vorm.ZetEersteVeld(veld);
    Voer(vorm, {doe, [this] { QTest::mouseClick(&Vind("BackButton"), Qt::LeftButton); }});
  }
  void Plak(const char* utf8) {
    QApplication::clipboard()->setText(QString::fromUtf8(utf8));
    Toets(Qt::Key_V, Qt::ControlModifier);
  }
};

TEST_F(InvoerTest, GetypteTekstKomtBijHetFormulier) {
  In(vorm.Vrij, [&] { QTest::keyClicks(&Vind("Vrij"), "Jan de Wit"); });
  EXPECT_EQ(vorm.Vrij.Tekst(), "Jan de Wit");
  EXPECT_TRUE(vorm.Gewijzigd());
}

TEST_F(InvoerTest, HetCijferfilterLaatLettersVallen) {
  In(vorm.Cijfers, [&] { Typ("1a2b"); });
  EXPECT_EQ(vorm.Cijfers.Tekst(), "12");
}

TEST_F(InvoerTest, HetHoofdletterfilterKentAccenten) {
  In(vorm.Groot, [&] { Typ("née"); });
  EXPECT_EQ(vorm.Groot.Tekst(), "NÉE"_w);
}

TEST_F(InvoerTest, DeMaximumlengteTeltTekens) {
  In(vorm.Een, [&] { Typ("ëëëëëëëëëëëë"); });
  EXPECT_EQ(vorm.Een.Tekst(), "ëëëëëëëëëë"_w);
}

TEST_F(InvoerTest, EenVolVeldNeemtEenTekenOverDeKeuzeHeen) {
  vorm.Een.ZetTekst("tienletter");
  In(vorm.Een, [&] {
    Vind<QLineEdit>("Een").setSelection(0, 4);
    Typ("10");
  });
  EXPECT_EQ(vorm.Een.Tekst(), "10letter");
}

TEST_F(InvoerTest, EenTekenZonderGelijkeWordtOmgezet) {
  In(vorm.Vrij, [&] { Typ("Dvořák"); });
  EXPECT_EQ(vorm.Vrij.Tekst(), "Dvorák"_w);
  EXPECT_THAT(boxen, IsEmpty());
}

TEST_F(InvoerTest, EenTekenDatNietKanWordtMetEenMeldingGeweigerd) {
  In(vorm.Vrij, [&] { Typ("a漢b"); });
  EXPECT_EQ(vorm.Vrij.Tekst(), "ab");
  EXPECT_THAT(boxen, ElementsAre(kGeweigerd));
}

TEST_F(InvoerTest, GeplakteTekstGaatDezelfdeWegMetEenMelding) {
  In(vorm.Vrij, [&] {
    Plak("漢字 ř\n€");
    EXPECT_EQ(Vind<QLineEdit>("Vrij").text(), QString::fromUtf8(" r €"));
  });
  EXPECT_EQ(vorm.Vrij.Tekst(), " r €"_w);
  EXPECT_THAT(boxen, ElementsAre(kGeweigerd));
}

TEST_F(InvoerTest, GeplakteTekstWordtGefilterdEnAfgekapt) {
  In(vorm.Cijfers, [&] { Plak("a1b2c3d4e5"); });
  EXPECT_EQ(vorm.Cijfers.Tekst(), "1234");
}

TEST_F(InvoerTest, PlakkenLaatStaanWatErStond) {
  vorm.Cijfers.ZetTekst("N");
  In(vorm.Cijfers, [&] {
    Vind<QLineEdit>("Cijfers").end(false);
    Plak("x7");
  });
  EXPECT_EQ(vorm.Cijfers.Tekst(), "N7");
}

TEST_F(InvoerTest, EenInvoermethodeGaatDezelfdeWeg) {
  In(vorm.Groot, [&] {
    QInputMethodEvent invoer;
    invoer.setCommitString(QString::fromUtf8("é"));
    QApplication::sendEvent(&Vind("Groot"), &invoer);
  });
  EXPECT_EQ(vorm.Groot.Tekst(), "É"_w);
}

TEST_F(InvoerTest, OngedaanMakenKomtBijHetFormulier) {
  In(vorm.Vrij, [&] {
    Plak("abc");
    Toets(Qt::Key_Z, Qt::ControlModifier);
  });
  EXPECT_EQ(vorm.Vrij.Tekst(), "");
}

TEST_F(InvoerTest, BackspaceKomtBijHetFormulier) {
  vorm.Vrij.ZetTekst("abc");
  In(vorm.Vrij, [&] {
    Vind<QLineEdit>("Vrij").end(false);
    Toets(Qt::Key_Backspace);
  });
  EXPECT_EQ(vorm.Vrij.Tekst(), "ab");
}

TEST_F(InvoerTest, TekstVanMeerRegelsNeemtEnterAlsRegeleinde) {
  In(vorm.Blok, [&] {
    Typ("een");
    Toets(Qt::Key_Return);
    Typ("twee");
  });
  EXPECT_EQ(vorm.Blok.Tekst(), "een\ntwee");
}

TEST_F(InvoerTest, TekstVanMeerRegelsWordtBijPlakkenAfgekapt) {
  In(vorm.Blok, [&] { Plak("1234567890\n1234567890"); });
  EXPECT_EQ(vorm.Blok.Tekst(), "1234567890\n123456789");
}

TEST_F(InvoerTest, TekstVanMeerRegelsWeigertWatNietKan) {
  In(vorm.Blok, [&] { Plak("a漢b"); });
  EXPECT_EQ(vorm.Blok.Tekst(), "ab");
  EXPECT_THAT(boxen, ElementsAre(kGeweigerd));
}

TEST_F(InvoerTest, EenToetsDieWordtAfgehandeldWordtNietGetypt) {
  vorm.Vrij.BijToets([](ToetsGebeurtenis& toets) { toets.verwerkt = toets.teken == 'x'; });
  In(vorm.Vrij, [&] { Typ("axb"); });
  EXPECT_EQ(vorm.Vrij.Tekst(), "ab");
}

TEST_F(InvoerTest, TekstDieTijdensHetTypenWordtGezetIsTeZien) {
  vorm.Vrij.BijToets([&](ToetsGebeurtenis& toets) {
    if (toets.code == toets::kF9) vorm.Vrij.ZetTekst("");
  });
  In(vorm.Vrij, [&] {
    Typ("abc");
    Toets(Qt::Key_F9);
    EXPECT_EQ(Vind<QLineEdit>("Vrij").text(), QString());
    Typ("d");
  });
  EXPECT_EQ(vorm.Vrij.Tekst(), "d");
}

TEST(WatIsNieuw, VindtHetStukDatErbijKwam) {
  EXPECT_EQ(WatIsNieuw("abc", "abXYc").van, 2);
  EXPECT_EQ(WatIsNieuw("abc", "abXYc").lengte, 2);
  EXPECT_EQ(WatIsNieuw("abc", "ac").lengte, 0);
  EXPECT_EQ(WatIsNieuw("aa", "aaa").lengte, 1);
  EXPECT_EQ(WatIsNieuw("", "x").lengte, 1);
}

}  // namespace
}  // namespace lb77
