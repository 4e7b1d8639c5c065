#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "ancestors/KwstSchema.h"
#include "ancestors/KwstStamboom.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

std::vector<int> Volgorde(const KwstSchema& schema) {
  std::vector<int> uit;
  for (int r = 1; r <= schema.Aantal(); ++r) uit.push_back(schema.SchemaRij(r));
  return uit;
}

// The lines of a chart without the numbers.
std::vector<std::string> Lijnen(int generaties, int breedte) {
  const KwstSchema schema(generaties);
  std::vector<std::string> uit;
  for (const int k : Volgorde(schema)) uit.push_back(schema.Lijnen(k, breedte));
  return uit;
}

TEST(KwstSchema, TweeGeneratiesZijnVaderProbandEnMoeder) {
  EXPECT_EQ(Volgorde(KwstSchema(2)), (std::vector{2, 1, 3}));
}

TEST(KwstSchema, IederStaatHalverwegeZijnOuders) {
  EXPECT_EQ(Volgorde(KwstSchema(3)), (std::vector{4, 2, 5, 1, 6, 3, 7}));
  EXPECT_EQ(Volgorde(KwstSchema(4)),
            (std::vector{8, 4, 9, 2, 10, 5, 11, 1, 12, 6, 13, 3, 14, 7, 15}));
}

TEST(KwstSchema, ElkePositieHeeftEenRegel) {
  for (int generaties = kMinSchemaGen; generaties <= kMaxSchemaGen; ++generaties) {
    const KwstSchema schema(generaties);
    EXPECT_EQ(schema.Aantal(), (1 << generaties) - 1);
    const std::vector<int> volgorde = Volgorde(schema);
    EXPECT_EQ(std::set<int>(volgorde.begin(), volgorde.end()).size(), volgorde.size());
  }
}

TEST(KwstSchema, EenGeneratieVolgtUitDePositie) {
  EXPECT_EQ(KwstSchema::Generatie(1), 1);
  EXPECT_EQ(KwstSchema::Generatie(2), 2);
  EXPECT_EQ(KwstSchema::Generatie(3), 2);
  EXPECT_EQ(KwstSchema::Generatie(511), 9);
  EXPECT_EQ(KwstSchema::Generatie(512), 10);
}

TEST(KwstSchema, DeLijnenKomenBijElkaarInDeKolommen) {
  EXPECT_EQ(Lijnen(3, 4), (std::vector<std::string>{
                              "    /====",   //
                              "/===+",       //
                              "|   \\====",  //
                              "",            //
                              "|   /====",   //
                              "\\===+",      //
                              "    \\====",  //
                          }));
}

TEST(KwstSchema, TweeKolommenLatenDrieTekensVoorEenVader) {
  EXPECT_EQ(Lijnen(3, 2),
            (std::vector<std::string>{"  /==", "/=+", "| \\==", "", "| /==", "\\=+", "  \\=="}));
}

TEST(KwstSchema, DeLijnVanEenNakomelingLooptDoorZijnKolom) {
  const KwstSchema schema(4);
  EXPECT_EQ(schema.Lijnen(11, 4), "|       \\====");
  EXPECT_EQ(schema.Lijnen(10, 4), "|   |   /====");
  EXPECT_EQ(schema.Lijnen(9, 4), "    |   \\====");
  EXPECT_EQ(schema.Lijnen(8, 4), "        /====");
}

// Whoever stands between a child and one of his parents carries the stroke of that parent's line.
TEST(KwstSchema, GeenLijnIsOnderbroken) {
  const int breedte = 3;
  const KwstSchema schema(6);
  std::vector<int> rij(static_cast<std::size_t>(schema.Aantal()) + 1);
  for (int r = 1; r <= schema.Aantal(); ++r) {
    rij[static_cast<std::size_t>(schema.SchemaRij(r))] = r;
  }
  for (int k = 2; k <= schema.Aantal(); ++k) {
    const auto kolom = static_cast<std::size_t>((KwstSchema::Generatie(k) - 2) * breedte);
    const int van = rij[static_cast<std::size_t>(k)];
    const int naar = rij[static_cast<std::size_t>(k / 2)];
    for (int r = std::min(van, naar) + 1; r < std::max(van, naar); ++r) {
      EXPECT_EQ(schema.Lijnen(schema.SchemaRij(r), breedte)[kolom], '|') << k << " op regel " << r;
    }
    if (k > 3) {
      EXPECT_EQ(schema.Lijnen(k / 2, breedte)[kolom], '+') << k;
    }
  }
}

