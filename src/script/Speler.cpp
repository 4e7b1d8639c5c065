#include "script/Speler.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "forms/Formulier.h"
#include "script/Hand.h"
#include "script/Verslag.h"
#include "text/Getallen.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

// What closing a box without a choice counts as.
Antwoord Afwijzing(Knoppen knoppen) {
  return Keuzen(knoppen).back();
}

std::filesystem::path PadVanUtf8(std::string_view utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

}  // namespace

Speler::Speler(const std::vector<Instructie>& instructies, Uitvoer uit, SpeelOpties opties)
    : instructies_(instructies), uit_(std::move(uit)), opties_(std::move(opties)) {}

SpeelUitslag Speler::Speel(const std::function<void(Gesprek&)>& programma) {
  try {
    ZetKopKlaar();
    programma(*this);
    if (volgende_ < instructies_.size() && !afgebroken_) {
      regel_ = instructies_[volgende_].regel;
      Weiger("het programma is al afgelopen");
    }
  } catch (const Afgebroken&) {
    // The reason stands in uitslag_; the end of the script has none.
  }
  uitslag_.ongebruikt = voorraad_.Ongebruikt();
  return uitslag_;
}

void Speler::ZetKopKlaar() {
  while (volgende_ < instructies_.size() && IsKlaarzetten(instructies_[volgende_].soort)) {
    voorraad_.ZetKlaar(Neem());
  }
}

const Instructie& Speler::Neem() {
  const Instructie& instructie = instructies_[volgende_++];
  if (opties_.echo) uit_("$ " + instructie.tekst);
  return instructie;
}

const Instructie& Speler::Volgende() {
  if (volgende_ == instructies_.size()) Breek();
  const Instructie& instructie = Neem();
  regel_ = instructie.regel;
  return instructie;
}

void Speler::Breek() {
  afgebroken_ = true;
  throw Afgebroken{};
}

void Speler::Weiger(std::string_view reden) {
  uitslag_.status = 1;
  uitslag_.reden = OpRegel(regel_, reden);
  Breek();
}

// While the program unwinds a destructor may come to the door again: it gets the answer that ends
// things. Code that caught the exception and went on is sent on its way once more.
bool Speler::IsAfgebroken() const {
  if (afgebroken_ && std::uncaught_exceptions() == 0) throw Afgebroken{};
  return afgebroken_;
}

void Speler::Noteer(std::string_view windows) const {
  if (opties_.getoond) opties_.getoond(WindowsNaarUtf8(windows));
}

Antwoord Speler::Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) {
  if (IsAfgebroken()) return Afwijzing(knoppen);
  Noteer(tekst);
  const std::string kern = std::string(Woord(soort)) + " ";
  if (knoppen == Knoppen::OK) {
    uit_("! " + kern + Aangehaald(tekst));
    return Antwoord::OK;
  }
  const Antwoord antwoord = Kies(knoppen, tekst);
  uit_("? " + kern + Woorden(knoppen) + " " + Aangehaald(tekst) + " -> " +
       std::string(Woord(antwoord)));
  return antwoord;
}

Antwoord Speler::Kies(Knoppen knoppen, std::string_view tekst) {
  const auto antwoord = voorraad_.NeemAntwoord();
  if (!antwoord) Weiger("er staat geen antwoord klaar voor " + Aangehaald(tekst));
  const std::vector<Antwoord> keuzen = Keuzen(knoppen);
  if (std::find(keuzen.begin(), keuzen.end(), *antwoord) == keuzen.end()) {
    Weiger("het antwoord " + std::string(Woord(*antwoord)) + " past niet bij " + Woorden(knoppen) +
           " " + Aangehaald(tekst));
  }
  return *antwoord;
}

bool Speler::BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) {
  static_cast<void>(Bericht(BerichtSoort::Info, Knoppen::OK, tekst));
  Noteer(vinkje);
  return false;
}

std::optional<std::filesystem::path> Speler::VraagBestand(const BestandsVraag& vraag) {
  if (IsAfgebroken()) return std::nullopt;
  Noteer(vraag.filter);
  const auto pad = voorraad_.NeemBestand();
  const std::string wat = std::string(Woord(vraag.wijze)) + " " + Aangehaald(vraag.filter);
  if (!pad) Weiger("er staat geen bestand klaar voor " + wat);
  uit_("> " + wat + " -> " + (pad->empty() ? "-" : AangehaaldUtf8(*pad)));
  if (pad->empty()) return std::nullopt;
  return opties_.basismap / PadVanUtf8(*pad);
}

bool Speler::DrukAf(const Afdruk& afdruk) {
  if (IsAfgebroken()) return false;
  uit_("% afdruk " + GetalTekst(static_cast<std::int64_t>(afdruk.paginas.size())));
  return true;
}

// Repaints of running counters print nothing.
void Speler::Ververs(Formulier&) {
  static_cast<void>(IsAfgebroken());
}

bool Speler::StopGevraagd(Formulier& formulier) {
  if (IsAfgebroken()) return true;
  if (voorraad_.TelStopTest()) formulier.VraagStop();
  return formulier.StopVerzocht();
}

void Speler::Open(Formulier& formulier) {
  if (IsAfgebroken()) return;
  Noteer(formulier.Titel());
  uit_("+ " + WindowsNaarUtf8(formulier.Naam()) + " " + Aangehaald(formulier.Titel()));
}

void Speler::Voer(Formulier& formulier) {
  if (IsAfgebroken()) return;
  while (!formulier.Gesloten() && !formulier.Verborgen()) Doe(formulier, Volgende());
}

// Also on the way out of an exception: what the script's end unwinds has not closed.
void Speler::Dicht(Formulier& formulier) {
  if (!afgebroken_) uit_("- " + WindowsNaarUtf8(formulier.Naam()));
}

void Speler::Doe(Formulier& formulier, const Instructie& instructie) {
  if (IsKlaarzetten(instructie.soort)) return voorraad_.ZetKlaar(instructie);
  try {
    if (instructie.soort == InstructieSoort::Toon) return Toon(formulier, instructie);
    Hand(formulier).Doe(instructie);
  } catch (const SpeelFout& fout) {
    Weiger(fout.wat + " " + fout.reden);
  }
}

void Speler::Toon(Formulier& formulier, const Instructie& instructie) {
  const auto regels = instructie.naam.empty()
                          ? FormulierRegels(formulier)
                          : BedieningRegels(Hand(formulier).Vind(instructie.naam));
  for (const std::string& regel : regels) uit_(regel);
}

SpeelUitslag Speel(const std::vector<Instructie>& instructies,
                   const std::function<void(Gesprek&)>& programma,
                   const std::function<void(std::string_view regel)>& uit, SpeelOpties opties) {
  return Speler(instructies, uit, std::move(opties)).Speel(programma);
}

}  // namespace lb77
