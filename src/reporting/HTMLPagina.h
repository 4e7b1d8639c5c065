// What all reports write around their text: the HTML head, the closing lines.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace lb77 {

class TekstSchrijver;

// The texts around a report; an empty one is left out.
struct PaginaTeksten {
  std::string titel;
  std::array<std::string, 3> inleiding;
  std::string copyrightRegel;
  std::string programmaRegel;
  std::string email;
  std::string emailTekst;
  std::string homePage;
  std::string homePageTekst;  // the text of the link
  std::string homePageLabel;  // the text before the link
  std::string hskHome;
  std::string hskHomeTekst;
};

// A text in double quotes, as an attribute of a tag wants it.
[[nodiscard]] std::string TussenQuotes(std::string_view tekst);
// <A NAME="naam"></A>
[[nodiscard]] std::string Anker(std::string_view naam);
// <A HREF="#naam">tekst</A>
[[nodiscard]] std::string VerwijzingNaar(std::string_view naam, std::string_view tekst);

// The head of a page; `kop` is what the browser's title says before the names ("Kwartierstaat").
void SchrijfHTMLKop(TekstSchrijver& uit, const PaginaTeksten& teksten, std::string_view kop,
                    std::string_view voornaam, std::string_view achternaam);

// "Generatie " and its number in Roman. In HTML with its anchor and with links to the generations
// beside it that lie in `eerste` to `laatste`; the heading ends with its line, in HTML with an empty
// one besides.
void SchrijfGeneratie(TekstSchrijver& uit, int generatie, int eerste, int laatste);

// The closing lines of a report, in HTML or in text, and the empty line behind them.
void SchrijfSlot(TekstSchrijver& uit, const PaginaTeksten& teksten);

// Title and introduction as lines of their own, in text only.
void SchrijfTitelInTekst(TekstSchrijver& uit, const PaginaTeksten& teksten);

// What stands around a chart: title and introduction with an empty line behind them, in HTML the head
// of the page; then, behind an empty line, the closing lines, in text with nothing behind them. In
// HTML the chart stands between "<PRE>" and "</PRE>".
void SchrijfSchemaKop(TekstSchrijver& uit, const PaginaTeksten& teksten, std::string_view kop,
                      std::string_view voornaam, std::string_view achternaam);
void SchrijfSchemaSlot(TekstSchrijver& uit, const PaginaTeksten& teksten);

}  // namespace lb77
