#include "app/KopieBestanden.h"
#include "app/KopieTerugzetten.h"
#include "app/Start.h"
#include "app/VeiligToets.h"
#include "app/Veiligheidskopie.h"
#include "steun/NepGesprek.h"

namespace lb77 {
namespace {

class Kopieen : public VeiligToets {
 protected:
  void Speelt(std::string_view script, std::string_view verslag) {
    Verwacht(std::string(script) + "\nsluit", Sessie(),
             "+ MenuWindow \"LB77 voor Windows\"\n" + MetMap(verslag) + "\n- MenuWindow");
  }
  // Does something with the copies of EEN, in which nothing shows.
  void Doe(const std::function<void(Hoofdmodule&, Veiligheidskopie&)>& doe) {
    Verwacht("", MetMenu([&doe](Hoofdmodule& hoofd, MenuWindow& menu) {
               ASSERT_TRUE(menu.Laad());
               Veiligheidskopie kopie = KopieVan(hoofd);
               doe(hoofd, kopie);
             }),
             "");
  }
  void MaakLeeg(std::string_view naam) const {
    std::filesystem::create_directories(map_ / "KOPIE/EEN");
    std::filesystem::copy(map_ / "DATA/EEN", map_ / "KOPIE/EEN" / naam,
                          std::filesystem::copy_options::recursive);
  }
};

TEST_F(Kopieen, BevatDeVierBestandenEnDeTeksten) {
  Schrijf("DATA/EEN/TEKST/verslag.txt", "tekst");
  Speelt("kies VeiligKopie",
         R"~(! info "Veiligheidskopie gemaakt: <map>/KOPIE/EEN/2026-01-02_030405")~");
  for (const char* naam : {"EEN.PRS", "EEN.RLT", "EEN.OPM", "EEN.PLT", "TEKST/verslag.txt"}) {
    EXPECT_EQ(Inhoud(std::filesystem::path("KOPIE/EEN/2026-01-02_030405") / naam),
              Inhoud(std::filesystem::path("DATA/EEN") / naam))
        << naam;
  }
  EXPECT_FALSE(Bestaat("KOPIE/EEN/BEZIG"));
}

TEST_F(Kopieen, GenoemdWordtDeNieuweOokAlsDeKlokIsTeruggezet) {
  MaakLeeg("2040-01-01_000000");
  Speelt("kies VeiligKopie",
         R"~(! info "Veiligheidskopie gemaakt: <map>/KOPIE/EEN/2026-01-02_030405")~");
}

TEST_F(Kopieen, EenMislukteKopieWordtGemeldEnLaatNietsAchter) {
  Schrijf("KOPIE", "geen directory");
  Speelt("kies VeiligKopie",
         R"~(! stop "De veiligheidskopie is niet gemaakt\nPad niet gevonden")~");
}

TEST_F(Kopieen, TweeInEenSecondeStaanNaastElkaar) {
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    ASSERT_FALSE(kopie.Maak());
    ASSERT_FALSE(kopie.Maak());
    EXPECT_EQ(kopie.Laatste().filename(), "2026-01-02_030405_02");
    ASSERT_FALSE(kopie.MaakZonodig());
    EXPECT_EQ(kopie.Lijst().size(), 2U);
  });
}

TEST_F(Kopieen, DeLaatsteTienBlijvenEnEenPerMaandTweeJaarLang) {
  for (const char* naam : {"2025-12-31_010101", "2025-12-30_010101", "2024-03-02_010101",
                           "2024-03-01_010101", "2024-01-31_010101", "2023-05-05_010101"}) {
    MaakLeeg(naam);
  }
  Schrijf("KOPIE/EEN/van mij.txt", "blijft");
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    for (int i = 0; i < 10; ++i) ASSERT_FALSE(kopie.Maak());
    std::string namen;
    for (const KopieRij& rij : kopie.Lijst()) {
      if (!rij.naam.starts_with("2026")) namen += rij.naam + "\n";
    }
    EXPECT_EQ(namen, "2025-12-31_010101\n2024-03-02_010101\n");
    EXPECT_EQ(kopie.Lijst().size(), 12U);
  });
  EXPECT_TRUE(Bestaat("KOPIE/EEN/van mij.txt"));
}

TEST_F(Kopieen, DeLijstTelt) {
  MaakGeschiedenis();
  Schrijf("KOPIE/EEN/2020-01-01_000000/EEN.PRS", "");
  Speelt("kies VeiligTerugzetten\ntoon KopieLijst\ndruk OKButton\ndruk BackButton",
         R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
             = KopieLijst ""
             #0 "2026-01-02 03:04:05  0 personen, 0 relaties, 0 plaatsen, 0 opmerkingregels"
             #1 "2020-01-01 00:00:00  niet te openen"
             ! uitroep "Geen veiligheidskopie gekozen"
             - KopieTerugzetten)~");
  NoteerGetoond(verslag_);
}

