// The third pass of the import: notes become remarks.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/GedPad.h"
#include "exchange/ImpLoop.h"
#include "exchange/OpmRubrieken.h"
#include "exchange/Padtabel.h"
#include "exchange/RegelLezer.h"
#include "store/OpmLB77.h"

namespace lb77 {

// A note waits until the next line that does not continue it, and is then wrapped and stored.
class ImpOpmerkingen {
 public:
  explicit ImpOpmerkingen(ImpLoop& loop);

  // Reads the file from where the reader stands.
  [[nodiscard]] ImpUitslag Voer(RegelLezer& lezer);

 private:
  struct Regel;

  [[nodiscard]] ImpUitslag NeemKop(const GedDelen& delen);
  [[nodiscard]] ImpUitslag NeemRegel(const GedDelen& delen);
  void NeemVervolg(const GedDelen& delen);
  // What a tag of our own tells of the note that waits.
  void NeemEigen(const GedDelen& delen);
  void MaakOpmerking(Regel& regel);
  // A part of the note that waits, in which a character may be that no record has.
  void TelTekens(std::string_view tekst);
  void ToonNaam(std::string_view waarde);
  [[nodiscard]] std::string AdoptieDatum(std::string_view waarde);
  [[nodiscard]] bool IsVreemd(std::string_view pad) const;
  void Wacht(const Regel& regel);
  void TelKwijt(std::string_view bron, std::string_view waarde);
  void TelAchterSlot(RegelLezer& lezer, std::int32_t regel);
  [[nodiscard]] ImpUitslag Bewaar();
  [[nodiscard]] ImpUitslag BewaarNoot();
  // The lines to store; a note of ours keeps its own. What they leave out makes the note one that is
  // not whole.
  [[nodiscard]] OpmRegels Regels();
  [[nodiscard]] ImpUitslag Schrijf(std::int16_t begin, std::int16_t persoon, std::int16_t relatie);

  ImpLoop& loop_;
  const RegelLezer* lezer_ = nullptr;
  Padtabel<OpmRubriek> rubrieken_;
  GedPad pad_;
  std::string tekst_;                // of the note that waits, as the file has it
  std::vector<std::string> regels_;  // the same, line by line
  std::int32_t regel_ = 0;           // in which that note begins
  std::int16_t prog_ = 0;            // the outputs in which it is used
  bool vanOns_ = false;              // its lines stay as they are
  std::int16_t rubriek_ = 0;         // of that note; 0 when none waits
  bool heel_ = true;                 // nothing of that note is lost already
  bool kwijt_ = false;               // the line at hand is a note that was not taken over
  bool einde_ = false;
};

}  // namespace lb77
