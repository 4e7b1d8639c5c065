#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "ancestors/KwstBladSchrijver.h"
#include "ancestors/KwstBladTekening.h"
#include "ancestors/KwstFamilie.h"
#include "ancestors/KwstStamboom.h"
#include "output/TekstSchrijver.h"
#include "output/Tekstpaginas.h"
#include "steun/Gouden.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

// Sheets without a form.
class KwstBladSchrijverToets : public ::testing::Test {
 protected:
  KwstBladSchrijverToets() { set_.schrijfwijze.DatumScheider = '-'; }

  void Bereken(std::int16_t proband) {
    opties_.KwProbandNr = proband;
    opties_.KwVolgHerh = true;
    EXPECT_EQ(BouwKwst(tabel_, opties_, set_.Persoon, set_.Relatie, set_.volgers, verloop_),
              Einde::Klaar);
  }
  // The sheet is in uit_ afterwards.
  void Schrijf(Bladvorm vorm, int wortel = 0) {
    opties_.KwBldHSK = vorm;
    TekstSchrijver schrijver;
    EXPECT_TRUE(schrijver.Open(set_.map / "uit.txt"));
    schrijver.ZetRechterMarge(kBladBreedte);
    SchrijfBlad(tabel_, wortel, opties_, Bronnen(), schrijver);
    EXPECT_TRUE(schrijver.Sluit());
    uit_ = LeesBytes(set_.map / "uit.txt");
  }
  Gegevens Bronnen() {
    return {set_.Persoon,   set_.Relatie, set_.Plaats,
            set_.Opmerking, set_.volgers, set_.schrijfwijze};
  }
  [[nodiscard]] BladTekst Tekst(int p) {
    return LeesBlad(KwstBlad(tabel_, 0), tabel_, opties_.KwOokNrs,
                    Bronnen())[static_cast<std::size_t>(p)];
  }
  [[nodiscard]] std::vector<std::string> Regels() const {
    std::vector<std::string> uit;
    std::istringstream in(uit_);
    for (std::string regel; std::getline(in, regel);) {
      if (!regel.empty() && regel.back() == '\r') regel.pop_back();
      uit.push_back(regel);
    }
    return uit;
  }
  // One page of the viewer, also on paper.
  void VerwachtEenPagina() {
    Tekstpaginas paginas;
    EXPECT_TRUE(paginas.Open(set_.map / "uit.txt"));
    EXPECT_EQ(paginas.Rijen(), 1);
    EXPECT_EQ(paginas.Kolommen(), 1);
  }
  void ZetTeksten() {
    opties_.teksten.titel = "Kwartierstaat van Gerrit Johannes van Dam";
    opties_.teksten.inleiding = {"Eerste regel", "", "Derde regel"};
    opties_.teksten.copyrightRegel = "Copyright (2026) Jan Jansen";
    opties_.teksten.programmaRegel = "Gemaakt met Lijnboom/B77";
  }
  KwstStamboom MaakStamboom() {
    const KwstStamboom boom = BouwKwstStamboom(set_.bouw);
    Bereken(boom.persoon[1]);
    return boom;
  }
  // Everybody has the longest of everything.
  void MaakLangeStamboom() {
    const KwstStamboom boom = BouwKwstStamboom(set_.bouw);
    set_.bouw.Relatie(set_.bouw.Man("Verre", "Vader"), 0, {boom.persoon[8]});
    for (int p = 1; p <= 14; ++p) {
      set_.bouw.WijzigPersoon(boom.persoon[static_cast<std::size_t>(p)],
                              {{"Voornaam", "Maximiliaan Bartholomeus Wilhel"},
                               {"Achternaam", "van Schoonhoven-Terbruggen"},
                               {"GebDatum", "01-01-1800"},
                               {"GebCorr", "T"},
                               {"DoopDatum", "31-12-1801"},
                               {"GebPlaats", "10005"},
                               {"OvlDatum", "01-01-1880"},
                               {"OvlCorr", "T"},
                               {"BegrDatum", "31-12-1881"},
                               {"OvlPlaats", "10005"}});
    }
    for (std::int16_t relatie = 2; relatie <= 8; ++relatie) {
      set_.bouw.WijzigRelatie(relatie, {{"WHuwDatum", "01-01-1830"},
                                        {"HuwCorr", "T"},
                                        {"KHuwDatum", "31-12-1831"},
                                        {"WHuwPlaats", "10005"}});
    }
    opties_.KwBeginNr = Kwartiernummer("100000000000000000000000");
    opties_.KwOokNrs = true;
    Bereken(boom.persoon[1]);
  }

