// The element that shows a drawing.
#pragma once

#include <QWidget>
#include <memory>

#include "forms/Beeldvlak.h"
#include "qt/Bezorger.h"
#include "qt/Element.h"

namespace lb77 {

[[nodiscard]] std::unique_ptr<Element> MaakBeeldElement(Beeldvlak& beeld, Bezorger& bezorger,
                                                        QWidget& ouder);

}  // namespace lb77
