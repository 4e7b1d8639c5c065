#include "cli/Werkmap.h"

#include <cstdint>
#include <random>
#include <string>
#include <system_error>

#include "store/PlatformNamen.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr int kPogingen = 100;

// A directory that was not there; the empty path when none can be made.
std::filesystem::path MaakNieuw(const std::filesystem::path& in) {
  std::random_device toeval;
  std::error_code code;
  for (int poging = 0; poging < kPogingen; ++poging) {
    std::filesystem::path pad = in / ("LB77-" + GetalTekst(std::int64_t{toeval()}));
    if (std::filesystem::create_directory(pad, code)) return pad;
    if (code) break;
  }
  return {};
}

}  // namespace

Werkmap::Werkmap(const std::filesystem::path& map) : pad_(MaakNieuw(map)) {
  std::error_code code;
  if (!pad_.empty()) return;
  const std::filesystem::path systeem = std::filesystem::temp_directory_path(code);
  if (!code) pad_ = MaakNieuw(systeem);
}

Werkmap::~Werkmap() {
  std::error_code code;
  if (!pad_.empty()) VerwijderMapVanSchijf(pad_, code);
}

}  // namespace lb77
