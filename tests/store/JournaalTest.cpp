#include <gtest/gtest.h>

#include "store/Journaal.h"
#include "store/JournaalToets.h"

using namespace lb77;
using enum BestandSoort;

namespace {

using JournaalTest = JournaalToets;
using Soorten = std::vector<BestandSoort>;

}  // namespace

TEST_F(JournaalTest, ZonderSchrijvenIsErNiets) {
  Handeling handeling(*bestanden, "Niets");
  EXPECT_FALSE(handeling.Voltooi());
  EXPECT_EQ(schijf.Journalen().size(), 0U);
  EXPECT_TRUE(Dagboek().Geschiedenis().empty());
}

TEST_F(JournaalTest, EenSchrijfactieZonderHandelingIsErZelfEen) {
  ASSERT_FALSE(Schrijf(Personen, 1, 'x'));
  ASSERT_FALSE(Schrijf(Personen, 2, 'y'));
  const auto regels = Dagboek().Geschiedenis();
  ASSERT_EQ(regels.size(), 2U);
  EXPECT_EQ(regels[1].nummer, 2U);
  EXPECT_EQ(regels[1].label, "Wijziging");
  EXPECT_EQ(regels[1].tijd, "1999-12-31 23:59:58");
  EXPECT_EQ(regels[1].records, 1U);
  EXPECT_TRUE(regels[1].gaaf);
  EXPECT_EQ(schijf.Journalen(), (std::vector<std::string>{"00000001.HND", "00000002.HND"}));
}

TEST_F(JournaalTest, EenHandelingBinnenEenAndereHoortErbij) {
  {
    Handeling buiten(*bestanden, "Buiten");
    ASSERT_FALSE(Doe("Binnen", {{Personen, 1}, {Relaties, 1}}, 'x'));
    ASSERT_FALSE(Schrijf(Plaatsen, 1, 'x'));
    EXPECT_EQ(schijf.Journalen(), std::vector<std::string>{"00000001.BEZ"});
  }
  const auto regels = Dagboek().Geschiedenis();
  ASSERT_EQ(regels.size(), 1U);
  EXPECT_EQ(regels[0].label, "Buiten");
  EXPECT_EQ(regels[0].records, 3U);
}

TEST_F(JournaalTest, EenTweedeVoltooiDoetNiets) {
  Handeling buiten(*bestanden, "Buiten");
  Handeling binnen(*bestanden, "Binnen");
  ASSERT_FALSE(Schrijf(Personen, 1, 'x'));
  EXPECT_FALSE(binnen.Voltooi());
  EXPECT_FALSE(binnen.Voltooi());
  EXPECT_EQ(schijf.Journalen(), std::vector<std::string>{"00000001.BEZ"});
}

TEST_F(JournaalTest, HetSluitenVanDeSetBeeindigtDeHandeling) {
  Handeling handeling(*bestanden, "Open gebleven");
  ASSERT_FALSE(Schrijf(Personen, 1, 'x'));
  bestanden->SluitAlles();
  EXPECT_EQ(schijf.Journalen(), std::vector<std::string>{"00000001.HND"});
  Open();
  EXPECT_FALSE(handeling.Voltooi());
  EXPECT_FALSE(Dagboek().Onvoltooid());
}

TEST_F(JournaalTest, EenBestandDatTussentijdsSluitBlijftInDeHandeling) {
  {
    Handeling handeling(*bestanden, "Wissel");
    ASSERT_FALSE(Schrijf(Personen, 1, 'x'));
    ASSERT_FALSE(bestanden->Open(Personen, SetPaden::Van("/proef", "PROEF")));
    ASSERT_FALSE(Schrijf(Personen, 2, 'y'));
    bestanden->Sluit(Personen);
  }
  Open();
  ASSERT_EQ(Dagboek().Geschiedenis().size(), 1U);
  EXPECT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(Stand()[Personen], "");
}

TEST_F(JournaalTest, ZonderJournaalWordtErNietGeschreven) {
  schijf.bij = 1;
  schijf.wijze = ProefSchijf::Wijze::Vol;
  EXPECT_EQ(Schrijf(Personen, 1, 'x').tekst, "Schijf vol");
  EXPECT_EQ(Stand()[Personen], "");
}

TEST_F(JournaalTest, EenGeweigerdeSchrijfactieTeltAlsWijziging) {
  const std::uint64_t eerst = bestanden->Stand(Personen);
  schijf.bij = 1;
  EXPECT_TRUE(Schrijf(Personen, 1, 'x'));
  EXPECT_NE(bestanden->Stand(Personen), eerst);
}

