#include <gtest/gtest.h>

#include "store/JournaalToets.h"

using namespace lb77;
using enum BestandSoort;

namespace {

using Soort = OngedaanUitslag::Soort;

class JournaalOngedaanTest : public JournaalToets {
 protected:
  JournaalOngedaanTest() { Vul(); }

  // The next step back, as by Ctrl+Z.
  bool Terug() {
    const auto laatste = Dagboek().LaatsteTeOngedaan();
    return laatste && Dagboek().MaakOngedaan(laatste->nummer);
  }
};

}  // namespace

TEST_F(JournaalOngedaanTest, GeeftElkByteEnElkeLengteTerug) {
  const VierBestanden begin = Stand();
  ASSERT_FALSE(DoeAlles('x'));
  EXPECT_NE(Stand(), begin);
  EXPECT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(Stand(), begin);
}

TEST_F(JournaalOngedaanTest, IsZelfEenHandelingDieOngedaanKan) {
  ASSERT_FALSE(DoeAlles('x'));
  const VierBestanden na = Stand();
  ASSERT_TRUE(Dagboek().MaakOngedaan(1));
  const auto regels = Dagboek().Geschiedenis();
  ASSERT_EQ(regels.size(), 2U);
  EXPECT_EQ(regels[1].label, "Ongedaan: Alles");
  EXPECT_EQ(regels[1].ongedaanVanaf, 1U);
  EXPECT_TRUE(regels[0].ongedaan);
  EXPECT_FALSE(regels[1].ongedaan);
  ASSERT_TRUE(Dagboek().MaakOngedaan(2));
  EXPECT_EQ(Stand(), na);
  EXPECT_EQ(Dagboek().Geschiedenis()[2].label, "Opnieuw: Alles");
  EXPECT_FALSE(Dagboek().Geschiedenis()[0].ongedaan);
  EXPECT_TRUE(Dagboek().Geschiedenis()[1].ongedaan);
  ASSERT_TRUE(Dagboek().MaakOngedaan(3));
  EXPECT_EQ(Dagboek().Geschiedenis()[3].label, "Ongedaan: Alles");
}

TEST_F(JournaalOngedaanTest, StapVoorStapVerderTerug) {
  const VierBestanden begin = Stand();
  ASSERT_FALSE(Doe("Een", {{Personen, 1}, {Personen, 2}}, 'x'));
  const VierBestanden een = Stand();
  ASSERT_FALSE(Doe("Twee", {{Personen, 2}, {Personen, 6}}, 'y'));
  EXPECT_EQ(Dagboek().LaatsteTeOngedaan()->label, "Twee");
  EXPECT_TRUE(Terug());
  EXPECT_EQ(Stand(), een);
  EXPECT_EQ(Dagboek().LaatsteTeOngedaan()->label, "Een");
  EXPECT_TRUE(Terug());
  EXPECT_EQ(Stand(), begin);
  EXPECT_FALSE(Dagboek().LaatsteTeOngedaan());
}

TEST_F(JournaalOngedaanTest, TerugNaarEenEerdereIsEenHandeling) {
  const VierBestanden begin = Stand();
  for (const char teken : {'1', '2', '3'})
    ASSERT_FALSE(Doe("Stap", {{Personen, 2}, {Plaatsen, 6}}, teken));
  const VierBestanden drie = Stand();
  ASSERT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(Stand(), begin);
  EXPECT_EQ(Dagboek().Geschiedenis().size(), 4U);
  ASSERT_TRUE(Dagboek().MaakOngedaan(4));
  EXPECT_EQ(Stand(), drie);
}

TEST_F(JournaalOngedaanTest, WieAchterEenHalfRecordSchrijftVultDatAan) {
  const VierBestanden begin = Stand();
  ASSERT_FALSE(Schrijf(Plaatsen, 5, 'x'));
  ASSERT_TRUE(Dagboek().MaakOngedaan(1));
  ASSERT_FALSE(Schrijf(Plaatsen, 9, 'y'));
  ASSERT_FALSE(Schrijf(Plaatsen, 5, 'z'));
  EXPECT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(Stand(), begin);
}

TEST_F(JournaalOngedaanTest, EenRecordVanEenAnderWordtNietOverschreven) {
  ASSERT_FALSE(Doe("Een", {{Personen, 2}, {Relaties, 3}}, 'x'));
  schijf.Bytes(Naam(Relaties))[2 * 64] = 'q';
  const VierBestanden voor = Stand();
  const OngedaanUitslag uitslag = Dagboek().MaakOngedaan(1);
  EXPECT_EQ(uitslag.soort, Soort::Gewijzigd);
  EXPECT_EQ(OngedaanTekst(uitslag),
            "Relatierecord 3 is sindsdien door een ander programma gewijzigd");
  EXPECT_EQ(Stand(), voor);
  EXPECT_EQ(Dagboek().Geschiedenis().size(), 1U);
}

TEST_F(JournaalOngedaanTest, OokNietAlsHetTussenTweeHandelingenWas) {
  ASSERT_FALSE(Doe("Een", {{Opmerkingen, 2}}, 'x'));
  schijf.Bytes(Naam(Opmerkingen))[96] = 'q';
  ASSERT_FALSE(Doe("Twee", {{Opmerkingen, 2}}, 'y'));
  EXPECT_EQ(OngedaanTekst(Dagboek().MaakOngedaan(1)),
            "Opmerkingrecord 2 is sindsdien door een ander programma gewijzigd");
  EXPECT_TRUE(Dagboek().MaakOngedaan(2));
}

