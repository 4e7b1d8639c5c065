// A record file on the disk.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

#include "store/Leesvenster.h"
#include "store/Platform.h"
#include "store/RecordBestand.h"
#include "store/SysteemFout.h"

namespace lb77 {

class SchijfBestand final : public RecordBestand {
 public:
  explicit SchijfBestand(std::size_t recordLengte) : recordLengte_(recordLengte) {}

  // Opens for reading and writing; an absent file is created empty.
  [[nodiscard]] SysteemFout Open(const std::filesystem::path& pad);

  [[nodiscard]] Leesuitslag Lees(std::int32_t nr, std::span<char> doel) override;
  [[nodiscard]] SysteemFout Schrijf(std::int32_t nr, std::span<const char> bron) override;
  std::uint64_t Lengte() override { return greep_.Lengte(); }
  void LeesVooruit(bool aan) override;
  [[nodiscard]] SysteemFout Veiligstellen() override;
  [[nodiscard]] SysteemFout Kap(std::uint64_t lengte) override;
  std::int64_t Wijzigtijd() override { return greep_.Wijzigtijd(); }
  [[nodiscard]] SysteemFout Vergrendel() override { return greep_.Vergrendel(); }
  std::uint64_t Wijzigingen() const override { return wijzigingen_; }
  std::size_t RecordLengte() const override { return recordLengte_; }

 private:
  std::uint64_t Plaats(std::int32_t nr) const;
  // Something of the file is about to change.
  void Tel();

  Bestandsgreep greep_;
  std::optional<Leesvenster> venster_;  // there while reads go ahead
  std::size_t recordLengte_;
  std::uint64_t wijzigingen_ = 0;
  // The state that is on the disk itself. Not the first one: a program that died may have written.
  std::uint64_t veilig_ = ~std::uint64_t{0};
};

}  // namespace lb77
