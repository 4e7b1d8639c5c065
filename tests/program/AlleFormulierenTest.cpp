// What holds for every form of the list.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>

#include "forms/Bijschrift.h"
#include "program/AlleFormulieren.h"
#include "program/ProgrammaToets.h"
#include "script/Verslag.h"
#include "steun/Gouden.h"
#include "steun/Plekken.h"
#include "steun/TijdelijkeMap.h"
#include "steun/Vergelijkbaar.h"
#include "text/Tekens.h"

namespace lb77 {

// For the messages of a failing test.
static void PrintTo(const FormulierRij& rij, std::ostream* uit) {
  *uit << rij.naam;
}

namespace {

// Captions that are as they are: each row of a form has one, or another of the form has its letter.
bool MagDubbel(const std::string& bijschrift) {
  return bijschrift == "&Zoek Persoon" || bijschrift == "&Browse" ||
         bijschrift == "&Toon lijst met geselecteerde records";
}

class ElkFormulier : public ProgrammaToets, public ::testing::WithParamInterface<FormulierRij> {
 protected:
  // What is done with a loaded form; `bestand` answers the question of a form that asks for one.
  void MetForm(const std::function<void(Formulier&)>& doe) {
    MaakFamilie();
    SchrijfBytes(Map() / "tekst.txt", "Regel\r\n");
    basismap_ = Map();
    const bool vraagt = GetParam().naam == "BekijkTekst";
    const SpeelUitslag uitslag =
        Speel(vraagt ? "bestand tekst.txt" : "", Met([&doe](lb77::Programma& programma) {
                const GemaaktFormulier gemaakt = GetParam().maak(programma);
                ASSERT_EQ(gemaakt.formulier->Naam(), GetParam().naam);
                ASSERT_TRUE(gemaakt.formulier->Laad());
                doe(*gemaakt.formulier);
              }));
    EXPECT_EQ(uitslag.status, 0) << uitslag.reden;
  }
};

TEST_P(ElkFormulier, ToontZijnBedieningenZoalsVerwacht) {
  MetForm([this](Formulier& formulier) {
    const std::string map = Vergelijkbaar(Map().string());
    std::string toon;
    for (const std::string& regel : FormulierRegels(formulier)) toon += regel + "\n";
    toon = Vergelijkbaar(toon);
    for (std::size_t i = toon.find(map); i != std::string::npos; i = toon.find(map, i)) {
      toon.replace(i, map.size(), "<map>");
    }
    VerwachtGouden("toon/" + formulier.Naam() + ".txt", toon);
  });
}

TEST_P(ElkFormulier, NoemtElkeBedieningEenKeer) {
  MetForm([](Formulier& formulier) {
    std::set<std::string> namen;
    for (const Bediening* bediening : formulier.Bedieningen()) {
      EXPECT_TRUE(namen.insert(bediening->Naam()).second) << bediening->Naam();
    }
  });
}

TEST_P(ElkFormulier, HeeftElkeSneltoetsEenKeer) {
  MetForm([](Formulier& formulier) {
    std::set<char> letters;
    for (const Bediening* bediening : formulier.Bedieningen()) {
      const char letter = Sneltoets(bediening->Bijschrift());
      if (letter != 0 && bediening->Zichtbaar() && !MagDubbel(bediening->Bijschrift())) {
        EXPECT_TRUE(letters.insert(letter).second) << bediening->Naam();
      }
    }
  });
}

TEST_P(ElkFormulier, HeeftGeenKnopZonderWerking) {
  MetForm([](Formulier& formulier) {
    for (const Bediening* bediening : formulier.Bedieningen()) {
      if (bediening->Soort() == BedieningSoort::Knop && bediening->Ingeschakeld()) {
        EXPECT_TRUE(bediening->HeeftKlik()) << bediening->Naam();
      }
    }
  });
}

TEST_P(ElkFormulier, LooptMetTabLangsAllesWatDeFocusKanHebben) {
  MetForm([](Formulier& formulier) {
    std::set<const Bediening*> bereikbaar;
    for (const Bediening* bediening : formulier.Bedieningen()) {
      if (bediening->Bruikbaar() && bediening->KanFocus()) bereikbaar.insert(bediening);
    }
    std::set<const Bediening*> bereikt;
    const Bediening* plek = nullptr;
    for (std::size_t i = 0; i <= bereikbaar.size(); ++i) {
      plek = formulier.Buur(plek, 1);
      if (plek) bereikt.insert(plek);
    }
    EXPECT_EQ(bereikt, bereikbaar);
  });
}

TEST_P(ElkFormulier, SluitMetEscape) {
  MetForm([](Formulier& formulier) {
    ToetsGebeurtenis escape;
    escape.code = toets::kEscape;
    formulier.Toets(nullptr, escape);
    EXPECT_TRUE(formulier.Gesloten());
  });
}

// The chapters of the manual on entering; the other areas name theirs in their own tests.
const std::map<std::string_view, std::string_view> kHulpOnderwerpen = {
    {"StartRecord", "personen"},     {"ToonPersoon", "personen"},
    {"WijzigPersoon", "personen"},   {"ToonRelatie", "relaties"},
    {"WijzigRelatie", "relaties"},   {"ToonKinderen", "relaties"},
    {"MeerKinderen", "relaties"},    {"KindErbij", "relaties"},
    {"KindEraf", "relaties"},        {"KindSchuif", "relaties"},
    {"VolgnrKind", "relaties"},      {"VraagPartner", "relaties"},
    {"HuwSchuif", "relaties"},       {"VolgNrHuw", "relaties"},
    {"ToonPersOpm", "opmerkingen"},  {"ToonOpm", "opmerkingen"},
    {"WijzigOpm", "opmerkingen"},    {"ToonPlaatsen", "plaatsen"},
    {"VraagPlaatsnm", "plaatsen"},   {"VraagPlaatsnr", "plaatsen"},
    {"VraagProv", "plaatsen"},       {"ZoekPrs", "zoeken"},
    {"VraagFilter", "zoeken"},       {"OKPersoon", "zoeken"},
    {"PersInfoForm", "zoeken"},      {"IniGebruiker", "instellingen"},
    {"IniGezindte", "instellingen"}, {"IniVoorvoeg", "instellingen"},
    {"IniVoorkeur", "instellingen"}, {"IniFunctie", "instellingen"},
    {"IniSysteem", "instellingen"},  {"Bevindingen", "controle"},
    {"ControlePrs", "controle"},     {"ControleRel", "controle"},
    {"ControlePlts", "controle"},    {"ControleOpm", "controle"},
    {"Welkom", "starten"},           {"OudeSetForm", "oude-bestanden"},
    {"InWelkeSet", "gedcom"},
};

// The places of the manual that a link can lead to: its headings, and the ones named beside them.
std::set<std::string> Plekken() {
  std::set<std::string> uit;
  std::istringstream handleiding(LeesBytes(BronMap() / "docs/handleiding.md"));
  for (std::string regel; std::getline(handleiding, regel);) {
    if (regel.starts_with("## ")) {
      std::string plek;
      for (const char teken : regel.substr(3)) {
        if (IsLetter(teken) || IsCijfer(teken) || teken == '-') plek += KleineLetter(teken);
        if (teken == ' ') plek += '-';
      }
      uit.insert(plek);
    }
    constexpr std::string_view kBegin = "<a id=\"";
    if (!regel.starts_with(kBegin)) continue;
    uit.insert(regel.substr(kBegin.size(), regel.find('"', kBegin.size()) - kBegin.size()));
  }
  return uit;
}

TEST_P(ElkFormulier, HeeftEenPlekInDeHandleiding) {
  static const std::set<std::string> plekken = Plekken();
  MetForm([](Formulier& formulier) {
    EXPECT_TRUE(plekken.contains(formulier.HulpOnderwerp())) << formulier.HulpOnderwerp();
  });
}

class Hoofdhulp : public ProgrammaToets {};

TEST_F(Hoofdhulp, OokHetHoofdvensterHeeftEenPlekInDeHandleiding) {
  MaakFamilie();
  const SpeelUitslag uitslag = Speel("", Met([](lb77::Programma& programma) {
                                       const std::string& plek = programma.Menu().HulpOnderwerp();
                                       EXPECT_TRUE(Plekken().contains(plek)) << plek;
                                     }));
  EXPECT_EQ(uitslag.status, 0) << uitslag.reden;
}

TEST_P(ElkFormulier, NoemtZijnHulponderwerp) {
  const auto rij = kHulpOnderwerpen.find(GetParam().naam);
  if (rij == kHulpOnderwerpen.end()) return;
  MetForm([&](Formulier& formulier) { EXPECT_EQ(formulier.HulpOnderwerp(), rij->second); });
}

INSTANTIATE_TEST_SUITE_P(Lijst, ElkFormulier, ::testing::ValuesIn(AlleFormulieren()),
                         [](const auto& info) { return std::string(info.param.naam); });

TEST(AlleFormulieren, NoemtElkFormulierEenKeer) {
  std::set<std::string_view> namen;
  for (const FormulierRij& rij : AlleFormulieren()) EXPECT_TRUE(namen.insert(rij.naam).second);
}

}  // namespace
}  // namespace lb77
