// The door to one file of fixed-size records: all reading and writing of the four files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "store/Platform.h"
#include "store/SysteemFout.h"

namespace lb77 {

// Records are numbered from 1. There is one real implementation (SchijfBestand); tests have one
// that fails on demand.
class RecordBestand {
 public:
  RecordBestand() = default;
  virtual ~RecordBestand() = default;
  RecordBestand(const RecordBestand&) = delete;
  RecordBestand& operator=(const RecordBestand&) = delete;

  // Reads record `nr` (from 1) into the front of `doel`, at most a record. Fewer bytes than a
  // record, or none, at the end of the file; that is no error.
  [[nodiscard]] virtual Leesuitslag Lees(std::int32_t nr, std::span<char> doel) = 0;

  // Writes record `nr` (from 1), of exactly one record length. The system has it on return. After
  // a failure part of the record may have been written.
  [[nodiscard]] virtual SysteemFout Schrijf(std::int32_t nr, std::span<const char> bron) = 0;

  // The size of the file in bytes; 0 when it cannot be told.
  virtual std::uint64_t Lengte() = 0;

  // Whether reads may take more of the file into memory than they are asked for, as VooruitLezen
  // wants it.
  virtual void LeesVooruit(bool) {}

  // Brings everything written to the disk itself.
  [[nodiscard]] virtual SysteemFout Veiligstellen() = 0;

  // Makes the file end at that byte: what lies behind is gone, what was not there is NUL.
  [[nodiscard]] virtual SysteemFout Kap(std::uint64_t lengte) = 0;

  // When the file was last changed, in a measure of the system's own; 0 when it cannot be told.
  virtual std::int64_t Wijzigtijd() { return 0; }

  // Takes the file's lock until it is closed; "Bestand is in gebruik" when another has it.
  [[nodiscard]] virtual SysteemFout Vergrendel() { return {}; }

  // Counts the writes through this door, failed ones included; an index compares it to know
  // whether it is stale.
  virtual std::uint64_t Wijzigingen() const = 0;

  // The length of a record in bytes.
  virtual std::size_t RecordLengte() const = 0;
};

}  // namespace lb77
