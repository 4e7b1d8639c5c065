// What goes out comes in again, and goes out once more: the second file is the first but for what the
// two dialects do not share. Each such difference has its test; those that the samples have are
// applied to the first file before it is compared.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "GedcomMaker.h"
#include "exchange/FaalUitvoer.h"
#include "exchange/Ged551Toets.h"
#include "exchange/GedcomKeuring.h"
#include "exchange/GedcomSchrijver.h"
#include "steun/Plekken.h"
#include "store/Rubrieken.h"
#include "text/Ansel.h"
#include "text/Dos437.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

const std::vector<std::string> kNiets;

// The whole set as a file, each line ended by a line feed.
std::string Exporteer(ProefSet& set) {
  const ExpSelectie selectie = AllesVan(set);
  FaalUitvoer uit;
  FaalUitvoer log;
  GedcomSchrijver schrijver(
      {{set.Persoon, set.Relatie, set.Plaats, set.Opmerking, set.volgers, set.schrijfwijze},
       selectie,
       set.gesprek,
       uit,
       log},
      {.nu = {2026, 11, 2, 9, 5, 7}, .bestandsnaam = "UIT.GED", .set = "PROEF"});
  const ExpVerloop verloop{.doorgaan = [] { return true; }, .toon = [](const ExpTelling&) {}};
  schrijver.LogSlot(LoopSelectie(schrijver, selectie, verloop));
  return uit.Regels();
}

std::string MetCrLf(std::string_view regels) {
  std::string uit;
  for (const char teken : regels) uit.append(teken == '\n' ? "\r" : "").append(1, teken);
  return uit;
}

std::vector<std::string> InRegels(std::string_view tekst) {
  std::vector<std::string> uit;
  while (!tekst.empty()) {
    const std::size_t einde = tekst.find('\n');
    uit.emplace_back(tekst.substr(0, einde));
    tekst.remove_prefix(einde + 1);
  }
  return uit;
}

class GedcomRonde : public ::testing::Test {
 protected:
  GedcomRonde() {
    for (ProefSet* set : {&eerste_, &tweede_}) {
      set->schrijfwijze.gezindten[1] = "NHNederlands Hervormd";
      set->schrijfwijze.gezindten[2] = "RKRooms Katholiek";
    }
  }
  BouwFamilie& Bouw() { return eerste_.bouw; }
  std::string Pl(std::string_view naam) { return std::to_string(Bouw().Plaats(naam)); }

