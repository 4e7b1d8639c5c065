// Turns a layout into placed widgets.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "forms/Formulier.h"
#include "qt/Element.h"
#include "qt/Indeling.h"

namespace lb77 {

// Places the widgets of a form's elements in a window.
class Opmaker {
 public:
  // `element` gives the element of a control.
  Opmaker(const Formulier& formulier, QWidget& ouder,
          std::function<Element&(const Bediening&)> element);

  // Makes the whole layout of the window's contents. The row of buttons that it ends in, or null.
  QBoxLayout* Maak(const Blok& blok, QBoxLayout& in);

 private:
  void Plaats(const Blok& blok, QBoxLayout& in);
  void Kolom(const Blok& blok, QBoxLayout& in);
  void Rij(const Blok& blok, QBoxLayout& in);
  void Groep(const Blok& blok, QBoxLayout& in);
  void Knoppen(const Blok& blok, QBoxLayout& in);
  void Velden(const Blok& blok, QBoxLayout& in);
  void Tabel(const Blok& blok, QBoxLayout& in);
  void Rooster(const Blok& blok, QBoxLayout& in);

  // A line of a grid with so many columns: prompts in the even ones, fields in the odd ones.
  struct Roosterregel {
    QGridLayout& rooster;
    int nummer;
    int kolommen;
    bool uitleg;  // the last column is for what is said about a field

    // How many columns a field of its own takes.
    [[nodiscard]] int Veldbreedte() const { return kolommen - (uitleg ? 2 : 1); }
  };
  [[nodiscard]] bool HeeftUitleg(const Blok& blok) const;
  [[nodiscard]] bool IsPaarsgewijs(const Blok& blok) const;
  void Veldrij(const Blok& blok, Roosterregel regel);
  void Samen(const std::vector<Element*>& elementen, Roosterregel regel);
  void EnkelVeld(Element& element, Roosterregel regel);
  // The line of a table that stands under its heading.
  void Tabelkolom(const Blok& blok, int kolom, QGridLayout& rooster);
  // What lies in the cells of a grid that are one column wide.
  struct Roosterkolom {
    bool breed = false;   // something that takes what room there is
    bool prompt = false;  // a prompt or a caption before the fields
  };
  [[nodiscard]] std::vector<Roosterkolom> Roosterkolommen(const Blok& blok) const;
  // Has the cell something that takes what room there is?
  [[nodiscard]] bool IsBreed(const Blok& cel) const;
  [[nodiscard]] std::string Regelwoorden(const Blok& regel) const;
  // A cell of a grid: the prompt in the left one of its two columns.
  void Cel(const Blok& blok, QGridLayout& rooster, int regel, int kolom);
  // A widget with its prompt, if it has one, before it.
  void Naast(Element& element, QBoxLayout& in);

  [[nodiscard]] std::vector<Element*> Elementen(const Blok& blok) const;
  // Does anything in it take what height there is?
  [[nodiscard]] bool HeeftHoog(const Blok& blok) const;

  // A grid whose prompts begin at a left edge that others share.
  struct Zijde {
    QGridLayout* rooster;
    int diepte;   // frames around it
    bool velden;  // its prompts stand in the even columns
  };
  void Onthoud(QGridLayout& rooster, bool velden);
  void LijnUit(const std::vector<QGridLayout*>& roosters, int kolom);
  void LijnAllesUit();

  const Formulier& formulier_;
  QWidget& ouder_;
  std::function<Element&(const Bediening&)> element_;
  std::vector<Zijde> zijden_;
  int diepte_ = 0;  // frames around what is being placed
  int naast_ = 0;   // rows of blocks around it: its left edge is its own
};

}  // namespace lb77
