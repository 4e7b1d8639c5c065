#include "entry/ToonPlaatsen.h"

#include <algorithm>

#include "app/NietVeilig.h"
#include "entry/DubbelePlaats.h"
#include "entry/VraagPlaatsnm.h"
#include "entry/VraagPlaatsnr.h"
#include "store/Handeling.h"
#include "store/PlaatsVelden.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::int32_t kEerstePlaats = 2;
// A page past the end shows the last places, and some room for new ones.
constexpr std::int32_t kVoorLaatste = 5;

}  // namespace

ToonPlaatsen::PlaatsRegel::PlaatsRegel(InvoerFormulier& formulier, int nummer)
    : PlaatsnrTekst(formulier, Genummerd("PlaatsnrTekst", nummer)),
      PlaatsnaamTekst(formulier, Genummerd("PlaatsnaamTekst", nummer), {},
                      plaatsveld::Naam.breedte),
      ProvcodeTekst(formulier, Genummerd("ProvcodeTekst", nummer), {}, plaatsveld::Prov.breedte) {
  const std::string plek = " op regel " + GetalTekst(nummer + 1);
  PlaatsnrTekst.ZetLeesnaam("Plaatscode" + plek);
  PlaatsnaamTekst.ZetLeesnaam("Plaatsnaam" + plek);
  ProvcodeTekst.ZetLeesnaam("Provinciecode" + plek);
  ProvcodeTekst.ZetFilter(InHoofdletters);
  // Also the text of a function key, which no filter sees.
  ProvcodeTekst.BijWijziging(
      [this] { ProvcodeTekst.ZetTekst(Hoofdletters(ProvcodeTekst.Tekst())); });
}

void ToonPlaatsen::PlaatsRegel::Toon(std::int32_t code, std::int16_t plaatsNr,
                                     std::string_view naam, std::string_view prov) {
  nr = plaatsNr;
  plaatsnaam = naam;
  provcode = prov;
  PlaatsnrTekst.ZetTekst(NrTekst(code));
  PlaatsnaamTekst.ZetTekst(naam);
  ProvcodeTekst.ZetTekst(prov);
}

bool ToonPlaatsen::PlaatsRegel::IsGewijzigd() const {
  if (nr == 0) return !PlaatsnaamTekst.Tekst().empty();
  return PlaatsnaamTekst.Tekst() != plaatsnaam || ProvcodeTekst.Tekst() != provcode;
}

