#include "app/IniSchade.h"

#include <cstddef>
#include <span>
#include <string>

#include "app/Sleutels.h"

namespace lb77 {

namespace {

// Follows the lines of a file along the table of all settings.
class Volgorde {
 public:
  // True when the line is the one that comes next.
  [[nodiscard]] bool Past(std::string_view regel) {
    if (regel.empty()) return true;
    return regel.starts_with('[') ? PastKop(regel) : PastSleutel(regel.substr(0, regel.find('=')));
  }

 private:
  [[nodiscard]] bool InSectie() const {
    return rij_ < sleutels_.size() && sleutels_[rij_].sectie == sectie_;
  }
  [[nodiscard]] bool IsDeze(std::string_view naam) const {
    const Sleutel& sleutel = sleutels_[rij_];
    return sleutel.aantal > 0 ? naam.starts_with(sleutel.naam) : naam == sleutel.naam;
  }
  // A list may have no line at all.
  void SlaLijstOver() {
    if (sleutels_[rij_].aantal > 0) ++rij_;
  }

  [[nodiscard]] bool PastKop(std::string_view regel) {
    if (InSectie()) SlaLijstOver();
    if (InSectie() || rij_ == sleutels_.size()) return false;
    sectie_ = sleutels_[rij_].sectie;
    return regel == "[" + std::string(sectie_) + "]";
  }
  [[nodiscard]] bool PastSleutel(std::string_view naam) {
    if (InSectie() && !IsDeze(naam)) SlaLijstOver();
    if (!InSectie() || !IsDeze(naam)) return false;
    if (sleutels_[rij_].aantal == 0) ++rij_;
    return true;
  }

  const std::span<const Sleutel> sleutels_ = AlleSleutels();
  std::size_t rij_ = 0;
  std::string_view sectie_;
};

}  // namespace

bool IsLeegIni(std::string_view inhoud) {
  constexpr std::string_view kNiets("\0 \t\r\n", 5);
  return inhoud.find_first_not_of(kNiets) == std::string_view::npos;
}

bool IsHeelIni(std::string_view inhoud) {
  const Sleutel& laatste = AlleSleutels().back();
  const std::size_t kop = inhoud.rfind("\n[" + std::string(laatste.sectie) + "]");
  if (kop == std::string_view::npos || !inhoud.ends_with('\n')) return false;
  return inhoud.find("\n" + std::string(laatste.naam) + "=", kop) != std::string_view::npos;
}

bool IsBeginVanIni(std::string_view inhoud) {
  Volgorde volgorde;
  for (std::size_t eind; (eind = inhoud.find('\n')) != std::string_view::npos;) {
    std::string_view regel = inhoud.substr(0, eind);
    inhoud.remove_prefix(eind + 1);
    if (regel.ends_with('\r')) regel.remove_suffix(1);
    if (!volgorde.Past(regel)) return false;
  }
  return true;
}

}  // namespace lb77
