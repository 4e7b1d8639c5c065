// A record file whose writes pass through the journal; its readers and writers notice nothing.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "store/BestandSoort.h"
#include "store/Journaal.h"
#include "store/RecordBestand.h"

namespace lb77 {

// A write that the journal can't cover is refused with the reason.
class JournaalBestand final : public RecordBestand {
 public:
  JournaalBestand(std::unique_ptr<RecordBestand> bestand, std::shared_ptr<Journaal> journaal,
                  BestandSoort soort, bool centraal);
  ~JournaalBestand() override;

  [[nodiscard]] Leesuitslag Lees(std::int32_t nr, std::span<char> doel) override {
    return bestand_->Lees(nr, doel);
  }
  [[nodiscard]] SysteemFout Schrijf(std::int32_t nr, std::span<const char> bron) override;
  // Undone with its action, like a write; what the journal itself cuts does not come by here.
  [[nodiscard]] SysteemFout Kap(std::uint64_t lengte) override;
  std::uint64_t Lengte() override { return bestand_->Lengte(); }
  void LeesVooruit(bool aan) override { bestand_->LeesVooruit(aan); }
  std::int64_t Wijzigtijd() override { return bestand_->Wijzigtijd(); }
  [[nodiscard]] SysteemFout Vergrendel() override { return bestand_->Vergrendel(); }
  [[nodiscard]] SysteemFout Veiligstellen() override { return bestand_->Veiligstellen(); }
  std::uint64_t Wijzigingen() const override { return bestand_->Wijzigingen() + geweigerd_; }
  std::size_t RecordLengte() const override { return bestand_->RecordLengte(); }

 private:
  std::unique_ptr<RecordBestand> bestand_;
  std::shared_ptr<Journaal> journaal_;
  BestandSoort soort_;
  std::uint64_t geweigerd_ = 0;
};

}  // namespace lb77
