// Any bytes as a GEDCOM file: imported into an empty set, which must then hold together, and whose
// first person gets his Kwartierstaat.
#include <string_view>

#include "Doel.h"
#include "Samenhang.h"
#include "Sessie.h"

using namespace lb77;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t lengte) {
  const std::filesystem::path gedcom = fuzz::ProgrammaMap() / "FUZZ.GED";
  SchrijfBytes(gedcom, {reinterpret_cast<const char*>(bytes), lengte});
  fuzz::SetBytes set;
  fuzz::Sessie sessie(set);
  sessie.MaakNieuw();
  sessie.Importeer(gedcom);
  fuzz::EisSamenhang(sessie.hoofd, set);
  sessie.Kwartierstaat(2, fuzz::Sessie::kOpmerkingen | fuzz::Sessie::kBroersZussen);
  return 0;
}
