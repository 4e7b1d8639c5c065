#include "forms/Keuzen.h"

#include "forms/Formulier.h"
#include "text/Getallen.h"

namespace lb77 {

void Verwijzing::ZetNr(int nr, std::string_view bijNul) {
  nr_ = nr;
  ZetBijschrift(nr ? GetalTekst(nr) : std::string(bijNul));
}

// Without a prompt and a name of its own the base says what the button shows already.
std::string Verwijzing::Leesnaam() const {
  std::string naam = Knop::Leesnaam();
  if (Bijschrift().empty() || naam == Bijschrift()) return naam;
  return naam + " " + Bijschrift();
}

void Optie::Zet(bool gekozen) {
  if (gekozen) {
    for (Bediening* ander : formulier_.Bedieningen()) {
      if (ander == this || ander->Soort() != BedieningSoort::Optie) continue;
      auto& optie = static_cast<Optie&>(*ander);
      if (optie.groep_ == groep_) optie.Schakelaar::Zet(false);
    }
  }
  Schakelaar::Zet(gekozen);
}

void Lijst::ZetRijen(std::vector<std::string> rijen) {
  rijen_ = std::move(rijen);
  index_ = -1;
}

void Lijst::ZetIndex(int index) {
  index_ = index >= 0 && index < static_cast<int>(rijen_.size()) ? index : -1;
}

std::string Lijst::Tekst() const {
  return index_ < 0 ? std::string() : rijen_[static_cast<std::size_t>(index_)];
}

}  // namespace lb77
