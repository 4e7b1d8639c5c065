// The widget of one control.
#pragma once

#include <QKeyEvent>
#include <QLabel>
#include <QString>
#include <QWidget>
#include <memory>

#include "forms/Bediening.h"
#include "qt/Bezorger.h"

namespace lb77 {

// A control and the widget that shows it. The widgets belong to the window that they are laid out
// in, which outlives its elements' use.
class Element {
 public:
  explicit Element(Bediening& bediening) : bediening_(bediening) {}
  virtual ~Element() = default;
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;

  [[nodiscard]] Bediening& Bron() const { return bediening_; }
  // The widget that is laid out and takes the focus.
  [[nodiscard]] QWidget& Widget() const { return *widget_; }
  // Where the mouse arrives: the widget itself, or the part of it that scrolls.
  [[nodiscard]] virtual QWidget& Muisvlak() const { return *widget_; }
  // The label with the prompt, null when there is none.
  [[nodiscard]] QLabel* Prompt() const { return prompt_; }
  // Makes the label with the prompt, with the widget as its buddy.
  QLabel& MaakPrompt(QWidget& ouder);

  // Brings the widget in line with the control; raises no event.
  void Bijwerken();
  // A key that the widget has for itself, ahead of the form; False leaves it to the form.
  [[nodiscard]] virtual bool NeemToets(const QKeyEvent&) { return false; }
  // Types text at the cursor. False when the control takes no text.
  [[nodiscard]] virtual bool Typ(const QString&) { return false; }

 protected:
  void ZetWidget(QWidget& widget);
  // The part of Bijwerken that differs for each kind.
  virtual void Toon() = 0;

 private:
  Bediening& bediening_;
  QWidget* widget_ = nullptr;
  QLabel* prompt_ = nullptr;
};

// The element for a control; null for a menu entry and the status bar, which the main window shows.
[[nodiscard]] std::unique_ptr<Element> MaakElement(Bediening& bediening, Bezorger& bezorger,
                                                   QWidget& ouder);

}  // namespace lb77
