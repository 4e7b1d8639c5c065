#include "qt/Binder.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "forms/Bestandsontvanger.h"
#include "qt/Beginblad.h"
#include "qt/Dialoog.h"
#include "qt/Hoofdvenster.h"
#include "qt/Indelingskeuze.h"
#include "qt/Inpassen.h"
#include "qt/Opmaker.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kRand = 16;  // pixels around the contents of a window
constexpr QSize kKleinsteScherm{1024, 768};
constexpr int kTitelknoppen = 120;  // pixels
constexpr int kNaastBlad = 48;      // pixels around the page of the main window
constexpr QSize kKader{16, 48};     // what a frame and a task bar take

// The viewers fill the screen.
bool HeeftBladzijde(const Formulier& formulier) {
  const auto& alle = formulier.Bedieningen();
  return std::any_of(alle.begin(), alle.end(), [](const Bediening* een) {
    return een->Soort() == BedieningSoort::Tekstpagina || een->Soort() == BedieningSoort::Beeldvlak;
  });
}

}  // namespace

Binder::Binder(Formulier& formulier, Gesprek& gesprek, VensterInstellingen& instellingen,
               QWidget* ouder)
    : formulier_(formulier), gesprek_(gesprek), instellingen_(instellingen) {
  MaakVenster(ouder);
  venster_->setObjectName(NaarQt(formulier.Naam()));
  Bijwerken();
}

Binder::~Binder() {
  ++diepte_;  // what the widgets still send while they go is dropped
  bronnen_.clear();
  venster_.reset();
}

void Binder::Verdwijn() {
  if (venster_->isVisible() && !venster_->isMaximized()) {
    instellingen_.BewaarMaat(formulier_.Naam(), venster_->size());
  }
  if (hoofd_ && venster_->isVisible()) {
    instellingen_.BewaarVol(formulier_.Naam(), venster_->isMaximized());
  }
  ++diepte_;
  venster_->hide();
  --diepte_;
}

void Binder::MaakVenster(QWidget* ouder) {
  Vensterhouder& houder = *this;
  Bezorger& bezorger = *this;
  if (HeeftMenu(formulier_)) {
    auto hoofd = std::make_unique<Hoofdvenster>(formulier_, houder, bezorger);
    hoofd_ = hoofd.get();
    venster_ = std::move(hoofd);
    MaakElementen(hoofd_->Inhoud());
  } else {
    venster_ = std::make_unique<Dialoog>(houder, ouder);
    auto* inhoud = new QWidget;
    auto* rand = new QVBoxLayout(venster_.get());
    rand->setContentsMargins(0, 0, 0, 0);
    rand->addWidget(inhoud);
    MaakElementen(*inhoud);
    PasIn();
  }
  // What it needs now may be more than what it was given before, with smaller letters.
  const QSize nodig = hoofd_ ? venster_->minimumSizeHint() : venster_->size();
  if (const auto maat = instellingen_.Maat(formulier_.Naam())) {
    venster_->resize(maat->expandedTo(nodig).boundedTo(Ruimte()));
  }
  if (hoofd_) hoofd_->ZetPlek();
  OnthoudVergroting();
}

void Binder::MaakElementen(QWidget& inhoud) {
  QWidget* vorige = nullptr;
  for (Bediening* bediening : formulier_.Bedieningen()) {
    std::unique_ptr<Element> element = MaakElement(*bediening, *this, inhoud);
    if (!element) continue;
    element->Bijwerken();
    if (vorige) QWidget::setTabOrder(vorige, &element->Widget());
    vorige = &element->Widget();
    elementen_[bediening] = std::move(element);
  }
  auto* kolom = new QVBoxLayout(&inhoud);
  kolom->setContentsMargins(kRand, kRand, kRand, kRand);
  Opmaker opmaker(formulier_, inhoud,
                  [this](const Bediening& een) -> Element& { return *elementen_.at(&een); });
  voet_ = opmaker.Maak(IndelingVoor(formulier_), *kolom);
  if (hoofd_) {
    kolom->addStretch(1);
    MaakSmaller(inhoud, Ruimte().width() - kNaastBlad);
  }
  MaakBeginblad(inhoud);
  for (auto& [bediening, element] : elementen_) Luister(*element);
}

void Binder::Luister(Element& element) {
  for (QObject* waar :
       {static_cast<QObject*>(&element.Widget()), static_cast<QObject*>(&element.Muisvlak()),
        static_cast<QObject*>(element.Prompt())}) {
    if (!waar || bronnen_.contains(waar)) continue;
    bronnen_[waar] = &element;
    waar->installEventFilter(this);
  }
}

