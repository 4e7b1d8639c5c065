#include "exchange/ExpAscii.h"

#include <array>

#include "exchange/AsciiSchrijver.h"

namespace lb77 {
namespace {

constexpr std::array<UitvoerVeld, 3> kVelden{
    {{"Bestandsnaam(0)", "Persoonsbestand", "BrowseButton(0)", "_PRS.TXT"},
     {"Bestandsnaam(1)", "Relatiebestand", "BrowseButton(1)", "_RLT.TXT"},
     {"Bestandsnaam(2)", "Opmerkingenbestand", "BrowseButton(2)", "_OPM.TXT"}}};

constexpr ExportSoort kSoort{
    .uitvoer = {.naam = "ExpAscii",
                .titel = "Exporteer in ASCII formaat",
                .hulp = "exporteren",
                .velden = kVelden,
                .filter = "ASCII-bestanden (*.TXT)|*.TXT|Alle Bestanden (*.*)|*.*",
                .leeg = "Export uit een leeg bestand is niet mogelijk",
                .log = "EXPORT.LOG"},
    .start = "StartExportButton"};

}  // namespace

ExpAscii::ExpAscii(Hoofdmodule& hoofd) : ExportForm(kSoort, hoofd) {}

std::unique_ptr<ExpSchrijver> ExpAscii::MaakSchrijver(UitvoerBestanden& bestanden) {
  return std::make_unique<AsciiSchrijver>(AsciiBronnen{Records(), Selectie(), Hoofd().gesprek,
                                                       bestanden.Uit(0), bestanden.Uit(1),
                                                       bestanden.Uit(2), bestanden.Log()});
}

}  // namespace lb77
