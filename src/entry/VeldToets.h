// The keys of an entry field: leaving, emptying, searching, and the texts of the function keys.
#pragma once

#include <string>

#include "forms/Toets.h"
#include "forms/Velden.h"

namespace lb77 {

class Formulier;
class Hoofdmodule;

// What an entry field holds.
enum class InvoerSoort { Tekst, Datum, Persoon };

// What the form has to do behind a key.
enum class VeldActie {
  Terug = -1,   // leave without storing
  Geen = 0,     // nothing beyond the text
  Voorbij = 1,  // a key that is the field's own
  Controle = 2  // run the field's leave check
};

// Deals with a key in a field that holds `tekst`. Both may change: a keypad digit becomes a digit,
// F10 becomes Escape. A key that changed the text, or opened the search, is `verwerkt`.
[[nodiscard]] VeldActie VeldToets(ToetsGebeurtenis& toets, std::string& tekst, InvoerSoort soort,
                                  Hoofdmodule& hoofd);

// Deals with a key in a field of a form, whole: Escape and F10 do what the form's BackButton does,
// and a text that a key brings goes into the field, cut to the longest that it takes. Behind
// VeldActie::Controle the field's own Enter runs the check.
void VeldToetsIn(Formulier& formulier, Invoerveld& veld, InvoerSoort soort, Hoofdmodule& hoofd,
                 ToetsGebeurtenis& toets);

// Hangs VeldToets on a field of a form. Escape and F10 do what the form's BackButton does. Enter
// runs the leave check and stays, unless `enter` says otherwise. A text that a key brings is cut
// to the longest that the field takes.
void KoppelVeldToets(Formulier& formulier, Invoerveld& veld, InvoerSoort soort, Hoofdmodule& hoofd,
                     EnterSoort enter = EnterSoort::Controle);

}  // namespace lb77
