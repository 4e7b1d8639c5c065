#include "exchange/GedDatum.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "exchange/GedBepaling.h"
#include "exchange/GedDatumDeel.h"
#include "exchange/GedDatumWoorden.h"
#include "text/Getallen.h"
#include "text/Maanden.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kBepalingLengte = 3;
constexpr std::size_t kMaandLengte = 3;
constexpr std::string_view kEn = " AND";
constexpr std::string_view kOnbekend = " - Onbekende datum: ";
constexpr std::size_t kKortste = 3;

char Bepaald(std::string_view tekst) {
  for (const GedBepaling& bepaling : kGedBepalingen) {
    if (tekst.starts_with(bepaling.woord)) return bepaling.corr;
  }
  return correctie::kGeen;
}

// Takes off the qualifier, written out or not (AFT, AFTER), and a full stop behind it. A month that
// follows without a blank stays.
void NeemBepalingAf(std::string_view& tekst) {
  std::size_t lengte = kBepalingLengte;
  if (GedMaand(tekst.substr(lengte, kMaandLengte)) == 0) {
    while (lengte < tekst.size() && IsLetter(tekst[lengte])) ++lengte;
  }
  tekst.remove_prefix(lengte);
  if (tekst.starts_with('.')) tekst.remove_prefix(1);
}

// Is there a word behind the last digit, such as a month without a year, or BC?
bool HeeftWoordAchteraan(std::string_view tekst, std::string_view zonderStaart) {
  return !zonderStaart.empty() && std::ranges::any_of(tekst.substr(zonderStaart.size()), IsLetter);
}

std::string_view ZonderStaart(std::string_view tekst) {
  while (!tekst.empty() && !IsCijfer(tekst.back())) tekst.remove_suffix(1);
  return tekst;
}

// A value while it is read; a date that can't be read stays 0 and is told.
struct Lezing {
  std::string_view gelezen;
  std::string_view context;
  GedDatumUitslag& uitslag;

  void Noteer(std::string_view fout) const {
    uitslag.heel = false;
    uitslag.log.push_back(std::string(context).append(fout).append(gelezen));
  }
  [[nodiscard]] DatumDelen Deel(std::string_view tekst) const {
    const DatumDelen datum = GedDatumDeel(Trim(tekst));
    if (!IsHeleDatum(Trim(tekst))) uitslag.heel = false;
    if (datum.dag != -1) return datum;
    Noteer(kOnbekend);
    return {};
  }
};

void LeesDatums(std::string_view tekst, const Lezing& lezing) {
  GedDatumUitslag& uitslag = lezing.uitslag;
  const std::size_t en = tekst.find(kEn);
  if (en == std::string_view::npos && uitslag.corr == correctie::kTussen) {
    lezing.Noteer(" - Fout in datum: BETWEEN zonder AND met 2e datum ");
    uitslag.corr = correctie::kNa;
  } else if (en == std::string_view::npos) {
    uitslag.eerste = lezing.Deel(tekst);
  } else if (uitslag.corr != correctie::kTussen) {
    uitslag.heel = false;
    uitslag.log.push_back("Fout in datum: AND zonder BETWEEN " + std::string(tekst));
  } else {
    uitslag.eerste = lezing.Deel(tekst.substr(0, en));
    uitslag.tweede = lezing.Deel(tekst.substr(en + kEn.size()));
  }
}

bool IsNegatief(const DatumDelen& datum) {
  return datum.dag < 0 || datum.jaar < 0;
}

// Reads `tekst`; log lines tell `gelezen`.
GedDatumUitslag Lees(std::string_view tekst, std::string_view gelezen, std::string_view context) {
  GedDatumUitslag uitslag;
  const std::string groot = Hoofdletters(Trim(tekst));
  std::string_view rest = ZonderStaart(groot);
  const Lezing lezing{gelezen, context, uitslag};
  if (HeeftWoordAchteraan(groot, rest)) {
    lezing.Noteer(kOnbekend);
    return uitslag;
  }
  const std::string_view staart = std::string_view(groot).substr(rest.size());
  uitslag.heel = staart.empty() || staart == ".";
  if (rest.size() < kKortste) {
    uitslag.heel = groot.empty();
    return uitslag;
  }
  uitslag.corr = Bepaald(rest);
  if (uitslag.corr != correctie::kGeen) NeemBepalingAf(rest);
  LeesDatums(rest, lezing);
  if (!IsNegatief(uitslag.eerste) && !IsNegatief(uitslag.tweede)) return uitslag;
  // No record can hold it: a failure halfway, which leaves nothing behind.
  uitslag = {};
  lezing.Noteer(kOnbekend);
  return uitslag;
}

}  // namespace

GedDatumUitslag GedDatum(std::string_view tekst, std::string_view context) {
  return Lees(tekst, tekst, context);
}

GedDatumUitslag GedDatumOpnieuw(std::string_view tekst, std::string_view windows,
                                std::string_view context, GedDatumUitslag eerder) {
  GedDatumUitslag opnieuw = Lees(GedDatumWoorden(windows), tekst, context);
  return opnieuw.log.size() < eerder.log.size() ? std::move(opnieuw) : std::move(eerder);
}

std::string GedDatumTekst(const DatumDelen& datum) {
  return NulGevuld(datum.dag, 2) + "-" + NulGevuld(datum.maand, 2) + "-" + NulGevuld(datum.jaar, 4);
}

}  // namespace lb77
