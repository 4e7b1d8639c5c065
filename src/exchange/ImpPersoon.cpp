#include "exchange/ImpPersoon.h"

#include <string>
#include <utility>

#include "exchange/EigenPaden.h"
#include "exchange/EigenWaarde.h"
#include "exchange/GedNaam.h"
#include "store/Codes.h"
#include "store/PersoonVelden.h"
#include "text/Getallen.h"
#include "text/Gezindte.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kVoornaam = persoonveld::Voornaam.breedte;
constexpr std::size_t kAchternaam = persoonveld::Achternaam.breedte;
constexpr std::size_t kBeroep = persoonveld::beroep.breedte;

bool IsLanger(std::string_view waarde, std::size_t lengte) {
  return TrimRechts(waarde).size() > lengte;
}

std::string_view Gesneden(std::string_view waarde, std::size_t lengte) {
  return Trim(waarde.substr(0, lengte));
}

// Does `nieuw` take the place of another name?
bool IsAnder(std::string_view oud, std::string_view nieuw) {
  return !oud.empty() && oud != nieuw;
}

bool IsEigen(PersoonActie actie) {
  return actie == PersoonActie::Eigen || actie == PersoonActie::EigenPlaats ||
         actie == PersoonActie::EigenZeker;
}

// The sex by its first letter.
char GeslachtVan(std::string_view waarde) {
  const std::string_view woord = TrimLinks(waarde);
  const char letter = woord.empty() ? ' ' : Hoofdletter(woord.front());
  if (letter == 'M') return geslacht::kMan;
  return letter == 'F' ? geslacht::kVrouw : geslacht::kOnbekend;
}

// A sex that the record can hold; none is not known.
bool IsGeslacht(std::string_view waarde) {
  const std::string_view woord = TrimLinks(waarde);
  return woord.empty() ||
         std::string_view("MFUNO?").find(Hoofdletter(woord.front())) != std::string_view::npos;
}

}  // namespace

bool ImpPersoon::Begin(std::int16_t nr) {
  nr_ = nr;
  relaties_ = 0;
  gebCorr_ = ovlCorr_ = ' ';
  velden_.Wis();
  voorvoegsels_.clear();
  vast_.Wis();
  voornaam_.clear();
  achternaam_.clear();
  loop_.delen.volgers.HuidigPersoonNr = nr;
  return loop_.delen.persoon.Lees(nr);
}

bool ImpPersoon::Bewaar() {
  return loop_.delen.persoon.Schrijf(nr_);
}

void ImpPersoon::ZetVeld(std::string_view veld, std::string_view waarde) {
  velden_.Zet(veld, waarde, loop_.stand.regels,
              [this](std::int32_t regel) { loop_.merken.Zet(regel); });
  Zet(veld, waarde);
}

void ImpPersoon::RondAf() {
  for (const Voorvoegsel& voorvoegsel : voorvoegsels_) {
    if (!achternaam_.starts_with(voorvoegsel.tekst)) loop_.merken.Zet(voorvoegsel.regel);
  }
}

bool ImpPersoon::Neem(const PersoonPad& pad, std::string_view waarde) {
  if (IsEigen(pad.actie)) {
    NeemEigen(pad, waarde);
    return true;
  }
  if (vast_.Bevat(pad.veld)) {
    if (pad.actie == PersoonActie::Gezindte) HerzieGezindte(pad, waarde);
    return true;
  }
  switch (pad.actie) {
    case PersoonActie::Naam:
      NeemNaam(pad, waarde);
      break;
    case PersoonActie::Voornaam:
    case PersoonActie::Achternaam:
      NeemNaamDeel(pad, waarde);
      break;
    case PersoonActie::Geslacht:
      if (!IsGeslacht(waarde)) loop_.Merk();
      ZetVeld(pad.veld, std::string(1, GeslachtVan(waarde)));
      break;
    case PersoonActie::GebDatum:
    case PersoonActie::DoopDatum:
    case PersoonActie::OvlDatum:
    case PersoonActie::BegrDatum:
      NeemDatum(pad, waarde);
      break;
    case PersoonActie::Plaats:
    case PersoonActie::DoopPlaats:
    case PersoonActie::BegrPlaats:
      NeemPlaats(pad, waarde);
      break;
    case PersoonActie::Gezindte:
      ZetVeld(pad.veld, loop_.Gezindte(waarde));
      break;
    case PersoonActie::Beroep:
      NeemBeroep(pad, waarde);
      break;
    case PersoonActie::Ouders:
      ZetVeld(pad.veld, loop_.GedRelNr(waarde));
      break;
    case PersoonActie::Relatie:
      return NeemRelatie(waarde);
    case PersoonActie::Eigen:
    case PersoonActie::EigenPlaats:
    case PersoonActie::EigenZeker:
    case PersoonActie::Niets:
      if (pad.pad.ends_with("-SPFX")) NeemVoorvoegsel(waarde);
      break;
  }
  return true;
}

