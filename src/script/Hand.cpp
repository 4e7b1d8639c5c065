#include "script/Hand.h"

#include <algorithm>
#include <optional>

#include "script/Verslag.h"
#include "text/Getallen.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

// The item that a script means: "#N" by its place, anything else (or in quotes) by its text.
std::optional<int> RijVan(const Lijst& lijst, const Instructie& instructie) {
  const std::string_view waarde = instructie.argument;
  const int aantal = static_cast<int>(lijst.Rijen().size());
  if (!instructie.aangehaald && BegintMet(waarde, "#")) {
    const int plaats = Getalwaarde(waarde.substr(1));
    const bool goed = waarde.substr(1) == GetalTekst(plaats) && plaats >= 0 && plaats < aantal;
    return goed ? std::optional(plaats) : std::nullopt;
  }
  const auto rij = std::find(lijst.Rijen().begin(), lijst.Rijen().end(), waarde);
  if (rij == lijst.Rijen().end()) return std::nullopt;
  return static_cast<int>(rij - lijst.Rijen().begin());
}

// Can an entry be reached through the menus that it stands in? A menu that is named and absent
// counts as reachable; the walk is bounded, so that menus in a circle end.
bool IsBereikbaar(const Formulier& formulier, const MenuKeuze& keuze) {
  const Bediening* plek = &keuze;
  for (std::size_t n = 0; plek && n < formulier.Bedieningen().size(); ++n) {
    if (!plek->Bruikbaar()) return false;
    const auto* menu = dynamic_cast<const MenuKeuze*>(plek);
    plek = menu ? formulier.Zoek(menu->Menu()) : nullptr;
  }
  return true;
}

}  // namespace

void Hand::Weiger(std::string_view naam, std::string_view reden) const {
  throw SpeelFout{WindowsNaarUtf8(formulier_.Naam()) + "." + WindowsNaarUtf8(naam),
                  std::string(reden)};
}

Bediening& Hand::Vind(std::string_view naam) const {
  Bediening* const bediening = formulier_.Zoek(naam);
  if (!bediening) Weiger(naam, "bestaat niet");
  return *bediening;
}

Bediening& Hand::VindBruikbaar(std::string_view naam) const {
  Bediening& bediening = Vind(naam);
  if (!bediening.Zichtbaar()) Weiger(naam, "is verborgen");
  if (!bediening.Ingeschakeld()) Weiger(naam, "is uitgeschakeld");
  return bediening;
}

void Hand::Doe(const Instructie& instructie) {
  switch (instructie.soort) {
    case InstructieSoort::Kies:
      return KiesMenu(instructie.naam);
    case InstructieSoort::Vul:
    case InstructieSoort::Typ:
      return Vul(instructie);
    case InstructieSoort::Druk:
      return Druk(instructie.naam);
    case InstructieSoort::Dubbelklik:
      return Dubbelklik(instructie.naam);
    case InstructieSoort::Toets:
      return Toets(instructie);
    case InstructieSoort::Stel:
      return Stel(instructie);
    case InstructieSoort::Sluit:
      return formulier_.VraagSluiten();
    case InstructieSoort::Antwoord:
    case InstructieSoort::Bestand:
    case InstructieSoort::Onderbreek:
    case InstructieSoort::Toon:
      break;
  }
}

// True when the control has the focus now. A leave check that moves the focus itself has held: the
// user goes on to the field that he was going to.
bool Hand::Betreed(Bediening& bediening) {
  const Bediening* const vorig = formulier_.FocusVeld();
  if (!formulier_.GaNaar(bediening)) {
    if (formulier_.Gesloten() || formulier_.FocusVeld() == vorig) return false;
    if (!formulier_.GaNaar(bediening)) return false;
  }
  return StaatIn(bediening);
}

bool Hand::StaatIn(const Bediening& bediening) const {
  return !formulier_.Gesloten() && !formulier_.Verborgen() &&
         formulier_.FocusVeld() == &bediening && bediening.Bruikbaar();
}

void Hand::KiesMenu(std::string_view naam) {
  auto* const keuze = dynamic_cast<MenuKeuze*>(&Vind(naam));
  if (!keuze) Weiger(naam, "is geen menukeuze");
  if (!IsBereikbaar(formulier_, *keuze) || !keuze->HeeftKlik()) {
    Weiger(naam, "is niet beschikbaar");
  }
  formulier_.Klik(*keuze);
}

