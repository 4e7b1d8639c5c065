#include "reporting/TitelVelden.h"

#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::size_t kPaginaTekst = 81;
constexpr std::string_view kProgrammaRegel = "Gemaakt met LB77 voor Windows";

}  // namespace

TitelVelden::TitelVelden(Formulier& formulier, std::string_view sectie)
    : CopyrightBox(formulier, "CopyrightBox", "Copyright vermelden ?"),
      OokLB77Box(formulier, "OokLB77Box", "Ook LB77 voor Windows vermelden ?"),
      TitelTekst(formulier, "TitelTekst", "Titel:", kPaginaTekst),
      Inleiding1(formulier, "Inleiding1", "Inleiding:", kPaginaTekst),
      Inleiding2(formulier, "Inleiding2", {}, kPaginaTekst),
      Inleiding3(formulier, "Inleiding3", {}, kPaginaTekst),
      keuzen_(sectie, {{CopyrightBox, "OokCopyRt", true, copyright_},
                       {OokLB77Box, "OokLB77", true, programma_}}) {}

void TitelVelden::Laad(const IniClass& ini, std::string_view titel) {
  TitelTekst.ZetTekst(titel);
  Inleiding1.ZetTekst("");
  Inleiding2.ZetTekst("");
  Inleiding3.ZetTekst("");
  keuzen_.Laad(ini);
}

PaginaTeksten TitelVelden::Teksten(IniClass& ini, int jaar) const {
  keuzen_.Neem();
  PaginaTeksten teksten;
  teksten.titel = PaginaTekst(TitelTekst.Tekst());
  teksten.inleiding = {PaginaTekst(Inleiding1.Tekst()), PaginaTekst(Inleiding2.Tekst()),
                       PaginaTekst(Inleiding3.Tekst())};
  if (copyright_) teksten.copyrightRegel = PaginaTekst(CopyrightRegel(ini, jaar));
  if (programma_) teksten.programmaRegel = kProgrammaRegel;
  return teksten;
}

void TitelVelden::Bewaar(IniClass& ini) const {
  keuzen_.Bewaar(ini);
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
