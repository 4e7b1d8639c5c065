// The ancestor reports.
#include <filesystem>
#include <memory>

#include "ancestors/KwstBereken.h"
#include "ancestors/KwstPrs.h"
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

constexpr FormulierRij kRijen[] = {
    {"KwstTxtPrs", [](Programma& p) { return Maak<KwstPrs>(kKwstTxtPrs, p.Hoofd()); }},
    {"KwstTxtParam",
     [](Programma& p) {
       auto kwst = MaakKwst();
       return GemaaktFormulier{
           kwst, std::make_unique<KwstTekstParam>(kKwstTxtParam, p.Hoofd(), kwst->opties)};
     }},
    {"KwHTMLParam",
     [](Programma& p) {
       auto kwst = MaakKwst();
       return GemaaktFormulier{
           kwst, std::make_unique<HTMLParam>(kKwHTMLParam, p.Hoofd(), kwst->opties.teksten)};
     }},
    {"KwstBereken",
     [](Programma& p) {
       auto kwst = MaakKwst();
       return GemaaktFormulier{kwst,
                               std::make_unique<KwstBereken>(p.Hoofd(), kwst->opties, kwst->tabel)};
     }},
    {"KwstMaakTemp",
     [](Programma& p) {
       auto kwst = MaakKwst();
       const std::filesystem::path pad = p.Hoofd().Ini.TempDir() / "KWSTDATA.TMP";
       return GemaaktFormulier{kwst, std::make_unique<KwstTemp>(kKwstMaakTemp, p.Hoofd(),
                                                                kwst->opties, kwst->tabel, pad)};
     }},
};

}  // namespace

std::span<const FormulierRij> Ancestors() {
  return kRijen;
}

}  // namespace lb77::formulieren
