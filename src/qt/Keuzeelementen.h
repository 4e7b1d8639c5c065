// The elements that the user presses or chooses with.
#pragma once

#include <QWidget>
#include <memory>

#include "forms/Keuzen.h"
#include "qt/Bezorger.h"
#include "qt/Element.h"

namespace lb77 {

[[nodiscard]] std::unique_ptr<Element> MaakKnopElement(Bediening& knop, Bezorger& bezorger,
                                                       QWidget& ouder);
// A tick box or an option. It shows the form's state: a click that was swallowed leaves no mark.
[[nodiscard]] std::unique_ptr<Element> MaakSchakelElement(Schakelaar& schakelaar,
                                                          Bezorger& bezorger, QWidget& ouder);
[[nodiscard]] std::unique_ptr<Element> MaakKeuzevakElement(Lijst& lijst, Bezorger& bezorger,
                                                           QWidget& ouder);
[[nodiscard]] std::unique_ptr<Element> MaakKeuzelijstElement(Lijst& lijst, Bezorger& bezorger,
                                                             QWidget& ouder);

}  // namespace lb77
