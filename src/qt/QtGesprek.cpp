#include "qt/QtGesprek.h"

#include <algorithm>

#include "qt/Berichtvenster.h"
#include "qt/Bestandsvenster.h"
#include "qt/Drukker.h"

namespace lb77 {

namespace {

constexpr qint64 kVerversing = 40;  // milliseconds: 25 times a second

}  // namespace

QtGesprek::QtGesprek(const std::filesystem::path& map) : instellingen_(map) {}

Binder* QtGesprek::BinderVan(const Formulier& formulier) const {
  for (const auto& binder : stapel_) {
    if (&binder->Vorm() == &formulier) return binder.get();
  }
  return nullptr;
}

QWidget* QtGesprek::Bovenste() const {
  for (auto it = stapel_.rbegin(); it != stapel_.rend(); ++it) {
    if ((*it)->Venster().isVisible()) return &(*it)->Venster();
  }
  return nullptr;
}

void QtGesprek::WerkAllesBij() {
  for (const auto& binder : stapel_) binder->Bijwerken();
}

Antwoord QtGesprek::Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) {
  WerkAllesBij();
  return ToonBericht(Bovenste(), soort, knoppen, tekst);
}

bool QtGesprek::BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) {
  WerkAllesBij();
  return ToonBerichtMetVinkje(Bovenste(), tekst, vinkje);
}

std::optional<std::filesystem::path> QtGesprek::VraagBestand(const BestandsVraag& vraag) {
  WerkAllesBij();
  return KiesBestand(Bovenste(), vraag, instellingen_);
}

bool QtGesprek::DrukAf(const Afdruk& afdruk) {
  WerkAllesBij();
  return VraagEnDrukAf(Bovenste(), afdruk);
}

void QtGesprek::Ververs(Formulier& formulier) {
  if (sindsVerversing_.isValid() && sindsVerversing_.elapsed() < kVerversing) return;
  if (Binder* binder = BinderVan(formulier)) binder->Ververs();
  sindsVerversing_.start();
}

bool QtGesprek::StopGevraagd(Formulier& formulier) {
  Ververs(formulier);
  return formulier.StopVerzocht();
}

void QtGesprek::Open(Formulier& formulier) {
  WerkAllesBij();
  stapel_.push_back(std::make_unique<Binder>(formulier, *this, instellingen_, Bovenste()));
  stapel_.back()->Toon();
  sindsVerversing_.invalidate();  // work that begins now shows itself at once
}

void QtGesprek::Voer(Formulier& formulier) {
  if (Binder* binder = BinderVan(formulier)) binder->Voer();
}

void QtGesprek::Dicht(Formulier& formulier) {
  std::erase_if(stapel_, [&](const auto& binder) { return &binder->Vorm() == &formulier; });
  if (QWidget* venster = Bovenste()) venster->activateWindow();
}

}  // namespace lb77
