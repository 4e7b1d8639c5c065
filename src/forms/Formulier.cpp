#include "forms/Formulier.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace lb77 {

Formulier::Formulier(std::string_view naam, std::string_view titel) : naam_(naam), titel_(titel) {}

Bediening* Formulier::Zoek(std::string_view naam) const {
  for (Bediening* bediening : bedieningen_) {
    if (bediening->Naam() == naam) return bediening;
  }
  return nullptr;
}

Bediening* Formulier::TerugKnop() const {
  Bediening* knop = Zoek("BackButton");
  return knop ? knop : Zoek("CancelButton");
}

bool Formulier::Laad() {
  gesloten_ = verborgen_ = gewijzigd_ = bezig_ = stop_ = false;
  focus_ = nullptr;
  BijLaden();
  return !gesloten_;
}

void Formulier::Activeer() {
  BijActiveren();
  BetreedEerste();
}

void Formulier::BetreedEerste() {
  if (gesloten_ || verborgen_ || focus_ || !eersteVeld_ || !Bereikbaar(*eersteVeld_)) return;
  Betreed(*eersteVeld_);
}

void Formulier::Herlaad() {
  gewijzigd_ = false;
  focus_ = nullptr;
  BijLaden();
  BetreedEerste();
}

void Formulier::Beeindig() {
  BijGesloten();
}

bool Formulier::IsTerug(const Bediening& bediening) {
  return bediening.Naam() == "BackButton" || bediening.Naam() == "CancelButton";
}

bool Formulier::Bereikbaar(const Bediening& bediening) {
  return bediening.Bruikbaar() && bediening.KanFocus();
}

// Input that arrives while a form repaints is dropped; what would leave becomes a stop request.
bool Formulier::Verstoord(const Bediening& bediening) {
  if (verversing_ && IsTerug(bediening)) stop_ = true;
  return verversing_;
}

bool Formulier::Controleer(Bediening& bediening) {
  if (inControle_) return true;
  inControle_ = true;
  bool ok = bediening.OpVerlaten();
  if (ok && !gesloten_ && bediening.bijVerlaten_) ok = bediening.bijVerlaten_();
  inControle_ = false;
  return ok;
}

void Formulier::Betreed(Bediening& bediening) {
  focus_ = &bediening;
  bediening.OpBetreden();
  if (!gesloten_ && bediening.bijBetreden_) bediening.bijBetreden_();
}

void Formulier::ZetFocus(Bediening& bediening) {
  if (focus_ != &bediening && Bereikbaar(bediening)) Betreed(bediening);
}

bool Formulier::VerlaatVeld() {
  Bediening* const oud = focus_;
  if (!oud) return true;
  if (verversing_ || inControle_) return false;
  // A field that went out of reach is not checked: the user could not come back to mend it.
  if (oud->Bruikbaar() && !Controleer(*oud)) {
    focus_ = oud;
    return false;
  }
  if (focus_ == oud) focus_ = nullptr;  // the check itself may have moved on
  return true;
}

bool Formulier::VerlaatVoor(Bediening& doel) {
  Bediening* const eerder = doel_;
  doel_ = &doel;
  const bool verlaten = VerlaatVeld();
  doel_ = eerder;
  return verlaten;
}

bool Formulier::GaNaar(Bediening& bediening) {
  if (Verstoord(bediening) || !Bereikbaar(bediening)) return false;
  if (focus_ == &bediening) return true;
  if (!VerlaatVoor(bediening) || gesloten_) return false;
  if (focus_) return focus_ == &bediening;  // the form's own move wins
  if (!Bereikbaar(bediening)) return false;
  Betreed(bediening);
  return true;
}

// To the neighbour, sought behind the leave check: that may have hidden or shown some.
void Formulier::GaVerder(const Bediening* van, int stap) {
  if (!Buur(van, stap) || !VerlaatVeld() || gesloten_ || focus_) return;
  if (Bediening* buur = Buur(van, stap)) Betreed(*buur);
}

// What a click does before anything happens: it leaves the field. Menus take no focus; the button
// that leads back leaves the focus where it is, so that the check still comes if the form stays.
bool Formulier::Pak(Bediening& bediening) {
  if (Verstoord(bediening) || !bediening.Bruikbaar()) return false;
  if (IsTerug(bediening) || bediening.Soort() == BedieningSoort::MenuKeuze) return true;
  if (focus_ == &bediening) return true;
  if (!VerlaatVoor(bediening) || gesloten_ || !bediening.Bruikbaar()) return false;
  if (bediening.KanFocus()) Betreed(bediening);
  return !gesloten_;
}

