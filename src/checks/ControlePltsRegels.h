// The rules of the check of places.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "checks/Bereik.h"
#include "checks/Controleur.h"
#include "reporting/RecordBron.h"
#include "store/Gegevens.h"

namespace lb77 {

// Looks up once, for the whole run, which places have a name in common and which are used: a check
// is linear in the files but for the lines that it writes.
class ControlePltsRegels final : public Controleur {
 public:
  // `keuzen`: double places, places without use.
  ControlePltsRegels(RecordBron& bron, const ControleKeuzen& keuzen)
      : gegevens_(bron.Stil()), luid_(bron.Luid()), keuzen_(keuzen) {}

  [[nodiscard]] std::int16_t Laatste() override {
    return bereik_.Tot(luid_.plaats, gegevens_.plaats);
  }
  void Begin(std::int16_t laatste) override;
  void Toets(std::int16_t nr, const Melding& meld) override;

 private:
  struct Plaats {
    std::int16_t nr;
    std::string naam;
    std::string prov;
  };

  [[nodiscard]] Plaats Lees(std::int16_t nr);
  void LeesNamen(std::int16_t laatste);
  void LeesGebruik();
  void ToetsDubbel(const Plaats& plaats, const Melding& meld);

  Gegevens gegevens_;
  Gegevens luid_;
  Bereik bereik_;
  Bereik personen_;
  Bereik relaties_;
  ControleKeuzen keuzen_;
  std::unordered_map<std::string, std::vector<std::int16_t>> opNaam_;  // each in order of number
  std::vector<bool> gebruikt_;  // by place number as it stands in a record
};

}  // namespace lb77
