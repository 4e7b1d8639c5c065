#include <gtest/gtest.h>

#include "entry/VeldToets.h"
#include "forms/Formulier.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

// A form with a field of each kind, which tells when its leave check runs and how it is left.
class Proefscherm final : public Formulier {
 public:
  explicit Proefscherm(Hoofdmodule& hoofd) : Formulier("Proefscherm", "Proef") {
    KoppelVeldToets(*this, Naam1, InvoerSoort::Tekst, hoofd);
    KoppelVeldToets(*this, Datum, InvoerSoort::Datum, hoofd);
    KoppelVeldToets(*this, Nummer, InvoerSoort::Persoon, hoofd);
    KoppelVeldToets(*this, Doorloper, InvoerSoort::Tekst, hoofd, EnterSoort::Door);
    Naam1.BijVerlaten([&hoofd] {
      hoofd.gesprek.Informeer("controle");
      return true;
    });
    Nummer.BijVerlaten([&hoofd] {
      hoofd.gesprek.Informeer("geweigerd");
      return false;
    });
    BackButton.BijKlik([this, &hoofd] {
      hoofd.gesprek.Informeer("terug");
      Sluit();
    });
    ZetEersteVeld(Naam1);
  }

  Tekstvak Naam1{*this, "Naam1", "Naam", 10};
  Tekstvak Datum{*this, "Datum", "Datum", 10};
  Tekstvak Doorloper{*this, "Doorloper", "Doorloper"};
  Tekstvak Nummer{*this, "Nummer", "Nummer", 5};
  Knop BackButton{*this, "BackButton", "&Terug"};
};

class VeldToetsTest : public FamilieToets {
 protected:
  void SetUp() override { Bouw().Man("Jan", "Vos"); }

  struct Uitslag {
    VeldActie actie = VeldActie::Geen;
    ToetsGebeurtenis toets;
    std::string tekst = "oud";
  };
  Uitslag Druk(ToetsGebeurtenis toets, InvoerSoort soort = InvoerSoort::Tekst) {
    Uitslag uitslag;
    uitslag.toets = toets;
    Stil([&](Hoofdmodule& hoofd) {
      hoofd.Ini.IniZet("Funktietoetsen", "F1", "Amsterdam");
      hoofd.Ini.IniZet("Funktietoetsen", "F8", "Delft");
      hoofd.Ini.IniZet("Funktietoetsen", "F9", "nooit");
      uitslag.actie = VeldToets(uitslag.toets, uitslag.tekst, soort, hoofd);
    });
    return uitslag;
  }

  void Speelt(std::string_view draaiboek, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    const std::string omlijst =
        "+ Proefscherm \"Proef\"\n" + Regels(verslag) + "! info \"terug\"\n- Proefscherm\n";
    Verwacht(
        draaiboek,
        [](Hoofdmodule& hoofd) {
          hoofd.Ini.IniZet("Funktietoetsen", "F1", "Amsterdam");
          hoofd.Ini.IniZet("Funktietoetsen", "F2", "Bergen op Zoom");
          Proefscherm scherm(hoofd);
          hoofd.gesprek.ToonModaal(scherm);
        },
        omlijst, plek);
  }
};

TEST_F(VeldToetsTest, EscapeEnF10LeidenTerug) {
  EXPECT_EQ(Druk({.code = toets::kEscape}).actie, VeldActie::Terug);
  EXPECT_EQ(Druk({.code = toets::kEscape, .shift = true}).actie, VeldActie::Terug);
  const Uitslag f10 = Druk({.code = toets::kF10});
  EXPECT_EQ(f10.actie, VeldActie::Terug);
  EXPECT_EQ(f10.toets.code, toets::kEscape);
  EXPECT_EQ(Druk({.code = toets::kF10, .shift = true}).actie, VeldActie::Geen);
}

TEST_F(VeldToetsTest, EnterVraagtDeControleEnDeScheiderVanHetCijferblokIsEnter) {
  EXPECT_EQ(Druk({.code = toets::kEnter}).actie, VeldActie::Controle);
  const Uitslag uitslag = Druk({.code = toets::kNumEnter});
  EXPECT_EQ(uitslag.actie, VeldActie::Controle);
  EXPECT_EQ(uitslag.toets.code, toets::kEnter);
}

