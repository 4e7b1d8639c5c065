// One row of the list of denominations, as the settings hold it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lb77 {

inline constexpr std::string_view kGezindteSectie = "Namenfile";
inline constexpr std::size_t kGezindteRijen = 20;
inline constexpr std::size_t kGezindteCode = 2;

// The key of a row, counted from 0.
[[nodiscard]] std::string GezindteSleutel(std::size_t rij);

// Two characters of code, then the name; both without blanks around them.
struct GezindteRij {
  std::string code;
  std::string naam;

  [[nodiscard]] static GezindteRij Ontleed(std::string_view waarde);
  // An empty row is two blanks.
  [[nodiscard]] std::string Waarde() const;
  [[nodiscard]] bool IsLeeg() const { return code.empty() && naam.empty(); }
};

}  // namespace lb77
