// What an import could not keep, counted by kind.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace lb77 {

enum class Verlies {
  Plaatsnaam,       // a place name longer than its field
  Naam,             // the same of a first name or surname
  Beroep,           // the same of an occupation
  Overschreven,     // a name that a later line replaced by another
  Verwijzing,       // a link to a record that is not there
  OpmAfgekapt,      // a remark with more text than its ten lines
  NietOvergenomen,  // a note that belongs to nobody
  Vervolg,          // a line that continues a note which has ended
  Tekst,            // a value for which no field and no remark has room
  AchterSlot        // a line behind the end of the file's records
};
inline constexpr std::size_t kVerliezen = 10;

// The losses that no log line of their own tells of. They are told together at the end.
class ImpVerliezen {
 public:
  // One more; `regel` is its line in the file, from 1.
  void Tel(Verlies verlies, std::int32_t regel);
  // The remarks from this owner on were not stored, as no record is left.
  void ZetVol(std::string_view eigenaar) { volVanaf_ = eigenaar; }
  [[nodiscard]] bool IsVol() const { return !volVanaf_.empty(); }

  // One line for each kind that occurred, then the one for remarks that were not stored.
  void Noteer(const std::function<void(std::string_view)>& log) const;

 private:
  struct Telling {
    std::int32_t keer = 0;
    std::int32_t eerste = 0;
  };
  std::array<Telling, kVerliezen> tellingen_{};
  std::string volVanaf_;
};

}  // namespace lb77
