#include <gtest/gtest.h>

#include <string>

#include "entry/Invoer.h"
#include "steun/FamilieToets.h"

namespace lb77 {
namespace {

class InvoerTest : public FamilieToets {
 protected:
  void VerwachtGeldig(std::string_view tekst, BestandSoort bestand, Vervolgtest vervolgtest) {
    Stil([&](Hoofdmodule& hoofd) {
      EXPECT_TRUE(RecordNrGeldig(hoofd.MaakGegevens(), hoofd.gesprek, tekst, bestand, vervolgtest))
          << tekst;
    });
  }
  void VerwachtOngeldig(std::string_view tekst, BestandSoort bestand, Vervolgtest vervolgtest,
                        std::string_view verslag, const Plek& plek = Plek::current()) {
    Verwacht(
        "",
        [&](Hoofdmodule& hoofd) {
          EXPECT_FALSE(
              RecordNrGeldig(hoofd.MaakGegevens(), hoofd.gesprek, tekst, bestand, vervolgtest))
              << tekst;
        },
        verslag, plek);
  }
};

constexpr std::string_view kBestaatNiet = R"(! uitroep "Recordnummer bestaat niet")";

TEST_F(InvoerTest, HaalNaamGeeftNamenEnNummer) {
  const std::int16_t nr = Bouw().Man("Jan", "de Vries");
  Stil([&](Hoofdmodule& hoofd) {
    std::string voor;
    std::string achter;
    std::string tekst;
    HaalNaam(hoofd.Persoon, nr, voor, achter, tekst);
    EXPECT_EQ(voor, "Jan");
    EXPECT_EQ(achter, "de Vries");
    EXPECT_EQ(tekst, "2");
  });
}

TEST_F(InvoerTest, HaalNaamVanNulIsLeeg) {
  Stil([&](Hoofdmodule& hoofd) {
    std::string voor = "oud";
    std::string achter = "oud";
    std::string tekst = "7";
    HaalNaam(hoofd.Persoon, 0, voor, achter, tekst);
    EXPECT_EQ(voor + achter + tekst, "");
  });
}

TEST_F(InvoerTest, HaalNaamVanEenOnleesbarePersoonGeeftVraagtekens) {
  Stil([&](Hoofdmodule& hoofd) {
    std::string voor;
    std::string achter;
    std::string tekst;
    HaalNaam(hoofd.Persoon, 99, voor, achter, tekst);
    EXPECT_EQ(voor, "?????");
    EXPECT_EQ(achter, "?????");
    EXPECT_EQ(tekst, "99");
  });
}

TEST_F(InvoerTest, EenNummerVanElkBestandIsGeldig) {
  Bouw().Man("Jan", "Vos");
  Bouw().Relatie(2, 0);
  Bouw().Plaats("Delft", "ZH");
  Bouw().OpmerkingBijPersoon(2, 1, {"Regel"});
  VerwachtGeldig("2", BestandSoort::Personen, Vervolgtest::Geen);
  VerwachtGeldig(" 2 ", BestandSoort::Relaties, Vervolgtest::GeenVervolg);
  VerwachtGeldig("00002", BestandSoort::Plaatsen, Vervolgtest::Geen);
  VerwachtGeldig("2", BestandSoort::Opmerkingen, Vervolgtest::Geen);
}

TEST_F(InvoerTest, EenAnderBestandIsNooitGeldig) {
  VerwachtOngeldig("2", static_cast<BestandSoort>(0), Vervolgtest::Geen, "");
  VerwachtOngeldig("2", static_cast<BestandSoort>(5), Vervolgtest::Geen, "");
}

TEST_F(InvoerTest, EenLegeTekstWordtStilGeweigerd) {
  VerwachtOngeldig("", BestandSoort::Personen, Vervolgtest::Geen, "");
  VerwachtOngeldig("   ", BestandSoort::Plaatsen, Vervolgtest::Geen, "");
}

TEST_F(InvoerTest, AlleenDeEersteVijfTekensTellen) {
  Bouw().Man("Jan", "Vos");
  VerwachtGeldig("00002x", BestandSoort::Personen, Vervolgtest::Geen);
  VerwachtOngeldig("     2", BestandSoort::Personen, Vervolgtest::Geen, "");
}

TEST_F(InvoerTest, ElkTekenDatGeenCijferIsGeeftZijnEigenMelding) {
  VerwachtOngeldig("12a4", BestandSoort::Personen, Vervolgtest::Geen,
                   R"(! uitroep "Recordnummer is niet numeriek")");
  VerwachtOngeldig("a1 -", BestandSoort::Relaties, Vervolgtest::Geen, R"(
    ! uitroep "Recordnummer is niet numeriek"
    ! uitroep "Recordnummer is niet numeriek"
    ! uitroep "Recordnummer is niet numeriek"
  )");
}

TEST_F(InvoerTest, NummersBuitenHetBestandBestaanNiet) {
  Bouw().Man("Jan", "Vos");
  for (const std::string_view tekst : {"0", "1", "3", "32767", "32768", "40000", "99999"}) {
    VerwachtOngeldig(tekst, BestandSoort::Personen, Vervolgtest::Geen, kBestaatNiet);
  }
}

TEST_F(InvoerTest, EenOnleesbareRelatieOfPersoonBestaatNiet) {
  Reeks(3);
  MaakGat(3);
  VerwachtOngeldig("3", BestandSoort::Personen, Vervolgtest::Geen, kBestaatNiet);
  Bouw().Relatie(2, 0);
  Bouw().Relatie(4, 0);
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  VerwachtOngeldig("2", BestandSoort::Relaties, Vervolgtest::Geen, R"(
    ! stop "Fout bij het lezen van Relatierecord 2\nFout van de schijf"
    ! uitroep "Recordnummer bestaat niet"
  )");
}

TEST_F(InvoerTest, EenOnjuisteTellingWordtGemeldVoorDeTekstBekekenWordt) {
  Reeks(2);
  Bouw().ZetAantalPersonen(5);
  VerwachtOngeldig("4x", BestandSoort::Personen, Vervolgtest::Geen, R"(
    ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:3\nVolgens administratierecord:6"
    ! uitroep "Recordnummer is niet numeriek"
  )");
}

TEST_F(InvoerTest, EenOpmerkingWordtNietGelezen) {
  Bouw().Man("Jan", "Vos");
  Bouw().OpmerkingBijPersoon(2, 1, {"Regel"});
  Bouw().OpmerkingBijPersoon(2, 2, {"Regel"});
  MaakOnleesbaar(BestandSoort::Opmerkingen, 2);
  VerwachtGeldig("2", BestandSoort::Opmerkingen, Vervolgtest::Vervolg);
}

TEST_F(InvoerTest, EenPlaatsWordtNietGelezen) {
  Bouw().Plaats("Delft", "ZH");
  Bouw().Plaats("Breda", "NB");
  MaakOnleesbaar(BestandSoort::Plaatsen, 2);
  VerwachtGeldig("2", BestandSoort::Plaatsen, Vervolgtest::Geen);
}

TEST_F(InvoerTest, DeVervolgtestVanPersonen) {
  Reeks(2);
  MaakVervolg(3);
  VerwachtOngeldig("3", BestandSoort::Personen, Vervolgtest::GeenVervolg,
                   R"(! uitroep "Record is een vervolgrecord")");
  VerwachtOngeldig("2", BestandSoort::Personen, Vervolgtest::Vervolg,
                   R"(! uitroep "Record is geen vervolgrecord")");
  VerwachtGeldig("3", BestandSoort::Personen, Vervolgtest::Geen);
  VerwachtGeldig("3", BestandSoort::Personen, Vervolgtest::Vervolg);
  VerwachtGeldig("2", BestandSoort::Personen, Vervolgtest::GeenVervolg);
}

TEST_F(InvoerTest, DeVervolgtestVanRelaties) {
  Bouw().Relatie(0, 0);
  Bouw().Relatie(0, 0);
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  VerwachtOngeldig("3", BestandSoort::Relaties, Vervolgtest::GeenVervolg,
                   R"(! uitroep "Record is een vervolgrecord")");
  VerwachtOngeldig("2", BestandSoort::Relaties, Vervolgtest::Vervolg,
                   R"(! uitroep "Record is geen vervolgrecord")");
  VerwachtGeldig("3", BestandSoort::Relaties, Vervolgtest::Vervolg);
  VerwachtGeldig("2", BestandSoort::Relaties, Vervolgtest::GeenVervolg);
}

}  // namespace
}  // namespace lb77
