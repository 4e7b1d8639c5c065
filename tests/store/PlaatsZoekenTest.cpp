// The search for a place by its name.
#include <gtest/gtest.h>

#include <array>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"
#include "store/NepPlaatsVraag.h"
#include "store/PlaatsLB77.h"
#include "text/Letterlijk.h"

using namespace lb77;
using Boxen = std::vector<std::string>;
using Vragen = std::vector<std::string>;

namespace {

enum Wijze : std::int16_t { kHeelEersteGoed = 0, kHeelVragen = 1, kBegin = -1 };
enum Nieuw : std::int16_t { kVoegToe = 1, kVraagToe = 0, kNietToe = -1 };

struct PlaatsZoekenTest : ::testing::Test {
  PlaatsZoekenTest() {
    set.bouw.Plaats("Amsterdam", "NH");  // 2
    set.bouw.Plaats("Delft", "ZH");      // 3
    set.bouw.Plaats("Amstelveen");       // 4
    set.bouw.Plaats("Delft", "OV");      // 5
  }
  ~PlaatsZoekenTest() override { EXPECT_EQ(set.Getoond(), Boxen{}); }

  std::int16_t Zoek(std::string_view naam, Wijze wijze, Nieuw nieuw, NepPlaatsVraag& vraag) {
    return set.Plaats.Nr(naam, wijze, "XX", nieuw, vraag);
  }
  std::int16_t Zoek(std::string_view naam, Wijze wijze = kHeelEersteGoed, Nieuw nieuw = kNietToe) {
    NepPlaatsVraag niemand;
    return Zoek(naam, wijze, nieuw, niemand);
  }
  void Bederf(std::size_t nr, std::string_view bytes) {
    set.bestanden.SluitAlles();
    std::string alles = LeesBytes(set.paden.plt);
    if (alles.size() < nr * 27) alles.resize(nr * 27);
    alles.replace((nr - 1) * 27, bytes.size(), bytes);
    SchrijfBytes(set.paden.plt, alles);
    set.Heropen();
  }
  Storing storing;
  ProefSet set{FalendeOpener(storing)};
};

constexpr std::array<std::int16_t, 5> kAlleGedeeltelijk = {0, 1, 7, -2, -1};
constexpr std::array<std::int16_t, 3> kAlleToevoegen = {1, 0, -1};
const std::string kNietGevonden = "! uitroep \"Plaatsnaam niet gevonden\"";

}  // namespace

TEST_F(PlaatsZoekenTest, DeEersteGelijkeNaamWordtZonderVraagGenomen) {
  EXPECT_EQ(Zoek("Delft"), 3);
  EXPECT_EQ(set.volgers.PlaatsBufNr, 3);
  EXPECT_EQ(Zoek("  dELFT "), 3);
  EXPECT_EQ(Zoek("AMSTELVEEN"), 4);
}

TEST_F(PlaatsZoekenTest, EenHeleNaamIsGeenBegin) {
  EXPECT_EQ(Zoek("Amst"), -1);
  EXPECT_EQ(set.Getoond(), Boxen{kNietGevonden});
}

TEST_F(PlaatsZoekenTest, EenLegeNaamIsGeenPlaats) {
  EXPECT_EQ(Zoek(""), -1);
  EXPECT_EQ(Zoek("   ", kBegin, kVoegToe), -1);
  EXPECT_EQ(Zoek(std::string(25, ' ') + "Delft"), -1);
}

TEST_F(PlaatsZoekenTest, EenNaamVanHardeBlankenIsGeenPlaats) {
  EXPECT_EQ(Zoek("\xA0", kHeelEersteGoed, kVoegToe), -1);
  EXPECT_EQ(Zoek("\xA0 \xA0", kBegin, kVoegToe), -1);
  EXPECT_EQ(set.Plaats.AantalRecords(), 5);
}

