// Exports to the contact service by script, with reference tables of the test.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contact/GciOpties.h"
#include "forms/Formulier.h"
#include "forms/Gesprek.h"
#include "steun/FamilieToets.h"

namespace lb77 {

// A dBase file as the service makes it: a header of that length, and records of that width. `aantal`
// is what the header says when it is not what there is.
[[nodiscard]] std::string Dbf(std::size_t kop, std::size_t breedte,
                              const std::vector<std::string>& rijen, std::int64_t aantal = -1);

// Rows of the tables, as code page 437 has them.
[[nodiscard]] std::string PlaatsRij(std::string_view naam, std::string_view prov,
                                    std::string_view land);
[[nodiscard]] std::string CodeRij(std::string_view code, std::string_view naam);

// A user who answers No, or OK where there is no No, and leaves every form as it is.
class NeeGesprek : public Gesprek {
 public:
  Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) override;
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  bool StopGevraagd(Formulier&) override { return false; }
  // How many boxes there were.
  [[nodiscard]] int Getoond() const { return getoond_; }

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier& formulier) override { formulier.VraagSluiten(); }
  void Dicht(Formulier&) override {}

 private:
  int getoond_ = 0;
};

// Takes the dialog for each place, and sees whether the form below waits meanwhile.
class Corrector final : public NeeGesprek {
 public:
  Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) override {
    if (knoppen == Knoppen::JaNeeAnnuleren) return Antwoord::Ja;
    return NeeGesprek::Bericht(soort, knoppen, tekst);
  }
  void Ververs(Formulier& formulier) override {
    werk_ = &formulier;
    bezig_ += formulier.Bezig() ? "" : "Ververst zonder werk. ";
  }
  [[nodiscard]] const std::string& Bezig() const { return bezig_; }

 protected:
  void Voer(Formulier& formulier) override {
    bezig_ += formulier.Naam() + (werk_->Bezig() ? " bezig. " : " wacht. ");
    NeeGesprek::Voer(formulier);
  }

 private:
  const Formulier* werk_ = nullptr;
  std::string bezig_;
};

class ContactToets : public FamilieToets {
 protected:
  ContactToets();

  // The tables; the provinces and countries have a few rows.
  void MaakTabellen(const std::vector<std::string>& plaatsen);
  void SchrijfIni(std::string_view meer = "");
  // Runs the export from its second form on. The lines stand between its opening and its closing.
  void Exporteer(std::string_view draaiboek, std::string_view verslag,
                 const Plek& plek = Plek::current());
  // An export that asks nothing and succeeds, up to its log in the viewer.
  void Lukt(const Plek& plek = Plek::current());

  // A session with that user, on the files as they lie there.
  void MetGesprek(Gesprek& gesprek, const Taak& taak);

  [[nodiscard]] std::filesystem::path Gci() const { return Map() / "gci"; }
  [[nodiscard]] std::filesystem::path TekstMap() const { return Map() / "PROEF" / "TEKST"; }
  [[nodiscard]] std::string Inz() const { return LeesBytes(TekstMap() / "CONTACT.INZ"); }
  [[nodiscard]] std::string Fam() const { return LeesBytes(TekstMap() / "CONTACT.FAM"); }
  [[nodiscard]] std::string Log() const { return LeesBytes(TekstMap() / "GCI.LOG"); }
  // The log without the lines that are the same in all, with plain line ends.
  [[nodiscard]] std::string LogRegels() const;
  // The series of the file: name, place, province, country and years, parted by single blanks.
  [[nodiscard]] std::string Reeksen() const;
  // Is there any output, whole or half?
  [[nodiscard]] bool HeeftUitvoer() const;

  GciOpties opties_;
};

}  // namespace lb77
