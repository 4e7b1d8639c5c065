// Every form of the program in a window, and the main window over a family.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

#include "Programmaproef.h"
#include "forms/Rijnaam.h"
#include "program/AlleFormulieren.h"
#include "program/Programma.h"
#include "qt/Hoofdvenster.h"
#include "qt/Indelingskeuze.h"
#include "qt/Vertaling.h"
#include "steun/BouwFamilie.h"
#include "steun/TijdelijkeMap.h"
#include "store/Rubrieken.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

class FormulierenTest : public Programmaproef, public testing::WithParamInterface<FormulierRij> {
 protected:
  GemaaktFormulier Maak() { return Programmaproef::Maak(GetParam()); }
};

TEST_P(FormulierenTest, GaatOpenToontAllesLooptRondEnSluit) {
  GemaaktFormulier gemaakt = Maak();
  ASSERT_EQ(gemaakt.formulier->Naam(), GetParam().naam);
  StaDubbelToe({"SchemaVerwantschap ZoekButton(0) ZoekButton(1)",
                "ExpGedcom BrowseButton KiesBronButton", "ExpGedcom ToonLijstButton BackButton",
                "ExpAscii BrowseButton(0) BrowseButton(1)",
                "ExpAscii BrowseButton(0) BrowseButton(2)",
                "ExpAscii BrowseButton(0) KiesBronButton", "ExpAscii ToonLijstButton BackButton"});
  Beproef(*gemaakt.formulier);
}

// The eye reads a table row by row; so Tab goes.
void VerwachtRijVoorRij(const Formulier& formulier, const Blok& blok) {
  for (const Blok& deel : blok.delen) VerwachtRijVoorRij(formulier, deel);
  if (blok.soort != Blok::Soort::Tabel) return;
  const std::vector<Bediening*> erin = Genoemd(formulier, blok);
  EXPECT_FALSE(erin.empty());
  int vorige = 0;
  for (const Bediening* bediening : formulier.Bedieningen()) {
    if (!bediening->KanFocus() || std::count(erin.begin(), erin.end(), bediening) == 0) continue;
    const auto lid = OntleedRijnaam(bediening->Naam());
    ASSERT_TRUE(lid) << bediening->Naam();
    EXPECT_GE(lid->nummer, vorige) << bediening->Naam();
    vorige = lid->nummer;
  }
}

TEST_P(FormulierenTest, GaatMetTabRijVoorRijDoorZijnTabellen) {
  const GemaaktFormulier gemaakt = Maak();
  const auto indeling = GeschrevenIndeling(gemaakt.formulier->Naam());
  ASSERT_TRUE(indeling);
  VerwachtRijVoorRij(*gemaakt.formulier, *indeling);
}

INSTANTIATE_TEST_SUITE_P(Alle, FormulierenTest, testing::ValuesIn(AlleFormulieren()),
                         [](const auto& rij) { return std::string(rij.param.naam); });

class KwartierbladTest : public FormulierenTest {
 protected:
  // Three generations of ancestors of person 2; the oldest have names as long as a record can hold.
  static void MaakVoorouders(BouwFamilie& bouw) {
    std::vector<std::int16_t> kinderen{2};
    for (const bool laatste : {false, false, true}) {
      std::vector<std::int16_t> ouders;
      for (const std::int16_t kind : kinderen) {
        const auto vader = bouw.Man(laatste ? "Maximiliaan Bartholomeus Wilhe" : "Willem",
                                    laatste ? "van Schoonhoven-Terbrugge" : "van Nassau",
                                    {{"GebDatum", "10-04-1487"}, {"OvlDatum", "06-10-1559"}});
        const auto moeder = bouw.Vrouw("Juliana", "van Stolberg", {{"OvlDatum", "18-06-1580"}});
        static_cast<void>(bouw.Relatie(vader, moeder, {kind}));
        ouders.insert(ouders.end(), {vader, moeder});
      }
      kinderen = std::move(ouders);
    }
    static_cast<void>(bouw.Relatie(bouw.Man("Otto", "van Nassau"), 0, {kinderen.front()}));
  }
};

TEST_F(KwartierbladTest, EenVolBladMetDeLangsteNamenPastOpHetScherm) {
  Hoofdmodule& hoofd = programma_->Hoofd();
  BouwFamilie bouw(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking);
  MaakVoorouders(bouw);
  const auto rijen = AlleFormulieren();
  const auto rij = std::find_if(rijen.begin(), rijen.end(),
                                [](const FormulierRij& een) { return een.naam == "KwstBladen"; });
  ASSERT_NE(rij, rijen.end());
  GemaaktFormulier gemaakt = rij->maak(*programma_);
  Beproef(*gemaakt.formulier);
  const auto& naam = dynamic_cast<const Teller&>(*gemaakt.formulier->Zoek("Kwartier(8)"));
  EXPECT_EQ(naam.Tekst(), "Maximiliaan Bartholomeus Wilhe van Schoonhoven-Terbrugge");
}

class HoofdschermTest : public FormulierenTest {};

TEST_F(HoofdschermTest, KomtOpMetDeSetVanDeLaatsteKeer) {
  programma_->Hoofd().Ini.IniZet("Systeem", "Set", "ORANJE");
  Voer(programma_->Menu(), {[&] {
         auto& hoofd = dynamic_cast<Hoofdvenster&>(Bovenste());
         EXPECT_TRUE(hoofd.Actie("TekstKwst")->isEnabled());
         EXPECT_FALSE(hoofd.Actie("ExpVVF")->isVisible());
         Bewaar(hoofd, "MenuWindow");
         hoofd.close();
       }});
}

// With the page that a user has.
TEST_F(HoofdschermTest, HeeftEenStartblad) {
  for (const bool metSet : {true, false}) {
    Voer(MaakHoofdscherm(metSet), {[&] {
           EXPECT_EQ(Vind("ZoekButton").isVisible(), metSet);
           Bewaar(Bovenste(), metSet ? "Startblad" : "StartbladZonderSet");
           Bovenste().close();
         }});
  }
}

}  // namespace
}  // namespace lb77
