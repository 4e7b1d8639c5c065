#include <cstddef>
#include <string>
#include <vector>

#include "exchange/GedcomSchrijver.h"
#include "exchange/GedcomToets.h"
#include "store/Rubrieken.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

namespace rubriek = persoonrubriek;

class GedcomSchrijverToets : public GedcomToets {
 protected:
  static std::vector<std::string> Regels(int aantal, const std::string& begin) {
    std::vector<std::string> uit;
    for (int i = 1; i <= aantal; ++i) uit.push_back(begin + std::to_string(i));
    return uit;
  }
  // The closing lines behind the totals.
  std::string LogEinde() {
    Schrijver().LogSlot({});
    const std::size_t plaats = log_.Regels().find("Exporteren voltooid\n");
    return plaats == std::string::npos ? log_.Regels() : log_.Regels().substr(plaats);
  }
  void MaakGezin() {
    const std::int16_t man = Bouw().Man("Jan", "Jansen", {{"GebDatum", "12-03-1890"}});
    const std::int16_t vrouw = Bouw().Vrouw("An", "Bos");
    const std::int16_t kind = Bouw().Man("Piet", "Jansen");
    KiesPersonen({kind, man, vrouw});
    KiesRelaties({Bouw().Relatie(man, vrouw, {kind}, {{"WHuwDatum", "01-04-1910"}})});
    Bouw().OpmerkingBijPersoon(man, rubriek::kAlgemeen, Regels(3, "regel "));
  }
  // Walks over the selection until the outputs fail.
  static ExpTelling Loop(GedcomSchrijver& schrijver, const ExpSelectie& selectie,
                         const ExpUitvoer& uit, const ExpUitvoer& log) {
    return LoopSelectie(schrijver, selectie,
                        {[&] { return !uit.Fout() && !log.Fout(); }, [](const ExpTelling&) {}});
  }
};

TEST_F(GedcomSchrijverToets, DeVolgordeIsDieVanDeSelectie) {
  MaakGezin();
  const ExpTelling telling = Loop(Schrijver(), selectie_, uit_, log_);
  EXPECT_EQ(telling.personen, 3);
  EXPECT_EQ(telling.relaties, 1);
  const std::string& alles = uit_.Regels();
  EXPECT_EQ(alles.substr(alles.find("0 @I")),
            "0 @I4@ INDI\n1 NAME Piet /Jansen/\n2 GIVN Piet\n2 SURN Jansen\n1 SEX M\n1 FAMC @F2@\n"
            "0 @I2@ INDI\n1 NAME Jan /Jansen/\n2 GIVN Jan\n2 SURN Jansen\n1 SEX M\n"
            "1 NOTE regel 1\n2 CONT regel 2\n2 CONT regel 3\n1 BIRT\n2 DATE 12 MAR 1890\n"
            "1 FAMS @F2@\n"
            "0 @I3@ INDI\n1 NAME An /Bos/\n2 GIVN An\n2 SURN Bos\n1 SEX F\n1 FAMS @F2@\n"
            "0 @F2@ FAM\n1 HUSB @I2@\n1 WIFE @I3@\n1 CHIL @I4@\n1 MARR\n2 DATE 01 APR 1910\n"
            "0 TRLR\n");
  EXPECT_TRUE(alles.starts_with("0 HEAD\n1 SOUR LB77_voor_Windows\n"));
}

// The disk fills at each line in turn: what was written before it stays, and the run ends.
TEST_F(GedcomSchrijverToets, EenVolleSchijfBijElkeRegelEindigtDeGang) {
  MaakGezin();
  static_cast<void>(Loop(Schrijver(), selectie_, uit_, log_));
  const std::string heel = uit_.Regels();
  const Gegevens gegevens{set_.Persoon,   set_.Relatie, set_.Plaats,
                          set_.Opmerking, set_.volgers, set_.schrijfwijze};
  for (std::size_t ruimte = 0; ruimte <= uit_.Aantal(); ++ruimte) {
    FaalUitvoer uit(ruimte);
    FaalUitvoer log;
    GedcomSchrijver schrijver({gegevens, selectie_, set_.gesprek, uit, log}, kop_);
    static_cast<void>(Loop(schrijver, selectie_, uit, log));
    EXPECT_EQ(static_cast<bool>(uit.Fout()), ruimte < uit_.Aantal()) << ruimte;
    EXPECT_EQ(uit.Aantal(), ruimte);
    EXPECT_TRUE(heel.starts_with(uit.Regels())) << ruimte;
  }
  EXPECT_TRUE(set_.Getoond().empty());
}

