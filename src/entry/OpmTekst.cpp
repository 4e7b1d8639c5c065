#include "entry/OpmTekst.h"

#include <algorithm>
#include <cstddef>

#include "store/OpmVelden.h"
#include "text/Dos437.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kRegelBreedte = opmveld::Tekstregel.breedte;

void VoegRegelToe(std::string& tekst, std::string_view regel) {
  if (!tekst.empty()) tekst += ' ';
  tekst += regel;
}

// The text as it will be stored, character by character.
std::string Uitgeschreven(std::string_view tekst) {
  std::string uit;
  for (const char teken : tekst) {
    if (teken == '\n' || teken == '\r' || teken == '\t') {
      uit += ' ';
      continue;
    }
    const std::string dos = WindowsNaarDos({&teken, 1});
    if (dos.size() > 1) {
      uit += dos;
    } else {
      uit += teken;
    }
  }
  return uit;
}

// How much of a text without leading blanks the next line takes.
std::size_t Regeleinde(std::string_view tekst) {
  if (tekst.size() <= kRegelBreedte) return tekst.size();
  if (tekst[kRegelBreedte - 1] == ' ' || tekst[kRegelBreedte] == ' ') return kRegelBreedte;
  const std::size_t blanco = tekst.substr(0, kRegelBreedte).rfind(' ');
  return blanco == std::string_view::npos ? kRegelBreedte : blanco;
}

bool IsDubbel(const OpmRecnrs& recnrs, std::size_t plaats) {
  const auto hier = recnrs.begin() + static_cast<std::ptrdiff_t>(plaats);
  return std::find(recnrs.begin(), hier, *hier) != hier;
}

}  // namespace

std::string OpmInhoud::Tekst() const {
  std::string tekst;
  for (const std::string& regel : regels) {
    if (!regel.empty()) VoegRegelToe(tekst, regel);
  }
  return tekst;
}

OpmInhoud LeesOpmerking(OpmLB77& opmerking, std::int16_t OpmCode, std::int16_t Begin,
                        std::int16_t Rubriek, std::int16_t Regel) {
  OpmInhoud uit;
  for (std::size_t i = 0; i < uit.regels.size(); ++i) {
    const auto regel = static_cast<std::int16_t>(Regel + static_cast<int>(i));
    const OpmVindplaats plaats = opmerking.OpmRecordNr(OpmCode, Begin, Rubriek, regel, false);
    if (i == 0) uit.vorige = plaats.Vorige;
    if (plaats.Nr == 0) {
      // What is simply not there has no text; a bad link tells of itself.
      uit.regels[i] = opmerking.OpmerkingTekst(OpmCode, Begin, Rubriek, regel, false);
      if (!uit.regels[i].empty()) uit.heel = false;
      break;
    }
    uit.recnrs[i] = plaats.Nr;
    uit.regels[i] = opmerking.Tekstregel();
    if (i == 0) uit.prog = opmerking.BijProg();
    if (opmerking.Rubriek() != Rubriek || IsDubbel(uit.recnrs, i)) uit.heel = false;
  }
  return uit;
}

std::string OpmTekst(OpmLB77& opmerking, std::int16_t OpmCode, std::int16_t Begin,
                     std::int16_t Rubriek, std::int16_t Regel) {
  std::string tekst;
  for (const std::string& regel : LeesOpmerking(opmerking, OpmCode, Begin, Rubriek, Regel).regels) {
    if (regel.empty()) break;
    VoegRegelToe(tekst, regel);
  }
  return tekst;
}

OpmAfgebroken BreekOpmerkingAf(std::string_view tekst) {
  const std::string alles = Uitgeschreven(tekst);
  std::string_view rest = alles;
  OpmAfgebroken uit;
  for (std::string& regel : uit.regels) {
    rest = TrimLinks(rest);
    const std::size_t einde = Regeleinde(rest);
    regel = TrimRechts(rest.substr(0, einde));
    rest.remove_prefix(einde);
  }
  uit.geheel = Trim(rest).empty();
  return uit;
}

}  // namespace lb77
