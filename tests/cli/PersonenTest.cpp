#include "OpdrachtToets.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n"
    "0 @I1@ INDI\n1 NAME Jan Willem /van Dam/\n1 BIRT\n2 DATE 1900\n"
    "0 @I2@ INDI\n1 NAME Piet /van der Dam/\n"
    "0 @I3@ INDI\n1 NAME Ren\xE2\x65\x65 /Brul\xE1\x65/\n"
    "0 @I4@ INDI\n1 NAME Klaas /Vries/\n"
    "0 @I5@ INDI\n1 NAME \xA5gidius /Gro\xCF/\n0 TRLR\n";

class PersonenToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }

  // The output of `zoek`, or what it told.
  std::string Zoek(const std::string& naam) {
    return Doe("zoek", {"familie", naam}) == 0 ? uit_ : "! " + fout_;
  }

  static constexpr std::string_view kJan = "     2  1900-      Jan Willem van Dam\n";
  static constexpr std::string_view kPiet = "     3      -      Piet van der Dam\n";
  static constexpr std::string_view kRene =
      "     4      -      Ren\xC3\xA9"
      "e Brul\xC3\xA8\n";
  static constexpr std::string_view kKlaas = "     5      -      Klaas Vries\n";
};

TEST_F(PersonenToets, ZoektEenDeelVanElkeNaamInKleinEnGroot) {
  EXPECT_EQ(Zoek("iET"), kPiet);
  EXPECT_EQ(Zoek("willem"), kJan);
  EXPECT_EQ(Zoek("DAM"), std::string(kJan) + std::string(kPiet));
  EXPECT_EQ(Zoek("willem van d"), kJan);
}

TEST_F(PersonenToets, AccentenVoorvoegselsEnEenSterTellenNiet) {
  EXPECT_EQ(Zoek("Klaas de Vries"), kKlaas);
  EXPECT_EQ(Zoek("willem dam"), kJan);
  EXPECT_EQ(Zoek("van der dam"), std::string(kJan) + std::string(kPiet));
  EXPECT_EQ(Zoek("van der"), kPiet);
  EXPECT_EQ(Zoek("Vri*"), kKlaas);
  EXPECT_EQ(Zoek("renee"), kRene);
  EXPECT_EQ(Zoek("aegidius gross"), "     6      -      \xC3\x86gidius Gro\xC3\x9F\n");
  EXPECT_EQ(Zoek("BRUL\xC9"), kRene);
}

TEST_F(PersonenToets, NiemandIsEenFoutMetEenWoord) {
  EXPECT_EQ(Zoek("xyz"), "! Niemand gevonden met \"xyz\" in de naam\n");
}

TEST_F(PersonenToets, EenNaamVanEenPersoonStaatVoorZijnNummer) {
  EXPECT_EQ(Doe("kwartierstaat", {"familie", "jan willem"}), 0) << fout_;
  EXPECT_NE(uit_.find("Jan Willem van Dam"), std::string::npos);
}

TEST_F(PersonenToets, EenNaamVanMeerPersonenNoemtHun) {
  EXPECT_EQ(Doe("kwartierstaat", {"familie", "dam"}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_EQ(fout_, "2 personen hebben \"dam\" in hun naam; geef een nummer:\n" + std::string(kJan) +
                       std::string(kPiet));
  EXPECT_EQ(Doe("kwartierstaat", {"familie", "x"}), 1);
  EXPECT_EQ(fout_, "Niemand gevonden met \"x\" in de naam\n");
}

}  // namespace
}  // namespace lb77