  ProefSet set_;
  KwstOpties opties_;
  KwstTabel tabel_;
  Verloop verloop_{[] { return false; }, [](int, int) {}};
  std::string uit_;
};

TEST_F(KwstBladSchrijverToets, EenBladVolgensCBG) {
  MaakStamboom();
  ZetTeksten();
  Schrijf(Bladvorm::CBG);
  VerwachtGouden("kwbld/cbg.txt", uit_);
  VerwachtEenPagina();
}

TEST_F(KwstBladSchrijverToets, EenBladVolgensHSK) {
  MaakStamboom();
  ZetTeksten();
  Schrijf(Bladvorm::HSK);
  VerwachtGouden("kwbld/hsk.txt", uit_);
  VerwachtEenPagina();
}

TEST_F(KwstBladSchrijverToets, EenMensAlleen) {
  Bereken(set_.bouw.Man("Jan", "Jansen"));
  Schrijf(Bladvorm::CBG);
  VerwachtGouden("kwbld/cbg_alleen.txt", uit_);
  Schrijf(Bladvorm::HSK);
  VerwachtGouden("kwbld/hsk_alleen.txt", uit_);
}

TEST_F(KwstBladSchrijverToets, HerhalingenEnNummers) {
  opties_.KwOokNrs = true;
  Bereken(BouwKwstFamilie(set_.bouw).proband);
  Schrijf(Bladvorm::CBG);
  VerwachtGouden("kwbld/cbg_nummers.txt", uit_);
  Schrijf(Bladvorm::HSK);
  VerwachtGouden("kwbld/hsk_nummers.txt", uit_);
}

TEST_F(KwstBladSchrijverToets, EenVerderBladHeeftDeNummersVanZijnWortel) {
  Bereken(BouwVolleBoom(set_.bouw, 5));
  for (const Bladvorm vorm : {Bladvorm::CBG, Bladvorm::HSK}) {
    Schrijf(vorm, 2);
    for (const std::string_view wie : {"3. K3 Boom", "6. K6", "31. K31"}) {
      EXPECT_NE(uit_.find(wie), std::string::npos) << wie;
    }
    EXPECT_EQ(uit_.find("K2 "), std::string::npos);
  }
}

// Whatever the records hold, a sheet is one page, and nobody's text runs into another's.
TEST_F(KwstBladSchrijverToets, HetLangsteVanAllesBlijftOpEenBladzijde) {
  MaakLangeStamboom();
  ZetTeksten();
  opties_.teksten.titel = std::string(79, 'T');
  opties_.teksten.inleiding = {std::string(79, 'a'), std::string(79, 'b'), std::string(79, 'c')};
  for (const Bladvorm vorm : {Bladvorm::CBG, Bladvorm::HSK}) {
    Schrijf(vorm);
    VerwachtEenPagina();
    EXPECT_LE(Regels().size(), 69U);
    for (const std::string& regel : Regels()) EXPECT_LE(regel.size(), 79U) << regel;
  }
  VerwachtGouden("kwbld/hsk_lang.txt", uit_);
  Schrijf(Bladvorm::CBG);
  VerwachtGouden("kwbld/cbg_lang.txt", uit_);
}

