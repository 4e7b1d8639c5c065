#include "entry/ToonRelatie.h"

#include <array>
#include <memory>
#include <string>

#include "entry/OpmTekst.h"
#include "entry/ToonKinderen.h"
#include "entry/ToonPersoon.h"
#include "entry/WijzigRelatie.h"
#include "store/RelatieVelden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::array<std::string_view, 3> kBanden = {"Huwelijk (wet)", "Samenwonen",
                                                     "Partnerschap"};
constexpr std::int16_t kEersteRegel = 1;

constexpr KaartWoorden kWoorden{
    .nummer = "Relatienummer:",
    .komtNietVoor = kRelatieKomtNietVoor,
    .leesfout = kLeesfoutRelatie,
    .eerste = "Dit is de eerste relatie",
    .laatste = "Dit is de laatste relatie",
};

}  // namespace

KaartVraag ToonRelatieVraag(Hoofdmodule& hoofd, std::int16_t nr) {
  return [&hoofd, nr] { return std::make_unique<ToonRelatie>(hoofd, nr); };
}

ToonRelatie::ToonRelatie(Hoofdmodule& hoofd, std::int16_t nr)
    : RecordKaartVan("ToonRelatie", "Toon Relatie", hoofd, nr, kWoorden,
                     {hoofd.Relatie, hoofd.volgers.HuidigRelatieNr}) {
  ZetHulpOnderwerp("relaties");
  AlgRelOpmTekst.ZetAlleenLezen(true);
  AlgRelOpmTekst.ZetLeesnaam("Algemene opmerking");
  Man.Nr.BijKlik([this] { ManNrKlik(); });
  Vrouw.Nr.BijKlik([this] { VrouwNrKlik(); });
  NaarKind.BijKlik([this] { NaarKindKlik(); });
  HangOp({VorigeRelatie, VolgendeRelatie, NieuwButton, WijzigButton, BackButton});
}

KaartVraag ToonRelatie::Opnieuw() const {
  return ToonRelatieVraag(Hoofd(), Nr());
}

void ToonRelatie::ToonWijzig() {
  Hoofd().gesprek.Toon<WijzigRelatie>(Hoofd());
}

void ToonRelatie::ToonRecord() {
  ToonGebeurtenissen();
  ToonOpmerkingen();
  ToonPartners();
  // The last, as the buffer may hold the continuation behind it.
  ToonKindertal();
}

// kept: with "T" the church marriage ends the period, and its place stays in view all the same.
void ToonRelatie::ToonGebeurtenissen() {
  RelatieLB77& relatie = Hoofd().Relatie;
  PlaatsLB77& plaats = Hoofd().Plaats;
  const Gezindten& gezindten = Hoofd().schrijfwijze.gezindten;
  OtrDatum.ZetTekst(DatumOpKaart(relatie.OtrDatum10()));
  OtrPlts.Toon(plaats, relatie.OtrPlaatsNr());
  const std::int32_t band = Getalwaarde(relatie.Waarde(relatieveld::HuwSwPs));
  WetHuwLabel.ZetBijschrift(kBanden.at(static_cast<std::size_t>(band)));
  HuwCorr.ZetTekst(relatie.HuwCorr());
  WetHuwDatum.ZetTekst(DatumOpKaart(relatie.WetHuwDatum10()));
  WHuwPlts.Toon(plaats, relatie.WetHuwPlaatsNr());
  HuwSoort.Toon(relatie.HuwSoort(), gezindten);
  KHuwLabel.ZetBijschrift(relatie.KHuwSch() ? "Scheiding" : "Huwelijk (kerk)");
  KHuwDatum.ZetTekst(DatumOpKaart(relatie.KHuwDatum10()));
  KHuwPlts.Toon(plaats, relatie.KHuwPlaatsNr());
  Religie.Toon(relatie.Religie(), gezindten);
}

void ToonRelatie::ToonOpmerkingen() {
  const RelatieLB77& relatie = Hoofd().Relatie;
  const std::int16_t opmCode = relatie.OpmCode();
  ToonOpmKnoppen(opmCode);
  AlgRelOpmTekst.ZetTekst(OpmTekst(Hoofd().Opmerking, opmCode, relatie.OpmRecord(),
                                   relatierubriek::kAlgemeen, kEersteRegel));
}

// Two partners of one sex, or of none that is known, are no man and woman.
void ToonRelatie::ToonPartners() {
  PersoonLB77& persoon = Hoofd().Persoon;
  const std::int16_t man = Hoofd().Relatie.ManNr();
  const std::int16_t vrouw = Hoofd().Relatie.VrouwNr();
  const bool gelijk = persoon.IsMan(man) == persoon.IsMan(vrouw);
  ManLabel.ZetBijschrift(gelijk ? "Partner1" : "Man");
  VrouwLabel.ZetBijschrift(gelijk ? "Partner2" : "Vrouw");
  Man.Toon(persoon, man);
  Vrouw.Toon(persoon, vrouw);
}

void ToonRelatie::ToonKindertal() {
  const Kindtab tab = LeesKinderen(Hoofd().Relatie, Hoofd().gesprek, Nr());
  int aantal = 0;
  for (std::size_t i = 1; i < tab.size() && tab[i] > 0; ++i) ++aantal;
  Kindertal.ZetTekst(KindertalTekst(aantal));
}

void ToonRelatie::ManNrKlik() {
  NaarPersoon(Man.Nr.Nr(), "Er is geen Man bekend");
}

void ToonRelatie::VrouwNrKlik() {
  NaarPersoon(Vrouw.Nr.Nr(), "Er is geen Vrouw bekend");
}

void ToonRelatie::NaarPersoon(int nr, std::string_view geen) {
  if (MagErheen(Hoofd().gesprek, nr, geen, kPersoonKomtNietVoor)) {
    Vervang(ToonPersoonVraag(Hoofd(), static_cast<std::int16_t>(nr)));
  }
}

void ToonRelatie::NaarKindKlik() {
  Ga(ToonKinderenVraag(Hoofd(), Nr()));
}

}  // namespace lb77
