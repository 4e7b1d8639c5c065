// The lines of both files, the log, and what happens when they can't be written.
#include <gtest/gtest.h>

#include <set>

#include "contact/ContactToets.h"
#include "contact/GciUitvoer.h"
#include "steun/Bestandsstelsel.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

GciInzender Iemand() {
  return {"123456", "van der Berg", "A.B.",         "V", "Lange Straat 1", "1234 AB",
          "Delft",  "Nederland",    "a@example.org"};
}

std::string Blanco(std::size_t aantal) {
  return std::string(aantal, ' ');
}

TEST(InzRegel, HeeftElkVeldOpZijnPlek) {
  EXPECT_EQ(InzRegel(Iemand()), "123456van der Berg" + Blanco(13) + "A.B." + Blanco(6) +
                                    "VLange Straat 1" + Blanco(14) + "1234 ABDelft" + Blanco(20) +
                                    "NL" + Blanco(13) + "a@example.org" + Blanco(22));
}

TEST(InzRegel, KaptElkVeldOpZijnBreedte) {
  const std::string lang(50, 'x');
  const GciInzender inzender{lang, lang, lang, lang, lang, lang, lang, lang, lang};
  EXPECT_EQ(InzRegel(inzender), std::string(152, 'x'));
  EXPECT_EQ(InzRegel({}), Blanco(152));
}

TEST(InzRegel, AlleenNederlandZelfWordtNL) {
  GciInzender inzender = Iemand();
  for (const char* land : {"Nederland", "NEDERLAND", " nederland "}) {
    inzender.land = land;
    EXPECT_EQ(InzRegel(inzender).substr(102, 15), "NL" + Blanco(13)) << land;
  }
  inzender.land = "Belgi\xEB";
  EXPECT_EQ(InzRegel(inzender).substr(102, 15), "Belgi\xEB" + Blanco(9));
}

TEST(InzRegel, BlijftEenRegel) {
  GciInzender inzender = Iemand();
  inzender.naam = "  Vos  ";
  EXPECT_EQ(InzRegel(inzender).substr(6, 25), "Vos" + Blanco(22));
  inzender.naam = "a\r\nb\tc";
  EXPECT_EQ(InzRegel(inzender).substr(6, 25), "a  b c" + Blanco(19));
}

TEST(FamRegel, HeeftElkVeldOpZijnPlek) {
  const GciPlaatsen plaatsen({PlaatsRij("Gravenhage, 's-", "ZH", "NL")});
  EXPECT_EQ(FamRegel({"JANSEN", 1, 1799, 1850, 3, 2}, plaatsen, "123456"),
            "JANSEN" + Blanco(19) + "Gravenhage, 's-" + Blanco(10) + "ZH NL 17991850123456");
  EXPECT_EQ(FamRegel({std::string(30, 'X'), 1, 850, 12345, 3, 2}, plaatsen, "1234567"),
            std::string(25, 'X') + "Gravenhage, 's-" + Blanco(10) + "ZH NL 850 1234123456");
  EXPECT_EQ(FamRegel({"A\nB", 1, 850, 900, 3, 2}, plaatsen, "").size(), 70U);
  EXPECT_EQ(FamRegel({"A\nB", 1, 850, 900, 3, 2}, plaatsen, "").substr(0, 4), "A B ");
}

// Fails at operations on the disk, counted from 1.
class FalendWerk final : public Bestandswerk {
 public:
  explicit FalendWerk(std::set<int> bij, SchrijfStap stap = SchrijfStap::Openen)
      : bij_(std::move(bij)), stap_(stap) {}

  SchrijfUitslag Maak(const std::filesystem::path& pad, std::string_view inhoud) override {
    if (!Treft()) return Bestandswerk::Maak(pad, inhoud);
    if (stap_ == SchrijfStap::Schrijven) {
      EXPECT_EQ(Bestandswerk::Maak(pad, inhoud.substr(0, 5)).stap, SchrijfStap::Klaar);
    }
    return {stap_, {61, "Schijf vol"}};
  }
  SysteemFout Hernoem(const std::filesystem::path& van,
                      const std::filesystem::path& naar) override {
    return Treft() ? SysteemFout{61, "Schijf vol"} : Bestandswerk::Hernoem(van, naar);
  }
  SysteemFout Verwijder(const std::filesystem::path& pad) override {
    return Treft() ? SysteemFout{75, "Geen rechten"} : Bestandswerk::Verwijder(pad);
  }

 private:
  bool Treft() { return bij_.contains(++teller_); }

  std::set<int> bij_;
  SchrijfStap stap_;
  int teller_ = 0;
};

