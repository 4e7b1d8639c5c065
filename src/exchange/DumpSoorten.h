// What tells the dumps of the four files apart: their columns, and how a record fills them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "store/BestandSoort.h"
#include "store/Gegevens.h"

namespace lb77 {

// The columns of one record; a TAB stands behind each.
class DumpRegel {
 public:
  [[nodiscard]] const std::string& Kolommen() const { return regel_; }
  [[nodiscard]] int Aantal() const { return aantal_; }

  // Blanks in front and bytes that would end a column or a line go.
  void Tekst(std::string_view tekst);
  void Getal(std::int32_t getal);
  // A date in its entry form; nothing for one in which nothing stands.
  void Datum(std::string_view datum);

 private:
  std::string regel_;
  int aantal_ = 0;
};

struct DumpSoort {
  BestandSoort bestand;
  std::string_view leesfout;                   // in the log, before the number of a record
  std::string_view totaal;                     // in the log, behind how many there are
  std::span<const std::string_view> kolommen;  // the lines of the log that tell of them
  int aantal;                                  // of columns
  std::int16_t (*laatste)(const Gegevens& gegevens);
  bool (*lees)(const Gegevens& gegevens, std::int16_t nr);
  // The columns behind the number, of the record that was read.
  void (*vul)(const Gegevens& gegevens, DumpRegel& regel);
};

extern const DumpSoort kDumpPers;
extern const DumpSoort kDumpRel;
extern const DumpSoort kDumpPlts;
extern const DumpSoort kDumpOpm;

}  // namespace lb77
