#include "qt/Hoofdvenster.h"

#include <QGuiApplication>
#include <QList>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QShortcutEvent>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <filesystem>
#include <string_view>

#include "forms/Bestandsontvanger.h"
#include "forms/Redengever.h"
#include "qt/Indelingskeuze.h"
#include "qt/Menutoetsen.h"
#include "qt/Vertaling.h"
#include "qt/Voorblad.h"

namespace lb77 {

namespace {

constexpr QSize kBeginmaat{900, 560};
constexpr int kLeestijd = 5000;  // milliseconds

std::vector<MenuKeuze*> Keuzes(const Formulier& formulier) {
  std::vector<MenuKeuze*> uit;
  for (Bediening* bediening : formulier.Bedieningen()) {
    if (bediening->Soort() == BedieningSoort::MenuKeuze) {
      uit.push_back(static_cast<MenuKeuze*>(bediening));
    }
  }
  return uit;
}

const Statusbalk* ZoekStatus(const Formulier& formulier) {
  for (const Bediening* bediening : formulier.Bedieningen()) {
    if (bediening->Soort() == BedieningSoort::Statusbalk) {
      return static_cast<const Statusbalk*>(bediening);
    }
  }
  return nullptr;
}

constexpr QSize kKader{4, 40};  // what a frame takes beside the window, and a title above it

// The screen that a stored place lies on; null when it is no longer there.
const QScreen* SchermVan(QPoint plek) {
  for (const QScreen* scherm : QGuiApplication::screens()) {
    if (scherm->availableGeometry().contains(plek)) return scherm;
  }
  return nullptr;
}

// The one file that is dragged, when the form takes it; else empty.
std::filesystem::path Gesleept(const Formulier& formulier, const QMimeData& inhoud) {
  const auto* const ontvanger = dynamic_cast<const Bestandsontvanger*>(&formulier);
  const QList<QUrl> plekken = inhoud.urls();
  if (!ontvanger || plekken.size() != 1 || !plekken.front().isLocalFile()) return {};
  std::filesystem::path pad = PadVanQt(plekken.front().toLocalFile());
  return ontvanger->Neemt(pad) ? pad : std::filesystem::path();
}

// Why what is dragged cannot be let go here; empty when it can, or when the form takes no files at all.
QString WaaromNiet(const Formulier& formulier, const QMimeData& inhoud) {
  const QList<QUrl> plekken = inhoud.urls();
  if (!dynamic_cast<const Bestandsontvanger*>(&formulier) || plekken.isEmpty()) return {};
  if (plekken.size() > 1) return QStringLiteral("Sleep een GEDCOM-bestand tegelijk hierheen");
  if (!plekken.front().isLocalFile()) {
    return QStringLiteral("Dit bestand staat niet op deze computer; bewaar het eerst hier");
  }
  if (!Gesleept(formulier, inhoud).empty()) return {};
  return QStringLiteral("Alleen een GEDCOM-bestand (.ged) kan hierheen worden gesleept");
}

constexpr int kMeldTijd = 8000;  // ms

}  // namespace

bool HeeftMenu(const Formulier& formulier) {
  return !Keuzes(formulier).empty();
}

Hoofdvenster::Hoofdvenster(Formulier& formulier, Vensterhouder& houder, Bezorger& bezorger)
    : formulier_(formulier),
      houder_(houder),
      voorblad_(new Voorblad(this)),
      status_(new QLabel(this)) {
  MaakMenus(bezorger);
  setCentralWidget(voorblad_);
  const auto& alle = formulier.Bedieningen();
  voorblad_->ZetStil(
      std::any_of(alle.begin(), alle.end(), [](const Bediening* een) { return InIndeling(*een); }));
  status_->setTextFormat(Qt::PlainText);
  status_->setContentsMargins(8, 3, 8, 3);
  statusBar()->addWidget(status_, 1);
  if (const Statusbalk* balk = ZoekStatus(formulier)) status_->setObjectName(NaarQt(balk->Naam()));
  setAcceptDrops(true);
  menuBar()->installEventFilter(this);
  resize(kBeginmaat);
}

// On a screen that is no longer there the window system finds it a place.
void Hoofdvenster::ZetPlek() {
  const auto& plek = formulier_.Positie();
  const QScreen* const scherm = plek ? SchermVan({plek->x, plek->y}) : nullptr;
  if (!scherm) return;
  const QRect ruimte = scherm->availableGeometry();
  const QPoint uiterste =
      ruimte.topLeft() + QPoint(std::max(0, ruimte.width() - width() - kKader.width()),
                                std::max(0, ruimte.height() - height() - kKader.height()));
  move(std::min(plek->x, uiterste.x()), std::min(plek->y, uiterste.y()));
}

bool Hoofdvenster::IsMenu(const MenuKeuze& keuze) const {
  if (keuze.Menu().empty()) return true;
  const std::vector<MenuKeuze*> alle = Keuzes(formulier_);
  return std::any_of(alle.begin(), alle.end(),
                     [&](const MenuKeuze* een) { return een->Menu() == keuze.Naam(); });
}

void Hoofdvenster::MaakMenus(Bezorger& bezorger) {
  for (MenuKeuze* keuze : Keuzes(formulier_)) MaakKeuze(*keuze, bezorger);
}

void Hoofdvenster::MaakKeuze(MenuKeuze& keuze, Bezorger& bezorger) {
  const auto boven = menus_.find(keuze.Menu());
  QMenu* const ouder = boven == menus_.end() ? nullptr : boven->second;
  QAction* actie = nullptr;
  if (IsMenu(keuze)) {
    QMenu* menu = ouder ? ouder->addMenu(QString()) : menuBar()->addMenu(QString());
    menus_[keuze.Naam()] = menu;
    actie = menu->menuAction();
  } else {
    actie = ouder ? ouder->addAction(QString()) : menuBar()->addAction(QString());
    connect(actie, &QAction::triggered, this, [&keuze, &bezorger] { bezorger.Klik(keuze); });
  }
  actie->setObjectName(NaarQt(keuze.Naam()));
  actie->setShortcut(SneltoetsVan(keuze.Naam()));
  if (ouder && BegintGroep(keuze.Naam())) ouder->insertSeparator(actie);
  actie->setMenuRole(QAction::NoRole);
  keuzes_.push_back({&keuze, actie});
}

QWidget& Hoofdvenster::Inhoud() const {
  return voorblad_->Inhoud();
}

void Hoofdvenster::Bijwerken() {
  for (const Keuze& keuze : keuzes_) {
    keuze.actie->setText(NaarQt(keuze.bron->Bijschrift()));
    keuze.actie->setEnabled(keuze.bron->Ingeschakeld());
    keuze.actie->setVisible(keuze.bron->Zichtbaar());
    keuze.actie->setStatusTip(Statustekst(*keuze.bron));
  }
  const Statusbalk* balk = ZoekStatus(formulier_);
  const QString tekst = balk ? NaarQt(balk->Tekst()) : QString();
  if (status_->text() != tekst) status_->setText(tekst);
  voorblad_->ZetTekst(NaarQt(formulier_.Titel()), tekst);
}

QString Hoofdvenster::Statustekst(const MenuKeuze& keuze) const {
  const auto* const redengever = dynamic_cast<const Redengever*>(&formulier_);
  if (keuze.Ingeschakeld() || !redengever) return NaarQt(keuze.Toelichting());
  return NaarQt(redengever->WaaromGrijs(keuze));
}

bool Hoofdvenster::eventFilter(QObject* waar, QEvent* wat) {
  const QEvent::Type soort = wat->type();
  if (waar == menuBar() && (soort == QEvent::MouseMove || soort == QEvent::Leave)) {
    // Behind the event the bar knows which of its menus is pointed at.
    QTimer::singleShot(0, this, [this] { ZegWaaromGrijs(); });
  } else if (waar == menuBar() && soort == QEvent::Shortcut) {
    ZegWaaromGrijs(static_cast<QShortcutEvent*>(wat)->key());
  }
  return QMainWindow::eventFilter(waar, wat);
}

// The toolkit tells of a greyed entry, but not of a whole menu that is greyed.
void Hoofdvenster::ZegWaaromGrijs() {
  const QAction* const menu = menuBar()->activeAction();
  const QString reden = menu && !menu->isEnabled() ? menu->statusTip() : QString();
  if (reden == gezegd_) return;
  gezegd_ = reden;
  if (reden.isEmpty()) {
    statusBar()->clearMessage();
  } else {
    statusBar()->showMessage(reden);
  }
}

void Hoofdvenster::ZegWaaromGrijs(const QKeySequence& sneltoets) {
  for (const QAction* menu : menuBar()->actions()) {
    if (menu->isEnabled() || QKeySequence::mnemonic(menu->text()) != sneltoets) continue;
    statusBar()->showMessage(menu->statusTip(), kLeestijd);
  }
}

QAction* Hoofdvenster::Actie(std::string_view naam) const {
  for (const Keuze& keuze : keuzes_) {
    if (keuze.bron->Naam() == naam) return keuze.actie;
  }
  return nullptr;
}

void Hoofdvenster::closeEvent(QCloseEvent* sluiten) {
  sluiten->ignore();
  houder_.SluitVenster();
}

void Hoofdvenster::keyPressEvent(QKeyEvent* toets) {
  houder_.ToetsInVenster(*toets);
}

void Hoofdvenster::moveEvent(QMoveEvent* plek) {
  QMainWindow::moveEvent(plek);
  // Full size and minimised are no places to come back to.
  const bool gewoon = !isMaximized() && !isMinimized() && !isFullScreen();
  if (isVisible() && gewoon) houder_.Verplaatst(pos());
}

void Hoofdvenster::dragEnterEvent(QDragEnterEvent* sleep) {
  if (!Gesleept(formulier_, *sleep->mimeData()).empty()) sleep->acceptProposedAction();
  statusBar()->showMessage(WaaromNiet(formulier_, *sleep->mimeData()), kMeldTijd);
}

// Behind the event: who dragged it waits for its end, and dialogs follow.
void Hoofdvenster::dropEvent(QDropEvent* val) {
  const std::filesystem::path pad = Gesleept(formulier_, *val->mimeData());
  if (pad.empty()) return;
  val->acceptProposedAction();
  QTimer::singleShot(0, this, [this, pad] { houder_.BestandGebracht(pad); });
}

}  // namespace lb77
