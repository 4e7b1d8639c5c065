#include "program/Programma.h"

#include <exception>

#include "ancestors/KwstTxtPrs.h"
#include "app/IniGebruiker.h"
#include "app/NieuweSet.h"
#include "app/OpenSetForm.h"
#include "app/OverLB77Form.h"
#include "app/Start.h"
#include "app/VerwijderSetForm.h"
#include "exchange/ImpGedcom.h"
#include "output/BekijkTekst.h"

namespace lb77 {

Programma::Programma(Gesprek& gesprek, const Klok& klok, const std::filesystem::path& programmaMap)
    : hoofd_(gesprek, klok, programmaMap), menu_(hoofd_) {
  HangOp();
}

bool Programma::Start() {
  return lb77::Start(hoofd_);
}

// The last net below the dialogs. What ends a script is no std::exception: it drops the session.
void Programma::Voer() {
  try {
    hoofd_.gesprek.ToonModaal(menu_);
  } catch (const std::exception&) {
    hoofd_.Ini.IniSchrijf();
    throw;
  }
}

void Programma::HangOp() {
  const auto toon = [this](Formulier&& formulier) { hoofd_.gesprek.ToonModaal(formulier); };
  menu_.Hang("MaakSet", [this, toon] { toon(NieuweSet(hoofd_, menu_)); });
  menu_.Hang("OpenSet", [this, toon] { toon(OpenSetForm(hoofd_, menu_)); });
  menu_.Hang("VerwijderSet", [this, toon] { toon(VerwijderSetForm(hoofd_, menu_)); });
  menu_.Hang("SetupGebruiker", [this, toon] { toon(IniGebruiker(hoofd_)); });
  menu_.Hang("ImportGedcom", [this, toon] { toon(ImpGedcom(hoofd_)); });
  menu_.Hang("ViewTekst", [this, toon] { toon(BekijkTekst(hoofd_)); });
  menu_.Hang("TekstKwst", [this, toon] { toon(KwstTxtPrs(hoofd_)); });
  menu_.Hang("AboutLB77", [toon] { toon(OverLB77Form()); });
}

void VoerProgramma(Gesprek& gesprek, const Klok& klok, const std::filesystem::path& programmaMap) {
  Programma programma(gesprek, klok, programmaMap);
  if (programma.Start()) programma.Voer();
}

}  // namespace lb77
