#include "forms/Bediening.h"

#include "forms/Formulier.h"

namespace lb77 {

Bediening::Bediening(Formulier& formulier, BedieningSoort soort, std::string_view naam,
                     std::string_view bijschrift)
    : soort_(soort), naam_(naam), bijschrift_(bijschrift) {
  formulier.Neem(*this);
}

}  // namespace lb77
