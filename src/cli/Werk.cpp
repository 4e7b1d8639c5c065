#include "cli/Werk.h"

#include <algorithm>
#include <cstddef>

#include "forms/Bijschrift.h"
#include "script/Hand.h"
#include "script/Verslag.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

// A prompt without what leads the eye to its field.
std::string Kaal(std::string_view bijschrift) {
  std::string tekst = ZonderSneltoets(bijschrift);
  while (!tekst.empty() && std::string_view(" :?").find(tekst.back()) != std::string_view::npos) {
    tekst.pop_back();
  }
  return tekst;
}

}  // namespace

std::string Werk::Aanduiding(std::string_view naam) const {
  const Bediening* const bediening = formulier_.Zoek(naam);
  std::string wat = bediening ? Kaal(bediening->Bijschrift()) : std::string();
  if (wat.empty()) wat = naam;
  return WindowsNaarUtf8(formulier_.Titel() + ": " + wat);
}

// Always False, for the caller to hand on.
bool Werk::Weiger(std::string_view naam, std::string_view redenUtf8) {
  bediener_.MisluktUtf8(Aanduiding(naam) + " " + std::string(redenUtf8));
  return false;
}

bool Werk::Doe(InstructieSoort soort, std::string_view naam, std::string_view waarde) {
  Instructie instructie;
  instructie.soort = soort;
  instructie.naam = naam;
  instructie.argument = waarde;
  instructie.aangehaald = true;
  try {
    Hand(formulier_).Doe(instructie);
    return true;
  } catch (const SpeelFout& fout) {
    return Weiger(naam, fout.reden);
  }
}

void Werk::Druk(std::string_view naam) {
  if (!formulier_.Gesloten()) static_cast<void>(Doe(InstructieSoort::Druk, naam, {}));
}

void Werk::Kies(std::string_view menuKeuze) {
  if (!formulier_.Gesloten()) static_cast<void>(Doe(InstructieSoort::Kies, menuKeuze, {}));
}

bool Werk::ZetAlle(std::span<const std::string> keuzen) {
  bool goed = true;
  for (const std::string& zet : keuzen) {
    const std::size_t teken = std::min(zet.find('='), zet.size());
    const std::size_t achter = std::min(teken + 1, zet.size());
    if (!Zet(zet.substr(0, teken), zet.substr(achter))) goed = false;
  }
  return goed;
}

bool Werk::Zet(std::string_view naam, std::string_view waarde) {
  if (formulier_.Gesloten()) return false;
  Bediening* const bediening = formulier_.Zoek(naam);
  if (auto* veld = dynamic_cast<Invoerveld*>(bediening)) return ZetVeld(*veld, waarde);
  return Doe(InstructieSoort::Stel, naam, waarde) && bediening->Waarde() == waarde;
}

bool Werk::ZetVeld(Invoerveld& veld, std::string_view waarde) {
  if (!Doe(InstructieSoort::Typ, veld.Naam(), waarde)) return false;
  if (formulier_.Gesloten() || formulier_.FocusVeld() != &veld) return false;
  // A user would see that the field drops what it does not take.
  if (veld.Tekst().size() != waarde.size()) {
    return Weiger(veld.Naam(), "neemt " + Aangehaald(waarde) + " niet aan");
  }
  return formulier_.VerlaatVeld() || Weiger(veld.Naam(), "heeft geen geldige waarde");
}

}  // namespace lb77
