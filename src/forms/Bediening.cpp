#include "forms/Bediening.h"

#include "forms/Bijschrift.h"
#include "forms/Formulier.h"
#include "text/Tekens.h"

namespace lb77 {

Bediening::Bediening(Formulier& formulier, BedieningSoort soort, std::string_view naam,
                     std::string_view bijschrift)
    : soort_(soort), naam_(naam), bijschrift_(bijschrift) {
  formulier.Neem(*this);
}

std::string Bediening::Leesnaam() const {
  if (!leesnaam_.empty()) return leesnaam_;
  const std::string prompt = Prompt();
  const std::string gelezen = ZonderSneltoets(prompt.empty() ? bijschrift_ : prompt);
  const std::string_view kern = Trim(gelezen);
  return kern.empty() ? naam_ : std::string(kern);
}

}  // namespace lb77
