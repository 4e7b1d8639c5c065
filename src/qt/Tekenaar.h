// Draws a drawing of the body with the toolkit, on the screen and on paper.
#pragma once

#include <QPainter>
#include <QRectF>
#include <filesystem>
#include <optional>
#include <string>

#include "forms/Tekening.h"

namespace lb77 {

// In the drawing's own coordinates, what lies within `deel` of it.
void TekenIn(QPainter& verf, const Tekening& tekening, const QRectF& deel);

// The outline of a shape with an area.
[[nodiscard]] QPainterPath OmtrekVan(const Vorm& vorm);

// A PDF with a page for each sheet. The file takes its place when all of it is written; what went wrong
// otherwise.
[[nodiscard]] std::optional<std::string> SchrijfPdf(const std::filesystem::path& pad,
                                                    const Tekening& tekening, const Vellen& vellen);

}  // namespace lb77
