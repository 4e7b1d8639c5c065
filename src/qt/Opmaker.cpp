#include "qt/Opmaker.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayoutItem>
#include <QVBoxLayout>
#include <algorithm>
#include <string_view>
#include <utility>

#include "qt/Indelingskeuze.h"
#include "qt/Opmaakdelen.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

using namespace opmaak;

namespace {

constexpr int kTussenBlokken = 14;
constexpr int kKnopBreedte = 9;  // characters
constexpr int kKnopRuimte = 14;  // pixels more than a button asks
constexpr int kNummer = 6;       // characters of a button for a number

// Needs the full width, with its prompt above it.
bool IsHoog(const Bediening& bediening) {
  return bediening.Soort() == BedieningSoort::Keuzelijst ||
         bediening.Soort() == BedieningSoort::Tekstblok ||
         bediening.Soort() == BedieningSoort::Beeldvlak ||
         bediening.Soort() == BedieningSoort::Tekstpagina;
}

Qt::Alignment Plek(const Element& element) {
  return IsSmal(element) ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
}

QVBoxLayout* NieuweKolom() {
  auto* kolom = new QVBoxLayout;
  kolom->setSpacing(kTussenBlokken);
  return kolom;
}

}  // namespace

Opmaker::Opmaker(const Formulier& formulier, QWidget& ouder,
                 std::function<Element&(const Bediening&)> element)
    : formulier_(formulier), ouder_(ouder), element_(std::move(element)) {}

QBoxLayout* Opmaker::Maak(const Blok& blok, QBoxLayout& in) {
  Plaats(blok, in);
  LijnAllesUit();
  MaakLeesnamenUniek(formulier_);
  const bool knoppen = blok.soort == Blok::Soort::Kolom && !blok.delen.empty() &&
                       blok.delen.back().soort == Blok::Soort::Knoppen;
  if (!knoppen) return nullptr;
  const QLayout* kolom = in.itemAt(in.count() - 1)->layout();
  return static_cast<QBoxLayout*>(kolom->itemAt(kolom->count() - 1)->layout());
}

void Opmaker::Plaats(const Blok& blok, QBoxLayout& in) {
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
    case Blok::Soort::Rooster:
      Rooster(blok, in);
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
  // The buttons stay at the bottom of a window that was made larger, and the rest together.
  const bool hoog = HeeftHoog(blok);
  for (const Blok& deel : blok.delen) {
    if (deel.soort == Blok::Soort::Knoppen && !hoog) kolom->addStretch(1);
    Plaats(deel, *kolom);
  }
}

bool Opmaker::HeeftHoog(const Blok& blok) const {
  const std::vector<Element*> elementen = Elementen(blok);
  return std::any_of(elementen.begin(), elementen.end(),
                     [](const Element* een) { return IsHoog(een->Bron()); });
}

void Opmaker::Rij(const Blok& blok, QBoxLayout& in) {
  QHBoxLayout* rij = NieuweRij();
  in.addLayout(rij);
  ++naast_;
  for (const Blok& deel : blok.delen) {
    if (deel.soort != Blok::Soort::Veld) {
      Plaats(deel, *rij);
      const bool los = deel.soort != Blok::Soort::Groep && !HeeftHoog(deel);
      if (los) rij->itemAt(rij->count() - 1)->setAlignment(Qt::AlignTop);
    } else {
      for (Element* element : Elementen(deel)) Naast(*element, *rij);
    }
  }
  --naast_;
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
  ++diepte_;
  for (const Blok& deel : blok.delen) Plaats(deel, *kolom);
  --diepte_;
}

void Opmaker::Knoppen(const Blok& blok, QBoxLayout& in) {
  QHBoxLayout* rij = NieuweRij();
  in.addLayout(rij);
  for (const Blok& kant : blok.delen) {
    const bool rechts = &kant == &blok.delen.back();
    if (rechts) rij->addStretch(1);
    for (Element* element : Elementen(kant)) {
      QWidget& knop = element->Widget();
      const int eigen = knop.sizeHint().width() + (element->Bron().KanFocus() ? kKnopRuimte : 0);
      knop.setMinimumWidth(rechts ? std::max(TekenBreedte(knop, kKnopBreedte), eigen) : eigen);
      rij->addWidget(&knop);
    }
  }
}

void Opmaker::Velden(const Blok& blok, QBoxLayout& in) {
  auto* rooster = new QGridLayout;
  in.addLayout(rooster);
  rooster->setHorizontalSpacing(kTussen + 4);
  rooster->setVerticalSpacing(kTussen);
  int paren = 1;
  bool uitleg = false;
  for (const Blok& deel : blok.delen) {
    if (IsPaarsgewijs(deel)) paren = std::max(paren, static_cast<int>(Elementen(deel).size()));
    if (HeeftUitleg(deel)) uitleg = true;
  }
  for (int paar = 0; paar < paren; ++paar) rooster->setColumnStretch(2 * paar + 1, 1);
  for (const Blok& deel : blok.delen) {
    Veldrij(deel, {*rooster, rooster->rowCount(), 2 * paren + (uitleg ? 1 : 0), uitleg});
  }
  Onthoud(*rooster, true);
}

// A field and what is to be said about it.
bool Opmaker::HeeftUitleg(const Blok& blok) const {
  const std::vector<Element*> elementen = Elementen(blok);
  return blok.soort == Blok::Soort::Rij && elementen.size() == 2 &&
         HeeftPrompt(elementen[0]->Bron()) && elementen[1]->Bron().Soort() == BedieningSoort::Label;
}

