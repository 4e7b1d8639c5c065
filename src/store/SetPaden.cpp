#include "store/SetPaden.h"

#include <string>

#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

SetPaden SetPaden::Van(const std::filesystem::path& data, std::string_view naam) {
  const std::string set = Hoofdletters(naam);
  SetPaden paden;
  paden.map = data / PadVan(set);
  paden.prs = paden.map / PadVan(set + ".PRS");
  paden.rlt = paden.map / PadVan(set + ".RLT");
  paden.opm = paden.map / PadVan(set + ".OPM");
  paden.plt = paden.map / PadVan(set + ".PLT");
  paden.centraal = data / "PLAATS.PLT";
  paden.tekst = paden.map / "TEKST";
  paden.index = paden.map / "INDEX";
  return paden;
}

}  // namespace lb77
