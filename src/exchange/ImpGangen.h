// The three passes of an import, one behind the other.
#pragma once

#include "exchange/ImpLoop.h"
#include "exchange/RegelLezer.h"

namespace lb77 {

// Runs the passes over a file that is open at its first line. A pass that fails ends the run; the
// passes behind it are told to have begun all the same when the file was at fault. A read error
// of the system stands in the reader.
[[nodiscard]] ImpUitslag VoerGangen(ImpLoop& loop, RegelLezer& lezer);

}  // namespace lb77
