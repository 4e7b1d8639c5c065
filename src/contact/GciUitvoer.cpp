#include "contact/GciUitvoer.h"

#include <algorithm>
#include <array>
#include <span>
#include <system_error>
#include <vector>

#include "app/PlaatsNemen.h"
#include "store/Paden.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Namen.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kInzNietOpen = "Fout: Kan uitvoerbestand voor inzendergegevens ";
constexpr std::string_view kFamNietOpen = "Fout: Kan uitvoerbestand voor reeksen ";
constexpr std::string_view kRegelEinde = "\r\n";

// Text of a line: what would end it is a blank.
std::string InRegel(std::string_view tekst) {
  std::string uit(tekst);
  for (char& teken : uit) {
    if (static_cast<unsigned char>(teken) < ' ') teken = ' ';
  }
  return uit;
}

std::string Veld(std::string_view tekst, std::size_t breedte) {
  return Links(InRegel(Trim(tekst)), breedte);
}

// One of the two files on its way.
struct Uitvoer {
  std::string_view nietOpen;  // its message, up to its name
  const std::filesystem::path& doel;
  std::string_view inhoud;

  [[nodiscard]] std::string NietOpen(const SysteemFout& fout) const {
    return std::string(nietOpen) + PadTekst(doel) + " niet openen\n" + fout.tekst;
  }
};

std::string NietGeschreven(const std::filesystem::path& pad, const SysteemFout& fout) {
  return "Fout bij het schrijven van " + PadTekst(pad) + "\n" + fout.tekst;
}

// Its directory is made when it is gone; a directory of its name is in its way.
SysteemFout MaakPlaats(const std::filesystem::path& doel) {
  std::error_code code;
  std::filesystem::create_directories(doel.parent_path(), code);
  if (!code && std::filesystem::is_directory(doel, code)) {
    code = std::make_error_code(std::errc::is_a_directory);
  } else if (code == std::errc::no_such_file_or_directory) {
    code.clear();  // the file is not there yet
  }
  return FoutVan(code);
}

std::optional<std::string> SchrijfErnaast(const Uitvoer& uitvoer, Bestandswerk& werk) {
  if (SysteemFout fout = MaakPlaats(uitvoer.doel)) return uitvoer.NietOpen(fout);
  const SchrijfUitslag uitslag = werk.Maak(Ernaast(uitvoer.doel), uitvoer.inhoud);
  switch (uitslag.stap) {
    case SchrijfStap::Openen:
      return uitvoer.NietOpen(uitslag.fout);
    case SchrijfStap::Schrijven:
      return NietGeschreven(uitvoer.doel, uitslag.fout);
    case SchrijfStap::Klaar:
      break;
  }
  return std::nullopt;
}

// Both, or neither.
std::optional<std::string> SchrijfAlle(std::span<const Uitvoer> alle, Bestandswerk& werk) {
  std::optional<std::string> melding;
  std::vector<std::filesystem::path> plaatsen;
  for (const Uitvoer& uitvoer : alle) {
    plaatsen.push_back(uitvoer.doel);
    if (!melding) melding = SchrijfErnaast(uitvoer, werk);
  }
  if (!melding) {
    if (const auto fout = NeemPlaatsen(plaatsen, werk)) {
      melding = alle[fout->welke].NietOpen(fout->fout) + NietTerugTekst(*fout, plaatsen);
    }
  }
  if (melding) RuimErnaast(plaatsen, werk);
  return melding;
}

std::string Datumtijd(const Tijdstip& tijd) {
  return NulGevuld(tijd.jaar, 4) + NulGevuld(tijd.maand, 2) + NulGevuld(tijd.dag, 2) +
         NulGevuld(tijd.uur, 2) + NulGevuld(tijd.minuut, 2) + NulGevuld(tijd.seconde, 2);
}

// The lines of a log.
class Logregels {
 public:
  void Voeg(std::string_view regel) { tekst_.append(InRegel(regel)).append(kRegelEinde); }
  // Each line of a message is one.
  void VoegMelding(std::string_view tekst) {
    for (std::size_t begin = 0; begin <= tekst.size();) {
      const std::size_t eind = std::min(tekst.find('\n', begin), tekst.size());
      Voeg(tekst.substr(begin, eind - begin));
      begin = eind + 1;
    }
  }
  [[nodiscard]] const std::string& Tekst() const { return tekst_; }

