#include "exchange/GedOpmerking.h"

#include "text/Tekens.h"

namespace lb77 {
namespace {

struct RubriekRij {
  std::string_view ouder;
  std::int16_t rubriek;
  std::string_view voorvoegsel = {};
};

constexpr RubriekRij kRubrieken[] = {
    {"INDI", 4096},
    {"INDI-EVEN", 4096},
    {"INDI-ADOP", 4096},
    {"INDI-FAMC", 4096},
    {"INDI-NAME-GIVN", 2},
    {"INDI-NAME", 1},
    {"INDI-NAME-SURN", 1},
    {"INDI-BIRT", 8},
    {"INDI-BIRT-DATE", 8},
    {"INDI-BIRT-PLAC", 4},
    {"INDI-BAPT", 32},
    {"INDI-BAPT-DATE", 32},
    {"INDI-BAPM", 32},
    {"INDI-BAPM-DATE", 32},
    {"INDI-CHR", 32},
    {"INDI-CHR-DATE", 32},
    {"INDI-BAPT-PLAC", 16},
    {"INDI-BAPM-PLAC", 16},
    {"INDI-CHR-PLAC", 16},
    {"INDI-DEAT", 256},
    {"INDI-DEAT-DATE", 256},
    {"INDI-DEAT-PLAC", 128},
    {"INDI-BURR-DATE", 1024},
    {"INDI-BURR-PLAC", 512},
    {"INDI-OCCU", 2048},
    {"FAM", -256},
    {"FAM-EVEN", -256},
    {"FAM-MARR", -256},
    {"FAM-MARR-MARL", -2},
    {"FAM-MARR-MARL-DATE", -2},
    {"FAM-MARR-MARB", -2},
    {"FAM-MARR-MARB-DATE", -2},
    {"FAM-MARR-MARL-PLAC", -1},
    {"FAM-MARR-MARB-PLAC", -1},
    {"FAM-MARR-MARR", -8},
    {"FAM-MARR-MARR-DATE", -8},
    {"FAM-MARR-MARR-PLAC", -4},
    {"FAM-MARR-MARR-TYPE", -16},
    {"FAM-MARR-MARC", -64},
    {"FAM-MARR-MARC-DATE", -64},
    {"FAM-MARR-MARC-PLAC", -32},
    {"FAM-MARR-MARC-TYPE", -128},
    {"FAM-DIV", -256, "Opm_Scheiding: "},
    {"FAM-ANUL", -256, "Opm_Scheiding: "},
    {"FAM-DIV-DATE", -256, "Opm_Datum_Scheiding: "},
    {"FAM-ANUL-DATE", -256, "Opm_Datum_Scheiding: "},
    {"FAM-DIV-PLAC", -256, "Opm_Plaats_Scheiding: "},
    {"FAM-ANUL-PLAC", -256, "Opm_Plaats_Scheiding: "},
};

constexpr std::int16_t kPersoonAlgemeen = 4096;
constexpr std::int16_t kRelatieAlgemeen = -256;

constexpr std::size_t kRegels = 10;
constexpr std::size_t kBreedte = 80;

}  // namespace

GedRubriek GedRubriekVan(std::string_view ouder) {
  for (const RubriekRij& rij : kRubrieken) {
    if (rij.ouder == ouder) return {rij.rubriek, rij.voorvoegsel};
  }
  if (BegintMet(ouder, "INDI")) return {kPersoonAlgemeen, {}};
  if (BegintMet(ouder, "FAM")) return {kRelatieAlgemeen, {}};
  return {};
}

std::vector<std::string> GedOpmRegels(std::string_view tekst) {
  std::vector<std::string> uit;
  while (uit.size() < kRegels) {
    tekst = TrimLinks(tekst);
    if (tekst.empty()) break;
    std::string_view stuk = tekst.substr(0, kBreedte);
    if (tekst.size() > kBreedte && stuk.back() != ' ' && tekst[kBreedte] != ' ') {
      const std::size_t blanco = stuk.rfind(' ');
      if (blanco == std::string_view::npos) break;
      stuk = stuk.substr(0, blanco);
    }
    stuk = Trim(stuk);
    uit.emplace_back(stuk);
    tekst.remove_prefix(stuk.size());
  }
  return uit;
}

}  // namespace lb77
