#include <gtest/gtest.h>

#include "reporting/Tijdelijk.h"
#include "script/Verslag.h"
#include "steun/NepGesprek.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

Uitslag Klaar(TekstSchrijver& uit) {
  uit.VolleRegel("Generatie I en nog veel meer");
  return Einde::Klaar;
}

TEST(Verslagbestand, WordtOpBreedteGeschrevenZonderEenWoord) {
  const TijdelijkeMap map;
  NepGesprek gesprek;
  EXPECT_EQ(SchrijfVerslag({map / "KWSTDATA.TMP"}, gesprek, Klaar), Einde::Klaar);
  EXPECT_EQ(LeesBytes(map / "KWSTDATA.TMP"), "Generatie I en nog veel meer\r\n");
  EXPECT_EQ(SchrijfVerslag({map / "KWSTDATA.TMP", 12}, gesprek, Klaar), Einde::Klaar);
  EXPECT_EQ(LeesBytes(map / "KWSTDATA.TMP"), "Generatie I\r\nen nog veel\r\nmeer\r\n");
  EXPECT_TRUE(gesprek.Neem().empty());
}

TEST(Verslagbestand, GeeftDeUitslagVanHetSchrijvenEnLaatStaanWatErStaat) {
  const TijdelijkeMap map;
  NepGesprek gesprek;
  const Uitslag uitslag = SchrijfVerslag({map / "uit.txt"}, gesprek, [](TekstSchrijver& uit) {
    uit.VolleRegel("begin");
    return Uitslag(Leesfout{BestandSoort::Relaties, 7});
  });
  EXPECT_EQ(uitslag, Einde::Leesfout);
  EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Relaties, 7}));
  EXPECT_EQ(LeesBytes(map / "uit.txt"), "begin\r\n");
  EXPECT_TRUE(gesprek.Neem().empty());
}

TEST(Verslagbestand, ZegtWelkBestandNietGemaaktKanWorden) {
  const TijdelijkeMap map;
  NepGesprek gesprek;
  EXPECT_EQ(SchrijfVerslag({map.Pad()}, gesprek, Klaar), Einde::Schrijffout);
  EXPECT_EQ(
      gesprek.Neem(),
      (std::vector<std::string>{
          "! stop " + Aangehaald("Kan tijdelijk bestand " + map.Pad().string() + " niet openen")}));
}

TEST(Verslagbestand, ZegtDatDeSchijfVolIsOokNaEenLeesfoutMaarEenStopBlijftEenStop) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  struct Geval {
    Einde schrijven;
    Einde einde;
  };
  for (const Geval geval :
       {Geval{Einde::Klaar, Einde::Schrijffout}, Geval{Einde::Leesfout, Einde::Schrijffout},
        Geval{Einde::Afgebroken, Einde::Afgebroken}}) {
    NepGesprek gesprek;
    const Uitslag uitslag = SchrijfVerslag({"/dev/full"}, gesprek, [&](TekstSchrijver& uit) {
      uit.VolleRegel("Generatie I");
      return Uitslag(geval.schrijven);
    });
    EXPECT_EQ(uitslag, geval.einde);
    const std::vector<std::string> boxen = gesprek.Neem();
    ASSERT_EQ(boxen.size(), 1U);
    EXPECT_EQ(boxen[0].rfind("! stop \"Fout bij het schrijven van /dev/full\\n", 0), 0U);
  }
}

}  // namespace
}  // namespace lb77
