#include "contact/GciGebied.h"

#include "text/Letterlijk.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

struct GebiedRij {
  std::string_view code;
  std::string_view prov;
  std::string_view land;
};

constexpr GebiedRij kGebieden[] = {
    {"GR", "GR", "NL"}, {"FR", "FR", "NL"}, {"DR", "DR", "NL"}, {"OV", "OV", "NL"},
    {"NH", "NH", "NL"}, {"ZH", "ZH", "NL"}, {"NB", "NB", "NL"}, {"GE", "GE", "NL"},
    {"GL", "GE", "NL"}, {"U", "UT", "NL"},  {"UT", "UT", "NL"}, {"ZE", "ZE", "NL"},
    {"ZL", "ZE", "NL"}, {"L", "LI", "NL"},  {"LI", "LI", "NL"}, {"B", "", "B"},
    {"F", "", "F"},     {"D", "", "D"},     {"DU", "", "D"},    {"GB", "", "GB"},
    {"UK", "", "GB"},   {"US", "", "USA"},  {"VS", "", "USA"},  {"DLD", "", "D"},
    {"BRD", "", "D"},   {"DDR", "", "D"},   {"FRA", "", "F"},   {"BEL", "", "B"},
};

// Of the codes of one letter the table above leaves this one.
constexpr GebiedRij kGroningen{"G", "GR", "NL"};

struct SynoniemRij {
  std::string_view naam;
  GciSynoniem wordt;
};

constexpr GciSynoniem kGravenhage{"Gravenhage, 's-", "ZH", "NL"};
constexpr GciSynoniem kHertogenbosch{"Hertogenbosch, 's-", "NB", "NL"};
constexpr GciSynoniem kHelder{"Helder, Den", "NH", "NL"};
constexpr GciSynoniem kJakarta{"Jakarta", "DJR", "RI"};
constexpr GciSynoniem kLuik{"Liège"_w, "BLG", "B"};
constexpr GciSynoniem kCleve{"Cleve", "DNW", "D"};

constexpr SynoniemRij kSynoniemen[] = {
    {"'S-GRAVENHAGE", kGravenhage},
    {"'S GRAVENHAGE", kGravenhage},
    {"'S-HAGE", kGravenhage},
    {"'S HAGE", kGravenhage},
    {"DEN HAAG", kGravenhage},
    {"'S-HERTOGENBOSCH", kHertogenbosch},
    {"'S HERTOGENBOSCH", kHertogenbosch},
    {"'S-BOSCH", kHertogenbosch},
    {"'S BOSCH", kHertogenbosch},
    {"DEN BOSCH", kHertogenbosch},
    {"DEN HELDER", kHelder},
    {"JAKARTA", kJakarta},
    {"DJAKARTA", kJakarta},
    {"BATAVIA", kJakarta},
    {"LUIK", kLuik},
    {"LÜTTICH"_w, kLuik},
    {"LUTTICH", kLuik},
    {"LIÈGE"_w, kLuik},
    {"LIEGE", kLuik},
    {"CLEVE", kCleve},
    {"KLEEF", kCleve},
};

GciGebied InTabel(const std::string& code) {
  for (const GebiedRij& rij : kGebieden) {
    if (rij.code == code) return {std::string(rij.prov), std::string(rij.land)};
  }
  return {code, std::string(kNederland)};
}

std::string Provincie(const std::string& prov, const GciProvincies& provincies) {
  if (const auto gevonden = provincies.MetCode(prov)) return *gevonden;
  return prov == kGroningen.code ? std::string(kGroningen.prov) : prov;
}

std::string Land(const std::string& land, const GciLanden& landen) {
  if (const auto gevonden = landen.MetCode(land)) return *gevonden;
  return landen.MetNaam(land).value_or(land);
}

}  // namespace

GciGebied GebiedVan(std::string_view eigenCode, const GciProvincies& provincies,
                    const GciLanden& landen) {
  GciGebied gebied = InTabel(Hoofdletters(Trim(eigenCode)));
  if (gebied.land == kNederland) {
    gebied.prov = Provincie(gebied.prov, provincies);
  } else {
    gebied.land = Land(gebied.land, landen);
  }
  return gebied;
}

const GciSynoniem* SynoniemVan(std::string_view naam) {
  const std::string groot = Hoofdletters(Trim(naam));
  for (const SynoniemRij& rij : kSynoniemen) {
    if (rij.naam == groot) return &rij.wordt;
  }
  return nullptr;
}

}  // namespace lb77
