#include "app/IniBestand.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <system_error>

#include "store/Paden.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kRegelEinde = "\r\n";
// Where the lines are written until they are complete.
constexpr std::string_view kInWording = "LIJNBOOM.TMP";

// What is left of `rest` up to a line end, which goes with it.
std::string_view NeemRegel(std::string_view& rest) {
  const std::size_t eind = std::min(rest.find('\n'), rest.size());
  std::string_view regel = rest.substr(0, eind);
  rest.remove_prefix(std::min(eind + 1, rest.size()));
  if (regel.ends_with('\r')) regel.remove_suffix(1);
  return regel;
}

// A value never holds a line end: the file would come back as another one.
std::string OpEenRegel(std::string tekst) {
  std::replace(tekst.begin(), tekst.end(), '\r', ' ');
  std::replace(tekst.begin(), tekst.end(), '\n', ' ');
  return tekst;
}

void SchrijfRegel(std::string& uit, std::string_view sleutel, const std::string& waarde) {
  uit.append(sleutel).append("=").append(OpEenRegel(waarde)).append(kRegelEinde);
}

void SchrijfLijst(std::string& uit, std::size_t rij, const Sleutel& sleutel,
                  const std::function<std::string(SleutelPlaats)>& waarde) {
  for (int nummer = 1; nummer <= sleutel.aantal; ++nummer) {
    const std::string tekst = waarde({rij, static_cast<std::size_t>(nummer)});
    if (tekst.empty()) continue;
    SchrijfRegel(uit, std::string(sleutel.naam) + GetalTekst(nummer), tekst);
  }
}

// A directory in which nothing new can be made, with a file that may still be written.
bool MoetErOverheen(const SchrijfUitslag& uitslag, const std::filesystem::path& doel) {
  std::error_code code;
  return uitslag.stap == SchrijfStap::Openen && uitslag.fout.nummer == kGeenToegang &&
         std::filesystem::is_regular_file(doel, code);
}

// Writes over the last file, and puts its lines back when that fails halfway.
SchrijfUitslag SchrijfErOverheen(const std::filesystem::path& doel, std::string_view inhoud) {
  std::string oud;
  const bool gelezen = !LeesHeelBestand(doel, oud);
  SchrijfUitslag uitslag = SchrijfHeelBestand(doel, inhoud);
  if (uitslag.stap == SchrijfStap::Schrijven && gelezen) {
    static_cast<void>(SchrijfHeelBestand(doel, oud));
  }
  return uitslag;
}

// The last file becomes the backup and the new one takes its place.
SchrijfUitslag Verwissel(const std::filesystem::path& nieuw, const std::filesystem::path& oud,
                         const std::filesystem::path& map) {
  const std::filesystem::path doel = map / kIniBestand;
  const std::filesystem::path reserve = map / kIniReserve;
  std::error_code code;
  if (std::filesystem::exists(oud, code)) {
    std::filesystem::remove(reserve, code);
    std::filesystem::rename(oud, reserve, code);
  }
  std::filesystem::rename(nieuw, doel, code);
  if (!code) return {};
  const SysteemFout fout = FoutVan(code);
  std::filesystem::remove(nieuw, code);
  if (!std::filesystem::exists(oud, code)) std::filesystem::rename(reserve, oud, code);
  return {SchrijfStap::Openen, fout};
}

}  // namespace

void LeesIniRegels(
    std::string_view inhoud,
    const std::function<void(std::string_view, std::string_view, std::string_view)>& pas) {
  std::string_view sectie;
  std::string_view sleutel;
  std::string_view waarde;
  while (!inhoud.empty()) {
    const std::string_view regel = Trim(NeemRegel(inhoud));
    const std::size_t teken = regel.find('=');
    if (regel.starts_with('[')) {
      sectie = regel.size() < 2 ? std::string_view() : Trim(regel.substr(1, regel.size() - 2));
      sleutel = waarde = {};
    } else if (teken != std::string_view::npos) {
      sleutel = Trim(regel.substr(0, teken));
      waarde = Trim(regel.substr(teken + 1));
    }
    if (!sleutel.empty()) pas(sectie, sleutel, waarde);
  }
}

std::string IniRegels(const std::function<std::string(SleutelPlaats)>& waarde) {
  std::string uit;
  std::string_view sectie;
  const std::span<const Sleutel> sleutels = AlleSleutels();
  for (std::size_t rij = 0; rij < sleutels.size(); ++rij) {
    const Sleutel& sleutel = sleutels[rij];
    if (sleutel.sectie != sectie) {
      if (!sectie.empty()) uit.append(kRegelEinde);
      sectie = sleutel.sectie;
      uit.append("[").append(sectie).append("]").append(kRegelEinde);
    }
    if (sleutel.aantal > 0) {
      SchrijfLijst(uit, rij, sleutel, waarde);
    } else {
      SchrijfRegel(uit, sleutel.naam, waarde({rij, 0}));
    }
  }
  return uit;
}

SysteemFout LeesIniBestand(const std::filesystem::path& map, std::string& inhoud) {
  return LeesHeelBestand(VindPad(map / kIniBestand), inhoud);
}

SchrijfUitslag SchrijfIniBestand(const std::filesystem::path& map, std::string_view inhoud) {
  const std::filesystem::path oud = VindPad(map / kIniBestand);
  const std::filesystem::path nieuw = map / kInWording;
  SchrijfUitslag uitslag = SchrijfHeelBestand(nieuw, inhoud);
  if (MoetErOverheen(uitslag, oud)) return SchrijfErOverheen(oud, inhoud);
  std::error_code code;
  if (uitslag.stap == SchrijfStap::Klaar) return Verwissel(nieuw, oud, map);
  if (uitslag.stap == SchrijfStap::Schrijven) std::filesystem::remove(nieuw, code);
  return uitslag;
}

}  // namespace lb77
