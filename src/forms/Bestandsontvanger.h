// A form that takes files which the user drops on its window.
#pragma once

#include <filesystem>

namespace lb77 {

// A base beside Formulier. A front end asks first whether such a file is taken.
class Bestandsontvanger {
 public:
  Bestandsontvanger() = default;
  virtual ~Bestandsontvanger() = default;
  Bestandsontvanger(const Bestandsontvanger&) = delete;
  Bestandsontvanger& operator=(const Bestandsontvanger&) = delete;

  // By its name alone.
  [[nodiscard]] virtual bool Neemt(const std::filesystem::path& bestand) const = 0;
  // What the user does: he brings that file.
  virtual void Ontvang(const std::filesystem::path& bestand) = 0;
};

}  // namespace lb77
