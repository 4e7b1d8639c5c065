#include <gtest/gtest.h>

#include <string>

#include "entry/ZoekPrsToets.h"

namespace lb77 {
namespace {

using ZoekPrsTest = ZoekPrsToets;

TEST_F(ZoekPrsTest, EenRijToontNaamPeriodeEnOuders) {
  const auto pa = Bouw().Man("Piet", "Vos");
  const auto ma = Bouw().Vrouw("Anna", "Bos");
  const auto kind = Bouw().Man("Jan", "Vos", {{"GebDatum", "01.05.1850"}});
  Bouw().Relatie(pa, ma, {kind});
  Speelt(R"(
    toon RecordNrPrs(3)
    toon VoorNmPrs(3)
    toon AchterNmPrs(3)
    toon Periode(3)
    toon InfoPersoon(3)
    toon NaarPa(3)
    toon NaarMa(3)
    toon NaarPa(1)
    toon RecordNrPrs(4)
    toon VoorNmPrs(4)
    toon Vorige
    toon Volgende
    toon NaarNr
    toon FilterButton
    toon BackButton
  )",
         R"(
    = RecordNrPrs(3) "4"
    = VoorNmPrs(3) "Jan"
    = AchterNmPrs(3) "Vos"
    = Periode(3) "1850-    "
    = InfoPersoon(3) "i"
    = NaarPa(3) "2"
    = NaarMa(3) "3"
    = NaarPa(1) "" [verborgen]
    = RecordNrPrs(4) "" [verborgen]
    = VoorNmPrs(4) "" [verborgen]
    = Vorige "V&orige"
    = Volgende "&Volgende"
    = NaarNr "&Naar Nummer"
    = FilterButton "Start Filter"
    = BackButton "&Terug"
  )");
}

TEST_F(ZoekPrsTest, EenOnleesbareRelatieVanDeOudersToontGeenOuders) {
  Bouw().Man("Jan", "Vos", {{"Ouders", "99"}});
  Speelt("toon NaarPa(1)\ntoon NaarMa(1)", R"(
    = NaarPa(1) "" [verborgen]
    = NaarMa(1) "" [verborgen]
  )");
}

TEST_F(ZoekPrsTest, DeKnopMetHetNummerKiestDePersoon) {
  Reeks(3);
  Verwacht(
      "druk RecordNrPrs(3)",
      [](Hoofdmodule& hoofd) {
        hoofd.volgers.HuidigPersoonNr = 0;
        ZoekPrs lijst(hoofd);
        hoofd.gesprek.ToonModaal(lijst);
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 4);
      },
      "+ ZoekPrs \"Zoek Persoon\"\n- ZoekPrs\n");
}

TEST_F(ZoekPrsTest, DeLaatsteRijWerktAlsDeAndere) {
  Reeks(40);
  Speelt("druk InfoPersoon(15)\ntoon PNr\ndruk OKButton", R"(
    + PersInfoForm "Info Persoon"
    = PNr "16"
    - PersInfoForm
  )");
}

TEST_F(ZoekPrsTest, TabGaatOverDeRijEnDanNaarDeVolgende) {
  Reeks(3);
  Speelt(R"(
    toets RecordNrPrs(1) Tab
    toets Space
    toon PNr
    druk OKButton
    toets Tab
    toets Tab
    toets Space
    toon PNr
    druk OKButton
  )",
         R"(
    + PersInfoForm "Info Persoon"
    = PNr "2"
    - PersInfoForm
    + PersInfoForm "Info Persoon"
    = PNr "3"
    - PersInfoForm
  )");
}

TEST_F(ZoekPrsTest, DeEerstePaginaHeeftVijftienPersonenEnEnterIsVolgende) {
  Reeks(40);
  EXPECT_EQ(Pagina(""), Nummers(2, 16));
  EXPECT_EQ(Pagina("toets Enter"), Nummers(17, 31));
}

