#include "app/GezindteRij.h"

#include <algorithm>
#include <cstdint>

#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

std::string GezindteSleutel(std::size_t rij) {
  return "Gez" + GetalTekst(static_cast<std::int64_t>(rij + 1));
}

GezindteRij GezindteRij::Ontleed(std::string_view waarde) {
  return {std::string(Trim(waarde.substr(0, kGezindteCode))),
          std::string(Trim(waarde.substr(std::min(kGezindteCode, waarde.size()))))};
}

std::string GezindteRij::Waarde() const {
  return Links(code, kGezindteCode) + naam;
}

}  // namespace lb77