TEST_F(GedcomSchrijverToets, EenVolVerslagEindigtDeGangOok) {
  KiesPersonen({98, 99, 100});
  FaalUitvoer log(1);
  const Gegevens gegevens{set_.Persoon,   set_.Relatie, set_.Plaats,
                          set_.Opmerking, set_.volgers, set_.schrijfwijze};
  GedcomSchrijver schrijver({gegevens, selectie_, set_.gesprek, uit_, log}, kop_);
  EXPECT_EQ(Loop(schrijver, selectie_, uit_, log).personen, 2);
  EXPECT_TRUE(uit_.Regels().ends_with("0 @I98@ INDI\n0 @I99@ INDI\n"));
}

TEST_F(GedcomSchrijverToets, EenPersoonDieErNietIsStaatInHetVerslag) {
  EXPECT_EQ(Persoon(99), "");
  EXPECT_EQ(log_.Regels(),
            std::string("Leesfout bij Persoonsrecord 99. Record niet geëxporteerd.\n"_w));
  EXPECT_TRUE(set_.Getoond().empty());
}

TEST_F(GedcomSchrijverToets, EenVervolgrecordBlijftStil) {
  EXPECT_EQ(Persoon(Bouw().Man("Jan", "Jansen", {{"GebCorr", "Z"}})), "");
  EXPECT_EQ(log_.Regels(), "");
}

TEST_F(GedcomSchrijverToets, HetVerslagEindigtMetZijnAantallen) {
  Schrijver().LogSlot({.personen = 12, .relaties = 3});
  EXPECT_EQ(log_.Regels(),
            std::string(R"(LET OP: Het GEDCOM-bestand is volgens de GEDCOM 5.5-standaard
        uitgevoerd in de zogenaamd ANSEL-tekenset.
        Hiermee worden accentletters universeel uitgewisseld.
        Lijnboom/B77 voor DOS gebruikt ANSI (= DOS-codepage 437)
        wat geen garantie is voor correcte uitwisseling van
        accentletters !!
LET OP: RELI is volgens standaard GEDCOM geen sub-tag van BAPM
        Lijnboom/B77 voor DOS gebruikt RELI wel als sub-tag !!
        Hier is de tag zowel als sub-tag van BAPM als
        zelfstandige tag uitgevoerd.
LET OP: LMAR is gebruikt als GEDCOM-tag voor Soort Huwelijk
        Dit is GEEN standaard GEDCOM-tag, maar een tag
        van Lijnboom/B77 voor DOS !!
Totaal 12 Personen geëxporteerd
Totaal 12 Personen geëxporteerd
Totaal 3 Relaties geëxporteerd
Totaal 0 Bronnen geëxpoteerd
Exporteren voltooid
)"_w));
}

TEST_F(GedcomSchrijverToets, EenOpmerkingVanTienRegelsKomtHeel) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  Bouw().OpmerkingBijPersoon(nr, rubriek::kGebDatum, Regels(10, "r"));
  std::string verwacht = "2 DATE 0000\n3 NOTE r1\n";
  for (int i = 2; i <= 10; ++i) verwacht += "4 CONT r" + std::to_string(i) + "\n";
  EXPECT_EQ(Persoon(nr), verwacht);
  EXPECT_EQ(LogEinde(), "Exporteren voltooid\n");
}

TEST_F(GedcomSchrijverToets, DeVolgendeOpmerkingGaatDoorAchterTienRegels) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  Bouw().OpmerkingBijPersoon(nr, rubriek::kAlgemeen, Regels(10, "r"));
  Bouw().OpmerkingBijPersoon(nr, rubriek::kAlgemeen, {"s"});
  Bouw().OpmerkingBijPersoon(nr, rubriek::kAlgemeen, {"t"});
  const std::string regels = Persoon(nr);
  EXPECT_TRUE(regels.ends_with("2 CONT r10\n2 CONT s\n")) << regels;
  EXPECT_EQ(LogEinde(),
            "Exporteren voltooid\nLET OP: 1 opmerkingen zijn niet uitgevoerd (tweede of volgende "
            "opmerking bij een rubriek)\n");
}

