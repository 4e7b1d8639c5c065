#include "qt/Woorden.h"

#include <QLibraryInfo>
#include <array>
#include <string_view>

namespace lb77 {

namespace {

struct Woord {
  std::string_view bron;
  const char* nederlands;
};

constexpr std::array kWoorden = {
    Woord{"&Undo", "&Ongedaan maken"},
    Woord{"&Redo", "Op&nieuw"},
    Woord{"Cu&t", "K&nippen"},
    Woord{"&Copy", "&Kopiëren"},
    Woord{"&Paste", "&Plakken"},
    Woord{"Delete", "Verwijderen"},
    Woord{"Select All", "Alles selecteren"},
    Woord{"OK", "OK"},
    Woord{"&OK", "&OK"},
    Woord{"Cancel", "Annuleren"},
    Woord{"&Cancel", "&Annuleren"},
    Woord{"&Yes", "&Ja"},
    Woord{"&No", "&Nee"},
    Woord{"Open", "Openen"},
    Woord{"&Open", "&Openen"},
    Woord{"&Save", "Op&slaan"},
    Woord{"&Choose", "&Kiezen"},
    Woord{"Look in:", "Zoeken in:"},
    Woord{"File &name:", "Bestands&naam:"},
    Woord{"&File name:", "Bestands&naam:"},
    Woord{"Files of type:", "Soort bestand:"},
    Woord{"Directory:", "Map:"},
    Woord{"Back", "Terug"},
    Woord{"Forward", "Vooruit"},
    Woord{"Parent Directory", "Bovenliggende map"},
    Woord{"Create New Folder", "Nieuwe map maken"},
    Woord{"&New Folder", "&Nieuwe map"},
    Woord{"New Folder", "Nieuwe map"},
    Woord{"List View", "Lijst"},
    Woord{"Detail View", "Details"},
    Woord{"&Rename", "&Hernoemen"},
    Woord{"&Delete", "&Verwijderen"},
    Woord{"Show &hidden files", "&Verborgen bestanden tonen"},
    Woord{"Computer", "Computer"},
    Woord{"Name", "Naam"},
    Woord{"Size", "Grootte"},
    Woord{"Date Modified", "Gewijzigd"},
    Woord{"Print", "Afdrukken"},
    Woord{"&Print", "&Afdrukken"},
    Woord{"Printer", "Printer"},
    Woord{"Print to File (PDF)", "Afdrukken naar bestand (PDF)"},
    Woord{"&Name:", "&Naam:"},
    Woord{"P&roperties", "&Eigenschappen"},
    Woord{"Location:", "Plaats:"},
    Woord{"Type:", "Soort:"},
    Woord{"Output &file:", "Uitvoer&bestand:"},
    Woord{"&Options >>", "&Opties >>"},
    Woord{"&Options <<", "&Opties <<"},
    Woord{"Copies", "Exemplaren"},
    Woord{"Copies:", "Exemplaren:"},
    Woord{"&Copies:", "&Exemplaren:"},
    Woord{"Print range", "Af te drukken"},
    Woord{"Print all", "Alles"},
    Woord{"Pages from", "Bladzijden van"},
    Woord{"to", "tot en met"},
    Woord{"Drive", "Station"},
    Woord{"Folder", "Map"},
    Woord{"Double Sided Printing", "Dubbelzijdig afdrukken"},
    Woord{"Off", "Uit"},
    Woord{"Long side binding", "Over de lange zijde"},
    Woord{"Short side binding", "Over de korte zijde"},
};

}  // namespace

QString Woorden::translate(const char*, const char* bron, const char*, int) const {
  for (const Woord& woord : kWoorden) {
    if (woord.bron == bron) return QString::fromUtf8(woord.nederlands);
  }
  return {};
}

bool LaadNederlands(QTranslator& vertaler) {
  return vertaler.load(QStringLiteral("qtbase_nl"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

}  // namespace lb77
