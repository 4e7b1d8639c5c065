#include "ancestors/KwstTekstParam.h"

#include "app/Hoofdmodule.h"

namespace lb77 {

KwstTekstParam::KwstTekstParam(const KwstTekstParamSoort& soort, Hoofdmodule& hoofd,
                               KwstOpties& opties)
    : KwstParam(soort.naam, soort.titel, hoofd, opties),
      Nummers(*this, hoofd.gesprek),
      OokNrsBox(*this, "OokNrsBox", soort.nummers),
      OokOpmBox(soort.metOpm ? std::optional<JaNeeVak>(std::in_place, *this, "OokOpmBox",
                                                       "Ook Opmerkingen uitvoeren ?")
                             : std::nullopt),
      HTMLfileTekst(soort.metHTMLfile ? std::optional<Tekstvak>(std::in_place, *this,
                                                                "HTMLfileTekst", "HTML-file:", 81)
                                      : std::nullopt),
      Titels(*this, kSectie),
      keuzen_(kSectie, Rijen()) {
  ZetEersteVeld(Nummers.KwNrProband);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  Koppel(keuzen_, Titels, BackButton);
}

std::vector<OptieRij> KwstTekstParam::Rijen() {
  std::vector<OptieRij> rijen{{BroerZusBox, "SoortUitv", 1, Opties().KwBroerZus},
                              {OokNrsBox, "OokNummers", true, Opties().KwOokNrs}};
  if (OokOpmBox) rijen.emplace_back(*OokOpmBox, "OokOpm", true, Opties().KwOokOpm);
  rijen.emplace_back(KwHerhaalBox, "VolgHerh", true, Opties().KwVolgHerh);
  rijen.emplace_back(InHTMLBox, "HTML", false, Opties().KwInHTML);
  return rijen;
}

void KwstTekstParam::BijLaden() {
  KwstParam::BijLaden();
  Nummers.Laad();
  if (HTMLfileTekst) HTMLfileTekst->ZetTekst("KWSTDATA.HTM");
}

void KwstTekstParam::OKButtonKlik() {
  Nummers.Bewaar(Opties());
  if (HTMLfileTekst) Opties().KwHTMLFile = PaginaTekst(HTMLfileTekst->Tekst());
  Bewaar();
  Sluit();
}

}  // namespace lb77
