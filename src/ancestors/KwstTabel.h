// The ancestor table: a proband and his ancestors, generation by generation.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ancestors/KwstOpties.h"
#include "reporting/TellerRegel.h"
#include "reporting/Verloop.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"

namespace lb77 {

inline constexpr int kMaxKwartieren = 10000;

// The known parents of one person, as entries; 0 for one who is not known.
struct KwstPaar {
  int vader = 0;
  int moeder = 0;
  int volgende = 0;  // the entry behind them

  friend bool operator==(const KwstPaar&, const KwstPaar&) = default;
};

// Entries are counted from 0; entry 0 is the proband. A father stands before the mother of the same
// child. A person who occurs again has an entry that refers to his first one.
class KwstTabel {
 public:
  // Record number of a first occurrence; -j for the person of entry j; 0 behind the last entry.
  [[nodiscard]] int KwPersoon(int i) const;
  // Index of the child's entry plus 1; 0 for entry 0.
  [[nodiscard]] int KwKindIndex(int i) const { return kindIndex_[Plaats(i)]; }
  // Generations from the proband (0); 128 is added for a mother, and for a proband who is no man.
  [[nodiscard]] int KwGenSoort(int i) const { return genSoort_[Plaats(i)]; }
  [[nodiscard]] int Generatie(int i) const { return KwGenSoort(i) & 127; }
  [[nodiscard]] bool IsMoeder(int i) const { return (KwGenSoort(i) & 128) != 0; }
  // The record number behind an entry, through its references.
  [[nodiscard]] std::int16_t Persoon(int i) const;
  [[nodiscard]] bool IsHerhaling(int i) const { return KwPersoon(i) < 0; }
  // The number of entries.
  [[nodiscard]] int KwstAantal() const { return static_cast<int>(persoon_.size()); }
  // The kwartier number of an entry: 2n for a father, 2n + 1 for a mother.
  [[nodiscard]] const Kwartiernummer& KwNummer(int i) const { return nummers_[Plaats(i)]; }

  // The couple that begins at entry `i`, from 1.
  [[nodiscard]] KwstPaar Paar(int i) const;

  // For the builder.
  void Begin(std::int16_t proband, bool man, const Kwartiernummer& nummer);
  // Adds a parent of entry `kind`; a person who is in entries 1 and up already becomes a reference.
  // False when the table is full.
  bool VoegToe(std::int16_t persoon, int kind, bool moeder);

 private:
  [[nodiscard]] static std::size_t Plaats(int i) { return static_cast<std::size_t>(i); }

  std::vector<std::int16_t> persoon_;
  std::vector<std::int16_t> kindIndex_;
  std::vector<std::uint8_t> genSoort_;
  std::vector<Kwartiernummer> nummers_;
  std::vector<std::int16_t> eerste_;  // by record number: entry of the first occurrence, 0 for none
};

// How the forms count the entries.
inline constexpr TellerSoort kKwartieren{"Kwartieren", "KwartierenLabel", "Aantal kwartieren:"};

// Fills `tabel` from the record files; the stop is tested before each entry. HuidigPersoonNr follows the persons that are read, and is -1
// after a failed read or a stop.
[[nodiscard]] Uitslag BouwKwst(KwstTabel& tabel, const KwstOpties& opties, PersoonLB77& persoon,
                               RelatieLB77& relatie, Volgers& volgers, const Verloop& verloop);

}  // namespace lb77
