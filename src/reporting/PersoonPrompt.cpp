#include "reporting/PersoonPrompt.h"

#include "app/Hoofdmodule.h"
#include "entry/Invoer.h"
#include "entry/ZoekPersoon.h"
#include "forms/Gesprek.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::int16_t kAdminNr = 1;
constexpr std::string_view kOnleesbaar = "?????";

}  // namespace

PersoonPrompt::PersoonPrompt(const PersoonPromptSoort& soort, Hoofdmodule& hoofd)
    : Formulier(soort.naam, soort.titel),
      VraagLabel(*this, "VraagLabel", soort.vraag),
      hoofd_(hoofd) {
  ZetEersteVeld(RecordNr);
  RecordNr.ZetFilter(AlleenCijfers);
  RecordNr.BijVerlaten([this] { return RecordNrVerlaten(); });
  RecordNr.BijToets([this](ToetsGebeurtenis& toets) {
    if (toets.code != toets::kF2 || toets.shift) return;
    toets.verwerkt = true;
    ZoekButtonKlik();
  });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  ZoekButton.BijKlik([this] { ZoekButtonKlik(); });
  BackButton.BijKlik([this] { BackButtonKlik(); });
}

void PersoonPrompt::BijLaden() {
  RecordNr.ZetTekst("");
  VoorNm.ZetTekst("");
  AchterNm.ZetTekst("");
}

bool PersoonPrompt::GaatDoor() const {
  return hoofd_.volgers.HuidigPersoonNr != -1;
}

bool PersoonPrompt::RecordNrVerlaten() {
  const std::string_view tekst = Trim(RecordNr.Tekst());
  if (tekst.empty()) return true;  // names typed instead of a number stay
  const auto nr = NaarInt16(Getalwaarde(tekst));
  if (!nr) {
    hoofd_.gesprek.Fout(kMaximumBereikt);
    return false;
  }
  ToonNamen(*nr);
  return true;
}

void PersoonPrompt::ToonNamen(std::int16_t nr) {
  std::string voor;
  std::string achter;
  std::string tekst;
  HaalNaam(hoofd_.Persoon, nr, voor, achter, tekst);
  if (nr == kAdminNr) voor = achter = kOnleesbaar;  // it can be read, but is nobody
  VoorNm.ZetTekst(voor);
  AchterNm.ZetTekst(achter);
}

void PersoonPrompt::OKButtonKlik() {
  if (Trim(RecordNr.Tekst()).empty()) {
    std::string voor = VoorNm.Tekst();
    std::string achter = AchterNm.Tekst();
    const std::int16_t gevonden = ZoekPersoonOpNaam(hoofd_, voor, achter, "*");
    if (gevonden > 0) {
      RecordNr.ZetTekst(NrTekst(gevonden));
      VoorNm.ZetTekst(voor);
      AchterNm.ZetTekst(achter);
    }
  }
  if (Trim(RecordNr.Tekst()).empty()) {
    hoofd_.gesprek.Waarschuw("Geen Persoonsnummer opgegeven");
    ZetFocus(RecordNr);
    return;
  }
  const auto nr = NaarInt16(Getalwaarde(RecordNr.Tekst()));
  if (!nr) return;  // told when the field was left
  hoofd_.volgers.HuidigPersoonNr = *nr;
  Keten(*nr);
  Sluit();
}

void PersoonPrompt::ZoekButtonKlik() {
  const auto nr = NaarInt16(VraagZoekPersoon(hoofd_));
  if (!nr || *nr < 1) return;
  RecordNr.ZetTekst(NrTekst(*nr));
  ToonNamen(*nr);
}

void PersoonPrompt::BackButtonKlik() {
  hoofd_.volgers.HuidigPersoonNr = -1;
  Sluit();
}

}  // namespace lb77
