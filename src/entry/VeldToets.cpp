#include "entry/VeldToets.h"

#include <cstdint>
#include <utility>

#include "app/Hoofdmodule.h"
#include "entry/VolgersBewaker.h"
#include "entry/ZoekPersoon.h"
#include "forms/Formulier.h"
#include "text/Datum.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

void Cijfer(ToetsGebeurtenis& toets) {
  if (toets.code < toets::kNum0 || toets.code > toets::kNum9) return;
  toets.code += '0' - toets::kNum0;
  toets.teken = static_cast<char>(toets.code);
}

// A function key brings the text that the settings hold for it; an empty one leaves the key alone.
void Functietekst(ToetsGebeurtenis& toets, std::string& tekst, Hoofdmodule& hoofd) {
  if (toets.code < toets::kF1 || toets.code > toets::kF8) return;
  std::string nieuw = hoofd.Ini.TekstF(toets.code - toets::kF1 + 1);
  if (nieuw.empty()) return;
  tekst = std::move(nieuw);
  toets.verwerkt = true;
}

VeldActie ZonderShift(ToetsGebeurtenis& toets, std::string& tekst, InvoerSoort soort,
                      Hoofdmodule& hoofd) {
  if (toets.code == toets::kF2 && soort == InvoerSoort::Persoon) {
    const VolgersBewaker bewaker(hoofd.volgers);
    if (const std::int32_t nr = VraagZoekPersoon(hoofd); nr > 0) tekst = NrTekst(nr);
    toets.verwerkt = true;
  } else if (toets.code == toets::kF9) {
    const bool datum = soort == InvoerSoort::Datum;
    tekst = datum ? LegeDatum(hoofd.schrijfwijze.DatumScheider) : std::string();
    toets.verwerkt = true;
  } else if (toets.code == toets::kF10) {
    toets.code = toets::kEscape;
    return VeldActie::Terug;
  }
  return VeldActie::Geen;
}

}  // namespace

VeldActie VeldToets(ToetsGebeurtenis& toets, std::string& tekst, InvoerSoort soort,
                    Hoofdmodule& hoofd) {
  switch (toets.code) {
    case toets::kEscape:
      return VeldActie::Terug;
    case toets::kNumLock:
    case toets::kInsert:
    case toets::kEnd:
      return VeldActie::Voorbij;
    case toets::kNumEnter:
      toets.code = toets::kEnter;
      return VeldActie::Controle;
    case toets::kEnter:
      return VeldActie::Controle;
    default:
      break;
  }
  Cijfer(toets);
  if (!toets.shift) return ZonderShift(toets, tekst, soort, hoofd);
  Functietekst(toets, tekst, hoofd);
  return VeldActie::Geen;
}

void VeldToetsIn(Formulier& formulier, Invoerveld& veld, InvoerSoort soort, Hoofdmodule& hoofd,
                 ToetsGebeurtenis& toets) {
  std::string tekst = veld.Tekst();
  const VeldActie actie = VeldToets(toets, tekst, soort, hoofd);
  if (actie == VeldActie::Terug) {
    toets.verwerkt = true;
    formulier.VraagSluiten();
    return;
  }
  if (tekst == veld.Tekst()) return;
  if (veld.MaxLengte() > 0 && tekst.size() > veld.MaxLengte()) tekst.resize(veld.MaxLengte());
  formulier.Bewerkt(veld, tekst);
}

void KoppelVeldToets(Formulier& formulier, Invoerveld& veld, InvoerSoort soort, Hoofdmodule& hoofd,
                     EnterSoort enter) {
  veld.ZetEnter(enter);
  veld.BijToets([&formulier, &veld, &hoofd, soort](ToetsGebeurtenis& toets) {
    VeldToetsIn(formulier, veld, soort, hoofd, toets);
  });
}

}  // namespace lb77
