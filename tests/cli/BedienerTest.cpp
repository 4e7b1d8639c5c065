#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "cli/Bediener.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

// One control of each kind that a command can set.
class Keuzevorm final : public Formulier {
 public:
  Keuzevorm() : Formulier("Keuzevorm", "Keuzen") {
    Nummer.ZetFilter(AlleenCijfers);
    Nummer.BijVerlaten([this] { return Nummer.Tekst() != "13"; });
    BackButton.BijKlik([this] { Sluit(); });
  }
  Tekstvak Nummer{*this, "Nummer", "Nummer:", 3};
  Keuzevak Soort{*this, "Soort", "Soort:", {"Een", "Twee"}};
  Vinkje Ook{*this, "Ook", "Ook"};
  Label Uitleg{*this, "Uitleg", "Uitleg"};
  Knop BackButton{*this, "BackButton", "&Terug"};
};

// One that does not let itself be left.
class Blijfvorm final : public Formulier {
 public:
  Blijfvorm() : Formulier("Blijfvorm", "Blijf") {}
  Knop BackButton{*this, "BackButton", "&Terug"};
};

class BedienerToets : public ::testing::Test {
 protected:
  // Sets a control of a new form. What was chosen stands in vorm_ then.
  bool Zet(std::string_view naam, std::string_view waarde) {
    regels_.clear();
    return Werk(bediener_, vorm_).Zet(naam, waarde);
  }

  std::vector<std::string> regels_;
  Bediener bediener_{[this](std::string_view regel) { regels_.emplace_back(regel); }};
  Keuzevorm vorm_;
};

TEST_F(BedienerToets, QuestionsAreAnsweredWithNoOrCancelAndTold) {
  const auto vraag = [this](Knoppen knoppen) {
    return bediener_.Bericht(BerichtSoort::Vraag, knoppen, "Doorgaan?");
  };
  EXPECT_EQ(vraag(Knoppen::JaNee), Antwoord::Nee);
  EXPECT_EQ(vraag(Knoppen::OKAnnuleren), Antwoord::Annuleren);
  EXPECT_EQ(vraag(Knoppen::JaNeeAnnuleren), Antwoord::Annuleren);
  EXPECT_EQ(vraag(Knoppen::OK), Antwoord::OK);
  EXPECT_EQ(regels_, (std::vector<std::string>{"Doorgaan? -> Nee", "Doorgaan? -> Annuleren",
                                               "Doorgaan? -> Annuleren", "Doorgaan?"}));
  EXPECT_EQ(bediener_.Status(), 0);
}

TEST_F(BedienerToets, AMissingSettingsFileIsMade) {
  const std::string tekst = "Fout\nDruk op OK om een nieuw IniBestand te maken\nDruk op CANCEL";
  EXPECT_EQ(bediener_.Bericht(BerichtSoort::Uitroep, Knoppen::OKAnnuleren, tekst), Antwoord::OK);
}

TEST_F(BedienerToets, OnlyAStopSymbolMakesTheStatusOne) {
  bediener_.Waarschuw("Let op");
  bediener_.Informeer("Klaar");
  EXPECT_EQ(bediener_.Status(), 0);
  bediener_.Fout("geïmporteerd"_w);
  EXPECT_EQ(bediener_.Status(), 1);
  EXPECT_EQ(regels_.back(), "ge\xC3\xAFmporteerd");
}

TEST_F(BedienerToets, ABoxWithATickIsToldOnce) {
  EXPECT_TRUE(bediener_.BerichtMetVinkje("Tekenset", "Niet meer tonen"));
  EXPECT_TRUE(bediener_.BerichtMetVinkje("Tekenset", "Niet meer tonen"));
  EXPECT_EQ(regels_, std::vector<std::string>{"Tekenset"});
}

TEST_F(BedienerToets, FilesPrintersAndStopsAreNotOffered) {
  EXPECT_EQ(bediener_.VraagBestand({}), std::nullopt);
  EXPECT_FALSE(bediener_.DrukAf({}));
  EXPECT_FALSE(bediener_.StopGevraagd(vorm_));
}

TEST_F(BedienerToets, AFormIsWorkedByItsActionAndLeft) {
  int keer = 0;
  bediener_.Bij("Keuzevorm", [&keer](Formulier&) { ++keer; });
  bediener_.ToonModaal(vorm_);
  EXPECT_TRUE(vorm_.Gesloten());
  EXPECT_EQ(keer, 1);
}

TEST_F(BedienerToets, AFormThatStaysEndsTheCommand) {
  Blijfvorm vorm;
  EXPECT_THROW(bediener_.ToonModaal(vorm), std::runtime_error);
}

TEST_F(BedienerToets, SetsEachKindOfControl) {
  EXPECT_TRUE(Zet("Nummer", "12"));
  EXPECT_EQ(vorm_.Nummer.Tekst(), "12");
  EXPECT_TRUE(Zet("Nummer", ""));
  EXPECT_EQ(vorm_.Nummer.Tekst(), "");
  EXPECT_TRUE(Zet("Soort", "Twee"));
  EXPECT_EQ(vorm_.Soort.Index(), 1);
  EXPECT_TRUE(Zet("Ook", "aan"));
  EXPECT_TRUE(Zet("Ook", "aan"));
  EXPECT_TRUE(vorm_.Ook.Gekozen());
  EXPECT_TRUE(Zet("Ook", "uit"));
  EXPECT_FALSE(vorm_.Ook.Gekozen());
  EXPECT_EQ(bediener_.Status(), 0);
}

TEST_F(BedienerToets, TellsWhyAControlWasNotSet) {
  const auto reden = [this](std::string_view naam, std::string_view waarde) {
    EXPECT_FALSE(Zet(naam, waarde)) << naam;
    return regels_.empty() ? std::string() : regels_.back();
  };
  EXPECT_EQ(reden("Weg", "1"), "Keuzevorm.Weg bestaat niet");
  EXPECT_EQ(reden("Nummer", "1x"), "Keuzevorm.Nummer neemt \"1x\" niet aan");
  EXPECT_EQ(reden("Nummer", "1234"), "Keuzevorm.Nummer neemt \"1234\" niet aan");
  EXPECT_EQ(reden("Nummer", "13"), "Keuzevorm.Nummer heeft geen geldige waarde");
  vorm_.Nummer.ZetTekst("1");
  EXPECT_EQ(reden("Soort", "Drie"), "Keuzevorm.Soort heeft die keuze niet");
  EXPECT_EQ(reden("Ook", "ja"), "Keuzevorm.Ook is aan of uit");
  EXPECT_EQ(reden("Uitleg", "x"), "Keuzevorm.Uitleg kan niet worden gezet");
  vorm_.Ook.ZetIngeschakeld(false);
  EXPECT_EQ(reden("Ook", "aan"), "Keuzevorm.Ook is niet beschikbaar");
  EXPECT_EQ(bediener_.Status(), 1);
}

TEST_F(BedienerToets, AFieldThatCannotBeLeftHoldsTheOthers) {
  EXPECT_FALSE(Zet("Nummer", "13"));
  EXPECT_FALSE(Zet("Soort", "Een"));
  EXPECT_EQ(vorm_.Soort.Index(), -1);
}

}  // namespace
}  // namespace lb77