TEST_F(Kopieen, TijdensHetTellenKanMenWeg) {
  MaakGeschiedenis();
  MaakLeeg("2020-01-01_000000");
  Speelt("onderbreek 2\nkies VeiligTerugzetten",
         R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
             - KopieTerugzetten)~");
}

// Writes down what the dialog says at each repaint.
class Telkijker final : public Gesprek {
 public:
  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view) override { return Antwoord::OK; }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier& formulier) override {
    gezien += formulier.Zoek("TellingLabel")->Waarde() + (formulier.Bezig() ? " bezig; " : "; ");
  }
  bool StopGevraagd(Formulier&) override { return false; }
  std::string gezien;

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier& formulier) override {
    gezien += formulier.Zoek("TellingLabel")->Waarde() + (formulier.Bezig() ? "bezig" : "klaar");
    formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override {}
};

TEST_F(Kopieen, HetVensterZegtWelkeKopieWordtGeteld) {
  MaakLeeg("2020-01-01_000000");
  MaakLeeg("2020-01-02_000000");
  Telkijker kijker;
  Hoofdmodule hoofd(kijker, klok_, map_);
  ASSERT_TRUE(Start(hoofd));
  hoofd.ActieveSetNaam = "EEN";
  kijker.Toon<KopieTerugzetten>(hoofd);
  EXPECT_EQ(kijker.gezien,
            "Kopie 1 van 2 wordt geteld ... bezig; Kopie 2 van 2 wordt geteld ... bezig; klaar");
}

TEST_F(Kopieen, TerugzettenIsEenBewerkingDieOngedaanKan) {
  MaakGeschiedenis();
  const std::string voor = Inhoud("DATA/EEN/EEN.PRS");
  Speelt(
      "antwoord Nee Ja\nkies VeiligTerugzetten\nstel KopieLijst #0\ndruk OKButton\n"
      "druk OKButton",
      R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
             ? vraag Ja/Nee "De gegevens van EEN vervangen door de veiligheidskopie van 2026-01-02 03:04:05 ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt." -> Nee
             ? vraag Ja/Nee "De gegevens van EEN vervangen door de veiligheidskopie van 2026-01-02 03:04:05 ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt." -> Ja
             ! info "De veiligheidskopie is teruggezet"
             - KopieTerugzetten)~");
  EXPECT_EQ(Inhoud("DATA/EEN/EEN.PRS"), Inhoud("KOPIE/EEN/2026-01-02_030405/EEN.PRS"));
  EXPECT_EQ(Inhoud("KOPIE/EEN/2026-01-02_030405_02/EEN.PRS"), voor);
  Speelt(
      "antwoord Ja\nkies VeiligOngedaan",
      R"~(? vraag Ja/Nee "De bewerking \"Veiligheidskopie teruggezet: 2026-01-02 03:04:05\" (2026-01-02 03:04:05) ongedaan maken ?" -> Ja
             ! info "Ongedaan gemaakt: Veiligheidskopie teruggezet: 2026-01-02 03:04:05")~");
  EXPECT_EQ(Inhoud("DATA/EEN/EEN.PRS"), voor);
}

TEST_F(Kopieen, OokDeTekstenKomenTerugEnWatErStondBlijftInDeKopie) {
  Schrijf("DATA/EEN/TEKST/verslag.txt", "eerst");
  Schrijf("DATA/EEN/TEKST/onder/weg.txt", "weg");
  Speelt("kies VeiligKopie",
         R"~(! info "Veiligheidskopie gemaakt: <map>/KOPIE/EEN/2026-01-02_030405")~");
  Schrijf("DATA/EEN/TEKST/verslag.txt", "later");
  Schrijf("DATA/EEN/TEKST/nieuw.txt", "blijft");
  std::filesystem::remove_all(map_ / "DATA/EEN/TEKST/onder");
  Speelt("antwoord Ja\nkies VeiligTerugzetten\nstel KopieLijst #0\ndruk OKButton",
         R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
          ? vraag Ja/Nee "De gegevens van EEN vervangen door de veiligheidskopie van 2026-01-02 03:04:05 ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt." -> Ja
          ! info "De veiligheidskopie is teruggezet\nOok in de map TEKST; wat daar stond ligt in <map>/KOPIE/EEN/2026-01-02_030405_02/TEKST"
          - KopieTerugzetten)~");
  EXPECT_EQ(Inhoud("DATA/EEN/TEKST/verslag.txt"), "eerst");
  EXPECT_EQ(Inhoud("DATA/EEN/TEKST/onder/weg.txt"), "weg");
  EXPECT_EQ(Inhoud("DATA/EEN/TEKST/nieuw.txt"), "blijft");
  EXPECT_EQ(Inhoud("KOPIE/EEN/2026-01-02_030405_02/TEKST/verslag.txt"), "later");
}

