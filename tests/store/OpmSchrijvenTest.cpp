// Storing remarks.
#include <gtest/gtest.h>

#include "store/OpmSchrijvenToets.h"

using namespace lb77;

namespace {

struct OpmSchrijvenTest : OpmSchrijvenToets {};

using Paar = std::pair<int, int>;
using Drie = std::array<int, 3>;
using Lijst = std::vector<std::string>;

}  // namespace

TEST_F(OpmSchrijvenTest, DeEersteOpmerkingHangtAanDePersoon) {
  ASSERT_TRUE(Wijzig(4096, {"een", "twee"}));
  EXPECT_EQ(Eigenaar(), Paar(2, 4096));
  EXPECT_EQ(Teksten(4096), (Lijst{"een", "twee"}));
  EXPECT_EQ(Admin(), (Drie{3, 2, 4}));
  EXPECT_EQ(Lees(2).BijRecord(), man);
  EXPECT_EQ(Lees(2).VolgRegel(), 3);
  EXPECT_EQ(Lees(2).BijZelfde(), 0);
  EXPECT_EQ(Lees(3).Rubriek(), 4096);
  EXPECT_EQ(Lees(3).BijProg(), 23);
  EXPECT_EQ(Lees(3).VolgRegel(), 0);
}

TEST_F(OpmSchrijvenTest, DeOpmerkingVanEenRelatieIsNegatief) {
  set.bouw.OpmerkingBijRelatie(relatie, -256, {"een"});
  set.bouw.OpmerkingBijRelatie(relatie, -1, {"twee"});
  ASSERT_TRUE(set.Relatie.Lees(relatie));
  EXPECT_EQ(set.Relatie.OpmRecord(), 2);
  EXPECT_EQ(set.Relatie.OpmCode(), -257);
  EXPECT_EQ(Lees(3).BijRecord(), relatie);
  EXPECT_EQ(Eigenaar(), Paar(0, 0));
}

TEST_F(OpmSchrijvenTest, TienRegelsVan80TekensVullenTienRecords) {
  ASSERT_TRUE(Wijzig(1, Lijst(10, std::string(80, 'x'))));
  EXPECT_EQ(Teksten(1), Lijst(10, std::string(80, 'x')));
  EXPECT_EQ(Teksten(1, 2), Lijst{});
  EXPECT_EQ(Admin(), (Drie{11, 10, 12}));
}

TEST_F(OpmSchrijvenTest, DeTiendeRegelIsAltijdDeLaatste) {
  const Lijst tien(10, "x");
  ASSERT_TRUE(Wijzig(1, tien));
  Lees(11).Zet("VolgRegel", "77");
  ASSERT_TRUE(set.Opmerking.Schrijf());
  ASSERT_TRUE(Wijzig(1, tien));
  EXPECT_EQ(Lees(10).VolgRegel(), 11);
  EXPECT_EQ(Lees(11).VolgRegel(), 0);
}

TEST_F(OpmSchrijvenTest, DePersoonGaatVoorDeRelatie) {
  const auto vrouw = set.bouw.Vrouw("Griet", "");
  ASSERT_NE(vrouw, relatie);
  ASSERT_TRUE(set.Opmerking.SchrijfOpmerking(Regels({"een"}), {}, 0, vrouw, relatie, 0, 23, 1));
  EXPECT_EQ(Lees(2).BijRecord(), vrouw);
  ASSERT_TRUE(set.Persoon.Lees(vrouw));
  EXPECT_EQ(set.Persoon.OpmRecord(), 2);
  ASSERT_TRUE(set.Relatie.Lees(relatie));
  EXPECT_EQ(set.Relatie.OpmRecord(), 0);
}

TEST_F(OpmSchrijvenTest, EenRegelWordtOp80TekensAfgekapt) {
  ASSERT_TRUE(Wijzig(1, {std::string(81, 'x')}));
  EXPECT_EQ(Teksten(1), Lijst{std::string(80, 'x')});
}

TEST_F(OpmSchrijvenTest, EenVolgendeOpmerkingKomtAchterDeLaatste) {
  ASSERT_TRUE(Wijzig(1, {"een", "twee"}));
  ASSERT_TRUE(Wijzig(8, {"drie"}));
  ASSERT_TRUE(Wijzig(1, {"vier"}, 2));
  EXPECT_EQ(Eigenaar(), Paar(2, 9));
  EXPECT_EQ(Lees(2).BijZelfde(), 4);
  EXPECT_EQ(Lees(4).BijZelfde(), 5);
  EXPECT_EQ(Teksten(1), (Lijst{"een", "twee"}));
  EXPECT_EQ(Teksten(1, 2), Lijst{"vier"});
}

