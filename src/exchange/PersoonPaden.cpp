#include "exchange/PersoonPaden.h"

namespace lb77 {

namespace {

using enum PersoonActie;

constexpr PersoonPad kPaden[] = {
    {"INDI-NAME", Naam, ""},
    {"INDI-NAME-GIVN", Voornaam, "Voornaam"},
    {"INDI-NAME-SURN", Achternaam, "Achternaam"},
    {"INDI-NAME-SPFX", Niets, ""},
    {"INDI-SEX", Geslacht, "Geslacht"},
    {"INDI-BIRT-DATE", GebDatum, "GebDatum"},
    {"INDI-BIRT-PLAC", Plaats, "GebPlaats"},
    {"INDI-CHR-DATE", DoopDatum, "DoopDatum"},
    {"INDI-BAPM-DATE", DoopDatum, "DoopDatum"},
    {"INDI-BAPT-DATE", DoopDatum, "DoopDatum"},
    {"INDI-CHR-PLAC", DoopPlaats, "DoopPlaats"},
    {"INDI-BAPM-PLAC", DoopPlaats, "DoopPlaats"},
    {"INDI-BAPT-PLAC", DoopPlaats, "DoopPlaats"},
    {"INDI-CHR-RELI", Gezindte, "DoopReligie"},
    {"INDI-BAPM-RELI", Gezindte, "DoopReligie"},
    {"INDI-BAPT-RELI", Gezindte, "DoopReligie"},
    {"INDI-RELI", Gezindte, "DoopReligie"},
    {"INDI-DEAT-DATE", OvlDatum, "OvlDatum"},
    {"INDI-DEAT-PLAC", Plaats, "OvlPlaats"},
    {"INDI-BURI-DATE", BegrDatum, "BegrDatum"},
    {"INDI-BURR-DATE", BegrDatum, "BegrDatum"},
    {"INDI-BURI-PLAC", BegrPlaats, "BegrPlaats"},
    {"INDI-BURR-PLAC", BegrPlaats, "BegrPlaats"},
    {"INDI-OCCU", Beroep, "Beroep"},
    {"INDI-FAMC", Ouders, "Ouders"},
    {"INDI-FAMS", Relatie, ""},
    {"INDI-BIRT", Niets, ""},
    {"INDI-CHR", Niets, ""},
    {"INDI-BAPM", Niets, ""},
    {"INDI-BAPT", Niets, ""},
    {"INDI-DEAT", Niets, ""},
    {"INDI-BURI", Niets, ""},
    {"INDI-BURR", Niets, ""},
    {"INDI-EVEN", Niets, ""},
    {"INDI-ADDR", Niets, ""},
    {"INDI-CHAN", Niets, ""},
    {"INDI-CHAN-DATE", Niets, ""},
};

}  // namespace

std::span<const PersoonPad> AllePersoonPaden() {
  return kPaden;
}

}  // namespace lb77
