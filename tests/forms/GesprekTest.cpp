#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"
#include "forms/ProefFormulier.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

// A user who presses nothing but closes, and a diary of what the door did.
class ProefGesprek : public Gesprek {
 public:
  explicit ProefGesprek(std::vector<std::string>& dagboek) : dagboek_(dagboek) {}

  Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) override {
    laatsteSoort = soort;
    laatsteKnoppen = knoppen;
    dagboek_.push_back("bericht " + std::string(tekst));
    return antwoord;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override {
    return std::nullopt;
  }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier& formulier) override {
    return formulier.StopVerzocht();
  }

  BerichtSoort laatsteSoort = BerichtSoort::Geen;
  Knoppen laatsteKnoppen = Knoppen::JaNeeAnnuleren;
  Antwoord antwoord = Antwoord::OK;

 protected:
  void Open(Formulier&) override { dagboek_.push_back("getoond"); }
  void Voer(Formulier& formulier) override {
    dagboek_.push_back("gebruiker");
    formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override { dagboek_.push_back("weg"); }

 private:
  std::vector<std::string>& dagboek_;
};

class GesprekTest : public ::testing::Test {
 protected:
  ProefFormulier formulier_;
  ProefGesprek gesprek_{formulier_.dagboek};
};

// A form that closes itself at a moment of the test's choice.
class Sluiter : public ProefFormulier {
 public:
  bool bijLaden = false;

 protected:
  void BijLaden() override {
    ProefFormulier::BijLaden();
    if (bijLaden) Sluit();
  }
  void BijActiveren() override {
    ProefFormulier::BijActiveren();
    Sluit();
  }
};

TEST_F(GesprekTest, EenFormulierLeeftInVasteVolgorde) {
  gesprek_.ToonModaal(formulier_);
  EXPECT_THAT(formulier_.dagboek, ElementsAre("geladen", "getoond", "actief", "in Naam1",
                                              "gebruiker", "klik BackButton", "weg", "gesloten"));
}

TEST(Gesprek, EenFormulierDatBijHetLadenSluitWordtNooitGetoond) {
  Sluiter formulier;
  formulier.bijLaden = true;
  ProefGesprek gesprek(formulier.dagboek);
  gesprek.ToonModaal(formulier);
  EXPECT_THAT(formulier.dagboek, ElementsAre("geladen"));
}

TEST(Gesprek, EenFormulierDatBijHetActiverenSluitWachtNietOpDeGebruiker) {
  Sluiter formulier;
  ProefGesprek gesprek(formulier.dagboek);
  gesprek.ToonModaal(formulier);
  EXPECT_THAT(formulier.dagboek, ElementsAre("geladen", "getoond", "actief", "weg", "gesloten"));
}

TEST(Gesprek, EenFormulierDatEenUitzonderingLaatGaanGaatWelVanHetScherm) {
  class Werper final : public ProefFormulier {
   protected:
    void BijActiveren() override { throw 7; }
  };
  Werper formulier;
  ProefGesprek gesprek(formulier.dagboek);
  EXPECT_THROW(gesprek.ToonModaal(formulier), int);
  EXPECT_THAT(formulier.dagboek, ElementsAre("geladen", "getoond", "weg"));
}

TEST_F(GesprekTest, EenFormulierKanNogEensWordenGetoond) {
  gesprek_.ToonModaal(formulier_);
  formulier_.dagboek.clear();
  gesprek_.ToonModaal(formulier_);
  EXPECT_EQ(formulier_.dagboek.size(), 8U);
}

// A user who presses Knop1 once, and a diary with the names of the forms.
class NaamGesprek final : public ProefGesprek {
 public:
  explicit NaamGesprek(std::vector<std::string>& dagboek)
      : ProefGesprek(dagboek), dagboek_(dagboek) {}

 protected:
  void Open(Formulier& formulier) override { dagboek_.push_back("+ " + formulier.Naam()); }
  void Voer(Formulier& formulier) override {
    if (Bediening* knop = formulier.Zoek("Knop1")) formulier.Klik(*knop);
  }
  void Dicht(Formulier& formulier) override { dagboek_.push_back("- " + formulier.Naam()); }
  void Vergeet(Formulier& formulier) override { dagboek_.push_back("klaar " + formulier.Naam()); }

