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
  // Without the second file the buttons handle the first one.
  explicit VerwantRapport(Hoofdmodule& hoofd, bool metUitvoer = true);

 private:
  void BijLaden() override;

  bool metUitvoer_;
};

}  // namespace lb77