TEST_F(Kopieen, TekstenDieNietTerugKunnenWordenGemeld) {
  Schrijf("DATA/EEN/TEKST/verslag.txt", "eerst");
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) { ASSERT_FALSE(kopie.Maak()); });
  std::filesystem::remove(map_ / "DATA/EEN/TEKST/verslag.txt");
  Schrijf("DATA/EEN/TEKST/verslag.txt/in de weg", "vol");
  Speelt("antwoord Ja\nkies VeiligTerugzetten\nstel KopieLijst #0\ndruk OKButton",
         R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
          ? vraag Ja/Nee "De gegevens van EEN vervangen door de veiligheidskopie van 2026-01-02 03:04:05 ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt." -> Ja
          ! info "De veiligheidskopie is teruggezet"
          ! stop "De map TEKST is niet geheel teruggezet\nPad is een directory"
          - KopieTerugzetten)~");
  EXPECT_EQ(Inhoud("DATA/EEN/TEKST/verslag.txt/in de weg"), "vol");
  EXPECT_FALSE(Bestaat("DATA/EEN/TEKST/verslag.txt.TMP"));
}

// The clock of a computer with an empty battery stands in the past.
TEST_F(Kopieen, DeNieuweBlijftOokMetEenKlokDieAchterLoopt) {
  for (int dag = 10; dag < 22; ++dag) MaakLeeg("2029-05-" + std::to_string(dag) + "_010101");
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    ASSERT_FALSE(kopie.Maak());
    EXPECT_EQ(kopie.Lijst().size(), 11U);
    EXPECT_EQ(kopie.Lijst().back().naam, "2026-01-02_030405");
  });
}

TEST_F(Kopieen, WieNietsGeschrevenHeeftMaaktNietsOngedaan) {
  MaakGeschiedenis();
  Doe([this](Hoofdmodule& hoofd, Veiligheidskopie& kopie) {
    ASSERT_FALSE(kopie.ZetTerug("2026-01-02_030405").fout);
    VoegToe(hoofd, "Kees");
    Journaal& journaal = *hoofd.bestanden.HetJournaal();
    ASSERT_TRUE(journaal.MaakOngedaan(4));
    // What is in the way of the next journal file keeps the copy from being put back.
    Schrijf("DATA/EEN/JOURNAAL/00000006.BEZ/vol", "");
    std::string anders = Inhoud("DATA/EEN/EEN.PRS");
    anders[1] = 'q';
    const std::string voor = Inhoud("DATA/EEN/EEN.PRS");
    SysteemFout nietVeilig;
    EXPECT_TRUE(VervangInhoud(hoofd.bestanden, {{BestandSoort::Personen, anders}},
                              "Veiligheidskopie teruggezet: 2026-01-02 03:04:05", nietVeilig));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.PRS"), voor);
    EXPECT_EQ(journaal.LaatsteTeOngedaan()->nummer, 3U);
  });
}

// Other sets have numbers in them.
TEST_F(Kopieen, CentralePlaatsenDieAlleenGroeidenBlijven) {
  std::filesystem::rename(map_ / "DATA/EEN/EEN.PLT", map_ / "DATA/PLAATS.PLT");
  const auto maak = [this](bool andere) {
    const std::string eerst = Inhoud("DATA/PLAATS.PLT");
    const std::string plaats(27, 'p');
    const SetPaden paden = SetPaden::Van(map_ / "DATA", "EEN");
    NepGesprek gesprek;
    Schrijfwijze schrijfwijze;
    Volgers volgers;
    Bestandenset bestanden;
    const auto open = [&](BestandSoort soort) {
      return bestanden.Open(soort, PadVanSoort(paden, soort));
    };
    bestanden.ZetJournaal(
        {.tijd = [] { return std::string(19, '0'); }, .bijVreemd = {}, .map = {}});
    for (const BestandSoort soort :
         {BestandSoort::Personen, BestandSoort::Relaties, BestandSoort::Opmerkingen}) {
      ASSERT_FALSE(open(soort));
    }
    ASSERT_FALSE(bestanden.Open(BestandSoort::Plaatsen, paden.centraal));
    const Opslag opslag{bestanden, volgers, gesprek, schrijfwijze};
    Veiligheidskopie kopie(opslag, klok_, paden, KopieMappenIn(map_, {}, "EEN"));
    RecordBestand& plaatsen = bestanden.Bestand(BestandSoort::Plaatsen);
    ASSERT_FALSE(plaatsen.Schrijf(2, plaats));
    ASSERT_FALSE(kopie.Maak());
    const std::string naam = kopie.Laatste().filename().string();
    ASSERT_FALSE(plaatsen.Schrijf(3, plaats));
    if (andere) {
      ASSERT_FALSE(plaatsen.Schrijf(2, std::string(27, 'q')));
    }
    ASSERT_FALSE(kopie.ZetTerug(naam).fout);
    EXPECT_EQ(Inhoud("DATA/PLAATS.PLT"), eerst.substr(0, 27) + plaats + (andere ? "" : plaats));
  };
  maak(false);
  Schrijf("DATA/PLAATS.PLT", Inhoud("DATA/PLAATS.PLT").substr(0, 27));
  maak(true);
}

