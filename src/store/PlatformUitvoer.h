// The command line of a program, and its standard output with a reader who may have seen enough:
// `lb77-cli zoek ... | head -1`.
#pragma once

#include <string>
#include <vector>

namespace lb77 {

// The words of the command line in UTF-8, the name of the program first, whatever the characters of the
// system are.
[[nodiscard]] std::vector<std::string> Opdrachtwoorden(int argc, const char* const* argv);

// For as long as it lives the window of the command line shows UTF-8.
class Opdrachtvenster {
 public:
  Opdrachtvenster();
  ~Opdrachtvenster();
  Opdrachtvenster(const Opdrachtvenster&) = delete;
  Opdrachtvenster& operator=(const Opdrachtvenster&) = delete;

 private:
  [[maybe_unused]] unsigned vorige_ =
      0;  // the code page that it had; 0 when there is no such window
};

// From here on the program outlives such a reader, so that it cleans up: what is written to him gets
// lost, and the stream tells it like any failure.
void OverleefVertrokkenLezer();

// Has the reader of standard output gone? False also when there never was one.
[[nodiscard]] bool LezerIsVertrokken();

}  // namespace lb77
