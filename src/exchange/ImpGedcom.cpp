#include "exchange/ImpGedcom.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "app/Hoofdmodule.h"
#include "app/Ongedaan.h"
#include "exchange/EenmaalGesprek.h"
#include "exchange/GedUnicode.h"
#include "exchange/ImpGangen.h"
#include "exchange/ImpTelling.h"
#include "exchange/RegelLezer.h"
#include "output/ToonTekst.h"
#include "store/Handeling.h"
#include "store/Hoofdrecords.h"
#include "store/Paden.h"
#include "text/Dos850.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kVoltooid = "Importeren voltooid";
constexpr std::string_view kLogNaam = "GEDCOM.LOG";
constexpr std::string_view kJournaalMap = "JOURNAAL";
constexpr std::string_view kUnicodeVraag =
    "Dit bestand is in Unicode opgeslagen. Omzetten naar de tekenset van het programma ?";
constexpr std::string_view kNietOmgezet =
    "LET OP: Unicode is niet omgezet; letters met accenten kunnen verkeerd zijn";

// Moves at each write.
std::uint64_t Schrijfstand(const Bestandenset& bestanden) {
  std::uint64_t stand = 0;
  for (const BestandSoort soort : kBestandSoorten) stand += bestanden.Stand(soort);
  return stand;
}

std::string Aantal(std::size_t aantal, std::string_view een, std::string_view meer) {
  return GetalTekst(static_cast<std::int64_t>(aantal)) + " " +
         std::string(aantal == 1 ? een : meer);
}

// Why a run ended before its time, and what it had made by then.
void NoteerStop(const ImpUitslag& uitslag, GedLog& log) {
  if (uitslag.Gelukt()) return;
  std::string regel = "LET OP: ";
  if (uitslag.regel > 0) regel += "gestopt bij regel " + GetalTekst(uitslag.regel);
  if (uitslag.regel > 0 && !uitslag.fout.empty()) regel += ": ";
  log.Regel(regel + uitslag.fout);
  if (uitslag.legePersonen + uitslag.legeRelaties == 0) return;
  log.Regel(
      "LET OP: zonder gegevens gebleven: " + Aantal(uitslag.legePersonen, "persoon", "personen") +
      " en " + Aantal(uitslag.legeRelaties, "relatie", "relaties"));
}

// The reason with the file that it is about, for one that is not the user's own.
SysteemFout Bij(SysteemFout fout, std::string_view bestand) {
  if (fout) fout.tekst.append(" (").append(bestand).append(")");
  return fout;
}

bool IsZelfde(const std::filesystem::path& bestand, const std::filesystem::path& ander) {
  std::error_code code;
  return std::filesystem::equivalent(bestand, ander, code);
}

}  // namespace

// What the passes tell, on the form and in the log.
class ImpGedcom::Scherm final : public ImpMelder {
 public:
  Scherm(ImpGedcom& formulier, GedLog& log, RegelLezer& lezer)
      : formulier_(formulier), gesprek_(formulier.hoofd_.gesprek), log_(log), lezer_(lezer) {}

  // The user wanted no more of it.
  [[nodiscard]] bool Afgebroken() const { return afgebroken_; }

  void Log(std::string_view regel) override { log_.Regel(regel); }
  void Waarschuw(std::string_view tekst) override { gesprek_.Waarschuw(tekst); }
  void MeldDos850() override {
    if (nietMeer_) return;
    nietMeer_ = gesprek_.BerichtMetVinkje(kDos850Melding, "Niet meer tonen tijdens deze import");
  }
  void BeginGang(int nummer) override { formulier_.ToonGang(nummer); }
  void Ververs(const ImpStand& stand) override {
    formulier_.RegelNr.ZetTekst(GetalTekst(stand.regels));
    formulier_.AantalPersonen.ZetTekst(GetalTekst(stand.personen));
    formulier_.AantalRelaties.ZetTekst(GetalTekst(stand.relaties));
    formulier_.AantalBronnen.ZetTekst(GetalTekst(stand.bronnen));
    formulier_.VoorNm.ZetTekst(stand.voornaam);
    formulier_.AchterNm.ZetTekst(stand.achternaam);
    formulier_.BronNm.ZetTekst(stand.bron);
    gesprek_.Ververs(formulier_);
    if (afgebroken_ || !formulier_.Afbreken()) return;
    afgebroken_ = true;
    log_.Regel("Importeren afgebroken bij regel " + GetalTekst(stand.regels));
  }
  void BijRecordEinde() override {
    if (afgebroken_) lezer_.Breek({kGeenToegang, "Afgebroken"});
  }

