#include "entry/KinderenKaart.h"

#include <string>

#include "entry/KindActies.h"
#include "entry/RecordToets.h"
#include "entry/ToonPersoon.h"
#include "text/Getallen.h"

namespace lb77 {

KindRij::KindRij(Formulier& formulier, int nummer)
    : KindLabel(formulier, Genummerd("KindLabel", nummer), GetalTekst(nummer)),
      NaarKind(formulier, Genummerd("NaarKind", nummer), {}, "Kind " + GetalTekst(nummer)),
      VoorNmKind(formulier, Genummerd("VoorNmKind", nummer)),
      AchterNmKind(formulier, Genummerd("AchterNmKind", nummer)),
      KindPeriode(formulier, Genummerd("KindPeriode", nummer)) {}

void KindRij::Toon(PersoonLB77& persoon, std::int16_t nr) {
  const bool bekend = nr > 0;
  for (Bediening* deel :
       {static_cast<Bediening*>(&KindLabel), static_cast<Bediening*>(&NaarKind),
        static_cast<Bediening*>(&VoorNmKind), static_cast<Bediening*>(&AchterNmKind),
        static_cast<Bediening*>(&KindPeriode)}) {
    deel->ZetZichtbaar(bekend);
  }
  NaarKind.ZetNr(bekend ? nr : 0);
  std::string voor;
  std::string achter;
  if (bekend) persoon.HeleNaam(nr, voor, achter, "<onbekend>");
  VoorNmKind.ZetTekst(voor);
  AchterNmKind.ZetTekst(achter);
  KindPeriode.ZetTekst(bekend ? persoon.Periode(nr) : std::string());
}

KinderenKaart::KinderenKaart(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd,
                             std::int16_t relatie, int eerste)
    : KaartOp(naam, titel, hoofd), Kinderen(*this, eerste), relatie_(relatie) {
  ZetHulpOnderwerp("relaties");
  Man.Nr.BijKlik([this] { ManNrKlik(); });
  Vrouw.Nr.BijKlik([this] { VrouwNrKlik(); });
  Kinderen.Elk(
      [this](int, KindRij& rij) { rij.NaarKind.BijKlik([this, &rij] { NaarKindKlik(rij); }); });
  ErbijButton.BijKlik([this] { ErbijButtonKlik(); });
  ErafButton.BijKlik([this] { ErafButtonKlik(); });
  NieuwKindButton.BijKlik([this] { NieuwKindButtonKlik(); });
}

void KinderenKaart::HangOp(Knop& terug) {
  terug_ = &terug;
  terug.BijKlik([this] { TerugKlik(); });
}

void KinderenKaart::LaadOpnieuw(Bediening& bij) {
  Herlaad();
  if (!Gesloten()) ZetFocus(bij);
}

void KinderenKaart::BijLaden() {
  Hoofd().volgers.HuidigRelatieNr = relatie_;
  if (!MagTonen()) return Sluit();
  RelatieLB77& relatie = Hoofd().Relatie;
  RecordNr.ZetTekst(GetalTekst(relatie_));
  Man.ToonHeleNaam(Hoofd().Persoon, relatie.ManNr());
  Vrouw.ToonHeleNaam(Hoofd().Persoon, relatie.VrouwNr());
  if (!NaarLijst()) return Sluit();
  ToonKinderen();
  KindRij& eerste = Kinderen(Kinderen.Eerste());
  ZetEersteVeld(eerste.NaarKind.Zichtbaar() ? eerste.NaarKind : *terug_);
}

bool KinderenKaart::MagTonen() {
  return LeesHoofdrecord(Hoofd().gesprek, Hoofd().Relatie, relatie_,
                         {kRelatieKomtNietVoor, kLeesfoutRelatie});
}

// The last slot may be the way to the next card; that is no child.
void KinderenKaart::ToonKinderen() {
  const RelatieLB77& lijst = Hoofd().Relatie;
  Kinderen.Elk([&](int nummer, KindRij& rij) {
    const int slot = nummer - Kinderen.Eerste() + 1;
    rij.Toon(Hoofd().Persoon, lijst.KindNr(static_cast<std::int16_t>(slot)));
  });
}

void KinderenKaart::ManNrKlik() {
  NaarPersoon(Man.Nr.Nr(), "Er is geen Man bekend");
}

void KinderenKaart::VrouwNrKlik() {
  NaarPersoon(Vrouw.Nr.Nr(), "Er is geen Vrouw bekend");
}

void KinderenKaart::NaarKindKlik(const KindRij& rij) {
  NaarPersoon(rij.NaarKind.Nr(), {});
}

void KinderenKaart::ErbijButtonKlik() {
  VoegToe();
  LaadOpnieuw(ErbijButton);
}

void KinderenKaart::ErafButtonKlik() {
  HaalWeg();
  LaadOpnieuw(ErafButton);
}

void KinderenKaart::NieuwKindButtonKlik() {
  VoerKindIn(Hoofd(), relatie_);
  LaadOpnieuw(NieuwKindButton);
}

void KinderenKaart::NaarPersoon(int nr, std::string_view geen) {
  if (MagErheen(Hoofd().gesprek, nr, geen, kPersoonKomtNietVoor)) {
    Ga(ToonPersoonVraag(Hoofd(), static_cast<std::int16_t>(nr)));
  }
}

void KinderenKaart::TerugKlik() {
  Volgers& volgers = Hoofd().volgers;
  volgers.PersBufNr = volgers.RelBufNr = volgers.PlaatsBufNr = -1;
  Sluit();
}

}  // namespace lb77
