// Makes GEDCOM files of any size, the same for the same seed on every machine.
#pragma once

#include <cstdint>
#include <filesystem>

namespace lb77::bench {

// A population with consistent families: names, sex, birth, baptism, death and burial with dates
// and places, occupations, remarks, marriages, links both ways; about ten lines a person, ANSEL.
// Throws std::runtime_error when the file cannot be written.
void MaakGedcom(const std::filesystem::path& pad, int personen, int gezinnen, std::uint64_t zaad);

// One person, the first of the file, with all his ancestors of so many generations.
void MaakKwartieren(const std::filesystem::path& pad, int generaties, std::uint64_t zaad);

// One person, the first of the file, with so many descendants, himself counted, and their partners.
void MaakParenteel(const std::filesystem::path& pad, int aantal, std::uint64_t zaad);

}  // namespace lb77::bench
