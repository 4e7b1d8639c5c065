#include "entry/RecordKaart.h"

#include <string>

#include "entry/KaartVelden.h"
#include "entry/OpmVraag.h"
#include "entry/ToonOpm.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::int16_t kGeen = -1;
constexpr std::int16_t kEersteNr = 2;
constexpr std::size_t kCijfers = 5;

}  // namespace

RecordKaart::RecordKaart(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd,
                         std::int16_t nr, const KaartWoorden& woorden)
    : KaartOp(naam, titel, hoofd),
      RecordNr(*this, "RecordNr", woorden.nummer, kCijfers),
      woorden_(woorden),
      gevraagd_(nr) {
  RecordNr.ZetFilter(AlleenCijfers);
  RecordNr.BijVerlaten([this] { return RecordNrVerlaten(); });
  RecordNr.BijBetreden([this] { RecordNrBetreden(); });
  ZetEersteVeld(RecordNr);
}

void RecordKaart::HangOp(const Knoppenrij& knoppen) {
  vorige_ = &knoppen.vorige;
  volgende_ = &knoppen.volgende;
  vorige_->BijKlik([this] { VorigeKlik(); });
  volgende_->BijKlik([this] { VolgendeKlik(); });
  knoppen.nieuw.BijKlik([this] { NieuwKlik(); });
  knoppen.wijzig.BijKlik([this, &knop = knoppen.wijzig] { WijzigKlik(knop); });
  knoppen.terug.BijKlik([this] { TerugKlik(); });
  for (Bediening* bediening : Bedieningen()) {
    if (auto* const opmKnop = dynamic_cast<OpmKnop*>(bediening)) {
      opmKnop->BijKlik([this, opmKnop] { OpmKnopKlik(*opmKnop); });
    }
  }
}

void RecordKaart::BijLaden() {
  std::int16_t laatste = Aantal();
  bool goed = true;
  if (laatste < kEersteNr || gevraagd_ == kGeen) {
    goed = VraagNieuw();
    laatste = Aantal();
  }
  goed = goed && laatste >= kEersteNr && MagTonen(laatste);
  if (goed) nr_ = gevraagd_;
  gevraagd_ = nr_;
  ToonNummer();
  if (goed) ToonRecord();
  Huidig() = nr_;
}

// False when the user left without a record.
bool RecordKaart::VraagNieuw() {
  nr_ = kGeen;
  Huidig() = kGeen;
  ToonWijzig();
  gevraagd_ = Huidig();
  return gevraagd_ != kGeen;
}

bool RecordKaart::MagTonen(std::int16_t laatste) {
  Gesprek& gesprek = Hoofd().gesprek;
  if (gevraagd_ < kEersteNr || gevraagd_ > laatste) {
    gesprek.Waarschuw(woorden_.komtNietVoor);
  } else if (!Lees(gevraagd_)) {
    MeldLeesfout(gevraagd_);
  } else if (IsVervolg()) {
    gesprek.Waarschuw(kIsVervolgrecord);
  } else {
    return true;
  }
  return false;
}

void RecordKaart::MeldLeesfout(std::int32_t nr) {
  Hoofd().gesprek.Fout(std::string(woorden_.leesfout) + GetalTekst(nr));
}

void RecordKaart::ToonNummer() {
  RecordNr.ZetTekst(nr_ == kGeen ? std::string() : GetalTekst(nr_));
}

void RecordKaart::Verplaats(std::int16_t nr) {
  gevraagd_ = nr;
  Herlaad();
}

void RecordKaart::LaadOpnieuw(Bediening& bij) {
  Verplaats(nr_);
  if (!Gesloten()) ZetFocus(bij);
}

void RecordKaart::ToonOpmKnoppen(std::int16_t opmCode) {
  for (Bediening* bediening : Bedieningen()) {
    if (auto* const knop = dynamic_cast<OpmKnop*>(bediening)) knop->Toon(opmCode);
  }
}

// A card without a record has nothing to go on from.
void RecordKaart::RecordNrBetreden() {
  if (nr_ == kGeen) TerugKlik();
}

bool RecordKaart::RecordNrVerlaten() {
  const std::int32_t getal = Getalwaarde(RecordNr.Tekst());
  Gesprek& gesprek = Hoofd().gesprek;
  if (getal == 0 || getal == nr_) {
    ToonNummer();
    return true;
  }
  const auto nr = static_cast<std::int16_t>(getal);
  if (getal < kEersteNr || getal > Aantal()) {
    gesprek.Waarschuw("Het opgegeven recordnummer komt niet voor");
  } else if (!Lees(nr)) {
    MeldLeesfout(nr);
  } else if (IsVervolg()) {
    gesprek.Waarschuw(kIsVervolgrecord);
  } else {
    Verplaats(nr);
    return true;
  }
  ToonNummer();
  return false;
}

void RecordKaart::VorigeKlik() {
  Stap(-1, *vorige_);
}

void RecordKaart::VolgendeKlik() {
  Stap(1, *volgende_);
}

// To the nearest record in that direction that is one of its own.
void RecordKaart::Stap(int stap, Knop& knop) {
  if (!Lees(nr_)) return MeldLeesfout(nr_);
  const std::int32_t laatste = stap > 0 ? Aantal() : nr_;
  for (std::int32_t nr = nr_ + stap; nr >= kEersteNr && nr <= laatste; nr += stap) {
    const auto kandidaat = static_cast<std::int16_t>(nr);
    if (!Lees(kandidaat)) return MeldLeesfout(nr);
    if (IsVervolg()) continue;
    Verplaats(kandidaat);
    if (!Gesloten()) ZetFocus(knop);
    return;
  }
  Hoofd().gesprek.Meld(BerichtSoort::Geen, stap > 0 ? woorden_.laatste : woorden_.eerste);
}

void RecordKaart::BijToets(ToetsGebeurtenis& toets) {
  if (toets.shift || (toets.code != toets::kPageUp && toets.code != toets::kPageDown)) return;
  toets.verwerkt = true;
  Klik(toets.code == toets::kPageUp ? *vorige_ : *volgende_);
}

void RecordKaart::NieuwKlik() {
  Verplaats(kGeen);
}

// A dialog that could not store leaves no number, and the card what it shows.
void RecordKaart::WijzigKlik(Knop& knop) {
  Huidig() = nr_;
  ToonWijzig();
  if (Huidig() == kGeen) {
    Huidig() = nr_;
  } else {
    LaadOpnieuw(knop);
  }
}

void RecordKaart::OpmKnopKlik(OpmKnop& knop) {
  Hoofd().gesprek.Toon<ToonOpm>(Hoofd(), OpmVraagOpKaart(nr_, knop.Rubriek(), knop.VeldWaarde()));
  LaadOpnieuw(knop);
}

void RecordKaart::TerugKlik() {
  Volgers& volgers = Hoofd().volgers;
  volgers.PersBufNr = volgers.RelBufNr = volgers.PlaatsBufNr = -1;
  Sluit();
}

}  // namespace lb77