TEST_F(PlaatsZoekenTest, DeTellingWordtBekekenVoordatDeNaamLeegBlijkt) {
  ASSERT_TRUE(set.Plaats.LeesAdmin());
  set.Plaats.ZetAantal(40);
  ASSERT_TRUE(set.Plaats.SchrijfAdmin());
  EXPECT_EQ(Zoek(""), -1);
  EXPECT_EQ(set.Getoond().size(), 1U);
}

TEST_F(PlaatsZoekenTest, WieNietGevondenWordtHangtAlleenVanToevoegenAf) {
  std::int16_t hoogste = 5;
  for (const std::int16_t gedeeltelijk : kAlleGedeeltelijk) {
    for (const std::int16_t toevoegen : kAlleToevoegen) {
      const std::string naam = "Nieuw " + std::to_string(hoogste);
      NepPlaatsVraag vraag(toevoegen == 0 ? std::deque{true} : std::deque<bool>{});
      const std::int16_t nr = set.Plaats.Nr(naam, gedeeltelijk, "XX", toevoegen, vraag);
      EXPECT_EQ(nr, toevoegen == -1 ? -1 : ++hoogste);
      EXPECT_EQ(vraag.vragen, toevoegen == 0
                                  ? (Vragen{"toevoegen " + naam, "provincie " + naam + " [  ]"})
                                  : Vragen{});
      EXPECT_EQ(set.Getoond(), toevoegen == -1 ? Boxen{kNietGevonden} : Boxen{});
      if (nr > 0) {
        EXPECT_EQ(set.Plaats.Prov(nr), toevoegen == 0 ? "ZH" : "XX");
      }
    }
  }
}

TEST_F(PlaatsZoekenTest, WieGevondenWordtHangtAlleenVanGedeeltelijkAf) {
  for (const std::int16_t toevoegen : kAlleToevoegen) {
    for (const std::int16_t gedeeltelijk : kAlleGedeeltelijk) {
      NepPlaatsVraag vraag(gedeeltelijk == 0 ? std::deque<bool>{} : std::deque{false, true, true});
      EXPECT_EQ(set.Plaats.Nr("Delft", gedeeltelijk, "XX", toevoegen, vraag),
                gedeeltelijk == 0 ? 3 : 5);
      EXPECT_EQ(vraag.vragen.size(), gedeeltelijk == 0 ? 0U : 3U);
    }
  }
}

TEST_F(PlaatsZoekenTest, DeNaamWordtOp25TekensAfgekapt) {
  const auto lang = set.bouw.Plaats("Een naam van meer dan vijfentwintig");
  EXPECT_EQ(Zoek("Een naam van meer dan vijf en nog wat"), lang);
}

TEST_F(PlaatsZoekenTest, BijVragenBevestigtDeGebruikerElkeVondst) {
  NepPlaatsVraag vraag({false, true, true});
  EXPECT_EQ(Zoek("Delft", kHeelVragen, kNietToe, vraag), 5);
  EXPECT_EQ(vraag.vragen, (Vragen{"bevestig Delft (ZH)", "verder", "bevestig Delft (OV)"}));
  EXPECT_EQ(set.volgers.PlaatsBufNr, 5);
}

TEST_F(PlaatsZoekenTest, NietVerderZoekenIsGeenPlaats) {
  NepPlaatsVraag vraag({false, false});
  EXPECT_EQ(Zoek("Delft", kHeelVragen, kVoegToe, vraag), -1);
  EXPECT_EQ(vraag.vragen, (Vragen{"bevestig Delft (ZH)", "verder"}));
}

TEST_F(PlaatsZoekenTest, EenBeginStoptBijDeEersteNaamAlsDeGebruikerDieBedoelt) {
  NepPlaatsVraag vraag({true});
  EXPECT_EQ(Zoek("AMST", kBegin, kNietToe, vraag), 2);
  EXPECT_EQ(vraag.vragen, Vragen{"bevestig Amsterdam (NH)"});
}

