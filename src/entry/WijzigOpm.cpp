#include "entry/WijzigOpm.h"

#include <optional>
#include <utility>

#include "app/NietVeilig.h"
#include "entry/VeldToets.h"
#include "store/Handeling.h"
#include "text/Getallen.h"

namespace lb77 {

WijzigOpm::WijzigOpm(Hoofdmodule& hoofd, OpmVraag vraag, std::int16_t regel)
    : InvoerFormulier("WijzigOpm", "Wijzig Opmerking", hoofd),
      vraag_(std::move(vraag)),
      opmRegel_(regel) {
  ZetHulpOnderwerp("opmerkingen");
  KoppelVeldToets(*this, OpmTekst, InvoerSoort::Tekst, hoofd);
  Opslaan.BijKlik([this] { OpslaanKlik(); });
  BackButton.BijKlik([this] { BackButtonKlik(); });
  ZetEersteVeld(OpmTekst);
}

void WijzigOpm::BijLaden() {
  const std::optional<OpmEigenaar> eigenaar =
      LeesOpmEigenaar(Hoofd().MaakGegevens(), Hoofd().gesprek, vraag_);
  if (!eigenaar) {
    Sluit();
    return;
  }
  geopend_ = true;
  Kop.Toon(vraag_, *eigenaar);
  begin_ = eigenaar->opmRecord;
  OpmLB77& opmerking = Hoofd().Opmerking;
  inhoud_ = LeesOpmerking(opmerking, eigenaar->opmCode, begin_, vraag_.rubriek, opmRegel_);
  getoond_ = inhoud_.Tekst();
  OpmTekst.ZetTekst(getoond_);
  const std::string progs =
      opmerking.OpmerkingProgs(eigenaar->opmCode, begin_, vraag_.rubriek, opmRegel_, false);
  Bij.Toon(NaarInt16(Getalwaarde(progs)).value_or(std::int16_t{0}));
}

// A remark that does not exist begins with its text.
bool WijzigOpm::IsGewijzigd() {
  if (OpmTekst.Tekst() != getoond_) return true;
  return inhoud_.Bestaat() && Bij.Prog(inhoud_.prog) != inhoud_.prog;
}

std::optional<OpmRegels> WijzigOpm::NieuweRegels() {
  Gesprek& gesprek = Hoofd().gesprek;
  if (!inhoud_.heel) {
    gesprek.Waarschuw(
        "Deze opmerking is niet geheel te lezen.\nZij kan hier niet gewijzigd worden");
    return std::nullopt;
  }
  // Of a remark that only goes into other output the lines stay.
  if (OpmTekst.Tekst() == getoond_) return inhoud_.regels;
  OpmAfgebroken nieuw = BreekOpmerkingAf(OpmTekst.Tekst());
  if (!nieuw.geheel && !gesprek.Vraag("De opmerking is langer dan tien regels van 80 tekens. "
                                      "De rest wordt niet opgeslagen.\nToch opslaan ?")) {
    return std::nullopt;
  }
  return std::move(nieuw.regels);
}

void WijzigOpm::OpslaanKlik() {
  if (IsGewijzigd()) {
    const std::optional<OpmRegels> regels = NieuweRegels();
    if (!regels) {
      ZetFocus(OpmTekst);
      return;
    }
    Schrijf(*regels);
  }
  Hoofd().volgers.OpmBufNr = -1;
  Sluit();
}

// The record classes tell what failed; the dialog closes then too.
void WijzigOpm::Schrijf(const OpmRegels& regels) {
  const std::string_view bij = vraag_.BijPersoon() ? "Persoon" : "Relatie";
  Handeling handeling(Hoofd().bestanden, "Opmerking bij " + std::string(bij) + " " +
                                             GetalTekst(vraag_.eigenaar) + " gewijzigd");
  static_cast<void>(Hoofd().Opmerking.SchrijfOpmerking(regels, inhoud_.recnrs, inhoud_.vorige,
                                                       vraag_.Persoon(), vraag_.Relatie(), begin_,
                                                       Bij.Prog(inhoud_.prog), vraag_.rubriek));
  MeldNietVeilig(Hoofd().gesprek, handeling.Voltooi());
}

void WijzigOpm::BackButtonKlik() {
  Volgers& volgers = Hoofd().volgers;
  volgers.PersBufNr = volgers.RelBufNr = volgers.OpmBufNr = volgers.PlaatsBufNr = -1;
  Sluit();
}

}  // namespace lb77
