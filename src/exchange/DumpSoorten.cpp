#include "exchange/DumpSoorten.h"

#include <algorithm>

#include "exchange/ExpSchrijver.h"
#include "exchange/ExpUitvoer.h"
#include "store/Codes.h"
#include "store/PlaatsVelden.h"
#include "text/Getallen.h"
#include "text/Gezindte.h"
#include "text/Letterlijk.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kKolommenPers[] = {
    "kolom  1: recordnummer persoonsrecord (sleutelveld)",
    "kolom  2: geslacht",
    "kolom  3: voornaam",
    "kolom  4: achternaam",
    "kolom  5: beroep",
    "kolom  6: correctiecode bij geboortedatum",
    "kolom  7: geboortedatum (DD-MM-JJJJ)",
    "kolom  8: recordnummer plaatsrecord geboorteplaats",
    "kolom  9: doopdatum (DD-MM-JJJJ)",
    "kolom 10: recordnummer plaatsrecord doopplaats",
    "kolom 11: correctiecode bij overlijdensdatum",
    "kolom 12: overlijdensdatum (DD-MM-JJJJ)",
    "kolom 13: recordnummer plaatsrecord overlijdensplaats",
    "kolom 14: begraafdatum (DD-MM-JJJJ)",
    "kolom 15: recordnummer plaatsrecord begraafplaats",
    "kolom 16: indicatie begraven/crematie",
    "kolom 17: religiecode bij doop",
    "kolom 18: religie bij doop",
    "kolom 19: recordnummer relatierecord ouders",
    "kolom 20: recordnummer relatierecord 1e partner",
    "kolom 21: recordnummer relatierecord 2e partner",
    "kolom 22: recordnummer relatierecord 3e partner of vervolgrecord",
    "kolom 23: recordnummer eerste opmerkingenrecord van deze persoon",
    "kolom 24: code soorten opmerkingen bij deze persoon"};

// kept: what is told of columns 6 and 16.
constexpr std::string_view kKolommenRel[] = {
    "kolom  1: recordnummer relatierecord (sleutelveld)",
    "kolom  2: recordnummer persoonsrecord man",
    "kolom  3: recordnummer persoonsrecord vrouw",
    "kolom  4: ondertrouwdatum (DD-MM-JJJJ)",
    "kolom  5: recordnummer plaatsrecord ondertrouwplaats",
    "kolom  6: code correctie wettelijk huwelijksdatuum",
    "kolom  7: wettelijk huwelijksdatum (DD-MM-JJJJ)",
    "kolom  8: recordnummer plaatsrecord wettelijk huwelijksplaats",
    "kolom  9: kerkelijk wettelijk huwelijk/samenwonen/partnerschap",
    "kolom 10: code soort wettelijk huwelijk",
    "kolom 11: soort wettelijk huwelijk",
    "kolom 12: kerkelijk huwelijksdatum (DD-MM-JJJJ)",
    "kolom 13: recordnummer plaatsrecord kerkelijk huwelijksplaats",
    "kolom 14: kerkelijk huwelijk/scheiding",
    "kolom 15: gezindte bij huwelijk",
    "kolom 16: ondertrouwdatum (DD-MM-JJJJ)",
    "kolom 17: recordnummer opmerkingenrecord eerste opmerking voor deze relatie",
    "kolom 18: code soorten opmerkingen voor deze relatie",
    "kolom 19 t/m 32: recordnummers persoonsrecords kinderen 1 t/m 14",
    "kolom 33: recordnummer persoonsrecord kind 15 of vervolgrecord"};

constexpr std::string_view kKolommenPlts[] = {"kolom 1: recordnummer plaatsrecord (sleutelveld)",
                                              "kolom 2: code provincie", "kolom 3: plaatsnaam"};

constexpr std::string_view kKolommenOpm[] = {
    "kolom 1: recordnummer opmerkingenrecord (sleutelveld)",
    "kolom 2: recordnummer waarbij deze opmerking hoort",
    "kolom 3: bit-string waarin staat bij welke uitvoer deze opmerking getoond mag worden",
    "kolom 4: recordnummer van opmerkingenrecord dat de volgende regel van deze opmerking bevat",
    "kolom 5: recordnummer van het begin van de volgende opmerking voor deze persoon of relatie",
    "kolom 6: tekst van de opmerking"};

constexpr std::int16_t kKinderen = 15;  // in one record

// A date in which only its separators stand.
bool IsLeeg(std::string_view datum) {
  return std::ranges::none_of(datum, IsCijfer);
}

// A continuation record has no texts but its own mark.
void VulPersoon(const Gegevens& gegevens, DumpRegel& regel) {
  const PersoonLB77& p = gegevens.persoon;
  const bool vervolg = p.IsVolgRecord();
  const auto tekst = [&](std::string_view waarde) {
    regel.Tekst(vervolg ? std::string_view() : waarde);
  };
  const std::string begraven = p.BegrDatum10();
  tekst(p.Geslacht());
  tekst(p.VoorNaamTrue());
  tekst(p.AchterNaamTrue());
  tekst(p.beroep());
  regel.Tekst(p.GebCorr());
  regel.Datum(p.GebDatum10());
  regel.Getal(p.GebPlaatsNr());
  regel.Datum(p.DoopDatum10());
  regel.Getal(p.DoopPlaatsNr());
  tekst(p.OvlCorr());
  regel.Datum(p.OvlDatum10());
  regel.Getal(p.OvlPlaatsNr());
  regel.Datum(begraven);
  regel.Getal(p.BegrPlaatsNr());
  tekst(IsLeeg(begraven) ? "" : p.BegrCrem() ? "Crematie" : "Begraven");
  tekst(p.Religie());
  tekst(GezindteNaam(p.Religie(), gegevens.schrijfwijze.gezindten));
  for (const std::int16_t nr :
       {p.RelNrOuders(), p.relatie1(), p.relatie2(), p.relatie3(), p.OpmRecord(), p.OpmCode()}) {
    regel.Getal(nr);
  }
}

