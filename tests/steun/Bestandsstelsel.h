// What the file system of this system leaves out, for tests that are about just that.
#pragma once

namespace lb77 {

#ifdef _WIN32

// Are "a" and "A" two names?
inline constexpr bool kKastTelt = false;
// Has a file symbolic links? There a right is needed to make one, and wine has none.
inline constexpr bool kKoppelingen = false;
// Are the rights of a file those of its owner, its group and all others?
inline constexpr bool kRechten = false;
// What lies behind a file that is no directory: there the system looks no further than the name.
inline constexpr const char* kAchterBestand = "Bestand niet gevonden";
// Behind the name of a program.
inline constexpr const char* kProgrammaEind = ".exe";
// Takes everything and keeps nothing.
inline constexpr const char* kGroteNiets = "NUL";

#else

inline constexpr bool kKastTelt = true;
inline constexpr bool kKoppelingen = true;
inline constexpr bool kRechten = true;
inline constexpr const char* kAchterBestand = "Pad niet gevonden";
inline constexpr const char* kProgrammaEind = "";
inline constexpr const char* kGroteNiets = "/dev/null";

#endif

inline constexpr const char* kZonderKast = "hier zijn hoofdletters en kleine letters een naam";
inline constexpr const char* kZonderKoppelingen = "hier worden geen koppelingen gemaakt";
inline constexpr const char* kZonderRechten = "hier zijn rechten iets anders";

}  // namespace lb77
