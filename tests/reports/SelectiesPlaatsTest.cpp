// Which events a selection of places takes, and which lines one of remarks; and all four as files.
#include <algorithm>
#include <iterator>

#include "reports/LijstFamilie.h"
#include "reports/LijstToets.h"
#include "reports/Selecties.h"
#include "steun/Gouden.h"

namespace lb77 {
namespace {

class SelectiePlaatsen : public LijstToets {
 protected:
  std::string Selecteer(Einde einde = Einde::Klaar) {
    return Lijst(
        [this](TekstSchrijver& uit, const Verloop& verloop) {
          return SelecteerPlaatsen(keus_, bron_, uit, verloop);
        },
        einde);
  }
  void MaakAlleGebeurtenissen() {
    bouw_.Man("Jan", "Smit",
              {{"GebPlaats", "7"},
               {"GebDatum", "01-02-1800"},
               {"DoopPlaats", "7"},
               {"DoopDatum", "02-02-1800"},
               {"OvlPlaats", "7"},
               {"OvlDatum", "03-02-1870"},
               {"BegrPlaats", "7"}});
    bouw_.Relatie(2, 0, {},
                  {{"OtrPlaats", "7"},
                   {"OtrDatum", "04-02-1830"},
                   {"WHuwPlaats", "7"},
                   {"WHuwDatum", "00-00-1830"},
                   {"KHuwPlaats", "7"}});
  }

  PlaatsKeus keus_{.plaats = 7};
};

constexpr std::string_view kZeven[] = {"P:    2 Geb:  01-02-1800\n", "P:    2 Doop: 02-02-1800\n",
                                       "P:    2 Ov:   03-02-1870\n", "P:    2 Begr:   -  -    \n",
                                       "R:    2 Otr:  04-02-1830\n", "R:    2 WHuw: 00-00-1830\n",
                                       "R:    2 KHuw:   -  -    \n"};

TEST_F(SelectiePlaatsen, ElkeGebeurtenisHeeftZijnRegel) {
  MaakAlleGebeurtenissen();
  std::string alles;
  for (const std::string_view regel : kZeven) alles += regel;
  EXPECT_EQ(Selecteer(), alles);
}

TEST_F(SelectiePlaatsen, AlleenWatAangevinktIsWordtGezocht) {
  MaakAlleGebeurtenissen();
  bool PlaatsKeus::*const vakken[] = {&PlaatsKeus::geb,    &PlaatsKeus::doop, &PlaatsKeus::ov,
                                      &PlaatsKeus::begr,   &PlaatsKeus::otr,  &PlaatsKeus::wetHuw,
                                      &PlaatsKeus::kerkHuw};
  for (std::size_t i = 0; i < std::size(vakken); ++i) {
    for (bool PlaatsKeus::*vak : vakken) keus_.*vak = vak == vakken[i];
    EXPECT_EQ(Selecteer(), kZeven[i]) << i;
  }
  for (bool PlaatsKeus::*vak : vakken) keus_.*vak = false;
  EXPECT_EQ(Selecteer(), "");
}

TEST_F(SelectiePlaatsen, EenAnderePlaatsOfEenMetTwijfelTeltNiet) {
  bouw_.Man("Jan", "Smit", {{"GebPlaats", "8"}, {"DoopPlaats", "10007"}, {"OvlPlaats", "20007"}});
  bouw_.Relatie(2, 0, {}, {{"WHuwPlaats", "10007"}});
  EXPECT_EQ(Selecteer(), "");
}

TEST_F(SelectiePlaatsen, VervolgrecordsTellenNiet) {
  bouw_.Man("Jan", "Smit", {{"GebPlaats", "7"}, {"GebCorr", "Z"}});
  bouw_.Relatie(0, 0, {}, {{"OtrPlaats", "7"}, {"HuwCorr", "Z"}});
  EXPECT_EQ(Selecteer(), "");
}

TEST_F(SelectiePlaatsen, EenVerzoekOmTeStoppenEindigtDeLijst) {
  MaakAlleGebeurtenissen();
  stopBij_ = 2;  // behind the persons
  const std::string tekst = Selecteer(Einde::Afgebroken);
  EXPECT_EQ(std::count(tekst.begin(), tekst.end(), 'P'), 4);
  EXPECT_EQ(std::count(tekst.begin(), tekst.end(), '\n'), 4);
}

class SelectieOpmerkingen : public LijstToets {
 protected:
  std::string Selecteer(Einde einde = Einde::Klaar) {
    return Lijst(
        [this](TekstSchrijver& uit, const Verloop& verloop) {
          return SelecteerOpmerkingen(keus_, bron_, uit, verloop);
        },
        einde);
  }

