#include "exchange/ExpDump.h"

#include "exchange/DumpSchrijver.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::string_view kFilter =
    "Export-bestanden (*.TXT)|*.TXT|Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt";
constexpr std::string_view kLeeg = "Geen export mogelijk: dit is een leeg bestand";
constexpr std::string_view kVeld = "Bestandsnaam";
constexpr std::string_view kBijschrift = "Exportbestand:";
constexpr std::string_view kKnop = "BrowseButton";

constexpr UitvoerVeld kPers[] = {{kVeld, kBijschrift, kKnop, "_PRS.TXT"}};
constexpr UitvoerVeld kRel[] = {{kVeld, kBijschrift, kKnop, "_RLT.TXT"}};
constexpr UitvoerVeld kPlts[] = {{kVeld, kBijschrift, kKnop, "_PLT.TXT"}};
constexpr UitvoerVeld kOpm[] = {{kVeld, kBijschrift, kKnop, "_OPM.TXT"}};

constexpr UitvoerSoort Uitvoer(std::string_view naam, std::string_view titel,
                               std::span<const UitvoerVeld> velden, std::string_view leeg = kLeeg) {
  return {.naam = naam,
          .titel = titel,
          .hulp = "exporteren",
          .velden = velden,
          .filter = kFilter,
          .leeg = leeg,
          .log = "UITDRAAI.LOG"};
}

}  // namespace

const ExpDumpSoort kExpDumpPers{Uitvoer("ExpDumpPers", "Uitdraai Persoonsbestand", kPers),
                                "PersonenGedaan", "Personen gedaan:", kDumpPers};
const ExpDumpSoort kExpDumpRel{
    Uitvoer("ExpDumpRel", "Uitdraai Relatiebestand", kRel, "Geen Relaties aanwezig"),
    "RelatiesGedaan", "Relaties gedaan:", kDumpRel};
const ExpDumpSoort kExpDumpPlts{Uitvoer("ExpDumpPlts", "Uitdraai Plaatsbestand", kPlts),
                                "PlaatsenGedaan", "Plaatsen gedaan:", kDumpPlts};
const ExpDumpSoort kExpDumpOpm{Uitvoer("ExpDumpOpm", "Uitdraai Opmerkingenbestand", kOpm),
                               "OpmerkingenGedaan", "Opmerkingen gedaan:", kDumpOpm};

ExpDump::ExpDump(const ExpDumpSoort& soort, Hoofdmodule& hoofd)
    : UitvoerForm(soort.uitvoer, hoofd),
      Gedaan(*this, soort.teller, soort.tellerTekst),
      soort_(soort.dump) {
  Koppel(OKButton, BackButton);
}

std::int16_t ExpDump::AantalRecords() {
  return soort_.laatste(Hoofd().MaakGegevens());
}

void ExpDump::Schrijf(UitvoerBestanden& bestanden) {
  aantal_ = SchrijfDump(soort_, Records(), bestanden.Uit(0), bestanden.Log(),
                        {[this, &bestanden] { return Doorgaan(bestanden); },
                         [this](std::int32_t aantal) {
                           Gedaan.ZetTekst(GetalTekst(aantal));
                           Hoofd().gesprek.Ververs(*this);
                         }});
}

void ExpDump::SchrijfLogSlot(ExpUitvoer& log) {
  SchrijfDumpSlot(soort_, Naam(0), aantal_, log);
}

}  // namespace lb77
