// What an export shows while it works, and where its file question begins.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "exchange/ExpDump.h"
#include "exchange/ExpGedcom.h"
#include "exchange/ExportToets.h"

namespace lb77 {
namespace {

// Presses buttons of the first form that is shown, takes the forms behind it as they are, and asks to
// stop at each repaint.
class VerloopKijker final : public Gesprek {
 public:
  VerloopKijker(std::vector<std::string> knoppen, std::vector<std::string> tellers)
      : knoppen_(std::move(knoppen)), tellers_(std::move(tellers)) {}

  // The counts at each repaint, "2/0 ", with a "!" when the form does not show that it works.
  [[nodiscard]] const std::string& Verloop() const { return verloop_; }
  // The forms that lay on it: "ToonTekst ", or "ToonTekst(stop) " when its stop request stands.
  [[nodiscard]] const std::string& Gezien() const { return gezien_; }
  [[nodiscard]] const std::filesystem::path& Beginmap() const { return beginmap_; }

  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view) override { return Antwoord::OK; }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) override {
    beginmap_ = vraag.beginmap;
    return {};
  }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier& formulier) override {
    std::string stand;
    for (const std::string& teller : tellers_) {
      stand += (stand.empty() ? "" : "/") + formulier.Zoek(teller)->Waarde();
    }
    verloop_ += stand + (formulier.Bezig() ? " " : "! ");
    formulier.VraagStop();
  }
  [[nodiscard]] bool StopGevraagd(Formulier& formulier) override {
    return formulier.StopVerzocht();
  }

 protected:
  void Open(Formulier& formulier) override {
    if (onderste_ == nullptr) {
      onderste_ = &formulier;
    } else {
      gezien_ += formulier.Naam() + (onderste_->StopVerzocht() ? "(stop) " : " ");
    }
  }
  void Voer(Formulier& formulier) override {
    if (&formulier == onderste_) {
      for (const std::string& knop : knoppen_) formulier.Klik(*formulier.Zoek(knop));
    } else if (Bediening* knop = formulier.Zoek("OKButton")) {
      formulier.Klik(*knop);
    }
    if (!formulier.Gesloten()) formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override {}

 private:
  std::vector<std::string> knoppen_;
  std::vector<std::string> tellers_;
  std::filesystem::path beginmap_;
  Formulier* onderste_ = nullptr;
  std::string verloop_;
  std::string gezien_;
};

class UitvoerVerloop : public ExportToets {
 protected:
  UitvoerVerloop() {
    Reeks(3);
    for (int i = 0; i < 2; ++i) static_cast<void>(Bouw().Relatie(2, 0));
  }
  // Shows a form of kind F, made with the session behind `args`.
  template <class F, class... Args>
  void Toon(VerloopKijker& kijker, const Args&... args) {
    const VasteKlok klok({2026, 11, 2, 9, 5, 7});
    Hoofdmodule hoofd(kijker, klok, Map());
    ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
    ASSERT_TRUE(Start(hoofd));
    hoofd.ActieveSetNaam = "PROEF";
    kijker.Toon<F>(args..., hoofd);
  }
};

TEST_F(UitvoerVerloop, EenExportTeltElkRecordEnIsMeteenBezig) {
  VerloopKijker kijker({"KiesAllesButton", "OKButton"},
                       {"PersonenGedaan", "RelatiesGedaan", "BronnenGedaan"});
  Toon<ExpGedcom>(kijker);
  EXPECT_EQ(kijker.Verloop(), "1/0/0 2/0/0 3/0/0 3/1/0 3/2/0 ");
  // Who wanted to stop it has no stop waiting behind it.
  EXPECT_EQ(kijker.Gezien(), "ExpSelPers ExpSelRel ToonTekst ");
}

TEST_F(UitvoerVerloop, EenUitdraaiTeltElkRecordOok) {
  VerloopKijker personen({"OKButton"}, {"PersonenGedaan"});
  Toon<ExpDump>(personen, kExpDumpPers);
  EXPECT_EQ(personen.Verloop(), "1 2 3 ");
  EXPECT_EQ(personen.Gezien(), "ToonTekst ");
  VerloopKijker relaties({"OKButton"}, {"RelatiesGedaan"});
  Toon<ExpDump>(relaties, kExpDumpRel);
  EXPECT_EQ(relaties.Verloop(), "1 2 ");
}

TEST_F(UitvoerVerloop, BladerenBegintBijDeTeksten) {
  VerloopKijker kijker({"BrowseButton"}, {});
  Toon<ExpGedcom>(kijker);
  EXPECT_EQ(kijker.Beginmap(), TekstMap());
}

}  // namespace
}  // namespace lb77