 private:
  ImpGedcom& formulier_;
  Gesprek& gesprek_;
  GedLog& log_;
  RegelLezer& lezer_;
  bool afgebroken_ = false;
  bool nietMeer_ = false;
};

ImpGedcom::ImpGedcom(Hoofdmodule& hoofd, std::filesystem::path bestand, ImpWijze wijze)
    : Formulier("ImpGedcom", "Importeer Gegevens - Gedcom"),
      hoofd_(hoofd),
      begin_(std::move(bestand)),
      wijze_(wijze) {
  ZetHulpOnderwerp("gedcom");
  ZetEersteVeld(begin_.empty() ? static_cast<Bediening&>(Bestandsnaam) : OKButton);
  // One file is not read twice by one more click.
  Bestandsnaam.BijWijziging([this] { OKButton.ZetIngeschakeld(true); });
  BrowseButton.BijKlik([this] { BrowseButtonKlik(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void ImpGedcom::BijLaden() {
  gangen_.Rust();
  if (!begin_.empty()) Bestandsnaam.ZetPad(begin_);
  ToonDoel();
}

void ImpGedcom::BijActiveren() {
  if (wijze_ == ImpWijze::Vanzelf) OKButtonKlik();
}

void ImpGedcom::ToonDoel() {
  if (!hoofd_.SetActief()) return;
  const std::string& set = hoofd_.ActieveSetNaam;
  const std::string omschrijving = hoofd_.Ini.BestandenSetOms(hoofd_.Ini.BestandenSetIndex(set));
  PersoonLB77 persoon(hoofd_.MaakOpslag());  // the working one keeps its record
  // By the length of the file: a count that is wrong is told by the import itself.
  const std::uint64_t records = hoofd_.bestanden.Bestand(BestandSoort::Personen).Lengte() /
                                RecordLengteVan(BestandSoort::Personen);
  const int personen =
      AantalHoofdrecords(persoon, static_cast<std::int32_t>(std::min<std::uint64_t>(
                                      records, static_cast<std::uint64_t>(kMaxRecords))));
  DoelLabel.ZetBijschrift("Wordt toegevoegd aan " + set +
                          (omschrijving.empty() ? "" : ", " + omschrijving) + " (" +
                          GetalTekst(personen) + (personen == 1 ? " persoon)" : " personen)"));
}

void ImpGedcom::BrowseButtonKlik() {
  const auto pad = hoofd_.gesprek.VraagBestand(
      {BestandsWijze::Openen, std::string(kGedcomFilter), hoofd_.Ini.TekstDir()});
  if (!pad) return;
  Bestandsnaam.ZetPad(*pad);
  OKButton.ZetIngeschakeld(true);
}

void ImpGedcom::OKButtonKlik() {
  if (Trim(Bestandsnaam.Tekst()).empty()) {
    hoofd_.gesprek.Waarschuw("Geen GEDCOM-bestand gekozen");
    return;
  }
  WisVoortgang();
  OKButton.ZetIngeschakeld(false);
  ZetBezig(true);
  const Afloop afloop = Importeer();
  StelVeilig();
  ToonDoel();
  ZetBezig(false);
  WisStop();
  gangen_.Rust();
  if (afloop.gestopt && !afloop.systeem) return;
  if (afloop.afgebroken && !afloop.systeem) return ToonLog();
  if (wijze_ == ImpWijze::Vanzelf && gelukt_ && !afloop.systeem) return Sluit();
  if (afloop.systeem) {
    MeldFout(afloop.systeem);
  } else {
    hoofd_.gesprek.Informeer(kVoltooid);
  }
  ToonLog();
}

void ImpGedcom::WisVoortgang() {
  for (Teller* teller : tellers_) teller->ZetTekst("");
  gangen_.Wis();
  TellingLabel.ZetBijschrift("");
  gelukt_ = opmerkingenVol_ = heeftLog_ = false;
  gelezenPersonen_ = gelezenRelaties_ = 0;
}

ImpGedcom::Afloop ImpGedcom::Importeer() {
  // A relative path is one in the program's directory.
  return LeesAlsHandeling(VindPad(hoofd_.programmaMap / Bestandsnaam.Pad()));
}

ImpGedcom::Afloop ImpGedcom::LeesAlsHandeling(const std::filesystem::path& bestand) {
  const std::uint64_t stand = Schrijfstand(hoofd_.bestanden);
  Handeling handeling(hoofd_.bestanden, "GEDCOM ingelezen: " + PadTekst(bestand.filename()));
  Afloop afloop = Lees(bestand);
  if (SysteemFout fout = handeling.Voltooi(); fout && !afloop.systeem) {
    afloop.systeem = Bij(std::move(fout), kJournaalMap);
  }
  const bool geschreven = Schrijfstand(hoofd_.bestanden) != stand;
  if (afloop.afgebroken && geschreven && !afloop.systeem) VraagBehouden();
  return afloop;
}

// What was read is the last action.
void ImpGedcom::VraagBehouden() {
  const std::shared_ptr<Journaal> journaal = hoofd_.bestanden.HetJournaal();
  const auto laatste = journaal ? journaal->LaatsteTeOngedaan() : std::nullopt;
  if (!laatste || hoofd_.gesprek.Vraag("Wat is ingelezen behouden ?")) return;
  static_cast<void>(MaakOngedaan(hoofd_.MaakOpslag(), laatste->nummer));
}

// Reading from the log would empty it before a line of it was read, and so would the rest.
SysteemFout ImpGedcom::OpenInvoer(RegelLezer& lezer, const std::filesystem::path& bestand) const {
  const std::filesystem::path log = LogPad();
  for (const auto& uitvoer :
       {log, VindPad(log.parent_path() / kRestNaam), log.parent_path() / kRestBezig}) {
    if (IsZelfde(bestand, uitvoer)) return FoutInGebruik();
  }
  return lezer.Open(bestand);
}

// What stood there is the log of an earlier run.
void ImpGedcom::NoteerFout(const SysteemFout& fout, const std::filesystem::path& bestand) {
  GedLog log;
  if (IsZelfde(bestand, LogPad()) || log.Open(LogPad())) return;
  log.Regel("Importeren mislukt: " + Bij(fout, PadTekst(bestand.filename())).tekst);
  heeftLog_ = !log.Sluit();
}

ImpGedcom::Afloop ImpGedcom::Lees(const std::filesystem::path& bestand) {
  const std::int16_t personen = hoofd_.Persoon.AantalRecords();
  const std::int16_t relaties = hoofd_.Relatie.AantalRecords();
  RegelLezer lezer;
  if (SysteemFout fout = OpenInvoer(lezer, bestand)) {
    NoteerFout(fout, bestand);
    return {.systeem = fout};
  }
  const std::filesystem::path pad = LogPad();
  KiesCodering(lezer);
  if (!Past(lezer, personen, relaties)) return {.gestopt = true};
  // A set from a DOS disk comes without it. What cannot be made shows itself at the log.
  std::error_code code;
  std::filesystem::create_directories(pad.parent_path(), code);
  GedLog log;
  if (SysteemFout fout = log.Open(pad)) return {.systeem = Bij(std::move(fout), kLogNaam)};
  heeftLog_ = true;
  Scherm scherm(*this, log, lezer);
  // A place file that is full or damaged would say so at each of thousands of lines.
  EenmaalGesprek eenmaal(hoofd_.gesprek);
  PlaatsLB77 plaats({hoofd_.bestanden, hoofd_.volgers, eenmaal, hoofd_.schrijfwijze});
  ImpLoop loop({{hoofd_.Persoon, hoofd_.Relatie, plaats, hoofd_.Opmerking, hoofd_.volgers,
                 hoofd_.schrijfwijze},
                scherm},
               personen, relaties);
  loop.omgezet = lezer.ZetOm();
  loop.rest.Begin(VindPad(pad.parent_path() / kRestNaam),
                  [&loop](std::string_view bron) { return loop.BronUtf8(bron); });
  const ImpUitslag uitslag = VoerGangen(loop, lezer);
  if (scherm.Afgebroken()) return {.afgebroken = true, .systeem = Bij(log.Sluit(), kLogNaam)};
  if (uitslag.gestopt) {
    SluitVerslag(uitslag, loop, log);
    return {.gestopt = true, .systeem = Bij(log.Sluit(), kLogNaam)};
  }
  if (lezer.Fout()) return {.systeem = lezer.Fout()};
  return {.systeem = Rond(uitslag, loop, log)};
}

void ImpGedcom::KiesCodering(RegelLezer& lezer) {
  const Codering codering = CoderingVan(lezer);
  const bool unicode = codering != Codering::Bytes;
  const bool omzetten = unicode && hoofd_.gesprek.Vraag(kUnicodeVraag);
  nietOmgezet_ = unicode && !omzetten;
  lezer.BeginMet(omzetten ? codering : Codering::Bytes);
}

bool ImpGedcom::Past(RegelLezer& lezer, std::int16_t personen, std::int16_t relaties) {
  TellingLabel.ZetBijschrift("Het bestand wordt geteld ...");
  hoofd_.gesprek.Ververs(*this);
  bool afgebroken = false;
  const ImpTelling telling = TelImport(lezer, hoofd_.bestanden.Bestand(BestandSoort::Plaatsen),
                                       [&] { return !(afgebroken = Afbreken()); });
  TellingLabel.ZetBijschrift(afgebroken ? "" : TellingTekst(telling));
  if (afgebroken) return false;
  if (telling.fout) {
    hoofd_.gesprek.Fout("Fout bij het tellen van de plaatsen\n" + telling.fout.tekst);
  }
  lezer.Begin();
  hoofd_.gesprek.Ververs(*this);
  const int metPersonen = personen + telling.personen + telling.vervolgPersonen;
  const int metRelaties = relaties + telling.relaties + telling.vervolgRelaties;
  if (metPersonen <= kMaxRecords && metRelaties <= kMaxRecords) return true;
  hoofd_.gesprek.Fout(kMaximumBereikt);
  return false;
}

bool ImpGedcom::Afbreken() {
  if (!hoofd_.gesprek.StopGevraagd(*this)) return false;
  if (hoofd_.gesprek.Vraag("Import afbreken ?")) return true;
  WisStop();
  return false;
}

// What the log tells of a run as a whole, whether it came to its end or not.
void ImpGedcom::SluitVerslag(const ImpUitslag& uitslag, ImpLoop& loop, GedLog& log) {
  gelezenPersonen_ = loop.GedPersId.Aantal();
  gelezenRelaties_ = loop.GedRelId.Aantal();
  opmerkingenVol_ = loop.verliezen.IsVol();
  const auto noteer = [&log](std::string_view regel) { log.Regel(regel); };
  if (!opmerkingenVol_) NoteerStop(uitslag, log);
  loop.verliezen.Noteer(noteer);
  SluitRest(loop.rest, log);
  loop.tekens.Noteer(noteer);
  if (nietOmgezet_ && gelezenPersonen_ + gelezenRelaties_ > 0) log.Regel(kNietOmgezet);
}

SysteemFout ImpGedcom::Rond(const ImpUitslag& uitslag, ImpLoop& loop, GedLog& log) {
  if (!uitslag.fout.empty()) hoofd_.gesprek.Waarschuw(uitslag.fout);
  SluitVerslag(uitslag, loop, log);
  // kept: also behind an error of the file, where the lines ahead of it tell otherwise.
  log.Regel(kVoltooid);
  Pass3.Klaar.Zet(true);
  gelukt_ = uitslag.fout.empty();
  return Bij(log.Sluit(), kLogNaam);
}

// A rest that could not be kept takes nothing from what was read.
void ImpGedcom::SluitRest(ImpRest& rest, GedLog& log) {
  const std::string naam(kRestNaam);
  if (const SysteemFout fout = rest.Sluit()) {
    log.Regel("LET OP: " + naam + " is niet geschreven: " + fout.tekst);
    hoofd_.gesprek.Fout("Fout bij het schrijven van " + naam + "\n" + fout.tekst);
  } else if (const std::int32_t aantal = rest.Aantal(); aantal > 0) {
    log.Regel("LET OP: wat niet of niet heel is overgenomen staat in " + naam + ": " +
              GetalTekst(aantal) + (aantal == 1 ? " regel" : " regels"));
  }
}

void ImpGedcom::ToonGang(int nummer) {
  gangen_.Toon(nummer);
  hoofd_.gesprek.Ververs(*this);
}

void ImpGedcom::StelVeilig() {
  const SysteemFout fout = hoofd_.bestanden.Veiligstellen();
  if (fout) hoofd_.gesprek.Fout("Fout bij het veiligstellen van de bestanden\n" + fout.tekst);
}

void ImpGedcom::MeldFout(const SysteemFout& fout) {
  if (fout.nummer == kBestandNietGevonden) {
    hoofd_.gesprek.Waarschuw(fout.tekst);
  } else {
    hoofd_.gesprek.Fout("Leesfout: " + fout.tekst);
  }
}

void ImpGedcom::ToonLog() {
  if (!heeftLog_) return;
  hoofd_.gesprek.Toon<ToonTekst>(hoofd_, LogPad(), "Importeren - Resultaat");
}

std::filesystem::path ImpGedcom::LogPad() const {
  return VindPad(hoofd_.Ini.TekstDir() / kLogNaam);
}

}  // namespace lb77
