#include <gtest/gtest.h>

#include <vector>

#include "KaartToets.h"

namespace lb77 {
namespace {

class MeerKinderenTest : public KaartToets {
 protected:
  // Relation 2 with so many children, from person 2 on.
  void Kinderen(int aantal) {
    std::vector<std::int16_t> kinderen;
    Reeks(aantal);
    for (int i = 0; i < aantal; ++i) kinderen.push_back(static_cast<std::int16_t>(2 + i));
    Bouw().Relatie(0, 0, kinderen);
  }
};

TEST_F(MeerKinderenTest, VijftienKinderenStaanOpEenKaart) {
  Kinderen(15);
  Verwacht("toon NaarKind(15)\ntoon MeerButton", Loop(ToonKinderenVraag, 2), R"(
    + ToonKinderen "Toon Kinderen"
    = NaarKind(15) "16"
    = MeerButton "&Meer" [verborgen]
  )");
}

TEST_F(MeerKinderenTest, HetVijftiendeStaatOpDeTweedeKaartWanneerErMeerZijn) {
  Kinderen(17);
  Verwacht(
      "toon NaarKind(14)\ntoon NaarKind(15)\ndruk MeerButton\ntoon RecordNr\ntoon KindLabel(15)\n"
      "toon NaarKind(15)\ntoon VoorNmKind(17)\ntoon NaarKind(18)\ndruk BackButton",
      Loop(ToonKinderenVraag, 2), R"~(
    + ToonKinderen "Toon Kinderen"
    = NaarKind(14) "15"
    = NaarKind(15) "" [verborgen]
    - ToonKinderen
    + MeerKinderen "Toon Kinderen (vervolg)"
    = RecordNr "2"
    = KindLabel(15) "15"
    = NaarKind(15) "16"
    = VoorNmKind(17) "A17"
    = NaarKind(18) "" [verborgen]
    - MeerKinderen
    + ToonKinderen "Toon Kinderen"
  )~");
}

TEST_F(MeerKinderenTest, EenKindKomtInDePlaatsEnDeKaartKeertTerug) {
  Kinderen(16);
  Verwacht("druk NaarKind(16)\ntoon RecordNr\ndruk BackButton\ntoon NaarKind(16)",
           Loop(MeerKinderenVraag, 2), R"~(
    + MeerKinderen "Toon Kinderen (vervolg)"
    - MeerKinderen
    + ToonPersoon "Toon Persoon"
    = RecordNr "17"
    - ToonPersoon
    + MeerKinderen "Toon Kinderen (vervolg)"
    = NaarKind(16) "17"
  )~");
}

TEST_F(MeerKinderenTest, ZonderVervolgrecordIsErNiemand) {
  Kinderen(3);
  Verwacht("toon NaarKind(15)", Loop(MeerKinderenVraag, 2), R"~(
    + MeerKinderen "Toon Kinderen (vervolg)"
    = NaarKind(15) "" [verborgen]
  )~");
}

TEST_F(MeerKinderenTest, EenVervolgrecordDatErGeenIsWordtGemeld) {
  Kinderen(3);
  Bouw().Relatie(0, 0);
  Bouw().WijzigRelatie(2, {{"Kind15", "-9"}});
  Verwacht("", Loop(MeerKinderenVraag, 2), "! stop \"Leesfout bij relatierecord 9\"");
  Bouw().WijzigRelatie(2, {{"Kind15", "-3"}});
  Verwacht("", Loop(MeerKinderenVraag, 2), "! stop \"Leesfout bij relatierecord 3\"");
}

TEST_F(MeerKinderenTest, EenKindErbijEnErafMetHetzelfdeOpschrift) {
  Kinderen(16);
  Reeks(1);
  Verwacht(
      "druk ErbijButton\nvul RecordNr 18\ndruk OKButton\ntoon NaarKind(17)\ndruk ErafButton\n"
      "vul RecordNr 17\ndruk OKButton\ntoon NaarKind(16)",
      Loop(MeerKinderenVraag, 2), R"~(
    + MeerKinderen "Toon Kinderen (vervolg)"
    + KindErbij "Toevoegen Kind"
    - KindErbij
    = NaarKind(17) "18"
    + KindErbij "Toevoegen Kind"
    - KindErbij
    = NaarKind(16) "18"
  )~");
}

}  // namespace
}  // namespace lb77
