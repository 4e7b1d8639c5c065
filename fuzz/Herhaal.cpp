// Plays the inputs of a corpus against a target, for the tests and to look at a reproducer.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "Doel.h"

namespace {

namespace fs = std::filesystem;

constexpr int kVerkeerdGebruik = 2;

std::vector<std::uint8_t> Bytes(const fs::path& pad) {
  std::ifstream bestand(pad, std::ios::binary);
  return {std::istreambuf_iterator<char>(bestand), std::istreambuf_iterator<char>()};
}

// A file itself, or all files that lie in a directory, in order of name.
std::vector<fs::path> Invoer(const fs::path& pad) {
  if (!fs::is_directory(pad)) return {pad};
  std::vector<fs::path> paden;
  for (const auto& plek : fs::directory_iterator(pad)) paden.push_back(plek.path());
  std::sort(paden.begin(), paden.end());
  return paden;
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t aantal = 0;
  for (int i = 1; i < argc; ++i) {
    for (const fs::path& pad : Invoer(argv[i])) {
      std::cout << pad.filename().string() << std::endl;
      const std::vector<std::uint8_t> bytes = Bytes(pad);
      LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
      ++aantal;
    }
  }
  std::cout << aantal << " keer\n";
  return aantal == 0 ? kVerkeerdGebruik : 0;
}
