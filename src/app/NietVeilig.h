// What the user is told when an action could not be ended.
#pragma once

#include <string>

#include "forms/Gesprek.h"
#include "store/SysteemFout.h"

namespace lb77 {

// For the result of Handeling::Voltooi: silent when there was no error.
inline void MeldNietVeilig(Gesprek& gesprek, const SysteemFout& fout) {
  if (!fout) return;
  gesprek.Fout("De wijziging is nog niet veilig opgeslagen\n" + fout.tekst);
}

}  // namespace lb77