TEST_F(JournaalOngedaanTest, EenBestandDatGroeideOfKromp) {
  ASSERT_FALSE(Doe("Een", {{Personen, 6}}, 'x'));
  std::string& bytes = schijf.Bytes(Naam(Personen));
  bytes.append(128, 'z');
  EXPECT_EQ(OngedaanTekst(Dagboek().MaakOngedaan(1)),
            "Persoonsrecord 7 is sindsdien door een ander programma gewijzigd");
  bytes.resize(6 * 128);
  EXPECT_TRUE(Dagboek().MaakOngedaan(1));
}

TEST_F(JournaalOngedaanTest, WatEenAnderElderSchreefBlijft) {
  ASSERT_FALSE(Doe("Een", {{Personen, 2}}, 'x'));
  schijf.Bytes(Naam(Personen))[3 * 128] = 'q';
  ASSERT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(Stand()[Personen][3 * 128], 'q');
}

TEST_F(JournaalOngedaanTest, WatNietKanZegtWaarom) {
  EXPECT_EQ(OngedaanTekst(Dagboek().MaakOngedaan(9)), "Deze bewerking staat niet in het journaal");
  ASSERT_FALSE(Doe("Een", {{Personen, 2}}, 'x'));
  {
    Handeling handeling(*bestanden, "Twee");
    EXPECT_EQ(OngedaanTekst(Dagboek().MaakOngedaan(1)), "Er is nog een bewerking bezig");
  }
  schijf.Bytes("00000001.HND")[60] = '!';
  EXPECT_EQ(OngedaanTekst(Dagboek().MaakOngedaan(1)), "Het journaal van bewerking 1 is beschadigd");
  EXPECT_FALSE(Dagboek().Geschiedenis()[0].gaaf);
  EXPECT_EQ(OngedaanTekst({}), "");
}

TEST_F(JournaalOngedaanTest, HetCentralePlaatsbestandBlijftBuitenSchot) {
  ASSERT_FALSE(bestanden->Open(Plaatsen, "/elders/PLAATS.PLT"));
  ASSERT_FALSE(Schrijf(Plaatsen, 1, 'x'));
  ASSERT_FALSE(bestanden->Open(Plaatsen, "/proef/PROEF/PROEF.PLT"));
  EXPECT_EQ(OngedaanTekst(Dagboek().MaakOngedaan(1)), "Het plaatsbestand is een ander dan toen");
  ASSERT_FALSE(bestanden->Open(Plaatsen, "/elders/PLAATS.PLT"));
  EXPECT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(schijf.Bytes("PLAATS.PLT"), "");
}

TEST_F(JournaalOngedaanTest, DeWijzigingenZijnDeBytesVoorEnNa) {
  ASSERT_FALSE(Doe("Een", {{Personen, 2}, {Personen, 6}}, 'x'));
  ASSERT_FALSE(Doe("Twee", {{Personen, 2}}, 'y'));
  const auto een = Dagboek().Wijzigingen(1);
  ASSERT_EQ(een.size(), 2U);
  EXPECT_EQ(een[0].plek, (RecordPlek{Personen, 2}));
  EXPECT_EQ(een[0].voor, std::string(128, 'b'));
  EXPECT_EQ(een[0].na, std::string(128, 'x'));
  EXPECT_EQ(een[1].voor, "");
  EXPECT_EQ(een[1].na, std::string(128, 'x'));
  EXPECT_EQ(Dagboek().Wijzigingen(2)[0].na, std::string(128, 'y'));
  schijf.Bytes(Naam(Personen))[128] = 'q';
  EXPECT_FALSE(Dagboek().Wijzigingen(2)[0].na);
  EXPECT_TRUE(Dagboek().Wijzigingen(3).empty());
}

TEST_F(JournaalOngedaanTest, MisluktHetDanStaatErWatErStond) {
  ASSERT_FALSE(DoeAlles('x'));
  const VierBestanden na = Stand();
  const std::string journaal = schijf.Bytes("00000001.HND");
  bool verder = true;
  for (int k = 1; verder; ++k) {
    for (const std::string& naam : schijf.Journalen()) schijf.Verwijder(naam);
    schijf.Bytes("00000001.HND") = journaal;
    Zet(na);
    Heropen();
    schijf.bij = schijf.teller + k;
    schijf.wijze = ProefSchijf::Wijze::Kort;
    const OngedaanUitslag uitslag = Dagboek().MaakOngedaan(1);
    verder = schijf.Geweest();
    if (uitslag) continue;
    EXPECT_EQ(uitslag.soort, Soort::Mislukt) << k;
    EXPECT_TRUE(OngedaanTekst(uitslag).starts_with("Ongedaan maken is niet gelukt\n"));
    EXPECT_EQ(Stand(), na) << k;
    EXPECT_FALSE(Dagboek().Onvoltooid()) << k;
  }
}

TEST_F(JournaalOngedaanTest, GestorvenTijdensHetOngedaanMaken) {
  const VierBestanden begin = Stand();
  ASSERT_FALSE(DoeAlles('x'));
  const VierBestanden na = Stand();
  const std::string journaal = schijf.Bytes("00000001.HND");
  bool verder = true;
  for (int k = 1; verder; ++k) {
    for (const std::string& naam : schijf.Journalen()) schijf.Verwijder(naam);
    schijf.Bytes("00000001.HND") = journaal;
    Zet(na);
    Heropen();
    schijf.bij = schijf.teller + k;
    schijf.wijze = ProefSchijf::Wijze::Dood;
    static_cast<void>(Dagboek().MaakOngedaan(1));
    verder = schijf.Geweest();
    Heropen();
    if (Dagboek().Onvoltooid()) {
      ASSERT_FALSE(Dagboek().Herstel());
      EXPECT_EQ(Stand(), na) << k;
    } else {
      EXPECT_TRUE(Stand() == na || Stand() == begin) << k;
    }
  }
}
