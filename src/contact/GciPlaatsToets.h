// The check of the places: each gets its row in the table of the contact service, with the user's help.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "contact/GciGebied.h"
#include "contact/GciTabellen.h"
#include "forms/Gesprek.h"
#include "store/PlaatsLB77.h"

namespace lb77 {

// A place of the file set, and under which name, province and country it is looked for.
struct GciPlaats {
  std::int16_t nr = 0;
  std::string eigenNaam;
  std::string eigenCode;
  std::string naam;
  GciGebied gebied;
};

class GciPlaatsToets {
 public:
  static constexpr std::int16_t kWeglaten = 0;
  static constexpr std::int16_t kAfbreken = -2;

  // Has the user pick a row by hand; 0 when he picked none.
  using Corrigeer = std::function<std::int16_t(const GciPlaats& plaats)>;

  GciPlaatsToets(GciTabellen& tabellen, PlaatsLB77& plaats, Gesprek& gesprek, Corrigeer corrigeer)
      : tabellen_(tabellen), plaats_(plaats), gesprek_(gesprek), corrigeer_(std::move(corrigeer)) {}

  // From here on a place whose own code is empty gets the row of its name without a question, when
  // there is only one, and that is told.
  void NeemEnige() { neemEnige_ = true; }

  // The row of a place number, kWeglaten or kAfbreken. What was answered once is not asked again.
  [[nodiscard]] std::int16_t Rij(std::int16_t plaatsNr);

  // The names of the places that are left out, in the order in which that was said.
  [[nodiscard]] const std::vector<std::string>& Overgeslagen() const { return overgeslagen_; }

 private:
  [[nodiscard]] std::int16_t Bepaal(std::int16_t plaatsNr);
  [[nodiscard]] std::int16_t Zoek(const GciPlaats& plaats);
  [[nodiscard]] std::int16_t ZoekSynoniem(GciPlaats& plaats);
  [[nodiscard]] std::int16_t VraagCorrectie(const GciPlaats& plaats);
  [[nodiscard]] std::int16_t VraagToch(const GciPlaats& plaats);
  [[nodiscard]] std::string Gevonden(std::int16_t rij) const;
  [[nodiscard]] bool IsJuist(std::string_view vraag, const GciPlaats& plaats,
                             const std::string& gevonden);

  GciTabellen& tabellen_;
  PlaatsLB77& plaats_;
  Gesprek& gesprek_;
  Corrigeer corrigeer_;
  bool neemEnige_ = false;
  std::unordered_map<std::int16_t, std::int16_t> bekend_;
  std::vector<std::string> overgeslagen_;
};

}  // namespace lb77
