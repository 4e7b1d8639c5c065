// All records of one file as lines of columns.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "exchange/DumpSoorten.h"
#include "exchange/ExpUitvoer.h"

namespace lb77 {

// What the walk asks before each record, and tells behind it: how many there are by then.
struct DumpVerloop {
  std::function<bool()> doorgaan;
  std::function<void(std::int32_t aantal)> toon;
};

// A line for each record from 2 on, all with the same number of columns, and how many there are. Of a
// record that can't be read the number stands alone, and the log tells it.
std::int32_t SchrijfDump(const DumpSoort& soort, const Gegevens& gegevens, ExpUitvoer& uit,
                         ExpUitvoer& log, const DumpVerloop& verloop);

// What ends the log: the columns of the file that was written, and how many records there are.
void SchrijfDumpSlot(const DumpSoort& soort, std::string_view bestandsnaam, std::int32_t aantal,
                     ExpUitvoer& log);

}  // namespace lb77
