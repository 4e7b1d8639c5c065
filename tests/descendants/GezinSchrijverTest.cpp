// The compact and the extended sheet.
#include <gtest/gtest.h>

#include "descendants/GezinToets.h"
#include "steun/Gouden.h"

namespace lb77 {
namespace {

TEST_F(GezinToets, VerteltEenGezinCompact) {
  opties_.GezinOokNrs = opties_.GezinOokOpm = true;
  const GezinFamilie familie = BouwGezinFamilie(bouw_);
  VerwachtGouden("gezin_compact.txt", Blad(familie.man, familie.relatie));
}

TEST_F(GezinToets, VerteltEenGezinUitgebreid) {
  opties_.GezinSoort = BladSoort::Uitgebreid;
  opties_.GezinOokNrs = opties_.FamNaamWeerg = true;
  const GezinFamilie familie = BouwGezinFamilie(bouw_);
  VerwachtGouden("gezin_uitgebreid.txt", Blad(familie.vrouw, familie.relatie));
}

TEST_F(GezinToets, ZonderNummersStaatErGeenNummer) {
  const GezinFamilie familie = BouwGezinFamilie(bouw_);
  EXPECT_EQ(Blad(familie.man, familie.relatie),
            "Jan Pieter van Dam\n"
            "geb. Delft 1-2-1800\n"
            "ged.Nederlands Hervormd Delft 3-2-1800\n"
            "ovl. Leiden ca. 1870\n"
            "begr. Leiden 5-6-1870\n"
            "winkelier\n"
            "zn. v. Adriaan van Dam en van Barbara Blom\n"
            "ondertr. Delft 1-4-1825\n"
            "tr. burgerlijk Delft na 20-4-1825\n"
            "tr.k. Nederlands Hervormd Breda 21-4-1825\n"
            "\n"
            "Cornelia Cool\n"
            "geb. Breda voor 1805\n"
            "begr. Breda 7-8-1881\n"
            "dr. v. Klaas Cool\n"
            "\n"
            "\n"
            "Kinderen:\n"
            " 1. Adriaan\n"
            "      geb. Breda 11-11-1826, ged. 13-11-1826\n"
            "      ovl./begr. Delft 24/27-12-1890\n"
            "      tr.(1) Ida Ident\n"
            "      tr.(2) N.N.\n"
            " 2. een dochter\n"
            "      geb. Leiden\n"
            " 3. Kee\n");
}

TEST_F(GezinToets, HetNummerAchterEenAfgebrokenNaamHoudtHaarAanDeKantlijn) {
  opties_.GezinOokNrs = opties_.FamNaamWeerg = true;
  breedte_ = 30;
  const auto kind = bouw_.Man("Abcdefghijklmnopqrstuvwxyz", "Dijk");
  const auto man = bouw_.Man("Abcdefghijklmnopqrstuvwxyzabcd", "Dijk");
  EXPECT_EQ(Blad(man, bouw_.Relatie(man, 0, {kind})),
            "Abcdefghijklmnopqrstuvwxyzabcd\n"
            "Dijk [3] [rel.nr. 2]\n"
            "\n"
            "N.N.\n"
            "\n"
            "\n"
            "Persoonsnummers van kinderen :\n"
            "    2\n"
            "Kinderen:\n"
            " 1. Abcdefghijklmnopqrstuvwxyz\n"
            "    Dijk [2]\n");
}

TEST_F(GezinToets, ZonderRelatieStaatErDatZijErNietIs) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  EXPECT_EQ(Blad(man, 0), "Jan Bos [2]\n\n\ngeen relatie aanwezig\n");
}

TEST_F(GezinToets, ZonderPartnerStaatErEenOnbekende) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  const auto kind = bouw_.Man("Piet", "Bos");
  const auto relatie = bouw_.Relatie(man, 0, {kind});
  EXPECT_EQ(
      Blad(man, relatie),
      "Jan Bos [2] [rel.nr. 2]\n\nN.N.\n\n\nPersoonsnummers van kinderen :\n    3\nKinderen:\n"
      " 1. Piet [3]\n");
}

TEST_F(GezinToets, ZonderKinderenBlijftHetOpschrift) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(man, 0);
  EXPECT_TRUE(
      Blad(man, relatie).ends_with("N.N.\n\n\nPersoonsnummers van kinderen :\nKinderen:\n"));
}

