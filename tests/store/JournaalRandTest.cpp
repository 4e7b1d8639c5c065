// What happens seldom to a journal, and costs data when it is taken lightly.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "steun/FaalBestand.h"
#include "steun/TijdelijkeMap.h"
#include "store/JournaalToets.h"

using namespace lb77;
using enum BestandSoort;

namespace {

using Wijze = ProefSchijf::Wijze;
using Namen = std::vector<std::string>;

class JournaalRandTest : public JournaalToets {
 protected:
  JournaalRandTest() {
    Vul();
    begin_ = Stand();
  }

  // The set as it was at the start, without a journal.
  void Terug() {
    bestanden.reset();
    for (const std::string& naam : schijf.Journalen()) schijf.Verwijder(naam);
    Zet(begin_);
    schijf.MaakVast();
    schijf.Herstart();
    Open();
  }
  void FaalOver(int operaties, Wijze wijze = Wijze::Fout) {
    schijf.bij = schijf.teller + operaties;
    schijf.wijze = wijze;
  }
  // Dies at each operation of a task in turn; `dan` looks at what the next run finds.
  void NaElkSterven(const std::function<void(int)>& dan) {
    for (int k = 1;; ++k) {
      Terug();
      FaalOver(k, Wijze::Dood);
      static_cast<void>(DoeAlles('y'));
      if (!schijf.Geweest()) return;
      Heropen();
      dan(k);
    }
  }
  void ValtUit() {
    bestanden.reset();
    schijf.Stroomuitval(toeval_);
    Open();
  }
  SysteemFout Kap(std::uint64_t lengte) { return bestanden->Bestand(Personen).Kap(lengte); }
  void ZetPersonen(int aantal) {
    schijf.Bytes(Naam(Personen)).assign(static_cast<std::size_t>(aantal) * 128, 'a');
    begin_ = Stand();
    Heropen();
  }

  VierBestanden begin_;
  std::mt19937 toeval_{77};
};

}  // namespace

TEST_F(JournaalRandTest, WatBijHetSluitenNietNaarDeSchijfGingIsNietVoltooid) {
  Handeling handeling(*bestanden, "Invoer");
  ASSERT_FALSE(Schrijf(Personen, 2, 'x'));
  FaalOver(1);
  bestanden->Sluit(Personen);
  EXPECT_TRUE(handeling.Voltooi());
  EXPECT_EQ(schijf.Journalen(), Namen{"00000001.BEZ"});
  Heropen();
  EXPECT_TRUE(Dagboek().Onvoltooid());
}

TEST_F(JournaalRandTest, WieAlBeeindigdWasBeeindigtGeenAndereHandeling) {
  const std::uint64_t een = Dagboek().Begin("Een");
  ASSERT_FALSE(Dagboek().SluitAf());
  const std::uint64_t twee = Dagboek().Begin("Twee");
  ASSERT_FALSE(Schrijf(Personen, 2, 'x'));
  EXPECT_FALSE(Dagboek().Einde(een));
  EXPECT_EQ(schijf.Journalen(), Namen{"00000001.BEZ"});
  EXPECT_FALSE(Dagboek().Einde(twee));
  EXPECT_EQ(schijf.Journalen(), Namen{"00000001.HND"});
}

TEST(JournaalLengteTest, EenGrootteDieHetSysteemNietVerteltIsGeenLeegBestand) {
  const TijdelijkeMap map;
  const SetPaden paden = SetPaden::Van(map.Pad(), "PROEF");
  std::filesystem::create_directories(paden.map);
  Storing storing;
  Bestandenset bestanden(FalendeOpener(storing));
  bestanden.ZetJournaal({[] { return std::string("1999-12-31 23:59:58"); }, {}, {}});
  ASSERT_FALSE(bestanden.OpenSet(paden));
  RecordBestand& personen = bestanden.Bestand(Personen);
  ASSERT_FALSE(personen.Schrijf(1, std::string(128, 'x')));
  storing.zonderLengte = true;
  EXPECT_TRUE(personen.Schrijf(1, std::string(128, 'y')));
  EXPECT_EQ(LeesBytes(paden.prs), std::string(128, 'x'));
}

TEST_F(JournaalRandTest, WatVooruitNietTeLezenWasKomtTochInHetJournaal) {
  ZetPersonen(40);
  {
    Handeling handeling(*bestanden, "Lang");
    for (std::int32_t nr = 1; nr <= 16; ++nr) ASSERT_FALSE(Schrijf(Personen, nr, 'x'));
    // Reads record 17, and then ahead: record 18 is refused once.
    FaalOver(2);
    ASSERT_FALSE(Schrijf(Personen, 17, 'x'));
    ASSERT_TRUE(schijf.Geweest());
    ASSERT_FALSE(Schrijf(Personen, 18, 'x'));
  }
  EXPECT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(Stand(), begin_);
}

