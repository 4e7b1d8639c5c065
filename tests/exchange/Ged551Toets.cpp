#include "exchange/Ged551Toets.h"

#include <algorithm>
#include <map>
#include <span>

#include "exchange/FaalUitvoer.h"
#include "exchange/Ged551Schrijver.h"
#include "exchange/GedUnicode.h"
#include "exchange/ImpGangen.h"
#include "store/OpmVelden.h"
#include "store/PersoonVelden.h"
#include "store/PlaatsVelden.h"
#include "store/RelatieVelden.h"
#include "text/Getallen.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

// Not told: numbers of records, which are told as links or follow from what is told, and bytes
// without a meaning.
constexpr std::string_view kNummers[] = {
    "Relatie1", "Relatie2", "Relatie3", "Ouders", "OpmRecord", "ManNr",  "VrouwNr", "",
    "Kind1",    "Kind2",    "Kind3",    "Kind4",  "Kind5",     "Kind6",  "Kind7",   "Kind8",
    "Kind9",    "Kind10",   "Kind11",   "Kind12", "Kind13",    "Kind14", "Kind15"};

class Meldlog final : public ImpMelder {
 public:
  void Log(std::string_view regel) override { tekst.append(regel).append("\n"); }
  void Waarschuw(std::string_view regel) override { tekst.append("! ").append(regel).append("\n"); }
  void MeldDos850() override {}
  void BeginGang(int) override {}
  void Ververs(const ImpStand&) override {}

  std::string tekst;
};

Gegevens GegevensVan(ProefSet& set) {
  return {set.Persoon, set.Relatie, set.Plaats, set.Opmerking, set.volgers, set.schrijfwijze};
}

using Plaatsing = std::map<std::int16_t, int>;

template <class Klasse>
Plaatsing PlaatsingVan(Klasse& klasse) {
  Plaatsing uit;
  const std::int16_t aantal = klasse.AantalRecords();
  for (std::int16_t nr = 2; nr <= aantal; ++nr) {
    if (klasse.Lees(nr) && !klasse.IsVolgRecord()) uit[nr] = static_cast<int>(uit.size()) + 1;
  }
  return uit;
}

std::string Link(const Plaatsing& plaatsing, std::int16_t nr) {
  const auto gevonden = plaatsing.find(nr);
  return gevonden == plaatsing.end() ? "-" : "#" + GetalTekst(gevonden->second);
}

template <class Tab>
std::string Links(const Plaatsing& plaatsing, const Tab& tab) {
  std::string uit;
  for (std::size_t i = 1; i < tab.size(); ++i) uit += " " + Link(plaatsing, tab[i]);
  while (uit.ends_with(" -")) uit.resize(uit.size() - 2);
  return uit;
}

template <class Klasse>
std::string Velden(const Klasse& klasse, std::span<const Veld> velden) {
  std::string uit;
  for (const Veld& veld : velden) {
    if (std::ranges::find(kNummers, veld.naam) != std::end(kNummers)) continue;
    const std::string waarde = klasse.Waarde(veld);
    if (!waarde.empty()) uit.append("|").append(veld.naam).append("=").append(waarde);
  }
  return uit;
}

// In the order of their rubrics; within one in that of the chain.
void Opmerkingen(ProefSet& set, std::int16_t begin, std::vector<std::string>& uit) {
  struct Een {
    std::int16_t rubriek;
    std::string tekst;
  };
  std::vector<Een> alle;
  for (std::int16_t nr = begin; nr != 0 && set.Opmerking.Lees(nr);) {
    const std::int16_t volgende = set.Opmerking.BijZelfde();
    Een een{set.Opmerking.Rubriek(), "  prog " + GetalTekst(set.Opmerking.BijProg())};
    for (std::int16_t regel = nr; regel != 0 && set.Opmerking.Lees(regel);) {
      een.tekst += "|" + set.Opmerking.Tekstregel();
      regel = set.Opmerking.VolgRegel();
    }
    alle.push_back(een);
    nr = volgende;
  }
  std::ranges::stable_sort(alle, {}, &Een::rubriek);
  for (const Een& een : alle) uit.push_back(GetalTekst(een.rubriek) + een.tekst);
}

void Personen(ProefSet& set, const Plaatsing& personen, const Plaatsing& relaties,
              std::vector<std::string>& uit) {
  for (const auto& [nr, plek] : personen) {
    if (!set.Persoon.Lees(nr)) continue;
    std::string regel = "P" + GetalTekst(plek) + Velden(set.Persoon, persoonveld::kVelden);
    regel += "|ouders " + Link(relaties, set.Persoon.RelNrOuders());
    const std::int16_t opmerkingen = set.Persoon.OpmRecord();
    Huwtab tab{};
    static_cast<void>(set.Persoon.VulHuwtab(nr, tab));
    uit.push_back(regel + "|relaties" + Links(relaties, tab));
    Opmerkingen(set, opmerkingen, uit);
  }
}

