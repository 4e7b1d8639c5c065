// The third pass: notes, what becomes one, where it lands and how it is wrapped.
#include <gtest/gtest.h>

#include "exchange/ImportToets.h"

namespace lb77 {
namespace {

class ImpOpmerkingenTest : public ImportToets {
 protected:
  // The remarks of one person, or of one relation, with these lines.
  std::string BijPersoon(std::string_view regels, const Plek& plek = Plek::current()) {
    Importeer("0 HEAD\n0 @I1@ INDI\n" + std::string(regels) + "\n0 TRLR\n", "", plek);
    return OpmBijPersoon(Laatste([](Hoofdmodule& h) { return h.Persoon.AantalRecords(); }));
  }
  std::string BijRelatie(std::string_view regels, const Plek& plek = Plek::current()) {
    Importeer("0 HEAD\n0 @F1@ FAM\n" + std::string(regels) + "\n0 TRLR\n", "", plek);
    return OpmBijRelatie(Laatste([](Hoofdmodule& h) { return h.Relatie.AantalRecords(); }));
  }

 private:
  std::int16_t Laatste(const std::function<std::int16_t(Hoofdmodule&)>& aantal) {
    std::int16_t nr = 0;
    InSessie([&](Hoofdmodule& hoofd) { nr = aantal(hoofd); });
    return nr;
  }
};

TEST_F(ImpOpmerkingenTest, EenNotitieGaatVerderMetOfZonderSpatie) {
  EXPECT_EQ(BijPersoon("1 NOTE Een\n2 CONT twee\n2 CONC drie\n2 CONT  vier"),
            "4096 Een tweedrie  vier\n");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpOpmerkingenTest, EenVerwijzingIsTekst) {
  EXPECT_EQ(BijPersoon("1 NOTE @N1@\n0 @N1@ NOTE tekst\n1 CONT meer"), "4096 @N1@\n");
  EXPECT_EQ(LogRegels(), "LET OP: NOTE niet overgenomen: 1 keer, voor het eerst in regel 4\n");
}

TEST_F(ImpOpmerkingenTest, LabelsDieEenNotitieWorden) {
  EXPECT_EQ(BijPersoon(R"(1 _COMM a
1 _ALIA b
1 ADDR c
1 RFN d
1 AFN e
1 TYPE f
1 SOUR g
1 CAUS h
1 TEXT i)"),
            "4096 a\n4096 alias b\n4096 Adres: c\n4096 Extern nummer (RFN): d\n"
            "4096 Ancestral File Number (AFN): e\n4096 TYPE: f\n4096 Bron: g\n4096 Oorzaak: h\n"
            "4096 i\n");
}

TEST_F(ImpOpmerkingenTest, VervolgregelsVanZulkeLabelsHorenBijDeNotitie) {
  EXPECT_EQ(BijPersoon("1 ADDR Straat 1\n2 CONT Delft\n1 SOUR @S1@\n2 CONC x"),
            "4096 Adres: Straat 1 Delft\n4096 Bron: @S1@x\n");
}

TEST_F(ImpOpmerkingenTest, VervolgregelsVanAndereLabelsStaanMetTabsInHetVerslag) {
  EXPECT_EQ(BijPersoon("1 OCCU bakker\n2 CONT en smid\n2 CONC s"), "");
  EXPECT_EQ(LogRegels(),
            "Vervolgregels worden alleen voor NOTES ondersteund...\n"
            "P-I1\tINDI-OCCU-CONT\ten smid\n"
            "Vervolgregels worden alleen voor NOTES ondersteund...\n"
            "P-I1\tINDI-OCCU-CONC\ts\n");
}

TEST_F(ImpOpmerkingenTest, VervolgregelsVanEenInzenderWordenNietGemeld) {
  Importeer(Ged("0 @M1@ SUBM\n1 CONT a\n1 ADDR b\n2 CONT c"));
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpOpmerkingenTest, GebeurtenissenWordenVerteld) {
  EXPECT_EQ(
      BijPersoon("1 EVEN iets\n2 TYPE Verhuizing\n2 DATE 3 MAY 1890\n2 NOTE zomaar\n2 SOUR @S@"),
      "4096 INDI-EVEN : TYPE: Verhuizing\n4096 INDI-EVEN-DATE : 3 MAY 1890\n"
      "4096 INDI-EVEN-NOTE : zomaar\n4096 INDI-EVEN-NOTE : Bron: @S@\n");
  EXPECT_EQ(BijRelatie("1 EVEN\n2 PLAC Delft"), "-256 FAM-EVEN-PLAC : Delft\n");
}

TEST_F(ImpOpmerkingenTest, AdoptiesWordenVerteld) {
  EXPECT_EQ(BijPersoon("1 ADOP\n2 DATE ABT 3 MAY 1890\n2 FAMC @F1@\n2 NOTE zomaar\n3 CONT x"),
            "4096 Adoptie: C 03-05-1890\n4096 Adoptie: @F1@\n4096 Adoptie: zomaar x\n");
}

TEST_F(ImpOpmerkingenTest, EenAdoptieOpEenOnbekendeDag) {
  EXPECT_EQ(BijPersoon("1 ADOP\n2 DATE ooit in 18"), "4096 Adoptie:   00-00-0000\n");
  EXPECT_EQ(LogRegels(),
            "P-I1 - Onbekende tag: INDI-ADOP-DATE : ooit in 18\n"
            "P-I1 - Onbekende datum: ooit in 18\n");
}

struct RubriekGeval {
  std::string_view pad;
  int rubriek;
  std::string_view voor = "";
};

void PrintTo(const RubriekGeval& geval, std::ostream* os) {
  *os << geval.pad;
}

class ImpRubriekTest : public ImpOpmerkingenTest,
                       public ::testing::WithParamInterface<RubriekGeval> {};

// The lines that lead to a path, and a note below the last.
std::string LijnenVan(std::string_view pad) {
  std::string uit;
  int level = -1;
  for (std::size_t begin = 0; begin <= pad.size();) {
    const std::size_t eind = std::min(pad.find('-', begin), pad.size());
    if (++level > 0)
      uit += std::to_string(level) + " " + std::string(pad.substr(begin, eind - begin)) + "\n";
    begin = eind + 1;
  }
  return uit + std::to_string(level + 1) + " NOTE tekst";
}

TEST_P(ImpRubriekTest, KomtBijZijnOnderdeel) {
  const RubriekGeval& geval = GetParam();
  const std::string verwacht =
      std::to_string(geval.rubriek) + " " + std::string(geval.voor) + "tekst\n";
  const std::string lijnen = LijnenVan(geval.pad);
  EXPECT_EQ(geval.rubriek > 0 ? BijPersoon(lijnen) : BijRelatie(lijnen), verwacht);
}

INSTANTIATE_TEST_SUITE_P(
    Persoon, ImpRubriekTest,
    ::testing::Values(RubriekGeval{"INDI", 4096},
                      RubriekGeval{"INDI-EVEN", 4096, "INDI-EVEN-NOTE : "},
                      RubriekGeval{"INDI-ADOP", 4096, "Adoptie: "}, RubriekGeval{"INDI-FAMC", 4096},
                      RubriekGeval{"INDI-NAME-GIVN", 2}, RubriekGeval{"INDI-NAME", 1},
                      RubriekGeval{"INDI-NAME-SURN", 1}, RubriekGeval{"INDI-BIRT", 8},
                      RubriekGeval{"INDI-BIRT-DATE", 8}, RubriekGeval{"INDI-BIRT-PLAC", 4},
                      RubriekGeval{"INDI-BAPT", 32}, RubriekGeval{"INDI-BAPT-DATE", 32},
                      RubriekGeval{"INDI-BAPM", 32}, RubriekGeval{"INDI-BAPM-DATE", 32},
                      RubriekGeval{"INDI-CHR", 32}, RubriekGeval{"INDI-CHR-DATE", 32},
                      RubriekGeval{"INDI-BAPT-PLAC", 16}, RubriekGeval{"INDI-BAPM-PLAC", 16},
                      RubriekGeval{"INDI-CHR-PLAC", 16}, RubriekGeval{"INDI-DEAT", 256},
                      RubriekGeval{"INDI-DEAT-DATE", 256}, RubriekGeval{"INDI-DEAT-PLAC", 128},
                      RubriekGeval{"INDI-BURR-DATE", 1024}, RubriekGeval{"INDI-BURR-PLAC", 512},
                      RubriekGeval{"INDI-OCCU", 2048},
                      // kept: a burial has no row of its own
                      RubriekGeval{"INDI-BURI", 4096}, RubriekGeval{"INDI-BURI-DATE", 4096},
                      RubriekGeval{"INDI-BURR", 4096}, RubriekGeval{"INDI-SEX", 4096},
                      RubriekGeval{"INDI-NOTE", 4096}));

INSTANTIATE_TEST_SUITE_P(
    Relatie, ImpRubriekTest,
    ::testing::Values(
        RubriekGeval{"FAM", -256}, RubriekGeval{"FAM-EVEN", -256, "FAM-EVEN-NOTE : "},
        RubriekGeval{"FAM-MARR", -256}, RubriekGeval{"FAM-MARR-MARL", -2},
        RubriekGeval{"FAM-MARR-MARL-DATE", -2}, RubriekGeval{"FAM-MARR-MARB", -2},
        RubriekGeval{"FAM-MARR-MARB-DATE", -2}, RubriekGeval{"FAM-MARR-MARL-PLAC", -1},
        RubriekGeval{"FAM-MARR-MARB-PLAC", -1}, RubriekGeval{"FAM-MARR-MARR", -8},
        RubriekGeval{"FAM-MARR-MARR-DATE", -8}, RubriekGeval{"FAM-MARR-MARR-PLAC", -4},
        RubriekGeval{"FAM-MARR-MARC", -64}, RubriekGeval{"FAM-MARR-MARC-DATE", -64},
        RubriekGeval{"FAM-MARR-MARC-PLAC", -32}, RubriekGeval{"FAM-DIV", -256, "Opm_Scheiding: "},
        RubriekGeval{"FAM-ANUL", -256, "Opm_Scheiding: "},
        RubriekGeval{"FAM-DIV-DATE", -256, "Opm_Datum_Scheiding: "},
        RubriekGeval{"FAM-ANUL-DATE", -256, "Opm_Datum_Scheiding: "},
        RubriekGeval{"FAM-DIV-PLAC", -256, "Opm_Plaats_Scheiding: "},
        RubriekGeval{"FAM-ANUL-PLAC", -256, "Opm_Plaats_Scheiding: "},
        RubriekGeval{"FAM-MARB", -256}, RubriekGeval{"FAM-MARR-DATE", -256},
        RubriekGeval{"FAM-HUSB", -256}));

TEST_F(ImpOpmerkingenTest, DeCodeVanDeEigenaarVoegtAlleRubriekenSamen) {
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 NOTE a
      1 BIRT
      2 NOTE b
      2 PLAC Delft
      3 NOTE c
      0 @F1@ FAM
      1 MARR
      2 NOTE d
      2 MARL
      3 NOTE e
      2 MARC
      3 PLAC Breda
      4 NOTE f
    )"));
  EXPECT_EQ(Persoon(2), "te 2; opm 4108");
  EXPECT_EQ(OpmBijPersoon(2), "4096 a\n8 b\n4 c\n");
  EXPECT_EQ(Relatie(2), "opm -290");
  EXPECT_EQ(OpmBijRelatie(2), "-256 d\n-2 e\n-32 f\n");
}

TEST_F(ImpOpmerkingenTest, NotitiesVanAndereRecordsVervallen) {
  Importeer(
      Ged("1 NOTE a\n2 CONT b\n0 @I1@ INDI\n0 @S1@ SOUR\n1 NOTE c\n1 TEXT d\n2 CONC e\n"
          "0 @R1@ REPO\n1 NOTE f"));
  EXPECT_EQ(Aantallen(), "2 1 1 1");
  EXPECT_EQ(LogRegels(),
            "A-S1 - Onbekende tag: SOUR-TEXT : d\n"
            "LET OP: NOTE niet overgenomen: 3 keer, voor het eerst in regel 2\n");
}

TEST_F(ImpOpmerkingenTest, OokDeLaatsteNotitieVanHetBestandWordtOpgeslagen) {
  Importeer(Ged("0 @I1@ INDI\n0 @F1@ FAM\n1 NOTE slot"));
  EXPECT_EQ(OpmBijRelatie(2), "-256 slot\n");
}

TEST_F(ImpOpmerkingenTest, EenLegeNotitieMaaktGeenOpmerking) {
  EXPECT_EQ(BijPersoon("1 NOTE\n1 NOTE  \n2 CONT"), "");
  EXPECT_EQ(Aantallen(), "2 1 1 1");
}

TEST_F(ImpOpmerkingenTest, OpmerkingenZijnVoorAlleSoortenUitvoer) {
  EXPECT_EQ(BijPersoon("1 NOTE a"), "4096 a\n");
  InSessie([](Hoofdmodule& hoofd) {
    hoofd.volgers.HuidigOpmNr = 2;
    ASSERT_TRUE(hoofd.Opmerking.Lees());
    EXPECT_EQ(hoofd.Opmerking.BijProg(), 23);
    EXPECT_EQ(hoofd.Opmerking.BijRecord(), 2);
  });
}

TEST_F(ImpOpmerkingenTest, EenNotitieWordtBijSpatiesAfgebroken) {
  const std::string zeventig(70, 'a');
  EXPECT_EQ(BijPersoon("1 NOTE " + zeventig + " bbbbbbbbb cc"),
            "4096 " + zeventig + " bbbbbbbbb|cc\n");
  EXPECT_EQ(BijPersoon("1 NOTE " + zeventig + " bbbbbbbbbb cc"),
            "4096 " + zeventig + "|bbbbbbbbbb cc\n");
}

TEST_F(ImpOpmerkingenTest, EenTeLangWoordEindigtDeOpmerking) {
  const std::string lang(81, 'x');
  EXPECT_EQ(BijPersoon("1 NOTE begin " + lang + " eind"), "4096 begin\n");
  EXPECT_EQ(BijPersoon("1 NOTE " + lang + " eind"), "");
}

TEST_F(ImpOpmerkingenTest, EenOpmerkingHeeftHoogstensTienRegels) {
  std::string tekst = "1 NOTE";
  std::string verwacht = "4096 ";
  for (int i = 0; i < 12; ++i) {
    const std::string regel(79, static_cast<char>('a' + i));
    tekst += " " + regel;
    if (i < 10) verwacht += (i > 0 ? "|" : "") + regel;
  }
  EXPECT_EQ(BijPersoon(tekst), verwacht + "\n");
}

TEST_F(ImpOpmerkingenTest, EenAccentEnZijnLetterOpTweeRegelsWordenEenTeken) {
  Importeer("0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NOTE Andr\xE2\n2 CONC e\n0 TRLR\n");
  EXPECT_EQ(OpmBijPersoon(2), "4096 Andr\xE9\n");
}

TEST_F(ImpOpmerkingenTest, OpmerkingenKomenAchterDieDePersoonAlHeeft) {
  Importeer(Ged("0 @I1@ INDI\n1 NOTE a\n0 @I2@ INDI\n1 NOTE b\n0 @I1@ INDI\n1 NOTE c"));
  EXPECT_EQ(OpmBijPersoon(2) + OpmBijPersoon(3) + OpmBijPersoon(4), "4096 a\n4096 b\n4096 c\n");
}

TEST_F(ImpOpmerkingenTest, OpmerkingenVanEenVeelgehuwdeGaanNaarHetHoofdrecord) {
  std::string regels;
  for (int i = 1; i <= 5; ++i) regels += "1 FAMS @F" + std::to_string(i) + "@\n";
  Importeer("0 HEAD\n0 @I1@ INDI\n" + regels + "1 NOTE a\n0 @I2@ INDI\n1 NOTE b\n0 TRLR\n");
  EXPECT_EQ(OpmBijPersoon(2) + OpmBijPersoon(3) + OpmBijPersoon(4), "4096 a\n4096 b\n");
}

TEST_F(ImpOpmerkingenTest, EenPadVanEenAnderSoortRecordWordtNietGevolgd) {
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 BIRT
      0 @F1@ FAM
      2 NOTE dwaalt
      1 NOTE hoort hier
    )"));
  EXPECT_EQ(OpmBijPersoon(2), "");
  EXPECT_EQ(OpmBijRelatie(2), "-256 hoort hier\n");
  EXPECT_EQ(LogRegels(), "LET OP: NOTE niet overgenomen: 1 keer, voor het eerst in regel 5\n");
}

}  // namespace
}  // namespace lb77
