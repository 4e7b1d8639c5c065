// The names of all persons in memory, to be searched at each key.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "entry/NaamFilter.h"
#include "store/RecordBestand.h"

namespace lb77 {

// Knows the file as it was when it was built.
class NaamIndex {
 public:
  [[nodiscard]] bool IsGebouwd() const { return gebouwd_; }
  // Reads the file of persons from record 2 to its end. Continuation records are left out, and so is
  // who can't be read, without a message: the list tells of him when he is to be shown.
  void Bouw(RecordBestand& bestand);

  // The persons that pass the filter and whose names hold each word of `tekst` somewhere, case and
  // accents aside; in record order. A text without words finds nobody.
  [[nodiscard]] std::vector<std::int16_t> Zoek(std::string_view tekst,
                                               const NaamFilter& filter) const;

 private:
  struct Persoon {
    std::int16_t nr;
    std::string voornaam;
    std::string achternaam;
    std::string vorm;  // both, as they are found
  };

  bool gebouwd_ = false;
  std::vector<Persoon> personen_;
};

}  // namespace lb77
