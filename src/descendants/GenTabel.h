// The descendant table: a stamouder and those of his descendants who are followed, generation by
// generation.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "reporting/TellerRegel.h"

namespace lb77 {

inline constexpr int kMaxHoofdpersonen = 2000;

// Entries are counted from 0; entry 0 is the stamouder. The followed children of an entry stand
// together, and in the order of their parents. A person who is reached again has an entry that refers
// to his first one.
class GenTabel {
 public:
  // Record number of a first occurrence; -j for the person of entry j; 0 behind the last entry.
  [[nodiscard]] int GenPersoon(int i) const;
  // The entry of the parent through whom the person was found; -1 for entry 0.
  [[nodiscard]] int GenOuderIndex(int i) const { return ouderIndex_[Plaats(i)]; }
  // The generation, 1 for the stamouder, with kGenMan or kGenVrouw added.
  [[nodiscard]] int GenGenSoort(int i) const { return genSoort_[Plaats(i)]; }
  // Place within the generation, from 1; 0 for the stamouder.
  [[nodiscard]] int GenVolgNr(int i) const { return volgNr_[Plaats(i)]; }
  // The number of entries.
  [[nodiscard]] int GenAantal() const { return static_cast<int>(persoon_.size()); }

  static constexpr int kGenMan = 128;
  static constexpr int kGenVrouw = 256;  // neither: any other sex
  [[nodiscard]] int Generatie(int i) const { return GenGenSoort(i) & (kGenMan - 1); }
  [[nodiscard]] bool IsMan(int i) const { return (GenGenSoort(i) & kGenMan) != 0; }
  [[nodiscard]] bool IsVrouw(int i) const { return (GenGenSoort(i) & kGenVrouw) != 0; }
  // The generation of the last entry; 0 for an empty table.
  [[nodiscard]] int LaatsteGeneratie() const {
    return GenAantal() == 0 ? 0 : Generatie(GenAantal() - 1);
  }

  [[nodiscard]] bool IsHerhaling(int i) const { return GenPersoon(i) < 0; }
  // The record number behind an entry, through its references.
  [[nodiscard]] std::int16_t Persoon(int i) const;
  // The entry of a person's first occurrence behind the stamouder, else the stamouder's, else -1.
  [[nodiscard]] int Vind(std::int16_t persoon) const;
  // The number under which the entry is written, without blanks.
  [[nodiscard]] std::string Label(int i) const;

  // The first followed child, and the next brother or sister; 0 for none.
  [[nodiscard]] int EersteKind(int i) const { return eersteKind_[Plaats(i)]; }
  [[nodiscard]] int VolgendKind(int i) const;
  // The next entry when each is followed by its own branch; 0 behind the last.
  [[nodiscard]] int VolgendeInTak(int i) const;

  // For the builder.
  void Begin(std::int16_t stamouder, std::string_view geslacht);
  [[nodiscard]] bool IsVol() const { return GenAantal() >= kMaxHoofdpersonen; }
  // Is the person in entries 1 and up already? kept: the stamouder's own entry is not searched.
  [[nodiscard]] bool Bevat(std::int16_t persoon) const {
    return eerste_[static_cast<std::size_t>(persoon)] > 0;
  }
  // Adds a child of entry `ouder`, which is the last one that got a child or a later one; of a person
  // who is there already a reference. Precondition: `persoon` > 0, and the table is not full.
  void VoegToe(std::int16_t persoon, int ouder, std::string_view geslacht);

 private:
  [[nodiscard]] static std::size_t Plaats(int i) { return static_cast<std::size_t>(i); }

  std::vector<std::int16_t> persoon_;
  std::vector<std::int16_t> ouderIndex_;
  std::vector<std::int16_t> genSoort_;
  std::vector<std::int16_t> volgNr_;
  std::vector<std::int16_t> eersteKind_;
  std::vector<std::int16_t> eerste_;  // by record number: entry of the first occurrence, 0 for none
};

// How the forms count the entries.
inline constexpr TellerSoort kHoofdpersonen{"Hoofdpersonen", "HoofdpersonenLabel",
                                            "Aantal hoofdpersonen:"};

}  // namespace lb77
