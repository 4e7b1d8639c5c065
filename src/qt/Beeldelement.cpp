#include "qt/Beeldelement.h"

#include "qt/Tekenvlak.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

class BeeldElement final : public Element {
 public:
  BeeldElement(Beeldvlak& beeld, Bezorger& bezorger, QWidget& ouder)
      : Element(beeld), beeld_(beeld), vlak_(*new Tekenvlak(&ouder)) {
    ZetWidget(vlak_);
    vlak_.bijKies = [&beeld, &bezorger](int index) { bezorger.Kies(beeld, index); };
    vlak_.bijOpen = [&beeld, &bezorger] { bezorger.Dubbelklik(beeld); };
  }
  bool NeemToets(const QKeyEvent& toets) override { return vlak_.NeemToets(toets); }

 private:
  void Toon() override {
    if (versie_ != beeld_.Versie()) {
      versie_ = beeld_.Versie();
      vlak_.ZetBeeld(beeld_.Beeld());
    }
    vlak_.ZetGekozen(beeld_.Index());
    const QString wie = NaarQt(beeld_.Tekst());
    if (vlak_.accessibleDescription() != wie) vlak_.setAccessibleDescription(wie);
  }

  Beeldvlak& beeld_;
  Tekenvlak& vlak_;
  int versie_ = 0;
};

}  // namespace

std::unique_ptr<Element> MaakBeeldElement(Beeldvlak& beeld, Bezorger& bezorger, QWidget& ouder) {
  return std::make_unique<BeeldElement>(beeld, bezorger, ouder);
}

}  // namespace lb77
