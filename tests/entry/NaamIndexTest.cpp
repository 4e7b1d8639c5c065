#include <gtest/gtest.h>

#include <vector>

#include "entry/NaamIndex.h"
#include "steun/FamilieToets.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class NaamIndexTest : public FamilieToets {
 protected:
  using Nummers = std::vector<std::int16_t>;
  Nummers Zoek(std::string_view tekst, const NaamFilter& filter = {}) {
    Nummers uit;
    Speel("", Sessie([&](Hoofdmodule& hoofd) {
            NaamIndex index;
            EXPECT_FALSE(index.IsGebouwd());
            index.Bouw(hoofd.bestanden.Bestand(BestandSoort::Personen));
            EXPECT_TRUE(index.IsGebouwd());
            uit = index.Zoek(tekst, filter);
          }));
    EXPECT_EQ(verslag_, "");
    return uit;
  }
};

TEST_F(NaamIndexTest, EenDeelVanElkeNaamVindtZonderKastAccentEnVoorvoegsel) {
  Bouw().Man("Willem", "van Oranje-Nassau");
  Bouw().Man("André"_w, "Müller"_w);
  EXPECT_EQ(Zoek("oranje"), Nummers{2});
  EXPECT_EQ(Zoek("NASS"), Nummers{2});
  EXPECT_EQ(Zoek("lle"), (Nummers{2, 3}));
  EXPECT_EQ(Zoek("andre"), Nummers{3});
  EXPECT_EQ(Zoek("MÜL"_w), Nummers{3});
  EXPECT_EQ(Zoek("xyz"), Nummers{});
}

TEST_F(NaamIndexTest, ElkWoordMoetErgensStaan) {
  Bouw().Man("Jan", "de Vries");
  Bouw().Man("Jan", "Bos");
  Bouw().Vrouw("Anna", "de Vries");
  EXPECT_EQ(Zoek("jan vries"), Nummers{2});
  EXPECT_EQ(Zoek("Vries, Jan de"), Nummers{2});
  EXPECT_EQ(Zoek("  vries  "), (Nummers{2, 4}));
}

// Where one name ends and the other begins lies a blank.
TEST_F(NaamIndexTest, EenWoordLooptNietVanDeEneNaamInDeAndere) {
  Bouw().Man("Jan", "Bos");
  EXPECT_EQ(Zoek("janbos"), Nummers{});
}

TEST_F(NaamIndexTest, ZonderWoordWordtNiemandGevonden) {
  Bouw().Man("Jan", "Bos");
  EXPECT_EQ(Zoek(""), Nummers{});
  EXPECT_EQ(Zoek(" , "), Nummers{});
}

TEST_F(NaamIndexTest, HetFilterOnderscheidtKastOokHier) {
  Bouw().Man("Jan", "de Vries");
  Bouw().Man("Jan", "De Vries");
  const NaamFilter filter{.FilterAan = true, .FilterVoorNm = {}, .FilterAchterNm = "De*"};
  EXPECT_EQ(Zoek("vries", filter), Nummers{3});
}

TEST_F(NaamIndexTest, VervolgrecordsEnWieNietTeLezenIsOntbrekenZonderMelding) {
  Reeks(5);
  MaakVervolg(3);
  MaakOnleesbaar(BestandSoort::Personen, 5);
  EXPECT_EQ(Zoek("reeks"), (Nummers{2, 4, 6}));
}

TEST_F(NaamIndexTest, EenLeegBestandHeeftNiemand) {
  EXPECT_EQ(Zoek("a"), Nummers{});
}

}  // namespace
}  // namespace lb77
