// Each rule by a relation that has the line, and one that has not.
#include <string>
#include <utility>
#include <vector>

#include "exchange/GedcomRelatie.h"
#include "exchange/GedcomToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

class GedcomRelatieToets : public GedcomToets {
 protected:
  // The lines of a relation of nobody with these fields.
  std::string Met(VeldWaarden velden) { return Relatie(Bouw().Relatie(0, 0, {}, velden)); }
  std::string Pl(std::string_view naam) { return std::to_string(Bouw().Plaats(naam)); }
  // The last person written has remarks of this code.
  void LaatstePersoonHeeft(int code) {
    const std::int16_t nr = Bouw().Man("Jan", "", {{"OpmCode", std::to_string(code)}});
    static_cast<void>(Persoon(nr));
  }
};

TEST_F(GedcomRelatieToets, ZonderFeitenIsErNiets) {
  EXPECT_EQ(Met({}), "");
}

TEST_F(GedcomRelatieToets, BandenGaanNaarGekozenPersonen) {
  const std::int16_t man = Bouw().Man("", "");
  const std::int16_t vrouw = Bouw().Vrouw("", "");
  const std::int16_t kind = Bouw().Man("", "");
  const std::int16_t nr = Bouw().Relatie(man, vrouw, {kind});
  EXPECT_EQ(Relatie(nr), "");
  KiesPersonen({vrouw});
  EXPECT_EQ(Relatie(nr), "1 WIFE @I3@\n");
  KiesPersonen({kind, man});
  EXPECT_EQ(Relatie(nr), "1 HUSB @I2@\n1 WIFE @I3@\n1 CHIL @I4@\n");
}

TEST_F(GedcomRelatieToets, NegenentwintigKinderenKomenUitTweeRecords) {
  std::vector<std::int16_t> kinderen;
  std::string verwacht;
  for (int i = 0; i < 29; ++i) {
    kinderen.push_back(Bouw().Persoon('?', "", ""));
    KiesPersonen({kinderen.back()});
    verwacht += "1 CHIL @I" + std::to_string(kinderen.back()) + "@\n";
  }
  EXPECT_EQ(Relatie(Bouw().Relatie(0, 0, kinderen)), verwacht);
}

TEST_F(GedcomRelatieToets, EenVervolgDatErNietIsWordtGemeld) {
  KiesPersonen({2, 3});
  const std::int16_t nr =
      Bouw().Relatie(0, 0, {}, {{"Kind1", "2"}, {"Kind14", "3"}, {"Kind15", "-88"}});
  EXPECT_EQ(Relatie(nr), "1 CHIL @I2@\n1 CHIL @I3@\n");
  EXPECT_EQ(set_.Getoond(),
            std::vector<std::string>{R"~(! stop "Leesfout bij relatierecord 88")~"});
  Bouw().WijzigRelatie(nr, {{"Kind15", "-32768"}});
  EXPECT_EQ(Relatie(nr), "1 CHIL @I2@\n1 CHIL @I3@\n");
  EXPECT_EQ(set_.Getoond(),
            std::vector<std::string>{R"~(! stop "Leesfout bij relatierecord 32768")~"});
}

TEST_F(GedcomRelatieToets, OndertrouwMetDatumOfPlaats) {
  EXPECT_EQ(Met({{"OtrDatum", "12-03-1890"}}), "1 MARB\n2 DATE 12 MAR 1890\n");
  EXPECT_EQ(Met({{"OtrPlaats", Pl("K\xF6ln")}}), "1 MARB\n2 PLAC K\xF6ln\n");
}

TEST_F(GedcomRelatieToets, HuwelijkMetDatumOfPlaats) {
  EXPECT_EQ(Met({{"WHuwDatum", "00-03-1890"}}), "1 MARR\n2 DATE MAR 1890\n");
  EXPECT_EQ(Met({{"WHuwPlaats", Pl("Breda")}}), "1 MARR\n2 PLAC Breda\n");
  EXPECT_EQ(Met({{"WHuwDatum", "00-03-1890"}, {"HuwCorr", "N"}}), "1 MARR\n2 DATE AFT MAR 1890\n");
  EXPECT_EQ(Met({{"HuwCorr", "N"}}), "");
}

