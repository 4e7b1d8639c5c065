#include "exchange/GedcomKop.h"

#include <string>
#include <string_view>

#include "exchange/GedcomDatum.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

std::string DatumVan(const Tijdstip& tijdstip) {
  return NulGevuld(tijdstip.jaar, 4) + NulGevuld(tijdstip.maand, 2) + NulGevuld(tijdstip.dag, 2);
}

std::string Klokstand(const Tijdstip& tijdstip, std::string_view scheider) {
  return NulGevuld(tijdstip.uur, 2).append(scheider) +
         NulGevuld(tijdstip.minuut, 2).append(scheider) + NulGevuld(tijdstip.seconde, 2);
}

void SchrijfAlsGevuld(ExpUitvoer& uit, std::string_view begin, std::string_view waarde,
                      bool gevuld) {
  if (gevuld) uit.Regel(std::string(begin).append(" ").append(waarde));
}

// kept: a place without a postcode has the separator before it.
void SchrijfAdres(const GedInzender& wie, ExpUitvoer& uit) {
  const std::string adres(Trim(wie.adres));
  const std::string postcode(Trim(wie.postcode));
  const std::string plaats(Trim(wie.plaats));
  const std::string land(Trim(wie.land));
  if (adres.empty()) return;
  const bool woonplaats = !postcode.empty() || !plaats.empty();
  uit.Regel("1 ADDR " + adres);
  SchrijfAlsGevuld(uit, "2 CONT", Trim(postcode + " " + plaats), woonplaats);
  SchrijfAlsGevuld(uit, "2 CONT", land, !land.empty());
  uit.Regel("2 ADR1 " + adres);
  SchrijfAlsGevuld(uit, "2 ADR2", Trim(postcode + "; " + plaats), woonplaats);
  SchrijfAlsGevuld(uit, "2 POST", postcode, !postcode.empty());
  SchrijfAlsGevuld(uit, "2 CITY", plaats, !plaats.empty());
  SchrijfAlsGevuld(uit, "2 CTRY", land, !land.empty());
}

}  // namespace

void SchrijfKop(const GedKopGegevens& kop, ExpUitvoer& uit) {
  const GedInzender& wie = kop.inzender;
  const std::string vandaag = DatumVan(kop.nu);
  const std::string naam(TrimLinks(wie.voornaam + " " + wie.naam));
  uit.Regel("0 HEAD");
  uit.Regel("1 SOUR LB77_voor_Windows");
  uit.Regel("2 VERS " LB77_VERSIE);
  uit.Regel("1 DEST Any GEDCOM 5.5 supporting software package");
  uit.Regel("1 DATE " + GedcomDatum(vandaag));
  uit.Regel("2 TIME " + Klokstand(kop.nu, ":"));
  uit.Regel("1 FILE " + std::string(Trim(kop.bestandsnaam)));
  uit.Regel("1 COPR " + naam);
  uit.Regel("1 GEDC");
  uit.Regel("2 VERS 5.5");
  uit.Regel("2 FORM LINEAGE-LINKED");
  uit.Regel("1 CHAR ANSEL");
  uit.Regel("1 LANG DUTCH");
  uit.Regel("0 @" + std::string(Trim(kop.set)) + vandaag + Klokstand(kop.nu, "") + "@ SUBN");
  uit.Regel("1 SUBM @SUBM0001@");
  uit.Regel("0 @SUBM0001@ SUBM");
  uit.Regel("1 NAME " + naam);
  SchrijfAdres(wie, uit);
  const std::string_view telefoon = TrimLinks(wie.telefoon);
  SchrijfAlsGevuld(uit, "1 PHON", telefoon, !telefoon.empty());
  for (const std::string_view taal : {"DUTCH", "ENGLISH", "FRENCH"}) {
    uit.Regel("1 LANG " + std::string(taal));
  }
  uit.Regel("1 CHAN");
  uit.Regel("2 DATE " + GedcomDatum(vandaag));
}

}  // namespace lb77
