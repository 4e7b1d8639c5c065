#include "app/SetTelling.h"

#include <algorithm>
#include <cstdint>
#include <system_error>

#include "store/Bestandenset.h"
#include "store/Hoofdrecords.h"
#include "store/Paden.h"
#include "store/PersoonLB77.h"
#include "text/Getallen.h"

namespace lb77 {

std::optional<int> AantalPersonen(const std::filesystem::path& prs, Gesprek& gesprek,
                                  const Schrijfwijze& schrijfwijze) {
  const std::filesystem::path pad = VindPad(prs);
  std::error_code code;
  if (!std::filesystem::is_regular_file(pad, code)) return std::nullopt;
  Bestandenset bestanden;
  Volgers volgers;
  if (bestanden.Open(BestandSoort::Personen, pad)) return std::nullopt;
  PersoonLB77 persoon({bestanden, volgers, gesprek, schrijfwijze});
  const std::uint64_t records =
      bestanden.Bestand(BestandSoort::Personen).Lengte() / RecordLengteVan(BestandSoort::Personen);
  return AantalHoofdrecords(persoon, static_cast<std::int32_t>(std::min<std::uint64_t>(
                                         records, static_cast<std::uint64_t>(kMaxRecords))));
}

}  // namespace lb77
