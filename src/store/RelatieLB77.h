// One relation of a man and a woman with its children: a record of the .RLT file.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/Opslag.h"
#include "store/RecordRaam.h"
#include "store/TabUitslag.h"

namespace lb77 {

// The children of a relation, index 1 to 29 (0 is not used); 0 is a free slot.
using Kindtab = std::array<std::int16_t, 30>;

// Holds one relation. Getters tell of the buffer; text is trimmed.
class RelatieLB77 final : public RecordRaam {
 public:
  explicit RelatieLB77(const Opslag& opslag);

  // Writes the buffer to relation `Nr`, wherever HuidigRelatieNr stands.
  [[nodiscard]] bool Schrijf(std::int16_t Nr);
  // True for a continuation record.
  [[nodiscard]] bool IsVolgRecord() const;

  // The rubrics that have remarks, negative, and the first remark record (0 for none).
  std::int16_t OpmCode() const;
  std::int16_t OpmRecord() const;

  // Child slot 1 to 15 of the buffer as text; empty for another index. Slot 15 may be minus the
  // number of the continuation record.
  std::string kind(std::int16_t Index) const;
  // The same as a number; 0 for another index.
  std::int16_t KindNr(std::int16_t Index) const;

  // Stored text, not converted.
  std::string Religie() const;
  std::string HuwSoort() const;

  // Day * 100 + month, and the year; 0 for an unknown part.
  std::int16_t KHuwJaar() const;
  std::int16_t WetHuwJaar() const;
  std::int16_t KHuwDagMaand() const;
  std::int16_t WetHuwDagMaand() const;
  std::int16_t OtrJaar() const;
  std::int16_t OtrDagMaand() const;
  std::string HuwCorr() const;

  // Person numbers; 0 for none.
  std::int16_t ManNr() const;
  std::int16_t VrouwNr() const;

  // Reads relation `Nr` and fills the table. The count is that of the positive slots; 14 with an
  // unreadable continuation, 0 and an empty table when `Nr` can't be read: both are not whole,
  // nor is a table whose continuation is an ordinary record. HuidigRelatieNr and the buffer may
  // stand on the continuation afterwards. Gaps are kept.
  TabUitslag VulKindtab(std::int16_t Nr, Kindtab& tab);

  // Empties the buffer; RelBufNr is -1 after it.
  void LeegRelBuffer();
  // Reads relation `Nr`. False, silently, for an absent record; RelBufNr is -1 then.
  [[nodiscard]] bool Lees(std::int16_t Nr);

  // Dates in the entry form; an empty date is "  -  -    " whatever the separator.
  std::string OtrDatum10() const;
  std::string WetHuwDatum10() const;
  std::string KHuwDatum10() const;

  // Dates as jjjjmmdd for comparing; an unknown part is 0.
  std::int32_t OtrDatum() const;
  std::int32_t WHuwDatum() const;
  std::int32_t KHuwDatum() const;

  // Place numbers with their qualifier; 0 for none.
  std::int16_t OtrPlaatsNr() const;
  std::int16_t WetHuwPlaatsNr() const;
  std::int16_t KHuwPlaatsNr() const;

  // True when the church-marriage fields hold a divorce.
  [[nodiscard]] bool KHuwSch() const;
  // "S" for Samenwonen, "P" for Partnerschap, empty for a marriage.
  std::string HuwSwPs() const;

  // Makes an empty relation at `Nr` (from 2, AantalRecords() + 1) and reads it. Above 32767 it
  // refuses with a message.
  [[nodiscard]] bool Nieuw(std::int32_t Nr);
  // Writes record 1 of a new file.
  [[nodiscard]] bool NieuwAdm();

 private:
  bool IsGat(Soort soort) const override;
  void HerstelSonde(Soort soort) override;
  // For "HuwSwPs" Zet also takes the words "Sw" and "Ps" beside 1 and 2.
  std::string_view WaardeVoor(const Veld& deze, std::string_view waarde) const override;
  std::string Entree(const Veld& dagMaand, const Veld& jaar) const;
};

}  // namespace lb77
