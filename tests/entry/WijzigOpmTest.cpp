#include "entry/OpmToets.h"
#include "entry/WijzigOpm.h"

namespace lb77 {
namespace {

class WijzigOpmTest : public OpmToets {
 protected:
  void Maak(const std::vector<std::string>& regels, std::int16_t prog = 1) {
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, regels, prog);
  }
};

TEST_F(WijzigOpmTest, ToontHetVeldEnDeTekst) {
  Maak({"Eerste regel", "en de tweede"}, 69);
  Wijzigt("toon\ndruk BackButton", Voornaam(), R"(
    : WijzigOpm "Wijzig Opmerking"
    = RecordNr "2"
    = Naam "Jan de Vries"
    = NaamPartner "" [verborgen]
    = VeldLabel ">> Voornaam"
    = VeldWaarde "Jan"
    = OpmTekst "Eerste regel en de tweede"
    = BijKWST aan
    = BijSTRK uit
    = BijGEN aan
    = BijGEZIN uit
    = BijHTML aan
    = Opslaan "&Opslaan"
    = BackButton "&Terug"
    * OpmTekst
  )");
}

TEST_F(WijzigOpmTest, EenNieuweOpmerkingKrijgtEenRecord) {
  Wijzigt("vul OpmTekst Genoemd naar zijn grootvader\nstel BijSTRK aan\ndruk Opslaan", Voornaam());
  EXPECT_EQ(Records(), R"(
2: rubriek 2 van 2 prog 2 > 0 & 0 'Genoemd naar zijn grootvader'
)");
  EXPECT_EQ(Eigenaar(), "2 2");
}

TEST_F(WijzigOpmTest, TienRegelsVullenTienRecords) {
  std::string tekst;
  for (int i = 0; i < 10; ++i) tekst += std::string(79, static_cast<char>('a' + i)) + " ";
  Wijzigt("vul OpmTekst " + tekst + "\ndruk Opslaan", Voornaam());
  const std::string records = Records();
  EXPECT_NE(records.find("11: rubriek 2 van 2 prog 0 > 0 & 0 '" + std::string(79, 'j')),
            std::string::npos);
  EXPECT_NE(records.find("10: rubriek 2 van 2 prog 0 > 11 & 0 '" + std::string(79, 'i')),
            std::string::npos);
  Wijzigt("toon OpmTekst\ndruk BackButton", Voornaam(),
          "= OpmTekst \"" + tekst.substr(0, tekst.size() - 1) + "\"");
}

TEST_F(WijzigOpmTest, WatNietPastWordtGevraagd) {
  const std::string tekst(810, 'x');
  const std::string_view vraag =
      R"(? vraag Ja/Nee "De opmerking is langer dan tien regels van 80 tekens. De rest wordt niet opgeslagen.\nToch opslaan ?" -> )";
  Wijzigt("antwoord Nee Ja\nvul OpmTekst " + tekst + "\ndruk Opslaan\ntoets x\ndruk Opslaan",
          Voornaam(), std::string(vraag) + "Nee\n" + std::string(vraag) + "Ja\n");
  Stil([](Hoofdmodule& hoofd) {
    EXPECT_EQ(hoofd.Opmerking.AantalRecords(), 11);
    EXPECT_TRUE(hoofd.Opmerking.Lees(11));
    EXPECT_EQ(hoofd.Opmerking.Tekstregel(), std::string(80, 'x'));
  });
}

TEST_F(WijzigOpmTest, NeeBijEenTeLangeTekstSlaatNietsOp) {
  const std::string voor = LeesBytes(OpmBestand());
  Wijzigt("antwoord Nee\nvul OpmTekst " + std::string(801, 'x') +
              "\ndruk Opslaan\ntoon BackButton\ntoets Escape",
          Voornaam(),
          R"(
    ? vraag Ja/Nee "De opmerking is langer dan tien regels van 80 tekens. De rest wordt niet opgeslagen.\nToch opslaan ?" -> Nee
    = BackButton "&Terug"
  )");
  EXPECT_EQ(LeesBytes(OpmBestand()), voor);
}

TEST_F(WijzigOpmTest, EenKortereTekstGeeftRegelsVrij) {
  Maak({"een", "twee", "drie"});
  Wijzigt("vul OpmTekst kort\ndruk Opslaan", Voornaam());
  EXPECT_EQ(Records(), R"(
2: rubriek 2 van 2 prog 1 > 0 & 0 'kort'
3: rubriek 0 van 2 prog 1 > 4 & 0 ''
4: rubriek 0 van 2 prog 1 > 0 & 0 ''
)");
}

TEST_F(WijzigOpmTest, EenLegeTekstHaaltDeOpmerkingWeg) {
  Maak({"een", "twee"});
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"smid"});
  Wijzigt("vul OpmTekst \"  \"\ndruk Opslaan", Voornaam());
  EXPECT_EQ(Eigenaar(), "4 2048");
  Wijzigt("vul OpmTekst\ndruk Opslaan", OpmVraagOpKaart(2, persoonrubriek::kBeroep, "smid"));
  EXPECT_EQ(Eigenaar(), "0 0");
}

