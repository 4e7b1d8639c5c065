// Questions for files and directories.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "Vensterproef.h"
#include "qt/Bestandsvenster.h"
#include "qt/Vertaling.h"

namespace lb77 {
namespace {

constexpr const char* kGedcom = "GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*";

constexpr const char* kTekst = "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt";

class BestandsvensterTest : public Vensterproef {
 protected:
  QTemporaryDir map_;
  VensterInstellingen instellingen_{PadVanQt(map_.path())};

  void SetUp() override {
    beantwoordtBestanden = false;
    for (const char* naam : {"oranje.ged", "GROOT.GED", "tekst.txt"}) {
      QFile bestand(map_.filePath(QLatin1String(naam)));
      ASSERT_TRUE(bestand.open(QIODevice::WriteOnly));
    }
    ASSERT_TRUE(QDir(map_.path()).mkdir("onder"));
  }

  // Asks, runs `doe` in the dialog once it is there, and gives the answer.
  std::optional<std::filesystem::path> Vraag(BestandsWijze wijze,
                                             const std::function<void(QFileDialog&)>& doe) {
    return Vraag(wijze, PadVanQt(map_.path()), doe);
  }
  std::optional<std::filesystem::path> Vraag(BestandsWijze wijze,
                                             const std::filesystem::path& beginmap,
                                             const std::function<void(QFileDialog&)>& doe) {
    return Kijkend(doe, [&] {
      return KiesBestand(nullptr, {wijze, kGedcom, beginmap}, instellingen_);
    });
  }
  // The same for a file to save under a name.
  std::optional<std::filesystem::path> Opslag(const std::filesystem::path& naam,
                                              const std::function<void(QFileDialog&)>& doe) {
    const BestandsVraag vraag{BestandsWijze::Opslaan, kTekst, PadVanQt(map_.path())};
    return Kijkend(doe, [&] { return KiesOpslag(nullptr, vraag, naam, instellingen_); });
  }
  using Antwoordpad = std::optional<std::filesystem::path>;
  static Antwoordpad Kijkend(const std::function<void(QFileDialog&)>& doe,
                             const std::function<Antwoordpad()>& vraag) {
    QTimer kijk;
    QObject::connect(&kijk, &QTimer::timeout, &kijk, [&] {
      auto* venster = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (!venster) return;
      kijk.stop();
      doe(*venster);
    });
    kijk.start(1);
    return vraag();
  }
  void Kies(QFileDialog& venster, const char* naam) const {
    venster.findChild<QLineEdit*>()->setText(
        QDir(map_.path()).absoluteFilePath(QLatin1String(naam)));
    static_cast<QDialog&>(venster).accept();
  }
  [[nodiscard]] std::filesystem::path Pad(const char* naam) const {
    return PadVanQt(map_.path()) / naam;
  }
};

TEST_F(BestandsvensterTest, EenGekozenBestandKomtTerug) {
  EXPECT_EQ(Vraag(BestandsWijze::Openen, [this](QFileDialog& v) { Kies(v, "oranje.ged"); }),
            Pad("oranje.ged"));
}

TEST_F(BestandsvensterTest, AnnulerenGeeftNiets) {
  EXPECT_FALSE(Vraag(BestandsWijze::Openen, [](QFileDialog& v) { v.reject(); }));
}

TEST_F(BestandsvensterTest, HetVensterSpreektNederlandsEnBegintWaarHetMoet) {
  Vraag(BestandsWijze::Openen, [&](QFileDialog& v) {
    EXPECT_EQ(v.windowTitle(), QString("Bestand openen"));
    EXPECT_EQ(v.labelText(QFileDialog::Accept), QString("&Openen"));
    EXPECT_EQ(v.labelText(QFileDialog::Reject), QString("&Annuleren"));
    EXPECT_EQ(v.directory().absolutePath(), map_.path());
    EXPECT_EQ(v.selectedNameFilter(), QString("GEDCOM-bestanden (*.GED *.ged)"));
    v.reject();
  });
}

TEST_F(BestandsvensterTest, OpslaanVoegtDeExtensieVanHetFilterToe) {
  EXPECT_EQ(Vraag(BestandsWijze::Opslaan, [this](QFileDialog& v) { Kies(v, "nieuw"); }),
            Pad("nieuw.GED"));
}

TEST_F(BestandsvensterTest, WatAchterEenPuntInDeNaamStaatIsNogGeenExtensie) {
  EXPECT_EQ(
      Vraag(BestandsWijze::Opslaan, [this](QFileDialog& v) { Kies(v, "Stamboom W.F. Jansen"); }),
      Pad("Stamboom W.F. Jansen.GED"));
  EXPECT_EQ(Vraag(BestandsWijze::Opslaan, [this](QFileDialog& v) { Kies(v, "oma.Ged"); }),
            Pad("oma.Ged"));
  const std::string naam = "Kwartierstaat W.F. Jansen";
  const QString pad = map_.filePath(QString::fromStdString(naam));
  EXPECT_EQ(Opslag(naam + ".txt", [&](QFileDialog& v) { Kies(v, naam.c_str()); }),
            PadVanQt(pad + ".txt"));
  EXPECT_EQ(Opslag(naam + ".txt",
                   [&](QFileDialog& v) {
                     v.selectNameFilter("Alle Bestanden (*)");
                     Kies(v, naam.c_str());
                   }),
            PadVanQt(pad));
}

TEST_F(BestandsvensterTest, OverEenBestandHeenOpslaanVraagtHetEerst) {
  Antwoord({"Ja"});
  bijBox = [](QMessageBox& box) {
    EXPECT_EQ(box.defaultButton()->text().remove(u'&'), QString("Nee"));
  };
  EXPECT_EQ(Vraag(BestandsWijze::Opslaan, [this](QFileDialog& v) { Kies(v, "oranje.ged"); }),
            Pad("oranje.ged"));
  EXPECT_THAT(boxen, testing::ElementsAre("Het bestand oranje.ged bestaat al. Overschrijven ?"));
}

TEST_F(BestandsvensterTest, NeeTegenOverschrijvenVraagtEenAnderBestand) {
  Antwoord({"Nee"});
  bijBox = [](QMessageBox&) {
    QTimer::singleShot(50, qApp, [] {
      auto* venster = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(venster);
      venster->reject();
    });
  };
  EXPECT_FALSE(Vraag(BestandsWijze::Opslaan, [this](QFileDialog& v) { Kies(v, "oranje.ged"); }));
}

TEST_F(BestandsvensterTest, EenMapKanWordenGekozen) {
  EXPECT_EQ(Vraag(BestandsWijze::Map, [this](QFileDialog& v) { Kies(v, "onder"); }), Pad("onder"));
}

TEST_F(BestandsvensterTest, DeLaatsteMapWordtVoorHetzelfdeFilterOnthouden) {
  Vraag(BestandsWijze::Openen, [this](QFileDialog& v) { Kies(v, "oranje.ged"); });
  EXPECT_EQ(instellingen_.LaatsteMap(kGedcom), map_.path());
  EXPECT_EQ(instellingen_.LaatsteMap("Alle Bestanden (*.*)|*.*"), QString());
  EXPECT_FALSE(Vraag(BestandsWijze::Openen, {}, [&](QFileDialog& v) {
    EXPECT_EQ(v.directory().absolutePath(), map_.path());
    v.reject();
  }));
}

TEST_F(BestandsvensterTest, WieEldersWasBegintDaarEnNietWaarDeVraagZegt) {
  Vraag(BestandsWijze::Openen, Pad("onder"), [&](QFileDialog& v) {
    v.findChild<QLineEdit*>()->setText(map_.filePath("oranje.ged"));
    static_cast<QDialog&>(v).accept();
  });
  QFile ander(map_.filePath("onder/ander.ged"));
  ASSERT_TRUE(ander.open(QIODevice::WriteOnly));
  for (const BestandsWijze wijze : {BestandsWijze::Openen, BestandsWijze::Map}) {
    const bool map = wijze == BestandsWijze::Map;
    EXPECT_FALSE(Vraag(wijze, Pad("onder"), [&](QFileDialog& v) {
      EXPECT_EQ(v.directory().absolutePath(), map ? map_.filePath("onder") : map_.path());
      v.reject();
    }));
  }
}

TEST_F(BestandsvensterTest, OpslaanOnthoudtZijnEigenMap) {
  EXPECT_EQ(Vraag(BestandsWijze::Opslaan,
                  [&](QFileDialog& v) {
                    v.findChild<QLineEdit*>()->setText(map_.filePath("onder/nieuw"));
                    static_cast<QDialog&>(v).accept();
                  }),
            Pad("onder") / "nieuw.GED");
  EXPECT_EQ(instellingen_.LaatsteMap(kGedcom), QString());
  EXPECT_FALSE(Vraag(BestandsWijze::Opslaan, [&](QFileDialog& v) {
    EXPECT_EQ(v.directory().absolutePath(), map_.filePath("onder"));
    v.reject();
  }));
}

// The first time: where such files lie if the question knows that, else where a browser puts them.
TEST_F(BestandsvensterTest, DeEersteKeerBegintOpenenBijDeDownloads) {
  const QByteArray thuis = qgetenv("HOME");
  qputenv("HOME", map_.path().toLocal8Bit());
  const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
  const QString documenten = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const auto begint = [&](BestandsWijze wijze, const char* beginmap) {
    QString waar;
    EXPECT_FALSE(Vraag(wijze, Pad(beginmap), [&](QFileDialog& v) {
      waar = v.directory().canonicalPath();
      v.reject();
    }));
    return waar;
  };
  const QString hier = QDir(map_.path()).canonicalPath();
  EXPECT_EQ(begint(BestandsWijze::Openen, "onder"), hier);  // neither is there
  ASSERT_TRUE(QDir().mkpath(documenten));
  EXPECT_EQ(begint(BestandsWijze::Openen, "onder"), QDir(documenten).canonicalPath());
  ASSERT_TRUE(QDir().mkpath(downloads));
  EXPECT_EQ(begint(BestandsWijze::Openen, "onder"), QDir(downloads).canonicalPath());
  EXPECT_EQ(begint(BestandsWijze::Opslaan, "onder"), QDir(documenten).canonicalPath());
  EXPECT_EQ(begint(BestandsWijze::Openen, ""), hier);  // GEDCOM files lie there
  qputenv("HOME", thuis);
}

TEST_F(BestandsvensterTest, OpslaanVultNaamEnSoortInEnBegintBijDeDocumenten) {
  const QByteArray thuis = qgetenv("HOME");
  qputenv("HOME", map_.path().toLocal8Bit());
  const QString documenten = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  ASSERT_TRUE(QDir().mkpath(documenten));
  EXPECT_FALSE(Opslag("Kwartierstaat.txt", [&](QFileDialog& v) {
    EXPECT_EQ(v.findChild<QLineEdit*>()->text(), QString("Kwartierstaat.txt"));
    EXPECT_EQ(v.selectedNameFilter(), QString("Tekstbestanden (*.txt *.TXT)"));
    EXPECT_EQ(v.directory().canonicalPath(), QDir(documenten).canonicalPath());
    v.reject();
  }));
  qputenv("HOME", thuis);
}

TEST_F(BestandsvensterTest, OpslaanBegintDaarnaWaarHetLaatstWasEnOpenenNiet) {
  EXPECT_EQ(Opslag("een.txt",
                   [&](QFileDialog& v) {
                     v.findChild<QLineEdit*>()->setText(map_.filePath("onder/een"));
                     static_cast<QDialog&>(v).accept();
                   }),
            Pad("onder") / "een.txt");
  EXPECT_FALSE(Opslag("twee.txt", [&](QFileDialog& v) {
    EXPECT_EQ(v.directory().absolutePath(), map_.filePath("onder"));
    v.reject();
  }));
  EXPECT_EQ(instellingen_.LaatsteMap(kTekst), QString());
}

TEST(Naamfilters, PatronenStaanErInBeideKasten) {
  EXPECT_EQ(Naamfilters(kGedcom),
            QStringList({"GEDCOM-bestanden (*.GED *.ged)", "Alle Bestanden (*)"}));
  EXPECT_EQ(Naamfilters("Internet|*.htm;*.html"),
            QStringList({"Internet (*.htm *.HTM *.html *.HTML)"}));
  EXPECT_EQ(Naamfilters(""), QStringList());
  EXPECT_EQ(Naamfilters("half"), QStringList());
}

}  // namespace
}  // namespace lb77
