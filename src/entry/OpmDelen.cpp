#include "entry/OpmDelen.h"

#include "entry/RecordToets.h"
#include "forms/Gesprek.h"
#include "store/Codes.h"
#include "store/Gegevens.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kOnbekend = "<onbekend>";
// Other programs have the family sheet here.
constexpr std::int16_t kGezinsbladElders = 16;
constexpr int kGezinsbladBits = uitvoer::kGezinsblad | kGezinsbladElders;

std::string PartnerNaam(PersoonLB77& persoon, std::int16_t nr) {
  std::string voor;
  std::string achter;
  persoon.HeleNaam(nr, voor, achter, kOnbekend);
  const std::string naam(Trim(voor + " " + achter));
  return naam.empty() ? std::string(kOnbekend) : naam;
}

std::optional<OpmEigenaar> LeesPersoon(const Gegevens& gegevens, Gesprek& gesprek,
                                       std::int16_t nr) {
  PersoonLB77& persoon = gegevens.persoon;
  if (!LeesHoofdrecord(gesprek, persoon, nr, {kPersoonKomtNietVoor, kLeesfoutPersoon})) {
    gegevens.volgers.HuidigPersoonNr = -1;
    return std::nullopt;
  }
  return OpmEigenaar{persoon.NaamVoluit(), {}, persoon.OpmCode(), persoon.OpmRecord()};
}

std::optional<OpmEigenaar> LeesRelatie(const Gegevens& gegevens, Gesprek& gesprek,
                                       std::int16_t nr) {
  RelatieLB77& relatie = gegevens.relatie;
  if (!LeesHoofdrecord(gesprek, relatie, nr, {kRelatieKomtNietVoor, kLeesfoutRelatie})) {
    gegevens.volgers.HuidigRelatieNr = -1;
    return std::nullopt;
  }
  return OpmEigenaar{PartnerNaam(gegevens.persoon, relatie.ManNr()),
                     PartnerNaam(gegevens.persoon, relatie.VrouwNr()), relatie.OpmCode(),
                     relatie.OpmRecord()};
}

bool IsAlgemeen(std::int16_t rubriek) {
  return rubriek == persoonrubriek::kAlgemeen || rubriek == relatierubriek::kAlgemeen;
}

}  // namespace

std::optional<OpmEigenaar> LeesOpmEigenaar(const Gegevens& gegevens, Gesprek& gesprek,
                                           const OpmVraag& vraag) {
  return vraag.BijPersoon() ? LeesPersoon(gegevens, gesprek, vraag.eigenaar)
                            : LeesRelatie(gegevens, gesprek, vraag.eigenaar);
}

OpmKop::OpmKop(Formulier& formulier)
    : RecordNr(formulier, "RecordNr"),
      Naam(formulier, "Naam"),
      NaamPartner(formulier, "NaamPartner", "en"),
      VeldLabel(formulier, "VeldLabel"),
      VeldWaarde(formulier, "VeldWaarde") {
  VeldWaarde.ZetLeesnaam("Waarde van het veld");
}

void OpmKop::Toon(const OpmVraag& vraag, const OpmEigenaar& eigenaar) {
  const bool persoon = vraag.BijPersoon();
  RecordNr.ZetBijschrift(persoon ? "Persoonsnummer:" : "Relatienummer:");
  RecordNr.ZetTekst(GetalTekst(vraag.eigenaar));
  Naam.ZetBijschrift(persoon ? "Naam:" : "Partners:");
  Naam.ZetTekst(eigenaar.naam);
  NaamPartner.ZetTekst(eigenaar.partner);
  NaamPartner.ZetZichtbaar(!persoon);
  VeldLabel.ZetBijschrift(vraag.bijschrift);
  VeldWaarde.ZetTekst(vraag.waarde);
  const bool metVeld = !IsAlgemeen(vraag.rubriek);
  VeldLabel.ZetZichtbaar(metVeld);
  VeldWaarde.ZetZichtbaar(metVeld);
}

OpmVinkjes::OpmVinkjes(Formulier& formulier)
    : BijKWST(formulier, "BijKWST", "Kwartierstaat (tekst)"),
      BijSTRK(formulier, "BijSTRK", "Stamreeks"),
      BijGEN(formulier, "BijGEN", "Genealogie/Parenteel (tekst)"),
      BijGEZIN(formulier, "BijGEZIN", "Gezinsblad"),
      BijHTML(formulier, "BijHTML", "Alleen bij HTML uitvoer") {}

std::array<OpmVinkjes::Bits, 4> OpmVinkjes::MetEenBit() {
  return {{{&BijKWST, uitvoer::kKwartierstaat},
           {&BijSTRK, uitvoer::kStamreeks},
           {&BijGEN, uitvoer::kGenealogie},
           {&BijHTML, uitvoer::kAlleenHTML}}};
}

void OpmVinkjes::Toon(std::int16_t prog) {
  for (const auto& [vinkje, bit] : MetEenBit()) vinkje->Zet((prog & bit) != 0);
  BijGEZIN.Zet((prog & kGezinsbladBits) != 0);
}

std::int16_t OpmVinkjes::Prog(std::int16_t opgeslagen) {
  int prog = opgeslagen;
  for (const auto& [vinkje, bit] : MetEenBit()) {
    prog = vinkje->Gekozen() ? prog | bit : prog & ~int{bit};
  }
  if (!BijGEZIN.Gekozen()) {
    prog &= ~kGezinsbladBits;
  } else if ((prog & kGezinsbladBits) == 0) {
    prog |= uitvoer::kGezinsblad;
  }
  return static_cast<std::int16_t>(prog);
}

void OpmVinkjes::ZetUit() {
  for (const auto& [vinkje, bit] : MetEenBit()) vinkje->ZetIngeschakeld(false);
  BijGEZIN.ZetIngeschakeld(false);
}

}  // namespace lb77
