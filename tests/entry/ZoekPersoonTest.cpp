#include <gtest/gtest.h>

#include <string>

#include "entry/ZoekPersoon.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

struct Gevonden {
  std::int16_t nr = -1;
  std::string voor;
  std::string achter;
};

class ZoekPersoonTest : public FamilieToets {
 protected:
  Gevonden Zoek(std::string_view voor, std::string_view achter, std::string_view geslacht,
                std::string_view draaiboek, std::string_view verslag,
                const Plek& plek = Plek::current()) {
    Gevonden uit{-1, std::string(voor), std::string(achter)};
    Verwacht(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          uit.nr = ZoekPersoonOpNaam(hoofd, uit.voor, uit.achter, geslacht);
        },
        verslag, plek);
    return uit;
  }
  // The numbers that are offered when each is declined.
  std::string Aangeboden(std::string_view voor, std::string_view achter,
                         std::string_view geslacht = "*") {
    std::string draaiboek;
    for (int n = 0; n < 9; ++n) draaiboek += "antwoord Ja\n";
    for (int n = 0; n < 9; ++n) draaiboek += "toon PNr\ndruk NeeButton\n";
    Programma programma = Sessie([&](Hoofdmodule& hoofd) {
      std::string v(voor);
      std::string a(achter);
      EXPECT_EQ(ZoekPersoonOpNaam(hoofd, v, a, geslacht), 0);
    });
    static_cast<void>(Speel(draaiboek, programma));
    return Nummers();
  }

 private:
  std::string Nummers() const {
    constexpr std::string_view kBegin = "= PNr \"";
    std::string uit;
    for (std::size_t i = verslag_.find(kBegin); i != std::string::npos;
         i = verslag_.find(kBegin, i + 1)) {
      const std::size_t nr = i + kBegin.size();
      uit += verslag_.substr(nr, verslag_.find('"', nr) - nr) + " ";
    }
    return uit;
  }
};

constexpr std::string_view kNietGevonden = R"(! uitroep "Persoon niet gevonden")";

TEST_F(ZoekPersoonTest, JaEindigtDeZoektochtMetNummerEnNamen) {
  Bouw().Man("Jan", "Vos");
  Bouw().Man("Jan Pieter", "de Vries");
  const Gevonden uit = Zoek(" jan pieter ", "DE VRIES", "M", "druk JaButton", R"(
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
  )");
  EXPECT_EQ(uit.nr, 3);
  EXPECT_EQ(uit.voor, "Jan Pieter");
  EXPECT_EQ(uit.achter, "de Vries");
}

TEST_F(ZoekPersoonTest, NeeVraagtOfErVerderGezochtMoetWorden) {
  Bouw().Man("Jan", "Vos");
  Bouw().Man("Jan", "Vos");
  const Gevonden uit = Zoek("Jan", "Vos", "*", "antwoord Ja\ndruk NeeButton\ndruk JaButton", R"(
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
    ? vraag Ja/Nee "Verder Zoeken ?" -> Ja
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
  )");
  EXPECT_EQ(uit.nr, 3);
}

TEST_F(ZoekPersoonTest, NietVerderZoekenEindigtZonderMelding) {
  Bouw().Man("Jan", "Vos");
  Bouw().Man("Jan", "Vos");
  const Gevonden uit = Zoek(" jan", "vos ", "*", "antwoord Nee\ndruk NeeButton", R"(
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
    ? vraag Ja/Nee "Verder Zoeken ?" -> Nee
  )");
  EXPECT_EQ(uit.nr, 0);
  EXPECT_EQ(uit.voor, "jan");
  EXPECT_EQ(uit.achter, "vos");
}

TEST_F(ZoekPersoonTest, AanHetEindeVanHetBestandIsDePersoonNietGevonden) {
  Bouw().Man("Jan", "Vos");
  EXPECT_EQ(Zoek("Piet", "Vos", "*", "", kNietGevonden).nr, 0);
  EXPECT_EQ(Zoek("Jan", "Vos", "*", "antwoord Ja\ndruk NeeButton", R"(
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
    ? vraag Ja/Nee "Verder Zoeken ?" -> Ja
    ! uitroep "Persoon niet gevonden"
  )")
                .nr,
            0);
}

TEST_F(ZoekPersoonTest, TweeLegeNamenGevenStilNul) {
  Bouw().Man("Jan", "Vos");
  EXPECT_EQ(Zoek("", "", "*", "", "").nr, 0);
  const Gevonden blank = Zoek("   ", "  ", "M", "", "");
  EXPECT_EQ(blank.nr, 0);
  EXPECT_EQ(blank.voor + blank.achter, "");
}

TEST_F(ZoekPersoonTest, EenLeegBestandHeeftNiemand) {
  EXPECT_EQ(Zoek("*", "", "*", "", kNietGevonden).nr, 0);
}

TEST_F(ZoekPersoonTest, DeJokerVindtElkBeginInElkeKastEnZonderJokerAlleenDeHeleNaam) {
  Bouw().Man("Jan", "Vos");
  Bouw().Man("JANNES", "Vos");
  Bouw().Man("Ja", "Vos");
  EXPECT_EQ(Aangeboden("jan*", "vos"), "2 3 ");
  EXPECT_EQ(Aangeboden("jan", "vos"), "2 ");
}

TEST_F(ZoekPersoonTest, EenSterretjeInEenVeldPastOpElkeWaardeVanDatVeld) {
  Bouw().Man("Jan", "Vos");
  Bouw().Man("", "Vos");
  Bouw().Man("Jan", "");
  EXPECT_EQ(Aangeboden("*", ""), "2 3 4 ");
  EXPECT_EQ(Aangeboden("*", "Vos"), "2 3 ");
  EXPECT_EQ(Aangeboden("Jan", "*"), "2 4 ");
}

