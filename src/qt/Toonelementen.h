// The elements that only show.
#pragma once

#include <QWidget>
#include <memory>

#include "forms/Weergave.h"
#include "qt/Bezorger.h"
#include "qt/Element.h"

namespace lb77 {

// A text; with a click handler it answers to the mouse.
[[nodiscard]] std::unique_ptr<Element> MaakLabelElement(Bediening& label, Bezorger& bezorger,
                                                        QWidget& ouder);
// A text that toggles.
[[nodiscard]] std::unique_ptr<Element> MaakWisselElement(Wissellabel& label, QWidget& ouder);
[[nodiscard]] std::unique_ptr<Element> MaakTellerElement(Teller& teller, QWidget& ouder);
// The viewer's page.
[[nodiscard]] std::unique_ptr<Element> MaakPaginaElement(Tekstpagina& pagina, QWidget& ouder);

}  // namespace lb77
