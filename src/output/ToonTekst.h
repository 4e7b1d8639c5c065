// The viewer of finished reports.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "output/TekstVenster.h"

namespace lb77 {

// A button that the caller hangs on the viewer, and what it does.
struct ExtraKnop {
  std::string_view naam;
  std::string_view bijschrift;
  std::function<void()> bijKlik;
};

// Shows the file UitvoerPad() under `titel`. It leaves the file where it is.
class ToonTekst final : public TekstVenster {
 public:
  // `HTMLUitvoer` changes the kinds of file that SaveButton offers.
  ToonTekst(Hoofdmodule& hoofd, std::filesystem::path UitvoerPad, std::string_view titel,
            bool HTMLUitvoer = false, std::optional<ExtraKnop> extra = std::nullopt);

  std::optional<Knop> Extra;

  // The file that is shown.
  [[nodiscard]] const std::filesystem::path& UitvoerPad() const { return UitvoerPad_; }

 private:
  void BijLaden() override;
  void ExtraKlik();

  std::filesystem::path UitvoerPad_;
  bool HTMLUitvoer_;
  std::function<void()> bijExtra_;
};

}  // namespace lb77
