// Message boxes.
#pragma once

#include <QWidget>
#include <string_view>

#include "forms/Gesprek.h"

namespace lb77 {

// Shows a box over `ouder` (may be null) and gives the answer; closing it is its Cancel or No.
[[nodiscard]] Antwoord ToonBericht(QWidget* ouder, BerichtSoort soort, Knoppen knoppen,
                                   std::string_view tekst);
// The box with a tick; True when it was ticked.
[[nodiscard]] bool ToonBerichtMetVinkje(QWidget* ouder, std::string_view tekst,
                                        std::string_view vinkje);

}  // namespace lb77