TEST_F(OpmSchrijvenTest, LegeRegelsVallenNaarHetEinde) {
  ASSERT_TRUE(Wijzig(1, {"", "een", "  ", "twee"}));
  EXPECT_EQ(Teksten(1), (Lijst{"een", "twee"}));
  EXPECT_EQ(Admin(), (Drie{3, 2, 4}));
}

TEST_F(OpmSchrijvenTest, EenRegelVanHardeBlankenIsLeegZoalsHijInHetBestandZouStaan) {
  ASSERT_TRUE(Wijzig(1, {"een", "\xA0\xA0", "twee"}));
  EXPECT_EQ(Teksten(1), (Lijst{"een", "twee"}));
  EXPECT_EQ(Admin(), (Drie{3, 2, 4}));
}

TEST_F(OpmSchrijvenTest, OokEenRegelWaarvanAlleenHardeBlankenZoudenPassenIsLeeg) {
  ASSERT_TRUE(Wijzig(1, {"een", std::string(80, '\xA0') + "drie", "twee"}));
  EXPECT_EQ(Teksten(1), (Lijst{"een", "twee"}));
}

TEST_F(OpmSchrijvenTest, EenLegeOpmerkingDieErNietWasDoetNiets) {
  const std::string voor = LeesBytes(set.paden.opm);
  EXPECT_TRUE(Wijzig(1, {}));
  EXPECT_EQ(LeesBytes(set.paden.opm), voor);
  EXPECT_EQ(Eigenaar(), Paar(0, 0));
}

TEST_F(OpmSchrijvenTest, HerschrijvenHoudtDeRecordsEnNeemtDeUitvoerOver) {
  ASSERT_TRUE(Wijzig(1, {"een", "twee"}));
  ASSERT_TRUE(Wijzig(1, {"drie", "vier", "vijf"}, 1, 64));
  EXPECT_EQ(Teksten(1), (Lijst{"drie", "vier", "vijf"}));
  EXPECT_EQ(Lees(2).BijProg(), 64);
  EXPECT_EQ(Lees(3).BijProg(), 64);
  EXPECT_EQ(Lees(4).BijProg(), 64);
  EXPECT_EQ(Admin(), (Drie{4, 3, 5}));
}

TEST_F(OpmSchrijvenTest, EenKortereOpmerkingGeeftRecordsVrijEnEindigtBijHaarLaatsteRegel) {
  ASSERT_TRUE(Wijzig(1, {"een", "twee", "drie"}));
  ASSERT_TRUE(Wijzig(1, {"een"}));
  EXPECT_EQ(Teksten(1), Lijst{"een"});
  EXPECT_EQ(Lees(2).VolgRegel(), 0);
  EXPECT_EQ(Lees(3).Rubriek(), 0);
  EXPECT_EQ(Lees(3).Tekstregel(), "");
  EXPECT_EQ(Lees(4).Rubriek(), 0);
  EXPECT_EQ(Eigenaar(), Paar(2, 1));
}

// kept: freeing does not lower the first record that may be free, so what is freed below it waits.
TEST_F(OpmSchrijvenTest, VrijgevenVerandertHetAdministratierecordNiet) {
  ASSERT_TRUE(Wijzig(1, {"een", "twee"}));
  const Drie voor = Admin();
  ASSERT_TRUE(Wijzig(1, {}));
  EXPECT_EQ(Admin(), voor);
  ASSERT_TRUE(Wijzig(1, {"nieuw"}));
  EXPECT_EQ(Eigenaar(), Paar(4, 1));
}

TEST_F(OpmSchrijvenTest, DeEnigeOpmerkingWegMaaktDeEigenaarLeeg) {
  ASSERT_TRUE(Wijzig(4096, {"een"}));
  ASSERT_TRUE(Wijzig(4096, {}));
  EXPECT_EQ(Eigenaar(), Paar(0, 0));
  EXPECT_EQ(Teksten(4096), Lijst{});
}

