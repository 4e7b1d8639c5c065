// One list of instructions, played by the script player and by hand in the window: a form cannot
// tell them apart.
#include <gmock/gmock.h>

#include <QLineEdit>

#include "Paarvorm.h"
#include "Vensterproef.h"
#include "qt/Vertaling.h"
#include "script/Instructie.h"
#include "script/Speler.h"

namespace lb77 {
namespace {

using testing::ElementsAre;

class TweelingTest : public Vensterproef {
 protected:
  // The events of the form, the same in both.
  std::vector<std::string> Speel(std::string_view draaiboek) {
    Draaiboek boek = LeesDraaiboek(draaiboek);
    EXPECT_EQ(boek.fout, "");
    std::vector<std::string> log;
    const SpeelUitslag uitslag = lb77::Speel(
        boek.instructies,
        [&](Gesprek& deur) {
          Paarvorm vorm(deur);
          deur.ToonModaal(vorm);
          log = vorm.log;
        },
        [](std::string_view) {});
    EXPECT_EQ(uitslag.reden, "");
    EXPECT_THAT(uitslag.ongebruikt, testing::IsEmpty());
    Paarvorm vorm(gesprek);
    std::vector<std::function<void()>> stappen;
    for (const Instructie& een : boek.instructies) stappen.emplace_back([&] { Doe(een); });
    Voer(vorm, stappen);
    EXPECT_THAT(vorm.log, testing::ElementsAreArray(log));
    return log;
  }

 private:
  void Doe(const Instructie& een) {
    switch (een.soort) {
      case InstructieSoort::Antwoord:
        for (const auto knop : een.antwoorden)
          Antwoord({knop == lb77::Antwoord::Ja ? "Ja" : "Nee"});
        return;
      case InstructieSoort::Typ:
        return TypIn(een);
      case InstructieSoort::Druk:
        return QTest::mouseClick(&Vind(een.naam.c_str()), Qt::LeftButton);
      case InstructieSoort::Dubbelklik:
        return QTest::mouseDClick(&Vind(een.naam.c_str()), Qt::LeftButton);
      case InstructieSoort::Toets:
        return Toets(QtToets(een.toets.code), een.toets.shift ? Qt::ShiftModifier : Qt::NoModifier);
      case InstructieSoort::Sluit:
        return static_cast<void>(Bovenste().close());
      case InstructieSoort::Kies:
      case InstructieSoort::Vul:
      case InstructieSoort::Stel:
      case InstructieSoort::Bestand:
      case InstructieSoort::Onderbreek:
      case InstructieSoort::Toon:
        ADD_FAILURE() << "not for both";
    }
  }

  void TypIn(const Instructie& een) {
    auto& veld = Vind<QLineEdit>(een.naam.c_str());
    if (!veld.hasFocus()) QTest::mouseClick(&veld, Qt::LeftButton);
    if (Focus() != een.naam) return;
    veld.selectAll();
    Typ(NaarQt(een.argument).toUtf8().constData());
  }

  static int QtToets(int code) {
    switch (code) {
      case toets::kTab:
        return Qt::Key_Tab;
      case toets::kEnter:
        return Qt::Key_Return;
      case toets::kEscape:
        return Qt::Key_Escape;
      case toets::kOmlaag:
        return Qt::Key_Down;
      case toets::kF9:
        return Qt::Key_F9;
      default:
        return Qt::Key_F10;
    }
  }
};

TEST_F(TweelingTest, EenControleDieVraagtEnDeFocusVerzet) {
  EXPECT_THAT(Speel("antwoord Ja\ntyp RecordNrMan 2\ntoets Tab\ntoets Tab\nsluit"),
              ElementsAre("in RecordNrMan \"\"", "controle RecordNrMan",
                          "Opgegeven Persoon is een Vrouw. Doorgaan ? ja", "in RecordNrVrouw",
                          "in OtrDatum", "terug"));
}

TEST_F(TweelingTest, NeeHoudtDeFocusEnSliktDeKlikIn) {
  EXPECT_THAT(Speel("antwoord Nee\ntyp RecordNrMan 2\ndruk Opslaan\ndruk BackButton"),
              ElementsAre("in RecordNrMan \"\"", "controle RecordNrMan",
                          "Opgegeven Persoon is een Vrouw. Doorgaan ? nee", "terug"));
}

TEST_F(TweelingTest, EenWeigeringWordtDeTweedeKeerNietAangenomen) {
  EXPECT_THAT(Speel("typ RecordNrMan 9\ndruk Opslaan\ntoets Tab\ntoets F10"),
              ElementsAre("in RecordNrMan \"\"", "controle RecordNrMan", "Onbekend nummer",
                          "controle RecordNrMan", "Onbekend nummer", "terug"));
}

TEST_F(TweelingTest, JaLaatDeKlikDoorEnHetOpslaanDeFocusVerzetten) {
  EXPECT_THAT(Speel("typ OtrDatum 2\nantwoord Ja Ja Nee\ntyp RecordNrMan 2\ndruk Opslaan\n"
                    "toets Tab\ntoets F9"),
              ElementsAre("in RecordNrMan \"\"", "controle RecordNrMan", "in OtrDatum",
                          "in RecordNrMan \"\"", "controle RecordNrMan",
                          "Opgegeven Persoon is een Vrouw. Doorgaan ? ja", "in RecordNrVrouw",
                          "in Opslaan", "opslaan", "Corrigeren ? ja", "in OtrDatum", "in HuwDatum",
                          "in Opslaan", "opslaan", "Corrigeren ? nee", "geschreven"));
}

TEST_F(TweelingTest, EenDubbelklikOpEenLabelVerlaatHetVeld) {
  EXPECT_THAT(Speel("typ RecordNrMan 9\ndubbelklik HuwLabel\ntyp RecordNrMan 1\n"
                    "dubbelklik HuwLabel\ndubbelklik HuwLabel\ntoets F10"),
              ElementsAre("in RecordNrMan \"\"", "controle RecordNrMan", "Onbekend nummer",
                          "controle RecordNrMan", "in RecordNrVrouw", "dubbelklik Samenwonen",
                          "dubbelklik Huwelijk", "terug"));
}

TEST_F(TweelingTest, EenVerborgenVeldWordtOvergeslagen) {
  EXPECT_THAT(Speel("typ HuwCorr t\ntoets Enter\ntoets Down\ntoets Shift+Tab\ntoets Shift+Tab\n"
                    "typ HuwCorr c\ntoets Tab\ntoets Escape"),
              ElementsAre("in RecordNrMan \"\"", "controle RecordNrMan", "in HuwCorr",
                          "controle HuwCorr", "in Wet", "in Kerk", "in Wet", "in HuwCorr",
                          "controle HuwCorr", "in HuwPltsNm", "terug"));
}

}  // namespace
}  // namespace lb77
