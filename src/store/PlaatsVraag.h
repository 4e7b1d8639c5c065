// What the search for a place asks the user.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Implemented with boxes and a dialog where there is a screen. All questions have Yes and No, and
// True is Yes.
class PlaatsVraag {
 public:
  PlaatsVraag() = default;
  virtual ~PlaatsVraag() = default;
  PlaatsVraag(const PlaatsVraag&) = delete;
  PlaatsVraag& operator=(const PlaatsVraag&) = delete;

  // "Gevonden: <naam> (<prov>). Is deze Plaats bedoeld ?"
  [[nodiscard]] virtual bool Bevestig(std::string_view naam, std::string_view prov) = 0;

  // "Nog verder zoeken ?"
  [[nodiscard]] virtual bool NogVerder() = 0;

  // "Plaats "<naam>" is onbekend." and "Plaats toevoegen aan het Plaatsbestand ?"
  [[nodiscard]] virtual bool Toevoegen(std::string_view naam) = 0;

  // The province code for a new place; `prov` is what the prompt starts with.
  virtual std::string Provincie(std::string_view naam, std::string_view prov) = 0;
};

// Asks nobody: No to everything, the province as given. For a search that has nothing to ask.
class GeenPlaatsVraag final : public PlaatsVraag {
 public:
  [[nodiscard]] bool Bevestig(std::string_view, std::string_view) override { return false; }
  [[nodiscard]] bool NogVerder() override { return false; }
  [[nodiscard]] bool Toevoegen(std::string_view) override { return false; }
  std::string Provincie(std::string_view, std::string_view prov) override {
    return std::string(prov);
  }
};

}  // namespace lb77
