#include "entry/PersoonInvoer.h"

#include <cstdint>
#include <string>

#include "entry/DatumVak.h"
#include "entry/Invoer.h"
#include "entry/PersoonVak.h"
#include "entry/VolgersBewaker.h"
#include "entry/ZoekPersoon.h"
#include "text/Datum.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

bool WilCorrigeren(Gesprek& gesprek, const DatumVak& eerst, const DatumVak& later,
                   std::string_view melding) {
  return DatumIsNa(eerst.Tekst(), later.Tekst()) &&
         gesprek.Vraag(std::string(melding) + "\nCorrigeren ?");
}

bool VulNrUitNaam(Hoofdmodule& hoofd, PersoonVak& vak, std::string_view geslacht) {
  if (!vak.RecordNr.Tekst().empty()) return true;
  std::string voor = vak.VoorNm.Tekst();
  std::string achter = vak.AchterNm.Tekst();
  const VolgersBewaker bewaker(hoofd.volgers);
  const std::int16_t nr = ZoekPersoonOpNaam(hoofd, voor, achter, geslacht);
  vak.VoorNm.ZetTekst(voor);
  vak.AchterNm.ZetTekst(achter);
  vak.RecordNr.ZetTekst(nr > 0 ? GetalTekst(nr) : std::string());
  return nr > 0 || (voor.empty() && achter.empty());
}

bool NrHoortBijNaam(Hoofdmodule& hoofd, const PersoonVak& vak) {
  if (vak.RecordNr.Tekst().empty()) return true;
  std::string voor;
  std::string achter;
  std::string nummer;
  HaalNaam(hoofd.Persoon, vak.Nr(), voor, achter, nummer);
  return Trim(voor) == Trim(vak.VoorNm.Tekst()) && Trim(achter) == Trim(vak.AchterNm.Tekst());
}

}  // namespace lb77
