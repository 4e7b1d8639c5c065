#include "reporting/TitelVelden.h"

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::size_t kPaginaTekst = 81;
constexpr std::string_view kProgrammaRegel = "Gemaakt met LB77 voor Windows";

}  // namespace

TitelVelden::TitelVelden(Formulier& formulier)
    : CopyrightBox(formulier, "CopyrightBox", "Copyright vermelden ?"),
      OokLB77Box(formulier, "OokLB77Box", "Ook LB77 voor Windows vermelden ?"),
      TitelTekst(formulier, "TitelTekst", "Titel:", kPaginaTekst),
      Inleiding1(formulier, "Inleiding1", "Inleiding:", kPaginaTekst),
      Inleiding2(formulier, "Inleiding2", {}, kPaginaTekst),
      Inleiding3(formulier, "Inleiding3", {}, kPaginaTekst) {}

void TitelVelden::Laad(IniClass& ini, std::string_view sectie, std::string_view titel) {
  TitelTekst.ZetTekst(titel);
  Inleiding1.ZetTekst("");
  Inleiding2.ZetTekst("");
  Inleiding3.ZetTekst("");
  LeesKeuze(ini, sectie, {CopyrightBox, "OokCopyRt", true});
  LeesKeuze(ini, sectie, {OokLB77Box, "OokLB77", true});
}

PaginaTeksten TitelVelden::Teksten(IniClass& ini, int jaar) const {
  PaginaTeksten teksten;
  teksten.titel = PaginaTekst(TitelTekst.Tekst());
  teksten.inleiding = {PaginaTekst(Inleiding1.Tekst()), PaginaTekst(Inleiding2.Tekst()),
                       PaginaTekst(Inleiding3.Tekst())};
  if (CopyrightBox.Ja()) teksten.copyrightRegel = PaginaTekst(CopyrightRegel(ini, jaar));
  if (OokLB77Box.Ja()) teksten.programmaRegel = kProgrammaRegel;
  return teksten;
}

void TitelVelden::Bewaar(IniClass& ini, std::string_view sectie) {
  BewaarKeuze(ini, sectie, {CopyrightBox, "OokCopyRt", true});
  BewaarKeuze(ini, sectie, {OokLB77Box, "OokLB77", true});
}

std::string PaginaTekst(std::string_view tekst) {
  return std::string(Trim(Trim(tekst).substr(0, kPaginaTekst)));
}

std::string CopyrightRegel(IniClass& ini, int jaar) {
  const std::string naam =
      ini.IniWaarde("Gebruiker", "Voornaam") + " " + ini.IniWaarde("Gebruiker", "Naam");
  return "Copyright (" + GetalTekst(jaar) + ") " + std::string(TrimLinks(naam));
}

}  // namespace lb77
