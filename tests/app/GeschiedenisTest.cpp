#include "app/Geschiedenis.h"
#include "app/HandelingTekst.h"
#include "app/VeiligToets.h"

namespace lb77 {
namespace {

class GeschiedenisVenster : public VeiligToets {
 protected:
  void Speelt(std::string_view script, std::string_view verslag) {
    Verwacht(std::string(script) + "\nsluit", Sessie(),
             "+ MenuWindow \"LB77 voor Windows\"\n" + MetMap(verslag) + "\n- MenuWindow");
  }
  // Somebody else gives person 2 another name.
  void WijzigVanBuiten() {
    std::string bytes = Inhoud("DATA/EEN/EEN.PRS");
    bytes.replace(bytes.find("Piet"), 4, "Kees");
    Schrijf("DATA/EEN/EEN.PRS", bytes);
  }
};

TEST_F(GeschiedenisVenster, ToontWatElkeBewerkingWijzigde) {
  MaakGeschiedenis();
  Speelt(
      "kies VeiligGeschiedenis\ntoon HandelingLijst\nstel HandelingLijst #0\ntoon InhoudLijst\n"
      "stel HandelingLijst #1\ntoon InhoudLijst\ndruk BackButton",
      R"~(+ Geschiedenis "Geschiedenis van de Bestandenset"
             = HandelingLijst ""
             #0 "2026-01-02 03:04:05  Persoon 2 gewijzigd (1 record)"
             #1 "2026-01-02 03:04:05  Persoon toegevoegd (2 records)"
             = InhoudLijst ""
             #0 "Persoonsrecord 2"
             #1 "    Voornaam: \"Jan\" werd \"Piet\""
             = InhoudLijst ""
             #0 "Persoonsrecord 1 (administratie)"
             #1 "Persoonsrecord 2 (nieuw)"
             #2 "    Achternaam: \"\" werd \"Jansen\""
             #3 "    Voornaam: \"\" werd \"Jan\""
             #4 "    Geslacht: \"\" werd \"M\""
             - Geschiedenis)~");
  NoteerGetoond(verslag_);
}

TEST_F(GeschiedenisVenster, MaaktOngedaanTotEnMetDeGekozene) {
  MaakGeschiedenis();
  Speelt(
      "kies VeiligGeschiedenis\ndruk OngedaanButton\nstel HandelingLijst #1\nantwoord Nee\n"
      "druk OngedaanButton\nantwoord Ja\ndruk OngedaanButton\ntoon HandelingLijst\n"
      "stel HandelingLijst #1\ndruk OngedaanButton\nantwoord Ja\nstel HandelingLijst #0\n"
      "druk OngedaanButton\ndruk BackButton",
      R"~(+ Geschiedenis "Geschiedenis van de Bestandenset"
             ! uitroep "Geen bewerking gekozen"
             ? vraag Ja/Nee "2 bewerkingen ongedaan maken, tot en met \"Persoon toegevoegd\" (2026-01-02 03:04:05) ?" -> Nee
             ? vraag Ja/Nee "2 bewerkingen ongedaan maken, tot en met \"Persoon toegevoegd\" (2026-01-02 03:04:05) ?" -> Ja
             = HandelingLijst ""
             #0 "2026-01-02 03:04:05  Ongedaan: Persoon toegevoegd (2 records)"
             #1 "2026-01-02 03:04:05  Persoon 2 gewijzigd (1 record) - ongedaan gemaakt"
             #2 "2026-01-02 03:04:05  Persoon toegevoegd (2 records) - ongedaan gemaakt"
             ! uitroep "Deze bewerking is al ongedaan gemaakt"
             ? vraag Ja/Nee "De bewerking \"Ongedaan: Persoon toegevoegd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
             - Geschiedenis)~");
  NoteerGetoond(verslag_);
  EXPECT_EQ(Voornaam(), "Piet");
}

TEST_F(GeschiedenisVenster, EnterEnEenDubbeleKlikVragenHetzelfdeAlsDeKnop) {
  MaakGeschiedenis();
  Speelt(
      "kies VeiligGeschiedenis\nstel HandelingLijst #0\nantwoord Nee\ntoets HandelingLijst Enter\n"
      "antwoord Ja\ndubbelklik HandelingLijst\ndruk BackButton",
      R"~(+ Geschiedenis "Geschiedenis van de Bestandenset"
             ? vraag Ja/Nee "De bewerking \"Persoon 2 gewijzigd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Nee
             ? vraag Ja/Nee "De bewerking \"Persoon 2 gewijzigd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
             - Geschiedenis)~");
  EXPECT_EQ(Voornaam(), "Jan");
}

TEST_F(GeschiedenisVenster, DeLaatsteBewerkingGaatNaEenVraagMetHaarNaam) {
  MaakGeschiedenis();
  Speelt(
      "antwoord Nee\nkies VeiligOngedaan\nantwoord Ja\nkies VeiligOngedaan",
      R"~(? vraag Ja/Nee "De bewerking \"Persoon 2 gewijzigd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Nee
             ? vraag Ja/Nee "De bewerking \"Persoon 2 gewijzigd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
             ! info "Ongedaan gemaakt: Persoon 2 gewijzigd")~");
  EXPECT_EQ(Voornaam(), "Jan");
}

TEST_F(GeschiedenisVenster, TweemaalOngedaanGaatVerderTerug) {
  MaakGeschiedenis();
  Speelt(
      "antwoord Ja\nkies VeiligOngedaan\nantwoord Ja\nkies VeiligOngedaan\nkies VeiligOngedaan",
      R"~(? vraag Ja/Nee "De bewerking \"Persoon 2 gewijzigd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
             ! info "Ongedaan gemaakt: Persoon 2 gewijzigd"
             ? vraag Ja/Nee "De bewerking \"Persoon toegevoegd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
             ! info "Ongedaan gemaakt: Persoon toegevoegd"
             ! info "Er is niets ongedaan te maken")~");
  EXPECT_EQ(Voornaam(), "");
}

TEST_F(GeschiedenisVenster, WatEenAnderWijzigdeWordtNietOverschreven) {
  MaakGeschiedenis();
  WijzigVanBuiten();
  Speelt(
      "antwoord Ja\nkies VeiligOngedaan",
      R"~(? vraag Ja/Nee "De bewerking \"Persoon 2 gewijzigd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
             ! stop "Persoonsrecord 2 is sindsdien door een ander programma gewijzigd")~");
  EXPECT_NE(Inhoud("DATA/EEN/EEN.PRS").find("Kees"), std::string::npos);
}

TEST(HandelingInWoorden, EenBeschadigdeZegtHet) {
  HandelingRegel regel;
  regel.tijd = "2026-01-02 03:04:05";
  regel.label = "Import";
  regel.gaaf = false;
  EXPECT_EQ(HandelingTekst(regel), "2026-01-02 03:04:05  Import (beschadigd)");
  NoteerGetoond(HandelingTekst(regel));
}

TEST(HandelingInWoorden, WatWegIsOfNietMeerNaTeGaanStaatErbij) {
  const RecordPlek plek{BestandSoort::Plaatsen, 2};
  const auto regels = WijzigingTekst(
      {{plek, std::string(27, ' '), std::nullopt}, {plek, std::string(27, ' '), ""}}, '-');
  ASSERT_GE(regels.size(), 3U);
  EXPECT_EQ(regels[0], "Plaatsrecord 2");
  EXPECT_EQ(regels[1], "    niet meer na te gaan");
  EXPECT_EQ(regels[2], "Plaatsrecord 2 (weg)");
}

TEST(HandelingInWoorden, VanEenGroteStaatErHoeveelErNogZijn) {
  const RecordPlek plek{BestandSoort::Plaatsen, 1};
  const std::vector<RecordWijziging> vele(kMeesteRecords + 7, {plek, "", std::nullopt});
  EXPECT_EQ(WijzigingTekst(vele, '-').back(), "... en nog 7 records");
}

// The status line of the entry names what Ctrl+Z would undo, after each action anew.
TEST_F(GeschiedenisVenster, DeStatusregelNoemtWatOngedaanWordtGemaakt) {
  Verwacht("toon VeiligOngedaan\nsluit", Sessie(),
           R"~(+ MenuWindow "LB77 voor Windows"
               = VeiligOngedaan "Laatste bewerking &ongedaan maken"
               - MenuWindow)~");
  MaakGeschiedenis();
  Verwacht(
      "toon VeiligOngedaan\nantwoord Ja Ja\nkies VeiligOngedaan\ntoon VeiligOngedaan\n"
      "kies VeiligOngedaan\ntoon VeiligOngedaan\nsluit",
      Sessie(),
      R"~(+ MenuWindow "LB77 voor Windows"
          = VeiligOngedaan "Laatste bewerking &ongedaan maken" [status "Maakt ongedaan: Persoon 2 gewijzigd (2026-01-02 03:04:05)"]
          ? vraag Ja/Nee "De bewerking \"Persoon 2 gewijzigd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
          ! info "Ongedaan gemaakt: Persoon 2 gewijzigd"
          = VeiligOngedaan "Laatste bewerking &ongedaan maken" [status "Maakt ongedaan: Persoon toegevoegd (2026-01-02 03:04:05)"]
          ? vraag Ja/Nee "De bewerking \"Persoon toegevoegd\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
          ! info "Ongedaan gemaakt: Persoon toegevoegd"
          = VeiligOngedaan "Laatste bewerking &ongedaan maken"
          - MenuWindow)~");
}

}  // namespace
}  // namespace lb77