TEST_F(GedcomSchrijverToets, WatGeenRegelHeeftWordtOokGeteld) {
  const std::int16_t nr = Bouw().Persoon('?', "", "", {{"GebCorr", "T"}, {"OvlCorr", "T"}});
  for (const std::int16_t deze :
       {rubriek::kDoopDatum, rubriek::kDoopPlaats, rubriek::kBegrDatum, rubriek::kBegrPlaats}) {
    Bouw().OpmerkingBijPersoon(nr, deze, {"x"});
  }
  const std::int16_t relatie = Bouw().Relatie(0, 0);
  Bouw().OpmerkingBijRelatie(relatie, relatierubriek::kOtrDatum, {"een"});
  Bouw().OpmerkingBijRelatie(relatie, relatierubriek::kAlgemeen, {"twee"});
  static_cast<void>(Persoon(nr));
  static_cast<void>(Relatie(relatie));
  EXPECT_EQ(LogEinde(),
            "Exporteren voltooid\n"
            "LET OP: 3 opmerkingen zijn niet uitgevoerd (bij een doop of begrafenis zonder eigen "
            "datum)\n"
            "LET OP: 2 opmerkingen zijn niet uitgevoerd (bij een relatie)\n");
}

TEST_F(GedcomSchrijverToets, ZonderPeriodeIsErNietsOvergeslagen) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  for (const std::int16_t deze : {rubriek::kDoopDatum, rubriek::kDoopPlaats, rubriek::kBegrDatum}) {
    Bouw().OpmerkingBijPersoon(nr, deze, {"x"});
  }
  const std::int16_t relatie = Bouw().Relatie(0, 0);
  Bouw().OpmerkingBijRelatie(relatie, relatierubriek::kOtrDatum, {"een"});
  Bouw().WijzigRelatie(relatie, {{"OpmCode", "0"}});
  static_cast<void>(Persoon(nr));
  static_cast<void>(Relatie(relatie));
  EXPECT_EQ(LogEinde(), "Exporteren voltooid\n");
}

// A chain that runs into the remarks of a relation: what is left out is counted for persons.
TEST_F(GedcomSchrijverToets, OpmerkingenOnderEenRelatieTellenNietAlsWeggelaten) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  for (int i = 0; i < 2; ++i) {
    Bouw().OpmerkingBijPersoon(nr, relatierubriek::kOtrDatum, {"r" + std::to_string(i)});
  }
  Bouw().WijzigPersoon(nr, {{"OpmCode", "2"}});
  const std::int16_t relatie = Bouw().Relatie(0, 0);
  EXPECT_EQ(Persoon(nr), "2 GIVN \n");
  EXPECT_EQ(Relatie(relatie), "1 MARB\n2 DATE 0000\n3 NOTE r0\n2 PLAC \n");
  EXPECT_EQ(LogEinde(), "Exporteren voltooid\n");
}

TEST_F(GedcomSchrijverToets, ElkeRubriekVanEenRelatieHeeftHaarRegel) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  for (const int deze : {-1, -2, -4, -8, -32, -64}) {
    Bouw().OpmerkingBijPersoon(nr, static_cast<std::int16_t>(deze), {"r" + std::to_string(deze)});
  }
  Bouw().WijzigPersoon(nr, {{"OpmCode", "127"}});
  const std::int16_t relatie = Bouw().Relatie(0, 0);
  static_cast<void>(Persoon(nr));
  EXPECT_EQ(
      Relatie(relatie),
      "1 MARB\n2 DATE 0000\n3 NOTE r-2\n2 PLAC \n3 NOTE r-1\n1 MARR\n2 DATE 0000\n3 NOTE r-8\n"
      "2 PLAC \n3 NOTE r-4\n2 DATE 0000\n3 NOTE r-64\n2 PLAC \n3 NOTE r-32\n");
}

TEST_F(GedcomSchrijverToets, WatAchterEenKorteOpmerkingKomtWordtEenmaalGeteld) {
  const std::int16_t een = Bouw().Persoon('?', "", "");
  const std::int16_t twee = Bouw().Persoon('?', "", "");
  for (int i = 0; i < 3; ++i) {
    Bouw().OpmerkingBijPersoon(een, rubriek::kReligie, {"a"});
    Bouw().OpmerkingBijPersoon(twee, rubriek::kBeroep, {"b"});
  }
  EXPECT_EQ(Persoon(een), "1 BAPM\n2 RELI \n3 NOTE a\n1 RELI \n2 NOTE a\n");
  EXPECT_EQ(Persoon(twee), "1 OCCU \n2 NOTE b\n");
  EXPECT_EQ(LogEinde(),
            "Exporteren voltooid\nLET OP: 4 opmerkingen zijn niet uitgevoerd (tweede of volgende "
            "opmerking bij een rubriek)\n");
}

