#include <gtest/gtest.h>

#include "KaartToets.h"
#include "entry/StartRecord.h"

namespace lb77 {
namespace {

class StartRecordTest : public KaartToets {
 protected:
  void OpStart(std::string_view draaiboek, std::string_view verslag,
               const Plek& plek = Plek::current()) {
    Verwacht(draaiboek, ToonPersonenEnRelaties,
             "+ StartRecord \"Start Persoon / Relatie\"\n" + Regels(verslag), plek);
  }
};

TEST_F(StartRecordTest, ToontWelkeNummersErZijn) {
  Gezin();
  OpStart("toon", R"~(
    : StartRecord "Start Persoon / Relatie"
    = VraagLabel "Geef een Persoonsnummer of een Relatienummer"
    = PersNr ""
    = PersRange "(     2-     4)"
    = RelNr ""
    = RelRange "(     2-     2)"
    = OKButton "&OK"
    = ZoekButton "&Zoek Persoon"
    = NwPersButton "Nieuwe &Persoon"
    = NwRelButton "Nieuwe &Relatie"
    = BackButton "&Terug"
    * PersNr
  )~");
}

TEST_F(StartRecordTest, ZonderRecordsIsErAlleenEenNieuw) {
  OpStart("toon PersNr\ntoon PersRange\ntoon RelNr\ntoon RelRange\ndruk BackButton", R"~(
    = PersNr "N"
    = PersRange "(     N-     N)"
    = RelNr "N"
    = RelRange "(     N-      N)"
    - StartRecord
  )~");
}

TEST_F(StartRecordTest, TweeLegeVeldenZijnTeWeinig) {
  Gezin();
  OpStart("druk OKButton\ntoon PersNr",
          "! uitroep \"Geen Persoonsnummer of Relatienummer opgegeven\"\n= PersNr \"\"");
}

TEST_F(StartRecordTest, EenPersoonsnummerToontDePersoonEnDaarnaVraagtHetWeer) {
  Gezin();
  OpStart(
      "typ PersNr 3\ntoets PersNr Enter\ntoon VoorNm\ndruk BackButton\ntoon PersNr\n"
      "toets PersNr Escape",
      R"(
    + ToonPersoon "Toon Persoon"
    = VoorNm "Anna"
    - ToonPersoon
    = PersNr ""
    - StartRecord
  )");
}

TEST_F(StartRecordTest, EenRelatienummerToontDeRelatie) {
  Gezin();
  OpStart("typ RelNr 2\ntoets RelNr Enter\ntoon RecordNr\ndruk BackButton\ntoon RelNr", R"(
    + ToonRelatie "Toon Relatie"
    = RecordNr "2"
    - ToonRelatie
    = RelNr ""
  )");
}

TEST_F(StartRecordTest, EenPersoonGaatVoorEenRelatie) {
  Gezin();
  OpStart("vul RelNr 2\nvul PersNr 4\ndruk OKButton", "+ ToonPersoon \"Toon Persoon\"");
}

TEST_F(StartRecordTest, EenPersoonGaatVoorDeNieuweRelatieVanEenLeegBestand) {
  Bouw().Man("Jan", "Vos");
  OpStart("toon RelNr\nvul PersNr 2\ndruk OKButton",
          "= RelNr \"N\"\n+ ToonPersoon \"Toon Persoon\"");
}

TEST_F(StartRecordTest, EenNIsEenNieuweOokAlsKleineLetter) {
  Gezin();
  OpStart("vul PersNr n\ntoon PersNr\ndruk OKButton\ndruk BackButton\ntoon PersNr", R"(
    = PersNr "N"
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    + ToonPersoon "Toon Persoon"
    - ToonPersoon
    = PersNr ""
  )");
  OpStart("vul RelNr N\ndruk OKButton\ndruk BackButton", R"(
    + WijzigRelatie "Wijzig Relatie"
    - WijzigRelatie
    + ToonRelatie "Toon Relatie"
    - ToonRelatie
  )");
}

TEST_F(StartRecordTest, DeKnoppenVanEenNieuweVergetenHetAndereVeld) {
  Gezin();
  OpStart(
      "vul RelNr 2\ndruk NwPersButton\ndruk BackButton\nvul PersNr 2\ndruk NwRelButton\n"
      "druk BackButton",
      R"(
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    + ToonPersoon "Toon Persoon"
    - ToonPersoon
    + WijzigRelatie "Wijzig Relatie"
    - WijzigRelatie
    + ToonRelatie "Toon Relatie"
    - ToonRelatie
  )");
}

TEST_F(StartRecordTest, DeEerstePersoonVerruimtHetBereik) {
  OpStart(
      "druk OKButton\nvul Geslacht M\nvul VoorNm Jan\ndruk Opslaan\ndruk BackButton\n"
      "toon PersNr\ntoon PersRange",
      R"~(
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    + ToonPersoon "Toon Persoon"
    - ToonPersoon
    = PersNr ""
    = PersRange "(     2-     2)"
  )~");
}

TEST_F(StartRecordTest, EenNummerBuitenHetBereikHoudtHetVeldVast) {
  Gezin();
  OpStart("vul PersNr 5\ndruk OKButton\nvul PersNr 1\nvul PersNr\nvul RelNr 3\ntoon RelNr", R"(
    ! uitroep "Het opgegeven Persoonsnummer komt niet voor"
    ! uitroep "Het opgegeven Persoonsnummer komt niet voor"
    ! uitroep "Het opgegeven Persoonsnummer komt niet voor"
    ! uitroep "Het opgegeven Relatienummer komt niet voor"
    = RelNr "3"
  )");
}

TEST_F(StartRecordTest, EenVervolgrecordHoudtHetVeldVast) {
  Gezin();
  Bouw().Relatie(0, 0);
  MaakVervolg(4);
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  OpStart("vul PersNr 4\nvul PersNr\nvul RelNr 3", R"(
    ! uitroep "Het opgegeven record is een vervolgrecord"
    ! uitroep "Het opgegeven record is een vervolgrecord"
  )");
}

TEST_F(StartRecordTest, ZoekPersoonToontWieErGekozenIs) {
  Gezin();
  OpStart(
      "druk ZoekButton\ndruk RecordNrPrs(2)\ntoon RecordNr\ndruk BackButton\ndruk ZoekButton\n"
      "druk BackButton\ntoon PersNr",
      R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    + ToonPersoon "Toon Persoon"
    = RecordNr "3"
    - ToonPersoon
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    = PersNr ""
  )");
}

TEST_F(StartRecordTest, NaF2StaatDeFocusOpOK) {
  Gezin();
  OpStart(
      "toets PersNr F2\ndruk BackButton\ntoets F2\ndruk RecordNrPrs(2)\ntoets Enter\n"
      "toon RecordNr\ndruk BackButton",
      R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    + ToonPersoon "Toon Persoon"
    = RecordNr "3"
    - ToonPersoon
  )");
}

TEST_F(StartRecordTest, AlleenCijfersEnEenNWordenAangenomen) {
  Gezin();
  OpStart("vul PersNr a3x\ntoon PersNr", "= PersNr \"3\"");
}

TEST_F(StartRecordTest, EenVerkeerdAantalWordtBijHetBeginGemeld) {
  Gezin();
  Bouw().ZetAantalPersonen(5);
  Speel("toon PersRange", Sessie(ToonPersonenEnRelaties));
  EXPECT_TRUE(verslag_.starts_with(
      "! uitroep \"Aantal persoonsrecords in administratierecord is onjuist\\nGevonden:"));
  EXPECT_TRUE(verslag_.ends_with("= PersRange \"(     2-     4)\"\n")) << verslag_;
}

TEST_F(StartRecordTest, ZonderAdministratierecordKomtDeKaartMeteen) {
  MaakOnleesbaar(BestandSoort::Personen, 1);
  Speel("", Sessie(ToonPersonenEnRelaties));
  EXPECT_TRUE(verslag_.ends_with("+ ToonPersoon \"Toon Persoon\"\n- ToonPersoon\n")) << verslag_;
  EXPECT_EQ(verslag_.find("+ StartRecord"), std::string::npos);
}

}  // namespace
}  // namespace lb77
