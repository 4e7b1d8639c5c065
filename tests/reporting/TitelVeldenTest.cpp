#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "reporting/TitelVelden.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class Titelvorm final : public Formulier {
 public:
  Titelvorm() : Formulier("Titelvorm", "Titels") {}
  TitelVelden Velden{*this, "KWST"};
};

class TitelVeldenToets : public FamilieToets {
 protected:
  Titelvorm vorm_;
};

TEST_F(TitelVeldenToets, LaadtDeTitelEnDeBewaardeKeuzen) {
  Stil([this](Hoofdmodule& hoofd) {
    hoofd.Ini.IniZet("KWST", "OokCopyRt", "N");
    hoofd.Ini.IniZet("KWST", "OokLB77", "");
    vorm_.Velden.Inleiding2.ZetTekst("van de vorige keer");
    vorm_.Velden.Laad(hoofd.Ini, "Kwartierstaat van Jan");
    EXPECT_EQ(vorm_.Velden.TitelTekst.Tekst(), "Kwartierstaat van Jan");
    EXPECT_EQ(vorm_.Velden.Inleiding2.Tekst(), "");
    EXPECT_FALSE(vorm_.Velden.CopyrightBox.Ja());
    EXPECT_TRUE(vorm_.Velden.OokLB77Box.Ja());
  });
}

TEST_F(TitelVeldenToets, NoemtDeGebruikerInDeCopyrightregel) {
  Stil([this](Hoofdmodule& hoofd) {
    vorm_.Velden.Laad(hoofd.Ini, "Titel");
    vorm_.Velden.CopyrightBox.ZetJa(true);
    hoofd.Ini.IniZet("Gebruiker", "Voornaam", "");
    hoofd.Ini.IniZet("Gebruiker", "Naam", "van Dam");
    EXPECT_EQ(vorm_.Velden.Teksten(hoofd.Ini, 2026).copyrightRegel, "Copyright (2026) van Dam");
    vorm_.Velden.CopyrightBox.ZetJa(false);
    EXPECT_EQ(vorm_.Velden.Teksten(hoofd.Ini, 2026).copyrightRegel, "");
  });
}

TEST_F(TitelVeldenToets, HoudtEenentachtigTekensVanEenRegel) {
  Stil([this](Hoofdmodule& hoofd) {
    vorm_.Velden.Inleiding1.ZetTekst("  " + std::string(90, 'x'));
    EXPECT_EQ(vorm_.Velden.Teksten(hoofd.Ini, 2026).inleiding[0], std::string(81, 'x'));
  });
}

TEST_F(TitelVeldenToets, EenKeuzeWeetWatEenOnbekendeWaardeBetekent) {
  Stil([this](Hoofdmodule& hoofd) {
    JaNeeVak& vak = vorm_.Velden.CopyrightBox;
    const auto lees = [&](std::string_view waarde, bool anders) {
      hoofd.Ini.IniZet("KWST", "HTML", waarde);
      bool doel = false;
      OptieTabel("KWST", {{vak, "HTML", anders, doel}}).Laad(hoofd.Ini);
      return vak.Ja();
    };
    EXPECT_TRUE(lees("J", true));
    EXPECT_FALSE(lees("N", true));
    EXPECT_TRUE(lees("?", true));
    EXPECT_TRUE(lees("J", false));
    EXPECT_FALSE(lees("N", false));
    EXPECT_FALSE(lees("?", false));
  });
}

TEST_F(TitelVeldenToets, BewaartDeTweeKeuzenOnderHunSleutels) {
  Stil([this](Hoofdmodule& hoofd) {
    vorm_.Velden.Laad(hoofd.Ini, "Titel");
    vorm_.Velden.CopyrightBox.ZetJa(false);
    vorm_.Velden.Bewaar(hoofd.Ini);
    EXPECT_EQ(hoofd.Ini.IniWaarde("KWST", "OokCopyRt"), "N");
    EXPECT_EQ(hoofd.Ini.IniWaarde("KWST", "OokLB77"), "J");
  });
}

}  // namespace
}  // namespace lb77
