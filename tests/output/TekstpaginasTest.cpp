#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "output/Tekstpaginas.h"
#include "steun/TijdelijkeMap.h"
#include "steun/VolleSchijf.h"

namespace lb77 {
namespace {

class TekstpaginasTest : public ::testing::Test {
 protected:
  void Open(std::string_view bytes) {
    SchrijfBytes(map_ / "in.txt", bytes);
    ASSERT_TRUE(paginas_.Open(map_ / "in.txt"));
  }

  TijdelijkeMap map_;
  Tekstpaginas paginas_;
};

TEST_F(TekstpaginasTest, EenLeegBestandHeeftEenLegeBladzijde) {
  Open("");
  EXPECT_TRUE(paginas_.Leeg());
  EXPECT_EQ(paginas_.Kolommen(), 1);
  EXPECT_EQ(paginas_.Rijen(), 1);
  std::vector<std::string> regels{"oud"};
  EXPECT_TRUE(paginas_.Lees(1, 1, regels));
  EXPECT_TRUE(regels.empty());
}

TEST_F(TekstpaginasTest, EenLegeRegelIsEenRegel) {
  Open("\r\n");
  EXPECT_FALSE(paginas_.Leeg());
}

// Every page of a text at random against the lines of which it was made.
TEST_F(TekstpaginasTest, ElkeBladzijdeHeeftHaarDeelVanHaarRegels) {
  std::mt19937 toeval(69);
  const auto tot = [&toeval](unsigned n) { return static_cast<std::size_t>(toeval() % n); };
  for (int ronde = 0; ronde < 20; ++ronde) {
    std::vector<std::string> verwacht(tot(300));
    std::string bytes;
    std::size_t langste = 0;
    for (std::string& regel : verwacht) {
      regel.resize(tot(8) == 0 ? tot(400) : tot(80));
      for (char& teken : regel) teken = static_cast<char>('a' + tot(26));
      langste = std::max(langste, regel.size());
      bytes += regel + (tot(2) == 0 ? "\r\n" : "\n");
    }
    Open(bytes);
    ASSERT_EQ(paginas_.Kolommen(), static_cast<int>(langste / 80 + 1));
    ASSERT_EQ(paginas_.Rijen(), std::max(1, static_cast<int>((verwacht.size() + 68) / 69)));
    std::vector<std::string> samen(verwacht.size());
    for (int rij = paginas_.Rijen(); rij >= 1; --rij) {
      for (int kolom = 1; kolom <= paginas_.Kolommen(); ++kolom) {
        std::vector<std::string> regels;
        ASSERT_TRUE(paginas_.Lees(kolom, rij, regels));
        for (std::size_t i = 0; i < regels.size(); ++i) {
          ASSERT_LE(regels[i].size(), 80U);
          samen.at(static_cast<std::size_t>(rij - 1) * 69 + i) += regels[i];
        }
      }
    }
    ASSERT_EQ(samen, verwacht);
  }
}

TEST_F(TekstpaginasTest, EenKolomMagOverLeesblokkenLiggen) {
  Open(std::string(65530, 'a') + std::string(100, 'b') + "c");
  EXPECT_EQ(paginas_.Kolommen(), 65631 / 80 + 1);
  std::vector<std::string> regels;
  ASSERT_TRUE(paginas_.Lees(820, 1, regels));  // begins behind 65520 characters
  EXPECT_EQ(regels, std::vector<std::string>{std::string(10, 'a') + std::string(70, 'b')});
  ASSERT_TRUE(paginas_.Lees(821, 1, regels));
  EXPECT_EQ(regels, std::vector<std::string>{std::string(30, 'b') + "c"});
}

TEST_F(TekstpaginasTest, EenGekrompenBestandHeeftMinderRegels) {
  Open(std::string(200, '\n'));
  SchrijfBytes(map_ / "in.txt", "kort\r\n");
  std::vector<std::string> regels;
  EXPECT_TRUE(paginas_.Lees(1, 3, regels));
  EXPECT_TRUE(regels.empty());
}

TEST_F(TekstpaginasTest, EenMislukteKopieLaatHetOudeBestand) {
  SchrijfBytes(map_ / "oud.txt", "oud");
  EXPECT_EQ(KopieerTekst(map_ / "weg.txt", map_ / "oud.txt").nummer, kBestandNietGevonden);
  EXPECT_EQ(LeesBytes(map_ / "oud.txt"), "oud");
  EXPECT_FALSE(std::filesystem::exists(map_ / "oud.txt.nieuw"));
}

TEST_F(TekstpaginasTest, EenKopieZonderRuimteZegtWaaromEnLaatHetOudeBestand) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  SchrijfBytes(map_ / "oud.txt", "oud");
  for (const std::size_t lengte : {2000, 500000}) {  // noticed at the end, and on the way
    SchrijfBytes(map_ / "in.txt", std::string(lengte, 'x') + "\n" + std::string(lengte, 'y'));
    const VolleSchijf vol(1000);
    EXPECT_EQ(KopieerTekst(map_ / "in.txt", map_ / "oud.txt").tekst, "Bestand te groot") << lengte;
    EXPECT_EQ(LeesBytes(map_ / "oud.txt"), "oud");
    EXPECT_FALSE(std::filesystem::exists(map_ / "oud.txt.nieuw"));
  }
}

TEST_F(TekstpaginasTest, EenKopieMetEenTeLangeNaamWordtNietGemaakt) {
  SchrijfBytes(map_ / "in.txt", "x");
  const SysteemFout fout = KopieerTekst(map_ / "in.txt", map_ / std::string(300, 'x'));
  EXPECT_EQ(fout.tekst, "Bestandsnaam te lang");
}

TEST_F(TekstpaginasTest, EenKopieNeemtDePlaatsVanHetOudeBestand) {
  SchrijfBytes(map_ / "oud.txt", "oud");
  SchrijfBytes(map_ / "in.txt", std::string("a\0b\nc", 5));
  EXPECT_FALSE(KopieerTekst(map_ / "in.txt", map_ / "oud.txt"));
  EXPECT_EQ(LeesBytes(map_ / "oud.txt"), std::string("a\0b\r\nc\r\n", 8));
  EXPECT_FALSE(std::filesystem::exists(map_ / "oud.txt.nieuw"));
}

TEST_F(TekstpaginasTest, EenKopieLaatEenBestandMetDeNaamVanHaarKlad) {
  SchrijfBytes(map_ / "in.txt", "een\n");
  SchrijfBytes(map_ / "uit.txt.nieuw", "van de gebruiker");
  SchrijfBytes(map_ / "uit.txt.nieuw1", "ook");
  EXPECT_FALSE(KopieerTekst(map_ / "in.txt", map_ / "uit.txt"));
  EXPECT_TRUE(KopieerTekst(map_ / "weg.txt", map_ / "uit.txt"));
  EXPECT_EQ(LeesBytes(map_ / "uit.txt"), "een\r\n");
  EXPECT_EQ(LeesBytes(map_ / "uit.txt.nieuw"), "van de gebruiker");
  EXPECT_EQ(LeesBytes(map_ / "uit.txt.nieuw1"), "ook");
  EXPECT_FALSE(std::filesystem::exists(map_ / "uit.txt.nieuw2"));
}

TEST_F(TekstpaginasTest, EenBestandDatTerugkomtWordtGelezen) {
  Open("een\n");
  std::filesystem::remove(map_ / "in.txt");
  std::vector<std::string> regels;
  EXPECT_FALSE(paginas_.Lees(1, 1, regels));
  EXPECT_EQ(paginas_.Fout().nummer, kBestandNietGevonden);
  SchrijfBytes(map_ / "in.txt", "weer\n");
  EXPECT_TRUE(paginas_.Lees(1, 1, regels));
  EXPECT_EQ(regels, std::vector<std::string>{"weer"});
}

}  // namespace
}  // namespace lb77
