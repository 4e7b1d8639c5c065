#include "app/Welkom.h"

#include <system_error>

#include "app/IniBestand.h"
#include "app/OudeSets.h"
#include "app/SetMaken.h"
#include "store/Paden.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Pad.h"

namespace lb77 {

// A link that leads nowhere, or a file that nobody may read, is told of by the start-up.
bool IsEersteKeer(const std::filesystem::path& programmaMap) {
  std::error_code code;
  const std::filesystem::path ini = VindPad(programmaMap / kIniBestand);
  const bool weg =
      std::filesystem::symlink_status(ini, code).type() == std::filesystem::file_type::not_found;
  return weg && !HeeftInstellingen(programmaMap);
}

Welkom::Welkom(Hoofdmodule& hoofd) : Formulier("Welkom", "LB77 voor Windows"), hoofd_(hoofd) {
  ZetHulpOnderwerp("starten");
  ZetEersteVeld(Wegen.NieuweFamilie);
  WelkomUitleg.ZetBijschrift(
      "LB77 houdt de gegevens van uw familie bij en schrijft er de verslagen van die genealogen "
      "gebruiken. Kies hoe u wilt beginnen; alles wat u kiest kunt u later ook nog doen.");
  Terugnemen.BijKlik([this] { TerugnemenKlik(); });
  Wegen.BijKeuze([this](Weg weg) { WegenKlik(weg); });
  BackButton.BijKlik([this] { Sluit(); });
}

void Welkom::BijLaden() {
  WaarLabel.ZetBijschrift("Uw gegevens komen te staan in de map\n" +
                          PadTekst(hoofd_.Ini.DataDir()) +
                          "\nen gaan nergens anders heen. Een andere map kiest u later onder "
                          "Bestand, Instellingen, Systeem.");
  gevonden_ = SetsIn(hoofd_.Ini.DataDir());
  GevondenLabel.ZetZichtbaar(!gevonden_.empty());
  Terugnemen.ZetZichtbaar(!gevonden_.empty());
  if (gevonden_.empty()) return;
  ZetEersteVeld(Terugnemen);
  std::string namen;
  for (const std::string& naam : gevonden_) namen.append(namen.empty() ? "" : ", ").append(naam);
  GevondenLabel.ZetBijschrift(
      "Er staan hier al families: " + namen +
      ". Alleen de instellingen zijn weg, met de lijst van families erin; de families niet.");
}

// What cannot be written has been told; then there is still everything to choose.
void Welkom::WegenKlik(Weg weg) {
  std::error_code code;
  std::filesystem::create_directories(hoofd_.programmaMap, code);
  hoofd_.Ini.IniNieuw();
  const bool gemaakt = HeeftInstellingen(hoofd_.programmaMap);
  if (gemaakt) gekozen_ = weg;
  if (gemaakt || hoofd_.Ini.EindeGevraagd()) Sluit();
}

// What does not fit in the list lies where it lay, and can be taken over later.
void Welkom::TerugnemenKlik() {
  WegenKlik(Weg::Teruggevonden);
  if (gekozen_ != Weg::Teruggevonden) return;
  int nummer = 0;
  for (const std::string& naam : gevonden_) {
    if (!KanNieuweSetZijn(hoofd_, naam)) break;
    hoofd_.Ini.IniZet("Sets", "Set" + GetalTekst(++nummer), naam + ",");
  }
  hoofd_.Ini.IniSchrijf();
}

}  // namespace lb77
