// Finds the layout of a form, completes it, and tells what is wrong with it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Formulier.h"
#include "qt/Indeling.h"

namespace lb77 {

// The layout written for the form of that name; nothing when there is none.
[[nodiscard]] std::optional<Blok> GeschrevenIndeling(std::string_view formulier);

// What keeps a layout from showing each control of the form exactly once, one line each: a control
// that it forgets, names twice, or that the form does not have. Empty when all is well.
[[nodiscard]] std::vector<std::string> LayoutFouten(const Formulier& formulier);
[[nodiscard]] std::vector<std::string> LayoutFouten(const Formulier& formulier, const Blok& blok);

// The layout to show: the written one or else an automatic one, without what it names in vain or
// twice, and with what it forgets at the end.
[[nodiscard]] Blok IndelingVoor(const Formulier& formulier);
[[nodiscard]] Blok Aangevuld(const Formulier& formulier, Blok blok);

// The controls that a piece names, in order; those that the form does not have are left out.
[[nodiscard]] std::vector<Bediening*> Genoemd(const Formulier& formulier, const Blok& blok);

// Does a layout have to place this control? (A main window shows its menus and status bar itself.)
[[nodiscard]] bool InIndeling(const Bediening& bediening);

}  // namespace lb77
