#include "program/Programma.h"

#include <exception>

#include "ancestors/KwstPrs.h"
#include "app/Geschiedenis.h"
#include "app/IniFunctie.h"
#include "app/IniGebruiker.h"
#include "app/IniGezindte.h"
#include "app/IniSysteem.h"
#include "app/IniVoorkeur.h"
#include "app/IniVoorvoeg.h"
#include "app/KopiePlaats.h"
#include "app/KopieTerugzetten.h"
#include "app/NieuweSet.h"
#include "app/Ongedaan.h"
#include "app/OpenSetForm.h"
#include "app/OverLB77Form.h"
#include "app/SetOpenen.h"
#include "app/Start.h"
#include "app/VerwijderSetForm.h"
#include "checks/ControleForm.h"
#include "checks/CorrAdm.h"
#include "checks/CorrOpmAdm.h"
#include "checks/CorrPlts.h"
#include "checks/CorrVraag.h"
#include "contact/ExpGCI.h"
#include "descendants/GenPrs.h"
#include "descendants/GezinSchPrs.h"
#include "entry/StartRecord.h"
#include "entry/ToonPlaatsen.h"
#include "exchange/ExpAscii.h"
#include "exchange/ExpDump.h"
#include "exchange/ExpGedcom.h"
#include "exchange/ImpGedcom.h"
#include "output/BekijkTekst.h"
#include "pictures/BeeldPrs.h"
#include "reports/Krtn.h"
#include "reports/RptFamilies.h"
#include "reports/RptTakken.h"
#include "reports/RptTijdbalk.h"
#include "reports/SchemaVerwantschap.h"
#include "reports/SelectOpm.h"
#include "reports/SelectPlts.h"
#include "reports/SelectPrs.h"
#include "reports/SelectRel.h"

