#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "ancestors/KwstFamilie.h"
#include "ancestors/KwstSchSchrijver.h"
#include "ancestors/KwstStamboom.h"
#include "output/TekstSchrijver.h"
#include "steun/Gouden.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

// Charts without a form.
class KwstSchSchrijverToets : public ::testing::Test {
 protected:
  // The file is in uit_ afterwards.
  Uitslag Schrijf(std::int16_t proband, int generaties, int breedte = 8) {
    opties_.KwProbandNr = proband;
    opties_.KwMaxGen = generaties;
    opties_.KwBreedte = breedte;
    TekstSchrijver schrijver;
    EXPECT_TRUE(schrijver.Open(set_.map / "uit.txt"));
    schrijver.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
    const Gegevens bronnen{set_.Persoon,   set_.Relatie, set_.Plaats,
                           set_.Opmerking, set_.volgers, set_.schrijfwijze};
    const Uitslag uitslag = KwstSchSchrijver(opties_, bronnen, schrijver, verloop_).Schrijf();
    EXPECT_TRUE(schrijver.Sluit());
    uit_ = LeesBytes(set_.map / "uit.txt");
    return uitslag;
  }
  void ZetTeksten() {
    opties_.teksten.titel = "Kwartierstaat van Gerrit & Co";
    opties_.teksten.inleiding = {"Eerste regel", "", "Derde regel"};
    opties_.teksten.copyrightRegel = "Copyright (2026) Jan Jansen";
    opties_.teksten.programmaRegel = "Gemaakt met LB77 voor Windows";
  }

  ProefSet set_;
  KwstOpties opties_;
  Verloop verloop_{[] { return false; }, [](int, int) {}};
  std::string uit_;
};

TEST_F(KwstSchSchrijverToets, TweeGeneraties) {
  EXPECT_EQ(Schrijf(BouwKwstStamboom(set_.bouw).persoon[1], 2), Einde::Klaar);
  EXPECT_EQ(uit_,
            "/======== 2. Dirk van Dam\r\n"
            "1. Gerrit Johannes van Dam\r\n"
            "\\======== 3. Femke de Vries\r\n"
            "\r\n");
}

TEST_F(KwstSchSchrijverToets, EenFamilieVanEenMensHoudtHaarVorm) {
  EXPECT_EQ(Schrijf(set_.bouw.Man("Jan", "Jansen"), 3, 2), Einde::Klaar);
  VerwachtGouden("kwsch/alleen.txt", uit_);
}

TEST_F(KwstSchSchrijverToets, VierGeneratiesMetAlles) {
  opties_.KwOokNrs = opties_.KwOokJaren = true;
  ZetTeksten();
  EXPECT_EQ(Schrijf(BouwKwstStamboom(set_.bouw).persoon[1], 4), Einde::Klaar);
  VerwachtGouden("kwsch/vier.txt", uit_);
}

TEST_F(KwstSchSchrijverToets, VierGeneratiesRechtOnderElkaar) {
  opties_.KwUitlijnen = opties_.KwOokJaren = true;
  EXPECT_EQ(Schrijf(BouwKwstStamboom(set_.bouw).persoon[1], 4, 2), Einde::Klaar);
  VerwachtGouden("kwsch/uitgelijnd.txt", uit_);
}

TEST_F(KwstSchSchrijverToets, EenAnderBeginnummerVerandertDeNummersAlleen) {
  opties_.KwBeginNr = Kwartiernummer("5");
  opties_.KwUitlijnen = true;
  EXPECT_EQ(Schrijf(BouwKwstStamboom(set_.bouw).persoon[1], 3, 4), Einde::Klaar);
  VerwachtGouden("kwsch/nummer5.txt", uit_);
}

TEST_F(KwstSchSchrijverToets, HerhalingenStaanErNogEens) {
  EXPECT_EQ(Schrijf(BouwKwstFamilie(set_.bouw).proband, 4, 5), Einde::Klaar);
  VerwachtGouden("kwsch/herhaling.txt", uit_);
}

TEST_F(KwstSchSchrijverToets, TienGeneraties) {
  opties_.KwUitlijnen = true;
  EXPECT_EQ(Schrijf(BouwVolleBoom(set_.bouw, 10), 10, 2), Einde::Klaar);
  VerwachtGouden("kwsch/tien.txt", uit_);
}

TEST_F(KwstSchSchrijverToets, InHTMLStaatHetSchemaTussenPRE) {
  opties_.KwInHTML = opties_.KwOokJaren = opties_.KwUitlijnen = true;
  ZetTeksten();
  opties_.teksten.email = "jan@example.org";
  opties_.teksten.emailTekst = "Schrijf me";
  EXPECT_EQ(Schrijf(BouwKwstStamboom(set_.bouw).persoon[1], 4, 4), Einde::Klaar);
  VerwachtGouden("kwsch/html.txt", uit_);
}

