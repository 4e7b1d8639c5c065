// What an import will add, counted before anything is written.
#pragma once

#include <functional>
#include <string>

#include "exchange/RegelLezer.h"
#include "store/RecordBestand.h"
#include "store/SysteemFout.h"

namespace lb77 {

struct ImpTelling {
  int personen = 0;
  int relaties = 0;
  // The continuation records that come with them.
  int vervolgPersonen = 0;
  int vervolgRelaties = 0;
  int plaatsen = 0;  // that the set does not have yet
  SysteemFout fout;  // of the first place of the set that could not be read: it counts as absent
};

// Reads the file from where the reader stands; an error in it ends the count, and is left to the
// passes to tell. `gaatDoor` is asked now and then; False ends the count as well.
[[nodiscard]] ImpTelling TelImport(RegelLezer& lezer, RecordBestand& plaatsen,
                                   const std::function<bool()>& gaatDoor = {});

// "Erbij komen 2 personen, 1 relatie en 3 plaatsen"
[[nodiscard]] std::string TellingTekst(const ImpTelling& telling);

}  // namespace lb77