TEST_F(OpmSchrijvenTest, DeEersteVanTweeOpmerkingenWeg) {
  ASSERT_TRUE(Wijzig(1, {"een"}));
  ASSERT_TRUE(Wijzig(8, {"twee"}));
  ASSERT_TRUE(Wijzig(1, {}));
  EXPECT_EQ(Eigenaar(), Paar(3, 8));
  EXPECT_EQ(Teksten(8), Lijst{"twee"});
}

TEST_F(OpmSchrijvenTest, EenMiddelsteOpmerkingWegLaatDeKettingHeelEnBepaaltDeCodeOpnieuw) {
  ASSERT_TRUE(Wijzig(1, {"een"}));
  ASSERT_TRUE(Wijzig(8, {"twee"}));
  ASSERT_TRUE(Wijzig(16, {"drie"}));
  ASSERT_TRUE(Wijzig(8, {}));
  EXPECT_EQ(Eigenaar(), Paar(2, 17));
  EXPECT_EQ(Lees(2).BijZelfde(), 4);
  EXPECT_EQ(Teksten(16), Lijst{"drie"});
}

TEST_F(OpmSchrijvenTest, DeRubriekBlijftZolangErNogEenOpmerkingVanIs) {
  ASSERT_TRUE(Wijzig(1, {"een"}));
  ASSERT_TRUE(Wijzig(1, {"twee"}, 2));
  ASSERT_TRUE(Wijzig(1, {}));
  EXPECT_EQ(Eigenaar(), Paar(3, 1));
  EXPECT_EQ(Teksten(1), Lijst{"twee"});
}

TEST_F(OpmSchrijvenTest, DeEersteWegUitEenKettingDieVerderopBreektHoudtDeRestInZicht) {
  ASSERT_TRUE(Wijzig(1, {"een"}));
  ASSERT_TRUE(Wijzig(8, {"twee"}));
  Lees(3).Zet("BijZelfde", "99");
  ASSERT_TRUE(set.Opmerking.Schrijf());
  EXPECT_FALSE(Wijzig(1, {}));
  EXPECT_EQ(set.Getoond(), Boxen{"! uitroep \"Verkeerde verwijzing: opm-record 99 bestaat niet\""});
  EXPECT_EQ(Eigenaar(), Paar(3, 9));
  EXPECT_EQ(Teksten(8), Lijst{"twee"});
}

TEST_F(OpmSchrijvenTest, EenVrijRecordWordtOpnieuwGenomenZonderOudeSchakels) {
  ASSERT_TRUE(Wijzig(1, {"een", "twee", "drie"}));
  ASSERT_TRUE(Wijzig(1, {}));
  ZetAdmin(4, 2, 0);
  ASSERT_TRUE(Wijzig(8, {"nieuw"}));
  EXPECT_EQ(Eigenaar(), Paar(2, 8));
  EXPECT_EQ(Teksten(8), Lijst{"nieuw"});
  EXPECT_EQ(Lees(2).VolgRegel(), 0);
  EXPECT_EQ(Admin(), (Drie{4, 1, 3}));
}

TEST_F(OpmSchrijvenTest, HetZoekenNaarEenVrijRecordGaatOverBezetteHeen) {
  ASSERT_TRUE(Wijzig(1, {"een", "twee", "drie"}));
  ASSERT_TRUE(Wijzig(8, {"vier"}));
  ASSERT_TRUE(Wijzig(1, {}));
  ZetAdmin(5, 4, 1);
  ASSERT_TRUE(Wijzig(16, {"nieuw"}));
  EXPECT_EQ(Teksten(16), Lijst{"nieuw"});
  EXPECT_EQ(Admin(), (Drie{5, 2, 6}));
  ZetAdmin(5, 2, 2);
  ASSERT_TRUE(Wijzig(32, {"nog een"}));
  EXPECT_EQ(Admin(), (Drie{5, 3, 3}));
}

TEST_F(OpmSchrijvenTest, EenEersteVrijVerVoorbijHetEindeNeemtHetVolgendeRecord) {
  ZetAdmin(1, 500, 0);
  ASSERT_TRUE(Wijzig(1, {"een"}));
  EXPECT_EQ(Eigenaar(), Paar(2, 1));
  EXPECT_EQ(Teksten(1), Lijst{"een"});
  EXPECT_EQ(Admin(), (Drie{2, 1, 3}));
}

