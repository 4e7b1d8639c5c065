// Drives real windows: steps that run while a form is open, and answers to the boxes that appear.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <QtTest/QTest>
#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "forms/Formulier.h"
#include "qt/QtGesprek.h"

namespace lb77 {

class Vensterproef : public testing::Test {
 protected:
  Vensterproef();
  ~Vensterproef() override;

  // Shows the form and runs the steps in it, one after another, each from the event loop.
  void Voer(Formulier& formulier, std::vector<std::function<void()>> stappen);
  // The answers for the next boxes, by the text of their buttons; without one a box gets its first.
  void Antwoord(std::vector<QString> knoppen);

  // The answers for the next file questions; without one a question is cancelled.
  void Bestand(const std::filesystem::path& pad) { bestanden_.push_back(pad); }
  // The widget of a control in the window that is on top.
  template <class W = QWidget>
  [[nodiscard]] W& Vind(const char* naam) {
    W* widget = Bovenste().findChild<W*>(QString::fromLatin1(naam));
    if (!widget) throw std::runtime_error(std::string("no widget ") + naam);
    return *widget;
  }
  [[nodiscard]] QWidget& Bovenste() const;
  // The name of the control that has the toolkit's focus; the window's own name when none has.
  [[nodiscard]] std::string Focus() const;

  void Toets(int toets, Qt::KeyboardModifiers met = Qt::NoModifier);
  void Typ(const char* utf8);

  // Answers boxes by itself; off for a test that does so by hand.
  void Wacht(bool aan);

  bool beantwoordtBestanden = true;  // off for a test that answers file questions by hand
  QtGesprek gesprek;
  std::function<void(QMessageBox&)> bijBox;  // sees each box before its answer
  std::vector<std::string> boxen;            // the texts of the boxes that appeared, UTF-8

 private:
  void KijkRond();
  void Beantwoord(QMessageBox& box);
  void Beantwoord(QFileDialog& vraag);

  QTimer wacht_;
  QTimer noodrem_;
  std::deque<QString> antwoorden_;
  std::deque<std::filesystem::path> bestanden_;
};

}  // namespace lb77
