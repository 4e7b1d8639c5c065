// Order, merging and filter of the series, at their borders.
#include <gtest/gtest.h>

#include "contact/ContactToets.h"
#include "contact/GciOrde.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

using Regels = std::vector<std::string>;

GciReeks Reeks(std::string naam, int plaats, int van, int tot, int aantal = 1) {
  return {std::move(naam),
          static_cast<std::int16_t>(plaats),
          static_cast<std::int16_t>(van),
          static_cast<std::int16_t>(tot),
          static_cast<std::int16_t>(aantal),
          0};
}

Regels Vertel(const std::vector<GciReeks>& reeksen) {
  Regels uit;
  for (const GciReeks& r : reeksen) {
    uit.push_back(r.naam + " " + GetalTekst(r.plaats) + " " + GetalTekst(r.van) + "-" +
                  GetalTekst(r.tot) + " x" + GetalTekst(r.aantal));
  }
  return uit;
}

Regels Geordend(std::vector<GciReeks> reeksen, const GciPlaatsen& plaatsen) {
  OrdenReeksen(reeksen, plaatsen);
  return Vertel(reeksen);
}

GciPlaatsen Plaatsen() {
  return GciPlaatsen({PlaatsRij("Delft", "ZH", "NL"), PlaatsRij("Bergen", "NH", "NL"),
                      PlaatsRij("Aken", "DNW", "D"), PlaatsRij("Breda", "NB", "NL"),
                      PlaatsRij("Zwolle", "", "ZZ"), PlaatsRij("Alphen", "ZH", "NL")});
}

TEST(OrdenReeksen, EerstDeNaamInHoofdletters) {
  EXPECT_EQ(Geordend({Reeks("vos", 1, 1800, 1800), Reeks("Wit", 1, 1800, 1800),
                      Reeks("van Dam", 1, 1800, 1800), Reeks("Abel", 1, 1800, 1800)},
                     Plaatsen()),
            (Regels{"Abel 1 1800-1800 x1", "van Dam 1 1800-1800 x1", "vos 1 1800-1800 x1",
                    "Wit 1 1800-1800 x1"}));
}

TEST(OrdenReeksen, DanLandProvincieEnPlaatsMetNederlandAchteraan) {
  std::vector<GciReeks> reeksen;
  for (int plaats = 1; plaats <= 6; ++plaats) reeksen.push_back(Reeks("Vos", plaats, 1800, 1800));
  EXPECT_EQ(Geordend(reeksen, Plaatsen()),
            (Regels{"Vos 3 1800-1800 x1", "Vos 5 1800-1800 x1", "Vos 4 1800-1800 x1",
                    "Vos 2 1800-1800 x1", "Vos 6 1800-1800 x1", "Vos 1 1800-1800 x1"}));
}

TEST(OrdenReeksen, DanHetEersteEnHetLaatsteJaar) {
  EXPECT_EQ(Geordend({Reeks("Vos", 1, 1810, 1820), Reeks("Vos", 1, 1800, 1830),
                      Reeks("Vos", 1, 1800, 1805)},
                     Plaatsen()),
            (Regels{"Vos 1 1800-1805 x1", "Vos 1 1800-1830 x1", "Vos 1 1810-1820 x1"}));
}

TEST(OrdenReeksen, WatEvenGelijkIsStaatBijElkaar) {
  const GciPlaatsen dubbel({PlaatsRij("Delft", "ZH", "NL"), PlaatsRij("Delft", "ZH", "NL")});
  EXPECT_EQ(Geordend({Reeks("vos", 1, 1800, 1800), Reeks("Vos", 1, 1801, 1801),
                      Reeks("vos", 2, 1802, 1802), Reeks("vos", 1, 1803, 1803)},
                     dubbel),
            (Regels{"Vos 1 1801-1801 x1", "vos 1 1800-1800 x1", "vos 1 1803-1803 x1",
                    "vos 2 1802-1802 x1"}));
}

Regels Samen(std::vector<GciReeks> reeksen, int maxGat) {
  EXPECT_TRUE(VoegReeksenSamen(reeksen, maxGat));
  return Vertel(reeksen);
}