TEST_F(VeldToetsTest, EigenToetsenVanHetVeldBlijvenMetRust) {
  for (const int code : {toets::kNumLock, toets::kInsert, toets::kEnd}) {
    const Uitslag uitslag = Druk({.code = code});
    EXPECT_EQ(uitslag.actie, VeldActie::Voorbij);
    EXPECT_FALSE(uitslag.toets.verwerkt);
    EXPECT_EQ(uitslag.tekst, "oud");
  }
}

TEST_F(VeldToetsTest, CijfersVanHetCijferblokWordenGewoneCijfers) {
  for (int n = 0; n <= 9; ++n) {
    const Uitslag uitslag = Druk({.code = toets::kNum0 + n});
    EXPECT_EQ(uitslag.toets.code, '0' + n);
    EXPECT_EQ(uitslag.toets.teken, static_cast<char>('0' + n));
    EXPECT_EQ(uitslag.actie, VeldActie::Geen);
    EXPECT_FALSE(uitslag.toets.verwerkt);
  }
}

TEST_F(VeldToetsTest, ShiftMetEenFunctietoetsVervangtDeHeleTekst) {
  EXPECT_EQ(Druk({.code = toets::kF1, .shift = true}).tekst, "Amsterdam");
  EXPECT_EQ(Druk({.code = toets::kF8, .shift = true}).tekst, "Delft");
  EXPECT_TRUE(Druk({.code = toets::kF1, .shift = true}).toets.verwerkt);
}

TEST_F(VeldToetsTest, EenFunctietoetsZonderTekstOfBovenF8LaatHetVeldZoalsHetWas) {
  for (const int code : {toets::kF2, toets::kF9, toets::kF12}) {
    const Uitslag uitslag = Druk({.code = code, .shift = true}, InvoerSoort::Persoon);
    EXPECT_EQ(uitslag.tekst, "oud");
    EXPECT_FALSE(uitslag.toets.verwerkt);
  }
  EXPECT_EQ(Druk({.code = toets::kF1}).tekst, "oud");
}

TEST_F(VeldToetsTest, F9MaaktLeegEnGeeftEenDatumveldZijnMasker) {
  EXPECT_EQ(Druk({.code = toets::kF9}).tekst, "");
  EXPECT_EQ(Druk({.code = toets::kF9}, InvoerSoort::Persoon).tekst, "");
  EXPECT_EQ(Druk({.code = toets::kF9}, InvoerSoort::Datum).tekst, "  .  .    ");
}

TEST_F(VeldToetsTest, HetMaskerVolgtDeScheiderVanDeInstellingen) {
  Stil([](Hoofdmodule& hoofd) {
    hoofd.schrijfwijze.DatumScheider = '-';
    ToetsGebeurtenis toets{.code = toets::kF9};
    std::string tekst = "01-02-1850";
    EXPECT_EQ(VeldToets(toets, tekst, InvoerSoort::Datum, hoofd), VeldActie::Geen);
    EXPECT_EQ(tekst, "  -  -    ");
  });
}

TEST_F(VeldToetsTest, F2ZoektAlleenInEenVeldVoorPersonen) {
  EXPECT_EQ(Druk({.code = toets::kF2}).tekst, "oud");
  EXPECT_EQ(Druk({.code = toets::kF2}, InvoerSoort::Datum).tekst, "oud");
}

TEST_F(VeldToetsTest, F2ZetHetNummerVanDeGekozenPersoonInHetVeld) {
  Speelt(R"(
    toets Nummer F2
    druk RecordNrPrs(1)
    toon Nummer
    toets Escape
  )",
         R"(
    ! info "controle"
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    = Nummer "2"
  )");
}

TEST_F(VeldToetsTest, F2ZonderKeuzeLaatHetVeldZoalsHetWas) {
  Speelt(R"(
    typ Nummer 17
    toets F2
    druk BackButton
    toon Nummer
    toets F10
  )",
         R"(
    ! info "controle"
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    = Nummer "17"
  )");
}

