// The first window of all: before there are settings it says where the data will lie, and offers
// the ways to a family.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Hoofdmodule.h"
#include "app/Wegknoppen.h"
#include "forms/Formulier.h"

namespace lb77 {

// True when nobody has ever used the program from this directory: there is no settings file, none
// that cannot be read, and no copy of one.
[[nodiscard]] bool IsEersteKeer(const std::filesystem::path& programmaMap);

// Choosing a way makes the settings file. Whoever leaves it otherwise has made nothing. Families that
// lie in the data directory already are named, and can be taken into the list.
class Welkom final : public Formulier {
 public:
  explicit Welkom(Hoofdmodule& hoofd);

  Label WelkomKop{*this, "WelkomKop", "Welkom bij LB77"};
  Label WelkomUitleg{*this, "WelkomUitleg"};
  Label GevondenLabel{*this, "GevondenLabel"};
  Knop Terugnemen{*this, "Terugnemen", "&Deze families weer openen"};
  Label WaarLabel{*this, "WaarLabel"};
  Wegknoppen Wegen{*this};
  Knop BackButton{*this, "BackButton", "&Afsluiten"};

  // The way that was chosen; nothing when the program is to end.
  [[nodiscard]] std::optional<Weg> Gekozen() const { return gekozen_; }

 protected:
  void BijLaden() override;

 private:
  void WegenKlik(Weg weg);
  void TerugnemenKlik();

  Hoofdmodule& hoofd_;
  std::vector<std::string> gevonden_;  // sets in the data directory, whose list is gone
  std::optional<Weg> gekozen_;
};

}  // namespace lb77
