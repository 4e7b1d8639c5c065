// Labels that toggle, buttons that refer, names for the ear, and grids.
#include <gmock/gmock.h>

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <map>
#include <memory>

#include "Vensterproef.h"
#include "forms/Regels.h"
#include "qt/Indelingskeuze.h"
#include "qt/Opmaker.h"

namespace lb77 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct KindRegel {
  KindRegel(Formulier& formulier, int nummer)
      : Nr(formulier, Genummerd("Nr", nummer)), Naam(formulier, Genummerd("Naam", nummer)) {
    Nr.ZetNr(nummer);
  }
  Verwijzing Nr;
  Teller Naam;
};

class Wisselvorm final : public Formulier {
 public:
  Wisselvorm() : Formulier("Wisselvorm", "Een proef") {
    ZetEersteVeld(Vak);
    BackButton.BijKlik([this] { Sluit(); });
    Opm.ZetLeesnaam("Opmerking bij voornaam");
  }

  Tekstvak Vak{*this, "Vak", "&Voornaam:", 10};
  Knop Opm{*this, "Opm", ">"};
  Wissellabel Begraven{*this, "Begraven", {"Begr.", "Een lange crematie"}};
  Tekstvak Plaats{*this, "Plaats", {}, 10};
  Verwijzing Vader{*this, "Vader", "V&ader:"};
  Tekstvak Datum{*this, "Datum", "&Datum:", 10};
  Regels<KindRegel, 2> Kinderen{*this, 1};
  Knop BackButton{*this, "BackButton", "&Terug"};
};

class WissellabelQtTest : public Vensterproef {
 protected:
  void Bekijk(const std::function<void()>& kijk) {
    Voer(vorm, {kijk, [this] { QTest::mouseClick(&Vind("BackButton"), Qt::LeftButton); }});
  }

  Wisselvorm vorm;
};

TEST_F(WissellabelQtTest, EenDubbelklikWisseltEnEenKlikNiet) {
  Bekijk([&] {
    QTest::mouseClick(&Vind("Begraven"), Qt::LeftButton);
    EXPECT_EQ(vorm.Begraven.Index(), 0);
    QTest::mouseDClick(&Vind("Begraven"), Qt::LeftButton);
    EXPECT_EQ(vorm.Begraven.Index(), 1);
    EXPECT_EQ(Vind<QLabel>("Begraven").text(), QString("Een lange crematie"));
    EXPECT_EQ(Focus(), "Begraven");
  });
}

TEST_F(WissellabelQtTest, TabKomtErDeSpatieWisseltEnDeFocusIsTeZien) {
  Bekijk([&] {
    Toets(Qt::Key_Tab);
    const QImage zonder = Vind("Begraven").grab().toImage();
    Toets(Qt::Key_Tab);
    ASSERT_EQ(Focus(), "Begraven");
    EXPECT_NE(Vind("Begraven").grab().toImage(), zonder);
    Toets(Qt::Key_Space);
    EXPECT_EQ(vorm.Begraven.Index(), 1);
    Toets(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "Plaats");
  });
}

TEST_F(WissellabelQtTest, EenWissellabelIsZoBreedAlsZijnLangsteTekst) {
  Bekijk([&] {
    const int breedte = Vind("Begraven").width();
    QTest::mouseDClick(&Vind("Begraven"), Qt::LeftButton);
    EXPECT_EQ(Vind("Begraven").width(), breedte);
    EXPECT_GE(breedte, Vind("Begraven").sizeHint().width());
  });
}

TEST_F(WissellabelQtTest, EenVerwijzingStaatAchterHaarPromptEnRektNiet) {
  vorm.Vader.ZetNr(12);
  Bekijk([&] {
    const auto& knop = Vind<QPushButton>("Vader");
    EXPECT_EQ(knop.text(), QString("12"));
    EXPECT_EQ(knop.minimumWidth(), knop.maximumWidth());
    const auto labels = Bovenste().findChildren<QLabel*>();
    const auto prompt = std::find_if(labels.begin(), labels.end(),
                                     [&](const QLabel* een) { return een->buddy() == &knop; });
    ASSERT_NE(prompt, labels.end());
    EXPECT_EQ((*prompt)->text(), QString("V&ader:"));
    EXPECT_EQ(knop.accessibleName(), QString("Vader: 12"));
  });
}

TEST_F(WissellabelQtTest, DeLeesnaamGaatNaarDeSchermlezer) {
  Bekijk([&] {
    EXPECT_EQ(Vind("Opm").accessibleName(), QString("Opmerking bij voornaam"));
    EXPECT_EQ(Vind<QPushButton>("Opm").text(), QString(">"));
  });
}

