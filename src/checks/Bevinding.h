// What a check finds: one line of its report, as a value.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/BestandSoort.h"

namespace lb77 {

// A kind for every line that a check can write, in the order of its report.
enum class BevindingSoort {
  GeboorteNaDoop,
  GeboorteNaOverlijden,
  GeboorteNaBegraven,
  DoopNaOverlijden,
  DoopNaBegraven,
  OverlijdenNaBegraven,
  LeeftijdTeHoog,
  OudersOnleesbaar,
  OuderDanVader,
  VaderTeJong,
  OuderDanMoeder,
  MoederTeJong,
  NietBijOuders,
  NietBijEigenRelatie,
  OndertrouwNaWettig,
  OndertrouwNaKerkelijk,
  WettigNaKerkelijk,
  ManOnleesbaar,
  VrouwOnleesbaar,
  NietBijPersoon,
  ManNaHuwelijkGeboren,
  ManTeJong,
  VrouwNaHuwelijkGeboren,
  VrouwTeJong,
  PartnersVerschillen,
  KindOnleesbaar,
  KindElders,
  Naamloos,
  Dubbel,
  LijktOp,
  Ongebruikt,
  LosseOpmerking
};

struct Bevinding {
  RecordPlek plek;   // the record that the line tells of
  RecordPlek kaart;  // the record on whose card it is mended: of a remark its owner
  BevindingSoort soort = BevindingSoort::GeboorteNaDoop;
  std::string tekst;  // the line, without its end

  friend bool operator==(const Bevinding&, const Bevinding&) = default;
};

// What is wrong, for a list of kinds: "Geboorte is na de doop".
[[nodiscard]] std::string_view SoortNaam(BevindingSoort soort);

}  // namespace lb77