TEST_F(ZoekPersoonTest, EenLeegVeldNaastEenNaamPastOpAlles) {
  Bouw().Man("Jan", "Vos");
  Bouw().Man("Piet", "Vos");
  Bouw().Man("Jan", "Bos");
  EXPECT_EQ(Aangeboden("", "vos"), "2 3 ");
  EXPECT_EQ(Aangeboden("jan", " "), "2 4 ");
}

TEST_F(ZoekPersoonTest, LettersMetEenAccentKennenGeenKast) {
  Bouw().Man("Andr\xE9", "Vos");
  EXPECT_EQ(Aangeboden("ANDR\xC9", "vos"), "2 ");
}

TEST_F(ZoekPersoonTest, HetGeslachtMoetPassenTenzijHetEenSterretjeIs) {
  Bouw().Man("Anne", "Vos");
  Bouw().Vrouw("Anne", "Vos");
  Bouw().Persoon('?', "Anne", "Vos");
  EXPECT_EQ(Aangeboden("Anne", "Vos", "M"), "2 ");
  EXPECT_EQ(Aangeboden("Anne", "Vos", "V"), "3 ");
  EXPECT_EQ(Aangeboden("Anne", "Vos", "*"), "2 3 4 ");
}

TEST_F(ZoekPersoonTest, EenVervolgrecordIsNiemand) {
  Bouw().Man("Jan", "Vos");
  Bouw().Man("Jan", "Vos");
  MaakVervolg(2);
  EXPECT_EQ(Aangeboden("Jan", "Vos"), "3 ");
}

TEST_F(ZoekPersoonTest, LangeNamenWordenAfgekaptTotDeBreedteVanHetRecord) {
  const std::string dertig(30, 'J');
  const std::string vijfentwintig(25, 'V');
  Bouw().Man(dertig, vijfentwintig);
  EXPECT_EQ(Aangeboden(dertig + "x", vijfentwintig + "x"), "2 ");
  EXPECT_EQ(Aangeboden(std::string(29, 'J') + " xx", vijfentwintig), "");
  EXPECT_EQ(Aangeboden(std::string(29, 'J') + "*", vijfentwintig), "2 ");
  Bouw().Man(std::string(29, 'J'), std::string(24, 'V'));
  EXPECT_EQ(Aangeboden("  " + std::string(29, 'J') + " x", std::string(24, 'V') + " x"), "3 ");
}

TEST_F(ZoekPersoonTest, EenOnleesbaarRecordVraagtOfHetDoorgaat) {
  Reeks(2);
  Bouw().Man("Jan", "Vos");
  MaakGat(3);
  EXPECT_EQ(Zoek("Jan", "Vos", "*", "antwoord Ja\ndruk JaButton", R"(
    ? vraag Ja/Nee "Doorgaan" -> Ja
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
  )")
                .nr,
            4);
  EXPECT_EQ(Zoek("Jan", "Vos", "*", "antwoord Nee", R"(
    ? vraag Ja/Nee "Doorgaan" -> Nee
  )")
                .nr,
            0);
}

TEST_F(ZoekPersoonTest, EenOnjuisteTellingWordtEerstGemeld) {
  Bouw().Man("Jan", "Vos");
  Bouw().ZetAantalPersonen(5);
  EXPECT_EQ(Zoek("Jan", "Vos", "*", "druk JaButton", R"(
    ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:2\nVolgens administratierecord:6"
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
  )")
                .nr,
            2);
}

TEST_F(ZoekPersoonTest, VanTweeSterretjesIsAlleenHetLaatsteEenJoker) {
  Bouw().Man("J*n", "Vos");
  Bouw().Man("Jan", "Vos");
  EXPECT_EQ(Aangeboden("j**", "vos"), "2 ");
}

TEST_F(ZoekPersoonTest, EenLeesfoutVanDeSchijfKomtVoorDeVraag) {
  Reeks(2);
  MaakOnleesbaar(BestandSoort::Personen, 2);
  EXPECT_EQ(Zoek("Jan", "Vos", "*", "antwoord Ja", R"(
    ! stop "Fout bij het lezen van Persoonsrecord 2\nFout van de schijf"
    ? vraag Ja/Nee "Doorgaan" -> Ja
    ! uitroep "Persoon niet gevonden"
  )")
                .nr,
            0);
}

TEST_F(ZoekPersoonTest, DeKeuzeStaatInHuidigPersoonNr) {
  Bouw().Man("Jan", "Vos");
  Verwacht(
      "druk JaButton\ndruk NeeButton\nsluit",
      [](Hoofdmodule& hoofd) {
        EXPECT_TRUE(ToonOKPersoon(hoofd, 2, "Jan", "Vos"));
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 2);
        EXPECT_FALSE(ToonOKPersoon(hoofd, 2, "Jan", "Vos"));
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 0);
        EXPECT_FALSE(ToonOKPersoon(hoofd, 2, "Jan", "Vos"));
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 0);
      },
      R"(
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
  )");
}

TEST_F(ZoekPersoonTest, VraagZoekPersoonGeeftDeGekozenPersoonOfNul) {
  Reeks(3);
  Verwacht(
      "druk RecordNrPrs(2)\ndruk BackButton\nsluit",
      [](Hoofdmodule& hoofd) {
        hoofd.volgers.HuidigPersoonNr = 4;
        EXPECT_EQ(VraagZoekPersoon(hoofd), 3);
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 3);
        EXPECT_EQ(VraagZoekPersoon(hoofd), 0);
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 0);
        EXPECT_EQ(VraagZoekPersoon(hoofd), 0);
      },
      R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
  )");
}

}  // namespace
}  // namespace lb77
