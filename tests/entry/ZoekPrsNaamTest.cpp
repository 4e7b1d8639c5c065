// The field that searches while one types.
#include <gtest/gtest.h>

#include <string>

#include "entry/ZoekPrsToets.h"

namespace lb77 {
namespace {

class ZoekPrsNaamTest : public ZoekPrsToets {
 protected:
  // The number that a script chose; it closes the list.
  std::int16_t Gekozen(std::string_view draaiboek) {
    std::int16_t nr = -1;
    const SpeelUitslag uitslag = Speel(draaiboek, Sessie([&nr](Hoofdmodule& hoofd) {
                                         hoofd.volgers.HuidigPersoonNr = 0;
                                         ZoekPrs lijst(hoofd);
                                         hoofd.gesprek.ToonModaal(lijst);
                                         nr = hoofd.volgers.HuidigPersoonNr;
                                       }));
    EXPECT_EQ(uitslag.reden, "");
    return nr;
  }
};

TEST_F(ZoekPrsNaamTest, TypenToontWieErInStaatMetHetAantal) {
  Bouw().Man("Willem", "van Oranje-Nassau");
  Bouw().Man("Jan", "Bos");
  Bouw().Vrouw("Juliana", "van Oranje");
  Speelt(R"(
    toon Treffers
    typ Zoeknaam oran
    toon Treffers
    toon RecordNrPrs(1)
    toon RecordNrPrs(2)
    toon VoorNmPrs(3)
    typ Zoeknaam oranje-
    toon Treffers
    toon RecordNrPrs(2)
    typ Zoeknaam oranjez
    toon Treffers
    toon RecordNrPrs(1)
  )",
         R"(
    = Treffers ""
    = Treffers "2 personen gevonden"
    = RecordNrPrs(1) "2"
    = RecordNrPrs(2) "4"
    = VoorNmPrs(3) "Juliana" [verborgen]
    = Treffers "1 persoon gevonden"
    = RecordNrPrs(2) "4" [verborgen]
    = Treffers "Geen persoon gevonden"
    = RecordNrPrs(1) "2" [verborgen]
  )");
}

TEST_F(ZoekPrsNaamTest, EenNummerVindtOokWieDatNummerHeeft) {
  Reeks(20);
  EXPECT_EQ(Pagina("vul Zoeknaam 12"), "12 13 ");
  EXPECT_EQ(Pagina("vul Zoeknaam 21"), "21 ");
  for (const std::string_view geen :
       {"vul Zoeknaam 22", "vul Zoeknaam 70000", "vul Zoeknaam 21x"}) {
    EXPECT_EQ(Pagina(geen), "") << geen;
  }
  EXPECT_EQ(Gekozen("vul Zoeknaam 21\ntoets Zoeknaam Enter"), 21);
  EXPECT_EQ(Pagina("druk FilterButton\nvul VoorNm A3*\ndruk OKButton\nvul Zoeknaam 12"), "");
}

TEST_F(ZoekPrsNaamTest, HetVeldLeegMakenToontWeerIedereen) {
  Reeks(20);
  EXPECT_EQ(Pagina("vul Zoeknaam A1"), "2 11 12 13 14 15 16 17 18 19 20 ");
  EXPECT_EQ(Pagina("vul Zoeknaam A12\nvul Zoeknaam -"), "");
  Speelt("vul Zoeknaam A12\nvul Zoeknaam \"\"\ntoon Treffers\ntoon RecordNrPrs(15)", R"(
    = Treffers ""
    = RecordNrPrs(15) "16"
  )");
}

TEST_F(ZoekPrsNaamTest, BladerenGaatOverDeTreffers) {
  for (int n = 0; n < 20; ++n) {
    Bouw().Man("Even", "Vos");
    Bouw().Man("Oneven", "Vos");
  }
  const auto even = [](int van, int tot) {
    std::string uit;
    for (int nr = van; nr <= tot; nr += 2) uit += GetalTekst(nr) + " ";
    return uit;
  };
  const std::string zoek = "vul Zoeknaam oneven\n";
  EXPECT_EQ(Pagina(zoek), even(3, 31));
  EXPECT_EQ(Pagina(zoek + "druk Volgende"), even(33, 41));
  EXPECT_EQ(Pagina(zoek + "druk Volgende\ndruk Volgende"), even(33, 41));
  EXPECT_EQ(Pagina(zoek + "druk Volgende\ndruk Vorige"), even(3, 31));
  EXPECT_EQ(Pagina(zoek + "druk Vorige"), even(3, 31));
  EXPECT_EQ(Pagina(zoek + "druk InfoPersoon(2)\ndruk OKButton\ndruk Volgende"), even(33, 41));
}

TEST_F(ZoekPrsNaamTest, HetFilterBlijftErnaastGelden) {
  Bouw().Man("Jan", "de Vries");
  Bouw().Man("Jan", "De Vries");
  Speelt(R"(
    vul Zoeknaam vries
    druk FilterButton
    vul AchterNm De*
    druk OKButton
    toon Treffers
    toon RecordNrPrs(1)
    toon RecordNrPrs(2)
    druk FilterButton
    toon Treffers
  )",
         R"(
    + VraagFilter "Zoek Persoon - Filter op Naam"
    - VraagFilter
    = Treffers "1 persoon gevonden binnen het filter"
    = RecordNrPrs(1) "3"
    = RecordNrPrs(2) "3" [verborgen]
    = Treffers "2 personen gevonden"
  )");
}

