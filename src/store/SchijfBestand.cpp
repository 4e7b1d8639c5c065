#include "store/SchijfBestand.h"

#include <algorithm>

namespace lb77 {

std::uint64_t SchijfBestand::Plaats(std::int32_t nr) const {
  return static_cast<std::uint64_t>(nr - 1) * recordLengte_;
}

SysteemFout SchijfBestand::Open(const std::filesystem::path& pad) {
  return greep_.Open(pad);
}

Leesuitslag SchijfBestand::Lees(std::int32_t nr, std::span<char> doel) {
  if (nr < 1) return {0, FoutRecordNummer()};
  return greep_.Lees(Plaats(nr), doel.first(std::min(doel.size(), recordLengte_)));
}

SysteemFout SchijfBestand::Schrijf(std::int32_t nr, std::span<const char> bron) {
  if (nr < 1) return FoutRecordNummer();
  ++wijzigingen_;
  return greep_.Schrijf(Plaats(nr), bron);
}

SysteemFout SchijfBestand::Kap(std::uint64_t lengte) {
  ++wijzigingen_;
  return greep_.Kap(lengte);
}

SysteemFout SchijfBestand::Veiligstellen() {
  if (veilig_ == wijzigingen_) return {};
  SysteemFout fout = greep_.Veiligstellen();
  if (!fout) veilig_ = wijzigingen_;
  return fout;
}

}  // namespace lb77
