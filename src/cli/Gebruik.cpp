#include "cli/Gebruik.h"

#include <memory>
#include <string_view>

namespace lb77 {
namespace {

// Headings of a help page, by the word that the library looks them up with.
struct Kop {
  const char* woord;
  const char* tekst;
};
constexpr Kop kKoppen[] = {{"Usage", "Gebruik"},       {"OPTIONS", "KEUZES"},
                           {"SUBCOMMAND", "OPDRACHT"}, {"SUBCOMMANDS", "OPDRACHTEN"},
                           {"Positionals", "Woorden"}, {"TEXT", "TEKST"},
                           {"REQUIRED", "(verplicht)"}};

// What the library says behind the name of an option that has no value.
constexpr std::string_view kVereist = " is required";

// The option or word that an error begins with.
std::string Naam(std::string_view tekst) {
  return std::string(tekst.substr(0, tekst.find(": ")));
}

std::string Ontbreekt(std::string_view tekst) {
  if (tekst.ends_with(kVereist)) tekst.remove_suffix(kVereist.size());
  return std::string(tekst) + " ontbreekt";
}

// The words that nothing asked for, of the program and of the command given.
std::string Over(const CLI::App& app) {
  std::string uit;
  for (const std::string& woord : app.remaining(true)) uit.append(" ").append(woord);
  return uit;
}

}  // namespace

void MaakNederlands(CLI::App& app) {
  for (const Kop& kop : kKoppen) app.get_formatter()->label(kop.woord, kop.tekst);
  app.option_defaults()->group(kKeuzes);
  app.set_help_flag("-h,--help", "toont deze hulp");
}

std::string GebruiksFout(const CLI::App& app, const CLI::ParseError& fout) {
  std::string tekst = fout.what();
  const bool zonderOpdracht = app.get_subcommands().empty();
  if (dynamic_cast<const CLI::RequiredError*>(&fout)) {
    const std::string over = Over(app);
    if (!zonderOpdracht) return Ontbreekt(tekst);
    return over.empty() ? "Geef een opdracht" : "Onbekende opdracht of keuze:" + over;
  }
  if (dynamic_cast<const CLI::ExtrasError*>(&fout)) return "Onverwacht:" + Over(app);
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&fout)) {
    return Naam(tekst) + ": verkeerd aantal waarden";
  }
  // What a check of our own says is Dutch.
  if (dynamic_cast<const CLI::ValidationError*>(&fout)) return tekst;
  return Naam(tekst) + ": verkeerd gebruikt";
}

}  // namespace lb77
