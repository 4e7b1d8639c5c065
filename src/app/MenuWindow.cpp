#include "app/MenuWindow.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

#include "app/Bestandensets.h"
#include "store/Bestandenset.h"
#include "store/Journaal.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// What an entry does: opens a menu, starts something, or nothing at this version.
enum class Werking { Menu, Start, Geen };
// When it is enabled.
enum class Stand { Altijd, SetActief, SetAanwezig };

struct MenuRij {
  std::string_view naam;
  std::string_view bijschrift;
  std::string_view menu;  // that it stands in, empty for one of the menu bar
  Werking werking = Werking::Start;
  Stand stand = Stand::Altijd;
};

using enum Werking;
using enum Stand;

// clang-format off
constexpr MenuRij kMenu[] = {
    {"MenuBestand", "&Bestand", "", Menu},
    {"MaakSet", "&Nieuwe Bestandenset", "MenuBestand"},
    {"OpenSet", "&Open Bestandenset", "MenuBestand", Start, SetAanwezig},
    {"VerwijderSet", "Ver&wijder Bestandenset", "MenuBestand"},
    {"ZetIni", "In&stellingen", "MenuBestand", Menu},
    {"SetupGebruiker", "&Gebruiker", "ZetIni"},
    {"SetupGezindte", "Ge&zindten", "ZetIni"},
    {"SetupVoorvoeg", "&Voorvoegsels", "ZetIni"},
    {"SetupVoorkeur", "Voor&keuren", "ZetIni"},
    {"SetupToetsen", "&Functietoetsen", "ZetIni"},
    {"SetupSysteem", "&Systeem", "ZetIni"},
    {"ImportData", "&Importeer Gegevens", "MenuBestand", Menu, SetActief},
    {"ImportGedcom", "Ged&com", "ImportData"},
    {"ImportDBase", "&dBase", "ImportData", Geen},
    {"ImportAscii", "&ASCII", "ImportData", Geen},
    {"ExportData", "&Exporteer Gegevens", "MenuBestand", Menu, SetActief},
    {"ExportGedcom", "Ged&com", "ExportData"},
    {"ExportAscii", "&ASCII", "ExportData"},
    {"ExpHSK", "&HSKContact", "ExportData"},
    {"ExpVVF", "&VVFContact", "ExportData", Geen},
    {"ExpTiny", "&Tine Tafel (TT)", "ExportData", Geen},
    {"DumpPrs", "Uitdraai &Persoonsbestand", "ExportData"},
    {"DumpRel", "Uitdraai &Relatiebestand", "ExportData"},
    {"DumpPlts", "Uitdraai Plaat&sbestand", "ExportData"},
    {"DumpOpm", "Uitdraai &Opmerkingenbestand", "ExportData"},
    {"ViewTekst", "&Bekijk Tekstbestand", "MenuBestand", Start, SetActief},
    {"Controle", "Con&trole Bestanden", "MenuBestand", Menu, SetActief},
    {"ContrPrs", "&Persoonsbestand", "Controle"},
    {"ContrRel", "&Relatiebestand", "Controle"},
    {"ContrPlts", "&Plaatsbestand", "Controle"},
    {"ContrOpm", "&Opmerkingenbestand", "Controle"},
    {"Corrigeer", "&Corrigeer Bestanden", "MenuBestand", Menu, SetActief},
    {"CorrigeerAdmin", "&Administratierecords", "Corrigeer", Menu},
    {"CorrigeerAdminPers", "&Persoonsbestand", "CorrigeerAdmin"},
    {"CorrigeerAdminRel", "&Relatiebestand", "CorrigeerAdmin"},
    {"CorrigeerAdminOpm", "&Opmerkingenbestand", "CorrigeerAdmin"},
    {"CorrigeerAdminPlaats", "P&laatsbestand", "CorrigeerAdmin"},
    {"Verwijzingen", "&Verwijzingen (normale records)", "Corrigeer", Menu},
    {"VerwijsPers", "&Persoonsrecord", "Verwijzingen"},
    {"VerwijsRel", "&Relatierecord", "Verwijzingen"},
    {"VerwijsOpm", "&Opmerkingenrecord", "Verwijzingen"},
    {"VerwijsPlaats", "&Plaatsrecord", "Corrigeer"},
    {"VerwijzingenVervolg", "V&erwijzingen (vervolgrecords)", "Corrigeer", Menu},
    {"VerwijsPersVervolg", "&Persoonsrecord", "VerwijzingenVervolg"},
    {"VerwijsRelVervolg", "&Relatierecord", "VerwijzingenVervolg"},
    {"KeuzeAfsluiten", "&Afsluiten", "MenuBestand"},
    {"MenuInvoer", "&Tonen", "", Menu, SetActief},
    {"InvPersRel", "&Personen + Relaties", "MenuInvoer"},
    {"InvPlaats", "P&laatsen", "MenuInvoer"},
    {"InvoerAkten", "&Akten", "MenuInvoer", Geen},
    {"RefInvoer", "&Referenties", "MenuInvoer", Geen},
    {"MenuUitvTekst", "Tekst&uitvoer", "", Menu, SetActief},
    {"TekstKwst", "&Kwartierstaat", "MenuUitvTekst"},
    {"TekstGen", "&Genealogie of Parenteel", "MenuUitvTekst"},
    {"IndexKwst", "&Index Kwartierstaat", "MenuUitvTekst"},
    {"IndexGen", "Inde&x Genealogie of Parenteel", "MenuUitvTekst"},
    {"UitvPKaart", "&Persoonskaarten", "MenuUitvTekst"},
    {"UitvRKaart", "&Relatiekaarten", "MenuUitvTekst"},
    {"TekstVerwant", "&Verwantschap", "MenuUitvTekst", Geen},
    {"UitvAkte", "&Akten", "MenuUitvTekst", Geen},
    {"MenuUitvSchema", "&Schema's", "", Menu, SetActief},
    {"SchemaKwst", "&Kwartierstaat", "MenuUitvSchema"},
    {"SchemaKwBlad", "K&wartierbladen", "MenuUitvSchema"},
    {"SchemaGen", "&Genealogie of Parenteel", "MenuUitvSchema"},
    {"SchemaGezin", "Ge&zinsbladen", "MenuUitvSchema"},
    {"SchemaVerwant", "&Verwantschap", "MenuUitvSchema"},
    {"BeeldWaaier", "Waa&ier in beeld...", "MenuUitvSchema"},
    {"BeeldKwartier", "Voor&ouders in beeld...", "MenuUitvSchema"},
    {"BeeldStam", "&Nakomelingen in beeld...", "MenuUitvSchema"},
    {"BeeldTijd", "&Populatiegrafiek in beeld...", "MenuUitvSchema"},
    {"Rapport", "&Rapporten", "", Menu, SetActief},
    {"RptSelPrs", "Selectie &Personen", "Rapport"},
    {"RptSelRel", "Selectie &Relaties", "Rapport"},
    {"RptSelPlts", "Selectie P&laatsen", "Rapport"},
    {"RptSelOpm", "Selectie &Opmerkingen", "Rapport"},
    {"RapportTakken", "&Takkenverdeling", "Rapport"},
    {"RapportFamilies", "&Familienamen", "Rapport"},
    {"RapportTijdbalk", "Pop&ulatiegrafiek", "Rapport"},
    {"MenuVeiligheid", "&Veiligheid", "", Menu, SetActief},
    {"VeiligOngedaan", "Laatste bewerking &ongedaan maken", "MenuVeiligheid"},
    {"VeiligGeschiedenis", "&Geschiedenis...", "MenuVeiligheid"},
    {"VeiligKopie", "Veiligheidskopie &maken", "MenuVeiligheid"},
    {"VeiligTerugzetten", "Veiligheidskopie &terugzetten...", "MenuVeiligheid"},
    {"VeiligPlaats", "&Plaats van de kopieën..."_w, "MenuVeiligheid"},
    {"MenuHelp", "&Help", "", Menu},
    {"Handleid", "&Handleiding", "MenuHelp"},
    {"AboutLB77", "&Over LB77 voor Windows", "MenuHelp"},
};
// clang-format on

