// Actions of the journal in words.
#pragma once

#include <string>
#include <vector>

#include "store/Journaal.h"

namespace lb77 {

// The row of the history: "2026-01-02 03:04:05  Persoon 12 gewijzigd (1 record)", and whether it
// is undone or damaged.
[[nodiscard]] std::string HandelingTekst(const HandelingRegel& regel);

// What an action did: each record by its number, and below it the fields that changed. At most
// kMeesteRecords records; how many more there are is the last line.
inline constexpr std::size_t kMeesteRecords = 500;
[[nodiscard]] std::vector<std::string> WijzigingTekst(
    const std::vector<RecordWijziging>& wijzigingen, char scheider);

}  // namespace lb77
