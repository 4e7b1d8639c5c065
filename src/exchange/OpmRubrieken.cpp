#include "exchange/OpmRubrieken.h"

namespace lb77 {

namespace {

constexpr std::int16_t kPersoon = 4096;
constexpr std::int16_t kRelatie = -256;

// kept: a burial is only known as BURR here, and the events of a marriage only below MARR.
constexpr OpmRubriek kRubrieken[] = {
    {"INDI", kPersoon, ""},
    {"INDI-EVEN", kPersoon, ""},
    {"INDI-ADOP", kPersoon, ""},
    {"INDI-FAMC", kPersoon, ""},
    {"INDI-NAME-GIVN", 2, ""},
    {"INDI-NAME", 1, ""},
    {"INDI-NAME-SURN", 1, ""},
    {"INDI-BIRT", 8, ""},
    {"INDI-BIRT-DATE", 8, ""},
    {"INDI-BIRT-PLAC", 4, ""},
    {"INDI-BAPT", 32, ""},
    {"INDI-BAPT-DATE", 32, ""},
    {"INDI-BAPM", 32, ""},
    {"INDI-BAPM-DATE", 32, ""},
    {"INDI-CHR", 32, ""},
    {"INDI-CHR-DATE", 32, ""},
    {"INDI-BAPT-PLAC", 16, ""},
    {"INDI-BAPM-PLAC", 16, ""},
    {"INDI-CHR-PLAC", 16, ""},
    {"INDI-DEAT", 256, ""},
    {"INDI-DEAT-DATE", 256, ""},
    {"INDI-DEAT-PLAC", 128, ""},
    {"INDI-BURR-DATE", 1024, ""},
    {"INDI-BURR-PLAC", 512, ""},
    {"INDI-OCCU", 2048, ""},
    {"FAM", kRelatie, ""},
    {"FAM-EVEN", kRelatie, ""},
    {"FAM-MARR", kRelatie, ""},
    {"FAM-MARR-MARL", -2, ""},
    {"FAM-MARR-MARL-DATE", -2, ""},
    {"FAM-MARR-MARB", -2, ""},
    {"FAM-MARR-MARB-DATE", -2, ""},
    {"FAM-MARR-MARL-PLAC", -1, ""},
    {"FAM-MARR-MARB-PLAC", -1, ""},
    {"FAM-MARR-MARR", -8, ""},
    {"FAM-MARR-MARR-DATE", -8, ""},
    {"FAM-MARR-MARR-PLAC", -4, ""},
    {"FAM-MARR-MARR-TYPE", -16, ""},
    {"FAM-MARR-MARC", -64, ""},
    {"FAM-MARR-MARC-DATE", -64, ""},
    {"FAM-MARR-MARC-PLAC", -32, ""},
    {"FAM-MARR-MARC-TYPE", -128, ""},
    {"FAM-DIV", kRelatie, "Opm_Scheiding: "},
    {"FAM-ANUL", kRelatie, "Opm_Scheiding: "},
    {"FAM-DIV-DATE", kRelatie, "Opm_Datum_Scheiding: "},
    {"FAM-ANUL-DATE", kRelatie, "Opm_Datum_Scheiding: "},
    {"FAM-DIV-PLAC", kRelatie, "Opm_Plaats_Scheiding: "},
    {"FAM-ANUL-PLAC", kRelatie, "Opm_Plaats_Scheiding: "},
};

}  // namespace

std::span<const OpmRubriek> AlleOpmRubrieken() {
  return kRubrieken;
}

std::int16_t AlgemeneRubriek(std::string_view pad) {
  if (pad.starts_with("INDI")) return kPersoon;
  return pad.starts_with("FAM") ? kRelatie : std::int16_t{0};
}

}  // namespace lb77
