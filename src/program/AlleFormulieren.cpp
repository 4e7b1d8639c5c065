#include "program/AlleFormulieren.h"

#include <filesystem>
#include <fstream>
#include <utility>

#include "ancestors/KwstBereken.h"
#include "ancestors/KwstMaakTemp.h"
#include "ancestors/KwstTxtParam.h"
#include "ancestors/KwstTxtPrs.h"
#include "app/IniGebruiker.h"
#include "app/NieuweSet.h"
#include "app/OpenSetForm.h"
#include "app/OverLB77Form.h"
#include "app/VerwijderSetForm.h"
#include "entry/OKPersoon.h"
#include "entry/PersInfoForm.h"
#include "entry/VraagFilter.h"
#include "entry/VraagProv.h"
#include "entry/VraagRecordNr.h"
#include "entry/ZoekPrs.h"
#include "exchange/ImpGedcom.h"
#include "output/BekijkTekst.h"
#include "output/ToonTekst.h"
#include "reporting/HTMLParam.h"

namespace lb77 {
namespace {

constexpr std::int16_t kVoorbeeldPersoon = 2;

// What the forms of an ancestor report refer to.
struct KwstVoorbeeld {
  KwstOpties opties;
  KwstTabel tabel;
};

template <class Form, class... Args>
GemaaktFormulier Maak(Args&&... args) {
  return {nullptr, std::make_unique<Form>(std::forward<Args>(args)...)};
}

std::shared_ptr<KwstVoorbeeld> MaakKwst() {
  auto voorbeeld = std::make_shared<KwstVoorbeeld>();
  voorbeeld->opties.KwProbandNr = kVoorbeeldPersoon;
  voorbeeld->tabel.Begin(kVoorbeeldPersoon, true, voorbeeld->opties.KwBeginNr);
  return voorbeeld;
}

// The forms on a person take the one that the session stands on.
Hoofdmodule& OpVoorbeeld(Programma& programma) {
  programma.Hoofd().volgers.HuidigPersoonNr = kVoorbeeldPersoon;
  return programma.Hoofd();
}

std::filesystem::path VoorbeeldTekst(Hoofdmodule& hoofd) {
  std::filesystem::path pad = hoofd.Ini.TempDir() / "KWSTDATA.TMP";
  std::ofstream(pad, std::ios::binary) << "Generatie I\r\n\r\n     1  Voorbeeld.\r\n";
  return pad;
}

constexpr FormulierRij kFormulieren[] = {
    {"NieuweSet", [](Programma& p) { return Maak<NieuweSet>(p.Hoofd(), p.Menu()); }},
    {"OpenSetForm", [](Programma& p) { return Maak<OpenSetForm>(p.Hoofd(), p.Menu()); }},
    {"VerwijderSetForm", [](Programma& p) { return Maak<VerwijderSetForm>(p.Hoofd(), p.Menu()); }},
    {"IniGebruiker", [](Programma& p) { return Maak<IniGebruiker>(p.Hoofd()); }},
    {"OverLB77Form", [](Programma&) { return Maak<OverLB77Form>(); }},
    {"ImpGedcom", [](Programma& p) { return Maak<ImpGedcom>(p.Hoofd()); }},
    {"BekijkTekst", [](Programma& p) { return Maak<BekijkTekst>(p.Hoofd()); }},
    {"ToonTekst",
     [](Programma& p) {
       return Maak<ToonTekst>(p.Hoofd(), VoorbeeldTekst(p.Hoofd()), "Kwartierstaat in Tekstvorm");
     }},
    {"ZoekPrs", [](Programma& p) { return Maak<ZoekPrs>(OpVoorbeeld(p)); }},
    {"VraagFilter",
     [](Programma&) {
       auto filter = std::make_shared<NaamFilter>();
       return GemaaktFormulier{filter, std::make_unique<VraagFilter>(*filter)};
     }},
    {"VraagRecordNr", [](Programma&) { return Maak<VraagRecordNr>("Ga naar Persoonsrecord"); }},
    {"PersInfoForm", [](Programma& p) { return Maak<PersInfoForm>(OpVoorbeeld(p)); }},
    {"OKPersoon", [](Programma& p) { return Maak<OKPersoon>(OpVoorbeeld(p), "Jan", "Jansen"); }},
    {"VraagProv", [](Programma&) { return Maak<VraagProv>("Delft", "  "); }},
    {"KwstTxtPrs", [](Programma& p) { return Maak<KwstTxtPrs>(p.Hoofd()); }},
    {"KwstTxtParam",
     [](Programma& p) {
       auto kwst = MaakKwst();
       return GemaaktFormulier{kwst, std::make_unique<KwstTxtParam>(p.Hoofd(), kwst->opties)};
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
       return GemaaktFormulier{
           kwst, std::make_unique<KwstMaakTemp>(p.Hoofd(), kwst->opties, kwst->tabel, pad)};
     }},
};

}  // namespace

std::span<const FormulierRij> AlleFormulieren() {
  return kFormulieren;
}

}  // namespace lb77
