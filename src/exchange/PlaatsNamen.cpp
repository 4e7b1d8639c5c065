#include "exchange/PlaatsNamen.h"

#include <cstddef>

namespace lb77 {

const std::string& PlaatsNamen::Naam(std::int16_t plaatsNr) {
  const std::int16_t recordNr = PlaatsRecordNr(plaatsNr);
  if (recordNr < 2) return geen_;
  const auto plek = static_cast<std::size_t>(recordNr);
  if (plek >= namen_.size()) namen_.resize(plek + 1);
  std::unique_ptr<const std::string>& naam = namen_[plek];
  if (!naam) naam = std::make_unique<const std::string>(plaats_.Naam(recordNr));
  return *naam;
}

}  // namespace lb77
