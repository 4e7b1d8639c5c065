// The yardstick of the import: a file read line by line and split at blanks, and nothing else.
#pragma once

#include <cstddef>
#include <filesystem>

namespace lb77::bench {

// What a reading has seen.
struct Kaal {
  std::size_t regels = 0;
  std::size_t niveaus = 0;  // all levels together, so that no line goes unread
  std::size_t tags = 0;     // the characters of all tags
  std::size_t waarden = 0;  // the characters of all values
};

// Reads a GEDCOM file once: std::getline, and each line split in level, tag and value.
[[nodiscard]] Kaal LeesKaal(const std::filesystem::path& pad);

// Reads a file once by std::getline, without a look into the lines; the characters of all lines.
[[nodiscard]] std::size_t LeesRegels(const std::filesystem::path& pad);

}  // namespace lb77::bench
