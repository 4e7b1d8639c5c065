// The tags of our own in a GEDCOM file, and what goes with a file that has them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "exchange/GedPad.h"
#include "exchange/GedRegel.h"
#include "text/Getallen.h"

namespace lb77 {

// One stands before the standard line whose field it tells exactly.
namespace eigen {

inline constexpr std::string_view kBegin = "_LB";
inline constexpr std::string_view kVorm = "_LBVORM";        // in the head: a file of ours
inline constexpr std::string_view kAls = "_LBALS";          // the name of the event above it
inline constexpr std::string_view kPlaats = "_LBPLTS";      // a place: its record, and a link to it
inline constexpr std::string_view kProv = "_LBPROV";        // province code of a place
inline constexpr std::string_view kZeker = "_LBZEKER";      // the qualifier of a place number
inline constexpr std::string_view kCorr = "_LBCORR";        // correction code of a date
inline constexpr std::string_view kDatum = "_LBDATUM";      // dd-mm-jjjj
inline constexpr std::string_view kTot = "_LBTOT";          // the end of a period
inline constexpr std::string_view kGezindte = "_LBGEZ";     // code of a denomination
inline constexpr std::string_view kSoort = "_LBSOORT";      // code of the kind of marriage
inline constexpr std::string_view kBond = "_LBBOND";        // not married: the kind of bond
inline constexpr std::string_view kVoornaam = "_LBVOOR";    // the given names, whole
inline constexpr std::string_view kAchternaam = "_LBACHT";  // the surname, prefix included
inline constexpr std::string_view kGeslacht = "_LBGESL";    // a sex that SEX has no word for
inline constexpr std::string_view kCrematie = "_LBCREM";    // the burial is a cremation
inline constexpr std::string_view kRelatie = "_LBFAMS";     // a free slot among the relations
inline constexpr std::string_view kKind = "_LBCHIL";        // a free slot among the children
inline constexpr std::string_view kRubriek = "_LBRUBR";     // the rubric of a remark
inline constexpr std::string_view kProg = "_LBPROG";        // the outputs of a remark

// Names of events.
inline constexpr std::string_view kWettig = "_LBWET";
inline constexpr std::string_view kKerk = "_LBKERK";

// The version that _LBVORM tells.
inline constexpr std::string_view kVormNu = "1";

}  // namespace eigen

// A line that names the event above it: the path goes on under that name. False for any other line.
inline bool NoemGebeurtenis(GedPad& pad, const GedDelen& delen) {
  if (delen.tag != eigen::kAls || delen.level < 2) return false;
  pad.Zet(delen.level - 1, delen.waarde.substr(0, kLangsteTag));
  return true;
}

// Is the line right above of that path an event that was named?
constexpr bool IsGenoemd(std::string_view ouder) {
  return ouder.ends_with(eigen::kWettig) || ouder.ends_with(eigen::kKerk);
}

// The text with one "@" for two.
inline std::string MetEnkeleAt(std::string_view tekst) {
  std::string uit;
  for (std::size_t i = 0; i < tekst.size(); ++i) {
    uit += tekst[i];
    if (tekst.substr(i, 2) == "@@") ++i;
  }
  return uit;
}

// Lines of the standard that stand in a file of ours, and that are unknown in one from elsewhere.
constexpr bool IsBekendInEigen(std::string_view pad) {
  constexpr std::array<std::string_view, 3> kPaden = {"HEAD-PLAC", "HEAD-PLAC-FORM", "INDI-CREM"};
  return std::ranges::find(kPaden, pad) != kPaden.end();
}

// How the qualifier of a place number is told, and what it adds to the number.
struct PlaatsBepaling {
  std::string_view tekst;
  std::int16_t bij;
};
inline constexpr std::array kPlaatsBepalingen = {
    PlaatsBepaling{"", 0},
    PlaatsBepaling{"verm.", 10000},
    PlaatsBepaling{"(?)", 20000},
    PlaatsBepaling{"verm. (?)", 30000},
};

// The text for a place number; empty for one without a qualifier.
constexpr std::string_view PlaatsZekerheid(std::int16_t plaatsNr) {
  std::string_view tekst;
  for (const PlaatsBepaling& bepaling : kPlaatsBepalingen) {
    if (plaatsNr > bepaling.bij) tekst = bepaling.tekst;
  }
  return tekst;
}

// What the text adds to a place number; 0 for any other text.
constexpr std::int16_t PlaatsOpslag(std::string_view tekst) {
  const auto* bepaling = std::ranges::find(kPlaatsBepalingen, tekst, &PlaatsBepaling::tekst);
  return bepaling == kPlaatsBepalingen.end() ? std::int16_t{0} : bepaling->bij;
}

// The place number with what the text adds; without it where no number would do.
constexpr std::int16_t MetBepaling(std::int16_t plaats, std::string_view tekst) {
  const int samen = plaats + PlaatsOpslag(tekst);
  return plaats > 0 && samen <= kMaxRecords ? static_cast<std::int16_t>(samen) : plaats;
}

}  // namespace lb77
