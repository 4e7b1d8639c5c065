#include "cli/Personen.h"

#include <algorithm>

#include "text/Getallen.h"
#include "text/Tekens.h"
#include "text/Unicode.h"
#include "text/Zoekvorm.h"

namespace lb77 {
namespace {

constexpr std::size_t kNummer = 6;

// The words of a text between the separators.
std::vector<std::string> Woorden(std::string_view tekst, std::string_view scheiders) {
  std::vector<std::string> uit;
  while (!tekst.empty()) {
    const std::size_t eind = std::min(tekst.find_first_of(scheiders), tekst.size());
    const std::string_view woord = Trim(tekst.substr(0, eind));
    if (!woord.empty()) uit.emplace_back(woord);
    tekst.remove_prefix(std::min(eind + 1, tekst.size()));
  }
  return uit;
}

// Compares names without their prefixes.
class Naamzoeker {
 public:
  Naamzoeker(const Voorvoegsels& voorvoegsels, std::string_view deel)
      : voor_(Woorden(Zoekvorm(voorvoegsels.Voor1 + "," + voorvoegsels.Voor2), ",")) {
    while (deel.ends_with('*')) deel.remove_suffix(1);
    heel_ = Zoekvorm(Trim(deel));
    zonder_ = ZonderVoorvoegsels(heel_);
  }

  [[nodiscard]] bool Past(std::string_view naam) const {
    const std::string heel = Zoekvorm(naam);
    if (heel.find(heel_) != std::string::npos) return true;
    return !zonder_.empty() && ZonderVoorvoegsels(heel).find(zonder_) != std::string::npos;
  }

 private:
  [[nodiscard]] std::string ZonderVoorvoegsels(std::string_view naam) const {
    std::string uit;
    for (const std::string& woord : Woorden(naam, " ")) {
      if (std::ranges::find(voor_, woord) != voor_.end()) continue;
      if (!uit.empty()) uit += ' ';
      uit += woord;
    }
    return uit;
  }

  std::vector<std::string> voor_;
  std::string heel_;
  std::string zonder_;
};

}  // namespace

std::vector<std::int16_t> ZoekPersonen(PersoonLB77& persoon, const Voorvoegsels& voorvoegsels,
                                       std::string_view deel) {
  const Naamzoeker zoeker(voorvoegsels, deel);
  std::vector<std::int16_t> uit;
  const int laatste = persoon.AantalRecords();
  for (int nr = 2; nr <= laatste; ++nr) {
    const auto recordNr = static_cast<std::int16_t>(nr);
    if (!persoon.Lees(recordNr) || persoon.IsVolgRecord()) continue;
    const std::string naam = persoon.VoorNaamTrue() + " " + persoon.AchterNaamTrue();
    if (zoeker.Past(Trim(naam))) uit.push_back(recordNr);
  }
  return uit;
}

bool VindPersoon(Hoofdmodule& hoofd, Bediener& bediener, std::string& woord) {
  if (!std::ranges::any_of(woord, IsLetter)) return true;
  const auto gevonden = ZoekPersonen(hoofd.Persoon, hoofd.schrijfwijze.voorvoegsels, woord);
  if (gevonden.size() == 1) {
    woord = GetalTekst(gevonden.front());
    return true;
  }
  if (gevonden.empty()) {
    bediener.Mislukt("Niemand gevonden met \"" + woord + "\" in de naam");
    return false;
  }
  bediener.Mislukt(GetalTekst(static_cast<std::int64_t>(gevonden.size())) + " personen hebben \"" +
                   woord + "\" in hun naam; geef een nummer:");
  for (const std::int16_t nr : gevonden) bediener.MisluktUtf8(PersoonRegel(hoofd.Persoon, nr));
  return false;
}

std::string PersoonRegel(PersoonLB77& persoon, std::int16_t nr) {
  if (!persoon.Lees(nr)) return {};
  return Kolom(nr, kNummer, Richting::Rechts) + "  " + persoon.Periode(nr) + "  " +
         WindowsNaarUtf8(persoon.NaamVoluit());
}

}  // namespace lb77
