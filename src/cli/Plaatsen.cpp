#include "cli/Plaatsen.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "forms/StilGesprek.h"
#include "store/PlaatsLB77.h"
#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

constexpr std::size_t kNummer = 6;

// Has a record class of its own, since the search of the form tells what is wrong with the file.
class Plaatszoeker {
 public:
  explicit Plaatszoeker(Hoofdmodule& hoofd)
      : plaats_({hoofd.bestanden, volgers_, niemand_, hoofd.schrijfwijze}) {}

  // The places that begin so, in the order of the search.
  [[nodiscard]] std::vector<std::int16_t> Beginnend(std::string_view naam) {
    const std::string begin = PlaatsIndex::Sleutel(Trim(naam));
    return Waar([&begin](const std::string& sleutel) { return sleutel.starts_with(begin); });
  }
  [[nodiscard]] std::vector<std::int16_t> Gelijk(std::string_view naam) {
    const std::string heel = PlaatsIndex::Sleutel(Trim(naam));
    return Waar([&heel](const std::string& sleutel) { return sleutel == heel; });
  }
  [[nodiscard]] std::string Naam(std::int16_t nr) { return plaats_.Naam(nr); }
  // In UTF-8.
  [[nodiscard]] std::string Regel(std::int16_t nr) {
    return Kolom(nr, kNummer, Richting::Rechts) + "  " +
           WindowsNaarUtf8(plaats_.Naam(nr) + " (" + plaats_.Prov(nr) + ")");
  }

 private:
  template <class Past>
  [[nodiscard]] std::vector<std::int16_t> Waar(Past past) {
    std::vector<std::int16_t> uit;
    const int laatste = plaats_.AantalRecords();
    for (int nr = 2; nr <= laatste; ++nr) {
      const auto recordNr = static_cast<std::int16_t>(nr);
      if (PlaatsRecordNr(recordNr) != recordNr) break;  // numbers of presumed places
      const std::string naam = plaats_.Naam(recordNr);
      if (!naam.empty() && past(PlaatsIndex::Sleutel(naam))) uit.push_back(recordNr);
    }
    return uit;
  }

  StilGesprek niemand_;
  Volgers volgers_;
  PlaatsLB77 plaats_;
};

// "Is deze Plaats bedoeld ?" and "Nog verder zoeken ?" for each that comes ahead of `nr`.
void HoudAntwoordenKlaar(Bediener& bediener, std::string_view formulier,
                         const std::vector<std::int16_t>& plaatsen, std::int16_t nr) {
  for (const std::int16_t plaats : plaatsen) {
    if (plaats == nr) break;
    bediener.HoudKlaar(formulier, Antwoord::Nee);
    bediener.HoudKlaar(formulier, Antwoord::Ja);
  }
  bediener.HoudKlaar(formulier, Antwoord::Ja);
}

// The number typed; nothing for a name.
std::optional<std::int32_t> AlsNummer(std::string_view tekst) {
  if (tekst.empty() || !std::ranges::all_of(tekst, IsCijfer)) return std::nullopt;
  return Getalwaarde(tekst);
}

}  // namespace

bool VindPlaats(Hoofdmodule& hoofd, Bediener& bediener, std::string_view formulier,
                std::string& naam) {
  if (Trim(naam).empty()) return true;
  Plaatszoeker zoeker(hoofd);
  const std::vector<std::int16_t> plaatsen = zoeker.Beginnend(naam);
  if (const auto getal = AlsNummer(naam); getal && plaatsen.empty()) {
    const auto nr = NaarInt16(*getal);
    const std::string bijNr = nr && PlaatsRecordNr(*nr) == *nr ? zoeker.Naam(*nr) : std::string();
    if (bijNr.empty()) {
      bediener.Mislukt("Er is geen plaats met nummer " + naam);
      return false;
    }
    naam = bijNr;
    HoudAntwoordenKlaar(bediener, formulier, zoeker.Beginnend(naam), *nr);
    return true;
  }
  if (plaatsen.empty()) return true;
  const std::vector<std::int16_t> gelijk = zoeker.Gelijk(naam);
  if (plaatsen.size() == 1 || gelijk.size() == 1) {
    const std::int16_t nr = gelijk.size() == 1 ? gelijk.front() : plaatsen.front();
    HoudAntwoordenKlaar(bediener, formulier, plaatsen, nr);
    return true;
  }
  bediener.Mislukt(GetalTekst(static_cast<std::int64_t>(plaatsen.size())) +
                   " plaatsen beginnen met \"" + naam + "\"; geef een nummer:");
  for (const std::int16_t nr : plaatsen) bediener.MisluktUtf8(zoeker.Regel(nr));
  return false;
}

}  // namespace lb77
