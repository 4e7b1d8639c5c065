#include "entry/PlaatsenToets.h"

namespace lb77 {
namespace {

class PlaatsenOpslaan : public PlaatsenToets {
 protected:
  void SetUp() override { MaakDrie(); }
};

TEST_F(PlaatsenOpslaan, OKSlaatDePaginaOpEnSluit) {
  Speelt(
      "vul PlaatsnaamTekst(0) Leiden\nvul ProvcodeTekst(0) zh\nvul ProvcodeTekst(2) nb\n"
      "druk OKButton",
      "");
  EXPECT_EQ(Plaatsen(), "\n2 Leiden ZH\n3 Delft ZH\n4 Breda NB\n");
}

TEST_F(PlaatsenOpslaan, ElkeVerplaatsingSlaatDePaginaOp) {
  int nummer = 0;
  for (const auto* weg : {"VolgendeButton", "VorigeButton", "NaarNaamButton", "NaarNrButton"}) {
    const std::string naam = "Stad" + GetalTekst(++nummer);
    std::string boek = "vul PlaatsnaamTekst(0) " + naam + "\ndruk " + weg;
    if (nummer > 2) boek += "\nsluit";
    Speel(boek + "\ndruk BackButton",
          Sessie([](Hoofdmodule& hoofd) { hoofd.gesprek.Toon<ToonPlaatsen>(hoofd); }));
    EXPECT_EQ(Plaatsen(2), "\n2 " + naam + " NH\n") << weg;
  }
}

TEST_F(PlaatsenOpslaan, EenNaamVoorbijHetEindeMaaktDeVolgendePlaats) {
  Speelt(R"(
    vul PlaatsnaamTekst(5) Goes
    vul ProvcodeTekst(5) ze
    vul PlaatsnaamTekst(8) Huizen
    druk VorigeButton
    toon PlaatsnrTekst(3)
    toon PlaatsnaamTekst(3)
    toon PlaatsnaamTekst(5)
    druk OKButton
  )",
         R"(
    = PlaatsnrTekst(3) "5"
    = PlaatsnaamTekst(3) "Goes"
    = PlaatsnaamTekst(5) ""
  )");
  EXPECT_EQ(Plaatsen(), "\n2 Amsterdam NH\n3 Delft ZH\n4 Breda \n5 Goes ZE\n6 Huizen \n");
}

TEST_F(PlaatsenOpslaan, EenRegelZonderNaamMaaktGeenPlaats) {
  Speelt("vul ProvcodeTekst(4) zh\ndruk OKButton", "");
  Stil([](Hoofdmodule& hoofd) { EXPECT_EQ(hoofd.Plaats.AantalRecords(), 4); });
}

TEST_F(PlaatsenOpslaan, EenNaamKanWordenGewist) {
  Speelt("vul PlaatsnaamTekst(1)\ndruk OKButton", "");
  EXPECT_EQ(Plaatsen(3), "\n2 Amsterdam NH\n3  ZH\n");
}

// Amsterdam becomes Delft with province `prov`, while Delft has `andere`.
struct Dubbel {
  std::string_view prov;
  std::string_view andere;
  std::string_view melding;  // empty: stored without a word
};

class DubbelePlaatsen : public PlaatsenToets, public ::testing::WithParamInterface<Dubbel> {
 protected:
  void SetUp() override {
    Bouw().Plaats("Amsterdam", "XX");
    Bouw().Plaats("Delft", GetParam().andere);
  }
  [[nodiscard]] static std::string Boek() {
    return "vul PlaatsnaamTekst(0) Delft\nvul ProvcodeTekst(0) " + std::string(GetParam().prov) +
           "\n";
  }
  [[nodiscard]] static std::string Oud() {
    return "\n2 Amsterdam XX\n3 Delft " + std::string(GetParam().andere) + "\n";
  }
  [[nodiscard]] static bool IsVraag() { return GetParam().melding.ends_with("?"); }
};

TEST_P(DubbelePlaatsen, BlijvenNaDeWeigeringOfNaJaZoalsZeWaren) {
  const std::string tekst = "\"" + std::string(GetParam().melding) + "\"";
  const std::string box =
      IsVraag() ? "? vraag Ja/Nee " + tekst + " -> Ja\n" : "! uitroep " + tekst + "\n";
  const std::string antwoord = IsVraag() ? "antwoord Ja\n" : "";
  for (const auto* weg :
       {"OKButton", "VolgendeButton", "VorigeButton", "NaarNaamButton", "NaarNrButton"}) {
    Speelt(Boek() + antwoord + "druk " + weg + "\ntoon PlaatsnaamTekst(0)\ndruk BackButton",
           box + "= PlaatsnaamTekst(0) \"Delft\"\n");
    EXPECT_EQ(focus_, "PlaatsnaamTekst(0)") << weg;
    EXPECT_EQ(Plaatsen(), Oud()) << weg;
  }
}

TEST_P(DubbelePlaatsen, KomenNaNeeNaastElkaar) {
  if (!IsVraag()) return;
  Speelt("antwoord Nee\n" + Boek() + "druk OKButton",
         "? vraag Ja/Nee \"" + std::string(GetParam().melding) + "\" -> Nee\n");
  EXPECT_EQ(Plaatsen(), "\n2 Delft " + std::string(GetParam().prov) + "\n3 Delft " +
                            std::string(GetParam().andere) + "\n");
}

TEST_P(DubbelePlaatsen, LatenNietsAchterWanneerDeRegelNieuwIs) {
  const std::string tekst = "\"" + std::string(GetParam().melding) + "\"";
  Speelt("vul PlaatsnaamTekst(4) Delft\nvul ProvcodeTekst(4) " + std::string(GetParam().prov) +
             (IsVraag() ? "\nantwoord Ja" : "") + "\ndruk OKButton\ndruk BackButton",
         IsVraag() ? "? vraag Ja/Nee " + tekst + " -> Ja\n" : "! uitroep " + tekst + "\n");
  EXPECT_EQ(focus_, "PlaatsnaamTekst(4)");
  EXPECT_EQ(Plaatsen(), Oud());
}

INSTANTIATE_TEST_SUITE_P(
    Regels, DubbelePlaatsen,
    ::testing::Values(
        Dubbel{"ZH", "ZH", "Plaatsnaam Delft komt al voor met deze provinciecode (3)"},
        Dubbel{"", "", "Plaatsnaam Delft komt al voor met deze provinciecode (3)"},
        Dubbel{"ZH", "", "Plaatsnaam Delft komt al voor zonder provinciecode (3). Corrigeren ?"},
        Dubbel{"", "ZH", "Plaatsnaam Delft komt al voor met provinciecode ZH (3). Corrigeren ?"},
        Dubbel{"NB", "ZH",
               "Plaatsnaam Delft komt ook voor met provinciecode ZH (3). Corrigeren ?"}));

TEST_F(PlaatsenOpslaan, DeEigenPlaatsIsGeenDubbele) {
  Speelt("vul ProvcodeTekst(1) nb\nvul PlaatsnaamTekst(2) Breda\ndruk OKButton", "");
  EXPECT_EQ(Plaatsen(3), "\n2 Amsterdam NH\n3 Delft NB\n");
}

TEST_F(PlaatsenOpslaan, HoofdEnKleineLettersMakenVerschil) {
  Speelt("vul PlaatsnaamTekst(0) DELFT\nvul ProvcodeTekst(0) ZH\ndruk OKButton", "");
  EXPECT_EQ(Plaatsen(3), "\n2 DELFT ZH\n3 Delft ZH\n");
}

TEST_F(PlaatsenOpslaan, NamenWordenVergelekenZoalsZeInHetBestandKomen) {
  Bouw().Plaats("'s-Gravenhage");
  Speelt("vul PlaatsnaamTekst(2) \xE2\x80\x99s-Gravenhage\ndruk OKButton\ndruk BackButton",
         R"~(! uitroep "Plaatsnaam 's-Gravenhage komt al voor met deze provinciecode (5)")~");
}

TEST_F(PlaatsenOpslaan, NaNeeGaatDeVergelijkingVerder) {
  Bouw().Plaats("Delft", "NB");
  Bouw().Plaats("Delft");
  Speelt(R"(
    vul PlaatsnaamTekst(0) Delft
    antwoord Nee Nee Ja
    druk OKButton
    antwoord Nee Nee Nee
    druk OKButton
  )",
         R"(
    ? vraag Ja/Nee "Plaatsnaam Delft komt ook voor met provinciecode ZH (3). Corrigeren ?" -> Nee
    ? vraag Ja/Nee "Plaatsnaam Delft komt ook voor met provinciecode NB (5). Corrigeren ?" -> Nee
    ? vraag Ja/Nee "Plaatsnaam Delft komt al voor zonder provinciecode (6). Corrigeren ?" -> Ja
    ? vraag Ja/Nee "Plaatsnaam Delft komt ook voor met provinciecode ZH (3). Corrigeren ?" -> Nee
    ? vraag Ja/Nee "Plaatsnaam Delft komt ook voor met provinciecode NB (5). Corrigeren ?" -> Nee
    ? vraag Ja/Nee "Plaatsnaam Delft komt al voor zonder provinciecode (6). Corrigeren ?" -> Nee
  )");
  EXPECT_EQ(Plaatsen(3), "\n2 Delft NH\n3 Delft ZH\n");
}

TEST_F(PlaatsenOpslaan, TweeRegelsVanEenPaginaMogenNietGelijkWorden) {
  Speelt(R"(
    vul PlaatsnaamTekst(3) Goes
    vul PlaatsnaamTekst(4) Goes
    druk OKButton
    toon PlaatsnrTekst(3)
    toon PlaatsnrTekst(4)
    druk BackButton
  )",
         R"~(
    ! uitroep "Plaatsnaam Goes komt al voor met deze provinciecode (5)"
    = PlaatsnrTekst(3) "5"
    = PlaatsnrTekst(4) "6"
  )~");
  EXPECT_EQ(focus_, "PlaatsnaamTekst(4)");
}

