// What the viewers of text share: the page, moving over the pages, searching, printing and saving.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Hoofdmodule.h"
#include "forms/Bladeraar.h"
#include "forms/Formulier.h"
#include "forms/Gesprek.h"
#include "forms/Leesformulier.h"
#include "forms/Rij.h"
#include "output/Tekstpaginas.h"

namespace lb77 {

// The filter of a file dialog for text files, with all files first.
inline constexpr std::string_view kTekstFilter =
    "Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt";

// Said of a text whose pages can't be read for the printer (stop symbol).
inline constexpr std::string_view kPrintFout = "Fout bij het printen van de tekst.";

// Shows one page of a file. MoveButton 1 to 4 and the arrow keys go left, right, up and down,
// PageUp, PageDown and the wheel up and down, Home and End to the first and the last row of pages;
// PrintButton 1 prints this page, 2 all pages. Enter in ZoekTekst and F3 go to the next place that
// holds its text, case and accents aside, and behind the last to the first.
class TekstVenster : public Formulier, public Bladeraar, public Leesformulier {
 public:
  Tekstvak ZoekTekst{*this, "ZoekTekst", "&Zoek in de tekst:", 60};
  Knop ZoekButton{*this, "ZoekButton", "&Volgende"};
  Label ZoekLabel{*this, "ZoekLabel"};
  Vinkje UTF8Box{*this, "UTF8Box", "Opslaan in &UTF-8"};
  Knop BrowserButton{*this, "BrowserButton", "Open in bro&wser"};
  Vindpagina UitvoerBox{*this, "UitvoerBox"};
  Label XY_label{*this, "XY_label", "pagina 99,99"};
  Rij<Knop, 4> MoveButton{*this, "MoveButton", 1, std::string_view{}};
  Rij<Knop, 2> PrintButton{*this, "PrintButton", 1, std::string_view{}};
  Knop SaveButton{*this, "SaveButton", "&Opslaan Als"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  void Blader(int stap) override { Ga(0, stap); }
  [[nodiscard]] Bediening* BijCtrl(char letter) override;

 protected:
  TekstVenster(Hoofdmodule& hoofd, std::string_view naam, std::string_view titel);

  // Opens the file and shows its first page, or why it can't be read.
  void Toon(const std::filesystem::path& pad, bool HTMLUitvoer);
  // The same for a text of which PrintButton and SaveButton handle another file.
  void Toon(const std::filesystem::path& pad, const std::filesystem::path& uitvoer);

  void BijToets(ToetsGebeurtenis& toets) override;

  Hoofdmodule& hoofd_;

 private:
  void MoveButtonKlik(int nummer);
  void PrintButtonKlik(int nummer);
  void SaveButtonKlik();
  void BrowserButtonKlik();
  void ZoekTekstToets(ToetsGebeurtenis& toets);
  void ZoekButtonKlik();
  void Toon(const Tekstpaginas::Plek& plek);
  void Ga(int kolommen, int rijen);
  void ToonPagina();
  [[nodiscard]] Tekstpaginas& Uitvoer() { return uitvoer_ ? *uitvoer_ : paginas_; }
  void DrukPaginaAf();
  void Nummer(Afdruk& afdruk);
  void DrukAllesAf();
  [[nodiscard]] bool VoegPaginaToe(Afdruk& afdruk, int kolom, int rij);
  void DrukAf(const Afdruk& afdruk);

  Tekstpaginas paginas_;
  std::optional<Tekstpaginas> uitvoer_;  // what is printed and saved, when it is not what is shown
  Tekstpaginas::Plek zoekVanaf_;         // where the next search begins
  bool HTMLUitvoer_ = false;
  int kolom_ = 1;
  int rij_ = 1;
};

}  // namespace lb77
