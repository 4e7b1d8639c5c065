// What a conversation on a desktop can do beside its dialogs.
#pragma once

#include <filesystem>
#include <optional>

#include "forms/Gesprek.h"

namespace lb77 {

// A base beside Gesprek. A form asks first whether its conversation is one: a script has no desktop.
class Bureaublad {
 public:
  Bureaublad() = default;
  virtual ~Bureaublad() = default;
  Bureaublad(const Bureaublad&) = delete;
  Bureaublad& operator=(const Bureaublad&) = delete;

  // Shows a file in the user's browser; False when there is none.
  [[nodiscard]] virtual bool OpenInBrowser(const std::filesystem::path& pad) = 0;
  // As Gesprek::VraagBestand for a file to write, with a name filled in, whose extension chooses the
  // kind. It begins where the user last saved, and the first time among his documents.
  [[nodiscard]] virtual std::optional<std::filesystem::path> VraagOpslag(
      const BestandsVraag& vraag, const std::filesystem::path& naam) = 0;
};

}  // namespace lb77
