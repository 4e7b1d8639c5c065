#include "ancestors/KwstTxtParam.h"

#include "app/Hoofdmodule.h"
#include "text/Getallen.h"

namespace lb77 {

KwstTxtParam::KwstTxtParam(Hoofdmodule& hoofd, KwstOpties& opties)
    : Formulier("KwstTxtParam", "Kwartierstaat Uitvoeropties"),
      Proband(*this, "Proband"),
      Nummers(*this, hoofd.gesprek),
      Titels(*this),
      hoofd_(hoofd),
      opties_(opties) {
  ZetHulpOnderwerp("kwartierstaat");
  ZetEersteVeld(Nummers.KwNrProband);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] {
    hoofd_.volgers.HuidigPersoonNr = -1;
    Sluit();
  });
}

std::array<JaNeeSleutel, 4> KwstTxtParam::Sleutels() {
  return {{{OokNrsBox, "OokNummers", true},
           {OokOpmBox, "OokOpm", true},
           {KwHerhaalBox, "VolgHerh", true},
           {InHTMLBox, "HTML", false}}};
}

void KwstTxtParam::BijLaden() {
  Proband.Toon(hoofd_.Persoon, opties_.KwProbandNr);
  Nummers.Laad();
  const std::int32_t soort = Getalwaarde(hoofd_.Ini.IniWaarde("KWST", "SoortUitv"));
  BroerZusBox.ZetIndex(soort > 0 ? soort - 1 : 0);
  if (BroerZusBox.Index() < 0) BroerZusBox.ZetIndex(0);
  for (const JaNeeSleutel& sleutel : Sleutels()) LeesKeuze(hoofd_.Ini, "KWST", sleutel);
  Titels.Laad(hoofd_.Ini, "KWST", "Kwartierstaat van " + Proband.Naam());
}

void KwstTxtParam::OKButtonKlik() {
  Nummers.Bewaar(opties_);
  opties_.KwBroerZus = static_cast<BroerZus>(BroerZusBox.Index() + 1);
  opties_.KwOokNrs = OokNrsBox.Ja();
  opties_.KwOokOpm = OokOpmBox.Ja();
  opties_.KwVolgHerh = KwHerhaalBox.Ja();
  opties_.KwInHTML = InHTMLBox.Ja();
  opties_.teksten = Titels.Teksten(hoofd_.Ini, hoofd_.klok.Nu().jaar);
  if (hoofd_.Ini.IniWaarde("Systeem", "OpslaanVelden") == "J") Bewaar();
  Sluit();
}

void KwstTxtParam::Bewaar() {
  IniClass& ini = hoofd_.Ini;
  ini.IniZet("KWST", "SoortUitv", GetalTekst(BroerZusBox.Index() + 1));
  for (const JaNeeSleutel& sleutel : Sleutels()) BewaarKeuze(ini, "KWST", sleutel);
  Titels.Bewaar(ini, "KWST");
  ini.IniSchrijf();
}

}  // namespace lb77