void ImpPersoon::NeemBeroep(const PersoonPad& pad, std::string_view waarde) {
  if (IsLanger(waarde, kBeroep)) loop_.TelVerlies(Verlies::Beroep);
  const std::string beroep = loop_.GedTekst(Gesneden(waarde, kBeroep));
  loop_.MerkOpslag(beroep, kBeroep);
  ZetVeld(pad.veld, beroep);
}

void ImpPersoon::NeemVoorvoegsel(std::string_view waarde) {
  std::string tekst = GedNaarWindows(loop_.tekenset, Trim(waarde));
  if (loop_.TelTekens(tekst)) loop_.Merk();
  voorvoegsels_.push_back({loop_.stand.regels, std::move(tekst)});
}

void ImpPersoon::NeemEigen(const PersoonPad& pad, std::string_view waarde) {
  std::string tekst = loop_.GedTekst(Trim(waarde));
  if (!MagInVeld(pad.veld, tekst)) return loop_.Merk();
  if (pad.actie == PersoonActie::EigenPlaats) {
    plaats_ = loop_.EigenPlaats(waarde);
    tekst = GetalTekst(plaats_);
  } else if (pad.actie == PersoonActie::EigenZeker) {
    tekst = GetalTekst(MetBepaling(plaats_, tekst));
  }
  vast_.Voeg(pad.veld);
  loop_.MerkEigen(tekst, TekstBreedte(persoonveld::kVelden, pad.veld));
  if (pad.veld == "Achternaam") achternaam_ = tekst;
  if (pad.veld == "Voornaam") voornaam_ = tekst;
  Zet(pad.veld, tekst);
}

// A code may stand for another name here than it did where it was written, or for none.
void ImpPersoon::HerzieGezindte(const PersoonPad& pad, std::string_view waarde) {
  const Gezindten& gezindten = loop_.delen.schrijfwijze.gezindten;
  const std::string naam = loop_.GedTekst(Trim(waarde));
  const std::string vast = loop_.delen.persoon.Religie();
  if (GelijkZonderKast(GezindteNaam(vast, gezindten), naam)) return;
  const std::string code = GezindteCode(naam, gezindten);
  if (!Trim(code).empty()) {
    Zet(pad.veld, code);
  } else if (!GelijkZonderKast(vast, naam)) {
    loop_.Merk();
  }
}

void ImpPersoon::NeemNaam(const PersoonPad& pad, std::string_view waarde) {
  const GedNaamDelen naam = GedNaam(waarde);
  if (!naam.rest.empty()) {
    std::string regel = "\t";
    regel.append(pad.pad).append("\t").append(waarde).append("\t").append(naam.rest);
    loop_.Log(regel);
  }
  loop_.stand.voornaam = loop_.GedTekst(naam.voornaam);
  loop_.stand.achternaam = loop_.GedTekst(naam.achternaam);
  if (!Trim(naam.rest).empty()) loop_.Merk();
  if (naam.afgekapt) loop_.TelVerlies(Verlies::Naam);
  // One line, one loss.
  const bool ander =
      IsAnder(voornaam_, loop_.stand.voornaam) || IsAnder(achternaam_, loop_.stand.achternaam);
  if (ander) TelOverschreven();
  voornaam_ = loop_.stand.voornaam;
  achternaam_ = loop_.stand.achternaam;
  loop_.MerkOpslag(voornaam_, kVoornaam);
  loop_.MerkOpslag(achternaam_, kAchternaam);
  ZetVeld("Voornaam", voornaam_);
  ZetVeld("Achternaam", achternaam_);
}

// The line at hand is counted; what was lost is that of an earlier one.
void ImpPersoon::TelOverschreven() {
  loop_.verliezen.Tel(Verlies::Overschreven, loop_.stand.regels);
}

