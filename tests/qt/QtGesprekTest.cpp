// Boxes, nested forms, long work, errors.
#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <filesystem>
#include <stdexcept>

#include "Proefvorm.h"
#include "Vensterproef.h"
#include "qt/Vertaling.h"
#include "steun/TijdelijkeMap.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class QtGesprekTest : public Vensterproef {
 protected:
  Proefvorm vorm{gesprek};
  void Druk(const char* naam) { QTest::mouseClick(&Vind(naam), Qt::LeftButton); }
  // Asks with each answer ready and gives what came back.
  lb77::Antwoord Vraag(Knoppen knoppen, const char* knop) {
    Antwoord({QString::fromLatin1(knop)});
    return gesprek.Bericht(BerichtSoort::Vraag, knoppen, "?");
  }
  // Runs `kijk` while a box is open, and then closes it by its frame.
  lb77::Antwoord SluitBox(BerichtSoort soort, Knoppen knoppen,
                          const std::function<void(QMessageBox&)>& kijk = {}) {
    Wacht(false);
    QTimer::singleShot(0, qApp, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_TRUE(box);
      if (kijk) kijk(*box);
      box->close();
    });
    const lb77::Antwoord uit = gesprek.Bericht(soort, knoppen, "tekst");
    Wacht(true);
    return uit;
  }
};

TEST_F(QtGesprekTest, DeBrowserKrijgtEenBladzijdeOnderEenNaamDieHijKent) {
  const TijdelijkeMap map;
  QTextBrowser browser;
  QDesktopServices::setUrlHandler("file", &browser, "setSource");
  for (const auto& [naam, getoond] : {std::pair{"uit.tmp", "uit.htm"},
                                      {"index.HTM", "index.HTM"},
                                      {"handleiding.md", "handleiding.md"}}) {
    SchrijfBytes(map / naam, "<p>tekst</p>");
    EXPECT_TRUE(gesprek.OpenInBrowser(map / naam));
    EXPECT_EQ(browser.source(), QUrl::fromLocalFile(PadNaarQt(map / getoond)));
    EXPECT_EQ(LeesBytes(map / getoond), "<p>tekst</p>");
  }
  QDesktopServices::unsetUrlHandler("file");
  EXPECT_FALSE(std::filesystem::exists(map / "handleiding.htm"));
}

TEST_F(QtGesprekTest, EenMeldingMetEenKnopAntwoordtOK) {
  EXPECT_EQ(gesprek.Bericht(BerichtSoort::Info, Knoppen::OK, "geëxporteerd"_w), lb77::Antwoord::OK);
  EXPECT_THAT(boxen, ElementsAre("geëxporteerd"));
}

TEST_F(QtGesprekTest, EenKeuzeGeeftDeGedrukteKnop) {
  EXPECT_EQ(Vraag(Knoppen::JaNee, "Ja"), lb77::Antwoord::Ja);
  EXPECT_EQ(Vraag(Knoppen::JaNee, "Nee"), lb77::Antwoord::Nee);
  EXPECT_EQ(Vraag(Knoppen::NeeJa, "Ja"), lb77::Antwoord::Ja);
  EXPECT_EQ(Vraag(Knoppen::OKAnnuleren, "OK"), lb77::Antwoord::OK);
  EXPECT_EQ(Vraag(Knoppen::OKAnnuleren, "Annuleren"), lb77::Antwoord::Annuleren);
  EXPECT_EQ(Vraag(Knoppen::JaNeeAnnuleren, "Nee"), lb77::Antwoord::Nee);
  EXPECT_EQ(Vraag(Knoppen::JaNeeAnnuleren, "Annuleren"), lb77::Antwoord::Annuleren);
}

TEST_F(QtGesprekTest, EenMeldingSluitenIsAnnulerenOfNee) {
  EXPECT_EQ(SluitBox(BerichtSoort::Info, Knoppen::OK), lb77::Antwoord::OK);
  EXPECT_EQ(SluitBox(BerichtSoort::Vraag, Knoppen::JaNee), lb77::Antwoord::Nee);
  EXPECT_EQ(SluitBox(BerichtSoort::Vraag, Knoppen::NeeJa), lb77::Antwoord::Nee);
  EXPECT_EQ(SluitBox(BerichtSoort::Vraag, Knoppen::OKAnnuleren), lb77::Antwoord::Annuleren);
  EXPECT_EQ(SluitBox(BerichtSoort::Vraag, Knoppen::JaNeeAnnuleren), lb77::Antwoord::Annuleren);
}