TEST(VoegReeksenSamen, EenGatVanHetMaximumIsNogEenReeks) {
  const std::vector<GciReeks> reeksen{Reeks("Vos", 1, 1800, 1800, 2), Reeks("Vos", 1, 1850, 1851),
                                      Reeks("Vos", 1, 1902, 1902)};
  EXPECT_EQ(Samen(reeksen, 50), (Regels{"Vos 1 1800-1851 x3", "Vos 1 1902-1902 x1"}));
  EXPECT_EQ(Samen(reeksen, 51), Regels{"Vos 1 1800-1902 x4"});
  EXPECT_EQ(Samen(reeksen, 49).size(), 3U);
}

TEST(VoegReeksenSamen, ZonderGatBlijvenDezelfdeJarenEenReeks) {
  EXPECT_EQ(
      Samen({Reeks("Vos", 1, 1800, 1800), Reeks("Vos", 1, 1800, 1800), Reeks("Vos", 1, 1801, 1801)},
            0),
      (Regels{"Vos 1 1800-1800 x2", "Vos 1 1801-1801 x1"}));
}

TEST(VoegReeksenSamen, WatErbinnenLigtMaaktDeReeksNietKorter) {
  EXPECT_EQ(
      Samen({Reeks("Vos", 1, 1800, 1880), Reeks("Vos", 1, 1810, 1820), Reeks("Vos", 1, 1890, 1890)},
            10),
      Regels{"Vos 1 1800-1890 x3"});
}

TEST(VoegReeksenSamen, EenAndereNaamOfPlaatsIsEenAndereReeks) {
  EXPECT_EQ(
      Samen({Reeks("Vos", 1, 1800, 1800), Reeks("vos", 1, 1800, 1800), Reeks("vos", 2, 1800, 1800)},
            99)
          .size(),
      3U);
}

TEST(VoegReeksenSamen, MeerPersonenDanTeTellenZijnIsEenFout) {
  EXPECT_EQ(Samen({Reeks("Vos", 1, 1800, 1800, 32766), Reeks("Vos", 1, 1801, 1801)}, 1),
            Regels{"Vos 1 1800-1801 x32767"});
  std::vector<GciReeks> reeksen{Reeks("Vos", 1, 1800, 1800, 32767), Reeks("Vos", 1, 1801, 1801)};
  EXPECT_FALSE(VoegReeksenSamen(reeksen, 1));
}

TEST(VoegReeksenSamen, JarenAanDeGrensTellenNietRond) {
  EXPECT_EQ(Samen({Reeks("Vos", 1, -32768, -32768), Reeks("Vos", 1, 32767, 32767)}, 99).size(), 2U);
}

Regels Gezeefd(std::vector<GciReeks> reeksen, const GciOpties& opties) {
  ZeefReeksen(reeksen, opties);
  return Vertel(reeksen);
}

TEST(ZeefReeksen, KaptAfBijHetLaatsteJaartal) {
  GciOpties opties;
  opties.maxJaartal = 1850;
  EXPECT_EQ(Gezeefd({Reeks("Vos", 1, 1800, 1850), Reeks("Vos", 1, 1800, 1851),
                     Reeks("Vos", 1, 1850, 1900), Reeks("Vos", 1, 1851, 1900)},
                    opties),
            (Regels{"Vos 1 1800-1850 x1", "Vos 1 1800-1850 x1", "Vos 1 1850-1850 x1"}));
}

TEST(ZeefReeksen, HoudtWieGenoegPersonenHeeft) {
  GciOpties opties;
  opties.aantalPersonen = 3;
  EXPECT_EQ(Gezeefd({Reeks("Vos", 1, 1800, 1800, 2), Reeks("Vos", 1, 1801, 1801, 3)}, opties),
            Regels{"Vos 1 1801-1801 x3"});
}

TEST(ZeefReeksen, HoudtWatLangGenoegDuurtNaHetAfkappen) {
  GciOpties opties;
  opties.minJaren = 10;
  opties.maxJaartal = 1900;
  EXPECT_EQ(Gezeefd({Reeks("Vos", 1, 1800, 1809), Reeks("Vos", 1, 1800, 1810),
                     Reeks("Vos", 1, 1891, 1950), Reeks("Vos", 1, 1890, 1950)},
                    opties),
            (Regels{"Vos 1 1800-1810 x1", "Vos 1 1890-1900 x1"}));
}

TEST(ZetHoofdletters, HoudtHetVoorvoegselVooraan) {
  std::vector<GciReeks> reeksen{Reeks("van der B\xE9rg", 1, 1800, 1800)};
  ZetHoofdletters(reeksen);
  EXPECT_EQ(reeksen[0].naam, "VAN DER B\xC9RG");
}

}  // namespace
}  // namespace lb77
