// All layouts, one function an area.
#pragma once

#include <string>
#include <vector>

#include "qt/Indeling.h"

namespace lb77::indeling {

[[nodiscard]] std::vector<Indeling> Sets();
[[nodiscard]] std::vector<Indeling> Instellen();
[[nodiscard]] std::vector<Indeling> Zoeken();
[[nodiscard]] std::vector<Indeling> Kaarten();
[[nodiscard]] std::vector<Indeling> Plaatsen();
[[nodiscard]] std::vector<Indeling> Wijzigen();
[[nodiscard]] std::vector<Indeling> Koppelen();
[[nodiscard]] std::vector<Indeling> Opmerkingen();
[[nodiscard]] std::vector<Indeling> Bekijken();
[[nodiscard]] std::vector<Indeling> Kwartierstaat();
[[nodiscard]] std::vector<Indeling> Gezinsblad();
[[nodiscard]] std::vector<Indeling> Genealogie();
[[nodiscard]] std::vector<Indeling> Uitwisseling();
[[nodiscard]] std::vector<Indeling> Contact();
[[nodiscard]] std::vector<Indeling> Veiligheid();
[[nodiscard]] std::vector<Indeling> Controle();
[[nodiscard]] std::vector<Indeling> Correctie();
[[nodiscard]] std::vector<Indeling> Rapporten();
[[nodiscard]] std::vector<Indeling> Lijsten();
[[nodiscard]] std::vector<Indeling> Beelden();

// What every form has that asks for a person.
[[nodiscard]] Blok PersoonPrompt();
// What every viewer of a text has.
[[nodiscard]] Blok TekstVenster();
// The links of a page, which all reports for the Internet ask.
[[nodiscard]] Blok InternetOpties();
// Whom a report is about: his number, names and years, in controls that end in `wie`.
[[nodiscard]] Blok Persoonshoofd(const std::string& titel, const std::string& wie);
// The title and the introduction of a report.
[[nodiscard]] Blok Titels();

// Those of all areas.
[[nodiscard]] std::vector<Indeling> Alle();

}  // namespace lb77::indeling