namespace lb77 {

Programma::Programma(Gesprek& gesprek, const Klok& klok, const std::filesystem::path& programmaMap,
                     MenuVoor voor)
    : hoofd_(gesprek, klok, programmaMap), menu_(hoofd_, voor) {
  HangOp();
}

bool Programma::Start() {
  return lb77::Start(hoofd_);
}

// The last net below the dialogs. What ends a script is no std::exception: it drops the session.
void Programma::Voer() {
  try {
    hoofd_.gesprek.ToonModaal(menu_);
  } catch (const std::exception&) {
    hoofd_.Ini.IniSchrijf();
    throw;
  }
}

void Programma::HangOp() {
  Gesprek& gesprek = hoofd_.gesprek;
  menu_.Hang("MaakSet", [this, &gesprek] { gesprek.Toon<NieuweSet>(hoofd_, menu_); });
  menu_.Hang("OpenSet", [this, &gesprek] { gesprek.Toon<OpenSetForm>(hoofd_, menu_); });
  menu_.Hang("VerwijderSet", [this, &gesprek] { gesprek.Toon<VerwijderSetForm>(hoofd_, menu_); });
  menu_.Hang("InvPlaats", [this, &gesprek] { gesprek.Toon<ToonPlaatsen>(hoofd_); });
  menu_.Hang("SetupGebruiker", [this, &gesprek] { gesprek.Toon<IniGebruiker>(hoofd_); });
  menu_.Hang("SetupGezindte", [this, &gesprek] { gesprek.Toon<IniGezindte>(hoofd_); });
  menu_.Hang("SetupVoorvoeg", [this, &gesprek] { gesprek.Toon<IniVoorvoeg>(hoofd_); });
  menu_.Hang("SetupVoorkeur", [this, &gesprek] { gesprek.Toon<IniVoorkeur>(hoofd_); });
  menu_.Hang("SetupToetsen", [this, &gesprek] { gesprek.Toon<IniFunctie>(hoofd_); });
  menu_.Hang("SetupSysteem", [this, &gesprek] { gesprek.Toon<IniSysteem>(hoofd_); });
  menu_.Hang("InvPersRel", [this] { ToonPersonenEnRelaties(hoofd_); });
  menu_.Hang("ExpHSK", [this] { static_cast<void>(ExporteerContact(hoofd_)); });
  menu_.Hang("ImportGedcom", [this, &gesprek] { gesprek.Toon<ImpGedcom>(hoofd_); });
  HangExportOp();
  menu_.Hang("ExportGedcom", [this, &gesprek] { gesprek.Toon<ExpGedcom>(hoofd_); });
  menu_.Hang("ViewTekst", [this, &gesprek] { gesprek.Toon<BekijkTekst>(hoofd_); });
  menu_.Hang("TekstKwst", [this, &gesprek] { gesprek.Toon<KwstPrs>(kKwstTxtPrs, hoofd_); });
  menu_.Hang("IndexKwst", [this, &gesprek] { gesprek.Toon<KwstPrs>(kKwstIdxPrs, hoofd_); });
  menu_.Hang("SchemaKwst", [this, &gesprek] { gesprek.Toon<KwstPrs>(kKwstSchPrs, hoofd_); });
  menu_.Hang("SchemaKwBlad", [this, &gesprek] { gesprek.Toon<KwstPrs>(kKwstBldPrs, hoofd_); });
  menu_.Hang("TekstGen", [this, &gesprek] { gesprek.Toon<GenPrs>(kGenTxtPrs, hoofd_); });
  menu_.Hang("IndexGen", [this, &gesprek] { gesprek.Toon<GenPrs>(kGenIdxPrs, hoofd_); });
  menu_.Hang("SchemaGen", [this, &gesprek] { gesprek.Toon<GenPrs>(kGenSchPrs, hoofd_); });
  menu_.Hang("UitvPKaart", [this, &gesprek] { gesprek.Toon<Krtn>(kPrsKrtn, hoofd_); });
  menu_.Hang("UitvRKaart", [this, &gesprek] { gesprek.Toon<Krtn>(kRelKrtn, hoofd_); });
  menu_.Hang("SchemaVerwant", [this, &gesprek] { gesprek.Toon<SchemaVerwantschap>(hoofd_); });
  menu_.Hang("SchemaGezin", [this, &gesprek] { gesprek.Toon<GezinSchPrs>(hoofd_); });
  HangControlesOp();
  HangRapportenOp();
  HangBeeldenOp();
  menu_.Hang("VeiligOngedaan", [this] { MaakLaatsteOngedaan(hoofd_.MaakOpslag()); });
  menu_.Hang("VeiligGeschiedenis", [this, &gesprek] { gesprek.Toon<Geschiedenis>(hoofd_); });
  menu_.Hang("VeiligKopie", [this, &gesprek] { MaakVeiligheidskopie(KopieVan(hoofd_), gesprek); });
  menu_.Hang("VeiligTerugzetten", [this, &gesprek] { gesprek.Toon<KopieTerugzetten>(hoofd_); });
  menu_.Hang("VeiligPlaats", [this, &gesprek] { gesprek.Toon<KopiePlaats>(hoofd_); });
  menu_.Hang("AboutLB77", [&gesprek] { gesprek.Toon<OverLB77Form>(); });
}

void Programma::HangExportOp() {
  Gesprek& gesprek = hoofd_.gesprek;
  menu_.Hang("ExportAscii", [this, &gesprek] { gesprek.Toon<ExpAscii>(hoofd_); });
  menu_.Hang("DumpPrs", [this, &gesprek] { gesprek.Toon<ExpDump>(kExpDumpPers, hoofd_); });
  menu_.Hang("DumpRel", [this, &gesprek] { gesprek.Toon<ExpDump>(kExpDumpRel, hoofd_); });
  menu_.Hang("DumpPlts", [this, &gesprek] { gesprek.Toon<ExpDump>(kExpDumpPlts, hoofd_); });
  menu_.Hang("DumpOpm", [this, &gesprek] { gesprek.Toon<ExpDump>(kExpDumpOpm, hoofd_); });
}

void Programma::HangControlesOp() {
  Gesprek& gesprek = hoofd_.gesprek;
  menu_.Hang("ContrPrs", [this, &gesprek] { gesprek.Toon<ControleForm>(kControlePrs, hoofd_); });
  menu_.Hang("ContrRel", [this, &gesprek] { gesprek.Toon<ControleForm>(kControleRel, hoofd_); });
  menu_.Hang("ContrPlts", [this, &gesprek] { gesprek.Toon<ControleForm>(kControlePlts, hoofd_); });
  menu_.Hang("ContrOpm", [this, &gesprek] { gesprek.Toon<ControleForm>(kControleOpm, hoofd_); });
  menu_.Hang("CorrigeerAdminPers",
             [this, &gesprek] { gesprek.Toon<CorrAdm>(kCorrPrsAdm, hoofd_); });
  menu_.Hang("CorrigeerAdminRel", [this, &gesprek] { gesprek.Toon<CorrAdm>(kCorrRelAdm, hoofd_); });
  menu_.Hang("CorrigeerAdminOpm", [this, &gesprek] { gesprek.Toon<CorrOpmAdm>(hoofd_); });
  menu_.Hang("CorrigeerAdminPlaats",
             [this, &gesprek] { gesprek.Toon<CorrAdm>(kCorrPltsAdm, hoofd_); });
  menu_.Hang("VerwijsPers", [this] { Corrigeer(hoofd_, kVraagPersRecord); });
  menu_.Hang("VerwijsRel", [this] { Corrigeer(hoofd_, kVraagRelRecord); });
  menu_.Hang("VerwijsOpm", [this] { Corrigeer(hoofd_, kVraagOpmRecord); });
  menu_.Hang("VerwijsPlaats", [this, &gesprek] { gesprek.Toon<CorrPltsAlg>(hoofd_); });
  menu_.Hang("VerwijsPersVervolg", [this] { Corrigeer(hoofd_, kVraagPersVervolg); });
  menu_.Hang("VerwijsRelVervolg", [this] { Corrigeer(hoofd_, kVraagRelVervolg); });
}

void Programma::HangRapportenOp() {
  Gesprek& gesprek = hoofd_.gesprek;
  menu_.Hang("RptSelPrs", [this, &gesprek] { gesprek.Toon<SelectPrs>(hoofd_); });
  menu_.Hang("RptSelRel", [this, &gesprek] { gesprek.Toon<SelectRel>(hoofd_); });
  menu_.Hang("RptSelPlts", [this, &gesprek] { gesprek.Toon<SelectPlts>(hoofd_); });
  menu_.Hang("RptSelOpm", [this, &gesprek] { gesprek.Toon<SelectOpm>(hoofd_); });
  menu_.Hang("RapportTakken", [this, &gesprek] { gesprek.Toon<RptTakken>(hoofd_); });
  menu_.Hang("RapportFamilies", [this, &gesprek] { gesprek.Toon<RptFamilies>(hoofd_); });
  menu_.Hang("RapportTijdbalk", [this, &gesprek] { gesprek.Toon<RptTijdbalk>(hoofd_); });
}

void Programma::HangBeeldenOp() {
  Gesprek& gesprek = hoofd_.gesprek;
  menu_.Hang("BeeldWaaier",
             [this, &gesprek] { gesprek.Toon<KwartierBeeldPrs>(kWaaierPrs, hoofd_); });
  menu_.Hang("BeeldKwartier",
             [this, &gesprek] { gesprek.Toon<KwartierBeeldPrs>(kKwartierPrs, hoofd_); });
  menu_.Hang("BeeldStam", [this, &gesprek] { gesprek.Toon<StamBeeldPrs>(hoofd_); });
  menu_.Hang("BeeldTijd", [this, &gesprek] { gesprek.Toon<TijdBeeldPrs>(hoofd_); });
}

void VoerProgramma(Gesprek& gesprek, const Klok& klok, const std::filesystem::path& programmaMap) {
  Programma programma(gesprek, klok, programmaMap);
  if (programma.Start()) programma.Voer();
}

}  // namespace lb77
