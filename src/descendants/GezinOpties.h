// The choices of one family sheet, handed along its chain of forms.
#pragma once

#include <cstdint>

namespace lb77 {

// The layouts. The values are those kept as SoortUitv.
enum class BladSoort : std::int16_t { Compact, Uitgebreid, F6 };

struct GezinOpties {
  std::int16_t GezinHoofdNr = 0;
  std::int16_t HuidigRelatieNr = 0;  // the relation that the sheet is about; 0 for none
  BladSoort GezinSoort = BladSoort::Compact;
  bool GezinOokOpm = false;
  bool GezinOokNrs = false;
  bool FamNaamWeerg = false;  // children with their surname
};

}  // namespace lb77
