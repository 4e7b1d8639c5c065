#include "store/Uitzondering.h"

#include <new>
#include <system_error>

#include "store/SysteemFout.h"

namespace lb77 {

std::string UitzonderingTekst(const std::exception& fout) {
  if (const auto* systeem = dynamic_cast<const std::system_error*>(&fout)) {
    return FoutVan(systeem->code()).tekst;
  }
  if (dynamic_cast<const std::bad_alloc*>(&fout)) return "Onvoldoende geheugen";
  return {};
}

}  // namespace lb77