TEST_F(PlaatsZoekenTest, EenBeginGaatVerderMetDeVolgendeNaam) {
  NepPlaatsVraag vraag({false, true, false, true});
  EXPECT_EQ(Zoek("amst", kBegin, kNietToe, vraag), -1);
  EXPECT_EQ(vraag.vragen,
            (Vragen{"bevestig Amsterdam (NH)", "verder", "bevestig Amstelveen ()", "verder"}));
  EXPECT_EQ(set.Getoond(), Boxen{kNietGevonden});
}

TEST_F(PlaatsZoekenTest, ToevoegenZonderVraagMaaktDePlaatsMetDeProvincie) {
  EXPECT_EQ(Zoek(" Leiden ", kHeelEersteGoed, kVoegToe), 6);
  EXPECT_EQ(set.Plaats.Naam(6), "Leiden");
  EXPECT_EQ(set.Plaats.Prov(6), "XX");
  EXPECT_EQ(set.Plaats.AantalRecords(), 6);
  EXPECT_EQ(Zoek("LEIDEN", kHeelEersteGoed, kVoegToe), 6);
}

TEST_F(PlaatsZoekenTest, ToevoegenMetVraagVraagtOokDeProvincie) {
  NepPlaatsVraag vraag({true});
  EXPECT_EQ(Zoek("Leiden", kHeelEersteGoed, kVraagToe, vraag), 6);
  EXPECT_EQ(vraag.vragen, (Vragen{"toevoegen Leiden", "provincie Leiden [  ]"}));
  EXPECT_EQ(set.Plaats.Prov(6), "ZH");
}

TEST_F(PlaatsZoekenTest, NietToevoegenIsGeenPlaats) {
  NepPlaatsVraag vraag({false});
  EXPECT_EQ(Zoek("Leiden", kHeelEersteGoed, kVraagToe, vraag), -1);
  EXPECT_EQ(set.Plaats.AantalRecords(), 5);
}

TEST_F(PlaatsZoekenTest, EenNaamBuitenCodetabel437WordtTeruggevonden) {
  const auto nr = Zoek("Òrrbyhus Ž"_w, kHeelEersteGoed, kVoegToe);
  EXPECT_EQ(nr, 6);
  EXPECT_EQ(Zoek("Òrrbyhus Ž"_w, kHeelEersteGoed, kVoegToe), nr);
  EXPECT_EQ(set.Plaats.AantalRecords(), 6);
}

TEST_F(PlaatsZoekenTest, NrOfNieuwVraagtNiets) {
  EXPECT_EQ(set.Plaats.NrOfNieuw("delft", ""), 3);
  EXPECT_EQ(set.Plaats.NrOfNieuw("Leiden", "ZH"), 6);
  EXPECT_EQ(set.Plaats.Prov(6), "ZH");
  EXPECT_EQ(set.Plaats.NrOfNieuw("", ""), -1);
}

TEST_F(PlaatsZoekenTest, LegeEnOnleesbarePlaatsenWordenGemeldTotAanDeVondst) {
  Bederf(2, std::string(27, '\0'));
  Bederf(4, std::string(27, ' '));
  const std::string onleesbaar = "! uitroep \"2 Fout bij het lezen van plaatsrecord\"";
  const std::string incompleet = "! uitroep \"Plaatsrecord4 is incompleet.\"";
  for (int keer = 0; keer < 2; ++keer) {
    EXPECT_EQ(Zoek("Delft"), 3);
    EXPECT_EQ(set.Getoond(), Boxen{onleesbaar});
    EXPECT_EQ(Zoek("Leiden"), -1);
    EXPECT_EQ(set.Getoond(), (Boxen{onleesbaar, incompleet, kNietGevonden}));
  }
}

TEST_F(PlaatsZoekenTest, DeMeldingenTussenTweeVondstenKomenPasAlsVerderGezochtWordt) {
  Bederf(4, std::string(27, ' '));
  NepPlaatsVraag niet({false, false});
  EXPECT_EQ(Zoek("Delft", kHeelVragen, kNietToe, niet), -1);
  EXPECT_EQ(set.Getoond(), Boxen{});
  NepPlaatsVraag wel({false, true, true});
  EXPECT_EQ(Zoek("Delf", kBegin, kNietToe, wel), 5);
  EXPECT_EQ(set.Getoond(), Boxen{"! uitroep \"Plaatsrecord4 is incompleet.\""});
}

