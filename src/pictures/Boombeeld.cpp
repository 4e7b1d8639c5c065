#include "pictures/Boombeeld.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "pictures/Boomplaatsing.h"
#include "pictures/Palet.h"
#include "pictures/Penseel.h"
#include "pictures/Tekstregels.h"

namespace lb77 {
namespace {

constexpr double kLetter = 9;
constexpr double kPartnerletter = 8;
constexpr double kLucht = 6;                // between the texts and the edge of their box
constexpr double kSmalst = 60;              // a box
constexpr double kGang = 30;                // between two generations
constexpr double kDraad = 0.9;              // the line from box to box
constexpr std::size_t kMeestePartners = 6;  // lines; the last one counts those that are left

struct Doos {
  std::vector<Regel> regels;
  double breedte = 0;
  double hoogte = 0;
};

class Tekenaar {
 public:
  Tekenaar(const BeeldPersonen& personen, const BoomKeuzen& keuzen, const Lettermaat& maat)
      : personen_(personen),
        keuzen_(keuzen),
        rechts_(keuzen.groei == Groei::Rechts),
        penseel_(tekening_, maat) {
    tekening_.titel = keuzen.titel;
  }

  [[nodiscard]] Tekening Teken() {
    for (const BeeldPersoon& persoon : personen_) dozen_.push_back(MaakDoos(persoon));
    MeetGeneraties();
    std::vector<Boomknoop> knopen;
    for (std::size_t i = 0; i < dozen_.size(); ++i) {
      knopen.push_back({personen_[i].vorige, Dwars(dozen_[i])});
    }
    midden_ = PlaatsBoom(knopen, rechts_ ? Boomafstand{7, 14} : Boomafstand{9, 18});
    TekenDraden();
    for (std::size_t i = 0; i < dozen_.size(); ++i) TekenDoos(i);
    Omlijst(tekening_, penseel_.Maat(), Inhoud(), keuzen_.kleuren == Kleurwijze::Geslacht);
    return std::move(tekening_);
  }

 private:
  // Across the direction of growth, and along it.
  [[nodiscard]] double Dwars(const Doos& doos) const {
    return rechts_ ? doos.hoogte : doos.breedte;
  }
  [[nodiscard]] double Langs(const Doos& doos) const {
    return rechts_ ? doos.breedte : doos.hoogte;
  }
  [[nodiscard]] double Breedste() const { return rechts_ ? 200 : 128; }

  [[nodiscard]] Doos MaakDoos(const BeeldPersoon& persoon) const {
    const double ruimte = Breedste() - 2 * kLucht;
    const auto overal = [ruimte](std::size_t) { return ruimte; };
    Doos doos{MaakRegels(persoon, Schriften(rechts_ ? 2 : 3, kLetter), overal, penseel_.Maat())};
    const Schrift klein{kPartnerletter, false, kInkt};
    for (std::size_t i = 0; i < std::min(persoon.partners.size(), kMeestePartners); ++i) {
      const bool rest = i + 1 == kMeestePartners && persoon.partners.size() > kMeestePartners;
      doos.regels.push_back(
          {Ingekort(rest ? "..." : persoon.partners[i], penseel_.LetterVan(klein), ruimte), klein});
    }
    double breedte = 0;
    for (const Regel& regel : doos.regels) {
      breedte = std::max(breedte, penseel_.LetterVan(regel.schrift).Breedte(regel.tekst));
    }
    doos.breedte = std::max(breedte + 2 * kLucht, kSmalst);
    doos.hoogte = std::max(HoogteVan(doos.regels), kLetter * kRegelhoogte) + kLucht;
    return doos;
  }

  // Where each generation begins, along the direction of growth; to the right all its boxes are as
  // wide as its widest.
  void MeetGeneraties() {
    std::vector<double> maten;
    for (std::size_t i = 0; i < dozen_.size(); ++i) {
      const auto generatie = static_cast<std::size_t>(personen_[i].generatie);
      if (generatie >= maten.size()) maten.resize(generatie + 1);
      maten[generatie] = std::max(maten[generatie], Langs(dozen_[i]));
    }
    begin_.assign(1, 0);
    for (const double maat : maten) begin_.push_back(begin_.back() + maat + kGang);
    if (!rechts_) return;
    for (std::size_t i = 0; i < dozen_.size(); ++i) {
      dozen_[i].breedte = maten[static_cast<std::size_t>(personen_[i].generatie)];
    }
  }