TEST_F(GedcomSchrijverToets, VanElkePersoonTellenDeWeggelatenOpmerkingenMee) {
  const std::int16_t een = Bouw().Persoon('?', "", "");
  const std::int16_t twee = Bouw().Persoon('?', "", "");
  for (const std::int16_t nr : {een, twee}) {
    Bouw().OpmerkingBijPersoon(nr, rubriek::kBeroep, {"a"});
    Bouw().OpmerkingBijPersoon(nr, rubriek::kBeroep, {"b"});
  }
  EXPECT_EQ(Persoon(een), "1 OCCU \n2 NOTE a\n");
  EXPECT_EQ(Persoon(twee), "1 OCCU \n2 NOTE a\n");
  EXPECT_EQ(LogEinde(),
            "Exporteren voltooid\nLET OP: 2 opmerkingen zijn niet uitgevoerd (tweede of volgende "
            "opmerking bij een rubriek)\n");
}

TEST_F(GedcomSchrijverToets, OpmerkingenVanEenRelatieTellenApart) {
  const std::int16_t nr = Bouw().Relatie(0, 0);
  Bouw().OpmerkingBijRelatie(nr, relatierubriek::kOtrDatum, {"a"});
  Bouw().OpmerkingBijRelatie(nr, relatierubriek::kOtrDatum, {"b"});
  EXPECT_EQ(Relatie(nr), "");
  EXPECT_EQ(LogEinde(),
            "Exporteren voltooid\n"
            "LET OP: 2 opmerkingen zijn niet uitgevoerd (bij een relatie)\n");
}

TEST_F(GedcomSchrijverToets, EenKettingDieAfbreektStaatInHetVerslag) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  Bouw().OpmerkingBijPersoon(nr, rubriek::kBeroep, {"a", "b"});
  ASSERT_TRUE(set_.Opmerking.Wijzig(3, {{"VolgRegel", "44"}}));
  EXPECT_EQ(Persoon(nr), "1 OCCU \n2 NOTE a\n3 CONT b\n");
  EXPECT_EQ(log_.Regels(),
            "3 CONT P2 >> Verkeerde verwijzing: opm-record 44 bestaat niet << (opm-reeks start bij "
            "opm-record: 2)\n");
}

TEST_F(GedcomSchrijverToets, EenEersteRegelDieErNietIsStaatInHetVerslagAlsNOTE) {
  const std::int16_t nr = Bouw().Persoon('?', "", "", {{"OpmCode", "4096"}, {"OpmRecord", "44"}});
  EXPECT_EQ(Persoon(nr), "");
  EXPECT_EQ(log_.Regels(),
            "1 NOTE P2 >> Verkeerde verwijzing: opm-record 44 bestaat niet << (opm-reeks start bij "
            "opm-record: 44)\n");
}

TEST_F(GedcomSchrijverToets, EenOpmerkingDieZelfZoBegintHoudtOp) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  Bouw().OpmerkingBijPersoon(nr, rubriek::kAlgemeen, {"a", ">> zie boven", "c"});
  EXPECT_EQ(Persoon(nr), "1 NOTE a\n");
  EXPECT_EQ(log_.Regels(), "2 CONT P2 >> zie boven (opm-reeks start bij opm-record: 2)\n");
}

TEST_F(GedcomSchrijverToets, EenOpmerkingGaatInAnselZonderStuurtekens) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  Bouw().OpmerkingBijPersoon(nr, rubriek::kAlgemeen, {"caf\xE9\tbar"});
  EXPECT_EQ(Persoon(nr),
            "1 NOTE caf\xE2"
            "e bar\n");
}

TEST_F(GedcomSchrijverToets, ZonderCodeWordtDeKettingNietGelezen) {
  const std::int16_t nr = Bouw().Persoon('?', "", "", {{"OpmRecord", "44"}});
  EXPECT_EQ(Persoon(nr), "");
  EXPECT_EQ(log_.Regels(), "");
}

TEST_F(GedcomSchrijverToets, EenKettingInEenKringHoudtOp) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  Bouw().OpmerkingBijPersoon(nr, rubriek::kAlgemeen, Regels(10, "r"));
  ASSERT_TRUE(set_.Opmerking.Wijzig(2, {{"BijZelfde", "2"}}));
  EXPECT_TRUE(Persoon(nr).ends_with("2 CONT r10\n"));
  EXPECT_EQ(log_.Regels(),
            "2 CONT P2 >> Verkeerde verwijzing: opm-record 2 bestaat niet << (opm-reeks start bij "
            "opm-record: 2)\n");
}

}  // namespace
}  // namespace lb77
