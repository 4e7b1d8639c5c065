#include "exchange/GedImport.h"

#include <cerrno>

#include "exchange/GedStap.h"
#include "exchange/GedStap2.h"
#include "exchange/GedStap3.h"

namespace lb77 {
namespace {

void LeesAantallen(GedLoop& loop) {
  loop.laatstePersoon = loop.bronnen.persoon.AantalRecords();
  loop.laatsteRelatie = loop.bronnen.relatie.AantalRecords();
}

GedUitslag Stap1(GedLoop& loop) {
  LeesAantallen(loop);
  if (!loop.lezer.IsAanEinde()) return GedStap1(loop).Voer();
  loop.fout = "GEDCOM Fout: Leeg bestand";
  return GedUitslag::Fout;
}

GedUitslag Stap3(GedLoop& loop) {
  LeesAantallen(loop);
  return GedStap3(loop).Voer();
}

// An error of one pass skips those behind it.
GedUitslag VoerStappen(GedLoop& loop, GedToeschouwer& toeschouwer) {
  toeschouwer.Stap(1);
  GedUitslag uitslag = Stap1(loop);
  if (uitslag == GedUitslag::Stil) return uitslag;
  toeschouwer.Stap(2);
  if (uitslag == GedUitslag::Klaar) uitslag = GedStap2(loop).Voer();
  if (uitslag == GedUitslag::Stil) return uitslag;
  toeschouwer.Stap(3);
  if (uitslag == GedUitslag::Klaar) uitslag = Stap3(loop);
  return uitslag;
}

}  // namespace

GedImportUitslag ImporteerGedcom(const std::filesystem::path& bestand,
                                 const std::filesystem::path& log, const GedBronnen& bronnen,
                                 GedToeschouwer& toeschouwer) {
  RegelLezer lezer;
  GedImportUitslag uit;
  uit.fout = lezer.Open(bestand);
  if (uit.fout) return uit;
  GedLog logboek;
  if (!logboek.Open(log)) {
    uit.fout = FoutVan(std::error_code(errno, std::generic_category()));
    return uit;
  }
  GedLoop loop{bronnen, toeschouwer, lezer, logboek};
  uit.uitslag = VoerStappen(loop, toeschouwer);
  uit.melding = loop.fout;
  uit.fout = lezer.Fout();
  if (uit.uitslag != GedUitslag::Stil && !uit.fout) logboek.Regel("Importeren voltooid");
  if (!logboek.Sluit() && !uit.fout) {
    uit.fout = FoutVan(std::make_error_code(std::errc::no_space_on_device));
  }
  if (uit.uitslag != GedUitslag::Stil) toeschouwer.Stap(4);
  return uit;
}

}  // namespace lb77
