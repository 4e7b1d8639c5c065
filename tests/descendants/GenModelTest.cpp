// The table beside a plain one that searches backward for everything, on families of chance: with
// loops, children of several parents, and whatever else records can say.
#include <algorithm>
#include <map>
#include <random>

#include "descendants/GenToets.h"

namespace lb77 {
namespace {

struct Mens {
  char geslacht = 'M';
  std::vector<std::size_t> gezinnen;
};

struct Gezin {
  std::int16_t man = 0;
  std::vector<std::int16_t> kinderen;
};

// Four columns of an entry, in order.
struct Plaats {
  int persoon = 0;
  int ouder = -1;
  int generatie = 1;
  int volgNr = 0;

  friend bool operator==(const Plaats&, const Plaats&) = default;
};

class GenModel : public GenToets, public ::testing::WithParamInterface<int> {
 protected:
  [[nodiscard]] int Kies(int aantal) {
    return static_cast<int>(toeval_() % static_cast<unsigned>(aantal));
  }
  [[nodiscard]] std::int16_t Iemand() {
    return personen_[static_cast<std::size_t>(Kies(kPersonen))];
  }

  void MaakFamilies() {
    for (int i = 0; i < kPersonen; ++i) {
      const char geslacht = "MMMVVV?K"[Kies(8)];
      personen_.push_back(bouw_.Persoon(geslacht, "Iemand", "Kok"));
      mensen_[personen_.back()].geslacht = geslacht;
    }
    for (int i = 0; i < kGezinnen; ++i) MaakGezin();
  }
  void MaakGezin() {
    const std::int16_t een = VrijePartner(0);
    const std::int16_t twee = VrijePartner(een);
    Gezin gezin{een, {}};
    for (int k = Kies(5); k > 0; --k) gezin.kinderen.push_back(Iemand());
    bouw_.Relatie(een, twee, gezin.kinderen);
    for (const std::int16_t partner : {een, twee}) {
      if (partner != 0) mensen_[partner].gezinnen.push_back(gezinnen_.size());
    }
    gezinnen_.push_back(gezin);
  }
  // Somebody who can have one more relation, or nobody.
  [[nodiscard]] std::int16_t VrijePartner(std::int16_t niet) {
    const std::int16_t wie = Iemand();
    return Kies(4) == 0 || wie == niet || mensen_[wie].gezinnen.size() == 5 ? std::int16_t{0} : wie;
  }
  void KiesOpties() {
    do {
      opties_.GenStamouderNr = Iemand();
    } while (!HeeftKind(mensen_[opties_.GenStamouderNr], false));
    opties_.GenVolgZonen =
        static_cast<GenZonen>(std::vector{1, 2, 3, 5}[static_cast<std::size_t>(Kies(4))]);
    opties_.GenVolgDochters =
        static_cast<GenDochters>(std::vector{1, 2, 3, 4, 6}[static_cast<std::size_t>(Kies(5))]);
    opties_.GenVolgHerh = Kies(2) == 0;
    opties_.GenMaxGen = Kies(3) == 0 ? 80 : 1 + Kies(7);
    if (Kies(2) == 0) opties_.GenVolgNiet[static_cast<std::size_t>(Kies(15))] = Iemand();
  }

