#include "entry/DatumVak.h"
#include "entry/VakToets.h"

namespace lb77 {
namespace {

class DatumVakToets : public VakToets {
 protected:
  void Speelt(std::string_view draaiboek, std::string_view verslag, std::string_view begin = "",
              const Plek& plek = Plek::current()) {
    SpeeltOp(
        draaiboek,
        [&](Hoofdmodule& hoofd) {
          hoofd.schrijfwijze.DatumScheider = '-';
          Vakscherm<DatumVak> scherm(hoofd, "Datum", "Geboren:");
          scherm.Vak.Toon(begin);
          hoofd.gesprek.ToonModaal(scherm);
        },
        verslag, plek);
  }
};

TEST_F(DatumVakToets, HetVerlatenZetDeDatumInDeInvoervorm) {
  Speelt("vul Datum 3-5-1850\ntoon Datum", R"(= Datum "03-05-1850")");
  Speelt("vul Datum 12031850\ntoon Datum", R"(= Datum "12-03-1850")");
}

TEST_F(DatumVakToets, EenOnmogelijkeDatumHoudtDeFocusEnStaatErToch) {
  Speelt("vul Datum 15-13-1850\ntoon Datum", R"(
    ! uitroep "Maand bestaat niet"
    = Datum "15-13-1850"
  )");
  Speelt("vul Datum 31-2-2200", R"(
    ! uitroep "Alleen Jaartallen tussen 0 en 2100 toegestaan"
    ! uitroep "Dag bestaat niet"
  )");
  Speelt("vul Datum 29-02-1900", R"(! uitroep "Het jaar is geen schrikkeljaar")");
}

TEST_F(DatumVakToets, HetLegeMaskerVerdwijntMetDeFocusEnKomtTerug) {
  Speelt("toon Datum\ntyp Datum 0\ntoon Datum\ntoets Tab\ntoon Datum",
         R"(
    = Datum "  -  -    "
    = Datum "0"
    = Datum "  -  -    "
  )",
         "  -  -    ");
}

TEST_F(DatumVakToets, EenDatumDieNiemandVerandertBlijftZoalsHijIs) {
  // Cut to its last digits it would be the 27th of January.
  Speelt("toets Datum End\ntyp Volgend x\ntoon Datum", R"(= Datum "327-01-1850")", "327-01-1850");
}

TEST_F(DatumVakToets, F9LaatHetMaskerAchter) {
  Speelt("toets Datum F9\ntoon Datum", R"(= Datum "  -  -    ")", "01-02-1850");
}

TEST_F(DatumVakToets, DeControleVanHetSchermKomtAchterDieVanHetVeld) {
  SpeeltOp(
      "vul Datum 1-2-1850\nvul Datum 1-22-1850",
      [](Hoofdmodule& hoofd) {
        hoofd.schrijfwijze.DatumScheider = '-';
        Vakscherm<DatumVak> scherm(hoofd, "Datum");
        scherm.Vak.BijVerlaten([&] {
          hoofd.gesprek.Informeer(scherm.Vak.Tekst());
          return true;
        });
        hoofd.gesprek.ToonModaal(scherm);
      },
      R"(
    ! info "01-02-1850"
    ! uitroep "Maand bestaat niet"
  )");
}

}  // namespace
}  // namespace lb77
