// Going from person to person, and to the other cards.
#include <gtest/gtest.h>

#include <algorithm>

#include "KaartToets.h"

namespace lb77 {
namespace {

using ToonPersoonGaan = KaartToets;

TEST_F(ToonPersoonGaan, VolgendeSlaatVervolgrecordsOver) {
  Reeks(4);
  MaakVervolg(3);
  OpPersoon("druk VolgendPersoon\ntoon RecordNr\ndruk VolgendPersoon\ntoon RecordNr", 2,
            "= RecordNr \"4\"\n= RecordNr \"5\"");
}

TEST_F(ToonPersoonGaan, DeLaatsteIsDeLaatsteOokVoorVervolgrecords) {
  Reeks(4);
  MaakVervolg(4);
  MaakVervolg(5);
  OpPersoon("druk VolgendPersoon\ntoon RecordNr", 3,
            "! geen \"Dit is de laatste persoon\"\n= RecordNr \"3\"");
  Reeks(1);
  OpPersoon("druk VolgendPersoon", 6, "! geen \"Dit is de laatste persoon\"");
}

TEST_F(ToonPersoonGaan, VorigeSlaatVervolgrecordsOver) {
  Reeks(3);
  MaakVervolg(3);
  OpPersoon("druk VorigPersoon\ntoon RecordNr\ndruk VorigPersoon\ntoon RecordNr", 4, R"(
    = RecordNr "2"
    ! geen "Dit is de eerste persoon"
    = RecordNr "2"
  )");
  MaakVervolg(2);
  OpPersoon("druk VorigPersoon\ntoon RecordNr", 4,
            "! geen \"Dit is de eerste persoon\"\n= RecordNr \"4\"");
}

TEST_F(ToonPersoonGaan, OpEenLeesfoutBlijftDeKaartStaan) {
  Reeks(3);
  MaakGat(3);
  OpPersoon("druk VolgendPersoon\ntoon RecordNr", 2,
            "! stop \"Leesfout bij persoonsrecord 3\"\n= RecordNr \"2\"");
  OpPersoon("druk VorigPersoon\ntoon VoorNm", 4,
            "! stop \"Leesfout bij persoonsrecord 3\"\n= VoorNm \"A3\"");
}

TEST_F(ToonPersoonGaan, WieErNietMeerIsGaatNergensHeen) {
  Reeks(3);
  Verwacht(
      "",
      [this](Hoofdmodule& hoofd) {
        ToonPersoon kaart(hoofd, 3);
        ASSERT_TRUE(kaart.Laad());
        MaakGat(3);
        kaart.Klik(kaart.VolgendPersoon);
        EXPECT_EQ(kaart.RecordNr.Tekst(), "3");
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 3);
      },
      "! stop \"Leesfout bij persoonsrecord 3\"");
}

TEST_F(ToonPersoonGaan, DeToetsenVanEenBladzijdeGaanVerder) {
  Reeks(3);
  OpPersoon("toets PageDown\ntoon RecordNr\ntoets PageUp\ntoon RecordNr\ntoets RecordNr PageUp", 2,
            R"(
    = RecordNr "3"
    = RecordNr "2"
    ! geen "Dit is de eerste persoon"
  )");
}

TEST_F(ToonPersoonGaan, EenGetyptNummerGaatErheen) {
  Reeks(3);
  OpPersoon("vul RecordNr 4\ntoon VoorNm", 2, "= VoorNm \"A3\"");
  OpPersoon("typ RecordNr 3\ntoets RecordNr Enter\ntoon VoorNm\ntoon RecordNr", 2,
            "= VoorNm \"A2\"\n= RecordNr \"3\"");
  OpPersoon("typ RecordNr 3\ndruk VolgendPersoon\ntoon VoorNm", 2, "= VoorNm \"A3\"");
}

TEST_F(ToonPersoonGaan, EenNummerDatErNietIsWordtTeruggezet) {
  Reeks(4);
  MaakVervolg(5);
  MaakGat(4);
  OpPersoon(
      "vul RecordNr 9\ntoon RecordNr\nvul RecordNr 1\nvul RecordNr 99999\nvul RecordNr 4\n"
      "toon RecordNr\nvul RecordNr 5\ntoon RecordNr\ntoon VoorNm",
      2, R"(
    ! uitroep "Het opgegeven recordnummer komt niet voor"
    = RecordNr "2"
    ! uitroep "Het opgegeven recordnummer komt niet voor"
    ! uitroep "Het opgegeven recordnummer komt niet voor"
    ! stop "Leesfout bij persoonsrecord 4"
    = RecordNr "2"
    ! uitroep "Het opgegeven record is een vervolgrecord"
    = RecordNr "2"
    = VoorNm "A1"
  )");
}

TEST_F(ToonPersoonGaan, EenFoutNummerHoudtDeKnopTegen) {
  Reeks(3);
  OpPersoon(
      "typ RecordNr 9\ndruk VolgendPersoon\ntoon RecordNr\ndruk VolgendPersoon\ntoon RecordNr", 2,
      R"(
    ! uitroep "Het opgegeven recordnummer komt niet voor"
    = RecordNr "2"
    = RecordNr "3"
  )");
}

TEST_F(ToonPersoonGaan, EenLeegNummerEnEenNulBlijvenWaarZeZijn) {
  Reeks(3);
  OpPersoon("vul RecordNr\ntoon RecordNr\nvul RecordNr 0\ntoon RecordNr\nvul RecordNr 3a", 2,
            "= RecordNr \"2\"\n= RecordNr \"2\"");
}

TEST_F(ToonPersoonGaan, OudersEnPartnersKomenOpDezelfdeKaart) {
  Gezin();
  OpPersoon("druk RecordNrPa\ntoon RecordNr\ndruk RecordNrP(1)\ntoon RecordNr\ndruk BackButton", 4,
            R"(
    = RecordNr "2"
    = RecordNr "3"
    - ToonPersoon
  )");
  OpPersoon("druk RecordNrMa\ntoon VoorNm", 4, "= VoorNm \"Anna\"");
}

TEST_F(ToonPersoonGaan, EenKapotteVerwijzingLaatDeKaartStaan) {
  Gezin();
  Reeks(2);
  MaakVervolg(6);
  Bouw().WijzigRelatie(2, {{"ManNr", "99"}, {"VrouwNr", "6"}});
  OpPersoon("druk RecordNrPa\ntoon RecordNr\ndruk RecordNrMa\ntoon RecordNr\ntoon VoorNm", 4, R"(
    ! uitroep "Het opgegeven Persoonsnummer komt niet voor"
    = RecordNr "4"
    ! uitroep "Het opgegeven record is een vervolgrecord"
    = RecordNr "4"
    = VoorNm "Kees"
  )");
  // -1 would be a new person.
  Bouw().WijzigRelatie(2, {{"ManNr", "-1"}});
  OpPersoon("druk RecordNrPa", 4, "! uitroep \"Het opgegeven Persoonsnummer komt niet voor\"");
}

TEST_F(ToonPersoonGaan, EenRelatieKomtInDePlaatsEnDePersoonKeertTerug) {
  Gezin();
  OpPersoon("druk RelNrOuders\ntoon RecordNr\ndruk BackButton\ntoon RecordNr\ndruk BackButton", 4,
            R"(
    - ToonPersoon
    + ToonRelatie "Toon Relatie"
    = RecordNr "2"
    - ToonRelatie
    + ToonPersoon "Toon Persoon"
    = RecordNr "4"
    - ToonPersoon
  )");
  OpPersoon("druk RelNrP(1)\ntoon RecordNr", 3, R"(
    - ToonPersoon
    + ToonRelatie "Toon Relatie"
    = RecordNr "2"
  )");
}

TEST_F(ToonPersoonGaan, NaarEenRelatieDieErNietIsKeertDePersoonTerug) {
  Gezin();
  Bouw().WijzigPersoon(4, {{"Ouders", "9"}});
  OpPersoon("druk RelNrOuders\ntoon RecordNr", 4, R"(
    - ToonPersoon
    ! uitroep "Het opgegeven Relatienummer komt niet voor"
    + ToonRelatie "Toon Relatie"
    - ToonRelatie
    + ToonPersoon "Toon Persoon"
    = RecordNr "4"
  )");
  Bouw().WijzigPersoon(4, {{"Ouders", "-1"}});
  OpPersoon("druk RelNrOuders", 4, "! uitroep \"Het opgegeven Relatienummer komt niet voor\"");
}

TEST_F(ToonPersoonGaan, TienduizendStappenLatenEenKaartOpHetScherm) {
  Gezin();
  const SpeelUitslag uitslag =
      Speel(Keer(2500, "druk RelNrP(1)\ndruk NaarVrouw\ndruk RelNrP(1)\ndruk NaarMan\n") +
                Keer(5, "druk VolgendPersoon\n") + "toon RecordNr",
            Sessie(Loop(ToonPersoonVraag, 2)));
  EXPECT_EQ(uitslag.status, 0) << uitslag.reden;
  EXPECT_EQ(std::count(verslag_.begin(), verslag_.end(), '+'), 10001);
  EXPECT_EQ(std::count(verslag_.begin(), verslag_.end(), '-'), 10000);
  EXPECT_TRUE(verslag_.ends_with("= RecordNr \"4\"\n"));
}

TEST_F(ToonPersoonGaan, EenStapLeestInEenGrootBestandNietMeer) {
  Reeks(3);
  const std::string stappen = Keer(20, "druk VolgendPersoon\ndruk VorigPersoon\n");
  EXPECT_EQ(Speel(stappen, Sessie(Loop(ToonPersoonVraag, 2))).status, 0);
  const int klein = Gelezen(BestandSoort::Personen);
  Reeks(500);
  EXPECT_EQ(Speel(stappen, Sessie(Loop(ToonPersoonVraag, 2))).status, 0);
  EXPECT_EQ(Gelezen(BestandSoort::Personen), klein);
}

TEST_F(ToonPersoonGaan, TonenLaatElkeByteStaan) {
  Gezin();
  Bouw().OpmerkingBijPersoon(2, 8, {"volgens akte"});
  const auto bytes = [this] {
    std::string uit;
    for (const auto& plek : std::filesystem::recursive_directory_iterator(Map())) {
      const std::string soort = plek.path().extension().string();
      if (soort == ".PRS" || soort == ".RLT" || soort == ".OPM") uit += LeesBytes(plek.path());
    }
    return uit;
  };
  const std::string eerst = bytes();
  OpPersoon("druk RecordNrPa\ndruk RelNrP(1)\ndruk NaarKind\ndruk NaarKind(1)\ndruk BackButton", 4,
            R"(
    - ToonPersoon
    + ToonRelatie "Toon Relatie"
    - ToonRelatie
    + ToonKinderen "Toon Kinderen"
    - ToonKinderen
    + ToonPersoon "Toon Persoon"
    - ToonPersoon
    + ToonKinderen "Toon Kinderen"
  )");
  EXPECT_FALSE(eerst.empty());
  EXPECT_EQ(bytes(), eerst);
}

}  // namespace
}  // namespace lb77
