// The walk over descendants: whom it counts how often, also in a family that closes on itself.
#include <limits>
#include <map>

#include "reports/LijstToets.h"
#include "reports/Nazaten.h"

namespace lb77 {
namespace {

class NazatenToets : public LijstToets {
 protected:
  std::int16_t Mens(std::string_view naam) { return bouw_.Man(naam, "Smit"); }
  // By number: how often the walk comes to him.
  std::map<std::int16_t, std::int64_t> Tel(std::int16_t wie, std::int16_t boven = 0) {
    Nazaten nazaten(set_.Persoon, set_.Relatie);
    const auto ouder = nazaten.Vind(boven);
    const auto begin = nazaten.Vind(wie);
    std::vector<Telling> tellingen;
    EXPECT_TRUE(begin && nazaten.Loop(*begin, ouder, verloop_, tellingen));
    std::map<std::int16_t, std::int64_t> uit;
    for (const Telling& telling : tellingen) {
      EXPECT_TRUE(uit.emplace(nazaten[telling.wie].nr, telling.keer).second);
    }
    gelezen_ = nazaten.Aantal();
    return uit;
  }

  using Keren = std::map<std::int16_t, std::int64_t>;
  std::size_t gelezen_ = 0;
};

TEST_F(NazatenToets, EenPersoonZonderRelatiesIsAlleenZelf) {
  EXPECT_EQ(Tel(Mens("A")), (Keren{{2, 1}}));
}

TEST_F(NazatenToets, KinderenUitAlleRelatiesEnHunKinderen) {
  const auto a = Mens("A");
  const auto b = Mens("B");
  const auto c = Mens("C");
  const auto d = Mens("D");
  bouw_.Relatie(a, 0, {b});
  bouw_.Relatie(a, 0, {c});
  bouw_.Relatie(c, 0, {d});
  EXPECT_EQ(Tel(a), (Keren{{a, 1}, {b, 1}, {c, 1}, {d, 1}}));
  EXPECT_EQ(Tel(c), (Keren{{c, 1}, {d, 1}}));
}

// Cousins who marry: their children are descendants by two ways, and so is who comes after them.
TEST_F(NazatenToets, WieLangsTweeWegenKomtTeltTweeKeer) {
  const auto a = Mens("A");
  const auto b = Mens("B");
  const auto c = bouw_.Vrouw("C", "Smit");
  const auto d = Mens("D");
  const auto e = Mens("E");
  bouw_.Relatie(a, 0, {b, c});
  bouw_.Relatie(b, c, {d});
  bouw_.Relatie(d, 0, {e});
  EXPECT_EQ(Tel(a), (Keren{{a, 1}, {b, 1}, {c, 1}, {d, 2}, {e, 2}}));
  EXPECT_EQ(gelezen_, 5U);
}

TEST_F(NazatenToets, EenKindDatTweeKeerInDeLijstStaatTeltTweeKeer) {
  const auto a = Mens("A");
  const auto b = Mens("B");
  const auto gezin = bouw_.Relatie(a, 0, {b});
  bouw_.WijzigRelatie(gezin, {{"Kind2", "3"}});
  EXPECT_EQ(Tel(a), (Keren{{a, 1}, {b, 2}}));
}

TEST_F(NazatenToets, EenVoorouderOpHetPadWordtNietGevolgd) {
  const auto a = Mens("A");
  const auto b = Mens("B");
  const auto c = Mens("C");
  bouw_.Relatie(a, 0, {b});
  bouw_.Relatie(b, 0, {c});
  bouw_.Relatie(c, 0, {a, b, c});
  const Keren drie{{a, 1}, {b, 1}, {c, 1}};
  EXPECT_EQ(Tel(a), drie);
  EXPECT_EQ(Tel(b), drie);
  EXPECT_EQ(Tel(c), (Keren{{a, 1}, {b, 2}, {c, 1}}));
}

// The order of the links does not tell whom a loop leaves out.
TEST_F(NazatenToets, EenKringTeltLangsElkPad) {
  const auto a = Mens("A");
  const auto b = Mens("B");
  const auto c = Mens("C");
  const auto d = Mens("D");
  bouw_.Relatie(a, 0, {b, c});
  bouw_.Relatie(b, 0, {c});
  bouw_.Relatie(c, 0, {b, d});
  EXPECT_EQ(Tel(a), (Keren{{a, 1}, {b, 2}, {c, 2}, {d, 2}}));
  EXPECT_EQ(Tel(b, a), (Keren{{b, 1}, {c, 1}, {d, 1}}));
}

TEST_F(NazatenToets, WieBovenDeWandelingStaatIsEenVoorouder) {
  const auto a = Mens("A");
  const auto b = Mens("B");
  bouw_.Relatie(a, 0, {b});
  bouw_.Relatie(b, 0, {a});
  EXPECT_EQ(Tel(b, a), (Keren{{b, 1}}));
  EXPECT_EQ(Tel(a, a), Keren{});
}

TEST_F(NazatenToets, WatGeenPersoonIsWordtOvergeslagen) {
  const auto a = Mens("A");
  const auto vervolg = bouw_.Man("V", "Smit", {{"GebCorr", "Z"}});
  const auto gezin = bouw_.Relatie(a, 0, {vervolg});
  bouw_.WijzigRelatie(gezin, {{"Kind2", "1"}, {"Kind3", "999"}, {"Kind4", "-7"}});
  EXPECT_EQ(Tel(a), (Keren{{a, 1}}));
  Nazaten nazaten(set_.Persoon, set_.Relatie);
  for (const std::int16_t nr : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{1}, vervolg,
                                std::int16_t{999}, std::int16_t{32767}}) {
    EXPECT_FALSE(nazaten.Vind(nr)) << nr;
  }
}

TEST_F(NazatenToets, EenRelatieDieErNietIsOfEenVervolgIsWordtOvergeslagen) {
  const auto a = Mens("A");
  const auto b = Mens("B");
  const auto c = Mens("C");
  const auto gezin = bouw_.Relatie(a, 0, {b}, {{"WHuwDatum", "00-00-1830"}});
  bouw_.WijzigPersoon(a, {{"Relatie2", "99"}});
  EXPECT_EQ(Tel(a), (Keren{{a, 1}, {b, 1}}));
  bouw_.WijzigRelatie(gezin, {{"HuwCorr", "Z"}});
  bouw_.Relatie(c, 0);
  EXPECT_EQ(Tel(a), (Keren{{a, 1}}));
}

TEST_F(NazatenToets, OudersStaanVoorHunKinderen) {
  const auto a = Mens("A");
  const auto b = Mens("B");
  const auto c = Mens("C");
  bouw_.Relatie(a, 0, {c, b});
  bouw_.Relatie(b, 0, {c});
  Nazaten nazaten(set_.Persoon, set_.Relatie);
  std::vector<Telling> tellingen;
  ASSERT_TRUE(nazaten.Loop(*nazaten.Vind(a), std::nullopt, verloop_, tellingen));
  ASSERT_EQ(tellingen.size(), 3U);
  EXPECT_EQ(nazaten[tellingen[1].wie].nr, b);
  EXPECT_EQ(nazaten[tellingen[2].wie].nr, c);
  EXPECT_EQ(tellingen[2].keer, 2);
}

// Two brothers and sisters a generation, who marry: the ways double with each.
TEST_F(NazatenToets, EenAantalDatNietMeerInHetGetalPastWordtHetGrootste) {
  auto man = Mens("A");
  auto vrouw = bouw_.Vrouw("B", "Smit");
  const auto begin = man;
  for (int generatie = 0; generatie < 70; ++generatie) {
    const auto zoon = Mens("Z");
    const auto dochter = bouw_.Vrouw("D", "Smit");
    bouw_.Relatie(man, vrouw, {zoon, dochter});
    man = zoon;
    vrouw = dochter;
  }
  const Keren keren = Tel(begin);
  EXPECT_EQ(keren.size(), 141U);
  EXPECT_EQ(keren.at(static_cast<std::int16_t>(begin + 2)), 1);
  EXPECT_EQ(keren.at(static_cast<std::int16_t>(begin + 62)), std::int64_t{1} << 30);
  EXPECT_EQ(keren.at(man), std::numeric_limits<std::int64_t>::max());
}

TEST_F(NazatenToets, DriehonderdGeneratiesPassen) {
  auto ouder = Mens("A");
  for (int i = 0; i < 300; ++i) {
    const auto kind = Mens("K");
    bouw_.Relatie(ouder, 0, {kind});
    ouder = kind;
  }
  EXPECT_EQ(Tel(2).size(), 301U);
}

TEST_F(NazatenToets, EenVerzoekOmTeStoppenEindigtDeWandeling) {
  const auto a = Mens("A");
  bouw_.Relatie(a, 0, {Mens("B"), Mens("C")});
  Nazaten nazaten(set_.Persoon, set_.Relatie);
  std::vector<Telling> tellingen;
  stopBij_ = 2;
  EXPECT_FALSE(nazaten.Loop(*nazaten.Vind(a), std::nullopt, verloop_, tellingen));
  EXPECT_TRUE(tellingen.empty());
}

TEST_F(NazatenToets, DeJarenVanEenPersoon) {
  const auto a = bouw_.Man("A", "Smit",
                           {{"GebDatum", "00-00-1800"},
                            {"DoopDatum", "00-00-1801"},
                            {"OvlDatum", "00-00-1870"},
                            {"BegrDatum", "00-00-1871"}});
  const auto b = bouw_.Man("B", "Smit", {{"DoopDatum", "00-00-1801"}, {"BegrDatum", "00-00-1871"}});
  bouw_.Relatie(
      a, 0, {},
      {{"OtrDatum", "00-00-1824"}, {"KHuwDatum", "00-00-1826"}, {"WHuwDatum", "00-00-1825"}});
  bouw_.Relatie(a, 0, {}, {{"OtrDatum", "00-00-1834"}, {"KHuwDatum", "00-00-1836"}});
  bouw_.Relatie(b, 0, {}, {{"OtrDatum", "00-00-1844"}});
  Nazaten nazaten(set_.Persoon, set_.Relatie);
  const Nazaat& eerste = nazaten[*nazaten.Vind(a)];
  EXPECT_EQ(eerste.geboorte, 1800);
  EXPECT_EQ(eerste.begin, 1800);
  EXPECT_EQ(eerste.einde, 1870);
  EXPECT_EQ(eerste.huwelijken.laagste, 1825);
  EXPECT_EQ(eerste.huwelijken.hoogste, 1836);
  const Nazaat& tweede = nazaten[*nazaten.Vind(b)];
  EXPECT_EQ(tweede.geboorte, 0);
  EXPECT_EQ(tweede.begin, 1801);
  EXPECT_EQ(tweede.einde, 1871);
  EXPECT_EQ(tweede.huwelijken.laagste, 1844);
}

}  // namespace
}  // namespace lb77