ToonPlaatsen::ToonPlaatsen(Hoofdmodule& hoofd)
    : InvoerFormulier("ToonPlaatsen", "Toon Plaatsen", hoofd) {
  ZetHulpOnderwerp("plaatsen");
  VorigeButton.BijKlik([this] { VorigeButtonKlik(); });
  VolgendeButton.BijKlik([this] { VolgendeButtonKlik(); });
  NaarNaamButton.BijKlik([this] { NaarNaamButtonKlik(); });
  NaarNrButton.BijKlik([this] { NaarNrButtonKlik(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(Plaatsen(0).PlaatsnaamTekst);
}

// Taken before the first read, which changes the tracker.
void ToonPlaatsen::BijLaden() {
  eerste_ = std::max<std::int32_t>(Hoofd().volgers.PlaatsBufNr, kEerstePlaats);
}

void ToonPlaatsen::BijActiveren() {
  ToonPagina(Hoofd().Plaats.AantalRecords());
}

void ToonPlaatsen::ToonPagina(std::int32_t laatste) {
  PlaatsLB77& plaats = Hoofd().Plaats;
  Plaatsen.Elk([&](int nummer, PlaatsRegel& regel) {
    const std::int32_t code = eerste_ + nummer;
    const auto nr = static_cast<std::int16_t>(code <= laatste ? code : 0);
    if (nr != 0 && plaats.Lees(nr)) {
      regel.Toon(code, nr, plaats.Waarde(plaatsveld::Naam), plaats.Waarde(plaatsveld::Prov));
    } else {
      regel.Toon(code, nr, "", "");
    }
  });
}

bool ToonPlaatsen::SlaPaginaOp() {
  Handeling handeling(Hoofd().bestanden, "Plaatsen gewijzigd");
  bool goed = true;
  for (int nummer = 0; goed && nummer < kRijen; ++nummer) {
    PlaatsRegel& regel = Plaatsen(nummer);
    goed = SlaRegelOp(regel);
    if (!goed) ZetFocus(regel.PlaatsnaamTekst);
  }
  MeldNietVeilig(Hoofd().gesprek, handeling.Voltooi());
  return goed;
}

// The doubles come before the new place, so that a row that is refused leaves no empty one.
bool ToonPlaatsen::SlaRegelOp(PlaatsRegel& regel) {
  if (!regel.IsGewijzigd() || (regel.nr != 0 && !IsLeesbaar(regel.nr))) return true;
  PlaatsLB77& plaats = Hoofd().Plaats;
  const std::int16_t laatste = plaats.AantalRecords();
  // They could not be counted, as was told: nobody knows whether this place has a double.
  if (laatste < regel.nr) return true;
  if (!MagPlaatsHeten(plaats, Hoofd().gesprek, regel.nr, regel.PlaatsnaamTekst.Tekst(),
                      regel.ProvcodeTekst.Tekst(), laatste)) {
    return false;
  }
  if (regel.nr != 0 || MaakPlaats(regel, laatste + 1)) SchrijfPlaats(regel);
  return true;
}

// What could not be read is not written over.
bool ToonPlaatsen::IsLeesbaar(std::int16_t nr) {
  if (Hoofd().Plaats.Lees(nr)) return true;
  Hoofd().gesprek.Fout(GetalTekst(nr) + " Fout bij het lezen van plaatsrecord");
  return false;
}

// kept: a new place has the next free code, in whatever row it was typed. The row is that place from
// now on, also when its name can't be written.
bool ToonPlaatsen::MaakPlaats(PlaatsRegel& regel, std::int32_t nr) {
  if (!Hoofd().Plaats.Nieuw(nr)) return false;
  regel.nr = static_cast<std::int16_t>(nr);
  regel.PlaatsnrTekst.ZetTekst(NrTekst(nr));
  WisGebruikteCodes(regel.nr);
  return true;
}

void ToonPlaatsen::SchrijfPlaats(PlaatsRegel& regel) {
  if (!IsLeesbaar(regel.nr)) return;
  PlaatsLB77& plaats = Hoofd().Plaats;
  const std::string& naam = regel.PlaatsnaamTekst.Tekst();
  const std::string& prov = regel.ProvcodeTekst.Tekst();
  if (naam != regel.plaatsnaam) plaats.Zet(plaatsveld::Naam.naam, naam);
  if (prov != regel.provcode) plaats.Zet(plaatsveld::Prov.naam, prov);
  if (!plaats.Schrijf(regel.nr)) return;
  regel.plaatsnaam = naam;
  regel.provcode = prov;
}

// A code that another row has taken is no longer that of an empty one.
void ToonPlaatsen::WisGebruikteCodes(std::int16_t nr) {
  Plaatsen.Elk([nr](int, PlaatsRegel& regel) {
    if (regel.nr == 0 && Getalwaarde(regel.PlaatsnrTekst.Tekst()) <= nr) {
      regel.PlaatsnrTekst.ZetTekst("");
    }
  });
}

void ToonPlaatsen::BeginBij(std::int32_t nr) {
  eerste_ = std::max(nr, kEerstePlaats);
  ToonPagina(Hoofd().Plaats.AantalRecords());
}

void ToonPlaatsen::VorigeButtonKlik() {
  if (SlaPaginaOp()) BeginBij(eerste_ - kRijen);
}

void ToonPlaatsen::VolgendeButtonKlik() {
  if (!SlaPaginaOp()) return;
  const std::int32_t laatste = Hoofd().Plaats.AantalRecords();
  eerste_ += kRijen;
  if (eerste_ > laatste) eerste_ = std::max(laatste - kVoorLaatste, kEerstePlaats);
  ToonPagina(laatste);
}

void ToonPlaatsen::NaarNaamButtonKlik() {
  if (!SlaPaginaOp()) return;
  VraagPlaatsnm vraag(Hoofd());
  Hoofd().gesprek.ToonModaal(vraag);
  BeginBij(vraag.Nr() > 0 ? vraag.Nr() : eerste_);
}

void ToonPlaatsen::NaarNrButtonKlik() {
  if (!SlaPaginaOp()) return;
  VraagPlaatsnr vraag(Hoofd());
  Hoofd().gesprek.ToonModaal(vraag);
  BeginBij(vraag.Nr() > 0 ? vraag.Nr() : eerste_);
}

void ToonPlaatsen::OKButtonKlik() {
  if (SlaPaginaOp()) Sluit();
}

}  // namespace lb77
