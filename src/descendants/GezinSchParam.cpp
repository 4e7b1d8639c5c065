#include "descendants/GezinSchParam.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>

#include "app/Hoofdmodule.h"
#include "entry/KaartVelden.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::string_view kNietTeLezen = "?????";
constexpr std::string_view kOnbekend = "<onbekend>";
constexpr std::int16_t kEerstePersoon = 2;

// Record 1 can be read, but is nobody, and a continuation is part of somebody else.
bool LeesHoofd(PersoonLB77& persoon, std::int16_t nr) {
  return nr >= kEerstePersoon && persoon.Lees(nr) && !persoon.IsVolgRecord();
}

}  // namespace

GezinRij::GezinRij(Formulier& formulier, int nummer)
    : KiesPartner(formulier, Genummerd("KiesPartner", nummer), "&" + GetalTekst(nummer)),
      RelNrPartner(formulier, Genummerd("RelNrPartner", nummer)),
      NrPartner(formulier, Genummerd("NrPartner", nummer)),
      VoorNaamPartner(formulier, Genummerd("VoorNaamPartner", nummer)),
      AchterNaamPartner(formulier, Genummerd("AchterNaamPartner", nummer)),
      PeriodePartner(formulier, Genummerd("PeriodePartner", nummer)) {}

void GezinRij::Toon(PersoonLB77& persoon, const GezinBlik& gezin) {
  std::string voor;
  std::string achter;
  persoon.HeleNaam(gezin.partner, voor, achter, kOnbekend);
  if (!gezin.gelezen || (gezin.partner != 0 && voor.empty())) {
    voor = achter = kNietTeLezen;
  } else if (gezin.partner == 0) {
    achter = kOnbekend;
  }
  RelNrPartner.ZetTekst(NrTekst(gezin.relNr));
  NrPartner.ZetTekst(NrTekst(gezin.partner));
  VoorNaamPartner.ZetTekst(voor);
  AchterNaamPartner.ZetTekst(achter);
  PeriodePartner.ZetTekst(gezin.partner == 0 ? std::string() : persoon.Periode(gezin.partner));
  KiesPartner.ZetLeesnaam("Relatie " + RelNrPartner.Tekst() + " " + voor + " " + achter);
  ZetZichtbaar(true);
}

void GezinRij::Verberg() {
  KiesPartner.Zet(false);
  ZetZichtbaar(false);
}

void GezinRij::ZetZichtbaar(bool zichtbaar) {
  for (Bediening* deel :
       std::initializer_list<Bediening*>{&KiesPartner, &RelNrPartner, &NrPartner, &VoorNaamPartner,
                                         &AchterNaamPartner, &PeriodePartner}) {
    deel->ZetZichtbaar(zichtbaar);
  }
}

GezinSchParam::GezinSchParam(Hoofdmodule& hoofd, GezinOpties& opties)
    : KetenFormulier("GezinSchParam", "Gezinsblad Uitvoeropties", hoofd), opties_(opties) {
  ZetHulpOnderwerp("gezinsblad");
  OKButton.BijKlik([this] { OKButtonKlik(); });
  KoppelTerug(BackButton);
}

void GezinSchParam::BijLaden() {
  Partners.Elk([](int, GezinRij& rij) { rij.Verberg(); });
  keuzen_.Laad(Hoofd().Ini);
  gelezen_ = LeesHoofd(Hoofd().Persoon, opties_.GezinHoofdNr);
  if (gelezen_) {
    Gezinshoofd.Toon(Hoofd().Persoon, opties_.GezinHoofdNr);
    ToonPartners();
  }
  ZetEersteVeld(Partners(1).KiesPartner.Zichtbaar()
                    ? static_cast<Bediening&>(Partners(1).KiesPartner)
                    : SoortBladBox);
}

void GezinSchParam::BijActiveren() {
  if (gelezen_ && onleesbaar_ == 0) return;
  const int record = gelezen_ ? onleesbaar_ : opties_.GezinHoofdNr;
  Hoofd().gesprek.Fout(std::string(kLeesfoutPersoon) + GetalTekst(record));
  if (gelezen_) return;
  StopKeten();
  Sluit();
}

void GezinSchParam::ToonPartners() {
  PersoonLB77& persoon = Hoofd().Persoon;
  const auto gezinnen = LeesGezinnen(persoon, Hoofd().Relatie, opties_.GezinHoofdNr);
  if (!gezinnen) return;
  int nummer = Partners.Eerste();
  for (const GezinBlik& gezin : gezinnen->lijst) Partners(nummer++).Toon(persoon, gezin);
  Partners(Partners.Eerste()).KiesPartner.Zet(!gezinnen->lijst.empty());
  onleesbaar_ = 0;
  if (!gezinnen->heel && persoon.Lees(opties_.GezinHoofdNr)) onleesbaar_ = -int{persoon.relatie3()};
}

void GezinSchParam::OKButtonKlik() {
  IniClass& ini = Hoofd().Ini;
  keuzen_.Neem();
  opties_.HuidigRelatieNr = 0;
  Partners.Elk([this](int, const GezinRij& rij) {
    if (!rij.KiesPartner.Gekozen()) return;
    opties_.HuidigRelatieNr =
        NaarInt16(Getalwaarde(rij.RelNrPartner.Tekst())).value_or(std::int16_t{0});
  });
  Hoofd().volgers.HuidigRelatieNr = opties_.HuidigRelatieNr;
  if (BewaartVelden(ini)) {
    keuzen_.Bewaar(ini);
    ini.IniSchrijf();
  }
  Sluit();
}

}  // namespace lb77
