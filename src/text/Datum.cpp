#include "text/Datum.h"

#include <cstddef>

#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr int kHoogsteJaar = 2100;
constexpr std::string_view kGeenDag = "Dag bestaat niet";

// Right-justified with zeros; a longer text keeps its last characters. Blanks around it don't count.
std::string MetNullen(std::string_view tekst, std::size_t breedte) {
  return Rechts(Trim(tekst), breedte, '0');
}

DatumDelen ZonderScheider(std::string_view tekst) {
  const std::string acht = MetNullen(tekst, 8);
  return {Getalwaarde(acht.substr(0, 2)), Getalwaarde(acht.substr(2, 2)),
          Getalwaarde(acht.substr(4))};
}

DatumDelen MetEenScheider(std::string_view dag, std::string_view rest) {
  const std::string gevuld = std::string(Trim(rest)) + "00000000";
  return {Getalwaarde(MetNullen(dag, 2)), Getalwaarde(gevuld.substr(0, 2)),
          Getalwaarde(gevuld.substr(2, 4))};
}

DatumDelen Ontleed(std::string_view tekst, char scheider) {
  const std::size_t p1 = tekst.find(scheider);
  if (p1 == std::string_view::npos) return ZonderScheider(tekst);
  const std::string_view dag = tekst.substr(0, p1);
  const std::size_t p2 = tekst.find(scheider, p1 + 1);
  if (p2 == std::string_view::npos) return MetEenScheider(dag, tekst.substr(p1 + 1));
  return {Getalwaarde(MetNullen(dag, 2)),
          Getalwaarde(MetNullen(tekst.substr(p1 + 1, p2 - p1 - 1), 2)),
          Getalwaarde(MetNullen(tekst.substr(p2 + 1), 4))};
}

// kept: the Gregorian rule for every year, also before that calendar began.
bool IsSchrikkeljaar(int jaar) {
  return jaar % 4 == 0 && (jaar % 100 != 0 || jaar % 400 == 0);
}

// Every check is made, so that one date may have several findings.
std::vector<std::string_view> Beoordeel(const DatumDelen& datum) {
  std::vector<std::string_view> meldingen;
  if (datum.jaar < 0 || datum.jaar > kHoogsteJaar) {
    meldingen.emplace_back("Alleen Jaartallen tussen 0 en 2100 toegestaan");
  }
  if (datum.maand < 0 || datum.maand > 12) meldingen.emplace_back("Maand bestaat niet");
  if (datum.dag < 0 || datum.dag > 31) meldingen.emplace_back(kGeenDag);
  if (datum.maand == 2 && datum.dag > 29) meldingen.emplace_back(kGeenDag);
  if (datum.maand == 2 && datum.dag == 29 && !IsSchrikkeljaar(datum.jaar)) {
    meldingen.emplace_back("Het jaar is geen schrikkeljaar");
  }
  const int maand = datum.maand;
  const bool dertigDagen = maand == 4 || maand == 6 || maand == 9 || maand == 11;
  if (dertigDagen && datum.dag == 31) meldingen.emplace_back(kGeenDag);
  return meldingen;
}

std::string InvoerVorm(const DatumDelen& datum, char scheider) {
  if (datum.dag == 0 && datum.maand == 0 && datum.jaar == 0) return LegeDatum(scheider);
  return NulGevuld(datum.dag, 2) + scheider + NulGevuld(datum.maand, 2) + scheider +
         NulGevuld(datum.jaar, 4);
}

DatumDelen Delen(std::int16_t dagMaand, std::int16_t jaar) {
  return {dagMaand / 100, dagMaand % 100, jaar};
}

}  // namespace

DatumOordeel DatumGeldig(std::string_view tekst, char scheider) {
  const DatumDelen datum = Ontleed(tekst, scheider);
  DatumOordeel oordeel;
  oordeel.meldingen = Beoordeel(datum);
  oordeel.geldig = oordeel.meldingen.empty();
  oordeel.tekst = InvoerVorm(datum, scheider);
  return oordeel;
}

std::string DatumTekst(int dag, int maand, int jaar, char scheider) {
  std::string uit;
  if (dag != 0) uit += GetalTekst(dag) + scheider;
  if (maand != 0) uit += GetalTekst(maand) + scheider;
  return uit + GetalTekst(jaar);
}

std::string LegeDatum(char scheider) {
  return std::string("  ") + scheider + "  " + scheider + "    ";
}

std::string Datum10(std::int16_t dagMaand, std::int16_t jaar, char scheider) {
  return InvoerVorm(Delen(dagMaand, jaar), scheider);
}

std::int32_t DatumGetal(std::int16_t dagMaand, std::int16_t jaar) {
  const DatumDelen datum = Delen(dagMaand, jaar);
  return datum.jaar * 10000 + datum.maand * 100 + datum.dag;
}

DatumDelen OntleedDatum10(std::string_view tekst) {
  const std::string tien = Links(tekst, 10);
  return {Getalwaarde(tien.substr(0, 2)), Getalwaarde(tien.substr(3, 2)),
          Getalwaarde(tien.substr(6, 4))};
}

bool DatumIsNa(std::string_view datum1, std::string_view datum2) {
  const auto metNullen = [](std::string_view datum) {
    std::string tien = Links(datum, 10);
    for (char& teken : tien) teken = teken == ' ' ? '0' : teken;
    return OntleedDatum10(tien);
  };
  const DatumDelen een = metNullen(datum1);
  const DatumDelen twee = metNullen(datum2);
  if (een.jaar == 0 || twee.jaar == 0) return false;
  if (een.jaar != twee.jaar) return een.jaar > twee.jaar;
  if (een.maand == 0 || twee.maand == 0) return false;
  if (een.maand != twee.maand) return een.maand > twee.maand;
  return een.dag != 0 && twee.dag != 0 && een.dag > twee.dag;
}

}  // namespace lb77