// A line around it that is wider than the sheet takes two of the page.
TEST_F(KwstBladSchrijverToets, OokEenGebrokenTitelHoudtHetBladOpEenBladzijde) {
  MaakLangeStamboom();
  ZetTeksten();
  PaginaTeksten& teksten = opties_.teksten;
  teksten.titel = std::string(79, 'T');
  teksten.inleiding = {std::string(79, 'a'), std::string(79, 'b'), std::string(79, 'c')};
  const PaginaTeksten heel = teksten;
  const std::string naam = "Copyright (2026) " + std::string(52, 'J') + " Jansen";
  for (int regel = 0; regel < 6; ++regel) {  // each of them alone, then all
    teksten = heel;
    if (regel == 0 || regel == 5) teksten.titel += "TT";
    for (int i = 0; i < 3; ++i) {
      if (regel == i + 1 || regel == 5) teksten.inleiding[static_cast<std::size_t>(i)] += "xx";
    }
    if (regel >= 4) teksten.copyrightRegel = naam;
    for (const Bladvorm vorm : {Bladvorm::CBG, Bladvorm::HSK}) {
      Schrijf(vorm);
      VerwachtEenPagina();
      EXPECT_LE(Regels().size(), 69U) << regel;
    }
  }
  EXPECT_NE(uit_.find("\r\nxx\r\n"), std::string::npos);
  EXPECT_NE(uit_.find("Copyright (2026)\r\nJJ"), std::string::npos);
}

TEST_F(KwstBladSchrijverToets, EenDatumHeeftVraagtekensVoorWatOnbekendIs) {
  MaakStamboom();
  EXPECT_EQ(Tekst(1).geboren, "* 24-12-1910 Breda");
  EXPECT_EQ(Tekst(3).geboren, "* \?\?-05-1885");
  EXPECT_EQ(Tekst(10).geboren, "* \?\?-\?\?-\?\?\?\?");
  set_.schrijfwijze.DatumScheider = '.';
  EXPECT_EQ(Tekst(1).geboren, "* 24.12.1910 Breda");
  EXPECT_EQ(Tekst(10).geboren, "* \?\?-\?\?-\?\?\?\?");
}

TEST_F(KwstBladSchrijverToets, EenCorrectieStaatVoorDeDatum) {
  MaakStamboom();
  EXPECT_EQ(Tekst(2).overleden, "+ ca. \?\?-\?\?-1950 verm. Breda");
  EXPECT_EQ(Tekst(9).geboren, "* na 15-08-1822");
  EXPECT_EQ(Tekst(11).geboren, "* voor \?\?-\?\?-1830");
  EXPECT_EQ(Tekst(5).geboren, "* tussen 01-01-1855 en 31-12-1856");
}

TEST_F(KwstBladSchrijverToets, DoopEnBegrafenisStaanErZonderGeboorteEnOverlijden) {
  MaakStamboom();
  EXPECT_EQ(Tekst(4).geboren, "~ 03-02-1850 Delft");
  EXPECT_EQ(Tekst(4).overleden, "+ begr. 01-03-1920 Breda");
  EXPECT_EQ(Tekst(6).overleden, "+ crematie 05-06-1930");
  EXPECT_EQ(Tekst(3).overleden, "+ \?\?-\?\?-\?\?\?\? Leiden");
  EXPECT_EQ(Tekst(1).overleden, "");
}

TEST_F(KwstBladSchrijverToets, HetHuwelijkStaatBijDeVader) {
  MaakStamboom();
  EXPECT_EQ(Tekst(2).gehuwd, "oo 01-06-1909 Breda");
  EXPECT_EQ(Tekst(3).gehuwd, "");
  EXPECT_EQ(Tekst(4).gehuwd, "oo \?\?-\?\?-1879 Delft");
  EXPECT_EQ(Tekst(6).gehuwd, "oo otr. 02-04-1884");
  EXPECT_EQ(Tekst(8).gehuwd, "oo tussen 01-01-1848 en 31-12-1849");
  EXPECT_EQ(Tekst(10).gehuwd, "");  // only their divorce is known
  EXPECT_EQ(Tekst(12).gehuwd, "oo \?\?-\?\?-\?\?\?\? Leiden");
  EXPECT_EQ(Tekst(14).gehuwd, "");
}

