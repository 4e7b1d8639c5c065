// The rows of the list of all forms, one function an area of the program, and what they share.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "program/AlleFormulieren.h"

namespace lb77::formulieren {

[[nodiscard]] std::span<const FormulierRij> App();
[[nodiscard]] std::span<const FormulierRij> Exchange();
[[nodiscard]] std::span<const FormulierRij> Contact();
[[nodiscard]] std::span<const FormulierRij> Output();
[[nodiscard]] std::span<const FormulierRij> Entry();
[[nodiscard]] std::span<const FormulierRij> Ancestors();
[[nodiscard]] std::span<const FormulierRij> Gezinsbladen();
[[nodiscard]] std::span<const FormulierRij> Descendants();
[[nodiscard]] std::span<const FormulierRij> Checks();
[[nodiscard]] std::span<const FormulierRij> Correctie();
[[nodiscard]] std::span<const FormulierRij> Rapporten();
[[nodiscard]] std::span<const FormulierRij> Lijsten();
[[nodiscard]] std::span<const FormulierRij> Beelden();

inline constexpr std::int16_t kVoorbeeldPersoon = 2;

// A form that refers to nothing but the session.
template <class Form, class... Args>
[[nodiscard]] GemaaktFormulier Maak(Args&&... args) {
  return {nullptr, std::make_unique<Form>(std::forward<Args>(args)...)};
}

// The session, standing on the person that the forms on a person show.
[[nodiscard]] inline Hoofdmodule& OpVoorbeeld(Programma& programma) {
  programma.Hoofd().volgers.HuidigPersoonNr = kVoorbeeldPersoon;
  return programma.Hoofd();
}

}  // namespace lb77::formulieren
