// The dialogs that mend records by hand.
#include "checks/CorrAdm.h"
#include "checks/CorrOpmAdm.h"
#include "checks/CorrOpmAlg.h"
#include "checks/CorrPlts.h"
#include "checks/CorrVerwijzingen.h"
#include "checks/CorrVraag.h"
#include "program/formulieren/Gebieden.h"

namespace lb77::formulieren {
namespace {

constexpr std::int16_t kEersteRecord = 2;
constexpr std::int16_t kZonderVerwijzing = 3;

GemaaktFormulier MaakVerwijzingen(Programma& p, const CorrSoort& soort) {
  Hoofdmodule& hoofd = OpVoorbeeld(p);
  hoofd.volgers.HuidigRelatieNr = kEersteRecord;
  return Maak<CorrVerwijzingen>(soort, hoofd);
}

// A place that nobody names, so that the sample stays as it is.
GemaaktFormulier MaakVervanging(Programma& p) {
  return Maak<CorrPltsTemp>(p.Hoofd(), kZonderVerwijzing, kEersteRecord, "Plaatscode vervangen");
}

constexpr FormulierRij kRijen[] = {
    {"CorrPrsAdm", [](Programma& p) { return Maak<CorrAdm>(kCorrPrsAdm, p.Hoofd()); }},
    {"CorrRelAdm", [](Programma& p) { return Maak<CorrAdm>(kCorrRelAdm, p.Hoofd()); }},
    {"CorrOpmAdm", [](Programma& p) { return Maak<CorrOpmAdm>(p.Hoofd()); }},
    {"CorrPltsAdm", [](Programma& p) { return Maak<CorrAdm>(kCorrPltsAdm, p.Hoofd()); }},
    {"VraagPersRecord", [](Programma& p) { return Maak<CorrVraag>(kVraagPersRecord, p.Hoofd()); }},
    {"VraagRelRecord", [](Programma& p) { return Maak<CorrVraag>(kVraagRelRecord, p.Hoofd()); }},
    {"VraagOpmRecord", [](Programma& p) { return Maak<CorrVraag>(kVraagOpmRecord, p.Hoofd()); }},
    {"VraagPersVervolg",
     [](Programma& p) { return Maak<CorrVraag>(kVraagPersVervolg, p.Hoofd()); }},
    {"VraagRelVervolg", [](Programma& p) { return Maak<CorrVraag>(kVraagRelVervolg, p.Hoofd()); }},
    {"CorrPrsAlg", [](Programma& p) { return MaakVerwijzingen(p, kCorrPrsAlg); }},
    {"CorrRelAlg", [](Programma& p) { return MaakVerwijzingen(p, kCorrRelAlg); }},
    {"CorrOpmAlg",
     [](Programma& p) {
       p.Hoofd().volgers.HuidigOpmNr = kEersteRecord;
       return Maak<CorrOpmAlg>(p.Hoofd());
     }},
    {"CorrPltsAlg", [](Programma& p) { return Maak<CorrPltsAlg>(p.Hoofd()); }},
    {"CorrPltsTemp", MaakVervanging},
    {"CorrPrsVlg", [](Programma& p) { return MaakVerwijzingen(p, kCorrPrsVlg); }},
    {"CorrRelVlg", [](Programma& p) { return MaakVerwijzingen(p, kCorrRelVlg); }},
};

}  // namespace

std::span<const FormulierRij> Correctie() {
  return kRijen;
}

}  // namespace lb77::formulieren
