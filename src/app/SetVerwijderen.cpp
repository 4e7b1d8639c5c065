#include "app/SetVerwijderen.h"

#include <string>
#include <system_error>

#include "store/JournaalPlek.h"
#include "store/Paden.h"
#include "store/PlatformNamen.h"
#include "store/SetPaden.h"
#include "store/SysteemFout.h"
#include "text/Getallen.h"
#include "text/Pad.h"

namespace lb77 {

namespace {

SysteemFout VerwijderBestand(const std::filesystem::path& pad) {
  std::error_code code;
  if (VerwijderVanSchijf(pad, code)) return {};
  if (!code) code = std::make_error_code(std::errc::no_such_file_or_directory);
  return FoutVan(code);
}

void VerwijderMetMelding(Gesprek& gesprek, const std::filesystem::path& gevraagd,
                         std::string_view bestand) {
  const std::filesystem::path pad = VindPad(gevraagd);
  const SysteemFout fout = VerwijderBestand(pad);
  if (!fout) return;
  gesprek.Fout("Fout bij het verwijderen van het " + std::string(bestand) + " (" + PadTekst(pad) +
               ", " + GetalTekst(fout.nummer) + " " + fout.tekst + ")");
}

void VerwijderPlaatsen(Gesprek& gesprek, const std::filesystem::path& plt) {
  std::error_code code;
  if (std::filesystem::exists(std::filesystem::symlink_status(VindPad(plt), code))) {
    VerwijderMetMelding(gesprek, plt, "Plaatsbestand");
    return;
  }
  // kept: two sentences' worth of text joined without a blank
  gesprek.Waarschuw(
      "Verwijderen gaat nog even niet uit van het gebruik van een"
      "centraal plaatsbestand.");
}

// kept: the parts of the text are joined without blanks
void MeldMap(Gesprek& gesprek, const std::filesystem::path& map, std::string_view soort,
             std::string_view naam, std::string_view fout) {
  gesprek.Waarschuw("Verwijderen van de " + std::string(soort) + "-directory voor bestandenset " +
                    std::string(naam) + "is niet gelukt (" + std::string(fout) + ")." +
                    " Verwijder de directory " + PadTekst(map) + "zelf via de Windows Verkenner.");
}

// With everything in it; of a symbolic link only the link.
void VerwijderMap(Gesprek& gesprek, const std::filesystem::path& gevraagd, std::string_view soort,
                  std::string_view naam) {
  const std::filesystem::path map = VindPad(gevraagd);
  std::error_code code;
  VerwijderMapVanSchijf(map, code);
  if (code) MeldMap(gesprek, map, soort, naam, FoutVan(code).tekst);
}

// What else lies in the set's own directory is the user's, and keeps it.
void VerwijderLegeMap(Gesprek& gesprek, const std::filesystem::path& gevraagd,
                      std::string_view naam) {
  const std::filesystem::path map = VindPad(gevraagd);
  std::error_code code;
  if (!VerwijderVanSchijf(map, code) && code)
    MeldMap(gesprek, map, "data", naam, FoutVan(code).tekst);
}

}  // namespace

void VerwijderSetVanSchijf(Gesprek& gesprek, const std::filesystem::path& data,
                           std::string_view naam) {
  const SetPaden paden = SetPaden::Van(data, naam);
  const std::filesystem::path map = VindPad(paden.map);
  if (IsKoppeling(map)) {
    MeldMap(gesprek, map, "data", naam, "Het is een koppeling naar een andere directory");
    return;
  }
  VerwijderMetMelding(gesprek, paden.prs, "Persoonsbestand");
  VerwijderMetMelding(gesprek, paden.rlt, "Relatiebestand");
  VerwijderMetMelding(gesprek, paden.opm, "Opmerkingenbestand");
  VerwijderPlaatsen(gesprek, paden.plt);
  VerwijderMap(gesprek, paden.tekst, "TEKST", naam);
  VerwijderMap(gesprek, paden.index, "INDEX", naam);
  VerwijderMap(gesprek, JournaalPlek(map, naam), "JOURNAAL", naam);
  VerwijderLegeMap(gesprek, paden.map, naam);
}

}  // namespace lb77
