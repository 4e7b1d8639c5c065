#include "exchange/ImpRelatie.h"

#include <string>

#include "exchange/EigenPaden.h"
#include "exchange/EigenWaarde.h"
#include "store/Codes.h"
#include "store/RelatieVelden.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr int kInHoofdrecord = 15;
// 14 in the main record, behind which the continuation stands, and 15 there.
constexpr int kHoogsteKind = 29;
// Slot n of the continuation holds child n + 14.
constexpr int kVerschuiving = 14;

bool IsEigen(RelatieActie actie) {
  return actie == RelatieActie::Eigen || actie == RelatieActie::EigenPlaats ||
         actie == RelatieActie::EigenZeker;
}

std::string KindVeld(int slot) {
  return "Kind" + GetalTekst(slot);
}

// Does the value say no more than that the event took place?
bool IsBevestiging(std::string_view waarde) {
  waarde = Trim(waarde);
  return waarde.empty() || waarde == "Y";
}

}  // namespace

bool ImpRelatie::Begin(std::int16_t nr) {
  nr_ = nr;
  kinderen_ = 0;
  velden_.Wis();
  vast_.Wis();
  loop_.delen.volgers.HuidigRelatieNr = nr;
  return loop_.delen.relatie.Lees(nr);
}

void ImpRelatie::ZetVeld(std::string_view veld, std::string_view waarde) {
  velden_.Zet(veld, waarde, loop_.stand.regels,
              [this](std::int32_t regel) { loop_.merken.Zet(regel); });
  Zet(veld, waarde);
}

bool ImpRelatie::Bewaar() {
  return loop_.delen.relatie.Schrijf(nr_);
}

bool ImpRelatie::Neem(const RelatiePad& pad, std::string_view waarde, char laatsteOvlCorr) {
  if (IsEigen(pad.actie)) {
    NeemEigen(pad, waarde);
    return true;
  }
  if (vast_.Bevat(pad.veld)) return true;
  if (!pad.vooraf.empty()) ZetVeld(pad.vooraf, pad.waarde);
  switch (pad.actie) {
    case RelatieActie::Persoon:
      ZetVeld(pad.veld, loop_.GedPersNr(waarde));
      break;
    case RelatieActie::Datum:
    case RelatieActie::HuwDatum:
    case RelatieActie::HuwDatumEigen:
      NeemDatum(pad, waarde, laatsteOvlCorr);
      break;
    case RelatieActie::Plaats:
      ZetVeld(pad.veld, loop_.GedPlaats(waarde));
      break;
    case RelatieActie::Gezindte:
      ZetVeld(pad.veld, loop_.Gezindte(waarde));
      break;
    case RelatieActie::Kind:
      return NeemKind(waarde);
    case RelatieActie::EigenHuwDatum:
      NeemEigenDatum(waarde);
      break;
    case RelatieActie::Eigen:
    case RelatieActie::EigenPlaats:
    case RelatieActie::EigenZeker:
    case RelatieActie::Bond:
      if (!IsBevestiging(waarde)) loop_.Merk();
      break;
    case RelatieActie::Niets:
      break;
  }
  return true;
}

void ImpRelatie::NeemEigen(const RelatiePad& pad, std::string_view waarde) {
  std::string tekst = loop_.GedTekst(Trim(waarde));
  if (!MagInVeld(pad.veld, tekst)) return loop_.Merk();
  if (pad.actie == RelatieActie::EigenPlaats) {
    plaats_ = loop_.EigenPlaats(waarde);
    tekst = GetalTekst(plaats_);
  } else if (pad.actie == RelatieActie::EigenZeker) {
    tekst = GetalTekst(MetBepaling(plaats_, tekst));
  }
  vast_.Voeg(pad.veld);
  loop_.MerkEigen(tekst, TekstBreedte(relatieveld::kVelden, pad.veld));
  Zet(pad.veld, tekst);
}

void ImpRelatie::NeemEigenDatum(std::string_view waarde) {
  const GedDatumUitslag datum = loop_.Datum(waarde);
  ZetVrij("HuwCorr", std::string(1, datum.corr));
  Zet("WHuwDatum", GedDatumTekst(datum.eerste));
  if (datum.corr == correctie::kTussen) ZetVrij("KHuwDatum", GedDatumTekst(datum.tweede));
}

void ImpRelatie::NeemDatum(const RelatiePad& pad, std::string_view waarde, char laatsteOvlCorr) {
  const GedDatumUitslag datum = loop_.Datum(waarde);
  // No qualifier is stored; one of ours stands in a tag of our own as well.
  if (!datum.heel || (datum.corr != correctie::kGeen && !loop_.eigen)) loop_.Merk();
  ZetVeld(pad.veld, GedDatumTekst(datum.eerste));
  if (pad.actie == RelatieActie::Datum) return;
  // kept: a marriage looks at the last death or burial, not at its own date, and the qualifier
  // itself is not stored.
  const char corr = pad.actie == RelatieActie::HuwDatumEigen ? datum.corr : laatsteOvlCorr;
  if (corr == correctie::kTussen) ZetVeld("KHuwDatum", GedDatumTekst(datum.tweede));
}

bool ImpRelatie::NeemKind(std::string_view waarde) {
  const std::string kind = loop_.GedPersNr(waarde);
  const int nummer = ++kinderen_;
  if (nummer <= kInHoofdrecord) {
    Zet(KindVeld(nummer), kind);
    return true;
  }
  if (nummer == kInHoofdrecord + 1) return MaakVervolg(kind);
  if (nummer <= kHoogsteKind) return ZetInVervolg(kind);
  loop_.Merk();
  if (nummer == kHoogsteKind + 1) {
    loop_.delen.melder.Waarschuw("Meer dan 29 kinderen voor Relatie " + GetalTekst(nr_));
  }
  return true;
}

// The main record names its continuation only when that one has been written, so that a failure in
// between loses no child.
bool ImpRelatie::MaakVervolg(std::string_view kind) {
  RelatieLB77& relatie = loop_.delen.relatie;
  const std::string vijftiende = relatie.kind(kInHoofdrecord);
  if (!Bewaar()) return false;
  const std::int16_t vervolg = loop_.NieuweRelatie();
  if (vervolg == 0) return false;
  Zet("HuwCorr", std::string(1, correctie::kVervolg));
  Zet("Kind1", vijftiende);
  Zet("Kind2", kind);
  if (!relatie.Schrijf(vervolg)) return false;
  if (!relatie.Lees(nr_)) return false;
  Zet(KindVeld(kInHoofdrecord), GetalTekst(-vervolg));
  return Bewaar();
}

bool ImpRelatie::ZetInVervolg(std::string_view kind) {
  RelatieLB77& relatie = loop_.delen.relatie;
  const auto vervolg = static_cast<std::int16_t>(-relatie.KindNr(kInHoofdrecord));
  if (!Bewaar() || !relatie.Lees(vervolg)) return false;
  Zet(KindVeld(kinderen_ - kVerschuiving), kind);
  if (!relatie.Schrijf(vervolg)) return false;
  return relatie.Lees(nr_);
}

}  // namespace lb77