std::string_view Bond(std::string_view bond) {
  if (IsCode(bond, bond::kSamenwonen)) return "Samenwonen";
  return IsCode(bond, bond::kPartnerschap) ? "Partnerschap" : "Huwelijk (wet)";
}

void VulRelatie(const Gegevens& gegevens, DumpRegel& regel) {
  const RelatieLB77& r = gegevens.relatie;
  const Gezindten& gezindten = gegevens.schrijfwijze.gezindten;
  const bool vervolg = r.IsVolgRecord();
  const auto tekst = [&](std::string_view waarde) {
    regel.Tekst(vervolg ? std::string_view() : waarde);
  };
  regel.Getal(r.ManNr());
  regel.Getal(r.VrouwNr());
  regel.Datum(r.OtrDatum10());
  regel.Getal(r.OtrPlaatsNr());
  regel.Tekst(r.HuwCorr());
  regel.Datum(r.WetHuwDatum10());
  regel.Getal(r.WetHuwPlaatsNr());
  tekst(Bond(r.HuwSwPs()));
  tekst(r.HuwSoort());
  tekst(GezindteNaam(r.HuwSoort(), gezindten));
  regel.Datum(r.KHuwDatum10());
  regel.Getal(r.KHuwPlaatsNr());
  tekst(r.KHuwSch() ? "Scheiding" : "Huwelijk (kerk)");
  tekst(GezindteNaam(r.Religie(), gezindten));
  regel.Datum(r.OtrDatum10());  // kept: once more
  regel.Getal(r.OpmRecord());
  regel.Getal(r.OpmCode());
  for (std::int16_t i = 1; i <= kKinderen; ++i) regel.Getal(r.KindNr(i));
}

void VulPlaats(const Gegevens& gegevens, DumpRegel& regel) {
  regel.Tekst(gegevens.plaats.Waarde(plaatsveld::Prov));
  regel.Tekst(gegevens.plaats.Waarde(plaatsveld::Naam));
}

void VulOpmerking(const Gegevens& gegevens, DumpRegel& regel) {
  const OpmLB77& o = gegevens.opmerking;
  for (const std::int16_t nr : {o.BijRecord(), o.BijProg(), o.VolgRegel(), o.BijZelfde()}) {
    regel.Getal(nr);
  }
  regel.Tekst(o.Tekstregel());
}

}  // namespace

constexpr DumpSoort kDumpPers{
    .bestand = BestandSoort::Personen,
    .leesfout = kPersoonLeesfout,
    .totaal = " Personen geëxpoteerd"_w,
    .kolommen = kKolommenPers,
    .aantal = 24,
    .laatste = [](const Gegevens& g) { return g.persoon.AantalRecords(); },
    .lees = [](const Gegevens& g, std::int16_t nr) { return g.persoon.Lees(nr); },
    .vul = VulPersoon};

constexpr DumpSoort kDumpRel{
    .bestand = BestandSoort::Relaties,
    .leesfout = kRelatieLeesfout,
    .totaal = " Relaties geëxpoteerd"_w,
    .kolommen = kKolommenRel,
    .aantal = 33,
    .laatste = [](const Gegevens& g) { return g.relatie.AantalRecords(); },
    .lees = [](const Gegevens& g, std::int16_t nr) { return g.relatie.Lees(nr); },
    .vul = VulRelatie};

constexpr DumpSoort kDumpPlts{
    .bestand = BestandSoort::Plaatsen,
    .leesfout = "Leesfout bij Plaatsrecord ",
    .totaal = " Plaatsen geëxpoteerd"_w,
    .kolommen = kKolommenPlts,
    .aantal = 3,
    .laatste = [](const Gegevens& g) { return g.plaats.AantalRecords(); },
    .lees = [](const Gegevens& g, std::int16_t nr) { return g.plaats.Lees(nr); },
    .vul = VulPlaats};

constexpr DumpSoort kDumpOpm{
    .bestand = BestandSoort::Opmerkingen,
    .leesfout = "Leesfout bij Opmerkingenrecord ",
    .totaal = " Opmerkingen geëxpoteerd"_w,
    .kolommen = kKolommenOpm,
    .aantal = 6,
    .laatste = [](const Gegevens& g) { return g.opmerking.AantalRecords(); },
    .lees = [](const Gegevens& g, std::int16_t nr) { return g.opmerking.Lees(nr); },
    .vul = VulOpmerking};

void DumpRegel::Tekst(std::string_view tekst) {
  ++aantal_;
  const std::string zuiver = ZonderStuurtekens(tekst);
  regel_.append(TrimLinks(zuiver)).append("\t");
}

void DumpRegel::Getal(std::int32_t getal) {
  Tekst(GetalTekst(getal));
}

void DumpRegel::Datum(std::string_view datum) {
  Tekst(IsLeeg(datum) ? std::string_view() : datum);
}

}  // namespace lb77