class GciBestanden : public ::testing::Test {
 protected:
  std::optional<std::string> Schrijf(std::set<int> faalBij = {},
                                     SchrijfStap stap = SchrijfStap::Openen) {
    FalendWerk werk(std::move(faalBij), stap);
    return SchrijfContact(paden_, "inzender\r\n", "reeksen\r\n", werk);
  }
  // The files that lie there, with what they hold.
  [[nodiscard]] std::string Inhoud() const {
    std::string uit;
    for (const char* naam : {"CONTACT.FAM", "CONTACT.FAM.nieuw", "CONTACT.FAM.oud", "CONTACT.INZ",
                             "CONTACT.INZ.nieuw", "CONTACT.INZ.oud"}) {
      const std::filesystem::path pad = paden_.inz.parent_path() / naam;
      if (std::filesystem::exists(pad)) uit += std::string(naam) + ":" + LeesBytes(pad) + ";";
    }
    return uit;
  }
  void MaakOude() {
    SchrijfBytes(paden_.inz, "oud");
    SchrijfBytes(paden_.fam, "oud");
  }
  [[nodiscard]] std::string Pad(const char* naam) const { return (map_ / "TEKST" / naam).string(); }

  int bij_ = 0;
  TijdelijkeMap map_;
  GciPaden paden_ = GciPaden::In(map_ / "TEKST");
};

constexpr std::string_view kHeel = "CONTACT.FAM:reeksen\r\n;CONTACT.INZ:inzender\r\n;";
constexpr std::string_view kOud = "CONTACT.FAM:oud;CONTACT.INZ:oud;";

TEST_F(GciBestanden, KomenSamenOpHunPlaats) {
  EXPECT_EQ(Schrijf(), std::nullopt);
  EXPECT_EQ(Inhoud(), kHeel);
}

TEST_F(GciBestanden, NemenDePlaatsInVanVorige) {
  MaakOude();
  SchrijfBytes(Pad("CONTACT.INZ.nieuw"), "een rest");
  EXPECT_EQ(Schrijf(), std::nullopt);
  EXPECT_EQ(Inhoud(), kHeel);
}

TEST_F(GciBestanden, DeEersteDieNietKanEindigtHetWerk) {
  MaakOude();
  EXPECT_EQ(Schrijf({1}), "Fout: Kan uitvoerbestand voor inzendergegevens " + Pad("CONTACT.INZ") +
                              " niet openen\nSchijf vol");
  EXPECT_EQ(Inhoud(), kOud);
}

TEST_F(GciBestanden, DeTweedeDieNietKanLaatOokDeEersteZoalsHijWas) {
  MaakOude();
  EXPECT_EQ(Schrijf({2}), "Fout: Kan uitvoerbestand voor reeksen " + Pad("CONTACT.FAM") +
                              " niet openen\nSchijf vol");
  EXPECT_EQ(Inhoud(), kOud);
}

TEST_F(GciBestanden, EenSchijfDieVolRaaktHeeftZijnMelding) {
  EXPECT_EQ(Schrijf({1}, SchrijfStap::Schrijven),
            "Fout bij het schrijven van " + Pad("CONTACT.INZ") + "\nSchijf vol");
  EXPECT_EQ(Inhoud(), "");
  EXPECT_EQ(Schrijf({2}, SchrijfStap::Schrijven),
            "Fout bij het schrijven van " + Pad("CONTACT.FAM") + "\nSchijf vol");
  EXPECT_EQ(Inhoud(), "");
}

TEST_F(GciBestanden, WieNietOpZijnPlaatsKanLaatGeenRestenNa) {
  EXPECT_EQ(Schrijf({3}), "Fout: Kan uitvoerbestand voor inzendergegevens " + Pad("CONTACT.INZ") +
                              " niet openen\nSchijf vol");
  EXPECT_EQ(Inhoud(), "");
  EXPECT_EQ(Schrijf({4}), "Fout: Kan uitvoerbestand voor reeksen " + Pad("CONTACT.FAM") +
                              " niet openen\nSchijf vol");
  EXPECT_EQ(Inhoud(), "");
}

TEST_F(GciBestanden, WelkeStapOokMisluktBeideZijnVanEenExport) {
  int bij = 0;
  for (const char* naam : {"inzendergegevens", "reeksen", "inzendergegevens", "reeksen"}) {
    MaakOude();
    const auto melding = Schrijf({++bij});
    EXPECT_NE(melding.value_or("").find(naam), std::string::npos) << bij;
    EXPECT_EQ(Inhoud(), kOud) << bij;
  }
  // What is left is to take the old one away.
  EXPECT_EQ(Schrijf({++bij}), std::nullopt);
  EXPECT_EQ(Inhoud(), std::string(kHeel) + "CONTACT.INZ.oud:oud;");
  EXPECT_EQ(Schrijf(), std::nullopt);
  EXPECT_EQ(Inhoud(), kHeel);
}

TEST_F(GciBestanden, WatNietTerugTeZettenIsWordtGezegd) {
  MaakOude();
  EXPECT_EQ(Schrijf({4, 5}), "Fout: Kan uitvoerbestand voor reeksen " + Pad("CONTACT.FAM") +
                                 " niet openen\nSchijf vol\nFout bij het terugzetten van " +
                                 Pad("CONTACT.INZ") + "\nSchijf vol");
  EXPECT_EQ(Inhoud(), "CONTACT.FAM:oud;CONTACT.INZ:inzender\r\n;CONTACT.INZ.oud:oud;");
  for (const char* naam : {"CONTACT.INZ", "CONTACT.INZ.oud"}) std::filesystem::remove(Pad(naam));
  EXPECT_EQ(Schrijf({4, 5}), "Fout: Kan uitvoerbestand voor reeksen " + Pad("CONTACT.FAM") +
                                 " niet openen\nSchijf vol\nFout bij het terugzetten van " +
                                 Pad("CONTACT.INZ") + "\nGeen rechten");
}

