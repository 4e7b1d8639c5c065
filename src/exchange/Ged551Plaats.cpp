#include "exchange/Ged551Plaats.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/Letterlijk.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

struct Gebied {
  std::string_view code;
  std::string_view provincie;
  std::string_view land;
};

constexpr std::string_view kNederland = "Nederland";

constexpr std::array kGebieden = {
    Gebied{"GR", "Groningen", kNederland},
    Gebied{"FR", "Friesland", kNederland},
    Gebied{"DR", "Drenthe", kNederland},
    Gebied{"OV", "Overijssel", kNederland},
    Gebied{"FL", "Flevoland", kNederland},
    Gebied{"GE", "Gelderland", kNederland},
    Gebied{"GL", "Gelderland", kNederland},
    Gebied{"U", "Utrecht", kNederland},
    Gebied{"UT", "Utrecht", kNederland},
    Gebied{"NH", "Noord-Holland", kNederland},
    Gebied{"ZH", "Zuid-Holland", kNederland},
    Gebied{"ZE", "Zeeland", kNederland},
    Gebied{"ZL", "Zeeland", kNederland},
    Gebied{"NB", "Noord-Brabant", kNederland},
    Gebied{"L", "Limburg", kNederland},
    Gebied{"LI", "Limburg", kNederland},
    Gebied{"B", "", "België"_w},
    Gebied{"F", "", "Frankrijk"},
    Gebied{"D", "", "Duitsland"},
    Gebied{"DU", "", "Duitsland"},
    Gebied{"GB", "", "Groot-Brittannië"_w},
    Gebied{"UK", "", "Groot-Brittannië"_w},
    Gebied{"US", "", "Verenigde Staten"},
    Gebied{"VS", "", "Verenigde Staten"},
};

std::string ZonderKomma(std::string_view tekst) {
  std::string uit(tekst);
  std::ranges::replace(uit, ',', ';');
  return uit;
}

const Gebied* GebiedVan(std::string_view prov) {
  const auto* gebied = std::ranges::find(kGebieden, Hoofdletters(prov), &Gebied::code);
  return gebied == kGebieden.end() ? nullptr : gebied;
}

// A known code between brackets behind a name, as imported places have it; empty when there is none.
std::string_view CodeInNaam(std::string_view naam) {
  const std::size_t haakje = naam.rfind(" (");
  if (haakje == std::string_view::npos || haakje == 0 || !naam.ends_with(')')) return {};
  const std::string_view code = naam.substr(haakje + 2, naam.size() - haakje - 3);
  return GebiedVan(code) != nullptr ? code : std::string_view();
}

}  // namespace

std::string Ged551Plaats(std::string_view naam, std::string_view prov) {
  if (prov.empty()) {
    prov = CodeInNaam(naam);
    if (!prov.empty()) naam.remove_suffix(prov.size() + 3);
  }
  std::string uit = ZonderKomma(naam);
  if (prov.empty()) return uit;
  const Gebied* gebied = GebiedVan(prov);
  if (gebied == nullptr) return uit + ", " + ZonderKomma(prov);
  return uit.append(", ").append(gebied->provincie).append(", ").append(gebied->land);
}

}  // namespace lb77
