#include "exchange/UitvoerForm.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "app/PlaatsNemen.h"
#include "app/UitvoerNaam.h"
#include "output/ToonTekst.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "store/VooruitLezen.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::int16_t kEersteRecord = 2;

// "jjjjmmdduummss".
std::string Stempel(const Tijdstip& nu) {
  std::string uit = NulGevuld(nu.jaar, 4);
  for (const int deel : {nu.maand, nu.dag, nu.uur, nu.minuut, nu.seconde}) {
    uit += NulGevuld(deel, 2);
  }
  return uit;
}

}  // namespace

UitvoerRecords::UitvoerRecords(Hoofdmodule& hoofd)
    : eenmaal_(hoofd.gesprek, Gelijkenis::ZonderNummers),
      opslag_{hoofd.bestanden, hoofd.volgers, eenmaal_, hoofd.schrijfwijze},
      persoon_(opslag_),
      relatie_(opslag_),
      plaats_(opslag_),
      opmerking_(opslag_, persoon_, relatie_) {}

bool UitvoerBestanden::Mislukt() const {
  return log_.Fout() || std::ranges::any_of(uit_, [](const ExpBestand& uit) {
           return static_cast<bool>(uit.Fout());
         });
}

SysteemFout UitvoerBestanden::SluitUit() {
  SysteemFout eerste;
  for (ExpBestand& uit : uit_) {
    if (SysteemFout fout = uit.Sluit(); fout && !eerste) eerste = fout;
  }
  return eerste;
}

UitvoerForm::UitvoerForm(const UitvoerSoort& soort, Hoofdmodule& hoofd)
    : Formulier(soort.naam, soort.titel), soort_(soort), hoofd_(hoofd), records_(hoofd) {
  ZetHulpOnderwerp(soort.hulp);
  for (const UitvoerVeld& veld : soort.velden) {
    UitvoerRij& rij = Uitvoeren.emplace_back(*this, veld);
    rij.BrowseButton.BijKlik([this, &rij] { BrowseButtonKlik(rij); });
  }
  ZetEersteVeld(Uitvoeren.front().Bestandsnaam);
}

void UitvoerForm::Koppel(Knop& start, Knop& terug) {
  start_ = &start;
  start.BijKlik([this] { StartKlik(); });
  terug.BijKlik([this] { Sluit(); });
}

void UitvoerForm::BijLaden() {
  for (std::size_t i = 0; i < Uitvoeren.size(); ++i) {
    const std::string naam = hoofd_.ActieveSetNaam + std::string(soort_.velden[i].einde);
    Uitvoeren[i].Bestandsnaam.ZetPad(hoofd_.Ini.TekstDir() / PadVan(naam));
  }
}

void UitvoerForm::BijActiveren() {
  if (AantalRecords() >= kEersteRecord) return;
  hoofd_.gesprek.Waarschuw(soort_.leeg);
  Sluit();
}

std::string UitvoerForm::Naam(std::size_t i) const {
  return std::string(Trim(Uitvoeren.at(i).Bestandsnaam.Tekst()));
}

void UitvoerForm::BrowseButtonKlik(UitvoerRij& rij) {
  const auto pad = hoofd_.gesprek.VraagBestand(
      {BestandsWijze::Opslaan, std::string(soort_.filter), hoofd_.Ini.TekstDir()});
  if (!pad) return;
  rij.Bestandsnaam.ZetPad(*pad);
  start_->ZetIngeschakeld(true);
}

void UitvoerForm::StartKlik() {
  if (!HeeftNamen() || !MagBeginnen()) return;
  WisVoortgang();
  records_.Begin();
  gestopt_ = false;
  ZetBezig(true);
  bool metLog = false;
  const SysteemFout fout = Voer(metLog);
  ZetBezig(false);
  WisStop();
  if (fout) {
    MeldFout(fout);
  } else if (!gestopt_) {
    MeldVoltooid();
  }
  start_->ZetIngeschakeld(false);
  if (metLog) hoofd_.gesprek.Toon<ToonTekst>(hoofd_, LogPad(), "Exporteren - Resultaat");
  if (!fout && !gestopt_) Sluit();
}

bool UitvoerForm::Doorgaan(const UitvoerBestanden& bestanden) {
  if (bestanden.Mislukt()) return false;
  if (!hoofd_.gesprek.StopGevraagd(*this)) return true;
  gestopt_ = hoofd_.gesprek.Vraag("Opbouw Afbreken ?");
  WisStop();
  return !gestopt_;
}

bool UitvoerForm::HeeftNamen() {
  for (std::size_t i = 0; i < Uitvoeren.size(); ++i) {
    if (!Naam(i).empty()) continue;
    hoofd_.gesprek.Waarschuw("Geen bestandsnaam opgegeven");
    return false;
  }
  return true;
}

