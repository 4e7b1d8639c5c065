#include "ancestors/KwstVelden.h"

#include <algorithm>

#include "forms/Gesprek.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::size_t kMaxCijfers = 24;

}  // namespace

KwartierVak::KwartierVak(Formulier& formulier, Gesprek& gesprek, const KwartierVakSoort& soort)
    : Tekstvak(formulier, soort.naam, soort.bijschrift, kMaxCijfers),
      gesprek_(gesprek),
      verplicht_(soort.verplicht),
      nulMag_(soort.nulMag) {
  BijVerlaten([this] { return Geldig(); });
}

bool KwartierVak::Geldig() const {
  const std::string_view tekst = Trim(Tekst());
  const bool cijfers = std::all_of(tekst.begin(), tekst.end(), IsCijfer);
  if (!tekst.empty() && cijfers && (nulMag_ || Nummer() != Kwartiernummer("0"))) return true;
  gesprek_.Waarschuw(tekst.empty() ? verplicht_ : "Onjuist kwartiernummer (geen getal)");
  return false;
}

KwstNummerVelden::KwstNummerVelden(Formulier& formulier, Gesprek& gesprek)
    : KwNrProband(formulier, gesprek, kNrProbandVak),
      VanafKwartier(formulier, gesprek, kVanafVak),
      MaxGen(formulier, gesprek, kTotTachtig),
      gesprek_(gesprek) {
  VanafKwartier.BijVerlaten([this] { return VanafKwartierVerlaten(); });
}

void KwstNummerVelden::Laad() {
  KwNrProband.ZetTekst("1");
  VanafKwartier.ZetTekst("1");
  MaxGen.ZetTekst("80");
}

void KwstNummerVelden::Bewaar(KwstOpties& opties) const {
  opties.KwBeginNr = KwNrProband.Nummer();
  opties.KwVanafNr = VanafKwartier.Nummer();
  opties.KwMaxGen = MaxGen.Generaties();
}

bool KwstNummerVelden::VanafKwartierVerlaten() {
  if (!VanafKwartier.Geldig()) return false;
  if (VanafKwartier.Nummer().Vanaf(KwNrProband.Nummer())) return true;
  gesprek_.Waarschuw(
      "Het eerst uit te voeren kwartiernummer mag niet kleiner zijn dan dat van de proband");
  return false;
}

}  // namespace lb77
