// Record files that fail on demand, and record files in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <utility>

#include "store/Bestandenset.h"
#include "store/RecordBestand.h"

namespace lb77 {

// When the files that share it fail. Operations (reads, writes, flushes) are counted from 1 over all
// of them together.
struct Storing {
  int bij = 0;                // the operation that fails; 0 is none
  bool kort = false;          // a write that fails has written half of its bytes
  bool blijvend = false;      // all operations behind it fail too
  bool gelezen = false;       // a read that fails has read its bytes all the same
  bool zonderLengte = false;  // the size of a file can't be told
  int teller = 0;

  // Counts an operation; True when it is to fail.
  bool Treft() {
    ++teller;
    return bij > 0 && (blijvend ? teller >= bij : teller == bij);
  }
  // True when the operation that was to fail has come.
  bool Geweest() const { return bij > 0 && teller >= bij; }
};

// What a failing read and a failing write say.
inline constexpr const char* kLeesStoring = "Fout van de schijf";
inline constexpr const char* kSchrijfStoring = "Schijf vol";

// Passes everything on to a file, until the storing hits.
class FaalBestand final : public RecordBestand {
 public:
  FaalBestand(std::unique_ptr<RecordBestand> bestand, Storing& storing)
      : bestand_(std::move(bestand)), storing_(storing) {}

  [[nodiscard]] Leesuitslag Lees(std::int32_t nr, std::span<char> doel) override;
  [[nodiscard]] SysteemFout Schrijf(std::int32_t nr, std::span<const char> bron) override;
  [[nodiscard]] SysteemFout Veiligstellen() override;
  [[nodiscard]] SysteemFout Kap(std::uint64_t lengte) override;
  std::int64_t Wijzigtijd() override { return bestand_->Wijzigtijd(); }
  [[nodiscard]] SysteemFout Vergrendel() override { return bestand_->Vergrendel(); }
  std::uint64_t Lengte() override { return storing_.zonderLengte ? 0 : bestand_->Lengte(); }
  std::uint64_t Wijzigingen() const override { return bestand_->Wijzigingen() + mislukt_; }
  std::size_t RecordLengte() const override { return bestand_->RecordLengte(); }

 private:
  std::unique_ptr<RecordBestand> bestand_;
  Storing& storing_;
  std::uint64_t mislukt_ = 0;
};

// A file that lies in a string of the test.
class GeheugenBestand final : public RecordBestand {
 public:
  GeheugenBestand(std::string& bytes, std::size_t recordLengte)
      : bytes_(bytes), recordLengte_(recordLengte) {}

  [[nodiscard]] Leesuitslag Lees(std::int32_t nr, std::span<char> doel) override;
  [[nodiscard]] SysteemFout Schrijf(std::int32_t nr, std::span<const char> bron) override;
  [[nodiscard]] SysteemFout Veiligstellen() override { return {}; }
  [[nodiscard]] SysteemFout Kap(std::uint64_t lengte) override;
  std::uint64_t Lengte() override { return bytes_.size(); }
  std::uint64_t Wijzigingen() const override { return wijzigingen_; }
  std::size_t RecordLengte() const override { return recordLengte_; }

 private:
  std::string& bytes_;
  std::size_t recordLengte_;
  std::uint64_t wijzigingen_ = 0;
};

// Opens files on the disk that fail by `storing`, which must outlive them.
Bestandenset::Opener FalendeOpener(Storing& storing);

}  // namespace lb77
