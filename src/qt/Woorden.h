// Dutch words for the toolkit's own menus and dialogs.
#pragma once

#include <QTranslator>

namespace lb77 {

// Knows the texts that a user of the program meets; the rest stays as the toolkit has it.
class Woorden final : public QTranslator {
 public:
  using QTranslator::QTranslator;
  [[nodiscard]] QString translate(const char* omgeving, const char* bron, const char* uitleg,
                                  int aantal) const override;
  [[nodiscard]] bool isEmpty() const override { return false; }
};

// Loads the toolkit's own Dutch translation; False where it is not installed, and Woorden stands alone.
[[nodiscard]] bool LaadNederlands(QTranslator& vertaler);

}  // namespace lb77
