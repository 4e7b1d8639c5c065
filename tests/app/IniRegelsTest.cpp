#include <gtest/gtest.h>

#include "app/IniBestand.h"

namespace lb77 {
namespace {

// The pairs of a text, one a line.
std::string Paren(std::string_view tekst) {
  std::string uit;
  LeesIniRegels(
      tekst, [&](std::string_view sectie, std::string_view sleutel, std::string_view waarde) {
        uit += std::string(sectie) + "/" + std::string(sleutel) + "=" + std::string(waarde) + ";";
      });
  return uit;
}

TEST(IniRegels, BeideSoortenRegeleindenWordenGelezen) {
  EXPECT_EQ(Paren("[A]\r\nb=1\r\nc=2"), "A/b=1;A/c=2;");
  EXPECT_EQ(Paren("[A]\nb=1\nc=2\n"), "A/b=1;A/c=2;");
}

TEST(IniRegels, BlankenRondSectieSleutelEnWaardeGaanWeg) {
  EXPECT_EQ(Paren("  [ A ]  \n  b  =  1 2  \n"), "A/b=1 2;");
}

TEST(IniRegels, AlleenHetEersteIsTekenScheidt) {
  EXPECT_EQ(Paren("[A]\nb=1=2\nc==\n"), "A/b=1=2;A/c==;");
}

TEST(IniRegels, EenRegelZonderIsTekenHerhaaltHetVorigePaar) {
  EXPECT_EQ(Paren("[A]\nb=1\nlosse regel\n"), "A/b=1;A/b=1;");
}

TEST(IniRegels, EenNieuweSectieVergeetHetPaar) {
  EXPECT_EQ(Paren("[A]\nb=1\n[B]\nlosse regel\n"), "A/b=1;");
}

TEST(IniRegels, EenLegeSleutelWordtOvergeslagen) {
  EXPECT_EQ(Paren("[A]\n=1\n = 2\n"), "");
}

TEST(IniRegels, VanEenSectieVervallenHetEersteEnHetLaatsteTeken) {
  EXPECT_EQ(Paren("[Ax\nb=1\n"), "A/b=1;");
  EXPECT_EQ(Paren("[\nb=1\n"), "/b=1;");
  EXPECT_EQ(Paren("[]\nb=1\n"), "/b=1;");
}

TEST(IniRegels, EenBestandZonderRegelsGeeftNiets) {
  EXPECT_EQ(Paren(""), "");
  EXPECT_EQ(Paren("\r\n\r\n"), "");
  EXPECT_EQ(Paren(std::string(1000, '\0')), "");
}

TEST(IniRegels, EenWaardeBlijftOpHaarRegel) {
  const std::string tekst = IniRegels(
      [](SleutelPlaats plaats) { return std::string(plaats.rij == 0 ? "a\r\n[b]" : ""); });
  EXPECT_EQ(tekst.substr(0, tekst.find("Copyright")), "[Lijnboom]\r\nVersie=a  [b]\r\n");
}

TEST(IniRegels, EenGatInEenLijstBlijftEenGat) {
  const SleutelPlaats set = *VindSleutel("Sets", "Set1");
  const std::string tekst = IniRegels([&](SleutelPlaats plaats) {
    return std::string(plaats.rij == set.rij && plaats.nummer % 50 == 3 ? "x" : "");
  });
  EXPECT_NE(tekst.find("[Sets]\r\nSet3=x\r\nSet53=x\r\n\r\n[Namenfile]\r\n"), std::string::npos);
}

}  // namespace
}  // namespace lb77
