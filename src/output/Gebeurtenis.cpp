#include "output/Gebeurtenis.h"

namespace lb77 {

Levensloop LevensloopVan(const PersoonLB77& persoon) {
  return {{persoon.GebPlaatsNr(), persoon.GebDagMaand(), persoon.GebJaar()},
          {persoon.DoopPlaatsNr(), persoon.DoopDagMaand(), persoon.DoopJaar()},
          {persoon.OvlPlaatsNr(), persoon.OvDagMaand(), persoon.OvJaar()},
          {persoon.BegrPlaatsNr(), persoon.BegrDagMaand(), persoon.BegrJaar()},
          persoon.GebCorr(),
          persoon.OvlCorr(),
          persoon.Religie(),
          persoon.BegrCrem()};
}

Verbintenis VerbintenisVan(const RelatieLB77& relatie) {
  return {{relatie.OtrPlaatsNr(), relatie.OtrDagMaand(), relatie.OtrJaar()},
          {relatie.WetHuwPlaatsNr(), relatie.WetHuwDagMaand(), relatie.WetHuwJaar()},
          {relatie.KHuwPlaatsNr(), relatie.KHuwDagMaand(), relatie.KHuwJaar()},
          relatie.HuwCorr(),
          relatie.HuwSwPs(),
          relatie.HuwSoort(),
          relatie.Religie(),
          relatie.KHuwSch()};
}

}  // namespace lb77