TEST_F(JournaalTest, EenRecordDatNietKanBestaanWordtGeweigerd) {
  EXPECT_EQ(Schrijf(Personen, 0, 'x').tekst, "Onjuist recordnummer");
  EXPECT_EQ(Schrijf(Personen, 32768, 'x').tekst, "Onjuist recordnummer");
  EXPECT_EQ(schijf.Journalen().size(), 0U);
}

TEST_F(JournaalTest, WatAchteraanKomtKostHetJournaalNiets) {
  Vul();
  Handeling handeling(*bestanden, "Import");
  ASSERT_FALSE(Schrijf(Personen, 6, 'x'));
  const int eerst = schijf.teller;
  for (std::int32_t nr = 7; nr < 107; ++nr) ASSERT_FALSE(Schrijf(Personen, nr, 'x'));
  EXPECT_EQ(schijf.teller - eerst, 100);
}

TEST_F(JournaalTest, EenLangeReeksWijzigingenWachtZeldenOpDeSchijf) {
  schijf.Bytes(Naam(Personen)).assign(1000 * 128, 'a');
  Heropen();
  Handeling handeling(*bestanden, "Plaats vervangen");
  for (std::int32_t nr = 1; nr <= 1000; ++nr) ASSERT_FALSE(Schrijf(Personen, nr, 'b'));
  const std::string& journaal = schijf.Bytes("00000001.BEZ");
  EXPECT_EQ(OntleedJournaal(journaal).beelden.size(), 1000U);
  // A write and a read a record, and some thirty times a write and a wait for the journal.
  EXPECT_LT(schijf.teller, 2100);
}

TEST_F(JournaalTest, DeOudsteHandelingenGaanBovenDeVijfhonderd) {
  for (int i = 0; i < 503; ++i) ASSERT_FALSE(Schrijf(Personen, 1, static_cast<char>('a' + i % 2)));
  const auto regels = Dagboek().Geschiedenis();
  ASSERT_EQ(regels.size(), 500U);
  EXPECT_EQ(regels.front().nummer, 4U);
  EXPECT_EQ(regels.back().nummer, 503U);
}

TEST_F(JournaalTest, DeOudsteHandelingenGaanBoven256MiB) {
  ASSERT_FALSE(Schrijf(Personen, 1, 'a'));
  ASSERT_FALSE(Schrijf(Personen, 1, 'b'));
  schijf.Bytes("00000001.HND").resize(std::size_t{256} << 20U);
  ASSERT_FALSE(Schrijf(Personen, 1, 'c'));
  EXPECT_EQ(schijf.Journalen(), (std::vector<std::string>{"00000002.HND", "00000003.HND"}));
}

TEST_F(JournaalTest, WieAndersSchreefWordtEenKeerGemeld) {
  Soorten gemeld;
  JournaalBron bron = schijf.Bron();
  bron.bijVreemd = [&gemeld](BestandSoort soort) { gemeld.push_back(soort); };
  bestanden->ZetJournaal(bron);
  ASSERT_FALSE(bestanden->OpenSet(SetPaden::Van("/proef", "PROEF")));
  ASSERT_FALSE(Schrijf(Personen, 1, 'a'));
  ASSERT_FALSE(Schrijf(Relaties, 1, 'a'));
  EXPECT_EQ(gemeld, Soorten{});
  schijf.Bytes(Naam(Relaties))[0] = 'z';
  ASSERT_FALSE(Schrijf(Personen, 1, 'b'));
  ASSERT_FALSE(Schrijf(Personen, 1, 'c'));
  EXPECT_EQ(gemeld, Soorten{Relaties});
}

TEST_F(JournaalTest, EenEindeDatMisluktKomtBijDeVolgendeSchrijfactie) {
  Handeling handeling(*bestanden, "Eerst");
  ASSERT_FALSE(Schrijf(Personen, 1, 'a'));
  schijf.bij = schijf.teller + 1;
  EXPECT_TRUE(handeling.Voltooi());
  EXPECT_EQ(schijf.Journalen(), std::vector<std::string>{"00000001.BEZ"});
  ASSERT_FALSE(Schrijf(Personen, 2, 'b'));
  EXPECT_EQ(Dagboek().Geschiedenis().size(), 2U);
  EXPECT_EQ(Dagboek().Geschiedenis()[0].label, "Eerst");
}
