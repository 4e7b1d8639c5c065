// The dialogs of the cards, by script.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/Start.h"
#include "reports/Krtn.h"
#include "steun/FamilieToets.h"
#include "steun/KaartFamilie.h"

namespace lb77 {
namespace {

class KrtnTest : public FamilieToets {
 protected:
  KrtnTest() {
    SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\n[Printer]\r\nTekstbr=60\r\n");
    BouwKaartFamilie(Bouw());
  }

  void Speel(const KrtnSoort& soort, std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    const Taak taak = [this, &soort](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.schrijfwijze.DatumScheider = '-';
      hoofd.volgers.HuidigPersoonNr = 4;
      hoofd.volgers.HuidigRelatieNr = 3;
      hoofd.gesprek.Toon<Krtn>(soort, hoofd);
      huidig_ = {hoofd.volgers.HuidigPersoonNr, hoofd.volgers.HuidigRelatieNr};
    };
    const std::string kop =
        "+ " + std::string(soort.naam) + " \"" + std::string(soort.titel) + "\"\n";
    Verwacht(draaiboek, taak, kop + Regels(verslag), plek);
  }
  [[nodiscard]] std::filesystem::path Temp(std::string_view naam) const {
    return Map() / "TEMP" / naam;
  }

  std::pair<std::int16_t, std::int16_t> huidig_;
};

TEST_F(KrtnTest, BegintMetPersoonTwee) {
  Speel(kPrsKrtn, "toon\ndruk BackButton", R"~(
    : PrsKrtn "Persoonskaarten"
    = VraagLabel "Geef de gewenste Persoonsnummers:"
    = (*) RecordNrPers Naam Periode ZoekPersButton
    = (0) "2" "Jan Pieter van Dam" "1800-1870" "Zoek"
    = (1) "2" "Jan Pieter van Dam" "1800-1870" "Zoek"
    = OKButton "&OK"
    = BackButton "&Terug"
    * RecordNrPers(0)
    - PrsKrtn
  )~");
}

TEST_F(KrtnTest, BegintMetRelatieTwee) {
  Speel(kRelKrtn, "toon\nvul RecordNrRel(1) 4\ntoon Vrouw(1)\ndruk BackButton", R"~(
    : RelKrtn "Relatiekaarten"
    = VraagLabel "Geef de gewenste Relatienummers:"
    = (*) RecordNrRel Man Vrouw
    = (0) "2" "2 Jan Pieter van Dam" "3 Cornelia Cool"
    = (1) "2" "2 Jan Pieter van Dam" "3 Cornelia Cool"
    = OKButton "&OK"
    = BackButton "&Terug"
    * RecordNrRel(0)
    = Vrouw(1) "<onbekend>"
    - RelKrtn
  )~");
}

TEST_F(KrtnTest, EenOnbekendNummerToontDat) {
  Speel(kPrsKrtn,
        "vul RecordNrPers(0) 1\ntoon Naam(0)\ntoon Periode(0)\nvul RecordNrPers(1) 77\n"
        "toon Naam(1)\nvul RecordNrPers(1)\ntoon Naam(1)\nvul RecordNrPers(1) 40000\ntoon Naam(1)\n"
        "druk BackButton",
        R"~(
          = Naam(0) "<onbekend>"
          = Periode(0) ""
          = Naam(1) "<onbekend>"
          = Naam(1) "<onbekend>"
          = Naam(1) "<onbekend>"
          - PrsKrtn
        )~");
}

TEST_F(KrtnTest, NummersDieGeenRecordKanHebbenGevenLeesfouten) {
  for (const auto* soort : {&kPrsKrtn, &kRelKrtn}) {
    const std::string veld(soort->veld);
    Speel(*soort,
          "vul " + veld + "(1) 40001\nvul " + veld +
              "(0) 40000\ndruk OKButton\ndruk BackButton\n"
              "druk BackButton",
          "+ ToonTekst \"" + std::string(soort->verslag) + "\"\n- ToonTekst\n- " +
              std::string(soort->naam));
  }
  EXPECT_EQ(LeesBytes(Temp("PERS_KRT.TMP")),
            "Leesfout bij persoonsrecord 40000\r\nLeesfout bij persoonsrecord 40001\r\n");
  EXPECT_EQ(LeesBytes(Temp("REL_KRT.TMP")),
            "Leesfout bij relatierecord 40000\r\nLeesfout bij relatierecord 40001\r\n");
}

// Once beside each number, and once for its card.
TEST_F(KrtnTest, EenOnleesbarePartnerWordtEenKeerGemeld) {
  MaakOnleesbaar(BestandSoort::Personen, 4);
  const std::string fout =
      R"~(! stop "Fout bij het lezen van Persoonsrecord 4\nFout van de schijf")~"
      "\n";
  Speel(kRelKrtn,
        "vul RecordNrRel(0) 3\ntoon Vrouw(0)\nvul RecordNrRel(1) 3\ndruk OKButton\n"
        "druk BackButton\ndruk BackButton",
        fout + "= Vrouw(0) \"4 <onbekend>\"\n" + fout + fout +
            "+ ToonTekst \"Toon Relatiekaart\"\n- ToonTekst\n- RelKrtn");
  EXPECT_NE(
      LeesBytes(Temp("REL_KRT.TMP"))
          .find("\r\nVrouw            : 4 <onbekend>\r\n                   \?\?\?\?-\?\?\?\?\r\n"),
      std::string::npos);
}

TEST_F(KrtnTest, RecordEenIsGeenPartner) {
  Bouw().WijzigRelatie(2, {{"ManNr", "1"}});
  Speel(kRelKrtn, "toon Man(0)\ndruk BackButton", "= Man(0) \"1 <onbekend>\"\n- RelKrtn");
}

TEST_F(KrtnTest, ToontDeKaartenVanEenReeksEnBlijft) {
  Speel(kPrsKrtn,
        "vul RecordNrPers(1) 3\ndruk OKButton\ntoon XY_label\ndruk BackButton\n"
        "toon RecordNrPers(1)\ndruk BackButton",
        R"~(
          + ToonTekst "Toon Persoonskaart"
          = XY_label "pagina 1,1"
          - ToonTekst
          = RecordNrPers(1) "3"
          - PrsKrtn
        )~");
  const std::string kaarten = LeesBytes(Temp("PERS_KRT.TMP"));
  EXPECT_TRUE(kaarten.starts_with("Persoonsnummer   :    2\r\n\r\n")) << kaarten;
  EXPECT_NE(kaarten.find(std::string(60, '=') + "\r\nPersoonsnummer   :    3\r\n"),
            std::string::npos);
  EXPECT_EQ(huidig_, (std::pair<std::int16_t, std::int16_t>{4, 3}));
}

TEST_F(KrtnTest, ToontDeKaartenVanRelaties) {
  Speel(
      kRelKrtn,
      "vul RecordNrRel(0) 6\nvul RecordNrRel(1) 7\ndruk OKButton\ndruk BackButton\ndruk BackButton",
      "+ ToonTekst \"Toon Relatiekaart\"\n- ToonTekst\n- RelKrtn");
  const std::string kaarten = LeesBytes(Temp("REL_KRT.TMP"));
  EXPECT_TRUE(kaarten.starts_with("Relatienummer    :    6\r\n")) << kaarten;
  EXPECT_TRUE(kaarten.ends_with("=\r\nLeesfout bij relatierecord 7\r\n")) << kaarten;
  EXPECT_EQ(huidig_, (std::pair<std::int16_t, std::int16_t>{4, 3}));
}

TEST_F(KrtnTest, EenReeksDieTerugLooptWordtGeweigerd) {
  Speel(kPrsKrtn, "vul RecordNrPers(0) 5\nvul RecordNrPers(1) 3\ndruk OKButton\ndruk BackButton",
        R"~(
          ! uitroep "Ongeldige reeks: 2e recordnummer is kleiner dan het 1e"
          - PrsKrtn
        )~");
  EXPECT_FALSE(std::filesystem::exists(Temp("PERS_KRT.TMP")));
}

TEST_F(KrtnTest, ZonderEersteNummerBegintDeReeksBijTwee) {
  Speel(kRelKrtn,
        "vul RecordNrRel(0)\nvul RecordNrRel(1) 3\ndruk OKButton\ndruk BackButton\n"
        "toon RecordNrRel(0)\ntoon Man(0)\ndruk BackButton",
        R"~(
          + ToonTekst "Toon Relatiekaart"
          - ToonTekst
          = RecordNrRel(0) "2"
          = Man(0) "2 Jan Pieter van Dam"
          - RelKrtn
        )~");
  EXPECT_TRUE(LeesBytes(Temp("REL_KRT.TMP")).starts_with("Relatienummer    :    2\r\n"));
}

TEST_F(KrtnTest, NummersOnderTweeGevenLeesfouten) {
  Speel(kPrsKrtn,
        "vul RecordNrPers(0)\nvul RecordNrPers(1) 1\ndruk OKButton\ntoon UitvoerBox\n"
        "druk BackButton\ndruk BackButton",
        R"~(
          + ToonTekst "Toon Persoonskaart"
          = UitvoerBox "Leesfout bij persoonsrecord 0\nLeesfout bij persoonsrecord 1"
          - ToonTekst
          - PrsKrtn
        )~");
}

TEST_F(KrtnTest, EenReeksVanafEenBegintMetEenLeesfout) {
  Speel(kRelKrtn,
        "vul RecordNrRel(0) 1\ndruk OKButton\ndruk BackButton\ntoon RecordNrRel(0)\n"
        "druk BackButton",
        R"~(
          + ToonTekst "Toon Relatiekaart"
          - ToonTekst
          = RecordNrRel(0) "1"
          - RelKrtn
        )~");
  EXPECT_TRUE(LeesBytes(Temp("REL_KRT.TMP"))
                  .starts_with("Leesfout bij relatierecord 1\r\nRelatienummer    :    2\r\n"));
}

TEST_F(KrtnTest, EenNummerNeemtAlleenCijfersAan) {
  Speel(kPrsKrtn, "vul RecordNrPers(0) -3x\ntoon RecordNrPers(0)\ndruk BackButton",
        "= RecordNrPers(0) \"3\"\n- PrsKrtn");
  Speel(kRelKrtn, "vul RecordNrRel(1) 1a2\ntoon RecordNrRel(1)\ndruk BackButton",
        "= RecordNrRel(1) \"12\"\n- RelKrtn");
}

TEST_F(KrtnTest, EenLegeReeksIsEenLeegBestand) {
  Speel(kPrsKrtn,
        "vul RecordNrPers(0) 1\nvul RecordNrPers(1)\ndruk OKButton\ntoon UitvoerBox\n"
        "druk BackButton\ndruk BackButton",
        R"~(
          + ToonTekst "Toon Persoonskaart"
          = UitvoerBox "<< Het bestand is leeg >>"
          - ToonTekst
          - PrsKrtn
        )~");
}

TEST_F(KrtnTest, ZoekenVultHetVeldErnaast) {
  Speel(kPrsKrtn,
        "druk ZoekPersButton(1)\ndruk RecordNrPrs(2)\ntoon RecordNrPers(1)\ntoon Naam(1)\n"
        "druk ZoekPersButton(0)\ndruk BackButton\ntoon RecordNrPers(0)\n"
        "druk ZoekPersButton(0)\ndruk RecordNrPrs(1)\ntoets Shift+Tab\ntoets Space\n"
        "druk BackButton\ndruk BackButton",
        R"~(
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          = RecordNrPers(1) "3"
          = Naam(1) "Cornelia Cool"
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          = RecordNrPers(0) "2"
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          - PrsKrtn
        )~");
  EXPECT_EQ(huidig_.first, 4);
}

TEST_F(KrtnTest, EenBestandDatNietKanSluitHetScherm) {
  std::filesystem::create_directories(Temp("REL_KRT.TMP"));
  Speel(kRelKrtn, "druk OKButton",
        "! stop \"Kan tijdelijk bestand " + Temp("REL_KRT.TMP").string() +
            " niet openen\"\n- RelKrtn");
}

TEST_F(KrtnTest, EenOnleesbareKaartHoudtDeReeksNietOp) {
  MaakOnleesbaar(BestandSoort::Personen, 3);
  Speel(kPrsKrtn, "vul RecordNrPers(1) 4\ndruk OKButton\ndruk BackButton\ndruk BackButton", R"~(
          ! stop "Fout bij het lezen van Persoonsrecord 3\nFout van de schijf"
          + ToonTekst "Toon Persoonskaart"
          - ToonTekst
          - PrsKrtn
        )~");
  EXPECT_NE(LeesBytes(Temp("PERS_KRT.TMP"))
                .find("=\r\nLeesfout bij persoonsrecord 3\r\nPersoonsnummer   :    4\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace lb77