TEST_F(GedcomRelatieToets, WieNietGehuwdIsHeeftAltijdEenMARC) {
  EXPECT_EQ(Met({{"HuwSwPs", "Sw"}}), "1 MARC\n");
  EXPECT_EQ(Met({{"HuwSwPs", "Ps"}, {"WHuwDatum", "01-04-1990"}, {"WHuwPlaats", Pl("Breda")}}),
            "1 MARC\n2 DATE 01 APR 1990\n2 PLAC Breda\n");
}

TEST_F(GedcomRelatieToets, DeSoortStaatOnderWatErVoorStaat) {
  EXPECT_EQ(Met({{"WHuwDatum", "01-04-1890"}, {"HuwSoort", "GH"}}),
            "1 MARR\n2 DATE 01 APR 1890\n2 LMAR Geref. \xE9\xE9n\n");
  EXPECT_EQ(Met({{"HuwSoort", "XX"}}), "2 LMAR XX\n");
}

TEST_F(GedcomRelatieToets, EenScheidingIsGeenInzegening) {
  EXPECT_EQ(Met({{"KHuwDatum", "02-04-1890"}, {"KHuwPlaats", Pl("Breda")}, {"Religie", "RK"}}),
            "1 ORDI\n2 DATE 02 APR 1890\n2 PLAC Breda\n2 RELI Rooms Katholiek\n");
  EXPECT_EQ(Met({{"KHuwPlaats", Pl("Delft")}}), "1 ORDI\n2 PLAC Delft\n");
  EXPECT_EQ(Met({{"KHuwDatum", "02-04-1899"}, {"KHuwSch", "1"}, {"Religie", "RK"}}),
            "1 DIVF\n2 DATE 02 APR 1899\n");
  EXPECT_EQ(Met({{"KHuwSch", "1"}}), "");
}

TEST_F(GedcomRelatieToets, ReligieGaatInAnselOokZonderInzegening) {
  EXPECT_EQ(Met({{"Religie", "GH"}}),
            "2 RELI Geref. \xE2"
            "e\xE2"
            "en\n");
}

TEST_F(GedcomRelatieToets, TussenNeemtDeKerkelijkeDatumEnLaatHaarPlaatsStaan) {
  EXPECT_EQ(Met({{"HuwCorr", "T"},
                 {"WHuwDatum", "00-00-1890"},
                 {"KHuwDatum", "00-00-1895"},
                 {"KHuwPlaats", Pl("Delft")}}),
            "1 MARR\n2 DATE BET 1890 AND 1895\n2 PLAC Delft\n");
  EXPECT_EQ(Met({{"HuwCorr", "T"}, {"KHuwDatum", "00-00-1895"}, {"KHuwSch", "1"}}), "");
}

TEST_F(GedcomRelatieToets, DeOpmerkingenZijnDieVanDeLaatstePersoon) {
  const std::int16_t nr = Bouw().Relatie(0, 0);
  Bouw().OpmerkingBijRelatie(nr, relatierubriek::kAlgemeen, {"een eigen opmerking"});
  EXPECT_EQ(Relatie(nr), "");
}

// A code is tested against the number of the rubric in two's complement.
TEST_F(GedcomRelatieToets, DeCodeVanDeLaatstePersoonZetRegelsAan) {
  struct Rij {
    int code;
    std::string regels;
  };
  const std::string otrPlaats = "1 MARB\n2 PLAC \n";
  const std::string otr = "1 MARB\n2 DATE 0000\n2 PLAC \n";
  const std::string huwPlaats = "1 MARR\n2 PLAC \n";
  const std::string huw = "1 MARR\n2 DATE 0000\n2 PLAC \n";
  const Rij rijen[] = {
      {0, ""},
      {1, otrPlaats},
      {2, otr},
      {4, otr + huwPlaats},
      {8, otr + huw},
      {16, otr + huw},
      {32, otr + huw + "2 PLAC \n"},
      {64, otr + huw + "2 DATE 0000\n2 PLAC \n"},
      {4096, otr + huw + "2 DATE 0000\n2 PLAC \n"},
      {3, otr},
  };
  const std::int16_t nr = Bouw().Relatie(0, 0);
  for (const Rij& rij : rijen) {
    LaatstePersoonHeeft(rij.code);
    EXPECT_EQ(Relatie(nr), rij.regels) << rij.code;
  }
}

