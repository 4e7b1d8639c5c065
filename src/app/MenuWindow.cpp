#include "app/MenuWindow.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

#include "app/Bestandensets.h"
#include "store/Bestandenset.h"
#include "store/Journaal.h"
#include "store/SetPaden.h"
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
  MenuVoor voor = MenuVoor::Draaiboek;  // an entry that only a user has
};

using enum Werking;
using enum Stand;
using enum MenuVoor;

// clang-format off
constexpr MenuRij kMenu[] = {
    {"MenuBestand", "&Bestand", "", Menu},
    {"MaakSet", "&Nieuwe Bestandenset", "MenuBestand"},
    {"OpenSet", "&Open Bestandenset", "MenuBestand", Start, SetAanwezig},
    {"VerwijderSet", "Ver&wijder Bestandenset", "MenuBestand"},
    {"OudeSet", "O&ude bestanden openen...", "MenuBestand", Start, Altijd, Gebruiker},
    {"GedcomSet", "&GEDCOM in een nieuwe set...", "MenuBestand", Start, Altijd, Gebruiker},
    {"VoorbeeldSet", "&Voorbeeldfamilie bekijken", "MenuBestand", Start, Altijd, Gebruiker},
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

// The entry of that name; null when the table has none.
const MenuRij* VindRij(std::string_view naam) {
  const auto* const rij = std::find_if(std::begin(kMenu), std::end(kMenu),
                                       [naam](const MenuRij& deze) { return deze.naam == naam; });
  return rij == std::end(kMenu) ? nullptr : rij;
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

MenuWindow::MenuWindow(Hoofdmodule& hoofd, MenuVoor voor)
    : Formulier("MenuWindow", "LB77 voor Windows"), hoofd_(hoofd) {
  ZetHulpOnderwerp("starten");
  for (const MenuRij& rij : kMenu) {
    if (rij.voor == MenuVoor::Gebruiker && voor != MenuVoor::Gebruiker) continue;
    keuzes_.emplace_back(*this, rij.naam, rij.bijschrift, rij.menu).ZetIngeschakeld(false);
  }
  Statusbalk.ZetTekst("Actieve Bestandenset:");
  Hang("KeuzeAfsluiten", [this] { Afsluiten(); });
}

void MenuWindow::Hang(std::string_view naam, std::function<void()> start) {
  Bediening* const keuze = Zoek(naam);
  if (auto* const knop = dynamic_cast<Knop*>(keuze)) {
    knop->BijKlik([this, start = std::move(start)] { KnopKlik(start); });
    return;
  }
  const MenuRij* const rij = keuze ? VindRij(keuze->Naam()) : nullptr;
  if (!rij || rij->werking != Werking::Start) return;
  keuze->BijKlik([this, start = std::move(start)] { KeuzeKlik(start); });
}

Startblad& MenuWindow::MaakStartblad() {
  startblad_ = std::make_unique<Startblad>(*this, hoofd_);
  return *startblad_;
}

bool MenuWindow::Neemt(const std::filesystem::path& bestand) const {
  const std::string uitgang = Hoofdletters(PadTekst(bestand.extension()));
  return bijBestand_ && (uitgang == ".GED" || uitgang == ".GEDCOM");
}

void MenuWindow::Ontvang(const std::filesystem::path& bestand) {
  if (Neemt(bestand)) KeuzeKlik([this, &bestand] { bijBestand_(bestand); });
}

void MenuWindow::BijActiveren() {
  if (begin_) KeuzeKlik(std::exchange(begin_, nullptr));
}

std::string MenuWindow::WaaromGrijs(const Bediening& bediening) const {
  const MenuRij* const rij = VindRij(bediening.Naam());
  if (!rij) return {};
  if (rij->werking != Werking::Menu && !bediening.HeeftKlik()) {
    return "Dit onderdeel is er in deze versie niet";
  }
  return rij->stand == SetAanwezig ? "Er is nog geen bestandenset; maak er eerst een"
                                   : "Open eerst een bestandenset";
}

// A button of the start page.
void MenuWindow::KnopKlik(const std::function<void()>& start) {
  KeuzeKlik(start);
}

void MenuWindow::KeuzeKlik(const std::function<void()>& start) {
  start();
  ZetMenu();
  if (hoofd_.Ini.EindeGevraagd()) Sluit();
}

void MenuWindow::ZetMenu() {
  for (MenuKeuze& keuze : keuzes_) {
    const MenuRij& rij = *VindRij(keuze.Naam());
    const bool werkt = rij.werking == Menu || keuze.HeeftKlik();
    keuze.ZetIngeschakeld(werkt && Toegestaan(rij.stand, hoofd_));
    if (rij.naam == "VeiligOngedaan") keuze.ZetToelichting(TeOngedaan(hoofd_.bestanden));
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
  if (laatElders_ && IsSetNaam(naam) && IsElders(SetPaden::Van(hoofd_.Ini.DataDir(), naam))) {
    hoofd_.ActieveSetNaam = kGeenSetActief;
    return ZetStatus();
  }
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
