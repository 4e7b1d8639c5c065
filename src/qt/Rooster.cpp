// The part of the layout maker for grids of cells, each with its prompt before its field.
#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <cstddef>
#include <string_view>

#include "qt/Opmaakdelen.h"
#include "qt/Opmaker.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"
#include "text/Tekens.h"

namespace lb77 {

using namespace opmaak;

// The parts of a cell, each with the width that the layout gives it.
static std::vector<Blok> Celdelen(const Blok& cel) {
  return cel.soort == Blok::Soort::Veld ? std::vector<Blok>{cel} : cel.delen;
}

bool Opmaker::IsBreed(const Blok& cel) const {
  for (const Blok& deel : Celdelen(cel)) {
    if (deel.breedte > 0 && deel.breedte <= kSmalleKolom) continue;
    for (const Element* een : Elementen(deel)) {
      if (!IsOpschrift(een->Bron()) && !IsSmal(*een)) return true;
    }
  }
  return false;
}

std::vector<Opmaker::Roosterkolom> Opmaker::Roosterkolommen(const Blok& blok) const {
  std::vector<Roosterkolom> uit;
  for (const Blok& regel : blok.delen) {
    std::size_t kolom = 0;
    for (const Blok& cel : regel.delen) {
      if (uit.size() < kolom + static_cast<std::size_t>(cel.kolommen)) {
        uit.resize(kolom + static_cast<std::size_t>(cel.kolommen));
      }
      const std::vector<Element*> elementen = Elementen(cel);
      if (!elementen.empty() && cel.kolommen == 1) {
        const Bediening& eerste = elementen.front()->Bron();
        uit[kolom].prompt |= IsOpschrift(eerste) || HeeftPrompt(eerste);
        uit[kolom].breed |= IsBreed(cel);
      }
      kolom += static_cast<std::size_t>(cel.kolommen);
    }
  }
  return uit;
}

// The words that begin a line.
std::string Opmaker::Regelwoorden(const Blok& regel) const {
  const std::vector<Element*> elementen = Elementen(regel);
  return elementen.empty() ? std::string() : WatErVoorStaat(elementen.front()->Bron());
}

static std::string Kopwoorden(const std::vector<std::string>& koppen, std::size_t kolom) {
  if (kolom >= koppen.size() || koppen[kolom].empty()) return {};
  return VanQt(QString::fromStdString(koppen[kolom])).tekst + " ";
}

// What room is left goes to the columns that can use it; a heading stands above the fields.
void Opmaker::Rooster(const Blok& blok, QBoxLayout& in) {
  auto* rooster = new QGridLayout;
  in.addLayout(rooster);
  rooster->setHorizontalSpacing(kTussen);
  rooster->setVerticalSpacing(kTussen);
  const std::vector<Roosterkolom> kolommen = Roosterkolommen(blok);
  const bool breed = std::any_of(kolommen.begin(), kolommen.end(),
                                 [](const Roosterkolom& een) { return een.breed; });
  for (std::size_t i = 0; i < kolommen.size(); ++i) {
    const auto kolom = static_cast<int>(2 * i);
    if (kolommen[i].breed || !breed) rooster->setColumnStretch(kolom + 1, 1);
    if (i >= blok.koppen.size()) continue;
    auto* titel = new QLabel(QString::fromStdString(blok.koppen[i]), &ouder_);
    titel->setFont(Vet(titel->font()));
    rooster->addWidget(titel, 0, kolommen[i].prompt ? kolom : kolom + 1, 1,
                       kolommen[i].prompt ? 2 : 1);
  }
  int nummer = 1;
  for (const Blok& regel : blok.delen) {
    int kolom = 0;
    const std::string wie = Regelwoorden(regel);
    for (const Blok& cel : regel.delen) {
      Cel(cel, *rooster, nummer, kolom);
      const std::string kop = Kopwoorden(blok.koppen, static_cast<std::size_t>(kolom));
      for (Element* element : Elementen(cel)) GeefLeesnaam(element->Bron(), kop + wie);
      kolom += cel.kolommen;
    }
    ++nummer;
  }
  Onthoud(*rooster, false);
}

// A button with a mark is as small as it can be, beside the field that it belongs to; one with a
// number is no wider than the number asks.
static void MaakSmal(Element& element) {
  constexpr int kTeken = 2;
  if (element.Bron().Soort() != BedieningSoort::Knop) return;
  const std::string_view tekst = element.Bron().Bijschrift();
  QWidget& knop = element.Widget();
  if (std::all_of(tekst.begin(), tekst.end(), IsCijfer)) {
    knop.setSizePolicy(QSizePolicy::Fixed, knop.sizePolicy().verticalPolicy());
  } else if (tekst.size() == 1) {
    ZetTekenBreedte(knop, kTeken, true);
  }
}

void Opmaker::Cel(const Blok& blok, QGridLayout& rooster, int regel, int kolom) {
  std::vector<Element*> elementen = Elementen(blok);
  if (elementen.empty()) return;
  for (const Blok& deel : Celdelen(blok)) {
    if (deel.breedte == 0) continue;
    for (Element* element : Elementen(deel))
      ZetTekenBreedte(element->Widget(), deel.breedte, false);
  }
  Element& eerste = *elementen.front();
  const int breedte = 2 * blok.kolommen;
  if (IsOpschrift(eerste.Bron())) {
    const int eigen = elementen.size() == 1 ? breedte : 1;
    rooster.addWidget(&eerste.Widget(), regel, 2 * kolom, 1, eigen);
    elementen.erase(elementen.begin());
  } else if (HeeftPrompt(eerste.Bron())) {
    rooster.addWidget(&eerste.MaakPrompt(ouder_), regel, 2 * kolom);
  }
  if (elementen.empty()) return;
  QHBoxLayout* rij = NieuweRij();
  rooster.addLayout(rij, regel, 2 * kolom + 1, 1, breedte - 1);
  for (Element* element : elementen) {
    MaakSmal(*element);
    if (element == &eerste) {
      rij->addWidget(&element->Widget());
    } else {
      Naast(*element, *rij);
    }
  }
  if (std::all_of(elementen.begin(), elementen.end(), [](Element* e) { return IsSmal(*e); })) {
    rij->addStretch(1);
  }
}

}  // namespace lb77
