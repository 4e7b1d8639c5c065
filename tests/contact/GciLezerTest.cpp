// The reader of the reference tables.
#include <gtest/gtest.h>

#include "contact/ContactToets.h"
#include "contact/GciLezer.h"
#include "script/Verslag.h"
#include "steun/NepGesprek.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

const std::vector<std::string> kGetoondeFout{"! stop \"Het bestand is korter dan het zelf zegt\""};

class GciLezerTest : public ::testing::Test {
 protected:
  GciLezing Lees(const GciBestand& bestand, const std::string& bytes) {
    SchrijfBytes(map_ / bestand.naam, bytes);
    return Lees(bestand);
  }
  GciLezing Lees(const GciBestand& bestand) {
    rijen_ = {"van een vorige keer"};
    return LeesGciBestand(
        bestand, map_.Pad(), gesprek_,
        [this](int aantal) {
          gezien_.push_back(aantal);
          return aantal != stopBij_;
        },
        rijen_);
  }

  TijdelijkeMap map_;
  NepGesprek gesprek_;
  std::vector<std::string> rijen_;
  std::vector<int> gezien_;
  int stopBij_ = 0;
};

TEST_F(GciLezerTest, DePlaatsenStaanAchterEenKopVan130) {
  EXPECT_EQ(Lees(kGciPlaatsenBestand, Dbf(130, 31, {"Delft", "Luik"})), GciLezing::Gelezen);
  EXPECT_EQ(rijen_, (std::vector<std::string>{"Delft" + std::string(26, ' '),
                                              "Luik" + std::string(27, ' ')}));
  EXPECT_EQ(gezien_, (std::vector<int>{1, 2}));
}

TEST_F(GciLezerTest, DeCodesStaanAchterEenKopVan98) {
  for (const GciBestand& bestand : {kGciProvinciesBestand, kGciLandenBestand}) {
    EXPECT_EQ(Lees(bestand, Dbf(98, 23, {"ZH Zuid-Holland"})), GciLezing::Gelezen);
    EXPECT_EQ(rijen_, std::vector<std::string>{"ZH Zuid-Holland        "});
  }
}

TEST_F(GciLezerTest, ZetDeTekensOmUitCodetabel437) {
  EXPECT_EQ(Lees(kGciPlaatsenBestand, Dbf(130, 31, {"Li\x8Age"})), GciLezing::Gelezen);
  EXPECT_EQ(rijen_.at(0).substr(0, 6), "Li\xE8ge ");
}

TEST_F(GciLezerTest, EenGewistRecordTeltMee) {
  std::string bytes = Dbf(130, 31, {"Delft"});
  bytes[130] = '*';
  EXPECT_EQ(Lees(kGciPlaatsenBestand, bytes), GciLezing::Gelezen);
  EXPECT_EQ(rijen_.at(0).substr(0, 6), "Delft ");
}

TEST_F(GciLezerTest, WatAchterDeTellingLigtWordtNietGelezen) {
  EXPECT_EQ(Lees(kGciPlaatsenBestand, Dbf(130, 31, {"Delft", "Breda"}, 1) + "\x1A"),
            GciLezing::Gelezen);
  EXPECT_EQ(rijen_.size(), 1U);
}

TEST_F(GciLezerTest, ElkeAfgekapteLengteIsEenLeesfout) {
  const std::string heel = Dbf(130, 31, {"Delft", "Breda"});
  for (std::size_t lengte = 0; lengte < heel.size(); ++lengte) {
    EXPECT_EQ(Lees(kGciPlaatsenBestand, heel.substr(0, lengte)), GciLezing::Mislukt) << lengte;
    EXPECT_EQ(gesprek_.Neem(), kGetoondeFout) << lengte;
    EXPECT_TRUE(rijen_.empty()) << lengte;
  }
}

TEST_F(GciLezerTest, EenTeGroteTellingIsEenLeesfout) {
  for (const std::int64_t aantal : {2LL, 256LL, 40000LL, 0x7FFFFFFFLL, 0xFFFFFFFFLL}) {
    EXPECT_EQ(Lees(kGciPlaatsenBestand, Dbf(130, 31, {"Delft"}, aantal)), GciLezing::Mislukt);
    EXPECT_EQ(gesprek_.Neem(), kGetoondeFout) << aantal;
    EXPECT_TRUE(rijen_.empty());
  }
}

