// Each rule by a person that has the line, and one that has not.
#include <string>
#include <utility>
#include <vector>

#include "exchange/GedcomPersoon.h"
#include "exchange/GedcomToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

namespace rubriek = persoonrubriek;

class GedcomPersoonToets : public GedcomToets {
 protected:
  // The lines of a nameless person with these fields.
  std::string Met(VeldWaarden velden) { return Persoon(Bouw().Persoon('?', "", "", velden)); }
  std::string Pl(std::string_view naam) { return std::to_string(Bouw().Plaats(naam)); }
};

TEST_F(GedcomPersoonToets, ZonderNamenEnFeitenIsErNietsDanZijnBanden) {
  EXPECT_EQ(Met({}), "");
}

TEST_F(GedcomPersoonToets, NamenStaanHeelEnInDelen) {
  EXPECT_EQ(Persoon(Bouw().Man("Jan", "Jansen")),
            "1 NAME Jan /Jansen/\n2 GIVN Jan\n2 SURN Jansen\n1 SEX M\n");
}

TEST_F(GedcomPersoonToets, EenVoorvoegselHeeftEenEigenRegel) {
  EXPECT_EQ(
      Persoon(Bouw().Man("Jan", "van den Berg")),
      "1 NAME Jan /van den Berg/\n2 GIVN Jan\n2 SURN van den Berg\n2 SPFX van den\n1 SEX M\n");
}

TEST_F(GedcomPersoonToets, EenWoordDatUitDeSorteervormValtOntbreektInDelen) {
  EXPECT_EQ(Persoon(Bouw().Persoon('?', "", "van Mijn Naam")),
            "1 NAME /van Mijn Naam/\n2 SURN van Naam\n2 SPFX van\n");
}

TEST_F(GedcomPersoonToets, EenKommaInDeNaamSplitstHaarOok) {
  EXPECT_EQ(Persoon(Bouw().Persoon('?', "", "Berg, baron")),
            "1 NAME /Berg, baron/\n2 SURN baron Berg\n2 SPFX baron\n");
  EXPECT_EQ(Persoon(Bouw().Persoon('?', "", "Berg,")), "1 NAME /Berg,/\n2 SURN Berg\n");
}

TEST_F(GedcomPersoonToets, EenVoorvoegselZonderNaamHeeftGeenRegel) {
  EXPECT_EQ(Persoon(Bouw().Persoon('?', "", ", van")), "1 NAME /, van/\n");
}

TEST_F(GedcomPersoonToets, VoornamenAlleenHebbenLegeStreepjes) {
  EXPECT_EQ(Persoon(Bouw().Persoon('?', "Jan", "")), "1 NAME Jan //\n2 GIVN Jan\n");
}

TEST_F(GedcomPersoonToets, EenAchternaamAlleenStaatVooraan) {
  EXPECT_EQ(Persoon(Bouw().Persoon('?', "", "Jansen")), "1 NAME /Jansen/\n2 SURN Jansen\n");
}

TEST_F(GedcomPersoonToets, NamenGaanInAnselEnVoorvoegselsNiet) {
  set_.schrijfwijze.voorvoegsels.Voor1 = "d\xE9";
  EXPECT_EQ(Persoon(Bouw().Persoon('?', "Ren\xE9", "d\xE9 N\xE9")),
            "1 NAME Ren\xE2"
            "e /d\xE2"
            "e N\xE2"
            "e/\n2 GIVN Ren\xE2"
            "e\n2 SURN d\xE9 N\xE2"
            "e\n2 SPFX d\xE9\n");
}

TEST_F(GedcomPersoonToets, AlleenManEnVrouwHebbenEenGeslacht) {
  EXPECT_EQ(Persoon(Bouw().Man("", "")), "1 SEX M\n");
  EXPECT_EQ(Persoon(Bouw().Vrouw("", "")), "1 SEX F\n");
  EXPECT_EQ(Persoon(Bouw().Persoon('O', "", "")), "");
  EXPECT_EQ(Persoon(Bouw().Persoon('m', "", "")), "");
}

