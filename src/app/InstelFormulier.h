// The base of the settings dialogs: each field is tied to its setting.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/InvoerFormulier.h"

namespace lb77 {

// Loading fills the fields from the settings; OK stores them all, in the order in which they were
// tied, writes the settings file and closes. Terug closes without storing. Values are not judged.
class InstelFormulier : public InvoerFormulier {
 protected:
  InstelFormulier(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd);

  void Koppel(Invoerveld& veld, std::string_view sectie, std::string_view sleutel);
  void Koppel(Padvak& veld, std::string_view sectie, std::string_view sleutel);
  // The setting holds the value that stands at the position of the choice; `anders` is the position
  // that any other value shows.
  void Koppel(Lijst& vak, std::string_view sectie, std::string_view sleutel,
              const std::vector<std::string>& waarden, int anders = 0);
  // What OK and Terug do.
  void KoppelKnoppen(Knop& OKButton, Knop& BackButton);

  void BijLaden() override;
  // Whether OK may store what was typed; False, told, keeps the dialog.
  [[nodiscard]] virtual bool MagBewaren() { return true; }
  // What OK does before the settings file is written.
  virtual void Bewaar();

 private:
  struct Koppeling {
    std::function<void()> toon;
    std::function<void()> bewaar;
  };

  void OKButtonKlik();

  std::vector<Koppeling> koppelingen_;
};

}  // namespace lb77
