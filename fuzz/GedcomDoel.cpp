// Any bytes as a GEDCOM file: imported into an empty set, which must then hold together, and whose
// first person gets his Kwartierstaat. What was not stored must stand in a file that is GEDCOM again.
#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "Doel.h"
#include "Samenhang.h"
#include "Sessie.h"
#include "exchange/GedRegel.h"
#include "exchange/ImpRest.h"
#include "exchange/RegelLezer.h"
#include "text/Bestandstekst.h"

using namespace lb77;

namespace {

void Eis(bool goed, const char* wat) {
  if (!goed) throw std::logic_error(wat);
}

void EisRest(const std::filesystem::path& pad) {
  if (!std::filesystem::exists(pad)) return;
  RegelLezer lezer;
  Eis(!lezer.Open(pad), "de rest gaat niet open");
  std::string_view regel;
  bool begonnen = false;
  bool einde = false;
  while (lezer.Volgende(regel)) {
    const GedDelen delen = GedRegel(regel);
    Eis(delen.fout.empty() && AardVan(regel) != Utf8Aard::Ongeldig, "de rest is geen GEDCOM");
    Eis(begonnen || delen.tag == "HEAD", "de rest begint niet met HEAD");
    Eis(!einde, "de rest gaat achter TRLR door");
    begonnen = true;
    einde = delen.level == 0 && delen.tag == "TRLR";
  }
  Eis(einde, "de rest heeft geen TRLR");
}

void Proef(const std::filesystem::path& gedcom, Antwoord omzetten) {
  fuzz::SetBytes set;
  fuzz::Sessie sessie(set);
  sessie.MaakNieuw();
  sessie.Importeer(gedcom, omzetten);
  fuzz::EisSamenhang(sessie.hoofd, set);
  EisRest(sessie.hoofd.Ini.TekstDir() / kRestNaam);
  sessie.Kwartierstaat(2, fuzz::Sessie::kOpmerkingen | fuzz::Sessie::kBroersZussen);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t lengte) {
  const std::filesystem::path gedcom = fuzz::ProgrammaMap() / "FUZZ.GED";
  const std::string_view tekst(reinterpret_cast<const char*>(bytes), lengte);
  SchrijfBytes(gedcom, tekst);
  Proef(gedcom, Antwoord::Ja);
  // The answer makes a difference.
  if (!IsAscii(tekst)) Proef(gedcom, Antwoord::Nee);
  return 0;
}
