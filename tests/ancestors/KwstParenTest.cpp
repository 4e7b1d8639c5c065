// Whom the ancestor report tells of a couple, and where the links of its numbers lead.
#include <gtest/gtest.h>

#include "ancestors/KwstSchrijverToets.h"

namespace lb77 {
namespace {

class KwstParen : public KwstSchrijverToets {
 protected:
  // A child whose parents have the same father, and each a mother of his own.
  void BouwHalfbroerEnZus() {
    const auto opa = set_.bouw.Man("Opa", "A");
    const auto oma1 = set_.bouw.Vrouw("Oma", "B");
    const auto oma2 = set_.bouw.Vrouw("Oma", "C");
    const auto opaVader = set_.bouw.Man("Opavader", "A");
    const auto opaMoeder = set_.bouw.Vrouw("Opamoeder", "D");
    set_.bouw.Relatie(opaVader, opaMoeder, {opa});
    const auto vader = set_.bouw.Man("Vader", "A");
    const auto moeder = set_.bouw.Vrouw("Moeder", "A");
    set_.bouw.Relatie(opa, oma1, {vader}, {{"WHuwDatum", "01-01-1800"}});
    set_.bouw.Relatie(opa, oma2, {moeder}, {{"WHuwDatum", "01-01-1810"}});
    kind_ = set_.bouw.Man("Kind", "A");
    set_.bouw.Relatie(vader, moeder, {kind_}, {{"WHuwDatum", "01-01-1830"}});
  }
  // The line of the report that begins with the anchor of that number; empty when there is none.
  [[nodiscard]] std::string RegelVan(std::string_view nummer) const {
    const std::string anker = "  <A NAME=\"" + std::string(nummer) + "\"></A>";
    const std::size_t plaats = uit_.find(anker);
    if (plaats == std::string::npos) return {};
    return uit_.substr(plaats + anker.size(), uit_.find("\r\n", plaats) - plaats - anker.size());
  }
  // The anchors that a link leads to and that are not there, but for the top.
  [[nodiscard]] std::string LosseLinks() const {
    std::string los;
    for (std::size_t p = uit_.find("HREF=\"#"); p != std::string::npos;
         p = uit_.find("HREF=\"#", p + 1)) {
      const std::string naam = uit_.substr(p + 7, uit_.find('"', p + 7) - p - 7);
      if (!Bevat("<A NAME=\"" + naam + "\">")) los += naam + " ";
    }
    return los;
  }

  std::int16_t kind_ = 0;
};

TEST_F(KwstParen, EenMoederAlleenHeeftEenEigenPunt) {
  const auto moeder = set_.bouw.Vrouw("Moeder", "B");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(0, moeder, {kind}, {{"WHuwDatum", "01-01-1800"}});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_EQ(uit_,
            "Generatie I\r\n\r\n     1  Kind A.\r\n\r\n\r\nGeneratie II\r\n\r\n"
            "     3  Moeder B.\r\n\r\n\r\n\r\n");
}

TEST_F(KwstParen, EenVaderAlleenHeeftEenEigenPunt) {
  const auto vader = set_.bouw.Man("Vader", "B");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, 0, {kind}, {{"WHuwDatum", "01-01-1800"}});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     2  Vader B.\r\n\r\n\r\n\r\n"));
}

TEST_F(KwstParen, EenEersteNummerMiddenInEenPaarLaatDeMoederZonderHuwelijk) {
  BouwHalfbroerEnZus();
  opties_.KwVanafNr = Kwartiernummer("3");
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  EXPECT_EQ(uit_.rfind("Generatie II\r\n\r\n     3  Moeder A.\r\n\r\n\r\nGeneratie III\r\n", 0), 0U)
      << uit_;
  EXPECT_FALSE(Bevat("Vader A"));
  EXPECT_FALSE(Bevat("1830"));
}

TEST_F(KwstParen, EenPaarMetEenHerhalingHeeftGeenHuwelijkEnEenPunt) {
  BouwHalfbroerEnZus();
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  // He is told with both marriages under his first number.
  EXPECT_TRUE(Bevat("     4  Opa A, tr.(2) 1.1.1810 Oma C, tr. 1.1.1800.\r\n     5  Oma B.\r\n"))
      << uit_;
  EXPECT_TRUE(Bevat("\r\n\r\n     6  = 4\r\n     7  Oma C.\r\n"));
}

TEST_F(KwstParen, EenMoederDieHerhalingIsEindigtInDePuntVanHetPaar) {
  const auto oma = set_.bouw.Vrouw("Oma", "A");
  const auto opa1 = set_.bouw.Man("Opa", "B");
  const auto opa2 = set_.bouw.Man("Opa", "C");
  const auto vader = set_.bouw.Man("Vader", "B");
  const auto moeder = set_.bouw.Vrouw("Moeder", "C");
  set_.bouw.Relatie(opa1, oma, {vader});
  set_.bouw.Relatie(opa2, oma, {moeder}, {{"WHuwDatum", "01-01-1810"}});
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, moeder, {kind});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     6  Opa C\r\n     7  = 5.\r\n")) << uit_;
}

