#include "app/Handleiding.h"

#include <fstream>
#include <optional>
#include <string>

#include "app/Installatie.h"
#include "forms/Hulpgever.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr const char* kWegwijzer = "HULP.HTM";

// What a file's address may hold as it is.
bool IsGewoon(char teken) {
  return IsLetter(teken) || IsCijfer(teken) ||
         std::string_view("/:-._~").find(teken) != std::string_view::npos;
}

std::string Adres(const std::filesystem::path& pad) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  const std::u8string naam = std::filesystem::absolute(pad).generic_u8string();
  std::string uit = naam.starts_with(u8'/') ? "file://" : "file:///";
  for (const char8_t byte : naam) {
    const auto code = static_cast<unsigned char>(byte);
    const char teken = static_cast<char>(code);
    if (code < 128 && IsGewoon(teken)) {
      uit += teken;
    } else {
      uit.append({'%', kHex[code / 16U], kHex[code % 16U]});
    }
  }
  return uit;
}

// A page that leads on to the chapter: what opens a file for the desktop drops the place within it.
// Empty when it cannot be written.
std::optional<std::filesystem::path> MaakWegwijzer(const std::filesystem::path& temp,
                                                   const std::filesystem::path& handleiding,
                                                   std::string_view onderwerp) {
  std::filesystem::path pad = temp / kWegwijzer;
  std::ofstream uit(pad, std::ios::binary | std::ios::trunc);
  const std::string adres = Adres(handleiding) + "#" + std::string(onderwerp);
  uit << "<!DOCTYPE html>\n<html lang=\"nl\"><head><meta charset=\"utf-8\">"
      << "<title>Handleiding van LB77</title>"
      << "<meta http-equiv=\"refresh\" content=\"0; url=" << adres << "\"></head>\n"
      << "<body><a href=\"" << adres << "\">Handleiding van LB77</a></body></html>\n";
  uit.close();
  if (!uit) return std::nullopt;
  return pad;
}

std::optional<std::filesystem::path> VindHandleiding(
    const std::vector<std::filesystem::path>& installatie) {
  const auto pagina = VindInstallatie(installatie, kHandleidingPagina);
  return pagina ? pagina : VindInstallatie(installatie, kHandleidingTekst);
}

}  // namespace

void ToonHandleiding(Gesprek& gesprek, const std::vector<std::filesystem::path>& installatie,
                     const std::filesystem::path& temp, std::string_view onderwerp) {
  const auto handleiding = VindHandleiding(installatie);
  if (!handleiding) {
    gesprek.Waarschuw("De handleiding (handleiding.html) is niet bij het programma gevonden");
    return;
  }
  auto* const hulp = dynamic_cast<Hulpgever*>(&gesprek);
  if (!hulp) {
    gesprek.Informeer("De handleiding staat in " + PadTekst(*handleiding));
    return;
  }
  const bool heeftPlekken = handleiding->filename() == kHandleidingPagina && !onderwerp.empty();
  const auto weg = heeftPlekken ? MaakWegwijzer(temp, *handleiding, onderwerp) : std::nullopt;
  if (!hulp->OpenInBrowser(weg.value_or(*handleiding))) {
    gesprek.Waarschuw("Er is geen browser gevonden om de handleiding te tonen. Zij staat in " +
                      PadTekst(*handleiding));
  }
}

}  // namespace lb77
