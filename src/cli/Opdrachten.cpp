#include "cli/Opdrachten.h"

namespace lb77 {

// Each stands in the file of its name.
int Sets(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Nieuw(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Importeer(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Exporteer(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
// In Uitdraai.cpp.
int Uitdraai(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Ascii(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Bladen(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
// In Lijsten.cpp.
int Selectie(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Statistiek(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Zoek(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
// In Kwartierstaat.cpp.
int Kwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int IndexKwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int SchemaKwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Gezinsblad(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
// In Genealogie.cpp.
int Genealogie(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Parenteel(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int IndexParenteel(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int SchemaParenteel(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Controle(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Contactdienst(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Verwantschap(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
// In Beelden.cpp.
int Waaier(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Kwartierboom(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Stamboom(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int TijdbalkBeeld(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
// In Kaarten.cpp.
int Personen(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Relaties(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
// In Veiligheid.cpp.
int ToonGeschiedenis(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int MaakOngedaan(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Herstel(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Kopie(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Terugzetten(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Toon(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);

namespace {

// clang-format off
constexpr Opdracht kOpdrachten[] = {
    {"sets", "toont de bestandensets", {}, Extra::Geen, Sets},
    {"nieuw", "maakt een bestandenset", {"SET", "[OMSCHRIJVING]"}, Extra::Geen, Nieuw, true},
    {"importeer", "leest een GEDCOM-bestand in", {"SET"}, Extra::Bestand, Importeer, false, true},
    {"exporteer", "schrijft personen en relaties naar een GEDCOM-bestand", {"SET"}, Extra::ExportGedcom, Exporteer},
    {"uitdraai", "schrijft alle personen, relaties, plaatsen en opmerkingen in kolommen", {"SET"}, Extra::Uitdraai, Uitdraai},
    {"ascii", "schrijft personen, relaties en opmerkingen in velden van vaste breedte", {"SET"}, Extra::Export, Ascii},
    {"kwartierstaat", "schrijft de Kwartierstaat van een persoon", {"SET", "PERSOON"}, Extra::Rapport, Kwartierstaat},
    {"index-kwartierstaat", "schrijft de index op een Kwartierstaat", {"SET", "PERSOON"}, Extra::Rapport, IndexKwartierstaat},
    {"schema-kwartierstaat", "tekent de Kwartierstaat van een persoon", {"SET", "PERSOON"}, Extra::Rapport, SchemaKwartierstaat},
    {"bladen", "schrijft alle kwartierbladen van een persoon", {"SET", "PERSOON"}, Extra::Tekstrapport, Bladen},
    {"gezinsblad", "schrijft het gezinsblad van een persoon", {"SET", "PERSOON"}, Extra::Tekstrapport, Gezinsblad},
    {"genealogie", "schrijft de nakomelingen van een persoon in de lijn van de zonen", {"SET", "PERSOON"}, Extra::Rapport, Genealogie},
    {"parenteel", "schrijft alle nakomelingen van een persoon", {"SET", "PERSOON"}, Extra::Rapport, Parenteel},
    {"index-parenteel", "schrijft de index op alle nakomelingen van een persoon", {"SET", "PERSOON"}, Extra::Rapport, IndexParenteel},
    {"schema-parenteel", "tekent alle nakomelingen van een persoon", {"SET", "PERSOON"}, Extra::Rapport, SchemaParenteel},
    {"waaier", "tekent de voorouders van een persoon in ringen, als SVG", {"SET", "PERSOON"}, Extra::Tekstrapport, Waaier},
    {"kwartierboom", "tekent de voorouders van een persoon als boom, als SVG", {"SET", "PERSOON"}, Extra::Tekstrapport, Kwartierboom},
    {"stamboom", "tekent alle nakomelingen van een persoon als boom, als SVG", {"SET", "PERSOON"}, Extra::Tekstrapport, Stamboom},
    {"tijdbalk", "tekent wanneer de nakomelingen van een persoon leefden, als SVG", {"SET", "PERSOON"}, Extra::Tekstrapport, TijdbalkBeeld},
    {"controle", "zoekt fouten in de personen, relaties, plaatsen of opmerkingen, of in alle vier", {"SET", "[SOORT]"}, Extra::Controle, Controle},
    {"personen", "schrijft de kaarten van de personen VAN t/m TOT", {"SET", "VAN", "TOT"}, Extra::Tekstrapport, Personen},
    {"relaties", "schrijft de kaarten van de relaties VAN t/m TOT", {"SET", "VAN", "TOT"}, Extra::Tekstrapport, Relaties},
    {"verwantschap", "zoekt hoe twee personen verwant zijn", {"SET", "PERSOON1", "PERSOON2"}, Extra::Tekstrapport, Verwantschap},
    {"selectie", "zoekt wat aan de keuzes van --zet voldoet: personen, relaties, plaatsen of opmerkingen", {"SET", "SOORT"}, Extra::Tekstrapport, Selectie},
    {"statistiek", "telt takken, families of een tijdbalk", {"SET", "SOORT"}, Extra::Tekstrapport, Statistiek},
    {"contactdienst", "maakt de bestanden voor de HSK Contactdienst", {"SET"}, Extra::Tekstrapport, Contactdienst},
    {"zoek", "zoekt personen op een deel van hun naam", {"SET", "NAAM"}, Extra::Geen, Zoek},
    {"geschiedenis", "toont de bewerkingen van een set, of wat nummer N wijzigde", {"SET", "[N]"}, Extra::Geen, ToonGeschiedenis},
    {"ongedaan", "maakt de laatste bewerking ongedaan, of alle t/m nummer N", {"SET", "[N]"}, Extra::Geen, MaakOngedaan, false, true},
    {"herstel", "maakt een niet voltooide bewerking ongedaan", {"SET"}, Extra::Behoud, Herstel, false, true},
    {"kopie", "maakt een veiligheidskopie", {"SET"}, Extra::Kopie, Kopie},
    {"terugzetten", "zet een veiligheidskopie terug; zonder KOPIE: toont ze", {"SET", "[KOPIE]"}, Extra::Terug, Terugzetten, false, true},
    {"toon", "toont de kaart van een persoon", {"SET", "PERSOON"}, Extra::Geen, Toon},
};
// clang-format on

}  // namespace

std::span<const Opdracht> Opdrachten() {
  return kOpdrachten;
}

}  // namespace lb77
