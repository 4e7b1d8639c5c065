#include "steun/ProefSchijf.h"

#include <algorithm>
#include <utility>

namespace lb77 {

namespace {

const SysteemFout kStoring{57, "Fout van de schijf"};
const SysteemFout kVol{kSchijfVol, "Schijf vol"};

bool IsJournaal(const std::string& naam) {
  return naam.ends_with(".HND") || naam.ends_with(".BEZ");
}

}  // namespace

SysteemFout ProefSchijf::Tel(bool schrijft, bool& half) {
  half = false;
  ++teller;
  if (dood_) return kStoring;
  if (bij == 0 || teller < bij) return {};
  if (wijze == Wijze::Vol) return schrijft ? kVol : SysteemFout{};
  if (teller > bij) return {};
  half = schrijft && wijze != Wijze::Fout;
  dood_ = wijze == Wijze::Dood;
  return half ? kVol : kStoring;
}

SysteemFout ProefSchijf::TelLezen() {
  if (!lezenTelt) return dood_ ? kStoring : SysteemFout{};
  bool half = false;
  return Tel(false, half);
}

void ProefSchijf::Doe(std::string& bytes, const Ingreep& ingreep) {
  if (ingreep.kap) {
    bytes.resize(ingreep.plaats);
    return;
  }
  const std::size_t eind = ingreep.plaats + ingreep.bytes.size();
  if (bytes.size() < eind) bytes.resize(eind);
  bytes.replace(ingreep.plaats, ingreep.bytes.size(), ingreep.bytes);
}

SysteemFout ProefSchijf::Verander(Inhoud& inhoud, Ingreep ingreep) {
  bool half = false;
  SysteemFout fout = Tel(true, half);
  if (fout && (!half || ingreep.kap)) return fout;
  if (half) ingreep.bytes.resize(ingreep.bytes.size() / 2);
  Doe(inhoud.nu, ingreep);
  inhoud.tijd = ++klok_;
  inhoud.los.push_back(std::move(ingreep));
  return fout;
}

SysteemFout ProefSchijf::Leg(Inhoud& inhoud) {
  bool half = false;
  if (SysteemFout fout = Tel(false, half)) return fout;
  inhoud.vast = inhoud.nu;
  inhoud.los.clear();
  return {};
}

SysteemFout ProefSchijf::Noem(const NaamIngreep& ingreep) {
  bool half = false;
  if (SysteemFout fout = Tel(false, half)) return fout;
  ingreep(namen_);
  losseNamen_.push_back(ingreep);
  return {};
}

SysteemFout ProefSchijf::LegNamen() {
  bool half = false;
  if (SysteemFout fout = Tel(false, half)) return fout;
  vasteNamen_ = namen_;
  losseNamen_.clear();
  return {};
}

void ProefSchijf::Herstart() {
  dood_ = false;
  bij = 0;
  teller = 0;
}

void ProefSchijf::Stroomuitval(std::mt19937& toeval) {
  Herstart();
  const auto munt = [&toeval] { return (toeval() & 1U) != 0; };
  Namen namen = vasteNamen_;
  for (const NaamIngreep& ingreep : losseNamen_) {
    if (munt()) ingreep(namen);
  }
  namen_ = std::move(namen);
  for (auto& [naam, inhoud] : namen_) {
    std::string bytes = inhoud->vast;
    for (const Ingreep& ingreep : inhoud->los) {
      if (munt()) Doe(bytes, ingreep);
    }
    inhoud->nu = std::move(bytes);
  }
  MaakVast();
}

void ProefSchijf::MaakVast() {
  for (auto& [naam, inhoud] : namen_) {
    inhoud->vast = inhoud->nu;
    inhoud->los.clear();
  }
  vasteNamen_ = namen_;
  losseNamen_.clear();
}

ProefSchijf::Beeld ProefSchijf::Neem() const {
  Beeld beeld;
  for (const auto& [naam, inhoud] : namen_) beeld[naam] = inhoud->nu;
  return beeld;
}

void ProefSchijf::Zet(const Beeld& beeld) {
  namen_.clear();
  for (const auto& [naam, bytes] : beeld) Bytes(naam) = bytes;
  MaakVast();
  Herstart();
}

std::string& ProefSchijf::Bytes(const std::string& naam) {
  std::shared_ptr<Inhoud>& inhoud = namen_[naam];
  if (!inhoud) inhoud = std::make_shared<Inhoud>();
  inhoud->tijd = ++klok_;
  return inhoud->nu;
}

std::vector<std::string> ProefSchijf::Journalen() const {
  std::vector<std::string> uit;
  for (const auto& [naam, inhoud] : namen_) {
    if (IsJournaal(naam)) uit.push_back(naam);
  }
  return uit;
}

// A record file on the disk.
class ProefBestand final : public RecordBestand {
 public:
  ProefBestand(ProefSchijf& schijf, std::shared_ptr<ProefSchijf::Inhoud> inhoud, std::size_t lengte)
      : schijf_(schijf), inhoud_(std::move(inhoud)), lengte_(lengte) {}

