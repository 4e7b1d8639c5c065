#include "contact/GciProvNamen.h"

#include "contact/GciGebied.h"
#include "text/Letterlijk.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

// A code of three characters for the province and one of three for the country, "???" for any other
// country, and the name or the two names.
struct NaamRij {
  std::string_view sleutel;
  std::string_view naam;
  std::string_view tweede = {};

  [[nodiscard]] std::string_view Prov() const { return Trim(sleutel.substr(0, 3)); }
  [[nodiscard]] std::string_view Land() const { return Trim(sleutel.substr(3)); }
  [[nodiscard]] bool Heet(std::string_view tekst) const {
    return GelijkZonderKast(Trim(naam), tekst) ||
           (!tweede.empty() && GelijkZonderKast(Trim(tweede), tekst));
  }
};

// The codes that several countries have. The first row that fits counts.
// clang-format off
constexpr NaamRij kNamen[] = {
    {"AR CH ", "Appenzell-Ausser Ro"},
    {"AR USA", "Arkansas"},
    {"AR S  ", "Arhus"},
    {"AR ???", "Arakan"},
    {"BE GB ", "Bedfordshire"},
    {"BE CH ", "Bern"},
    {"BE ???", "Bengkulu"},
    {"BS CH ", "Basel - Stadt"},
    {"BS ???", "Brescia"},
    {"CA GB ", "Cambridgehire"},
    {"CA USA", "California"},
    {"CA NZ ", "Auckland Central-"},
    {"CA TR ", "Anatolië Central-"_w, "Centraal - Anatolië"_w},
    {"CH GB ", "Cheshire"},
    {"CH ???", "Chieti"},
    {"CO USA", "Colorado"},
    {"CO ???", "Coast"},
    {"DE GB ", "Derbyshire"},
    {"DE USA", "Delaware"},
    {"FI I  ", "Firenze"},
    {"FI ???", "Fife"},
    {"FL NL ", "Flevoland"},
    {"FL USA", "Florida"},
    {"FR NL ", "Friesland"},
    {"FR ???", "Fribourg", "Frosinone"},
    {"GE CH ", "Genève "_w},
    {"GE I  ", "Genova"},
    {"GL GB ", "Greater London"},
    {"GL ???", "Glarus"},
    {"GR NL ", "Groningen"},
    {"GR CH ", "Graubünden"_w},
    {"GR E  ", "Granada"},
    {"IW GB ", "Island of Wight"},
    {"KAL???", "Kalmar", "Kaliningrad"},
    {"KB RI ", "Kalimantan West-"},
    {"KS USA", "Kansas"},
    {"KS RI ", "Borneo Zuid-"},
    {"LA GB ", "Lancashire"},
    {"LA USA", "Louisiana"},
    {"LA ???", "Lampung", "Luanda"},
    {"LI NL ", "Limburg", "Lincolnshire"},
    {"MARSME", "Marowijne "},
    {"MAR???", "Maranhao"},
    {"ME USA", "Maine"},
    {"ME ???", "Merseyside"},
    {"MI USA", "Michigan"},
    {"MI I  ", "Milano"},
    {"MO USA", "Missouri"},
    {"MO ???", "Modena"},
    {"MS USA", "Mississippi"},
    {"MS SK ", "Slowakije Midden-"},
    {"NB NL ", "Noord-Brabant"},
    {"NB CDN", "New Brunswick"},
    {"NB ???", "Noord-Bohemen"},
    {"NE CH ", "Neuchâtel"_w},
    {"NE USA", "Nebraska"},
    {"NE ???", "Nelson"},
    {"NH NL ", "Noord - Holland"},
    {"NH GB ", "Northamptonshire"},
    {"NH USA", "New Hampshire"},
    {"NM USA", "New Mexico"},
    {"NM ???", "Noord-Moravië"_w},
    {"NO GB ", "Norfolk"},
    {"NO A  ", "Niederösterreich"_w},
    {"NO ???", "Novara"},
    {"NT GB ", "Nottinghamshire"},
    {"NT CDN", "Northern Territory"},
    {"NY USA", "New York"},
    {"NY GB ", "North Yorkshire"},
    {"OV NL ", "Overijssel"},
    {"OV SA ", "Oranje Vrijstaat"},
    {"SA CDN", "Saskatchewan"},
    {"SA AUS", "Australia South-"},
    {"SA NZ ", "Auckland South-"},
    {"SA ???", "Salop", "Salerno"},
    {"SARRI ", "Sarawak"},
    {"SARI  ", "Sardinië"_w},
    {"SH A  ", "Schaffhausen"},
    {"SH GB ", "Staffordshire"},
    {"SH ???", "Shaba"},
    {"SO GB ", "Somerset"},
    {"SO ???", "Solothurn"},
    {"SS RI ", "Celebes Zuid-"},
    {"SS ???", "Sassari"},
    {"ST RI ", "Celebes Midden-"},
    {"ST S  ", "Stockholm"},
    {"ST ???", "Strathclide"},
    {"SU GB ", "Suffolk"},
    {"SU RI ", "Celebes Noord-"},
    {"TO E  ", "Toledo"},
    {"TO J  ", "Tokio"},
    {"UT NL ", "Utrecht"},
    {"UT USA", "Utah"},
    {"WA USA", "Washington"},
    {"WA AUS", "Australia Western"},
    {"WA GB ", "Warwickshire"},
    {"WE A  ", "Wenen"},
    {"WE NZ ", "Wellington"},
    {"WE ???", "Western"},
    {"WS GB ", "West-Sussex"},
    {"WS SK ", "Slowakije West-"},
    {"WY USA", "Wyoming"},
    {"WY GB ", "West-Yorkshire"},
    {"ZH NL ", "Zuid-Holland"},
    {"ZH CH ", "Zürich"_w},
};
// clang-format on

