#include "ancestors/KwstVelden.h"

#include <algorithm>

#include "app/Hoofdmodule.h"
#include "forms/Gesprek.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kGeenGetal = "Onjuist kwartiernummer (geen getal)";
constexpr int kMaxGeneraties = 80;

bool AlleenCijfersIn(std::string_view tekst) {
  return std::all_of(tekst.begin(), tekst.end(), IsCijfer);
}

}  // namespace

ProbandKop::ProbandKop(Formulier& formulier)
    : NrProband(formulier, "NrProband", "Persoonsnummer:"),
      VoorNmProband(formulier, "VoorNmProband", "Voornamen:"),
      AchterNmProband(formulier, "AchterNmProband", "Achternaam:"),
      Periode(formulier, "Periode", "Periode:") {}

void ProbandKop::Toon(Hoofdmodule& hoofd, std::int16_t nr) {
  std::string voor;
  std::string achter;
  hoofd.Persoon.HeleNaam(nr, voor, achter, "<onbekend>");
  NrProband.ZetTekst(GetalTekst(nr));
  VoorNmProband.ZetTekst(voor);
  AchterNmProband.ZetTekst(achter);
  Periode.ZetTekst(hoofd.Persoon.Periode(nr));
}

std::string ProbandKop::Naam() const {
  return VoorNmProband.Tekst() + " " + AchterNmProband.Tekst();
}

KwstNummerVelden::KwstNummerVelden(Formulier& formulier, Hoofdmodule& hoofd)
    : KwNrProband(formulier, "KwNrProband", "Kwartiernummer van de proband:", 24),
      VanafKwartier(formulier, "VanafKwartier", "Eerst uit te voeren kwartiernummer:", 24),
      MaxGen(formulier, "MaxGen", "Maximum aantal generaties:", 2),
      hoofd_(hoofd) {
  KwNrProband.BijVerlaten([this] { return NrProbandVerlaten(); });
  VanafKwartier.BijVerlaten([this] { return VanafVerlaten(); });
  MaxGen.BijVerlaten([this] { return MaxGenVerlaten(); });
}

void KwstNummerVelden::Laad() {
  KwNrProband.ZetTekst("1");
  VanafKwartier.ZetTekst("1");
  MaxGen.ZetTekst("80");
}

void KwstNummerVelden::Bewaar(KwstOpties& opties) const {
  opties.KwBeginNr = Kwartiernummer(KwNrProband.Tekst());
  opties.KwVanafNr = Kwartiernummer(VanafKwartier.Tekst());
  opties.KwMaxGen = Getalwaarde(MaxGen.Tekst());
}

bool KwstNummerVelden::Weiger(std::string_view melding) {
  hoofd_.gesprek.Waarschuw(melding);
  return false;
}

bool KwstNummerVelden::NrProbandVerlaten() {
  const std::string_view tekst = Trim(KwNrProband.Tekst());
  if (tekst.empty()) return Weiger("Het kwartiernummer van de proband is verplicht");
  return AlleenCijfersIn(tekst) || Weiger(kGeenGetal);
}

bool KwstNummerVelden::VanafVerlaten() {
  const std::string_view tekst = Trim(VanafKwartier.Tekst());
  if (tekst.empty()) return Weiger("Het eerst uit te voeren kwartiernummer is verplicht");
  if (!AlleenCijfersIn(tekst)) return Weiger(kGeenGetal);
  return Kwartiernummer(tekst).Vanaf(Kwartiernummer(KwNrProband.Tekst())) ||
         Weiger(
             "Het eerst uit te voeren kwartiernummer mag niet kleiner zijn dan dat van de "
             "proband");
}

bool KwstNummerVelden::MaxGenVerlaten() {
  const std::string_view tekst = Trim(MaxGen.Tekst());
  if (tekst.empty()) return Weiger("Het maximum aantal generaties is verplicht");
  const std::int32_t waarde = Getalwaarde(tekst);
  return (waarde >= 1 && waarde <= kMaxGeneraties) || Weiger("Onjuist aantal generaties (1-80)");
}

}  // namespace lb77
