// The directory of a journal, and the one file of it that is being written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "store/Platform.h"
#include "store/SysteemFout.h"

namespace lb77 {

// A file of the directory.
struct JournaalPost {
  std::string naam;
  std::uint64_t grootte = 0;
};

// Names only, without a path. There is one real implementation (SchijfJournaalMap); tests have one
// that dies and fails on demand.
class JournaalMap {
 public:
  JournaalMap() = default;
  virtual ~JournaalMap() = default;
  JournaalMap(const JournaalMap&) = delete;
  JournaalMap& operator=(const JournaalMap&) = delete;

  // All ordinary files, in any order. A directory that is not there has none.
  [[nodiscard]] virtual SysteemFout Lijst(std::vector<JournaalPost>& posten) = 0;

  // All bytes of a file.
  [[nodiscard]] virtual SysteemFout Lees(const std::string& naam, std::string& bytes) = 0;

  // Makes an empty file the one that is written, and the directory when it is not there. One that is
  // there already is a failure.
  [[nodiscard]] virtual SysteemFout Maak(const std::string& naam) = 0;

  // Makes a file that is there the one that is written.
  [[nodiscard]] virtual SysteemFout Open(const std::string& naam) = 0;

  // Writes into the open file; after a failure part of the bytes may stand there.
  [[nodiscard]] virtual SysteemFout Schrijf(std::uint64_t plaats, std::span<const char> bytes) = 0;

  // Cuts the open file to that length.
  [[nodiscard]] virtual SysteemFout Kap(std::uint64_t lengte) = 0;

  // Brings the bytes of the open file to the disk itself.
  [[nodiscard]] virtual SysteemFout Veiligstellen() = 0;

  // Brings the names of the directory to the disk itself.
  [[nodiscard]] virtual SysteemFout StelNamenVeilig() = 0;

  // No file is open after it.
  virtual void Sluit() = 0;

  [[nodiscard]] virtual SysteemFout Hernoem(const std::string& van, const std::string& naar) = 0;
  // A file that is not there is no failure.
  [[nodiscard]] virtual SysteemFout Verwijder(const std::string& naam) = 0;
};

// A directory on the disk.
class SchijfJournaalMap final : public JournaalMap {
 public:
  // `map` need not exist; the directory in which it lies must when something is written.
  explicit SchijfJournaalMap(std::filesystem::path map) : map_(std::move(map)) {}

  [[nodiscard]] SysteemFout Lijst(std::vector<JournaalPost>& posten) override;
  [[nodiscard]] SysteemFout Lees(const std::string& naam, std::string& bytes) override;
  [[nodiscard]] SysteemFout Maak(const std::string& naam) override;
  [[nodiscard]] SysteemFout Open(const std::string& naam) override;
  [[nodiscard]] SysteemFout Schrijf(std::uint64_t plaats, std::span<const char> bytes) override;
  [[nodiscard]] SysteemFout Kap(std::uint64_t lengte) override { return greep_.Kap(lengte); }
  [[nodiscard]] SysteemFout Veiligstellen() override { return greep_.Veiligstellen(); }
  [[nodiscard]] SysteemFout StelNamenVeilig() override;
  void Sluit() override { greep_.Sluit(); }
  [[nodiscard]] SysteemFout Hernoem(const std::string& van, const std::string& naar) override;
  [[nodiscard]] SysteemFout Verwijder(const std::string& naam) override;

 private:
  std::filesystem::path map_;
  Bestandsgreep greep_;
  bool nieuweMap_ = false;  // made here, and its own name not yet on the disk
};

}  // namespace lb77
