#include "checks/ControleSoorten.h"

#include "checks/ControleOpmRegels.h"
#include "checks/ControlePltsRegels.h"
#include "checks/ControlePrsRegels.h"
#include "checks/ControleRelRegels.h"

namespace lb77 {

namespace {

constexpr ControleOptie kOptiesPrs[] = {
    {"VerwijsOuders", "Verwijzing naar ouders", "Verwijzing naar ouders: "},
    {"GebDoop", "Volgorde geb-doop-ov-begr", "Volgorde geboorte-doop-overlijden-begraven: "},
    {"MaxLeeftijd", "Leeftijd meer dan 100 jaar", "Leeftijd meer dan 100 jaar: "},
    {"LeeftijdOuders", "Leeftijd ouders bij geboorte", "Leeftijd ouders bij geboorte: "},
    {"VerwijsRelaties", "Verwijzing naar relaties", "Verwijzing naar relaties: "},
};

// kept: 10 here, where more than 15 is what is told.
constexpr ControleOptie kOptiesRel[] = {
    {"VerwijsPartners", "Verwijzing naar partners", "Verwijzing naar partners: "},
    {"OtrTrouw", "Volgorde otr-huw-khuw", "Volgorde otr-huw-khuw: "},
    {"Leeftijdsverschil", "Verschil leeftijd partners > 10 jaar",
     "Verschil leeftijd partners meer dan 10 jaar: "},
    {"LeeftijdPartners", "Leeftijd partners bij huwelijk < 18 jaar",
     "Leeftijd partners bij huwelijk < 18 jaar: "},
    {"VerwijsKinderen", "Verwijzing naar kinderen", "Verwijzing naar kinderen: "},
};

constexpr ControleOptie kOptiesPlts[] = {
    {"DubbelePlaatsen", "Dubbele plaatsen", "Test op dubbele plaatsnamen: "},
    {"OngebruiktePlaatsen", "Ongebruikte Plaatsnamen", "Test op ongebruikte plaatsnamen: "},
};

template <class Regels>
std::unique_ptr<Controleur> Maak(RecordBron& bron, const ControleKeuzen& keuzen) {
  return std::make_unique<Regels>(bron, keuzen);
}

std::unique_ptr<Controleur> MaakOpm(RecordBron& bron, const ControleKeuzen&) {
  return std::make_unique<ControleOpmRegels>(bron);
}

}  // namespace

constexpr ControleSoort kControlePrs{.naam = "ControlePrs",
                                     .titel = "Controleer Persoonsbestand",
                                     .verslag = "Controle Persoonsbestand",
                                     .bestand = "CTRL_PRS.TMP",
                                     .teller = "PersonenGedaan",
                                     .telling = "Aantal Personen gecontroleerd",
                                     .geenRecords = "Er zijn geen persoonsrecords aanwezig",
                                     .opties = kOptiesPrs,
                                     .maak = Maak<ControlePrsRegels>};

constexpr ControleSoort kControleRel{.naam = "ControleRel",
                                     .titel = "Controleer Relatiebestand",
                                     .verslag = "Controle Relatiebestand",
                                     .bestand = "CTRL_REL.TMP",
                                     .teller = "RelatiesGedaan",
                                     .telling = "Aantal Relaties gecontroleerd",
                                     .geenRecords = "Er zijn geen relatierecords aanwezig",
                                     .opties = kOptiesRel,
                                     .maak = Maak<ControleRelRegels>};

constexpr ControleSoort kControlePlts{.naam = "ControlePlts",
                                      .titel = "Controleer Plaatsbestand",
                                      .verslag = "Controle Plaatsbestand",
                                      .bestand = "CTRLPLTS.TMP",
                                      .teller = "PlaatsenGedaan",
                                      .telling = "Aantal Plaatsen gecontroleerd",
                                      .geenRecords = "Er zijn geen plaatsrecords aanwezig",
                                      .opties = kOptiesPlts,
                                      .maak = Maak<ControlePltsRegels>};

constexpr ControleSoort kControleOpm{
    .naam = "ControleOpm",
    .titel = "Controleer Opmerkingenbestand",
    .verslag = "Controle Opmerkingenbestand",
    .bestand = "CTRL_OPM.TMP",
    .teller = "OpmerkingenGedaan",
    .telling = "Aantal Opmerkingen gecontroleerd",
    .geenRecords = "Er zijn geen opmerkingen in deze bestandenset aanwezig",
    .opties = {},
    .maak = MaakOpm};

}  // namespace lb77