// All names in one column, the proband's too.
TEST_F(KwstSchSchrijverToets, UitlijnenZetAlleNamenInEenKolom) {
  opties_.KwUitlijnen = true;
  for (const int breedte : {2, 10}) {
    EXPECT_EQ(Schrijf(BouwVolleBoom(set_.bouw, 5), 5, breedte), Einde::Klaar);
    const auto kolom = static_cast<std::size_t>(4 * breedte + 2 + 2 + 1 + 1);
    for (std::size_t begin = 0; begin + 4 < uit_.size();) {
      const std::size_t einde = uit_.find("\r\n", begin);
      EXPECT_EQ(uit_.substr(begin, einde - begin).find(" K"), kolom - 1);
      begin = einde + 2;
      if (uit_.compare(begin, 2, "\r\n") == 0) break;
    }
  }
}

TEST_F(KwstSchSchrijverToets, DeJarenHoudenHunBlanco) {
  opties_.KwOokJaren = true;
  const auto zonder = set_.bouw.Man("Jan", "Zonder");
  EXPECT_EQ(Schrijf(zonder, 2), Einde::Klaar);
  EXPECT_NE(uit_.find("1. Jan Zonder     -    \r\n"), std::string::npos);
  const auto doop =
      set_.bouw.Man("Jan", "Doop", {{"DoopDatum", "00-00-1700"}, {"BegrDatum", "00-00-1770"}});
  EXPECT_EQ(Schrijf(doop, 2), Einde::Klaar);
  EXPECT_NE(uit_.find("1. Jan Doop 1700-1770\r\n"), std::string::npos);
  const auto geboren = set_.bouw.Man("Jan", "Geboren",
                                     {{"GebDatum", "00-00-1701"},
                                      {"DoopDatum", "00-00-1702"},
                                      {"OvlDatum", "00-00-1771"},
                                      {"BegrDatum", "00-00-1772"}});
  EXPECT_EQ(Schrijf(geboren, 2), Einde::Klaar);
  EXPECT_NE(uit_.find("1. Jan Geboren 1701-1771\r\n"), std::string::npos);
}

TEST_F(KwstSchSchrijverToets, DeNaamStaatGecodeerdInHTML) {
  opties_.KwInHTML = true;
  EXPECT_EQ(Schrijf(set_.bouw.Man("Jan <Piet>", "R&D"), 2), Einde::Klaar);
  EXPECT_NE(uit_.find("1. Jan &lt;Piet&gt; R&amp;D\r\n"), std::string::npos);
}

TEST_F(KwstSchSchrijverToets, WieNietTeLezenIsLaatLijnEnNummer) {
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto relatie = set_.bouw.Relatie(vader, 0, {kind});
  set_.bouw.WijzigRelatie(relatie, {{"VrouwNr", "500"}});
  set_.bouw.WijzigPersoon(vader, {{"Ouders", "77"}});
  EXPECT_EQ(Schrijf(kind, 2, 3), Einde::Klaar);
  EXPECT_EQ(uit_, "/=== 2. Vader A\r\n1. Kind A\r\n\\=== 3.\r\n\r\n");
}

TEST_F(KwstSchSchrijverToets, WieBovenHetAantalStaatLaatLijnEnNummer) {
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto vader = set_.bouw.Man("Vader", "A");
  set_.bouw.Relatie(vader, 0, {kind});
  set_.bouw.ZetAantalPersonen(1);
  EXPECT_EQ(Schrijf(kind, 2, 3), Einde::Klaar);
  EXPECT_NE(uit_.find("/=== 2.\r\n"), std::string::npos);
}

TEST_F(KwstSchSchrijverToets, EenProbandDieNietTeLezenIsMaaktGeenSchema) {
  const Uitslag uitslag = Schrijf(500, 4);
  EXPECT_EQ(uitslag, Einde::Leesfout);
  EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Personen, 500}));
  EXPECT_EQ(uit_, "");
}

TEST_F(KwstSchSchrijverToets, EenStopLaatHetBestandZoverAlsHetWas) {
  int test = 0;
  int positie = 0;
  verloop_.afbreken = [&test] { return ++test == 3; };
  verloop_.toon = [&positie](int, int k) { positie = k; };
  EXPECT_EQ(Schrijf(BouwVolleBoom(set_.bouw, 3), 3), Einde::Afgebroken);
  EXPECT_EQ(positie, 2);
  EXPECT_NE(uit_.find("K2 Boom\r\n"), std::string::npos);
  EXPECT_EQ(uit_.find("K5"), std::string::npos);
}

TEST_F(KwstSchSchrijverToets, ZonderTitelBegintDeTekstMetHetSchema) {
  ZetTeksten();
  opties_.teksten.titel.clear();
  EXPECT_EQ(Schrijf(set_.bouw.Man("Jan", "Jansen"), 2), Einde::Klaar);
  EXPECT_EQ(uit_.rfind("Eerste regel\r\nDerde regel\r\n\r\n/====", 0), 0U);
  EXPECT_TRUE(
      uit_.ends_with("3.\r\n\r\n          Copyright (2026) Jan Jansen\r\n"
                     "          Gemaakt met LB77 voor Windows\r\n"));
}

}  // namespace
}  // namespace lb77
