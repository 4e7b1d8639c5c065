// Draws a descendant chart without a form.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "descendants/GenRij.h"
#include "descendants/GenSchSchrijver.h"
#include "descendants/GenToets.h"
#include "output/TekstSchrijver.h"

namespace lb77 {

// Every descendant is followed, and names are told in full, unless a test chooses otherwise.
class GenSchToets : public GenToets {
 protected:
  GenSchToets() {
    opties_.GenVoorNamen = GenVoornaamWijze::Volledig;
    opties_.GenPosVNamen = 8;
    opties_.GenPosANamen = 6;
    set_.schrijfwijze.DatumScheider = '-';
  }

  // The table and the positions.
  void Plaats(std::int16_t stamouder) {
    EXPECT_NE(Bouw(stamouder), Einde::Leesfout);
    EXPECT_EQ(PlaatsGen(rijen_, tabel_, opties_.GenCentreren, verloop_), Einde::Klaar);
  }
  Uitslag Schrijf() {
    TekstSchrijver uit;
    EXPECT_TRUE(uit.Open(set_.map / "uit.txt"));
    const Gegevens bronnen{set_.Persoon,   set_.Relatie, set_.Plaats,
                           set_.Opmerking, set_.volgers, set_.schrijfwijze};
    const Uitslag uitslag = SchrijfGenSchema(tabel_, rijen_, opties_, bronnen, uit, verloop_);
    EXPECT_TRUE(uit.Sluit());
    uit_ = LeesBytes(set_.map / "uit.txt");
    return uitslag;
  }
  // The whole chart, as it stands in its file.
  const std::string& Teken(std::int16_t stamouder) {
    Plaats(stamouder);
    EXPECT_EQ(Schrijf(), Einde::Klaar);
    return uit_;
  }
  // The lines of the drawing in text, with plain line ends.
  std::string Tekening(std::int16_t stamouder) {
    std::string tekst = Teken(stamouder);
    std::erase(tekst, '\r');
    if (tekst.ends_with("\n\n")) tekst.pop_back();
    return tekst;
  }

  // Everybody is a man with a first name alone.
  std::int16_t Kind(std::string_view naam) { return bouw_.Man(naam, ""); }
  void Gezin(std::int16_t ouder, const std::vector<std::int16_t>& kinderen) {
    bouw_.Relatie(ouder, 0, kinderen);
  }

  GenRij rijen_;
  std::string uit_;
};

}  // namespace lb77
