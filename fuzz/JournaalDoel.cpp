// Any bytes as the journals of a set: all is read that can be read, undone and put back.
//
// An input is one byte of choices (1: put back, 2: keep, 4: undo; 8: the second journal is busy), a
// length of two bytes (low byte first) of the first journal, and the bytes of both. The four files
// are small and whole. Whatever stands in a journal, no more comes back than it holds, and an undo
// that is refused has changed nothing.
#include <cstdlib>
#include <string>

#include "Doel.h"
#include "steun/ProefSchijf.h"
#include "store/Journaal.h"
#include "store/VeldVerschillen.h"

using namespace lb77;

namespace {

constexpr std::size_t kKop = 3;

std::string Vier(ProefSchijf& schijf) {
  return schijf.Bytes("PROEF.PRS") + schijf.Bytes("PROEF.RLT") + schijf.Bytes("PROEF.OPM") +
         schijf.Bytes("PROEF.PLT");
}

void LeesAlles(Journaal& journaal) {
  static_cast<void>(journaal.Onvoltooid());
  static_cast<void>(journaal.LaatsteTeOngedaan());
  for (const HandelingRegel& regel : journaal.Geschiedenis()) {
    for (const RecordWijziging& wijziging : journaal.Wijzigingen(regel.nummer)) {
      static_cast<void>(VeldVerschillen(wijziging, '-'));
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t lengte) {
  if (lengte < kKop) return 0;
  const unsigned keuzen = bytes[0];
  const std::size_t eerste = static_cast<std::size_t>(bytes[1] | (bytes[2] << 8));
  const std::string rest(reinterpret_cast<const char*>(bytes) + kKop, lengte - kKop);
  ProefSchijf schijf;
  for (const char* naam : {"PROEF.PRS", "PROEF.RLT", "PROEF.OPM", "PROEF.PLT"}) {
    schijf.Bytes(naam).assign(500, 'a');
  }
  schijf.Bytes("00000001.HND") = rest.substr(0, eerste);
  if (rest.size() > eerste) {
    schijf.Bytes((keuzen & 8U) != 0 ? "00000002.BEZ" : "00000002.HND") = rest.substr(eerste);
  }
  Bestandenset bestanden(schijf.Opener());
  bestanden.ZetJournaal(schijf.Bron());
  if (bestanden.OpenSet(SetPaden::Van("/proef", "PROEF"))) std::abort();
  Journaal& journaal = *bestanden.HetJournaal();
  const std::string voor = Vier(schijf);
  LeesAlles(journaal);
  if (Vier(schijf) != voor) std::abort();
  if ((keuzen & 4U) != 0 && !journaal.MaakOngedaan(1) && Vier(schijf) != voor) std::abort();
  if ((keuzen & 1U) != 0) static_cast<void>(journaal.Herstel());
  if ((keuzen & 2U) != 0) static_cast<void>(journaal.Behoud());
  LeesAlles(journaal);
  return 0;
}