// The entry of that name; nothing when the menu has none.
std::optional<std::size_t> VindRij(std::string_view naam) {
  for (std::size_t i = 0; i < std::size(kMenu); ++i) {
    if (kMenu[i].naam == naam) return i;
  }
  return std::nullopt;
}

bool Toegestaan(Stand stand, const Hoofdmodule& hoofd) {
  switch (stand) {
    case Altijd:
      break;
    case SetActief:
      return hoofd.SetActief();
    case SetAanwezig:
      return hoofd.ActieveSetNaam != kGeenSetAanwezig;
  }
  return true;
}

// The action that would be undone, for the status line.
std::string TeOngedaan(const Bestandenset& bestanden) {
  const std::shared_ptr<Journaal>& journaal = bestanden.HetJournaal();
  const auto laatste = journaal ? journaal->LaatsteTeOngedaan() : std::nullopt;
  return laatste ? "Maakt ongedaan: " + laatste->label + " (" + laatste->tijd + ")" : std::string();
}

}  // namespace

MenuWindow::MenuWindow(Hoofdmodule& hoofd)
    : Formulier("MenuWindow", "LB77 voor Windows"), hoofd_(hoofd) {
  ZetHulpOnderwerp("starten");
  for (const MenuRij& rij : kMenu) {
    keuzes_.emplace_back(*this, rij.naam, rij.bijschrift, rij.menu).ZetIngeschakeld(false);
  }
  Statusbalk.ZetTekst("Actieve Bestandenset:");
  Hang("KeuzeAfsluiten", [this] { Afsluiten(); });
}

