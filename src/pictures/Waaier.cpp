#include "pictures/Waaier.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string_view>
#include <vector>

#include "pictures/Palet.h"
#include "pictures/Penseel.h"
#include "pictures/Tekstregels.h"

namespace lb77 {
namespace {

constexpr double kBoven = 270;  // degrees
constexpr double kHalf = 180;
constexpr double kHart = 66;         // radius of the middle
constexpr double kBoogring = 50;     // depth of a ring whose texts follow the circle
constexpr double kStraalring = 112;  // and of one whose texts point outward
constexpr double kBoogruimte = 92;   // points along the circle that make the texts follow it
constexpr double kSmalst = 5.4;      // points along the circle that everybody has
constexpr double kLucht = 4;         // between a text and the edge
constexpr double kScheiding = 1.4;   // of white, between two places
constexpr double kGrootste = 11;
constexpr double kKleinste = 3.5;

struct Ring {
  double binnen = 0;
  double buiten = 0;
  bool boog = false;
};

double Boog(double straal, double graden) {
  return straal * graden * std::numbers::pi / kHalf;
}

// The rings as far as `generaties`, from 1. A ring reaches as far outward as the next one needs to
// give everybody room.
std::vector<Ring> MaakRingen(int generaties, double spanne) {
  std::vector<Ring> ringen{{0, kHart, false}};
  double hoek = spanne;
  for (int g = 1; g < generaties; ++g) {
    hoek /= 2;
    double& rand = ringen.back().buiten;
    rand = std::max(rand, kSmalst / Boog(1, hoek));
    const bool boog = Boog(rand + kBoogring / 2, hoek) >= kBoogruimte;
    const double binnen = rand;
    ringen.push_back({binnen, binnen + (boog ? kBoogring : kStraalring), boog});
  }
  return ringen;
}

class Tekenaar {
 public:
  Tekenaar(const BeeldPersonen& personen, const WaaierKeuzen& keuzen, const Lettermaat& maat)
      : personen_(personen), keuzen_(keuzen), penseel_(tekening_, maat) {
    tekening_.titel = keuzen.titel;
    int generaties = 0;
    for (const BeeldPersoon& persoon : personen) {
      if (persoon.generatie < kMaxWaaierGen) {
        generaties = std::max(generaties, persoon.generatie + 1);
      }
    }
    ringen_ = MaakRingen(generaties, keuzen.spanne);
  }

  [[nodiscard]] Tekening Teken() {
    VindPlaatsen();
    TekenOpen();
    for (std::size_t i = 0; i < personen_.size(); ++i) {
      if (personen_[i].generatie < kMaxWaaierGen) TekenPersoon(personen_[i], Plaats(i));
    }
    const double straal = personen_.empty() ? 0 : ringen_.back().buiten;
    const double laag = std::sin((kBoven + keuzen_.spanne / 2) * std::numbers::pi / kHalf);
    const double onder =
        keuzen_.spanne >= 2 * kHalf ? straal : std::max(std::min(kHart, straal), straal * laag);
    Omlijst(tekening_, penseel_.Maat(), {-straal, -straal, 2 * straal, straal + onder},
            keuzen_.kleuren == Kleurwijze::Geslacht);
    return std::move(tekening_);
  }

 private:
  // Everybody's place in his ring, from 0.
  void VindPlaatsen() {
    plaatsen_.assign(personen_.size(), 0);
    ouders_.assign(personen_.size(), {});
    for (std::size_t i = 0; i < personen_.size(); ++i) {
      const BeeldPersoon& persoon = personen_[i];
      if (persoon.vorige < 0 || persoon.generatie >= kMaxWaaierGen) continue;
      const auto kind = static_cast<std::size_t>(persoon.vorige);
      plaatsen_[i] = 2 * plaatsen_[kind] + (persoon.moeder ? 1 : 0);
      ouders_[kind][persoon.moeder ? 1 : 0] = true;
    }
  }

  [[nodiscard]] Ringdeel Plaats(std::size_t i) const {
    return Deel(personen_[i].generatie, plaatsen_[i]);
  }

  [[nodiscard]] Ringdeel Deel(int generatie, int plaats) const {
    const Ring& ring = ringen_[static_cast<std::size_t>(generatie)];
    if (generatie == 0) return {{}, 0, ring.buiten, 0, 2 * kHalf};
    const double breed = std::ldexp(keuzen_.spanne, -generatie);
    const double van = kBoven - keuzen_.spanne / 2 + plaats * breed;
    return {{}, ring.binnen, ring.buiten, van, van + breed};
  }

  void TekenOpen() {
    for (std::size_t i = 0; i < personen_.size(); ++i) {
      const int generatie = personen_[i].generatie + 1;
      if (generatie >= static_cast<int>(ringen_.size())) continue;
      for (int moeder = 0; moeder < 2; ++moeder) {
        if (ouders_[i][static_cast<std::size_t>(moeder)]) continue;
        TekenVlak(Deel(generatie, 2 * plaatsen_[i] + moeder), kOpen, false);
      }
    }
  }

