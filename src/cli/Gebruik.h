// The Dutch texts of the command line, in the place of those of its library.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace lb77 {

// The heading above the switches.
inline constexpr const char* kKeuzes = "Keuzes";

// The headings and the switch that every command has. Before the first command is added,
// which takes them over.
void MaakNederlands(CLI::App& app);

// What is wrong with the words of the command line, on one line.
[[nodiscard]] std::string GebruiksFout(const CLI::App& app, const CLI::ParseError& fout);

}  // namespace lb77
