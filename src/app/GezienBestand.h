// Keeps whose cards were on the screen last, a line for each file set.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

namespace lb77 {

// In the program's directory: "SET,nr,nr,nr", the last one first. It is a convenience and no more:
// what cannot be read or written is forgotten without a word.
inline constexpr const char* kGezienBestand = "GEZIEN.TXT";

// The numbers of that set; none when there is no line for it.
[[nodiscard]] std::vector<std::int16_t> LeesGezien(const std::filesystem::path& programmaMap,
                                                   std::string_view set);
void SchrijfGezien(const std::filesystem::path& programmaMap, std::string_view set,
                   const std::vector<std::int16_t>& nummers);

}  // namespace lb77
