// The part of the dialog of a person that names its fields for the ear.
#include <string_view>
#include <utility>

#include "entry/WijzigPersoon.h"

namespace lb77 {

void WijzigPersoon::ZetLeesnamen() {
  const std::pair<Bediening*, std::string_view> namen[] = {
      {&GebCorr, "Correctie van de geboortedatum"},
      {&GebDatum, "Geboortedatum"},
      {&GebPlts.Nm, "Geboorteplaats"},
      {&GebPlts.Nr, "Nummer van de geboorteplaats"},
      {&DoopDatum, "Doopdatum"},
      {&DoopPlts.Nm, "Doopplaats"},
      {&DoopPlts.Nr, "Nummer van de doopplaats"},
      {&Religie.Code, "Gezindte"},
      {&OvlCorr, "Correctie van de overlijdensdatum"},
      {&OvlDatum, "Overlijdensdatum"},
      {&OvlPlts.Nm, "Overlijdensplaats"},
      {&OvlPlts.Nr, "Nummer van de overlijdensplaats"},
      {&BegrDatum, "Datum van begraven of crematie"},
      {&BegrPlts.Nm, "Plaats van begraven of crematie"},
      {&BegrPlts.Nr, "Nummer van de plaats van begraven of crematie"},
      {&Pa.VoorNm, "Voornamen van de vader"},
      {&Pa.AchterNm, "Achternaam van de vader"},
      {&Ma.VoorNm, "Voornamen van de moeder"},
      {&Ma.AchterNm, "Achternaam van de moeder"},
  };
  for (const auto& [bediening, naam] : namen) bediening->ZetLeesnaam(naam);
}

}  // namespace lb77
