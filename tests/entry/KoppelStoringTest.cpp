// Each operation of each action on links made to fail: nobody else loses a link.
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "entry/HuwActies.h"
#include "entry/KindActies.h"
#include "entry/Koppeltabel.h"
#include "steun/FaalBestand.h"
#include "steun/FamilieToets.h"
#include "store/PersoonVelden.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

using Lijst = std::vector<std::int16_t>;

// What is done, and how the lists stand when nothing fails.
struct Actie {
  std::string_view naam;
  std::string_view draaiboek;
  void (*doe)(Hoofdmodule&);
  std::int16_t kind = 0;  // the one that may leave a list or enter one
  Lijst kinderen = {};    // of relation 2
  Lijst relaties = {};    // of person 2
};

void PrintTo(const Actie& actie, std::ostream* uit) {
  *uit << actie.naam;
}

const Lijst kDrie = {2, 4, 5};
constexpr std::int16_t kEersteKind = 10;
constexpr std::int16_t kLaatsteKind = 25;

// The children of relation 2 without a continuation yet, and with one.
Lijst Kinderen(std::int16_t van, std::int16_t tot) {
  Lijst uit;
  for (std::int16_t nr = van; nr <= tot; ++nr) uit.push_back(nr);
  return uit;
}
Lijst Omgekeerd(Lijst lijst) {
  std::reverse(lijst.begin(), lijst.end());
  return lijst;
}

// Relation 2 of Jan (2) and Anna (3) has children 10 to 24, the youngest first; 25 is the child of
// relation 3 of Piet (4) and Mien (5). Jan has relations 2, 4 and 5, of which the last is the oldest.
class KoppelStoring : public FamilieToets, public ::testing::WithParamInterface<Actie> {
 protected:
  void SetUp() override {
    for (int nr = 2; nr < kEersteKind; ++nr)
      Bouw().Persoon(nr % 2 == 0 ? 'M' : 'V', "Ouder", "Dam");
    for (int nr = kEersteKind; nr <= kLaatsteKind; ++nr) {
      Bouw().Man("Kind", "Dam", {{"GebDatum", "01-01-19" + std::to_string(60 - nr)}});
    }
    Bouw().Relatie(2, 3, Kinderen(kEersteKind, 24), {{"WHuwDatum", "01-01-1900"}});
    Bouw().Relatie(4, 5, {kLaatsteKind});
    Bouw().Relatie(2, 7, {}, {{"WHuwDatum", "01-01-1899"}});
    Bouw().Relatie(2, 9, {}, {{"WHuwDatum", "01-01-1898"}});
    voor_ = Bytes();
  }
  [[nodiscard]] SetPaden Paden() const { return SetPaden::Van(Map(), "PROEF"); }
  [[nodiscard]] std::vector<std::string> Bytes() const {
    return {LeesBytes(Paden().prs), LeesBytes(Paden().rlt)};
  }
  // One try, in which operation `bij` fails. False when it had fewer.
  bool Probeer(int bij) {
    SchrijfBytes(Paden().prs, voor_[0]);
    SchrijfBytes(Paden().rlt, voor_[1]);
    Storing storing;
    storing.bij = bij;
    static_cast<void>(Speel(GetParam().draaiboek, Sessie([&](Hoofdmodule& hoofd) {
                              hoofd.bestanden = Bestandenset(FalendeOpener(storing));
                              if (!hoofd.bestanden.OpenSet(Paden())) GetParam().doe(hoofd);
                            })));
    return storing.Geweest();
  }
  template <class Tab, class Vul>
  Lijst Lees(const Vul& vul) {
    Lijst uit;
    Stil([&](Hoofdmodule& hoofd) {
      Tab tab{};
      EXPECT_TRUE(vul(hoofd, tab));
      for (const std::int16_t nr : PlaatsenVan(tab)) {
        if (nr != 0) uit.push_back(nr);
      }
    });
    return uit;
  }
  Lijst KinderenVan(std::int16_t relatie) {
    return Lees<Kindtab>([=](Hoofdmodule& hoofd, Kindtab& tab) {
      return hoofd.Relatie.VulKindtab(relatie, tab).heel;
    });
  }
  Lijst RelatiesVan(std::int16_t persoon) {
    return Lees<Huwtab>([=](Hoofdmodule& hoofd, Huwtab& tab) {
      return hoofd.Persoon.VulHuwtab(persoon, tab).heel;
    });
  }
  // Everybody but the one who is moved stands where he stood, once.
  void NiemandVerloren() {
    Lijst allen = KinderenVan(2);
    const Lijst ander = KinderenVan(3);
    allen.insert(allen.end(), ander.begin(), ander.end());
    std::erase(allen, GetParam().kind);
    const std::set<std::int16_t> eenmaal(allen.begin(), allen.end());
    EXPECT_EQ(eenmaal.size(), allen.size());
    for (const std::int16_t nr : Kinderen(kEersteKind, kLaatsteKind)) {
      EXPECT_TRUE(nr == GetParam().kind || eenmaal.count(nr) == 1) << nr;
    }
    const Lijst relaties = RelatiesVan(2);
    for (const std::int16_t nr : kDrie) {
      EXPECT_EQ(std::count(relaties.begin(), relaties.end(), nr), 1) << nr;
    }
  }
  // The names and dates of all persons.
  void LaatPersonenStaan() {
    const std::string na = LeesBytes(Paden().prs);
    for (std::size_t nr = 2; nr <= kLaatsteKind; ++nr) {
      const std::size_t begin = (nr - 1) * persoonveld::kLengte;
      EXPECT_EQ(na.substr(begin, persoonveld::relatie1.plaats),
                voor_[0].substr(begin, persoonveld::relatie1.plaats))
          << nr;
    }
  }

