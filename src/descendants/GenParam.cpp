#include "descendants/GenParam.h"

#include "app/Hoofdmodule.h"

namespace lb77 {
namespace {

constexpr int kLaagsteLeeftijd = 11;  // that is taken from the settings

}  // namespace

GenParam::GenParam(const GenParamSoort& soort, Hoofdmodule& hoofd, GenOpties& opties)
    : VerslagParam({soort.naam, soort.titel, "genealogie", "Stamouder", "Genealogie van "}, hoofd,
                   opties.GenStamouderNr, opties.teksten),
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
  ZetEersteVeld(MaxGen);
  GrensLeeftijd.ZetFilter(AlleenCijfers);
}

void GenParam::Koppel(const OptieTabel& keuzen, TitelVelden& titels, Knop& ok, Knop& terug) {
  VerslagParam::Koppel(regels_);
  VerslagParam::Koppel(leeftijd_);
  VerslagParam::Koppel(keuzen, titels, terug);
  ok.BijKlik([this] { OkKlik(); });
}

void GenParam::OkKlik() {
  Bewaar();
  Sluit();
}

void GenParam::BijLaden() {
  VerslagParam::BijLaden();
  MaxGen.ZetTekst("80");
}

void GenParam::Bewaar() {
  opties_.GenMaxGen = MaxGen.Generaties();
  VerslagParam::Bewaar();
}

}  // namespace lb77
