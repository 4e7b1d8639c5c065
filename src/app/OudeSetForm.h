// The dialog that takes over record files from elsewhere.
#pragma once

#include <vector>

#include "app/Hoofdmodule.h"
#include "app/MenuWindow.h"
#include "app/OudeSets.h"
#include "app/SetMaken.h"
#include "forms/Formulier.h"

namespace lb77 {

// A directory is searched when it has been chosen or typed; of what is found one family becomes a
// set: copied, or used where it lies.
class OudeSetForm final : public Formulier {
 public:
  OudeSetForm(Hoofdmodule& hoofd, MenuWindow& menu);

  Label MapUitleg{
      *this, "MapUitleg",
      "Geef de map waarin de bestanden van de familie staan (.PRS, .RLT, .OPM en .PLT):"};
  Padvak OudeMap{*this, "OudeMap", "Map:"};
  Knop BrowseOudeMap{*this, "BrowseOudeMap", "&Bladeren..."};
  Keuzelijst GevondenLijst{*this, "GevondenLijst", "Gevonden families:"};
  Optie Kopieren{*this, "Kopieren",
                 "een kopie maken en daarmee werken (de oude bestanden blijven zoals ze zijn)"};
  Optie TerPlaatse{*this, "TerPlaatse", "de bestanden gebruiken waar ze staan"};
  Tekstvak SetNaam{*this, "SetNaam", "Naam van de Bestandenset:", kMaxSetNaam};
  Tekstvak SetOmsch{*this, "SetOmsch", "Omschrijving:", kMaxSetOms};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void BrowseOudeMapKlik();
  [[nodiscard]] bool OudeMapVerlaten();
  void GevondenLijstWijziging();
  void KopierenWijziging();
  void TerPlaatseWijziging();
  void OKButtonKlik();
  void Zoek();
  void StelNaamVoor();
  void MeldNiets(const std::filesystem::path& map, const OnleesbareMap& onleesbaar);
  void NeemGezindtenVan(const OudeSet& set);
  // False when something keeps it from being taken over; that has been told.
  [[nodiscard]] bool MagOvernemen(const OudeSet& set, const std::string& naam);
  // Takes it over and opens it. What fails has been told, and left no trace; what did not open has
  // closed the set that was open.
  enum class Afloop { Geopend, NietOvergenomen, NietGeopend };
  [[nodiscard]] Afloop NeemOver(const OudeSet& set, const std::string& naam);
  [[nodiscard]] Afloop NeemAlsKopie(const OudeSet& set);
  [[nodiscard]] Afloop Open(const std::string& naam);
  [[nodiscard]] bool Gebruik(const OudeSet& set, const SetPaden& paden);
  [[nodiscard]] bool Kopieer(const OudeSet& set, const SetPaden& paden);

  Hoofdmodule& hoofd_;
  MenuWindow& menu_;
  std::vector<OudeSet> gevonden_;
  std::filesystem::path gezocht_;  // where they were found
};

}  // namespace lb77