TEST_F(GciBestanden, EenMapVanDieNaamIsInDeWeg) {
  std::filesystem::create_directories(Pad("CONTACT.FAM"));
  EXPECT_EQ(Schrijf(), "Fout: Kan uitvoerbestand voor reeksen " + Pad("CONTACT.FAM") +
                           " niet openen\nPad is een directory");
  EXPECT_FALSE(std::filesystem::exists(paden_.inz));
  EXPECT_TRUE(std::filesystem::is_directory(Pad("CONTACT.FAM")));
}

TEST_F(GciBestanden, EenBestandOpDePlaatsVanDeMapIsInDeWeg) {
  SchrijfBytes(map_ / "TEKST", "geen map");
  EXPECT_EQ(Schrijf().value_or("").substr(0, 47),
            "Fout: Kan uitvoerbestand voor inzendergegevens ");
}

TEST_F(GciBestanden, HetLogNeemtZijnPlaatsInOfZegtWaaromNiet) {
  Bestandswerk goed;
  EXPECT_EQ(SchrijfLog(paden_, "log\r\n", goed), std::nullopt);
  EXPECT_EQ(LeesBytes(paden_.log), "log\r\n");
  for (const int bij : {1, 2}) {
    FalendWerk werk({bij});
    EXPECT_EQ(SchrijfLog(paden_, "ander", werk),
              "Fout bij het schrijven van " + Pad("GCI.LOG") + "\nSchijf vol");
    EXPECT_EQ(LeesBytes(paden_.log), "log\r\n");
    EXPECT_FALSE(std::filesystem::exists(Pad("GCI.LOG.nieuw")));
  }
}

TEST(GciPaden, VindenBestandenOokInKleineLetters) {
  const TijdelijkeMap map;
  SchrijfBytes(map / "contact.inz", "");
  const GciPaden paden = GciPaden::In(map.Pad());
  EXPECT_EQ(paden.inz, map / (kKastTelt ? "contact.inz" : "CONTACT.INZ"));
  EXPECT_EQ(paden.fam, map / "CONTACT.FAM");
  EXPECT_EQ(paden.log, map / "GCI.LOG");
}

std::string Log(const GciVerslag& verslag) {
  return LogTekst(verslag, {"/a/CONTACT.INZ", "/a/CONTACT.FAM", "/a/GCI.LOG"});
}

constexpr Tijdstip kBegin{2026, 1, 2, 3, 4, 5};

TEST(LogTekst, VanEenExportZonderOvergeslagenNamen) {
  EXPECT_EQ(Log({kBegin, {}, {}, 12, {}}),
            "Log-file: /a/GCI.LOG\r\nStart export (20260102030405)\r\n"
            "Geen achternamen overgeslagen\r\nGeen plaatsnamen overgeslagen\r\n"
            "Totaal: 12 reeksen ge\xEBxporteerd\r\nUitvoerbestanden: /a/CONTACT.INZ\r\n"
            "              en: /a/CONTACT.FAM\r\nExport voltooid\r\n");
}

TEST(LogTekst, NoemtWatIsOvergeslagen) {
  const std::string een = Log({kBegin, {"A<", "B>"}, {"Oord"}, 1, {}});
  EXPECT_NE(een.find(")\r\nNaam overgeslagen: A<\r\nNaam overgeslagen: B>\r\n"
                     "Plaats overgeslagen: Oord\r\nTotaal: 1 plaats overgeslagen\r\nTotaal: 1 "),
            std::string::npos);
  EXPECT_NE(
      Log({kBegin, {}, {"Oord", "Dal\r\n"}, 1, {}})
          .find("\r\nGeen achternamen overgeslagen\r\nPlaats overgeslagen: Oord\r\n"
                "Plaats overgeslagen: Dal  \r\nTotaal: 2 plaatsen overgeslagen\r\nTotaal: 1 "),
      std::string::npos);
}

TEST(LogTekst, ZegtWaaromErGeenBestandenZijn) {
  EXPECT_EQ(
      Log({kBegin, {"A<"}, {"Oord"}, 5, "Om deze reden.\nEn die.\nEn nog een."}),
      "Log-file: /a/GCI.LOG\r\nStart export (20260102030405)\r\n"
      "Naam overgeslagen: A<\r\nPlaats overgeslagen: Oord\r\nTotaal: 1 plaats overgeslagen\r\n"
      "Om deze reden.\r\nEn die.\r\nEn nog een.\r\nGeen uitvoerbestanden aangemaakt.\r\n");
}

}  // namespace
}  // namespace lb77
