#include "app/HandelingTekst.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "store/OngedaanPlan.h"
#include "store/VeldVerschillen.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

std::string Aantal(std::size_t aantal) {
  return GetalTekst(static_cast<std::int64_t>(aantal));
}

// What became of a record as a whole.
std::string Lot(const RecordWijziging& wijziging) {
  if (wijziging.voor.empty()) return " (nieuw)";
  if (wijziging.na && wijziging.na->empty()) return " (weg)";
  return {};
}

// What a field holds that nobody filled in.
bool IsLeeg(std::string_view waarde) {
  return waarde == "0" || std::ranges::all_of(waarde, [](char teken) {
           return teken == ' ' || teken == '-' || teken == '.';
         });
}

void VoegRecord(std::vector<std::string>& regels, const RecordWijziging& wijziging, char scheider) {
  // Record 1 of a file counts the others.
  if (wijziging.plek.nr == 1) {
    regels.push_back(RecordNaam(wijziging.plek) + " (administratie)");
    return;
  }
  const std::string lot = Lot(wijziging);
  regels.push_back(RecordNaam(wijziging.plek) + lot);
  if (!wijziging.na) regels.emplace_back("    niet meer na te gaan");
  for (const VeldVerschil& verschil : VeldVerschillen(wijziging, scheider)) {
    if (!lot.empty() && IsLeeg(verschil.voor) && IsLeeg(verschil.na)) continue;
    regels.push_back("    " + std::string(verschil.naam) + ": \"" + verschil.voor + "\" werd \"" +
                     verschil.na + "\"");
  }
}

}  // namespace

std::string HandelingTekst(const HandelingRegel& regel) {
  if (!regel.gaaf) return regel.tijd + "  " + regel.label + " (beschadigd)";
  return regel.tijd + "  " + regel.label + " (" + Aantal(regel.records) +
         (regel.records == 1 ? " record)" : " records)") +
         (regel.ongedaan ? " - ongedaan gemaakt" : "");
}

std::vector<std::string> WijzigingTekst(const std::vector<RecordWijziging>& wijzigingen,
                                        char scheider) {
  std::vector<std::string> regels;
  for (std::size_t i = 0; i < wijzigingen.size() && i < kMeesteRecords; ++i) {
    VoegRecord(regels, wijzigingen[i], scheider);
  }
  if (wijzigingen.size() > kMeesteRecords) {
    regels.push_back("... en nog " + Aantal(wijzigingen.size() - kMeesteRecords) + " records");
  }
  return regels;
}

}  // namespace lb77
