// The lines of a text file, read by large blocks, and converted when its text is Unicode.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ImpTekens.h"
#include "store/SysteemFout.h"
#include "text/Utf16.h"

namespace lb77 {

// What the bytes of a file are: text of one byte a character, or Unicode.
enum class Codering { Bytes, Utf8, Utf16Laag, Utf16Hoog };

// LF, CR LF and a lone CR end a line; the last line needs no end. A UTF-8 byte-order mark before
// the first line is skipped. A line may be as long as memory allows and may hold NUL bytes.
class RegelLezer {
 public:
  // Opens a file at its first line. What was open is closed first.
  [[nodiscard]] SysteemFout Open(const std::filesystem::path& pad);

  // What the byte-order mark at the begin of the file tells; Bytes without one.
  [[nodiscard]] Codering Volgordeteken() const { return volgordeteken_; }

  // Goes back to the first line, and from there on gives the lines in Windows-1252, as
  // BestandstekstNaarWindows does. Holds until another file is opened.
  void BeginMet(Codering codering);
  [[nodiscard]] bool ZetOm() const { return codering_ != Codering::Bytes; }

  // Reads the next line; the view is valid until the next call. False at the end and at a read
  // error, which Fout tells apart.
  [[nodiscard]] bool Volgende(std::string_view& regel);

  // The last line as it stands in the file, but in UTF-8 when the file is UTF-16. Valid as the line.
  [[nodiscard]] std::string_view Bron() const { return bron_; }
  // The characters that the conversion lost since the last Begin, and whether the last line had some.
  [[nodiscard]] const ImpTekens& Tekens() const { return tekens_; }
  [[nodiscard]] bool VerloorTekens() const { return !kwijt_.empty(); }

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
  std::size_t LeesBlok();
  std::size_t LeesUtf16();
  [[nodiscard]] bool VolgendeBron();
  std::string_view Omgezet();
  void SlaLineFeedOver();
  void ZoekLineFeed();
  [[nodiscard]] bool Neem(std::size_t eind, std::size_t volgende);

  std::ifstream bestand_;
  std::vector<char> blok_;
  std::size_t begin_ = 0;     // of what has not been given yet
  std::size_t eind_ = 0;      // of what has been read
  std::size_t lineFeed_ = 0;  // the first one from begin_ on, eind_ when there is none
  bool naCR_ = false;         // a line feed that comes now belongs to the line before
  bool uitgelezen_ = false;
  Codering volgordeteken_ = Codering::Bytes;
  Codering codering_ = Codering::Bytes;
  Utf16Lezing utf16_{Bytevolgorde::LaagEerst};
  std::vector<char> ruw_;        // a block of UTF-16
  std::string utf8_;             // what it holds
  std::string_view bron_;        // the last line
  std::string windows_;          // the same, when it had to be converted
  std::vector<char32_t> kwijt_;  // what that lost
  ImpTekens tekens_;
  SysteemFout fout_;
};

}  // namespace lb77