TEST_F(GedcomRelatieToets, DeCodeZetRegelsOokBijWieNietGehuwdIs) {
  LaatstePersoonHeeft(8);
  EXPECT_EQ(Met({{"HuwSwPs", "Sw"}}),
            "1 MARB\n2 DATE 0000\n2 PLAC \n1 MARC\n2 DATE 0000\n2 PLAC \n");
}

TEST_F(GedcomRelatieToets, OnderTussenBlijftDeKerkelijkeDatumWeg) {
  LaatstePersoonHeeft(64);
  EXPECT_EQ(Met({{"HuwCorr", "T"}}),
            "1 MARB\n2 DATE 0000\n2 PLAC \n1 MARR\n2 DATE BET 0000 AND 0000\n2 PLAC \n2 PLAC \n");
}

TEST_F(GedcomRelatieToets, EenPersoonDieNietGehaaldIsVerandertDeCodeNiet) {
  const std::int16_t nr = Bouw().Relatie(0, 0);
  LaatstePersoonHeeft(1);
  const std::int16_t vervolg = Bouw().Persoon('?', "", "", {{"GebCorr", "Z"}});
  EXPECT_EQ(Persoon(vervolg), "");
  EXPECT_EQ(Persoon(99), "");
  EXPECT_EQ(Relatie(nr), "1 MARB\n2 PLAC \n");
  LaatstePersoonHeeft(0);
  EXPECT_EQ(Relatie(nr), "");
}

TEST_F(GedcomRelatieToets, OpmerkingenVanDieZelfKomenNietBijEenRelatie) {
  const std::int16_t persoon = Bouw().Man("Jan", "");
  for (const RubriekNaam& naam : kPersoonRubrieken) {
    Bouw().OpmerkingBijPersoon(persoon, naam.rubriek, {"x"});
  }
  static_cast<void>(Persoon(persoon));
  const std::int16_t nr = Bouw().Relatie(0, 0, {}, {{"OtrDatum", "12-03-1890"}});
  EXPECT_EQ(Relatie(nr).find("NOTE"), std::string::npos);
  EXPECT_EQ(log_.Regels(), "");
}

TEST_F(GedcomRelatieToets, EenKettingDieAfbreektStaatInHetVerslagOnderDeRelatie) {
  const std::int16_t persoon = Bouw().Man("Jan", "", {{"OpmCode", "1"}, {"OpmRecord", "55"}});
  static_cast<void>(Persoon(persoon));
  static_cast<void>(log_.Neem());
  const std::int16_t nr = Bouw().Relatie(0, 0, {}, {{"OtrDatum", "12-03-1890"}});
  EXPECT_EQ(Relatie(nr), "1 MARB\n2 DATE 12 MAR 1890\n2 PLAC \n");
  EXPECT_EQ(log_.Regels(),
            "3 NOTE R2 >> Verkeerde verwijzing: opm-record 55 bestaat niet << (opm-reeks start bij "
            "opm-record: 55)\n");
}

TEST_F(GedcomRelatieToets, EenRelatieDieErNietIsOfVervolgIsHeeftAlleenHaarEersteRegel) {
  const std::int16_t vervolg =
      Bouw().Relatie(0, 0, {}, {{"HuwCorr", "Z"}, {"OtrDatum", "12-03-1890"}});
  EXPECT_EQ(Relatie(vervolg), "");
  EXPECT_EQ(Relatie(99), "");
  EXPECT_EQ(log_.Regels(), "");
  EXPECT_TRUE(set_.Getoond().empty());
}

}  // namespace
}  // namespace lb77
