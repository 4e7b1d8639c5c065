// Small forms for the player's tests: a main window, an entry form, a form that works.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"

namespace lb77 {

// Counts to ten, and can be stopped.
class Werk final : public Formulier {
 public:
  explicit Werk(Gesprek& gesprek) : Formulier("Werk", "Bezig"), gesprek_(gesprek) {}

  Teller Aantal{*this, "Aantal", "Aantal:"};

 protected:
  void BijActiveren() override {
    for (int i = 1; i <= 10; ++i) {
      gesprek_.Ververs(*this);
      if (gesprek_.StopGevraagd(*this)) {
        if (gesprek_.Vraag("Afbreken bij " + GetalTekst(i) + " ?")) break;
        WisStop();
      }
      Aantal.ZetTekst(GetalTekst(i));
    }
    gesprek_.Meld(BerichtSoort::Geen, "Geteld tot " + Aantal.Tekst());
    Sluit();
  }

 private:
  Gesprek& gesprek_;
};

// One of most things. A number 0 fails its leave check, 1 sends the focus to the button, 2 hides
// the name, 3 closes the form. The name "stop" sends the focus to the button.
class Invoer final : public Formulier {
 public:
  explicit Invoer(Gesprek& gesprek) : Formulier("Invoer", "Invoer"), gesprek_(gesprek) {
    Nummer.ZetFilter(AlleenCijfers);
    Nummer.BijVerlaten([this] { return NummerGoed(); });
    Nummer.BijToets([](ToetsGebeurtenis& toets) { toets.verwerkt = toets.teken == '7'; });
    Naam.BijBetreden([this] { Stand.ZetTekst("in Naam"); });
    Naam.BijWijziging([this] {
      Stand.ZetTekst(Stand.Tekst() + "|" + Naam.Tekst());
      if (Naam.Tekst() == "stop") ZetFocus(OKButton);
    });
    Lezen.ZetAlleenLezen(true);
    Kop.BijKlik([this] { ZetTitel("Geklikt"); });
    Kop.BijDubbelklik([this] { Kop.ZetBijschrift("Crematie"); });
    WerkButton.BijKlik([this] {
      Werk werk(gesprek_);
      gesprek_.ToonModaal(werk);
      Stand.ZetTekst("gewerkt");
    });
    OKButton.BijKlik([this] {
      gesprek_.Informeer("Opgeslagen: " + Naam.Tekst());
      Sluit();
    });
    BackButton.BijKlik([this] { Sluit(); });
  }

  Tekstvak Nummer{*this, "Nummer", "&Nummer", 4};
  Tekstvak Naam{*this, "Naam", "N&aam"};
  Tekstblok Opm{*this, "Opm", "O&pmerking"};
  Tekstvak Lezen{*this, "Lezen", "Lezen"};
  Keuzevak Keuze{*this, "Keuze", "&Keuze", {"Ja", "Nee", "#1"}};
  Vinkje Vink{*this, "Vink", "&Vink"};
  Optie Man{*this, "Man", "&Man"};
  Optie Vrouw{*this, "Vrouw", "V&rouw"};
  Label Kop{*this, "Kop", "Begraven"};
  Label Plat{*this, "Plat", "Plat"};
  Wissellabel Wissel{*this, "Wissel", {"Begraven", "Crematie"}};
  Teller Stand{*this, "Stand"};
  Knop WerkButton{*this, "WerkButton", "&Werk"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijToets(ToetsGebeurtenis& toets) override {
    if (toets.code == toets::kF1) Stand.ZetTekst(toets.shift ? "Shift+F1" : "F1");
    if (toets.code == toets::kF2) Naam.ZetZichtbaar(false);
    if (toets.code == toets::kF8) Naam.ZetAlleenLezen(true);
  }

 private:
  bool NummerGoed() {
    if (Nummer.Tekst() == "0") {
      gesprek_.Waarschuw("Nummer bestaat niet");
      return false;
    }
    if (Nummer.Tekst() == "1") ZetFocus(OKButton);
    if (Nummer.Tekst() == "2") Naam.ZetZichtbaar(false);
    if (Nummer.Tekst() == "3") Sluit();
    return true;
  }

  Gesprek& gesprek_;
};

// The main window: a menu that starts the entry form, and entries that cannot be had.
class Hoofd final : public Formulier {
 public:
  explicit Hoofd(Gesprek& gesprek) : Formulier("Hoofd", "Hoofdvenster"), gesprek_(gesprek) {
    Nieuw.BijKlik([this] {
      Invoer invoer(gesprek_);
      gesprek_.ToonModaal(invoer);
      ZetTitel("Hoofdvenster na " + invoer.Nummer.Tekst());
    });
    Diep.BijKlik([this] { ZetTitel("Diep"); });
    Grijs.BijKlik([this] { ZetTitel("Grijs"); });
    Grijs.ZetIngeschakeld(false);
    Weg.BijKlik([this] { ZetTitel("Weg"); });
    Weg.ZetZichtbaar(false);
    Einde.BijKlik([this] { Sluit(); });
  }

  MenuKeuze Menu{*this, "Menu", "&Bestand", ""};
  MenuKeuze Nieuw{*this, "Nieuw", "&Nieuw", "Menu"};
  MenuKeuze Sub{*this, "Sub", "&Sub", "Menu"};
  MenuKeuze Diep{*this, "Diep", "&Diep", "Sub"};
  MenuKeuze Grijs{*this, "Grijs", "&Grijs", "Menu"};
  MenuKeuze Weg{*this, "Weg", "&Weg", "Menu"};
  MenuKeuze Einde{*this, "Einde", "&Einde", "Menu"};

 private:
  Gesprek& gesprek_;
};

// A form whose life is told by the test.
class Levensloop final : public Formulier {
 public:
  using Stap = std::function<void(Levensloop&)>;

  explicit Levensloop(std::string_view naam) : Formulier(naam, "Levensloop") {
    Knop1.BijKlik([this] { klik(*this); });
  }
  using Formulier::Sluit;
  using Formulier::Verberg;

  Stap laden = [](Levensloop&) {};
  Stap activeren = [](Levensloop&) {};
  Stap klik = [](Levensloop&) {};
  Stap gesloten = [](Levensloop&) {};

  Knop Knop1{*this, "Knop1", "&Knop"};

 protected:
  void BijLaden() override { laden(*this); }
  void BijActiveren() override { activeren(*this); }
  void BijGesloten() override { gesloten(*this); }
};

}  // namespace lb77