TEST_F(GciLezerTest, AlleVierDeBytesVanDeTellingTellen) {
  for (const std::int64_t aantal : {0x100LL, 0x10000LL, 0x1000000LL}) {
    EXPECT_EQ(Lees(kGciLandenBestand, Dbf(98, 23, {}, aantal)), GciLezing::Mislukt);
    EXPECT_EQ(gesprek_.Neem(), kGetoondeFout) << aantal;
  }
}

TEST_F(GciLezerTest, ZonderRecordsHeeftElkBestandZijnMelding) {
  EXPECT_EQ(Lees(kGciPlaatsenBestand, Dbf(130, 31, {})), GciLezing::Mislukt);
  EXPECT_EQ(Lees(kGciProvinciesBestand, Dbf(98, 23, {})), GciLezing::Mislukt);
  EXPECT_EQ(Lees(kGciLandenBestand, Dbf(98, 23, {})), GciLezing::Mislukt);
  EXPECT_EQ(gesprek_.Neem(),
            (std::vector<std::string>{
                "! uitroep \"Fout: geen plaatsen in GCI plaatsenbestand gevonden\"",
                "! uitroep \"Fout: geen provincies in GCI provinciebestand gevonden\"",
                "! uitroep \"Fout: geen landen in GCI landenbestand gevonden\""}));
  EXPECT_TRUE(rijen_.empty());
}

TEST_F(GciLezerTest, EenBestandDatErNietIsHeeftZijnMelding) {
  for (const GciBestand& bestand :
       {kGciPlaatsenBestand, kGciProvinciesBestand, kGciLandenBestand}) {
    EXPECT_EQ(Lees(bestand), GciLezing::Mislukt);
  }
  const auto regel = [this](const std::string& soort, const char* naam) {
    return "! stop " +
           Aangehaald("Kan GCI-" + soort + " " + (map_ / naam).string() + " niet openen");
  };
  EXPECT_EQ(gesprek_.Neem(), (std::vector<std::string>{regel("plaatsenbestand", "GCIPLT!!.DBF"),
                                                       regel("provinciebestand", "GCIPRV!!.DBF"),
                                                       regel("landenbestand", "GCILND!!.DBF")}));
  EXPECT_TRUE(rijen_.empty());
}

TEST_F(GciLezerTest, EenMapIsGeenBestand) {
  std::filesystem::create_directories(map_ / "GCIPLT!!.DBF");
  EXPECT_EQ(Lees(kGciPlaatsenBestand), GciLezing::Mislukt);
  EXPECT_EQ(gesprek_.Neem().size(), 1U);
}

TEST_F(GciLezerTest, VindtHetBestandOokInKleineLetters) {
  SchrijfBytes(map_ / "gciplt!!.dbf", Dbf(130, 31, {"Delft"}));
  EXPECT_EQ(Lees(kGciPlaatsenBestand), GciLezing::Gelezen);
}

TEST_F(GciLezerTest, StoptAlsDatWordtGevraagd) {
  stopBij_ = 2;
  EXPECT_EQ(Lees(kGciPlaatsenBestand, Dbf(130, 31, {"a", "b", "c"})), GciLezing::Gestopt);
  EXPECT_EQ(gezien_, (std::vector<int>{1, 2}));
  EXPECT_TRUE(rijen_.empty());
}

TEST_F(GciLezerTest, NeemtZovelenAlsEenNummerKanHebben) {
  EXPECT_EQ(Lees(kGciPlaatsenBestand, Dbf(130, 31, std::vector<std::string>(32767, "Delft"))),
            GciLezing::Gelezen);
  EXPECT_EQ(rijen_.size(), 32767U);
  EXPECT_EQ(Lees(kGciPlaatsenBestand, Dbf(130, 31, std::vector<std::string>(32768, "Delft"))),
            GciLezing::Mislukt);
  EXPECT_EQ(gesprek_.Neem(),
            std::vector<std::string>{"! stop \"Het maximum van 32767 records is bereikt\""});
  EXPECT_TRUE(rijen_.empty());
}

}  // namespace
}  // namespace lb77