TEST_F(KwstBladSchrijverToets, EenOnbekendeNaamIsVraagtekens) {
  MaakStamboom();
  EXPECT_EQ(Tekst(7).Kop(), "7. ????? Cool");
  EXPECT_EQ(Tekst(9).Kop(), "9. Trijntje ?????");
  EXPECT_EQ(Tekst(14).Kop(), "14. ?????");
  EXPECT_EQ(Tekst(15).Kop(), "15. ?????");
  EXPECT_EQ(Tekst(15).geboren, "");
}

TEST_F(KwstBladSchrijverToets, WieNietTeLezenIsLaatZijnPlaatsLeeg) {
  Bereken(BouwVolleBoom(set_.bouw, 3));
  EXPECT_EQ(Tekst(5).Kop(), "5. K5 Boom");
  set_.bouw.WijzigPersoon(6, {{"GebCorr", "Z"}, {"Geslacht", ""}});
  tabel_.Begin(2, true, Kwartiernummer("1"));
  EXPECT_TRUE(tabel_.VoegToe(900, 0, false));
  EXPECT_EQ(Tekst(2).Kop(), "2. ?????");
  EXPECT_EQ(Tekst(2).geboren, "");
}

TEST_F(KwstBladSchrijverToets, WieVerderGaatHeeftEenPijlAchterZijnNaam) {
  opties_.KwOokNrs = true;
  const KwstStamboom boom = MaakStamboom();
  EXPECT_EQ(Tekst(13).Kop(), "13. Maria Mol [" + GetalTekst(boom.persoon[13]) + "] >");
  opties_.KwOokNrs = false;
  EXPECT_EQ(Tekst(13).Kop(), "13. Maria Mol >");
  EXPECT_EQ(Tekst(12).Kop(), "12. Hendrik de Vries");
}

TEST(BladTekst, EenLangeNaamKrijgtVoorletters) {
  BladTekst tekst;
  tekst.nummer = "12.";
  tekst.voornamen = "Jan Piet Klaas";
  tekst.achternaam = "de Vries";
  tekst.achter = ">";
  EXPECT_EQ(tekst.Kop(40), "12. Jan Piet Klaas de Vries >");
  EXPECT_EQ(tekst.Kop(28), "12. Jan Piet K. de Vries >");
  EXPECT_EQ(tekst.Kop(24), "12. Jan P. K. de Vries >");
  EXPECT_EQ(tekst.Kop(23), "12. J. P. K. de Vries >");
  EXPECT_EQ(tekst.Kop(10), "12. J. P. ");
}

TEST(BreekTekst, BreektTussenWoordenEnSpringtIn) {
  using Regels = std::vector<std::string>;
  EXPECT_EQ(BreekTekst("* 01-02-1820 Delft", 20, 3), (Regels{"* 01-02-1820 Delft"}));
  EXPECT_EQ(BreekTekst("* 01-02-1820 Delft", 17, 3), (Regels{"* 01-02-1820", "  Delft"}));
  EXPECT_EQ(BreekTekst("een twee drie", 5, 9), (Regels{"een", "  twe", "  e", "  dri", "  e"}));
  EXPECT_EQ(BreekTekst("1234567890 x", 4, 9), (Regels{"1234", "  56", "  78", "  90", "  x"}));
  EXPECT_EQ(BreekTekst("a b c d", 3, 2), (Regels{"a b", "  c"}));
  EXPECT_EQ(BreekTekst("Schueren-Hogeveen", 12, 9), (Regels{"Schueren-", "  Hogeveen"}));
  EXPECT_EQ(BreekTekst("", 3, 2), (Regels{""}));
}

}  // namespace
}  // namespace lb77
