#include "store/JournaalVorm.h"

#include <algorithm>

#include "store/Crc32.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kMerk = "LB77JRNL";
constexpr std::uint16_t kVersie = 1;
constexpr std::size_t kTijdBreedte = 19;
constexpr std::size_t kLabelBreedte = 255;
constexpr std::size_t kKopVast = 38;  // up to the label
constexpr char kTagLengte = 'L';
constexpr char kTagBeeld = 'V';
constexpr char kTagEinde = 'E';
constexpr std::size_t kSom = 4;
constexpr std::size_t kBeeldVast = 8;
constexpr std::size_t kLengteVast = 12;
constexpr std::size_t kEindeVast = 40;
constexpr std::size_t kStandBreedte = 12;
constexpr std::size_t kNaamBreedte = 8;

void Zet(std::string& uit, std::uint64_t getal, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i) uit += static_cast<char>((getal >> (8 * i)) & 0xFFU);
}

void ZetSom(std::string& uit) {
  Zet(uit, Crc32(uit), kSom);
}

std::uint64_t Getal(std::string_view bytes, std::size_t plaats, std::size_t breedte) {
  std::uint64_t getal = 0;
  for (std::size_t i = 0; i < breedte; ++i) {
    getal |= std::uint64_t{static_cast<unsigned char>(bytes[plaats + i])} << (8 * i);
  }
  return getal;
}

std::uint32_t Getal32(std::string_view bytes, std::size_t plaats) {
  return static_cast<std::uint32_t>(Getal(bytes, plaats, 4));
}

// True when the last four bytes are the check sum of those in front.
bool SomKlopt(std::string_view stuk) {
  const std::size_t lengte = stuk.size() - kSom;
  return Crc32(stuk.substr(0, lengte)) == Getal32(stuk, lengte);
}

std::optional<RecordPlek> PlekVan(char soort, std::uint32_t nr) {
  if (soort < 1 || soort > 4 || nr < 1 || nr > static_cast<std::uint32_t>(kMaxRecords)) return {};
  return RecordPlek{static_cast<BestandSoort>(soort), static_cast<std::int32_t>(nr)};
}

// Walks over the bytes of a file and gathers what is whole.
class Ontleder {
 public:
  explicit Ontleder(std::string_view bytes) : bytes_(bytes) {}

  JournaalInhoud Ontleed() {
    if (LeesKop()) {
      while (LeesStuk()) {
      }
    }
    inhoud_.heel = plaats_;
    return std::move(inhoud_);
  }

 private:
  // The next bytes, if they are all there.
  std::optional<std::string_view> Stuk(std::size_t lengte) const {
    if (bytes_.size() - plaats_ < lengte) return std::nullopt;
    return bytes_.substr(plaats_, lengte);
  }

  bool LeesKop() {
    const auto vast = Stuk(kKopVast);
    if (!vast || !vast->starts_with(kMerk) || Getal(*vast, 8, 2) != kVersie) return false;
    const std::size_t label = static_cast<unsigned char>((*vast)[kKopVast - 1]);
    const auto stuk = Stuk(kKopVast + label + kSom);
    if (!stuk || !SomKlopt(*stuk)) return false;
    inhoud_.kop = JournaalKop{Getal32(*stuk, 10), Getal32(*stuk, 14),
                              std::string(stuk->substr(18, kTijdBreedte)),
                              std::string(stuk->substr(kKopVast, label))};
    plaats_ += stuk->size();
    return true;
  }

  // False when there is no more to be had.
  bool LeesStuk() {
    if (plaats_ == bytes_.size()) return false;
    switch (bytes_[plaats_]) {
      case kTagLengte:
        return LeesLengte();
      case kTagBeeld:
        return LeesBeeld();
      case kTagEinde:
        LeesEinde();
        return false;
      default:
        inhoud_.beschadigd = true;
        return false;
    }
  }

  // Steps over a piece. False when its check sum is wrong.
  bool Neem(std::string_view stuk) {
    plaats_ += stuk.size();
    const bool klopt = SomKlopt(stuk);
    if (!klopt) inhoud_.beschadigd = true;
    return klopt;
  }

  bool LeesLengte() {
    const auto stuk = Stuk(kLengteVast + kSom);
    if (!stuk) return false;
    const auto plek = PlekVan((*stuk)[1], 1);
    if (Neem(*stuk) && plek) {
      // A file with room for more than all records does not grow or shrink by writing any of them.
      const std::uint64_t lengte = Getal(*stuk, 4, 8);
      const bool bruikbaar = lengte <= BeginVan({plek->soort, kMaxRecords + 1});
      if (bruikbaar) inhoud_.lengten.at(IndexVan(plek->soort)) = lengte;
      inhoud_.centraal = inhoud_.centraal || (*stuk)[2] != 0;
    }
    return true;
  }

