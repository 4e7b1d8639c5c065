#include "program/AlleFormulieren.h"

#include <vector>

#include "program/formulieren/Gebieden.h"

namespace lb77 {
namespace {

std::vector<FormulierRij> Verzameld() {
  std::vector<FormulierRij> uit;
  for (std::span<const FormulierRij> (*gebied)() :
       {formulieren::App, formulieren::Exchange, formulieren::Contact, formulieren::Output,
        formulieren::Entry, formulieren::Ancestors, formulieren::Descendants,
        formulieren::Gezinsbladen, formulieren::Checks, formulieren::Correctie,
        formulieren::Rapporten, formulieren::Lijsten, formulieren::Beelden}) {
    const std::span<const FormulierRij> rijen = gebied();
    uit.insert(uit.end(), rijen.begin(), rijen.end());
  }
  return uit;
}

}  // namespace

std::span<const FormulierRij> AlleFormulieren() {
  static const std::vector<FormulierRij> alle = Verzameld();
  return alle;
}

}  // namespace lb77
