// Two cards that lead to each other, and a box that counts how many of them there are.
#pragma once

#include <algorithm>
#include <memory>

#include "forms/Kaart.h"
#include "text/Getallen.h"

namespace lb77 {

// What the cards have done to memory and stack. It outlives them.
struct Kaartendoos {
  int levend = 0;
  int meest = 0;                      // most cards alive at once
  int geladen = 0;                    // loads of all cards together
  const void* eersteKader = nullptr;  // the stack at the first load
  const void* kader = nullptr;        // and at the last one
};

class Proefkaart : public KaartOp<Formulier> {
 public:
  Proefkaart(Kaartendoos& doos, std::string_view naam, int nr)
      : KaartOp(naam, naam), doos_(doos), nr_(nr) {
    doos_.meest = std::max(doos_.meest, ++doos_.levend);
    RecordNr.BijVerlaten([this] { return RecordNrVerlaten(); });
    Volgende.BijKlik([this] { Zoek(nr_ + 1); });
    BackButton.BijKlik([this] { Sluit(); });
    ZetEersteVeld(RecordNr);
  }
  ~Proefkaart() override { --doos_.levend; }

  Tekstvak RecordNr{*this, "RecordNr", "&Nummer", 5};
  Knop Volgende{*this, "Volgende", "&Volgende"};
  Knop Ander{*this, "Ander", "&Ander"};
  Knop Weg{*this, "Weg", "&Weg"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override {
    ++doos_.geladen;
    doos_.kader = __builtin_frame_address(0);
    if (!doos_.eersteKader) doos_.eersteKader = doos_.kader;
    RecordNr.ZetTekst(GetalTekst(nr_));
    if (nr_ == 0) Sluit();
  }
  void Zoek(int nr) {
    nr_ = nr;
    Herlaad();
  }
  [[nodiscard]] Kaartendoos& Doos() const { return doos_; }
  [[nodiscard]] int Nr() const { return nr_; }

 private:
  bool RecordNrVerlaten() {
    const int nr = Getalwaarde(RecordNr.Tekst());
    if (nr != nr_) Zoek(nr);
    return true;
  }

  Kaartendoos& doos_;
  int nr_;
};

// The cards know each other by these functions only.
[[nodiscard]] KaartVraag PersoonOp(Kaartendoos& doos, int nr);
[[nodiscard]] KaartVraag RelatieOp(Kaartendoos& doos, int nr);

// Ander opens the relation of that number on top.
class PersoonKaart final : public Proefkaart {
 public:
  PersoonKaart(Kaartendoos& doos, int nr) : Proefkaart(doos, "Persoon", nr) {
    Ander.BijKlik([this] { Ga(RelatieOp(Doos(), Nr())); });
  }
  [[nodiscard]] KaartVraag Opnieuw() const override { return PersoonOp(Doos(), Nr()); }
};

// Ander opens a person on top, the one of ten times that number; Weg makes room for him for good.
class RelatieKaart final : public Proefkaart {
 public:
  RelatieKaart(Kaartendoos& doos, int nr) : Proefkaart(doos, "Relatie", nr) {
    Ander.BijKlik([this] { Ga(Tienvoud()); });
    Weg.BijKlik([this] { Vervang(Tienvoud()); });
  }
  [[nodiscard]] KaartVraag Opnieuw() const override { return RelatieOp(Doos(), Nr()); }

 private:
  // Stays among the numbers of a small file, and never comes to 0.
  [[nodiscard]] KaartVraag Tienvoud() const { return PersoonOp(Doos(), Nr() * 10 % 997); }
};

inline KaartVraag PersoonOp(Kaartendoos& doos, int nr) {
  return [&doos, nr] { return std::make_unique<PersoonKaart>(doos, nr); };
}

inline KaartVraag RelatieOp(Kaartendoos& doos, int nr) {
  return [&doos, nr] { return std::make_unique<RelatieKaart>(doos, nr); };
}

}  // namespace lb77
