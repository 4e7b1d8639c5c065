// What persons and relations share in a GEDCOM 5.5.1 file: events, places, kinds, remarks.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/Ged551Datum.h"
#include "exchange/Ged551Opmerkingen.h"
#include "exchange/Ged551Regels.h"
#include "exchange/OpmRubrieken.h"
#include "exchange/Padtabel.h"
#include "store/Gegevens.h"

namespace lb77 {

// What a file could not hold, beside what Ged551Regels and Ged551Opmerkingen count.
struct Ged551Gemis {
  int verwijzingen = 0;  // to records that do not go along
  int plaatsen = 0;      // numbers of places that are not there
  int datums = 0;        // no dates
  int records = 0;       // that could not be read
};

// An event of a record. `als` is the name under which the import reads it where the tag alone does
// not tell; empty elsewhere.
struct Ged551Gebeurtenis {
  std::string_view tag;
  std::string_view als;
  OpslagDatum datum;
  OpslagDatum tot;
  std::string corr;
  std::int16_t plaats = 0;
  std::int16_t rubriekDatum = 0;
  std::int16_t rubriekPlaats = 0;
};

// Works on one record at a time. References outlive it.
class Ged551Velden {
 public:
  Ged551Velden(Gegevens delen, Ged551Regels& uit, Ged551Opmerkingen& opmerkingen,
               Ged551Gemis& telling);

  // Begins a record: its kind is the first part of all paths. Reads its remarks, and the buffers of all
  // records are lost.
  void Begin(std::string_view record, std::int16_t nr, std::int16_t opmRecord);
  // The remarks that no line has taken, as remarks of the whole record.
  void RestOpmerkingen();

  [[nodiscard]] bool Heeft(std::int16_t rubriek) const;
  // Is there anything to tell of it?
  [[nodiscard]] bool HeeftInhoud(const Ged551Gebeurtenis& deze) const;
  // The lines of an event; `meer` adds lines between its head and its date.
  void Gebeurtenis(const Ged551Gebeurtenis& deze, const std::function<void()>& meer = {});
  // A line with the name of a code, and before it the code where there may be doubt: who reads it may
  // have another list. True when there is a name.
  bool Gezindte(int level, std::string_view tag, std::string_view code);
  // The remarks of a rubric; `pad` is the path above them, as the import reads it.
  void Opmerkingen(int level, std::int16_t rubriek, std::string_view pad);
  // A line when there is a text.
  void Veld(int level, std::string_view tag, std::string_view waarde);

  [[nodiscard]] const std::string& Pad() const { return pad_; }
  [[nodiscard]] std::string GezindteNaamVan(std::string_view code) const;

  Gegevens gegevens;
  Ged551Regels& regels;
  Ged551Gemis& gemis;

 private:
  void Datum(const Ged551Gebeurtenis& deze);
  // True when the place stands in a line.
  [[nodiscard]] bool Plaats(std::int16_t plaatsNr);
  void Opmerking(int level, Ged551Opmerking& deze, std::string_view pad);

  Ged551Opmerkingen& bron_;
  Padtabel<OpmRubriek> rubrieken_;
  std::string record_;
  std::string pad_;  // of the event at hand
  std::vector<Ged551Opmerking> opmerkingen_;
};

}  // namespace lb77
