// Key presses of the toolkit as the forms know them.
#include <gtest/gtest.h>

#include <array>

#include "qt/Toetsen.h"

namespace lb77 {
namespace {

QKeyEvent Druk(int toets, Qt::KeyboardModifiers met = Qt::NoModifier, const char* tekst = "",
               bool herhaald = false) {
  return QKeyEvent(QEvent::KeyPress, toets, met, QString::fromUtf8(tekst), herhaald);
}

struct Geval {
  int qt;
  Qt::KeyboardModifiers met;
  const char* tekst;
  int code;
  char teken;
  bool shift;
};

const std::array kGevallen = {
    Geval{Qt::Key_Tab, Qt::NoModifier, "\t", toets::kTab, 0, false},
    Geval{Qt::Key_Backtab, Qt::ShiftModifier, "", toets::kTab, 0, true},
    Geval{Qt::Key_Return, Qt::NoModifier, "\r", toets::kEnter, '\n', false},
    Geval{Qt::Key_Enter, Qt::KeypadModifier, "\r", toets::kNumEnter, '\n', false},
    Geval{Qt::Key_Escape, Qt::NoModifier, "\x1b", toets::kEscape, 0, false},
    Geval{Qt::Key_Space, Qt::NoModifier, " ", toets::kSpatie, ' ', false},
    Geval{Qt::Key_PageUp, Qt::NoModifier, "", 33, 0, false},
    Geval{Qt::Key_PageDown, Qt::NoModifier, "", 34, 0, false},
    Geval{Qt::Key_End, Qt::NoModifier, "", 35, 0, false},
    Geval{Qt::Key_Home, Qt::NoModifier, "", 36, 0, false},
    Geval{Qt::Key_Left, Qt::NoModifier, "", 37, 0, false},
    Geval{Qt::Key_Up, Qt::NoModifier, "", 38, 0, false},
    Geval{Qt::Key_Right, Qt::NoModifier, "", 39, 0, false},
    Geval{Qt::Key_Down, Qt::NoModifier, "", 40, 0, false},
    Geval{Qt::Key_Insert, Qt::NoModifier, "", 45, 0, false},
    Geval{Qt::Key_Delete, Qt::NoModifier, "\x7f", 46, 0, false},
    Geval{Qt::Key_NumLock, Qt::NoModifier, "", 144, 0, false},
    Geval{Qt::Key_5, Qt::NoModifier, "5", '5', '5', false},
    Geval{Qt::Key_5, Qt::KeypadModifier, "5", 101, '5', false},
    Geval{Qt::Key_A, Qt::NoModifier, "a", 'A', 'a', false},
    Geval{Qt::Key_A, Qt::ShiftModifier, "A", 'A', 'A', true},
    Geval{Qt::Key_F1, Qt::ShiftModifier, "", 112, 0, true},
    Geval{Qt::Key_F12, Qt::NoModifier, "", 123, 0, false},
    Geval{Qt::Key_Minus, Qt::NoModifier, "-", 0, '-', false},
    Geval{Qt::Key_ParenLeft, Qt::ShiftModifier, "(", 0, '(', true},
    Geval{Qt::Key_unknown, Qt::NoModifier, "ë", 0, '\xEB', false},
    Geval{Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, "@", 'Q', '@', false},
    Geval{Qt::Key_unknown, Qt::NoModifier, "漢", 0, 0, false},
};

TEST(Toetsen, ElkeToetsHeeftDeCodeDieDeFormulierenKennen) {
  for (const Geval& geval : kGevallen) {
    const auto toets = NaarToets(Druk(geval.qt, geval.met, geval.tekst));
    ASSERT_TRUE(toets) << geval.qt;
    EXPECT_EQ(toets->code, geval.code) << geval.qt;
    EXPECT_EQ(toets->teken, geval.teken) << geval.qt;
    EXPECT_EQ(toets->shift, geval.shift) << geval.qt;
  }
}

TEST(Toetsen, CombinatiesGaanEenFormulierNietAan) {
  EXPECT_FALSE(NaarToets(Druk(Qt::Key_C, Qt::ControlModifier, "\x03")));
  EXPECT_FALSE(NaarToets(Druk(Qt::Key_O, Qt::AltModifier, "o")));
  EXPECT_FALSE(NaarToets(Druk(Qt::Key_Shift, Qt::ShiftModifier)));
  EXPECT_FALSE(NaarToets(Druk(Qt::Key_F4, Qt::AltModifier)));
}

TEST(Toetsen, VastgehoudenEnterTeltEenKeerEnLettersHerhalen) {
  EXPECT_FALSE(NaarToets(Druk(Qt::Key_Return, Qt::NoModifier, "\r", true)));
  EXPECT_FALSE(NaarToets(Druk(Qt::Key_Escape, Qt::NoModifier, "", true)));
  EXPECT_FALSE(NaarToets(Druk(Qt::Key_F10, Qt::NoModifier, "", true)));
  EXPECT_TRUE(NaarToets(Druk(Qt::Key_F10)));
  EXPECT_TRUE(NaarToets(Druk(Qt::Key_A, Qt::NoModifier, "a", true)));
}

TEST(Toetsen, GetypteTekstIsWatTeLezenIs) {
  EXPECT_EQ(GetypteTekst(Druk(Qt::Key_A, Qt::NoModifier, "a")), QString("a"));
  EXPECT_EQ(GetypteTekst(Druk(Qt::Key_Return, Qt::NoModifier, "\r")), QString());
  EXPECT_EQ(GetypteTekst(Druk(Qt::Key_Backspace, Qt::NoModifier, "\b")), QString());
  EXPECT_EQ(GetypteTekst(Druk(Qt::Key_C, Qt::ControlModifier, "c")), QString());
}

}  // namespace
}  // namespace lb77
