// The bytes of a journal file: what stood there before an action, and what stands there after it.
//
// A file is a head, any number of entries, and an end; each has a check sum of its own. A file
// without an end tells of an action that was begun and not ended.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/BestandSoort.h"

namespace lb77 {

// The lengths of the four files in bytes, in order of file number.
using Lengten = std::array<std::uint64_t, 4>;

// The length of a file that the action has not touched.
inline constexpr std::uint64_t kGeenLengte = ~std::uint64_t{0};

// What begins a file.
struct JournaalKop {
  std::uint32_t nummer = 0;
  std::uint32_t ongedaanVanaf = 0;  // undoes the actions from this one up to its own number; 0 none
  std::string tijd;                 // "jjjj-mm-dd uu:mm:ss"
  std::string label;                // Windows-1252, at most 255 bytes
};

// The length that a file had when the action first touched it.
struct JournaalLengte {
  BestandSoort soort = BestandSoort::Personen;
  bool centraal = false;  // the central place file
  std::uint64_t lengte = 0;
};

// What stood in a record: fewer bytes than a record when the file ended in it.
struct JournaalBeeld {
  RecordPlek plek;
  std::string bytes;
};

// What stands in a record after the action.
struct JournaalStand {
  RecordPlek plek;
  std::uint8_t aantal = 0;  // bytes that are there; 0 when the file ends before it
  std::uint32_t som = 0;    // of those bytes

  [[nodiscard]] bool operator==(const JournaalStand&) const = default;
};

// That of a record that could not be read back: equal to nothing that can stand there.
inline constexpr std::uint8_t kAantalOnbekend = 255;

// What ends a file: the lengths afterwards, and the state of each record that was written.
struct JournaalEinde {
  Lengten lengten{kGeenLengte, kGeenLengte, kGeenLengte, kGeenLengte};
  std::vector<JournaalStand> standen;  // in order of file and number
};

// All that is whole of a journal file.
struct JournaalInhoud {
  std::optional<JournaalKop> kop;
  Lengten lengten{kGeenLengte, kGeenLengte, kGeenLengte, kGeenLengte};
  bool centraal = false;
  std::vector<JournaalBeeld> beelden;
  std::optional<JournaalEinde> einde;
  std::size_t heel = 0;     // the bytes in front of the end, or of what is no longer whole
  bool beschadigd = false;  // bytes were there that are not what was written

  // True when it is all there, from head to end.
  [[nodiscard]] bool IsCompleet() const { return kop && einde && !beschadigd; }
};

[[nodiscard]] std::string CodeerKop(const JournaalKop& kop);
[[nodiscard]] std::string CodeerLengte(const JournaalLengte& lengte);
[[nodiscard]] std::string CodeerBeeld(const JournaalBeeld& beeld);
[[nodiscard]] std::string CodeerEinde(const JournaalEinde& einde);

// What stands there, in the form of an end.
[[nodiscard]] JournaalStand StandVan(const RecordPlek& plek, std::string_view bytes);

// Reads as far as a file is whole. An entry with a wrong check sum is passed over when its length
// can be told; what follows can only be what stood there before, and does no harm.
[[nodiscard]] JournaalInhoud OntleedJournaal(std::string_view bytes);

// The file of an action: "00000012.BEZ" while it is busy, "00000012.HND" when it has ended.
[[nodiscard]] std::string JournaalNaam(std::uint32_t nummer, bool bezig);

// The number in such a name, and whether it is busy; nothing for another name.
struct JournaalNummer {
  std::uint32_t nummer = 0;
  bool bezig = false;
};
[[nodiscard]] std::optional<JournaalNummer> LeesJournaalNaam(std::string_view naam);

}  // namespace lb77
