#include "reporting/PersoonPrompt.h"

#include <initializer_list>
#include <string>

#include "entry/ZoekPersoon.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

// Names typed instead of a number stay.
constexpr PersoonVakSoort kPersoon = {.controle = PersoonControle::Tonen,
                                      .leegWist = false,
                                      .danOK = true,
                                      .nrBijschrift = "Persoonsnummer:",
                                      .voorBijschrift = "Voornamen:",
                                      .achterBijschrift = "Achternaam:"};

}  // namespace

PersoonPrompt::PersoonPrompt(const PersoonPromptSoort& soort, Hoofdmodule& hoofd)
    : KetenFormulier(soort.naam, soort.titel, hoofd),
      VraagLabel(*this, "VraagLabel", soort.vraag),
      Persoon(*this, "", kPersoon) {
  ZetEersteVeld(Persoon.RecordNr);
  for (Invoerveld* veld :
       std::initializer_list<Invoerveld*>{&Persoon.RecordNr, &Persoon.VoorNm, &Persoon.AchterNm}) {
    veld->ZetEnter(EnterSoort::Door);
  }
  OKButton.BijKlik([this] { OKButtonKlik(); });
  ZoekButton.BijKlik([this] { ZoekButtonKlik(); });
  KoppelTerug(BackButton);
}

void PersoonPrompt::BijLaden() {
  Persoon.MaakLeeg();
}

void PersoonPrompt::ToonVerslag(const std::filesystem::path& pad, std::string_view titel,
                                bool inHTML) {
  if (Hoofd().volgers.HuidigPersoonNr <= 0) return;
  ToonTekstbestand(pad, titel, inHTML);
  Hoofd().volgers.HuidigPersoonNr = 0;
}

void PersoonPrompt::OKButtonKlik() {
  if (Trim(Persoon.RecordNr.Tekst()).empty()) {
    std::string voor = Persoon.VoorNm.Tekst();
    std::string achter = Persoon.AchterNm.Tekst();
    const std::int16_t gevonden = ZoekPersoonOpNaam(Hoofd(), voor, achter, "*");
    if (gevonden > 0) {
      Persoon.RecordNr.ZetTekst(NrTekst(gevonden));
      Persoon.VoorNm.ZetTekst(voor);
      Persoon.AchterNm.ZetTekst(achter);
    }
  }
  if (Trim(Persoon.RecordNr.Tekst()).empty()) {
    Hoofd().gesprek.Waarschuw("Geen Persoonsnummer opgegeven");
    ZetFocus(Persoon.RecordNr);
    return;
  }
  const auto nr = NaarInt16(Getalwaarde(Persoon.RecordNr.Tekst()));
  if (!nr) return;  // told when the field was left
  Hoofd().volgers.HuidigPersoonNr = *nr;
  Keten(*nr);
  Sluit();
}

void PersoonPrompt::ZoekButtonKlik() {
  if (Persoon.Zoek()) ZetFocus(OKButton);
}

}  // namespace lb77