// The room for a window on its screen.
QSize Binder::Ruimte() const {
  const QScreen* scherm = venster_->screen();
  return (scherm ? scherm->availableSize() : kKleinsteScherm) - kKader;
}

// The title can be read as well.
void Binder::PasIn() {
  const QSize ruimte = Ruimte();
  const int titel = TekenBreedte(*venster_, static_cast<int>(formulier_.Titel().size()));
  const QSize maat = lb77::PasIn(*venster_, voet_, ruimte, kRand);
  venster_->resize(maat.expandedTo({titel + kTitelknoppen, 0}).boundedTo(ruimte));
}

Element* Binder::ElementVan(const QObject* waar) const {
  const auto gevonden = bronnen_.find(waar);
  return gevonden == bronnen_.end() ? nullptr : gevonden->second;
}

void Binder::Toon() {
  ++diepte_;
  venster_->setFocus(Qt::OtherFocusReason);  // else the toolkit chooses a first field of its own
  if (HeeftBladzijde(formulier_) || (hoofd_ && instellingen_.IsVol(formulier_.Naam()))) {
    venster_->showMaximized();
  } else {
    venster_->show();
  }
  venster_->raise();
  venster_->activateWindow();
}

void Binder::Voer() {
  --diepte_;
  Bijwerken();
  if (!Afgelopen()) lus_.exec();
  if (fout_) std::rethrow_exception(std::exchange(fout_, nullptr));
}

// A form that is still hidden when its handler is done can be reached by nobody.
bool Binder::Afgelopen() const {
  return formulier_.Gesloten() || fout_ || (formulier_.Verborgen() && diepte_ == 0);
}

void Binder::Bijwerken() {
  if (Afgelopen()) {
    lus_.quit();
    return;
  }
  const QScopedValueRollback<bool> eigen(eigenFocus_, true);
  const QString titel = NaarQt(formulier_.Titel());
  if (venster_->windowTitle() != titel) venster_->setWindowTitle(titel);
  if (formulier_.Bezig()) {
    venster_->setCursor(Qt::BusyCursor);
  } else {
    venster_->unsetCursor();
  }
  if (formulier_.Verborgen() && venster_->isVisible()) venster_->hide();
  for (auto& [bediening, element] : elementen_) element->Bijwerken();
  if (hoofd_) hoofd_->Bijwerken();
  VolgFocus();
}

void Binder::Ververs() {
  Bijwerken();
  const QScopedValueRollback<bool> bezig(verversend_, true);
  formulier_.ZetVerversing(true);
  QCoreApplication::processEvents();
  formulier_.ZetVerversing(false);
}

void Binder::Verwerk(const std::function<void()>& doe) {
  ++diepte_;
  try {
    doe();
  } catch (...) {
    fout_ = std::current_exception();  // no exception may pass through the toolkit
  }
  --diepte_;
  Bijwerken();
}

bool Binder::Geblokkeerd() const {
  return formulier_.Gesloten() || fout_ || (diepte_ > 0 && !verversend_);
}

void Binder::Klik(Bediening& bediening) {
  if (!Geblokkeerd()) Verwerk([&] { formulier_.Klik(bediening); });
}

void Binder::Dubbelklik(Bediening& bediening) {
  if (!Geblokkeerd()) Verwerk([&] { formulier_.Dubbelklik(bediening); });
}

void Binder::Kies(Lijst& lijst, int index) {
  if (!Geblokkeerd()) Verwerk([&] { formulier_.Kies(lijst, index); });
}

void Binder::Bewerkt(Invoerveld& veld, const std::string& tekst, bool geweigerd) {
  if (Geblokkeerd()) return;
  Verwerk([&] {
    formulier_.Bewerkt(veld, tekst);
    if (geweigerd && !verversend_) gesprek_.Waarschuw("Dit teken kan niet worden opgeslagen");
  });
}

void Binder::SluitVenster() {
  if (!Geblokkeerd()) Verwerk([&] { formulier_.VraagSluiten(); });
}

void Binder::BestandGebracht(const std::filesystem::path& bestand) {
  auto* const ontvanger = dynamic_cast<Bestandsontvanger*>(&formulier_);
  if (ontvanger && !Geblokkeerd()) Verwerk([&] { ontvanger->Ontvang(bestand); });
}

void Binder::Verplaatst(QPoint plek) {
  formulier_.ZetPositie({plek.x(), plek.y()});
}

}  // namespace lb77
