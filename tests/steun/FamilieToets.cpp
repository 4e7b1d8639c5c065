#include "steun/FamilieToets.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include "store/SchijfBestand.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// Passes everything on, but for the reads of some records.
class WeigerBestand final : public RecordBestand {
 public:
  WeigerBestand(std::unique_ptr<SchijfBestand> bestand, const std::set<std::int32_t>& onleesbaar,
                int& gelezen)
      : bestand_(std::move(bestand)), onleesbaar_(onleesbaar), gelezen_(gelezen) {}

  Leesuitslag Lees(std::int32_t nr, std::span<char> doel) override {
    ++gelezen_;
    if (onleesbaar_.contains(nr)) return {0, {57, "Fout van de schijf"}};
    return bestand_->Lees(nr, doel);
  }
  SysteemFout Schrijf(std::int32_t nr, std::span<const char> bron) override {
    return bestand_->Schrijf(nr, bron);
  }
  std::uint64_t Lengte() override { return bestand_->Lengte(); }
  SysteemFout Veiligstellen() override { return bestand_->Veiligstellen(); }
  SysteemFout Kap(std::uint64_t lengte) override { return bestand_->Kap(lengte); }
  std::uint64_t Wijzigingen() const override { return bestand_->Wijzigingen(); }
  std::size_t RecordLengte() const override { return bestand_->RecordLengte(); }

 private:
  std::unique_ptr<SchijfBestand> bestand_;
  const std::set<std::int32_t>& onleesbaar_;
  int& gelezen_;
};

BestandSoort SoortVan(std::size_t lengte) {
  for (const BestandSoort soort : kBestandSoorten) {
    if (RecordLengteVan(soort) == lengte) return soort;
  }
  return BestandSoort::Personen;
}

}  // namespace

Bestandenset::Opening FamilieToets::Open(const std::filesystem::path& pad, std::size_t lengte) {
  const BestandSoort soort = SoortVan(lengte);
  gelezen_[soort] = 0;
  auto bestand = std::make_unique<SchijfBestand>(lengte);
  SysteemFout fout = bestand->Open(pad);
  return {std::make_unique<WeigerBestand>(std::move(bestand), onleesbaar_[soort], gelezen_[soort]),
          std::move(fout)};
}

void FamilieToets::TearDown() {
  for (const std::string& regel : set_.Getoond()) ADD_FAILURE() << regel;
}

void FamilieToets::Stil(const Taak& taak, const Plek& plek) {
  Verwacht("", taak, "", plek);
}

FamilieToets::Programma FamilieToets::Sessie(const Taak& taak) {
  return [this, taak](Gesprek& gesprek) {
    Hoofdmodule hoofd(gesprek, klok_, set_.map.Pad());
    hoofd.bestanden = Bestandenset(
        [this](const std::filesystem::path& pad, std::size_t lengte) { return Open(pad, lengte); });
    ASSERT_FALSE(hoofd.bestanden.OpenSet(set_.paden));
    taak(hoofd);
  };
}

void FamilieToets::Verwacht(std::string_view draaiboek, const Taak& taak, std::string_view verslag,
                            const Plek& plek) {
  SpeelToets::Verwacht(draaiboek, Sessie(taak), verslag, plek);
}

void FamilieToets::Reeks(int aantal) {
  for (int n = 1; n <= aantal; ++n) Bouw().Man("A" + GetalTekst(n), "Reeks");
}

void FamilieToets::MaakGat(std::int16_t persoon) {
  constexpr std::size_t kLengte = RecordLengteVan(BestandSoort::Personen);
  std::string bytes = LeesBytes(set_.paden.prs);
  const std::size_t begin = kLengte * (static_cast<std::size_t>(persoon) - 1);
  ASSERT_LE(begin + kLengte, bytes.size());
  bytes.replace(begin, kLengte, kLengte, '\0');
  SchrijfBytes(set_.paden.prs, bytes);
}

}  // namespace lb77
