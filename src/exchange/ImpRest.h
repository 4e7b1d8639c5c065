// What an import could not store, kept as a small GEDCOM file in UTF-8.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>

#include "app/HeelBestand.h"
#include "exchange/GedKop.h"
#include "exchange/GedRegel.h"
#include "store/SysteemFout.h"

namespace lb77 {

// The file holds the lines that are written to it, each below the lines that stand above it in the
// input; a record of the set has its number in a REFN line. It is written beside and takes its name
// when it is whole. A failure stops the writing and nothing else.
class ImpRest {
 public:
  using NaarUtf8 = std::function<std::string(std::string_view bron)>;

  // The rest of a new import; that of an earlier one goes. Nothing is made before a line is written.
  // `naarUtf8` converts the lines, which are given as they stand in the input.
  void Begin(const std::filesystem::path& pad, NaarUtf8 naarUtf8);

  // A line of level 0 comes by, and the number of the record that it became; 0 for none.
  void NeemKop(std::string_view bron, GedSoort soort, std::int16_t nr);
  // Another line comes by: the one above those with a higher level.
  void Neem(int level, std::string_view bron);
  // A second header comes by, which would make this file one with two.
  void NeemTweedeHoofd();
  // Writes the last line that came by.
  void Schrijf();
  // A line that is none of GEDCOM comes by, and is written: it goes on with the line above it.
  void SchrijfVreemd(std::string_view bron);

  // The last line that came by begins a note, which waits; lines that came by after it go on with it.
  void BeginNoot();
  void VervolgNoot();
  // The note is stored whole, or its lines are written.
  void NootBewaard() { noot_.clear(); }
  void NootKwijt();

  // What follows stands behind the end of the records; it need not be GEDCOM.
  void BeginAchterSlot();
  // Such a line comes by, and is written.
  void SchrijfAchterSlot(std::string_view bron);

  // Gives the file its name, when it is safe on the disk. The error when it could not be written whole.
  [[nodiscard]] SysteemFout Sluit(Bestandswerk& werk);
  [[nodiscard]] SysteemFout Sluit() {
    Bestandswerk werk;
    return Sluit(werk);
  }
  // The lines written, without what tells of the file itself (HEAD, SUBM, SUBN); no file without them.
  [[nodiscard]] std::int32_t Aantal() const { return aantal_; }
  // Leaves nothing behind.
  ~ImpRest();
  ImpRest() = default;
  ImpRest(const ImpRest&) = delete;
  ImpRest& operator=(const ImpRest&) = delete;

 private:
  struct Regel {
    std::string tekst;
    bool aanwezig = false;
    bool geschreven = false;
  };

  void ZetOpen();
  void SchrijfBron(std::string_view bron);
  void SchrijfRegel(std::string_view utf8);
  void SchrijfOuders(int level);
  void Tel() { aantal_ += telt_ ? 1 : 0; }
  [[nodiscard]] bool IsTekensetVanHoofd(int level) const;
  void Weg();

  NaarUtf8 naarUtf8_;
  std::filesystem::path pad_;
  std::filesystem::path bezig_;  // its name while it is written
  std::ofstream bestand_;
  SysteemFout fout_;
  std::array<Regel, kHoogsteLevel + 1> boven_;  // the last line of each level
  std::int16_t nr_ = 0;
  bool telt_ = true;   // the lines at hand are more than what tells of the file itself
  int level_ = 0;      // of the last line
  int diepste_ = 0;    // above which no line is present
  std::string noot_;   // the lines of the note that waits, each ended by a line feed
  int nootLevel_ = 0;  // of its first line
  std::int32_t aantal_ = 0;
};

// The names of the file and of the same while it is written, beside the log.
inline constexpr std::string_view kRestNaam = "GEDCOM.RST";
inline constexpr std::string_view kRestBezig = "GEDCOM.RS~";

}  // namespace lb77
