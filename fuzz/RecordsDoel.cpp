// Any bytes as the four record files: everything is read that record classes and phrases can read,
// written to as a user would, and told in the Kwartierstaat and the Parenteel of person 2, with
// their indexes and charts, on the sheets, in his kinship with person 3, on cards, in selections
// and statistics.
//
// An input is a byte of choices (see Sessie::Keuze; 64 and 128 leave the writing or the telling
// out), three lengths of two bytes (low byte first) of the files of persons, relations and places,
// and the bytes of the files in that order; what is left is the file of remarks.
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "Doel.h"
#include "LeesAlles.h"
#include "Sessie.h"

using namespace lb77;

namespace {

constexpr unsigned kNietSchrijven = 64;
constexpr unsigned kNietVertellen = 128;
constexpr std::size_t kKop = 7;

std::string Neem(std::string_view& rest, std::size_t lengte) {
  const std::string deel(rest.substr(0, lengte));
  rest.remove_prefix(deel.size());
  return deel;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t lengte) {
  if (lengte < kKop) return 0;
  const unsigned keuzen = bytes[0];
  const auto maat = [bytes](std::size_t plaats) {
    return static_cast<std::size_t>(bytes[plaats] | (bytes[plaats + 1] << 8));
  };
  std::string_view rest(reinterpret_cast<const char*>(bytes) + kKop, lengte - kKop);
  fuzz::SetBytes set;
  set.personen = Neem(rest, maat(1));
  set.relaties = Neem(rest, maat(3));
  set.plaatsen = Neem(rest, maat(5));
  set.opmerkingen = rest;
  fuzz::Sessie sessie(set);
  fuzz::LeesAlles(sessie.hoofd, set);
  if ((keuzen & kNietVertellen) == 0) {
    sessie.Kwartierstaat(2, keuzen);
    sessie.Kwartierbladen(2, keuzen);
    sessie.Parenteel(2, keuzen);
    sessie.Verwantschap(2, 3);
    sessie.Kaarten(20);
    sessie.Lijsten(2);
  }
  if ((keuzen & kNietSchrijven) == 0) fuzz::SchrijfIets(sessie.hoofd);
  return 0;
}