void MenuWindow::Hang(std::string_view naam, std::function<void()> start) {
  const std::optional<std::size_t> rij = VindRij(naam);
  if (auto* const knop = rij ? nullptr : dynamic_cast<Knop*>(Zoek(naam))) {
    knop->BijKlik([this, start = std::move(start)] { KnopKlik(start); });
    return;
  }
  if (!rij || kMenu[*rij].werking != Werking::Start) return;
  keuzes_[*rij].BijKlik([this, start = std::move(start)] { KeuzesKlik(start); });
}

Startblad& MenuWindow::MaakStartblad() {
  startblad_ = std::make_unique<Startblad>(*this, hoofd_);
  return *startblad_;
}

bool MenuWindow::Neemt(const std::filesystem::path& bestand) const {
  return bijBestand_ && Hoofdletters(PadTekst(bestand.extension())) == ".GED";
}

void MenuWindow::Ontvang(const std::filesystem::path& bestand) {
  if (Neemt(bestand)) KeuzesKlik([this, &bestand] { bijBestand_(bestand); });
}

void MenuWindow::BijActiveren() {
  if (begin_) KeuzesKlik(std::exchange(begin_, nullptr));
}

std::string MenuWindow::WaaromGrijs(const Bediening& bediening) const {
  const std::optional<std::size_t> rij = VindRij(bediening.Naam());
  if (!rij) return {};
  if (kMenu[*rij].werking != Werking::Menu && !bediening.HeeftKlik()) {
    return "Dit onderdeel is er in deze versie niet";
  }
  return kMenu[*rij].stand == SetAanwezig ? "Er is nog geen bestandenset; maak er eerst een"
                                          : "Open eerst een bestandenset";
}

// A button of the start page.
void MenuWindow::KnopKlik(const std::function<void()>& start) {
  KeuzesKlik(start);
}

void MenuWindow::KeuzesKlik(const std::function<void()>& start) {
  start();
  ZetMenu();
  if (hoofd_.Ini.EindeGevraagd()) Sluit();
}

void MenuWindow::ZetMenu() {
  for (std::size_t i = 0; i < std::size(kMenu); ++i) {
    const bool werkt = kMenu[i].werking == Menu || keuzes_[i].HeeftKlik();
    keuzes_[i].ZetIngeschakeld(werkt && Toegestaan(kMenu[i].stand, hoofd_));
    if (kMenu[i].naam == "VeiligOngedaan") keuzes_[i].ZetToelichting(TeOngedaan(hoofd_.bestanden));
  }
  if (startblad_) startblad_->WerkBij();
}

void MenuWindow::ZetStatus(std::string_view omschrijving) {
  std::string tekst = "Actieve bestandenset: " + hoofd_.ActieveSetNaam;
  if (!omschrijving.empty()) tekst.append(",").append(omschrijving);
  Statusbalk.ZetTekst(tekst);
}

void MenuWindow::BijLaden() {
  ZetPositie({Getalwaarde(hoofd_.Ini.IniWaarde("Scherm", "MainX")),
              Getalwaarde(hoofd_.Ini.IniWaarde("Scherm", "MainY"))});
  hoofd_.schrijfwijze.DatumScheider = hoofd_.Ini.separator().front();
  OpenLaatsteSet();
  for (const std::string_view naam : {"ExpVVF", "ExpTiny"}) {
    if (Bediening* keuze = Zoek(naam)) keuze->ZetZichtbaar(false);
  }
  ZetMenu();
  if (hoofd_.Ini.EindeGevraagd()) Sluit();
}

// The dialog that opens a set does its work here without being shown.
void MenuWindow::OpenLaatsteSet() {
  std::string naam = hoofd_.Ini.ActieveSet();
  if (naam == kGeenSetActief) naam = hoofd_.Ini.bestandenset(1);
  if (naam == kGeenSetAanwezig) return;
  hoofd_.ActieveSetNaam = naam;
  static_cast<void>(IndexActieveSet(hoofd_));
  static_cast<void>(OpenSetVanRij(hoofd_, *this, naam));
}

bool MenuWindow::BewaarPositie() {
  const Plek plek = Positie().value_or(Plek{});
  const std::string x = GetalTekst(plek.x);
  const std::string y = GetalTekst(plek.y);
  const bool anders =
      hoofd_.Ini.IniWaarde("Scherm", "MainX") != x || hoofd_.Ini.IniWaarde("Scherm", "MainY") != y;
  hoofd_.Ini.IniZet("Scherm", "MainY", y);
  hoofd_.Ini.IniZet("Scherm", "MainX", x);
  return anders;
}

void MenuWindow::Afsluiten() {
  BewaarPositie();
  hoofd_.Ini.IniSchrijf();
  Sluit();
}

bool MenuWindow::MagSluiten() {
  if (BewaarPositie()) hoofd_.Ini.IniSchrijf();
  return true;
}

// Escape, which leaves every dialog, does not leave the program.
void MenuWindow::BijToets(ToetsGebeurtenis& toets) {
  if (toets.code == toets::kEscape) toets.verwerkt = true;
}

}  // namespace lb77
