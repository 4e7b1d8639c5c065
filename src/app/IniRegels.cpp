#include <algorithm>
#include <cstddef>
#include <span>

#include "app/IniBestand.h"
#include "app/NeemRegel.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kRegelEinde = "\r\n";

// A value never holds a line end: the file would come back as another one.
std::string OpEenRegel(std::string tekst) {
  std::replace(tekst.begin(), tekst.end(), '\r', ' ');
  std::replace(tekst.begin(), tekst.end(), '\n', ' ');
  return tekst;
}

void SchrijfRegel(std::string& uit, std::string_view sleutel, const std::string& waarde) {
  uit.append(sleutel).append("=").append(OpEenRegel(waarde)).append(kRegelEinde);
}

void SchrijfLijst(std::string& uit, std::size_t rij, const Sleutel& sleutel,
                  const std::function<std::string(SleutelPlaats)>& waarde) {
  for (int nummer = 1; nummer <= sleutel.aantal; ++nummer) {
    const std::string tekst = waarde({rij, static_cast<std::size_t>(nummer)});
    if (tekst.empty()) continue;
    SchrijfRegel(uit, std::string(sleutel.naam) + GetalTekst(nummer), tekst);
  }
}

}  // namespace

void LeesIniRegels(
    std::string_view inhoud,
    const std::function<void(std::string_view, std::string_view, std::string_view)>& pas) {
  std::string_view sectie;
  std::string_view sleutel;
  std::string_view waarde;
  while (!inhoud.empty()) {
    const std::string_view regel = Trim(NeemRegel(inhoud));
    const std::size_t teken = regel.find('=');
    if (regel.starts_with('[')) {
      sectie = regel.size() < 2 ? std::string_view() : Trim(regel.substr(1, regel.size() - 2));
      sleutel = waarde = {};
    } else if (teken != std::string_view::npos) {
      sleutel = Trim(regel.substr(0, teken));
      waarde = Trim(regel.substr(teken + 1));
    }
    if (!sleutel.empty()) pas(sectie, sleutel, waarde);
  }
}

std::string IniRegels(const std::function<std::string(SleutelPlaats)>& waarde) {
  std::string uit;
  std::string_view sectie;
  const std::span<const Sleutel> sleutels = AlleSleutels();
  for (std::size_t rij = 0; rij < sleutels.size(); ++rij) {
    const Sleutel& sleutel = sleutels[rij];
    if (sleutel.sectie != sectie) {
      if (!sectie.empty()) uit.append(kRegelEinde);
      sectie = sleutel.sectie;
      uit.append("[").append(sectie).append("]").append(kRegelEinde);
    }
    if (sleutel.aantal > 0) {
      SchrijfLijst(uit, rij, sleutel, waarde);
    } else {
      SchrijfRegel(uit, sleutel.naam, waarde({rij, 0}));
    }
  }
  return uit;
}

}  // namespace lb77
