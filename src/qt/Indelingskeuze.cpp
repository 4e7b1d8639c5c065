#include "qt/Indelingskeuze.h"

#include <algorithm>
#include <set>
#include <utility>

#include "qt/Automatisch.h"
#include "qt/indeling/Indelingen.h"

namespace lb77 {

namespace {

bool IsRij(std::string_view patroon) {
  return patroon.ends_with("(*)");
}

bool Past(std::string_view patroon, std::string_view naam) {
  if (!IsRij(patroon)) return patroon == naam;
  patroon.remove_suffix(2);
  return naam.starts_with(patroon) && naam.ends_with(")");
}

template <class Doe>
void ElkVeld(const Blok& blok, Doe doe) {
  if (blok.soort == Blok::Soort::Veld && !blok.naam.empty()) doe(blok.naam);
  for (const Blok& deel : blok.delen) ElkVeld(deel, doe);
}

// A name that occurs before, or that the form does not know.
class Zeef {
 public:
  explicit Zeef(const Formulier& formulier) : formulier_(formulier) {}

  bool Overbodig(const Blok& blok) {
    if (blok.soort != Blok::Soort::Veld || blok.naam.empty()) return false;
    const std::vector<Bediening*> nieuw = Genoemd(formulier_, blok);
    if (nieuw.empty()) return true;
    return !std::all_of(nieuw.begin(), nieuw.end(),
                        [this](const Bediening* een) { return gehad_.insert(een).second; });
  }

  void Schoon(Blok& blok) {
    std::erase_if(blok.delen, [this](const Blok& deel) { return Overbodig(deel); });
    for (Blok& deel : blok.delen) {
      if (blok.soort == Blok::Soort::Rooster) {
        SchoonRegel(deel);
      } else {
        Schoon(deel);
      }
    }
  }

  // In a line of a grid the cells keep their places.
  void SchoonRegel(Blok& regel) {
    for (Blok& cel : regel.delen) {
      if (Overbodig(cel)) cel.naam.clear();
      Schoon(cel);
    }
  }

 private:
  const Formulier& formulier_;
  std::set<const Bediening*> gehad_;
};

Blok* ZoekKnoppen(Blok& blok) {
  if (blok.soort == Blok::Soort::Knoppen) return &blok;
  for (Blok& deel : blok.delen) {
    if (Blok* gevonden = ZoekKnoppen(deel)) return gevonden;
  }
  return nullptr;
}

// Buttons join the buttons; the rest stands before them.
void VoegBij(Blok& blok, Blok rest) {
  if (Blok* eigen = ZoekKnoppen(blok)) {
    if (Blok* erbij = ZoekKnoppen(rest)) {
      std::vector<Blok>& rechts = eigen->delen.back().delen;
      std::vector<Blok>& meer = erbij->delen.back().delen;
      rechts.insert(rechts.begin(), meer.begin(), meer.end());
      meer.clear();
    }
  }
  const bool kolom = blok.soort == Blok::Soort::Kolom;
  const bool knoppenOnder =
      kolom && !blok.delen.empty() && blok.delen.back().soort == Blok::Soort::Knoppen;
  if (!kolom) blok = indeling::Kolom({std::move(blok)});
  blok.delen.insert(blok.delen.end() - (knoppenOnder ? 1 : 0), std::move(rest));
}

}  // namespace

bool InIndeling(const Bediening& bediening) {
  return bediening.Soort() != BedieningSoort::MenuKeuze &&
         bediening.Soort() != BedieningSoort::Statusbalk;
}

std::vector<Bediening*> Genoemd(const Formulier& formulier, const Blok& blok) {
  std::vector<Bediening*> uit;
  ElkVeld(blok, [&](const std::string& patroon) {
    for (Bediening* bediening : formulier.Bedieningen()) {
      if (Past(patroon, bediening->Naam())) uit.push_back(bediening);
    }
  });
  return uit;
}

std::optional<Blok> GeschrevenIndeling(std::string_view formulier) {
  for (Indeling& een : indeling::Alle()) {
    if (een.formulier == formulier) return std::move(een.blok);
  }
  return std::nullopt;
}

std::vector<std::string> LayoutFouten(const Formulier& formulier, const Blok& blok) {
  std::vector<std::string> fouten;
  ElkVeld(blok, [&](const std::string& patroon) {
    if (Genoemd(formulier, indeling::Veld(patroon)).empty())
      fouten.push_back(patroon + " bestaat niet");
  });
  const std::vector<Bediening*> genoemd = Genoemd(formulier, blok);
  for (const Bediening* bediening : formulier.Bedieningen()) {
    const auto keer = std::count(genoemd.begin(), genoemd.end(), bediening);
    if (keer > 1) fouten.push_back(bediening->Naam() + " staat dubbel");
    if (keer == 0 && InIndeling(*bediening)) fouten.push_back(bediening->Naam() + " ontbreekt");
  }
  return fouten;
}

std::vector<std::string> LayoutFouten(const Formulier& formulier) {
  const std::optional<Blok> geschreven = GeschrevenIndeling(formulier.Naam());
  return LayoutFouten(formulier, geschreven ? *geschreven : IndelingVoor(formulier));
}

Blok Aangevuld(const Formulier& formulier, Blok blok) {
  Zeef(formulier).Schoon(blok);
  const std::vector<Bediening*> genoemd = Genoemd(formulier, blok);
  std::vector<Bediening*> vergeten;
  for (Bediening* bediening : formulier.Bedieningen()) {
    const bool staat = std::find(genoemd.begin(), genoemd.end(), bediening) != genoemd.end();
    if (!staat && InIndeling(*bediening)) vergeten.push_back(bediening);
  }
  if (!vergeten.empty()) VoegBij(blok, AutomatischeIndeling(vergeten));
  return blok;
}

Blok IndelingVoor(const Formulier& formulier) {
  if (std::optional<Blok> geschreven = GeschrevenIndeling(formulier.Naam())) {
    return Aangevuld(formulier, std::move(*geschreven));
  }
  std::vector<Bediening*> alle;
  for (Bediening* bediening : formulier.Bedieningen()) {
    if (InIndeling(*bediening)) alle.push_back(bediening);
  }
  return AutomatischeIndeling(alle);
}

}  // namespace lb77