TEST_F(KwstParen, DeOpmerkingenVanEenHerhalingStaanErNietNogEens) {
  BouwHalfbroerEnZus();
  set_.bouw.OpmerkingBijPersoon(2, 4096, {"Over opa."});
  set_.bouw.OpmerkingBijPersoon(4, 4096, {"Over oma C."});
  set_.bouw.OpmerkingBijRelatie(4, -256, {"Over hun huwelijk."});
  opties_.KwOokOpm = true;
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  EXPECT_EQ(uit_.find("Over opa."), uit_.rfind("Over opa."));
  EXPECT_TRUE(Bevat("     7  Oma C.\r\n\r\n            Over oma C.\r\n")) << uit_;
  EXPECT_FALSE(Bevat("Over hun huwelijk."));
}

TEST_F(KwstParen, EenRelatieMetAlleenEenOpmerkingBijEenGebeurtenisStaatErMee) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto moeder = set_.bouw.Vrouw("Moeder", "B");
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto relatie = set_.bouw.Relatie(vader, moeder, {kind});
  set_.bouw.OpmerkingBijRelatie(relatie, -8, {"Datum zoek."});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     2  Vader A\r\n     3  Moeder B.\r\n")) << uit_;
  opties_.KwOokOpm = true;
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     2  Vader A, tr. Datum zoek..\r\n     3  Moeder B.\r\n")) << uit_;
}

TEST_F(KwstParen, EenRelatieMetAlleenEenAlgemeneOpmerkingHeeftNietsErtussen) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto moeder = set_.bouw.Vrouw("Moeder", "B");
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto relatie = set_.bouw.Relatie(vader, moeder, {kind});
  set_.bouw.OpmerkingBijRelatie(relatie, -256, {"Een goed huwelijk."});
  opties_.KwOokOpm = true;
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(
      Bevat("     2  Vader A\r\n     3  Moeder B.\r\n\r\n            Een goed huwelijk.\r\n"))
      << uit_;
}

TEST_F(KwstParen, HetHoeveelsteHuwelijkVanDeVaderStaatErbij) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto eerste = set_.bouw.Vrouw("Eerste", "B");
  const auto moeder = set_.bouw.Vrouw("Moeder", "C");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, eerste, {}, {{"WHuwDatum", "01-01-1800"}});
  set_.bouw.Relatie(vader, moeder, {kind}, {{"WHuwDatum", "01-01-1810"}});
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(
      Bevat("     2  Vader A, tr. 1.1.1800 Eerste B, tr.(2) 1.1.1810.\r\n     3  Moeder C.\r\n"))
      << uit_;
}

TEST_F(KwstParen, VanOnbekendGeslachtIsDeAnderVanDeTweePartner) {
  const auto iemand = set_.bouw.Persoon('?', "Iemand", "A");
  const auto vrouw = set_.bouw.Vrouw("Vrouw", "B");
  const auto schoonvader = set_.bouw.Man("Schoonvader", "B");
  set_.bouw.Relatie(schoonvader, 0, {vrouw});
  set_.bouw.Relatie(iemand, vrouw, {}, {{"WHuwDatum", "01-01-1800"}});
  EXPECT_EQ(Schrijf(iemand), Einde::Klaar);
  EXPECT_TRUE(Bevat("     1  Iemand A, tr. 1.1.1800 Vrouw B, dr. van Schoonvader B.")) << uit_;
}

TEST_F(KwstParen, DePlaatsInDeRelatieMaaktEenPartnerZoonOfDochter) {
  const auto iemand = set_.bouw.Persoon('?', "Iemand", "A");
  const auto vrouw = set_.bouw.Vrouw("Vrouw", "B");
  const auto vader = set_.bouw.Man("Vader", "A");
  set_.bouw.Relatie(vader, 0, {iemand});
  set_.bouw.Relatie(iemand, vrouw, {}, {{"HuwSwPs", "1"}});
  EXPECT_EQ(Schrijf(vrouw), Einde::Klaar);
  EXPECT_TRUE(Bevat("     1  Vrouw B, samenwonend Iemand A, zn. van Vader A.")) << uit_;
}

TEST_F(KwstParen, EenRelatieZonderPartnerStaatNietBijDeAndere) {
  const auto man = set_.bouw.Man("Man", "A");
  set_.bouw.Relatie(man, 0, {}, {{"WHuwDatum", "01-01-1800"}});
  EXPECT_EQ(Schrijf(man), Einde::Klaar);
  EXPECT_TRUE(Bevat("     1  Man A.\r\n")) << uit_;
}

