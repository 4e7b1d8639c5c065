// The descendant reports.
#include <filesystem>
#include <memory>

#include "descendants/GenBereken.h"
#include "descendants/GenPrs.h"
#include "descendants/GenSchBlok.h"
#include "descendants/GenSchParam.h"
#include "descendants/GenTekstParam.h"
#include "descendants/GenTemp.h"
#include "descendants/GenUitsluit.h"
#include "program/formulieren/Gebieden.h"
#include "reporting/HTMLParam.h"

namespace lb77::formulieren {
namespace {

std::shared_ptr<GenRun> MaakGen() {
  auto run = std::make_shared<GenRun>();
  run->opties.GenStamouderNr = kVoorbeeldPersoon;
  run->tabel.Begin(kVoorbeeldPersoon, "M");
  run->rijen.Begin(1);
  run->rijen.PlaatsBlad(0);
  return run;
}

constexpr FormulierRij kRijen[] = {
    {"GenTxtPrs", [](Programma& p) { return Maak<GenPrs>(kGenTxtPrs, p.Hoofd()); }},
    {"GenTxtParam",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{
           run, std::make_unique<GenTekstParam>(kGenTxtParam, p.Hoofd(), run->opties)};
     }},
    {"GenTxtUitsluit",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{
           run, std::make_unique<GenUitsluit>(kGenTxtUitsluit, p.Hoofd(), run->opties)};
     }},
    {"GenHTMLParam",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{
           run, std::make_unique<HTMLParam>(kGenHTMLParam, p.Hoofd(), run->opties.teksten)};
     }},
    {"GenBereken",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{run,
                               std::make_unique<GenBereken>(p.Hoofd(), run->opties, run->tabel)};
     }},
    {"GenMaakTemp",
     [](Programma& p) {
       auto run = MaakGen();
       const std::filesystem::path pad = p.Hoofd().Ini.TempDir() / "GEN_DATA.TMP";
       return GemaaktFormulier{run, std::make_unique<GenTemp>(kGenMaakTemp, p.Hoofd(), *run, pad)};
     }},
    {"GenIdxPrs", [](Programma& p) { return Maak<GenPrs>(kGenIdxPrs, p.Hoofd()); }},
    {"GenIdxParam",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{
           run, std::make_unique<GenTekstParam>(kGenIdxParam, p.Hoofd(), run->opties)};
     }},
    {"GenIdxUitsluit",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{
           run, std::make_unique<GenUitsluit>(kGenIdxUitsluit, p.Hoofd(), run->opties)};
     }},
    {"GenMaakIdxTemp",
     [](Programma& p) {
       auto run = MaakGen();
       const std::filesystem::path pad = p.Hoofd().Ini.TempDir() / "GEN_INDX.TMP";
       return GemaaktFormulier{run,
                               std::make_unique<GenTemp>(kGenMaakIdxTemp, p.Hoofd(), *run, pad)};
     }},
    {"GenSchPrs", [](Programma& p) { return Maak<GenPrs>(kGenSchPrs, p.Hoofd()); }},
    {"GenSchParam",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{run, std::make_unique<GenSchParam>(p.Hoofd(), run->opties)};
     }},
    {"GenSchUitsluit",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{
           run, std::make_unique<GenUitsluit>(kGenSchUitsluit, p.Hoofd(), run->opties)};
     }},
    {"GenSchBlok",
     [](Programma& p) {
       auto run = MaakGen();
       return GemaaktFormulier{
           run, std::make_unique<GenSchBlok>(p.Hoofd(), run->tabel, false, run->rijen)};
     }},
    {"GenSchTemp",
     [](Programma& p) {
       auto run = MaakGen();
       const std::filesystem::path pad = p.Hoofd().Ini.TempDir() / "GEN_DATA.TMP";
       return GemaaktFormulier{run, std::make_unique<GenTemp>(kGenSchTemp, p.Hoofd(), *run, pad)};
     }},
};

}  // namespace

std::span<const FormulierRij> Descendants() {
  return kRijen;
}

}  // namespace lb77::formulieren
