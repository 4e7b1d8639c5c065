// What a set that has opened needs before it is used: its journal, and the user's word where
// somebody else has it or the last action in it came to no end.
#pragma once

#include <filesystem>
#include <string>

#include "app/Hoofdmodule.h"
#include "app/Veiligheidskopie.h"
#include "store/Journaal.h"
#include "store/SetPaden.h"

namespace lb77 {

// How a session deals with a set.
enum class SetGebruik {
  Schrijven,  // takes it for this run of the program; what is to be known is asked
  Lezen       // only looks: takes nothing and asks nothing
};

// The safety copies of the active set, made in the place of the user's choice.
[[nodiscard]] Veiligheidskopie KopieVan(Hoofdmodule& hoofd);
// The same, made in that directory when it is there.
[[nodiscard]] Veiligheidskopie KopieVan(Hoofdmodule& hoofd, const std::filesystem::path& plek);

// Sets that are opened from here on have a journal, which tells what somebody else has changed,
// and a safety copy at their first write. `hoofd` outlives its files.
void GeefJournaal(Hoofdmodule& hoofd);
// Sets that are opened from here on have none.
void NeemJournaalWeg(Hoofdmodule& hoofd);

// "De vorige bewerking (...) is niet voltooid."
[[nodiscard]] std::string OnvoltooidTekst(const OnvoltooideHandeling& handeling);

// True when the set whose files have just opened may be used.
[[nodiscard]] bool MagGebruiken(Hoofdmodule& hoofd, SetGebruik gebruik);

// Does another run of the program have the set, whose files are closed in this one?
[[nodiscard]] bool IsElders(const SetPaden& paden);

}  // namespace lb77