TEST_F(ZoekPrsNaamTest, EnterKiestDeEnigeTreffer) {
  Reeks(20);
  EXPECT_EQ(Gekozen("typ Zoeknaam a12\ntoets Enter"), 13);
}

TEST_F(ZoekPrsNaamTest, EnterGaatBijMeerTreffersNaarDeEersteEnKiestDie) {
  Reeks(20);
  EXPECT_EQ(Gekozen("typ Zoeknaam a1\ntoets Enter\ntoets Enter"), 2);
  EXPECT_EQ(Gekozen("typ Zoeknaam a1\ntoets Enter\ntoets Down\ntoets Enter"), 11);
}

TEST_F(ZoekPrsNaamTest, EnterZonderTrefferDoetNiets) {
  Reeks(3);
  EXPECT_EQ(Pagina("typ Zoeknaam zzz\ntoets Enter"), "");
}

TEST_F(ZoekPrsNaamTest, NaarEenOuderOfEenNummerGaanHoudtOpMetZoeken) {
  Reeks(20);
  Bouw().Relatie(10, 5, {4});
  EXPECT_EQ(Pagina("vul Zoeknaam a3\ndruk NaarPa(1)"), Nummers(10, 21));
  EXPECT_EQ(Pagina("vul Zoeknaam a3\ndruk NaarMa(1)"), Nummers(5, 19));
  EXPECT_EQ(Pagina("vul Zoeknaam a3\ndruk NaarNr\nvul RecordNr 6\ndruk OKButton"), Nummers(6, 20));
  EXPECT_EQ(Pagina("vul Zoeknaam a3\ndruk NaarNr\ndruk BackButton"), "4 ");
  Speelt("vul Zoeknaam a3\ndruk NaarPa(1)\ntoon Zoeknaam\ntoon Treffers", R"(
    = Zoeknaam ""
    = Treffers ""
  )");
}

// Whoever only browses reads no more than the page.
TEST_F(ZoekPrsNaamTest, DeNamenWordenEenKeerGelezenEnPasAlsErGetyptWordt) {
  Reeks(100);
  static_cast<void>(Pagina(""));
  const int pagina = Gelezen(BestandSoort::Personen);
  EXPECT_EQ(pagina, 15);
  static_cast<void>(Pagina("vul Zoeknaam xx"));
  const int eenmaal = Gelezen(BestandSoort::Personen) - pagina;
  EXPECT_EQ(eenmaal, 101);  // and once behind the end of the file
  // A field that is filled anew is empty for a moment, and the first page shows.
  static_cast<void>(Pagina("vul Zoeknaam xx\nvul Zoeknaam xy\nvul Zoeknaam xz"));
  EXPECT_EQ(Gelezen(BestandSoort::Personen), 3 * pagina + eenmaal);
}

}  // namespace
}  // namespace lb77