TEST_F(Kopieen, EenLangereEnEenAfgekapteKopieKomenByteVoorByteTerug) {
  std::string lang = Inhoud("DATA/EEN/EEN.RLT");
  for (int i = 0; i < 200; ++i) lang += std::string(64, static_cast<char>('a' + i % 26));
  lang += "half";
  const std::string kort = Inhoud("DATA/EEN/EEN.RLT");
  Doe([&](Hoofdmodule& hoofd, Veiligheidskopie&) {
    SysteemFout nietVeilig;
    ASSERT_FALSE(
        VervangInhoud(hoofd.bestanden, {{BestandSoort::Relaties, lang}}, "Langer", nietVeilig));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), lang);
    ASSERT_FALSE(
        VervangInhoud(hoofd.bestanden, {{BestandSoort::Relaties, kort}}, "Korter", nietVeilig));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), kort);
    Journaal& journaal = *hoofd.bestanden.HetJournaal();
    EXPECT_TRUE(journaal.MaakOngedaan(2));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), lang);
    EXPECT_TRUE(journaal.MaakOngedaan(1));
    EXPECT_EQ(Inhoud("DATA/EEN/EEN.RLT"), kort);
  });
}

TEST_F(Kopieen, EenKopieDieNietHeelIsWordtNietTeruggezet) {
  MaakGeschiedenis();
  std::filesystem::remove(map_ / "KOPIE/EEN/2026-01-02_030405/EEN.PLT");
  Speelt("antwoord Ja\nkies VeiligTerugzetten\nstel KopieLijst #0\ndruk OKButton\ndruk BackButton",
         R"~(+ KopieTerugzetten "Veiligheidskopie Terugzetten"
             ? vraag Ja/Nee "De gegevens van EEN vervangen door de veiligheidskopie van 2026-01-02 03:04:05 ?\nVan wat er nu staat wordt eerst een veiligheidskopie gemaakt." -> Ja
             ! stop "De veiligheidskopie is niet teruggezet\nBestand niet gevonden"
             - KopieTerugzetten)~");
  EXPECT_EQ(Voornaam(), "Piet");
}

TEST_F(Kopieen, EenNaamDieErgensAndersHeenWijstIsErNiet) {
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    for (const char* naam : {"../TWEE/2026-01-02_030405", "..", "", "2026-01-02_030405x/.."}) {
      EXPECT_EQ(kopie.ZetTerug(naam).fout.tekst, "Deze veiligheidskopie is er niet") << naam;
    }
  });
}

TEST_F(Kopieen, VanEenVerwijderdeSetBlijvenZijEnGaatHetJournaalMee) {
  MaakGeschiedenis();
  Speelt("kies VerwijderSet\ndruk DeleteJa\ndruk OKButton",
         "+ VerwijderSetForm \"Verwijder Bestandendset\"\n"
         "! info \"De veiligheidskopie\xC3\xABn van EEN zijn er nog: <map>/KOPIE/EEN\"\n"
         "- VerwijderSetForm");
  EXPECT_FALSE(Bestaat("DATA/EEN"));
  EXPECT_TRUE(Bestaat("KOPIE/EEN/2026-01-02_030405/EEN.PRS"));
}

TEST_F(Kopieen, EenSetDieEldersInGebruikIsWordtNietVerwijderd) {
  Bestandenset ander;
  ASSERT_FALSE(ander.OpenSet(SetPaden::Van(map_ / "DATA", "TWEE")));
  ASSERT_TRUE(ander.NeemInGebruik());
  Speelt("kies VerwijderSet\nstel SetPicklist #1\ndruk DeleteJa\ndruk OKButton",
         R"~(+ VerwijderSetForm "Verwijder Bestandendset"
             ! uitroep "Deze bestandenset is al in gebruik."
             - VerwijderSetForm)~");
  EXPECT_TRUE(Bestaat("DATA/TWEE/TWEE.PRS"));
  EXPECT_TRUE(IniHeeft("Set2=TWEE,de tweede"));
}

}  // namespace
}  // namespace lb77