TEST_F(KwstParen, DeBroersVanDeMoederGaanNaarDeHerhalingVanDeVader) {
  BouwHalfbroerEnZus();
  const auto tante = set_.bouw.Vrouw("Tante", "C");
  const auto oma2 = std::int16_t{4};
  const auto overgroot = set_.bouw.Man("Overgroot", "C");
  set_.bouw.Relatie(overgroot, 0, {oma2, tante});
  opties_.KwBroerZus = BroerZus::Alle;
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  // Number 6 is a repeat, so nothing is told beside number 7, his wife.
  EXPECT_TRUE(Bevat("     7  Oma C.\r\n"));
  EXPECT_FALSE(Bevat("Tante C"));
}

TEST_F(KwstParen, VerwijzingenGaanNaarElkeOuderInDeTabel) {
  BouwHalfbroerEnZus();
  opties_.KwInHTML = true;
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  EXPECT_EQ(LosseLinks(), "");
  EXPECT_EQ(RegelVan("6"), "<A HREF=\"#3\">K</A> = 4<BR>");
  EXPECT_EQ(RegelVan("7").rfind("<A HREF=\"#3\">K</A><STRONG>Oma", 0), 0U) << RegelVan("7");
  EXPECT_EQ(RegelVan("4").rfind("<A HREF=\"#2\">K</A><A HREF=\"#8\">M</A><A HREF=\"#9\">V</A>", 0),
            0U);
}

TEST_F(KwstParen, EenGevolgdeHerhalingVerwijstOokNaarZijnOuders) {
  BouwHalfbroerEnZus();
  opties_.KwInHTML = opties_.KwVolgHerh = true;
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  EXPECT_EQ(LosseLinks(), "");
  EXPECT_EQ(RegelVan("6"),
            "<A HREF=\"#3\">K</A><A HREF=\"#12\">M</A><A HREF=\"#13\">V</A> = 4<BR>");
  EXPECT_EQ(RegelVan("12"), "<A HREF=\"#6\">K</A> = 8<BR>");
  EXPECT_EQ(RegelVan("13"), "<A HREF=\"#6\">K</A> = 9.");
}

TEST_F(KwstParen, VerwijzingenVanWieNietGeschrevenIsWordenOvergeslagen) {
  BouwHalfbroerEnZus();
  opties_.KwInHTML = opties_.KwVolgHerh = true;
  opties_.KwVanafNr = Kwartiernummer("6");
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  EXPECT_EQ(RegelVan("5"), "");
  EXPECT_EQ(RegelVan("6"),
            "<A HREF=\"#3\">K</A><A HREF=\"#12\">M</A><A HREF=\"#13\">V</A> = 4<BR>");
  EXPECT_EQ(RegelVan("8").rfind("<A HREF=\"#4\">K</A><STRONG>", 0), 0U) << RegelVan("8");
}

TEST_F(KwstParen, EenKopVerwijstNietNaarEenGeneratieDieErNietStaat) {
  BouwHalfbroerEnZus();
  opties_.KwInHTML = true;
  opties_.KwBeginNr = Kwartiernummer("5");  // with the first number left at 1
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  EXPECT_EQ(LosseLinks(), "");
  EXPECT_TRUE(Bevat("Generatie III<A NAME=\"III\"></A><A HREF=\"#IV\">(Generatie IV)</A></H4>"));
  EXPECT_TRUE(Bevat("Generatie VI<A NAME=\"VI\"></A><A HREF=\"#V\">(Generatie V)</A></H4>"));
  // Nobody of generation III has such a number, so that generation IV is the first.
  opties_.KwBeginNr = Kwartiernummer("1");
  opties_.KwVanafNr = Kwartiernummer("8");
  EXPECT_EQ(Schrijf(kind_), Einde::Klaar);
  EXPECT_TRUE(Bevat("Generatie IV<A NAME=\"IV\"></A></H4>")) << uit_;
}

TEST_F(KwstParen, EenProbandDieZijnEigenVoorouderIsStaatTelkensBijZijnBroers) {
  const auto kind = set_.bouw.Man("Kring", "A");
  const auto broer = set_.bouw.Man("Broer", "A");
  set_.bouw.Relatie(kind, 0, {kind, broer});
  opties_.KwBroerZus = BroerZus::Alle;
  EXPECT_EQ(Schrijf(kind), Einde::Klaar);
  EXPECT_TRUE(Bevat("     2  Kring A.\r\n\r\n     a. Kring A.\r\n     b. Broer A.\r\n")) << uit_;
}

}  // namespace
}  // namespace lb77
