// The rules of the check of relations.
#pragma once

#include <cstdint>

#include "checks/Bereik.h"
#include "checks/Controleur.h"
#include "reporting/RecordBron.h"
#include "store/Gegevens.h"

namespace lb77 {

// The trackers HuidigPersoonNr and HuidigRelatieNr may stand elsewhere afterwards.
class ControleRelRegels final : public Controleur {
 public:
  // `keuzen`: partners (which nothing looks at), order of dates, difference of the partners' ages,
  // ages of the partners, children.
  ControleRelRegels(RecordBron& bron, const ControleKeuzen& keuzen)
      : gegevens_(bron.Stil()), luid_(bron.Luid()), keuzen_(keuzen) {}

  [[nodiscard]] std::int16_t Laatste() override {
    return bereik_.Tot(luid_.relatie, gegevens_.relatie);
  }
  void Begin(std::int16_t) override {}
  void Toets(std::int16_t nr, const Melding& meld) override;

 private:
  // What tells the lines on the man from those on the woman.
  struct PartnerSoorten {
    BevindingSoort onleesbaar;
    BevindingSoort naHuwelijkGeboren;
    BevindingSoort teJong;
  };
  static const PartnerSoorten kMan;
  static const PartnerSoorten kVrouw;

  void ToetsDatums(std::int16_t nr, const Melding& meld) const;
  // The year of birth, else of baptism; 0 when it is not known or the partner can't be read.
  [[nodiscard]] int ToetsPartner(std::int16_t nr, std::int16_t partner,
                                 const PartnerSoorten& soorten, const Melding& meld);
  [[nodiscard]] bool HeeftEigenRelatie(std::int16_t persoon);
  void ToetsKinderen(std::int16_t nr, const Melding& meld);

  Gegevens gegevens_;
  Gegevens luid_;
  Bereik bereik_;
  ControleKeuzen keuzen_;
};

}  // namespace lb77
