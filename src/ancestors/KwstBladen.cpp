#include "ancestors/KwstBladen.h"

#include <string>

#include "ancestors/KwstBldParam.h"
#include "app/Hoofdmodule.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

KwartierRegel::KwartierRegel(Formulier& formulier, int nummer)
    : KW_Index(formulier, Genummerd("KW_Index", nummer)),
      KW_Nr(formulier, Genummerd("KW_Nr", nummer)),
      Proband(formulier, Genummerd("Proband", nummer), {}),
      Kwartier(formulier, Genummerd("Kwartier", nummer)),
      InfoPersoon(formulier, Genummerd("InfoPersoon", nummer), "i"),
      Periode(formulier, Genummerd("Periode", nummer)),
      Kwartier_A(formulier, Genummerd("Kwartier_A", nummer), ">") {
  KW_Index.ZetZichtbaar(false);
  KW_Nr.ZetZichtbaar(false);
}

KwstBladen::KwstBladen(Hoofdmodule& hoofd, const KwstOpties& opties, const KwstTabel& tabel)
    : KetenFormulier("KwstBladen", "Kwartierblad", hoofd), opties_(opties), tabel_(tabel) {
  ZetHulpOnderwerp("kwartierbladen");
  ZetEersteVeld(NaarKind);
  Kwartieren.Elk([this](int p, KwartierRegel& regel) {
    regel.Proband.BijKlik([this, p] { ProbandKlik(p); });
    regel.InfoPersoon.BijKlik([this, p] { InfoPersoonKlik(p); });
  });
  NaarKind.BijKlik([this] { NaarKindKlik(); });
  UitvoerButton.BijKlik([this] { UitvoerButtonKlik(); });
  OKButton.BijKlik([this] { Sluit(); });
  BackButton.BijKlik([this] { Sluit(); });
}

std::int16_t KwstBladen::Persoon(int p) const {
  const BladPlaats& plaats = blad_.Plaats(p);
  return plaats.bezet ? tabel_.Persoon(plaats.KW_Index) : std::int16_t{0};
}

void KwstBladen::BijLaden() {
  ToonBlad();
}

void KwstBladen::BijGesloten() {
  Hoofd().volgers.HuidigPersoonNr = 0;
}

void KwstBladen::ToonBlad() {
  blad_ = KwstBlad(tabel_, wortel_);
  for (int p = 1; p <= kBladPlaatsen; ++p) ToonPlaats(p);
}

// Somebody who can't be read leaves his place blank.
void KwstBladen::ToonPlaats(int p) {
  const BladPlaats& plaats = blad_.Plaats(p);
  const std::int16_t nr = Persoon(p);
  const bool leesbaar = nr > 0 && Hoofd().Persoon.Lees(nr);
  const std::string& nummer = plaats.KW_Nr.Tekst();
  std::string voor;
  std::string achter;
  if (leesbaar) Hoofd().Persoon.HeleNaam(nr, voor, achter, "<onbekend>");
  KwartierRegel& regel = Kwartieren(p);
  regel.KW_Index.ZetTekst(GetalTekst(plaats.KW_Index));
  regel.KW_Nr.ZetTekst(plaats.bezet ? nummer : "");
  regel.Proband.ZetBijschrift(nummer);
  regel.Proband.ZetLeesnaam("Kwartier " + nummer);
  regel.Kwartier.ZetTekst(TrimLinks(voor + " " + achter));
  regel.InfoPersoon.ZetLeesnaam("Persoon van kwartier " + nummer);
  regel.Periode.ZetTekst(leesbaar ? Hoofd().Persoon.Periode(nr) : "");
  regel.Kwartier_A.ZetZichtbaar(plaats.Kwartier_A);
}

void KwstBladen::ProbandKlik(int p) {
  if (!blad_.Plaats(p).bezet) return;
  wortel_ = blad_.Plaats(p).KW_Index;
  ToonBlad();
}

void KwstBladen::InfoPersoonKlik(int p) {
  if (!blad_.Plaats(p).bezet) return;
  ToonPersoonskaart(Persoon(p));
  ToonBlad();
}

void KwstBladen::NaarKindKlik() {
  if (wortel_ == 0) return;
  wortel_ = tabel_.KwKindIndex(wortel_) - 1;
  ToonBlad();
}

void KwstBladen::UitvoerButtonKlik() {
  Hoofd().gesprek.Toon<KwstBldParam>(Hoofd(), opties_, tabel_, wortel_);
}

}  // namespace lb77
