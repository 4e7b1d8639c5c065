// `geschiedenis`, `ongedaan`, `herstel`, `kopie` and `terugzetten`: what keeps a set safe.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>
#include <utility>

#include "app/HandelingTekst.h"
#include "app/KopiePlek.h"
#include "app/NietVeilig.h"
#include "app/Ongedaan.h"
#include "app/SetOpenen.h"
#include "app/VeiligTeksten.h"
#include "app/Veiligheidskopie.h"
#include "cli/Opdrachten.h"
#include "cli/Sessie.h"
#include "store/Journaal.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

std::string Nummer(std::uint32_t nummer) {
  return GetalTekst(static_cast<std::int64_t>(nummer));
}

// The action of that number, or the last one when there is no number.
std::optional<HandelingRegel> Kies(Journaal& journaal, const std::string& nummer) {
  if (nummer.empty()) return journaal.LaatsteTeOngedaan();
  const auto regels = journaal.Geschiedenis();
  const auto regel = std::ranges::find_if(
      regels, [&](const HandelingRegel& deze) { return Nummer(deze.nummer) == nummer; });
  return regel == regels.end() ? std::nullopt : std::optional(*regel);
}

void Schrijf(std::ostream& uit, const std::string& windows) {
  uit << WindowsNaarUtf8(windows) << '\n';
}

void ToonKopieen(Veiligheidskopie kopie, std::ostream& uit) {
  for (const KopieRij& rij : kopie.Lijst()) Schrijf(uit, rij.naam + "  " + KopieTekst(rij));
}

// The place of --naar or --van; the one of the settings without. A mistyped one is told.
std::optional<std::filesystem::path> Plek(Sessie& sessie, const OpdrachtArgumenten& argumenten) {
  if (!argumenten.naar) return KopiePlek(sessie.Hoofd().programmaMap);
  std::error_code code;
  std::filesystem::path plek = std::filesystem::absolute(*argumenten.naar, code);
  if (std::filesystem::is_directory(plek, code)) return plek;
  sessie.bediener.Mislukt(DirectoryErNiet(plek));
  return std::nullopt;
}

void ToonWijzigingen(Sessie& sessie, const std::string& nummer, std::ostream& uit) {
  Journaal& journaal = *sessie.Hoofd().bestanden.HetJournaal();
  const auto regel = Kies(journaal, nummer);
  if (!regel) return sessie.bediener.Mislukt("Er is geen bewerking " + nummer);
  Schrijf(uit, Nummer(regel->nummer) + "  " + HandelingTekst(*regel));
  const char scheider = sessie.Hoofd().schrijfwijze.DatumScheider;
  for (const std::string& tekst : WijzigingTekst(journaal.Wijzigingen(regel->nummer), scheider)) {
    Schrijf(uit, tekst);
  }
}

// The open set; nothing when it could not be taken, which has been told.
Journaal* NeemSet(Sessie& sessie, const std::string& set, bool toch) {
  Hoofdmodule& hoofd = sessie.Hoofd();
  GeefJournaal(hoofd);
  if (const auto fout = hoofd.bestanden.OpenSet(SetPaden::Van(hoofd.Ini.DataDir(), set))) {
    sessie.bediener.Mislukt(OpenFoutTekst(*fout));
    return nullptr;
  }
  if (hoofd.bestanden.NeemInGebruik() || toch) return hoofd.bestanden.HetJournaal().get();
  sessie.bediener.Mislukt("Bestandenset " + set + " is al in gebruik; met --toch opent hij toch");
  return nullptr;
}

}  // namespace

int ToonGeschiedenis(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  return sessie.Voer(argumenten.woorden[0], Omgang::Lezen, [&](Werk&) {
    const std::string& nummer = argumenten.woorden[1];
    if (!nummer.empty()) return ToonWijzigingen(sessie, nummer, omgeving.uit);
    for (const HandelingRegel& regel : sessie.Hoofd().bestanden.HetJournaal()->Geschiedenis()) {
      Schrijf(omgeving.uit, Nummer(regel.nummer) + "  " + HandelingTekst(regel));
    }
  });
}

