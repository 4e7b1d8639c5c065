// The calls of the operating system on files: watched, and failing on demand.
#pragma once

#include <filesystem>
#include <vector>

namespace lb77 {

enum class Roep { Lees, Schrijf, Kap, NaarSchijf };

// Stands between the program and the system for as long as it lives; one at a time.
class Systeemroepen {
 public:
  Systeemroepen();
  ~Systeemroepen();
  Systeemroepen(const Systeemroepen&) = delete;
  Systeemroepen& operator=(const Systeemroepen&) = delete;

  // Call `bij` of that kind from here on, counted from 1, does nothing and fails with that errno.
  void Faal(Roep roep, int bij, int fout);
  // True when that call has come.
  [[nodiscard]] bool Geweest() const { return bij_ < 1; }
  // The files and directories that were brought to the disk, sorted, and forgets them.
  [[nodiscard]] std::vector<std::filesystem::path> NeemNaarSchijf();

  // Of a call on that handle: True, and errno set, when it is to fail.
  [[nodiscard]] bool Treft(Roep roep, int greep);

 private:
  Roep roep_ = Roep::Lees;
  int bij_ = 0;
  int fout_ = 0;
  std::vector<std::filesystem::path> naarSchijf_;
};

}  // namespace lb77
