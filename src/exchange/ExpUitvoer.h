// Where an export writes its lines: its files and its log.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "store/SysteemFout.h"

namespace lb77 {

// Lines that each end in CR LF. Behind the first failure nothing more is written, and Fout() tells
// why: a run asks it between two records.
class ExpUitvoer {
 public:
  ExpUitvoer() = default;
  virtual ~ExpUitvoer() = default;
  ExpUitvoer(const ExpUitvoer&) = delete;
  ExpUitvoer& operator=(const ExpUitvoer&) = delete;

  // Adds a line. A byte below 32, from a damaged record or a pasted text, goes out as a blank: in a
  // line it would be taken for its end.
  void Regel(std::string_view regel);
  // The same for a line of columns: a TAB between two of them stays. Texts must have had theirs
  // taken out by ZonderStuurtekens.
  void Kolommen(std::string_view regel);

  [[nodiscard]] const SysteemFout& Fout() const { return fout_; }

 protected:
  // Takes a line and ends it. A failure goes to OnthoudFout.
  virtual void Schrijf(std::string_view regel) = 0;
  void OnthoudFout(SysteemFout fout);

 private:
  template <class IsBlanco>
  void Voeg(std::string_view regel, const IsBlanco& isBlanco);

  SysteemFout fout_;
  std::string zuiver_;  // a line whose control characters were taken out
};

// The text with a blank for each byte below 32.
[[nodiscard]] std::string ZonderStuurtekens(std::string_view tekst);

// Lines into a file.
class ExpBestand final : public ExpUitvoer {
 public:
  // What was written is there, closed or not.
  ~ExpBestand() override;

  // Begins the file, in place of one of that name; its directory is not made.
  [[nodiscard]] SysteemFout Open(const std::filesystem::path& pad);
  // Could an existing file be written to? It is left as it is.
  [[nodiscard]] static SysteemFout Toets(const std::filesystem::path& pad);
  // Writes what is still in memory and closes. The first failure of all writing; none when the file
  // was never opened.
  [[nodiscard]] SysteemFout Sluit();

 private:
  void Schrijf(std::string_view regel) override;
  void Leeg();

  std::ofstream bestand_;
  std::string buffer_;  // what the file has yet to get
};

}  // namespace lb77
