// The lines of a text file, however long, in pieces.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

#include "store/SysteemFout.h"

namespace lb77 {

// Reads lines that end in CR LF, LF or CR; the last one may lack its end. Memory for one block.
class Regelstroom {
 public:
  Regelstroom();

  // Opens a file, from byte `plaats` on. On a failure False, and Fout() tells why.
  [[nodiscard]] bool Open(const std::filesystem::path& pad, std::uint64_t plaats = 0);

  // Goes to the next line; False behind the last one, and after a failed read (Fout() tells).
  // What is left of the present line is passed over.
  [[nodiscard]] bool VolgendeRegel();

  // The next piece of the line, without its end; empty when the line is at its end. It is valid
  // until the next call.
  [[nodiscard]] std::string_view Stuk();

  // Where the next line begins; valid when the present one is at its end.
  [[nodiscard]] std::uint64_t Plaats() const { return begin_ + gelezen_; }

  [[nodiscard]] const SysteemFout& Fout() const { return fout_; }

 private:
  [[nodiscard]] bool Vul();
  void SluitRegel();

  std::ifstream bestand_;
  std::vector<char> blok_;
  std::size_t gelezen_ = 0;  // in the block
  std::size_t lengte_ = 0;
  std::uint64_t begin_ = 0;  // of the block in the file
  bool inRegel_ = false;
  SysteemFout fout_;
};

}  // namespace lb77
