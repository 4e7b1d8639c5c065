#include "exchange/PlaatsNamen.h"

namespace lb77 {

const std::string& PlaatsNamen::Naam(std::int16_t plaatsNr) {
  const std::int16_t recordNr = PlaatsRecordNr(plaatsNr);
  if (recordNr < 2) return geen_;
  const auto gevonden = namen_.find(recordNr);
  if (gevonden != namen_.end()) return gevonden->second;
  return namen_.emplace(recordNr, plaats_.Naam(recordNr)).first->second;
}

}  // namespace lb77
