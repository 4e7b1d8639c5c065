// The four selections: which records meet the criteria, and the line of each.
#pragma once

#include <cstdint>
#include <string>

#include "reporting/Verloop.h"
#include "reports/Tijdvak.h"

namespace lb77 {

class RecordBron;
class TekstSchrijver;

// Parts of both names, anywhere in them, upper and lower case alike; an empty one fits all.
struct NaamKeus {
  std::string voornaam;
  std::string achternaam;

  [[nodiscard]] bool IsLeeg() const { return voornaam.empty() && achternaam.empty(); }
};

// The sexes that are asked for; with none of them nobody fits.
struct GeslachtKeus {
  bool man = true;
  bool vrouw = true;
};

struct PersoonKeus {
  NaamKeus naam;
  std::string beroep;  // part of it, likewise
  GeslachtKeus geslacht;
  Tijdvak geboorte;    // or baptism
  Tijdvak overlijden;  // or burial

  // kept: the sexes alone are no criterion.
  [[nodiscard]] bool IsLeeg() const {
    return naam.IsLeeg() && beroep.empty() && geboorte.IsLeeg() && overlijden.IsLeeg();
  }
};

// Of a relation one partner of a sex that is asked for must fit.
struct RelatieKeus {
  NaamKeus naam;
  GeslachtKeus geslacht;
  Tijdvak huwelijk;  // or banns, or church marriage

  [[nodiscard]] bool IsLeeg() const { return naam.IsLeeg() && huwelijk.IsLeeg(); }
};

// The events at a place. The number must be the one of the record: kept, with a qualifier it is
// another.
struct PlaatsKeus {
  std::int16_t plaats = 0;
  bool geb = true;
  bool doop = true;
  bool ov = true;
  bool begr = true;
  bool otr = true;
  bool wetHuw = true;
  bool kerkHuw = true;
};

struct OpmKeus {
  std::string tekst;  // part of a line
  bool kast = false;  // upper and lower case differ
};

// Each walks the whole file and writes a line for each record that fits. What can't be read is passed
// over in silence.
[[nodiscard]] Uitslag SelecteerPersonen(const PersoonKeus& keus, RecordBron& bron,
                                        TekstSchrijver& uit, const Verloop& verloop);
[[nodiscard]] Uitslag SelecteerRelaties(const RelatieKeus& keus, RecordBron& bron,
                                        TekstSchrijver& uit, const Verloop& verloop);
// Persons ahead of relations; a file of which no event is asked for is not read.
[[nodiscard]] Uitslag SelecteerPlaatsen(const PlaatsKeus& keus, RecordBron& bron,
                                        TekstSchrijver& uit, const Verloop& verloop);
[[nodiscard]] Uitslag SelecteerOpmerkingen(const OpmKeus& keus, RecordBron& bron,
                                           TekstSchrijver& uit, const Verloop& verloop);

}  // namespace lb77
