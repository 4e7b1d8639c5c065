#include "exchange/GedDatumDeel.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "text/Getallen.h"
#include "text/Maanden.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr DatumDelen kOnleesbaar{-1, 0, 0};

DatumDelen Jaar(std::string_view tekst) {
  return {0, 0, Getalwaarde(tekst.substr(0, 4))};
}

// `dag` characters of day, three of month, at most four of year.
DatumDelen Samengesteld(std::string_view tekst, std::size_t dag) {
  const int maand = GedMaand(tekst.substr(dag, 3));
  if (maand == 0) return kOnleesbaar;
  return {Getalwaarde(tekst.substr(0, dag)), maand, Getalwaarde(tekst.substr(dag + 3, 4))};
}

// ‘dd-mm-jjjj’, the form of the entry fields.
std::optional<DatumDelen> MetStreepjes(std::string_view tekst) {
  if (tekst.size() != 10) return std::nullopt;
  for (std::size_t i = 0; i < tekst.size(); ++i) {
    const bool streepje = i == 2 || i == 5;
    if (streepje ? tekst[i] != '-' : !IsCijfer(tekst[i])) return std::nullopt;
  }
  return OntleedDatum10(tekst);
}

}  // namespace

DatumDelen GedDatumDeel(std::string_view tekst) {
  if (tekst.empty()) return {};
  if (const auto datum = MetStreepjes(tekst)) return *datum;
  std::string dicht(tekst);
  std::erase(dicht, ' ');
  switch (dicht.size()) {
    case 3:
      return IsLetter(dicht[0]) ? Samengesteld(dicht, 0) : Jaar(dicht);
    case 4:
      return Jaar(dicht);
    case 6:
    case 10:
      return Samengesteld(dicht, 0);
    case 7:
      return dicht[4] == '/' ? Jaar(dicht) : Samengesteld(dicht, 0);
    case 8:
      return Samengesteld(dicht, IsLetter(dicht[1]) ? 1 : 2);
    case 11:
      return Samengesteld(dicht, 1);
    case 9:
    case 12:
      return Samengesteld(dicht, 2);
    default:
      return kOnleesbaar;
  }
}

bool IsHeleDatum(std::string_view tekst) {
  if (tekst.empty() || MetStreepjes(tekst)) return true;
  std::string dicht(tekst);
  std::erase(dicht, ' ');
  const auto cijfers = [&dicht](std::size_t van) {
    std::size_t tot = van;
    while (tot < dicht.size() && IsCijfer(dicht[tot])) ++tot;
    return tot - van;
  };
  const std::size_t dag = cijfers(0);
  if (dag == dicht.size()) return dag == 3 || dag == 4;
  if (dag > 2 || GedMaand(dicht.substr(dag, 3)) == 0) return false;
  const std::size_t jaar = dicht.size() - std::min(dicht.size(), dag + 3);
  return cijfers(dag + 3) == jaar && (jaar == 0 || jaar == 3 || jaar == 4);
}

}  // namespace lb77