void Hand::Vul(const Instructie& instructie) {
  auto* const veld = dynamic_cast<Invoerveld*>(&VindBruikbaar(instructie.naam));
  if (!veld) Weiger(instructie.naam, "is geen invoerveld");
  if (veld->AlleenLezen()) Weiger(instructie.naam, "is alleen om te lezen");
  const std::string_view tekst = instructie.argument;
  if (veld->Soort() != BedieningSoort::Tekstblok && tekst.find('\n') != std::string_view::npos) {
    Weiger(instructie.naam, "heeft maar een regel");
  }
  if (!Betreed(*veld)) return;
  formulier_.Bewerkt(*veld, {});
  for (const char teken : tekst) {
    if (!StaatIn(*veld)) return;
    TypTeken(*veld, ToetsVanTeken(teken));
  }
  if (instructie.soort == InstructieSoort::Vul && StaatIn(*veld)) formulier_.VerlaatVeld();
}

// Key down, and when that leaves the key to the field, key pressed.
void Hand::TypTeken(Invoerveld& veld, ToetsGebeurtenis toets) {
  if (formulier_.Toets(&veld, toets)) return;
  if (toets.teken && !veld.AlleenLezen()) formulier_.Typ(veld, toets.teken);
}

void Hand::Druk(std::string_view naam) {
  Bediening& bediening = VindBruikbaar(naam);
  const BedieningSoort soort = bediening.Soort();
  const bool drukbaar = soort == BedieningSoort::Knop || soort == BedieningSoort::Optie ||
                        soort == BedieningSoort::Vinkje ||
                        (soort == BedieningSoort::Label && bediening.HeeftKlik());
  if (!drukbaar) Weiger(naam, "kan niet worden aangeklikt");
  formulier_.Klik(bediening);
}

void Hand::Dubbelklik(std::string_view naam) {
  Bediening& bediening = VindBruikbaar(naam);
  // A pick list without one of its own presses OK.
  const Bediening* ok = formulier_.Zoek("OKButton");
  const bool kiest = bediening.Soort() == BedieningSoort::Keuzelijst && ok && ok->Bruikbaar();
  if (!kiest && !bediening.HeeftDubbelklik()) Weiger(naam, "doet niets bij een dubbelklik");
  formulier_.Dubbelklik(bediening);
}

void Hand::Toets(const Instructie& instructie) {
  Bediening* doel = formulier_.FocusVeld();
  if (!instructie.naam.empty()) {
    doel = &VindBruikbaar(instructie.naam);
    if (!doel->KanFocus()) Weiger(instructie.naam, "neemt geen toetsen aan");
    // Escape always goes through, so it leaves no field on its way.
    if (instructie.toets.code != toets::kEscape && !Betreed(*doel)) return;
  } else if (doel && !doel->Bruikbaar()) {
    doel = nullptr;
  }
  if (auto* const veld = dynamic_cast<Invoerveld*>(doel)) {
    TypTeken(*veld, instructie.toets);
  } else {
    static_cast<void>(formulier_.Toets(doel, instructie.toets));
  }
}

void Hand::Stel(const Instructie& instructie) {
  Bediening& bediening = VindBruikbaar(instructie.naam);
  if (auto* const lijst = dynamic_cast<Lijst*>(&bediening)) return StelLijst(*lijst, instructie);
  auto* const schakelaar = dynamic_cast<Schakelaar*>(&bediening);
  if (!schakelaar) Weiger(instructie.naam, "is geen keuze");
  StelSchakelaar(*schakelaar, instructie.argument);
}

void Hand::StelLijst(Lijst& lijst, const Instructie& instructie) {
  if (!Betreed(lijst)) return;
  const auto rij = RijVan(lijst, instructie);
  if (!rij) Weiger(instructie.naam, "heeft geen rij " + Aangehaald(instructie.argument));
  formulier_.Kies(lijst, *rij);
}

void Hand::StelSchakelaar(Schakelaar& schakelaar, std::string_view waarde) {
  if (waarde != "aan" && waarde != "uit") Weiger(schakelaar.Naam(), "kan alleen aan of uit");
  const bool aan = waarde == "aan";
  if (!aan && schakelaar.Gekozen() && schakelaar.Soort() == BedieningSoort::Optie) {
    Weiger(schakelaar.Naam(), "gaat alleen uit door een andere optie te kiezen");
  }
  if (schakelaar.Gekozen() == aan) {
    static_cast<void>(Betreed(schakelaar));
  } else {
    formulier_.Klik(schakelaar);
  }
}

}  // namespace lb77
