// How a script ends, what a failure unwinds, and the hooks.
#include <gmock/gmock.h>

#include <stdexcept>
#include <vector>

#include "script/SpeelFormulieren.h"
#include "script/Speler.h"
#include "steun/SpeelToets.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

class SpelerEindeTest : public SpeelToets {
 protected:
  static void ToonHoofd(Gesprek& gesprek) {
    Hoofd hoofd(gesprek);
    gesprek.ToonModaal(hoofd);
  }
  // A program without forms that asks and tells at start-up.
  static Programma Doet(std::function<void(Gesprek&)> doe) { return doe; }
};

TEST_F(SpelerEindeTest, InstructiesDieOverZijnKunnenNietWordenGespeeld) {
  VerwachtFout("kies Einde\n\ntoon", ToonHoofd, "regel 3: het programma is al afgelopen");
  EXPECT_EQ(verslag_, "+ Hoofd \"Hoofdvenster\"\n- Hoofd\n");
  VerwachtFout("kies Einde\nantwoord Ja", ToonHoofd, "regel 2: het programma is al afgelopen");
}

TEST_F(SpelerEindeTest, EenFoutDiepInDeNestingBreektAllesAf) {
  VerwachtFout("kies Nieuw\ndruk Onzin\nkies Einde", ToonHoofd,
               "regel 2: Invoer.Onzin bestaat niet");
  EXPECT_EQ(verslag_, "+ Hoofd \"Hoofdvenster\"\n+ Invoer \"Invoer\"\n");
}

TEST_F(SpelerEindeTest, OngebruikteAntwoordenEnBestandenWordenGenoemd) {
  const SpeelUitslag uitslag =
      Speel("antwoord Ja Nee\nbestand x.ged\nkies Einde", Programma(ToonHoofd));
  EXPECT_EQ(uitslag.status, 0);
  EXPECT_EQ(uitslag.reden, "");
  EXPECT_THAT(uitslag.ongebruikt, ElementsAre("regel 1: antwoord Ja", "regel 1: antwoord Nee",
                                              "regel 2: bestand \"x.ged\""));
}

TEST_F(SpelerEindeTest, EenUitzonderingVanHetProgrammaKomtErDoorheen) {
  EXPECT_THROW(static_cast<void>(Speel(
                   "", Doet([](Gesprek&) { throw std::runtime_error("van het programma"); }))),
               std::runtime_error);
}

// A form that asks something in its destructor must not end the test program.
TEST_F(SpelerEindeTest, TijdensHetAfbrekenKrijgtWieNogVraagtDeAfwijzing) {
  struct Vrager {
    Gesprek& gesprek;
    std::vector<bool>& antwoorden;
    ~Vrager() {
      antwoorden.push_back(gesprek.Vraag("nog ?"));
      antwoorden.push_back(gesprek.VraagBestand({}).has_value());
      antwoorden.push_back(gesprek.DrukAf({}));
      Levensloop formulier("Laat");
      gesprek.ToonModaal(formulier);
    }
  };
  std::vector<bool> antwoorden;
  Verwacht(
      "toon Knop1",
      [&](Gesprek& gesprek) {
        const Vrager vrager{gesprek, antwoorden};
        Levensloop formulier("Leven");
        gesprek.ToonModaal(formulier);
      },
      R"(
    + Leven "Levensloop"
    = Knop1 "&Knop"
  )");
  EXPECT_THAT(antwoorden, ElementsAre(false, false, false));
}

TEST_F(SpelerEindeTest, WieHetAfbrekenOpvangtWordtOpnieuwAfgebroken) {
  bool opgevangen = false;
  bool verder = false;
  Verwacht(
      "",
      [&](Gesprek& gesprek) {
        try {
          ToonHoofd(gesprek);
        } catch (...) {
          opgevangen = true;
        }
        gesprek.Informeer("nog eens");
        verder = true;
      },
      R"(+ Hoofd "Hoofdvenster")");
  EXPECT_TRUE(opgevangen);
  EXPECT_FALSE(verder);
}

TEST_F(SpelerEindeTest, WieEenFoutOpvangtEnEindigtHoudtDeEersteReden) {
  const auto programma = [](Gesprek& gesprek) {
    try {
      ToonHoofd(gesprek);
    } catch (...) {
      return;
    }
  };
  VerwachtFout("druk Onzin\ntoon", programma, "regel 1: Hoofd.Onzin bestaat niet");
}

// The hooks.

TEST_F(SpelerEindeTest, MeldtElkeTekstEnElkeTitelDieVerschijnt) {
  std::vector<std::string> getoond;
  const Draaiboek boek = LeesDraaiboek("antwoord Ja");
  const auto programma = [](Gesprek& gesprek) {
    gesprek.Fout("één"_w);
    static_cast<void>(gesprek.Vraag("twee ?"));
    static_cast<void>(gesprek.BerichtMetVinkje("drie", "vier"));
    ToonHoofd(gesprek);
  };
  const SpeelUitslag uitslag = lb77::Speel(
      boek.instructies, programma, [](std::string_view) {},
      {.basismap = {}, .getoond = [&](std::string_view tekst) { getoond.emplace_back(tekst); }});
  EXPECT_EQ(uitslag.status, 0);
  EXPECT_THAT(getoond, ElementsAre("één", "twee ?", "drie", "vier", "Hoofdvenster"));
}

TEST_F(SpelerEindeTest, EenDraaiboekMetEenLeesfoutBegintNiet) {
  bool begonnen = false;
  VerwachtFout(
      "toon\nonzin", [&](Gesprek&) { begonnen = true; }, "regel 2: onbekende instructie: onzin");
  EXPECT_FALSE(begonnen);
}

}  // namespace
}  // namespace lb77
