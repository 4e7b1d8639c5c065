// The lines of the prescribed GEDCOM file, and tables of the rules by which they are written.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "exchange/ExpUitvoer.h"
#include "exchange/GedcomDatum.h"
#include "exchange/GedcomOpmerkingen.h"

namespace lb77 {

// A text of a record in the character set of the file.
[[nodiscard]] std::string GedcomTekst(std::string_view tekst);

// An event of a record.
struct GedcomFeit {
  std::int32_t datum = 0;   // jjjjmmdd; 0 for none
  std::string_view plaats;  // in the list of names

  [[nodiscard]] bool IsEr() const { return datum != 0 || !plaats.empty(); }
  // The date for GedcomDatum; the empty text for none.
  [[nodiscard]] std::string DatumGetal() const;
};

// A link to person or relation `nr`: "1 HUSB @I12@".
void SchrijfVerwijzing(ExpUitvoer& uit, std::string_view tag, char soort, std::int16_t nr);

// A line and the remarks behind it, of a record R.
template <class R>
struct GedcomRij {
  int niveau;  // one digit; 0: no line, only the remarks
  std::string_view tag;
  bool (*wanneer)(const R&);
  void (*waarde)(const R&, std::string& regel) = nullptr;  // adds it; none: the tag alone
  std::int16_t rubriek = 0;                                // 0: no remarks
  int opmNiveau = 0;
};

// What rows are made of, by the event of the record: IsEr<&GedcomPersoon::geb>.
template <auto kFeit, class R>
bool IsEr(const R& record) {
  return (record.*kFeit).IsEr();
}
template <auto kFeit, std::int16_t kRubriek, class R>
bool HeeftDatum(const R& record) {
  return (record.*kFeit).datum != 0 || record.Heeft(kRubriek);
}
template <auto kFeit, std::int16_t kRubriek, class R>
bool HeeftPlaats(const R& record) {
  return !(record.*kFeit).plaats.empty() || record.Heeft(kRubriek);
}
template <auto kFeit, class R>
void Datum(const R& record, std::string& regel) {
  regel += GedcomDatum((record.*kFeit).DatumGetal());
}
template <auto kFeit, class R>
void Plaats(const R& record, std::string& regel) {
  regel += (record.*kFeit).plaats;
}
template <auto kTekst, std::int16_t kRubriek, class R>
bool HeeftTekstOf(const R& record) {
  return !(record.*kTekst).empty() || record.Heeft(kRubriek);
}
template <auto kTekst, class R>
void Tekst(const R& record, std::string& regel) {
  regel += GedcomTekst(record.*kTekst);
}
// The text as it stands in the record.
template <auto kTekst, class R>
void Kaal(const R& record, std::string& regel) {
  regel += record.*kTekst;
}

template <class R>
void SchrijfRijen(std::span<const GedcomRij<R>> rijen, const R& record, ExpUitvoer& uit,
                  GedcomOpmerkingen& opmerkingen) {
  std::string regel;
  for (const GedcomRij<R>& rij : rijen) {
    if (!rij.wanneer(record)) continue;
    if (rij.niveau > 0) {
      regel.assign({static_cast<char>('0' + rij.niveau), ' '});
      regel += rij.tag;
      // kept: an empty value leaves its blank at the end of the line.
      if (rij.waarde) rij.waarde(record, regel += ' ');
      uit.Regel(regel);
    }
    if (rij.rubriek != 0) opmerkingen.SchrijfOpmRegels(rij.opmNiveau, rij.rubriek);
  }
}

}  // namespace lb77
