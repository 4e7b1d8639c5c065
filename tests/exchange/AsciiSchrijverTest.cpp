// The lines of the fixed-width export, field by field.
#include <gmock/gmock.h>

#include "exchange/AsciiSchrijver.h"
#include "exchange/AsciiToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string Gevuld(std::string tekst, std::size_t breedte) {
  tekst.resize(breedte, ' ');
  return tekst;
}
std::string Blanco(std::size_t breedte) {
  return std::string(breedte, ' ');
}

class AsciiSchrijverTest : public AsciiToets {};

TEST_F(AsciiSchrijverTest, EenPersoonStaatVeldVoorVeldOpZijnPlaats) {
  Bouw().Plaats("Delft", "ZH");
  Bouw().Plaats("Breda", "NB");
  Bouw().Man("Jan Pieter", "van den Berg",
             {{"GebCorr", "C"},
              {"GebDatum", "12-03-0890"},
              {"GebPlaats", "2"},
              {"DoopDatum", "00-04-1890"},
              {"DoopPlaats", "3"},
              {"DoopReligie", "NH"},
              {"OvlCorr", "N"},
              {"OvlDatum", "00-00-1950"},
              {"OvlPlaats", "10002"},
              {"BegrDatum", "31-12-1950"},
              {"BegrPlaats", "20003"},
              {"BegrCrem", "1"},
              {"Beroep", "smid"}});
  auto v = Persoon(2);
  EXPECT_EQ(v["nr"], "    2");
  EXPECT_EQ(v["geslacht"], "M");
  EXPECT_EQ(v["voor"], Gevuld("Jan Pieter", 30));
  EXPECT_EQ(v["achter"], Gevuld("Berg, van den", 25));
  EXPECT_EQ(v["gebcorr"], "C");
  EXPECT_EQ(v["geb"], "08900312");
  EXPECT_EQ(v["gebnr"], "    2");
  EXPECT_EQ(v["gebte"], Gevuld("Delft", 25));
  EXPECT_EQ(v["doop"], "18900400");
  EXPECT_EQ(v["doopnr"], "    3");
  EXPECT_EQ(v["doopte"], Gevuld("Breda", 25));
  EXPECT_EQ(v["religie"], Gevuld("Nederlands Hervormd", 40));
  EXPECT_EQ(v["ovlcorr"], "N");
  EXPECT_EQ(v["ovl"], "19500000");
  EXPECT_EQ(v["ovlnr"], "10002");
  EXPECT_EQ(v["ovlte"], Gevuld("Delft", 25));
  EXPECT_EQ(v["soort"], "C");
  EXPECT_EQ(v["begr"], "19501231");
  EXPECT_EQ(v["begrnr"], "20003");
  EXPECT_EQ(v["begrte"], Gevuld("Breda", 25));
  EXPECT_EQ(v["beroep"], Gevuld("smid", 30));
  EXPECT_EQ(v["ouders"], Blanco(5));
  EXPECT_EQ(v["relaties"], Blanco(25));
}

TEST_F(AsciiSchrijverTest, EenLegePersoonHoudtZijnBreedte) {
  Bouw().Persoon('?', "", "");
  auto v = Persoon(2);
  EXPECT_EQ(v["geslacht"], "O");
  EXPECT_EQ(v["gebcorr"], " ");
  for (const char* datum : {"geb", "doop", "ovl", "begr"}) EXPECT_EQ(v[datum], Blanco(8));
  for (const char* nr : {"gebnr", "doopnr", "ovlnr", "begrnr"}) EXPECT_EQ(v[nr], "    0");
  EXPECT_EQ(v["soort"], "B");
  EXPECT_EQ(v["religie"], Blanco(40));
}

TEST_F(AsciiSchrijverTest, VolleVeldenWordenAfgekapt) {
  Bouw().Plaats(std::string(25, 'p'));
  Bouw().Vrouw(std::string(30, 'v'), "de " + std::string(22, 'a'),
               {{"Beroep", std::string(30, 'b')}, {"DoopReligie", "RK"}, {"GebPlaats", "2"}});
  auto v = Persoon(2);
  EXPECT_EQ(v["voor"], std::string(30, 'v'));
  EXPECT_EQ(v["achter"], std::string(22, 'a') + ", d");
  EXPECT_EQ(v["beroep"], std::string(30, 'b'));
  EXPECT_EQ(v["religie"], std::string(40, 'k'));
  EXPECT_EQ(v["gebte"], std::string(25, 'p'));
}

