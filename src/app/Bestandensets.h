// What the dialogs of file sets and the start-up share: the pick list, and the opening of a set.
#pragma once

#include <string>
#include <string_view>

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"
#include "app/SetOpenen.h"
#include "forms/Keuzen.h"

namespace lb77 {

inline constexpr std::string_view kGeenSetGekozen = "Geen Bestandenset gekozen";

// True for a name that can be a directory and a file on every system, and nothing else: no
// separators, no device, no way to another directory. Only such a name may reach the file system.
[[nodiscard]] bool IsSetNaam(std::string_view naam);
// The warning about another one.
[[nodiscard]] std::string SetNaamFout(std::string_view naam);

// The index of the active set in the list. When the list does not have it, 0 after a warning, and no
// set is active any more; 0 without a warning when none was.
int IndexActieveSet(Hoofdmodule& hoofd);

// Fills the pick list with all sets, selects the active one and shows it in the status bar.
void LaadSetPicklist(Hoofdmodule& hoofd, MenuWindow& menu, Keuzelijst& picklist);

// Makes the set of that row of the pick list the active one, in capitals; kGeenSetActief when the
// row is empty.
void KiesSet(Hoofdmodule& hoofd, std::string_view rij);

// Opens the files of the active set; a failure tells itself, and no set is active then. Nor is one
// when the user does not want a set that is in use elsewhere, or what a crash left can't be mended.
void OpenBestanden(Hoofdmodule& hoofd, SetGebruik gebruik);

// Chooses and opens the set of that row, keeps it in the settings, and brings status bar and menu up
// to date. False, after a warning, when the row names no set.
[[nodiscard]] bool OpenSetVanRij(Hoofdmodule& hoofd, MenuWindow& menu, std::string_view rij);

// The name of the set that is open; empty when none is.
[[nodiscard]] std::string OpenSetNaam(const Hoofdmodule& hoofd);

// Opens the set again that was open (OpenSetNaam) before something that failed; does nothing when it
// still is, or when none was.
void HeropenSet(Hoofdmodule& hoofd, MenuWindow& menu, const std::string& naam);

// Takes the set at that index from the list: those behind it move up, so that there are no holes. No
// set is the active one in the settings then.
void HaalUitLijst(Hoofdmodule& hoofd, int index);

}  // namespace lb77