TEST_F(GezinToets, EenVrouwAlsHoofdHeeftDeManAlsPartner) {
  const auto vrouw = bouw_.Vrouw("Els", "Vos");
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(man, vrouw);
  EXPECT_EQ(Blad(vrouw, relatie), "Els Vos\n\nJan Bos\n\n\nKinderen:\n");
}

TEST_F(GezinToets, WieGeenNaamHeeftHeetNaarZijnGeslacht) {
  const auto man = bouw_.Man("", "");
  const auto vrouw = bouw_.Vrouw("", "");
  const auto relatie = bouw_.Relatie(
      man, vrouw, {bouw_.Man("", "Bos"), bouw_.Vrouw("", "Bos"), bouw_.Persoon('?', "", "Bos")});
  EXPECT_EQ(Blad(man, relatie),
            "een man\n\neen vrouw\n\n\nKinderen:\n 1. een zoon\n 2. een dochter\n 3. een kind\n");
  const auto niemand = bouw_.Persoon('?', "", "");
  EXPECT_EQ(Blad(niemand, 0), "een persoon\n\n\ngeen relatie aanwezig\n");
  opties_.FamNaamWeerg = true;
  EXPECT_TRUE(Blad(man, relatie).ends_with("Kinderen:\n 1. Bos\n 2. Bos\n 3. Bos\n"));
}

TEST_F(GezinToets, EenOuderOfPartnerZonderNaamHoudtZijnNummer) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  const auto kind = bouw_.Man("Piet", "Bos");
  bouw_.Relatie(bouw_.Man("", ""), 0, {man});
  bouw_.Relatie(kind, bouw_.Vrouw("", ""));
  const auto relatie = bouw_.Relatie(man, 0, {kind});
  Blad(man, relatie);
  EXPECT_TRUE(Bevat("\nzn. v. N.N. [4]\n")) << uit_;
  EXPECT_TRUE(uit_.ends_with("\n 1. Piet [3]\n      tr. N.N. [5]\n")) << uit_;
}

TEST_F(GezinToets, DeFamilienaamStaatAlleenDesgewenstBijDeKinderen) {
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(man, 0, {bouw_.Man("Piet", "Bos")});
  EXPECT_TRUE(Blad(man, relatie).ends_with("\n 1. Piet\n"));
  opties_.FamNaamWeerg = true;
  EXPECT_TRUE(Blad(man, relatie).ends_with("\n 1. Piet Bos\n"));
}

TEST_F(GezinToets, DeOudersStaanErZoverZijBekendZijn) {
  const auto vader = bouw_.Man("Adam", "Bos");
  const auto moeder = bouw_.Vrouw("Bea", "Vos");
  const auto zoon = bouw_.Man("Jan", "Bos");
  const auto dochter = bouw_.Vrouw("Els", "Bos");
  const auto kind = bouw_.Persoon('?', "Kim", "Bos");
  const auto wees = bouw_.Man("Wim", "Bos");
  bouw_.Relatie(vader, moeder, {zoon});
  bouw_.Relatie(0, moeder, {dochter});
  bouw_.Relatie(vader, 0, {kind});
  bouw_.Relatie(0, 0, {wees});
  EXPECT_TRUE(Blad(zoon, 0).starts_with("Jan Bos\nzn. v. Adam Bos en van Bea Vos\n\n\n"));
  EXPECT_TRUE(Blad(dochter, 0).starts_with("Els Bos\ndr. v. Bea Vos\n\n\n"));
  EXPECT_TRUE(Blad(kind, 0).starts_with("Kim Bos\nkind v. Adam Bos\n\n\n"));
  EXPECT_TRUE(Blad(wees, 0).starts_with("Wim Bos\n\n\n"));
  opties_.GezinOokNrs = true;
  EXPECT_TRUE(
      Blad(zoon, 0).starts_with("Jan Bos [4]\nzn. v. Adam Bos [2] en van Bea Vos [3]\n\n\n"));
}

TEST_F(GezinToets, TussenHeeftTweeDatumsEnEenPlaats) {
  bouw_.Plaats("Delft");
  const auto man = bouw_.Man("Jan", "Bos",
                             {{"GebCorr", "T"},
                              {"GebPlaats", "2"},
                              {"GebDatum", "01-01-1800"},
                              {"DoopDatum", "02-02-1801"},
                              {"OvlCorr", "T"},
                              {"OvlDatum", "00-00-1870"},
                              {"BegrDatum", "00-05-1871"}});
  const auto relatie = bouw_.Relatie(man, 0, {},
                                     {{"HuwCorr", "T"},
                                      {"WHuwPlaats", "2"},
                                      {"WHuwDatum", "03-03-1825"},
                                      {"KHuwDatum", "04-04-1826"}});
  EXPECT_TRUE(Blad(man, relatie)
                  .starts_with("Jan Bos\n"
                               "geb. Delft tussen 1-1-1800 en 2-2-1801\n"
                               "ovl. tussen 1870 en 5-1871\n"
                               "tr. Delft tussen 3-3-1825 en 4-4-1826\n\n"));
  EXPECT_FALSE(Bevat("ged."));
  EXPECT_FALSE(Bevat("begr."));
  EXPECT_FALSE(Bevat("tr.k."));
}