TEST_F(WissellabelQtTest, RegelsKomenZonderIndelingPerFamilieInEenTabel) {
  const Blok blok = IndelingVoor(vorm);
  EXPECT_THAT(LayoutFouten(vorm, blok), IsEmpty());
  const auto tabel = std::find_if(blok.delen.begin(), blok.delen.end(), [](const Blok& deel) {
    return deel.soort == Blok::Soort::Tabel;
  });
  ASSERT_NE(tabel, blok.delen.end());
  EXPECT_EQ(tabel->delen.size(), 2U);
}

// A grid of the form above, laid out in a window of its own.
class RoosterTest : public WissellabelQtTest {
 protected:
  static Blok Voorbeeld() {
    using namespace indeling;
    return Kolom({
        Rooster({Rij({Rij({"Vak", "Opm"}), "Vader"}), Rij({"", "Datum"}),
                 Rij({Over(2, Rij({"Begraven", "Plaats"}))})},
                {"Links", "Rechts"}),
        Tabel({"Nr(*)", "Naam(*)"}),
        indeling::Knoppen({"BackButton"}),
    });
  }

  // Runs `kijk` in the window that the layout gives.
  void InRooster(const std::function<void(QWidget&)>& kijk) {
    class Dovemansoren final : public Bezorger {
      void Klik(Bediening&) override {}
      void Dubbelklik(Bediening&) override {}
      void Kies(Lijst&, int) override {}
      void Bewerkt(Invoerveld&, const std::string&, bool) override {}
    } niemand;
    std::map<const Bediening*, std::unique_ptr<Element>> elementen;
    QWidget venster;
    for (Bediening* een : vorm.Bedieningen()) elementen[een] = MaakElement(*een, niemand, venster);
    auto* kolom = new QVBoxLayout(&venster);
    Opmaker(vorm, venster, [&](const Bediening& een) -> Element& {
      return *elementen.at(&een);
    }).Maak(Voorbeeld(), *kolom);
    venster.show();
    QTest::qWait(1);
    kijk(venster);
  }
  static QRect Plek(const QWidget& venster, const char* naam) {
    const auto* widget = venster.findChild<QWidget*>(QString::fromLatin1(naam));
    return {widget->mapTo(&venster, QPoint(0, 0)), widget->size()};
  }
};

TEST_F(RoosterTest, NoemtElkeBedieningEenmaalEnEenLegeCelNiets) {
  EXPECT_THAT(LayoutFouten(vorm, Voorbeeld()), IsEmpty());
}

TEST_F(RoosterTest, VeldenVanEenKolomStaanOnderElkaarOokNaEenLegeCel) {
  InRooster([](QWidget& venster) {
    EXPECT_EQ(Plek(venster, "Vader").left(), Plek(venster, "Datum").left());
    EXPECT_GT(Plek(venster, "Vader").left(), Plek(venster, "Opm").right());
    EXPECT_EQ(Plek(venster, "Vak").left(), Plek(venster, "Plaats").left());
    EXPECT_LT(Plek(venster, "Begraven").right(), Plek(venster, "Plaats").left());
    EXPECT_GT(Plek(venster, "Datum").top(), Plek(venster, "Vak").bottom());
  });
}

TEST_F(RoosterTest, KoppenStaanBovenHunKolom) {
  InRooster([](QWidget& venster) {
    std::vector<std::string> koppen;
    for (const QLabel* een : venster.findChildren<QLabel*>()) {
      if (een->font().bold() && een->objectName().isEmpty()) {
        koppen.push_back(een->text().toStdString());
        EXPECT_LT(een->y(), Plek(venster, "Vak").top());
      }
    }
    EXPECT_THAT(koppen, ElementsAre("Links", "Rechts"));
  });
}

TEST_F(RoosterTest, EenOnbekendeNaamLaatZijnCelLeeg) {
  using namespace indeling;
  const Blok blok = Aangevuld(vorm, Rooster({Rij({"Weg", "Datum"}), Rij({"", "Vader"})}));
  const Blok& rooster = blok.delen.front();
  ASSERT_EQ(rooster.soort, Blok::Soort::Rooster);
  for (const Blok& regel : rooster.delen) {
    ASSERT_EQ(regel.delen.size(), 2U);
    EXPECT_EQ(regel.delen[0].naam, "");
  }
}

}  // namespace
}  // namespace lb77