// Side by side, and each with a prompt: prompts and fields stand in columns of their own.
bool Opmaker::IsPaarsgewijs(const Blok& blok) const {
  const std::vector<Element*> elementen = Elementen(blok);
  return blok.soort == Blok::Soort::Rij && elementen.size() > 1 &&
         std::all_of(elementen.begin(), elementen.end(),
                     [](const Element* een) { return HeeftPrompt(een->Bron()); });
}

void Opmaker::Veldrij(const Blok& blok, Roosterregel regel) {
  const std::vector<Element*> elementen = Elementen(blok);
  if (blok.soort == Blok::Soort::Veld) {
    for (Element* element : elementen) EnkelVeld(*element, regel);
  } else if (HeeftUitleg(blok)) {
    EnkelVeld(*elementen[0], regel);
    regel.rooster.addWidget(&elementen[1]->Widget(), regel.nummer, regel.kolommen - 1);
  } else if (IsPaarsgewijs(blok)) {
    int kolom = 0;
    for (Element* element : elementen) {
      regel.rooster.addWidget(&element->MaakPrompt(ouder_), regel.nummer, kolom++);
      regel.rooster.addWidget(&element->Widget(), regel.nummer, kolom++, Plek(*element));
    }
  } else if (blok.soort == Blok::Soort::Rij && !elementen.empty()) {
    Samen(elementen, regel);
  } else {
    auto* kolom = NieuweKolom();
    regel.rooster.addLayout(kolom, regel.nummer, 0, 1, regel.kolommen);
    Plaats(blok, *kolom);
  }
}

// The first one's prompt, or a label that comes first, stands with the prompts of the other lines.
void Opmaker::Samen(const std::vector<Element*>& elementen, Roosterregel regel) {
  QHBoxLayout* rij = NieuweRij();
  regel.rooster.addLayout(rij, regel.nummer, 1, 1, regel.Veldbreedte());
  Element& eerste = *elementen.front();
  const bool opschrift = !HeeftPrompt(eerste.Bron()) && IsOpschrift(eerste.Bron());
  if (opschrift) {
    regel.rooster.addWidget(&eerste.Widget(), regel.nummer, 0);
  } else {
    if (HeeftPrompt(eerste.Bron())) {
      regel.rooster.addWidget(&eerste.MaakPrompt(ouder_), regel.nummer, 0);
    }
    rij->addWidget(&eerste.Widget());
  }
  const std::string wie = WatErVoorStaat(eerste.Bron());
  for (auto it = elementen.begin() + 1; it != elementen.end(); ++it) {
    GeefLeesnaam((*it)->Bron(), wie);
    Naast(**it, *rij);
  }
  const auto velden = elementen.begin() + (opschrift ? 1 : 0);
  if (std::all_of(velden, elementen.end(), [](Element* e) { return IsSmal(*e); })) {
    rij->addStretch(1);
  }
}

void Opmaker::EnkelVeld(Element& element, Roosterregel regel) {
  QGridLayout& rooster = regel.rooster;
  const bool prompt = HeeftPrompt(element.Bron());
  QWidget* const widget = &element.Widget();
  if (IsHoog(element.Bron())) {
    if (prompt) {
      rooster.addWidget(&element.MaakPrompt(ouder_), regel.nummer++, 0, 1, regel.kolommen);
    }
    rooster.addWidget(widget, regel.nummer, 0, 1, regel.kolommen);
    rooster.setRowStretch(regel.nummer, 1);
  } else if (IsOpschrift(element.Bron())) {
    rooster.addWidget(widget, regel.nummer, 0, 1, regel.kolommen);
  } else {
    if (prompt) rooster.addWidget(&element.MaakPrompt(ouder_), regel.nummer, 0);
    rooster.addWidget(widget, regel.nummer, 1, 1, regel.Veldbreedte(), Plek(element));
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

// How wide the buttons of a column are, in characters: all as the widest of them.
static int KnopTekens(const std::vector<Element*>& elementen) {
  std::size_t tekens = 2;
  for (const Element* een : elementen) {
    const std::string_view tekst = een->Bron().Bijschrift();
    const bool nummer = std::all_of(tekst.begin(), tekst.end(), IsCijfer);
    tekens = std::max<std::size_t>(tekens, nummer ? kNummer : tekst.size());
  }
  return static_cast<int>(tekens);
}

// In a table values are plain, and take what buttons leave; a button is as small as it can be.
static void MaakCel(Element& element, const Blok& blok, int knop) {
  QWidget& widget = element.Widget();
  if (element.Bron().Soort() == BedieningSoort::Teller) {
    widget.setFont(widget.parentWidget()->font());
  } else if (element.Bron().Soort() == BedieningSoort::Knop) {
    ZetTekenBreedte(widget, knop, true);
  }
  if (blok.breedte) ZetTekenBreedte(widget, blok.breedte, false);
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

static std::string Regelnaam(const QString& kop, int regel) {
  return (kop.isEmpty() ? std::string("regel") : VanQt(kop).tekst) + " " + GetalTekst(regel);
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
    MaakCel(*element, blok, KnopTekens(elementen));
    GeefLeesnaam(element->Bron(), Regelnaam(kop, regel - 1));
    const bool smal = blok.breedte > 0 && blok.breedte <= kSmalleKolom;
    if (element->Bron().Soort() == BedieningSoort::Teller && !smal) {
      rooster.setColumnStretch(kolom, 1);
    }
  }
}

}  // namespace lb77
