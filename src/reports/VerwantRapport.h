// The viewer of the kinship report.
#pragma once

#include <filesystem>

#include "output/TekstVenster.h"

namespace lb77 {

// The two files of a kinship report, alike: the one that the viewer shows, and the one that its
// buttons print and save.
struct VerwantBestanden {
  std::filesystem::path verslag;
  std::filesystem::path uitvoer;
};
[[nodiscard]] VerwantBestanden VerwantBestandenVan(const Hoofdmodule& hoofd);

class VerwantRapport final : public TekstVenster {
 public:
  explicit VerwantRapport(Hoofdmodule& hoofd);

 private:
  void BijLaden() override;
};

}  // namespace lb77
