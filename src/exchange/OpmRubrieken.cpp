#include "exchange/OpmRubrieken.h"

#include "store/Rubrieken.h"

namespace lb77 {

namespace {

namespace persoon = persoonrubriek;
namespace relatie = relatierubriek;

// kept: a burial is only known as BURR here, and the events of a marriage only below MARR.
constexpr OpmRubriek kRubrieken[] = {
    {"INDI", persoon::kAlgemeen, ""},
    {"INDI-EVEN", persoon::kAlgemeen, ""},
    {"INDI-ADOP", persoon::kAlgemeen, ""},
    {"INDI-FAMC", persoon::kAlgemeen, ""},
    {"INDI-NAME-GIVN", persoon::kVoornaam, ""},
    {"INDI-NAME", persoon::kAchternaam, ""},
    {"INDI-NAME-SURN", persoon::kAchternaam, ""},
    {"INDI-BIRT", persoon::kGebDatum, ""},
    {"INDI-BIRT-DATE", persoon::kGebDatum, ""},
    {"INDI-BIRT-PLAC", persoon::kGebPlaats, ""},
    {"INDI-BAPT", persoon::kDoopDatum, ""},
    {"INDI-BAPT-DATE", persoon::kDoopDatum, ""},
    {"INDI-BAPM", persoon::kDoopDatum, ""},
    {"INDI-BAPM-DATE", persoon::kDoopDatum, ""},
    {"INDI-CHR", persoon::kDoopDatum, ""},
    {"INDI-CHR-DATE", persoon::kDoopDatum, ""},
    {"INDI-BAPT-PLAC", persoon::kDoopPlaats, ""},
    {"INDI-BAPM-PLAC", persoon::kDoopPlaats, ""},
    {"INDI-CHR-PLAC", persoon::kDoopPlaats, ""},
    {"INDI-DEAT", persoon::kOvlDatum, ""},
    {"INDI-DEAT-DATE", persoon::kOvlDatum, ""},
    {"INDI-DEAT-PLAC", persoon::kOvlPlaats, ""},
    {"INDI-BURR-DATE", persoon::kBegrDatum, ""},
    {"INDI-BURR-PLAC", persoon::kBegrPlaats, ""},
    {"INDI-OCCU", persoon::kBeroep, ""},
    {"FAM", relatie::kAlgemeen, ""},
    {"FAM-EVEN", relatie::kAlgemeen, ""},
    {"FAM-MARR", relatie::kAlgemeen, ""},
    {"FAM-MARR-MARL", relatie::kOtrDatum, ""},
    {"FAM-MARR-MARL-DATE", relatie::kOtrDatum, ""},
    {"FAM-MARR-MARB", relatie::kOtrDatum, ""},
    {"FAM-MARR-MARB-DATE", relatie::kOtrDatum, ""},
    {"FAM-MARR-MARL-PLAC", relatie::kOtrPlaats, ""},
    {"FAM-MARR-MARB-PLAC", relatie::kOtrPlaats, ""},
    {"FAM-MARR-MARR", relatie::kWetHuwDatum, ""},
    {"FAM-MARR-MARR-DATE", relatie::kWetHuwDatum, ""},
    {"FAM-MARR-MARR-PLAC", relatie::kWetHuwPlaats, ""},
    {"FAM-MARR-MARR-TYPE", relatie::kHuwSoort, ""},
    {"FAM-MARR-MARC", relatie::kKHuwDatum, ""},
    {"FAM-MARR-MARC-DATE", relatie::kKHuwDatum, ""},
    {"FAM-MARR-MARC-PLAC", relatie::kKHuwPlaats, ""},
    {"FAM-MARR-MARC-TYPE", relatie::kReligie, ""},
    {"FAM-DIV", relatie::kAlgemeen, "Opm_Scheiding: "},
    {"FAM-ANUL", relatie::kAlgemeen, "Opm_Scheiding: "},
    {"FAM-DIV-DATE", relatie::kAlgemeen, "Opm_Datum_Scheiding: "},
    {"FAM-ANUL-DATE", relatie::kAlgemeen, "Opm_Datum_Scheiding: "},
    {"FAM-DIV-PLAC", relatie::kAlgemeen, "Opm_Plaats_Scheiding: "},
    {"FAM-ANUL-PLAC", relatie::kAlgemeen, "Opm_Plaats_Scheiding: "},
    {"FAM-_LBWET", relatie::kWetHuwDatum, ""},
    {"FAM-_LBWET-PLAC", relatie::kWetHuwPlaats, ""},
    {"FAM-_LBKERK", relatie::kKHuwDatum, ""},
    {"FAM-_LBKERK-PLAC", relatie::kKHuwPlaats, ""},
};

}  // namespace

std::span<const OpmRubriek> AlleOpmRubrieken() {
  return kRubrieken;
}

std::int16_t AlgemeneRubriek(std::string_view pad) {
  if (pad.starts_with("INDI")) return persoon::kAlgemeen;
  return pad.starts_with("FAM") ? relatie::kAlgemeen : std::int16_t{0};
}

}  // namespace lb77