TEST_F(PlaatsZoekenTest, DeMeldingVanEenOnjuisteTellingKomtElkeKeer) {
  ASSERT_TRUE(set.Plaats.LeesAdmin());
  set.Plaats.ZetAantal(40);
  ASSERT_TRUE(set.Plaats.SchrijfAdmin());
  const std::string melding =
      "! uitroep \"Aantal plaatsrecords in administratierecord is onjuist\\nGevonden:5\\nVolgens "
      "administratierecord:41\"";
  EXPECT_EQ(Zoek("Delft"), 3);
  EXPECT_EQ(Zoek("Delft"), 3);
  EXPECT_EQ(set.Getoond(), (Boxen{melding, melding}));
}

TEST_F(PlaatsZoekenTest, DeIndexVolgtElkeWijzigingDoorEenAnder) {
  EXPECT_EQ(Zoek("Delft"), 3);
  PlaatsLB77 ander(set.opslag);
  ASSERT_TRUE(ander.Lees(3));
  ander.Zet("Plaatsnaam", "Leiden");
  ASSERT_TRUE(ander.Schrijf(3));
  EXPECT_EQ(Zoek("Delft"), 5);
  EXPECT_EQ(Zoek("Leiden"), 3);
  EXPECT_EQ(ander.NrOfNieuw("Gouda", ""), 6);
  EXPECT_EQ(Zoek("Gouda"), 6);
}

TEST_F(PlaatsZoekenTest, DeIndexHoortBijHetOpenBestand) {
  EXPECT_EQ(Zoek("Delft"), 3);
  const SetPaden ander = SetPaden::Van(set.map.Pad(), "ANDER");
  std::filesystem::create_directories(ander.map);
  ASSERT_FALSE(set.bestanden.OpenSet(ander));
  ASSERT_TRUE(set.Plaats.NieuwAdm());
  EXPECT_EQ(Zoek("Delft"), -1);
  EXPECT_EQ(set.Getoond(), Boxen{kNietGevonden});
  set.Heropen();
  EXPECT_EQ(Zoek("Delft"), 3);
}

TEST_F(PlaatsZoekenTest, ZoekenEnToevoegenLezenHetBestandNietSteedsOpnieuw) {
  const auto lezenVoor = [&](int aantal) {
    const int begin = storing.teller;
    for (int i = 0; i < aantal; ++i) {
      set.Plaats.NrOfNieuw("Plaats " + std::to_string(storing.teller), "");
    }
    return storing.teller - begin;
  };
  static_cast<void>(Zoek("Delft"));
  const int honderd = lezenVoor(100);
  const int daarna = lezenVoor(100);
  EXPECT_EQ(honderd, daarna);
}

TEST_F(PlaatsZoekenTest, EenLeesfoutBijHetZoekenGeldtNietVoorDeVolgendeKeer) {
  // The count, the last record, then records 2 and 3 of the index.
  storing = {.bij = 4};
  EXPECT_EQ(Zoek("Delft"), 5);
  EXPECT_EQ(set.Getoond(), Boxen{"! uitroep \"3 Fout bij het lezen van plaatsrecord\""});
  EXPECT_EQ(Zoek("Delft"), 3);
}

TEST_F(PlaatsZoekenTest, EenVondstDieNietMeerTeLezenIsWordtGemeldEnOvergeslagen) {
  EXPECT_EQ(Zoek("Delft"), 3);
  // The count, the last record, then the place itself.
  storing = {.bij = 3};
  EXPECT_EQ(Zoek("Delft"), 5);
  EXPECT_EQ(set.Getoond(),
            (Boxen{"! stop \"Fout bij het lezen van Plaatsrecord 3\\nFout van de schijf\"",
                   "! uitroep \"3 Fout bij het lezen van plaatsrecord\""}));
}

