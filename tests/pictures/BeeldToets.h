// What holds for every picture, checked by its coordinates; and families to draw.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "forms/Tekening.h"
#include "pictures/BeeldPersoon.h"
#include "pictures/Lettermaat.h"

namespace lb77 {

// The corners of the letters of a text: from its baseline up to the height of a capital.
inline std::array<Punt, 4> HoekenVan(const Opschrift& tekst) {
  const double rad = tekst.hoek * std::numbers::pi / 180;
  const double deel = tekst.anker == Tekstanker::Begin    ? 0
                      : tekst.anker == Tekstanker::Midden ? 0.5
                                                          : 1;
  const double breed = Helveticamaat().Breedte(tekst.tekst, tekst.grootte, tekst.vet);
  std::array<Punt, 4> uit;
  int i = 0;
  for (const double x : {-deel * breed, (1 - deel) * breed}) {
    for (const double y : {0.0, -0.72 * tekst.grootte}) {
      uit[static_cast<std::size_t>(i++)] = {tekst.plek.x + x * std::cos(rad) - y * std::sin(rad),
                                            tekst.plek.y + x * std::sin(rad) + y * std::cos(rad)};
    }
  }
  return uit;
}

// The names and dates of each person stand within the shape that he fills.
inline void VerwachtTekstInVlak(const Tekening& tekening) {
  for (const Vorm& vorm : tekening.vormen) {
    const auto* tekst = std::get_if<Opschrift>(&vorm.wat);
    if (!tekst || vorm.doel < 0) continue;
    for (const Punt hoek : HoekenVan(*tekst)) {
      ASSERT_EQ(DoelOp(tekening, hoek), vorm.doel)
          << tekst->tekst << " of " << tekening.doelen[static_cast<std::size_t>(vorm.doel)].naam;
    }
  }
}

// Every text and every shape with a name lies on the sheet.
inline void VerwachtOpVel(const Tekening& tekening) {
  const auto binnen = [&](Punt punt) {
    return punt.x >= 0 && punt.y >= 0 && punt.x <= tekening.breedte && punt.y <= tekening.hoogte;
  };
  for (const Vorm& vorm : tekening.vormen) {
    if (const auto* tekst = std::get_if<Opschrift>(&vorm.wat)) {
      for (const Punt hoek : HoekenVan(*tekst)) EXPECT_TRUE(binnen(hoek)) << tekst->tekst;
    } else if (const auto* vlak = std::get_if<Rechthoek>(&vorm.wat)) {
      EXPECT_TRUE(binnen({vlak->x, vlak->y}) && binnen({vlak->Rechts(), vlak->Onder()}));
    } else if (const auto* ring = std::get_if<Ringdeel>(&vorm.wat)) {
      for (const double hoek : {ring->van, (ring->van + ring->tot) / 2, ring->tot}) {
        EXPECT_TRUE(binnen(OpCirkel(ring->midden, ring->buiten - 1e-6, hoek)));
      }
    } else if (const auto* lijn = std::get_if<Lijnstuk>(&vorm.wat)) {
      for (const Punt punt : lijn->punten) EXPECT_TRUE(binnen(punt));
    }
  }
}

// All texts of a person, joined by bars.
inline std::string TekstVan(const Tekening& tekening, int doel) {
  std::string uit;
  for (const Vorm& vorm : tekening.vormen) {
    const auto* tekst = std::get_if<Opschrift>(&vorm.wat);
    if (tekst && vorm.doel == doel) uit += (uit.empty() ? "" : "|") + tekst->tekst;
  }
  return uit;
}

template <class Wat>
std::vector<const Wat*> AlleVan(const Tekening& tekening, bool metNaam) {
  std::vector<const Wat*> uit;
  for (const Vorm& vorm : tekening.vormen) {
    const Wat* wat = std::get_if<Wat>(&vorm.wat);
    if (wat && (vorm.doel >= 0) == metNaam) uit.push_back(wat);
  }
  return uit;
}

inline BeeldPersoon MaakPersoon(int nr, int vorige, int generatie, Geslacht geslacht,
                                std::string voornamen, std::string achternaam) {
  BeeldPersoon uit;
  uit.nr = static_cast<std::int16_t>(nr);
  uit.vorige = vorige;
  uit.generatie = generatie;
  uit.geslacht = geslacht;
  uit.voornamen = std::move(voornamen);
  uit.achternaam = std::move(achternaam);
  uit.datums = {"1802-1870"};
  return uit;
}

// So many generations of ancestors, all of them known but for every `gat`th (0: none is missing).
inline BeeldPersonen Voorouders(int generaties, int gat = 0) {
  static constexpr const char* kVoor[] = {"Willem Frederik George Lodewijk", "Anna", "Jan Pieter"};
  static constexpr const char* kAchter[] = {"van Oranje-Nassau", "Kok", "de Vries"};
  BeeldPersonen uit{MaakPersoon(2, -1, 0, Geslacht::Man, kVoor[0], kAchter[0])};
  std::size_t van = 0;
  int teller = 0;
  for (int g = 1; g < generaties; ++g) {
    const std::size_t tot = uit.size();
    for (std::size_t kind = van; kind < tot; ++kind) {
      for (int moeder = 0; moeder < 2; ++moeder) {
        if (gat > 0 && ++teller % gat == 0) continue;
        const int nr = static_cast<int>(uit.size()) + 2;
        uit.push_back(MaakPersoon(nr, static_cast<int>(kind), g,
                                  moeder ? Geslacht::Vrouw : Geslacht::Man, kVoor[nr % 3],
                                  kAchter[nr % 2 + nr % 3 / 2]));
        uit.back().moeder = moeder == 1;
      }
    }
    van = tot;
  }
  return uit;
}

// Descendants, of whom each has 0 to 4 children, until there are `aantal`.
inline BeeldPersonen Nakomelingen(std::size_t aantal) {
  BeeldPersonen uit{MaakPersoon(2, -1, 0, Geslacht::Onbekend, "Jan", "de Vries")};
  std::uint32_t worp = 7;
  for (std::size_t ouder = 0; ouder < uit.size() && uit.size() < aantal; ++ouder) {
    worp = worp * 1103515245U + 12345U;
    const std::uint32_t kinderen = (worp >> 16U) % 5U + (ouder + 1 == uit.size() ? 1U : 0U);
    for (std::uint32_t k = 0; k < kinderen && uit.size() < aantal; ++k) {
      uit.push_back(MaakPersoon(static_cast<int>(uit.size()) + 2, static_cast<int>(ouder),
                                uit[ouder].generatie + 1, static_cast<Geslacht>(k % 3),
                                "Anna Maria Catharina", "van der Linden van den Heuvell"));
      if (k % 2 == 1)
        uit.back().partners = {"x(1) Jan Pieter van Zuylen van Nijevelt", "x(2) N.N."};
    }
  }
  return uit;
}

}  // namespace lb77