  void TekenVlak(const Ringdeel& deel, Kleur kleur, bool rand) {
    const double smal = deel.binnen <= 0 ? kScheiding : Boog(deel.binnen, deel.tot - deel.van) / 8;
    penseel_.Voeg({.wat = deel,
                   .vulling = kleur,
                   .lijn = rand ? kRand : kPapier,
                   .dikte = std::min(rand ? kLijndikte : kScheiding, smal)});
  }

  void TekenPersoon(const BeeldPersoon& persoon, const Ringdeel& deel) {
    const Kleur kleur = KleurVan(keuzen_.kleuren, persoon.generatie, persoon.geslacht);
    penseel_.Begin(persoon.nr, NaamVan(persoon));
    TekenVlak(deel, kleur, kleur == kPapier);
    if (persoon.generatie == 0) {
      SchrijfHart(persoon);
    } else if (ringen_[static_cast<std::size_t>(persoon.generatie)].boog) {
      SchrijfBoog(persoon, deel);
    } else {
      SchrijfStraal(persoon, deel);
    }
    penseel_.Niemand();
  }

  // Each line is as wide as the circle is there.
  void SchrijfHart(const BeeldPersoon& persoon) {
    const std::vector<Schrift> schriften = Schriften(3, kGrootste);
    const double hoogte = HoogteVan(schriften);
    const auto ruimte = [&](std::size_t regel) {
      const double boven = -hoogte / 2 + BovenVan(schriften, regel);
      const double verst =
          std::max(std::abs(boven), std::abs(boven + schriften[regel].grootte * kRegelhoogte));
      return 2 * (std::sqrt(kHart * kHart - verst * verst) - kLucht);
    };
    Zet({}, 0, MaakRegels(persoon, schriften, ruimte, penseel_.Maat()));
  }

  void SchrijfBoog(const BeeldPersoon& persoon, const Ringdeel& deel) {
    const double hoek = deel.tot - deel.van;
    const double midden = (deel.van + deel.tot) / 2;
    const bool onder = std::sin(midden * std::numbers::pi / kHalf) > 0;
    const std::vector<Schrift> schriften = Schriften(3, persoon.generatie < 3 ? 10 : 9);
    const auto ruimte = [&](std::size_t) { return Boog(deel.binnen + kLucht, hoek) - 2 * kLucht; };
    const std::vector<Regel> regels = MaakRegels(persoon, schriften, ruimte, penseel_.Maat());
    // From the outer edge inward, or the other way where the texts stand on the other side.
    double op = (deel.binnen + deel.buiten) / 2 + (onder ? -1 : 1) * HoogteVan(regels) / 2;
    for (const Regel& regel : regels) {
      const double hoog = regel.schrift.grootte * kRegelhoogte;
      const double voet = regel.schrift.grootte * (kRegelhoogte + kStok) / 2;  // from its top
      const double straal = onder ? op + voet - regel.schrift.grootte * kStok : op - voet;
      penseel_.SchrijfBoog(regel.tekst, {}, straal, midden, regel.schrift);
      op += onder ? hoog : -hoog;
    }
  }

  // As many lines as lie side by side in the place.
  void SchrijfStraal(const BeeldPersoon& persoon, const Ringdeel& deel) {
    const double breed = Boog(deel.binnen, deel.tot - deel.van) - kScheiding;
    const int aantal = breed >= 3 * 8.2 * kRegelhoogte ? 3 : breed >= 2 * 7 * kRegelhoogte ? 2 : 1;
    const double grootte =
        std::clamp(breed / (aantal * kRegelhoogte), kKleinste, 11.0 - 2.0 * (3 - aantal) / 2);
    const auto ruimte = [&](std::size_t) { return deel.buiten - deel.binnen - 2 * kLucht; };
    const double midden = (deel.van + deel.tot) / 2;
    const bool links = std::cos(midden * std::numbers::pi / kHalf) < -1e-9;
    Zet(OpCirkel({}, (deel.binnen + deel.buiten) / 2, midden), links ? midden - kHalf : midden,
        MaakRegels(persoon, Schriften(aantal, std::min(grootte, 9.0)), ruimte, penseel_.Maat()));
  }

  // A block of lines around its middle, turned.
  void Zet(Punt midden, double hoek, const std::vector<Regel>& regels) {
    const double rad = hoek * std::numbers::pi / kHalf;
    double op = -HoogteVan(regels) / 2;
    for (const Regel& regel : regels) {
      const double voet = op + regel.schrift.grootte * (kRegelhoogte + kStok) / 2;
      penseel_.Schrijf(regel.tekst,
                       {midden.x - voet * std::sin(rad), midden.y + voet * std::cos(rad)},
                       regel.schrift, Tekstanker::Midden, hoek);
      op += regel.schrift.grootte * kRegelhoogte;
    }
  }

  const BeeldPersonen& personen_;
  const WaaierKeuzen& keuzen_;
  Tekening tekening_;
  Penseel penseel_;
  std::vector<Ring> ringen_;
  std::vector<int> plaatsen_;
  std::vector<std::array<bool, 2>> ouders_;  // known: father, mother
};

}  // namespace

Tekening MaakWaaier(const BeeldPersonen& personen, const WaaierKeuzen& keuzen,
                    const Lettermaat& maat) {
  return Tekenaar(personen, keuzen, maat).Teken();
}

}  // namespace lb77
