#include "entry/ToonOpm.h"

#include <optional>
#include <utility>

#include "entry/OpmTekst.h"
#include "entry/WijzigOpm.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::int16_t kRegels = 10;  // of one remark

// The first line of the next remark of a rubric; nothing when its last line has no number.
std::optional<std::int16_t> Volgende(std::int16_t regel) {
  if (!TelOp(regel, 2 * kRegels - 1)) return std::nullopt;
  return TelOp(regel, kRegels);
}

}  // namespace

ToonOpm::ToonOpm(Hoofdmodule& hoofd, OpmVraag vraag, std::int16_t regel)
    : InvoerFormulier("ToonOpm", "Toon Opmerking", hoofd),
      vraag_(std::move(vraag)),
      opmRegel_(regel) {
  ZetHulpOnderwerp("opmerkingen");
  OpmTekst.ZetAlleenLezen(true);
  Bij.ZetUit();
  MeerOpm.BijKlik([this] { MeerOpmKlik(); });
  MaakMeer.BijKlik([this] { MaakMeerKlik(); });
  WijzigButton.BijKlik([this] { WijzigButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(WijzigButton);
}

void ToonOpm::BijLaden() {
  Toon();
  if (Gesloten() || !OpmTekst.Tekst().empty()) return;
  MeerOpm.ZetZichtbaar(false);
  Hoofd().gesprek.Waarschuw("Er is hier geen Opmerking aanwezig");
}

bool ToonOpm::Bestaat(std::int16_t regel) {
  return Hoofd()
             .Opmerking
             .OpmRecordNr(eigenaar_.opmCode, eigenaar_.opmRecord, vraag_.rubriek, regel, false)
             .Nr != 0;
}

void ToonOpm::Toon() {
  std::optional<OpmEigenaar> eigenaar =
      LeesOpmEigenaar(Hoofd().MaakGegevens(), Hoofd().gesprek, vraag_);
  if (!eigenaar) {
    Sluit();
    return;
  }
  eigenaar_ = std::move(*eigenaar);
  Kop.Toon(vraag_, eigenaar_);
  const std::int16_t code = eigenaar_.opmCode;
  const std::int16_t begin = eigenaar_.opmRecord;
  OpmLB77& opmerking = Hoofd().Opmerking;
  OpmTekst.ZetTekst(lb77::OpmTekst(opmerking, code, begin, vraag_.rubriek, opmRegel_));
  const std::string progs = opmerking.OpmerkingProgs(code, begin, vraag_.rubriek, opmRegel_, false);
  Bij.Toon(NaarInt16(Getalwaarde(progs)).value_or(std::int16_t{0}));
  const std::optional<std::int16_t> volgende = Volgende(opmRegel_);
  const bool meer = volgende && Bestaat(*volgende);
  MeerOpm.ZetZichtbaar(meer);
  MaakMeer.ZetZichtbaar(!meer && volgende && !OpmTekst.Tekst().empty());
  if (FocusVeld() && !FocusVeld()->Bruikbaar()) ZetFocus(WijzigButton);
}

void ToonOpm::MeerOpmKlik() {
  opmRegel_ = Volgende(opmRegel_).value_or(opmRegel_);
  Toon();
}

void ToonOpm::MaakMeerKlik() {
  const std::int16_t vorige = opmRegel_;
  opmRegel_ = Volgende(opmRegel_).value_or(opmRegel_);
  Wijzig();
  if (Gesloten() || Bestaat(opmRegel_)) return;
  // Nothing was made there.
  opmRegel_ = vorige;
  Toon();
}

void ToonOpm::WijzigButtonKlik() {
  Wijzig();
}

// An owner that can't be read has been told of once then.
void ToonOpm::Wijzig() {
  WijzigOpm wijzig(Hoofd(), vraag_, opmRegel_);
  Hoofd().gesprek.ToonModaal(wijzig);
  if (wijzig.Geopend()) {
    Toon();
  } else {
    Sluit();
  }
}

}  // namespace lb77
