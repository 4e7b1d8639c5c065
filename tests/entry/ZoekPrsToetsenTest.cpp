// The list by keys, wheel and double click.
#include <gtest/gtest.h>

#include <string>

#include "entry/ZoekPrsToets.h"

namespace lb77 {
namespace {

class ZoekPrsToetsenTest : public ZoekPrsToets {
 protected:
  // Plays on the list itself, and gives the number of the row that has the focus afterwards, or the
  // name of what else has it.
  std::string Focus(std::string_view draaiboek) {
    std::string uit;
    const auto programma = Sessie([&uit](Hoofdmodule& hoofd) {
      hoofd.volgers.HuidigPersoonNr = 0;
      ZoekPrs lijst(hoofd);
      hoofd.gesprek.ToonModaal(lijst);
      const Bediening* veld = lijst.FocusVeld();
      if (!veld) return;
      uit = veld->Naam().starts_with("RecordNrPrs") ? veld->Bijschrift() : veld->Naam();
    });
    EXPECT_EQ(Speel(std::string(draaiboek) + "\ndruk BackButton", programma).reden, "");
    return uit;
  }
  static std::string Keer(int aantal, const std::string& regel) {
    std::string uit;
    for (int i = 0; i < aantal; ++i) uit += regel + "\n";
    return uit;
  }
};

TEST_F(ZoekPrsToetsenTest, DeLijstBegintInHetZoekveld) {
  Reeks(3);
  EXPECT_EQ(Focus(""), "Zoeknaam");
}

TEST_F(ZoekPrsToetsenTest, DePijlenGaanVanRijTotRij) {
  Reeks(20);
  EXPECT_EQ(Focus("toets Down"), "2");
  EXPECT_EQ(Focus("toets Down\ntoets Down"), "3");
  EXPECT_EQ(Focus("toets Down\ntoets Down\ntoets Up"), "2");
  EXPECT_EQ(Focus("toets Down\ntoets Up"), "Zoeknaam");
  EXPECT_EQ(Focus("toets Up"), "16");
  EXPECT_EQ(Focus("toets InfoPersoon(2) Down"), "4");
}

TEST_F(ZoekPrsToetsenTest, AanDeRandSlaatDePijlHetBladOm) {
  Reeks(40);
  EXPECT_EQ(Focus(Keer(16, "toets Down")), "17");
  EXPECT_EQ(Pagina(Keer(16, "toets Down")), Nummers(17, 31));
  EXPECT_EQ(Focus(Keer(16, "toets Down") + "toets Up"), "16");
  EXPECT_EQ(Focus(Keer(45, "toets Down")), "41");
}

TEST_F(ZoekPrsToetsenTest, DeBladtoetsenBladerenEnHoudenDeRij) {
  Reeks(40);
  EXPECT_EQ(Pagina("toets PageDown"), Nummers(17, 31));
  EXPECT_EQ(Pagina("toets PageDown\ntoets PageUp"), Nummers(2, 16));
  EXPECT_EQ(Focus("toets PageDown"), "Zoeknaam");
  EXPECT_EQ(Focus("toets Down\ntoets Down\ntoets PageDown"), "18");
}

TEST_F(ZoekPrsToetsenTest, EenRijDieVerdwijntGeeftDeFocusAanDeLaatste) {
  Reeks(20);
  EXPECT_EQ(Focus("toets Up\ntoets PageDown"), "21");
  EXPECT_EQ(Focus("vul Zoeknaam zz\ntoets Down"), "Zoeknaam");
}

TEST_F(ZoekPrsToetsenTest, HetWielBladert) {
  Reeks(40);
  const auto programma = Sessie([](Hoofdmodule& hoofd) {
    hoofd.volgers.HuidigPersoonNr = 0;
    ZoekPrs lijst(hoofd);
    ASSERT_TRUE(lijst.Laad());
    Bladeraar& wiel = lijst;
    wiel.Blader(1);
    EXPECT_EQ(lijst.Personen(1).RecordNrPrs.Bijschrift(), "17");
    wiel.Blader(-1);
    EXPECT_EQ(lijst.Personen(1).RecordNrPrs.Bijschrift(), "2");
  });
  EXPECT_EQ(Speel("", programma).reden, "");
}

TEST_F(ZoekPrsToetsenTest, EenDubbelklikOpDeNaamKiest) {
  Reeks(5);
  for (const std::string veld : {"VoorNmPrs(3)", "AchterNmPrs(3)", "Periode(3)"}) {
    std::int16_t nr = 0;
    const auto programma = Sessie([&nr](Hoofdmodule& hoofd) {
      ZoekPrs lijst(hoofd);
      hoofd.gesprek.ToonModaal(lijst);
      nr = hoofd.volgers.HuidigPersoonNr;
    });
    EXPECT_EQ(Speel("dubbelklik " + veld, programma).reden, "");
    EXPECT_EQ(nr, 4);
  }
}

}  // namespace
}  // namespace lb77
