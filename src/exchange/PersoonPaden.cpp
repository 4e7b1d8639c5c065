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
    // Tags of our own; each stands before the standard line of its field.
    {"INDI-NAME-_LBVOOR", Eigen, "Voornaam"},
    {"INDI-NAME-_LBACHT", Eigen, "Achternaam"},
    {"INDI-_LBGESL", Eigen, "Geslacht"},
    {"INDI-BIRT-_LBCORR", Eigen, "GebCorr"},
    {"INDI-BIRT-_LBDATUM", Eigen, "GebDatum"},
    {"INDI-BIRT-_LBTOT", Eigen, "DoopDatum"},
    {"INDI-BIRT-_LBPLTS", EigenPlaats, "GebPlaats"},
    {"INDI-BIRT-_LBPLTS-_LBZEKER", EigenZeker, "GebPlaats"},
    {"INDI-BAPM-_LBDATUM", Eigen, "DoopDatum"},
    {"INDI-BAPM-_LBPLTS", EigenPlaats, "DoopPlaats"},
    {"INDI-BAPM-_LBPLTS-_LBZEKER", EigenZeker, "DoopPlaats"},
    {"INDI-_LBGEZ", Eigen, "DoopReligie"},
    {"INDI-DEAT-_LBCORR", Eigen, "OvlCorr"},
    {"INDI-DEAT-_LBDATUM", Eigen, "OvlDatum"},
    {"INDI-DEAT-_LBTOT", Eigen, "BegrDatum"},
    {"INDI-DEAT-_LBPLTS", EigenPlaats, "OvlPlaats"},
    {"INDI-DEAT-_LBPLTS-_LBZEKER", EigenZeker, "OvlPlaats"},
    {"INDI-BURI-_LBDATUM", Eigen, "BegrDatum"},
    {"INDI-BURI-_LBPLTS", EigenPlaats, "BegrPlaats"},
    {"INDI-BURI-_LBPLTS-_LBZEKER", EigenZeker, "BegrPlaats"},
    {"INDI-BURI-_LBCREM", Eigen, "BegrCrem"},
    {"INDI-_LBFAMS", Relatie, ""},
};

}  // namespace

std::span<const PersoonPad> AllePersoonPaden() {
  return kPaden;
}

}  // namespace lb77
