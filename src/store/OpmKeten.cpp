// The walks along the chains of remarks.
#include <cstdlib>
#include <string>

#include "store/OpmLB77.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::int16_t kRegelsInOpmerking = 10;

bool DelenRubriek(std::int16_t code, std::int16_t rubriek) {
  return (std::abs(int{code}) & std::abs(int{rubriek})) != 0;
}

}  // namespace

struct OpmLB77::Zoekvraag {
  std::int16_t code;
  std::int16_t begin;
  std::int16_t rubriek;
  std::int16_t regel;
  bool nietHTML;
};

// What came of a search. When it was found the buffer holds the line.
struct OpmLB77::Vondst {
  enum class Uitkomst { NietGezocht, Gevonden, Geen, FouteVerwijzing, Leesfout };
  Uitkomst uitkomst = Uitkomst::NietGezocht;
  std::int16_t nr = 0;      // the record at hand
  std::int16_t vorige = 0;  // the first record of the remark before it
};

std::int16_t OpmCodeMet(std::int16_t code, std::int16_t rubriek) {
  constexpr int kAlleBits = 0x7FFF;
  const int samen = (std::abs(int{code}) | std::abs(int{rubriek})) & kAlleBits;
  return static_cast<std::int16_t>(code < 0 || rubriek < 0 ? -samen : samen);
}

OpmLB77::Stap OpmLB77::Betreed(std::int16_t nr, Wandeling& wandeling) {
  // Record 1 is no remark: a walk of as many steps as there are records goes round in a circle.
  const bool rond = ++wandeling.stappen >= wandeling.aantal;
  if (nr < 2 || nr > wandeling.aantal || rond) return Stap::FouteVerwijzing;
  Trackers().HuidigOpmNr = nr;
  return Lees() ? Stap::Gelukt : Stap::Leesfout;
}

OpmLB77::Vondst OpmLB77::ZoekRegel(std::int16_t eerste, std::int16_t regel, Wandeling& wandeling) {
  std::int16_t nr = eerste;
  for (std::int16_t teller = 1; teller < regel; ++teller) {
    nr = VolgRegel();
    if (nr == 0) return {Vondst::Uitkomst::Geen, 0, 0};
    const Stap stap = Betreed(nr, wandeling);
    if (stap == Stap::FouteVerwijzing) return {Vondst::Uitkomst::FouteVerwijzing, nr, 0};
    if (stap == Stap::Leesfout) return {Vondst::Uitkomst::Leesfout, nr, 0};
  }
  return {regel < 1 ? Vondst::Uitkomst::Geen : Vondst::Uitkomst::Gevonden, nr, 0};
}

OpmLB77::Vondst OpmLB77::Zoek(const Zoekvraag& vraag) {
  if (vraag.begin == 0 || !DelenRubriek(vraag.code, vraag.rubriek)) return {};
  Wandeling wandeling{AantalRecords()};
  std::int16_t regel = vraag.regel;
  std::int16_t vorige = 0;
  std::int16_t nr = vraag.begin;
  while (nr != 0) {
    const Stap stap = Betreed(nr, wandeling);
    if (stap == Stap::FouteVerwijzing) return {Vondst::Uitkomst::FouteVerwijzing, nr, vorige};
    if (stap == Stap::Leesfout) return {Vondst::Uitkomst::Leesfout, nr, vorige};
    const std::int16_t volgende = BijZelfde();
    if (Rubriek() == vraag.rubriek && !(vraag.nietHTML && AlleenHTML())) {
      if (regel <= kRegelsInOpmerking) {
        Vondst vondst = ZoekRegel(nr, regel, wandeling);
        vondst.vorige = vorige;
        return vondst;
      }
      // kept: ten lines further is the next remark of this rubric, not an eleventh line.
      regel = static_cast<std::int16_t>(regel - kRegelsInOpmerking);
    }
    vorige = nr;
    nr = volgende;
  }
  return {Vondst::Uitkomst::Geen, 0, vorige};
}

std::string OpmLB77::OpmerkingTekst(std::int16_t OpmCode, std::int16_t Begin, std::int16_t Rubriek,
                                    std::int16_t Regel, bool NietHTML) {
  const Vondst vondst = Zoek({OpmCode, Begin, Rubriek, Regel, NietHTML});
  switch (vondst.uitkomst) {
    case Vondst::Uitkomst::Gevonden:
      return Tekstregel();
    case Vondst::Uitkomst::FouteVerwijzing:
      return ">> Verkeerde verwijzing: opm-record " + GetalTekst(vondst.nr) + " bestaat niet <<";
    case Vondst::Uitkomst::Leesfout:
      return ">> Leesfout opm-record " + GetalTekst(vondst.nr) + " bestaat niet <<";
    case Vondst::Uitkomst::NietGezocht:
    case Vondst::Uitkomst::Geen:
      break;
  }
  return {};
}

std::string OpmLB77::OpmerkingProgs(std::int16_t OpmCode, std::int16_t Begin, std::int16_t Rubriek,
                                    std::int16_t Regel, bool NietHTML) {
  switch (Zoek({OpmCode, Begin, Rubriek, Regel, NietHTML}).uitkomst) {
    case Vondst::Uitkomst::Gevonden:
      return GetalTekst(BijProg());
    case Vondst::Uitkomst::Geen:
      return "255";
    case Vondst::Uitkomst::NietGezocht:
    case Vondst::Uitkomst::FouteVerwijzing:
    case Vondst::Uitkomst::Leesfout:
      break;
  }
  return "0";
}

OpmVindplaats OpmLB77::OpmRecordNr(std::int16_t OpmCode, std::int16_t Begin, std::int16_t Rubriek,
                                   std::int16_t Regel, bool NietHTML) {
  const Vondst vondst = Zoek({OpmCode, Begin, Rubriek, Regel, NietHTML});
  if (vondst.uitkomst != Vondst::Uitkomst::Gevonden) return {0, vondst.vorige};
  return {vondst.nr, vondst.vorige};
}

bool OpmLB77::LoopKeten(std::int16_t begin, std::int16_t& laatste, std::int16_t& code) {
  Wandeling wandeling{AantalRecords()};
  for (std::int16_t nr = begin; nr != 0; nr = BijZelfde()) {
    const Stap stap = Betreed(nr, wandeling);
    if (stap != Stap::Gelukt) {
      const std::string fout = stap == Stap::Leesfout ? "Leesfout" : "Verkeerde verwijzing:";
      Door().Waarschuw(fout + " opm-record " + GetalTekst(nr) + " bestaat niet");
      return false;
    }
    laatste = nr;
    code = OpmCodeMet(code, Rubriek());
  }
  return true;
}

std::int16_t OpmLB77::RecordnrEindeKetting(std::int16_t Begin) {
  std::int16_t laatste = 0;
  std::int16_t code = 0;
  if (Begin == 0) return 0;
  return LoopKeten(Begin, laatste, code) ? laatste : std::int16_t{-1};
}

std::int16_t OpmLB77::BepaalOpmCode(std::int16_t Begin) {
  std::int16_t laatste = 0;
  std::int16_t code = 0;
  return LoopKeten(Begin, laatste, code) ? code : std::int16_t{0};
}

}  // namespace lb77