TEST_F(QtGesprekTest, ElkeSoortMeldingHeeftHaarTeken) {
  const std::pair<BerichtSoort, QMessageBox::Icon> soorten[] = {
      {BerichtSoort::Geen, QMessageBox::NoIcon},     {BerichtSoort::Info, QMessageBox::Information},
      {BerichtSoort::Uitroep, QMessageBox::Warning}, {BerichtSoort::Vraag, QMessageBox::Question},
      {BerichtSoort::Stop, QMessageBox::Critical},
  };
  for (const auto& [soort, symbool] : soorten) {
    SluitBox(soort, Knoppen::OK,
             [verwacht = symbool](QMessageBox& box) { EXPECT_EQ(box.icon(), verwacht); });
  }
}

TEST_F(QtGesprekTest, EenMeldingToontOpmaakZoalsDieErStaat) {
  SluitBox(BerichtSoort::Info, Knoppen::OK,
           [](QMessageBox& box) { EXPECT_EQ(box.textFormat(), Qt::PlainText); });
}

TEST_F(QtGesprekTest, EenEnterDieNogIngedruktIsBeantwoordtGeenMelding) {
  SluitBox(BerichtSoort::Vraag, Knoppen::JaNee, [](QMessageBox& box) {
    QKeyEvent herhaald(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(box.defaultButton(), &herhaald);
    EXPECT_TRUE(box.isVisible());
  });
}

TEST_F(QtGesprekTest, EenMeldingMetEenVinkjeZegtOfHetAanStond) {
  EXPECT_FALSE(gesprek.BerichtMetVinkje("melding", "Niet meer tonen tijdens deze import"));
  bijBox = [](QMessageBox& box) {
    ASSERT_TRUE(box.checkBox());
    EXPECT_EQ(box.checkBox()->text(), QString("Niet meer tonen"));
    box.checkBox()->setChecked(true);
  };
  EXPECT_TRUE(gesprek.BerichtMetVinkje("melding", "Niet meer tonen"));
}

TEST_F(QtGesprekTest, VoorWatNietTerugKanIsEnterNee) {
  for (const auto& [knoppen, tekst] :
       {std::pair{Knoppen::JaNee, "&Ja"}, std::pair{Knoppen::NeeJa, "&Nee"}}) {
    bijBox = [tekst = QString::fromLatin1(tekst)](QMessageBox& box) {
      EXPECT_EQ(box.defaultButton()->text(), tekst);
      EXPECT_EQ(box.escapeButton()->text(), QString("&Nee"));
    };
    static_cast<void>(gesprek.Bericht(BerichtSoort::Vraag, knoppen, "?"));
  }
}

TEST_F(QtGesprekTest, EenFormulierDatBijHetLadenSluitIsNooitTeZien) {
  class Kort final : public Formulier {
   public:
    Kort() : Formulier("Kort", "Kort") {}

   protected:
    void BijLaden() override { Sluit(); }
  } kort;
  gesprek.ToonModaal(kort);
  EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(QtGesprekTest, EenFormulierIsInBeeldAlsHetActiefWordt) {
  vorm.bijActief = [&] {
    EXPECT_TRUE(Bovenste().isVisible());
    EXPECT_EQ(Bovenste().objectName(), QString("Proefvorm"));
    EXPECT_EQ(Bovenste().windowModality(), Qt::ApplicationModal);
    vorm.Sluit();
  };
  gesprek.ToonModaal(vorm);
  EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(QtGesprekTest, EenAfhandelingGaatNaEenGenestFormulierVerderWaarZijWas) {
  Proefvorm binnen(gesprek, "Binnen");
  vorm.bijOK = [&] {
    vorm.Stand.ZetTekst("voor");
    QTimer::singleShot(0, qApp, [&] {
      EXPECT_EQ(Bovenste().objectName(), QString("Binnen"));
      EXPECT_EQ(Bovenste().parentWidget()->findChild<QLabel*>("Stand")->text(), QString("voor"));
      QTest::mouseClick(&Vind("BackButton"), Qt::LeftButton);
    });
    gesprek.ToonModaal(binnen);
    vorm.log.emplace_back("na binnen");
  };
  Voer(vorm, {[&] { Druk("OKButton"); }, [&] { EXPECT_EQ(Focus(), "OKButton"); },
              [&] { Druk("BackButton"); }});
  EXPECT_THAT(vorm.log, testing::Contains("na binnen"));
  EXPECT_THAT(binnen.log, ElementsAre("in Een", "klik BackButton"));
}

TEST_F(QtGesprekTest, EenVerborgenFormulierBlijftVerborgenOnderHetVolgende) {
  Proefvorm binnen(gesprek, "Binnen");
  QWidget* onder = nullptr;
  vorm.bijOK = [&] {
    onder = &Bovenste();
    vorm.Verberg();
    QTimer::singleShot(0, qApp, [&] {
      EXPECT_FALSE(onder->isVisible());
      Druk("BackButton");
    });
    gesprek.ToonModaal(binnen);
    vorm.Sluit();
  };
  Voer(vorm, {[&] { Druk("OKButton"); }});
  EXPECT_TRUE(vorm.Gesloten());
}

TEST_F(QtGesprekTest, EenGeslotenFormulierStaatNietOnderHetVolgende) {
  Proefvorm binnen(gesprek, "Binnen");
  QWidget* onder = nullptr;
  vorm.bijOK = [&] {
    onder = &Bovenste();
    vorm.Sluit();
    QTimer::singleShot(0, qApp, [&] {
      EXPECT_FALSE(onder->isVisible());
      EXPECT_EQ(Bovenste().objectName(), QString("Binnen"));
      Druk("BackButton");
    });
    gesprek.ToonModaal(binnen);
    vorm.log.emplace_back("na binnen");
  };
  Voer(vorm, {[&] { Druk("OKButton"); }});
  EXPECT_THAT(vorm.log, testing::Contains("na binnen"));
  EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(QtGesprekTest, AlleenHetBovensteFormulierWordtBijgewerkt) {
  Proefvorm binnen(gesprek, "Binnen");
  binnen.bijActief = [&] {
    const auto* stand = Bovenste().parentWidget()->findChild<QLabel*>("Stand");
    vorm.Stand.ZetTekst("onder");
    binnen.Stand.ZetTekst("boven");
    gesprek.Informeer("even");
    EXPECT_EQ(stand->text(), QString("voor"));
    EXPECT_EQ(Vind<QLabel>("Stand").text(), QString("boven"));
    binnen.Sluit();
  };
  vorm.bijOK = [&] {
    vorm.Stand.ZetTekst("voor");
    gesprek.ToonModaal(binnen);
  };
  Voer(vorm, {[&] { Druk("OKButton"); },
              [&] { EXPECT_EQ(Vind<QLabel>("Stand").text(), QString("onder")); },
              [&] { Druk("BackButton"); }});
}

TEST_F(QtGesprekTest, EenFormulierDatVerborgenBlijftTeltAlsGesloten) {
  vorm.bijOK = [&] { vorm.Verberg(); };
  Voer(vorm, {[&] { Druk("OKButton"); }});
  EXPECT_FALSE(vorm.Gesloten());
  EXPECT_FALSE(QApplication::activeModalWidget());
  vorm.bijActief = [&] { vorm.Verberg(); };
  gesprek.ToonModaal(vorm);
  EXPECT_THAT(vorm.log,
              testing::ElementsAre("in Een", "controle Een", "in OKButton", "klik OKButton"));
}

TEST_F(QtGesprekTest, InvoerOnderEenLopendeAfhandelingVervalt) {
  vorm.bijOK = [&] {
    QWidget* venster = &Bovenste();
    QTimer::singleShot(0, qApp,
                       [venster] { venster->findChild<QAbstractButton*>("Vink")->click(); });
    gesprek.Informeer("even wachten");
  };
  Voer(vorm, {[&] { Druk("OKButton"); }, [&] { Druk("BackButton"); }});
  EXPECT_FALSE(vorm.Vink.Gekozen());
}

TEST_F(QtGesprekTest, EscapeTijdensHetWerkVraagtOmStoppen) {
  int rondes = 0;
  vorm.bijActief = [&] {
    QTimer::singleShot(20, qApp, [&] { Toets(Qt::Key_Escape); });
    while (!gesprek.StopGevraagd(vorm) && rondes < 10000000) ++rondes;
    EXPECT_FALSE(vorm.Gesloten());
    vorm.Sluit();
  };
  gesprek.ToonModaal(vorm);
  EXPECT_TRUE(vorm.StopVerzocht());
  EXPECT_GT(rondes, 0);
}

TEST_F(QtGesprekTest, TerugknopEnKaderVragenTijdensHetWerkOmStoppen) {
  for (const bool kader : {false, true}) {
    Proefvorm werk(gesprek);
    werk.bijActief = [&] {
      QTimer::singleShot(0, qApp, [&, kader] {
        if (kader) {
          Bovenste().close();
        } else {
          Druk("BackButton");
        }
      });
      while (!gesprek.StopGevraagd(werk)) continue;
      EXPECT_THAT(werk.log, IsEmpty());
      werk.Sluit();
    };
    gesprek.ToonModaal(werk);
    EXPECT_TRUE(werk.StopVerzocht()) << kader;
  }
}

TEST_F(QtGesprekTest, AndereInvoerTijdensHetWerkVervalt) {
  vorm.bijActief = [&] {
    bool klaar = false;
    QTimer::singleShot(0, qApp, [&] {
      Vind<QAbstractButton>("Vink").click();
      QTest::keyClicks(&Vind("Vrij"), "abc");
      QTest::mouseClick(&Vind("OKButton"), Qt::LeftButton);
      klaar = true;
    });
    while (!klaar) gesprek.Ververs(vorm);
    EXPECT_FALSE(Vind<QAbstractButton>("Vink").isChecked());
    vorm.Sluit();
  };
  gesprek.ToonModaal(vorm);
  EXPECT_EQ(vorm.Vrij.Tekst(), "");
  EXPECT_FALSE(vorm.Vink.Gekozen());
  EXPECT_THAT(vorm.log, IsEmpty());
  EXPECT_FALSE(vorm.StopVerzocht());
}

TEST_F(QtGesprekTest, VerversenToontDeTellerEnDeWachtwijzer) {
  vorm.bijActief = [&] {
    vorm.ZetBezig(true);
    vorm.Stand.ZetTekst("17");
    gesprek.Ververs(vorm);
    EXPECT_EQ(Vind<QLabel>("Stand").text(), QString("17"));
    EXPECT_EQ(Bovenste().cursor().shape(), Qt::BusyCursor);
    vorm.Sluit();
  };
  gesprek.ToonModaal(vorm);
}

TEST_F(QtGesprekTest, VerversenIsGoedkoopGenoegVoorElkRecord) {
  vorm.bijActief = [&] {
    QElapsedTimer tijd;
    tijd.start();
    for (int i = 0; i < 100000; ++i) gesprek.Ververs(vorm);
    EXPECT_LT(tijd.elapsed(), 2000);
    vorm.Sluit();
  };
  gesprek.ToonModaal(vorm);
}

TEST_F(QtGesprekTest, EenUitzonderingInEenAfhandelingKomtUitToonModaal) {
  vorm.bijOK = [] { throw std::runtime_error("stuk"); };
  EXPECT_THROW(Voer(vorm, {[&] { Druk("OKButton"); }}), std::runtime_error);
  EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(QtGesprekTest, EenUitzonderingInEenGenestFormulierSluitBeide) {
  Proefvorm binnen(gesprek, "Binnen");
  binnen.bijActief = [] { throw std::runtime_error("stuk"); };
  vorm.bijOK = [&] { gesprek.ToonModaal(binnen); };
  EXPECT_THROW(Voer(vorm, {[&] { Druk("OKButton"); }}), std::runtime_error);
  EXPECT_FALSE(QApplication::activeModalWidget());
}

}  // namespace
}  // namespace lb77
