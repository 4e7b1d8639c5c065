// One person: a record of the .PRS file.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/Opslag.h"
#include "store/RecordRaam.h"
#include "store/TabUitslag.h"

namespace lb77 {

// The relations of a person, index 1 to 5 (0 is not used); 0 is a free slot.
using Huwtab = std::array<std::int16_t, 6>;

// Holds one person. Getters tell of the buffer; text is trimmed Windows-1252.
class PersoonLB77 final : public RecordRaam {
 public:
  explicit PersoonLB77(const Opslag& opslag);

  // The number of relations of the buffered person `Nr`, 0 to 5. An unreadable continuation
  // counts as 2. Reads `Nr` again when it had to read the continuation.
  std::int16_t AantalHuw(std::int16_t Nr);

  // Dates as jjjjmmdd for comparing; an unknown part is 0.
  std::int32_t GebDatum() const;
  std::int32_t DoopDatum() const;
  std::int32_t OvlDatum() const;
  std::int32_t BegrDatum() const;

  // Day * 100 + month, and the year; 0 for an unknown part.
  std::int16_t GebDagMaand() const;
  std::int16_t OvDagMaand() const;
  std::int16_t BegrDagMaand() const;
  std::int16_t DoopDagMaand() const;
  std::int16_t GebJaar() const;
  std::int16_t OvJaar() const;
  std::int16_t DoopJaar() const;
  std::int16_t BegrJaar() const;

  // True when the person was cremated.
  [[nodiscard]] bool BegrCrem() const;

  // Place numbers with their qualifier; 0 for none.
  std::int16_t GebPlaatsNr() const;
  std::int16_t DoopPlaatsNr() const;
  std::int16_t OvlPlaatsNr() const;
  std::int16_t BegrPlaatsNr() const;
  // The relation of the parents; 0 for none.
  std::int16_t RelNrOuders() const;
  // The first remark record (0 for none), and the bits of the rubrics that have remarks.
  std::int16_t OpmRecord() const;
  std::int16_t OpmCode() const;

  std::string VoorNaamTrue() const;

  // Reads person `Nr` and fills the table. The count is that of the positive slots; 2 with an
  // unreadable continuation, 0 and an empty table when `Nr` can't be read: both are not whole,
  // nor is a table whose continuation is an ordinary record. HuidigPersoonNr and the buffer may
  // stand on the continuation afterwards.
  TabUitslag VulHuwtab(std::int16_t Nr, Huwtab& tab);

  // Reads person `Nr` and gives both names, an empty one replaced by `Onbekend`. Both are empty
  // when `Nr` is 0 or can't be read.
  void HeleNaam(std::int16_t Nr, std::string& Voor, std::string& Achter, std::string_view Onbekend);

  // First name and surname; "<onbekend>" without either.
  std::string NaamVoluit() const;

  // Reads person `Nr`: 1 for a man, 0 for a woman, -1 for anything else and for a failure.
  std::int16_t IsMan(std::int16_t Nr);

  // The lifetime, ‘1802-1870’; "????-????" when it can't be read. Reads `Nr` unless the buffer
  // holds it.
  std::string Periode(std::int16_t Nr);

  std::string AchterNaamTrue() const;
  // The sort form of the surname, prefixes behind.
  std::string AchterNaamVVC() const;
  std::string beroep() const;
  std::string Religie() const;
  std::int16_t relatie1() const;
  std::int16_t relatie2() const;
  // The third relation, or minus the number of the continuation record.
  std::int16_t relatie3() const;
  // "M", "V" or another letter; "O" when blank.
  std::string Geslacht() const;
  std::string GebCorr() const;
  std::string OvlCorr() const;

  // Dates in the entry form, with the separator of the settings.
  std::string GebDatum10() const;
  std::string OvlDatum10() const;
  std::string DoopDatum10() const;
  std::string BegrDatum10() const;

  // Reads person `Nr`. False, silently, for an absent record; PersBufNr is -1 then.
  [[nodiscard]] bool Lees(std::int16_t Nr);
  // Writes the buffer to person `Nr`, wherever HuidigPersoonNr stands.
  [[nodiscard]] bool Schrijf(std::int16_t Nr);
  // Makes an empty person at `Nr` (from 2, AantalRecords() + 1) and reads it. Above 32767 it
  // refuses with a message.
  [[nodiscard]] bool Nieuw(std::int32_t Nr);
  // Writes record 1 of a new file.
  [[nodiscard]] bool NieuwAdm();
  // Empties the buffer; PersBufNr is -1 after it.
  void LeegPersBuffer();
  // True for a continuation record.
  [[nodiscard]] bool IsVolgRecord() const;

 private:
  bool IsGat(Soort soort) const override;
  void HerstelSonde(Soort soort) override;
};

}  // namespace lb77
