// Cards and dialogs of a family whose fields are full: what they show is to be read whole.
#include <gtest/gtest.h>

#include <QLabel>

#include "Gezinsproef.h"
#include "entry/ToonKinderen.h"
#include "entry/ToonPersoon.h"
#include "entry/ToonRelatie.h"
#include "entry/WijzigPersoon.h"
#include "entry/WijzigRelatie.h"

namespace lb77 {
namespace {

constexpr std::string_view kVoornamen = "Wilhelmina Catharina Margareth";
constexpr std::string_view kAchternaam = "van Nassau-Dillenburg tot";
constexpr std::string_view kPlaats = "Nederhorst den Berg (Utr)";

class VolleKaart : public Gezinsproef {
 protected:
  void SetUp() override {
    Gezinsproef::SetUp();
    Hoofd().schrijfwijze.gezindten[1] = "NGNederduits Gereformeerd";
    BouwFamilie bouw(Hoofd().Persoon, Hoofd().Relatie, Hoofd().Plaats, Hoofd().Opmerking);
    const std::string plaats = std::to_string(bouw.Plaats(kPlaats, "UT"));
    const VeldWaarden vol = {{"GebCorr", "C"},       {"GebDatum", "24-12-1833"},
                             {"GebPlaats", plaats},  {"DoopDatum", "28-12-1833"},
                             {"DoopPlaats", plaats}, {"DoopReligie", "NG"},
                             {"OvlCorr", "N"},       {"OvlDatum", "28-08-1899"},
                             {"OvlPlaats", plaats},  {"BegrDatum", "30-08-1899"},
                             {"BegrPlaats", plaats}, {"Beroep", "hoogleraar in de geneeskunde"}};
    const auto man = bouw.Man(kVoornamen, kAchternaam, vol);
    const auto vrouw = bouw.Vrouw(kVoornamen, kAchternaam, vol);
    relatie_ = bouw.Relatie(man, vrouw, {bouw.Man(kVoornamen, kAchternaam, vol)},
                            {{"OtrDatum", "24-12-1853"},
                             {"OtrPlaats", plaats},
                             {"HuwCorr", "C"},
                             {"WHuwDatum", "24-12-1853"},
                             {"WHuwPlaats", plaats},
                             {"HuwSoort", "NG"},
                             {"KHuwDatum", "24-12-1853"},
                             {"KHuwPlaats", plaats},
                             {"Religie", "NG"}});
    kind_ = static_cast<std::int16_t>(vrouw + 1);
    for (int i = 0; i < 4; ++i) static_cast<void>(bouw.Relatie(kind_, vrouw));
  }
  // Opens the form on the smallest screen and looks at each of its texts.
  void Bekijk(Formulier& formulier) {
    Voer(formulier, {[&] {
           const QWidget& venster = Bovenste();
           EXPECT_LE(venster.width(), 1264);
           EXPECT_LE(venster.height(), 760);
           for (const QLabel* label : venster.findChildren<QLabel*>()) {
             if (!label->isVisible() || label->wordWrap()) continue;
             EXPECT_LE(label->sizeHint().width(), label->width())
                 << formulier.Naam() << " " << label->objectName().toStdString() << ": "
                 << label->text().toStdString();
           }
           Bewaar(Bovenste(), formulier.Naam() + "Vol");
           Toets(Qt::Key_Escape);
         }});
  }

  std::int16_t relatie_ = 0;
  std::int16_t kind_ = 0;
};

TEST_F(VolleKaart, VanEenPersoonIsAllesTeLezen) {
  ToonPersoon kaart(Hoofd(), kind_);
  Bekijk(kaart);
  Hoofd().volgers.HuidigPersoonNr = kind_;
  WijzigPersoon dialoog(Hoofd());
  Bekijk(dialoog);
}

TEST_F(VolleKaart, VanEenRelatieIsAllesTeLezen) {
  ToonRelatie kaart(Hoofd(), relatie_);
  Bekijk(kaart);
  ToonKinderen kinderen(Hoofd(), relatie_);
  Bekijk(kinderen);
  Hoofd().volgers.HuidigRelatieNr = relatie_;
  WijzigRelatie dialoog(Hoofd());
  Bekijk(dialoog);
}

}  // namespace
}  // namespace lb77