// The page goes on where it was stopped: what is stored has its code and is not stored twice.
TEST_F(PlaatsenOpslaan, NaHetCorrigerenWordtNietsTweeMaalOpgeslagen) {
  Speelt(R"(
    vul PlaatsnaamTekst(5) Goes
    vul PlaatsnaamTekst(6) Delft
    vul ProvcodeTekst(6) zh
    druk OKButton
    toon PlaatsnrTekst(3)
    toon PlaatsnrTekst(4)
    toon PlaatsnrTekst(5)
    vul PlaatsnaamTekst(6) Leiden
    vul PlaatsnaamTekst(3) Edam
    druk OKButton
  )",
         R"~(
    ! uitroep "Plaatsnaam Delft komt al voor met deze provinciecode (3)"
    = PlaatsnrTekst(3) ""
    = PlaatsnrTekst(4) "6"
    = PlaatsnrTekst(5) "5"
  )~");
  EXPECT_EQ(Plaatsen(), "\n2 Amsterdam NH\n3 Delft ZH\n4 Breda \n5 Goes \n6 Edam \n7 Leiden ZH\n");
}

TEST_F(PlaatsenOpslaan, EenPlaatsDieNooitGeschrevenIsWordtNietOverschreven) {
  MaakPlaatsGat(3);
  const std::string voor = LeesBytes(Bestand());
  Speelt("toon PlaatsnaamTekst(1)\nvul PlaatsnaamTekst(1) Goes\ndruk OKButton",
         R"(
    = PlaatsnaamTekst(1) ""
    ! stop "3 Fout bij het lezen van plaatsrecord"
  )");
  EXPECT_EQ(LeesBytes(Bestand()), voor);
}

