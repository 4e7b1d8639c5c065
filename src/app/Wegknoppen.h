// The four ways to a family, as buttons with a word of explanation each.
#pragma once

#include <array>
#include <functional>
#include <utility>

#include "forms/Keuzen.h"
#include "forms/Weergave.h"

namespace lb77 {

enum class Weg { NieuweFamilie, Gedcom, OudeBestanden, Voorbeeld };

// A form takes it as one member.
class Wegknoppen {
 public:
  explicit Wegknoppen(Formulier& formulier)
      : NieuweFamilie(formulier, "NieuweFamilie", "&Nieuwe familie"),
        NieuweUitleg(formulier, "NieuweUitleg",
                     "Begin met niets en voer de eerste persoon zelf in."),
        GedcomInlezen(formulier, "GedcomInlezen", "&GEDCOM inlezen"),
        GedcomUitleg(formulier, "GedcomUitleg",
                     "Neem de gegevens over uit een ander programma (een .ged-bestand)."),
        OudeBestanden(formulier, "OudeBestanden", "&Oude bestanden openen"),
        OudeUitleg(formulier, "OudeUitleg",
                   "Werk verder met bestanden van vroeger, van een diskette bijvoorbeeld."),
        Voorbeeldfamilie(formulier, "Voorbeeldfamilie", "Voorbeeldfamilie be&kijken"),
        VoorbeeldUitleg(formulier, "VoorbeeldUitleg",
                        "Kijk rond bij het huis Oranje-Nassau; u kunt er niets aan bederven.") {}

  Knop NieuweFamilie;
  Label NieuweUitleg;
  Knop GedcomInlezen;
  Label GedcomUitleg;
  Knop OudeBestanden;
  Label OudeUitleg;
  Knop Voorbeeldfamilie;
  Label VoorbeeldUitleg;

  void BijKeuze(const std::function<void(Weg)>& doe) {
    for (const auto& [knop, weg] : knoppen_) {
      knop->BijKlik([doe, weg = weg] { doe(weg); });
    }
  }
  void ZetZichtbaar(bool zichtbaar) {
    for (const auto& [knop, weg] : knoppen_) knop->ZetZichtbaar(zichtbaar);
    for (Label* uitleg : {&NieuweUitleg, &GedcomUitleg, &OudeUitleg, &VoorbeeldUitleg}) {
      uitleg->ZetZichtbaar(zichtbaar);
    }
  }

 private:
  const std::array<std::pair<Knop*, Weg>, 4> knoppen_{{{&NieuweFamilie, Weg::NieuweFamilie},
                                                       {&GedcomInlezen, Weg::Gedcom},
                                                       {&OudeBestanden, Weg::OudeBestanden},
                                                       {&Voorbeeldfamilie, Weg::Voorbeeld}}};
};

}  // namespace lb77