TEST_F(JournaalRandTest, WatAlleenVooruitGelezenIsWordtNietTeruggezet) {
  ZetPersonen(40);
  {
    Handeling handeling(*bestanden, "Lang");
    for (std::int32_t nr = 1; nr <= 20; ++nr) ASSERT_FALSE(Schrijf(Personen, nr, 'x'));
  }
  schijf.Bytes(Naam(Personen))[29 * 128] = 'q';
  ASSERT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(Stand()[Personen][29 * 128], 'q');
  EXPECT_EQ(Stand()[Personen][0], 'a');
}

TEST_F(JournaalRandTest, NaEenWeigeringStaatTochElkBeeldInHetJournaal) {
  for (const Wijze wijze : {Wijze::Fout, Wijze::Kort}) {
    for (int k = 1; k <= 12; ++k) {
      Terug();
      {
        Handeling handeling(*bestanden, "Invoer");
        FaalOver(k, wijze);
        static_cast<void>(Schrijf(Personen, 3, 'x'));
        schijf.bij = 0;
        ASSERT_FALSE(Schrijf(Personen, 3, 'y')) << k;
      }
      EXPECT_TRUE(Dagboek().MaakOngedaan(1)) << k;
      EXPECT_EQ(Stand(), begin_) << k;
    }
  }
}

TEST_F(JournaalRandTest, EenGeweigerdeSchrijfactieLaatGeenJournaalAchter) {
  for (int k = 1;; ++k) {
    Terug();
    FaalOver(k);
    const SysteemFout fout = Schrijf(Personen, 3, 'x');
    if (!schijf.Geweest()) break;
    if (fout && Stand() == begin_ && Dagboek().Geschiedenis().empty()) {
      EXPECT_EQ(schijf.Journalen(), Namen{}) << k;
    }
  }
}

TEST_F(JournaalRandTest, WatGeluktHeetOverleeftDeStroom) {
  const std::function<SysteemFout()> taken[] = {[this] { return Schrijf(Personen, 3, 'x'); },
                                                [this] { return Kap(3 * 128); }};
  for (const auto& taak : taken) {
    Terug();
    ASSERT_FALSE(taak());
    const VierBestanden klaar = Stand();
    for (int k = 1;; ++k) {
      Terug();
      FaalOver(k);
      const SysteemFout fout = taak();
      if (!schijf.Geweest()) break;
      if (fout) continue;
      ValtUit();
      EXPECT_FALSE(Dagboek().Onvoltooid()) << k;
      EXPECT_EQ(Stand(), klaar) << k;
    }
  }
}

TEST_F(JournaalRandTest, KappenEnVerlengenKomenTerug) {
  for (const std::uint64_t lengte : {0U, 3U * 128, 3U * 128 + 5, 4U * 128 + 127, 6U * 128 + 7}) {
    Terug();
    ASSERT_FALSE(Kap(lengte));
    EXPECT_EQ(Stand()[Personen].size(), lengte);
    EXPECT_TRUE(Dagboek().MaakOngedaan(1)) << lengte;
    EXPECT_EQ(Stand(), begin_) << lengte;
  }
  Terug();
  ASSERT_FALSE(Kap(5 * 128));
  EXPECT_EQ(schijf.Journalen(), Namen{});
}

TEST_F(JournaalRandTest, EenGeweigerdeKapVerandertNietsEnTeltAlsWijziging) {
  const std::uint64_t eerst = bestanden->Stand(Personen);
  FaalOver(1);
  EXPECT_TRUE(Kap(128));
  EXPECT_EQ(Stand(), begin_);
  EXPECT_NE(bestanden->Stand(Personen), eerst);
}

TEST_F(JournaalRandTest, WatAanHetEindeNietTeLezenWasWordtNogEensGelezen) {
  {
    Handeling handeling(*bestanden, "Kap");
    ASSERT_FALSE(Kap(3 * 128 + 5));
    // The file goes to the disk, and then the record is looked up.
    FaalOver(2);
  }
  ASSERT_TRUE(schijf.Geweest());
  EXPECT_TRUE(Dagboek().MaakOngedaan(1));
  EXPECT_EQ(Stand(), begin_);
}

