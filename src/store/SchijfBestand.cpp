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
  const std::span<char> record = doel.first(std::min(doel.size(), recordLengte_));
  return venster_ ? venster_->Lees(greep_, Plaats(nr), record) : greep_.Lees(Plaats(nr), record);
}

void SchijfBestand::LeesVooruit(bool aan) {
  if (aan) {
    venster_.emplace();
  } else {
    venster_.reset();
  }
}

void SchijfBestand::Tel() {
  ++wijzigingen_;
  if (venster_) venster_->Leeg();
}

SysteemFout SchijfBestand::Schrijf(std::int32_t nr, std::span<const char> bron) {
  if (nr < 1) return FoutRecordNummer();
  Tel();
  return greep_.Schrijf(Plaats(nr), bron);
}

SysteemFout SchijfBestand::Kap(std::uint64_t lengte) {
  Tel();
  return greep_.Kap(lengte);
}

SysteemFout SchijfBestand::Veiligstellen() {
  if (veilig_ == wijzigingen_) return {};
  SysteemFout fout = greep_.Veiligstellen();
  if (!fout) veilig_ = wijzigingen_;
  return fout;
}

}  // namespace lb77
