#include <gtest/gtest.h>

#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"
#include "steun/TijdelijkeMap.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class HTMLPaginaToets : public ::testing::Test {
 protected:
  // What `doe` writes, with plain line ends.
  template <class F>
  std::string Geschreven(F doe, bool inHTML = false) {
    TekstSchrijver uit;
    uit.ZetHTML(inHTML);
    EXPECT_TRUE(uit.Open(map_ / "uit.txt"));
    uit.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
    doe(uit);
    EXPECT_TRUE(uit.Sluit());
    std::string tekst = LeesBytes(map_ / "uit.txt");
    std::erase(tekst, '\r');
    return tekst;
  }

  TijdelijkeMap map_;
  PaginaTeksten teksten_;
};

TEST(Verwijzingen, ZettenHunNaamTussenAanhalingstekens) {
  EXPECT_EQ(Anker("12"), "<A NAME=\"12\"></A>");
  EXPECT_EQ(VerwijzingNaar("12", "V"), "<A HREF=\"#12\">V</A>");
}

TEST_F(HTMLPaginaToets, DeKopCodeertNamenTitelEnInleiding) {
  teksten_.titel = "Vader & zoon";
  teksten_.inleiding = {"Regel <1>", "", "Regel 3"};
  EXPECT_EQ(Geschreven([this](TekstSchrijver& uit) {
              SchrijfHTMLKop(uit, teksten_, "Kwartierstaat", "André"_w, "d'Ancona");
            }),
            "<HTML>\n<HEAD>\n<TITLE>\nKwartierstaat Andr&eacute; d&quot;Ancona\n</TITLE>\n</HEAD>\n"
            "<!--Gemaakt met LB77 voor Windows -->\n<BODY>\n<A NAME=TOP>\n"
            "<CENTER><H1>Vader &amp; zoon</H1></CENTER>\n<H3>Regel &lt;1&gt;</H3><BR>\n"
            "<H3>Regel 3</H3><BR>\n");
}

TEST_F(HTMLPaginaToets, EenLegeTitelWordtWeggelaten) {
  const std::string kop = Geschreven(
      [this](TekstSchrijver& uit) { SchrijfHTMLKop(uit, teksten_, "Kwartierstaat", "", ""); });
  EXPECT_EQ(kop.find("H1"), std::string::npos);
  EXPECT_EQ(kop.find("H3"), std::string::npos);
}

TEST_F(HTMLPaginaToets, EenGeneratieVerwijstNaarDieErnaast) {
  const auto kop = [this](int generatie, int eerste, int laatste, bool inHTML) {
    return Geschreven(
        [&](TekstSchrijver& uit) { SchrijfGeneratie(uit, generatie, eerste, laatste); }, inHTML);
  };
  EXPECT_EQ(kop(4, 1, 9, false), "Generatie IV\n");
  EXPECT_EQ(kop(2, 1, 3, true),
            "Generatie II<A NAME=\"II\"></A><A HREF=\"#I\">(Generatie I)</A>"
            "<A HREF=\"#III\">(Generatie III)</A></H4>\n\n");
  EXPECT_EQ(kop(2, 2, 2, true), "Generatie II<A NAME=\"II\"></A></H4>\n\n");
}

TEST_F(HTMLPaginaToets, HetSlotNoemtAlleenWatIngevuldIs) {
  teksten_.email = "jan@example.org";
  teksten_.emailTekst = "Schrijf me";
  teksten_.hskHome = "http://www.example.org";
  teksten_.hskHomeTekst = "De vereniging";
  EXPECT_EQ(Geschreven([this](TekstSchrijver& uit) { SchrijfSlot(uit, teksten_); }, true),
            "\n<HR>\n\n"
            "Schrijf me <A HREF=\"mailto:jan@example.org\">jan@example.org</A><BR>\n\n"
            "<A HREF=\"http://www.example.org\">De vereniging</A><BR>\n\n"
            "<CENTER><A HREF=#TOP>Terug naar de top</A></CENTER><BR>\n<HR>\n</BODY>\n</HTML>\n\n");
}

TEST_F(HTMLPaginaToets, HetSlotVanEenTekstSpringtTienIn) {
  teksten_.copyrightRegel = "Copyright (2026) Jan";
  teksten_.programmaRegel = "Gemaakt met LB77 voor Windows";
  EXPECT_EQ(Geschreven([this](TekstSchrijver& uit) { SchrijfSlot(uit, teksten_); }),
            "\n\n          Copyright (2026) Jan\n          Gemaakt met LB77 voor Windows\n\n");
}

TEST_F(HTMLPaginaToets, HetSlotBegintAanDeMargeWatDeTekstOokDeed) {
  EXPECT_EQ(Geschreven([this](TekstSchrijver& uit) {
              uit.ZetMarge(true, 8);
              uit.Vast("Slot.");
              SchrijfSlot(uit, teksten_);
            }),
            "        Slot.\n\n\n");
}

TEST_F(HTMLPaginaToets, TitelEnInleidingZijnInTekstGewoneRegels) {
  const auto titel = [&](TekstSchrijver& uit) { SchrijfTitelInTekst(uit, teksten_); };
  EXPECT_EQ(Geschreven(titel), "");
  teksten_.titel = "Vader & zoon";
  teksten_.inleiding = {"", "Regel 2", ""};
  EXPECT_EQ(Geschreven(titel), "Vader & zoon\nRegel 2\n");
  EXPECT_EQ(Geschreven(titel, true), "");
}

class SchemaPagina : public HTMLPaginaToets {
 protected:
  std::string Pagina(bool inHTML) {
    return Geschreven(
        [this](TekstSchrijver& uit) {
          SchrijfSchemaKop(uit, teksten_, "Genealogie", "Jan", "Bos");
          uit.VolleRegel("I");
          SchrijfSchemaSlot(uit, teksten_);
        },
        inHTML);
  }
};

TEST_F(SchemaPagina, HeeftInTekstEenLegeRegelAchterDeTitelEnVoorHetSlot) {
  EXPECT_EQ(Pagina(false), "I\n\n");
  teksten_.inleiding = {"Inleiding", "", ""};
  teksten_.copyrightRegel = "Copyright (2026) Jan";
  EXPECT_EQ(Pagina(false), "Inleiding\n\nI\n\n          Copyright (2026) Jan\n");
}

TEST_F(SchemaPagina, StaatInHTMLTussenPre) {
  teksten_.titel = "Bos";
  const std::string pagina = Pagina(true);
  EXPECT_NE(pagina.find("Genealogie Jan Bos\n</TITLE>"), std::string::npos);
  EXPECT_NE(
      pagina.find("<CENTER><H1>Bos</H1></CENTER>\n<BR>\n<PRE>\nI\n\n</PRE>\n\n<HR>\n\n<CENTER>"),
      std::string::npos);
  EXPECT_TRUE(pagina.ends_with("</HTML>\n\n"));
}

}  // namespace
}  // namespace lb77
