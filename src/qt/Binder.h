// Turns any form into a window.
#pragma once

#include <QBoxLayout>
#include <QEventLoop>
#include <QObject>
#include <QSize>
#include <QWidget>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"
#include "qt/Bezorger.h"
#include "qt/Element.h"
#include "qt/VensterInstellingen.h"
#include "qt/Vensterhouder.h"

namespace lb77 {

class Bladzijde;
class Hoofdvenster;

// One form and its window. Everything that the user does goes to the form by its own operations,
// and after each of them the widgets and the focus follow the form. The toolkit moves no focus by
// itself: a press of the mouse, a Tab and an accelerator ask the form first, so that a leave check
// that fails leaves all as it was.
//
// While a handler of the form is at work (a box or another form may be open) whatever still
// arrives here is dropped.
class Binder final : public QObject, private Bezorger, private Vensterhouder {
 public:
  Binder(Formulier& formulier, Gesprek& gesprek, VensterInstellingen& instellingen, QWidget* ouder);
  ~Binder() override;

  [[nodiscard]] Formulier& Vorm() const { return formulier_; }
  [[nodiscard]] QWidget& Venster() const { return *venster_; }

  // Shows the window. The form's activated event follows; input is dropped until Voer.
  void Toon();
  // Runs until the form has closed. An exception of one of its handlers leaves from here.
  void Voer();
  // Brings all widgets and the focus in line with the form; raises no event.
  void Bijwerken();
  // Takes the window off the screen for good; a handler of the form may still be at work.
  void Verdwijn();
  // Bijwerken, and lets the toolkit paint and hear a stop request; all other input is dropped.
  void Ververs();

 protected:
  bool eventFilter(QObject* waar, QEvent* wat) override;

 private:
  void Klik(Bediening& bediening) override;
  void Dubbelklik(Bediening& bediening) override;
  void Kies(Lijst& lijst, int index) override;
  void Bewerkt(Invoerveld& veld, const std::string& tekst, bool geweigerd) override;
  void SluitVenster() override;
  void ToetsInVenster(const QKeyEvent& toets) override;
  void Gerold(int stap) override;
  void Verplaatst(QPoint plek) override;
  void BestandGebracht(const std::filesystem::path& bestand) override;

  void MaakVenster(QWidget* ouder);
  void MaakElementen(QWidget& inhoud);
  void Luister(Element& element);
  [[nodiscard]] Element* ElementVan(const QObject* waar) const;

  // Runs one of the form's operations, keeps what it throws, and brings the window up to date.
  void Verwerk(const std::function<void()>& doe);
  // F1: the chapter of the manual about this form.
  void GeefHulp();
  [[nodiscard]] bool Geblokkeerd() const;
  [[nodiscard]] bool Afgelopen() const;
  // True when the key needs nothing more.
  bool VerwerkToets(Element* element, const QKeyEvent& toets);
  bool EigenToets(Element& element, const QKeyEvent& toets);
  bool Blader(int code);
  // A key with Ctrl in a form that is read. True when it needs nothing more.
  bool CtrlToets(const QKeyEvent& toets);
  [[nodiscard]] Bladzijde* Blad() const;
  void OnthoudVergroting();
  bool LoopInRooster(Element& element, int code);
  // Asks the form for the focus; True when it now has it.
  bool GaNaar(Element& element);
  void FocusGekregen(Element& element);
  void VolgFocus();
  [[nodiscard]] QSize Ruimte() const;
  void PasIn();

  Formulier& formulier_;
  Gesprek& gesprek_;
  VensterInstellingen& instellingen_;
  std::unique_ptr<QWidget> venster_;
  Hoofdvenster* hoofd_ = nullptr;
  QBoxLayout* voet_ = nullptr;  // the row of buttons at the bottom, if it has one
  std::map<const Bediening*, std::unique_ptr<Element>> elementen_;
  std::map<const QObject*, Element*> bronnen_;
  const Bediening* gevolgd_ = nullptr;  // whom the focus last followed
  QEventLoop lus_;
  std::exception_ptr fout_;
  int diepte_ = 0;  // handlers of the form at work
  bool verversend_ = false;
  bool eigenFocus_ = false;  // the focus moves by our own hand
};

}  // namespace lb77