TEST_F(ZoekPrsTest, EenRijZonderPersoonVerdwijntInHaarGeheel) {
  Reeks(20);
  Bouw().Relatie(2, 3, {7});
  Speelt(R"(
    toon NaarPa(6)
    druk Volgende
    toon RecordNrPrs(6)
    toon VoorNmPrs(6)
    toon AchterNmPrs(6)
    toon Periode(6)
    toon InfoPersoon(6)
    toon NaarPa(6)
    toon NaarMa(6)
  )",
         R"(
    = NaarPa(6) "2"
    = RecordNrPrs(6) "7" [verborgen]
    = VoorNmPrs(6) "A6" [verborgen]
    = AchterNmPrs(6) "Reeks" [verborgen]
    = Periode(6) "    -    " [verborgen]
    = InfoPersoon(6) "i" [verborgen]
    = NaarPa(6) "2" [verborgen]
    = NaarMa(6) "3" [verborgen]
  )");
}

TEST_F(ZoekPrsTest, DeEerstePaginaBegintBijHuidigPersoonNrMaarNietVoorRecordTwee) {
  Reeks(20);
  EXPECT_EQ(Pagina("", 5), Nummers(5, 19));
  EXPECT_EQ(Pagina("", 1), Nummers(2, 16));
  EXPECT_EQ(Pagina("", -1), Nummers(2, 16));
}

TEST_F(ZoekPrsTest, EenTeLageTellingVerbergtNiemandEenTeHogeWordtGemeldBijHetBladeren) {
  Reeks(3);
  Bouw().ZetAantalPersonen(1);
  EXPECT_EQ(Pagina(""), Nummers(2, 4));
  Bouw().ZetAantalPersonen(5);
  Speelt("druk Volgende\ntoon RecordNrPrs(1)", R"(
    ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:4\nVolgens administratierecord:6"
    = RecordNrPrs(1) "2"
  )");
}

TEST_F(ZoekPrsTest, VervolgrecordsStaanNietInDeLijst) {
  Reeks(20);
  MaakVervolg(3);
  EXPECT_EQ(Pagina(""), "2 " + Nummers(4, 17));
}

TEST_F(ZoekPrsTest, EenLeegBestandToontNiemandEnVolgendeVerandertNiets) {
  EXPECT_EQ(Pagina(""), "");
  EXPECT_EQ(Pagina("druk Volgende\ndruk Volgende"), "");
  EXPECT_EQ(Pagina("druk Vorige"), "");
}

TEST_F(ZoekPrsTest, VolgendeGaatVerderEnEindigtBijDeLaatsteVijftien) {
  Reeks(40);
  EXPECT_EQ(Pagina("druk Volgende"), Nummers(17, 31));
  EXPECT_EQ(Pagina("druk Volgende\ndruk Volgende"), Nummers(32, 41));
  EXPECT_EQ(Pagina("druk Volgende\ndruk Volgende\ndruk Volgende"), Nummers(27, 41));
}

TEST_F(ZoekPrsTest, VorigeGaatEenPaginaTerug) {
  Reeks(50);
  EXPECT_EQ(Pagina("druk Volgende\ndruk Volgende\ndruk Vorige"), Nummers(17, 31));
}

TEST_F(ZoekPrsTest, VorigeOpDeEerstePaginaBegintBijRecordTwee) {
  Reeks(20);
  EXPECT_EQ(Pagina("druk Vorige"), Nummers(2, 16));
  EXPECT_EQ(Pagina("druk Volgende\ndruk Vorige"), Nummers(2, 16));
}

TEST_F(ZoekPrsTest, EenLeesfoutEindigtDePaginaEnVolgendeKomtErLangs) {
  Reeks(20);
  MaakGat(5);
  EXPECT_EQ(Pagina(""), "2 3 4 ");
  EXPECT_EQ(Pagina("druk Volgende"), "");
  EXPECT_EQ(Pagina("druk Volgende\ndruk Volgende"), Nummers(6, 20));
}

TEST_F(ZoekPrsTest, EenLeesfoutVanDeSchijfWordtGetoond) {
  Reeks(2);
  MaakOnleesbaar(BestandSoort::Personen, 3);
  Verwacht(
      "druk BackButton",
      [](Hoofdmodule& hoofd) {
        ZoekPrs lijst(hoofd);
        hoofd.gesprek.ToonModaal(lijst);
      },
      R"(
    ! stop "Fout bij het lezen van Persoonsrecord 3\nFout van de schijf"
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
  )");
}

