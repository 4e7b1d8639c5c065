#include "entry/PersoonVak.h"

#include <cstddef>

#include "entry/Invoer.h"
#include "entry/VolgersBewaker.h"
#include "entry/ZoekPersoon.h"
#include "store/PersoonVelden.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kCijfers = 5;
constexpr std::int16_t kAdminNr = 1;  // can be read, but is nobody
constexpr std::string_view kOnleesbaar = "?????";

std::string Met(std::string_view naam, std::string_view achtervoegsel) {
  return std::string(naam) + std::string(achtervoegsel);
}

}  // namespace

PersoonVak::NrVak::NrVak(PersoonVak& geheel, InvoerFormulier& formulier, std::string_view naam,
                         std::string_view bijschrift)
    : InvoerVak(formulier, naam, bijschrift, kCijfers, InvoerSoort::Persoon), geheel_(geheel) {}

bool PersoonVak::NrVak::OpVerlaten() {
  if (!InvoerVak::OpVerlaten()) return false;
  return (geheel_.soort_.alleenAnders && Tekst() == begin_) || geheel_.NrVerlaten();
}

// The search brings the names along with the number.
void PersoonVak::NrVak::OpToets(ToetsGebeurtenis& toets) {
  if (toets.code == toets::kF2 && !toets.shift) {
    toets.verwerkt = true;
    if (geheel_.Zoek()) geheel_.NaF2();
  } else {
    InvoerVak::OpToets(toets);
  }
}

PersoonVak::PersoonVak(InvoerFormulier& formulier, std::string_view achtervoegsel,
                       const PersoonVakSoort& soort)
    : RecordNr(*this, formulier, Met(soort.nr, achtervoegsel), soort.nrBijschrift),
      VoorNm(formulier, Met(soort.voor, achtervoegsel), soort.voorBijschrift,
             persoonveld::Voornaam.breedte),
      AchterNm(formulier, Met(soort.achter, achtervoegsel), soort.achterBijschrift,
               persoonveld::Achternaam.breedte),
      formulier_(formulier),
      soort_(soort) {
  // Elsewhere a letter is told of when the field is left.
  if (soort.controle == PersoonControle::Tonen) RecordNr.ZetFilter(AlleenCijfers);
  if (!soort.periode.empty()) Periode.emplace(formulier, Met(soort.periode, achtervoegsel));
  VoorNm.ZetAlleenLezen(!soort.naamInvoer);
  AchterNm.ZetAlleenLezen(!soort.naamInvoer);
}

std::int16_t PersoonVak::Nr() const {
  return NaarInt16(Getalwaarde(RecordNr.Tekst())).value_or(std::int16_t{0});
}

void PersoonVak::Toon(std::int16_t nr) {
  RecordNr.ZetTekst(NrTekst(nr));
  ToonNamen(nr);
}

void PersoonVak::ToonNamen(std::int16_t nr) {
  PersoonLB77& persoon = formulier_.Hoofd().Persoon;
  std::string voor;
  std::string achter;
  const bool bekend = nr != 0 && nr != kAdminNr && persoon.Lees(nr);
  if (bekend) {
    voor = OfOnbekend(persoon.VoorNaamTrue());
    achter = OfOnbekend(persoon.AchterNaamTrue());
  } else if (nr != 0) {
    voor = achter = soort_.onbekend.empty() ? kOnleesbaar : soort_.onbekend;
  }
  VoorNm.ZetTekst(voor);
  AchterNm.ZetTekst(achter);
  if (Periode) Periode->ZetTekst(bekend ? persoon.Periode(nr) : std::string());
}

std::string PersoonVak::OfOnbekend(const std::string& naam) const {
  return naam.empty() ? std::string(soort_.onbekend) : naam;
}

bool PersoonVak::NrVerlaten() {
  if (soort_.controle == PersoonControle::Geen) return true;
  if (RecordNr.Tekst().empty()) {
    // What says that the number is nobody's goes with it: as a name it would be searched for.
    if (soort_.leegWist || AchterNm.Tekst() == kOnleesbaar) ToonNamen(0);
    return true;
  }
  Hoofdmodule& hoofd = formulier_.Hoofd();
  if (soort_.controle == PersoonControle::Geldig) {
    if (!RecordNrGeldig(hoofd.MaakGegevens(), hoofd.gesprek, RecordNr.Tekst(),
                        BestandSoort::Personen, Vervolgtest::GeenVervolg)) {
      return false;
    }
    Toon(Nr());
    return true;
  }
  const auto nr = NaarInt16(Getalwaarde(RecordNr.Tekst()));
  if (!nr) {
    hoofd.gesprek.Fout(kMaximumBereikt);
    return false;
  }
  ToonNamen(*nr);
  return true;
}

bool PersoonVak::Zoek() {
  const VolgersBewaker bewaker(formulier_.Hoofd().volgers);
  const auto nr = NaarInt16(VraagZoekPersoon(formulier_.Hoofd()));
  if (!nr || *nr < 1) return false;
  formulier_.Bewerkt(RecordNr, NrTekst(*nr));
  ToonNamen(*nr);
  return true;
}

void PersoonVak::NaF2() {
  if (bijGevonden_) return bijGevonden_();
  Bediening* const ok = soort_.danOK ? formulier_.Zoek("OKButton") : nullptr;
  if (ok) formulier_.GaNaar(*ok);
}

bool PersoonVak::VulNrUitNaam(std::string_view geslacht) {
  if (!RecordNr.Tekst().empty()) return true;
  Hoofdmodule& hoofd = formulier_.Hoofd();
  std::string voor = VoorNm.Tekst();
  std::string achter = AchterNm.Tekst();
  const VolgersBewaker bewaker(hoofd.volgers);
  const std::int16_t nr = ZoekPersoonOpNaam(hoofd, voor, achter, geslacht);
  VoorNm.ZetTekst(voor);
  AchterNm.ZetTekst(achter);
  RecordNr.ZetTekst(nr > 0 ? GetalTekst(nr) : std::string());
  return nr > 0 || (voor.empty() && achter.empty());
}

bool PersoonVak::NrHoortBijNaam() const {
  if (RecordNr.Tekst().empty()) return true;
  std::string voor;
  std::string achter;
  std::string nummer;
  HaalNaam(formulier_.Hoofd().Persoon, Nr(), voor, achter, nummer);
  if (Nr() == kAdminNr) voor = achter = kOnleesbaar;
  return Trim(voor) == Trim(VoorNm.Tekst()) && Trim(achter) == Trim(AchterNm.Tekst());
}

void PersoonVak::ZetZichtbaar(bool zichtbaar) {
  RecordNr.ZetZichtbaar(zichtbaar);
  VoorNm.ZetZichtbaar(zichtbaar);
  AchterNm.ZetZichtbaar(zichtbaar);
  if (Periode) Periode->ZetZichtbaar(zichtbaar);
}

}  // namespace lb77
