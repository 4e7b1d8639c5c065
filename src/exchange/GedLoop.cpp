#include "exchange/GedLoop.h"

#include "store/PlaatsVraag.h"
#include "text/Dos850.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

struct ContextRij {
  std::string_view tag;
  std::string_view woord;
  bool metId;
};
constexpr ContextRij kContexten[] = {
    {"HEAD", "H-Header", false}, {"INDI", "P-", true},           {"FAM", "R-", true},
    {"SOUR", "A-", true},        {"SUBN", "I-Inzending ", true}, {"SUBM", "Z-Inzender ", true},
    {"TRLR", "T-Einde", false},
};

}  // namespace

bool GedLog::Open(const std::filesystem::path& pad) {
  bestand_.open(pad, std::ios::binary | std::ios::trunc);
  return bestand_.is_open();
}

void GedLog::Regel(std::string_view regel) {
  bestand_ << regel << "\r\n";
}

bool GedLog::Sluit() {
  bestand_.close();
  return !bestand_.fail();
}

std::string GedLoop::Tekst(std::string_view tekst) {
  if (tekenset == GedTekenset::Cp850 && !geen850Melding) {
    geen850Melding =
        bronnen.gesprek.BerichtMetVinkje(kDos850Melding, "Niet meer tonen tijdens deze import");
  }
  return GedTekst(tekst, tekenset);
}

std::string GedLoop::Veld(std::string_view tekst, std::size_t lengte) {
  return Tekst(Trim(tekst.substr(0, lengte)));
}

std::string GedLoop::Plaats(std::string_view waarde) {
  if (Trim(waarde).empty()) return "0";
  const std::string tekst = Tekst(Trim(waarde));
  const std::string_view naam = GedPlaatsNaam(tekst);
  if (naam.empty()) return "0";
  GeenPlaatsVraag vraag;
  const std::int16_t nr = bronnen.plaats.Nr(naam, 0, "", 1, vraag);
  return nr < 0 ? std::string("0") : GetalTekst(nr);
}

std::string GedLoop::Gezindte(std::string_view waarde) {
  if (Trim(waarde).empty()) return "0";
  return GedGezindteCode(Tekst(Trim(waarde)), bronnen.gezindten);
}

std::string GedLoop::Context(std::string_view tag, std::string_view id) {
  for (const ContextRij& rij : kContexten) {
    if (rij.tag != tag) continue;
    return std::string(rij.woord).append(rij.metId ? id : std::string_view{});
  }
  return std::string("?-").append(id);
}

}  // namespace lb77