TEST_F(GedcomPersoonToets, GeboorteMetDatumOfPlaats) {
  EXPECT_EQ(Met({{"GebDatum", "12-03-1890"}}), "1 BIRT\n2 DATE 12 MAR 1890\n");
  EXPECT_EQ(Met({{"GebPlaats", Pl("Breda")}}), "1 BIRT\n2 PLAC Breda\n");
}

TEST_F(GedcomPersoonToets, ElkeCodeVanDeGeboorteHeeftZijnWoord) {
  const auto datum = [this](std::string_view code) {
    return Met({{"GebDatum", "00-03-1890"}, {"GebCorr", code}});
  };
  EXPECT_EQ(datum("C"), "1 BIRT\n2 DATE ABT MAR 1890\n");
  EXPECT_EQ(datum("V"), "1 BIRT\n2 DATE BEF MAR 1890\n");
  EXPECT_EQ(datum("N"), "1 BIRT\n2 DATE AFT MAR 1890\n");
  EXPECT_EQ(datum("X"), "1 BIRT\n2 DATE MAR 1890\n");
}

TEST_F(GedcomPersoonToets, TussenNeemtDeDoopdatumEnLaatDeDoopWeg) {
  EXPECT_EQ(Met({{"GebCorr", "T"},
                 {"GebDatum", "00-00-1890"},
                 {"DoopDatum", "31-12-1895"},
                 {"DoopPlaats", Pl("Delft")},
                 {"DoopReligie", "NH"}}),
            "1 BIRT\n2 DATE BET 1890 AND 31 DEC 1895\n1 RELI Nederlands Hervormd\n");
}

TEST_F(GedcomPersoonToets, TussenZonderTweedeDatumHeeftNullen) {
  EXPECT_EQ(Met({{"GebCorr", "T"}, {"GebDatum", "00-00-1890"}}),
            "1 BIRT\n2 DATE BET 1890 AND 0000\n");
}

TEST_F(GedcomPersoonToets, EenCodeZonderGeboorteIsNiets) {
  EXPECT_EQ(Met({{"GebCorr", "C"}}), "");
}

TEST_F(GedcomPersoonToets, EenPlaatsVerliestZijnBepalingEnWordtNietOmgezet) {
  const std::int16_t nr = Bouw().Plaats("K\xF6ln");
  EXPECT_EQ(
      Met({{"GebPlaats", std::to_string(nr + 10000)}, {"OvlPlaats", std::to_string(nr + 20000)}}),
      "1 BIRT\n2 PLAC K\xF6ln\n1 DEAT\n2 PLAC K\xF6ln\n");
}

TEST_F(GedcomPersoonToets, EenPlaatsDieErNietIsGeeftGeenGeboorte) {
  EXPECT_EQ(Met({{"GebPlaats", "99"}}), "");
  EXPECT_EQ(Met({{"GebPlaats", "-1"}}), "");
}

TEST_F(GedcomPersoonToets, DoopMetDatumOfPlaats) {
  EXPECT_EQ(Met({{"DoopDatum", "01-04-1890"}}), "1 BAPM\n2 DATE 01 APR 1890\n");
  EXPECT_EQ(Met({{"DoopPlaats", Pl("Delft")}}), "1 BAPM\n2 PLAC Delft\n");
}

TEST_F(GedcomPersoonToets, EenCodeVanDeGeboorteGeldtNietVoorDeDoop) {
  EXPECT_EQ(Met({{"GebCorr", "C"}, {"DoopDatum", "01-04-1890"}}), "1 BAPM\n2 DATE 01 APR 1890\n");
}

TEST_F(GedcomPersoonToets, ReligieStaatBijDeDoopEnAlleen) {
  EXPECT_EQ(Met({{"DoopDatum", "01-04-1890"}, {"DoopReligie", "RK"}}),
            "1 BAPM\n2 DATE 01 APR 1890\n2 RELI Rooms Katholiek\n1 RELI Rooms Katholiek\n");
}