TEST_F(WijzigOpmTest, DeTweedeVanDeRubriekKanWegZonderDeEerste) {
  Maak({"een"});
  Maak({"twee"});
  Maak({"drie"});
  Wijzigt("vul OpmTekst\ndruk Opslaan", Voornaam(), "", 11);
  EXPECT_EQ(Records(), R"(
2: rubriek 2 van 2 prog 1 > 0 & 4 'een'
3: rubriek 0 van 2 prog 1 > 0 & 4 ''
4: rubriek 2 van 2 prog 1 > 0 & 0 'drie'
)");
  EXPECT_EQ(Eigenaar(), "2 2");
}

TEST_F(WijzigOpmTest, ZonderWijzigingBlijftElkeByteStaan) {
  Maak({"een ", "  twee", "drie"}, 0x29);
  std::string bytes = LeesBytes(OpmBestand());
  bytes.replace(96 + 10, 3, "\xE1 \xFF");
  SchrijfBytes(OpmBestand(), bytes);
  Wijzigt("druk Opslaan", Voornaam());
  Wijzigt("typ OpmTekst x\ndruk BackButton", Voornaam());
  Wijzigt("typ OpmTekst x\ntoets Escape", Voornaam());
  Wijzigt("stel BijKWST uit\nstel BijKWST aan\ndruk Opslaan", Voornaam());
  EXPECT_EQ(LeesBytes(OpmBestand()), bytes);
}

TEST_F(WijzigOpmTest, EenNieuweZonderTekstSlaatNietsOp) {
  const std::string voor = LeesBytes(OpmBestand());
  Wijzigt("stel BijKWST aan\ndruk Opslaan", Voornaam());
  EXPECT_EQ(LeesBytes(OpmBestand()), voor);
}

TEST_F(WijzigOpmTest, AlleenDeVinkjesLaatDeRegelsStaan) {
  Maak({"een", "twee"});
  Wijzigt("stel BijHTML aan\ndruk Opslaan", Voornaam());
  EXPECT_EQ(Records(), R"(
2: rubriek 2 van 2 prog 65 > 3 & 0 'een'
3: rubriek 2 van 2 prog 65 > 0 & 0 'twee'
)");
}

TEST_F(WijzigOpmTest, AndereBitsVanBijProgBlijvenStaan) {
  Maak({"een"}, 0x2A1);
  Wijzigt("toon BijKWST\nstel BijKWST uit\nstel BijGEN aan\ndruk Opslaan", Voornaam(),
          "= BijKWST aan");
  EXPECT_NE(Records().find("prog " + GetalTekst(0x2A4)), std::string::npos);
}

