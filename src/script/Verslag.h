// The lines of a transcript, and the words that script and transcript share. All results are UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"

namespace lb77 {

// "geen", "info", "uitroep", "vraag", "stop".
[[nodiscard]] std::string_view Woord(BerichtSoort soort);
// "Ja", "Nee", "OK", "Annuleren".
[[nodiscard]] std::string_view Woord(Antwoord antwoord);
// "openen", "opslaan", "map".
[[nodiscard]] std::string_view Woord(BestandsWijze wijze);
// The answer of that word; nothing when there is none.
[[nodiscard]] std::optional<Antwoord> AntwoordVan(std::string_view woord);
// The buttons of a box from left to right.
[[nodiscard]] std::vector<Antwoord> Keuzen(Knoppen knoppen);
// Those buttons with slashes between them: "Ja/Nee".
[[nodiscard]] std::string Woorden(Knoppen knoppen);

// A UTF-8 text in double quotes, with \", \\ and \n. Line ends of all kinds become \n.
[[nodiscard]] std::string AangehaaldUtf8(std::string_view utf8);
// The same of a Windows-1252 text.
[[nodiscard]] std::string Aangehaald(std::string_view windows);

// The value as a transcript tells it: "aan" or "uit", else in quotes.
[[nodiscard]] std::string WaardeTekst(const Bediening& bediening);
// "= NAAM "waarde" [uit] [verborgen]".
[[nodiscard]] std::string BedieningRegel(const Bediening& bediening);
// That line, and for a list its items behind it.
[[nodiscard]] std::vector<std::string> BedieningRegels(const Bediening& bediening);
// The whole form: its name and title, its controls (those in rows as tables), the field with the
// focus.
[[nodiscard]] std::vector<std::string> FormulierRegels(const Formulier& formulier);

// "regel 3: reden"; a line number 0 is before the first instruction.
[[nodiscard]] std::string OpRegel(int regel, std::string_view reden);

}  // namespace lb77
