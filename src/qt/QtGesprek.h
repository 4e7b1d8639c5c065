// The conversation with the user in windows.
#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <filesystem>
#include <memory>
#include <vector>

#include "forms/Bureaublad.h"
#include "forms/Gesprek.h"
#include "forms/Hulpgever.h"
#include "qt/Binder.h"
#include "qt/VensterInstellingen.h"

namespace lb77 {

// Shows forms, boxes and questions with the toolkit. Forms lie in a stack; only the top one is
// reached by the user. An application object must exist.
class QtGesprek final : public Gesprek, public Bureaublad, public Hulpgever {
 public:
  // `map` is the program's directory, where window sizes are kept; empty keeps none.
  explicit QtGesprek(const std::filesystem::path& map = {});

  // The least time between two repaints of a form that works, in milliseconds.
  void ZetVerversingstijd(qint64 tijd) { verversingstijd_ = tijd; }

  Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) override;
  bool BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) override;
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) override;
  bool DrukAf(const Afdruk& afdruk) override;
  [[nodiscard]] bool OpenInBrowser(const std::filesystem::path& pad) override;
  [[nodiscard]] std::optional<std::string> MaakPdf(const std::filesystem::path& pad,
                                                   const Tekening& tekening,
                                                   const Vellen& vellen) override;
  [[nodiscard]] std::optional<std::filesystem::path> VraagOpslag(
      const BestandsVraag& vraag, const std::filesystem::path& naam) override;
  void Ververs(Formulier& formulier) override;
  [[nodiscard]] bool StopGevraagd(Formulier& formulier) override;

 protected:
  void Open(Formulier& formulier) override;
  void Voer(Formulier& formulier) override;
  void Dicht(Formulier& formulier) override;
  void Vergeet(Formulier& formulier) override;

 private:
  [[nodiscard]] Binder* BinderVan(const Formulier& formulier) const;
  // The topmost window that is in view, null when there is none.
  [[nodiscard]] QWidget* Bovenste() const;
  void WerkBovensteBij();
  // Brings the form on top up to date, and asks a question over the topmost window.
  template <class Doe>
  auto Daarover(Doe doe);

  VensterInstellingen instellingen_;
  std::vector<std::unique_ptr<Binder>> stapel_;
  QElapsedTimer sindsVerversing_;
  qint64 verversingstijd_ = 40;  // 25 times a second
};

}  // namespace lb77
