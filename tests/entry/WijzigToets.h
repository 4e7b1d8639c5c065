// Scripts played on the dialogs that edit a person and a relation.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "entry/Koppeltabel.h"
#include "entry/WijzigPersoon.h"
#include "entry/WijzigRelatie.h"
#include "steun/FamilieToets.h"
#include "store/PersoonVelden.h"
#include "store/RelatieVelden.h"
#include "store/SetPaden.h"

namespace lb77 {

// The dialog `Form` on the record that the tracker `kVolger` tells. What is written behind a script
// is asked of the files in a session of its own.
template <class Form, std::int16_t Volgers::*kVolger>
class WijzigToets : public FamilieToets {
 protected:
  // The whole transcript, of a form that may not open at all.
  void SpeeltGeheel(std::int16_t nr, std::string_view draaiboek, std::string_view verslag,
                    const Plek& plek = Plek::current()) {
    Verwacht(draaiboek, Dialoog(nr), verslag, plek);
  }
  // Ends by BackButton.
  void Speelt(std::int16_t nr, std::string_view draaiboek, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    SpeeltGeheel(nr, std::string(draaiboek) + "\ndruk BackButton", Omlijst(verslag), plek);
  }
  // Ends by an Opslaan that closes the dialog.
  void SlaatOp(std::int16_t nr, std::string_view draaiboek, std::string_view verslag = "",
               const Plek& plek = Plek::current()) {
    SpeeltGeheel(nr, std::string(draaiboek) + "\ndruk Opslaan", Omlijst(verslag), plek);
  }

  Taak Dialoog(std::int16_t nr) {
    return [this, nr](Hoofdmodule& hoofd) {
      hoofd.schrijfwijze.DatumScheider = '-';
      hoofd.schrijfwijze.gezindten[1] = "NHNederlands-Hervormd";
      hoofd.schrijfwijze.gezindten[2] = "RKRooms-Katholiek";
      hoofd.volgers.*kVolger = nr;
      Form form(hoofd);
      hoofd.gesprek.ToonModaal(form);
      na_ = hoofd.volgers.*kVolger;
      focus_ = form.FocusVeld() ? form.FocusVeld()->Naam() : "";
    };
  }

  std::string VanPersoon(std::int16_t nr, const Veld& veld) {
    return Van(
        [&](Hoofdmodule& hoofd) -> RecordRaam* {
          return hoofd.Persoon.Lees(nr) ? &hoofd.Persoon : nullptr;
        },
        veld);
  }
  std::string VanRelatie(std::int16_t nr, const Veld& veld) {
    return Van(
        [&](Hoofdmodule& hoofd) -> RecordRaam* {
          return hoofd.Relatie.Lees(nr) ? &hoofd.Relatie : nullptr;
        },
        veld);
  }
  // The children and relations in use, in their order.
  std::string Kinderen(std::int16_t relatie) {
    std::string uit;
    Stil([&](Hoofdmodule& hoofd) {
      Kindtab tab{};
      static_cast<void>(hoofd.Relatie.VulKindtab(relatie, tab));
      uit = Nummers(PlaatsenVan(tab));
    });
    return uit;
  }
  std::string Huwelijken(std::int16_t persoon) {
    std::string uit;
    Stil([&](Hoofdmodule& hoofd) {
      Huwtab tab{};
      static_cast<void>(hoofd.Persoon.VulHuwtab(persoon, tab));
      uit = Nummers(PlaatsenVan(tab));
    });
    return uit;
  }

  [[nodiscard]] virtual std::string Omlijst(std::string_view verslag) const = 0;

  [[nodiscard]] SetPaden Paden() const { return SetPaden::Van(Map(), "PROEF"); }
  // The four files.
  [[nodiscard]] std::vector<std::string> Bytes() const {
    return {LeesBytes(Paden().prs), LeesBytes(Paden().rlt), LeesBytes(Paden().opm),
            LeesBytes(Paden().plt)};
  }
  void ZetTerug(const std::vector<std::string>& bytes) const {
    SchrijfBytes(Paden().prs, bytes[0]);
    SchrijfBytes(Paden().rlt, bytes[1]);
    SchrijfBytes(Paden().opm, bytes[2]);
    SchrijfBytes(Paden().plt, bytes[3]);
  }
  // Overwrites one byte of a record in a file.
  static void ZetByte(const std::filesystem::path& pad, std::size_t plaats, char byte) {
    std::string bytes = LeesBytes(pad);
    bytes.at(plaats) = byte;
    SchrijfBytes(pad, bytes);
  }

  std::int16_t na_ = 0;  // the tracker afterwards
  std::string focus_;    // the control that had the focus last

 private:
  template <class Lezer>
  std::string Van(const Lezer& lees, const Veld& veld) {
    std::string uit = "<weg>";
    Stil([&](Hoofdmodule& hoofd) {
      hoofd.schrijfwijze.DatumScheider = '-';
      if (const RecordRaam* record = lees(hoofd)) uit = record->Waarde(veld);
    });
    return uit;
  }
  static std::string Nummers(Plaatsen plaatsen) {
    std::string uit;
    for (const std::int16_t nr : plaatsen) {
      if (nr != 0) uit += (uit.empty() ? "" : " ") + std::to_string(nr);
    }
    return uit;
  }
};

class WijzigPersoonToets : public WijzigToets<WijzigPersoon, &Volgers::HuidigPersoonNr> {
 protected:
  [[nodiscard]] std::string Omlijst(std::string_view verslag) const override {
    return "+ WijzigPersoon \"Wijzig Persoon\"\n" + Regels(verslag) + "- WijzigPersoon\n";
  }
};

class WijzigRelatieToets : public WijzigToets<WijzigRelatie, &Volgers::HuidigRelatieNr> {
 protected:
  [[nodiscard]] std::string Omlijst(std::string_view verslag) const override {
    return "+ WijzigRelatie \"Wijzig Relatie\"\n" + Regels(verslag) + "- WijzigRelatie\n";
  }
};

}  // namespace lb77
