// What the search for a place asks, with message boxes and the prompt for the province.
#pragma once

#include <string>
#include <string_view>

#include "forms/Gesprek.h"
#include "store/PlaatsVraag.h"

namespace lb77 {

class PlaatsVraagMetDialogen final : public PlaatsVraag {
 public:
  explicit PlaatsVraagMetDialogen(Gesprek& gesprek) : gesprek_(gesprek) {}

  [[nodiscard]] bool Bevestig(std::string_view naam, std::string_view prov) override;
  [[nodiscard]] bool NogVerder() override;
  [[nodiscard]] bool Toevoegen(std::string_view naam) override;
  // Two characters.
  std::string Provincie(std::string_view naam, std::string_view prov) override;

 private:
  Gesprek& gesprek_;
};

}  // namespace lb77
