// A directory of its own for one test, removed with all that lies in it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lb77 {

class TijdelijkeMap {
 public:
  TijdelijkeMap();
  ~TijdelijkeMap();
  TijdelijkeMap(const TijdelijkeMap&) = delete;
  TijdelijkeMap& operator=(const TijdelijkeMap&) = delete;

  const std::filesystem::path& Pad() const { return pad_; }
  std::filesystem::path operator/(const std::filesystem::path& deel) const { return pad_ / deel; }

 private:
  std::filesystem::path pad_;
};

// All bytes of a file; empty when it can't be read.
std::string LeesBytes(const std::filesystem::path& pad);

// Makes the file, and the directories in which it lies, with exactly these bytes.
void SchrijfBytes(const std::filesystem::path& pad, std::string_view bytes);

}  // namespace lb77
