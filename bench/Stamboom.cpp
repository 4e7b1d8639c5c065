#include "Stamboom.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace lb77::bench {
namespace {

constexpr int kEersteJaar = 1500;
constexpr int kJaren = 450;
constexpr int kNu = 2000;
constexpr int kFamilies = 400;
constexpr std::size_t kMeesteHuwelijken = 4;
constexpr std::size_t kMeesteKinderen = 22;

std::size_t Plaats(int nr) {
  return static_cast<std::size_t>(nr);
}

class Bevolking {
 public:
  Bevolking(int personen, Toeval& toeval) : personen_(personen), toeval_(toeval) {
    boom_.mensen.resize(Plaats(personen));
    perJaar_.resize(kJaren + 200);
    for (int i = 0; i < personen; ++i) {
      Mens& mens = boom_.mensen[Plaats(i)];
      mens.man = toeval.Kans(51);
      mens.jaar = kEersteJaar + static_cast<int>(std::int64_t{i} * kJaren / personen);
      mens.familie = toeval.Onder(kFamilies);
    }
  }

  void Trouw(int gezinnen) {
    boom_.gezinnen.reserve(Plaats(gezinnen));
    for (int k = 0; k < gezinnen; ++k) {
      // The last tenth is too young.
      const int vanaf = static_cast<int>(std::int64_t{k} * personen_ * 9 / 10 / gezinnen);
      const int man = ZoekPartner(vanaf, true);
      Verbind(man, ZoekPartner(vanaf, false));
    }
  }

  void Geboorten() {
    for (int i = 0; i < personen_; ++i) {
      if (toeval_.Kans(85)) GeefOuders(i);
    }
  }

  void Sterf() {
    for (Mens& mens : boom_.mensen) {
      int jaar = mens.jaar + toeval_.Onder(mens.gezinnen.empty() ? 90 : 40);
      for (const int gezin : mens.gezinnen) {
        jaar = std::max(jaar, boom_.gezinnen[Plaats(gezin)].jaar + 20 + toeval_.Onder(25));
      }
      if (jaar < kNu && toeval_.Kans(80)) mens.sterfjaar = jaar;
    }
  }

  Stamboom Klaar() { return std::move(boom_); }

 private:
  // The first person of that sex in the few years behind `vanaf` who may still marry.
  int ZoekPartner(int vanaf, bool man) {
    int nr = vanaf + toeval_.Onder(personen_ / kJaren * 5 + 2);
    for (int stappen = 0; stappen < personen_; ++stappen, ++nr) {
      const Mens& mens = boom_.mensen[Plaats(nr % personen_)];
      const std::size_t ruimte = toeval_.Kans(10) ? kMeesteHuwelijken : 1;
      if (mens.man == man && mens.gezinnen.size() < ruimte) break;
    }
    return nr % personen_;
  }

  void Verbind(int man, int vrouw) {
    const auto nr = static_cast<int>(boom_.gezinnen.size());
    Mens& hij = boom_.mensen[Plaats(man)];
    Mens& zij = boom_.mensen[Plaats(vrouw)];
    const int jaar = std::max(hij.jaar, zij.jaar) + toeval_.Tussen(20, 28);
    hij.gezinnen.push_back(nr);
    zij.gezinnen.push_back(nr);
    boom_.gezinnen.push_back({man, vrouw, jaar, {}});
    perJaar_[Plaats(jaar - kEersteJaar)].push_back(nr);
  }

  void GeefOuders(int kind) {
    Mens& mens = boom_.mensen[Plaats(kind)];
    const int jaar = mens.jaar - toeval_.Tussen(1, 17) - kEersteJaar;
    if (jaar < 0 || perJaar_[Plaats(jaar)].empty()) return;
    const std::vector<int>& keuze = perJaar_[Plaats(jaar)];
    const int nr = keuze[Plaats(toeval_.Onder(static_cast<int>(keuze.size())))];
    Gezin& gezin = boom_.gezinnen[Plaats(nr)];
    if (gezin.kinderen.size() >= kMeesteKinderen || TrouwtBinnen(mens, nr)) return;
    gezin.kinderen.push_back(kind);
    mens.ouders = nr;
    mens.familie = boom_.mensen[Plaats(gezin.man)].familie;
  }