  // The file of the first set, and that of the second which has read it.
  void Rond() {
    heen_ = Exporteer(eerste_);
    log_ = LeesIn(tweede_, heen_);
    // The submission names its submitter, which the import does not look for there.
    const std::string inzending =
        "I-Inzending PROEF20261102090507 - Onbekende tag: SUBN-SUBM : @SUBM0001@\n";
    EXPECT_TRUE(log_.starts_with(inzending)) << log_;
    log_.erase(0, inzending.size());
    terug_ = Exporteer(tweede_);
  }
  // The lines of a record in one of the files, without its first.
  static std::string Van(const std::string& bestand, const std::string& id) {
    const std::size_t begin = bestand.find("\n0 @" + id + "@ ") + 1;
    const std::size_t eerste = bestand.find('\n', begin) + 1;
    return bestand.substr(eerste, bestand.find("\n0 ", eerste - 1) + 1 - eerste);
  }
  // What stands of the only record but for `heen` comes back as `terug`.
  void Verschil(const std::string& id, const std::string& heen, const std::string& terug) {
    Rond();
    EXPECT_EQ(Van(heen_, id), heen);
    EXPECT_EQ(Van(terug_, id), terug);
  }
  void Bestand(const std::filesystem::path& pad) {
    static_cast<void>(LeesIn(eerste_, LeesBytes(pad)));
    ASSERT_GT(eerste_.Persoon.AantalRecords(), 10);
    Rond();
  }
  // The first file with what is told of one by one below: a place with an accent is misread, a word
  // that drops out of the parts of a name is gone (`namen`), continuation records come anew behind the
  // others.
  std::string Aangepast(const std::map<std::string, std::string>& namen = {}) {
    std::string uit;
    for (const std::string& regel : InRegels(heen_)) {
      if (regel == "0 @F2@ FAM") uit += NieuweVervolgrecords(eerste_.Persoon, tweede_.Persoon, 'I');
      if (regel == "0 TRLR") uit += NieuweVervolgrecords(eerste_.Relatie, tweede_.Relatie, 'F');
      if (regel.starts_with("2 PLAC ")) {
        uit += "2 PLAC " + AlsOpgeslagen(AnselNaarWindows(regel.substr(7))) + "\n";
      } else {
        const auto naam = namen.find(regel);
        uit += (naam == namen.end() ? regel : naam->second) + "\n";
      }
    }
    return uit;
  }
  static std::string AlsOpgeslagen(const std::string& plaats) {
    return std::string(Trim(DosNaarWindows(WindowsNaarDos(plaats).substr(0, 25))));
  }
  template <class Klasse>
  static std::string NieuweVervolgrecords(Klasse& eerste, Klasse& tweede, char soort) {
    std::string uit;
    const std::int16_t laatste = tweede.AantalRecords();
    for (std::int16_t nr = eerste.AantalRecords(); nr < laatste;) {
      EXPECT_TRUE(tweede.Lees(++nr) && tweede.IsVolgRecord()) << nr;
      uit +=
          std::string("0 @") + soort + std::to_string(nr) + (soort == 'I' ? "@ INDI\n" : "@ FAM\n");
    }
    return uit;
  }
  // The first ten lines in which the files differ.
  static void Gelijk(const std::string& een, const std::string& ander) {
    const auto links = InRegels(een);
    const auto rechts = InRegels(ander);
    EXPECT_EQ(links.size(), rechts.size());
    int fouten = 0;
    for (std::size_t i = 0; i < std::min(links.size(), rechts.size()) && fouten < 10; ++i) {
      EXPECT_EQ(links[i], rechts[i]) << "regel " << i + 1;
      fouten += links[i] == rechts[i] ? 0 : 1;
    }
  }

  ProefSet eerste_;
  ProefSet tweede_;
  std::string heen_;
  std::string log_;
  std::string terug_;
};

TEST_F(GedcomRonde, HetVoorbeeld) {
  Bestand(BronMap() / "voorbeeld/oranje-nassau.ged");
  Gelijk(Aangepast({{"1 NAME Maria Augusta /van Thurn und Taxis/",
                     "1 NAME Maria Augusta /van und Taxis/"},
                    {"2 SURN van und Taxis", "2 SURN van Taxis"}}),
         terug_);
  EXPECT_EQ(log_,
            "LET OP: naam overschreven door een latere: 1 keer, voor het eerst in regel 3660\n");
  EXPECT_EQ(KeurGedcom(MetCrLf(heen_)).fouten, kNiets);
}

TEST_F(GedcomRonde, EenGrootBestand) {
  const std::filesystem::path pad = BronMap() / "../shared/data/royal92.ged";
  if (!std::filesystem::exists(pad)) GTEST_SKIP() << pad;
  Bestand(pad);
  Gelijk(Aangepast(), terug_);
  EXPECT_EQ(log_, "");
  // A sixth wife, whom the person has no room for.
  EXPECT_EQ(KeurGedcom(MetCrLf(heen_)).fouten,
            std::vector<std::string>{"geen weg terug: @F328@ HUSB @I829@"});
}

TEST_F(GedcomRonde, EenBedachteBevolking) {
  const std::filesystem::path pad = eerste_.map / "MAAK.GED";
  bench::MaakGedcom(pad, 600, 240, 77);
  Bestand(pad);
  Gelijk(Aangepast(), terug_);
  EXPECT_EQ(log_, "");
  EXPECT_EQ(KeurGedcom(MetCrLf(heen_)).fouten, kNiets);
}