TEST_F(AsciiSchrijverTest, VerwijzingenStaanErAlleenNaarWatGekozenIs) {
  const auto vader = Bouw().Man("Vader", "");
  const auto zoon = Bouw().Man("Zoon", "");
  Bouw().Relatie(vader, 0, {zoon});
  for (int i = 0; i < 5; ++i) Bouw().Relatie(zoon, 0);
  KiesRelaties({2, 3, 5, 7});
  auto v = Persoon(zoon);
  EXPECT_EQ(v["ouders"], "    2");
  EXPECT_EQ(v["relaties"], "    3         5         7");
  EXPECT_EQ(Persoon(vader)["relaties"], "    2" + Blanco(20));
  Bouw().WijzigPersoon(zoon, {{"Ouders", "4"}});
  EXPECT_EQ(Persoon(zoon)["ouders"], Blanco(5));
}

TEST_F(AsciiSchrijverTest, EenOnleesbaarVervolgWordtGemeldEnIsLeeg) {
  const auto man = Bouw().Man("Man", "");
  Bouw().Relatie(man, 0);
  KiesRelaties({2});
  for (const auto& [waarde, nummer] : {std::pair{"-99", "99"}, std::pair{"-32768", "32768"}}) {
    Bouw().WijzigPersoon(man, {{"Relatie3", waarde}});
    EXPECT_EQ(Persoon(man)["relaties"], "    2" + Blanco(20));
    EXPECT_THAT(set_.Getoond(),
                ElementsAre("! stop \"Leesfout bij persoonsrecord " + std::string(nummer) + "\""));
  }
  EXPECT_THAT(log_.Regels(), IsEmpty());
}

TEST_F(AsciiSchrijverTest, VervolgrecordsEnGatenWordenOvergeslagen) {
  const auto man = Bouw().Man("Man", "");
  Bouw().Relatie(man, 0);
  Bouw().WijzigPersoon(man, {{"GebCorr", "Z"}});
  Bouw().WijzigRelatie(2, {{"HuwCorr", "Z"}});
  for (const std::int16_t nr : {std::int16_t{2}, std::int16_t{99}}) {
    Schrijver().Persoon(nr);
    Schrijver().Relatie(nr);
  }
  EXPECT_EQ(personen_.Aantal() + relaties_.Aantal() + opmerkingen_.Aantal(), 0U);
  EXPECT_EQ(log_.Regels(),
            "Leesfout bij Persoonsrecord 99. Record niet ge\xEBxporteerd.\n"
            "Leesfout bij Relatierecord 99. Record niet ge\xEBxporteerd.\n");
}

TEST_F(AsciiSchrijverTest, EenRelatieStaatVeldVoorVeldOpZijnPlaats) {
  Bouw().Plaats("Delft", "ZH");
  Bouw().Plaats("Breda", "NB");
  const auto man = Bouw().Man("Man", "");
  const auto vrouw = Bouw().Vrouw("Vrouw", "");
  Bouw().Relatie(man, vrouw, {},
                 {{"OtrDatum", "01-04-1825"},
                  {"OtrPlaats", "2"},
                  {"HuwCorr", "V"},
                  {"WHuwDatum", "20-04-1825"},
                  {"WHuwPlaats", "3"},
                  {"HuwSoort", "NH"},
                  {"KHuwDatum", "00-00-1826"},
                  {"KHuwPlaats", "20002"},
                  {"Religie", "RK"}});
  KiesPersonen({man, vrouw});
  auto v = Relatie(2);
  EXPECT_EQ(v["nr"], "    2");
  EXPECT_EQ(v["man"], "    2");
  EXPECT_EQ(v["vrouw"], "    3");
  EXPECT_EQ(v["kinderen"], Blanco(145));
  EXPECT_EQ(v["otr"], "18250401");
  EXPECT_EQ(v["otrnr"], "    2");
  EXPECT_EQ(v["otrte"], Gevuld("Delft", 25));
  EXPECT_EQ(v["corr"], "V");
  EXPECT_EQ(v["huw"], "18250420");
  EXPECT_EQ(v["huwnr"], "    3");
  EXPECT_EQ(v["huwte"], Gevuld("Breda", 25));
  EXPECT_EQ(v["kind"], Gevuld("Nederlands Hervormd", 40));
  EXPECT_EQ(v["sch"], " ");
  EXPECT_EQ(v["kerk"], "18260000");
  EXPECT_EQ(v["kerknr"], "20002");
  EXPECT_EQ(v["kerkte"], Gevuld("Delft", 25));
  EXPECT_EQ(v["religie"], std::string(40, 'k'));
}

