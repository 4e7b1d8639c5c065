#include "exchange/RelatiePaden.h"

namespace lb77 {

namespace {

using enum RelatieActie;

// kept: some rows name tags that have become a NOTE before they are looked up (TYPE), and the place
// of a church marriage lands in that of the civil one; the table is told as users know its effects.
constexpr RelatiePad kPaden[] = {
    {"FAM-HUSB", Persoon, "ManNr", "", ""},
    {"FAM-WIFE", Persoon, "VrouwNr", "", ""},
    {"FAM-ENGA-DATE", Datum, "OtrDatum", "", ""},
    {"FAM-MARB-DATE", Datum, "OtrDatum", "", ""},
    {"FAM-MARL-DATE", Datum, "OtrDatum", "", ""},
    {"FAM-ENGA-PLAC", Plaats, "OtrPlaats", "", ""},
    {"FAM-MARB-PLAC", Plaats, "OtrPlaats", "", ""},
    {"FAM-MARL-PLAC", Plaats, "OtrPlaats", "", ""},
    {"FAM-MARC-DATE", HuwDatum, "WHuwDatum", "HuwSwPs", "Sw"},
    {"FAM-MARC-PLAC", Plaats, "KHuwPlaats", "", ""},
    {"FAM-MARC-AGNC", Gezindte, "HuwSoort", "", ""},
    {"FAM-MARC-TYPE", Gezindte, "HuwSoort", "", ""},
    {"FAM-MARS-DATE", HuwDatumEigen, "WHuwDatum", "HuwSwPs", "Ps"},
    {"FAM-MARS-PLAC", Plaats, "WHuwPlaats", "HuwSwPs", "Ps"},
    {"FAM-MARS-AGNC", Gezindte, "HuwSoort", "", ""},
    {"FAM-MARS-TYPE", Gezindte, "HuwSoort", "", ""},
    {"FAM-MARR-DATE", HuwDatum, "WHuwDatum", "HuwSwPs", " "},
    {"FAM-MARR-PLAC", Plaats, "WHuwPlaats", "", ""},
    {"FAM-MARR-RELI", Gezindte, "Religie", "", ""},
    {"FAM-MARR-LMAR", Gezindte, "HuwSoort", "", ""},
    {"FAM-MARR-AGNC", Gezindte, "HuwSoort", "", ""},
    {"FAM-MARR-TYPE", Gezindte, "HuwSoort", "", ""},
    {"FAM-ORDI-DATE", Datum, "KHuwDatum", "", ""},
    {"FAM-ORDI-PLAC", Plaats, "WHuwPlaats", "", ""},
    {"FAM-ORDI-RELI", Gezindte, "Religie", "", ""},
    {"FAM-ORDI-AGNC", Gezindte, "Religie", "", ""},
    {"FAM-ORDI-TYPE", Gezindte, "Religie", "", ""},
    {"FAM-ANUL", Bond, "", "KHuwSch", "1"},
    {"FAM-DIV", Bond, "", "KHuwSch", "1"},
    {"FAM-DIVF", Bond, "", "KHuwSch", "1"},
    {"FAM-ANUL-DATE", Datum, "KHuwDatum", "KHuwSch", "1"},
    {"FAM-DIV-DATE", Datum, "KHuwDatum", "KHuwSch", "1"},
    {"FAM-DIVF-DATE", Datum, "KHuwDatum", "KHuwSch", "1"},
    {"FAM-ANUL-PLAC", Plaats, "KHuwPlaats", "", ""},
    {"FAM-DIV-PLAC", Plaats, "KHuwPlaats", "", ""},
    {"FAM-DIVF-PLAC", Plaats, "KHuwPlaats", "", ""},
    {"FAM-CHIL", Kind, "", "", ""},
    {"FAM-ENGA", Niets, "", "", ""},
    {"FAM-MARB", Niets, "", "", ""},
    {"FAM-MARL", Niets, "", "", ""},
    {"FAM-MARC", Niets, "", "", ""},
    {"FAM-MARS", Niets, "", "", ""},
    {"FAM-MARR", Niets, "", "", ""},
    {"FAM-ORDI", Niets, "", "", ""},
    {"FAM-ENGA-AGNC", Niets, "", "", ""},
    {"FAM-ENGA-TYPE", Niets, "", "", ""},
    {"FAM-MARB-AGNC", Niets, "", "", ""},
    {"FAM-MARB-TYPE", Niets, "", "", ""},
    {"FAM-MARL-AGNC", Niets, "", "", ""},
    {"FAM-MARL-TYPE", Niets, "", "", ""},
    {"FAM-EVEN", Niets, "", "", ""},
    {"FAM-CHAN", Niets, "", "", ""},
    {"FAM-CHAN-DATE", Niets, "", "", ""},
    // Tags of our own, and the events that they name.
    {"FAM-MARB-_LBDATUM", Eigen, "OtrDatum", "", ""},
    {"FAM-MARB-_LBPLTS", EigenPlaats, "OtrPlaats", "", ""},
    {"FAM-MARB-_LBPLTS-_LBZEKER", EigenZeker, "OtrPlaats", "", ""},
    {"FAM-_LBWET-_LBBOND", Eigen, "HuwSwPs", "", ""},
    {"FAM-_LBWET-_LBSOORT", Eigen, "HuwSoort", "", ""},
    {"FAM-_LBWET-_LBCORR", Eigen, "HuwCorr", "", ""},
    {"FAM-_LBWET-_LBDATUM", Eigen, "WHuwDatum", "", ""},
    {"FAM-_LBWET-_LBTOT", Eigen, "KHuwDatum", "", ""},
    {"FAM-_LBWET-DATE", EigenHuwDatum, "WHuwDatum", "", ""},
    {"FAM-_LBWET-_LBPLTS", EigenPlaats, "WHuwPlaats", "", ""},
    {"FAM-_LBWET-_LBPLTS-_LBZEKER", EigenZeker, "WHuwPlaats", "", ""},
    {"FAM-_LBWET-PLAC", Plaats, "WHuwPlaats", "", ""},
    {"FAM-_LBKERK-_LBDATUM", Eigen, "KHuwDatum", "", ""},
    {"FAM-_LBKERK-DATE", Datum, "KHuwDatum", "", ""},
    {"FAM-_LBKERK-_LBPLTS", EigenPlaats, "KHuwPlaats", "", ""},
    {"FAM-_LBKERK-_LBPLTS-_LBZEKER", EigenZeker, "KHuwPlaats", "", ""},
    {"FAM-_LBKERK-PLAC", Plaats, "KHuwPlaats", "", ""},
    {"FAM-_LBKERK-_LBGEZ", Eigen, "Religie", "", ""},
    {"FAM-_LBCHIL", Kind, "", "", ""},
};

}  // namespace

std::span<const RelatiePad> AlleRelatiePaden() {
  return kPaden;
}

}  // namespace lb77
