#include "contact/ExpGCIParam.h"

#include <algorithm>

#include "app/Hoofdmodule.h"
#include "reporting/OptieTabel.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr int kEersteJaartal = 1800;
// Shown where no address is known; it is nobody's.
constexpr std::string_view kGeenEmail = "naam@example.org";
constexpr int kPublicatieNee = 2;

// A stored number; what is none, and what lies outside, is `standaard`.
int Bewaard(std::string_view waarde, int laagste, int hoogste, int standaard) {
  const std::string_view kaal = Trim(waarde);
  if (kaal.empty() || !std::ranges::all_of(kaal, IsCijfer)) return standaard;
  const int getal = Getalwaarde(kaal);
  return getal < laagste || getal > hoogste ? standaard : getal;
}

bool IsEmail(std::string_view adres) {
  return adres.find('@') != std::string_view::npos;
}

std::string JaNee(bool ja) {
  return ja ? "J" : "N";
}

}  // namespace

ExpGCIParam::ExpGCIParam(Hoofdmodule& hoofd, GciOpties& opties)
    : KetenFormulier("ExpGCIParam", "Exporteer in HSK Contactdienst formaat (GCI)", hoofd),
      jaarMelding_("Jaartal (1800-" + GetalTekst(hoofd.klok.Nu().jaar) + ")"),
      MinAantalPersonen(*this, hoofd.gesprek,
                        {"MinAantalPersonen",
                         "Minimum aantal personen per achternaam (1-99):",
                         2,
                         1,
                         99,
                         {},
                         "Onjuist minimum aantal personen (1-99)"}),
      MinAantalJaren(*this, hoofd.gesprek,
                     {"MinAantalJaren",
                      "Minimum aantal jaren per reeks (0-99):",
                      2,
                      0,
                      99,
                      {},
                      "Onjuist minimum aantal jaren (0-99)"}),
      MaxGatJaren(*this, hoofd.gesprek,
                  {"MaxGatJaren",
                   "Maximum aantal jaren als gat in een reeks (0-99):",
                   2,
                   0,
                   99,
                   {},
                   "Onjuist maximum aantal jaren (0-99)"}),
      MaxJaartal(*this, hoofd.gesprek,
                 {"MaxJaartal",
                  "Reeksen niet vermelden na (jaartal):",
                  4,
                  kEersteJaartal,
                  hoofd.klok.Nu().jaar,
                  {},
                  jaarMelding_}),
      opties_(opties) {
  ZetHulpOnderwerp("contactdienst");
  ZetEersteVeld(MinAantalPersonen);
  for (const Getalkeuze& keuze : Getallen()) keuze.vak.ZetFilter(AlleenCijfers);
  EmailAdres.BijVerlaten([this] { return EmailAdresVerlaten(); });
  StartExportButton.BijKlik([this] { StartExportButtonKlik(); });
  KoppelTerug(BackButton);
}

std::array<ExpGCIParam::Getalkeuze, 4> ExpGCIParam::Getallen() {
  const GciOpties standaard;
  const auto rij = [&](GrensVak& vak, std::string_view tag, int laagste, int hoogste,
                       int GciOpties::*doel) {
    return Getalkeuze{vak, tag, laagste, hoogste, standaard.*doel, doel};
  };
  return {rij(MinAantalPersonen, "AantalPersonen", 1, 99, &GciOpties::aantalPersonen),
          rij(MinAantalJaren, "MinJaren", 0, 99, &GciOpties::minJaren),
          rij(MaxGatJaren, "MaxGat", 0, 99, &GciOpties::maxGat),
          rij(MaxJaartal, "MaxJaartal", kEersteJaartal, Hoofd().klok.Nu().jaar,
              &GciOpties::maxJaartal)};
}

void ExpGCIParam::BijLaden() {
  const IniClass& ini = Hoofd().Ini;
  for (const Getalkeuze& keuze : Getallen()) {
    keuze.vak.ZetTekst(GetalTekst(
        Bewaard(ini.IniWaarde("GCI", keuze.tag), keuze.laagste, keuze.hoogste, keuze.standaard)));
  }
  OokCorrectiesBox.Zet(ini.IniWaarde("GCI", "MetCorrectie") == "J");
  OokMoedersWoonplaatsBox.Zet(ini.IniWaarde("GCI", "GebPlaatsKind") != "N");
  GeslachtBox.ZetIndex(ini.IniWaarde("Gebruiker", "Geslacht") == "V" ? 1 : 0);
  PublicatieBox.ZetIndex(
      Bewaard(ini.IniWaarde("GCI", "PublicatieMag"), 1, kPublicatieNee, kPublicatieNee) - 1);
  const std::string email(Trim(ini.IniWaarde("INTERNET", "Email")));
  EmailAdres.ZetTekst(IsEmail(email) ? email : std::string(kGeenEmail));
}

bool ExpGCIParam::EmailAdresVerlaten() {
  if (IsEmail(EmailAdres.Tekst())) return true;
  Hoofd().gesprek.Waarschuw("Onjuist e-mail adres");
  return false;
}

std::string ExpGCIParam::Email() const {
  const std::string_view adres = Trim(EmailAdres.Tekst());
  return std::string(adres == kGeenEmail ? std::string_view() : adres);
}

void ExpGCIParam::StartExportButtonKlik() {
  if (!EmailAdresVerlaten()) return;
  for (const Getalkeuze& keuze : Getallen()) opties_.*keuze.doel = keuze.vak.Getal();
  opties_.gebPlaatsKind = OokMoedersWoonplaatsBox.Gekozen();
  opties_.geslacht = GeslachtBox.Index() == 1 ? "V" : "M";
  opties_.email = Email();
  if (BewaartVelden(Hoofd().Ini)) Bewaar();
  gekozen_ = true;
  Sluit();
}

void ExpGCIParam::Bewaar() {
  IniClass& ini = Hoofd().Ini;
  ini.IniZet("Gebruiker", "Geslacht", opties_.geslacht);
  for (const Getalkeuze& keuze : Getallen()) {
    ini.IniZet("GCI", keuze.tag, GetalTekst(opties_.*keuze.doel));
  }
  ini.IniZet("GCI", "MetCorrectie", JaNee(OokCorrectiesBox.Gekozen()));
  ini.IniZet("GCI", "GebPlaatsKind", JaNee(opties_.gebPlaatsKind));
  ini.IniZet("GCI", "PublicatieMag", GetalTekst(PublicatieBox.Index() + 1));
  ini.IniZet("INTERNET", "Email", opties_.email);
  ini.IniSchrijf();
}

}  // namespace lb77