TEST_F(JournaalRandTest, WatTeruggezetIsOverleeftDeStroom) {
  NaElkSterven([this](int k) {
    if (!Dagboek().Onvoltooid()) return;
    ASSERT_FALSE(Dagboek().Herstel());
    ValtUit();
    EXPECT_FALSE(Dagboek().Onvoltooid()) << k;
    EXPECT_EQ(Stand(), begin_) << k;
  });
}

TEST_F(JournaalRandTest, WatBehoudenIsOverleeftDeStroom) {
  NaElkSterven([this](int k) {
    if (!Dagboek().Onvoltooid()) return;
    const VierBestanden stand = Stand();
    ASSERT_FALSE(Dagboek().Behoud());
    ValtUit();
    EXPECT_FALSE(Dagboek().Onvoltooid()) << k;
    EXPECT_EQ(Stand(), stand) << k;
    EXPECT_TRUE(Dagboek().MaakOngedaan(1)) << k;
    EXPECT_EQ(Stand(), begin_) << k;
  });
}

TEST_F(JournaalRandTest, WatVoltooidHeetBlijftHetNaDeStroom) {
  NaElkSterven([this](int k) {
    if (Dagboek().Onvoltooid()) return;
    const VierBestanden stand = Stand();
    ValtUit();
    EXPECT_FALSE(Dagboek().Onvoltooid()) << k;
    EXPECT_EQ(Stand(), stand) << k;
  });
}

TEST_F(JournaalRandTest, WatEenAnderNaHetBehoudenSchreefWordtNietTeruggezet) {
  int gevraagd = 0;
  NaElkSterven([&](int k) {
    if (!Dagboek().Onvoltooid() || Stand()[Personen].size() <= begin_[Personen].size()) return;
    ++gevraagd;
    ASSERT_FALSE(Dagboek().Behoud());
    schijf.Bytes(Naam(Personen)).back() = '!';
    EXPECT_EQ(Dagboek().MaakOngedaan(1).soort, OngedaanUitslag::Soort::Gewijzigd) << k;
    EXPECT_EQ(Stand()[Personen].back(), '!');
  });
  EXPECT_GT(gevraagd, 0);
}

TEST_F(JournaalRandTest, HetHerstelRaaktGeenAnderPlaatsbestand) {
  ASSERT_FALSE(bestanden->Open(Plaatsen, "/elders/PLAATS.PLT"));
  {
    Handeling handeling(*bestanden, "Plaats");
    ASSERT_FALSE(Schrijf(Plaatsen, 1, 'x'));
    schijf.Bytes("later") = schijf.Bytes("00000001.BEZ");
  }
  schijf.Verwijder("00000001.HND");
  schijf.Bytes("00000001.BEZ") = schijf.Bytes("later");
  Heropen();
  ASSERT_TRUE(Dagboek().Onvoltooid());
  EXPECT_EQ(Dagboek().Herstel().tekst, "Het plaatsbestand is een ander dan toen");
  EXPECT_EQ(Stand(), begin_);
}

TEST_F(JournaalRandTest, EenHandelingDieErNietMeerIsMaaktGeenAndereOngedaan) {
  ASSERT_FALSE(Doe("Een", {{Personen, 2}}, 'x'));
  ASSERT_FALSE(Doe("Twee", {{Personen, 3}}, 'y'));
  schijf.Verwijder("00000001.HND");
  const VierBestanden stand = Stand();
  EXPECT_EQ(Dagboek().MaakOngedaan(1).soort, OngedaanUitslag::Soort::NietAanwezig);
  EXPECT_EQ(Stand(), stand);
}

TEST_F(JournaalRandTest, WatEenAnderInEenGatSchreefKomtMetOpnieuwTerug) {
  ASSERT_FALSE(Doe("Een", {{Personen, 8}}, 'x'));
  schijf.Bytes(Naam(Personen))[6 * 128] = 'q';
  const VierBestanden stand = Stand();
  ASSERT_TRUE(Dagboek().MaakOngedaan(1));
  ASSERT_EQ(Stand(), begin_);
  ASSERT_TRUE(Dagboek().MaakOngedaan(2));
  EXPECT_EQ(Stand(), stand);
}

TEST_F(JournaalRandTest, OngedaanDatGeluktHeetHeeftAllesTeruggezet) {
  for (int k = 1;; ++k) {
    Terug();
    ASSERT_FALSE(DoeAlles('y'));
    FaalOver(k);
    const bool gelukt = static_cast<bool>(Dagboek().MaakOngedaan(1));
    if (!schijf.Geweest()) break;
    if (gelukt) {
      EXPECT_EQ(Stand(), begin_) << k;
    }
  }
}