  // True when a partner of the person is a child of that family.
  bool TrouwtBinnen(const Mens& mens, int gezin) const {
    return std::any_of(mens.gezinnen.begin(), mens.gezinnen.end(), [&](int nr) {
      const Gezin& eigen = boom_.gezinnen[Plaats(nr)];
      return boom_.mensen[Plaats(eigen.man)].ouders == gezin ||
             boom_.mensen[Plaats(eigen.vrouw)].ouders == gezin;
    });
  }

  int personen_;
  Toeval& toeval_;
  Stamboom boom_;
  std::vector<std::vector<int>> perJaar_;  // the families by year of marriage
};

}  // namespace

Stamboom MaakBevolking(int personen, int gezinnen, Toeval& toeval) {
  Bevolking bevolking(personen, toeval);
  bevolking.Trouw(gezinnen);
  bevolking.Geboorten();
  bevolking.Sterf();
  return bevolking.Klaar();
}

Stamboom MaakVoorouders(int generaties, Toeval& toeval) {
  Stamboom boom;
  const int aantal = (1 << generaties) - 1;
  boom.mensen.resize(Plaats(aantal));
  boom.mensen[0] = {true, 1990, 0, 0, kGeen, {}};
  for (int kind = 0; 2 * kind + 2 < aantal; ++kind) {
    Mens& mens = boom.mensen[Plaats(kind)];
    const auto gezin = static_cast<int>(boom.gezinnen.size());
    const int vader = 2 * kind + 1;
    mens.ouders = gezin;
    const int jaar = mens.jaar;
    const int familie = mens.familie;
    boom.gezinnen.push_back({vader, vader + 1, jaar - 1, {kind}});
    boom.mensen[Plaats(vader)] = {true,   jaar - toeval.Tussen(25, 32), jaar + 30, familie, kGeen,
                                  {gezin}};
    boom.mensen[Plaats(vader + 1)] = {
        false, jaar - toeval.Tussen(22, 30), jaar + 35, toeval.Onder(kFamilies), kGeen, {gezin}};
  }
  return boom;
}

Stamboom MaakNakomelingen(int aantal, Toeval& toeval) {
  Stamboom boom;
  boom.mensen.push_back({true, 1600, 1670, 0, kGeen, {}});
  std::vector<int> rij{0};  // the descendants, in the order of their birth
  for (std::size_t ouder = 0; static_cast<int>(rij.size()) < aantal; ++ouder) {
    const auto gezin = static_cast<int>(boom.gezinnen.size());
    const auto partner = static_cast<int>(boom.mensen.size());
    Mens& mens = boom.mensen[Plaats(rij[ouder])];
    const bool man = mens.man;
    const int jaar = mens.jaar;
    mens.gezinnen.push_back(gezin);
    boom.mensen.push_back({!man, jaar, jaar + 60, toeval.Onder(kFamilies), kGeen, {gezin}});
    Gezin nieuw{man ? rij[ouder] : partner, man ? partner : rij[ouder], jaar + 25, {}};
    const int familie = boom.mensen[Plaats(nieuw.man)].familie;
    for (int n = toeval.Tussen(1, 5); n > 0 && static_cast<int>(rij.size()) < aantal; --n) {
      rij.push_back(static_cast<int>(boom.mensen.size()));
      nieuw.kinderen.push_back(rij.back());
      boom.mensen.push_back({toeval.Kans(51), jaar + toeval.Tussen(26, 40), 0, familie, gezin, {}});
    }
    boom.gezinnen.push_back(std::move(nieuw));
  }
  return boom;
}

}  // namespace lb77::bench
