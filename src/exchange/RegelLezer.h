// The lines of a text file, read by large blocks.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

#include "store/SysteemFout.h"

namespace lb77 {

// LF, CR LF and a lone CR end a line; the last line needs no end. A UTF-8 byte-order mark before
// the first line is skipped. A line may be as long as memory allows and may hold NUL bytes.
class RegelLezer {
 public:
  // Opens a file at its first line. What was open is closed first.
  [[nodiscard]] SysteemFout Open(const std::filesystem::path& pad);

  // Reads the next line; the view is valid until the next call. False at the end and at a read
  // error, which Fout tells apart.
  [[nodiscard]] bool Volgende(std::string_view& regel);

  // True when there is no further line.
  [[nodiscard]] bool IsAanEinde();

  // Goes back to the first line.
  void Begin();

  // The error that ended the reading; success as long as there was none.
  [[nodiscard]] const SysteemFout& Fout() const { return fout_; }

  // Ends the reading as an error of the system does.
  void Breek(SysteemFout fout);

  void Sluit();

 private:
  bool Vul();
  void SlaLineFeedOver();
  void ZoekLineFeed();
  [[nodiscard]] bool Neem(std::size_t eind, std::size_t volgende, std::string_view& regel);

  std::ifstream bestand_;
  std::vector<char> blok_;
  std::size_t begin_ = 0;     // of what has not been given yet
  std::size_t eind_ = 0;      // of what has been read
  std::size_t lineFeed_ = 0;  // the first one from begin_ on, eind_ when there is none
  bool naCR_ = false;         // a line feed that comes now belongs to the line before
  bool uitgelezen_ = false;
  SysteemFout fout_;
};

}  // namespace lb77
