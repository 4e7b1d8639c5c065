// One pass over a GEDCOM file, line by line.
#pragma once

#include <string>

#include "exchange/GedLoop.h"
#include "exchange/GedPad.h"
#include "exchange/GedRegel.h"

namespace lb77 {

class GedStap {
 public:
  explicit GedStap(GedLoop& loop) : loop_(loop) {}
  virtual ~GedStap() = default;
  GedStap(const GedStap&) = delete;
  GedStap& operator=(const GedStap&) = delete;

  // Reads the file from its first line to the end of the pass.
  [[nodiscard]] GedUitslag Voer();

 protected:
  // What a line means for the pass.
  enum class Verloop { Verder, Einde, Fout, Stil };

  // A line without an error.
  [[nodiscard]] virtual Verloop Verwerk(const GedcomRegel& regel) = 0;

  // Ends the pass and those behind it with a text for the user.
  [[nodiscard]] Verloop Fout(std::string_view tekst);

  GedLoop& loop_;
  GedPad pad_;
  std::string context_ = "H-0";
  int regelNr_ = 0;
};

// Pass 1: every person and relation gets an empty record and a row in the tables of ids.
class GedStap1 final : public GedStap {
 public:
  using GedStap::GedStap;

 private:
  [[nodiscard]] Verloop Verwerk(const GedcomRegel& regel) override;
  [[nodiscard]] Verloop NieuwePersoon(std::string_view id);
  [[nodiscard]] Verloop NieuweRelatie(std::string_view id);

  bool kopGezien_ = false;
  int personen_ = 0;
  int relaties_ = 0;
  int bronnen_ = 0;
};

}  // namespace lb77
