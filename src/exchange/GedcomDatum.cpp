#include "exchange/GedcomDatum.h"

#include <cstdint>

#include "exchange/GedBepaling.h"
#include "store/Codes.h"
#include "text/Getallen.h"
#include "text/Maanden.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

std::string_view MaandWoord(std::string_view cijfers) {
  const std::int32_t maand = Getalwaarde(cijfers);
  if (maand < 1 || maand > static_cast<std::int32_t>(kGedMaanden.size())) return "   ";
  return kGedMaanden.at(static_cast<std::size_t>(maand) - 1);
}

}  // namespace

std::string GedcomDatum(std::string_view jjjjmmdd) {
  constexpr std::size_t kCijfers = 8;
  const std::string datum = Rechts(jjjjmmdd, kCijfers, '0');
  const std::string_view delen = datum;
  const std::string_view dag = delen.substr(6, 2);
  std::string uit(dag == "00" ? std::string_view() : dag);
  uit.append(" ").append(MaandWoord(delen.substr(4, 2))).append(" ").append(delen.substr(0, 4));
  return std::string(TrimLinks(uit));
}

std::string GedcomDatumPrefix(std::string_view correctiecode) {
  for (const GedBepaling& bepaling : kGedBepalingen) {
    if (IsCode(correctiecode, bepaling.corr)) return std::string(bepaling.woord) + " ";
  }
  return {};
}

std::string GedcomDatumMetCode(std::string_view correctiecode, std::string_view eerste,
                               std::string_view tweede) {
  std::string uit = GedcomDatumPrefix(correctiecode) + GedcomDatum(eerste);
  if (IsCode(correctiecode, correctie::kTussen)) uit += " AND " + GedcomDatum(tweede);
  return uit;
}

}  // namespace lb77