  [[nodiscard]] bool HeeftKind(const Mens& mens, bool zonderMan) const {
    return std::any_of(mens.gezinnen.begin(), mens.gezinnen.end(), [&](std::size_t i) {
      return !gezinnen_[i].kinderen.empty() && (!zonderMan || gezinnen_[i].man == 0);
    });
  }
  [[nodiscard]] bool Volgt(std::int16_t kind) const {
    const Mens& mens = mensen_.at(kind);
    const bool relatie = !mens.gezinnen.empty();
    const int zonen = static_cast<int>(opties_.GenVolgZonen);
    const int dochters = static_cast<int>(opties_.GenVolgDochters);
    if (mens.geslacht == '?') return zonen == 5 && dochters == 6;
    if (mens.geslacht == 'M') {
      return zonen == 5 || (zonen == 3 && relatie) || (zonen == 2 && HeeftKind(mens, false));
    }
    return mens.geslacht == 'V' &&
           (dochters == 6 || (dochters == 4 && HeeftKind(mens, true)) ||
            (dochters == 3 && relatie) || (dochters == 2 && HeeftKind(mens, false)));
  }
  [[nodiscard]] std::vector<Plaats> Model() const {
    std::vector<Plaats> t{{opties_.GenStamouderNr, -1, 1, 0}};
    for (std::size_t i = 0; i < t.size() && t.size() < 2000 && t[i].generatie < opties_.GenMaxGen;
         ++i) {
      int p = t[i].persoon;
      if (p < 1 && !opties_.GenVolgHerh) continue;
      while (p < 0) p = t[static_cast<std::size_t>(-p)].persoon;
      const auto& niet = opties_.GenVolgNiet;
      if (std::find(niet.begin(), niet.end(), p) != niet.end()) continue;
      for (const std::size_t g : mensen_.at(static_cast<std::int16_t>(p)).gezinnen) {
        for (const std::int16_t kind : gezinnen_[g].kinderen) Neem(t, i, kind);
      }
    }
    return t;
  }
  void Neem(std::vector<Plaats>& t, std::size_t ouder, std::int16_t kind) const {
    if (t.size() >= 2000) return;
    int c = kind;
    for (std::size_t j = t.size() - 1; j >= 1 && c > 0; --j) {
      if (t[j].persoon == c) c = -static_cast<int>(j);
    }
    if (c > 0 && !Volgt(kind)) return;
    const int generatie = t[ouder].generatie + 1;
    const Plaats& vorige = t.back();
    t.push_back({c, static_cast<int>(ouder), generatie,
                 vorige.generatie == generatie ? vorige.volgNr + 1 : 1});
  }
  // The next entry of a branch, by searching.
  static int VolgendeInTak(const std::vector<Plaats>& t, int i) {
    const int aantal = static_cast<int>(t.size());
    const auto ouder = [&t](int j) { return t[static_cast<std::size_t>(j)].ouder; };
    for (int j = i + 1; j < aantal; ++j) {
      if (ouder(j) == i) return j;
    }
    for (; i > 0; i = ouder(i)) {
      if (i + 1 < aantal && ouder(i) == ouder(i + 1)) return i + 1;
    }
    return 0;
  }

  static constexpr int kPersonen = 30;
  static constexpr int kGezinnen = 22;
  std::mt19937 toeval_{static_cast<unsigned>(GetParam())};
  std::vector<std::int16_t> personen_;
  std::map<std::int16_t, Mens> mensen_;
  std::vector<Gezin> gezinnen_;
};

TEST_P(GenModel, IsGelijkAanEenTabelDieAllesZoekt) {
  MaakFamilies();
  for (int keer = 0; keer < 8; ++keer) {
    opties_ = {};
    KiesOpties();
    const std::vector<Plaats> model = Model();
    EXPECT_EQ(Bouw(opties_.GenStamouderNr), model.size() == 2000 ? Einde::Vol : Einde::Klaar);
    std::vector<Plaats> tabel;
    for (int i = 0; i < tabel_.GenAantal(); ++i) {
      tabel.push_back({tabel_.GenPersoon(i), tabel_.GenOuderIndex(i), tabel_.Generatie(i),
                       tabel_.GenVolgNr(i)});
    }
    EXPECT_TRUE(tabel == model) << keer;
    for (int i = 0; i < tabel_.GenAantal(); ++i) {
      ASSERT_EQ(tabel_.VolgendeInTak(i), VolgendeInTak(model, i)) << i;
    }
    for (const std::int16_t nr : personen_) {
      int gevonden = -1;
      for (std::size_t j = 0; j < model.size(); ++j) {
        if (model[j].persoon == nr) gevonden = static_cast<int>(j);
      }
      EXPECT_EQ(tabel_.Vind(nr), gevonden) << nr;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Toeval, GenModel, ::testing::Range(1, 41));

}  // namespace
}  // namespace lb77