TEST(KwstSchema, EenNummerVolgtDeWegVanafDeProband) {
  const Kwartiernummer een("1");
  EXPECT_EQ(SchemaNummer(een, 1).Tekst(), "1");
  EXPECT_EQ(SchemaNummer(een, 13).Tekst(), "13");
  EXPECT_EQ(SchemaNummer(een, 1023).Tekst(), "1023");
  EXPECT_EQ(SchemaNummer(Kwartiernummer("5"), 1).Tekst(), "5");
  EXPECT_EQ(SchemaNummer(Kwartiernummer("5"), 2).Tekst(), "10");
  EXPECT_EQ(SchemaNummer(Kwartiernummer("5"), 6).Tekst(), "22");
  EXPECT_EQ(SchemaNummer(Kwartiernummer("999999999999999999999999"), 3).Tekst(),
            "1999999999999999999999999");
}

class KwstSchemaBouw : public ::testing::Test {
 protected:
  KwstSchema Bouw(std::int16_t proband, int generaties) {
    KwstSchema schema(generaties);
    schema.Bouw(proband, set_.Persoon, set_.Relatie);
    return schema;
  }

  ProefSet set_;
};

TEST_F(KwstSchemaBouw, IederKrijgtDePlaatsVanZijnNummer) {
  const KwstSchema schema = Bouw(BouwVolleBoom(set_.bouw, 4), 4);
  for (int k = 1; k <= 15; ++k) EXPECT_EQ(schema.SchemaPersoon(k), k + 1) << k;
}

TEST_F(KwstSchemaBouw, WieOnbekendIsLaatNul) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, 0, {kind});
  const KwstSchema schema = Bouw(kind, 3);
  EXPECT_EQ(schema.SchemaPersoon(1), kind);
  EXPECT_EQ(schema.SchemaPersoon(2), vader);
  for (int k = 3; k <= 7; ++k) EXPECT_EQ(schema.SchemaPersoon(k), 0) << k;
}

TEST_F(KwstSchemaBouw, WieTweemaalVoorkomtHeeftZijnVooroudersTweemaal) {
  const auto opa = set_.bouw.Man("Opa", "A");
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto moeder = set_.bouw.Vrouw("Moeder", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(opa, 0, {vader, moeder});
  set_.bouw.Relatie(vader, moeder, {kind});
  const KwstSchema schema = Bouw(kind, 3);
  EXPECT_EQ(schema.SchemaPersoon(4), opa);
  EXPECT_EQ(schema.SchemaPersoon(6), opa);
}

TEST_F(KwstSchemaBouw, EenKringVanOudersVultDeBoomEnNietMeer) {
  const auto kind = set_.bouw.Man("Kring", "Loop");
  set_.bouw.Relatie(kind, 0, {kind});
  const KwstSchema schema = Bouw(kind, 10);
  EXPECT_EQ(schema.SchemaPersoon(512), kind);
  EXPECT_EQ(schema.SchemaPersoon(513), 0);
}

TEST_F(KwstSchemaBouw, BeschadigdeVerwijzingenZijnNiemand) {
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto relatie = set_.bouw.Relatie(0, 0, {kind});
  set_.bouw.WijzigRelatie(relatie, {{"ManNr", "1"}, {"VrouwNr", "-7"}});
  EXPECT_EQ(Bouw(kind, 2).SchemaPersoon(2), 0);
  EXPECT_EQ(Bouw(kind, 2).SchemaPersoon(3), 0);
  set_.bouw.WijzigPersoon(kind, {{"Ouders", "500"}});
  EXPECT_EQ(Bouw(kind, 3).SchemaPersoon(2), 0);
}

}  // namespace
}  // namespace lb77
