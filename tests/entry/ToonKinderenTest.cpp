#include <gtest/gtest.h>

#include "KaartToets.h"

namespace lb77 {
namespace {

class ToonKinderenTest : public KaartToets {
 protected:
  void OpKinderen(std::string_view draaiboek, std::string_view verslag,
                  const Plek& plek = Plek::current()) {
    Verwacht(draaiboek, Loop(ToonKinderenVraag, 2),
             "+ ToonKinderen \"Toon Kinderen\"\n" + Regels(verslag), plek);
  }
};

TEST_F(ToonKinderenTest, ToontDeOudersEnHunKinderen) {
  Gezin();
  Bouw().WijzigPersoon(4, {{"GebDatum", "01.02.1880"}});
  OpKinderen(
      "toon RecordNr\ntoon NaarMan\ntoon VoorNmMan\ntoon NaarVrouw\ntoon AchterNmVrouw\n"
      "toon KindLabel(1)\ntoon NaarKind(1)\ntoon VoorNmKind(1)\ntoon AchterNmKind(1)\n"
      "toon KindPeriode(1)\ntoon NaarKind(2)\ntoon MeerButton",
      R"(
    = RecordNr "2"
    = NaarMan "2"
    = VoorNmMan "Jan"
    = NaarVrouw "3"
    = AchterNmVrouw "Bos"
    = KindLabel(1) "1"
    = NaarKind(1) "4"
    = VoorNmKind(1) "Kees"
    = AchterNmKind(1) "Vos"
    = KindPeriode(1) "1880-    "
    = NaarKind(2) "" [verborgen]
    = MeerButton "&Meer" [verborgen]
  )");
}

TEST_F(ToonKinderenTest, EenNaamDieOntbreektIsOnbekend) {
  const auto anna = Bouw().Vrouw("Anna", "");
  const auto eerste = Bouw().Man("", "Vos");
  const auto tweede = Bouw().Man("Jan", "Vos");
  Bouw().Relatie(0, anna, {eerste, tweede});
  MaakGat(tweede);
  OpKinderen(
      "toon VoorNmMan\ntoon AchterNmVrouw\ntoon VoorNmKind(1)\ntoon VoorNmKind(2)\n"
      "toon KindPeriode(2)",
      R"(
    = VoorNmMan ""
    = AchterNmVrouw "<onbekend>"
    = VoorNmKind(1) "<onbekend>"
    = VoorNmKind(2) ""
    = KindPeriode(2) "????-????"
  )");
}

TEST_F(ToonKinderenTest, EenNieuwKindHeeftZijnOudersEnDeAchternaamVanZijnVader) {
  Gezin();
  OpKinderen(
      "druk NieuwKindButton\ntoon AchterNm\ntoon RelNrOuders\ntoon VoorNmPa\n"
      "vul VoorNm Mina\ndruk Opslaan\ntoon VoorNmKind(2)\ntoon AchterNmKind(2)",
      R"(
    + WijzigPersoon "Wijzig Persoon"
    = AchterNm "Vos"
    = RelNrOuders "2"
    = VoorNmPa "Jan"
    - WijzigPersoon
    = VoorNmKind(2) "Mina"
    = AchterNmKind(2) "Vos"
  )");
}

TEST_F(ToonKinderenTest, EenNieuwKindDatNietWordtOpgeslagenIsErNiet) {
  Gezin();
  OpKinderen("druk NieuwKindButton\ndruk BackButton\ntoon NaarKind(2)\ntoon RecordNr", R"(
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    = NaarKind(2) "" [verborgen]
    = RecordNr "2"
  )");
}

TEST_F(ToonKinderenTest, EenGatInDeLijstIsEenLegeRegel) {
  Gezin();
  Bouw().WijzigRelatie(2, {{"Kind3", "4"}, {"Kind2", "-7"}});
  OpKinderen("toon NaarKind(2)\ntoon NaarKind(3)",
             "= NaarKind(2) \"\" [verborgen]\n= NaarKind(3) \"4\"");
}

TEST_F(ToonKinderenTest, EenKindKomtInDePlaatsEnDeLijstKeertTerug) {
  Gezin();
  OpKinderen("druk NaarKind(1)\ntoon RecordNr\ndruk BackButton\ndruk BackButton", R"(
    - ToonKinderen
    + ToonPersoon "Toon Persoon"
    = RecordNr "4"
    - ToonPersoon
    + ToonKinderen "Toon Kinderen"
    - ToonKinderen
  )");
}

TEST_F(ToonKinderenTest, ManEnVrouwZijnTeBezoeken) {
  Gezin();
  OpKinderen("druk NaarVrouw\ntoon RecordNr\ndruk BackButton\ndruk NaarMan", R"(
    - ToonKinderen
    + ToonPersoon "Toon Persoon"
    = RecordNr "3"
    - ToonPersoon
    + ToonKinderen "Toon Kinderen"
    - ToonKinderen
    + ToonPersoon "Toon Persoon"
  )");
  Bouw().WijzigRelatie(2, {{"ManNr", "0"}, {"VrouwNr", "0"}});
  OpKinderen("druk NaarMan\ndruk NaarVrouw",
             "! uitroep \"Er is geen Man bekend\"\n! uitroep \"Er is geen Vrouw bekend\"");
}

TEST_F(ToonKinderenTest, WatGeenRelatieIsGaatNietOpen) {
  Gezin();
  Bouw().Relatie(0, 0);
  const auto weigert = [this](std::int16_t nr, std::string_view melding) {
    Verwacht("", Loop(ToonKinderenVraag, nr), melding);
    Verwacht("", Loop(MeerKinderenVraag, nr), melding);
  };
  weigert(9, "! uitroep \"Het opgegeven Relatienummer komt niet voor\"");
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  weigert(3, "! uitroep \"Het opgegeven record is een vervolgrecord\"");
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  weigert(2, R"(
    ! stop "Fout bij het lezen van Relatierecord 2\nFout van de schijf"
    ! stop "Leesfout bij relatierecord 2"
  )");
}

TEST_F(ToonKinderenTest, EenKindErbijStaatDaarnaOpDeKaart) {
  Gezin();
  Reeks(1);
  OpKinderen("druk ErbijButton\nvul RecordNr 5\ndruk OKButton\ntoon NaarKind(2)", R"(
    + KindErbij "Toevoegen Kind"
    - KindErbij
    = NaarKind(2) "5"
  )");
}

TEST_F(ToonKinderenTest, EenKindEraf) {
  Gezin();
  OpKinderen("druk ErafButton\nvul RecordNr 4\ndruk OKButton\ntoon NaarKind(1)", R"(
    + KindEraf "Verwijderen Kind"
    - KindEraf
    = NaarKind(1) "" [verborgen]
  )");
}

TEST_F(ToonKinderenTest, VolgordeZetDeKinderenOpDatum) {
  const auto jong = Bouw().Man("Jong", "Vos", {{"GebDatum", "01.01.1900"}});
  const auto oud = Bouw().Man("Oud", "Vos", {{"GebDatum", "01.01.1880"}});
  Bouw().Relatie(0, 0, {jong, oud});
  OpKinderen("antwoord Ja\ndruk KindVolg\ntoon VoorNmKind(1)\ntoon VoorNmKind(2)", R"(
    ? vraag Ja/Nee "Moet de volgorde Automatisch bepaald worden ?" -> Ja
    = VoorNmKind(1) "Oud"
    = VoorNmKind(2) "Jong"
  )");
}

}  // namespace
}  // namespace lb77