 private:
  std::vector<std::string> voor_;
};

TEST_P(KoppelStoring, KostNiemandZijnKoppeling) {
  for (int k = 1;; ++k) {
    ASSERT_LT(k, 1000);
    const bool gestoord = Probeer(k);
    const std::string verteld = verslag_;
    SCOPED_TRACE("operatie " + std::to_string(k) + "\n" + verteld);
    NiemandVerloren();
    LaatPersonenStaan();
    if (!gestoord) break;
    // A read that fails may be one that nothing hangs on: then it is all done.
    if (KinderenVan(2) != GetParam().kinderen || RelatiesVan(2) != GetParam().relaties) {
      EXPECT_NE(verteld.find("! "), std::string::npos);
    }
    if (HasFailure()) return;
  }
  EXPECT_EQ(KinderenVan(2), GetParam().kinderen);
  EXPECT_EQ(RelatiesVan(2), GetParam().relaties);
}

INSTANTIATE_TEST_SUITE_P(
    Acties, KoppelStoring,
    ::testing::Values(
        Actie{"erbij", "antwoord Ja\nvul RecordNr 25\ndruk OKButton",
              [](Hoofdmodule& hoofd) { VoegKindToe(hoofd, 2); }, 25,
              Kinderen(kEersteKind, kLaatsteKind), kDrie},
        Actie{"eraf", "vul RecordNr 10\ndruk OKButton",
              [](Hoofdmodule& hoofd) { HaalKindWeg(hoofd, 2, false); }, 10, Kinderen(11, 24),
              kDrie},
        Actie{"kinderen op datum", "antwoord Ja",
              [](Hoofdmodule& hoofd) { OrdenKinderen(hoofd, 2); }, 0,
              Omgekeerd(Kinderen(kEersteKind, 24)), kDrie},
        Actie{"nieuwe relatie",
              "antwoord Ja\nvul RecordNr 5\ndruk OKButton",
              [](Hoofdmodule& hoofd) { NieuweRelatieVan(hoofd, 2); },
              0,
              Kinderen(kEersteKind, 24),
              {2, 4, 5, 6}},
        Actie{"relaties op datum",
              "antwoord Ja",
              [](Hoofdmodule& hoofd) { OrdenRelaties(hoofd, 2); },
              0,
              Kinderen(kEersteKind, 24),
              {5, 4, 2}},
        Actie{"relatie met de hand",
              "antwoord Nee\nvul RecordNr 5\ndruk OKButton\nvul VolgNum 1\ndruk OKButton",
              [](Hoofdmodule& hoofd) { OrdenRelaties(hoofd, 2); },
              0,
              Kinderen(kEersteKind, 24),
              {5, 2, 4}}),
    [](const auto& info) {
      std::string naam(info.param.naam);
      std::erase(naam, ' ');
      return naam;
    });

}  // namespace
}  // namespace lb77