bool Formulier::Klik(Bediening& bediening) {
  if (!Pak(bediening)) return false;
  Schakel(bediening);
  if (!gesloten_ && bediening.bijKlik_) bediening.bijKlik_();
  return true;
}

bool Formulier::Dubbelklik(Bediening& bediening) {
  if (!Pak(bediening)) return false;
  Wissel(bediening);
  bediening.OpDubbelklik();
  if (!gesloten_ && bediening.bijDubbelklik_) bediening.bijDubbelklik_();
  if (Bediening* const ok = OKVoorLijst(bediening)) Klik(*ok);
  return true;
}

// Null for all but a pick list that has no double click of its own.
Bediening* Formulier::OKVoorLijst(const Bediening& bediening) const {
  if (bediening.Soort() != BedieningSoort::Keuzelijst || bediening.HeeftDubbelklik())
    return nullptr;
  Bediening* const ok = Zoek("OKButton");
  return ok && ok->Bruikbaar() ? ok : nullptr;
}

// Enter on the chosen line of a pick list does what a double click does; False when there is none.
bool Formulier::KiesRegel(Bediening& bediening) {
  if (bediening.Soort() != BedieningSoort::Keuzelijst) return false;
  if (static_cast<const Lijst&>(bediening).Index() < 0) return false;
  if (!bediening.HeeftDubbelklik() && !OKVoorLijst(bediening)) return false;
  Dubbelklik(bediening);
  return true;
}

void Formulier::Schakel(Bediening& bediening) {
  if (bediening.Soort() == BedieningSoort::Vinkje) {
    auto& vinkje = static_cast<Vinkje&>(bediening);
    vinkje.Zet(!vinkje.Gekozen());
  } else if (bediening.Soort() == BedieningSoort::Optie) {
    auto& optie = static_cast<Optie&>(bediening);
    if (optie.Gekozen()) return;
    optie.Zet(true);
  } else {
    return;
  }
  MeldWijziging(bediening);
}

// A label that toggles goes to its next text, and from the last to the first.
bool Formulier::Wissel(Bediening& bediening) {
  auto* const label = dynamic_cast<Wissellabel*>(&bediening);
  if (!label) return false;
  label->ZetIndex(label->Index() + 1);
  MeldWijziging(*label);
  return true;
}

void Formulier::MeldWijziging(Bediening& bediening) {
  gewijzigd_ = true;
  bediening.OpWijziging();
  if (!gesloten_ && bediening.bijWijziging_) bediening.bijWijziging_();
}

bool Formulier::Kies(Lijst& lijst, int index) {
  if (!GaNaar(lijst) || gesloten_) return false;
  const int oud = lijst.Index();
  lijst.ZetIndex(index);
  if (lijst.Index() != oud) MeldWijziging(lijst);
  return true;
}

void Formulier::Bewerkt(Invoerveld& veld, std::string_view tekst) {
  if (verversing_ || veld.Tekst() == tekst) return;
  // The toolkit's focus may rest here after a click that took none: the field is to be left again.
  if (!focus_) focus_ = &veld;
  veld.ZetTekst(tekst);
  MeldWijziging(veld);
}

void Formulier::Typ(Invoerveld& veld, char teken) {
  const char getypt = veld.Gefilterd(teken);
  if (!getypt) return;
  if (veld.MaxLengte() && veld.Tekst().size() >= veld.MaxLengte()) return;
  Bewerkt(veld, veld.Tekst() + getypt);
}

bool Formulier::Toets(Bediening* doel, ToetsGebeurtenis toets) {
  if (verversing_) {
    if (toets.code == toets::kEscape) stop_ = true;
    return true;
  }
  if (doel) ToetsIn(*doel, toets);
  if (!toets.verwerkt && !gesloten_) BijToets(toets);
  return toets.verwerkt || gesloten_ || StandaardToets(doel, toets);
}

// The kind's own keys first, and what it leaves is the form's.
void Formulier::ToetsIn(Bediening& bediening, ToetsGebeurtenis& toets) const {
  bediening.OpToets(toets);
  if (!toets.verwerkt && !gesloten_ && bediening.bijToets_) bediening.bijToets_(toets);
}

bool Formulier::StandaardToets(Bediening* doel, const ToetsGebeurtenis& toets) {
  switch (toets.code) {
    case toets::kEscape:
      VraagSluiten();
      return true;
    case toets::kTab:
      GaVerder(doel, toets.shift ? -1 : 1);
      return true;
    case toets::kEnter:
    case toets::kNumEnter:
      return doel && EnterIn(*doel);
    case toets::kSpatie:
      return doel && SpatieIn(*doel);
    default:
      return doel && KeuzeToets(*doel, toets.code);
  }
}

