#include "store/Bestandenset.h"

#include <system_error>
#include <utility>

#include "store/JournaalBestand.h"
#include "store/JournaalPlek.h"
#include "store/Paden.h"
#include "store/SchijfBestand.h"
#include "text/Getallen.h"
#include "text/Pad.h"

namespace lb77 {

namespace {

// Stands in for a file that is not open.
class GeslotenBestand final : public RecordBestand {
 public:
  explicit GeslotenBestand(std::size_t recordLengte) : recordLengte_(recordLengte) {}

  [[nodiscard]] Leesuitslag Lees(std::int32_t, std::span<char>) override {
    return {0, FoutNietOpen()};
  }
  [[nodiscard]] SysteemFout Schrijf(std::int32_t, std::span<const char>) override {
    return FoutNietOpen();
  }
  std::uint64_t Lengte() override { return 0; }
  [[nodiscard]] SysteemFout Veiligstellen() override { return FoutNietOpen(); }
  [[nodiscard]] SysteemFout Kap(std::uint64_t) override { return FoutNietOpen(); }
  [[nodiscard]] SysteemFout Vergrendel() override { return FoutNietOpen(); }
  std::uint64_t Wijzigingen() const override { return 0; }
  std::size_t RecordLengte() const override { return recordLengte_; }

