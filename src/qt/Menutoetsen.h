// The keys of the daily jobs in the menu, and where its lines are.
#pragma once

#include <QKeySequence>
#include <string_view>

namespace lb77 {

// The key that an entry has of its own; empty for most.
[[nodiscard]] QKeySequence SneltoetsVan(std::string_view keuze);
// Stands a line above this entry?
[[nodiscard]] bool BegintGroep(std::string_view keuze);

}  // namespace lb77
