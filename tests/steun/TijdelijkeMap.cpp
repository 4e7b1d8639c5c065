#include "steun/TijdelijkeMap.h"

#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

namespace lb77 {

TijdelijkeMap::TijdelijkeMap() {
  std::random_device toeval;
  const std::filesystem::path wortel = std::filesystem::temp_directory_path();
  do {
    pad_ = wortel / ("lb77-toets-" + std::to_string(toeval()));
  } while (!std::filesystem::create_directory(pad_));
}

TijdelijkeMap::~TijdelijkeMap() {
  std::error_code fout;
  std::filesystem::remove_all(pad_, fout);
  if (!fout) return;
  // What a test has made read-only stays on Windows.
  using Plekken = std::filesystem::recursive_directory_iterator;
  for (Plekken plek(pad_, fout), einde; !fout && plek != einde; plek.increment(fout)) {
    std::filesystem::permissions(plek->path(), std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add, fout);
  }
  std::filesystem::remove_all(pad_, fout);
}

std::string LeesBytes(const std::filesystem::path& pad) {
  std::ifstream bestand(pad, std::ios::binary);
  return {std::istreambuf_iterator<char>(bestand), std::istreambuf_iterator<char>()};
}

void SchrijfBytes(const std::filesystem::path& pad, std::string_view bytes) {
  std::filesystem::create_directories(pad.parent_path());
  std::ofstream bestand(pad, std::ios::binary | std::ios::trunc);
  bestand.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace lb77