 private:
  std::size_t recordLengte_;
};

Bestandenset::Opening OpenOpSchijf(const std::filesystem::path& pad, std::size_t lengte) {
  auto bestand = std::make_unique<SchijfBestand>(lengte);
  SysteemFout fout = bestand->Open(pad);
  if (fout) return {nullptr, std::move(fout)};
  return {std::move(bestand), {}};
}

// A file that cannot be looked at, or a link that leads nowhere, is no absent one: with other places
// in its stead every place number of the set would mean another town.
bool IsAfwezig(const std::filesystem::path& pad) {
  std::error_code code;
  return std::filesystem::symlink_status(pad, code).type() == std::filesystem::file_type::not_found;
}

bool IsGevuld(const std::filesystem::path& pad) {
  std::error_code code;
  return std::filesystem::is_regular_file(pad, code) && std::filesystem::file_size(pad, code) > 0;
}

}  // namespace

std::string_view BestandNaam(BestandSoort soort) {
  constexpr std::array<std::string_view, 4> kNamen = {"Persoonsbestand", "Relatiebestand",
                                                      "Opmerkingenbestand", "Plaatsbestand"};
  return kNamen.at(IndexVan(soort));
}

const std::filesystem::path& PadVanSoort(const SetPaden& paden, BestandSoort soort) {
  switch (soort) {
    case BestandSoort::Personen:
      return paden.prs;
    case BestandSoort::Relaties:
      return paden.rlt;
    case BestandSoort::Opmerkingen:
      return paden.opm;
    case BestandSoort::Plaatsen:
      break;
  }
  return paden.plt;
}

std::string OpenFoutTekst(const OpenFout& fout) {
  return "Fout bij het openen van het " + std::string(BestandNaam(fout.soort)) + " (" +
         PadTekst(fout.pad) + ", " + GetalTekst(fout.fout.nummer) + " " + fout.fout.tekst + ")";
}

Bestandenset::Bestandenset() : Bestandenset(OpenOpSchijf) {}

Bestandenset::Bestandenset(Opener opener) : opener_(std::move(opener)) {
  for (const BestandSoort soort : kBestandSoorten) {
    gesloten_.at(IndexVan(soort)) = std::make_unique<GeslotenBestand>(RecordLengteVan(soort));
  }
}

SysteemFout Bestandenset::Open(BestandSoort soort, const std::filesystem::path& pad) {
  Sluit(soort);
  const std::filesystem::path gevonden = VindPad(pad);
  Opening opening = opener_(gevonden, RecordLengteVan(soort));
  if (opening.bestand && !opening.fout && bron_.tijd) {
    opening.bestand = MetJournaal(std::move(opening.bestand), soort, gevonden);
  }
  VakVan(soort).bestand = std::move(opening.bestand);
  return std::move(opening.fout);
}

std::unique_ptr<RecordBestand> Bestandenset::MetJournaal(std::unique_ptr<RecordBestand> bestand,
                                                         BestandSoort soort,
                                                         const std::filesystem::path& pad) {
  // The central places lie elsewhere, and belong to the actions of the set that writes them.
  const std::filesystem::path map = pad.parent_path();
  const bool centraal = soort == BestandSoort::Plaatsen && journaal_ && map != journaalMap_;
  if (!centraal && (!journaal_ || map != journaalMap_)) {
    const std::filesystem::path plek = JournaalPlek(map, PadTekst(pad.stem()));
    journaal_ = std::make_shared<Journaal>(
        bron_.map ? bron_.map(plek) : std::make_unique<SchijfJournaalMap>(plek), bron_.tijd,
        bron_.bijVreemd);
    journaalMap_ = map;
  }
  return std::make_unique<JournaalBestand>(std::move(bestand), journaal_, soort, centraal);
}

bool Bestandenset::NeemInGebruik() {
  return Bestand(BestandSoort::Personen).Vergrendel().nummer != kGeenToegang;
}

std::optional<OpenFout> Bestandenset::Open(BestandSoort soort, const SetPaden& paden) {
  const std::filesystem::path& pad = PadVanSoort(paden, soort);
  const bool afwezig = soort == BestandSoort::Plaatsen && IsAfwezig(VindPad(pad));
  // An own file would be made empty here, and no number of the set would have its place any more.
  if (afwezig && IsGevuld(VindPad(paden.centraal)) && !Open(soort, paden.centraal)) {
    return std::nullopt;
  }
  SysteemFout fout = Open(soort, pad);
  if (!fout) return std::nullopt;
  if (afwezig && !Open(soort, paden.centraal)) return std::nullopt;
  return OpenFout{soort, pad, std::move(fout)};
}

std::optional<OpenFout> Bestandenset::OpenSet(const SetPaden& paden) {
  SluitAlles();
  for (const BestandSoort soort : kBestandSoorten) {
    if (std::optional<OpenFout> fout = Open(soort, paden)) return fout;
  }
  return std::nullopt;
}

void Bestandenset::Sluit(BestandSoort soort) {
  Vak& vak = VakVan(soort);
  vak.eerder = Stand(soort) + 1;
  vak.bestand.reset();
}

void Bestandenset::SluitAlles() {
  // While its files are there. What has no end is asked about at the next opening.
  if (journaal_) static_cast<void>(journaal_->SluitAf());
  journaal_.reset();
  for (const BestandSoort soort : kBestandSoorten) Sluit(soort);
}

bool Bestandenset::IsOpen(BestandSoort soort) const {
  return VakVan(soort).bestand != nullptr;
}

RecordBestand& Bestandenset::Bestand(BestandSoort soort) {
  Vak& vak = VakVan(soort);
  if (vak.bestand) return *vak.bestand;
  return *gesloten_.at(IndexVan(soort));
}

std::uint64_t Bestandenset::Stand(BestandSoort soort) const {
  const Vak& vak = VakVan(soort);
  return vak.eerder + (vak.bestand ? vak.bestand->Wijzigingen() : 0);
}

void Bestandenset::LeesVooruit(bool aan) {
  for (const Vak& vak : vakken_) {
    if (vak.bestand) vak.bestand->LeesVooruit(aan);
  }
}

SysteemFout Bestandenset::Veiligstellen() {
  SysteemFout eerste;
  for (const Vak& vak : vakken_) {
    if (!vak.bestand) continue;
    SysteemFout fout = vak.bestand->Veiligstellen();
    if (fout && !eerste) eerste = std::move(fout);
  }
  return eerste;
}

}  // namespace lb77
