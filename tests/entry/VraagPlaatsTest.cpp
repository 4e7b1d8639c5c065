#include "entry/PlaatsenToets.h"
#include "entry/VraagPlaatsnm.h"
#include "entry/VraagPlaatsnr.h"

namespace lb77 {
namespace {

class VraagPlaats : public PlaatsenToets {
 protected:
  void SetUp() override {
    MaakDrie();
    Bouw().Plaats("Amstelveen", "NH");
  }
  // Plays a script on the question, and gives the code that came of it.
  template <class Vraagscherm>
  std::int16_t Vraag(std::string_view draaiboek, std::string_view begin, std::string_view verslag,
                     const Plek& plek = Plek::current()) {
    std::int16_t nr = -1;
    const std::string naam(begin.substr(0, begin.find(' ')));
    Verwacht(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          Vraagscherm vraag(hoofd);
          hoofd.gesprek.ToonModaal(vraag);
          nr = vraag.Nr();
        },
        "+ " + std::string(begin) + "\n" + Regels(verslag) + "- " + naam + "\n", plek);
    return nr;
  }
  std::int16_t OpNaam(std::string_view draaiboek, std::string_view verslag,
                      const Plek& plek = Plek::current()) {
    return Vraag<VraagPlaatsnm>(draaiboek, "VraagPlaatsnm \"Ga naar een Plaatsnaam\"", verslag,
                                plek);
  }
  std::int16_t OpCode(std::string_view draaiboek, std::string_view verslag,
                      const Plek& plek = Plek::current()) {
    return Vraag<VraagPlaatsnr>(draaiboek, "VraagPlaatsnr \"Ga naar een Plaatscode\"", verslag,
                                plek);
  }
};

TEST_F(VraagPlaats, HetBeginVanEenNaamIsGenoegWanneerDeGebruikerHetBevestigt) {
  EXPECT_EQ(OpNaam(R"(
    antwoord Nee Ja Ja
    vul PlaatsnaamTekst amst
    toon PlaatsnrTekst
    toon ProvcodeTekst
    druk OKButton
  )",
                   R"(
    ? vraag Ja/Nee "Gevonden: Amsterdam (NH). Is deze Plaats bedoeld ?" -> Nee
    ? vraag Ja/Nee "Nog verder zoeken ?" -> Ja
    ? vraag Ja/Nee "Gevonden: Amstelveen (NH). Is deze Plaats bedoeld ?" -> Ja
    = PlaatsnrTekst "5"
    = ProvcodeTekst "NH"
  )"),
            5);
}

TEST_F(VraagPlaats, WatGevondenIsWordtNietNogEensGevraagd) {
  EXPECT_EQ(OpNaam("antwoord Ja\ntyp PlaatsnaamTekst Del\ntoets Enter\ndruk OKButton",
                   R"(? vraag Ja/Nee "Gevonden: Delft (ZH). Is deze Plaats bedoeld ?" -> Ja)"),
            3);
}

TEST_F(VraagPlaats, NietVerderZoekenMaaktDeCodeLeeg) {
  EXPECT_EQ(OpNaam(R"(
    antwoord Ja
    vul PlaatsnaamTekst Delft
    antwoord Nee Nee
    vul PlaatsnaamTekst Breda
    toon PlaatsnrTekst
    toon ProvcodeTekst
    druk OKButton
  )",
                   R"(
    ? vraag Ja/Nee "Gevonden: Delft (ZH). Is deze Plaats bedoeld ?" -> Ja
    ? vraag Ja/Nee "Gevonden: Breda (). Is deze Plaats bedoeld ?" -> Nee
    ? vraag Ja/Nee "Nog verder zoeken ?" -> Nee
    = PlaatsnrTekst ""
    = ProvcodeTekst ""
  )"),
            0);
}

TEST_F(VraagPlaats, EenOnbekendeNaamWordtGemeldEnNietToegevoegd) {
  EXPECT_EQ(OpNaam("vul PlaatsnaamTekst Goes\ntoon PlaatsnrTekst\ndruk OKButton", R"(
    ! uitroep "Plaatsnaam niet gevonden"
    = PlaatsnrTekst ""
  )"),
            0);
  Stil([](Hoofdmodule& hoofd) { EXPECT_EQ(hoofd.Plaats.AantalRecords(), 5); });
}

