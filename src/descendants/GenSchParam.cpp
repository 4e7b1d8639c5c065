#include "descendants/GenSchParam.h"

#include "app/Hoofdmodule.h"

namespace lb77 {
namespace {

constexpr Generatiegrens kGeneraties{1, 80, "Onjuist aantal generaties (1-80)", "80"};
constexpr GrensVakSoort kLeeftijd{"GrensLeeftijd",
                                  "Leeftijdsgrens",
                                  2,
                                  1,
                                  50,
                                  "De grensleeftijd is verplicht",
                                  "Onjuiste grensleeftijd (1-50)",
                                  "18"};
constexpr GrensVakSoort kVoornamen{"PosVNamen",
                                   "Posities voor voornamen:",
                                   2,
                                   5,
                                   30,
                                   {},
                                   "Onjuist aantal posities voor voornamen (5-30)"};
constexpr GrensVakSoort kAchternamen{"PosANamen",
                                     "Posities voor achternamen:",
                                     2,
                                     0,
                                     25,
                                     {},
                                     "Onjuist aantal posities voor achternamen (0-25)"};

}  // namespace

GenSchParam::GenSchParam(Hoofdmodule& hoofd, GenOpties& opties)
    : GenParam({"GenSchParam", "Genealogie / Parenteel Schema Uitvoeropties", kGenSchSectie,
                kGeneraties, kLeeftijd},
               hoofd, opties),
      PosVNamen(*this, hoofd.gesprek, kVoornamen),
      PosANamen(*this, hoofd.gesprek, kAchternamen),
      Titels(*this, kGenSchSectie),
      keuzen_(kGenSchSectie, {{OokVNrsBox, "OokVolgNrs", true, opties.GenOokVolgNrs},
                              {OokPNrsBox, "OokPrsNrs", true, opties.GenOokPrsNrs},
                              {OokRNrsBox, "OokRelNrs", true, opties.GenOokRelNrs},
                              {HorVerBox, "Vertikaal", false, opties.GenVertikaal},
                              {CentreerBox, "Centreren", true, opties.GenCentreren},
                              {OokDatumsBox, "ToonDatums", 0, opties.GenToonDatums},
                              {OokPartnersBox, "Partners", 0, opties.GenPartners},
                              {OokVNamenBox, "VoorNamen", 0, opties.GenVoorNamen},
                              {PosVNamen, "PosVNamen", {5, 30}, kPosVNamen, opties.GenPosVNamen},
                              {PosANamen, "PosANamen", {0, 25}, kPosANamen, opties.GenPosANamen}}) {
  PosVNamen.ZetFilter(AlleenCijfers);
  PosANamen.ZetFilter(AlleenCijfers);
  Koppel(keuzen_, Titels, OKButton, BackButton);
}

}  // namespace lb77
