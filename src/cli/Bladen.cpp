// `bladen`: all sheets of ancestors, the proband's first.
#include <cstdint>
#include <set>

#include "ancestors/KwstBladen.h"
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"
#include "cli/Werk.h"

namespace lb77 {

namespace {

// One walk over the sheets of a proband.
class Wandelaar {
 public:
  Wandelaar(Bediener& bediener, KwstBladen& bladen)
      : bediener_(bediener), bladen_(bladen), werk_(bediener, bladen) {}

  // Prints the sheet that is shown, and behind it those of the ancestors that lead to a further one.
  // Nobody has two sheets. A sheet lies three generations above the one before it, so that this goes
  // no deeper than the table.
  void Druk() {
    gehad_.insert(bladen_.Persoon(1));
    werk_.Druk("UitvoerButton");
    for (int p = kBladLaatste; p <= kBladPlaatsen; ++p) {
      if (bediener_.Status() != 0) return;  // told once, not for each sheet
      if (!bladen_.Kwartieren(p).Kwartier_A.Zichtbaar()) continue;
      if (gehad_.contains(bladen_.Persoon(p))) continue;
      werk_.Druk(bladen_.Kwartieren(p).Proband.Naam());
      Druk();
      for (int terug = 1; terug < kBladGeneraties; ++terug) werk_.Druk("NaarKind");
    }
  }

 private:
  Bediener& bediener_;
  KwstBladen& bladen_;
  Werk werk_;
  std::set<std::int16_t> gehad_;  // who is at the root of a sheet
};

void DrukBladen(Bediener& bediener, Formulier& form) {
  if (auto* bladen = dynamic_cast<KwstBladen*>(&form)) Wandelaar(bediener, *bladen).Druk();
}

constexpr Rapport kBladen{"SchemaKwBlad",
                          {{{"KwstBldPrs", {{{"RecordNr", Vulling::Persoon, 1}}}},
                            {"KwstBldParam", {}, true, "OKButton(1)"}}},
                          {"KwstBladen", DrukBladen}};

}  // namespace

int Bladen(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kBladen, omgeving, argumenten);
}

}  // namespace lb77
