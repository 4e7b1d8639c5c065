// The ancestor reports.
#include <filesystem>
#include <memory>

#include "ancestors/KwstBereken.h"
#include "ancestors/KwstBladen.h"
#include "ancestors/KwstBldParam.h"
#include "ancestors/KwstPrs.h"
#include "ancestors/KwstSchParam.h"
#include "ancestors/KwstTekstParam.h"
#include "ancestors/KwstTemp.h"
#include "program/formulieren/Gebieden.h"
#include "reporting/HTMLParam.h"

namespace lb77::formulieren {
namespace {

// What the forms of an ancestor report refer to.
struct KwstVoorbeeld {
  KwstOpties opties;
  KwstTabel tabel;
};

std::shared_ptr<KwstVoorbeeld> MaakKwst() {
  auto voorbeeld = std::make_shared<KwstVoorbeeld>();
  voorbeeld->opties.KwProbandNr = kVoorbeeldPersoon;
  voorbeeld->tabel.Begin(kVoorbeeldPersoon, true, voorbeeld->opties.KwBeginNr);
  return voorbeeld;
}

template <const KwstTekstParamSoort& kSoort>
GemaaktFormulier Opties(Programma& p) {
  auto kwst = MaakKwst();
  return {kwst, std::make_unique<KwstTekstParam>(kSoort, p.Hoofd(), kwst->opties)};
}

template <const HTMLParamSoort& kSoort>
GemaaktFormulier Links(Programma& p) {
  auto kwst = MaakKwst();
  return {kwst, std::make_unique<HTMLParam>(kSoort, p.Hoofd(), kwst->opties.teksten)};
}

template <const KwstTempSoort& kSoort>
GemaaktFormulier Schrijven(Programma& p) {
  auto kwst = MaakKwst();
  const std::filesystem::path pad = p.Hoofd().Ini.TempDir() / "KWST.TMP";
  return {kwst, std::make_unique<KwstTemp>(kSoort, p.Hoofd(), kwst->opties, kwst->tabel, pad)};
}

GemaaktFormulier Berekenen(Programma& p) {
  auto kwst = MaakKwst();
  return {kwst, std::make_unique<KwstBereken>(p.Hoofd(), kwst->opties, kwst->tabel)};
}

constexpr FormulierRij kRijen[] = {
    {"KwstTxtPrs", [](Programma& p) { return Maak<KwstPrs>(kKwstTxtPrs, p.Hoofd()); }},
    {"KwstTxtParam", Opties<kKwstTxtParam>},
    {"KwHTMLParam", Links<kKwHTMLParam>},
    {"KwstBereken", Berekenen},
    {"KwstMaakTemp", Schrijven<kKwstMaakTemp>},
    {"KwstIdxPrs", [](Programma& p) { return Maak<KwstPrs>(kKwstIdxPrs, p.Hoofd()); }},
    {"KwstIdxParam", Opties<kKwstIdxParam>},
    {"KwidxHTMLParam", Links<kKwidxHTMLParam>},
    {"KwstIdxTemp", Schrijven<kKwstIdxTemp>},
    {"KwstSchPrs", [](Programma& p) { return Maak<KwstPrs>(kKwstSchPrs, p.Hoofd()); }},
    {"KwstSchParam",
     [](Programma& p) {
       auto kwst = MaakKwst();
       return GemaaktFormulier{kwst, std::make_unique<KwstSchParam>(p.Hoofd(), kwst->opties)};
     }},
    {"KwstSchTemp", Schrijven<kKwstSchTemp>},
    {"KwstBldPrs", [](Programma& p) { return Maak<KwstPrs>(kKwstBldPrs, p.Hoofd()); }},
    {"KwstBladen",
     [](Programma& p) {
       auto kwst = MaakKwst();
       Hoofdmodule& hoofd = p.Hoofd();
       kwst->opties.KwVolgHerh = true;
       static_cast<void>(BouwKwst(kwst->tabel, kwst->opties, hoofd.Persoon, hoofd.Relatie,
                                  hoofd.volgers, {[] { return false; }, [](int, int) {}}));
       return GemaaktFormulier{kwst,
                               std::make_unique<KwstBladen>(p.Hoofd(), kwst->opties, kwst->tabel)};
     }},
    {"KwstBldParam",
     [](Programma& p) {
       auto kwst = MaakKwst();
       return GemaaktFormulier{
           kwst, std::make_unique<KwstBldParam>(p.Hoofd(), kwst->opties, kwst->tabel, 0)};
     }},
};

}  // namespace

std::span<const FormulierRij> Ancestors() {
  return kRijen;
}

}  // namespace lb77::formulieren
