#include "app/OverLB77Form.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

class OverLB77 : public SessieToets {};

TEST_F(OverLB77, DeVersieStaatInHetVenster) {
  Verwacht(R"(toon
              druk OKButton)",
           Toont<OverLB77Form>(),
           R"(+ OverLB77Form "Over LB77 voor Windows"
              : OverLB77Form "Over LB77 voor Windows"
              = Programma "LB77 voor Windows"
              = Versie "Versie )" LB77_VERSIE R"("
              = OKButton "&OK"
              * OKButton
              - OverLB77Form)");
}

TEST_F(OverLB77, EscapeEnHetKaderSluitenHet) {
  Verwacht("toets Escape", Toont<OverLB77Form>(),
           R"(+ OverLB77Form "Over LB77 voor Windows"
              - OverLB77Form)");
  Verwacht("sluit", Toont<OverLB77Form>(),
           R"(+ OverLB77Form "Over LB77 voor Windows"
              - OverLB77Form)");
}

}  // namespace
}  // namespace lb77
