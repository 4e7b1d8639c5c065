#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "exchange/OpmReeks.h"
#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

using Regels = std::vector<std::string>;
namespace rubriek = persoonrubriek;

class OpmReeksToets : public ::testing::Test {
 protected:
  static Regels Tien(const std::string& begin) {
    Regels regels;
    for (int i = 1; i <= 10; ++i) regels.push_back(begin + std::to_string(i));
    return regels;
  }
  void Opmerking(std::int16_t rubriek, const Regels& regels) {
    set_.bouw.OpmerkingBijPersoon(persoon_, rubriek, regels);
  }
  OpmReeks::Inhoud Lees(std::int16_t rubriek) {
    EXPECT_TRUE(set_.Persoon.Lees(persoon_));
    const std::int16_t code = set_.Persoon.OpmCode();
    OpmReeks reeks(set_.Opmerking);
    reeks.Lees(set_.Persoon.OpmRecord());
    return reeks.Rubriek(code, rubriek);
  }
  // The lines as the record class gives them one by one.
  Regels EenVoorEen(std::int16_t rubriek) {
    EXPECT_TRUE(set_.Persoon.Lees(persoon_));
    const std::int16_t code = set_.Persoon.OpmCode();
    const std::int16_t begin = set_.Persoon.OpmRecord();
    Regels uit;
    for (std::int16_t k = 1; k < 1000; ++k) {
      const std::string tekst = set_.Opmerking.OpmerkingTekst(code, begin, rubriek, k, false);
      if (tekst.empty()) break;
      uit.push_back(tekst);
      if (tekst.starts_with(">> ")) break;
    }
    return uit;
  }
  void Zet(std::int16_t nr, std::string_view veld, int waarde) {
    ASSERT_TRUE(set_.Opmerking.Wijzig(nr, {{veld, std::to_string(waarde)}}));
  }

  ProefSet set_;
  std::int16_t persoon_ = set_.bouw.Man("Jan", "Jansen");
};

TEST_F(OpmReeksToets, EenRubriekHeeftDeRegelsVanZijnEersteOpmerking) {
  Opmerking(rubriek::kBeroep, {"smid"});
  Opmerking(rubriek::kAlgemeen, {"een", "twee"});
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, (Regels{"een", "twee"}));
  EXPECT_EQ(Lees(rubriek::kBeroep).regels, Regels{"smid"});
  EXPECT_TRUE(Lees(rubriek::kVoornaam).regels.empty());
}

TEST_F(OpmReeksToets, EenTweedeOpmerkingKomtAlleenAchterTienRegels) {
  Opmerking(rubriek::kAlgemeen, Tien("a"));
  Opmerking(rubriek::kAlgemeen, {"b"});
  Opmerking(rubriek::kAlgemeen, {"c"});
  const OpmReeks::Inhoud inhoud = Lees(rubriek::kAlgemeen);
  Regels verwacht = Tien("a");
  verwacht.emplace_back("b");
  EXPECT_EQ(inhoud.regels, verwacht);
  EXPECT_EQ(inhoud.over, 1U);
}

TEST_F(OpmReeksToets, EenLegeRegelBeeindigtDeOpmerking) {
  Opmerking(rubriek::kAlgemeen, {"een", "twee", "drie"});
  ASSERT_TRUE(set_.Persoon.Lees(persoon_));
  const std::int16_t tweede = static_cast<std::int16_t>(set_.Persoon.OpmRecord() + 1);
  ASSERT_TRUE(set_.Opmerking.Wijzig(tweede, {{"Tekstregel", " "}}));
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, Regels{"een"});
  EXPECT_EQ(EenVoorEen(rubriek::kAlgemeen), Regels{"een"});
}

TEST_F(OpmReeksToets, AchterEenKorteOpmerkingBlijvenErOver) {
  Opmerking(rubriek::kAlgemeen, {"a"});
  Opmerking(rubriek::kAlgemeen, Tien("b"));
  Opmerking(rubriek::kBeroep, {"smid"});
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, Regels{"a"});
  EXPECT_EQ(Lees(rubriek::kAlgemeen).over, 1U);
  EXPECT_EQ(Lees(rubriek::kBeroep).over, 0U);
}

