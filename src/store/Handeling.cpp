#include "store/Handeling.h"

#include <utility>

#include "store/Bestandenset.h"
#include "store/Journaal.h"

namespace lb77 {

Handeling::Handeling(Bestandenset& bestanden, std::string_view label)
    : journaal_(bestanden.HetJournaal()) {
  if (const auto journaal = journaal_.lock()) kaart_ = journaal->Begin(label);
}

Handeling::~Handeling() {
  // Whoever wants to know calls Voltooi; the next write tells.
  static_cast<void>(Voltooi());
}

SysteemFout Handeling::Voltooi() {
  if (std::exchange(voltooid_, true)) return {};
  const auto journaal = journaal_.lock();
  return journaal ? journaal->Einde(kaart_) : SysteemFout{};
}

}  // namespace lb77
