#include <gtest/gtest.h>

#include <string>

#include "entry/ZoekPrs.h"
#include "steun/FamilieToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class ZoekPrsTest : public FamilieToets {
 protected:
  // Plays a script on the list and expects what stands between its opening and its closing. The
  // list is left by its BackButton.
  void Speelt(std::string_view draaiboek, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    Verwacht(
        std::string(draaiboek) + "\ndruk BackButton",
        [](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = 0;
          ZoekPrs lijst(hoofd);
          hoofd.gesprek.ToonModaal(lijst);
          EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 0);
        },
        "+ ZoekPrs \"Zoek Persoon\"\n" + Regels(verslag) + "- ZoekPrs\n", plek);
  }

  // The numbers that the list shows after the clicks of a script, and where it stands then.
  std::string Pagina(std::string_view draaiboek, std::int16_t begin = 0) {
    const auto programma = Sessie([begin](Hoofdmodule& hoofd) {
      hoofd.volgers.HuidigPersoonNr = begin;
      ZoekPrs lijst(hoofd);
      hoofd.gesprek.ToonModaal(lijst);
    });
    std::string boek(draaiboek);
    for (int rij = 1; rij <= ZoekPrs::kRijen; ++rij) {
      boek += "\ntoon RecordNrPrs(" + GetalTekst(rij) + ")";
    }
    const SpeelUitslag uitslag = Speel(boek, programma);
    EXPECT_EQ(uitslag.reden, "");
    return Zichtbaar();
  }

 private:
  std::string Zichtbaar() const {
    std::string uit;
    std::size_t begin = 0;
    while (begin < verslag_.size()) {
      const std::size_t eind = verslag_.find('\n', begin);
      const std::string regel = verslag_.substr(begin, eind - begin);
      begin = eind + 1;
      if (!regel.starts_with("= RecordNrPrs") || regel.ends_with("[verborgen]")) continue;
      const std::size_t nr = regel.find('"') + 1;
      uit += regel.substr(nr, regel.find('"', nr) - nr) + " ";
    }
    return uit;
  }
};

std::string Nummers(int van, int tot) {
  std::string uit;
  for (int nr = van; nr <= tot; ++nr) uit += GetalTekst(nr) + " ";
  return uit;
}

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

TEST_F(ZoekPrsTest, DeEerstePaginaHeeftVijftienPersonen) {
  Reeks(20);
  EXPECT_EQ(Pagina(""), Nummers(2, 16));
}

TEST_F(ZoekPrsTest, DeEerstePaginaBegintBijHuidigPersoonNrMaarNietVoorRecordTwee) {
  Reeks(20);
  EXPECT_EQ(Pagina("", 5), Nummers(5, 19));
  EXPECT_EQ(Pagina("", 1), Nummers(2, 16));
  EXPECT_EQ(Pagina("", -1), Nummers(2, 16));
}

TEST_F(ZoekPrsTest, EenTeLageTellingVerbergtNiemandEenTeHogeWordtGemeldBijHetBladeren) {
  Reeks(3);
  Bouw().WijzigPersoon(1, {{"GebPlaats", "1"}});
  EXPECT_EQ(Pagina(""), Nummers(2, 4));
  Bouw().WijzigPersoon(1, {{"GebPlaats", "5"}});
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

TEST_F(ZoekPrsTest, HetFilterToontAlleenWiePast) {
  Bouw().Man("Jan", "de Vries");
  Bouw().Man("Jan", "De Vries");
  Bouw().Man("Jannes", "de Vries");
  Bouw().Man("Piet", "de Vries");
  const std::string_view aan =
      "druk FilterButton\nvul VoorNm Jan*\nvul AchterNm de*\ndruk OKButton";
  EXPECT_EQ(Pagina(aan), "2 4 ");
  EXPECT_EQ(Pagina("druk FilterButton\nvul AchterNm de\ndruk OKButton"), "");
}

TEST_F(ZoekPrsTest, HetFilterBegintBijRecordTweeEnDeKnopZegtDatHetUitKan) {
  Reeks(40);
  Speelt(R"(
    druk Volgende
    druk FilterButton
    vul AchterNm Reeks
    druk OKButton
    toon FilterButton
    toon RecordNrPrs(1)
    druk FilterButton
    toon FilterButton
    toon RecordNrPrs(1)
  )",
         R"(
    + VraagFilter "Zoek Persoon - Filter op Naam"
    - VraagFilter
    = FilterButton "Filter Uit"
    = RecordNrPrs(1) "2"
    = FilterButton "Start Filter"
    = RecordNrPrs(1) "16"
  )");
}

