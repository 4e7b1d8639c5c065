#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>

#include "store/SysteemFout.h"

using namespace lb77;

namespace {

SysteemFout Van(std::errc code) {
  return FoutVan(std::make_error_code(code));
}

}  // namespace

TEST(SysteemFoutTest, GeenFoutIsGeenFout) {
  const SysteemFout fout = FoutVan({});
  EXPECT_FALSE(fout);
  EXPECT_EQ(fout.tekst, "");
}

TEST(SysteemFoutTest, BekendeFoutenHebbenHunNummerEnEenNederlandseTekst) {
  const struct {
    std::errc code;
    int nummer;
    const char* tekst;
  } rijen[] = {
      {std::errc::no_such_file_or_directory, 53, "Bestand niet gevonden"},
      {std::errc::not_a_directory, 76, "Pad niet gevonden"},
      {std::errc::permission_denied, 70, "Geen toegang"},
      {std::errc::operation_not_permitted, 70, "Geen toegang"},
      {std::errc::read_only_file_system, 70, "Schijf is alleen te lezen"},
      {std::errc::device_or_resource_busy, 70, "Bestand is in gebruik"},
      {std::errc::text_file_busy, 70, "Bestand is in gebruik"},
      {std::errc::no_space_on_device, 61, "Schijf vol"},
      {std::errc::file_too_large, 61, "Bestand te groot"},
      {std::errc::is_a_directory, 75, "Pad is een directory"},
      {std::errc::directory_not_empty, 75, "Directory is niet leeg"},
      {std::errc::too_many_symbolic_link_levels, 75, "Te veel koppelingen in het pad"},
      {std::errc::file_exists, 58, "Bestand bestaat al"},
      {std::errc::io_error, 57, "Fout van de schijf"},
      {std::errc::no_such_device, 68, "Apparaat niet beschikbaar"},
      {std::errc::no_such_device_or_address, 68, "Apparaat niet beschikbaar"},
      {std::errc::too_many_files_open, 67, "Te veel bestanden open"},
      {std::errc::too_many_files_open_in_system, 67, "Te veel bestanden open"},
      {std::errc::filename_too_long, 64, "Bestandsnaam te lang"},
      {std::errc::invalid_argument, 5, "Ongeldige opdracht"},
      {std::errc::not_enough_memory, 7, "Onvoldoende geheugen"},
      {std::errc::function_not_supported, 73, "Kan niet op dit systeem"},
      {std::errc::cross_device_link, 74, "Andere schijf"},
      {std::errc::bad_file_descriptor, 52, "Bestand is niet open"},
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(Van(rij.code).nummer, rij.nummer) << rij.tekst;
    EXPECT_EQ(Van(rij.code).tekst, rij.tekst);
  }
}

TEST(SysteemFoutTest, EenOnbekendeFoutHoudtHetNummerVanHetSysteem) {
  const SysteemFout fout = Van(std::errc::address_in_use);
  EXPECT_EQ(fout.nummer, static_cast<int>(std::errc::address_in_use));
  EXPECT_EQ(fout.tekst, "Fout van het systeem");
}

#ifdef _WIN32
TEST(SysteemFoutTest, WatDeBibliotheekNietKentVanWindowsHeeftZijnTekst) {
  const struct {
    int windows;
    const char* tekst;
  } rijen[] = {
      {21, "Apparaat niet beschikbaar"},    // no disk in it
      {1167, "Apparaat niet beschikbaar"},  // pulled out
      {53, "Apparaat niet beschikbaar"},    // another computer, that is off
      {1392, "Fout van de schijf"},         // damaged
      {303, "Bestand is in gebruik"},       // on its way out
      {225, "Geen toegang"},                // a virus, says the scanner
      {5, "Geen toegang"},
      {32, "Bestand is in gebruik"},
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(FoutVan({rij.windows, std::system_category()}).tekst, rij.tekst) << rij.windows;
  }
}
#endif

TEST(SysteemFoutTest, EenStroomDieMisluktZegtWaaromOfGeeftDeSchijfDeSchuld) {
  errno = 0;
  std::ifstream afwezig("bestaat niet");
  EXPECT_FALSE(afwezig);
  EXPECT_EQ(FoutVanStroom().nummer, kBestandNietGevonden);
  errno = 0;
  EXPECT_EQ(FoutVanStroom().tekst, "Fout van de schijf");
}

TEST(SysteemFoutTest, EenOnjuistRecordnummerIsEenFout) {
  EXPECT_TRUE(FoutRecordNummer());
  EXPECT_EQ(FoutRecordNummer().tekst, "Onjuist recordnummer");
}
