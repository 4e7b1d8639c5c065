// The log of an import: a text file of the program, line by line.
#pragma once

#include <filesystem>
#include <fstream>
#include <string_view>

#include "store/SysteemFout.h"

namespace lb77 {

class GedLog {
 public:
  // Begins a new log, in a directory that is made when it is gone.
  [[nodiscard]] SysteemFout Open(const std::filesystem::path& pad);
  // Adds a line, which gets CR LF.
  void Regel(std::string_view regel);
  // Closes the log; the error when not all of it could be written.
  [[nodiscard]] SysteemFout Sluit();

 private:
  std::ofstream bestand_;
};

}  // namespace lb77
