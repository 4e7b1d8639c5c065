#include "app/Installatie.h"

#include <system_error>

namespace lb77 {

std::vector<std::filesystem::path> InstallatieMappen(const std::filesystem::path& executable) {
  const std::filesystem::path delen = executable.parent_path() / "share";
  return {executable, delen / "lb77", delen / "doc" / "lb77"};
}

std::optional<std::filesystem::path> VindInstallatie(
    const std::vector<std::filesystem::path>& mappen, const std::filesystem::path& naam) {
  for (const std::filesystem::path& map : mappen) {
    std::error_code code;
    if (std::filesystem::exists(map / naam, code)) return map / naam;
  }
  return std::nullopt;
}

}  // namespace lb77
