// Sessions that check a file set.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/ControleForm.h"
#include "steun/FamilieToets.h"

namespace lb77 {

class ControleSessie : public FamilieToets {
 protected:
  ControleSessie();

  // Plays a script from the opening of the dialog on; the transcript is that of what it shows.
  void Speel(const ControleSoort& soort, std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current());
  // Starts the check with these instructions before it, and gives the report, with its path told
  // as its name.
  std::string Rapport(const ControleSoort& soort, std::string_view vooraf = "",
                      const Plek& plek = Plek::current());
  // Its lines behind the head.
  std::string Resultaat(const ControleSoort& soort, const Plek& plek = Plek::current());
  [[nodiscard]] std::filesystem::path PadVan(const ControleSoort& soort) const {
    return Map() / "TEMP" / soort.bestand;
  }

  std::string geteld_;  // the counter behind the last session
  std::vector<Bevinding> gevonden_;
  Volgers voor_;  // the trackers around it
  Volgers na_;
};

}  // namespace lb77
