#include "descendants/GenTekstParam.h"

#include <utility>

#include "app/Hoofdmodule.h"

namespace lb77 {
namespace {

// Any age that fits will do.
constexpr GrensVakSoort kLeeftijd{"GrensLeeftijd", "Leeftijdsgrens", 3, 0, 999, {}, {}};
constexpr std::size_t kBestandsnaam = 81;

// The control, where the dialog has it.
template <class Vak, class... Args>
std::optional<Vak> Als(bool aanwezig, Args&&... args) {
  if (!aanwezig) return std::nullopt;
  return std::optional<Vak>(std::in_place, std::forward<Args>(args)...);
}

}  // namespace

GenTekstParam::GenTekstParam(const GenTekstParamSoort& soort, Hoofdmodule& hoofd, GenOpties& opties)
    : GenParam({soort.naam, soort.titel, kGenSectie, kTotTachtig, kLeeftijd}, hoofd, opties),
      OokNrsBox(*this, "OokNrsBox", soort.nummers),
      OokOpmBox(Als<JaNeeVak>(!soort.isIndex, *this, "OokOpmBox", "Ook Opmerkingen uitvoeren ?")),
      VerwijsBox(Als<JaNeeVak>(!soort.isIndex, *this, "VerwijsBox",
                               "Ook terugverwijzen naar de ouders ?")),
      HTMLfileTekst(
          Als<Tekstvak>(soort.isIndex, *this, "HTMLfileTekst", "HTML-file:", kBestandsnaam)),
      Titels(*this, kGenSectie),
      keuzen_(kGenSectie, Rijen()) {
  Koppel(keuzen_, Titels, OKButton, BackButton);
}

std::vector<OptieRij> GenTekstParam::Rijen() {
  std::vector<OptieRij> rijen{{OokNrsBox, "OokNummers", true, Opties().GenOokNrs},
                              {PerTakBox, "PerGeneratie", false, Opties().GenPerGeneratie}};
  if (OokOpmBox) rijen.emplace_back(*OokOpmBox, "OokOpm", true, Opties().GenOokOpm);
  if (VerwijsBox) rijen.emplace_back(*VerwijsBox, "Verwijzing", true, Opties().GenVerwijzing);
  return rijen;
}

void GenTekstParam::BijLaden() {
  GenParam::BijLaden();
  if (HTMLfileTekst) HTMLfileTekst->ZetTekst("GEN_DATA.HTM");
}

void GenTekstParam::Bewaar() {
  if (HTMLfileTekst) Opties().GenHTMLFile = PaginaTekst(HTMLfileTekst->Tekst());
  GenParam::Bewaar();
}

}  // namespace lb77