TEST_F(OpmSchrijvenTest, EenTellingDieTeLaagIsOverschrijftGeenOpmerking) {
  ASSERT_TRUE(Wijzig(1, {"een", "twee"}));
  ZetAdmin(1, 2, 0);
  EXPECT_FALSE(Wijzig(8, {"drie"}));
  EXPECT_FALSE(set.Getoond().empty());
  EXPECT_EQ(Lees(2).Tekstregel(), "een");
}

TEST_F(OpmSchrijvenTest, EenKettingInEenKringKostGeenRecord) {
  ASSERT_TRUE(Wijzig(1, {"een"}));
  Lees(2).Zet("BijZelfde", "2");
  ASSERT_TRUE(set.Opmerking.Schrijf());
  const std::string voor = LeesBytes(set.paden.opm);
  EXPECT_FALSE(Wijzig(1, {"twee"}, 2));
  EXPECT_EQ(set.Getoond(), Boxen{"! uitroep \"Verkeerde verwijzing: opm-record 2 bestaat niet\""});
  EXPECT_EQ(LeesBytes(set.paden.opm), voor);
}

TEST_F(OpmSchrijvenTest, EenVolBestandNeemtGeenOpmerkingMeer) {
  ZetAdmin(32766, 32767, 0);
  set.bestanden.SluitAlles();
  std::string bytes = LeesBytes(set.paden.opm);
  bytes.resize(32766 * 96);
  const std::string laatste = std::string("\1\0\1\0", 4) + std::string(92, ' ');
  bytes.replace(32765 * 96, 96, laatste);
  SchrijfBytes(set.paden.opm, bytes);
  set.Heropen();
  ASSERT_TRUE(Wijzig(1, {"laatste"}));
  EXPECT_EQ(Eigenaar(), Paar(32767, 1));
  EXPECT_EQ(Admin(), (Drie{32767, 1, 32767}));
  EXPECT_FALSE(Wijzig(8, {"te veel"}));
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Het maximum van 32767 records is bereikt\""});
}

TEST_F(OpmSchrijvenTest, DeVolgersVanPersoonEnRelatieBlijven) {
  set.volgers.HuidigPersoonNr = 77;
  set.volgers.HuidigRelatieNr = 78;
  set.bouw.OpmerkingBijPersoon(man, 1, {"een"});
  set.bouw.OpmerkingBijRelatie(relatie, -1, {"een"});
  EXPECT_EQ(set.volgers.HuidigPersoonNr, 77);
  EXPECT_EQ(set.volgers.HuidigRelatieNr, 78);
}

TEST_F(OpmSchrijvenTest, EenAfwezigeEigenaarWordtGemeld) {
  EXPECT_FALSE(set.Opmerking.SchrijfOpmerking(Regels({"een"}), {}, 0, 77, 0, 0, 23, 1));
  EXPECT_FALSE(set.Opmerking.SchrijfOpmerking(Regels({"een"}), {}, 0, 0, 78, 0, 23, -1));
  EXPECT_EQ(set.Getoond(),
            (Boxen{"! stop \"Leesfout bij Persoon 77\"", "! stop \"Leesfout bij Relatie 78\""}));
}

TEST_F(OpmSchrijvenTest, EenLangeKettingMaaktDeVolgendeOpmerkingNietDuurder) {
  Storing teller;
  ProefSet geteld(FalendeOpener(teller));
  const std::int16_t vrouw = geteld.bouw.Vrouw("Anna", "Jansen");
  const auto kosten = [&] {
    const int voor = teller.teller;
    geteld.bouw.OpmerkingBijPersoon(vrouw, 4096, {"een", "twee"});
    return teller.teller - voor;
  };
  kosten();
  const int tweede = kosten();
  for (int n = 0; n < 50; ++n) kosten();
  EXPECT_EQ(kosten(), tweede);
}

TEST_F(OpmSchrijvenTest, EenKettingDieEenAnderVerlengdeWordtOpnieuwGelopen) {
  ASSERT_TRUE(Wijzig(1, {"een"}));
  OpmLB77 ander(set.opslag, set.Persoon, set.Relatie);
  ASSERT_TRUE(ander.SchrijfOpmerking(Regels({"twee"}), {}, 0, man, 0, 2, 23, 8));
  ASSERT_TRUE(Wijzig(32, {"drie"}));
  EXPECT_EQ(Teksten(8), Lijst{"twee"});
  EXPECT_EQ(Teksten(32), Lijst{"drie"});
  EXPECT_EQ(Lees(2).BijZelfde(), 3);
  EXPECT_EQ(Lees(3).BijZelfde(), 4);
}
