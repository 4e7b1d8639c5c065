// lb77-cli: the same program without a screen.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "app/Start.h"
#include "cli/Gebruik.h"
#include "cli/Opdrachten.h"
#include "store/PlatformUitvoer.h"
#include "store/Uitzondering.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

constexpr int kVerkeerdGebruik = 2;
constexpr const char* kOpdrachten = "Opdrachten";

int MeldGebruik(const std::string& tekst) {
  std::cerr << "lb77-cli: " << tekst << "\nlb77-cli --help toont het gebruik.\n";
  return kVerkeerdGebruik;
}

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
  std::string personen;
  std::string relaties;
  std::vector<std::string> woorden = std::vector<std::string>(kMeesteWoorden);
  std::vector<std::string> zet;
  bool html = false;
  bool utf8 = false;
  bool bewaar = false;
  bool echo = false;
  bool toch = false;
  bool behoud = false;
};

// A file or directory of the command line that cannot be used.
struct PadFout {
  std::string tekst;
};

// A text of the command line; a character that the program cannot hold is an error of use.
std::string InWindows(const std::string& utf8) {
  const auto tekst = Utf8NaarWindows(utf8);
  if (!tekst) throw CLI::ValidationError(utf8, "bevat een teken dat LB77 niet kan opslaan");
  return *tekst;
}

// A range of record numbers: "2-40", or one number.
std::string IsReeks(const std::string& reeks) {
  const std::size_t streep = reeks.find('-');
  const bool cijfers = reeks.find_first_not_of("0123456789-") == std::string::npos;
  const bool heel = !reeks.empty() && reeks.front() != '-' && reeks.back() != '-';
  return cijfers && heel && streep == reeks.rfind('-') ? std::string() : "VAN-TOT verwacht";
}

void VoegReeksenToe(CLI::App& sub, Regel& regel) {
  const auto reeks = [&sub](const char* naam, std::string& waarde, const char* uitleg) {
    sub.add_option(naam, waarde, uitleg)->type_name("VAN-TOT")->check(IsReeks);
  };
  reeks("--personen", regel.personen, "alleen deze personen");
  reeks("--relaties", regel.relaties, "alleen deze relaties");
}

void VoegWoordenToe(CLI::App& sub, const Opdracht& opdracht, Regel& regel) {
  sub.get_help_ptr()->group(kKeuzes);
  for (std::size_t i = 0; i < opdracht.woorden.size() && !opdracht.woorden[i].empty(); ++i) {
    std::string naam(opdracht.woorden[i]);
    const bool verplicht = naam.front() != '[';
    if (!verplicht) naam = naam.substr(1, naam.size() - 2);
    sub.add_option(naam, regel.woorden[i])->required(verplicht);
  }
  if (opdracht.extra == Extra::Bestand) {
    sub.add_option("BESTAND", regel.bestand, "het GEDCOM-bestand")->required();
  }
  const bool gedcom = opdracht.extra == Extra::ExportGedcom;
  if (gedcom) {
    sub.add_option("BESTAND", regel.bestand, "het bestand dat wordt gemaakt")->required();
  }
  if (gedcom || opdracht.extra == Extra::Export) VoegReeksenToe(sub, regel);
  if (gedcom) sub.add_flag("--utf8", regel.utf8, "GEDCOM 5.5.1 in UTF-8, voor programma's van nu");
  if (opdracht.schrijft) {
    sub.add_flag("--toch", regel.toch, "ook als de bestandenset al in gebruik is");
  }
  if (opdracht.extra == Extra::Behoud) {
    sub.add_flag("--behoud", regel.behoud, "laat staan wat er staat");
  }
  if (opdracht.extra == Extra::Kopie) {
    sub.add_option("--naar", regel.naar, "maak de kopie in deze map")->type_name("MAP");
    sub.add_flag("--bewaar", regel.bewaar, "ook de volgende kopieën");
  }
  if (opdracht.extra == Extra::Export || opdracht.extra == Extra::Uitdraai) {
    sub.add_option("--naar", regel.naar, "schrijf de bestanden in deze map")->type_name("MAP");
  }
  if (opdracht.extra == Extra::Terug) {
    sub.add_option("--van", regel.naar, "ook uit deze map")->type_name("MAP");
  }
  if (opdracht.extra == Extra::Rapport) sub.add_flag("--html", regel.html, "schrijf HTML");
  const bool bewaart = opdracht.extra == Extra::Rapport || opdracht.extra == Extra::Tekstrapport;
  if (bewaart) sub.add_flag("--bewaar", regel.bewaar, "bewaar de keuzes voor volgende keren");
  if (bewaart || opdracht.extra == Extra::Controle) {
    sub.add_option("--uit", regel.naar, "schrijf naar dit bestand")->type_name("BESTAND");
    sub.add_option("--zet", regel.zet, "zet een keuze van het verslag")
        ->type_name("NAAM=WAARDE")
        ->allow_extra_args(false)
        ->check([](const std::string& zet) {
          return zet.find('=') == std::string::npos ? std::string("NAAM=WAARDE verwacht")
                                                    : std::string();
        });
  }
}