void Relaties(ProefSet& set, const Plaatsing& personen, const Plaatsing& relaties,
              std::vector<std::string>& uit) {
  for (const auto& [nr, plek] : relaties) {
    if (!set.Relatie.Lees(nr)) continue;
    std::string regel = "R" + GetalTekst(plek) + Velden(set.Relatie, relatieveld::kVelden);
    regel += "|man " + Link(personen, set.Relatie.ManNr());
    regel += "|vrouw " + Link(personen, set.Relatie.VrouwNr());
    const std::int16_t opmerkingen = set.Relatie.OpmRecord();
    Kindtab tab{};
    static_cast<void>(set.Relatie.VulKindtab(nr, tab));
    uit.push_back(regel + "|kinderen" + Links(personen, tab));
    Opmerkingen(set, opmerkingen, uit);
  }
}

}  // namespace

std::string Ged551Uitvoer::Van(std::string_view begin) const {
  const std::size_t van = bestand.find(std::string(begin) + "\n");
  if (van == std::string::npos) return "";
  const std::size_t eerste = van + begin.size() + 1;
  const std::size_t einde = bestand.find("\n0 ", eerste - 1);
  return bestand.substr(eerste, einde + 1 - eerste);
}

ExpSelectie AllesVan(ProefSet& set) {
  ExpSelectie selectie;
  for (std::int16_t nr = set.Persoon.AantalRecords(), i = 2; i <= nr; ++i) {
    static_cast<void>(selectie.SelPersonen.Voeg(i));
  }
  for (std::int16_t nr = set.Relatie.AantalRecords(), i = 2; i <= nr; ++i) {
    static_cast<void>(selectie.SelRelaties.Voeg(i));
  }
  return selectie;
}

Ged551Uitvoer Exporteer551(ProefSet& set, const ExpSelectie& selectie) {
  FaalUitvoer uit;
  FaalUitvoer log;
  const GedKopGegevens kop{.nu = {2024, 3, 5, 14, 7, 9},
                           .bestandsnaam = "C:\\LB77\\TEKST\\PROEF.GED",
                           .set = "PROEF",
                           .inzender = {.voornaam = "Jan",
                                        .naam = "de Boer",
                                        .adres = "Kerkstraat 1",
                                        .postcode = "1234 AB",
                                        .plaats = "Delft",
                                        .land = "Nederland",
                                        .telefoon = "015-1234567"}};
  Ged551Schrijver schrijver(uit, log, GegevensVan(set), selectie, kop);
  const ExpVerloop verloop{.doorgaan = [] { return true; }, .toon = [](const ExpTelling&) {}};
  schrijver.LogSlot(LoopSelectie(schrijver, selectie, verloop));
  return {uit.Regels(), log.Regels()};
}

std::string LeesIn(ProefSet& set, std::string_view bytes, std::string* niet) {
  const std::filesystem::path pad = set.map / "IN.GED";
  const std::filesystem::path rest = set.map / "IN.RST";
  SchrijfBytes(pad, bytes);
  RegelLezer lezer;
  if (lezer.Open(pad)) return "niet te openen\n";
  lezer.BeginMet(CoderingVan(lezer));
  Meldlog melder;
  ImpLoop loop({GegevensVan(set), melder}, set.Persoon.AantalRecords(),
               set.Relatie.AantalRecords());
  loop.omgezet = lezer.ZetOm();
  loop.rest.Begin(rest, [&loop](std::string_view bron) { return loop.BronUtf8(bron); });
  const ImpUitslag uitslag = VoerGangen(loop, lezer);
  const auto noteer = [&](std::string_view regel) { melder.Log(regel); };
  loop.verliezen.Noteer(noteer);
  loop.tekens.Noteer(noteer);
  if (loop.rest.Sluit()) melder.Log("de rest is niet geschreven");
  if (niet != nullptr) *niet = LeesBytes(rest);
  return melder.tekst + uitslag.fout + (uitslag.gestopt ? "gestopt\n" : "");
}

std::vector<std::string> Beschrijf(ProefSet& set) {
  std::vector<std::string> uit;
  const std::int16_t plaatsen = set.Plaats.AantalRecords();
  for (std::int16_t nr = 2; nr <= plaatsen; ++nr) {
    uit.push_back("L" + GetalTekst(nr) + "|" + set.Plaats.Naam(nr) + "|" + set.Plaats.Prov(nr));
  }
  const Plaatsing personen = PlaatsingVan(set.Persoon);
  const Plaatsing relaties = PlaatsingVan(set.Relatie);
  Personen(set, personen, relaties, uit);
  Relaties(set, personen, relaties, uit);
  return uit;
}

}  // namespace lb77
