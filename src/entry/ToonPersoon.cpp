#include "entry/ToonPersoon.h"

#include <memory>
#include <vector>

#include "entry/HuwActies.h"
#include "entry/OpmTekst.h"
#include "entry/ToonPersOpm.h"
#include "entry/ToonRelatie.h"
#include "entry/WijzigPersoon.h"
#include "store/Codes.h"

namespace lb77 {

namespace {

constexpr std::string_view kNieuweRelatie = "<+>";
constexpr std::int16_t kEersteRegel = 1;

constexpr KaartWoorden kWoorden{
    .nummer = "Persoonsnummer:",
    .komtNietVoor = kPersoonKomtNietVoor,
    .leesfout = kLeesfoutPersoon,
    .eerste = "Dit is de eerste persoon",
    .laatste = "Dit is de laatste persoon",
};

}  // namespace

KaartVraag ToonPersoonVraag(Hoofdmodule& hoofd, std::int16_t nr) {
  return [&hoofd, nr] { return std::make_unique<ToonPersoon>(hoofd, nr); };
}

ToonPersoon::ToonPersoon(Hoofdmodule& hoofd, std::int16_t nr)
    : RecordKaartVan("ToonPersoon", "Toon Persoon", hoofd, nr, kWoorden,
                     {hoofd.Persoon, hoofd.volgers.HuidigPersoonNr}) {
  ZetHulpOnderwerp("personen");
  AlgPersOpmTekst.ZetAlleenLezen(true);
  AlgPersOpmTekst.ZetLeesnaam("Algemene opmerking");
  Pa.Nr.BijKlik([this] { PaNrKlik(); });
  Ma.Nr.BijKlik([this] { MaNrKlik(); });
  RelNrOuders.BijKlik([this] { RelNrOudersKlik(); });
  Partners.Elk([this](int rij, HuwKaartRij& regel) {
    regel.RelNrP.BijKlik([this, rij] { RelNrPKlik(rij); });
    regel.RecordNrP.BijKlik([this, rij] { RecordNrPKlik(rij); });
  });
  OpmButton.BijKlik([this] { OpmButtonKlik(); });
  HuwVolg.BijKlik([this] { HuwVolgKlik(); });
  HangOp({VorigPersoon, VolgendPersoon, NieuwButton, WijzigButton, BackButton});
}

KaartVraag ToonPersoon::Opnieuw() const {
  return ToonPersoonVraag(Hoofd(), Nr());
}

void ToonPersoon::ToonWijzig() {
  Hoofd().gesprek.Toon<WijzigPersoon>(Hoofd());
}

void ToonPersoon::ToonRecord() {
  Hoofd().gezien.Zag(Nr());
  PersoonLB77& persoon = Hoofd().Persoon;
  const std::int16_t ouders = persoon.RelNrOuders();
  Geslacht.ZetTekst(persoon.Geslacht());
  VoorNm.ZetTekst(persoon.VoorNaamTrue());
  AchterNm.ZetTekst(persoon.AchterNaamTrue());
  BeroepTekst.ZetTekst(persoon.beroep());
  ToonGebeurtenissen();
  ToonPeriodes();
  ToonOpmerkingen();
  // From here on the buffer holds others.
  ToonOuders(ouders);
  ToonPartners(!IsCode(Geslacht.Tekst(), geslacht::kOnbekend));
}

void ToonPersoon::ToonGebeurtenissen() {
  PersoonLB77& persoon = Hoofd().Persoon;
  PlaatsLB77& plaats = Hoofd().Plaats;
  GebCorr.ZetTekst(persoon.GebCorr());
  GebDatum.ZetTekst(DatumOpKaart(persoon.GebDatum10()));
  GebPlts.Toon(plaats, persoon.GebPlaatsNr());
  DoopDatum.ZetTekst(DatumOpKaart(persoon.DoopDatum10()));
  DoopPlts.Toon(plaats, persoon.DoopPlaatsNr());
  Religie.Toon(persoon.Religie(), Hoofd().schrijfwijze.gezindten);
  OvlCorr.ZetTekst(persoon.OvlCorr());
  OvlDatum.ZetTekst(DatumOpKaart(persoon.OvlDatum10()));
  OvlPlts.Toon(plaats, persoon.OvlPlaatsNr());
  BegrLabel.ZetBijschrift(persoon.BegrCrem() ? "Crematie" : "Begraven");
  BegrDatum.ZetTekst(DatumOpKaart(persoon.BegrDatum10()));
  BegrPlts.Toon(plaats, persoon.BegrPlaatsNr());
}

// With "T" the second date ends the period, and what belongs to a second event is not there.
void ToonPersoon::ToonPeriodes() {
  const bool geboren = !IsCode(GebCorr.Tekst(), correctie::kTussen);
  DoopLabel.ZetZichtbaar(geboren);
  DoopPlts.ZetZichtbaar(geboren);
  ReligieLabel.ZetZichtbaar(geboren);
  Religie.ZetZichtbaar(geboren);
  BegrPlts.ZetZichtbaar(!IsCode(OvlCorr.Tekst(), correctie::kTussen));
}

void ToonPersoon::ToonOpmerkingen() {
  const PersoonLB77& persoon = Hoofd().Persoon;
  const std::int16_t opmCode = persoon.OpmCode();
  ToonOpmKnoppen(opmCode);
  AlgPersOpmTekst.ZetTekst(OpmTekst(Hoofd().Opmerking, opmCode, persoon.OpmRecord(),
                                    persoonrubriek::kAlgemeen, kEersteRegel));
}

void ToonPersoon::ToonOuders(std::int16_t relatie) {
  RelatieLB77& bron = Hoofd().Relatie;
  const bool bekend = relatie > 0 && bron.Lees(relatie);
  RelNrOuders.ZetNr(relatie);
  Pa.Toon(Hoofd().Persoon, bekend ? bron.ManNr() : std::int16_t{0});
  Ma.Toon(Hoofd().Persoon, bekend ? bron.VrouwNr() : std::int16_t{0});
}

// Behind the relations there is one line to begin another.
void ToonPersoon::ToonPartners(bool magNieuw) {
  const std::vector<HuwRegel> regels =
      LeesHuwRegels(Hoofd().Persoon, Hoofd().Relatie, Hoofd().gesprek, Nr());
  Partners.Elk([&](int nummer, HuwKaartRij& rij) {
    const auto plaats = static_cast<std::size_t>(nummer - 1);
    if (plaats < regels.size()) {
      rij.Toon(regels[plaats]);
    } else if (plaats == regels.size() && magNieuw) {
      rij.ToonNieuw(kNieuweRelatie);
    } else {
      rij.Verberg();
    }
  });
}

void ToonPersoon::PaNrKlik() {
  NaarPersoon(Pa.Nr.Nr(), "Er is geen Vader bekend");
}

void ToonPersoon::MaNrKlik() {
  NaarPersoon(Ma.Nr.Nr(), "Er is geen Moeder bekend");
}

void ToonPersoon::RelNrOudersKlik() {
  NaarRelatie(RelNrOuders.Nr(), "Er zijn geen Ouders bekend");
}

void ToonPersoon::RelNrPKlik(int rij) {
  if (Partners(rij).IsNieuw()) {
    NieuweRelatieVan(Hoofd(), Nr());
    return LaadOpnieuw(Partners(rij).RelNrP);
  }
  NaarRelatie(Partners(rij).RelNrP.Nr(), "Er is geen Relatie bekend");
}

void ToonPersoon::RecordNrPKlik(int rij) {
  NaarPersoon(Partners(rij).RecordNrP.Nr(), "Er is geen Partner bekend");
}

void ToonPersoon::OpmButtonKlik() {
  Hoofd().gesprek.Toon<ToonPersOpm>(Hoofd(), Nr());
  LaadOpnieuw(OpmButton);
}

void ToonPersoon::HuwVolgKlik() {
  OrdenRelaties(Hoofd(), Nr());
  LaadOpnieuw(HuwVolg);
}

void ToonPersoon::NaarPersoon(int nr, std::string_view geen) {
  if (MagErheen(Hoofd().gesprek, nr, geen, kPersoonKomtNietVoor)) {
    Verplaats(static_cast<std::int16_t>(nr));
  }
}

void ToonPersoon::NaarRelatie(int nr, std::string_view geen) {
  if (MagErheen(Hoofd().gesprek, nr, geen, kRelatieKomtNietVoor)) {
    Ga(ToonRelatieVraag(Hoofd(), static_cast<std::int16_t>(nr)));
  }
}

}  // namespace lb77