TEST_F(AsciiSchrijverTest, EenScheidingHeeftEenS) {
  Bouw().Relatie(0, 0, {}, {{"KHuwSch", "1"}});
  auto v = Relatie(2);
  EXPECT_EQ(v["sch"], "S");
  EXPECT_EQ(v["man"] + v["vrouw"], Blanco(10));
  EXPECT_EQ(v["otr"] + v["huw"] + v["kerk"], Blanco(24));
  EXPECT_EQ(v["otrnr"] + v["huwnr"] + v["kerknr"], "    0    0    0");
}

TEST_F(AsciiSchrijverTest, NegenentwintigKinderenStaanOpHunPlaats) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 29; ++i) kinderen.push_back(Bouw().Man("Kind", ""));
  Bouw().Relatie(0, 0, kinderen);
  KiesPersonen({2, 15, 16, 17, 30});
  const std::string veld = Relatie(2)["kinderen"];
  EXPECT_EQ(veld.substr(0, 5), "    2");
  EXPECT_EQ(veld.substr(5, 60), Blanco(60));
  EXPECT_EQ(veld.substr(65, 15), "   15   16   17");
  EXPECT_EQ(veld.substr(80, 60), Blanco(60));
  EXPECT_EQ(veld.substr(140), "   30");
}

TEST_F(AsciiSchrijverTest, EenOnleesbaarVervolgVanKinderenWordtGemeld) {
  const auto kind = Bouw().Man("Kind", "");
  Bouw().Relatie(0, 0, {kind}, {});
  Bouw().WijzigRelatie(2, {{"Kind15", "-77"}});
  KiesPersonen({kind});
  EXPECT_EQ(Relatie(2)["kinderen"], "    2" + Blanco(140));
  EXPECT_THAT(set_.Getoond(), ElementsAre("! stop \"Leesfout bij relatierecord 77\""));
}

TEST_F(AsciiSchrijverTest, KapotteGetallenHoudenDeBreedte) {
  const auto man =
      Bouw().Man("Man", "", {{"GebPlaats", "-32768"}, {"GebJaar", "-32768"}, {"Ouders", "-5"}});
  Bouw().Relatie(0, 0, {}, {{"OtrPlaats", "-1"}, {"WetHuwJaar", "-1"}});
  EXPECT_EQ(Persoon(man)["gebnr"], "32768");
  EXPECT_EQ(Persoon(man)["ouders"], Blanco(5));
  EXPECT_EQ(Relatie(2)["otrnr"], "   -1");
}

TEST_F(AsciiSchrijverTest, OpmerkingenVanEenPersoonStaanInDeVolgordeVanDeVelden) {
  const auto man = Bouw().Man("Man", "");
  for (const RubriekNaam& naam : kPersoonRubrieken) {
    Bouw().OpmerkingBijPersoon(man, naam.rubriek, {"bij " + std::to_string(naam.rubriek)});
  }
  Schrijver().Persoon(man);
  EXPECT_EQ(opmerkingen_.Regels(),
            "000P20000200001bij 2\n"
            "000P20000100001bij 1\n"
            "000P20409600001bij 4096\n"
            "000P20000800001bij 8\n"
            "000P20000400001bij 4\n"
            "000P20003200001bij 32\n"
            "000P20001600001bij 16\n"
            "000P20006400001bij 64\n"
            "000P20025600001bij 256\n"
            "000P20012800001bij 128\n"
            "000P20102400001bij 1024\n"
            "000P20051200001bij 512\n"
            "000P20204800001bij 2048\n");
}

// kept: what belongs to the kind of marriage, the religion or the relation as a whole has no field.
TEST_F(AsciiSchrijverTest, OpmerkingenVanEenRelatieStaanInDeVolgordeVanDeVelden) {
  Bouw().Relatie(0, 0);
  for (const RubriekNaam& naam : kRelatieRubrieken) {
    Bouw().OpmerkingBijRelatie(2, naam.rubriek, {"bij " + std::to_string(naam.rubriek)});
  }
  Schrijver().Relatie(2);
  EXPECT_EQ(opmerkingen_.Regels(),
            "000R2000-200001bij -2\n"
            "000R2000-100001bij -1\n"
            "000R2000-800001bij -8\n"
            "000R2000-400001bij -4\n"
            "000R200-6400001bij -64\n"
            "000R200-3200001bij -32\n");
}

