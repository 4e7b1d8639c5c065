#include "qt/Toetsen.h"

#include <array>

#include "text/Unicode.h"

namespace lb77 {

namespace {

struct Paar {
  int qt;
  int code;
};

constexpr std::array kToetsen = {
    Paar{Qt::Key_Tab, toets::kTab},         Paar{Qt::Key_Backtab, toets::kTab},
    Paar{Qt::Key_Return, toets::kEnter},    Paar{Qt::Key_Enter, toets::kNumEnter},
    Paar{Qt::Key_Escape, toets::kEscape},   Paar{Qt::Key_Space, toets::kSpatie},
    Paar{Qt::Key_PageUp, toets::kPageUp},   Paar{Qt::Key_PageDown, toets::kPageDown},
    Paar{Qt::Key_End, toets::kEnd},         Paar{Qt::Key_Home, toets::kHome},
    Paar{Qt::Key_Left, toets::kLinks},      Paar{Qt::Key_Up, toets::kOmhoog},
    Paar{Qt::Key_Right, toets::kRechts},    Paar{Qt::Key_Down, toets::kOmlaag},
    Paar{Qt::Key_Insert, toets::kInsert},   Paar{Qt::Key_Delete, toets::kDelete},
    Paar{Qt::Key_NumLock, toets::kNumLock},
};

// 0 for a key that has no code: punctuation shares its numbers with the arrows in the other table.
int CodeVan(const QKeyEvent& toets) {
  const int qt = toets.key();
  if (qt >= Qt::Key_F1 && qt <= Qt::Key_F12) return qt - Qt::Key_F1 + toets::kF1;
  if (qt >= Qt::Key_0 && qt <= Qt::Key_9) {
    return toets.modifiers().testFlag(Qt::KeypadModifier) ? qt - Qt::Key_0 + toets::kNum0 : qt;
  }
  if (qt >= Qt::Key_A && qt <= Qt::Key_Z) return qt;
  for (const Paar& paar : kToetsen) {
    if (paar.qt == qt) return paar.code;
  }
  return 0;
}

#ifdef Q_OS_MACOS
constexpr bool kAltTypt = true;
#else
constexpr bool kAltTypt = false;
#endif

// Ctrl and Alt together are AltGr on some platforms, which types characters.
bool IsOpdracht(const QKeyEvent& toets) {
  const bool ctrl = toets.modifiers().testFlag(Qt::ControlModifier);
  const bool alt = !kAltTypt && toets.modifiers().testFlag(Qt::AltModifier);
  return ctrl != alt || toets.modifiers().testFlag(Qt::MetaModifier);
}

bool IsAfdrukbaar(const QString& tekst) {
  return !tekst.isEmpty() && tekst.at(0).unicode() >= 32 && tekst.at(0).unicode() != 127;
}

}  // namespace

bool IsEenmalig(const QKeyEvent& toets) {
  const int qt = toets.key();
  return qt == Qt::Key_Return || qt == Qt::Key_Enter || qt == Qt::Key_Escape ||
         (qt >= Qt::Key_F1 && qt <= Qt::Key_F12);
}

bool IsAlt(const QKeyEvent& toets) {
  return IsOpdracht(toets) && toets.modifiers().testFlag(Qt::AltModifier) &&
         IsAfdrukbaar(toets.text());
}

QString GetypteTekst(const QKeyEvent& toets) {
  return IsOpdracht(toets) || !IsAfdrukbaar(toets.text()) ? QString() : toets.text();
}

std::optional<ToetsGebeurtenis> NaarToets(const QKeyEvent& toets) {
  ToetsGebeurtenis uit;
  uit.code = CodeVan(toets);
  uit.shift = toets.modifiers().testFlag(Qt::ShiftModifier) || toets.key() == Qt::Key_Backtab;
  const QString tekst = GetypteTekst(toets);
  if (tekst.size() == 1) uit.teken = TekenVan(tekst.at(0).unicode()).value_or('\0');
  if (IsOpdracht(toets) || (uit.code == 0 && tekst.isEmpty())) return std::nullopt;
  const bool enter = uit.code == toets::kEnter || uit.code == toets::kNumEnter;
  if (enter) uit.teken = '\n';
  if (IsEenmalig(toets) && toets.isAutoRepeat()) return std::nullopt;
  return uit;
}

}  // namespace lb77
