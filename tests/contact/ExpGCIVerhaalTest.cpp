// A whole evening with the contact service: a family with places of all kinds, every question of the
// check answered both ways, and what goes out.
#include "contact/ContactToets.h"
#include "contact/ExpGCI.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class ExpGCIVerhaal : public ContactToets {
 protected:
  ExpGCIVerhaal() {
    MaakTabellen({PlaatsRij("Delft", "ZH", "NL"), PlaatsRij("Bergen", "NH", "NL"),
                  PlaatsRij("Bergen", "NB", "NL"), PlaatsRij("Gravenhage, 's-", "ZH", "NL"),
                  PlaatsRij("Hertogenbosch, 's-", "NB", "NL"), PlaatsRij("Li\x8Age", "BLG", "B"),
                  PlaatsRij("Aken", "DNW", "D"), PlaatsRij("Rijswijk", "ZH", "NL"),
                  PlaatsRij("Rijswijk", "GE", "NL"), PlaatsRij("Elst", "GE", "NL")});
  }
  void Woonde(std::string_view naam, std::string_view plaats, std::string_view prov, int jaar) {
    const std::int16_t nr = Bouw().Plaats(plaats, prov);
    Bouw().Man("Jan", naam,
               {{"GebPlaats", GetalTekst(nr)}, {"GebDatum", "00-00-" + GetalTekst(jaar)}});
  }
};

constexpr std::string_view kDraaiboek = R"(
      antwoord Nee Ja
      antwoord Nee Nee Nee Nee
      antwoord Ja
      antwoord Nee Ja
      vul FilterPlaatsnaam Hertog*
      antwoord Ja
      antwoord Ja
      druk GCICodeKnop(1)
      vul FilterPlaatsnaam Ak
      antwoord Ja
      druk GCICodeKnop(1)
      toon GeenPlaatsGevondenLabel
      antwoord Ja
      antwoord Nee Nee
      druk BackButton
      druk BackButton
    )";

constexpr std::string_view kVerslag = R"~(
    ? vraag Ja/Nee "Is dit de juiste provincie voor plaatscode 3 - Bergen ?\nGevonden: Bergen, NH, NL" -> Nee
    ? vraag Ja/Nee "Is dit de juiste provincie voor plaatscode 3 - Bergen ?\nGevonden: Bergen, NB, NL" -> Ja
    ? vraag Ja/Nee "Is dit de juiste provincie voor plaatscode 4 - Rijswijk ?\nGevonden: Rijswijk, ZH, NL" -> Nee
    ? vraag Ja/Nee "Is dit de juiste provincie voor plaatscode 4 - Rijswijk ?\nGevonden: Rijswijk, GE, NL" -> Nee
    ? vraag Ja/Nee/Annuleren "Rijswijk, UT, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Plaats onbekend: Rijswijk.\nPlaats toch mee uitvoeren ?" -> Nee
    ? vraag Ja/Nee "Is dit de juiste plaatsnaam voor plaatscode 5 - Den Haag ?\nGevonden: Gravenhage, 's-, ZH, NL" -> Ja
    ? vraag Ja/Nee "Is dit de juiste plaatsnaam voor plaatscode 6 - Den Bosch ?\nGevonden: Hertogenbosch, 's-, NB, NL" -> Nee
    ? vraag Ja/Nee/Annuleren "Den Bosch, NB, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Ja
    + ExpGCICorr "Corrigeer Plaatsnamen voor Export in HSK Contactdienst formaat (GCI)"
    - ExpGCICorr
    ? vraag Ja/Nee "Is dit de juiste plaatsnaam voor plaatscode 7 - Luik ?\nGevonden: Liège, BLG, B" -> Ja
    ? vraag Ja/Nee/Annuleren "Aaken, D\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Ja
    + ExpGCICorr "Corrigeer Plaatsnamen voor Export in HSK Contactdienst formaat (GCI)"
    - ExpGCICorr
    ? vraag Ja/Nee/Annuleren "Zoekhuizen, ZE, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Ja
    + ExpGCICorr "Corrigeer Plaatsnamen voor Export in HSK Contactdienst formaat (GCI)"
    = GeenPlaatsGevondenLabel "Geen geldige Plaats voor de Contactdienst gevonden."
    - ExpGCICorr
    ? vraag Ja/Nee "Plaats onbekend: Zoekhuizen.\nPlaats toch mee uitvoeren ?" -> Ja
    ? vraag Ja/Nee/Annuleren "Nergens, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Plaats onbekend: Nergens.\nPlaats toch mee uitvoeren ?" -> Nee
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )~";

