// The part of the layout maker that gives controls without words a name for the ear.
#include <algorithm>
#include <map>
#include <string>

#include "forms/Bijschrift.h"
#include "qt/Opmaakdelen.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77::opmaak {

namespace {

// A number or a mark tells nobody what it is about.
bool ZegtNiets(const Bediening& bediening, const std::string& naam) {
  if (naam != ZonderSneltoets(bediening.Bijschrift())) return naam == bediening.Naam();
  return std::all_of(naam.begin(), naam.end(), IsCijfer);
}

}  // namespace

// What a number button shows is said behind its name. A field that can only be read has one too.
void GeefLeesnaam(Bediening& bediening, const std::string& woorden) {
  const bool veld = bediening.KanFocus() || dynamic_cast<const Invoerveld*>(&bediening);
  if (!veld || woorden.empty()) return;
  if (ZegtNiets(bediening, bediening.Leesnaam())) bediening.ZetLeesnaam(woorden);
}

std::string WatErVoorStaat(const Bediening& eerste) {
  return ZonderSneltoets(HeeftPrompt(eerste) ? eerste.Prompt() : eerste.Bijschrift());
}

void MaakLeesnamenUniek(const Formulier& formulier) {
  std::map<std::string, int> gehad;
  std::string vorige;
  for (Bediening* een : formulier.Bedieningen()) {
    if (!een->KanFocus() || dynamic_cast<const Verwijzing*>(een)) continue;
    // A line below another of the same text is named after it.
    GeefLeesnaam(*een, vorige);
    const std::string naam = een->Leesnaam();
    vorige = naam;
    const int keer = ++gehad[naam];
    if (keer > 1) een->ZetLeesnaam(naam + " " + GetalTekst(keer));
  }
}

}  // namespace lb77::opmaak
