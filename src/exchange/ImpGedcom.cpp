#include "exchange/ImpGedcom.h"

#include <array>
#include <system_error>

#include "app/Hoofdmodule.h"
#include "output/ToonTekst.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::string_view kFilter =
    "GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt";

// The counter of lines is shown once in so many lines, and at the end of each pass.
constexpr int kRegelsPerKeer = 100;

}  // namespace

ImpGedcom::ImpGedcom(Hoofdmodule& hoofd)
    : Formulier("ImpGedcom", "Importeer Gegevens - Gedcom"), hoofd_(hoofd) {
  ZetHulpOnderwerp("gedcom");
  ZetEersteVeld(Bestandsnaam);
  for (Vinkje* vinkje : {&Pass1box, &Pass2box, &Pass3box}) vinkje->ZetIngeschakeld(false);
  Bestandsnaam.BijWijziging([this] { OKButton.ZetIngeschakeld(true); });
  BrowseButton.BijKlik([this] { BrowseKlik(); });
  OKButton.BijKlik([this] { OKKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void ImpGedcom::BijLaden() {
  for (Label* label : {&Pass1Label, &Pass2Label, &Pass3Label}) label->ZetZichtbaar(false);
}

void ImpGedcom::BrowseKlik() {
  const auto pad = hoofd_.gesprek.VraagBestand(
      {BestandsWijze::Openen, std::string(kFilter), hoofd_.Ini.TekstDir()});
  if (!pad) return;
  Bestandsnaam.ZetPad(*pad);
  OKButton.ZetIngeschakeld(true);
}

void ImpGedcom::OKKlik() {
  if (Bestandsnaam.Pad().empty()) {
    hoofd_.gesprek.Waarschuw("Geen GEDCOM-bestand gekozen");
    return;
  }
  WisVoortgang();
  OKButton.ZetIngeschakeld(false);
  ZetBezig(true);
  Importeer();
  ZetBezig(false);
}

void ImpGedcom::WisVoortgang() {
  for (Teller* teller :
       {&RegelNr, &AantalPersonen, &AantalRelaties, &AantalBronnen, &VoorNm, &AchterNm, &BronNm}) {
    teller->ZetTekst("");
  }
  for (Vinkje* vinkje : {&Pass1box, &Pass2box, &Pass3box}) vinkje->Zet(false);
}

void ImpGedcom::Importeer() {
  const std::filesystem::path tekstDir = hoofd_.Ini.TekstDir();
  std::error_code code;
  std::filesystem::create_directories(tekstDir, code);  // a failure shows at the log
  const std::filesystem::path log = tekstDir / "GEDCOM.LOG";
  const GedBronnen bronnen{hoofd_.Persoon,
                           hoofd_.Relatie,
                           hoofd_.Plaats,
                           hoofd_.Opmerking,
                           hoofd_.volgers,
                           hoofd_.gesprek,
                           hoofd_.schrijfwijze.gezindten};
  const GedImportUitslag uitslag = ImporteerGedcom(Bestandsnaam.Pad(), log, bronnen, *this);
  const SysteemFout veilig = hoofd_.bestanden.Veiligstellen();
  if (veilig) hoofd_.gesprek.Fout("Fout bij het veiligstellen van de bestanden\n" + veilig.tekst);
  if (uitslag.uitslag == GedUitslag::Stil) return;
  if (uitslag.fout) {
    ToonFout(uitslag.fout);
  } else {
    if (!uitslag.melding.empty()) hoofd_.gesprek.Waarschuw(uitslag.melding);
    hoofd_.gesprek.Informeer("Importeren voltooid");
  }
  ToonLog(log);
}

void ImpGedcom::ToonFout(const SysteemFout& fout) {
  if (fout.nummer == kBestandNietGevonden) {
    hoofd_.gesprek.Waarschuw("Bestand niet gevonden");
  } else {
    hoofd_.gesprek.Fout("Leesfout: " + fout.tekst);
  }
}

void ImpGedcom::ToonLog(const std::filesystem::path& log) {
  ZetBezig(false);
  ToonTekst viewer(hoofd_, log, "Importeren - Resultaat");
  hoofd_.gesprek.ToonModaal(viewer);
}

void ImpGedcom::Regel(int nr) {
  regelNr_ = nr;
  if (nr % kRegelsPerKeer != 0) return;
  RegelNr.ZetTekst(GetalTekst(nr));
  hoofd_.gesprek.Ververs(*this);
}

void ImpGedcom::Personen(int aantal) {
  AantalPersonen.ZetTekst(GetalTekst(aantal));
}

void ImpGedcom::Relaties(int aantal) {
  AantalRelaties.ZetTekst(GetalTekst(aantal));
}

void ImpGedcom::Bronnen(int aantal) {
  AantalBronnen.ZetTekst(GetalTekst(aantal));
}

void ImpGedcom::Naam(std::string_view voornaam, std::string_view achternaam) {
  VoorNm.ZetTekst(voornaam);
  AchterNm.ZetTekst(achternaam);
}

void ImpGedcom::Bron(std::string_view naam) {
  BronNm.ZetTekst(naam);
}

void ImpGedcom::Stap(int nr) {
  const std::array<Label*, 3> labels = {&Pass1Label, &Pass2Label, &Pass3Label};
  const std::array<Vinkje*, 3> vinkjes = {&Pass1box, &Pass2box, &Pass3box};
  if (nr > 1) RegelNr.ZetTekst(GetalTekst(regelNr_));
  for (int i = 1; i <= 3; ++i) {
    labels[static_cast<std::size_t>(i - 1)]->ZetZichtbaar(i == nr);
    vinkjes[static_cast<std::size_t>(i - 1)]->Zet(i < nr);
  }
  hoofd_.gesprek.Ververs(*this);
}

}  // namespace lb77
