// lb77-cli: the same program without a screen.
#include <CLI/CLI.hpp>
#include <fstream>
#include <iostream>
#include <iterator>

#include "app/Start.h"
#include "cli/Opdrachten.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

constexpr int kVerkeerdGebruik = 2;

std::filesystem::path PadVanUtf8(const std::string& utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

// What the command line held, as it came.
struct Regel {
  std::string map;
  std::string klok;
  std::string draaiboek;
  std::string bestand;
  std::string naar;
  std::vector<std::string> woorden = std::vector<std::string>(2);
  std::vector<std::string> zet;
  bool html = false;
};

// A text of the command line; a character that the program cannot hold is an error of use.
std::string InWindows(const std::string& utf8) {
  const auto tekst = Utf8NaarWindows(utf8);
  if (!tekst) throw CLI::ValidationError(utf8, "bevat een teken dat LB77 niet kan opslaan");
  return *tekst;
}

void VoegWoordenToe(CLI::App& sub, const Opdracht& opdracht, Regel& regel) {
  for (std::size_t i = 0; i < opdracht.woorden.size(); ++i) {
    std::string naam(opdracht.woorden[i]);
    const bool verplicht = naam.front() != '[';
    if (!verplicht) naam = naam.substr(1, naam.size() - 2);
    sub.add_option(naam, regel.woorden[i])->required(verplicht);
  }
  if (opdracht.extra == Extra::Bestand) {
    sub.add_option("BESTAND", regel.bestand, "het GEDCOM-bestand")->required();
  }
  if (opdracht.extra == Extra::Rapport) {
    sub.add_flag("--html", regel.html, "schrijf HTML");
    sub.add_option("--uit", regel.naar, "schrijf naar dit bestand");
    sub.add_option("--zet", regel.zet, "NAAM=WAARDE: zet een keuze van het verslag")
        ->allow_extra_args(false)
        ->check([](const std::string& zet) {
          return zet.find('=') == std::string::npos ? std::string("NAAM=WAARDE verwacht")
                                                    : std::string();
        });
  }
}

OpdrachtArgumenten Argumenten(const Regel& regel) {
  OpdrachtArgumenten argumenten;
  for (const std::string& woord : regel.woorden) argumenten.woorden.push_back(InWindows(woord));
  for (const std::string& zet : regel.zet) argumenten.zet.push_back(InWindows(zet));
  if (!regel.bestand.empty()) {
    argumenten.bestand = std::filesystem::absolute(PadVanUtf8(regel.bestand));
  }
  argumenten.html = regel.html;
  if (!regel.naar.empty()) argumenten.naar = PadVanUtf8(regel.naar);
  return argumenten;
}

// The script of `speel`: a file, or standard input.
std::string LeesScript(const std::string& bestand) {
  const auto alles = [](std::istream& in) {
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  };
  if (bestand.empty()) return alles(std::cin);
  std::ifstream in(PadVanUtf8(bestand), std::ios::binary);
  if (!in) throw CLI::FileError::Missing(bestand);
  return alles(in);
}

int Voer(CLI::App& app, const Regel& regel) {
  std::optional<std::filesystem::path> map;
  if (!regel.map.empty()) map = std::filesystem::absolute(PadVanUtf8(regel.map));
  const SysteemKlok systeemKlok;
  std::optional<VasteKlok> vasteKlok;
  if (!regel.klok.empty()) vasteKlok.emplace(LeesTijdstip(regel.klok).value());
  const Klok& klok = vasteKlok ? static_cast<const Klok&>(*vasteKlok) : systeemKlok;
  const Omgeving omgeving{ZoekProgrammaMap(map), klok, std::cout, std::cerr};
  if (app.got_subcommand("speel")) {
    return SpeelDraaiboek(omgeving, LeesScript(regel.draaiboek), std::filesystem::current_path());
  }
  for (const Opdracht& opdracht : Opdrachten()) {
    if (app.got_subcommand(std::string(opdracht.naam))) {
      return opdracht.doe(omgeving, Argumenten(regel));
    }
  }
  return kVerkeerdGebruik;
}

void BeschrijfRegel(CLI::App& app, Regel& regel) {
  app.require_subcommand(1);
  app.add_option("--map", regel.map, "de map van het programma en zijn instellingen");
  app.add_option("--klok", regel.klok, "\"JJJJ-MM-DD UU:MM:SS\": neem dit voor de huidige tijd")
      ->check([](const std::string& tekst) {
        return LeesTijdstip(tekst) ? std::string() : std::string("geen tijdstip");
      });
  CLI::App* speel = app.add_subcommand("speel", "speelt een draaiboek");
  speel->add_option("BESTAND", regel.draaiboek, "het draaiboek; zonder: van de standaardinvoer");
  for (const Opdracht& opdracht : Opdrachten()) {
    VoegWoordenToe(*app.add_subcommand(std::string(opdracht.naam), std::string(opdracht.uitleg)),
                   opdracht, regel);
  }
}

int Hoofd(int argc, char** argv) {
  CLI::App app("LB77: stamboomprogramma, op de opdrachtregel");
  Regel regel;
  BeschrijfRegel(app, regel);
  try {
    app.parse(argc, argv);
    const int status = Voer(app, regel);
    std::cout.flush();
    if (std::cout) return status;
    std::cerr << "lb77-cli: de uitvoer kon niet worden geschreven\n";
    return 1;
  } catch (const CLI::ParseError& fout) {
    return app.exit(fout) == 0 ? 0 : kVerkeerdGebruik;
  } catch (const std::exception& fout) {
    std::cerr << "lb77-cli: " << fout.what() << '\n';
    return 1;
  }
}

}  // namespace
}  // namespace lb77

int main(int argc, char** argv) {
  return lb77::Hoofd(argc, argv);
}