TEST_F(PlaatsZoekenTest, EenMisluktTellenGeldtNietVoorDeVolgendeKeer) {
  set.bouw.Plaats("Gouda");
  storing = {.bij = 2};
  EXPECT_EQ(Zoek("Gouda"), -1);
  EXPECT_EQ(set.Getoond().size(), 3U);
  EXPECT_EQ(Zoek("Gouda"), 6);
}

TEST_F(PlaatsZoekenTest, EenBlijvendeLeesfoutToontOokDeReden) {
  storing = {.bij = 3, .blijvend = true};
  EXPECT_EQ(Zoek("Delft"), -1);
  const Boxen boxen = set.Getoond();
  ASSERT_GE(boxen.size(), 2U);
  EXPECT_EQ(boxen[0], "! stop \"Fout bij het lezen van Plaatsrecord 2\\nFout van de schijf\"");
  EXPECT_EQ(boxen[1], "! uitroep \"2 Fout bij het lezen van plaatsrecord\"");
}

TEST_F(PlaatsZoekenTest, VoorbijNummer10000KomtGeenPlaatsMeer) {
  Bederf(1, "\x0F\x27");
  Bederf(10000, "ZHLaatste                  ");
  EXPECT_EQ(set.Plaats.AantalRecords(), 10000);
  EXPECT_EQ(Zoek("Laatste"), 10000);
  static_cast<void>(set.Getoond());
  const std::string voor = LeesBytes(set.paden.plt);
  EXPECT_EQ(Zoek("Nieuw", kHeelEersteGoed, kVoegToe), -1);
  EXPECT_EQ(set.Getoond().back(), "! stop \"Het maximum van 10000 plaatsen is bereikt\"");
  EXPECT_EQ(LeesBytes(set.paden.plt), voor);
}

TEST_F(PlaatsZoekenTest, EenPlaatsDieAlVoorbij10000LigtWordtNietGevonden) {
  Bederf(1, "\x10\x27");
  Bederf(10001, "ZHVerweg                   ");
  EXPECT_EQ(Zoek("Verweg"), -1);
  EXPECT_EQ(set.Getoond().back(), "! uitroep \"Plaatsnaam niet gevonden\"");
}

TEST_F(PlaatsZoekenTest, EenTellingDieVolIsKostGeenRecordEnGeenNieuweIndex) {
  Bederf(1, "\xFF\x7F");
  static_cast<void>(Zoek("Delft"));
  const std::string voor = LeesBytes(set.paden.plt);
  const auto leesacties = [&](const char* naam) {
    const int begin = storing.teller;
    EXPECT_EQ(Zoek(naam, kHeelEersteGoed, kVoegToe), -1);
    EXPECT_EQ(set.Getoond().back(), "! stop \"Het maximum van 32767 records is bereikt\"");
    return storing.teller - begin;
  };
  const int eerste = leesacties("Nieuw");
  EXPECT_EQ(leesacties("Nieuwer"), eerste);
  EXPECT_LT(eerste, 6);
  EXPECT_EQ(LeesBytes(set.paden.plt), voor);
}

// Also when a field asks for it by itself.
TEST(PlaatsHandelingTest, EenNieuwePlaatsIsEenHandeling) {
  ProefSet set;
  set.bestanden.ZetJournaal({[] { return std::string("2000-01-01 00:00:00"); }, {}, {}});
  set.Heropen();
  const std::string voor = LeesBytes(set.paden.plt);
  EXPECT_EQ(set.Plaats.NrOfNieuw("Delft", "ZH"), 2);
  Journaal& journaal = *set.bestanden.HetJournaal();
  ASSERT_EQ(journaal.Geschiedenis().size(), 1U);
  EXPECT_EQ(journaal.Geschiedenis()[0].label, "Plaats 2 toegevoegd: Delft");
  EXPECT_TRUE(journaal.MaakOngedaan(1));
  EXPECT_EQ(LeesBytes(set.paden.plt), voor);
}
