// The dialogs that ask which person, which relation, or which place in a list.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/PersoonVak.h"
#include "entry/RecordNrVak.h"

namespace lb77 {

// What tells one question for a person from another.
struct PersoonKeuzeSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view vraag;
  bool alleenAnders = false;  // the names stay when the number was not changed
};

inline constexpr std::string_view kVraagKind = "Geef het Persoonsnummer van het Kind";
inline constexpr PersoonKeuzeSoort kKindErbij{"KindErbij", "Toevoegen Kind", kVraagKind};
inline constexpr PersoonKeuzeSoort kKindEraf{"KindEraf", "Verwijderen Kind", kVraagKind};
inline constexpr PersoonKeuzeSoort kKindSchuif{"KindSchuif", "Volgnummer Kind Wijzigen", kVraagKind,
                                               true};
inline constexpr PersoonKeuzeSoort kVraagPartner{"VraagPartner", "Invoer Partner",
                                                 "Geef het Persoonsnummer van de Partner"};

// By number or by name.
class PersoonKeuze final : public InvoerFormulier {
 public:
  PersoonKeuze(const PersoonKeuzeSoort& soort, Hoofdmodule& hoofd);

  Label VraagLabel;
  PersoonVak Persoon;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop ZoekButton{*this, "ZoekButton", "&Zoek Persoon"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The person, 0 when OK came without one; nothing when the form was left by Terug.
  [[nodiscard]] std::optional<std::int16_t> Nr() const { return nr_; }

 private:
  void OKButtonKlik();
  void ZoekButtonKlik();

  std::optional<std::int16_t> nr_;
};

// Asks for one of a person's relations.
class HuwSchuif final : public InvoerFormulier {
 public:
  explicit HuwSchuif(Hoofdmodule& hoofd);

  RecordNrVak RecordNr{*this, "RecordNr", "Geef het Relatienummer", BestandSoort::Relaties,
                       Vervolgtest::GeenVervolg};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // As that of PersoonKeuze.
  [[nodiscard]] std::optional<std::int16_t> Nr() const { return nr_; }

 private:
  void OKButtonKlik();

  std::optional<std::int16_t> nr_;
};

// What tells one question for a place from the other.
struct VolgnummerSoort {
  std::string_view naam;
  std::string_view titel;
  std::string_view vraag;
  std::int16_t hoogste;
  std::string_view melding;
};

inline constexpr VolgnummerSoort kVolgnrKind{"VolgnrKind", "Volgnummer Kind",
                                             "Geef het nieuwe Volgnummer (1-29)", 29,
                                             "Volgnummer moet tussen 1 en 29 liggen"};
inline constexpr VolgnummerSoort kVolgNrHuw{"VolgNrHuw", "Volgnummer Relatie",
                                            "Geef het nieuwe Volgnummer (1-5)", 5,
                                            "Volgnummer moet tussen 1 en 5 liggen"};

// Asks the place that something is to have in its list.
class VolgnummerVraag final : public InvoerFormulier {
 public:
  VolgnummerVraag(const VolgnummerSoort& soort, Hoofdmodule& hoofd);

  InvoerVak VolgNum;
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // From 1; -1 when the form was left by Terug.
  [[nodiscard]] std::int16_t VolgNr() const { return volgNr_; }

 private:
  [[nodiscard]] bool VolgNumVerlaten();
  void OKButtonKlik();

  VolgnummerSoort soort_;
  std::int16_t volgNr_ = -1;
};

}  // namespace lb77
