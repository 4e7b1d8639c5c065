// The main window: menu bar, a quiet middle, status bar.
#pragma once

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMoveEvent>
#include <map>
#include <vector>

#include "forms/Formulier.h"
#include "qt/Bezorger.h"
#include "qt/Vensterhouder.h"

namespace lb77 {

class Voorblad;

// The window of a form with menu entries. The menus follow the entries' captions and flags.
class Hoofdvenster final : public QMainWindow {
 public:
  Hoofdvenster(Formulier& formulier, Vensterhouder& houder, Bezorger& bezorger);

  // Where the form's own controls lie, those that are no menu.
  [[nodiscard]] QWidget& Inhoud() const;
  // Puts the window where the form wants it, as near as its screen lets it be seen whole.
  void ZetPlek();
  // Brings menus and status bar in line with the form.
  void Bijwerken();
  // The action or menu of an entry, null when the form has no entry of that name.
  [[nodiscard]] QAction* Actie(std::string_view naam) const;

 protected:
  void closeEvent(QCloseEvent* sluiten) override;
  void keyPressEvent(QKeyEvent* toets) override;
  void moveEvent(QMoveEvent* plek) override;
  void dragEnterEvent(QDragEnterEvent* sleep) override;
  void dropEvent(QDropEvent* val) override;
  bool eventFilter(QObject* waar, QEvent* wat) override;

 private:
  struct Keuze {
    MenuKeuze* bron;
    QAction* actie;
  };
  void MaakMenus(Bezorger& bezorger);
  void MaakKeuze(MenuKeuze& keuze, Bezorger& bezorger);
  // What the status bar says of an entry under the mouse or the arrow keys.
  [[nodiscard]] QString Statustekst(const MenuKeuze& keuze) const;
  // Of the menu that is pointed at, and of one whose accelerator was pressed.
  void ZegWaaromGrijs();
  void ZegWaaromGrijs(const QKeySequence& sneltoets);
  [[nodiscard]] bool IsMenu(const MenuKeuze& keuze) const;

  Formulier& formulier_;
  Vensterhouder& houder_;
  std::vector<Keuze> keuzes_;
  std::map<std::string, QMenu*, std::less<>> menus_;
  Voorblad* voorblad_;
  QLabel* status_;
  QString gezegd_;  // why the menu that is pointed at is greyed
};

// Is this form shown in a main window?
[[nodiscard]] bool HeeftMenu(const Formulier& formulier);

}  // namespace lb77
