// The command line of a program, and its standard output with a reader who may have seen enough:
// `lb77-cli zoek ... | head -1`.
#pragma once

#include <cstddef>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

// The words of the command line in UTF-8, the name of the program first, whatever the characters of the
// system are.
[[nodiscard]] std::vector<std::string> Opdrachtwoorden(int argc, const char* const* argv);

// To be called before any file is opened. Standard input, output and errors that were closed by who
// started the program (`>&-`) become ones that hold nothing and take nothing: the next file to be
// opened would get their place, and what is printed would be written into it.
void VulStandaardstromen();

// How many bytes of a UTF-8 text are whole characters, or never become one; what stands behind them is
// the begin of a character whose rest is still to come.
[[nodiscard]] std::size_t HeleTekens(std::string_view utf8);

// For as long as it lives, UTF-8 that is written to these two, the standard output and errors, reaches
// the window of the command line as letters, whatever its code page is. What goes to a file or another
// program stays the bytes that it is.
class Opdrachtvenster {
 public:
  Opdrachtvenster(std::ostream& uit, std::ostream& fout);
  ~Opdrachtvenster();
  Opdrachtvenster(const Opdrachtvenster&) = delete;
  Opdrachtvenster& operator=(const Opdrachtvenster&) = delete;

 private:
  // A stream that writes to a window by another road, and the one that it had.
  struct Omleiding {
    std::ostream* stroom;
    std::streambuf* vorige;
    std::unique_ptr<std::streambuf> venster;
  };
  std::vector<Omleiding> omleidingen_;
};

// From here on the program outlives such a reader, so that it cleans up: what is written to him gets
// lost, and the stream tells it like any failure.
void OverleefVertrokkenLezer();

// Has the reader of standard output gone? False also when there never was one. To be asked when
// writing to it has failed.
[[nodiscard]] bool LezerIsVertrokken();

}  // namespace lb77