TEST_F(OpmReeksToets, EenRubriekDieDeCodeNietHeeftWordtNietGezocht) {
  Opmerking(rubriek::kAlgemeen, {"a"});
  set_.bouw.WijzigPersoon(persoon_, {{"OpmCode", "1"}});
  EXPECT_TRUE(Lees(rubriek::kAlgemeen).regels.empty());
}

TEST_F(OpmReeksToets, EenKettingDieAfbreektZegtDat) {
  Opmerking(rubriek::kAlgemeen, {"a"});
  Zet(2, "BijZelfde", 99);
  set_.bouw.WijzigPersoon(persoon_, {{"OpmCode", "4098"}});
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, Regels{"a"});
  EXPECT_EQ(Lees(rubriek::kVoornaam).regels,
            Regels{">> Verkeerde verwijzing: opm-record 99 bestaat niet <<"});
  EXPECT_EQ(Lees(rubriek::kVoornaam).over, 0U);
}

TEST_F(OpmReeksToets, DeFoutVanEenKettingBlijftBijHaarEigenaar) {
  const std::int16_t ander = set_.bouw.Man("Piet", "Pietersen");
  Opmerking(rubriek::kAlgemeen, {"a"});
  set_.bouw.OpmerkingBijPersoon(ander, rubriek::kBeroep, {"smid"});
  Zet(2, "BijZelfde", 99);
  constexpr auto kCode = static_cast<std::int16_t>(rubriek::kBeroep | rubriek::kVoornaam);
  OpmReeks reeks(set_.Opmerking);
  reeks.Lees(2);
  EXPECT_EQ(reeks.Rubriek(kCode, rubriek::kVoornaam).regels.size(), 1U);
  reeks.Lees(3);
  EXPECT_TRUE(reeks.Rubriek(kCode, rubriek::kVoornaam).regels.empty());
}

TEST_F(OpmReeksToets, EenRegelDieErNietIsBreektDeOpmerkingAf) {
  Opmerking(rubriek::kAlgemeen, {"a", "b", "c"});
  Opmerking(rubriek::kAlgemeen, {"d"});
  Zet(3, "VolgRegel", 1);
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels,
            (Regels{"a", "b", ">> Verkeerde verwijzing: opm-record 1 bestaat niet <<"}));
  EXPECT_EQ(Lees(rubriek::kAlgemeen).over, 0U);
}

TEST_F(OpmReeksToets, EenKettingInEenKringKomtEenmaalRond) {
  Opmerking(rubriek::kAlgemeen, Tien("a"));
  Zet(2, "BijZelfde", 2);
  Regels verwacht = Tien("a");
  verwacht.emplace_back(">> Verkeerde verwijzing: opm-record 2 bestaat niet <<");
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, verwacht);
}

TEST_F(OpmReeksToets, RegelsInEenKringHoudenOp) {
  Opmerking(rubriek::kAlgemeen, {"a", "b"});
  Zet(3, "VolgRegel", 2);
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, EenVoorEen(rubriek::kAlgemeen));
  EXPECT_LE(Lees(rubriek::kAlgemeen).regels.size(), 11U);
}

TEST_F(OpmReeksToets, EenBeginDatGeenRecordIsZegtDat) {
  Opmerking(rubriek::kAlgemeen, {"a"});
  for (const int begin : {1, -5, 4, 32767}) {
    set_.bouw.WijzigPersoon(persoon_, {{"OpmRecord", std::to_string(begin)}});
    EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, EenVoorEen(rubriek::kAlgemeen)) << begin;
    EXPECT_EQ(Lees(rubriek::kAlgemeen).regels.size(), 1U) << begin;
  }
  set_.bouw.WijzigPersoon(persoon_, {{"OpmRecord", "0"}});
  EXPECT_TRUE(Lees(rubriek::kAlgemeen).regels.empty());
}

