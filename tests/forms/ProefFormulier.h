// A form with one of most things, and a diary of its events.
#pragma once

#include <string>
#include <vector>

#include "forms/Formulier.h"

namespace lb77 {

// Every event is written in `dagboek` as "event Naam". A field in `weigeraar` fails its leave check.
class ProefFormulier : public Formulier {
 public:
  ProefFormulier() : Formulier("Proef", "Proefformulier") {
    for (Bediening* veld : {static_cast<Bediening*>(&Naam1), static_cast<Bediening*>(&Naam2),
                            static_cast<Bediening*>(&Lijst1)}) {
      Volg(*veld);
    }
    for (Bediening* knop : {static_cast<Bediening*>(&OKButton),
                            static_cast<Bediening*>(&BackButton), static_cast<Bediening*>(&Vink),
                            static_cast<Bediening*>(&Links), static_cast<Bediening*>(&Rechts),
                            static_cast<Bediening*>(&Kop), static_cast<Bediening*>(&Menu1)}) {
      knop->BijKlik([this, knop] { Noteer("klik", *knop); });
    }
    Kop.BijDubbelklik([this] { Noteer("dubbelklik", Kop); });
    ZetEersteVeld(Naam1);
  }

  using Formulier::Controleer;
  using Formulier::Sluit;
  using Formulier::Verberg;
  using Formulier::WisStop;
  using Formulier::ZetBezig;
  using Formulier::ZetEersteVeld;
  using Formulier::ZetFocus;

  // Raises loaded and activated, as the door does, and begins a fresh diary.
  void Start() {
    static_cast<void>(Laad());
    Activeer();
    dagboek.clear();
  }

  void Noteer(const std::string& gebeurtenis, const Bediening& bediening) {
    dagboek.push_back(gebeurtenis + " " + bediening.Naam());
  }

  std::vector<std::string> dagboek;
  const Bediening* weigeraar = nullptr;
  Bediening* focusBijActiveren = nullptr;
  int toetsen = 0;  // keys that came to the form itself

  Tekstvak Naam1{*this, "Naam1", "&Eerste", 5};
  Tekstvak Naam2{*this, "Naam2", "&Tweede"};
  Keuzevak Lijst1{*this, "Lijst1", "&Keuze", {"een", "twee", "drie"}};
  Vinkje Vink{*this, "Vink", "&Vink"};
  Optie Links{*this, "Links", "&Links"};
  Optie Rechts{*this, "Rechts", "&Rechts"};
  Optie Los{*this, "Los", "L&os", 1};
  Label Kop{*this, "Kop", "Kop"};
  MenuKeuze Menu1{*this, "Menu1", "&Menu", ""};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override { dagboek.push_back("geladen"); }
  void BijActiveren() override {
    dagboek.push_back("actief");
    if (focusBijActiveren) ZetFocus(*focusBijActiveren);
  }
  void BijToets(ToetsGebeurtenis&) override { ++toetsen; }
  void BijGesloten() override { dagboek.push_back("gesloten"); }

 private:
  void Volg(Bediening& veld) {
    veld.BijBetreden([this, &veld] { Noteer("in", veld); });
    veld.BijVerlaten([this, &veld] {
      Noteer("uit", veld);
      return weigeraar != &veld;
    });
    veld.BijWijziging([this, &veld] { Noteer("anders", veld); });
  }
};

}  // namespace lb77
