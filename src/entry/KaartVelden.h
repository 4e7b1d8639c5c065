// The controls that cards are made of: they show, and lead to what they show.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/Keuzen.h"
#include "forms/Weergave.h"
#include "store/RelatieLB77.h"
#include "text/Gezindte.h"

namespace lb77 {

class Gesprek;
class PersoonLB77;
class PlaatsLB77;

// A place: "<stam>Nm" and "<stam>Nr".
class PlaatsToon {
 public:
  PlaatsToon(Formulier& formulier, std::string_view stam);

  Teller Nm;
  Teller Nr;

  void Toon(PlaatsLB77& plaats, std::int16_t nr);
  void ZetZichtbaar(bool zichtbaar);
};

// The code of a denomination and its name: "<stam>Code" and "<stam>Tekst".
class GezindteToon {
 public:
  GezindteToon(Formulier& formulier, std::string_view stam);

  Teller Code;
  Teller Tekst;

  void Toon(std::string_view code, const Gezindten& gezindten);
  void ZetZichtbaar(bool zichtbaar);
};

// A person who can be gone to: the number, "VoorNm<achtervoegsel>", "AchterNm<achtervoegsel>".
class PersoonToon {
 public:
  PersoonToon(Formulier& formulier, std::string_view nrNaam, std::string_view achtervoegsel,
              std::string_view prompt, std::string_view leesnaam);

  Verwijzing Nr;
  Teller VoorNm;
  Teller AchterNm;

  // The names as they are stored; those of an unreadable person are question marks.
  void Toon(PersoonLB77& persoon, std::int16_t nr);
  // A name that is empty is "<onbekend>".
  void ToonHeleNaam(PersoonLB77& persoon, std::int16_t nr);
};

// The button of the remarks on one field of the record.
class OpmKnop final : public Knop {
 public:
  // `veld` shows what the remarks are about; it outlives the button.
  OpmKnop(Formulier& formulier, std::string_view naam, std::int16_t rubriek, const Bediening& veld);

  [[nodiscard]] std::int16_t Rubriek() const { return rubriek_; }
  [[nodiscard]] std::string VeldWaarde() const { return veld_.Waarde(); }
  // Shows whether the record has remarks on the field.
  void Toon(std::int16_t opmCode);

 private:
  std::int16_t rubriek_;
  const Bediening& veld_;
};

// May a click on number `nr` go there? Tells why not: `geen` when there is nobody; a number below 0
// is damage, and would be taken for a new record.
[[nodiscard]] bool MagErheen(Gesprek& gesprek, int nr, std::string_view geen,
                             std::string_view komtNietVoor);

// The children of relation `nr`, whose record is in the buffer, as far as they can be read; a
// continuation that can't be read is told.
[[nodiscard]] Kindtab LeesKinderen(RelatieLB77& relatie, Gesprek& gesprek, std::int16_t nr);
// The number of children as it is shown.
[[nodiscard]] std::string KindertalTekst(int aantal);

// A date in the entry form, without the mask of an empty one.
[[nodiscard]] std::string_view DatumOpKaart(std::string_view datum10);

inline constexpr std::string_view kPersoonKomtNietVoor =
    "Het opgegeven Persoonsnummer komt niet voor";
inline constexpr std::string_view kRelatieKomtNietVoor =
    "Het opgegeven Relatienummer komt niet voor";
inline constexpr std::string_view kIsVervolgrecord = "Het opgegeven record is een vervolgrecord";
inline constexpr std::string_view kLeesfoutPersoon = "Leesfout bij persoonsrecord ";
inline constexpr std::string_view kLeesfoutRelatie = "Leesfout bij relatierecord ";

}  // namespace lb77
