// What an export writes of each record that was selected, and the walk over these.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "exchange/ExpUitvoer.h"
#include "exchange/SelectieLijst.h"

namespace lb77 {

// The last line of the log of an export, and what the dialogs that say so say.
inline constexpr std::string_view kExporterenVoltooid = "Exporteren voltooid";

// The line of the log for a record that can't be read; `leesfout` is what stands before its number.
[[nodiscard]] std::string NietUitgevoerd(std::string_view leesfout, std::int16_t nr);
inline constexpr std::string_view kPersoonLeesfout = "Leesfout bij Persoonsrecord ";
inline constexpr std::string_view kRelatieLeesfout = "Leesfout bij Relatierecord ";
// The line of the log that counts what was exported.
[[nodiscard]] std::string Totaal(std::int64_t aantal, std::string_view wat);
// The line at the end of a log for remarks that have no place in the file, when there are any.
void MeldWeggelaten(ExpUitvoer& log, std::size_t aantal, std::string_view waar);
inline constexpr std::string_view kTweedeOpmerking = "tweede of volgende opmerking bij een rubriek";

// How many records a walk has come past; sources are never among them.
struct ExpTelling {
  std::int32_t personen = 0;
  std::int32_t relaties = 0;
  std::int32_t bronnen = 0;
};

// Knows its outputs and its log, and no form. Failures stay with the outputs.
class ExpSchrijver {
 public:
  ExpSchrijver() = default;
  virtual ~ExpSchrijver() = default;
  ExpSchrijver(const ExpSchrijver&) = delete;
  ExpSchrijver& operator=(const ExpSchrijver&) = delete;

  // Ahead of the first record.
  virtual void Kop() {}
  virtual void Persoon(std::int16_t nr) = 0;
  virtual void Relatie(std::int16_t nr) = 0;
  // Behind the last record.
  virtual void Slot() {}
  // When the outputs have been closed: all that ends the log, kExporterenVoltooid included.
  virtual void LogSlot(const ExpTelling& telling) = 0;
};

// What the walk asks before each record, and tells behind it.
struct ExpVerloop {
  std::function<bool()> doorgaan;  // False ends the walk
  std::function<void(const ExpTelling&)> toon;
};

// Kop, the persons, the relations, Slot. A walk that was ended has no Slot.
ExpTelling LoopSelectie(ExpSchrijver& schrijver, const ExpSelectie& selectie,
                        const ExpVerloop& verloop);

}  // namespace lb77
