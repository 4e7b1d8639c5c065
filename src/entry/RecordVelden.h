// The fields of a form, each tied to the field of the record that it shows.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Velden.h"
#include "store/RecordRaam.h"
#include "store/Veld.h"
#include "text/Getallen.h"

namespace lb77 {

class DatumVak;
class GezindteVak;
class PlaatsVak;

// Only what the user changed is stored: what a record holds besides, and what no field can show,
// stays as it is, byte for byte. A binding refers to its control, which must outlive this object.
class RecordVelden {
 public:
  // Shows a value, and gives the one that stands there, both as text for Zet.
  using Toner = std::function<void(const std::string&)>;
  using Lezer = std::function<std::string()>;

  // A text or a number. The control takes its longest text from the field.
  void Bind(const Veld& veld, Invoerveld& vak);
  void Bind(const Veld& veld, DatumVak& vak);
  void Bind(const Veld& veld, PlaatsVak& vak);
  void Bind(const Veld& veld, GezindteVak& vak);
  void Bind(const Veld& veld, Toner toner, Lezer lezer);
  // A choice by its position: a pick list, or whatever else has an index.
  template <class Keuze>
  void BindKeuze(const Veld& veld, Keuze& keuze) {
    Bind(
        veld, [&keuze](const std::string& waarde) { keuze.ZetIndex(Getalwaarde(waarde)); },
        [&keuze] { return GetalTekst(keuze.Index()); });
  }

  // Shows the record in the buffer, in the order in which the fields were tied.
  void Toon(const RecordRaam& record);
  // From now on what stands in the controls counts as unchanged, for a form that shows more than
  // the record holds.
  void Onthoud();
  [[nodiscard]] bool Gewijzigd() const;
  // Stores what was changed in the buffer, in the order in which the fields were tied.
  void ZetGewijzigde(RecordRaam& record) const;
  // Stores all fields, in a record that was just made.
  void ZetAlle(RecordRaam& record) const;

 private:
  struct Binding {
    const Veld* veld;
    Toner toon;
    Lezer lees;
    std::string getoond;
  };
  [[nodiscard]] static bool IsAnders(const Binding& binding);

  std::vector<Binding> bindingen_;
};

}  // namespace lb77
