#include "pictures/Penseel.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "pictures/Palet.h"

namespace lb77 {
namespace {

constexpr double kHalf = 180;
constexpr double kKwart = 90;

void Schuif(Rechthoek& vlak, Punt over) {
  vlak.x += over.x;
  vlak.y += over.y;
}

void Schuif(Punt& punt, Punt over) {
  punt.x += over.x;
  punt.y += over.y;
}

void Schuif(Ringdeel& ring, Punt over) {
  Schuif(ring.midden, over);
}

void Schuif(Lijnstuk& lijn, Punt over) {
  for (Punt& punt : lijn.punten) Schuif(punt, over);
}

void Schuif(Opschrift& tekst, Punt over) {
  Schuif(tekst.plek, over);
}

}  // namespace

void Penseel::Begin(std::int16_t nr, std::string naam) {
  doel_ = static_cast<int>(tekening_.doelen.size());
  tekening_.doelen.push_back({nr, std::move(naam), tekening_.vormen.size()});
}

void Penseel::Voeg(Vorm vorm) {
  vorm.doel = doel_;
  tekening_.vormen.push_back(std::move(vorm));
}

void Penseel::Schrijf(std::string_view tekst, Punt plek, const Schrift& schrift, Tekstanker anker,
                      double hoek) {
  if (tekst.empty()) return;
  const double breedte = LetterVan(schrift).Breedte(tekst);
  Voeg({.wat =
            Opschrift{plek, std::string(tekst), schrift.grootte, schrift.vet, anker, hoek, breedte},
        .vulling = schrift.kleur});
}

void Penseel::SchrijfBoog(std::string_view tekst, Punt midden, double straal, double graden,
                          const Schrift& schrift) {
  const bool onder = std::sin(graden * std::numbers::pi / kHalf) > 0;
  // Upright below the middle the letters stand on the other side of their line.
  const double baan = onder ? straal + schrift.grootte * kStok : straal;
  const double zin = onder ? -1 : 1;
  const double perPunt = kHalf / std::numbers::pi / baan;
  const Letter letter = LetterVan(schrift);
  double aan = -letter.Breedte(tekst) / 2;
  for (const char teken : tekst) {
    const std::string een(1, teken);
    const double breedte = letter.Breedte(een);
    const double hoek = graden + zin * (aan + breedte / 2) * perPunt;
    if (teken != ' ') {
      Schrijf(een, OpCirkel(midden, baan, hoek), schrift, Tekstanker::Midden, hoek + zin * kKwart);
    }
    aan += breedte;
  }
}

std::string NaamVan(const BeeldPersoon& persoon) {
  std::string uit = persoon.nummer;
  const auto voeg = [&uit](std::string_view deel) {
    if (!uit.empty() && !deel.empty()) uit += ' ';
    uit.append(deel);
  };
  voeg(persoon.voornamen);
  voeg(persoon.achternaam);
  for (const std::string& datum : persoon.datums) voeg(datum);
  voeg(persoon.elders);
  return uit;
}

namespace {

constexpr Schrift kTitel{22, true, kInkt};
constexpr double kKleinsteTitel = 9;
constexpr Schrift kLegenda{9, false, kInkt};
constexpr double kRonding = 7;   // points, of the corners of a box
constexpr double kSmalst = 300;  // a picture of one person is no narrower, for its title
constexpr double kTitelruimte = 44;
constexpr double kLegendaruimte = 30;
constexpr double kVakje = 12;

struct Legendadeel {
  Geslacht geslacht;
  std::string_view tekst;
};
constexpr Legendadeel kDelen[] = {
    {Geslacht::Man, "man"}, {Geslacht::Vrouw, "vrouw"}, {Geslacht::Onbekend, "onbekend"}};

// Side by side around the middle.
void SchrijfLegenda(Penseel& penseel, Punt midden) {
  constexpr double kTussen = 18;
  const Letter letter = penseel.LetterVan(kLegenda);
  double breedte = -kTussen;
  for (const Legendadeel& deel : kDelen) {
    breedte += kVakje * 1.5 + letter.Breedte(deel.tekst) + kTussen;
  }
  double x = midden.x - breedte / 2;
  for (const Legendadeel& deel : kDelen) {
    penseel.Voeg({.wat = Vak(deel.geslacht, {x, midden.y - kVakje + 2, kVakje, kVakje}),
                  .vulling = KleurVan(deel.geslacht),
                  .lijn = kRand,
                  .dikte = kLijndikte,
                  .gestippeld = deel.geslacht == Geslacht::Onbekend});
    x += kVakje * 1.5;
    penseel.Schrijf(deel.tekst, {x, midden.y}, kLegenda);
    x += letter.Breedte(deel.tekst) + kTussen;
  }
}

// A long title gets smaller letters before it is cut.
void SchrijfTitel(Penseel& penseel, const std::string& titel, double midden, double ruimte) {
  Schrift schrift = kTitel;
  const double breedte = penseel.LetterVan(schrift).Breedte(titel);
  if (breedte > ruimte)
    schrift.grootte = std::max(kKleinsteTitel, kTitel.grootte * ruimte / breedte);
  penseel.Schrijf(Ingekort(titel, penseel.LetterVan(schrift), ruimte),
                  {midden, kBladrand + kTitel.grootte}, schrift, Tekstanker::Midden);
}

void Verschuif(Tekening& tekening, Punt over) {
  for (Vorm& vorm : tekening.vormen) {
    std::visit([&](auto& wat) { Schuif(wat, over); }, vorm.wat);
  }
}

}  // namespace

Rechthoek Vak(Geslacht geslacht, Rechthoek vlak) {
  vlak.straal = geslacht == Geslacht::Vrouw ? std::min(kRonding, vlak.hoogte / 3) : 0;
  return vlak;
}

void Omlijst(Tekening& tekening, const Lettermaat& maat, const Rechthoek& inhoud, bool legenda) {
  const double boven = kBladrand + (tekening.titel.empty() ? 0 : kTitelruimte);
  const double onder = kBladrand + (legenda ? kLegendaruimte : 0);
  tekening.breedte = std::max(inhoud.breedte, kSmalst) + 2 * kBladrand;
  tekening.hoogte = boven + inhoud.hoogte + onder;
  const double links = (tekening.breedte - inhoud.breedte) / 2;
  Verschuif(tekening, {links - inhoud.x, boven - inhoud.y});
  tekening.vormen.insert(
      tekening.vormen.begin(),
      Vorm{.wat = Rechthoek{0, 0, tekening.breedte, tekening.hoogte}, .vulling = kPapier});
  for (Doel& doel : tekening.doelen) ++doel.vlak;
  Penseel penseel(tekening, maat);
  const double midden = tekening.breedte / 2;
  SchrijfTitel(penseel, tekening.titel, midden, tekening.breedte - 2 * kBladrand);
  if (legenda) SchrijfLegenda(penseel, {midden, tekening.hoogte - kBladrand});
}

}  // namespace lb77