TEST_F(PlaatsenOpslaan, EenOnleesbarePlaatsWordtNietOverschreven) {
  MaakOnleesbaar(BestandSoort::Plaatsen, 3);
  const std::string voor = LeesBytes(Bestand());
  Speelt("vul PlaatsnaamTekst(1) Goes\ndruk OKButton",
         R"(
    ! stop "Fout bij het lezen van Plaatsrecord 3\nFout van de schijf"
    ! stop "Fout bij het lezen van Plaatsrecord 3\nFout van de schijf"
    ! stop "3 Fout bij het lezen van plaatsrecord"
  )");
  EXPECT_EQ(LeesBytes(Bestand()), voor);
}

TEST_F(PlaatsenOpslaan, EenLeegBestandNeemtGeenPlaats) {
  SchrijfBytes(Bestand(), "");
  Speelt("vul PlaatsnaamTekst(0) Goes\ndruk OKButton",
         R"(
    ! stop "Fout bij het lezen van het administratierecord van het Plaatsbestand"
    ! stop "Fout bij het lezen van het administratierecord van het Plaatsbestand"
    ! stop "Fout bij het lezen van het administratierecord van het Plaatsbestand"
  )");
  EXPECT_EQ(LeesBytes(Bestand()), "");
}

TEST_F(PlaatsenOpslaan, EenTeLaagAantalKostGeenPlaats) {
  std::string bytes = LeesBytes(Bestand());
  bytes[0] = '\x02';
  SchrijfBytes(Bestand(), bytes);
  Speelt("vul PlaatsnaamTekst(2) Goes\ndruk OKButton",
         R"(! stop "Plaatsrecord 4 bestaat al: het aantal in het administratierecord is te laag")");
  EXPECT_EQ(LeesBytes(Bestand()), bytes);
}

