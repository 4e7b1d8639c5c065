#include "qt/Opmaker.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayoutItem>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "qt/Indelingskeuze.h"
#include "qt/Stijl.h"

namespace lb77 {

namespace {

constexpr int kTussen = 8;  // pixels between neighbours
constexpr int kTussenBlokken = 14;
constexpr int kKnopBreedte = 11;  // characters

bool HeeftPrompt(const Bediening& bediening) {
  switch (bediening.Soort()) {
    case BedieningSoort::Tekstvak:
    case BedieningSoort::Tekstblok:
    case BedieningSoort::Padvak:
    case BedieningSoort::Teller:
    case BedieningSoort::Keuzevak:
    case BedieningSoort::Keuzelijst:
      return !bediening.Bijschrift().empty();
    case BedieningSoort::Label:
    case BedieningSoort::Knop:
    case BedieningSoort::Optie:
    case BedieningSoort::Vinkje:
    case BedieningSoort::Tekstpagina:
    case BedieningSoort::MenuKeuze:
    case BedieningSoort::Statusbalk:
      return false;
  }
  return false;
}

// Needs the full width, with its prompt above it.
bool IsHoog(const Bediening& bediening) {
  return bediening.Soort() == BedieningSoort::Keuzelijst ||
         bediening.Soort() == BedieningSoort::Tekstblok ||
         bediening.Soort() == BedieningSoort::Tekstpagina;
}

bool IsSmal(const Element& element) {
  const BedieningSoort soort = element.Bron().Soort();
  return soort == BedieningSoort::Knop || soort == BedieningSoort::Keuzevak ||
         element.Widget().maximumWidth() < QWIDGETSIZE_MAX;
}

Qt::Alignment Plek(const Element& element) {
  return IsSmal(element) ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
}

QVBoxLayout* NieuweKolom() {
  auto* kolom = new QVBoxLayout;
  kolom->setSpacing(kTussenBlokken);
  return kolom;
}

QHBoxLayout* NieuweRij() {
  auto* rij = new QHBoxLayout;
  rij->setSpacing(kTussen);
  return rij;
}

}  // namespace

Opmaker::Opmaker(const Formulier& formulier, QWidget& ouder,
                 std::function<Element&(const Bediening&)> element)
    : formulier_(formulier), ouder_(ouder), element_(std::move(element)) {}

void Opmaker::Maak(const Blok& blok, QBoxLayout& in) {
  switch (blok.soort) {
    case Blok::Soort::Veld:
      Velden(indeling::Velden({blok}), in);
      break;
    case Blok::Soort::Rij:
      Rij(blok, in);
      break;
    case Blok::Soort::Kolom:
      Kolom(blok, in);
      break;
    case Blok::Soort::Velden:
      Velden(blok, in);
      break;
    case Blok::Soort::Groep:
      Groep(blok, in);
      break;
    case Blok::Soort::Tabel:
      Tabel(blok, in);
      break;
    case Blok::Soort::Knoppen:
      Knoppen(blok, in);
      break;
  }
}

std::vector<Element*> Opmaker::Elementen(const Blok& blok) const {
  std::vector<Element*> uit;
  for (const Bediening* bediening : Genoemd(formulier_, blok)) uit.push_back(&element_(*bediening));
  return uit;
}

void Opmaker::Kolom(const Blok& blok, QBoxLayout& in) {
  QVBoxLayout* kolom = NieuweKolom();
  in.addLayout(kolom);
  for (const Blok& deel : blok.delen) Maak(deel, *kolom);
}

void Opmaker::Rij(const Blok& blok, QBoxLayout& in) {
  QHBoxLayout* rij = NieuweRij();
  in.addLayout(rij);
  for (const Blok& deel : blok.delen) {
    if (deel.soort != Blok::Soort::Veld) {
      Maak(deel, *rij);
    } else {
      for (Element* element : Elementen(deel)) Naast(*element, *rij);
    }
  }
}

void Opmaker::Naast(Element& element, QBoxLayout& in) {
  if (HeeftPrompt(element.Bron())) in.addWidget(&element.MaakPrompt(ouder_));
  in.addWidget(&element.Widget());
}

void Opmaker::Groep(const Blok& blok, QBoxLayout& in) {
  auto* groep = new QGroupBox(QString::fromStdString(blok.naam), &ouder_);
  in.addWidget(groep);
  auto* kolom = NieuweKolom();
  groep->setLayout(kolom);
  for (const Blok& deel : blok.delen) Maak(deel, *kolom);
}

void Opmaker::Knoppen(const Blok& blok, QBoxLayout& in) {
  QHBoxLayout* rij = NieuweRij();
  in.addLayout(rij);
  for (const Blok& kant : blok.delen) {
    if (&kant == &blok.delen.back()) rij->addStretch(1);
    for (Element* element : Elementen(kant)) {
      ZetTekenBreedte(element->Widget(), kKnopBreedte, false);
      element->Widget().setMinimumWidth(
          std::max(element->Widget().minimumWidth(), element->Widget().sizeHint().width()));
      rij->addWidget(&element->Widget());
    }
  }
}

void Opmaker::Velden(const Blok& blok, QBoxLayout& in) {
  auto* rooster = new QGridLayout;
  in.addLayout(rooster);
  rooster->setHorizontalSpacing(kTussen + 4);
  rooster->setVerticalSpacing(kTussen);
  rooster->setColumnStretch(1, 1);
  for (const Blok& deel : blok.delen) Veldrij(deel, *rooster);
}

void Opmaker::Veldrij(const Blok& blok, QGridLayout& rooster) {
  const std::vector<Element*> elementen = Elementen(blok);
  if (blok.soort == Blok::Soort::Veld) {
    for (Element* element : elementen) EnkelVeld(*element, rooster);
    return;
  }
  const int regel = rooster.rowCount();
  if (blok.soort != Blok::Soort::Rij || elementen.empty()) {
    auto* kolom = NieuweKolom();
    rooster.addLayout(kolom, regel, 0, 1, 2);
    Maak(blok, *kolom);
    return;
  }
  QHBoxLayout* rij = NieuweRij();
  rooster.addLayout(rij, regel, 1);
  Element& eerste = *elementen.front();
  const bool prompt = HeeftPrompt(eerste.Bron());
  if (prompt) rooster.addWidget(&eerste.MaakPrompt(ouder_), regel, 0);
  QWidget* const voorop = &eerste.Widget();
  if (!prompt && eerste.Bron().Soort() == BedieningSoort::Label) {
    rooster.addWidget(voorop, regel, 0);
  } else {
    rij->addWidget(voorop);
  }
  for (auto it = elementen.begin() + 1; it != elementen.end(); ++it) Naast(**it, *rij);
  if (std::all_of(elementen.begin() + 1, elementen.end(), [](Element* e) { return IsSmal(*e); })) {
    rij->addStretch(1);
  }
}

void Opmaker::EnkelVeld(Element& element, QGridLayout& rooster) {
  int regel = rooster.rowCount();
  const bool prompt = HeeftPrompt(element.Bron());
  if (IsHoog(element.Bron())) {
    if (prompt) rooster.addWidget(&element.MaakPrompt(ouder_), regel++, 0, 1, 2);
    rooster.addWidget(&element.Widget(), regel, 0, 1, 2);
    rooster.setRowStretch(regel, 1);
  } else if (element.Bron().Soort() == BedieningSoort::Label) {
    rooster.addWidget(&element.Widget(), regel, 0, 1, 2);
  } else {
    if (prompt) rooster.addWidget(&element.MaakPrompt(ouder_), regel, 0);
    rooster.addWidget(&element.Widget(), regel, 1, Plek(element));
  }
}

void Opmaker::Tabel(const Blok& blok, QBoxLayout& in) {
  auto* rooster = new QGridLayout;
  in.addLayout(rooster);
  rooster->setHorizontalSpacing(kTussen);
  rooster->setVerticalSpacing(3);
  int kolom = 0;
  for (const Blok& deel : blok.delen) Tabelkolom(deel, kolom++, *rooster);
}

// A heading: the one of the layout, else the prompt that all controls of the column share.
static QString Kop(const Blok& blok, const std::vector<Element*>& elementen) {
  if (!blok.kop.empty() || elementen.empty()) return QString::fromStdString(blok.kop);
  const Bediening& eerste = elementen.front()->Bron();
  const bool gelijk = std::all_of(elementen.begin(), elementen.end(), [&](const Element* een) {
    return HeeftPrompt(een->Bron()) && een->Bron().Bijschrift() == eerste.Bijschrift();
  });
  return gelijk && elementen.size() > 1 ? QString::fromStdString(eerste.Bijschrift()) : QString();
}

void Opmaker::Tabelkolom(const Blok& blok, int kolom, QGridLayout& rooster) {
  const std::vector<Element*> elementen = Elementen(blok);
  const QString kop = Kop(blok, elementen);
  if (!kop.isEmpty()) {
    auto* titel = new QLabel(kop, &ouder_);
    titel->setFont(Vet(titel->font()));
    rooster.addWidget(titel, 0, kolom);
  }
  int regel = 1;
  for (Element* element : elementen) {
    QHBoxLayout* cel = NieuweRij();
    rooster.addLayout(cel, regel++, kolom);
    if (kop.isEmpty() && HeeftPrompt(element->Bron())) cel->addWidget(&element->MaakPrompt(ouder_));
    cel->addWidget(&element->Widget());
  }
}

}  // namespace lb77
