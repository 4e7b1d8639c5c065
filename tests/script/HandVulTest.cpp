// `vul` and `typ`: where the focus goes, what is checked, and what is swallowed.
#include "script/InvoerToets.h"

namespace lb77 {
namespace {

using HandVulTest = InvoerToets;

TEST_F(HandVulTest, VulVervangtDeTekst) {
  InInvoer(R"(
    vul Naam eerst
    vul Naam "  dan "
    toon Naam
    vul Naam
    toon Naam
  )",
           R"(
    = Naam "  dan "
    = Naam ""
  )");
}

TEST_F(HandVulTest, VulTyptTekenVoorTekenEnBetreedtHetVeld) {
  InInvoer("vul Naam ab\ntoon Stand", R"(= Stand "in Naam|a|ab")");
}

TEST_F(HandVulTest, VulGaatDoorFilterEnMaximumlengte) {
  InInvoer("vul Nummer 1a2b3456\ntoon Nummer", R"(= Nummer "1234")");
}

TEST_F(HandVulTest, EenTekenDatDeToetsafhandelingNeemtKomtNietInHetVeld) {
  InInvoer("vul Nummer 575\ntoon Nummer", R"(= Nummer "55")");
}

TEST_F(HandVulTest, VulTyptRegeleindenInEenTekstblok) {
  InInvoer(R"(
    vul Opm "een\ntwee"
    toon Opm
  )",
           R"(= Opm "een\ntwee")");
  InvoerWeigert(R"(vul Naam "een\ntwee")", "regel 1: Invoer.Naam heeft maar een regel");
}

TEST_F(HandVulTest, NaVulRustDeFocusNergens) {
  EXPECT_EQ(LaatsteVan("vul Nummer 5"), R"(= BackButton "&Terug")");
  EXPECT_EQ(LaatsteVan("typ Nummer 5"), "* Nummer");
}

TEST_F(HandVulTest, NaVulRustDeFocusWaarHetFormulierHemZette) {
  EXPECT_EQ(LaatsteVan("vul Nummer 1"), "* OKButton");
}

TEST_F(HandVulTest, NaEenMislukteControleBlijftDeFocusInHetVeld) {
  EXPECT_EQ(LaatsteVan("vul Nummer 0"), "* Nummer");
}

TEST_F(HandVulTest, DeVolgendeInstructieVerlaatHetVeldOpnieuwEnWordtIngeslikt) {
  InInvoer(R"(
    vul Nummer 0
    vul Naam x
    typ Naam x
    druk OKButton
    dubbelklik Kop
    stel Vink aan
    stel Keuze Nee
    stel Man aan
    toets Naam F1
    toon Naam
    toon Vink
    toon Kop
  )",
           R"(
    ! uitroep "Nummer bestaat niet"
    ! uitroep "Nummer bestaat niet"
    ! uitroep "Nummer bestaat niet"
    ! uitroep "Nummer bestaat niet"
    ! uitroep "Nummer bestaat niet"
    ! uitroep "Nummer bestaat niet"
    ! uitroep "Nummer bestaat niet"
    ! uitroep "Nummer bestaat niet"
    ! uitroep "Nummer bestaat niet"
    = Naam ""
    = Vink uit
    = Kop "Begraven"
  )");
}

TEST_F(HandVulTest, HetzelfdeVeldVerbeterenVerlaatHetNietEerst) {
  InInvoer(R"(
    vul Nummer 0
    vul Nummer 5
    toon Nummer
  )",
           R"(
    ! uitroep "Nummer bestaat niet"
    = Nummer "5"
  )");
}

TEST_F(HandVulTest, TypVerlaatHetVeldNiet) {
  InInvoer(R"(
    typ Nummer 0
    toon Nummer
    vul Naam x
  )",
           R"(
    = Nummer "0"
    ! uitroep "Nummer bestaat niet"
  )");
}

TEST_F(HandVulTest, ToonEnKlaarzettenVerlatenGeenVeld) {
  InInvoer(R"(
    typ Nummer 0
    toon Naam
    toon Nummer
    druk BackButton
  )",
           R"(
    = Naam ""
    = Nummer "0"
    - Invoer
  )");
}

TEST_F(HandVulTest, DeTerugknopGaatAltijdDoor) {
  InInvoer("vul Nummer 0\ndruk BackButton", R"(
    ! uitroep "Nummer bestaat niet"
    - Invoer
  )");
}

TEST_F(HandVulTest, EscapeGaatAltijdDoorOokMetEenNaam) {
  InInvoer("vul Nummer 0\ntoets Escape", R"(
    ! uitroep "Nummer bestaat niet"
    - Invoer
  )");
  InInvoer("vul Nummer 0\ntoets Naam Escape", R"(
    ! uitroep "Nummer bestaat niet"
    - Invoer
  )");
}

TEST_F(HandVulTest, NaEenControleDieDeFocusVerzetGaatVulDoorNaarZijnVeld) {
  InInvoer("typ Nummer 1\nvul Naam x\ntoon Naam", R"(= Naam "x")");
}

TEST_F(HandVulTest, NaEenControleDieDeFocusVerzetGaatTypDoorNaarZijnVeld) {
  EXPECT_EQ(LaatsteVan("typ Nummer 1\ntyp Naam x"), "* Naam");
}

TEST_F(HandVulTest, WieTijdensHetTypenWordtWeggestuurdTyptNietVerder) {
  InInvoer("vul Naam stopverder\ntoon Naam", R"(= Naam "stop")");
  EXPECT_EQ(LaatsteVan("vul Naam stopverder"), "* OKButton");
  EXPECT_EQ(LaatsteVan("vul Naam stop"), "* OKButton");
}

TEST_F(HandVulTest, EenVeldDatTijdensHetVerlatenVerdwijntWordtNietGevuld) {
  InInvoer("typ Nummer 2\nvul Naam x\ntoon Naam", R"(= Naam "" [verborgen])");
}

TEST_F(HandVulTest, EenFormulierDatTijdensHetVerlatenSluitSliktDeInstructieIn) {
  InInvoer("typ Nummer 3\nvul Naam x", "- Invoer");
  InInvoer("typ Nummer 3\ndruk OKButton", "- Invoer");
}

TEST_F(HandVulTest, VulWeigertWatGeenInvoerveldIs) {
  InvoerWeigert("vul Vink x", "regel 1: Invoer.Vink is geen invoerveld");
  InvoerWeigert("vul Lezen x", "regel 1: Invoer.Lezen is alleen om te lezen");
}

}  // namespace
}  // namespace lb77
