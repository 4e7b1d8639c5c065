// Files that take their places together, when any step fails.
#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <utility>

#include "app/PlaatsNemen.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

// Fails at operations, counted from 1.
class Stuk final : public Bestandswerk {
 public:
  Stuk(std::set<int> bij, bool koppelt) : bij_(std::move(bij)), koppelt_(koppelt) {}

  SysteemFout Veiligstellen(const std::filesystem::path& pad) override {
    veilig_ += pad.filename().string() + " ";
    return Treft() ? kFout : Bestandswerk::Veiligstellen(pad);
  }
  SysteemFout Hernoem(const std::filesystem::path& van,
                      const std::filesystem::path& naar) override {
    return Treft() ? kFout : Bestandswerk::Hernoem(van, naar);
  }
  SysteemFout Koppel(const std::filesystem::path& bestand,
                     const std::filesystem::path& naam) override {
    if (!koppelt_) return kFout;
    return Treft() ? kFout : Bestandswerk::Koppel(bestand, naam);
  }
  SysteemFout Verwijder(const std::filesystem::path& pad) override {
    return Treft() ? kFout : Bestandswerk::Verwijder(pad);
  }
  [[nodiscard]] const std::string& Veilig() const { return veilig_; }

 private:
  bool Treft() { return bij_.contains(++teller_); }

  const SysteemFout kFout{kSchijfVol, "Schijf vol"};
  std::set<int> bij_;
  bool koppelt_;
  std::string veilig_;
  int teller_ = 0;
};

class PlaatsNemen : public ::testing::Test {
 protected:
  std::optional<PlaatsFout> Neem(std::set<int> faalBij = {}) {
    for (const auto& plaats : plaatsen_) {
      SchrijfBytes(Ernaast(plaats), "nieuw " + plaats.filename().string());
    }
    Stuk werk(std::move(faalBij), koppelt_);
    auto fout = NeemPlaatsen(plaatsen_, werk);
    veilig_ = werk.Veilig();
    Bestandswerk heel;
    if (fout) RuimErnaast(plaatsen_, heel);
    return fout;
  }
  void MaakOude() {
    for (const auto& plaats : plaatsen_) SchrijfBytes(plaats, "oud " + plaats.filename().string());
  }
  // What lies there: "a=oud a, b=oud b, ".
  [[nodiscard]] std::string Alles() const {
    std::set<std::string> uit;
    for (const auto& rij : std::filesystem::directory_iterator(map_.Pad())) {
      uit.insert(rij.path().filename().string() + "=" + LeesBytes(rij.path()) + ", ");
    }
    std::string tekst;
    for (const std::string& regel : uit) tekst += regel;
    return tekst;
  }

  TijdelijkeMap map_;
  std::array<std::filesystem::path, 3> plaatsen_{map_ / "a", map_ / "b", map_ / "c"};
  std::string veilig_;
  bool koppelt_ = true;  // the disk knows second names
};

constexpr const char* kOud = "a=oud a, b=oud b, c=oud c, ";
constexpr const char* kNieuw = "a=nieuw a, b=nieuw b, c=nieuw c, ";

TEST_F(PlaatsNemen, AllenNemenHunPlaatsEnStaanEerstOpDeSchijf) {
  EXPECT_FALSE(Neem());
  EXPECT_EQ(Alles(), kNieuw);
  EXPECT_EQ(veilig_, "a.nieuw b.nieuw c.nieuw ");
  MaakOude();
  EXPECT_FALSE(Neem());
  EXPECT_EQ(Alles(), kNieuw);
}

TEST_F(PlaatsNemen, ZonderTweedeNamenNemenAllenOokHunPlaats) {
  koppelt_ = false;
  MaakOude();
  EXPECT_FALSE(Neem());
  EXPECT_EQ(Alles(), kNieuw);
}

// Nothing works from some step on, as when the program dies there.
TEST_F(PlaatsNemen, WaarHetOokEindigtGeenPlaatsIsLeegOfHalf) {
  for (int vanaf = 1; vanaf <= 11; ++vanaf) {
    std::set<int> alle;
    for (int bij = vanaf; bij < 30; ++bij) alle.insert(bij);
    MaakOude();
    // Behind the eighth all have their place, and the second names go.
    EXPECT_EQ(Neem(alle).has_value(), vanaf <= 8) << vanaf;
    for (const auto& plaats : plaatsen_) {
      const std::string naam = plaats.filename().string();
      const std::string nu = LeesBytes(plaats);
      EXPECT_TRUE(nu == "oud " + naam || nu == "nieuw " + naam) << vanaf << " " << nu;
    }
    // The next one leaves nothing beside them.
    EXPECT_FALSE(Neem()) << vanaf;
    EXPECT_EQ(Alles(), kNieuw) << vanaf;
  }
}

TEST_F(PlaatsNemen, MetTweedeNamenStaanDeOudeErOokWeer) {
  // For each file: to the disk, a second name for the earlier one (not of the last), its place.
  // Where a second name fails the earlier one gets another.
  constexpr std::array kWelke = {0U, 3U, 0U, 1U, 3U, 1U, 2U, 2U};
  for (std::size_t i = 0; i < kWelke.size(); ++i) {
    MaakOude();
    const auto fout = Neem({static_cast<int>(i) + 1});
    EXPECT_EQ(fout ? fout->welke : 3U, kWelke[i]) << i;
    EXPECT_EQ(Alles(), fout ? kOud : kNieuw) << i;
  }
}

TEST_F(PlaatsNemen, WelkeStapOokMisluktDeOudeStaanErWeer) {
  koppelt_ = false;
  // For each file: to the disk, the earlier one aside (not of the last), its place.
  constexpr std::array kWelke = {0U, 0U, 0U, 1U, 1U, 1U, 2U, 2U};
  MaakOude();
  for (std::size_t i = 0; i < kWelke.size(); ++i) {
    const auto fout = Neem({static_cast<int>(i) + 1});
    ASSERT_TRUE(fout) << i;
    EXPECT_EQ(fout->welke, kWelke[i]) << i;
    EXPECT_EQ(fout->fout.tekst, "Schijf vol");
    EXPECT_FALSE(fout->terug);
    EXPECT_EQ(Alles(), kOud) << i;
  }
}

TEST_F(PlaatsNemen, ZonderOudeBlijftErNietsVanDeNieuwe) {
  for (int bij = 1; bij <= 6; ++bij) {
    EXPECT_TRUE(Neem({bij})) << bij;
    EXPECT_EQ(Alles(), "") << bij;
  }
}

TEST_F(PlaatsNemen, WieNietTerugKanWordtGenoemd) {
  MaakOude();
  const auto fout = Neem({8, 9});
  ASSERT_TRUE(fout);
  EXPECT_EQ(fout->welke, 2U);
  EXPECT_EQ(fout->nietTerug, 1U);
  EXPECT_EQ(fout->terug.tekst, "Schijf vol");
  EXPECT_EQ(Alles(), "a=oud a, b.oud=oud b, b=nieuw b, c=oud c, ");
}

TEST_F(PlaatsNemen, WatOpzijLagGaatWegOokAlsDatEenRestWas) {
  MaakOude();
  SchrijfBytes(Opzij(plaatsen_[0]), "een rest");
  EXPECT_FALSE(Neem());
  EXPECT_EQ(Alles(), kNieuw);
}

}  // namespace
}  // namespace lb77
