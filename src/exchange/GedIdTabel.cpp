#include "exchange/GedIdTabel.h"

#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kBreedte = 22;

// The form in which ids compare: blanks that fill up the width do not count.
std::string_view Sleutel(std::string_view id) {
  return TrimRechts(id.substr(0, kBreedte));
}

}  // namespace

void GedIdTabel::Voeg(std::string_view id, std::int16_t nr) {
  const Rij& rij = rijen_.emplace_back(Rij{std::string(Sleutel(id)), nr});
  eerste_.try_emplace(rij.id, nr);
}

std::int16_t GedIdTabel::Nr(std::size_t rij) const {
  return rij < rijen_.size() ? rijen_[rij].nr : std::int16_t{0};
}

std::int16_t GedIdTabel::NrVan(std::string_view verwijzing) const {
  verwijzing = TrimRechts(verwijzing);
  if (verwijzing.size() < 3 || verwijzing.front() != '@' || verwijzing.back() != '@') return 0;
  const auto gevonden = eerste_.find(Sleutel(verwijzing.substr(1, verwijzing.size() - 2)));
  return gevonden == eerste_.end() ? std::int16_t{0} : gevonden->second;
}

}  // namespace lb77