TEST_F(GedcomRonde, EenGezinKomtGelijkTerug) {
  const std::int16_t man = Bouw().Man("Jan", "van Dam",
                                      {{"GebDatum", "12-03-1890"},
                                       {"GebCorr", "C"},
                                       {"GebPlaats", Pl("Breda")},
                                       {"DoopDatum", "14-03-1890"},
                                       {"DoopReligie", "RK"},
                                       {"OvlDatum", "00-00-1950"},
                                       {"OvlCorr", "T"},
                                       {"BegrDatum", "00-00-1952"},
                                       {"Beroep", "smid"}});
  const std::int16_t vrouw = Bouw().Vrouw("An", "Bos", {{"BegrDatum", "03-04-1960"}});
  const std::int16_t kind = Bouw().Man("Piet", "van Dam");
  static_cast<void>(Bouw().Relatie(man, vrouw, {kind},
                                   {{"OtrDatum", "01-04-1910"},
                                    {"WHuwDatum", "20-04-1910"},
                                    {"WHuwPlaats", Pl("Delft")},
                                    {"HuwSoort", "NH"},
                                    {"KHuwDatum", "21-04-1910"},
                                    {"Religie", "RK"}}));
  Bouw().OpmerkingBijPersoon(man, persoonrubriek::kAlgemeen, {"een"});
  Rond();
  Gelijk(heen_, terug_);
  EXPECT_EQ(log_, "");
}

TEST_F(GedcomRonde, LettersZonderAccentKomenGelijkTerug) {
  Bouw().Man("S\xF8ren \xC6gir", "Wei\xDF", {{"Beroep", "\xE6rlig"}});
  Rond();
  EXPECT_EQ(Van(terug_, "I2"), Van(heen_, "I2"));
  ASSERT_TRUE(tweede_.Persoon.Lees(2));
  EXPECT_EQ(tweede_.Persoon.AchterNaamTrue(), "Wei\xDF");
  EXPECT_EQ(tweede_.Persoon.VoorNaamTrue(), "S\xF8ren \xC6gir");
}

TEST_F(GedcomRonde, NummersWordenDieVanDeVolgorde) {
  static_cast<void>(tweede_.bouw.Man("Al", "Aanwezig"));
  static_cast<void>(Bouw().Man("Jan", ""));
  Rond();
  EXPECT_EQ(Van(heen_, "I2"), Van(terug_, "I3"));
}

TEST_F(GedcomRonde, EenPartnerschapKomtTerugAlsSamenwonen) {
  static_cast<void>(Bouw().Relatie(0, 0, {}, {{"HuwSwPs", "Ps"}, {"WHuwDatum", "01-04-1990"}}));
  Verschil("F2", "1 MARC\n2 DATE 01 APR 1990\n", "1 MARC\n2 DATE 01 APR 1990\n");
  ASSERT_TRUE(tweede_.Relatie.Lees(2));
  EXPECT_EQ(tweede_.Relatie.HuwSwPs(), "S");
}

TEST_F(GedcomRonde, SamenwonenZonderDatumGaatVerloren) {
  static_cast<void>(Bouw().Relatie(0, 0, {}, {{"HuwSwPs", "Sw"}}));
  Verschil("F2", "1 MARC\n", "");
}

TEST_F(GedcomRonde, DeSoortGaatOnderMARCVerloren) {
  static_cast<void>(Bouw().Relatie(
      0, 0, {}, {{"HuwSwPs", "Sw"}, {"WHuwDatum", "01-04-1990"}, {"HuwSoort", "NH"}}));
  Verschil("F2", "1 MARC\n2 DATE 01 APR 1990\n2 LMAR Nederlands Hervormd\n",
           "1 MARC\n2 DATE 01 APR 1990\n");
  EXPECT_EQ(log_, "R-F2 - Onbekende tag: FAM-MARC-LMAR : Nederlands Hervormd\n");
}