  Leesuitslag Lees(std::int32_t nr, std::span<char> doel) override {
    if (SysteemFout fout = schijf_.TelLezen()) return {0, fout};
    const std::size_t plaats = static_cast<std::size_t>(nr - 1) * lengte_;
    if (plaats >= inhoud_->nu.size()) return {};
    const std::size_t aantal = std::min({doel.size(), lengte_, inhoud_->nu.size() - plaats});
    std::copy_n(inhoud_->nu.data() + plaats, aantal, doel.data());
    return {aantal, {}};
  }
  SysteemFout Schrijf(std::int32_t nr, std::span<const char> bron) override {
    ++wijzigingen_;
    const std::uint64_t plaats = static_cast<std::uint64_t>(nr - 1) * lengte_;
    return schijf_.Verander(*inhoud_, {false, plaats, std::string(bron.data(), bron.size())});
  }
  SysteemFout Kap(std::uint64_t lengte) override {
    ++wijzigingen_;
    return schijf_.Verander(*inhoud_, {true, lengte, {}});
  }
  SysteemFout Veiligstellen() override { return schijf_.Leg(*inhoud_); }
  std::uint64_t Lengte() override { return inhoud_->nu.size(); }
  std::int64_t Wijzigtijd() override { return inhoud_->tijd; }
  std::uint64_t Wijzigingen() const override { return wijzigingen_; }
  std::size_t RecordLengte() const override { return lengte_; }

 private:
  ProefSchijf& schijf_;
  std::shared_ptr<ProefSchijf::Inhoud> inhoud_;
  std::size_t lengte_;
  std::uint64_t wijzigingen_ = 0;
};

// The journal's directory on the disk.
class ProefJournaalMap final : public JournaalMap {
 public:
  explicit ProefJournaalMap(ProefSchijf& schijf) : schijf_(schijf) {}

  SysteemFout Lijst(std::vector<JournaalPost>& posten) override {
    posten.clear();
    if (SysteemFout fout = schijf_.TelLezen()) return fout;
    for (const auto& [naam, inhoud] : schijf_.namen_) {
      if (IsJournaal(naam)) posten.push_back({naam, inhoud->nu.size()});
    }
    return {};
  }
  SysteemFout Lees(const std::string& naam, std::string& bytes) override {
    if (SysteemFout fout = schijf_.TelLezen()) return fout;
    bytes = schijf_.namen_.at(naam)->nu;
    return {};
  }
  SysteemFout Maak(const std::string& naam) override {
    auto inhoud = std::make_shared<ProefSchijf::Inhoud>();
    SysteemFout fout = schijf_.Noem([naam, inhoud](auto& namen) { namen[naam] = inhoud; });
    if (!fout) open_ = inhoud;
    return fout;
  }
  SysteemFout Open(const std::string& naam) override {
    if (SysteemFout fout = schijf_.TelLezen()) return fout;
    open_ = schijf_.namen_.at(naam);
    return {};
  }
  SysteemFout Schrijf(std::uint64_t plaats, std::span<const char> bytes) override {
    return schijf_.Verander(*open_, {false, plaats, std::string(bytes.data(), bytes.size())});
  }
  SysteemFout Kap(std::uint64_t lengte) override {
    return schijf_.Verander(*open_, {true, lengte, {}});
  }
  SysteemFout Veiligstellen() override { return schijf_.Leg(*open_); }
  SysteemFout StelNamenVeilig() override { return schijf_.LegNamen(); }
  void Sluit() override { open_.reset(); }
  SysteemFout Hernoem(const std::string& van, const std::string& naar) override {
    return schijf_.Noem([van, naar](auto& namen) {
      const auto oud = namen.find(van);
      if (oud == namen.end()) return;
      namen[naar] = oud->second;
      namen.erase(van);
    });
  }
  SysteemFout Verwijder(const std::string& naam) override {
    return schijf_.Noem([naam](auto& namen) { namen.erase(naam); });
  }

 private:
  ProefSchijf& schijf_;
  std::shared_ptr<ProefSchijf::Inhoud> open_;
};

Bestandenset::Opener ProefSchijf::Opener() {
  return [this](const std::filesystem::path& pad, std::size_t lengte) -> Bestandenset::Opening {
    std::shared_ptr<Inhoud>& inhoud = namen_[pad.filename().string()];
    if (!inhoud) inhoud = std::make_shared<Inhoud>();
    vasteNamen_[pad.filename().string()] = inhoud;
    return {std::make_unique<ProefBestand>(*this, inhoud, lengte), {}};
  };
}

JournaalBron ProefSchijf::Bron() {
  return {
      [] { return std::string("1999-12-31 23:59:58"); },
      {},
      [this](const std::filesystem::path&) { return std::make_unique<ProefJournaalMap>(*this); }};
}

}  // namespace lb77
