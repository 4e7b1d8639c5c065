// `toon`: the card of a person as text.
#include <algorithm>
#include <ostream>
#include <string>

#include "cli/Opdrachten.h"
#include "cli/Personen.h"
#include "cli/Sessie.h"
#include "text/Tekens.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

constexpr std::size_t kOpschrift = 20;

// What a line says of one thing, and the name of it; empty for what is no beginning.
std::string Opschrift(const Bediening& bediening) {
  if (bediening.Soort() == BedieningSoort::Label) return bediening.Bijschrift();
  if (bediening.Soort() == BedieningSoort::Tekstblok) return bediening.Leesnaam();
  return bediening.Prompt();
}

// A number that leads somewhere stands in brackets.
std::string Inhoud(const Bediening& bediening) {
  if (const auto* nr = dynamic_cast<const Verwijzing*>(&bediening)) {
    return nr->Nr() == 0 ? std::string() : "[" + nr->Bijschrift() + "]";
  }
  const bool toont = bediening.Soort() == BedieningSoort::Teller ||
                     bediening.Soort() == BedieningSoort::Tekstvak ||
                     bediening.Soort() == BedieningSoort::Tekstblok;
  return toont ? std::string(Trim(bediening.Waarde())) : std::string();
}

// A line for each prompt and label of a form, with the values that stand behind it; one without a
// value is left out.
class Kaarttekst {
 public:
  explicit Kaarttekst(std::ostream& uit) : uit_(uit) {}

  void Druk(const Formulier& kaart) {
    for (const Bediening* bediening : kaart.Bedieningen()) {
      if (bediening->Zichtbaar()) Neem(*bediening);
    }
    Regel();
  }

 private:
  void Neem(const Bediening& bediening) {
    const std::string opschrift = Opschrift(bediening);
    if (!opschrift.empty()) {
      Regel();
      opschrift_ = opschrift;
    }
    const std::string inhoud = Inhoud(bediening);
    if (!inhoud.empty()) waarden_.append(" ").append(inhoud);
  }
  void Regel() {
    if (!waarden_.empty()) {
      if (!opschrift_.ends_with(':')) opschrift_ += ':';
      opschrift_.resize(std::max(opschrift_.size(), kOpschrift), ' ');
      uit_ << WindowsNaarUtf8(opschrift_ + waarden_) << '\n';
    }
    waarden_.clear();
  }

  std::ostream& uit_;
  std::string opschrift_;
  std::string waarden_;
};

}  // namespace

int Toon(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  std::string persoon = argumenten.woorden[1];
  bool getoond = false;
  sessie.bediener.Bij("StartRecord", [&](Formulier& form) {
    Werk start(sessie.bediener, form);
    if (start.Zet("PersNr", persoon)) start.Druk("OKButton");
  });
  sessie.bediener.Bij("ToonPersoon", [&](Formulier& kaart) {
    getoond = !kaart.Gesloten();
    if (getoond) Kaarttekst(omgeving.uit).Druk(kaart);
  });
  return sessie.Voer(argumenten.woorden[0], Omgang::Lezen, [&](Werk& menu) {
    if (!VindPersoon(sessie.Hoofd(), sessie.bediener, persoon)) return;
    menu.Kies("InvPersRel");
    if (!getoond && sessie.bediener.Status() == 0) {
      sessie.bediener.Mislukt("De persoon is niet getoond");
    }
  });
}

}  // namespace lb77
