#include "contact/GciTabellen.h"

#include <algorithm>
#include <utility>

#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

GciPlaatsen::GciPlaatsen(std::vector<std::string> rijen) : rijen_(std::move(rijen)) {
  for (int rij = 1; rij <= Aantal(); ++rij) {
    std::string& tekst = rijen_[static_cast<std::size_t>(rij) - 1];
    tekst = Links(tekst, kNaam + 2 * kCode);
    Onthoud(static_cast<std::int16_t>(rij));
  }
}

const std::string& GciPlaatsen::Rij(int rij) const {
  return rijen_.at(static_cast<std::size_t>(rij) - 1);
}

std::string_view GciPlaatsen::Naam(int rij) const {
  return Trim(std::string_view(Rij(rij)).substr(0, kNaam));
}

std::string_view GciPlaatsen::Prov(int rij) const {
  return Trim(std::string_view(Rij(rij)).substr(kNaam, kCode));
}

std::string_view GciPlaatsen::Land(int rij) const {
  return Trim(std::string_view(Rij(rij)).substr(kNaam + kCode, kCode));
}

const std::vector<std::int16_t>& GciPlaatsen::MetNaam(std::string_view naam) const {
  const auto plek = opNaam_.find(Hoofdletters(Trim(naam)));
  return plek == opNaam_.end() ? geen_ : plek->second;
}

std::optional<std::string> GciPlaatsen::MetProv(std::string_view code) const {
  for (int rij = 1; rij <= Aantal(); ++rij) {
    if (GelijkZonderKast(Prov(rij), Trim(code))) return std::string(Prov(rij));
  }
  return std::nullopt;
}

std::int16_t GciPlaatsen::VoegToe(std::string_view naam, std::string_view prov,
                                  std::string_view land) {
  if (Aantal() >= kMaxRecords) return 0;
  rijen_.push_back(Links(naam, kNaam) + Links(prov, kCode) + Links(land, kCode));
  const auto rij = static_cast<std::int16_t>(Aantal());
  Onthoud(rij);
  return rij;
}

void GciPlaatsen::Onthoud(std::int16_t rij) {
  opNaam_[Hoofdletters(Naam(rij))].push_back(rij);
}

GciCodes::GciCodes(const std::vector<std::string>& rijen) {
  for (const std::string& rij : rijen) {
    const std::string heel = Links(rij, std::max(rij.size(), GciPlaatsen::kCode));
    const std::string_view tekst = heel;
    rijen_.push_back({std::string(Trim(tekst.substr(0, GciPlaatsen::kCode))),
                      std::string(Trim(tekst.substr(GciPlaatsen::kCode)))});
  }
}

const GciCodes::Rij* GciCodes::Zoek(std::string Rij::*kolom, std::string_view tekst) const {
  const std::string_view kaal = Trim(tekst);
  for (const Rij& rij : rijen_) {
    if (GelijkZonderKast(rij.*kolom, kaal)) return &rij;
  }
  return nullptr;
}

std::optional<std::string> GciCodes::MetCode(std::string_view code) const {
  const Rij* rij = Zoek(&Rij::code, code);
  return rij ? std::optional(rij->code) : std::nullopt;
}

std::optional<std::string> GciCodes::MetNaam(std::string_view naam) const {
  const Rij* rij = Zoek(&Rij::naam, naam);
  return rij ? std::optional(rij->code) : std::nullopt;
}

std::optional<std::string> GciCodes::NaamVan(std::string_view code) const {
  const Rij* rij = Zoek(&Rij::code, code);
  return rij ? std::optional(rij->naam) : std::nullopt;
}

}  // namespace lb77
