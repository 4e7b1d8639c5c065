#include "entry/NaamIndex.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>

#include "store/Codes.h"
#include "store/PersoonVelden.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"
#include "text/Zoekvorm.h"

namespace lb77 {

namespace {

constexpr std::int32_t kEersteNr = 2;
// What parts words: "Vries, Jan de" is three of them.
constexpr std::string_view kScheiders = " ,";

std::string Tekst(std::string_view record, const Veld& veld) {
  return DosNaarWindows(Trim(record.substr(veld.plaats, veld.breedte)));
}

std::vector<std::string> Woorden(std::string_view tekst) {
  std::vector<std::string> uit;
  for (std::size_t begin = tekst.find_first_not_of(kScheiders); begin != std::string_view::npos;
       begin = tekst.find_first_not_of(kScheiders, begin)) {
    const std::size_t eind = std::min(tekst.find_first_of(kScheiders, begin), tekst.size());
    uit.push_back(Zoekvorm(tekst.substr(begin, eind - begin)));
    begin = eind;
  }
  return uit;
}

}  // namespace

void NaamIndex::Bouw(RecordBestand& bestand) {
  personen_.clear();
  gebouwd_ = true;
  std::array<char, persoonveld::kLengte> buffer{};
  const std::string_view record(buffer.data(), buffer.size());
  for (std::int32_t nr = kEersteNr; nr <= kMaxRecords; ++nr) {
    std::ranges::copy(persoonveld::kLeeg, buffer.begin());
    const Leesuitslag uitslag = bestand.Lees(nr, buffer);
    if (uitslag.fout) continue;
    if (uitslag.gelezen == 0) return;
    if (record[persoonveld::GebCorr.plaats] == correctie::kVervolg) continue;
    Persoon persoon{static_cast<std::int16_t>(nr),
                    Tekst(record, persoonveld::Voornaam),
                    Tekst(record, persoonveld::Achternaam),
                    {}};
    persoon.vorm = Zoekvorm(persoon.voornaam + " " + persoon.achternaam);
    personen_.push_back(std::move(persoon));
  }
}

std::vector<std::int16_t> NaamIndex::Zoek(std::string_view tekst, const NaamFilter& filter) const {
  std::vector<std::int16_t> uit;
  const std::vector<std::string> woorden = Woorden(tekst);
  if (woorden.empty()) return uit;
  for (const Persoon& persoon : personen_) {
    const bool past = std::ranges::all_of(woorden, [&](const std::string& woord) {
      return persoon.vorm.find(woord) != std::string::npos;
    });
    if (past && filter.LaatDoor(persoon.voornaam, persoon.achternaam)) uit.push_back(persoon.nr);
  }
  return uit;
}

}  // namespace lb77