TEST_F(GedcomPersoonToets, EenDoopplaatsZonderDatumMetReligieGeeftTweeDopen) {
  EXPECT_EQ(Met({{"DoopPlaats", Pl("Delft")}, {"DoopReligie", "RK"}}),
            "1 BAPM\n2 PLAC Delft\n1 BAPM\n2 RELI Rooms Katholiek\n1 RELI Rooms Katholiek\n");
}

TEST_F(GedcomPersoonToets, ReligieAlleenGeeftEenDoop) {
  EXPECT_EQ(Met({{"DoopReligie", "rk"}}),
            "1 BAPM\n2 RELI Rooms Katholiek\n1 RELI Rooms Katholiek\n");
  EXPECT_EQ(Met({{"DoopReligie", "XX"}}), "1 BAPM\n2 RELI XX\n1 RELI XX\n");
  EXPECT_EQ(Met({{"DoopReligie", "GH"}}),
            "1 BAPM\n2 RELI Geref. \xE2"
            "e\xE2"
            "en\n1 RELI Geref. \xE2"
            "e\xE2"
            "en\n");
}

TEST_F(GedcomPersoonToets, OverlijdenMetDatumOfPlaats) {
  EXPECT_EQ(Met({{"OvlDatum", "05-06-1950"}}), "1 DEAT\n2 DATE 05 JUN 1950\n");
  EXPECT_EQ(Met({{"OvlDatum", "05-06-1950"}, {"OvlCorr", "V"}}),
            "1 DEAT\n2 DATE BEF 05 JUN 1950\n");
  EXPECT_EQ(Met({{"OvlPlaats", Pl("Gouda")}}), "1 DEAT\n2 PLAC Gouda\n");
  EXPECT_EQ(Met({{"OvlCorr", "C"}}), "");
}

TEST_F(GedcomPersoonToets, EenBegrafenisIsGeenCrematie) {
  EXPECT_EQ(Met({{"BegrDatum", "08-06-1950"}}), "1 BURI\n2 DATE 08 JUN 1950\n");
  EXPECT_EQ(Met({{"BegrPlaats", Pl("Gouda")}}), "1 BURI\n2 PLAC Gouda\n");
  EXPECT_EQ(Met({{"BegrDatum", "08-06-1950"}, {"BegrCrem", "1"}}), "1 CREM\n2 DATE 08 JUN 1950\n");
  EXPECT_EQ(Met({{"BegrCrem", "1"}}), "");
}

TEST_F(GedcomPersoonToets, OverledenTussenLaatDeBegrafenisWegMaarNietHaarPlaats) {
  EXPECT_EQ(Met({{"OvlCorr", "T"},
                 {"OvlDatum", "00-00-1950"},
                 {"BegrDatum", "00-00-1952"},
                 {"BegrPlaats", Pl("Gouda")}}),
            "1 DEAT\n2 DATE BET 1950 AND 1952\n2 PLAC Gouda\n");
  EXPECT_EQ(Met({{"OvlCorr", "T"}, {"BegrDatum", "00-00-1952"}, {"BegrCrem", "1"}}), "");
}

TEST_F(GedcomPersoonToets, EenBeroepGaatInAnsel) {
  EXPECT_EQ(Met({{"Beroep", "caf\xE9houder"}}),
            "1 OCCU caf\xE2"
            "ehouder\n");
}

