// A conversation that can show the manual.
#pragma once

#include <filesystem>
#include <functional>
#include <utility>

namespace lb77 {

class Formulier;

// A base beside Gesprek, for one with a browser at hand; a script has none.
class Hulpgever {
 public:
  Hulpgever() = default;
  virtual ~Hulpgever() = default;
  Hulpgever(const Hulpgever&) = delete;
  Hulpgever& operator=(const Hulpgever&) = delete;

  // Shows a page in the user's browser; False when there is none.
  [[nodiscard]] virtual bool OpenInBrowser(const std::filesystem::path& pad) = 0;

  // What F1 does in a form. Without it the key does nothing.
  void BijHulp(std::function<void(const Formulier&)> doe) { hulp_ = std::move(doe); }
  void GeefHulp(const Formulier& formulier) {
    if (hulp_) hulp_(formulier);
  }

 private:
  std::function<void(const Formulier&)> hulp_;
};

}  // namespace lb77
