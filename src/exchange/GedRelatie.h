// The lines under a relation: one table of paths and what each does.
#pragma once

#include <cstdint>
#include <string_view>

#include "exchange/GedLoop.h"
#include "exchange/GedPersoon.h"

namespace lb77 {

struct GedRelatiePad;

// Fills the relation in the buffer. Begin, the lines, Schrijf.
class GedRelatie {
 public:
  explicit GedRelatie(GedLoop& loop) : loop_(loop) {}

  // Reads the record of the next relation of the file. False when it can't be read.
  [[nodiscard]] bool Begin(std::int16_t nr);
  [[nodiscard]] bool Schrijf();

  // A line with path `pad`; `ovlCorrectie` is the qualifier that the last death or burial date of
  // the file had.
  [[nodiscard]] GedGevolg Verwerk(std::string_view pad, std::string_view waarde,
                                  std::string_view context, char ovlCorrectie);

 private:
  void Doe(const GedRelatiePad& rij, std::string_view waarde, std::string_view context,
           char ovlCorrectie);
  void ZetDatum(const GedRelatiePad& rij, std::string_view waarde, std::string_view context,
                char ovlCorrectie);
  [[nodiscard]] bool ZetKind(std::int16_t kind);
  [[nodiscard]] bool MaakVervolg(std::int16_t kind);
  [[nodiscard]] bool ZetInVervolg(std::int16_t kind);
  [[nodiscard]] bool LeesZelf();

  GedLoop& loop_;
  std::int16_t nr_ = 0;
  std::int16_t vervolg_ = 0;
  int kinderen_ = 0;
};

}  // namespace lb77
