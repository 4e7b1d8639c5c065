// A form with a control of every kind, that writes down what happens to it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"
#include "forms/Rij.h"

namespace lb77 {

class Proefvorm : public Formulier {
 public:
  explicit Proefvorm(Gesprek& deur, std::string_view naam = "Proefvorm")
      : Formulier(naam, "Een proef"), gesprek(deur) {
    ZetEersteVeld(Een);
    for (Bediening* een : Bedieningen()) Noteer(*een);
    BackButton.BijKlik([this] {
      log.emplace_back("klik BackButton");
      Sluit();
    });
    OKButton.BijKlik([this] {
      log.emplace_back("klik OKButton");
      if (bijOK) bijOK();
    });
    Een.BijVerlaten([this] { return Controle(); });
    Klikbaar.BijKlik([this] { log.emplace_back("klik Klikbaar"); });
    Cijfers.ZetFilter(AlleenCijfers);
    Groot.ZetFilter(InHoofdletters);
    Lezen.ZetAlleenLezen(true);
  }

  Tekstvak Een{*this, "Een", "&Eerste veld:", 10};
  Tekstvak Cijfers{*this, "Cijfers", "Cijfers:", 4};
  Tekstvak Groot{*this, "Groot", "Hoofdletters:", 6};
  Tekstvak Vrij{*this, "Vrij", "&Vrij:"};
  Tekstvak Lezen{*this, "Lezen", "Alleen lezen:"};
  Tekstblok Blok{*this, "Blok", "Tekst:", 20};
  Padvak Pad{*this, "Pad", "Pad:"};
  Label Uitleg{*this, "Uitleg", "<b>Uitleg</b> & meer"};
  Label Klikbaar{*this, "Klikbaar", "Klik hier"};
  Vinkje Vink{*this, "Vink", "Een &vinkje"};
  Optie Rood{*this, "Rood", "&Rood"};
  Optie Groen{*this, "Groen", "&Groen"};
  Optie Blauw{*this, "Blauw", "&Blauw"};
  Keuzevak Vak{*this, "Vak", "Keuze:", {"nul", "een", "twee"}};
  Keuzelijst Kieslijst{*this, "Kieslijst", "Lijst:"};
  Teller Stand{*this, "Stand", "Stand:"};
  Rij<Tekstvak, 3> PersNr{*this, "PersNr", 0, "Nr", std::size_t{5}};
  Rij<Knop, 3> Zoek{*this, "Zoek", 0, "Zoek"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  using Formulier::Sluit;
  using Formulier::Verberg;
  using Formulier::WisStop;
  using Formulier::ZetBezig;
  using Formulier::ZetEersteVeld;
  using Formulier::ZetFocus;

  Gesprek& gesprek;
  std::vector<std::string> log;
  bool eenGoed = true;  // what the leave check of Een says
  std::function<void()> bijOK;
  std::function<void()> bijActief;

 protected:
  void BijActiveren() override {
    if (bijActief) bijActief();
  }

 private:
  void Noteer(Bediening& een) {
    een.BijBetreden([this, &een] { log.push_back("in " + een.Naam()); });
    een.BijWijziging([this, &een] { log.push_back("wijzig " + een.Naam() + " " + een.Waarde()); });
    een.BijDubbelklik([this, &een] { log.push_back("dubbel " + een.Naam()); });
  }

  bool Controle() {
    log.emplace_back("controle Een");
    if (!eenGoed) gesprek.Waarschuw("Een is fout");
    return eenGoed;
  }
};

}  // namespace lb77
