#include "output/TekstVenster.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "forms/Bureaublad.h"
#include "output/TekstOpslaan.h"
#include "text/Getallen.h"
#include "text/Pad.h"
#include "text/Zoekvorm.h"

namespace lb77 {

namespace {

// The four directions, by the number of their button.
struct Stap {
  std::string_view bijschrift;
  int kolommen;
  int rijen;
};
constexpr std::array<Stap, 4> kStappen = {{
    {"Naar &links", -1, 0},
    {"Naar &rechts", 1, 0},
    {"Om&hoog", 0, -1},
    {"O&mlaag", 0, 1},
}};
constexpr int kOmlaagKnop = 4;

constexpr std::string_view kHTMLFilter =
    "Alle Bestanden (*.*)|*.*|Internetbestanden (*.htm)|*.htm|Internetbestanden (*.html)|*.html";

const Stap& StapVan(int knop) {
  return kStappen.at(static_cast<std::size_t>(knop - 1));
}

std::string MetFout(std::string_view tekst, const SysteemFout& fout) {
  return std::string(tekst) + "\n" + fout.tekst;
}

bool LeesPagina(Tekstpaginas& paginas, int kolom, int rij, std::vector<std::string>& regels) {
  if (!paginas.Lees(kolom, rij, regels)) return false;
  if (paginas.Leeg()) regels = {"<< Het bestand is leeg >>"};
  return true;
}

}  // namespace

TekstVenster::TekstVenster(Hoofdmodule& hoofd, std::string_view naam, std::string_view titel)
    : Formulier(naam, titel), hoofd_(hoofd) {
  ZetHulpOnderwerp("bekijken");
  MoveButton.Elk([this](int nummer, Knop& knop) {
    knop.ZetBijschrift(StapVan(nummer).bijschrift);
    MoveButton(nummer).BijKlik([this, nummer] { MoveButtonKlik(nummer); });
  });
  PrintButton(1).ZetBijschrift("&Print deze");
  PrintButton(2).ZetBijschrift("Print &Alles");
  for (const int nummer : {1, 2}) {
    PrintButton(nummer).BijKlik([this, nummer] { PrintButtonKlik(nummer); });
  }
  SaveButton.BijKlik([this] { SaveButtonKlik(); });
  BrowserButton.BijKlik([this] { BrowserButtonKlik(); });
  ZoekTekst.BijToets([this](ToetsGebeurtenis& toets) { ZoekTekstToets(toets); });
  ZoekTekst.BijWijziging([this] { ZoekLabel.ZetBijschrift(""); });
  ZoekButton.BijKlik([this] { ZoekButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void TekstVenster::Toon(const std::filesystem::path& pad, bool HTMLUitvoer) {
  HTMLUitvoer_ = HTMLUitvoer;
  uitvoer_.reset();
  kolom_ = rij_ = 1;
  const bool leesbaar = paginas_.Open(pad);
  PrintButton.Elk([leesbaar](int, Knop& knop) { knop.ZetIngeschakeld(leesbaar); });
  SaveButton.ZetIngeschakeld(leesbaar);
  // A page for the browser says itself in what it is written.
  UTF8Box.ZetZichtbaar(!HTMLUitvoer);
  BrowserButton.ZetZichtbaar(HTMLUitvoer && leesbaar &&
                             dynamic_cast<Bureaublad*>(&hoofd_.gesprek) != nullptr);
  zoekVanaf_ = {};
  ToonPagina();
  Knop& omlaag = MoveButton(kOmlaagKnop);
  ZetEersteVeld(omlaag.Ingeschakeld() ? omlaag : BackButton);
}

void TekstVenster::Toon(const std::filesystem::path& pad, const std::filesystem::path& uitvoer) {
  Toon(pad, false);
  // What can't be read is told when it is printed or saved.
  static_cast<void>(uitvoer_.emplace().Open(uitvoer));
}

void TekstVenster::ToonPagina() {
  std::vector<std::string> regels;
  if (LeesPagina(paginas_, kolom_, rij_, regels)) {
    UitvoerBox.ZetRegels(std::move(regels));
  } else {
    UitvoerBox.ZetRegels({"Fout: " + paginas_.Fout().tekst});
  }
  UitvoerBox.Merk({});
  XY_label.ZetBijschrift("pagina " + GetalTekst(kolom_) + "," + GetalTekst(rij_));
  MoveButton(1).ZetIngeschakeld(kolom_ > 1);
  MoveButton(2).ZetIngeschakeld(kolom_ < paginas_.Kolommen());
  MoveButton(3).ZetIngeschakeld(rij_ > 1);
  MoveButton(4).ZetIngeschakeld(rij_ < paginas_.Rijen());
}

void TekstVenster::MoveButtonKlik(int nummer) {
  const Stap& stap = StapVan(nummer);
  Ga(stap.kolommen, stap.rijen);
}

void TekstVenster::Ga(int kolommen, int rijen) {
  const int kolom = kolom_ + kolommen;
  const int rij = rij_ + rijen;
  if (kolom < 1 || kolom > paginas_.Kolommen() || rij < 1 || rij > paginas_.Rijen()) return;
  kolom_ = kolom;
  rij_ = rij;
  zoekVanaf_ = {static_cast<std::uint64_t>(rij - 1) * Tekstpaginas::kRegels, 0, 0};
  ToonPagina();
}

Bediening* TekstVenster::BijCtrl(char letter) {
  switch (letter) {
    case 'P':
      return &PrintButton(2);
    case 'S':
      return &SaveButton;
    case 'F':
      return &ZoekTekst;
    default:
      return nullptr;
  }
}

void TekstVenster::ZoekTekstToets(ToetsGebeurtenis& toets) {
  if (toets.code != toets::kEnter && toets.code != toets::kNumEnter) return;
  toets.verwerkt = true;
  ZoekButtonKlik();
}

void TekstVenster::ZoekButtonKlik() {
  const std::string vorm = Zoekvorm(ZoekTekst.Tekst());
  if (vorm.empty()) return ZetFocus(ZoekTekst);
  const auto plek = paginas_.Zoek(vorm, zoekVanaf_);
  if (plek) {
    Toon(*plek);
  } else {
    ZoekLabel.ZetBijschrift(paginas_.Fout() ? "Fout: " + paginas_.Fout().tekst : "Niet gevonden");
  }
}

void TekstVenster::Toon(const Tekstpaginas::Plek& plek) {
  constexpr std::uint64_t kRegels = Tekstpaginas::kRegels;
  constexpr std::uint64_t kBreedte = Tekstpaginas::kBreedte;
  rij_ = static_cast<int>(plek.regel / kRegels) + 1;
  kolom_ = static_cast<int>(plek.kolom / kBreedte) + 1;
  ToonPagina();
  const std::uint64_t kolom = plek.kolom % kBreedte;
  UitvoerBox.Merk({static_cast<int>(plek.regel % kRegels), static_cast<int>(kolom),
                   static_cast<int>(std::min(plek.lengte, kBreedte - kolom))});
  ZoekLabel.ZetBijschrift("regel " + GetalTekst(static_cast<std::int64_t>(plek.regel + 1)));
  zoekVanaf_ = {plek.regel, plek.kolom + 1, 0};
}

void TekstVenster::BijToets(ToetsGebeurtenis& toets) {
  struct Toetsstap {
    int code;
    int kolommen;
    int rijen;
  };
  constexpr int kF3 = toets::kF1 + 2;
  const bool inTekst = FocusVeld() == &ZoekTekst;  // there a key moves among the letters
  if (toets.code == kF3) {
    toets.verwerkt = true;
    return ZoekButtonKlik();
  }
  if (!inTekst && (toets.code == toets::kHome || toets.code == toets::kEnd)) {
    toets.verwerkt = true;
    return Ga(0, toets.code == toets::kHome ? 1 - rij_ : paginas_.Rijen() - rij_);
  }
  constexpr std::array<Toetsstap, 6> kToetsen = {{
      {toets::kLinks, -1, 0},
      {toets::kRechts, 1, 0},
      {toets::kOmhoog, 0, -1},
      {toets::kOmlaag, 0, 1},
      {toets::kPageUp, 0, -1},
      {toets::kPageDown, 0, 1},
  }};
  for (const Toetsstap& stap : kToetsen) {
    if (stap.code != toets.code || (inTekst && stap.kolommen != 0)) continue;
    toets.verwerkt = true;
    Ga(stap.kolommen, stap.rijen);
    return;
  }
}

void TekstVenster::PrintButtonKlik(int nummer) {
  nummer == 1 ? DrukPaginaAf() : DrukAllesAf();
}

void TekstVenster::DrukPaginaAf() {
  Afdruk afdruk{Titel(), {}};
  if (!VoegPaginaToe(afdruk, kolom_, rij_)) return;
  Nummer(afdruk);
  DrukAf(afdruk);
}

// Loose sheets can be put in order: each has the number that it has among all.
void TekstVenster::Nummer(Afdruk& afdruk) {
  std::size_t totaal = 0;
  std::size_t hier = 1;
  std::vector<std::string> pagina;
  for (int rij = 1; rij <= Uitvoer().Rijen(); ++rij) {
    for (int kolom = 1; kolom <= Uitvoer().Kolommen(); ++kolom) {
      if (!LeesPagina(Uitvoer(), kolom, rij, pagina)) return;
      if (StaatErIets(pagina)) ++totaal;
      if (rij == rij_ && kolom == kolom_) hier = totaal;
    }
  }
  afdruk.eerste = hier;
  afdruk.totaal = totaal;
}

void TekstVenster::DrukAllesAf() {
  Afdruk afdruk{Titel(), {}};
  for (int rij = 1; rij <= Uitvoer().Rijen(); ++rij) {
    for (int kolom = 1; kolom <= Uitvoer().Kolommen(); ++kolom) {
      if (!VoegPaginaToe(afdruk, kolom, rij)) return;
    }
  }
  DrukAf(afdruk);
}

// False after a message.
bool TekstVenster::VoegPaginaToe(Afdruk& afdruk, int kolom, int rij) {
  // The text that is shown is another one, and not empty.
  if (uitvoer_ && uitvoer_->Leeg() && !uitvoer_->Fout()) {
    hoofd_.gesprek.Fout(kPrintFout);
    return false;
  }
  if (LeesPagina(Uitvoer(), kolom, rij, afdruk.paginas.emplace_back())) return true;
  hoofd_.gesprek.Fout(MetFout(kPrintFout, Uitvoer().Fout()));
  return false;
}

void TekstVenster::DrukAf(const Afdruk& afdruk) {
  if (hoofd_.gesprek.DrukAf(afdruk)) {
    hoofd_.gesprek.Informeer("De tekst is naar de printer verstuurd.");
  }
}

void TekstVenster::SaveButtonKlik() {
  const std::string_view filter = HTMLUitvoer_ ? kHTMLFilter : kTekstFilter;
  const BestandsVraag vraag{BestandsWijze::Opslaan, std::string(filter), hoofd_.Ini.TekstDir()};
  const bool utf8 = UTF8Box.Bruikbaar() && UTF8Box.Gekozen();
  // Told either way; the viewer stays.
  static_cast<void>(
      SlaTekstOp(hoofd_.gesprek, {hoofd_.programmaMap, hoofd_.Ini, hoofd_.ActieveSetNaam},
                 Uitvoer().Pad(), vraag, Opslagnaam(Titel(), HTMLUitvoer_ ? ".htm" : ".txt"),
                 utf8 ? Tekencode::Utf8 : Tekencode::Zelfde));
}

void TekstVenster::BrowserButtonKlik() {
  auto* const bureaublad = dynamic_cast<Bureaublad*>(&hoofd_.gesprek);
  if (bureaublad && !bureaublad->OpenInBrowser(paginas_.Pad())) {
    hoofd_.gesprek.Waarschuw("Er is geen browser gevonden om het verslag te tonen.");
  }
}

}  // namespace lb77
