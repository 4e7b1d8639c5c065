#include "store/SysteemFout.h"

#include <array>
#include <cerrno>
#include <string_view>

#include "store/PlatformFout.h"

namespace lb77 {

namespace {

struct Regel {
  std::errc code;
  int nummer;
  std::string_view tekst;
};

constexpr std::array kRegels = {
    Regel{std::errc::no_such_file_or_directory, kBestandNietGevonden, "Bestand niet gevonden"},
    Regel{std::errc::not_a_directory, 76, "Pad niet gevonden"},
    Regel{std::errc::permission_denied, kGeenToegang, "Geen toegang"},
    Regel{std::errc::operation_not_permitted, kGeenToegang, "Geen toegang"},
    Regel{std::errc::read_only_file_system, kGeenToegang, "Schijf is alleen te lezen"},
    Regel{std::errc::device_or_resource_busy, kGeenToegang, "Bestand is in gebruik"},
    Regel{std::errc::text_file_busy, kGeenToegang, "Bestand is in gebruik"},
    Regel{std::errc::no_space_on_device, kSchijfVol, "Schijf vol"},
    Regel{std::errc::file_too_large, kSchijfVol, "Bestand te groot"},
    Regel{std::errc::is_a_directory, 75, "Pad is een directory"},
    Regel{std::errc::directory_not_empty, 75, "Directory is niet leeg"},
    Regel{std::errc::too_many_symbolic_link_levels, 75, "Te veel koppelingen in het pad"},
    Regel{std::errc::file_exists, kBestandBestaatAl, "Bestand bestaat al"},
    Regel{std::errc::io_error, 57, "Fout van de schijf"},
    Regel{std::errc::no_such_device, 68, "Apparaat niet beschikbaar"},
    Regel{std::errc::no_such_device_or_address, 68, "Apparaat niet beschikbaar"},
    Regel{std::errc::too_many_files_open, 67, "Te veel bestanden open"},
    Regel{std::errc::too_many_files_open_in_system, 67, "Te veel bestanden open"},
    Regel{std::errc::filename_too_long, 64, "Bestandsnaam te lang"},
    Regel{std::errc::invalid_argument, 5, "Ongeldige opdracht"},
    Regel{std::errc::not_enough_memory, 7, "Onvoldoende geheugen"},
    Regel{std::errc::function_not_supported, 73, "Kan niet op dit systeem"},
    Regel{std::errc::cross_device_link, 74, "Andere schijf"},
    Regel{std::errc::bad_file_descriptor, 52, "Bestand is niet open"},
};

}  // namespace

SysteemFout FoutVan(const std::error_code& code) {
  if (!code) return {};
  const std::error_code bekend = Herkend(code);
  for (const Regel& regel : kRegels) {
    if (bekend == regel.code) return {regel.nummer, std::string(regel.tekst)};
  }
  return {bekend.value(), "Fout van het systeem"};
}

SysteemFout FoutVanStroom() {
  return FoutVan({errno == 0 ? EIO : errno, std::generic_category()});
}

SysteemFout FoutNietOpen() {
  return FoutVan(std::make_error_code(std::errc::bad_file_descriptor));
}

SysteemFout FoutGeenBestand() {
  return {75, "Pad is geen gewoon bestand"};
}

SysteemFout FoutInGebruik() {
  return FoutVan(std::make_error_code(std::errc::device_or_resource_busy));
}

SysteemFout FoutRecordNummer() {
  return {63, "Onjuist recordnummer"};
}

}  // namespace lb77
