// What the standard library lacks: exact file access, locks, and two directories.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

#include "store/Stukken.h"
#include "store/SysteemFout.h"

namespace lb77 {

// How a file is opened.
enum class Openwijze {
  MaakZonodig,  // for reading and writing; an absent file is made empty
  Nieuw,        // the same, and a file that is there already is a failure (kBestandBestaatAl)
  AlleenLezen,  // nothing is made; what is no ordinary file is a failure, without any waiting
};

// An open file of the operating system; closed when it goes. Nothing is buffered: what a write
// has returned from, the system has.
class Bestandsgreep {
 public:
  Bestandsgreep() = default;
  ~Bestandsgreep();
  Bestandsgreep(Bestandsgreep&& ander) noexcept;
  Bestandsgreep& operator=(Bestandsgreep&& ander) noexcept;
  Bestandsgreep(const Bestandsgreep&) = delete;
  Bestandsgreep& operator=(const Bestandsgreep&) = delete;

  // Opens a file, and creates an absent one when the manner says so (not its directory). A file that
  // can only be read is a failure, unless it is to be read only. What was open is closed first.
  [[nodiscard]] SysteemFout Open(const std::filesystem::path& pad,
                                 Openwijze wijze = Openwijze::MaakZonodig);

  // Reads from byte `plaats` on, counted from 0. Past the end 0 bytes are read, without an error.
  [[nodiscard]] Leesuitslag Lees(std::uint64_t plaats, std::span<char> doel) const;

  // Writes all of `bron` from byte `plaats` on, or tells why part of it may be missing.
  [[nodiscard]] SysteemFout Schrijf(std::uint64_t plaats, std::span<const char> bron);

  // The size of the file in bytes; 0 when the system does not tell it.
  std::uint64_t Lengte() const;

  // Brings what was written to the disk itself.
  [[nodiscard]] SysteemFout Veiligstellen();

  // Makes the file end at that byte: what lies behind is gone, what was not there is NUL.
  [[nodiscard]] SysteemFout Kap(std::uint64_t lengte);

  // When the file was last changed, in a measure of the system's own; 0 when it does not tell.
  std::int64_t Wijzigtijd() const;

  // Takes the lock of the file, which nobody else can take until this is closed (a second time does
  // nothing); the system gives it back when a program dies. It keeps nobody from reading or writing. "Bestand is in gebruik"
  // when another has it. A file system that knows no locks gives it to everybody.
  [[nodiscard]] SysteemFout Vergrendel();

  // Closes the file; does nothing when it is not open.
  void Sluit();

  // True between a successful Open and Sluit.
  bool IsOpen() const { return greep_ != kDicht; }

 private:
  static constexpr std::intptr_t kDicht = -1;
  std::intptr_t greep_ = kDicht;
  bool vergrendeld_ = false;
};

// Brings the names in a directory to the disk itself: what was made, renamed or removed in it. Does
// nothing where the system has no such operation.
[[nodiscard]] SysteemFout MapVeiligstellen(const std::filesystem::path& map);

// The directory of the running executable; the current directory when the system does not tell.
std::filesystem::path ProgrammaMap();

// The user's own data directory for this program (XDG data home or the platform's equivalent,
// plus "lb77"). It need not exist.
std::filesystem::path GebruikersDataMap();

}  // namespace lb77