TEST_F(VraagPlaats, EenLegeNaamIsGeenPlaats) {
  EXPECT_EQ(OpNaam(R"(
    antwoord Ja
    vul PlaatsnaamTekst Delft
    vul PlaatsnaamTekst
    toon PlaatsnrTekst
    druk OKButton
  )",
                   R"(
    ? vraag Ja/Nee "Gevonden: Delft (ZH). Is deze Plaats bedoeld ?" -> Ja
    = PlaatsnrTekst ""
  )"),
            0);
}

TEST_F(VraagPlaats, TerugGeeftGeenPlaats) {
  constexpr std::string_view kGevonden =
      R"(? vraag Ja/Nee "Gevonden: Delft (ZH). Is deze Plaats bedoeld ?" -> Ja)";
  for (const std::string uit : {"druk BackButton", "toets Escape", "sluit"}) {
    EXPECT_EQ(OpNaam("antwoord Ja\nvul PlaatsnaamTekst Delft\n" + uit, kGevonden), 0);
    EXPECT_EQ(OpCode("vul RecordNr 3\n" + uit, ""), 0);
  }
}

TEST_F(VraagPlaats, EenCodeToontZijnNaam) {
  EXPECT_EQ(OpCode("vul RecordNr 3\ntoon PlaatsNm\ndruk OKButton", R"(= PlaatsNm "Delft")"), 3);
  EXPECT_EQ(
      OpCode("vul RecordNr 3\nvul RecordNr\ntoon PlaatsNm\ndruk OKButton", R"(= PlaatsNm "")"), 0);
}

TEST_F(VraagPlaats, EenCodeZonderPlaatsHoudtDeFocus) {
  for (const std::string nr : {"1", "6", "10003", "99999"}) {
    EXPECT_EQ(OpCode("vul RecordNr " + nr + "\ntoon\nvul RecordNr 2\ndruk OKButton", R"(
      ! uitroep "Recordnummer bestaat niet"
      : VraagPlaatsnr "Ga naar een Plaatscode"
      = RecordNr ")" + nr + R"("
      = PlaatsNm ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * RecordNr
    )"),
              2);
  }
}

TEST_F(VraagPlaats, DePaginaBegintBijDeNaam) {
  Speelt(R"(
    druk NaarNaamButton
    antwoord Ja
    vul PlaatsnaamTekst Bre
    druk OKButton
    toon PlaatsnrTekst(0)
    toon PlaatsnaamTekst(0)
    druk NaarNaamButton
    druk OKButton
    toon PlaatsnrTekst(0)
    druk OKButton
  )",
         R"(
    + VraagPlaatsnm "Ga naar een Plaatsnaam"
    ? vraag Ja/Nee "Gevonden: Breda (). Is deze Plaats bedoeld ?" -> Ja
    - VraagPlaatsnm
    = PlaatsnrTekst(0) "4"
    = PlaatsnaamTekst(0) "Breda"
    + VraagPlaatsnm "Ga naar een Plaatsnaam"
    - VraagPlaatsnm
    = PlaatsnrTekst(0) "4"
  )");
}

TEST_F(VraagPlaats, DePaginaBegintBijDeCode) {
  Speelt(R"(
    druk NaarNrButton
    vul RecordNr 3
    druk OKButton
    toon PlaatsnaamTekst(0)
    druk NaarNrButton
    vul RecordNr 5
    druk BackButton
    toon PlaatsnaamTekst(0)
    druk OKButton
  )",
         R"(
    + VraagPlaatsnr "Ga naar een Plaatscode"
    - VraagPlaatsnr
    = PlaatsnaamTekst(0) "Delft"
    + VraagPlaatsnr "Ga naar een Plaatscode"
    - VraagPlaatsnr
    = PlaatsnaamTekst(0) "Delft"
  )");
}

}  // namespace
}  // namespace lb77