void ImpPersoon::NeemNaamDeel(const PersoonPad& pad, std::string_view waarde) {
  const bool isVoornaam = pad.actie == PersoonActie::Voornaam;
  std::string& getoond = isVoornaam ? loop_.stand.voornaam : loop_.stand.achternaam;
  const std::size_t lengte = isVoornaam ? kVoornaam : kAchternaam;
  if (IsLanger(waarde, lengte)) loop_.TelVerlies(Verlies::Naam);
  getoond = loop_.GedTekst(Gesneden(waarde, lengte));
  std::string& opgeslagen = isVoornaam ? voornaam_ : achternaam_;
  if (IsAnder(opgeslagen, getoond)) TelOverschreven();
  opgeslagen = getoond;
  loop_.MerkOpslag(getoond, lengte);
  ZetVeld(pad.veld, getoond);
}

void ImpPersoon::NeemDatum(const PersoonPad& pad, std::string_view waarde) {
  const GedDatumUitslag datum = loop_.Datum(waarde);
  const bool geboorte = pad.actie == PersoonActie::GebDatum;
  const bool overlijden = pad.actie == PersoonActie::OvlDatum;
  if (geboorte || pad.actie == PersoonActie::DoopDatum) {
    gebCorr_ = datum.corr;
  } else {
    ovlCorr_ = laatsteOvlCorr_ = datum.corr;
  }
  const bool metCorr = geboorte || overlijden;
  if (!datum.heel || (!metCorr && datum.corr != correctie::kGeen)) loop_.Merk();
  if (geboorte) ZetVrij("GebCorr", std::string(1, datum.corr));
  if (overlijden) ZetVrij("OvlCorr", std::string(1, datum.corr));
  ZetVeld(pad.veld, GedDatumTekst(datum.eerste));
  if (datum.corr != correctie::kTussen) return;
  // The end of a period lies in the fields of the event behind it.
  if (geboorte) ZetVrij("DoopDatum", GedDatumTekst(datum.tweede));
  if (overlijden) ZetVrij("BegrDatum", GedDatumTekst(datum.tweede));
}

void ImpPersoon::NeemPlaats(const PersoonPad& pad, std::string_view waarde) {
  const bool vol = (pad.actie == PersoonActie::DoopPlaats && gebCorr_ == correctie::kTussen) ||
                   (pad.actie == PersoonActie::BegrPlaats && ovlCorr_ == correctie::kTussen);
  if (vol) {
    loop_.Merk();
  } else {
    ZetVeld(pad.veld, loop_.GedPlaats(waarde));
  }
}

bool ImpPersoon::NeemRelatie(std::string_view waarde) {
  const std::string relatie = loop_.GedRelNr(waarde);
  switch (++relaties_) {
    case 1:
      Zet("Relatie1", relatie);
      return true;
    case 2:
      Zet("Relatie2", relatie);
      return true;
    case 3:
      Zet("Relatie3", relatie);
      return true;
    case 4:
      return MaakVervolg(relatie);
    case 5:
      return ZetVijfde(relatie);
    case 6:
      loop_.delen.melder.Waarschuw("Meer dan 5 relaties voor Persoon " + GetalTekst(nr_));
      [[fallthrough]];
    default:
      loop_.Merk();
      return true;
  }
}

// The main record names its continuation only when that one has been written, so that a failure in
// between loses no relation.
bool ImpPersoon::MaakVervolg(std::string_view vierde) {
  PersoonLB77& persoon = loop_.delen.persoon;
  const std::string derde = GetalTekst(persoon.relatie3());
  if (!Bewaar()) return false;
  const std::int16_t vervolg = loop_.NieuwePersoon();
  if (vervolg == 0) return false;
  Zet("GebCorr", std::string(1, correctie::kVervolg));
  Zet("Relatie1", derde);
  Zet("Relatie2", vierde);
  Zet("Relatie3", "0");
  if (!persoon.Schrijf(vervolg)) return false;
  if (!persoon.Lees(nr_)) return false;
  Zet("Relatie3", GetalTekst(-vervolg));
  return Bewaar();
}

bool ImpPersoon::ZetVijfde(std::string_view vijfde) {
  PersoonLB77& persoon = loop_.delen.persoon;
  const auto vervolg = static_cast<std::int16_t>(-persoon.relatie3());
  if (!Bewaar() || !persoon.Lees(vervolg)) return false;
  Zet("Relatie3", vijfde);
  if (!persoon.Schrijf(vervolg)) return false;
  return persoon.Lees(nr_);
}

}  // namespace lb77
