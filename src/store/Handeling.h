// An action of the user: all that is written while it lives is undone together.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "store/SysteemFout.h"

namespace lb77 {

class Bestandenset;
class Journaal;

// Begins at its making and ends with Voltooi, or when it goes. One within another joins it, under
// the label of the outer one. Costs nothing as long as nothing is written.
class [[nodiscard]] Handeling {
 public:
  // `label` in Windows-1252, at most 255 characters: "Persoon 12 gewijzigd".
  Handeling(Bestandenset& bestanden, std::string_view label);
  ~Handeling();
  Handeling(const Handeling&) = delete;
  Handeling& operator=(const Handeling&) = delete;

  // Ends it: on success all that it wrote is on the disk. After a failure what was written stands
  // in the files, and the next write tries to end it again. Does nothing the second time.
  [[nodiscard]] SysteemFout Voltooi();

 private:
  std::weak_ptr<Journaal> journaal_;  // it goes with its set
  std::uint64_t kaart_ = 0;
  bool voltooid_ = false;
};

}  // namespace lb77