TEST_F(VeldToetsTest, EnterVoertDeControleUitEnDeFocusBlijft) {
  Speelt(R"(
    typ Naam1 Jan
    toets Enter
    toets NumEnter
    toon
    druk BackButton
  )",
         R"(
    ! info "controle"
    ! info "controle"
    : Proefscherm "Proef"
    = Naam1 "Jan"
    = Datum ""
    = Doorloper ""
    = Nummer ""
    = BackButton "&Terug"
    * Naam1
  )");
}

TEST_F(VeldToetsTest, EenMislukteControleHoudtDeFocus) {
  Speelt(R"(
    typ Nummer 17
    toets Enter
    toon
    toets Escape
  )",
         R"(
    ! info "controle"
    ! info "geweigerd"
    : Proefscherm "Proef"
    = Naam1 ""
    = Datum ""
    = Doorloper ""
    = Nummer "17"
    = BackButton "&Terug"
    * Nummer
  )");
}

TEST_F(VeldToetsTest, EscapeEnF10VerlatenZonderControle) {
  Speelt("toets Escape", "");
  Speelt("toets F10", "");
}

TEST_F(VeldToetsTest, EenVeldMagMetEnterDoorlopen) {
  Speelt(R"(
    typ Doorloper Jan
    toets Enter
    typ Nummer 4
    toets Escape
  )",
         R"(! info "controle")");
}

TEST_F(VeldToetsTest, DeTekstVanEenFunctietoetsPastInHetVeld) {
  Speelt(R"(
    typ Naam1 oud
    toets Shift+F1
    toon Naam1
    toets Shift+F2
    toon Naam1
    toets F9
    toon Naam1
    toets Num7
    toon Naam1
    toets Escape
  )",
         R"(
    = Naam1 "Amsterdam"
    = Naam1 "Bergen op "
    = Naam1 ""
    = Naam1 "7"
  )");
}

TEST_F(VeldToetsTest, DeZoektochtVanF2VerbruiktDeToets) {
  Verwacht(
      "druk BackButton",
      [](Hoofdmodule& hoofd) {
        ToetsGebeurtenis toets{.code = toets::kF2};
        std::string tekst;
        EXPECT_EQ(VeldToets(toets, tekst, InvoerSoort::Persoon, hoofd), VeldActie::Geen);
        EXPECT_TRUE(toets.verwerkt);
      },
      R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
  )");
}

TEST_F(VeldToetsTest, EscapeDruktEenmaalOpTerugOokAlsHetSchermBlijftStaan) {
  Stil([](Hoofdmodule& hoofd) {
    Proefscherm scherm(hoofd);
    int gedrukt = 0;
    scherm.BackButton.BijKlik([&gedrukt] { ++gedrukt; });
    ASSERT_TRUE(scherm.Laad());
    EXPECT_TRUE(scherm.Toets(&scherm.Naam1, {.code = toets::kEscape}));
    EXPECT_EQ(gedrukt, 1);
    EXPECT_TRUE(scherm.Toets(&scherm.Naam1, {.code = toets::kF10}));
    EXPECT_EQ(gedrukt, 2);
  });
}

TEST_F(VeldToetsTest, EenVeldZonderGrensNeemtDeHeleTekst) {
  Speelt("toets Doorloper Shift+F2\ntoon Doorloper\ntoets Escape", R"(
    ! info "controle"
    = Doorloper "Bergen op Zoom"
  )");
}

TEST_F(VeldToetsTest, F9InEenDatumveldLaatHetMaskerAchter) {
  Speelt(R"(
    typ Datum 01.02.1850
    toets F9
    toon Datum
    toets Escape
  )",
         R"(
    ! info "controle"
    = Datum "  .  .    "
  )");
}

TEST_F(VeldToetsTest, EenToetsDieDeTekstVerandertTeltAlsWijziging) {
  Stil([](Hoofdmodule& hoofd) {
    Proefscherm scherm(hoofd);
    ASSERT_TRUE(scherm.Laad());
    scherm.Naam1.ZetTekst("oud");
    EXPECT_FALSE(scherm.Toets(&scherm.Naam1, {.code = toets::kEnd}));
    EXPECT_FALSE(scherm.Gewijzigd());
    EXPECT_TRUE(scherm.Toets(&scherm.Naam1, {.code = toets::kF9}));
    EXPECT_TRUE(scherm.Gewijzigd());
  });
}

}  // namespace
}  // namespace lb77