 private:
  std::vector<std::string>& dagboek_;
};

class Knopvorm final : public Formulier {
 public:
  explicit Knopvorm(std::string_view naam) : Formulier(naam, "") {}
  using Formulier::Sluit;
  using Formulier::Verberg;

  Knop Knop1{*this, "Knop1", "&Knop"};
};

TEST(Gesprek, EenGeslotenFormulierGaatWegVoorHetVolgendeKomt) {
  std::vector<std::string> dagboek;
  NaamGesprek gesprek(dagboek);
  Knopvorm eerste("Eerste");
  Knopvorm tweede("Tweede");
  eerste.Knop1.BijKlik([&] {
    eerste.Sluit();
    gesprek.ToonModaal(tweede);
    gesprek.Toon<Knopvorm>("Derde");
  });
  gesprek.ToonModaal(eerste);
  EXPECT_THAT(dagboek, ElementsAre("+ Eerste", "- Eerste", "+ Tweede", "- Tweede", "klaar Tweede",
                                   "+ Derde", "- Derde", "klaar Derde", "klaar Eerste"));
}

TEST(Gesprek, EenOpenOfVerborgenFormulierBlijftOnderHetVolgende) {
  for (const bool verborgen : {false, true}) {
    std::vector<std::string> dagboek;
    NaamGesprek gesprek(dagboek);
    Knopvorm eerste("Eerste");
    eerste.Knop1.BijKlik([&] {
      if (verborgen) eerste.Verberg();
      gesprek.Toon<Knopvorm>("Tweede");
      dagboek.emplace_back("verder");
    });
    gesprek.ToonModaal(eerste);
    EXPECT_THAT(dagboek, ElementsAre("+ Eerste", "+ Tweede", "- Tweede", "klaar Tweede", "verder",
                                     "- Eerste", "klaar Eerste"));
  }
}

TEST(Gesprek, EenUitzonderingNaHetSluitenHaaltNietNogEensWeg) {
  std::vector<std::string> dagboek;
  NaamGesprek gesprek(dagboek);
  Knopvorm eerste("Eerste");
  eerste.Knop1.BijKlik([&] {
    eerste.Sluit();
    gesprek.Toon<Knopvorm>("Tweede");
    throw 7;
  });
  EXPECT_THROW(gesprek.ToonModaal(eerste), int);
  EXPECT_THAT(dagboek, ElementsAre("+ Eerste", "- Eerste", "+ Tweede", "- Tweede", "klaar Tweede",
                                   "klaar Eerste"));
}

TEST_F(GesprekTest, DeGewoneBerichtenHebbenHunEigenTeken) {
  const auto soortNa = [&](const std::function<void()>& meld) {
    meld();
    EXPECT_EQ(gesprek_.laatsteKnoppen, Knoppen::OK);
    return gesprek_.laatsteSoort;
  };
  EXPECT_EQ(soortNa([&] { gesprek_.Waarschuw("a"); }), BerichtSoort::Uitroep);
  EXPECT_EQ(soortNa([&] { gesprek_.Fout("b"); }), BerichtSoort::Stop);
  EXPECT_EQ(soortNa([&] { gesprek_.Informeer("c"); }), BerichtSoort::Info);
  EXPECT_EQ(soortNa([&] { gesprek_.Meld(BerichtSoort::Geen, "d"); }), BerichtSoort::Geen);
  EXPECT_THAT(formulier_.dagboek, ElementsAre("bericht a", "bericht b", "bericht c", "bericht d"));
}

TEST_F(GesprekTest, EenVraagIsJaOfNeeMetEenVraagteken) {
  gesprek_.antwoord = Antwoord::Ja;
  EXPECT_TRUE(gesprek_.Vraag("Doorgaan ?"));
  gesprek_.antwoord = Antwoord::Nee;
  EXPECT_FALSE(gesprek_.Vraag("Doorgaan ?"));
  EXPECT_EQ(gesprek_.laatsteSoort, BerichtSoort::Vraag);
  EXPECT_EQ(gesprek_.laatsteKnoppen, Knoppen::JaNee);
}

}  // namespace
}  // namespace lb77
