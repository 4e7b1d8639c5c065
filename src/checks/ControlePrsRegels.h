// The rules of the check of persons.
#pragma once

#include <cstdint>
#include <string>

#include "checks/Bereik.h"
#include "checks/Controleur.h"
#include "reporting/RecordBron.h"
#include "store/Gegevens.h"

namespace lb77 {

// The tracker HuidigPersoonNr may stand on another person afterwards.
class ControlePrsRegels final : public Controleur {
 public:
  // `keuzen`: parents, order of dates, age, age of the parents, relations.
  ControlePrsRegels(RecordBron& bron, const ControleKeuzen& keuzen)
      : gegevens_(bron.Stil()), luid_(bron.Luid()), keuzen_(keuzen) {}

  [[nodiscard]] std::int16_t Laatste() override {
    return bereik_.Tot(luid_.persoon, gegevens_.persoon);
  }
  void Begin(std::int16_t) override {}
  void Toets(std::int16_t nr, const Melding& meld) override;

 private:
  // What the tests ask of the person, kept because they read other records.
  struct Leven {
    std::int16_t nr;
    std::int16_t ouders;  // relation
    std::string geboren;
    std::string gedoopt;
    std::string overleden;
    std::string begraven;
    int eersteJaar;  // of birth, else of baptism; 0 for none
    int begraafJaar;
  };
  enum class Ouder { Vader, Moeder };

  [[nodiscard]] Leven LeesLeven(std::int16_t nr) const;
  void ToetsDatums(const Leven& leven, const Melding& meld) const;
  void ToetsOuderdom(const Leven& leven, const Melding& meld);
  void ToetsOuder(const Leven& leven, std::int16_t ouder, Ouder wie, const Melding& meld);
  void ToetsBijOuders(const Leven& leven, const Melding& meld);
  void ToetsRelaties(const Leven& leven, const Melding& meld);

  Gegevens gegevens_;
  Gegevens luid_;
  Bereik bereik_;
  ControleKeuzen keuzen_;
};

}  // namespace lb77
