// A table of rows by tag path, with an index.
#pragma once

#include <span>
#include <string_view>
#include <unordered_map>

namespace lb77 {

// Finds a row by its member `pad`. Of two rows with one path the first counts. The rows outlive it.
template <class Rij>
class Padtabel {
 public:
  explicit Padtabel(std::span<const Rij> rijen) {
    index_.reserve(rijen.size() * 2);
    for (const Rij& rij : rijen) index_.try_emplace(rij.pad, &rij);
  }

  // Null when no row has that path.
  [[nodiscard]] const Rij* Zoek(std::string_view pad) const {
    const auto gevonden = index_.find(pad);
    return gevonden == index_.end() ? nullptr : gevonden->second;
  }

 private:
  std::unordered_map<std::string_view, const Rij*> index_;
};

}  // namespace lb77
