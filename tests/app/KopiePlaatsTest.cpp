#include <atomic>
#include <string>
#include <thread>

#include "app/KopiePlaats.h"
#include "app/KopiePlek.h"
#include "app/VeiligToets.h"
#include "steun/Bestandsstelsel.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

constexpr const char* kOpen = "+ KopiePlaats \"Plaats van de Veiligheidskopie\xC3\xABn\"\n";

class KopiePlaatsVenster : public VeiligToets {
 protected:
  void SetUp() override {
    VeiligToets::SetUp();
    basismap_ = map_;
    std::filesystem::create_directories(map_ / "stick");
  }
  void Speelt(std::string_view script, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    Verwacht(script, MetMenu([](Hoofdmodule& hoofd, MenuWindow&) {
               Toont<KopiePlaats>(hoofd)(hoofd.gesprek);
             }),
             kOpen + MetMap(verslag) + "\n- KopiePlaats", plek);
  }
  // The first action of a session, that makes a copy by itself.
  void Schrijf1(std::string_view verslag, const Plek& plek = Plek::current()) {
    Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
               ASSERT_TRUE(menu.Laad());
               VoegToe(hoofd, "Jan");
             }),
             MetMap(verslag), plek);
  }
};

TEST_F(KopiePlaatsVenster, DeGekozenMapKomtInHetBestandEnWeerInHetVeld) {
  Speelt("bestand stick\ndruk BrowseKopieMap\ndruk OKButton",
         R"~(> map "Directories (*.)|*.dir|Alle Bestanden (*.*)|*.*" -> "stick")~");
  EXPECT_EQ(Inhoud("KOPIE.PAD"), (map_ / "stick").string() + "\r\n");
  EXPECT_FALSE(Bestaat("KOPIE.TMP"));
  Speelt("toon KopieMap\ndruk BackButton", "= KopieMap \"<map>/stick\"");
}

TEST_F(KopiePlaatsVenster, EenMapDieErNietIsWordtNietBewaard) {
  Speelt("vul KopieMap elders\ndruk OKButton\ndruk BackButton",
         "! uitroep \"De directory <map>/elders is er niet\"");
  EXPECT_FALSE(Bestaat("KOPIE.PAD"));
}

TEST_F(KopiePlaatsVenster, LeegIsWeerDeMapVanHetProgramma) {
  Schrijf("KOPIE.PAD", "stick");
  Speelt("vul KopieMap\ndruk OKButton", "");
  EXPECT_FALSE(Bestaat("KOPIE.PAD"));
  Schrijf1("");
  EXPECT_TRUE(Bestaat("KOPIE/EEN/2026-01-02_030405/EEN.PRS"));
}

TEST_F(KopiePlaatsVenster, WatNietTeBewarenIsWordtGemeld) {
  std::filesystem::create_directories(map_ / "KOPIE.TMP");
  Speelt("vul KopieMap stick\ndruk OKButton\ndruk BackButton",
         "! stop \"De plaats is niet bewaard\\nPad is een directory\"");
  EXPECT_FALSE(Bestaat("KOPIE.PAD"));
}

TEST_F(KopiePlaatsVenster, EenKopieKomtInDeGekozenMap) {
  Schrijf("KOPIE.PAD", "stick\n");
  const std::string voor = Inhoud("DATA/EEN/EEN.PRS");
  Schrijf1("");
  EXPECT_EQ(Inhoud("stick/EEN/2026-01-02_030405/EEN.PRS"), voor);
  EXPECT_FALSE(Bestaat("KOPIE"));
}

// A place that is not there is not made on the disk in its stead.
TEST_F(KopiePlaatsVenster, ZonderDeStickKomtDeKopieBijHetProgrammaEnWordtHetGezegd) {
  Schrijf("KOPIE.PAD", "weg");
  Schrijf1(
      "! uitroep \"De plaats voor de veiligheidskopie\xC3\xABn (<map>/weg) is er niet.\\n"
      "Een kopie komt nu in <map>/KOPIE/EEN\"");
  EXPECT_TRUE(Bestaat("KOPIE/EEN/2026-01-02_030405/EEN.PRS"));
  EXPECT_FALSE(Bestaat("weg"));
}

TEST_F(KopiePlaatsVenster, DeLijstNoemtDeKopieenVanBeidePlaatsen) {
  Schrijf1("");
  Schrijf("KOPIE.PAD", "stick");
  Verwacht("", MetMenu([this](Hoofdmodule& hoofd, MenuWindow& menu) {
             ASSERT_TRUE(menu.Laad());
             Veiligheidskopie kopie = KopieVan(hoofd);
             ASSERT_FALSE(kopie.Maak());
             EXPECT_EQ(kopie.Laatste(), map_ / "stick/EEN/2026-01-02_030405");
             EXPECT_EQ(kopie.Lijst().size(), 2U);
           }),
           "");
  Verwacht("kies VerwijderSet\nstel SetPicklist #0\ndruk DeleteJa\ndruk OKButton\nsluit", Sessie(),
           "+ MenuWindow \"LB77 voor Windows\"\n"
           "+ VerwijderSetForm \"Verwijder Bestandendset\"\n" +
               MetMap("! info \"De veiligheidskopie\xC3\xABn van EEN zijn er nog: <map>/stick/EEN, "
                      "<map>/KOPIE/EEN\"\n") +
               "- VerwijderSetForm\n- MenuWindow");
}

TEST_F(KopiePlaatsVenster, InDeMapDieGekopieerdWordtKomtGeenKopie) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  std::filesystem::create_directory_symlink(map_ / "DATA/EEN/TEKST", map_ / "koppeling");
  for (const char* plek : {"DATA/EEN/TEKST", "koppeling"}) {
    Schrijf("KOPIE.PAD", plek);
    Schrijf1(
        "! uitroep \"De veiligheidskopie is niet gemaakt\\n"
        "Een kopie kan niet in de map TEKST liggen\"");
    EXPECT_FALSE(Bestaat("DATA/EEN/TEKST/EEN"));
  }
}

// Written while it is copied, by whoever has it open too.
TEST_F(KopiePlaatsVenster, WatTijdensHetKopierenVerandertIsGeenKopie) {
  std::atomic<bool> klaar = false;
  std::thread schrijver([&] {
    for (int i = 0; !klaar; ++i) Schrijf("DATA/EEN/TEKST/verslag.txt", std::to_string(i));
  });
  std::string reden;
  Verwacht("", MetMenu([&](Hoofdmodule& hoofd, MenuWindow& menu) {
             ASSERT_TRUE(menu.Laad());
             Veiligheidskopie kopie = KopieVan(hoofd);
             for (int i = 0; i < 100 && reden.empty(); ++i) reden = kopie.Maak().tekst;
           }),
           "");
  klaar = true;
  schrijver.join();
  EXPECT_EQ(reden, "De bestandenset is tijdens het kopiëren gewijzigd"_w);
  NoteerGetoond(WindowsNaarUtf8(reden));
  EXPECT_FALSE(Bestaat("KOPIE/EEN/BEZIG"));
}

TEST_F(KopiePlaatsVenster, DezelfdeMapTeltEenmaal) {
  std::filesystem::create_directories(map_ / "KOPIE/EEN");
  EXPECT_EQ(KopieMappenIn(map_, map_ / "KOPIE", "EEN").mappen.size(), 1U);
}

}  // namespace
}  // namespace lb77
