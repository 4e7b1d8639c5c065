#include "qt/Element.h"

#include <QSizePolicy>

#include "forms/Bijschrift.h"
#include "forms/Weergave.h"
#include "qt/Beeldelement.h"
#include "qt/Keuzeelementen.h"
#include "qt/Toonelementen.h"
#include "qt/Veldelementen.h"
#include "qt/Vertaling.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

void Behoud(QWidget& widget) {
  QSizePolicy beleid = widget.sizePolicy();
  beleid.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(beleid);
}

void ZetVlaggen(QWidget& widget, const Bediening& bediening) {
  if (widget.isHidden() == bediening.Zichtbaar()) widget.setVisible(bediening.Zichtbaar());
  if (widget.isEnabledTo(widget.parentWidget()) != bediening.Ingeschakeld()) {
    widget.setEnabled(bediening.Ingeschakeld());
  }
}

// Empty for a control without words, whose name is that of the code.
std::string Woorden(const Bediening& bediening) {
  const std::string naam = bediening.Leesnaam();
  if (naam != bediening.Naam()) return naam;
  const std::string prompt = bediening.Prompt();
  const std::string gezien = ZonderSneltoets(prompt.empty() ? bediening.Bijschrift() : prompt);
  return Trim(gezien) == naam ? naam : std::string();
}

// A name stands in the place of what a label shows, so a value is part of its name.
std::string Gehoord(const Bediening& bediening) {
  if (bediening.KanFocus()) return bediening.Leesnaam();
  const std::string woorden = Woorden(bediening);
  if (bediening.Soort() == BedieningSoort::Tekstpagina) {
    return woorden.empty() ? "Bladzijde" : woorden;
  }
  if (bediening.Soort() != BedieningSoort::Teller) return woorden;
  return std::string(Trim(woorden + " " + bediening.Waarde()));
}

}  // namespace

void Element::ZetWidget(QWidget& widget) {
  widget_ = &widget;
  widget.setObjectName(NaarQt(bediening_.Naam()));
  Behoud(widget);
}

QLabel& Element::MaakPrompt(QWidget& ouder) {
  prompt_ = new QLabel(&ouder);
  prompt_->setTextFormat(Qt::PlainText);
  prompt_->setBuddy(widget_);
  Behoud(*prompt_);
  Bijwerken();
  return *prompt_;
}

void Element::Bijwerken() {
  ZetVlaggen(*widget_, bediening_);
  const QString leesnaam = NaarQt(Gehoord(bediening_));
  if (widget_->accessibleName() != leesnaam) widget_->setAccessibleName(leesnaam);
  if (prompt_) {
    ZetVlaggen(*prompt_, bediening_);
    const QString tekst = NaarQt(bediening_.Prompt());
    if (prompt_->text() != tekst) prompt_->setText(tekst);
  }
  Toon();
}

std::unique_ptr<Element> MaakElement(Bediening& bediening, Bezorger& bezorger, QWidget& ouder) {
  switch (bediening.Soort()) {
    case BedieningSoort::Tekstvak:
    case BedieningSoort::Padvak:
      return MaakRegelElement(static_cast<Invoerveld&>(bediening), bezorger, ouder);
    case BedieningSoort::Tekstblok:
      return MaakBlokElement(static_cast<Invoerveld&>(bediening), bezorger, ouder);
    case BedieningSoort::Label:
      return MaakLabelElement(bediening, bezorger, ouder);
    case BedieningSoort::Wissellabel:
      return MaakWisselElement(static_cast<Wissellabel&>(bediening), ouder);
    case BedieningSoort::Knop:
      return MaakKnopElement(bediening, bezorger, ouder);
    case BedieningSoort::Optie:
    case BedieningSoort::Vinkje:
      return MaakSchakelElement(static_cast<Schakelaar&>(bediening), bezorger, ouder);
    case BedieningSoort::Keuzevak:
      return MaakKeuzevakElement(static_cast<Lijst&>(bediening), bezorger, ouder);
    case BedieningSoort::Keuzelijst:
      return MaakKeuzelijstElement(static_cast<Lijst&>(bediening), bezorger, ouder);
    case BedieningSoort::Beeldvlak:
      return MaakBeeldElement(static_cast<Beeldvlak&>(bediening), bezorger, ouder);
    case BedieningSoort::Tekstpagina:
      return MaakPaginaElement(static_cast<Tekstpagina&>(bediening), ouder);
    case BedieningSoort::Teller:
      return MaakTellerElement(static_cast<Teller&>(bediening), ouder);
    case BedieningSoort::MenuKeuze:
    case BedieningSoort::Statusbalk:
      return nullptr;
  }
  return nullptr;
}

}  // namespace lb77
