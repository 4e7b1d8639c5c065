#include "qt/Invoercontrole.h"

#include <algorithm>

#include "qt/Vertaling.h"

namespace lb77 {

namespace {

// A line end becomes a blank in a field of one line; other control characters are dropped.
QString ZonderStuurtekens(const Invoerveld& veld, QString ruw) {
  const bool regels = veld.Soort() == BedieningSoort::Tekstblok;
  ruw.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  ruw.replace(u'\r', u'\n').replace(u'\t', u' ');
  if (!regels) ruw.replace(u'\n', u' ');
  ruw.removeIf([](QChar teken) {
    return (teken.unicode() < 32 && teken != u'\n') ||
           (teken.unicode() >= 127 && teken.unicode() < 160);
  });
  return ruw;
}

}  // namespace

Toelating LaatToe(const Invoerveld& veld, const QString& ruw, qsizetype ruimte) {
  const Overgezet overgezet = VanQt(ZonderStuurtekens(veld, ruw));
  std::string tekst;
  for (const char teken : overgezet.tekst) {
    const char getypt = teken == '\n' ? teken : veld.Gefilterd(teken);
    if (getypt) tekst += getypt;
  }
  if (veld.MaxLengte()) {
    tekst.resize(std::min(tekst.size(), static_cast<std::size_t>(std::max<qsizetype>(ruimte, 0))));
  }
  return {NaarQt(tekst), overgezet.geweigerd};
}

Ingevoegd WatIsNieuw(const QString& oud, const QString& nieuw) {
  const qsizetype kortste = std::min(oud.size(), nieuw.size());
  qsizetype begin = 0;
  while (begin < kortste && oud.at(begin) == nieuw.at(begin)) ++begin;
  qsizetype eind = 0;
  while (eind < kortste - begin &&
         oud.at(oud.size() - 1 - eind) == nieuw.at(nieuw.size() - 1 - eind)) {
    ++eind;
  }
  return {begin, nieuw.size() - begin - eind};
}

}  // namespace lb77
