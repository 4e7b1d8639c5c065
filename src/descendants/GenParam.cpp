#include "descendants/GenParam.h"

#include "app/Hoofdmodule.h"

namespace lb77 {
namespace {

constexpr int kLaagsteLeeftijd = 11;  // that is taken from the settings

}  // namespace

GenParam::GenParam(const GenParamSoort& soort, Hoofdmodule& hoofd, GenOpties& opties)
    : KetenFormulier(soort.naam, soort.titel, hoofd),
      Stamouder(*this, "Stamouder"),
      MaxGen(*this, hoofd.gesprek, soort.generaties),
      GrensLeeftijd(*this, hoofd.gesprek, soort.leeftijd),
      opties_(opties),
      regels_(soort.sectie, {{UitsluitBox, "Uitsluiten", true, opties.GenUitsluiten},
                             {ZonenBox, "VolgZonen", 1, opties.GenVolgZonen},
                             {DochtersBox, "VolgDochters", 1, opties.GenVolgDochters},
                             {PrsHerhaalBox, "VolgHerh", true, opties.GenVolgHerh},
                             {InHTMLBox, "HTML", false, opties.GenInHTML}}),
      leeftijd_(kGenSectie, {{GrensLeeftijd,
                              "Leeftijd",
                              {kLaagsteLeeftijd, soort.leeftijd.hoogste},
                              kGrensLeeftijd,
                              opties.GenGrensLeeftijd}}) {
  ZetHulpOnderwerp("genealogie");
  ZetEersteVeld(MaxGen);
  GrensLeeftijd.ZetFilter(AlleenCijfers);
}

void GenParam::Koppel(const OptieTabel& keuzen, TitelVelden& titels, Knop& ok, Knop& terug) {
  keuzen_ = &keuzen;
  titels_ = &titels;
  ok.BijKlik([this] {
    Bewaar();
    Sluit();
  });
  KoppelTerug(terug);
}

std::array<const OptieTabel*, 3> GenParam::Keuzen() const {
  return {&regels_, &leeftijd_, keuzen_};
}

void GenParam::BijLaden() {
  const IniClass& ini = Hoofd().Ini;
  Stamouder.Toon(Hoofd().Persoon, opties_.GenStamouderNr);
  MaxGen.ZetTekst("80");
  for (const OptieTabel* tabel : Keuzen()) tabel->Laad(ini);
  titels_->Laad(ini, "Genealogie van " + Stamouder.Naam());
}

void GenParam::Bewaar() {
  IniClass& ini = Hoofd().Ini;
  opties_.GenMaxGen = MaxGen.Generaties();
  for (const OptieTabel* tabel : Keuzen()) tabel->Neem();
  opties_.teksten = titels_->Teksten(ini, Hoofd().klok.Nu().jaar);
  if (!BewaartVelden(ini)) return;
  for (const OptieTabel* tabel : Keuzen()) tabel->Bewaar(ini);
  titels_->Bewaar(ini);
  ini.IniSchrijf();
}

}  // namespace lb77
