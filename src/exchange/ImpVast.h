// The fields of a record that a tag of our own has told exactly.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

namespace lb77 {

// A later standard line leaves them alone. The names are literals.
class ImpVast {
 public:
  void Wis() { velden_.clear(); }
  void Voeg(std::string_view veld) { velden_.push_back(veld); }
  [[nodiscard]] bool Bevat(std::string_view veld) const {
    return std::ranges::find(velden_, veld) != velden_.end();
  }

 private:
  std::vector<std::string_view> velden_;
};

}  // namespace lb77
