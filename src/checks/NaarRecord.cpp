#include "checks/NaarRecord.h"

#include <cstdint>

#include "app/Hoofdmodule.h"
#include "entry/KaartVelden.h"
#include "entry/ToonPersoon.h"
#include "entry/ToonPlaatsen.h"
#include "entry/ToonRelatie.h"
#include "entry/VolgersBewaker.h"
#include "forms/Kaart.h"

namespace lb77 {

namespace {

constexpr std::int32_t kEersteNr = 2;

// A number that no record has would be taken for a new one.
void LoopVanaf(Hoofdmodule& hoofd, const RecordPlek& plek) {
  const bool persoon = plek.soort == BestandSoort::Personen;
  const auto nr = static_cast<std::int16_t>(plek.nr);
  if (plek.nr < kEersteNr) {
    hoofd.gesprek.Waarschuw(persoon ? kPersoonKomtNietVoor : kRelatieKomtNietVoor);
    return;
  }
  LoopKaarten(hoofd.gesprek, persoon ? ToonPersoonVraag(hoofd, nr) : ToonRelatieVraag(hoofd, nr));
}

}  // namespace

void ToonKaartVan(Hoofdmodule& hoofd, const RecordPlek& plek) {
  const VolgersBewaker bewaker(hoofd.volgers);
  if (plek.soort != BestandSoort::Plaatsen) {
    LoopVanaf(hoofd, plek);
    return;
  }
  // The page begins at the place in the buffer.
  static_cast<void>(hoofd.Plaats.Lees(static_cast<std::int16_t>(plek.nr)));
  hoofd.gesprek.Toon<ToonPlaatsen>(hoofd);
}

}  // namespace lb77