 private:
  std::string tekst_;
};

std::string Aantal(std::size_t aantal) {
  return GetalTekst(static_cast<std::int64_t>(aantal));
}

void VoegOvergeslagen(Logregels& log, const GciVerslag& verslag) {
  if (verslag.namen.empty()) log.Voeg("Geen achternamen overgeslagen");
  for (const std::string& naam : verslag.namen) log.Voeg("Naam overgeslagen: " + naam);
  if (verslag.plaatsen.empty()) {
    log.Voeg("Geen plaatsnamen overgeslagen");
    return;
  }
  for (const std::string& naam : verslag.plaatsen) log.Voeg("Plaats overgeslagen: " + naam);
  log.Voeg("Totaal: " + Aantal(verslag.plaatsen.size()) + " plaats" +
           (verslag.plaatsen.size() > 1 ? "en" : "") + " overgeslagen");
}

}  // namespace

std::string InzRegel(const GciInzender& inzender) {
  const bool nederland = GelijkZonderKast(Trim(inzender.land), "Nederland");
  return Veld(inzender.lidnr, 6) + Veld(inzender.naam, 25) + Veld(inzender.voornaam, 10) +
         Veld(inzender.geslacht, 1) + Veld(inzender.adres, 28) + Veld(inzender.postcode, 7) +
         Veld(inzender.plaats, 25) + Veld(nederland ? "NL" : inzender.land, 15) +
         Veld(inzender.email, 35);
}

std::string FamRegel(const GciReeks& reeks, const GciPlaatsen& plaatsen, std::string_view lidnr) {
  return Veld(reeks.naam, 25) + Veld(plaatsen.Naam(reeks.plaats), 25) +
         Veld(plaatsen.Prov(reeks.plaats), 3) + Veld(plaatsen.Land(reeks.plaats), 3) +
         Veld(GetalTekst(reeks.van), 4) + Veld(GetalTekst(reeks.tot), 4) + Veld(lidnr, 6);
}

GciPaden GciPaden::In(const std::filesystem::path& map) {
  return {VindPad(map / "CONTACT.INZ"), VindPad(map / "CONTACT.FAM"), VindPad(map / "GCI.LOG")};
}

std::optional<std::string> SchrijfContact(const GciPaden& paden, std::string_view inz,
                                          std::string_view fam, Bestandswerk& werk) {
  const std::array<Uitvoer, 2> beide{
      {{kInzNietOpen, paden.inz, inz}, {kFamNietOpen, paden.fam, fam}}};
  return SchrijfAlle(beide, werk);
}

std::string LogTekst(const GciVerslag& verslag, const GciPaden& paden) {
  Logregels log;
  log.Voeg("Log-file: " + PadTekst(paden.log));
  log.Voeg("Start export (" + Datumtijd(verslag.begin) + ")");
  if (!verslag.gestopt.empty()) log.Voeg("LET OP: " + verslag.gestopt);
  VoegOvergeslagen(log, verslag);
  if (!verslag.reden.empty()) {
    log.VoegMelding(verslag.reden);
    log.Voeg(kGeenBestanden);
    return log.Tekst();
  }
  log.Voeg("Totaal: " + Aantal(verslag.reeksen) + std::string(" reeksen geëxporteerd"_w));
  log.Voeg("Uitvoerbestanden: " + PadTekst(paden.inz));
  log.Voeg("              en: " + PadTekst(paden.fam));
  log.Voeg("Export voltooid");
  return log.Tekst();
}

std::optional<std::string> SchrijfLog(const GciPaden& paden, std::string_view tekst,
                                      Bestandswerk& werk) {
  const std::array<std::filesystem::path, 1> plaats{paden.log};
  SysteemFout fout = MaakPlaats(paden.log);
  if (!fout) fout = werk.Maak(Ernaast(paden.log), tekst).fout;
  if (!fout) {
    const auto niet = NeemPlaatsen(plaats, werk);
    if (!niet) return std::nullopt;
    fout = niet->fout;
  }
  RuimErnaast(plaats, werk);
  return NietGeschreven(paden.log, fout);
}

}  // namespace lb77
