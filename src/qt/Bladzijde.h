// The viewer's page: 80 columns by 69 lines of fixed pitch, as it will stand on paper.
#pragma once

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QResizeEvent>
#include <QSize>
#include <QWheelEvent>
#include <functional>
#include <utility>

#include "forms/Leesformulier.h"

namespace lb77 {

inline constexpr int kBladKolommen = 80;
inline constexpr int kBladRegels = 69;

// A sheet that can be read, scrolled and copied from, never written on.
class Bladzijde final : public QPlainTextEdit {
 public:
  explicit Bladzijde(QWidget* ouder);

  // Shows the text from its top; the same text again leaves the view where it is.
  void ZetTekst(const QString& tekst);
  // Scrolls by a virtual key code: lines, screens, or to an end. False when it can go no further.
  bool Rol(int code);
  // Marks a place, which is selected too, and brings it in view. Length 0 takes the mark away.
  void Merk(const Vindpagina::Plek& plek);
  // Ctrl with a key that is the sheet's own: C copies what is selected, else the whole page, A selects
  // it all, plus, minus and 0 set the size of its letters. False for any other.
  bool CtrlToets(const QKeyEvent& toets);
  // So many points more, or fewer, than at the beginning.
  void ZetVergroting(int punten);
  // What is done when the user has chosen another size.
  void BijVergroting(std::function<void(int punten)> doe) { bijVergroting_ = std::move(doe); }
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  // With Ctrl the wheel sets the size; at an edge of the sheet it is the window's.
  void wheelEvent(QWheelEvent* wiel) override;
  void resizeEvent(QResizeEvent* maat) override;

 private:
  // Steps larger or smaller; 0 is the size of the beginning.
  void Vergroot(int stap);
  void Kopieer();
  void LegInMidden();

  qreal begin_;  // points
  std::function<void(int punten)> bijVergroting_;
  Vindpagina::Plek gemerkt_;
};

}  // namespace lb77
