// Asks a number, and nothing else.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "forms/Formulier.h"

namespace lb77 {

// The caller judges the number, by the result or by a leave check of its own.
class VraagRecordNr final : public Formulier {
 public:
  using Controle = std::function<bool(std::string_view tekst)>;

  // `titel` says what the number is for. Without `controle` any number will do.
  explicit VraagRecordNr(std::string_view titel, Controle controle = {});

  Tekstvak RecordNr{*this, "RecordNr", "Geef het Recordnummer:", 5};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The number, 0 to 99999; 0 when none was given or the form was left by Terug.
  [[nodiscard]] std::int32_t Nr() const { return nr_; }

 private:
  void OKButtonKlik();

  std::int32_t nr_ = 0;
};

}  // namespace lb77
