// The lines under a person: one table of paths and what each does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "exchange/GedDatum.h"
#include "exchange/GedLoop.h"

namespace lb77 {

struct GedPersoonPad;

// What a table of paths made of a line.
enum class GedGevolg { Gedaan, Onbekend, Stil };

// Fills the person in the buffer. Begin, the lines, Schrijf.
class GedPersoon {
 public:
  explicit GedPersoon(GedLoop& loop) : loop_(loop) {}

  // Reads the record of the next person of the file. False when it can't be read.
  [[nodiscard]] bool Begin(std::int16_t nr);
  [[nodiscard]] bool Schrijf();

  // A line with path `pad`; `context` names the record in the log.
  [[nodiscard]] GedGevolg Verwerk(std::string_view pad, std::string_view waarde,
                                  std::string_view context);

  // The qualifier of the last death or burial date of the file.
  [[nodiscard]] char OvlCorrectie() const { return ovlCorrectie_; }

 private:
  void Doe(const GedPersoonPad& rij, std::string_view waarde, std::string_view context);
  void ZetNaam(std::string_view pad, std::string_view waarde, std::string_view context);
  void ZetDatum(const GedPersoonPad& rij, std::string_view waarde, std::string_view context);
  void ZetGeslacht(std::string_view waarde);
  void ToonNaam();
  [[nodiscard]] bool ZetRelatie(std::int16_t relatie);
  [[nodiscard]] bool MaakVervolg(std::int16_t relatie);
  [[nodiscard]] bool ZetInVervolg(std::int16_t relatie);
  [[nodiscard]] bool LeesZelf();

  GedLoop& loop_;
  std::int16_t nr_ = 0;
  std::int16_t vervolg_ = 0;
  int relaties_ = 0;
  std::string voornaam_;
  std::string achternaam_;
  char gebCorrectie_ = ' ';  // of this person
  char ovlCorrectieHier_ = ' ';
  char ovlCorrectie_ = ' ';
};

}  // namespace lb77
