// A text file as pages of fixed size, read from the file as they are asked for.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/SysteemFout.h"

namespace lb77 {

// Pages stand in columns and rows, both counted from 1. In memory lies one number a row of pages.
class Tekstpaginas {
 public:
  static constexpr int kBreedte = 80;  // characters a line of a page
  static constexpr int kRegels = 69;   // lines a page

  // Reads the file once to count its pages. On a failure False, there is one page, and Fout()
  // tells why.
  [[nodiscard]] bool Open(const std::filesystem::path& pad);

  [[nodiscard]] const std::filesystem::path& Pad() const { return pad_; }
  // The file holds no line at all.
  [[nodiscard]] bool Leeg() const { return rijBegin_.empty(); }
  // kept: a longest line of exactly 80 characters makes a second, empty column.
  [[nodiscard]] int Kolommen() const { return kolommen_; }
  // At least 1; a short last page counts.
  [[nodiscard]] int Rijen() const;

  // The lines of one page, at most kRegels of at most kBreedte characters; a NUL byte shows as a
  // blank. A file that has changed meanwhile is counted anew; a page that it no longer has is
  // empty. On a failed read False and no lines, and Fout() tells why.
  [[nodiscard]] bool Lees(int kolom, int rij, std::vector<std::string>& regels);

  // A place in the whole text: line and column from 0.
  struct Plek {
    std::uint64_t regel = 0;
    std::uint64_t kolom = 0;
    std::uint64_t lengte = 0;
  };
  // The first place at or behind `vanaf` that holds `vorm` (a text/Zoekvorm), else the first in the
  // text; nothing when it stands nowhere. A failed read ends the search, and Fout() tells why.
  [[nodiscard]] std::optional<Plek> Zoek(std::string_view vorm, const Plek& vanaf);

  [[nodiscard]] const SysteemFout& Fout() const { return fout_; }

 private:
  [[nodiscard]] std::optional<Plek> ZoekTot(std::string_view vorm, const Plek& vanaf,
                                            std::uint64_t tot);
  // By which a file shows that it has changed.
  struct Stempel {
    std::uintmax_t grootte = 0;
    std::filesystem::file_time_type tijd;
    [[nodiscard]] bool operator==(const Stempel&) const = default;
  };
  [[nodiscard]] static Stempel StempelVan(const std::filesystem::path& pad);
  void Tel();

  std::filesystem::path pad_;
  Stempel stempel_;
  std::vector<std::uint64_t> rijBegin_;  // where each row begins in the file
  int kolommen_ = 1;
  SysteemFout fout_;
};

// The bytes of a copy: those of the text, or the same in UTF-8.
enum class Tekencode { Zelfde, Utf8 };

// Copies a text line by line, each line ended by CR LF. A text that is UTF-8 already stays so. It is written beside `naar` and takes its
// place when all is well; after a failure what `naar` held is as it was. No other file is touched.
[[nodiscard]] SysteemFout KopieerTekst(const std::filesystem::path& van,
                                       const std::filesystem::path& naar,
                                       Tekencode code = Tekencode::Zelfde);

}  // namespace lb77