// Whatever fails, the log is what the user is shown, so it is begun ahead of the outputs.
SysteemFout UitvoerForm::Voer(bool& metLog) {
  UitvoerBestanden bestanden(Uitvoeren.size());
  if (SysteemFout fout = OpenLog(bestanden.Log())) return fout;
  metLog = true;
  ernaast_.clear();
  SysteemFout fout = VoerMetLog(bestanden);
  static_cast<void>(bestanden.SluitUit());
  Bestandswerk werk;
  if (fout || gestopt_) RuimErnaast(ernaast_, werk);
  const SysteemFout logFout = bestanden.Log().Sluit();
  return fout ? fout : logFout;
}

SysteemFout UitvoerForm::VoerMetLog(UitvoerBestanden& bestanden) {
  bestanden.Log().Regel("Start export (" + Stempel(hoofd_.klok.Nu()) + ")");
  if (SysteemFout fout = OpenUit(bestanden)) return fout;
  {
    const VooruitLezen vooruit(hoofd_.bestanden);
    Schrijf(bestanden);
  }
  if (SysteemFout fout = bestanden.SluitUit()) return fout;
  // A log that is full has ended the run.
  if (SysteemFout fout = bestanden.Log().Fout()) return fout;
  if (gestopt_) {
    bestanden.Log().Regel("Exporteren afgebroken");
    return {};
  }
  Bestandswerk werk;
  if (const auto fout = NeemPlaatsen(ernaast_, werk)) {
    return {fout->fout.nummer, fout->fout.tekst + NietTerugTekst(*fout, ernaast_)};
  }
  SchrijfLogSlot(bestanden.Log());
  return {};
}

// All names are looked at before the first file is emptied, and each once more: two outputs that are
// not there yet may be one, on a disk that knows no upper and lower case.
SysteemFout UitvoerForm::OpenUit(UitvoerBestanden& bestanden) {
  for (std::size_t i = 0; i < Uitvoeren.size(); ++i) {
    if (IsBezet(i)) return FoutInGebruik();
  }
  for (std::size_t i = 0; i < Uitvoeren.size(); ++i) {
    if (IsBezet(i)) return FoutInGebruik();
    if (SysteemFout fout = OpenEen(bestanden.Uit(i), UitvoerPad(i))) return fout;
  }
  return {};
}

// What a device gets has no place to take.
SysteemFout UitvoerForm::OpenEen(ExpBestand& uit, const std::filesystem::path& pad) {
  std::error_code code;
  const bool isNieuw = !std::filesystem::exists(std::filesystem::symlink_status(pad, code));
  if (!IsErnaast() || !(isNieuw || std::filesystem::is_regular_file(pad, code))) {
    return uit.Open(pad);
  }
  std::filesystem::path plaats = pad;
  if (!isNieuw) {
    if (SysteemFout fout = ExpBestand::Toets(pad)) return fout;
    // The file itself, where the name is a link to it.
    plaats = std::filesystem::canonical(pad, code);
    if (code) return FoutVan(code);
  }
  for (const std::filesystem::path& ander : ernaast_) {
    if (IsZelfdeBestand(VindPad(Ernaast(plaats)), Ernaast(ander))) return FoutInGebruik();
  }
  if (SysteemFout fout = uit.Open(Ernaast(plaats))) return fout;
  ernaast_.push_back(plaats);
  return {};
}

bool UitvoerForm::IsBezet(std::size_t i) const {
  const std::filesystem::path pad = UitvoerPad(i);
  for (std::size_t ander = 0; ander < i; ++ander) {
    if (IsZelfdeBestand(pad, UitvoerPad(ander))) return true;
  }
  return IsZelfdeBestand(pad, LogPad()) ||
         Beschermd{hoofd_.programmaMap, hoofd_.Ini, hoofd_.ActieveSetNaam}.Bevat(pad);
}

// A relative path is one in the program's directory.
std::filesystem::path UitvoerForm::UitvoerPad(std::size_t i) const {
  const Padvak& veld = Uitvoeren.at(i).Bestandsnaam;
  const std::string naam = Naam(i);
  return VindPad(hoofd_.programmaMap / (naam == veld.Tekst() ? veld.Pad() : PadVan(naam)));
}

std::filesystem::path UitvoerForm::LogPad() const {
  return VindPad(hoofd_.Ini.TekstDir() / soort_.log);
}

SysteemFout UitvoerForm::OpenLog(ExpBestand& log) {
  const std::filesystem::path pad = LogPad();
  std::error_code code;
  std::filesystem::create_directories(pad.parent_path(), code);
  return code ? FoutVan(code) : log.Open(pad);
}

void UitvoerForm::MeldFout(const SysteemFout& fout) {
  if (fout.nummer == kBestandNietGevonden) {
    hoofd_.gesprek.Waarschuw(fout.tekst);
  } else {
    hoofd_.gesprek.Fout(fout.tekst);
  }
}

}  // namespace lb77
