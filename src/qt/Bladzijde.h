// The viewer's page: 80 columns by 69 lines of fixed pitch, as it will stand on paper.
#pragma once

#include <QPlainTextEdit>
#include <QResizeEvent>
#include <QSize>

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
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* maat) override;
};

}  // namespace lb77
