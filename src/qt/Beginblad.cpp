#include "qt/Beginblad.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLayout>
#include <QSizePolicy>
#include <algorithm>
#include <vector>

#include "qt/Inpassen.h"
#include "qt/Stijl.h"

namespace lb77 {

namespace {

constexpr qreal kKopMaat = 1.6;  // times the letter of the rest
constexpr const char* kKoppen[] = {"WelkomKop", "StartKop"};
constexpr const char* kWegen[] = {"NieuweFamilie", "GedcomInlezen", "OudeBestanden",
                                  "Voorbeeldfamilie", "OpenButton"};

void MaakKop(QLabel& kop) {
  QFont letter = Vet(kop.font());
  letter.setPointSizeF(letter.pointSizeF() * kKopMaat);
  kop.setFont(letter);
}

void MaakGelijk(const std::vector<QWidget*>& knoppen) {
  int breedte = 0;
  for (const QWidget* knop : knoppen) breedte = std::max(breedte, knop->sizeHint().width());
  for (QWidget* knop : knoppen) knop->setMinimumWidth(breedte);
}

}  // namespace

void MaakBeginblad(QWidget& inhoud) {
  bool begin = false;
  for (const char* naam : kKoppen) {
    if (auto* kop = inhoud.findChild<QLabel*>(QLatin1String(naam))) {
      MaakKop(*kop);
      begin = true;
    }
  }
  if (!begin) return;
  std::vector<QWidget*> wegen;
  for (const char* naam : kWegen) {
    if (auto* knop = inhoud.findChild<QAbstractButton*>(QLatin1String(naam))) {
      wegen.push_back(knop);
    }
  }
  MaakGelijk(wegen);
  for (QWidget* deel : inhoud.findChildren<QWidget*>()) {
    QSizePolicy beleid = deel->sizePolicy();
    beleid.setRetainSizeWhenHidden(false);
    deel->setSizePolicy(beleid);
  }
  MeetOpnieuw(inhoud);
}

}  // namespace lb77
