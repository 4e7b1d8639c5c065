// The sheet of fixed lines.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "descendants/GezinToets.h"
#include "steun/Gouden.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

class GezinF6Toets : public GezinToets {
 protected:
  GezinF6Toets() { opties_.GezinSoort = BladSoort::F6; }

  // A line of two columns.
  [[nodiscard]] static std::string Regel(std::string_view links, std::string_view rechts) {
    return Links(links, 48) + std::string(rechts) + "\n";
  }
};

TEST_F(GezinF6Toets, VerteltEenGezin) {
  opties_.GezinOokNrs = true;
  const GezinFamilie familie = BouwGezinFamilie(bouw_);
  VerwachtGouden("gezin_f6.txt", Blad(familie.man, familie.relatie));
  const std::string metMan = uit_;
  EXPECT_EQ(Blad(familie.vrouw, familie.relatie), metMan);
  opties_.GezinOokOpm = true;
  EXPECT_EQ(Blad(familie.man, familie.relatie), metMan);
}

TEST_F(GezinF6Toets, EenVrouwAlleenStaatRechts) {
  const auto vrouw = bouw_.Vrouw("Els", "Vos", {{"GebDatum", "00-05-1800"}});
  const auto relatie = bouw_.Relatie(0, vrouw);
  Blad(vrouw, relatie);
  EXPECT_TRUE(uit_.starts_with("GEZINSBLAD Vos\n\n" + Regel("", "Achternaam   : Vos") +
                               Regel("", "Voornamen    : Els") + Regel("", "Geb. plaats  :") +
                               Regel("", "     datum   : 0-5-1800")))
      << uit_;
}

TEST_F(GezinF6Toets, EenManAlleenStaatLinks) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  const auto relatie = bouw_.Relatie(man, 0);
  Blad(man, relatie);
  EXPECT_EQ(uit_,
            "GEZINSBLAD Bos [rel.nr. 2]\n"
            "\n"
            "Achternaam   : Bos [2]\n"
            "Voornamen    : Jan\n"
            "Geb. plaats  :\n"
            "     datum   : 0-0-0\n"
            "Ged. plaats  :\n"
            "     datum   : 0-0-0\n"
            "Ovl. plaats  :\n"
            "     datum   : 0-0-0\n"
            "Beg. plaats  :\n"
            "     datum   : 0-0-0\n"
            "Geloof       :\n"
            "Beroep       :\n"
            "Ouders(man)  :\n"
            "             :\n"
            "Ouders(vrouw):\n"
            "             :\n"
            "\n"
            "Ondertr. plaats  :                              datum : 0-0-0\n"
            "Tr. plaats   :                                  datum : 0-0-0\n"
            "Tr. plaats(K):                                  datum : 0-0-0\n"
            "\n"
            "Kinderen: \n"
            "Nr  z/d Voornamen \n"
            "        geb. plaats/datum                      ovl. plaats/datum\n");
}

TEST_F(GezinF6Toets, EenNummerZonderAchternaamStaatAchterHetOpschrift) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "");
  const auto relatie = bouw_.Relatie(man, bouw_.Vrouw("Els", "Vos"));
  EXPECT_TRUE(Blad(man, relatie)
                  .starts_with("GEZINSBLAD Vos [rel.nr. 2]\n\n" +
                               Regel("Achternaam   : [2]", "Achternaam   : Vos [3]")))
      << uit_;
}

TEST_F(GezinF6Toets, ZonderRelatieStaatErDatZijErNietIs) {
  opties_.GezinOokNrs = true;
  const auto man = bouw_.Man("Jan", "Bos");
  Blad(man, 0);
  EXPECT_TRUE(uit_.starts_with("GEZINSBLAD Bos\n\nAchternaam   : Bos [2]\n")) << uit_;
  EXPECT_TRUE(uit_.ends_with("             :\n\ngeen relatie aanwezig\n")) << uit_;
}

TEST_F(GezinF6Toets, OudersHebbenNaamJarenEnBeroep) {
  const auto vader = bouw_.Man("Adam", "Bos", {{"GebDatum", "00-00-1770"}, {"Beroep", "smid"}});
  const auto moeder = bouw_.Vrouw("Bea", "Vos", {{"OvlDatum", "00-00-1820"}});
  const auto man = bouw_.Man("Jan", "Bos");
  const auto vrouw = bouw_.Vrouw("Els", "Mos");
  const auto grootmoeder = bouw_.Vrouw("Ada", "Mos", {{"Beroep", "weduwe"}});
  bouw_.Relatie(vader, moeder, {man});
  bouw_.Relatie(0, grootmoeder, {vrouw});
  const auto relatie = bouw_.Relatie(man, vrouw);
  Blad(man, relatie);
  EXPECT_TRUE(Bevat(Regel("Ouders(man)  : Adam Bos", "Ouders(man)  :") +
                    Regel("             : 1770- smid", "             :") +
                    Regel("Ouders(vrouw): Bea Vos", "Ouders(vrouw): Ada Mos") +
                    Regel("             : -1820", "             : weduwe")))
      << uit_;
}

TEST_F(GezinF6Toets, EenTeLangeTekstWordtAfgesnedenEnRaaktDeAndereNiet) {
  const std::string voor(30, 'v');
  const std::string achter(25, 'a');
  const auto vader = bouw_.Man(voor, achter);
  const auto man = bouw_.Man(voor, achter);
  const auto vrouw = bouw_.Vrouw("Els", "Vos");
  bouw_.Relatie(vader, 0, {man, vrouw});
  const auto relatie = bouw_.Relatie(man, vrouw);
  Blad(man, relatie);
  const std::string ouder = "Ouders(man)  : " + voor + " " + achter;
  EXPECT_TRUE(Bevat(ouder.substr(0, 47) + " " + ouder.substr(0, 48) + "\n")) << uit_;
}

