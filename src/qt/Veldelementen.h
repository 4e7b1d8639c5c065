// The elements that the user types in.
#pragma once

#include <QWidget>
#include <memory>

#include "forms/Velden.h"
#include "qt/Bezorger.h"
#include "qt/Element.h"

namespace lb77 {

// A text field or path field, of one line.
[[nodiscard]] std::unique_ptr<Element> MaakRegelElement(Invoerveld& veld, Bezorger& bezorger,
                                                        QWidget& ouder);
// Text of several lines.
[[nodiscard]] std::unique_ptr<Element> MaakBlokElement(Invoerveld& veld, Bezorger& bezorger,
                                                       QWidget& ouder);

}  // namespace lb77