// The walk has as many steps as there are records, of which record 1 is none.
TEST_F(OpmReeksToets, EenKettingVanAlleRecordsWordtGeheelGelopen) {
  for (int i = 0; i < 5; ++i) Opmerking(i == 4 ? rubriek::kBeroep : rubriek::kAlgemeen, {"a"});
  EXPECT_EQ(Lees(rubriek::kBeroep).regels, Regels{"a"});
  EXPECT_EQ(EenVoorEen(rubriek::kBeroep), Regels{"a"});
  // One link further is one too many.
  Zet(6, "BijZelfde", 2);
  Zet(6, "Rubriek", rubriek::kVoornaam);
  const Regels rond{">> Verkeerde verwijzing: opm-record 2 bestaat niet <<"};
  EXPECT_EQ(Lees(rubriek::kBeroep).regels, rond);
  EXPECT_EQ(EenVoorEen(rubriek::kBeroep), rond);
}

TEST_F(OpmReeksToets, EenKettingEnHaarRegelsGaanSamenDoorAlleRecords) {
  Opmerking(rubriek::kAlgemeen, {"a"});
  Opmerking(rubriek::kAlgemeen, {"b"});
  Opmerking(rubriek::kBeroep, {"c", "d", "e"});
  const Regels alle{"c", "d", "e"};
  EXPECT_EQ(Lees(rubriek::kBeroep).regels, alle);
  EXPECT_EQ(EenVoorEen(rubriek::kBeroep), alle);
  Zet(6, "VolgRegel", 5);
  const Regels rond{"c", "d", "e", ">> Verkeerde verwijzing: opm-record 5 bestaat niet <<"};
  EXPECT_EQ(Lees(rubriek::kBeroep).regels, rond);
  EXPECT_EQ(EenVoorEen(rubriek::kBeroep), rond);
}

// Ten lines are a remark, also where they are the same ones.
TEST_F(OpmReeksToets, RegelsInEenKringEindigenBijHetAantalRecordsOfBijTien) {
  Opmerking(rubriek::kAlgemeen, {"a", "b"});
  Zet(3, "VolgRegel", 2);
  Regels rond{"a", "b", ">> Verkeerde verwijzing: opm-record 2 bestaat niet <<"};
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, rond);
  EXPECT_EQ(EenVoorEen(rubriek::kAlgemeen), rond);
  // Eight more: ten records are in use, one short of the eleven that a tenth line asks for.
  const std::int16_t ander = set_.bouw.Man("Piet", "Pietersen");
  set_.bouw.OpmerkingBijPersoon(ander, rubriek::kBeroep, {"1", "2", "3", "4", "5", "6", "7"});
  rond = {"a", "b", "a", "b", "a", "b", "a", "b", "a"};
  rond.emplace_back(">> Verkeerde verwijzing: opm-record 3 bestaat niet <<");
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, rond);
  EXPECT_EQ(EenVoorEen(rubriek::kAlgemeen), rond);
  set_.bouw.OpmerkingBijPersoon(ander, rubriek::kVoornaam, {"8"});
  rond.back() = "b";
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels, rond);
  EXPECT_EQ(EenVoorEen(rubriek::kAlgemeen), rond);
}

TEST_F(OpmReeksToets, OokHetLaatsteRecordKomtEenmaal) {
  Opmerking(rubriek::kBeroep, {"smid"});
  Opmerking(rubriek::kBeroep, {"boer"});
  Zet(3, "BijZelfde", 3);
  OpmReeks reeks(set_.Opmerking);
  reeks.Lees(3);
  EXPECT_EQ(reeks.Aantal(), 1U);
  EXPECT_EQ(reeks.Rubriek(rubriek::kVoornaam, rubriek::kVoornaam).regels,
            Regels{">> Verkeerde verwijzing: opm-record 3 bestaat niet <<"});
}

