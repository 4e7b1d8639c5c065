#include "Piloot.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <utility>

namespace lb77 {

namespace {

constexpr int kBlik = 3;  // milliseconds

// A form that has just been shown hears no keys until it is the active window.
std::string Bovenop() {
  const QWidget* venster = QApplication::activeModalWidget();
  if (!venster) venster = QApplication::activeWindow();
  const bool hoort = venster && venster->isVisible() && venster->isActiveWindow();
  return hoort ? venster->objectName().toStdString() : std::string();
}

}  // namespace

Piloot::Piloot(std::vector<Stap> stappen) : stappen_(std::move(stappen)) {
  QTimer::singleShot(kBlik, &anker_, [this] { Kijk(); });
}

// The next look is asked for first: a step may stay in a form for long.
void Piloot::Kijk() {
  QTimer::singleShot(kBlik, &anker_, [this] { Kijk(); });
  const std::string bovenop = Bovenop();
  if (bijBlik) bijBlik(bovenop);
  if (!Klaar() && stappen_[volgende_].formulier == bovenop) stappen_[volgende_++].doe();
}

}  // namespace lb77
