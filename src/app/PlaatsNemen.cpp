#include "app/PlaatsNemen.h"

#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "text/Pad.h"

namespace lb77 {
namespace {

std::filesystem::path MetEind(std::filesystem::path pad, std::string_view eind) {
  return pad += eind;
}

// A place that a new file takes.
struct Plaats {
  const std::filesystem::path& pad;
  bool opzij = false;      // its earlier file waits
  bool gekoppeld = false;  // under a second name

  [[nodiscard]] SysteemFout Neem(bool laatste, Bestandswerk& werk) {
    if (SysteemFout fout = werk.Veiligstellen(Ernaast(pad))) return fout;
    // The last one replaces its file at one moment: nothing can fail behind it.
    if (!laatste) {
      if (SysteemFout fout = LegOpzij(werk)) return fout;
    }
    SysteemFout fout = werk.Hernoem(Ernaast(pad), pad);
    // The earlier one still has its place: its second name goes.
    if (fout && gekoppeld) opzij = static_cast<bool>(werk.Verwijder(Opzij(pad)));
    return fout;
  }
  // By a second name, so that a crash finds no place empty; by another one on a disk without those.
  [[nodiscard]] SysteemFout LegOpzij(Bestandswerk& werk) {
    std::error_code code;
    if (!std::filesystem::exists(std::filesystem::symlink_status(pad, code))) return {};
    gekoppeld = !werk.Koppel(pad, Opzij(pad));
    if (!gekoppeld) {
      if (SysteemFout fout = werk.Hernoem(pad, Opzij(pad))) return fout;
    }
    opzij = true;
    return {};
  }
  [[nodiscard]] SysteemFout GeefTerug(Bestandswerk& werk) const {
    return opzij ? werk.Hernoem(Opzij(pad), pad) : werk.Verwijder(pad);
  }
};

}  // namespace

std::filesystem::path Ernaast(const std::filesystem::path& plaats) {
  return MetEind(plaats, ".nieuw");
}

std::filesystem::path Opzij(const std::filesystem::path& plaats) {
  return MetEind(plaats, ".oud");
}

std::optional<PlaatsFout> NeemPlaatsen(std::span<const std::filesystem::path> plaatsen,
                                       Bestandswerk& werk) {
  std::vector<Plaats> alle;
  for (const std::filesystem::path& pad : plaatsen) alle.push_back({pad});
  for (std::size_t i = 0; i < alle.size(); ++i) {
    SysteemFout fout = alle[i].Neem(i + 1 == alle.size(), werk);
    if (!fout) continue;
    PlaatsFout uit{i, std::move(fout), 0, {}};
    for (std::size_t j = alle[i].opzij ? i + 1 : i; j > 0; --j) {
      SysteemFout terug = alle[j - 1].GeefTerug(werk);
      if (!terug || uit.terug) continue;
      uit.nietTerug = j - 1;
      uit.terug = std::move(terug);
    }
    return uit;
  }
  for (const Plaats& plaats : alle) {
    if (plaats.opzij) static_cast<void>(werk.Verwijder(Opzij(plaats.pad)));
  }
  return std::nullopt;
}

std::string NietTerugTekst(const PlaatsFout& fout,
                           std::span<const std::filesystem::path> plaatsen) {
  if (!fout.terug) return {};
  return "\nFout bij het terugzetten van " + PadTekst(plaatsen[fout.nietTerug]) + "\n" +
         fout.terug.tekst;
}

void RuimErnaast(std::span<const std::filesystem::path> plaatsen, Bestandswerk& werk) {
  for (const std::filesystem::path& pad : plaatsen) {
    static_cast<void>(werk.Verwijder(Ernaast(pad)));
  }
}

}  // namespace lb77
