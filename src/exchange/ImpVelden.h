// From which lines the fields of the record at hand come.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

// A field keeps the value of its last line; what an earlier line gave it is lost when it was another.
class ImpVelden {
 public:
  using Kwijt = std::function<void(std::int32_t regel)>;

  // The next record begins.
  void Wis() { aantal_ = 0; }
  // A line gives a field its value; `kwijt` gets the lines whose value that replaces. The name of the
  // field outlives the record.
  void Zet(std::string_view veld, std::string_view waarde, std::int32_t regel, const Kwijt& kwijt);

 private:
  struct Veld {
    std::string_view naam;
    std::string waarde;
    std::vector<std::int32_t> regels;  // that gave this value
  };
  std::vector<Veld> velden_;  // which keep their room from record to record
  std::size_t aantal_ = 0;    // of those that this record has
};

}  // namespace lb77