// A remark turns its line on, with its event or without.
TEST_F(GedcomPersoonToets, EenOpmerkingAlleenGeeftEenLegeRegel) {
  struct Rij {
    std::int16_t rubriek;
    std::string regels;
  };
  const Rij rijen[] = {
      {rubriek::kVoornaam, "2 GIVN \n3 NOTE x\n"},
      {rubriek::kAchternaam, "2 SURN \n3 NOTE x\n"},
      {rubriek::kAlgemeen, "1 NOTE x\n"},
      {rubriek::kGebDatum, "2 DATE 0000\n3 NOTE x\n"},
      {rubriek::kGebPlaats, "2 PLAC \n3 NOTE x\n"},
      {rubriek::kDoopDatum, "2 DATE 0000\n3 NOTE x\n"},
      {rubriek::kDoopPlaats, "2 PLAC \n3 NOTE x\n"},
      {rubriek::kReligie, "1 BAPM\n2 RELI \n3 NOTE x\n1 RELI \n2 NOTE x\n"},
      {rubriek::kOvlDatum, "2 DATE 0000\n3 NOTE x\n"},
      {rubriek::kOvlPlaats, "2 PLAC \n3 NOTE x\n"},
      {rubriek::kBegrDatum, "2 DATE 0000\n3 NOTE x\n"},
      {rubriek::kBegrPlaats, "2 PLAC \n3 NOTE x\n"},
      {rubriek::kBeroep, "1 OCCU \n2 NOTE x\n"},
  };
  std::vector<std::pair<std::int16_t, const Rij*>> personen;
  for (const Rij& rij : rijen) {
    personen.emplace_back(Bouw().Persoon('?', "", ""), &rij);
    Bouw().OpmerkingBijPersoon(personen.back().first, rij.rubriek, {"x"});
  }
  for (const auto& [nr, rij] : personen) EXPECT_EQ(Persoon(nr), rij->regels) << rij->rubriek;
}

TEST_F(GedcomPersoonToets, EenOpmerkingStaatAchterHaarRegel) {
  const std::int16_t nr = Bouw().Man("Jan", "van Dam",
                                     {{"GebDatum", "12-03-1890"},
                                      {"GebPlaats", Pl("Breda")},
                                      {"DoopDatum", "01-04-1890"},
                                      {"DoopPlaats", Pl("Delft")},
                                      {"DoopReligie", "RK"},
                                      {"OvlDatum", "05-06-1950"},
                                      {"OvlPlaats", Pl("Gouda")},
                                      {"BegrDatum", "08-06-1950"},
                                      {"BegrPlaats", Pl("Hoorn")},
                                      {"Beroep", "smid"}});
  for (const RubriekNaam& naam : kPersoonRubrieken) {
    Bouw().OpmerkingBijPersoon(nr, naam.rubriek, {"r" + std::to_string(naam.rubriek)});
  }
  EXPECT_EQ(
      Persoon(nr),
      "1 NAME Jan /van Dam/\n2 GIVN Jan\n3 NOTE r2\n2 SURN van Dam\n3 NOTE r1\n2 SPFX van\n"
      "1 SEX M\n1 NOTE r4096\n1 BIRT\n2 DATE 12 MAR 1890\n3 NOTE r8\n2 PLAC Breda\n3 NOTE r4\n"
      "1 BAPM\n2 DATE 01 APR 1890\n3 NOTE r32\n2 PLAC Delft\n3 NOTE r16\n"
      "2 RELI Rooms Katholiek\n3 NOTE r64\n1 RELI Rooms Katholiek\n2 NOTE r64\n"
      "1 DEAT\n2 DATE 05 JUN 1950\n3 NOTE r256\n2 PLAC Gouda\n3 NOTE r128\n"
      "1 BURI\n2 DATE 08 JUN 1950\n3 NOTE r1024\n2 PLAC Hoorn\n3 NOTE r512\n"
      "1 OCCU smid\n2 NOTE r2048\n");
}

TEST_F(GedcomPersoonToets, EenOpmerkingBijEenVrouwStaatAchterHaarGeslacht) {
  const std::int16_t nr = Bouw().Vrouw("", "");
  Bouw().OpmerkingBijPersoon(nr, rubriek::kAlgemeen, {"x"});
  EXPECT_EQ(Persoon(nr), "1 SEX F\n1 NOTE x\n");
}

TEST_F(GedcomPersoonToets, EenCrematieStaatAchterDePlaatsVanHetOverlijden) {
  EXPECT_EQ(Met({{"OvlPlaats", Pl("Gouda")}, {"BegrDatum", "08-06-1950"}, {"BegrCrem", "1"}}),
            "1 DEAT\n2 PLAC Gouda\n1 CREM\n2 DATE 08 JUN 1950\n");
}

