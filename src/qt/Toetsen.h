// Key presses of the toolkit as the forms see them.
#pragma once

#include <QKeyEvent>
#include <optional>

#include "forms/Toets.h"

namespace lb77 {

// The key as a form's event; nothing for a key that is no business of a form: a modifier by
// itself, a combination with Ctrl, Alt or Meta, and a repeat of a key of IsEenmalig while it is held.
[[nodiscard]] std::optional<ToetsGebeurtenis> NaarToets(const QKeyEvent& toets);

// Enter, Escape, a function key: what it does may close the form, and a repeat while it is held
// would then fall on the form below.
[[nodiscard]] bool IsEenmalig(const QKeyEvent& toets);

// Alt with a character: an accelerator, which a field would type when nobody answers to it.
[[nodiscard]] bool IsAlt(const QKeyEvent& toets);

// The text that the key types, empty when it types none.
[[nodiscard]] QString GetypteTekst(const QKeyEvent& toets);

}  // namespace lb77