TEST_F(ZoekPrsTest, EenLeegFilterStaatUit) {
  Reeks(40);
  Speelt("druk FilterButton\ndruk OKButton\ntoon FilterButton\ntoon RecordNrPrs(1)", R"(
    + VraagFilter "Zoek Persoon - Filter op Naam"
    - VraagFilter
    = FilterButton "Start Filter"
    = RecordNrPrs(1) "16"
  )");
  Speelt("druk FilterButton\nvul VoorNm A1\ndruk BackButton\ntoon FilterButton", R"(
    + VraagFilter "Zoek Persoon - Filter op Naam"
    - VraagFilter
    = FilterButton "Start Filter"
  )");
}

TEST_F(ZoekPrsTest, BladerenMetFilterTeltAlleenWiePast) {
  for (int n = 0; n < 50; ++n) {
    Bouw().Man("Even", "Vos");
    Bouw().Man("Oneven", "Vos");
  }
  const std::string aan = "druk FilterButton\nvul VoorNm Oneven\ndruk OKButton\n";
  const auto oneven = [](int van, int tot) {
    std::string uit;
    for (int nr = van; nr <= tot; nr += 2) uit += GetalTekst(nr) + " ";
    return uit;
  };
  EXPECT_EQ(Pagina(aan), oneven(3, 31));
  EXPECT_EQ(Pagina(aan + "druk Volgende"), oneven(33, 61));
  EXPECT_EQ(Pagina(aan + "druk Volgende\ndruk Volgende\ndruk Vorige"), oneven(33, 61));
  EXPECT_EQ(Pagina(aan + "druk Volgende\ndruk Vorige"), oneven(3, 31));
  EXPECT_EQ(Pagina(aan + "druk Vorige"), oneven(3, 31));
}

TEST_F(ZoekPrsTest, TerugbladerenMetFilterSlaatEenOnleesbaarRecordOver) {
  Reeks(60);
  MaakGat(20);
  const std::string aan = "druk FilterButton\nvul AchterNm Reeks\ndruk OKButton\n";
  const std::string verder = aan + "druk Volgende\ndruk Volgende\ndruk Volgende\n";
  EXPECT_EQ(Pagina(verder), Nummers(21, 35));
  EXPECT_EQ(Pagina(verder + "druk Vorige"), Nummers(5, 19));
}

TEST_F(ZoekPrsTest, VolgendeVoorbijHetEindeToontMetFilterWiePastOnderDeLaatsteVijftien) {
  Reeks(40);
  const std::string aan = "druk FilterButton\nvul VoorNm A4*\ndruk OKButton\n";
  EXPECT_EQ(Pagina(aan), "5 41 ");
  EXPECT_EQ(Pagina(aan + "druk Volgende"), "41 ");
}

TEST_F(ZoekPrsTest, EenPaginaMetFilterLeestNietMeerDanNodigIs) {
  Reeks(100);
  Bouw().Man("Jan", "Vos");
  static_cast<void>(Pagina(""));
  const int zonder = Gelezen(BestandSoort::Personen);
  EXPECT_EQ(zonder, 15);
  static_cast<void>(Pagina("druk FilterButton\nvul AchterNm Reeks\ndruk OKButton"));
  EXPECT_EQ(Gelezen(BestandSoort::Personen) - zonder, 15);
  static_cast<void>(Pagina("druk FilterButton\nvul AchterNm Vos\ndruk OKButton"));
  EXPECT_EQ(Gelezen(BestandSoort::Personen) - zonder, 102);
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
