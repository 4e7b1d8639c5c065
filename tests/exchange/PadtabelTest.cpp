#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "exchange/OpmRubrieken.h"
#include "exchange/OverigePaden.h"
#include "exchange/Padtabel.h"
#include "exchange/PersoonPaden.h"
#include "exchange/RelatiePaden.h"

namespace lb77 {
namespace {

struct Rij {
  std::string_view pad;
  int nummer;
};
constexpr Rij kRijen[] = {{"A", 1}, {"A-B", 2}, {"A", 3}};

TEST(PadtabelTest, VindtEenRijOpHaarPad) {
  const Padtabel<Rij> tabel{kRijen};
  ASSERT_NE(tabel.Zoek("A-B"), nullptr);
  EXPECT_EQ(tabel.Zoek("A-B")->nummer, 2);
}

TEST(PadtabelTest, VanTweeRijenTeltDeEerste) {
  EXPECT_EQ(Padtabel<Rij>{kRijen}.Zoek("A")->nummer, 1);
}

TEST(PadtabelTest, EenPadZonderRijGeeftNull) {
  const Padtabel<Rij> tabel{kRijen};
  for (const std::string_view pad : {"", "B", "A-", "a", "A-B-C"}) {
    EXPECT_EQ(tabel.Zoek(pad), nullptr) << pad;
  }
}

template <class Tabelrij>
void VerwachtVerschillend(std::span<const Tabelrij> rijen, std::size_t aantal) {
  std::set<std::string_view> paden;
  for (const Tabelrij& rij : rijen) EXPECT_TRUE(paden.insert(rij.pad).second) << rij.pad;
  std::erase_if(paden, [](std::string_view pad) { return pad.find("_LB") != pad.npos; });
  EXPECT_EQ(paden.size(), aantal) << "zonder de eigen tags";
}

TEST(PadtabelTest, GeenPadStaatTweemaalInEenTabelVanDeImport) {
  VerwachtVerschillend(AllePersoonPaden(), 37);
  VerwachtVerschillend(AlleRelatiePaden(), 53);
  VerwachtVerschillend(AlleOverigePaden(), 49);
  VerwachtVerschillend(AlleOpmRubrieken(), 48);
}

TEST(PadtabelTest, ElkeTabelHeeftDePadenVanHaarEigenRecordsoort) {
  for (const PersoonPad& rij : AllePersoonPaden()) EXPECT_TRUE(rij.pad.starts_with("INDI-"));
  for (const RelatiePad& rij : AlleRelatiePaden()) EXPECT_TRUE(rij.pad.starts_with("FAM-"));
  for (const OverigPad& rij : AlleOverigePaden()) {
    EXPECT_TRUE(rij.pad[0] != 'I' && rij.pad[0] != 'F') << rij.pad;
  }
}

}  // namespace
}  // namespace lb77