// No record: a hole in the file.
TEST_F(OpmReeksToets, EenRecordDatNietTeLezenIsZegtDat) {
  Opmerking(rubriek::kAlgemeen, {"a", "b"});
  Opmerking(rubriek::kBeroep, {"smid"});
  Opmerking(rubriek::kVoornaam, {"Jan"});
  RecordBestand& bestand = set_.bestanden.Bestand(BestandSoort::Opmerkingen);
  for (const int nr : {3, 4}) {
    ASSERT_FALSE(bestand.Schrijf(nr, std::string(bestand.RecordLengte(), '\0')));
  }
  EXPECT_EQ(Lees(rubriek::kAlgemeen).regels,
            (Regels{"a", ">> Leesfout opm-record 3 bestaat niet <<"}));
  EXPECT_EQ(Lees(rubriek::kVoornaam).regels, Regels{">> Leesfout opm-record 4 bestaat niet <<"});
  for (const std::int16_t deze : {rubriek::kAlgemeen, rubriek::kVoornaam}) {
    EXPECT_EQ(Lees(deze).regels, EenVoorEen(deze)) << deze;
  }
  static_cast<void>(set_.Getoond());
}

// A damaged set: thousands point into one chain.
TEST_F(OpmReeksToets, EenKettingDieAlGelezenIsWordtNietWeerGelezen) {
  for (int i = 0; i < 200; ++i) Opmerking(i % 2 == 0 ? 1 : 2, {std::to_string(i)});
  Zet(150, "BijZelfde", 99);
  ASSERT_TRUE(set_.Persoon.Lees(persoon_));
  OpmReeks reeks(set_.Opmerking);
  reeks.Lees(2);
  EXPECT_EQ(reeks.Aantal(), 149U);
  Storing storing{.bij = 1, .blijvend = true};
  set_.bestanden = Bestandenset(FalendeOpener(storing));
  ASSERT_FALSE(set_.bestanden.OpenSet(set_.paden));
  reeks.Lees(52);
  EXPECT_EQ(reeks.Aantal(), 99U);
  EXPECT_EQ(reeks.Koppen(1).front().nr, 52);
  EXPECT_EQ(reeks.Koppen(1).front().stap, 1);
  EXPECT_TRUE(set_.Getoond().empty());
}

// Whatever the links, as long as no remark comes back.
TEST_F(OpmReeksToets, DeRegelsZijnDieVanHetRecordEenVoorEen) {
  std::mt19937 toeval(77);
  constexpr std::int16_t kRubrieken[] = {1, 2, 4096};
  for (int keer = 0; keer < 12; ++keer) {
    const std::size_t aantal = 1 + toeval() % 12;
    Opmerking(kRubrieken[toeval() % 3], [&] {
      Regels regels = Tien(std::to_string(keer) + " ");
      regels.resize(std::min<std::size_t>(aantal, 10));
      return regels;
    }());
    for (const std::int16_t deze : kRubrieken) {
      EXPECT_EQ(Lees(deze).regels, EenVoorEen(deze)) << keer << " " << deze;
    }
  }
  const std::int16_t laatste = set_.Opmerking.AantalRecords();
  for (int keer = 0; keer < 200; ++keer) {
    const auto nr = static_cast<std::int16_t>(2 + toeval() % static_cast<unsigned>(laatste - 1));
    ASSERT_TRUE(set_.Opmerking.Lees(nr));
    const std::string oud = std::to_string(set_.Opmerking.VolgRegel());
    Zet(nr, "VolgRegel", static_cast<int>(toeval() % static_cast<unsigned>(laatste + 3)));
    for (const std::int16_t deze : kRubrieken) {
      ASSERT_EQ(Lees(deze).regels, EenVoorEen(deze)) << nr << " " << deze;
    }
    ASSERT_TRUE(set_.Opmerking.Wijzig(nr, {{"VolgRegel", oud}}));
  }
}

}  // namespace
}  // namespace lb77
