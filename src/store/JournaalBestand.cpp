#include "store/JournaalBestand.h"

#include <algorithm>
#include <utility>

namespace lb77 {

JournaalBestand::JournaalBestand(std::unique_ptr<RecordBestand> bestand,
                                 std::shared_ptr<Journaal> journaal, BestandSoort soort,
                                 bool centraal)
    : bestand_(std::move(bestand)), journaal_(std::move(journaal)), soort_(soort) {
  journaal_->Koppel(soort_, *bestand_, centraal);
}

JournaalBestand::~JournaalBestand() {
  journaal_->Ontkoppel(soort_);
}

SysteemFout JournaalBestand::Schrijf(std::int32_t nr, std::span<const char> bron) {
  if (SysteemFout fout = journaal_->Voor({soort_, nr})) {
    ++geweigerd_;
    return fout;
  }
  SysteemFout fout = bestand_->Schrijf(nr, bron);
  SysteemFout journaalFout = journaal_->Na({soort_, nr}, bron, !fout);
  return fout ? fout : journaalFout;
}

SysteemFout JournaalBestand::Kap(std::uint64_t lengte) {
  const std::uint64_t nu = bestand_->Lengte();
  if (nu == lengte) return {};
  const auto eerste = static_cast<std::int32_t>(std::min(lengte, nu) / RecordLengteVan(soort_)) + 1;
  // The last one that the cut touches, or that the file grows by.
  const auto voorbij = [&](std::int32_t nr) {
    return BeginVan({soort_, nr}) >= std::max(lengte, nu);
  };
  const std::uint64_t kaart = journaal_->Begin(kLosseHandeling);
  SysteemFout fout;
  for (std::int32_t nr = eerste; !fout && !voorbij(nr); ++nr) fout = journaal_->Voor({soort_, nr});
  if (fout) {
    ++geweigerd_;
  } else {
    fout = bestand_->Kap(lengte);
    // What stands there then is looked up at the end of the action.
    for (std::int32_t nr = eerste; !voorbij(nr); ++nr) {
      static_cast<void>(journaal_->Na({soort_, nr}, {}, false));
    }
  }
  SysteemFout einde = journaal_->Einde(kaart);
  return fout ? fout : einde;
}

}  // namespace lb77
