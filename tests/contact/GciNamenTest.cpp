// Surnames in which several names stand.
#include <gtest/gtest.h>

#include "contact/GciNamen.h"

namespace lb77 {
namespace {

using Namen = std::vector<std::string>;

std::vector<GciReeks> Van(const Namen& namen) {
  std::vector<GciReeks> reeksen;
  for (const std::string& naam : namen) reeksen.push_back({naam, 3, 1800, 1810, 4, 7});
  return reeksen;
}

Namen NamenVan(const std::vector<GciReeks>& reeksen) {
  Namen namen;
  for (const GciReeks& reeks : reeksen) {
    namen.push_back(reeks.naam);
    EXPECT_EQ(reeks.plaats, 3);
    EXPECT_EQ(reeks.van, 1800);
    EXPECT_EQ(reeks.tot, 1810);
    EXPECT_EQ(reeks.aantal, 4);
    EXPECT_EQ(reeks.laatste, 7);
  }
  return namen;
}

Namen Gesplitst(const Namen& namen) {
  std::vector<GciReeks> reeksen = Van(namen);
  EXPECT_TRUE(SplitsNamen(reeksen));
  return NamenVan(reeksen);
}

// `ongeldig` gets what was said of names that don't fit.
Namen Opgelost(const Namen& namen, const Namen& ongeldig = {}) {
  std::vector<GciReeks> reeksen = Van(namen);
  Namen gemeld;
  EXPECT_TRUE(LosHaakjesOp(reeksen, [&](const std::string& naam) { gemeld.push_back(naam); }));
  EXPECT_EQ(gemeld, ongeldig);
  return NamenVan(reeksen);
}

TEST(OngeldigTeken, IsHetEersteDatInDeNaamStaat) {
  EXPECT_EQ(OngeldigTeken("Jan>sen<"), '>');
  for (const char teken : {'<', '>', '{', '}'}) {
    EXPECT_EQ(OngeldigTeken(std::string("Jan") + teken), teken);
  }
  EXPECT_EQ(OngeldigTeken("Jans(s)[e]n/x,y\\z"), std::nullopt);
  EXPECT_EQ(OngeldigTeken(""), std::nullopt);
}

TEST(SplitsNamen, DeRechterBlijftEnDeLinkerKomtErbij) {
  EXPECT_EQ(Gesplitst({"Jansen/Smit", "Bos"}), (Namen{"Smit", "Bos", "Jansen"}));
  EXPECT_EQ(Gesplitst({"Jansen, Smit"}), (Namen{"Smit", "Jansen"}));
  EXPECT_EQ(Gesplitst({"Jansen \\ Smit"}), (Namen{"Smit", "Jansen"}));
}

TEST(SplitsNamen, GaatDoorTotErNietsMeerTeSplitsenIs) {
  EXPECT_EQ(Gesplitst({"a/b,c\\d"}), (Namen{"d", "a", "b", "c"}));
}

TEST(SplitsNamen, EenLeegDeelIsGeenNaam) {
  EXPECT_EQ(Gesplitst({"/Jansen"}), Namen{"Jansen"});
  EXPECT_EQ(Gesplitst({"Jansen/"}), Namen{"Jansen"});
  EXPECT_EQ(Gesplitst({" / ", "Bos", ",,"}), Namen{"Bos"});
}

TEST(SplitsNamen, LaatHaakjesEnAndereNamenStaan) {
  EXPECT_EQ(Gesplitst({"van der Berg", "Jans(s)en"}), (Namen{"van der Berg", "Jans(s)en"}));
}

TEST(SplitsNamen, EenLeegDeelVraagtGeenRuimte) {
  std::vector<GciReeks> reeksen = Van({"/Jansen", ",Bos"});
  EXPECT_TRUE(SplitsNamen(reeksen, 2));
}

TEST(SplitsNamen, ZegtHetAlsErGeenRuimteMeerIs) {
  std::vector<GciReeks> reeksen = Van({"a/b/c"});
  EXPECT_TRUE(SplitsNamen(reeksen, 3));
  reeksen = Van({"a/b/c"});
  EXPECT_FALSE(SplitsNamen(reeksen, 2));
}

TEST(LosHaakjesOp, GeeftDeNaamMetEnZonderWatErinStaat) {
  EXPECT_EQ(Opgelost({"Jans(s)en", "Bos"}), (Namen{"Janssen", "Bos", "Jansen"}));
  EXPECT_EQ(Opgelost({"Jans[s]en"}), (Namen{"Janssen", "Jansen"}));
  EXPECT_EQ(Opgelost({"Jans{s}en"}), (Namen{"Janssen", "Jansen"}));
  EXPECT_EQ(Opgelost({"Jans<s>en"}), (Namen{"Janssen", "Jansen"}));
}

TEST(LosHaakjesOp, GeeftVanElkPaarBeideVormen) {
  EXPECT_EQ(Opgelost({"(J)a[n]"}), (Namen{"Jan", "an", "Ja", "a"}));
  EXPECT_EQ(Opgelost({"(a)(b)c"}), (Namen{"abc", "bc", "ac", "c"}));
}

TEST(LosHaakjesOp, TeltDeDiepte) {
  EXPECT_EQ(Opgelost({"Jan((s)s)en"}), (Namen{"Janssen", "Janen", "Jansen"}));
}

TEST(LosHaakjesOp, IsZonderBlancoAanDeRanden) {
  EXPECT_EQ(Opgelost({"Jansen (Smit)"}), (Namen{"Jansen Smit", "Jansen"}));
  EXPECT_EQ(Opgelost({"(van )Dam"}), (Namen{"van Dam", "Dam"}));
  EXPECT_EQ(Opgelost({"( Dam )"}), Namen{"Dam"});
}

TEST(LosHaakjesOp, EenNaamZonderEvenwichtVervaltEnDeLaatsteKomtOpZijnPlek) {
  EXPECT_EQ(Opgelost({"Jans(en", "Bos", "Vos"}, {"Jans(en"}), (Namen{"Vos", "Bos"}));
  EXPECT_EQ(Opgelost({"Bos", "Jans]en"}, {"Jans]en"}), Namen{"Bos"});
  EXPECT_EQ(Opgelost({")Jansen(", "a)b(c)"}, {")Jansen(", "a)b(c)"}), Namen{});
}

TEST(LosHaakjesOp, OokDeNieuweVormenWordenBekeken) {
  EXPECT_EQ(Opgelost({"a(b[c)d]"}, {"ad]"}), (Namen{"abcd", "ab"}));
}

TEST(LosHaakjesOp, EenLegeVormIsGeenNaam) {
  EXPECT_EQ(Opgelost({"()", "Bos"}), Namen{"Bos"});
  EXPECT_EQ(Opgelost({"(Jansen)"}), Namen{"Jansen"});
}

TEST(LosHaakjesOp, ZegtHetAlsErGeenRuimteMeerIs) {
  std::vector<GciReeks> reeksen = Van({"(a)(b)(c)(d)(e)(f)(g)(h)"});
  const auto niets = [](const std::string&) { FAIL(); };
  EXPECT_TRUE(LosHaakjesOp(reeksen, niets, 256));
  EXPECT_EQ(reeksen.size(), 255U);  // one form is empty
  reeksen = Van({"(a)(b)(c)(d)(e)(f)(g)(h)"});
  EXPECT_FALSE(LosHaakjesOp(reeksen, niets, 200));
}

}  // namespace
}  // namespace lb77
