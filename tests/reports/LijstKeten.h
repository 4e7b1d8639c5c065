// Plays a script against the dialog of a list.
#pragma once

#include <string>
#include <string_view>

#include "app/Start.h"
#include "reports/LijstFamilie.h"
#include "steun/FamilieToets.h"

namespace lb77 {

// The family of the lists, in a set of its own. The file that the dialog makes is `bestand_`.
template <class Vorm>
class LijstKeten : public FamilieToets {
 protected:
  explicit LijstKeten(std::string_view bestand) : bestand_(Map() / "TEMP" / bestand) {
    BouwLijstFamilie(Bouw());
    SchrijfBytes(Map() / "LIJNBOOM.INI",
                 "[Systeem]\r\nSet=PROEF\r\nDatumScheider=-\r\n[Printer]\r\nTekstbr=40\r\n");
  }

  // The transcript between the opening and the closing of the dialog.
  void Speel(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        std::string(draaiboek) + "\n",
        [this](Hoofdmodule& hoofd) {
          ASSERT_TRUE(Start(hoofd));
          hoofd.schrijfwijze.DatumScheider = scheider_;
          hoofd.volgers.HuidigPersoonNr = 7;
          hoofd.volgers.HuidigRelatieNr = 4;
          Vorm vorm(hoofd);
          EXPECT_EQ(vorm.HulpOnderwerp(),
                    Kop().starts_with("Select") ? "selecties" : "statistieken");
          naam_ = vorm.Naam();
          titel_ = vorm.Titel();
          hoofd.gesprek.ToonModaal(vorm);
          EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, 7);
          EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, 4);
        },
        "+ " + Kop() + "\n" + Regels(verslag) + "- " +
            std::string(Kop().substr(0, Kop().find(' '))) + "\n",
        plek);
    EXPECT_EQ(Kop(), naam_ + " \"" + titel_ + "\"");
  }
  // Name and title of the dialog, as a transcript has them.
  [[nodiscard]] virtual std::string Kop() const = 0;
  [[nodiscard]] std::string Lijst() const { return LeesBytes(bestand_); }
  // From the next session on.
  void ZetScheider(char scheider) { scheider_ = scheider; }
  // The next file can't be made.
  void Versper() const { std::filesystem::create_directories(bestand_); }
  // What the user hears then.
  [[nodiscard]] std::string NietOpen() const {
    return "! stop \"Kan tijdelijk bestand " + bestand_.string() + " niet openen\"\n";
  }

 private:
  std::filesystem::path bestand_;
  char scheider_ = '-';
  std::string naam_;
  std::string titel_;
};

}  // namespace lb77