TEST_F(GezinF6Toets, WatDeKolomPreciesVultBlijftHeel) {
  const auto vader = bouw_.Man(std::string(16, 'v'), std::string(16, 'a'));
  const auto man = bouw_.Man("Jan", "Bos");
  bouw_.Relatie(vader, 0, {man});
  const auto relatie = bouw_.Relatie(man, bouw_.Vrouw("Els", "Vos"));
  Blad(man, relatie);
  EXPECT_TRUE(Bevat("\nOuders(man)  : " + std::string(16, 'v') + " " + std::string(16, 'a') +
                    "Ouders(man)  :\n"))
      << uit_;
}

TEST_F(GezinF6Toets, EenOnleesbareLaatZijnKolomLeeg) {
  const auto man = bouw_.Man("Jan", "Bos");
  const auto vrouw = bouw_.Vrouw("Els", "Vos");
  const auto kind = bouw_.Man("Piet", "Bos");
  const auto relatie = bouw_.Relatie(man, vrouw, {kind});
  bouw_.WijzigRelatie(relatie, {{"ManNr", "999"}, {"Kind1", "998"}});
  const std::string metVrouw = "GEZINSBLAD Vos\n\n" + Regel("", "Achternaam   : Vos");
  EXPECT_TRUE(Blad(vrouw, relatie).starts_with(metVrouw)) << uit_;
  EXPECT_TRUE(uit_.ends_with("\n 1.  ?  ?\n")) << uit_;
  EXPECT_TRUE(Blad(999, relatie).starts_with(metVrouw)) << uit_;
}

TEST_F(GezinF6Toets, KinderenStaanMetHunGegevensNaastElkaar) {
  bouw_.Plaats("Delft");
  const auto man = bouw_.Man("Jan", "Bos");
  const auto zoon = bouw_.Man("Piet", "Bos",
                              {{"GebDatum", "01-02-1800"},
                               {"GebPlaats", "2"},
                               {"OvlDatum", "03-04-1870"},
                               {"BegrDatum", "06-04-1870"},
                               {"BegrCrem", "1"}});
  const auto dochter = bouw_.Vrouw("", "Bos", {{"OvlCorr", "C"}, {"OvlDatum", "00-00-1880"}});
  const auto kind =
      bouw_.Persoon('?', "Kim", "Bos", {{"DoopDatum", "05-05-1805"}, {"DoopReligie", "NH"}});
  const auto relatie = bouw_.Relatie(man, 0, {zoon, dochter, kind});
  bouw_.Relatie(zoon, bouw_.Vrouw("Els", "Vos"));
  bouw_.Relatie(zoon, 0);
  bouw_.Relatie(bouw_.Man("Wim", "Mos"), dochter);
  const std::string blad = Blad(man, relatie);
  EXPECT_TRUE(
      blad.ends_with("\n 1. zn. Piet\n"
                     "        geb. Delft 1-2-1800                     "
                     "ovl./begr. 3/6-4-1870\n"
                     "        (1) tr. Els Vos\n"
                     "        (2) tr. N.N.\n"
                     " 2. dr. een dochter\n" +
                     std::string(48, ' ') +
                     "ovl. ca. 1880\n"
                     "        tr. Wim Mos\n"
                     " 3.  ?  Kim\n"
                     "        ged. 5-5-1805\n"))
      << blad;
  opties_.FamNaamWeerg = true;
  Blad(man, relatie);
  EXPECT_TRUE(Bevat("\n 1. zn. Piet Bos\n"));
  EXPECT_TRUE(Bevat("\n 2. dr. Bos\n"));
}

TEST_F(GezinF6Toets, EenLangeGeboortezinRaaktDieVanHetOverlijdenNiet) {
  bouw_.Plaats("Nieuwerkerk aan den Issel");
  const auto man = bouw_.Man("Jan", "Bos");
  const auto kind = bouw_.Man(
      "Piet", "Bos", {{"GebPlaats", "2"}, {"GebDatum", "11-12-1800"}, {"OvlDatum", "03-04-1870"}});
  const auto relatie = bouw_.Relatie(man, 0, {kind});
  EXPECT_TRUE(Blad(man, relatie)
                  .ends_with("\n        geb. Nieuwerkerk aan den Issel 11-12-1800 ovl. 3-4-1870\n"))
      << uit_;
}

TEST_F(GezinF6Toets, ZestienKinderenStaanAllenOpHetBlad) {
  const auto man = bouw_.Man("Jan", "Bos");
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 16; ++i) kinderen.push_back(bouw_.Vrouw("Kind", "Bos"));
  const auto relatie = bouw_.Relatie(man, 0, kinderen);
  EXPECT_TRUE(Blad(man, relatie).ends_with("\n15. dr. Kind\n16. dr. Kind\n"));
}

TEST(BladDatum, HeeftEenNulVoorWatOnbekendIs) {
  EXPECT_EQ(BladDatum(0, 0), "0-0-0");
  EXPECT_EQ(BladDatum(305, 1850), "3-5-1850");
  EXPECT_EQ(BladDatum(5, 1850), "0-5-1850");
  EXPECT_EQ(BladDatum(0, 1850), "0-0-1850");
  EXPECT_EQ(BladDatum(3100, 0), "31-0-0");
}

}  // namespace
}  // namespace lb77
