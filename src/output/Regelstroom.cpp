#include "output/Regelstroom.h"

#include <algorithm>
#include <cerrno>
#include <ios>
#include <system_error>

namespace lb77 {

namespace {

constexpr std::size_t kBlokGrootte = std::size_t{64} * 1024;

bool IsEinde(char teken) {
  return teken == '\r' || teken == '\n';
}

}  // namespace

Regelstroom::Regelstroom() : blok_(kBlokGrootte) {}

bool Regelstroom::Open(const std::filesystem::path& pad, std::uint64_t plaats) {
  bestand_ = std::ifstream();
  fout_ = {};
  gelezen_ = lengte_ = 0;
  begin_ = plaats;
  inRegel_ = false;
  std::error_code code;
  if (std::filesystem::is_directory(pad, code)) {
    fout_ = FoutVan(std::make_error_code(std::errc::is_a_directory));
    return false;
  }
  errno = 0;
  bestand_.open(pad, std::ios::binary);
  if (bestand_) bestand_.seekg(static_cast<std::streamoff>(plaats));
  if (!bestand_) fout_ = FoutVanStroom();
  return !fout_;
}

// Makes sure that there is a byte to read; False at the end of the file.
bool Regelstroom::Vul() {
  if (gelezen_ < lengte_) return true;
  begin_ += lengte_;
  gelezen_ = lengte_ = 0;
  if (fout_ || !bestand_) return false;
  errno = 0;
  bestand_.read(blok_.data(), static_cast<std::streamsize>(blok_.size()));
  lengte_ = static_cast<std::size_t>(bestand_.gcount());
  if (bestand_.bad()) fout_ = FoutVanStroom();
  return lengte_ > 0;
}

bool Regelstroom::VolgendeRegel() {
  while (!Stuk().empty()) {
  }
  inRegel_ = Vul();
  return inRegel_;
}

std::string_view Regelstroom::Stuk() {
  if (!inRegel_) return {};
  if (!Vul()) {
    inRegel_ = false;
    return {};
  }
  if (IsEinde(blok_[gelezen_])) {
    SluitRegel();
    return {};
  }
  const auto van = blok_.begin() + static_cast<std::ptrdiff_t>(gelezen_);
  const auto tot = blok_.begin() + static_cast<std::ptrdiff_t>(lengte_);
  const auto einde = std::find_if(van, tot, IsEinde);
  const std::string_view stuk(blok_.data() + gelezen_, static_cast<std::size_t>(einde - van));
  gelezen_ += stuk.size();
  return stuk;
}

// Passes over the end of the line, which may lie across two blocks.
void Regelstroom::SluitRegel() {
  const char einde = blok_[gelezen_++];
  if (einde == '\r' && Vul() && blok_[gelezen_] == '\n') ++gelezen_;
  inRegel_ = false;
}

}  // namespace lb77
