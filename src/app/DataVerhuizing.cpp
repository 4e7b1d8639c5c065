#include "app/DataVerhuizing.h"

#include <optional>
#include <system_error>

#include "app/Bestandensets.h"
#include "app/OudeSets.h"
#include "app/SetOpenen.h"
#include "store/Paden.h"
#include "store/PlatformNamen.h"
#include "text/Pad.h"

namespace lb77 {

namespace {

namespace fs = std::filesystem;

bool IsZelfde(const fs::path& een, const fs::path& ander) {
  std::error_code code;
  return een.lexically_normal() == ander.lexically_normal() || fs::equivalent(een, ander, code);
}

std::string Opsomming(const std::vector<std::string>& namen) {
  std::string uit;
  for (const std::string& naam : namen) uit.append(uit.empty() ? "" : ", ").append(naam);
  return uit;
}

bool IsKoppeling(const fs::path& map) {
  std::error_code code;
  return fs::is_symlink(map, code);
}

// One that is used where its files lie stays there: the new directory gets a link of its own.
SysteemFout Verhuis(const SetPaden& van, const SetPaden& naar) {
  std::optional<OudeSet> set = OudeSetVan(van);
  if (!set) return FoutVan(std::make_error_code(std::errc::no_such_file_or_directory));
  if (!IsKoppeling(VindPad(van.map))) return KopieerOudeSet(*set, naar);
  std::error_code code;
  const fs::path echt = fs::canonical(set->map, code);
  if (code) return FoutVan(code);
  set->map = echt;
  set->centraal.clear();
  return KoppelOudeSet(*set, naar);
}

// A copy or a link that was made just now.
void Ruim(const SetPaden& paden) {
  const fs::path map = VindPad(paden.map);
  std::error_code code;
  if (IsKoppeling(map)) {
    static_cast<void>(VerwijderVanSchijf(map, code));
  } else {
    RuimKopie(paden);
  }
}

}  // namespace

DataVerhuizing::Verdeling DataVerhuizing::Verdeel(const fs::path& nieuw) const {
  Verdeling uit;
  for (int i = 1; i <= hoofd_.Ini.AantalBestandenSets(); ++i) {
    const std::string naam = hoofd_.Ini.bestandenset(i);
    if (!IsSetNaam(naam)) continue;
    const bool daar = OudeSetVan(SetPaden::Van(nieuw, naam)).has_value();
    const bool hier = OudeSetVan(SetPaden::Van(hoofd_.Ini.DataDir(), naam)).has_value();
    (daar ? uit.daar : hier ? uit.mee : uit.weg).push_back(naam);
  }
  return uit;
}

bool DataVerhuizing::Mag(const fs::path& nieuw) {
  const fs::path oud = hoofd_.Ini.DataDir();
  if (IsZelfde(oud, nieuw)) return true;
  const Verdeling sets = Verdeel(nieuw);
  if (sets.mee.empty() && sets.daar.empty()) return true;
  std::string vraag = "Uw families staan in " + PadTekst(oud) + ".\n";
  if (!sets.mee.empty()) {
    vraag += "Naar " + PadTekst(nieuw) + " worden gekopieerd: " + Opsomming(sets.mee) + ".\n";
  }
  if (!sets.daar.empty()) {
    vraag += "Al in " + PadTekst(nieuw) + ", en voortaan gebruikt: " + Opsomming(sets.daar) + ".\n";
  }
  if (!sets.weg.empty()) vraag += "In geen van beide gevonden: " + Opsomming(sets.weg) + ".\n";
  vraag += "Wat in de oude map staat blijft daar staan. Doorgaan ?";
  if (!hoofd_.gesprek.Vraag(vraag)) return false;
  eerder_ = OpenSetNaam(hoofd_);
  hoofd_.bestanden.SluitAlles();
  if (Kopieer(sets.mee, nieuw)) return true;
  RondAf();
  return false;
}

bool DataVerhuizing::Kopieer(const std::vector<std::string>& namen, const fs::path& nieuw) {
  std::vector<SetPaden> gemaakt;
  for (const std::string& naam : namen) {
    const SetPaden van = SetPaden::Van(hoofd_.Ini.DataDir(), naam);
    const SetPaden naar = SetPaden::Van(nieuw, naam);
    // Whoever has it goes on writing in the old place.
    const SysteemFout fout = IsElders(van) ? FoutInGebruik() : Verhuis(van, naar);
    if (!fout) {
      gemaakt.push_back(naar);
      continue;
    }
    // One that stayed behind would be older than the other when he tries again.
    for (const SetPaden& paden : gemaakt) Ruim(paden);
    hoofd_.gesprek.Fout("De bestanden van " + naam + " zijn niet gekopieerd\n" + fout.tekst);
    return false;
  }
  return true;
}

void DataVerhuizing::RondAf() {
  if (eerder_.empty()) return;
  hoofd_.ActieveSetNaam = kGeenSetActief;
  HeropenSet(hoofd_, menu_, eerder_);
  eerder_.clear();
}

}  // namespace lb77
