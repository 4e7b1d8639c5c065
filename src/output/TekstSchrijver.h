// The flow writer of all reports: running text, wrapped at a margin, into one open file.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "store/SysteemFout.h"

namespace lb77 {

// Writes text to a file line by line, in Windows-1252 with CR LF line ends. The last word of each
// call is held back, so that what follows (a comma, a full stop) is glued to it and no line begins
// with punctuation. A run owns its writer; nothing of it is shared.
//
// Columns count from 0. State between two calls: the column reached on the line, the left margin
// of the present text, the left margin at the end of the previous call, the word held back.
class TekstSchrijver {
 public:
  // The width when none is set, and for a width that leaves no room at all.
  static constexpr int kGewoneRechterMarge = 80;
  // The width of output that must not be wrapped.
  static constexpr int kGeenRechterMarge = 9999;

  TekstSchrijver() = default;
  // A run that was broken off leaves its file as far as it was written.
  ~TekstSchrijver();
  TekstSchrijver(const TekstSchrijver&) = delete;
  TekstSchrijver& operator=(const TekstSchrijver&) = delete;

  // Makes the file, replacing one of that name, and begins on an empty line with margin 0. The
  // right margin stays as it was set. On a failure False, and Fout() tells why.
  [[nodiscard]] bool Open(const std::filesystem::path& pad);

  // Writes what is still in memory and closes. False when this or any writing before it failed
  // (a full disk); Fout() tells why. A word still held back is not written.
  [[nodiscard]] bool Sluit();

  // What went wrong, of the last Open or the first writing that failed.
  [[nodiscard]] const SysteemFout& Fout() const { return fout_; }
  // Writing has failed: a long run may as well stop.
  [[nodiscard]] bool Mislukt() const { return mislukt_; }

  // Writes `tekst`. `regelEinde` ends the line behind it; `vast` means that it follows what stands
  // before it without a blank.
  void TekstUit(std::string_view tekst, bool regelEinde, bool vast);

  // Is this output for the Internet? Until it is said, it is text.
  void ZetHTML(bool inHTML) { inHTML_ = inHTML; }
  [[nodiscard]] bool InHTML() const { return inHTML_; }

  // Sets the left margin to `waarde` (`absoluut`), else moves it by `waarde`, which may be
  // negative.
  void ZetMarge(bool absoluut, int waarde);

  // The last usable column. 0 or less (no width in the settings) gives kGewoneRechterMarge.
  void ZetRechterMarge(int marge);
  [[nodiscard]] int RechterMarge() const { return rechterMarge_; }
  [[nodiscard]] int LinkerMarge() const { return linkerMarge_; }
  [[nodiscard]] int HuidigeKolom() const { return huidigeKolom_; }

  // Text that goes on where the line stands, behind a blank.
  void Tekst(std::string_view tekst) { TekstUit(tekst, false, false); }
  // Text glued to what stands before it: what begins with a comma or a full stop, a tag.
  void Vast(std::string_view tekst) { TekstUit(tekst, false, true); }
  // A tag as Vast or as VolleRegel writes it; nothing in text.
  void Tag(std::string_view tag) {
    if (inHTML_) Vast(tag);
  }
  void TagRegel(std::string_view tag) {
    if (inHTML_) VolleRegel(tag);
  }
  // Text that is the rest of its line.
  void VolleRegel(std::string_view tekst) { TekstUit(tekst, true, true); }
  // Ends the line.
  void EindeRegel() { TekstUit({}, true, true); }
  // An empty line, when the line before it was ended; otherwise it is EindeRegel.
  void LegeRegel() { TekstUit({}, true, true); }

 private:
  [[nodiscard]] int Ruimte() const;
  void SchrijfWachtWoordAanBegin();
  void EindigMetWachtWoord();
  void SchrijfTekst(std::string_view tekst, bool regelEinde, bool vast, bool aansluiten);
  [[nodiscard]] std::string MetWachtWoord(std::string_view tekst, bool aansluiten) const;
  void SchrijfVloeiend(std::string_view tekst, bool vast);
  [[nodiscard]] std::string_view BreekRegel(std::string_view tekst, int ruimte);

  void Schrijf(std::string_view bytes);
  void SchrijfBlanco(int aantal);
  void SchrijfRegelEinde();
  void Leeg();
  void OnthoudFout();

  std::ofstream bestand_;
  std::string buffer_;  // what the file has yet to get
  SysteemFout fout_;
  bool mislukt_ = false;

  int huidigeKolom_ = 0;
  int rechterMarge_ = kGewoneRechterMarge;
  int linkerMarge_ = 0;
  int vorigeMarge_ = 0;
  bool inHTML_ = false;
  std::string wachtWoord_;
};

}  // namespace lb77