TEST_F(GedcomRonde, DePlaatsVanSamenwonenWordtDieVanDeInzegening) {
  static_cast<void>(Bouw().Relatie(
      0, 0, {}, {{"HuwSwPs", "Sw"}, {"WHuwDatum", "01-04-1990"}, {"WHuwPlaats", Pl("Breda")}}));
  Verschil("F2", "1 MARC\n2 DATE 01 APR 1990\n2 PLAC Breda\n",
           "1 MARC\n2 DATE 01 APR 1990\n1 ORDI\n2 PLAC Breda\n");
}

TEST_F(GedcomRonde, DePlaatsVanDeInzegeningWordtDieVanHetHuwelijk) {
  static_cast<void>(Bouw().Relatie(0, 0, {},
                                   {{"WHuwDatum", "01-04-1990"},
                                    {"WHuwPlaats", Pl("Breda")},
                                    {"KHuwDatum", "02-04-1990"},
                                    {"KHuwPlaats", Pl("Delft")}}));
  Verschil("F2",
           "1 MARR\n2 DATE 01 APR 1990\n2 PLAC Breda\n1 ORDI\n2 DATE 02 APR 1990\n2 PLAC Delft\n",
           "1 MARR\n2 DATE 01 APR 1990\n2 PLAC Delft\n1 ORDI\n2 DATE 02 APR 1990\n");
}

TEST_F(GedcomRonde, EenScheidingKomtTerug) {
  static_cast<void>(Bouw().Relatie(
      0, 0, {}, {{"KHuwSch", "1"}, {"KHuwDatum", "02-04-1990"}, {"KHuwPlaats", Pl("Delft")}}));
  Verschil("F2", "1 DIVF\n2 DATE 02 APR 1990\n2 PLAC Delft\n",
           "1 DIVF\n2 DATE 02 APR 1990\n2 PLAC Delft\n");
}

TEST_F(GedcomRonde, EenBepalingBijEenHuwelijkGaatVerloren) {
  static_cast<void>(Bouw().Relatie(0, 0, {}, {{"WHuwDatum", "01-04-1990"}, {"HuwCorr", "C"}}));
  Verschil("F2", "1 MARR\n2 DATE ABT 01 APR 1990\n", "1 MARR\n2 DATE 01 APR 1990\n");
}

TEST_F(GedcomRonde, EenHuwelijkTussenHoudtAlleenDeEersteDatum) {
  static_cast<void>(Bouw().Relatie(
      0, 0, {}, {{"WHuwDatum", "00-00-1990"}, {"HuwCorr", "T"}, {"KHuwDatum", "00-00-1992"}}));
  Verschil("F2", "1 MARR\n2 DATE BET 1990 AND 1992\n", "1 MARR\n2 DATE 1990\n");
}

TEST_F(GedcomRonde, EenCrematieGaatVerloren) {
  static_cast<void>(Bouw().Persoon(
      '?', "", "", {{"BegrCrem", "1"}, {"BegrDatum", "02-04-1990"}, {"BegrPlaats", Pl("Delft")}}));
  Verschil("I2", "1 CREM\n2 DATE 02 APR 1990\n2 PLAC Delft\n", "");
  EXPECT_EQ(
      log_,
      "P-I2 - Onbekende tag: INDI-CREM : \nP-I2 - Onbekende tag: INDI-CREM-DATE : 02 APR 1990\n"
      "P-I2 - Onbekende tag: INDI-CREM-PLAC : Delft\n");
}

TEST_F(GedcomRonde, EenOpmerkingBijDeBegrafenisWordtAlgemeen) {
  const std::int16_t nr = Bouw().Persoon('?', "", "", {{"BegrDatum", "02-04-1990"}});
  Bouw().OpmerkingBijPersoon(nr, persoonrubriek::kBegrDatum, {"in de kerk"});
  Verschil("I2", "1 BURI\n2 DATE 02 APR 1990\n3 NOTE in de kerk\n",
           "1 NOTE in de kerk\n1 BURI\n2 DATE 02 APR 1990\n");
}

