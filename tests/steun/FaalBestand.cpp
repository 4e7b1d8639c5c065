#include "steun/FaalBestand.h"

#include <algorithm>
#include <utility>

#include "store/SchijfBestand.h"

namespace lb77 {

Leesuitslag FaalBestand::Lees(std::int32_t nr, std::span<char> doel) {
  if (!storing_.Treft()) return bestand_->Lees(nr, doel);
  const std::size_t gelezen = storing_.gelezen ? bestand_->Lees(nr, doel).gelezen : 0;
  return {gelezen, {57, kLeesStoring}};
}

SysteemFout FaalBestand::Schrijf(std::int32_t nr, std::span<const char> bron) {
  if (!storing_.Treft()) return bestand_->Schrijf(nr, bron);
  ++mislukt_;
  if (storing_.kort) static_cast<void>(bestand_->Schrijf(nr, bron.first(bron.size() / 2)));
  return {kSchijfVol, kSchrijfStoring};
}

SysteemFout FaalBestand::Veiligstellen() {
  if (storing_.Treft()) return {kSchijfVol, kSchrijfStoring};
  return bestand_->Veiligstellen();
}

SysteemFout FaalBestand::Kap(std::uint64_t lengte) {
  if (storing_.Treft()) return {kSchijfVol, kSchrijfStoring};
  return bestand_->Kap(lengte);
}

Leesuitslag GeheugenBestand::Lees(std::int32_t nr, std::span<char> doel) {
  const std::size_t plaats = static_cast<std::size_t>(nr - 1) * recordLengte_;
  if (plaats >= bytes_.size()) return {};
  const std::size_t lengte = std::min({doel.size(), recordLengte_, bytes_.size() - plaats});
  std::copy_n(bytes_.data() + plaats, lengte, doel.data());
  return {lengte, {}};
}

SysteemFout GeheugenBestand::Schrijf(std::int32_t nr, std::span<const char> bron) {
  const std::size_t plaats = static_cast<std::size_t>(nr - 1) * recordLengte_;
  if (bytes_.size() < plaats + bron.size()) bytes_.resize(plaats + bron.size());
  std::copy(bron.begin(), bron.end(), bytes_.data() + plaats);
  ++wijzigingen_;
  return {};
}

SysteemFout GeheugenBestand::Kap(std::uint64_t lengte) {
  bytes_.resize(lengte);
  ++wijzigingen_;
  return {};
}

Bestandenset::Opener FalendeOpener(Storing& storing) {
  return [&storing](const std::filesystem::path& pad, std::size_t lengte) -> Bestandenset::Opening {
    auto bestand = std::make_unique<SchijfBestand>(lengte);
    SysteemFout fout = bestand->Open(pad);
    if (fout) return {nullptr, std::move(fout)};
    return {std::make_unique<FaalBestand>(std::move(bestand), storing), {}};
  };
}

}  // namespace lb77
