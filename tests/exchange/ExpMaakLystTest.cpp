// The list of the selected records: its lines, and the form that writes it.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/Start.h"
#include "exchange/ExpMaakLyst.h"
#include "steun/FamilieToets.h"
#include "steun/KaartFamilie.h"

namespace lb77 {
namespace {

class ExpMaakLystTest : public FamilieToets {
 protected:
  ExpMaakLystTest() {
    SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\n[Printer]\r\nTekstbr=80\r\n");
    BouwKaartFamilie(Bouw());
  }

  void Kies(std::initializer_list<int> personen, std::initializer_list<int> relaties) {
    for (const int nr : personen) {
      ASSERT_TRUE(selectie_.SelPersonen.Voeg(static_cast<std::int16_t>(nr)));
    }
    for (const int nr : relaties) {
      ASSERT_TRUE(selectie_.SelRelaties.Voeg(static_cast<std::int16_t>(nr)));
    }
  }
  void Speel(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    const Taak taak = [this](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      ExpMaakLyst form(hoofd, selectie_);
      hoofd.gesprek.ToonModaal(form);
      gelukt_ = form.Gelukt();
    };
    Verwacht(draaiboek, taak,
             "+ ExpMaakLyst \"Exporteren - Geselecteerde records\"\n" + Regels(verslag) +
                 "- ExpMaakLyst\n",
             plek);
  }
  [[nodiscard]] std::filesystem::path Lijst() const { return Map() / "TEMP" / "EXP_LYST.TXT"; }

  ExpSelectie selectie_;
  bool gelukt_ = false;
};

TEST_F(ExpMaakLystTest, NoemtNummersEnNamenInDeVolgordeVanKiezen) {
  Kies({3, 2, 7, 4, 6}, {2, 6, 5, 3});
  Speel("", "");
  EXPECT_TRUE(gelukt_);
  EXPECT_EQ(LeesBytes(Lijst()),
            "Geselecteerde Persoonsrecords:\r\n"
            "3: Cornelia Cool\r\n"
            "2: Jan Pieter van Dam\r\n"
            "7: <volgrecord>\r\n"
            "4:\r\n"
            "6: Els \r\n"
            "Geselecteerde Relatierecords:\r\n"
            "2: Jan Pieter van Dam x Cornelia Cool\r\n"
            "6: N.N. x N.N.\r\n"
            "5: Jan Pieter van Dam x Els \r\n"
            "3: Jan Pieter van Dam x\r\n");
}

TEST_F(ExpMaakLystTest, ZonderSelectieStaanErAlleenDeKoppen) {
  Speel("", "");
  EXPECT_EQ(LeesBytes(Lijst()),
            "Geselecteerde Persoonsrecords:\r\nGeselecteerde Relatierecords:\r\n");
}

TEST_F(ExpMaakLystTest, WieErNietIsHeeftGeenNaam) {
  Bouw().WijzigRelatie(2, {{"ManNr", "99"}});
  Kies({99}, {2, 99});
  Speel("", "");
  EXPECT_EQ(LeesBytes(Lijst()),
            "Geselecteerde Persoonsrecords:\r\n99:\r\n"
            "Geselecteerde Relatierecords:\r\n2: N.N. x Cornelia Cool\r\n99: N.N. x N.N.\r\n");
}

TEST_F(ExpMaakLystTest, EenVervolgVanEenRelatieIsEenVolgrecord) {
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  Kies({}, {3});
  Speel("", "");
  EXPECT_TRUE(LeesBytes(Lijst()).ends_with("\r\n3: <volgrecord>\r\n"));
}

TEST_F(ExpMaakLystTest, EenNaamloosPaarHoudtZijnKruis) {
  Bouw().Relatie(4, 4);
  Kies({}, {7});
  Speel("", "");
  EXPECT_TRUE(LeesBytes(Lijst()).ends_with("\r\n7: x\r\n")) << LeesBytes(Lijst());
}

TEST_F(ExpMaakLystTest, EenBestandDatNietKanSluitHetScherm) {
  std::filesystem::create_directories(Lijst());
  Speel("", "! stop \"Kan tijdelijk bestand " + Lijst().string() + " niet openen\"");
  EXPECT_FALSE(gelukt_);
}

TEST_F(ExpMaakLystTest, IsAfTeBreken) {
  Kies({2, 3, 4}, {2, 3});
  Speel("onderbreek 3\nantwoord Ja\ntoon\ndruk BackButton", R"~(
    ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
    : ExpMaakLyst "Exporteren - Geselecteerde records"
    = SchrijfLabel "Bezig met maken van de lijst"
    = PersonenLabel "Aantal personen:"
    = Personen "2"
    = PersNrLabel "Bezig met persoon:"
    = PersoonsNr "3"
    = RelatiesLabel "Aantal relaties:"
    = Relaties ""
    = RelNrLabel "Bezig met relatie:"
    = RelatieNr ""
    = GeduldLabel "Even geduld a.u.b."
    = OKButton "&OK"
    = BackButton "&Terug"
  )~");
  EXPECT_FALSE(gelukt_);
  Speel("onderbreek 5\nantwoord Nee", "? vraag Ja/Nee \"Opbouw Afbreken ?\" -> Nee");
  EXPECT_TRUE(gelukt_);
}

TEST_F(ExpMaakLystTest, BijDeRelatiesIsHijOokAfTeBreken) {
  Kies({2, 3, 4}, {2, 3});
  Speel("onderbreek 5\nantwoord Ja\ntoon Relaties\ntoon RelatieNr\ndruk BackButton", R"~(
    ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
    = Relaties "1"
    = RelatieNr "2"
  )~");
}

}  // namespace
}  // namespace lb77
