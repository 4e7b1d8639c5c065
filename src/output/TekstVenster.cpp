#include "output/TekstVenster.h"

#include <array>
#include <cstddef>
#include <utility>

#include "output/TekstOpslaan.h"
#include "text/Getallen.h"

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
  BackButton.BijKlik([this] { Sluit(); });
}

void TekstVenster::Toon(const std::filesystem::path& pad, bool HTMLUitvoer) {
  HTMLUitvoer_ = HTMLUitvoer;
  uitvoer_.reset();
  kolom_ = rij_ = 1;
  const bool leesbaar = paginas_.Open(pad);
  PrintButton.Elk([leesbaar](int, Knop& knop) { knop.ZetIngeschakeld(leesbaar); });
  SaveButton.ZetIngeschakeld(leesbaar);
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
  ToonPagina();
}

void TekstVenster::BijToets(ToetsGebeurtenis& toets) {
  struct Toetsstap {
    int code;
    int kolommen;
    int rijen;
  };
  constexpr std::array<Toetsstap, 6> kToetsen = {{
      {toets::kLinks, -1, 0},
      {toets::kRechts, 1, 0},
      {toets::kOmhoog, 0, -1},
      {toets::kOmlaag, 0, 1},
      {toets::kPageUp, 0, -1},
      {toets::kPageDown, 0, 1},
  }};
  for (const Toetsstap& stap : kToetsen) {
    if (stap.code != toets.code) continue;
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
  if (VoegPaginaToe(afdruk, kolom_, rij_)) DrukAf(afdruk);
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
  // Told either way; the viewer stays.
  static_cast<void>(SlaTekstOp(hoofd_.gesprek, Uitvoer().Pad(), vraag));
}

}  // namespace lb77
