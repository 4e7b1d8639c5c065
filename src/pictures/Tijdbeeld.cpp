#include "pictures/Tijdbeeld.h"

#include <algorithm>
#include <cmath>

#include "pictures/Palet.h"
#include "pictures/Penseel.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr double kHoogte = 240;    // of the highest bar
constexpr double kStaaf = 34;      // its width
constexpr double kPas = 50;        // from bar to bar
constexpr double kLinks = 46;      // for the numbers of the scale
constexpr double kOnder = 46;      // for the periods
constexpr double kSleutel = 26;    // for what the two colours say
constexpr int kMeesteStrepen = 6;  // lines of the scale, about
constexpr Schrift kGetal{9, true, kInkt};
constexpr Schrift kSchaal{8.5, false, kZacht};
constexpr Kleur kZekerGrijs{0x8C, 0x8C, 0x8C};
constexpr Kleur kOnzekerGrijs{0xDC, 0xDC, 0xDC};
constexpr Kleur kHulplijn{0xD9, 0xDC, 0xE0};

// The smallest of 1, 2, 5, 10, 20, ... by which the scale has not too many lines.
std::int64_t Stapgrootte(std::int64_t hoogste) {
  std::int64_t macht = 1;
  while (true) {
    for (const std::int64_t keer : {1, 2, 5}) {
      if (hoogste / (macht * keer) <= kMeesteStrepen) return macht * keer;
    }
    macht *= 10;
  }
}

class Tekenaar {
 public:
  Tekenaar(const std::vector<Tijdstaaf>& staven, const TijdKeuzen& keuzen, const Lettermaat& maat)
      : staven_(staven), keuzen_(keuzen), penseel_(tekening_, maat) {
    tekening_.titel = keuzen.titel;
    for (const Tijdstaaf& staaf : staven) hoogste_ = std::max(hoogste_, staaf.aantal);
    breedte_ = std::max(kLinks + static_cast<double>(staven.size()) * kPas, 260.0);
  }

  [[nodiscard]] Tekening Teken() {
    TekenSchaal();
    for (std::size_t i = 0; i < staven_.size(); ++i) TekenStaaf(i);
    TekenSleutel();
    Omlijst(tekening_, penseel_.Maat(), {0, -16, breedte_, 16 + kHoogte + kOnder + kSleutel},
            false);
    return std::move(tekening_);
  }

 private:
  [[nodiscard]] Kleur Zeker() const { return keuzen_.kleur ? kGeneratiekleuren[1] : kZekerGrijs; }
  [[nodiscard]] Kleur Onzeker() const {
    return keuzen_.kleur ? kGeneratiekleuren[2] : kOnzekerGrijs;
  }
  [[nodiscard]] double Hoog(std::int64_t aantal) const {
    return kHoogte * static_cast<double>(aantal) / static_cast<double>(hoogste_);
  }

  void TekenSchaal() {
    const std::int64_t stap = Stapgrootte(hoogste_);
    for (std::int64_t keer = 0; keer <= hoogste_ / stap; ++keer) {
      const double y = kHoogte - Hoog(keer * stap);
      penseel_.Voeg({.wat = Lijnstuk{{{kLinks, y}, {breedte_, y}}},
                     .lijn = keer == 0 ? kRand : kHulplijn,
                     .dikte = kLijndikte});
      const std::string getal =
          Ingekort(GetalTekst(keer * stap), penseel_.LetterVan(kSchaal), kLinks - 6);
      penseel_.Schrijf(getal, {kLinks - 6, y + 3}, kSchaal, Tekstanker::Eind);
    }
  }

  void TekenStaaf(std::size_t i) {
    const Tijdstaaf& staaf = staven_[i];
    const double midden = kLinks + (static_cast<double>(i) + 0.5) * kPas;
    const double top = kHoogte - Hoog(staaf.aantal);
    const double zeker = kHoogte - Hoog(std::min(staaf.zeker, staaf.aantal));
    TekenVlak(midden, top, zeker, Onzeker());
    TekenVlak(midden, zeker, kHoogte, Zeker());
    Schrift getal = kGetal;
    const std::string tekst = GetalTekst(staaf.aantal);
    const double breed = penseel_.LetterVan(getal).Breedte(tekst);
    getal.grootte = std::min(getal.grootte, getal.grootte * (kPas - 2) / breed);
    penseel_.Schrijf(tekst, {midden, top - 4}, getal, Tekstanker::Midden);
    penseel_.Schrijf(Ingekort(staaf.periode, penseel_.LetterVan(kSchaal), kPas - 2),
                     {midden, kHoogte + 14}, kSchaal, Tekstanker::Midden);
  }

  void TekenVlak(double midden, double boven, double onder, Kleur kleur) {
    if (onder - boven <= 0) return;
    penseel_.Voeg({.wat = Rechthoek{midden - kStaaf / 2, boven, kStaaf, onder - boven},
                   .vulling = kleur,
                   .lijn = kRand,
                   .dikte = kLijndikte});
  }

  void TekenSleutel() {
    double x = kLinks;
    const double y = kHoogte + kOnder;
    for (const auto& [kleur, tekst] :
         {std::pair{Zeker(), "geboorte en overlijden bekend"}, std::pair{Onzeker(), "geschat"}}) {
      penseel_.Voeg({.wat = Rechthoek{x, y - 9, 11, 11},
                     .vulling = kleur,
                     .lijn = kRand,
                     .dikte = kLijndikte});
      penseel_.Schrijf(tekst, {x + 16, y}, kSchaal);
      x += 16 + penseel_.LetterVan(kSchaal).Breedte(tekst) + 16;
    }
    penseel_.Schrijf(keuzen_.onder, {kLinks, y + kSleutel - 6}, kGetal);
  }

  const std::vector<Tijdstaaf>& staven_;
  const TijdKeuzen& keuzen_;
  Tekening tekening_;
  Penseel penseel_;
  std::int64_t hoogste_ = 1;
  double breedte_ = 0;
};

}  // namespace

Tekening MaakTijdbeeld(const std::vector<Tijdstaaf>& staven, const TijdKeuzen& keuzen,
                       const Lettermaat& maat) {
  return Tekenaar(staven, keuzen, maat).Teken();
}

}  // namespace lb77
