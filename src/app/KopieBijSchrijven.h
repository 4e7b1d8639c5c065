// The directory of a journal that tells of the first action in it, before anything is written.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "store/JournaalMap.h"

namespace lb77 {

class KopieBijSchrijven final : public JournaalMap {
 public:
  // `bijEerste` is called once, when the first action of this opening begins.
  KopieBijSchrijven(const std::filesystem::path& map, std::function<void()> bijEerste)
      : map_(map), bijEerste_(std::move(bijEerste)) {}

  [[nodiscard]] SysteemFout Lijst(std::vector<JournaalPost>& posten) override {
    return map_.Lijst(posten);
  }
  [[nodiscard]] SysteemFout Lees(const std::string& naam, std::string& bytes) override {
    return map_.Lees(naam, bytes);
  }
  [[nodiscard]] SysteemFout Maak(const std::string& naam) override {
    if (const auto doe = std::exchange(bijEerste_, nullptr)) doe();
    return map_.Maak(naam);
  }
  [[nodiscard]] SysteemFout Open(const std::string& naam) override { return map_.Open(naam); }
  [[nodiscard]] SysteemFout Schrijf(std::uint64_t plaats, std::span<const char> bytes) override {
    return map_.Schrijf(plaats, bytes);
  }
  [[nodiscard]] SysteemFout Kap(std::uint64_t lengte) override { return map_.Kap(lengte); }
  [[nodiscard]] SysteemFout Veiligstellen() override { return map_.Veiligstellen(); }
  [[nodiscard]] SysteemFout StelNamenVeilig() override { return map_.StelNamenVeilig(); }
  void Sluit() override { map_.Sluit(); }
  [[nodiscard]] SysteemFout Hernoem(const std::string& van, const std::string& naar) override {
    return map_.Hernoem(van, naar);
  }
  [[nodiscard]] SysteemFout Verwijder(const std::string& naam) override {
    return map_.Verwijder(naam);
  }

 private:
  SchijfJournaalMap map_;
  std::function<void()> bijEerste_;
};

}  // namespace lb77
