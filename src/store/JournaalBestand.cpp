#include "store/JournaalBestand.h"

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

}  // namespace lb77
