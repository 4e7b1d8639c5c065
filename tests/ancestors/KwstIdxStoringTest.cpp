// The ancestor index on damaged records, and when it is stopped.
#include <gtest/gtest.h>

#include "ancestors/KwstFamilies.h"
#include "ancestors/KwstIdxToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class KwstIdxStoring : public KwstIdxToets {
 protected:
  // A report that a record ended, and which record.
  void VerwachtLeesfout(const Uitslag& uitslag, const Leesfout& fout) {
    EXPECT_EQ(uitslag, Einde::Leesfout);
    EXPECT_EQ(uitslag.fout, fout);
  }
};

TEST_F(KwstIdxStoring, EenStopLaatHetBestandZoverAlsHetWas) {
  ASSERT_EQ(Bereken(BouwHalveOuders(set_.bouw)), Einde::Klaar);
  int test = 0;
  verloop_.afbreken = [&test] { return ++test == 2; };
  EXPECT_EQ(SchrijfTabel(), Einde::Afgebroken);
  EXPECT_EQ(Rijen(), "1 K Piet\n2 M Vic\n");
}

TEST_F(KwstIdxStoring, DeTellerNoemtElkPaar) {
  std::string standen;
  ASSERT_EQ(Bereken(BouwNeefEnNicht(set_.bouw)), Einde::Klaar);
  verloop_.toon = [&standen](int, int aantal) { standen += GetalTekst(aantal) + " "; };
  EXPECT_EQ(SchrijfTabel(), Einde::Klaar);
  EXPECT_EQ(standen, "1 3 5 7 9 11 ");
}

TEST_F(KwstIdxStoring, EenOnleesbareProbandEindigtDeIndex) {
  ASSERT_EQ(Bereken(BouwHalveOuders(set_.bouw)), Einde::Klaar);
  opties_.KwProbandNr = 500;
  VerwachtLeesfout(SchrijfTabel(), {BestandSoort::Personen, 500});
}

TEST_F(KwstIdxStoring, EenOnleesbaarKindEindigtDeIndex) {
  const auto vader = set_.bouw.Man("Vader", "A");
  opties_.KwProbandNr = vader;
  tabel_.Begin(500, true, opties_.KwBeginNr);
  ASSERT_TRUE(tabel_.VoegToe(vader, 0, false));
  VerwachtLeesfout(SchrijfTabel(), {BestandSoort::Personen, 500});
}

TEST_F(KwstIdxStoring, WieNietTeLezenIsHeeftGeenRijEnOokZijnOudersNiet) {
  const auto proband = set_.bouw.Man("Proband", "A");
  const auto relatie = set_.bouw.Relatie(proband, 0);
  set_.bouw.WijzigRelatie(relatie, {{"VrouwNr", "500"}});
  set_.bouw.Relatie(proband, set_.bouw.Vrouw("Tweede", "B"));
  EXPECT_EQ(Schrijf(proband), Einde::Klaar);
  EXPECT_EQ(Rijen(), "1 K Proband\n1 P Tweede\n");
}

TEST_F(KwstIdxStoring, EenBroerDieNietTeLezenIsHoudtDeAndereNietTegen) {
  const auto proband = set_.bouw.Man("Proband", "A");
  const auto broer = set_.bouw.Man("Broer", "A");
  const auto zus = set_.bouw.Vrouw("Zus", "A");
  const auto relatie = set_.bouw.Relatie(set_.bouw.Man("Vader", "A"), 0, {proband, broer, zus});
  set_.bouw.WijzigRelatie(relatie, {{"Kind2", "500"}});
  opties_.KwBroerZus = BroerZus::VanProband;
  EXPECT_EQ(Schrijf(proband), Einde::Klaar);
  EXPECT_EQ(Rijen(), "1a BZ Proband\n1c BZ Zus\n2 M Vader\n");
}

TEST_F(KwstIdxStoring, EenOnleesbareRelatieVanEenPersoonEindigtDeIndex) {
  const auto proband = set_.bouw.Man("Proband", "A");
  set_.bouw.Relatie(proband, set_.bouw.Vrouw("Eerste", "B"));
  set_.bouw.WijzigPersoon(proband, {{"Relatie2", "400"}});
  VerwachtLeesfout(Schrijf(proband), {BestandSoort::Relaties, 400});
  EXPECT_EQ(Rijen(), "1 K Proband\n1 P Eerste\n");
}

TEST_F(KwstIdxStoring, OnleesbareOudersVanEenPartnerEindigenDeIndex) {
  const auto proband = set_.bouw.Man("Proband", "A");
  const auto partner = set_.bouw.Vrouw("Eerste", "B");
  set_.bouw.Relatie(proband, partner);
  set_.bouw.Relatie(proband, 0);
  set_.bouw.WijzigPersoon(partner, {{"Ouders", "400"}});
  VerwachtLeesfout(Schrijf(proband), {BestandSoort::Relaties, 400});
  EXPECT_EQ(Rijen(), "1 K Proband\n1 P Eerste\n");
}

TEST_F(KwstIdxStoring, OnleesbareOudersVanDeProbandEindigenDeIndex) {
  const auto proband = set_.bouw.Man("Proband", "A");
  opties_.KwBroerZus = BroerZus::VanProband;
  ASSERT_EQ(Bereken(proband), Einde::Klaar);
  set_.bouw.WijzigPersoon(proband, {{"Ouders", "400"}});
  VerwachtLeesfout(SchrijfTabel(), {BestandSoort::Relaties, 400});
}

TEST_F(KwstIdxStoring, EenTabelVolHerhalingenHeeftAlleenDeProband) {
  const auto kind = set_.bouw.Man("Kring", "Loop");
  const auto relatie = set_.bouw.Relatie(kind, 0, {kind});
  set_.bouw.WijzigRelatie(relatie, {{"VrouwNr", GetalTekst(kind)}});
  opties_.KwVolgHerh = true;
  EXPECT_EQ(Bereken(kind), Einde::Vol);
  EXPECT_EQ(SchrijfTabel(), Einde::Klaar);
  EXPECT_EQ(Rijen(), "1 K Kring\n2 M Kring\n");
}

}  // namespace
}  // namespace lb77