TEST_F(ExpGCIVerhaal, ElkeVraagWordtOpBeideManierenBeantwoord) {
  Woonde("Delver", "delft", "ZH", 1700);       // 2: fits
  Woonde("Bergsma", "Bergen", "LI", 1701);     // 3: not the first of its name, but the second
  Woonde("Anders", "Rijswijk", "UT", 1702);    // 4: neither of the two; left out
  Woonde("Hagenaar", "Den Haag", "ZH", 1703);  // 5: a synonym, taken
  Woonde("Bosman", "Den Bosch", "NB", 1704);   // 6: a synonym, refused; picked by hand
  Woonde("Luijk", "Luik", "B", 1705);          // 7: a synonym, taken
  Woonde("Aken", "Aaken", "D", 1706);          // 8: picked by hand
  Woonde("Zoeker", "Zoekhuizen", "ZL", 1707);  // 9: none picked, and taken along
  Woonde("Elst", "Elst", "GL", 1708);          // 10: "GL" is "GE"
  Woonde("Nergens", "Nergens", "", 1709);      // 11: not corrected, and left out
  Woonde("Zoeker", "ZOEKHUIZEN", "ZE", 1710);  // 12: the row that came with 9
  Exporteer(kDraaiboek, kVerslag);
  EXPECT_EQ(Reeksen(),
            "AKEN Aken DNWD 17061706\n"
            "BERGSMA Bergen NB NL 17011701\n"
            "BOSMAN Hertogenbosch, 's- NB NL 17041704\n"
            "DELVER Delft ZH NL 17001700\n"
            "ELST Elst GE NL 17081708\n"
            "HAGENAAR Gravenhage, 's- ZH NL 17031703\n"
            "LUIJK Li\xE8ge BLGB 17051705\n"
            "ZOEKER Zoekhuizen ZE NL 17071710\n");
  EXPECT_TRUE(
      LogRegels().starts_with("Geen achternamen overgeslagen\nPlaats overgeslagen: Rijswijk\n"
                              "Plaats overgeslagen: Nergens\nTotaal: 2 plaatsen overgeslagen\n"
                              "Totaal: 8 reeksen ge\xEBxporteerd\n"))
      << LogRegels();
}

TEST_F(ExpGCIVerhaal, EenOnzekerePlaatsVraagtNietsEnGaatNietMee) {
  const std::int16_t nr = Bouw().Plaats("Dorp", "ZH");
  Bouw().Plaats("Delft", "ZH");
  Bouw().Man("Jan", "Vos",
             {{"GebPlaats", GetalTekst(nr + 10000)},
              {"GebDatum", "00-00-1800"},
              {"OvlPlaats", "3"},
              {"OvlDatum", "00-00-1870"}});
  Lukt();
  EXPECT_EQ(Reeksen(), "VOS Delft ZH NL 18701870\n");
}

TEST_F(ExpGCIVerhaal, DezelfdePlaatsWordtEenKeerGevraagd) {
  const std::int16_t nr = Bouw().Plaats("Dorp", "ZH");
  for (const char* naam : {"Vos", "Bos", "Mos"}) {
    Bouw().Man("Jan", naam,
               {{"GebPlaats", GetalTekst(nr)},
                {"GebDatum", "00-00-1800"},
                {"OvlPlaats", GetalTekst(nr)},
                {"OvlDatum", "00-00-1870"}});
  }
  Exporteer("antwoord Nee Ja\ndruk BackButton", R"(
    ? vraag Ja/Nee/Annuleren "Dorp, ZH, NL\nis niet een juiste combinatie voor de Contactdienst\nCorrigeren ?" -> Nee
    ? vraag Ja/Nee "Plaats onbekend: Dorp.\nPlaats toch mee uitvoeren ?" -> Ja
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )");
  EXPECT_EQ(Reeksen().size(), std::string("VOS Dorp ZH NL 18001800\n").size() * 6);
}

// What the service calls a province or a country goes before what it is called here.
TEST_F(ExpGCIVerhaal, DeCodesVanDeDienstGelden) {
  MaakTabellen({PlaatsRij("Bussum", "G", "NL"), PlaatsRij("Boston", "", "AM")});
  SchrijfBytes(Gci() / "GCIPRV!!.DBF", Dbf(98, 23, {CodeRij("G", "Gooi")}));
  SchrijfBytes(Gci() / "GCILND!!.DBF", Dbf(98, 23, {CodeRij("AM", "USA")}));
  Woonde("Vos", "Bussum", "G", 1800);
  Woonde("Vos", "Boston", "US", 1800);
  Lukt();
  EXPECT_EQ(Reeksen(), "VOS Boston AM 18001800\nVOS Bussum G NL 18001800\n");
}

// As imported places have none.
TEST_F(ExpGCIVerhaal, EenPlaatsZonderProvincieWordtAlleenOpVerzoekZonderVraagGenomen) {
  Woonde("Vos", "Elst", "", 1800);
  Exporteer("antwoord Ja\ndruk BackButton", R"~(
    ? vraag Ja/Nee "Is dit de juiste provincie voor plaatscode 2 - Elst ?\nGevonden: Elst, GE, NL" -> Ja
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )~");
  opties_.neemEnige = true;
  Exporteer("druk BackButton", R"~(
    ! info "De enige van die naam voor plaatscode 2 - Elst\nGevonden: Elst, GE, NL"
    ! info "Export voltooid"
    + ToonTekst "Exporteren - Resultaat"
    - ToonTekst
  )~");
}

}  // namespace
}  // namespace lb77
