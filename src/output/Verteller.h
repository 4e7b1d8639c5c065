// The report phrases into a report: word by word to the writer, with remarks, as text or as HTML.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "output/Blik.h"
#include "output/Leesfout.h"
#include "output/TekstSchrijver.h"
#include "output/ZinOpties.h"
#include "store/Gegevens.h"
#include "store/Rubrieken.h"

namespace lb77 {

// What came of telling a partner. Geen: there is none, and nothing was written. Onleesbaar: a record
// could not be read, and the report must end.
enum class PartnerVerteld { Geschreven, Geen, Onleesbaar };

// The report form of the grammar, one a run. A False result means that a record could not be read:
// it aborts the report. All text is encoded for HTML here when the run is in HTML.
class Verteller {
 public:
  // Takes the number of remark records, and tells the writer whether it writes for the Internet.
  // `schrijver` is open and outlives the run.
  Verteller(const Gegevens& bronnen, TekstSchrijver& schrijver, ZinOpties opties);

  [[nodiscard]] const ZinOpties& Opties() const { return opties_; }
  // Switches remarks on or off in the middle of a run.
  void ZetOokOpm(bool aan) { opties_.ookOpm = aan; }

  // Read into the buffer. A failure is remembered as the one that ends the report.
  [[nodiscard]] bool LeesPersoon(std::int16_t nr);
  [[nodiscard]] bool LeesRelatie(std::int16_t relNr);
  // The read that failed last.
  [[nodiscard]] const Leesfout& Fout() const { return fout_; }

  // Name, number and events of a person, without a full stop. The buffer holds him afterwards.
  [[nodiscard]] bool SchrijfPersoon(std::int16_t nr);

  // The events of a relation behind a comma; `volgNr` is its number among the person's, from 1,
  // and told unless it is 1. The buffer holds it afterwards.
  [[nodiscard]] bool SchrijfRelatie(std::int16_t relNr, int volgNr);

  // A relation, its partner and, with `metOuders`, the partner's parents.
  [[nodiscard]] PartnerVerteld SchrijfPartner(const GezinBlik& gezin, bool metOuders);

  // ", zn. van" (`sexFlag` 1, as IsMan gives it) or ", dr. van" and the parents of relation
  // `relNr`; nothing when it has neither. The person buffer changes.
  [[nodiscard]] bool SchrijfOuders(std::int16_t sexFlag, std::int16_t relNr);

  // "[" + number + "]" when the run is with numbers.
  void SchrijfNummer(std::int16_t nr);

  // The remarks of one rubric, out of the chain from `opmRecord`; nothing with remarks off. With
  // `regelEerst` a general remark (4096, -256) stands on its own, indented lines. A chain that
  // can't be read just ends. HuidigOpmNr and the buffer of remarks change.
  void SchrijfRubriekOpm(std::int16_t opmRecord, std::int16_t opmCode, int rubriek,
                         bool regelEerst);

  // The general remark on its own lines (rubric 4096 of a person, -256 of a relation); in HTML
  // between "<UL>" and "</UL>" when there is one.
  void SchrijfAlgemeneOpm(std::int16_t opmRecord, std::int16_t opmCode, int rubriek);

  // Text of the report's own, encoded for HTML in a run in HTML.
  [[nodiscard]] std::string Gecodeerd(std::string_view tekst) const;

 private:
  class InRapport;

  [[nodiscard]] bool Algemeen(int rubriek) const;
  [[nodiscard]] bool Gevraagd(int rubriek) const;
  [[nodiscard]] bool LeesOpm(std::int16_t nr, int& stappen);
  [[nodiscard]] bool SchrijfOpmRegels(int& stappen);
  void SchrijfNaam(std::string_view naam, bool vast);
  [[nodiscard]] bool SchrijfOuder(std::int16_t nr, bool metBeroep);

  Gegevens bronnen_;
  TekstSchrijver& schrijver_;
  ZinOpties opties_;
  std::int16_t aantalOpm_;
  Leesfout fout_;
};

// The rubrics of the general remarks.
inline constexpr int kRubriekPersoon = persoonrubriek::kAlgemeen;
inline constexpr int kRubriekRelatie = relatierubriek::kAlgemeen;

}  // namespace lb77