TEST_F(GedcomRonde, EenOpmerkingBijReligieWordtTweemaalAlgemeen) {
  const std::int16_t nr = Bouw().Persoon('?', "", "", {{"DoopReligie", "RK"}});
  Bouw().OpmerkingBijPersoon(nr, persoonrubriek::kReligie, {"later gedoopt"});
  Verschil("I2",
           "1 BAPM\n2 RELI Rooms Katholiek\n3 NOTE later gedoopt\n1 RELI Rooms Katholiek\n"
           "2 NOTE later gedoopt\n",
           "1 NOTE later gedoopt\n1 BAPM\n2 RELI Rooms Katholiek\n1 RELI Rooms Katholiek\n");
}

TEST_F(GedcomRonde, EenOpmerkingBijEenDatumDieErNietIsRaaktHaarPlaatsKwijt) {
  const std::int16_t nr = Bouw().Man("", "");
  Bouw().OpmerkingBijPersoon(nr, persoonrubriek::kGebDatum, {"niet bekend"});
  Verschil("I2", "1 SEX M\n2 DATE 0000\n3 NOTE niet bekend\n", "1 SEX M\n1 NOTE niet bekend\n");
  EXPECT_EQ(log_, "P-I2 - Onbekende tag: INDI-SEX-DATE : 0000\n");
}

TEST_F(GedcomRonde, EenTweedeOpmerkingBijEenRubriekGaatVerloren) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  Bouw().OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, {"een"});
  Bouw().OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, {"twee"});
  Verschil("I2", "1 NOTE een\n", "1 NOTE een\n");
}

TEST_F(GedcomRonde, RegelsVanEenOpmerkingVloeienSamen) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  Bouw().OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, {"een", "twee", "drie"});
  Verschil("I2", "1 NOTE een\n2 CONT twee\n2 CONT drie\n", "1 NOTE een twee drie\n");
}

TEST_F(GedcomRonde, EenAccentInEenPlaatsWordtVerkeerdGelezen) {
  static_cast<void>(Bouw().Persoon('?', "Ren\xE9", "", {{"GebPlaats", Pl("Gen\xE8ve")}}));
  Verschil("I2",
           "1 NAME Ren\xE2"
           "e //\n2 GIVN Ren\xE2"
           "e\n1 BIRT\n2 PLAC Gen\xE8ve\n",
           "1 NAME Ren\xE2"
           "e //\n2 GIVN Ren\xE2"
           "e\n1 BIRT\n2 PLAC Genve\n");
}

TEST_F(GedcomRonde, EenWoordDatUitDeDelenVanDeNaamValtGaatVerloren) {
  static_cast<void>(Bouw().Persoon('?', "", "van Mijn Naam"));
  Verschil("I2", "1 NAME /van Mijn Naam/\n2 SURN van Naam\n2 SPFX van\n",
           "1 NAME /van Naam/\n2 SURN van Naam\n2 SPFX van\n");
}

TEST_F(GedcomRonde, EenVervolgrecordKomtTerugAlsLeegRecord) {
  const std::int16_t nr = Bouw().Persoon('?', "", "");
  for (int i = 0; i < 4; ++i) static_cast<void>(Bouw().Relatie(nr, 0));
  const std::string banden = "1 FAMS @F2@\n1 FAMS @F3@\n1 FAMS @F4@\n1 FAMS @F5@\n";
  Verschil("I2", banden, banden);
  ASSERT_TRUE(tweede_.Persoon.Lees(3));
  EXPECT_FALSE(tweede_.Persoon.IsVolgRecord());
  ASSERT_TRUE(tweede_.Persoon.Lees(4));
  EXPECT_TRUE(tweede_.Persoon.IsVolgRecord());
  EXPECT_EQ(Van(terug_, "I3") + Van(terug_, "I4"), "");
}

}  // namespace
}  // namespace lb77
