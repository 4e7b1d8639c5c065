// Where the sources and the build of this test run lie.
#pragma once

#include <filesystem>

namespace lb77 {

// The root of the project.
[[nodiscard]] std::filesystem::path BronMap();

// The directory of this build.
[[nodiscard]] std::filesystem::path BouwMap();

}  // namespace lb77