TEST_F(WijzigOpmTest, HetGezinsbladHeeftTweeBits) {
  struct Geval {
    std::int16_t voor;
    std::string_view getoond;
    std::string_view doe;
    std::int16_t na;
  };
  const Geval gevallen[] = {
      {8, "aan", "stel BijKWST aan", 9},   {16, "aan", "stel BijKWST aan", 17},
      {24, "aan", "stel BijKWST aan", 25}, {24, "aan", "stel BijGEZIN uit", 0},
      {16, "aan", "stel BijGEZIN uit", 0}, {0, "uit", "stel BijGEZIN aan", 8},
      {4, "uit", "stel BijGEZIN aan", 12},
  };
  for (const Geval& geval : gevallen) {
    Maak({"een"}, geval.voor);
    Wijzigt("toon BijGEZIN\n" + std::string(geval.doe) + "\ndruk Opslaan", Voornaam(),
            "= BijGEZIN " + std::string(geval.getoond));
    const std::string records = Records();
    EXPECT_NE(records.find("prog " + GetalTekst(geval.na) + " >"), std::string::npos) << records;
    Wijzigt("vul OpmTekst\ndruk Opslaan", Voornaam());
  }
}

TEST_F(WijzigOpmTest, EenTweedeOpmerkingOpentMetAlleVinkjesEnNeemtAlleenHunBits) {
  Maak({"een"});
  Wijzigt(
      "toon BijKWST\ntoon BijGEZIN\ntoon BijHTML\nstel BijHTML uit\nvul OpmTekst twee\n"
      "druk Opslaan",
      Voornaam(), "= BijKWST aan\n= BijGEZIN aan\n= BijHTML aan", 11);
  EXPECT_EQ(Records(), R"(
2: rubriek 2 van 2 prog 1 > 0 & 3 'een'
3: rubriek 2 van 2 prog 15 > 0 & 0 'twee'
)");
}

TEST_F(WijzigOpmTest, EenRelatieHeeftNegatieveRubrieken) {
  const OpmVraag vraag = OpmVraagOpKaart(2, relatierubriek::kOtrPlaats, "Delft");
  Wijzigt(
      "toon RecordNr\ntoon Naam\ntoon NaamPartner\ntoon VeldLabel\nvul OpmTekst Te Delft\n"
      "druk Opslaan",
      vraag, R"(
    = RecordNr "2"
    = Naam "Jan de Vries"
    = NaamPartner "Anna Bos"
    = VeldLabel ">> Ondertrouw Plaats"
  )");
  EXPECT_EQ(Records(), R"(
2: rubriek -1 van 2 prog 0 > 0 & 0 'Te Delft'
)");
  EXPECT_EQ(Eigenaar(), "0 0");
  Stil([](Hoofdmodule& hoofd) {
    EXPECT_TRUE(hoofd.Relatie.Lees(2));
    EXPECT_EQ(hoofd.Relatie.OpmRecord(), 2);
    EXPECT_EQ(hoofd.Relatie.OpmCode(), -1);
  });
}

TEST_F(WijzigOpmTest, ElkeRubriekHeeftZijnEigenOpmerking) {
  const auto vul = [this](std::int16_t rubriek, std::string_view opschrift) {
    Wijzigt("vul OpmTekst Bij " + GetalTekst(rubriek) + "\ndruk Opslaan",
            MaakOpmVraag(2, rubriek, "waarde"));
    Wijzigt("toon OpmTekst\ntoon VeldLabel\ndruk BackButton", MaakOpmVraag(2, rubriek, "waarde"),
            "= OpmTekst \"Bij " + GetalTekst(rubriek) + "\"\n= VeldLabel \"" +
                std::string(opschrift) + (opschrift == ">> Algemeen" ? "\" [verborgen]" : "\""));
  };
  for (const RubriekNaam& naam : kPersoonRubrieken) vul(naam.rubriek, naam.opschrift);
  for (const RubriekNaam& naam : kRelatieRubrieken) vul(naam.rubriek, naam.opschrift);
  EXPECT_EQ(Eigenaar(), "2 8191");
  Stil([](Hoofdmodule& hoofd) {
    EXPECT_TRUE(hoofd.Relatie.Lees(2));
    EXPECT_EQ(hoofd.Relatie.OpmCode(), -511);
  });
}

TEST_F(WijzigOpmTest, DeToetsenVanEenInvoerveld) {
  Maak({"een"});
  Verwacht(
      "toets OpmTekst Shift+F1\ntoon OpmTekst\ntoets F9\ntoon OpmTekst\ntoets F10",
      [](Hoofdmodule& hoofd) {
        hoofd.Ini.IniZet("Funktietoetsen", "F1", "Zie het doopboek");
        hoofd.gesprek.Toon<WijzigOpm>(hoofd, Voornaam(), std::int16_t{1});
      },
      R"(
    + WijzigOpm "Wijzig Opmerking"
    = OpmTekst "Zie het doopboek"
    = OpmTekst ""
    - WijzigOpm
  )");
}

