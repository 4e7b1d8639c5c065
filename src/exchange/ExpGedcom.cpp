#include "exchange/ExpGedcom.h"

#include <string_view>
#include <utility>

#include "app/Hoofdmodule.h"
#include "exchange/Ged551Schrijver.h"
#include "exchange/GedcomSchrijver.h"
#include "exchange/ImpGedcom.h"

namespace lb77 {

namespace {

constexpr UitvoerVeld kVelden[] = {{"Bestandsnaam", "GEDCOM-bestand:", "BrowseButton", ".GED"}};

constexpr ExportSoort kSoort{.uitvoer = {.naam = "ExpGedcom",
                                         .titel = "Exporteer Gegevens - Gedcom",
                                         .hulp = "gedcom",
                                         .velden = kVelden,
                                         .filter = kGedcomFilter,
                                         .leeg = "Export uit een leeg bestand is niet mogelijk",
                                         .log = "GEDCOM.LOG"},
                             .start = "OKButton",
                             .keuze = "Utf8Box",
                             .keuzeTekst = "GEDCOM 5.5.1 in &UTF-8, voor programma's van nu"};

GedInzender Inzender(const IniClass& ini) {
  const auto waarde = [&ini](std::string_view sleutel) {
    return ini.IniWaarde("Gebruiker", sleutel);
  };
  return {.voornaam = waarde("Voornaam"),
          .naam = waarde("Naam"),
          .adres = waarde("Adres"),
          .postcode = waarde("Postcode"),
          .plaats = waarde("Plaats"),
          .land = waarde("Land"),
          .telefoon = waarde("Telefoon")};
}

}  // namespace

ExpGedcom::ExpGedcom(Hoofdmodule& hoofd) : ExportForm(kSoort, hoofd) {}

std::unique_ptr<ExpSchrijver> ExpGedcom::MaakSchrijver(UitvoerBestanden& bestanden) {
  Hoofdmodule& hoofd = Hoofd();
  GedKopGegevens kop{hoofd.klok.Nu(), Naam(0), hoofd.ActieveSetNaam, Inzender(hoofd.Ini)};
  if (Keuze->Gekozen()) {
    return std::make_unique<Ged551Schrijver>(bestanden.Uit(0), bestanden.Log(), Records(),
                                             Selectie(), std::move(kop));
  }
  return std::make_unique<GedcomSchrijver>(
      GedBronnen{Records(), Selectie(), hoofd.gesprek, bestanden.Uit(0), bestanden.Log()},
      std::move(kop));
}

}  // namespace lb77
