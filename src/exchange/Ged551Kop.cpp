#include "exchange/Ged551Kop.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "exchange/EigenPaden.h"
#include "exchange/Ged551Datum.h"
#include "exchange/Ged551Plaats.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kNaam = 60;
constexpr std::size_t kAdres = 60;
constexpr std::size_t kPostcode = 10;
constexpr std::size_t kTelefoon = 25;
constexpr std::size_t kLang = 90;

// The name of a file in a path of any system.
std::string_view Bestandsnaam(std::string_view pad) {
  return pad.substr(pad.find_last_of("/\\") + 1);  // behind npos stands all of it
}

void Veld(Ged551Regels& uit, int level, std::string_view tag, std::string_view waarde,
          std::size_t lengte) {
  const std::string_view tekst = Trim(Trim(waarde).substr(0, lengte));
  if (!tekst.empty()) uit.Regel(level, tag, tekst);
}

std::string Naam(const GedInzender& wie) {
  return std::string(Trim(std::string(Trim(wie.voornaam)).append(" ").append(Trim(wie.naam))));
}

void SchrijfAdres(const GedInzender& wie, Ged551Regels& uit) {
  if (Trim(wie.adres).empty()) return;
  Veld(uit, 1, "ADDR", wie.adres, kAdres);
  Veld(uit, 2, "ADR1", wie.adres, kAdres);
  Veld(uit, 2, "CITY", wie.plaats, kAdres);
  Veld(uit, 2, "POST", wie.postcode, kPostcode);
  Veld(uit, 2, "CTRY", wie.land, kAdres);
}

void SchrijfInzender(const GedInzender& wie, Ged551Regels& uit) {
  const std::string naam = Naam(wie);
  uit.Record('S', 1, "SUBM");
  Veld(uit, 1, "NAME", naam.empty() ? "Onbekend" : naam, kNaam);
  SchrijfAdres(wie, uit);
  Veld(uit, 1, "PHON", wie.telefoon, kTelefoon);
}

std::string Vandaag(const Tijdstip& nu) {
  const OpslagDatum datum{static_cast<std::int16_t>(nu.dag * 100 + nu.maand),
                          static_cast<std::int16_t>(nu.jaar)};
  return Ged551Dag(datum).value_or("");
}

std::string Tijd(const Tijdstip& nu) {
  return NulGevuld(nu.uur, 2) + ":" + NulGevuld(nu.minuut, 2) + ":" + NulGevuld(nu.seconde, 2);
}

}  // namespace

void SchrijfGed551Kop(const GedKopGegevens& kop, Ged551Regels& uit) {
  uit.Begin();
  uit.Regel(1, "SOUR", "LB77");
  uit.Regel(2, "VERS", LB77_VERSIE);
  uit.Regel(2, "NAME", "LB77");
  uit.Regel(1, "DATE", Vandaag(kop.nu));
  uit.Regel(2, "TIME", Tijd(kop.nu));
  uit.Verwijzing(1, "SUBM", 'S', 1);
  Veld(uit, 1, "FILE", Bestandsnaam(kop.bestandsnaam), kLang);
  Veld(uit, 1, "COPR", Naam(kop.inzender), kLang);
  uit.Regel(1, "GEDC");
  uit.Regel(2, "VERS", "5.5.1");
  uit.Regel(2, "FORM", "LINEAGE-LINKED");
  uit.Regel(1, "CHAR", "UTF-8");
  uit.Regel(1, "LANG", "Dutch");
  // Before all that an import from elsewhere would not know.
  uit.Regel(1, eigen::kVorm, eigen::kVormNu);
  uit.Regel(1, "PLAC");
  uit.Regel(2, "FORM", kGed551PlaatsVorm);
  SchrijfInzender(kop.inzender, uit);
}

}  // namespace lb77
