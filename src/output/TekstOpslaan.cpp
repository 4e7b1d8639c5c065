#include "output/TekstOpslaan.h"

#include <string>

#include "forms/Bureaublad.h"
#include "text/Pad.h"

namespace lb77 {

std::filesystem::path Opslagnaam(std::string_view titel, std::string_view uitgang) {
  constexpr std::string_view kVerboden = "/\\:*?\"<>|";
  std::string naam(titel);
  for (char& teken : naam) {
    if (kVerboden.find(teken) != std::string_view::npos) teken = '-';
  }
  return PadVan(naam + std::string(uitgang));
}

std::optional<std::filesystem::path> VraagOpslag(Gesprek& gesprek, const BestandsVraag& vraag,
                                                 const std::filesystem::path& naam) {
  auto* const bureaublad = naam.empty() ? nullptr : dynamic_cast<Bureaublad*>(&gesprek);
  return bureaublad ? bureaublad->VraagOpslag(vraag, naam) : gesprek.VraagBestand(vraag);
}

bool SlaTekstOp(Gesprek& gesprek, const Beschermd& beschermd, const std::filesystem::path& tekst,
                const BestandsVraag& vraag, const std::filesystem::path& naam, Tekencode code) {
  const auto naar = VraagOpslag(gesprek, vraag, naam);
  if (!naar) return false;
  if (const SysteemFout fout =
          beschermd.Bevat(*naar) ? FoutInGebruik() : KopieerTekst(tekst, *naar, code)) {
    gesprek.Fout("Fout bij het opslaan van de tekst.\n" + fout.tekst);
    return false;
  }
  gesprek.Informeer("De tekst is opgeslagen.");
  return true;
}

}  // namespace lb77