OpdrachtArgumenten Argumenten(const Regel& regel) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden.clear();
  for (const std::string& woord : regel.woorden) argumenten.woorden.push_back(InWindows(woord));
  for (const std::string& zet : regel.zet) argumenten.zet.push_back(InWindows(zet));
  if (!regel.bestand.empty()) {
    argumenten.bestand = std::filesystem::absolute(PadVanUtf8(regel.bestand));
  }
  argumenten.html = regel.html;
  argumenten.bewaar = regel.bewaar;
  argumenten.toch = regel.toch;
  argumenten.behoud = regel.behoud;
  argumenten.personen = regel.personen;
  argumenten.relaties = regel.relaties;
  argumenten.utf8 = regel.utf8;
  if (!regel.naar.empty()) argumenten.naar = PadVanUtf8(regel.naar);
  return argumenten;
}

// The script of `speel`: a file, or standard input.
std::string LeesScript(const std::string& bestand) {
  const auto alles = [](std::istream& in) {
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  };
  if (bestand.empty()) return alles(std::cin);
  std::error_code code;
  const std::filesystem::path pad = PadVanUtf8(bestand);
  std::ifstream in(pad, std::ios::binary);
  if (!in || std::filesystem::is_directory(pad, code))
    throw PadFout{bestand + " kan niet worden gelezen"};
  return alles(in);
}

// The command that was given; nothing for `speel`.
const Opdracht* Gegeven(const CLI::App& app) {
  for (const Opdracht& opdracht : Opdrachten()) {
    if (app.got_subcommand(std::string(opdracht.naam))) return &opdracht;
  }
  return nullptr;
}

// The directory of --map, if any. A mistyped one would be an empty program.
std::optional<std::filesystem::path> GevraagdeMap(const Regel& regel, const Opdracht* opdracht) {
  if (regel.map.empty()) return std::nullopt;
  std::filesystem::path map = std::filesystem::absolute(PadVanUtf8(regel.map));
  std::error_code code;
  if (!std::filesystem::is_directory(map, code) && !(opdracht && opdracht->maaktMap)) {
    throw PadFout{"--map: " + regel.map + " is geen map"};
  }
  return map;
}

int Voer(const CLI::App& app, const Regel& regel) {
  const Opdracht* const opdracht = Gegeven(app);
  const auto map = GevraagdeMap(regel, opdracht);
  const SysteemKlok systeemKlok;
  std::optional<VasteKlok> vasteKlok;
  if (!regel.klok.empty()) vasteKlok.emplace(LeesTijdstip(regel.klok).value());
  const Klok& klok = vasteKlok ? static_cast<const Klok&>(*vasteKlok) : systeemKlok;
  const Omgeving omgeving{ZoekProgrammaMap(map), klok, std::cout, std::cerr};
  if (opdracht) return opdracht->doe(omgeving, Argumenten(regel));
  return SpeelDraaiboek(omgeving, LeesScript(regel.draaiboek),
                        {.basismap = std::filesystem::current_path(), .echo = regel.echo});
}

void BeschrijfRegel(CLI::App& app, Regel& regel) {
  MaakNederlands(app);
  app.allow_windows_style_options(false);  // a path may begin with a slash
  app.require_subcommand(1);
  app.set_version_flag("--version", "LB77 " LB77_VERSIE, "toont de versie");
  app.add_option("--map", regel.map, "de map van het programma en zijn instellingen")
      ->type_name("MAP");
  app.add_option("--klok", regel.klok, "\"JJJJ-MM-DD UU:MM:SS\": neem dit voor de huidige tijd")
      ->type_name("TIJD")
      ->check([](const std::string& tekst) {
        return LeesTijdstip(tekst) ? std::string() : std::string("geen tijdstip");
      });
  CLI::App* speel = app.add_subcommand("speel", "speelt een draaiboek")->group(kOpdrachten);
  speel->get_help_ptr()->group(kKeuzes);
  speel->add_option("BESTAND", regel.draaiboek, "het draaiboek; zonder: van de standaardinvoer");
  speel->add_flag("--echo", regel.echo, "zet elke instructie in het verslag");
  for (const Opdracht& opdracht : Opdrachten()) {
    VoegWoordenToe(*app.add_subcommand(std::string(opdracht.naam), std::string(opdracht.uitleg))
                        ->group(kOpdrachten),
                   opdracht, regel);
  }
}

int Hoofd(const std::vector<std::string>& woorden) {
  const Opdrachtvenster venster(std::cout, std::cerr);
  OverleefVertrokkenLezer();
  CLI::App app("LB77: stamboomprogramma, op de opdrachtregel");
  Regel regel;
  BeschrijfRegel(app, regel);
  try {
    std::vector<const char*> argv;
    for (const std::string& woord : woorden) argv.push_back(woord.c_str());
    app.parse(static_cast<int>(argv.size()), argv.data());
    const int status = Voer(app, regel);
    std::cout.flush();
    // Whoever has read enough hears nothing more.
    if (std::cout || LezerIsVertrokken()) return status;
    std::cerr << "lb77-cli: de uitvoer kon niet worden geschreven\n";
    return 1;
  } catch (const CLI::Success& hulp) {
    return app.exit(hulp);
  } catch (const CLI::ParseError& fout) {
    return MeldGebruik(GebruiksFout(app, fout));
  } catch (const PadFout& fout) {
    return MeldGebruik(fout.tekst);
  } catch (const std::exception& fout) {
    const std::string reden = WindowsNaarUtf8(UitzonderingTekst(fout));
    std::cerr << "lb77-cli: onverwachte fout" << (reden.empty() ? "" : ": ") << reden << '\n';
    return 1;
  }
}

}  // namespace
}  // namespace lb77

int main(int argc, char** argv) {
  lb77::VulStandaardstromen();
  return lb77::Hoofd(lb77::Opdrachtwoorden(argc, argv));
}
