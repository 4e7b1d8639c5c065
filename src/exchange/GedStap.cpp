#include "exchange/GedStap.h"

#include "text/Getallen.h"

namespace lb77 {

GedUitslag GedStap::Voer() {
  loop_.lezer.Begin();
  std::string_view tekst;
  while (loop_.lezer.Volgende(tekst)) {
    const GedcomRegel regel = GedRegel(tekst);
    Verloop verloop = Verloop::Verder;
    if (regel.fout.empty()) {
      loop_.voortgang.Regel(regelNr_++);
      verloop = Verwerk(regel);
    } else {
      verloop = Fout(regel.fout);
    }
    switch (verloop) {
      case Verloop::Verder:
        break;
      case Verloop::Einde:
        return GedUitslag::Klaar;
      case Verloop::Fout:
        return GedUitslag::Fout;
      case Verloop::Stil:
        return GedUitslag::Stil;
    }
  }
  return GedUitslag::Klaar;
}

GedStap::Verloop GedStap::Fout(std::string_view tekst) {
  loop_.fout = tekst;
  return Verloop::Fout;
}

GedStap::Verloop GedStap1::Verwerk(const GedcomRegel& regel) {
  if (!kopGezien_) {
    kopGezien_ = true;
    return regel.tag == "HEAD" ? Verloop::Verder
                               : Fout("Fout: Header van GEDCOM-bestand niet gevonden");
  }
  if (regel.niveau > 0) return Verloop::Verder;
  if (regel.tag == "INDI") return NieuwePersoon(regel.id);
  if (regel.tag == "FAM") return NieuweRelatie(regel.id);
  if (regel.tag == "SOUR") loop_.voortgang.Bronnen(++bronnen_);
  if (regel.tag == "TRLR") return Verloop::Einde;
  if (regel.tag == "HEAD") return Fout("GEDCOM Fout: bestand heeft 2 headers");
  return Verloop::Verder;
}

GedStap::Verloop GedStap1::NieuwePersoon(std::string_view id) {
  const std::int32_t nr = loop_.laatstePersoon + 1;
  loop_.voortgang.Personen(++personen_);
  if (!loop_.bronnen.persoon.Nieuw(nr)) return Verloop::Stil;
  loop_.laatstePersoon = static_cast<std::int16_t>(nr);
  loop_.personen.VoegToe(id, loop_.laatstePersoon);
  return Verloop::Verder;
}

GedStap::Verloop GedStap1::NieuweRelatie(std::string_view id) {
  const std::int32_t nr = loop_.laatsteRelatie + 1;
  loop_.voortgang.Relaties(++relaties_);
  if (!loop_.bronnen.relatie.Nieuw(nr)) return Verloop::Stil;
  loop_.laatsteRelatie = static_cast<std::int16_t>(nr);
  loop_.relaties.VoegToe(id, loop_.laatsteRelatie);
  return Verloop::Verder;
}

}  // namespace lb77
