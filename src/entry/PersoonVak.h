// The fields of a person: his number, his names, and his years where a form shows them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "entry/InvoerVak.h"
#include "forms/Weergave.h"

namespace lb77 {

// What leaving the number asks.
enum class PersoonControle {
  Geldig,  // it must be the number of a person, no continuation record
  Tonen,   // any number will do: the names tell who it is
  Geen     // the form's own check sees to it
};

// What tells one group of these fields from another.
struct PersoonVakSoort {
  PersoonControle controle = PersoonControle::Geldig;
  bool leegWist = true;       // an empty number empties the names
  bool alleenAnders = false;  // a number that is as it was when it got the focus is let be
  bool naamInvoer = true;     // the names can be typed
  bool danOK = false;         // who has been found by F2 is what the form asked for: OK is next
  std::string_view onbekend = {};  // for a name that is not known; without it only an unreadable
                                   // person has a text in its place
  std::string_view nr = "RecordNr";
  std::string_view voor = "VoorNm";
  std::string_view achter = "AchterNm";
  std::string_view periode = {};  // without a name there is no such field
  std::string_view nrBijschrift = {};
  std::string_view voorBijschrift = {};
  std::string_view achterBijschrift = {};
};

// The controls are named by the soort and `achtervoegsel`: "RecordNrPa", "VoorNmP(1)". F2 in the
// number searches a person, and the trackers stay where they were.
class PersoonVak {
 public:
  PersoonVak(InvoerFormulier& formulier, std::string_view achtervoegsel,
             const PersoonVakSoort& soort = {});

  class NrVak : public InvoerVak {
   public:
    NrVak(PersoonVak& geheel, InvoerFormulier& formulier, std::string_view naam,
          std::string_view bijschrift);

   protected:
    void OpBetreden() override { begin_ = Tekst(); }
    [[nodiscard]] bool OpVerlaten() override;
    void OpToets(ToetsGebeurtenis& toets) override;

   private:
    PersoonVak& geheel_;
    std::string begin_;  // what stood there when it got the focus
  };

  NrVak RecordNr;
  InvoerVak VoorNm;
  InvoerVak AchterNm;
  std::optional<Teller> Periode;

  // The number typed; 0 for none and for one that no record can have.
  [[nodiscard]] std::int16_t Nr() const;
  // Shows a person with his names; 0 empties all. The buffer of persons changes.
  void Toon(std::int16_t nr);
  // Shows the names and years of a person, and leaves the number.
  void ToonNamen(std::int16_t nr);
  void MaakLeeg() { Toon(0); }
  // Searches the person by his names when no number stands there; `geslacht` is "M", "V", or "*" for
  // anybody. False when a name stands there and nobody was chosen. The trackers stay.
  [[nodiscard]] bool VulNrUitNaam(std::string_view geslacht);
  // Are the names that stand there those of the number? Without a number they are. The buffer of
  // persons changes.
  [[nodiscard]] bool NrHoortBijNaam() const;
  // Has the user choose a person, and shows him. False when he chose nobody.
  [[nodiscard]] bool Zoek();
  void ZetZichtbaar(bool zichtbaar);
  // What follows when F2 has found a person, in place of danOK.
  void BijGevonden(std::function<void()> doe) { bijGevonden_ = std::move(doe); }

 private:
  [[nodiscard]] bool NrVerlaten();
  void NaF2();
  [[nodiscard]] std::string OfOnbekend(const std::string& naam) const;

  InvoerFormulier& formulier_;
  PersoonVakSoort soort_;
  std::function<void()> bijGevonden_;
};

}  // namespace lb77
