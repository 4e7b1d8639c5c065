#include <algorithm>

#include "pictures/BeeldToets.h"
#include "pictures/Boombeeld.h"
#include "pictures/SvgSchrijver.h"

namespace lb77 {
namespace {

constexpr Groei kAlle[] = {Groei::Rechts, Groei::Omhoog, Groei::Omlaag};

Tekening Teken(const BeeldPersonen& personen, Groei groei = Groei::Rechts) {
  return MaakBoom(personen, {groei, Kleurwijze::Generatie, "Stamboom"}, Helveticamaat());
}

Rechthoek VakVan(const Tekening& tekening, std::size_t doel) {
  return std::get<Rechthoek>(tekening.vormen[tekening.doelen[doel].vlak].wat);
}

bool Raken(const Rechthoek& een, const Rechthoek& ander) {
  return een.x < ander.Rechts() && ander.x < een.Rechts() && een.y < ander.Onder() &&
         ander.y < een.Onder();
}

struct Streep {
  Punt van;
  Punt tot;
  Punt begin;  // of the whole line: those of one family share their first half
};

std::vector<Streep> StrepenVan(const Tekening& tekening) {
  std::vector<Streep> uit;
  for (const Lijnstuk* lijn : AlleVan<Lijnstuk>(tekening, false)) {
    for (std::size_t i = 1; i < lijn->punten.size(); ++i) {
      uit.push_back({lijn->punten[i - 1], lijn->punten[i], lijn->punten[0]});
    }
  }
  return uit;
}

// Two strokes along the axes that meet in more than a common line of one family.
bool Kruisen(const Streep& een, const Streep& ander) {
  if (een.begin.x == ander.begin.x && een.begin.y == ander.begin.y) return false;
  const auto bereik = [](double a, double b) { return std::minmax({a, b}); };
  const auto [x1, x2] = bereik(een.van.x, een.tot.x);
  const auto [x3, x4] = bereik(ander.van.x, ander.tot.x);
  const auto [y1, y2] = bereik(een.van.y, een.tot.y);
  const auto [y3, y4] = bereik(ander.van.y, ander.tot.y);
  return x1 <= x4 && x3 <= x2 && y1 <= y4 && y3 <= y2;
}

TEST(Boombeeld, VakkenRakenElkaarNiet) {
  for (const Groei groei : kAlle) {
    const Tekening tekening = Teken(Nakomelingen(400), groei);
    ASSERT_EQ(tekening.doelen.size(), 400U);
    for (std::size_t i = 0; i < 400; ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        ASSERT_FALSE(Raken(VakVan(tekening, i), VakVan(tekening, j))) << i << " " << j;
      }
    }
  }
}

TEST(Boombeeld, LijnenKruisenElkaarNiet) {
  for (const Groei groei : kAlle) {
    const std::vector<Streep> strepen = StrepenVan(Teken(Nakomelingen(250), groei));
    ASSERT_EQ(strepen.size(), 249U * 3);
    for (std::size_t i = 0; i < strepen.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        ASSERT_FALSE(Kruisen(strepen[i], strepen[j]))
            << strepen[i].van.x << " " << strepen[i].van.y << " " << strepen[i].tot.x << " "
            << strepen[i].tot.y << ", " << strepen[j].van.x << " " << strepen[j].van.y << " "
            << strepen[j].tot.x << " " << strepen[j].tot.y;
      }
    }
  }
}

TEST(Boombeeld, GeenLijnLooptDoorEenVak) {
  const Tekening tekening = Teken(Nakomelingen(250), Groei::Omlaag);
  for (const Streep& streep : StrepenVan(tekening)) {
    EXPECT_EQ(
        DoelOp(tekening, {(streep.van.x + streep.tot.x) / 2, (streep.van.y + streep.tot.y) / 2}),
        -1);
  }
}

TEST(Boombeeld, AlleTekstStaatInZijnVakEnOpHetVel) {
  for (const Groei groei : kAlle) {
    for (const std::size_t aantal : {1U, 2U, 40U, 2000U}) {
      const Tekening tekening = Teken(Nakomelingen(aantal), groei);
      VerwachtTekstInVlak(tekening);
      VerwachtOpVel(tekening);
    }
  }
}