int MaakOngedaan(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  const auto doe = [&](Werk&) {
    const std::string& nummer = argumenten.woorden[1];
    const auto regel = Kies(*sessie.Hoofd().bestanden.HetJournaal(), nummer);
    if (!regel) {
      sessie.bediener.Mislukt(nummer.empty() ? std::string(kNietsOngedaan)
                                             : "Er is geen bewerking " + nummer);
    } else if (regel->ongedaan) {
      sessie.bediener.Mislukt(kAlOngedaan);
    } else if (MaakOngedaan(sessie.Hoofd().MaakOpslag(), regel->nummer)) {
      Schrijf(omgeving.uit, std::string(kOngedaanGemaakt) + regel->label);
    }
  };
  return sessie.Voer(argumenten.woorden[0], Omgang::Schrijven, doe, argumenten.toch);
}

int Herstel(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  return sessie.VoerZonderVenster([&] {
    const std::string set = Hoofdletters(argumenten.woorden[0]);
    if (!sessie.Kent(set, Omgang::Lezen)) return;
    Journaal* const journaal = NeemSet(sessie, set, argumenten.toch);
    if (journaal == nullptr) return;
    const auto onvoltooid = journaal->Onvoltooid();
    if (!onvoltooid) {
      Schrijf(omgeving.uit, "Er is niets te herstellen");
      return;
    }
    if (const auto fout = argumenten.behoud ? journaal->Behoud() : journaal->Herstel()) {
      sessie.bediener.Mislukt("Het herstel is niet gelukt\n" + fout.tekst);
      return;
    }
    Schrijf(omgeving.uit, std::string(argumenten.behoud ? "Behouden: " : kOngedaanGemaakt) +
                              onvoltooid->label + ", " + onvoltooid->tijd);
  });
}

int Kopie(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  return sessie.Voer(argumenten.woorden[0], Omgang::Lezen, [&](Werk&) {
    const auto plek = Plek(sessie, argumenten);
    if (!plek) return;
    Veiligheidskopie kopie = KopieVan(sessie.Hoofd(), *plek);
    if (!kopie.Weg().empty()) sessie.bediener.Mislukt(PlekWegTekst(kopie));
    if (const SysteemFout fout = kopie.Maak()) {
      sessie.bediener.Mislukt(std::string(kKopieNietGemaakt) + fout.tekst);
    } else {
      Schrijf(omgeving.uit, PadTekst(kopie.Gemaakt().filename()));
    }
    if (!argumenten.bewaar || !argumenten.naar) return;
    if (const SysteemFout fout = BewaarKopiePlek(sessie.Hoofd().programmaMap, *plek)) {
      sessie.bediener.Mislukt(std::string(kPlaatsNietBewaard) + fout.tekst);
    }
  });
}

int Terugzetten(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  const std::string& naam = argumenten.woorden[1];
  const auto doe = [&](Werk&) {
    const auto plek = Plek(sessie, argumenten);
    if (!plek) return;
    Veiligheidskopie kopie = KopieVan(sessie.Hoofd(), *plek);
    if (naam.empty()) return ToonKopieen(std::move(kopie), omgeving.uit);
    const TerugUitslag uitslag = kopie.ZetTerug(naam);
    if (uitslag.fout) {
      sessie.bediener.Mislukt(std::string(kKopieNietTerug) + uitslag.fout.tekst);
      return;
    }
    Schrijf(omgeving.uit, "Teruggezet: " + naam);
    if (uitslag.tekst) Schrijf(omgeving.uit, TekstUitleg(uitslag));
    MeldNietVeilig(sessie.Hoofd().gesprek, uitslag.nietVeilig);
    if (uitslag.tekstFout) {
      sessie.bediener.Mislukt(std::string(kTekstNietTerug) + uitslag.tekstFout.tekst);
    }
  };
  const Omgang omgang = naam.empty() ? Omgang::Lezen : Omgang::Schrijven;
  return sessie.Voer(argumenten.woorden[0], omgang, doe, argumenten.toch);
}

}  // namespace lb77
