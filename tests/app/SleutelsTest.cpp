#include <gtest/gtest.h>

#include <set>
#include <string>

#include "app/Sleutels.h"

namespace lb77 {
namespace {

TEST(Sleutels, ElkeRijWordtOnderHaarNaamGevonden) {
  for (std::size_t rij = 0; rij < AlleSleutels().size(); ++rij) {
    const Sleutel& sleutel = AlleSleutels()[rij];
    const std::string naam = std::string(sleutel.naam) + (sleutel.aantal > 0 ? "1" : "");
    const auto plaats = VindSleutel(sleutel.sectie, naam);
    ASSERT_TRUE(plaats) << sleutel.sectie << "/" << naam;
    EXPECT_EQ(plaats->rij, rij) << sleutel.sectie << "/" << naam;
  }
}

TEST(Sleutels, DeSectiesStaanAaneenEnInDeVolgordeVanHetBestand) {
  std::string volgorde;
  std::string_view vorige;
  for (const Sleutel& sleutel : AlleSleutels()) {
    if (sleutel.sectie != vorige) volgorde += std::string(sleutel.sectie) + " ";
    vorige = sleutel.sectie;
  }
  EXPECT_EQ(volgorde,
            "Lijnboom Systeem Gebruiker INTERNET Sets Namenfile Funktietoetsen Genealogie KWST GEN "
            "GENB GEZIN KWGR KWBLD GCI Scherm Printer Shell Einde ZOEK ");
}

TEST(Sleutels, EenLijstKentAlleenHaarEigenNummers) {
  EXPECT_EQ(VindSleutel("Sets", "Set99")->nummer, 99U);
  EXPECT_FALSE(VindSleutel("Sets", "Set100"));
  EXPECT_FALSE(VindSleutel("Sets", "Set0"));
  EXPECT_FALSE(VindSleutel("Sets", "Set-1"));
  EXPECT_FALSE(VindSleutel("Sets", "Set"));
  EXPECT_TRUE(VindSleutel("Namenfile", "Gez20"));
  EXPECT_FALSE(VindSleutel("Namenfile", "Gez21"));
  EXPECT_TRUE(VindSleutel("Funktietoetsen", "F12"));
  EXPECT_FALSE(VindSleutel("Funktietoetsen", "F13"));
  EXPECT_TRUE(VindSleutel("Shell", "Prog10"));
  EXPECT_FALSE(VindSleutel("Shell", "Prog11"));
}

TEST(Sleutels, NamenWordenPreciesVergeleken) {
  EXPECT_FALSE(VindSleutel("systeem", "Set"));
  EXPECT_FALSE(VindSleutel("Systeem", "set"));
  EXPECT_FALSE(VindSleutel("Systeem", "Onbekend"));
  EXPECT_FALSE(VindSleutel("", "Set"));
}

TEST(Sleutels, GedeeldeWaardenHebbenEenHouder) {
  for (const char* naam : {"OokNummers", "OokCopyRt", "OokLB77"}) {
    EXPECT_EQ(Houder(*VindSleutel("KWBLD", naam)).rij, VindSleutel("KWST", naam)->rij);
  }
  EXPECT_EQ(Houder(*VindSleutel("Gebruiker", "Email")).rij, VindSleutel("INTERNET", "Email")->rij);
  EXPECT_EQ(Houder(*VindSleutel("KWBLD", "HSK_CBG")).rij, VindSleutel("KWBLD", "HSK_CBG")->rij);
}

}  // namespace
}  // namespace lb77
