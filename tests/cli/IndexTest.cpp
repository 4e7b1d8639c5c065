// The index command, and where the numbers of its pages lead.
#include <set>

#include "OpdrachtToets.h"
#include "steun/Plekken.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1900\n"
    "1 FAMC @F1@\n0 @I2@ INDI\n1 NAME Ren\xE2\x65 /van Dam/\n1 SEX M\n1 FAMS @F1@\n"
    "0 @F1@ FAM\n1 HUSB @I2@\n1 CHIL @I1@\n0 TRLR\n";

// What follows each `begin` in a page, up to the first of `einden`.
std::set<std::string> Achter(std::string_view pagina, std::string_view begin,
                             std::string_view einden) {
  std::set<std::string> uit;
  for (std::size_t p = pagina.find(begin); p != std::string_view::npos;
       p = pagina.find(begin, p + 1)) {
    const std::size_t van = p + begin.size();
    uit.emplace(pagina.substr(van, pagina.find_first_of(einden, van) - van));
  }
  return uit;
}

std::set<std::string> Ankers(std::string_view pagina) {
  std::set<std::string> uit = Achter(pagina, "<A NAME=\"", "\"");
  uit.merge(Achter(pagina, "<A NAME=T", ">"));  // the top has no quotes
  return uit;
}

class IndexOpdracht : public OpdrachtToets {
 protected:
  // The output of a report command on person `nr` of FAMILIE.
  std::string Rapport(std::string_view opdracht, const std::string& nr, bool html,
                      std::vector<std::string> zet = {}) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", nr};
    argumenten.html = html;
    argumenten.zet = std::move(zet);
    EXPECT_EQ(Doe(opdracht, argumenten), 0) << fout_;
    return uit_;
  }
};

TEST_F(IndexOpdracht, SchrijftDeIndexAlsUtf8) {
  MaakFamilie(kGedcom);
  EXPECT_EQ(
      Rapport("index-kwartierstaat", "2", false),
      "Dam, van                      Jan                                                     1"
      " K   1900-    \n"
      "Dam, van                      Ren\xC3\xA9                                                   "
      " 2"
      " M       -    \n"
      "\n\n          Copyright (2026)\n          Gemaakt met LB77 voor Windows\n\n");
}

TEST_F(IndexOpdracht, GaatInHTMLLangsDeKoppelingenZonderVoorbeelden) {
  MaakFamilie(kGedcom);
  const std::string pagina = Rapport("index-kwartierstaat", "2", true, {"HTMLfileTekst=jan.htm"});
  EXPECT_NE(pagina.find("<A HREF=\"jan.htm#2\">2</A>"), std::string::npos);
  EXPECT_EQ(pagina.find("example.org"), std::string::npos);
}

TEST_F(IndexOpdracht, ElkeVerwijzingVanEenGroteStamboomKomtErgensUit) {
  const auto gedcom = BronMap() / "../shared/data/royal92.ged";
  if (!std::filesystem::exists(gedcom)) GTEST_SKIP() << gedcom << " is absent";
  MaakFamilie(LeesBytes(gedcom));
  const std::vector<std::vector<std::string>> keuzen{
      {}, {"BroerZusBox=Met Alle Broers en Zussen", "KwHerhaalBox=Ja"}};
  for (const auto& zet : keuzen) {
    const std::string tekst = Rapport("kwartierstaat", "116", true, zet);
    const std::string index = Rapport("index-kwartierstaat", "116", true, zet);
    const std::set<std::string> ankers = Ankers(tekst);
    EXPECT_GT(ankers.size(), 500U);
    for (const std::string& naam : Achter(tekst, "HREF=\"#", "\"")) {
      EXPECT_TRUE(ankers.contains(naam)) << "tekst #" << naam;
    }
    const std::set<std::string> nummers = Achter(index, "HREF=\"KWSTDATA.HTM#", "\"");
    EXPECT_GT(nummers.size(), 300U);
    for (const std::string& naam : nummers) {
      EXPECT_TRUE(ankers.contains(naam)) << "index #" << naam;
    }
    EXPECT_EQ(Achter(index, "HREF=#", ">"), std::set<std::string>{"TOP"});
    EXPECT_TRUE(Ankers(index).contains("OP"));
  }
}

}  // namespace
}  // namespace lb77