// Other codes by which a country is known.
struct LandRij {
  std::string_view alias;
  std::string_view code;
};

constexpr LandRij kLanden[] = {{"BRD", "D"}, {"DDR", "D"}, {"DLD", "D"}, {"BEL", "B"},
                               {"FRA", "F"}, {"FR", "F"},  {"EN", "GB"}};

const NaamRij* InTabel(std::string_view code, std::string_view land) {
  for (const NaamRij& rij : kNamen) {
    if (!GelijkZonderKast(rij.Prov(), code)) continue;
    if (rij.Land() == kNaamloos || GelijkZonderKast(rij.Land(), land)) return &rij;
  }
  return nullptr;
}

// The code of a name; with `land` of that country only.
std::optional<std::string> CodeInTabel(std::string_view naam,
                                       std::optional<std::string_view> land) {
  for (const NaamRij& rij : kNamen) {
    const bool hier = !land || GelijkZonderKast(rij.Land(), *land);
    if (hier && rij.Heet(naam)) return std::string(rij.Prov());
  }
  return std::nullopt;
}

std::string ZonderAlias(std::string_view code) {
  for (const LandRij& rij : kLanden) {
    if (GelijkZonderKast(rij.alias, code)) return std::string(rij.code);
  }
  return std::string(code);
}

}  // namespace

std::string ProvincieNaam(std::string_view code, std::string_view land,
                          const GciProvincies& provincies, std::string_view gezocht) {
  const std::string_view kaal = Trim(code);
  if (kaal.empty()) return {};
  if (const NaamRij* rij = InTabel(kaal, Trim(land))) {
    const bool tweede = !rij->tweede.empty() && GelijkZonderKast(Trim(rij->tweede), Trim(gezocht));
    return std::string(tweede ? rij->tweede : rij->naam);
  }
  return provincies.NaamVan(kaal).value_or(std::string(kNaamloos));
}

std::string ProvincieNaamBij(std::string_view code, std::string_view land,
                             const GciProvincies& provincies, std::string_view gezocht) {
  const std::string_view naam = Trim(gezocht);
  for (const NaamRij& rij : kNamen) {
    if (!Trim(land).empty() || !GelijkZonderKast(rij.Prov(), Trim(code)) || !rij.Heet(naam))
      continue;
    return std::string(GelijkZonderKast(Trim(rij.tweede), naam) ? rij.tweede : rij.naam);
  }
  return ProvincieNaam(code, land, provincies, gezocht);
}

std::optional<std::string> ProvincieCode(std::string_view tekst, std::string_view land,
                                         const GciProvincies& provincies) {
  const std::string_view kaal = Trim(tekst);
  if (kaal.empty()) return std::string();
  if (auto code = CodeInTabel(kaal, Trim(land))) return code;
  if (auto code = provincies.MetNaam(kaal)) return code;
  if (auto code = CodeInTabel(kaal, std::nullopt)) return code;
  if (auto code = provincies.MetCode(kaal)) return code;
  const NaamRij* rij = InTabel(kaal, Trim(land));
  return rij ? std::optional(std::string(rij->Prov())) : std::nullopt;
}

std::string LandNaam(std::string_view code, const GciLanden& landen) {
  const std::string_view kaal = Trim(code);
  if (kaal.empty()) return {};
  if (GelijkZonderKast(kaal, kNederland)) return "Nederland";
  return landen.NaamVan(ZonderAlias(kaal)).value_or(std::string(kNaamloos));
}

std::optional<std::string> LandCode(std::string_view tekst, const GciLanden& landen) {
  const std::string_view kaal = Trim(tekst);
  if (kaal.empty()) return std::string();
  if (GelijkZonderKast(kaal, kNederland) || GelijkZonderKast(kaal, "Nederland")) {
    return std::string(kNederland);
  }
  if (auto code = landen.MetCode(ZonderAlias(kaal))) return code;
  return landen.MetNaam(kaal);
}

}  // namespace lb77
