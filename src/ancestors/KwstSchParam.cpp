#include "ancestors/KwstSchParam.h"

#include "app/Hoofdmodule.h"

namespace lb77 {
namespace {

constexpr int kGeneraties = 4;
constexpr int kBreedte = 8;

}  // namespace

KwstSchParam::KwstSchParam(Hoofdmodule& hoofd, KwstOpties& opties)
    : KwstParam("KwstSchParam", "Schema Kwartierstaat Uitvoeropties", hoofd, opties),
      KwNrProband(*this, hoofd.gesprek, kNrProbandVak),
      MaxGen(*this, hoofd.gesprek, kSchemaGeneraties),
      BreedteGen(*this, hoofd.gesprek, kBreedteGen),
      Titels(*this, kSectie),
      keuzen_(kSectie, {{MaxGen,
                         "Generaties",
                         {kSchemaGeneraties.laagste, kSchemaGeneraties.hoogste},
                         kGeneraties,
                         opties.KwMaxGen},
                        {BreedteGen,
                         "Breedte",
                         {kBreedteGen.laagste, kBreedteGen.hoogste},
                         kBreedte,
                         opties.KwBreedte},
                        {OokNrsBox, "OokNummers", true, opties.KwOokNrs},
                        {OokJaarBox, "OokJaren", true, opties.KwOokJaren},
                        {UitlijnBox, "Uitlijnen", true, opties.KwUitlijnen},
                        {InHTMLBox, "HTML", false, opties.KwInHTML}}) {
  ZetEersteVeld(KwNrProband);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  Koppel(keuzen_, Titels, BackButton);
}

void KwstSchParam::BijLaden() {
  KwstParam::BijLaden();
  KwNrProband.ZetTekst("1");
}

void KwstSchParam::OKButtonKlik() {
  Opties().KwBeginNr = KwNrProband.Nummer();
  Bewaar();
  Sluit();
}

}  // namespace lb77