TEST_F(GedcomPersoonToets, OnderTussenBlijvenDeOpmerkingenVanDeDoopWeg) {
  const std::int16_t nr =
      Bouw().Persoon('?', "", "", {{"GebCorr", "T"}, {"GebDatum", "00-00-1890"}});
  for (const std::int16_t deze : {rubriek::kDoopDatum, rubriek::kDoopPlaats, rubriek::kReligie}) {
    Bouw().OpmerkingBijPersoon(nr, deze, {"x"});
  }
  EXPECT_EQ(Persoon(nr), "1 BIRT\n2 DATE BET 1890 AND 0000\n1 RELI \n2 NOTE x\n");
}

TEST_F(GedcomPersoonToets, OnderOverledenTussenBlijftAlleenDePlaatsVanDeBegrafenis) {
  const std::int16_t nr =
      Bouw().Persoon('?', "", "", {{"OvlCorr", "T"}, {"OvlDatum", "00-00-1950"}});
  for (const std::int16_t deze : {rubriek::kBegrDatum, rubriek::kBegrPlaats}) {
    Bouw().OpmerkingBijPersoon(nr, deze, {"x"});
  }
  EXPECT_EQ(Persoon(nr), "1 DEAT\n2 DATE BET 1950 AND 0000\n2 PLAC \n3 NOTE x\n");
}

TEST_F(GedcomPersoonToets, EenDoopdatumMetAlleenEenOpmerkingGeeftGeenTweedeDoop) {
  const std::int16_t nr = Bouw().Persoon('?', "", "", {{"DoopReligie", "RK"}});
  Bouw().OpmerkingBijPersoon(nr, rubriek::kDoopDatum, {"x"});
  EXPECT_EQ(Persoon(nr), "2 DATE 0000\n3 NOTE x\n2 RELI Rooms Katholiek\n1 RELI Rooms Katholiek\n");
}

TEST_F(GedcomPersoonToets, EenStuurtekenInEenNaamWordtEenSpatie) {
  EXPECT_EQ(Persoon(Bouw().Persoon('?', "Jan\r\n0 TRLR", "")),
            "1 NAME Jan  0 TRLR //\n2 GIVN Jan  0 TRLR\n");
}

TEST_F(GedcomPersoonToets, BandenGaanNaarGekozenRelaties) {
  const std::int16_t kind = Bouw().Persoon('?', "", "");
  const std::int16_t ouders = Bouw().Relatie(0, 0, {kind});
  const std::int16_t een = Bouw().Relatie(kind, 0);
  const std::int16_t twee = Bouw().Relatie(kind, 0);
  EXPECT_EQ(Persoon(kind), "");
  KiesRelaties({twee});
  EXPECT_EQ(Persoon(kind), "1 FAMS @F" + std::to_string(twee) + "@\n");
  KiesRelaties({ouders, een});
  EXPECT_EQ(Persoon(kind), "1 FAMC @F2@\n1 FAMS @F3@\n1 FAMS @F4@\n");
}

TEST_F(GedcomPersoonToets, VijfRelatiesKomenUitTweeRecords) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  for (int i = 0; i < 5; ++i) KiesRelaties({Bouw().Relatie(nr, 0)});
  EXPECT_EQ(Persoon(nr), "1 FAMS @F2@\n1 FAMS @F3@\n1 FAMS @F4@\n1 FAMS @F5@\n1 FAMS @F6@\n");
}

TEST_F(GedcomPersoonToets, EenVervolgDatErNietIsWordtGemeld) {
  KiesRelaties({2, 3, 4});
  const std::int16_t nr =
      Bouw().Persoon('?', "", "", {{"Relatie1", "2"}, {"Relatie2", "3"}, {"Relatie3", "-77"}});
  EXPECT_EQ(Persoon(nr), "1 FAMS @F2@\n1 FAMS @F3@\n");
  EXPECT_EQ(set_.Getoond(),
            std::vector<std::string>{R"~(! stop "Leesfout bij persoonsrecord 77")~"});
  Bouw().WijzigPersoon(nr, {{"Relatie3", "-32768"}});
  EXPECT_EQ(Persoon(nr), "1 FAMS @F2@\n1 FAMS @F3@\n");
  EXPECT_EQ(set_.Getoond(),
            std::vector<std::string>{R"~(! stop "Leesfout bij persoonsrecord 32768")~"});
}

}  // namespace
}  // namespace lb77
