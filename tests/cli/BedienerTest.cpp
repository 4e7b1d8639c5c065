#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "cli/Bediener.h"
#include "cli/Werk.h"
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
  Tekstvak Nummer{*this, "Nummer", "Persoonsnummer:", 3};
  Keuzevak Soort{*this, "Soort", "Soort:", {"Een", "Twee"}};
  Vinkje Ook{*this, "Ook", "&Ook stiefkinderen ?"};
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

TEST_F(BedienerToets, VragenKrijgenNeeOfAnnulerenEnWordenGemeld) {
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

TEST_F(BedienerToets, LieverNeeDanAnnulerenWaarBeideKunnen) {
  bediener_.LieverNee();
  const auto vraag = [this](Knoppen knoppen) {
    return bediener_.Bericht(BerichtSoort::Vraag, knoppen, "Doorgaan?");
  };
  EXPECT_EQ(vraag(Knoppen::JaNeeAnnuleren), Antwoord::Nee);
  EXPECT_EQ(vraag(Knoppen::JaNee), Antwoord::Nee);
  EXPECT_EQ(vraag(Knoppen::OKAnnuleren), Antwoord::Annuleren);
}

TEST_F(BedienerToets, EenAntwoordKanVoorEenFormulierSteedsGelden) {
  bediener_.HoudSteeds("", Antwoord::OK);
  bediener_.HoudSteeds("Ander", Antwoord::Ja);
  bediener_.HoudKlaar("", Antwoord::Annuleren);
  const auto vraag = [this](Knoppen knoppen) {
    return bediener_.Bericht(BerichtSoort::Vraag, knoppen, "Doorgaan?");
  };
  EXPECT_EQ(vraag(Knoppen::OKAnnuleren), Antwoord::Annuleren);
  EXPECT_EQ(vraag(Knoppen::OKAnnuleren), Antwoord::OK);
  EXPECT_EQ(vraag(Knoppen::OKAnnuleren), Antwoord::OK);
  EXPECT_EQ(vraag(Knoppen::JaNee), Antwoord::Nee);
}

TEST_F(BedienerToets, EenAntwoordDatKlaarligtIsVoorEenVraag) {
  const auto vraag = [this](Knoppen knoppen) {
    return bediener_.Bericht(BerichtSoort::Uitroep, knoppen, "Nieuw?");
  };
  bediener_.HoudKlaar({}, Antwoord::OK);
  EXPECT_EQ(vraag(Knoppen::JaNee), Antwoord::Nee);  // does not offer it
  EXPECT_EQ(vraag(Knoppen::OK), Antwoord::OK);      // asks nothing
  EXPECT_EQ(vraag(Knoppen::OKAnnuleren), Antwoord::OK);
  EXPECT_EQ(vraag(Knoppen::OKAnnuleren), Antwoord::Annuleren);
  EXPECT_EQ(regels_.back(), "Nieuw? -> Annuleren");
}

TEST_F(BedienerToets, EenAntwoordGeldtAlleenBijZijnFormulier) {
  bediener_.HoudKlaar("Keuzevorm", Antwoord::Ja);
  const auto vraag = [this] {
    return bediener_.Bericht(BerichtSoort::Vraag, Knoppen::JaNee, "Doorgaan?");
  };
  EXPECT_EQ(vraag(), Antwoord::Nee);
  Antwoord open = Antwoord::Nee;
  bediener_.Bij("Keuzevorm", [&](Formulier&) { open = vraag(); });
  bediener_.ToonModaal(vorm_);
  EXPECT_EQ(open, Antwoord::Ja);
  EXPECT_EQ(vraag(), Antwoord::Nee);
}

TEST_F(BedienerToets, AlleenEenStopsymboolMaaktDeUitkomstEen) {
  bediener_.Waarschuw("Let op");
  bediener_.Informeer("Klaar");
  EXPECT_EQ(bediener_.Status(), 0);
  bediener_.Fout("geïmporteerd"_w);
  EXPECT_EQ(bediener_.Status(), 1);
  EXPECT_EQ(regels_.back(), "ge\xC3\xAFmporteerd");
}

TEST_F(BedienerToets, EenVensterMetVinkjeWordtEenmaalGemeld) {
  EXPECT_TRUE(bediener_.BerichtMetVinkje("Tekenset", "Niet meer tonen"));
  EXPECT_TRUE(bediener_.BerichtMetVinkje("Tekenset", "Niet meer tonen"));
  EXPECT_EQ(regels_, std::vector<std::string>{"Tekenset"});
}

TEST_F(BedienerToets, BestandenPrintersEnOnderbrekingenZijnErNiet) {
  EXPECT_EQ(bediener_.VraagBestand({}), std::nullopt);
  EXPECT_FALSE(bediener_.DrukAf({}));
  EXPECT_FALSE(bediener_.StopGevraagd(vorm_));
}

TEST_F(BedienerToets, EenPrinterGeeftZijnBladzijdenDoor) {
  std::string titel;
  bediener_.BijAfdruk([&titel](const Afdruk& afdruk) { titel = afdruk.titel; });
  EXPECT_TRUE(bediener_.DrukAf({"Blad", {}}));
  EXPECT_EQ(titel, "Blad");
}

TEST_F(BedienerToets, EenFormulierWordtBediendEnVerlaten) {
  int keer = 0;
  bediener_.Bij("Keuzevorm", [&keer](Formulier&) { ++keer; });
  bediener_.ToonModaal(vorm_);
  EXPECT_TRUE(vorm_.Gesloten());
  EXPECT_EQ(keer, 1);
}

TEST_F(BedienerToets, EenFormulierDatBlijftEindigtDeOpdracht) {
  Blijfvorm vorm;
  EXPECT_THROW(bediener_.ToonModaal(vorm), std::runtime_error);
}

TEST_F(BedienerToets, ZetElkeSoortBediening) {
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

TEST_F(BedienerToets, MeldtWaaromEenBedieningNietIsGezet) {
  const auto reden = [this](std::string_view naam, std::string_view waarde) {
    EXPECT_FALSE(Zet(naam, waarde)) << naam;
    return regels_.empty() ? std::string() : regels_.back();
  };
  EXPECT_EQ(reden("Weg", "1"), "Keuzen: Weg bestaat niet");
  EXPECT_EQ(reden("Nummer", "1x"), "Keuzen: Persoonsnummer neemt \"1x\" niet aan");
  EXPECT_EQ(reden("Nummer", "1234"), "Keuzen: Persoonsnummer neemt \"1234\" niet aan");
  EXPECT_EQ(reden("Nummer", "13"), "Keuzen: Persoonsnummer heeft geen geldige waarde");
  vorm_.Nummer.ZetTekst("1");
  EXPECT_EQ(reden("Soort", "Drie"), "Keuzen: Soort heeft geen rij \"Drie\"");
  EXPECT_EQ(reden("Ook", "ja"), "Keuzen: Ook stiefkinderen kan alleen aan of uit");
  EXPECT_EQ(reden("Uitleg", "x"), "Keuzen: Uitleg is geen keuze");
  vorm_.Ook.ZetIngeschakeld(false);
  EXPECT_EQ(reden("Ook", "aan"), "Keuzen: Ook stiefkinderen is uitgeschakeld");
  EXPECT_EQ(bediener_.Status(), 1);
}

TEST_F(BedienerToets, EenVeldDatNietVerlatenKanWordenHoudtDeAndereVast) {
  EXPECT_FALSE(Zet("Nummer", "13"));
  EXPECT_FALSE(Zet("Soort", "Een"));
  EXPECT_EQ(vorm_.Soort.Index(), -1);
}

}  // namespace
}  // namespace lb77
