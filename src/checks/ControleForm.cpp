#include "checks/ControleForm.h"

#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "checks/Bevindingen.h"
#include "output/ToonTekst.h"
#include "store/PlatformNamen.h"
#include "text/Getallen.h"
#include "text/Pad.h"

namespace lb77 {

namespace {

constexpr std::int16_t kEersteNr = 2;

std::deque<Vinkje> MaakVakken(Formulier& formulier, std::span<const ControleOptie> opties) {
  std::deque<Vinkje> vakken;
  for (const ControleOptie& optie : opties) {
    vakken.emplace_back(formulier, optie.naam, optie.bijschrift);
  }
  return vakken;
}

}  // namespace

ControleForm::ControleForm(const ControleSoort& soort, Hoofdmodule& hoofd)
    : WerkFormulier(soort.naam, soort.titel, hoofd, WerkBegin::OpKnop),
      Opties(MaakVakken(*this, soort.opties)),
      Gedaan(*this, soort.teller, soort.telling),
      soort_(soort) {
  ZetHulpOnderwerp("controle");
  Koppel(OKButton, BackButton);
  ZetEersteVeld(OKButton);
  if (!Opties.empty()) ZetEersteVeld(Opties.front());
}

void ControleForm::BijLaden() {
  for (Vinkje& vak : Opties) vak.Zet(true);
}

ControleKeuzen ControleForm::Keuzen() const {
  ControleKeuzen keuzen{};
  for (std::size_t i = 0; i < Opties.size(); ++i) keuzen.at(i) = Opties[i].Gekozen();
  return keuzen;
}

void ControleForm::Werk() {
  RecordBron bron(Hoofd().MaakOpslag());
  const std::filesystem::path pad = Hoofd().Ini.TempDir() / soort_.bestand;
  const auto regels = soort_.maak(bron, Keuzen());
  std::int16_t laatste = 0;
  const bool gelukt = MaakVerslag({pad}, [&](TekstSchrijver& uit) -> Uitslag {
    laatste = regels->Laatste();
    if (laatste >= kEersteNr) {
      SchrijfKop(uit, PadTekst(pad));
      Loop(*regels, laatste, uit);
    }
    return Einde::Klaar;
  });
  ZetBezig(false);
  if (!gelukt) return;
  if (laatste >= kEersteNr) {
    ToonVerslag(pad, *regels);
  } else {
    std::error_code geenVerslag;
    static_cast<void>(VerwijderVanSchijf(pad, geenVerslag));
    Hoofd().gesprek.Waarschuw(soort_.geenRecords);
  }
  Sluit();
}

void ControleForm::SchrijfKop(TekstSchrijver& uit, std::string_view pad) const {
  uit.VolleRegel(soort_.verslag);
  uit.LegeRegel();
  if (!soort_.opties.empty()) uit.VolleRegel("Gekozen extra controle-opties:");
  for (std::size_t i = 0; i < soort_.opties.size(); ++i) {
    uit.VolleRegel(std::string(soort_.opties[i].regel) + (Opties[i].Gekozen() ? "Ja" : "Nee"));
  }
  uit.VolleRegel("Resultaat (zie " + std::string(pad) + "):");
  uit.LegeRegel();
}

void ControleForm::Loop(Controleur& regels, std::int16_t laatste, TekstSchrijver& uit) {
  gevonden_.clear();
  buiten_ = {};
  const auto meld = [&](Bevinding bevinding) {
    uit.VolleRegel(bevinding.tekst);
    Onthoud(std::move(bevinding));
  };
  regels.Begin(laatste);
  for (std::int32_t nr = kEersteNr; nr <= laatste; ++nr) {
    regels.Toets(static_cast<std::int16_t>(nr), meld);
    Gedaan.ZetTekst(GetalTekst(nr - kEersteNr + 1));
    Ververs();
  }
  if (Aantal() == 0) uit.VolleRegel("Geen fouten gevonden");
  uit.LegeRegel();
}

void ControleForm::Onthoud(Bevinding bevinding) {
  if (gevonden_.size() < BevindingLijst::kMeeste) {
    gevonden_.push_back(std::move(bevinding));
  } else if (bevinding.plek == gevonden_.back().plek) {
    ++buiten_.opLaatste;
  } else {
    ++buiten_.erna;
  }
}

// The list lives as long as the viewer: what was mended stays marked when its window is opened again.
void ControleForm::ToonVerslag(const std::filesystem::path& pad, Controleur& regels) {
  BevindingLijst lijst(gevonden_, buiten_);
  std::optional<ExtraKnop> knop;
  if (Aantal() > 0) {
    knop = {"Bevindingen", "&Bevindingen",
            [&] { Hoofd().gesprek.Toon<Bevindingen>(Hoofd(), regels, lijst); }};
  }
  Hoofd().gesprek.Toon<ToonTekst>(Hoofd(), pad, soort_.verslag, false, std::move(knop));
}

}  // namespace lb77
