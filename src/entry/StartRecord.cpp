#include "entry/StartRecord.h"

#include <string>
#include <string_view>
#include <utility>

#include "app/Start.h"
#include "entry/KaartVelden.h"
#include "entry/ToonPersoon.h"
#include "entry/ToonRelatie.h"
#include "entry/ZoekPersoon.h"
#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kCijfers = 5;
constexpr std::size_t kKolom = 6;
constexpr std::int16_t kEersteNr = 2;
constexpr std::int16_t kGeen = -1;
constexpr std::string_view kNieuw = "N";

// Digits, and the letter of a new record.
char CijferOfN(char teken) {
  return Hoofdletter(teken) == kNieuw.front() ? kNieuw.front() : AlleenCijfers(teken);
}

std::string Bereik(std::int16_t laatste) {
  return "(" + Kolom(kEersteNr, kKolom, Richting::Rechts) + "-" +
         Kolom(laatste, kKolom, Richting::Rechts) + ")";
}

// An empty field, and the numbers that it takes; "N" where there are none.
template <class Bron>
void ToonBereik(Bron& bron, InvoerVak& nr, Teller& bereik, std::string_view zonder) {
  const std::int16_t laatste = bron.AantalRecords();
  const bool leeg = laatste < kEersteNr;
  nr.ZetTekst(leeg ? kNieuw : std::string_view());
  bereik.ZetTekst(leeg ? std::string(zonder) : Bereik(laatste));
}

// Is it empty, a new one, or a record that has a card? Tells why not.
template <class Bron>
bool IsGoed(Gesprek& gesprek, Bron& bron, const InvoerVak& vak, std::string_view komtNietVoor) {
  const std::string& tekst = vak.Tekst();
  if (tekst.empty() || tekst == kNieuw) return true;
  const std::int32_t getal = Getalwaarde(tekst);
  if (getal < kEersteNr || getal > bron.AantalRecords()) {
    gesprek.Waarschuw(komtNietVoor);
    return false;
  }
  if (bron.Lees(static_cast<std::int16_t>(getal)) && bron.IsVolgRecord()) {
    gesprek.Waarschuw(kIsVervolgrecord);
    return false;
  }
  return true;
}

}  // namespace

void ToonPersonenEnRelaties(Hoofdmodule& hoofd) {
  const std::int16_t aantal = hoofd.Persoon.AantalRecords();
  VulGezindten(hoofd);
  if (aantal > 0) {
    hoofd.gesprek.Toon<StartRecord>(hoofd);
  } else {
    LoopKaarten(hoofd.gesprek, ToonPersoonVraag(hoofd, kGeen));
  }
}

StartRecord::StartRecord(Hoofdmodule& hoofd)
    : InvoerFormulier("StartRecord", "Start Persoon / Relatie", hoofd),
      PersNr(*this, "PersNr", "Persoonsnr.", kCijfers, InvoerSoort::Persoon),
      RelNr(*this, "RelNr", "Relatienr.", kCijfers) {
  ZetHulpOnderwerp("personen");
  for (InvoerVak* vak : {&PersNr, &RelNr}) {
    vak->ZetFilter(CijferOfN);
    vak->ZetEnter(EnterSoort::OK);
  }
  PersNr.ZetDanOK();
  PersNr.BijVerlaten([this] { return PersNrVerlaten(); });
  RelNr.BijVerlaten([this] { return RelNrVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  ZoekButton.BijKlik([this] { ZoekButtonKlik(); });
  NwPersButton.BijKlik([this] { NwPersButtonKlik(); });
  NwRelButton.BijKlik([this] { NwRelButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(PersNr);
}

// kept: the two texts of an empty file differ by a blank.
void StartRecord::BijLaden() {
  ToonBereik(Hoofd().Persoon, PersNr, PersRange, "(     N-     N)");
  ToonBereik(Hoofd().Relatie, RelNr, RelRange, "(     N-      N)");
}

bool StartRecord::PersNrVerlaten() {
  return IsGoed(Hoofd().gesprek, Hoofd().Persoon, PersNr, kPersoonKomtNietVoor);
}

bool StartRecord::RelNrVerlaten() {
  return IsGoed(Hoofd().gesprek, Hoofd().Relatie, RelNr, kRelatieKomtNietVoor);
}

// A person goes first: the "N" of an empty file of relations is no choice of the user's.
void StartRecord::OKButtonKlik() {
  const auto persoon = NaarInt16(Getalwaarde(PersNr.Tekst()));
  const auto relatie = NaarInt16(Getalwaarde(RelNr.Tekst()));
  if (PersNr.Tekst().empty() && RelNr.Tekst().empty()) {
    Hoofd().gesprek.Waarschuw("Geen Persoonsnummer of Relatienummer opgegeven");
  } else if (PersNr.Tekst() == kNieuw) {
    Loop(ToonPersoonVraag(Hoofd(), kGeen));
  } else if (persoon && *persoon > 0) {
    Loop(ToonPersoonVraag(Hoofd(), *persoon));
  } else if (RelNr.Tekst() == kNieuw) {
    Loop(ToonRelatieVraag(Hoofd(), kGeen));
  } else if (relatie && *relatie > 0) {
    Loop(ToonRelatieVraag(Hoofd(), *relatie));
  }
}

void StartRecord::ZoekButtonKlik() {
  const auto nr = NaarInt16(VraagZoekPersoon(Hoofd()));
  if (!nr || *nr < 1) return;
  PersNr.ZetTekst(GetalTekst(*nr));
  OKButtonKlik();
}

void StartRecord::NwPersButtonKlik() {
  PersNr.ZetTekst(kNieuw);
  RelNr.ZetTekst("");
  OKButtonKlik();
}

void StartRecord::NwRelButtonKlik() {
  RelNr.ZetTekst(kNieuw);
  PersNr.ZetTekst("");
  OKButtonKlik();
}

void StartRecord::Loop(KaartVraag eerste) {
  LoopKaarten(Hoofd().gesprek, std::move(eerste));
  Herlaad();
}

}  // namespace lb77