  OpmKeus keus_;
};

TEST_F(SelectieOpmerkingen, ElkeRegelMetDeTekstWordtGeschreven) {
  bouw_.Man("Jan", "Smit");
  bouw_.Man("Piet", "Smit");
  bouw_.OpmerkingBijPersoon(3, 4096, {"Eerste regel.", "Tweede met REGEL.", "Derde."});
  keus_.tekst = "regel";
  EXPECT_EQ(Selecteer(), "P:    3 Eerste regel.\nP:    3 Tweede met REGEL.\n\n");
}

TEST_F(SelectieOpmerkingen, DeKastTeltAlsDatGevraagdIs) {
  bouw_.Man("Jan", "Smit");
  bouw_.OpmerkingBijPersoon(2, 4096, {"Eerste regel.", "Tweede met REGEL."});
  keus_ = {"regel", true};
  EXPECT_EQ(Selecteer(), "P:    2 Eerste regel.\n\n");
  keus_ = {"Regel", true};
  EXPECT_EQ(Selecteer(), "\n");
}

TEST_F(SelectieOpmerkingen, BlancosHorenBijDeTekst) {
  bouw_.Man("Jan", "Smit");
  bouw_.OpmerkingBijPersoon(2, 4096, {"Bos en hei.", "Bosheide."});
  keus_.tekst = "s ";
  EXPECT_EQ(Selecteer(), "P:    2 Bos en hei.\n\n");
}

TEST_F(SelectieOpmerkingen, OokDieVanEenRelatieBegintMetEenP) {
  bouw_.Man("Jan", "Smit");
  const auto gezin = bouw_.Relatie(2, 0);
  bouw_.OpmerkingBijRelatie(gezin, -256, {"Getuige was Piet."});
  keus_.tekst = "Piet";
  EXPECT_EQ(Selecteer(), "P:    2 Getuige was Piet.\n\n");
}

TEST_F(SelectieOpmerkingen, EenNegatiefNummerIsDatVanEenRelatie) {
  bouw_.Man("Jan", "Smit");
  bouw_.OpmerkingBijPersoon(2, 4096, {"Beschadigd."});
  ASSERT_TRUE(set_.Opmerking.Wijzig(2, {{"BijRecord", "-12"}}));
  keus_.tekst = "schade";
  EXPECT_EQ(Selecteer(), "\n");
  keus_.tekst = "schadigd";
  EXPECT_EQ(Selecteer(), "R:  -12 Beschadigd.\n\n");
}

TEST_F(SelectieOpmerkingen, EenBestandZonderOpmerkingenGeeftEenLegeRegel) {
  keus_.tekst = "x";
  EXPECT_EQ(Selecteer(), "\n");
}

TEST_F(SelectieOpmerkingen, EenVerzoekOmTeStoppenEindigtDeLijst) {
  bouw_.Man("Jan", "Smit");
  bouw_.OpmerkingBijPersoon(2, 4096, {"a", "a", "a"});
  keus_.tekst = "a";
  stopBij_ = 2;
  EXPECT_EQ(Selecteer(Einde::Afgebroken), "P:    2 a\n");
}

class SelectieGouden : public LijstToets {
 protected:
  SelectieGouden() { BouwLijstFamilie(bouw_); }
};

TEST_F(SelectieGouden, DePersonenVanEenNaam) {
  PersoonKeus keus;
  keus.naam.achternaam = "dam";
  Lijst([&](TekstSchrijver& uit, const Verloop& verloop) {
    return SelecteerPersonen(keus, bron_, uit, verloop);
  });
  VerwachtGouden("selectie_personen.txt", Bytes());
}

TEST_F(SelectieGouden, DePersonenVanEenBeroep) {
  PersoonKeus keus;
  keus.beroep = "schoenmaker";
  Lijst([&](TekstSchrijver& uit, const Verloop& verloop) {
    return SelecteerPersonen(keus, bron_, uit, verloop);
  });
  VerwachtGouden("selectie_beroep.txt", Bytes());
}

TEST_F(SelectieGouden, DeRelatiesVanEenPeriode) {
  RelatieKeus keus;
  keus.huwelijk = Tijdvak("01-01-1830", "31-12-1852");
  Lijst([&](TekstSchrijver& uit, const Verloop& verloop) {
    return SelecteerRelaties(keus, bron_, uit, verloop);
  });
  VerwachtGouden("selectie_relaties.txt", Bytes());
}

TEST_F(SelectieGouden, WatErInEenPlaatsGebeurde) {
  const PlaatsKeus keus{.plaats = 2};
  Lijst([&](TekstSchrijver& uit, const Verloop& verloop) {
    return SelecteerPlaatsen(keus, bron_, uit, verloop);
  });
  VerwachtGouden("selectie_plaatsen.txt", Bytes());
}

TEST_F(SelectieGouden, DeOpmerkingenMetEenWoord) {
  Lijst([&](TekstSchrijver& uit, const Verloop& verloop) {
    return SelecteerOpmerkingen({"markt", false}, bron_, uit, verloop);
  });
  VerwachtGouden("selectie_opmerkingen.txt", Bytes());
}

}  // namespace
}  // namespace lb77
