// A directory of temporary files for one command alone.
#pragma once

#include <filesystem>

namespace lb77 {

// Made in `map`, or where the system keeps such files when nothing can be made there. It goes with
// all that is in it.
class Werkmap {
 public:
  explicit Werkmap(const std::filesystem::path& map);
  ~Werkmap();
  Werkmap(const Werkmap&) = delete;
  Werkmap& operator=(const Werkmap&) = delete;

  // Empty when there is none.
  [[nodiscard]] const std::filesystem::path& Pad() const { return pad_; }

 private:
  std::filesystem::path pad_;
};

}  // namespace lb77