TEST_F(GezinToets, TussenZonderTweedeDatumIsEenGewoneDatum) {
  bouw_.Plaats("Delft");
  const auto man = bouw_.Man("Jan", "Bos", {{"GebCorr", "T"}, {"GebDatum", "01-01-1800"}});
  const auto relatie = bouw_.Relatie(
      man, 0, {}, {{"HuwCorr", "T"}, {"WHuwDatum", "03-03-1825"}, {"KHuwPlaats", "2"}});
  EXPECT_TRUE(
      Blad(man, relatie).starts_with("Jan Bos\ngeb. 1-1-1800\ntr. 3-3-1825\ntr.k. Delft\n\n"));
}

TEST_F(GezinToets, ElkeCorrectieHeeftHaarWoord) {
  const std::pair<std::string_view, std::string_view> gevallen[] = {
      {"V", "voor "}, {"N", "na "}, {"C", "ca. "}, {" ", ""}};
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(man, 0, {}, {{"WHuwDatum", "03-03-1825"}});
  for (const auto& [code, woord] : gevallen) {
    bouw_.WijzigRelatie(relatie, {{"HuwCorr", code}});
    EXPECT_TRUE(
        Blad(man, relatie).starts_with("Jan Bos\ntr. " + std::string(woord) + "3-3-1825\n\n"))
        << code;
  }
}

TEST_F(GezinToets, EenScheidingStaatOnderHetOpschriftVanDeKerk) {
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie =
      bouw_.Relatie(man, 0, {}, {{"HuwSwPs", "1"}, {"KHuwSch", "1"}, {"KHuwDatum", "03-03-1825"}});
  EXPECT_TRUE(Blad(man, relatie).starts_with("Jan Bos\ntr.k. 3-3-1825\n\n"));
}

TEST_F(GezinToets, EenCrematieLeestAlsEenBegrafenis) {
  const auto man = bouw_.Man("Jan", "Bos", {{"BegrDatum", "03-03-1925"}, {"BegrCrem", "1"}});
  const auto kind = bouw_.Man(
      "Piet", "Bos", {{"OvlDatum", "01-03-1925"}, {"BegrDatum", "05-03-1925"}, {"BegrCrem", "1"}});
  const auto relatie = bouw_.Relatie(man, 0, {kind});
  Blad(man, relatie);
  EXPECT_TRUE(Bevat("Jan Bos\nbegr. 3-3-1925\n"));
  EXPECT_TRUE(Bevat("Piet\n      ovl./begr. 1/5-3-1925\n"));
  bouw_.OpmerkingBijPersoon(kind, 1024, {"(Driehuis)"}, 8);
  opties_.GezinOokOpm = true;
  Blad(man, relatie);
  EXPECT_TRUE(Bevat("Piet\n      ovl. 1-3-1925, begr. 5-3-1925 (Driehuis)\n"));
}

TEST_F(GezinToets, EenKindDatAlleenGedooptIsHeeftGeenDatums) {
  const auto man = bouw_.Man("Jan", "Bos");
  const auto kind =
      bouw_.Man("Piet", "Bos", {{"DoopDatum", "03-03-1825"}, {"BegrDatum", "04-04-1826"}});
  const auto relatie = bouw_.Relatie(man, 0, {kind});
  EXPECT_TRUE(Blad(man, relatie).ends_with("\nKinderen:\n 1. Piet\n"));
}

TEST_F(GezinToets, EenKortHeetKindMetNummerHoudtZijnBlank) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  const auto kind = bouw_.Man("Jo", "Bos");
  const auto relatie = bouw_.Relatie(man, 0, {kind});
  bouw_.Relatie(kind, bouw_.Vrouw("Els", "Vos"));
  EXPECT_TRUE(Blad(man, relatie).ends_with("\n 1. Jo [3]\n      tr. Els Vos [4]\n"));
}

}  // namespace
}  // namespace lb77