  bool LeesBeeld() {
    const auto vast = Stuk(kBeeldVast);
    if (!vast) return false;
    const std::size_t lengte = Getal(*vast, 2, 2);
    const auto plek = PlekVan((*vast)[1], Getal32(*vast, 4));
    const auto stuk = Stuk(kBeeldVast + lengte + kSom);
    if (!stuk) return false;
    if (!plek || lengte > RecordLengteVan(plek->soort)) {
      inhoud_.beschadigd = true;
      return false;
    }
    if (Neem(*stuk))
      inhoud_.beelden.push_back({*plek, std::string(stuk->substr(kBeeldVast, lengte))});
    return true;
  }

  void LeesEinde() {
    const auto vast = Stuk(kEindeVast);
    if (!vast) return;
    const std::uint64_t aantal = Getal32(*vast, 4);
    const std::uint64_t lengte = kEindeVast + aantal * kStandBreedte + kSom;
    const auto stuk = Stuk(lengte);
    if (!stuk) return;
    if (SomKlopt(*stuk)) {
      inhoud_.einde = Einde(*stuk, aantal);
    } else {
      inhoud_.beschadigd = true;
    }
  }

  static JournaalEinde Einde(std::string_view stuk, std::uint64_t aantal) {
    JournaalEinde einde;
    for (std::size_t i = 0; i < einde.lengten.size(); ++i) {
      einde.lengten[i] = Getal(stuk, 8 + 8 * i, 8);
    }
    for (std::uint64_t i = 0; i < aantal; ++i) {
      const std::size_t plaats = kEindeVast + i * kStandBreedte;
      const auto plek = PlekVan(stuk[plaats + 4], Getal32(stuk, plaats));
      if (!plek) continue;
      const auto bytes = static_cast<std::uint8_t>(stuk[plaats + 5]);
      einde.standen.push_back({*plek, bytes, Getal32(stuk, plaats + 8)});
    }
    return einde;
  }

  std::string_view bytes_;
  std::size_t plaats_ = 0;
  JournaalInhoud inhoud_;
};

}  // namespace

std::string CodeerKop(const JournaalKop& kop) {
  std::string uit(kMerk);
  const std::string_view label = std::string_view(kop.label).substr(0, kLabelBreedte);
  std::string tijd = kop.tijd;
  tijd.resize(kTijdBreedte, ' ');
  Zet(uit, kVersie, 2);
  Zet(uit, kop.nummer, 4);
  Zet(uit, kop.ongedaanVanaf, 4);
  uit += tijd;
  Zet(uit, label.size(), 1);
  uit += label;
  ZetSom(uit);
  return uit;
}

std::string CodeerLengte(const JournaalLengte& lengte) {
  std::string uit(1, kTagLengte);
  Zet(uit, static_cast<std::uint64_t>(lengte.soort), 1);
  Zet(uit, lengte.centraal ? 1 : 0, 2);
  Zet(uit, lengte.lengte, 8);
  ZetSom(uit);
  return uit;
}

std::string CodeerBeeld(const JournaalBeeld& beeld) {
  std::string uit(1, kTagBeeld);
  Zet(uit, static_cast<std::uint64_t>(beeld.plek.soort), 1);
  Zet(uit, beeld.bytes.size(), 2);
  Zet(uit, static_cast<std::uint64_t>(beeld.plek.nr), 4);
  uit += beeld.bytes;
  ZetSom(uit);
  return uit;
}

std::string CodeerEinde(const JournaalEinde& einde) {
  std::string uit(1, kTagEinde);
  uit.reserve(kEindeVast + einde.standen.size() * kStandBreedte + kSom);
  Zet(uit, 0, 3);
  Zet(uit, einde.standen.size(), 4);
  for (const std::uint64_t lengte : einde.lengten) Zet(uit, lengte, 8);
  for (const JournaalStand& stand : einde.standen) {
    Zet(uit, static_cast<std::uint64_t>(stand.plek.nr), 4);
    Zet(uit, static_cast<std::uint64_t>(stand.plek.soort), 1);
    Zet(uit, stand.aantal, 3);
    Zet(uit, stand.som, 4);
  }
  ZetSom(uit);
  return uit;
}

JournaalStand StandVan(const RecordPlek& plek, std::string_view bytes) {
  return {plek, static_cast<std::uint8_t>(bytes.size()), Crc32(bytes)};
}

JournaalInhoud OntleedJournaal(std::string_view bytes) {
  return Ontleder(bytes).Ontleed();
}

std::string JournaalNaam(std::uint32_t nummer, bool bezig) {
  return NulGevuld(static_cast<std::int32_t>(nummer), kNaamBreedte) + (bezig ? ".BEZ" : ".HND");
}

std::optional<JournaalNummer> LeesJournaalNaam(std::string_view naam) {
  if (naam.size() != kNaamBreedte + 4) return std::nullopt;
  const std::string_view cijfers = naam.substr(0, kNaamBreedte);
  const std::string_view soort = naam.substr(kNaamBreedte);
  if (!std::ranges::all_of(cijfers, IsCijfer) || (soort != ".BEZ" && soort != ".HND")) return {};
  const std::int32_t nummer = Getalwaarde(cijfers);
  if (nummer < 1) return std::nullopt;
  return JournaalNummer{static_cast<std::uint32_t>(nummer), soort == ".BEZ"};
}

}  // namespace lb77