TEST_F(PlaatsenOpslaan, EenTeHoogAantalWordtGemeld) {
  std::string bytes = LeesBytes(Bestand());
  bytes[0] = '\x05';
  SchrijfBytes(Bestand(), bytes);
  constexpr std::string_view kMelding =
      R"(! uitroep "Aantal plaatsrecords in administratierecord is onjuist\nGevonden:4\nVolgens administratierecord:6")";
  Speelt("druk BackButton", kMelding);
}

// A file that ends in the middle of a record, at each length.
TEST_F(PlaatsenOpslaan, EenAfgekaptBestandKomtTotEenEinde) {
  const std::string heel = LeesBytes(Bestand());
  for (std::size_t lengte = 0; lengte < heel.size(); ++lengte) {
    SchrijfBytes(Bestand(), heel.substr(0, lengte));
    const SpeelUitslag uitslag =
        Speel("vul ProvcodeTekst(0) nb\nvul PlaatsnaamTekst(4) Goes\ndruk OKButton",
              Sessie([](Hoofdmodule& hoofd) { hoofd.gesprek.Toon<ToonPlaatsen>(hoofd); }));
    EXPECT_EQ(uitslag.status, 0) << lengte << ": " << uitslag.reden;
    // Of a record that was cut within its first field nothing is left that could be read.
    const std::size_t rest = lengte % plaatsveld::kLengte;
    const std::size_t leesbaar = rest < 2 ? lengte - rest : lengte;
    constexpr std::size_t kBegin = 2 * plaatsveld::kLengte;
    if (leesbaar <= kBegin) continue;
    EXPECT_EQ(LeesBytes(Bestand()).substr(kBegin, leesbaar - kBegin),
              heel.substr(kBegin, leesbaar - kBegin))
        << lengte;
  }
}

}  // namespace
}  // namespace lb77
