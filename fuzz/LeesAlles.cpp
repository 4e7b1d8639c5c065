#include "LeesAlles.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "app/Hoofdmodule.h"
#include "checks/ControleSoorten.h"
#include "output/Verteller.h"
#include "output/Zinnen.h"
#include "reporting/RecordBron.h"

namespace lb77::fuzz {
namespace {

// Everything was called to get here.
template <class... Waarden>
void Bekijk(const Waarden&...) {}

// All numbers that a file of so many bytes has room for, and the ones around and far off them.
std::vector<std::int16_t> Nummers(std::size_t bytes, std::size_t recordLengte) {
  std::vector<std::int16_t> nummers = {std::numeric_limits<std::int16_t>::min(), -2, -1, 0,
                                       std::numeric_limits<std::int16_t>::max()};
  const auto laatste = static_cast<std::int16_t>(std::min<std::size_t>(bytes / recordLengte, 200));
  for (std::int16_t nr = 1; nr <= laatste + 2; ++nr) nummers.push_back(nr);
  return nummers;
}

void LeesVelden(const PersoonLB77& p) {
  Bekijk(p.GebDatum(), p.DoopDatum(), p.OvlDatum(), p.BegrDatum(), p.GebDagMaand(), p.OvDagMaand(),
         p.BegrDagMaand(), p.DoopDagMaand(), p.GebJaar(), p.OvJaar(), p.DoopJaar(), p.BegrJaar(),
         p.BegrCrem(), p.GebPlaatsNr(), p.DoopPlaatsNr(), p.OvlPlaatsNr(), p.BegrPlaatsNr(),
         p.RelNrOuders(), p.OpmRecord(), p.OpmCode(), p.VoorNaamTrue(), p.NaamVoluit(),
         p.AchterNaamTrue(), p.AchterNaamVVC(), p.beroep(), p.Religie(), p.relatie1(), p.relatie2(),
         p.relatie3(), p.Geslacht(), p.GebCorr(), p.OvlCorr(), p.GebDatum10(), p.OvlDatum10(),
         p.DoopDatum10(), p.BegrDatum10(), p.IsVolgRecord());
}

void LeesVelden(const RelatieLB77& r) {
  Bekijk(r.IsVolgRecord(), r.OpmCode(), r.OpmRecord(), r.Religie(), r.HuwSoort(), r.KHuwJaar(),
         r.WetHuwJaar(), r.KHuwDagMaand(), r.WetHuwDagMaand(), r.OtrJaar(), r.OtrDagMaand(),
         r.HuwCorr(), r.ManNr(), r.VrouwNr(), r.OtrDatum10(), r.WetHuwDatum10(), r.KHuwDatum10(),
         r.OtrDatum(), r.WHuwDatum(), r.KHuwDatum(), r.OtrPlaatsNr(), r.WetHuwPlaatsNr(),
         r.KHuwPlaatsNr(), r.KHuwSch(), r.HuwSwPs());
  for (std::int16_t i = -1; i <= 16; ++i) Bekijk(r.kind(i), r.KindNr(i));
}

template <class Klasse>
void LeesTellingen(Klasse& klasse) {
  Bekijk(klasse.LeesAdmin());
  Bekijk(klasse.AantalInAdmin());
  Bekijk(klasse.AantalRecords());
  Bekijk(klasse.MaxRecordNr());
}

void LeesOpmerkingen(OpmLB77& opm, std::int16_t code, std::int16_t begin) {
  constexpr std::int16_t kRubrieken[] = {1, 8, 4096, -1, -256};
  constexpr std::int16_t kRegels[] = {1, 2, 10, 11, 20, 21};
  Bekijk(opm.RecordnrEindeKetting(begin));
  Bekijk(opm.BepaalOpmCode(begin));
  for (const std::int16_t rubriek : kRubrieken) {
    for (const std::int16_t regel : kRegels) {
      Bekijk(opm.OpmerkingTekst(code, begin, rubriek, regel, false));
      Bekijk(opm.OpmerkingProgs(code, begin, rubriek, regel, true));
    }
  }
}

void LeesPersoon(Hoofdmodule& hoofd, std::int16_t nr) {
  PersoonLB77& p = hoofd.Persoon;
  Huwtab huwelijken{};
  std::string voor;
  std::string achter;
  if (p.Lees(nr)) {
    LeesVelden(p);
    LeesOpmerkingen(hoofd.Opmerking, p.OpmCode(), p.OpmRecord());
  }
  p.HeleNaam(nr, voor, achter, "N.N.");
  Bekijk(p.AantalHuw(nr));
  Bekijk(p.VulHuwtab(nr, huwelijken).aantal);
  Bekijk(p.IsMan(nr));
  Bekijk(p.Periode(nr));
  Zinnen zinnen(hoofd.MaakGegevens());
  Bekijk(zinnen.PersoonZin(nr));
  Bekijk(zinnen.PersoonInfoTekst(nr));
  Bekijk(zinnen.PartnersZin(nr, true));
}

void LeesRelatie(Hoofdmodule& hoofd, std::int16_t nr) {
  RelatieLB77& r = hoofd.Relatie;
  Kindtab kinderen{};
  if (r.Lees(nr)) {
    LeesVelden(r);
    LeesOpmerkingen(hoofd.Opmerking, r.OpmCode(), r.OpmRecord());
  }
  Zinnen zinnen(hoofd.MaakGegevens());
  Bekijk(r.VulKindtab(nr, kinderen).aantal);
  Bekijk(zinnen.RelatieZin(nr, 2, false));
}

void LeesOpmerking(Hoofdmodule& hoofd, std::int16_t nr) {
  OpmLB77& o = hoofd.Opmerking;
  hoofd.volgers.HuidigOpmNr = nr;
  if (!o.Lees()) return;
  Bekijk(o.Rubriek(), o.BijRecord(), o.BijProg(), o.VolgRegel(), o.BijZelfde(), o.Tekstregel(),
         o.AlleenHTML());
}

// Persons and relations as a report tells them, with everything switched on.
void Vertel(Hoofdmodule& hoofd, bool inHTML, const std::vector<std::int16_t>& personen,
            const std::vector<std::int16_t>& relaties) {
  TekstSchrijver uit;
  if (!uit.Open(ProgrammaMap() / "VERTEL.TXT")) return;
  ZinOpties opties;
  opties.ookOpm = true;
  opties.ookNrs = true;
  opties.inHTML = inHTML;
  Verteller verteller(hoofd.MaakGegevens(), uit, opties);
  for (const std::int16_t nr : personen) {
    if (!verteller.SchrijfPersoon(nr)) continue;
    const std::int16_t ouders = hoofd.Persoon.RelNrOuders();
    verteller.SchrijfAlgemeneOpm(hoofd.Persoon.OpmRecord(), hoofd.Persoon.OpmCode(),
                                 kRubriekPersoon);
    Bekijk(verteller.SchrijfOuders(1, ouders));
  }
  for (const std::int16_t nr : relaties) {
    if (!verteller.SchrijfRelatie(nr, 2)) continue;
    verteller.SchrijfAlgemeneOpm(hoofd.Relatie.OpmRecord(), hoofd.Relatie.OpmCode(),
                                 kRubriekRelatie);
  }
  Bekijk(uit.Sluit());
}

void SchrijfOpmerking(Hoofdmodule& hoofd, std::int16_t persoon, std::int16_t relatie,
                      std::int16_t rubriek) {
  const bool gelezen = persoon != 0 ? hoofd.Persoon.Lees(persoon) : hoofd.Relatie.Lees(relatie);
  if (!gelezen) return;
  const std::int16_t begin = persoon != 0 ? hoofd.Persoon.OpmRecord() : hoofd.Relatie.OpmRecord();
  const OpmRegels regels = {"een", "twee", "drie"};
  Bekijk(hoofd.Opmerking.SchrijfOpmerking(regels, OpmRecnrs{}, 0, persoon, relatie, begin, 23,
                                          rubriek));
  // The first remark of the chain becomes shorter, then goes.
  const OpmRecnrs plek = {begin};
  Bekijk(hoofd.Opmerking.SchrijfOpmerking({"kort"}, plek, 0, persoon, relatie, begin, 23, rubriek));
  Bekijk(hoofd.Opmerking.SchrijfOpmerking({}, plek, 0, persoon, relatie, begin, 23, rubriek));
}

void Controleer(Hoofdmodule& hoofd) {
  constexpr ControleKeuzen kAlles{true, true, true, true, true};
  RecordBron bron(hoofd.MaakOpslag());
  for (const ControleSoort* soort : {&kControlePrs, &kControleRel, &kControlePlts, &kControleOpm}) {
    const auto regels = soort->maak(bron, kAlles);
    const std::int16_t laatste = regels->Laatste();
    regels->Begin(laatste);
    for (std::int32_t nr = 2; nr <= laatste; ++nr) {
      regels->Toets(static_cast<std::int16_t>(nr), [](const Bevinding& een) { Bekijk(een.tekst); });
    }
  }
}

}  // namespace

void LeesAlles(Hoofdmodule& hoofd, const SetBytes& bytes) {
  LeesTellingen(hoofd.Persoon);
  LeesTellingen(hoofd.Relatie);
  LeesTellingen(hoofd.Plaats);
  LeesTellingen(hoofd.Opmerking);
  const auto personen = Nummers(bytes.personen.size(), RecordLengteVan(BestandSoort::Personen));
  const auto relaties = Nummers(bytes.relaties.size(), RecordLengteVan(BestandSoort::Relaties));
  for (const std::int16_t nr : personen) LeesPersoon(hoofd, nr);
  for (const std::int16_t nr : relaties) LeesRelatie(hoofd, nr);
  for (const std::int16_t nr :
       Nummers(bytes.opmerkingen.size(), RecordLengteVan(BestandSoort::Opmerkingen))) {
    LeesOpmerking(hoofd, nr);
  }
  for (const std::int16_t nr :
       Nummers(bytes.plaatsen.size(), RecordLengteVan(BestandSoort::Plaatsen))) {
    Bekijk(hoofd.Plaats.Naam2(nr));
    Bekijk(hoofd.Plaats.Prov(nr));
  }
  Vertel(hoofd, false, personen, relaties);
  Vertel(hoofd, true, personen, relaties);
  Controleer(hoofd);
}

void SchrijfIets(Hoofdmodule& hoofd) {
  SchrijfOpmerking(hoofd, 2, 0, 4096);
  SchrijfOpmerking(hoofd, 0, 2, -256);
  Bekijk(hoofd.Plaats.NrOfNieuw("Leiden", "ZH"));
  Bekijk(hoofd.Plaats.NrOfNieuw("Leiden", ""));
  Bekijk(hoofd.Persoon.Nieuw(hoofd.Persoon.AantalRecords() + 1));
  Bekijk(hoofd.Relatie.Nieuw(hoofd.Relatie.AantalRecords() + 1));
  Bekijk(hoofd.Opmerking.Nieuw(hoofd.Opmerking.AantalRecords() + 1));
}

}  // namespace lb77::fuzz
