// The tick box of the export: a whole run with its file and its log, and how it fails.
#include <gtest/gtest.h>

#include "app/PlaatsNemen.h"
#include "exchange/ExpGedcom.h"
#include "exchange/ExportToets.h"
#include "exchange/Ged551Grammatica.h"
#include "steun/VolleSchijf.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

constexpr const char* kKies = "druk KiesAllesButton\ndruk OKButton\ndruk OKButton\n";
constexpr const char* kGekozen = R"~(
      + ExpGedcom "Exporteer Gegevens - Gedcom"
      ! uitroep "Druk in de volgende schermen steeds op VOEG TOE"
      + ExpSelPers "Exporteer gegevens - Selecteer Personen"
      - ExpSelPers
      + ExpSelRel "Exporteer gegevens - Selecteer Relaties"
      - ExpSelRel
)~";
constexpr const char* kVerslag = R"~(
      + ToonTekst "Exporteren - Resultaat"
      - ToonTekst
)~";

class ExpGedcomUtf8 : public ExportToets {
 protected:
  void SetUp() override { MaakFamilie(); }

  void Speel(const std::string& draaiboek, const std::string& verslag,
             const Plek& plek = Plek::current()) {
    SpeelForm<ExpGedcom>(draaiboek, kGekozen + verslag + "- ExpGedcom\n", plek);
  }
  // Chooses all, does `eerst`, and starts.
  static std::string Start(const std::filesystem::path& pad, std::string_view eerst) {
    return "vul Bestandsnaam " + pad.string() + "\n" + kKies + std::string(eerst) +
           "druk OKButton\ndruk BackButton\n";
  }
  [[nodiscard]] std::filesystem::path Uit() const { return Map() / "UIT.GED"; }
};

TEST_F(ExpGedcomUtf8, HetVinkjeStaatUitEnLaatHetBestandVanAltijd) {
  Speel(Start(Uit(), "toon Utf8Box\n"),
        "= Utf8Box uit\n! info \"Exporteren voltooid\"\n" + std::string(kVerslag));
  EXPECT_TRUE(LeesBytes(Uit()).starts_with("0 HEAD\r\n1 SOUR LB77_voor_Windows\r\n"));
  EXPECT_EQ(Tekst("GEDCOM.LOG").find("5.5.1"), std::string::npos);
}

TEST_F(ExpGedcomUtf8, MetHetVinkjeIsHetGedcom551) {
  Speel(Start(Uit(), "druk Utf8Box\n"), "! info \"Exporteren voltooid\"\n" + std::string(kVerslag));
  const std::string bytes = LeesBytes(Uit());
  EXPECT_EQ(GrammaticaFouten(bytes, true), std::vector<std::string>());
  EXPECT_NE(bytes.find("\r\n1 FILE UIT.GED\r\n"), std::string::npos);
  EXPECT_NE(bytes.find("akte 12"), std::string::npos);
  const std::string log = Tekst("GEDCOM.LOG");
  EXPECT_TRUE(
      log.starts_with("Start export (20000101000000)\r\n"
                      "Soort bestand: GEDCOM 5.5.1, tekenset UTF-8\r\n"
                      "Totaal 5 Personen geëxporteerd\r\n"
                      "Totaal 5 Relaties geëxporteerd\r\n"
                      "Totaal 2 Plaatsen geëxporteerd\r\n"_w))
      << log;
  EXPECT_TRUE(log.ends_with("\r\nExporteren voltooid\r\n")) << log;
}

TEST_F(ExpGedcomUtf8, EenVolleSchijfLaatHetVorigeBestandStaan) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  SchrijfBytes(Uit(), "eerder");
  for (const std::size_t ruimte : {400U, 900U}) {
    const VolleSchijf schijf(ruimte);
    Speel(Start(Uit(), "druk Utf8Box\n") + "druk BackButton\n",
          "! stop \"Bestand te groot\"\n" + std::string(kVerslag));
    EXPECT_EQ(LeesBytes(Uit()), "eerder");
    EXPECT_FALSE(std::filesystem::exists(Ernaast(Uit())));
  }
}

}  // namespace
}  // namespace lb77
