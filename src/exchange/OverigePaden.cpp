#include "exchange/OverigePaden.h"

namespace lb77 {

namespace {

using enum OverigeActie;

constexpr OverigPad kPaden[] = {
    {"HEAD-CHAR", Tekenset},        {"SUBM-CHAR", Tekenset},        {"SOUR-NAME", BronNaam},
    {"SOUR-TITL", BronNaam},        {"HEAD-SOUR", Niets},           {"HEAD-SOUR-VERS", Niets},
    {"HEAD-SOUR-VER", Niets},       {"HEAD-SOUR-NAME", Niets},      {"HEAD-SOUR-DATA", Niets},
    {"HEAD-SOUR-DATA-COPR", Niets}, {"HEAD-SOUR-DATA-DATE", Niets}, {"HEAD-SOUR-CORP", Niets},
    {"HEAD-SOUR-CORP-WWW", Niets},  {"HEAD-SOUR-CORP-ADDR", Niets}, {"HEAD-DEST", Niets},
    {"HEAD-DATE", Niets},           {"HEAD-DATE-TIME", Niets},      {"HEAD-FILE", Niets},
    {"HEAD-COPR", Niets},           {"HEAD-GEDC", Niets},           {"HEAD-GEDC-VERS", Niets},
    {"HEAD-GEDC-FORM", Niets},      {"HEAD-LANG", Niets},           {"HEAD-SUBM", Niets},
    {"HEAD-SUBN", Niets},           {"SUBM-GEDC", Niets},           {"SUBM-GEDC-VERS", Niets},
    {"SUBM-SCHEMA", Niets},         {"SUBM-NAME", Niets},           {"SUBM-ADDR", Niets},
    {"SUBM-ADDR-CONT", Niets},      {"SUBM-ADDR-CONC", Niets},      {"SUBM-ADDR-ADR1", Niets},
    {"SUBM-ADDR-ADR2", Niets},      {"SUBM-ADDR-POST", Niets},      {"SUBM-ADDR-CITY", Niets},
    {"SUBM-ADDR-CTRY", Niets},      {"SUBM-PHON", Niets},           {"SUBM-LANG", Niets},
    {"SUBM-CHAN", Niets},           {"SUBM-CHAN-DATE", Niets},      {"SUBM-FILE", Niets},
    {"SUBN-DESC", Niets},           {"SUBN-ORDI", Niets},           {"SOUR-AUTH", Niets},
    {"SOUR-PUBL", Niets},           {"SOUR-REPO", Niets},           {"REPO-NAME", Niets},
    {"REPO-ADDR", Niets},           {"HEAD-_LBVORM", EigenVorm},    {"_LBPLTS-_LBPROV", PlaatsProv},
    {"_LBPLTS-NAME", PlaatsNaam},
};

}  // namespace

std::span<const OverigPad> AlleOverigePaden() {
  return kPaden;
}

}  // namespace lb77
