#include "pictures/BeeldToets.h"
#include "pictures/Palet.h"
#include "pictures/SvgSchrijver.h"
#include "pictures/Waaier.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

Tekening Teken(const BeeldPersonen& personen, double spanne = 270,
               Kleurwijze kleuren = Kleurwijze::Generatie) {
  return MaakWaaier(personen, {spanne, kleuren, "Kwartierstaat van Jan"}, Helveticamaat());
}

Ringdeel DeelVan(const Tekening& tekening, std::size_t doel) {
  return std::get<Ringdeel>(tekening.vormen[tekening.doelen[doel].vlak].wat);
}

TEST(Waaier, VadersStaanLinksEnMoedersRechts) {
  const Tekening tekening = Teken(Voorouders(3), 180);
  ASSERT_EQ(tekening.doelen.size(), 7U);
  EXPECT_EQ(DeelVan(tekening, 0).binnen, 0);
  EXPECT_EQ(DeelVan(tekening, 1).van, 180);
  EXPECT_EQ(DeelVan(tekening, 1).tot, 270);
  EXPECT_EQ(DeelVan(tekening, 2).tot, 360);
  for (std::size_t i = 3; i < 7; ++i) {
    const auto ouder = static_cast<double>(i - 3);
    EXPECT_DOUBLE_EQ(DeelVan(tekening, i).van, 180 + 45 * ouder);
    EXPECT_DOUBLE_EQ(DeelVan(tekening, i).binnen, DeelVan(tekening, 1).buiten);
  }
}

TEST(Waaier, AlleTekstStaatBinnenZijnVakEnOpHetVel) {
  for (const double spanne : {180.0, 270.0, 360.0}) {
    for (const int generaties : {1, 2, 4, 7, 9}) {
      const Tekening tekening = Teken(Voorouders(generaties), spanne);
      VerwachtTekstInVlak(tekening);
      VerwachtOpVel(tekening);
    }
  }
}

TEST(Waaier, InTwaalfGeneratiesHeeftIedereenTekst) {
  const BeeldPersonen personen = Voorouders(12);
  ASSERT_EQ(personen.size(), 4095U);
  const Tekening tekening = Teken(personen);
  ASSERT_EQ(tekening.doelen.size(), 4095U);
  std::set<int> metTekst;
  for (const Vorm& vorm : tekening.vormen) {
    if (std::holds_alternative<Opschrift>(vorm.wat)) metTekst.insert(vorm.doel);
  }
  EXPECT_EQ(metTekst.size(), 4096U);  // and the title
  VerwachtTekstInVlak(tekening);
}

TEST(Waaier, WatVerderLigtDanTwaalfGeneratiesBlijftWeg) {
  BeeldPersonen lijn{MaakPersoon(2, -1, 0, Geslacht::Man, "Jan", "Kok")};
  for (int g = 1; g < 80; ++g)
    lijn.push_back(MaakPersoon(g + 2, g - 1, g, Geslacht::Man, "", "Kok"));
  EXPECT_EQ(Teken(lijn).doelen.size(), 12U);
}

TEST(Waaier, WieNietBekendIsLaatEenLegePlek) {
  BeeldPersonen personen = Voorouders(3);
  personen.erase(personen.begin() + 6);  // mother's mother
  personen.erase(personen.begin() + 3);  // father's father
  const Tekening tekening = Teken(personen);
  EXPECT_EQ(tekening.doelen.size(), 5U);
  const auto open = AlleVan<Ringdeel>(tekening, false);
  ASSERT_EQ(open.size(), 2U);
  EXPECT_DOUBLE_EQ(open[0]->van, 135);
  EXPECT_DOUBLE_EQ(open[1]->tot, 405);
  EXPECT_EQ(DoelOp(tekening, MiddenVan({.wat = *open[0]})), -1);
}

TEST(Waaier, EenEnGeenPersoon) {
  const Tekening een = Teken(Voorouders(1));
  ASSERT_EQ(een.doelen.size(), 1U);
  EXPECT_EQ(TekstVan(een, 0), "Willem F.G.L.|van Oranje-Nassau|1802-1870");
  VerwachtTekstInVlak(een);
  const Tekening geen = Teken({});
  EXPECT_TRUE(geen.doelen.empty());
  EXPECT_GT(geen.breedte, 0);
  VerwachtOpVel(geen);
}

TEST(Waaier, LangeNamenWordenKorterMaarNooitAfgekapt) {
  BeeldPersonen personen = Voorouders(6);
  for (BeeldPersoon& persoon : personen) {
    persoon.voornamen = std::string(200, 'W');
    persoon.achternaam = std::string(200, 'M');
  }
  const Tekening tekening = Teken(personen);
  VerwachtTekstInVlak(tekening);
  EXPECT_EQ(TekstVan(tekening, 0).find("MMM…|1802-1870"_w) == std::string::npos, false);
}

TEST(Waaier, JarenDieNietPassenBlijvenWeg) {
  BeeldPersonen personen = Voorouders(1);
  personen[0].datums = {std::string(60, '1')};
  EXPECT_EQ(TekstVan(Teken(personen), 0), "Willem F.G.L.|van Oranje-Nassau");
}

TEST(Waaier, EenHerhalingZegtWaarHijAlStaat) {
  BeeldPersonen personen = Voorouders(2);
  personen[2].elders = "= 2";
  const Tekening tekening = Teken(personen);
  EXPECT_NE(tekening.doelen[2].naam.find("= 2"), std::string::npos);
}

TEST(Waaier, DeKleurenVolgenDeKeuze) {
  const BeeldPersonen personen = Voorouders(2);
  const auto kleur = [&](Kleurwijze wijze, std::size_t doel) {
    const Tekening tekening = Teken(personen, 270, wijze);
    return *tekening.vormen[tekening.doelen[doel].vlak].vulling;
  };
  EXPECT_EQ(kleur(Kleurwijze::Generatie, 0), kGeneratiekleuren[0]);
  EXPECT_EQ(kleur(Kleurwijze::Generatie, 2), kGeneratiekleuren[1]);
  EXPECT_EQ(kleur(Kleurwijze::Geslacht, 1), kMankleur);
  EXPECT_EQ(kleur(Kleurwijze::Geslacht, 2), kVrouwkleur);
  EXPECT_EQ(kleur(Kleurwijze::Geen, 2), kPapier);
}

TEST(Waaier, DezelfdeFamilieGeeftHetzelfdeBeeld) {
  EXPECT_EQ(SvgVan(Teken(Voorouders(6, 5))), SvgVan(Teken(Voorouders(6, 5))));
}

// A slip of three text lines at the smallest ring would hide below the letters of a neighbour.
TEST(Waaier, GeenVakLigtOverEenAnder) {
  const Tekening tekening = Teken(Voorouders(8, 7));
  for (std::size_t i = 0; i < tekening.doelen.size(); ++i) {
    const Vorm& vorm = tekening.vormen[tekening.doelen[i].vlak];
    EXPECT_EQ(DoelOp(tekening, MiddenVan(vorm)), static_cast<int>(i));
  }
}

}  // namespace
}  // namespace lb77
