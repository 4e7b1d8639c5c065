#include <iterator>
#include <utility>

#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Alle() {
  std::vector<Indeling> uit;
  for (std::vector<Indeling> (*gebied)() :
       {Sets,        Instellen, Zoeken,        Kaarten,    Plaatsen,   Wijzigen,     Koppelen,
        Opmerkingen, Bekijken,  Kwartierstaat, Genealogie, Gezinsblad, Uitwisseling, Contact,
        Veiligheid,  Controle,  Correctie,     Rapporten,  Lijsten,    Beelden}) {
    std::vector<Indeling> deel = gebied();
    uit.insert(uit.end(), std::make_move_iterator(deel.begin()),
               std::make_move_iterator(deel.end()));
  }
  return uit;
}

}  // namespace lb77::indeling