TEST_F(WijzigOpmTest, TerugEnOpslaanMakenDeBuffersOngeldig) {
  Maak({"een"});
  for (const bool terug : {true, false}) {
    Verwacht(
        terug ? "druk BackButton" : "druk Opslaan",
        [&](Hoofdmodule& hoofd) {
          hoofd.gesprek.Toon<WijzigOpm>(hoofd, Voornaam(), std::int16_t{1});
          EXPECT_EQ(hoofd.volgers.OpmBufNr, -1);
          EXPECT_EQ(hoofd.volgers.PersBufNr == -1, terug);
          EXPECT_EQ(hoofd.volgers.RelBufNr, -1);
          EXPECT_EQ(hoofd.volgers.PlaatsBufNr == -1, terug);
        },
        "+ WijzigOpm \"Wijzig Opmerking\"\n- WijzigOpm\n");
  }
}

TEST_F(WijzigOpmTest, EenEigenaarDieErNietIsWordtGemeld) {
  MaakVervolg(3);
  struct Geval {
    std::int16_t eigenaar;
    std::int16_t rubriek;
    std::string_view melding;
  };
  const Geval gevallen[] = {
      {1, 2, "Het opgegeven Persoonsnummer komt niet voor"},
      {-1, 2, "Het opgegeven Persoonsnummer komt niet voor"},
      {4, 2, "Het opgegeven Persoonsnummer komt niet voor"},
      {3, 2, "Het opgegeven record is een vervolgrecord"},
      {1, -2, "Het opgegeven Relatienummer komt niet voor"},
      {3, -2, "Het opgegeven Relatienummer komt niet voor"},
  };
  for (const Geval& geval : gevallen) {
    Verwacht(
        "",
        [&](Hoofdmodule& hoofd) {
          hoofd.volgers.HuidigPersoonNr = hoofd.volgers.HuidigRelatieNr = 2;
          const OpmVraag vraag = MaakOpmVraag(geval.eigenaar, geval.rubriek, "");
          hoofd.gesprek.Toon<WijzigOpm>(hoofd, vraag, std::int16_t{1});
          EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, geval.rubriek > 0 ? -1 : 2);
          EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, geval.rubriek < 0 ? -1 : 2);
        },
        "! uitroep \"" + std::string(geval.melding) + "\"");
  }
}

TEST_F(WijzigOpmTest, WatNietGeheelTeLezenIsWordtNietOverschreven) {
  Maak({"een", "twee"});
  ZetGetal(3, 6, 99);
  const std::string voor = LeesBytes(OpmBestand());
  Wijzigt("druk Opslaan", Voornaam());
  Wijzigt("toon OpmTekst\nvul OpmTekst nieuw\ndruk Opslaan\ntoets Escape", Voornaam(), R"(
    = OpmTekst "een twee >> Verkeerde verwijzing: opm-record 99 bestaat niet <<"
    ! uitroep "Deze opmerking is niet geheel te lezen.\nZij kan hier niet gewijzigd worden"
  )");
  EXPECT_EQ(LeesBytes(OpmBestand()), voor);
}

TEST_F(WijzigOpmTest, EenKringVanOpmerkingenWordtNietLangerGemaakt) {
  Maak({"een"});
  Maak({"twee"});
  ZetGetal(3, 8, 2);
  const std::string voor = LeesBytes(OpmBestand());
  Wijzigt("vul OpmTekst drie\ndruk Opslaan", OpmVraagOpKaart(2, persoonrubriek::kBeroep, "smid"),
          R"(! uitroep "Verkeerde verwijzing: opm-record 2 bestaat niet")");
  EXPECT_EQ(LeesBytes(OpmBestand()), voor);
  Wijzigt("vul OpmTekst anders\ndruk Opslaan", Voornaam());
  EXPECT_NE(Records().find("'anders'"), std::string::npos);
}

}  // namespace
}  // namespace lb77
