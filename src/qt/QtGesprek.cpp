#include "qt/QtGesprek.h"

#include <QDesktopServices>
#include <QUrl>
#include <algorithm>
#include <system_error>

#include "qt/Berichtvenster.h"
#include "qt/Bestandsvenster.h"
#include "qt/Drukker.h"
#include "qt/Tekenaar.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

// A browser tells a page by its name: what is called otherwise gets a copy beside it, where its links
// still lead to its other pages. A manual that was not made into a page is for a reader of text.
std::filesystem::path VoorBrowser(const std::filesystem::path& pad) {
  const QString uitgang = PadNaarQt(pad.extension()).toLower();
  for (const char* eigen : {".htm", ".html", ".md"}) {
    if (uitgang == QLatin1String(eigen)) return pad;
  }
  std::filesystem::path pagina = pad;
  pagina.replace_extension(".htm");
  std::error_code code;
  std::filesystem::copy_file(pad, pagina, std::filesystem::copy_options::overwrite_existing, code);
  return code ? pad : pagina;
}

}  // namespace

QtGesprek::QtGesprek(const std::filesystem::path& map) : instellingen_(map) {}

Binder* QtGesprek::BinderVan(const Formulier& formulier) const {
  for (const auto& binder : stapel_) {
    if (&binder->Vorm() == &formulier) return binder.get();
  }
  return nullptr;
}

QWidget* QtGesprek::Bovenste() const {
  const auto boven = std::find_if(stapel_.rbegin(), stapel_.rend(),
                                  [](const auto& binder) { return binder->Venster().isVisible(); });
  return boven == stapel_.rend() ? nullptr : &(*boven)->Venster();
}

// The forms below were brought up to date when the next one opened over them.
void QtGesprek::WerkBovensteBij() {
  if (!stapel_.empty()) stapel_.back()->Bijwerken();
}

template <class Doe>
auto QtGesprek::Daarover(Doe doe) {
  WerkBovensteBij();
  QWidget* const ouder = Bovenste();
  auto uit = doe(ouder);
  if (ouder) ouder->activateWindow();
  return uit;
}

Antwoord QtGesprek::Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) {
  return Daarover([&](QWidget* ouder) { return ToonBericht(ouder, soort, knoppen, tekst); });
}

bool QtGesprek::BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) {
  return Daarover([&](QWidget* ouder) { return ToonBerichtMetVinkje(ouder, tekst, vinkje); });
}

std::optional<std::filesystem::path> QtGesprek::VraagBestand(const BestandsVraag& vraag) {
  return Daarover([&](QWidget* ouder) { return KiesBestand(ouder, vraag, instellingen_); });
}

bool QtGesprek::DrukAf(const Afdruk& afdruk) {
  return Daarover([&](QWidget* ouder) { return VraagEnDrukAf(ouder, afdruk, instellingen_); });
}

bool QtGesprek::OpenInBrowser(const std::filesystem::path& pad) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(PadNaarQt(VoorBrowser(pad))));
}

std::optional<std::filesystem::path> QtGesprek::VraagOpslag(const BestandsVraag& vraag,
                                                            const std::filesystem::path& naam) {
  return Daarover([&](QWidget* ouder) { return KiesOpslag(ouder, vraag, naam, instellingen_); });
}

std::optional<std::string> QtGesprek::MaakPdf(const std::filesystem::path& pad,
                                              const Tekening& tekening, const Vellen& vellen) {
  return SchrijfPdf(pad, tekening, vellen);
}

void QtGesprek::Ververs(Formulier& formulier) {
  if (sindsVerversing_.isValid() && sindsVerversing_.elapsed() < verversingstijd_) return;
  if (Binder* binder = BinderVan(formulier)) binder->Ververs();
  sindsVerversing_.start();
}

bool QtGesprek::StopGevraagd(Formulier& formulier) {
  Ververs(formulier);
  return formulier.StopVerzocht();
}

void QtGesprek::Open(Formulier& formulier) {
  WerkBovensteBij();
  stapel_.push_back(std::make_unique<Binder>(formulier, *this, instellingen_, Bovenste()));
  stapel_.back()->Toon();
  sindsVerversing_.invalidate();  // work that begins now shows itself at once
}

void QtGesprek::Voer(Formulier& formulier) {
  if (Binder* binder = BinderVan(formulier)) binder->Voer();
}

void QtGesprek::Dicht(Formulier& formulier) {
  if (Binder* binder = BinderVan(formulier)) binder->Verdwijn();
  if (QWidget* venster = Bovenste()) venster->activateWindow();
}

void QtGesprek::Vergeet(Formulier& formulier) {
  std::erase_if(stapel_, [&](const auto& binder) { return &binder->Vorm() == &formulier; });
}

}  // namespace lb77