TEST_F(ZoekPrsTest, NaarNrBegintBijHetGevraagdeNummer) {
  Reeks(40);
  Speelt("druk NaarNr\nvul RecordNr 20\ndruk OKButton\ntoon RecordNrPrs(1)", R"(
    + VraagRecordNr "Ga naar Persoonsrecord"
    - VraagRecordNr
    = RecordNrPrs(1) "20"
  )");
}

TEST_F(ZoekPrsTest, NaarNrMetEenTeHoogNummerToontDeLaatsteVijftien) {
  Reeks(40);
  EXPECT_EQ(Pagina("druk NaarNr\nvul RecordNr 42\ndruk OKButton"), Nummers(27, 41));
  EXPECT_EQ(Pagina("druk NaarNr\nvul RecordNr 99999\ndruk OKButton"), Nummers(27, 41));
  EXPECT_EQ(Pagina("druk NaarNr\nvul RecordNr 41\ndruk OKButton"), "41 ");
}

TEST_F(ZoekPrsTest, NaarNrZonderNummerBlijftOpDezelfdePagina) {
  Reeks(40);
  EXPECT_EQ(Pagina("druk Volgende\ndruk NaarNr\ndruk BackButton"), Nummers(17, 31));
  EXPECT_EQ(Pagina("druk Volgende\ndruk NaarNr\nvul RecordNr 1\ndruk OKButton"), Nummers(17, 31));
}

TEST_F(ZoekPrsTest, NaarNrTweeIsHetBeginEnZonderNummerGaatDeLijstVeertienTerug) {
  Reeks(40);
  EXPECT_EQ(Pagina("druk Volgende\ndruk NaarNr\nvul RecordNr 2\ndruk OKButton"), Nummers(2, 16));
  EXPECT_EQ(Pagina("druk Volgende\ndruk InfoPersoon(3)\ndruk OKButton\ndruk NaarNr\n"
                   "druk BackButton"),
            Nummers(5, 19));
}

TEST_F(ZoekPrsTest, NaarNrZonderNummerOpEenKortePaginaBegintNietVoorRecordTwee) {
  Reeks(5);
  EXPECT_EQ(Pagina("druk NaarNr\ndruk BackButton"), Nummers(2, 6));
}

TEST_F(ZoekPrsTest, NaarPaEnNaarMaGaanNaarDeOuder) {
  Reeks(20);
  Bouw().Relatie(10, 5, {4});
  EXPECT_EQ(Pagina("druk NaarPa(3)"), Nummers(10, 21));
  EXPECT_EQ(Pagina("druk NaarMa(3)"), Nummers(5, 19));
}

TEST_F(ZoekPrsTest, InfoToontDePersoonEnDeLijstBlijftStaan) {
  Reeks(3);
  Speelt("druk InfoPersoon(2)\ntoon InfoTekst\ndruk OKButton\ntoon RecordNrPrs(1)", R"_(
    + PersInfoForm "Info Persoon"
    = InfoTekst "A2 Reeks(3)"
    - PersInfoForm
    = RecordNrPrs(1) "2"
  )_");
}

TEST_F(ZoekPrsTest, NaInfoGaatVolgendeVerderVanafDiePersoon) {
  Reeks(40);
  EXPECT_EQ(Pagina("druk InfoPersoon(3)\ndruk OKButton\ndruk Volgende"), Nummers(5, 19));
}

TEST_F(ZoekPrsTest, EscapeIsTerug) {
  Reeks(1);
  Verwacht(
      "toets Escape",
      [](Hoofdmodule& hoofd) {
        hoofd.volgers.HuidigPersoonNr = 0;
        ZoekPrs lijst(hoofd);
        hoofd.gesprek.ToonModaal(lijst);
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 0);
      },
      "+ ZoekPrs \"Zoek Persoon\"\n- ZoekPrs\n");
}

}  // namespace
}  // namespace lb77
