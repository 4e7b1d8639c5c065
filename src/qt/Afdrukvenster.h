// The sheets as they will come out of the printer, before they do.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPushButton>

#include "forms/Gesprek.h"
#include "qt/Velprinter.h"
#include "qt/VensterInstellingen.h"
#include "store/SysteemFout.h"

namespace lb77 {

// Accepted once the sheets have gone to a printer. A PDF can be kept as often as one likes.
class Afdrukvenster final : public QDialog {
 public:
  Afdrukvenster(QWidget* ouder, const Afdruk& afdruk, VensterInstellingen& instellingen);

 private:
  void MaakBladerrij();
  void MaakKnoppen();
  QPushButton* MaakKnop(const char* naam, const QString& bijschrift);
  void Toon(int vel);
  void Druk();
  void BewaarPdf();

  const Afdruk& afdruk_;
  VensterInstellingen& instellingen_;
  Velprinter printer_;
  QPrintPreviewWidget* beeld_;
  QPushButton* vorige_ = nullptr;
  QPushButton* volgende_ = nullptr;
  QLabel* vel_ = nullptr;
};

// Writes the sheets to a PDF on A4; the file is as it was when that fails.
[[nodiscard]] SysteemFout SchrijfPdf(const QString& pad, const Afdruk& afdruk);

}  // namespace lb77