// The blank presses what can be pressed and toggles a label; in a field it is a character.
bool Formulier::SpatieIn(Bediening& bediening) {
  if (Wissel(bediening)) return true;
  const BedieningSoort soort = bediening.Soort();
  const bool drukbaar = soort == BedieningSoort::Knop || soort == BedieningSoort::Vinkje ||
                        soort == BedieningSoort::Optie;
  if (drukbaar) Klik(bediening);
  return drukbaar;
}

// The arrows walk through the options of one group, and choose on their way.
bool Formulier::OptieToets(Optie& optie, int code) {
  const bool verder = code == toets::kOmlaag || code == toets::kRechts;
  if (!verder && code != toets::kOmhoog && code != toets::kLinks) return false;
  std::vector<Bediening*> groep;
  std::copy_if(bedieningen_.begin(), bedieningen_.end(), std::back_inserter(groep), [&](auto* een) {
    const auto* ander = dynamic_cast<const Optie*>(een);
    return ander && ander->Groep() == optie.Groep() && ander->Bruikbaar();
  });
  const auto hier = std::find(groep.begin(), groep.end(), &optie);
  if (hier == groep.end() || groep.size() < 2) return true;
  const auto aantal = static_cast<std::ptrdiff_t>(groep.size());
  const std::ptrdiff_t doel = ((hier - groep.begin()) + (verder ? 1 : aantal - 1)) % aantal;
  Klik(*groep[static_cast<std::size_t>(doel)]);
  return true;
}

// The arrows and their like choose in a list.
bool Formulier::KeuzeToets(Bediening& bediening, int code) {
  if (auto* const optie = dynamic_cast<Optie*>(&bediening)) return OptieToets(*optie, code);
  auto* const lijst = dynamic_cast<Lijst*>(&bediening);
  if (!lijst) return false;
  const int laatste = static_cast<int>(lijst->Rijen().size()) - 1;
  int index = lijst->Index();
  if (code == toets::kOmhoog) {
    index = std::max(index - 1, 0);
  } else if (code == toets::kOmlaag) {
    index = std::min(index + 1, laatste);
  } else if (code == toets::kHome) {
    index = 0;
  } else if (code == toets::kEnd) {
    index = laatste;
  } else {
    return false;
  }
  Kies(*lijst, index);
  return true;
}

// Enter in a field does what the field's kind of Enter says; on anything pressable it presses.
bool Formulier::EnterIn(Bediening& bediening) {
  const auto* veld = dynamic_cast<const Invoerveld*>(&bediening);
  if (!veld) {
    if (bediening.Soort() == BedieningSoort::Knop) {
      Klik(bediening);
    } else if (!KiesRegel(bediening)) {
      GaVerder(&bediening, 1);
    }
    return true;
  }
  if (bediening.Soort() == BedieningSoort::Tekstblok) return false;
  switch (veld->Enter()) {
    case EnterSoort::Controle:
      if (!Controleer(bediening)) focus_ = &bediening;
      break;
    case EnterSoort::Door:
      GaVerder(&bediening, 1);
      break;
    case EnterSoort::OK:
      if (Bediening* ok = Zoek("OKButton")) Klik(*ok);
      break;
  }
  return true;
}

Bediening* Formulier::Buur(const Bediening* van, int stap) const {
  const int aantal = static_cast<int>(bedieningen_.size());
  int plaats = stap > 0 ? -1 : aantal;
  for (int i = 0; i < aantal; ++i) {
    if (bedieningen_[static_cast<std::size_t>(i)] == van) plaats = i;
  }
  for (int n = 0; n < aantal; ++n) {
    plaats = (plaats + stap + aantal) % aantal;
    Bediening* kandidaat = bedieningen_[static_cast<std::size_t>(plaats)];
    if (kandidaat != van && kandidaat->Bruikbaar() && kandidaat->KanFocus()) return kandidaat;
  }
  return nullptr;
}

void Formulier::VraagSluiten() {
  if (verversing_) {
    stop_ = true;
    return;
  }
  Terug();
}

void Formulier::Terug() {
  Bediening* knop = TerugKnop();
  if (!knop) {
    if (MagSluiten()) Sluit();
  } else if (knop->Bruikbaar() && knop->bijKlik_) {
    knop->bijKlik_();
  }
}

}  // namespace lb77
