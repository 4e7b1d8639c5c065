// The viewer of finished reports.
#pragma once

#include <filesystem>
#include <string_view>

#include "output/TekstVenster.h"

namespace lb77 {

// Shows the file UitvoerPad() under `titel`. It leaves the file where it is.
class ToonTekst final : public TekstVenster {
 public:
  // `HTMLUitvoer` changes the kinds of file that SaveButton offers.
  ToonTekst(Hoofdmodule& hoofd, std::filesystem::path UitvoerPad, std::string_view titel,
            bool HTMLUitvoer = false);

  // The file that is shown.
  [[nodiscard]] const std::filesystem::path& UitvoerPad() const { return UitvoerPad_; }

 private:
  void BijLaden() override;

  std::filesystem::path UitvoerPad_;
  bool HTMLUitvoer_;
};

}  // namespace lb77
