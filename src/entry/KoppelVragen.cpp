#include "entry/KoppelVragen.h"

#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::size_t kCijfersVolgnummer = 2;

constexpr PersoonVakSoort SoortVan(const PersoonKeuzeSoort& keuze) {
  return {.alleenAnders = keuze.alleenAnders,
          .nrBijschrift = "Persoonsnummer:",
          .voorBijschrift = "Voornamen:",
          .achterBijschrift = "Achternaam:"};
}

}  // namespace

PersoonKeuze::PersoonKeuze(const PersoonKeuzeSoort& soort, Hoofdmodule& hoofd)
    : InvoerFormulier(soort.naam, soort.titel, hoofd),
      VraagLabel(*this, "VraagLabel", soort.vraag),
      Persoon(*this, "", SoortVan(soort)) {
  ZetHulpOnderwerp("relaties");
  ZetEersteVeld(Persoon.RecordNr);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  ZoekButton.BijKlik([this] { ZoekButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void PersoonKeuze::OKButtonKlik() {
  if (!Persoon.VulNrUitNaam("*")) {
    ZetFocus(Persoon.VoorNm);
    return;
  }
  nr_ = Persoon.Nr();
  Hoofd().volgers.HuidigPersoonNr = *nr_;
  Sluit();
}

void PersoonKeuze::ZoekButtonKlik() {
  if (Persoon.Zoek()) OKButtonKlik();
}

HuwSchuif::HuwSchuif(Hoofdmodule& hoofd)
    : InvoerFormulier("HuwSchuif", "Volgnummer Relatie Wijzigen", hoofd) {
  ZetHulpOnderwerp("relaties");
  ZetEersteVeld(RecordNr);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void HuwSchuif::OKButtonKlik() {
  nr_ = RecordNr.Nr();
  Hoofd().volgers.HuidigRelatieNr = *nr_;
  Sluit();
}

VolgnummerVraag::VolgnummerVraag(const VolgnummerSoort& soort, Hoofdmodule& hoofd)
    : InvoerFormulier(soort.naam, soort.titel, hoofd),
      VolgNum(*this, "VolgNum", soort.vraag, kCijfersVolgnummer),
      soort_(soort) {
  ZetHulpOnderwerp("relaties");
  ZetEersteVeld(VolgNum);
  VolgNum.ZetFilter(AlleenCijfers);
  VolgNum.BijVerlaten([this] { return VolgNumVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

// An empty one is judged by OK.
bool VolgnummerVraag::VolgNumVerlaten() {
  if (VolgNum.Tekst().empty()) return true;
  const std::int32_t getal = Getalwaarde(VolgNum.Tekst());
  if (getal >= 1 && getal <= soort_.hoogste) return true;
  Hoofd().gesprek.Waarschuw(soort_.melding);
  return false;
}

void VolgnummerVraag::OKButtonKlik() {
  const auto nummer = static_cast<std::int16_t>(Getalwaarde(VolgNum.Tekst()));
  if (nummer == 0) {
    Hoofd().gesprek.Waarschuw("Geen volgnummer opgegeven");
    ZetFocus(VolgNum);
    return;
  }
  volgNr_ = nummer;
  Sluit();
}

}  // namespace lb77