TEST_F(AsciiSchrijverTest, RegelsWordenDoorgenummerdOverEenVolleOpmerking) {
  const auto man = Bouw().Man("Man", "");
  const std::vector<std::string> tien(10, "vol");
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kBeroep, tien);
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kBeroep, {"elf", "twaalf"});
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kBeroep, {"achter een korte"});
  Schrijver().Persoon(man);
  EXPECT_EQ(opmerkingen_.Aantal(), 12U);
  EXPECT_TRUE(opmerkingen_.Regels().starts_with("000P20204800001vol\n"));
  EXPECT_TRUE(opmerkingen_.Regels().ends_with(
      "000P20204800010vol\n000P20204800011elf\n000P20204800012twaalf\n"));
}

TEST_F(AsciiSchrijverTest, EenFouteVerwijzingStaatInHetLog) {
  const auto man = Bouw().Man("Man", "");
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kVoornaam, {"een"});
  ASSERT_TRUE(set_.Opmerking.Wijzig(2, {{"VolgRegel", "99"}}));
  Schrijver().Persoon(man);
  EXPECT_EQ(opmerkingen_.Regels(), "000P20000200001een\n");
  EXPECT_EQ(log_.Regels(),
            "000P20000200002>> Verkeerde verwijzing: opm-record 99 bestaat niet << "
            "(opm-reeks start bij opm-record: 2)\n");
}

TEST_F(AsciiSchrijverTest, EenRegelDieOpEenFoutLijktBreektDeOpmerkingAf) {
  const auto man = Bouw().Man("Man", "");
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kVoornaam, {">> zie akte", "daarna"});
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kAchternaam, {">>geen fout"});
  Schrijver().Persoon(man);
  EXPECT_EQ(opmerkingen_.Regels(), "000P20000100001>>geen fout\n");
  EXPECT_EQ(log_.Regels(), "000P20000200001>> zie akte (opm-reeks start bij opm-record: 2)\n");
}

TEST_F(AsciiSchrijverTest, EenKringVanOpmerkingenEindigt) {
  const auto man = Bouw().Man("Man", "");
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kVoornaam, {"een"});
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kAchternaam, {"twee"});
  ASSERT_TRUE(set_.Opmerking.Wijzig(2, {{"VolgRegel", "2"}}));
  ASSERT_TRUE(set_.Opmerking.Wijzig(3, {{"BijZelfde", "2"}}));
  Schrijver().Persoon(man);
  EXPECT_LT(opmerkingen_.Aantal(), 20U);
  EXPECT_GE(log_.Aantal(), 1U);
}

TEST_F(AsciiSchrijverTest, EenLangNummerVerliestDeLetterVanZijnEigenaar) {
  constexpr std::size_t kLengte = 128;
  const auto man = Bouw().Man("Man", "");
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kVoornaam, {"een"});
  std::string bytes = LeesBytes(set_.paden.prs);
  const std::string record = bytes.substr(kLengte, kLengte);
  for (const std::size_t nr : {std::size_t{1234}, std::size_t{12345}}) {
    bytes.resize((nr - 1) * kLengte, '\0');
    bytes += record;
  }
  SchrijfBytes(set_.paden.prs, bytes);
  set_.Heropen();
  Schrijver().Persoon(1234);
  Schrijver().Persoon(12345);
  EXPECT_EQ(opmerkingen_.Regels(), "P12340000200001een\n123450000200001een\n");
}

TEST_F(AsciiSchrijverTest, StuurtekensZijnBlanco) {
  Bouw().Man("Jan\r\nPiet\t", "");
  EXPECT_EQ(Persoon(2)["voor"], Gevuld("Jan  Piet", 30));
}

TEST_F(AsciiSchrijverTest, AccentenBlijvenInDeTekensetVanWindows) {
  Bouw().Man("Ren\xE9",
             "\xC7"
             "elik");
  EXPECT_EQ(Persoon(2)["voor"].substr(0, 5), "Ren\xE9 ");
  EXPECT_EQ(Persoon(2)["achter"].substr(0, 6),
            "\xC7"
            "elik ");
}

TEST_F(AsciiSchrijverTest, HetLogEindigtMetDeTotalen) {
  Schrijver().LogSlot({.personen = 12, .relaties = 3, .bronnen = 0});
  EXPECT_EQ(log_.Regels(),
            "Totaal 12 Personen ge\xEBxporteerd\nTotaal 3 Relaties ge\xEBxporteerd\n"
            "Totaal 0 Bronnen ge\xEBxpoteerd\nExporteren voltooid\n");
}

}  // namespace
}  // namespace lb77
