// The four ways to a family, as buttons with a word of explanation each.
#pragma once

#include <array>
#include <functional>
#include <utility>

#include "forms/Keuzen.h"
#include "forms/Weergave.h"

namespace lb77 {

// The last is that of sets that lie there already, and has no button among the four.
enum class Weg { NieuweFamilie, Gedcom, OudeBestanden, Voorbeeld, Teruggevonden };

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
                        "Kijk rond bij het huis Oranje-Nassau; u kunt er niets aan bederven.") {
    for (const auto& [knop, weg] : knoppen_) {
      knop->BijKlik([this, weg = weg] { KnopKlik(weg); });
    }
  }
  Wegknoppen(const Wegknoppen&) = delete;
  Wegknoppen& operator=(const Wegknoppen&) = delete;

  Knop NieuweFamilie;
  Label NieuweUitleg;
  Knop GedcomInlezen;
  Label GedcomUitleg;
  Knop OudeBestanden;
  Label OudeUitleg;
  Knop Voorbeeldfamilie;
  Label VoorbeeldUitleg;

  void BijKeuze(std::function<void(Weg)> doe) { bijKeuze_ = std::move(doe); }
  void ZetZichtbaar(bool zichtbaar) {
    for (const auto& [knop, weg] : knoppen_) knop->ZetZichtbaar(zichtbaar);
    for (Label* uitleg : {&NieuweUitleg, &GedcomUitleg, &OudeUitleg, &VoorbeeldUitleg}) {
      uitleg->ZetZichtbaar(zichtbaar);
    }
  }

 private:
  void KnopKlik(Weg weg) const {
    if (bijKeuze_) bijKeuze_(weg);
  }

  std::function<void(Weg)> bijKeuze_;
  const std::array<std::pair<Knop*, Weg>, 4> knoppen_{{{&NieuweFamilie, Weg::NieuweFamilie},
                                                       {&GedcomInlezen, Weg::Gedcom},
                                                       {&OudeBestanden, Weg::OudeBestanden},
                                                       {&Voorbeeldfamilie, Weg::Voorbeeld}}};
};

}  // namespace lb77
