// A stretch of a record file in memory, for a reader that goes through the whole file in order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "store/Platform.h"

namespace lb77 {

// Reading on from where the last read ended takes a whole stretch from the file at once; reading
// elsewhere takes what is asked for, and the stretch stays. Nothing is known of what others write.
class Leesvenster {
 public:
  // Reads from byte `plaats` on, as Bestandsgreep does, all that is asked for or a failure of the file.
  [[nodiscard]] Leesuitslag Lees(const Bestandsgreep& greep, std::uint64_t plaats,
                                 std::span<char> doel);
  // Forgets the stretch.
  void Leeg() { bytes_.clear(); }

 private:
  [[nodiscard]] bool Bevat(std::uint64_t plaats, std::size_t lengte) const;
  void Vul(const Bestandsgreep& greep, std::uint64_t plaats);

  std::vector<char> bytes_;
  std::uint64_t begin_ = 0;     // of the stretch
  std::uint64_t volgende_ = 0;  // where the last read ended
};

}  // namespace lb77