  [[nodiscard]] double Begin(std::size_t i) const {
    return begin_[static_cast<std::size_t>(personen_[i].generatie)];
  }

  // A point of the tree as it grows, on the sheet.
  [[nodiscard]] Punt OpVel(double langs, double dwars) const {
    switch (keuzen_.groei) {
      case Groei::Rechts:
        return {langs, dwars};
      case Groei::Omhoog:
        return {dwars, -langs};
      case Groei::Omlaag:
        break;
    }
    return {dwars, langs};
  }

  // From box to box by way of the middle between the generations.
  void TekenDraden() {
    for (std::size_t i = 0; i < dozen_.size(); ++i) {
      if (personen_[i].vorige < 0) continue;
      const auto vorige = static_cast<std::size_t>(personen_[i].vorige);
      const double halverwege = Begin(i) - kGang / 2;
      const double van = Begin(vorige) + Langs(dozen_[vorige]);
      penseel_.Voeg(
          {.wat = Lijnstuk{{OpVel(van, midden_[vorige]), OpVel(halverwege, midden_[vorige]),
                            OpVel(halverwege, midden_[i]), OpVel(Begin(i), midden_[i])}},
           .lijn = kRand,
           .dikte = kDraad});
    }
  }

  [[nodiscard]] Rechthoek VlakVan(std::size_t i) const {
    const Doos& doos = dozen_[i];
    const Punt hoek = OpVel(Begin(i), midden_[i] - Dwars(doos) / 2);
    const double omhoog = keuzen_.groei == Groei::Omhoog ? doos.hoogte : 0;
    return Vak(personen_[i].geslacht, {hoek.x, hoek.y - omhoog, doos.breedte, doos.hoogte});
  }

  void TekenDoos(std::size_t i) {
    const BeeldPersoon& persoon = personen_[i];
    const Rechthoek vlak = VlakVan(i);
    penseel_.Begin(persoon.nr, NaamVan(persoon));
    penseel_.Voeg({.wat = vlak,
                   .vulling = KleurVan(keuzen_.kleuren, persoon.generatie, persoon.geslacht),
                   .lijn = kRand,
                   .dikte = kLijndikte,
                   .gestippeld = persoon.geslacht == Geslacht::Onbekend});
    double op = vlak.y + (vlak.hoogte - HoogteVan(dozen_[i].regels)) / 2;
    for (const Regel& regel : dozen_[i].regels) {
      const double voet = op + regel.schrift.grootte * (kRegelhoogte + kStok) / 2;
      penseel_.Schrijf(regel.tekst, {rechts_ ? vlak.x + kLucht : vlak.x + vlak.breedte / 2, voet},
                       regel.schrift, rechts_ ? Tekstanker::Begin : Tekstanker::Midden);
      op += regel.schrift.grootte * kRegelhoogte;
    }
    penseel_.Niemand();
  }

  [[nodiscard]] Rechthoek Inhoud() const {
    if (dozen_.empty()) return {};
    double dwars = 0;
    for (std::size_t i = 0; i < dozen_.size(); ++i) {
      dwars = std::max(dwars, midden_[i] + Dwars(dozen_[i]) / 2);
    }
    const double langs = begin_.back() - kGang;
    if (rechts_) return {0, 0, langs, dwars};
    return {0, keuzen_.groei == Groei::Omhoog ? -langs : 0, dwars, langs};
  }

  const BeeldPersonen& personen_;
  const BoomKeuzen& keuzen_;
  bool rechts_;
  Tekening tekening_;
  Penseel penseel_;
  std::vector<Doos> dozen_;
  std::vector<double> begin_;   // of each generation, and behind the last
  std::vector<double> midden_;  // of each box, across
};

}  // namespace

Tekening MaakBoom(const BeeldPersonen& personen, const BoomKeuzen& keuzen, const Lettermaat& maat) {
  return Tekenaar(personen, keuzen, maat).Teken();
}

}  // namespace lb77
