// Standard output, and a reader of it that has seen enough: `lb77-cli zoek ... | head -1`.
#pragma once

namespace lb77 {

// From here on the program outlives such a reader, so that it cleans up: what is written to him gets
// lost, and the stream tells it like any failure.
void OverleefVertrokkenLezer();

// Has the reader of standard output gone? False also when there never was one.
[[nodiscard]] bool LezerIsVertrokken();

}  // namespace lb77
