// The grammar in which every report tells a person and a relation; where the words go is a sink's.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "output/Gebeurtenis.h"
#include "output/ZinOpties.h"
#include "store/Gegevens.h"

namespace lb77 {

// Where the words go: into a string, or into a report with its remarks.
class ZinUitvoer {
 public:
  virtual ~ZinUitvoer() = default;
  // Text that begins with a comma, glued to what stands before it.
  virtual void Aan(std::string_view tekst) = 0;
  // Text behind a blank.
  virtual void Los(std::string_view tekst) = 0;
  // Here the remark of that rubric belongs. A person's rubric is positive, a relation's negative.
  virtual void Rubriek(int rubriek) = 0;
};

// Tells what lies in the buffers of `bronnen`. The buffer of places changes, and that of remarks
// when the sink writes them; those of persons and relations stay.
class Zinsbouw {
 public:
  Zinsbouw(const Gegevens& bronnen, ZinUitvoer& uitvoer) : bronnen_(bronnen), uit_(uitvoer) {}

  // All of the person in the buffer behind his name and number: birth and baptism, occupation,
  // death and burial. `opmCode` holds the rubrics after which a remark may follow.
  void Leven(int opmCode);

  // The relation in the buffer. `opmCode` as above, as positive bits. `voorvoegsel` is what tells
  // which relation it is: "(2)", " [17]", both or nothing.
  void Relatie(int opmCode, std::string_view voorvoegsel, std::string_view toonTrouw);

 private:
  struct Rubrieken;
  struct Levenspaar;
  struct Huwelijk;

  [[nodiscard]] std::string Datum(const Gebeurtenis& gebeurtenis, std::string_view corr) const;
  void PlaatsVan(const Gebeurtenis& gebeurtenis, int rubriek);
  void DatumVan(const Gebeurtenis& gebeurtenis, std::string_view corr, int rubriek);
  void Alleen(std::string_view label, const Gebeurtenis& gebeurtenis, std::string_view corr,
              const Rubrieken& rubrieken);
  void Tussen(std::string_view label, const Gebeurtenis& begin, const Rubrieken& rubriekenBegin,
              const Gebeurtenis& einde, const Rubrieken& rubriekenEinde);

  void GeboorteEnDoop(const Levensloop& leven, int opmCode);
  void OverlijdenEnBegraven(const Levensloop& leven, int opmCode);
  void Paar(const Levenspaar& paar, int opmCode);
  void PaarUiteen(const Levenspaar& paar);

  [[nodiscard]] Huwelijk LeesHuwelijk(int opmCode) const;
  void Huwelijken(Huwelijk& huwelijk, int opmCode, std::string_view toonTrouw);
  void Ondertrouw(const Huwelijk& huwelijk);
  void Samen(const Huwelijk& huwelijk, unsigned samen);

  Gegevens bronnen_;
  ZinUitvoer& uit_;
};

// Which relation of a person is told: "(" + number + ")" behind the first one, and with `ookNrs`
// " [" + record number + "]".
std::string RelatieVoorvoegsel(std::int16_t relNr, int volgNr, bool isEerste, bool ookNrs);

}  // namespace lb77