TEST(Boombeeld, DeRichtingIsTeZien) {
  const BeeldPersonen personen = Voorouders(2);
  const Tekening rechts = Teken(personen, Groei::Rechts);
  EXPECT_GT(VakVan(rechts, 1).x, VakVan(rechts, 0).Rechts());
  EXPECT_LT(VakVan(rechts, 1).y, VakVan(rechts, 2).y);
  const Tekening omhoog = Teken(personen, Groei::Omhoog);
  EXPECT_LT(VakVan(omhoog, 1).Onder(), VakVan(omhoog, 0).y);
  const Tekening omlaag = Teken(personen, Groei::Omlaag);
  EXPECT_GT(VakVan(omlaag, 1).y, VakVan(omlaag, 0).Onder());
  EXPECT_LT(VakVan(omlaag, 1).x, VakVan(omlaag, 2).x);
}

TEST(Boombeeld, EenLijnLooptVanVakTotVak) {
  const Tekening tekening = Teken(Voorouders(2));
  const auto lijnen = AlleVan<Lijnstuk>(tekening, false);
  ASSERT_EQ(lijnen.size(), 2U);
  const Rechthoek ik = VakVan(tekening, 0);
  const Rechthoek vader = VakVan(tekening, 1);
  EXPECT_DOUBLE_EQ(lijnen[0]->punten.front().x, ik.Rechts());
  EXPECT_DOUBLE_EQ(lijnen[0]->punten.front().y, ik.y + ik.hoogte / 2);
  EXPECT_DOUBLE_EQ(lijnen[0]->punten.back().x, vader.x);
  EXPECT_DOUBLE_EQ(lijnen[0]->punten.back().y, vader.y + vader.hoogte / 2);
}

TEST(Boombeeld, HetGeslachtIsOokAanDeHoekenTeZien) {
  BeeldPersonen personen = Voorouders(2);
  personen[0].geslacht = Geslacht::Onbekend;
  const Tekening tekening = Teken(personen);
  EXPECT_TRUE(tekening.vormen[tekening.doelen[0].vlak].gestippeld);
  EXPECT_FALSE(tekening.vormen[tekening.doelen[1].vlak].gestippeld);
  EXPECT_EQ(VakVan(tekening, 1).straal, 0);
  EXPECT_GT(VakVan(tekening, 2).straal, 0);
}

TEST(Boombeeld, VeelPartnersWordenNietAllemaalGenoemd) {
  BeeldPersonen personen = Nakomelingen(1);
  for (int i = 0; i < 9; ++i) personen[0].partners.push_back("x Partner " + std::to_string(i));
  const Tekening tekening = Teken(personen);
  EXPECT_EQ(
      TekstVan(tekening, 0),
      "Jan de Vries|1802-1870|x Partner 0|x Partner 1|x Partner 2|x Partner 3|x Partner 4|...");
  personen[0].partners.resize(6);
  EXPECT_NE(TekstVan(Teken(personen), 0).find("x Partner 5"), std::string::npos);
}

TEST(Boombeeld, NiemandGeeftEenLeegVel) {
  const Tekening tekening = Teken({});
  EXPECT_TRUE(tekening.doelen.empty());
  EXPECT_GT(tekening.hoogte, 0);
}

TEST(Boombeeld, TienduizendPersonenEnTachtigGeneraties) {
  const Tekening groot = Teken(Nakomelingen(10'000));
  EXPECT_EQ(groot.doelen.size(), 10'000U);
  VerwachtOpVel(groot);
  BeeldPersonen lijn{MaakPersoon(2, -1, 0, Geslacht::Man, "Jan", "Kok")};
  for (int g = 1; g < 80; ++g) lijn.push_back(MaakPersoon(g + 2, g - 1, g, Geslacht::Man, "", ""));
  VerwachtTekstInVlak(Teken(lijn));
}

TEST(Boombeeld, DezelfdeFamilieGeeftHetzelfdeBeeld) {
  EXPECT_EQ(SvgVan(Teken(Nakomelingen(100))), SvgVan(Teken(Nakomelingen(100))));
}

}  // namespace
}  // namespace lb77
