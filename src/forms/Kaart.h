// Cards: forms through which the user walks from record to record, one on the screen at a time.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"

namespace lb77 {

class Kaart;

// Makes a card. It is a value: a card asks for another without knowing more of its class than the
// function that gives this. One that holds a reference and a number costs no memory of its own.
using KaartVraag = std::function<std::unique_ptr<Kaart>()>;

// What the loop sees of a card. A card leaves the screen by closing, and has said then what comes
// next; nothing said, the card that it was opened from returns.
class Kaart {
 public:
  Kaart() = default;
  virtual ~Kaart() = default;
  Kaart(const Kaart&) = delete;
  Kaart& operator=(const Kaart&) = delete;

  // The form that is shown.
  [[nodiscard]] virtual Formulier& Vorm() = 0;
  // What makes this card again on the record that it shows now.
  [[nodiscard]] virtual KaartVraag Opnieuw() const = 0;

  // What comes next, and whether this card returns behind it.
  struct Vervolg {
    KaartVraag kaart;
    bool keertTerug = false;
  };
  [[nodiscard]] Vervolg NeemVervolg() { return std::exchange(vervolg_, {}); }

 protected:
  void ZetVervolg(Vervolg vervolg) { vervolg_ = std::move(vervolg); }

 private:
  Vervolg vervolg_;
};

// A card on any base of forms: `class ToonPersoon final : public KaartOp<Formulier>`.
template <class Basis>
class KaartOp : public Basis, public Kaart {
 public:
  using Basis::Basis;
  [[nodiscard]] Formulier& Vorm() override { return *this; }

 protected:
  // The other card takes the place of this one for good.
  void Vervang(KaartVraag door) { Vertrek({std::move(door), false}); }
  // The other card makes this one leave the screen; it returns, loaded anew, when that one is left.
  void Ga(KaartVraag naar) { Vertrek({std::move(naar), true}); }

 private:
  void Vertrek(Vervolg vervolg) {
    ZetVervolg(std::move(vervolg));
    this->Sluit();
  }
};

// Shows a card and whatever it leads to, until the first one is left for no other. Of a card that
// will return it keeps what makes it again, never the form.
void LoopKaarten(Gesprek& gesprek, KaartVraag eerste);

}  // namespace lb77
