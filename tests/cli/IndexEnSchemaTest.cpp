// The commands for the index and the chart of a Parenteel, also of a big family: each link has its
// target.
#include <filesystem>
#include <set>

#include "OpdrachtToets.h"
#include "steun/Plekken.h"

namespace lb77 {
namespace {

// A man with two children, and a grandchild by his daughter.
constexpr std::string_view kGedcom =
    "0 HEAD\n"
    "0 @I1@ INDI\n1 NAME Jan /Kok/\n1 SEX M\n1 FAMS @F1@\n"
    "0 @I2@ INDI\n1 NAME Piet /Kok/\n1 SEX M\n1 FAMC @F1@\n"
    "0 @I3@ INDI\n1 NAME Maria /Kok/\n1 SEX F\n1 FAMC @F1@\n1 FAMS @F2@\n"
    "0 @I4@ INDI\n1 NAME Wim /Pot/\n1 SEX M\n1 FAMC @F2@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n1 CHIL @I3@\n"
    "0 @F2@ FAM\n1 WIFE @I3@\n1 CHIL @I4@\n"
    "0 TRLR\n";

class IndexEnSchema : public OpdrachtToets {
 protected:
  static OpdrachtArgumenten Van(std::string_view persoon, std::vector<std::string> zet = {},
                                bool html = false) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", std::string(persoon)};
    argumenten.zet = std::move(zet);
    argumenten.html = html;
    return argumenten;
  }
  // What stands in quotes behind each `begin` in the output.
  [[nodiscard]] std::multiset<std::string> Attributen(std::string_view begin) const {
    std::multiset<std::string> uit;
    for (std::size_t plek = uit_.find(begin); plek != std::string::npos;
         plek = uit_.find(begin, plek + 1)) {
      const std::size_t van = plek + begin.size();
      uit.insert(uit_.substr(van, uit_.find('"', van) - van));
    }
    return uit;
  }
  // The set FAMILIE with a big family of royals; False when the file is absent.
  bool MaakGroteFamilie() {
    const auto pad = BronMap() / "../shared/data/royal92.ged";
    if (!std::filesystem::exists(pad)) return false;
    MaakFamilie(LeesBytes(pad));
    return true;
  }
};

TEST_F(IndexEnSchema, DeIndexNoemtIedereen) {
  MaakFamilie(kGedcom);
  EXPECT_EQ(Doe("index-parenteel", Van("2", {"OokLB77Box=Nee", "CopyrightBox=Nee"})), 0) << fout_;
  EXPECT_EQ(uit_,
            "Genealogie van Jan Kok\n"
            "Kok                        Jan                                -     I\n"
            "Kok                        Piet                               -     IIa\n"
            "Kok                        Maria                              -     IIb\n"
            "Pot                        Wim                                -     IIIa\n\n\n\n");
}

TEST_F(IndexEnSchema, HetSchemaTekentIedereen) {
  MaakFamilie(kGedcom);
  const std::vector<std::string> zet{"OokLB77Box=Nee", "CopyrightBox=Nee", "PosANamen=4",
                                     "OokPartnersBox=Nee"};
  EXPECT_EQ(Doe("schema-parenteel", Van("Jan Kok", zet)), 0) << fout_;
  EXPECT_EQ(uit_,
            "Genealogie van Jan Kok\n\n"
            "Jan Kok-----------</-Piet Kok\n"
            "                   \\-Maria Kok--------=-Wim Pot\n\n");
}

TEST_F(IndexEnSchema, HetSchemaInHTMLGaatLangsDeKoppelingen) {
  MaakFamilie(kGedcom);
  EXPECT_EQ(Doe("schema-parenteel", Van("2", {"HorVerBox=Verticaal", "OokVNrsBox=Ja"}, true)), 0)
      << fout_;
  EXPECT_NE(uit_.find("<PRE>\n<A NAME=\"I\">I</A>\nJan\nKok\nx N.N.\n|\n/---"), std::string::npos);
  EXPECT_EQ(Attributen("<A NAME=\""), (std::multiset<std::string>{"I", "IIa", "IIb", "IIIa"}));
}

TEST_F(IndexEnSchema, ElkeVerwijzingVanEenGroteIndexHeeftHaarDoelInDeTekst) {
  if (!MaakGroteFamilie()) GTEST_SKIP() << "the data is absent";
  ASSERT_EQ(Doe("parenteel", Van("2", {}, true)), 0) << fout_;
  const auto doelen = Attributen("<A NAME=\"");
  ASSERT_EQ(Doe("index-parenteel", Van("2", {}, true)), 0) << fout_;
  const auto verwijzingen = Attributen("<A HREF=\"GEN_DATA.HTM#");
  std::set<std::string> gezien;
  for (const std::string& label : verwijzingen) {
    EXPECT_EQ(doelen.count(label), 1U) << label;
    gezien.insert(label);
  }
  EXPECT_GT(gezien.size(), 100U);
  EXPECT_EQ(gezien.size(), doelen.size());  // nobody of the text is missing from the index
}

TEST_F(IndexEnSchema, ElkeVerwijzingVanEenGrootSchemaHeeftHaarDoel) {
  if (!MaakGroteFamilie()) GTEST_SKIP() << "the data is absent";
  ASSERT_EQ(Doe("parenteel", Van("2", {}, true)), 0) << fout_;
  const auto inTekst = Attributen("<A NAME=\"");
  for (const std::string_view richting : {"Horizontaal", "Verticaal"}) {
    const std::vector<std::string> zet{"OokVNrsBox=Ja", "HorVerBox=" + std::string(richting)};
    ASSERT_EQ(Doe("schema-parenteel", Van("2", zet, true)), 0) << fout_;
    const auto doelen = Attributen("<A NAME=\"");
    EXPECT_EQ(doelen, inTekst) << richting;
    for (const std::string& label : Attributen("<A HREF=\"#")) {
      EXPECT_EQ(doelen.count(label), 1U) << label;
    }
  }
}

}  // namespace
}  // namespace lb77
