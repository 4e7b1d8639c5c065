// Scripts played on the dialogs that mend records by hand, and what they leave on the disk.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "checks/CorrAdm.h"
#include "checks/CorrOpmAdm.h"
#include "checks/CorrOpmAlg.h"
#include "checks/CorrPlts.h"
#include "checks/CorrVerwijzingen.h"
#include "checks/CorrVraag.h"
#include "steun/FamilieToets.h"
#include "store/OpmVelden.h"
#include "store/PersoonVelden.h"
#include "store/PlaatsVelden.h"
#include "store/RelatieVelden.h"

namespace lb77 {

class CorrToets : public FamilieToets {
 protected:
  static constexpr auto kPrs = BestandSoort::Personen;
  static constexpr auto kRlt = BestandSoort::Relaties;
  static constexpr auto kOpm = BestandSoort::Opmerkingen;
  static constexpr auto kPlt = BestandSoort::Plaatsen;

  // Plays a script on a form of that name and title, which it closes itself.
  void Speelt(std::string_view draaiboek, const Taak& taak, std::string_view vorm,
              std::string_view titel, std::string_view verslag, const Plek& plek = Plek::current());

  // The forms.
  static Taak Verwijzingen(const CorrSoort& soort, std::int16_t nr);
  static Taak Opmerking(std::int16_t nr);
  template <class Form, class... Args>
  static Taak Form_(const Args&... args) {
    return [&args...](Hoofdmodule& hoofd) { hoofd.gesprek.Toon<Form>(args..., hoofd); };
  }

  // The four files, in the order of kBestandSoorten.
  using Beeld = std::vector<std::string>;
  [[nodiscard]] Beeld Bytes() const;
  void ZetTerug(const Beeld& beeld) const;
  void ZetBytes(BestandSoort soort, int nr, const Veld& veld, std::string_view bytes) const;
  void ZetGetal(BestandSoort soort, int nr, const Veld& veld, int getal) const;
  [[nodiscard]] int Getal(BestandSoort soort, int nr, const Veld& veld) const;
  // The files are as before but for these fields of one record.
  struct VeldGetal {
    Veld veld;
    int getal;
  };
  void VerwachtAlleen(Beeld voor, BestandSoort soort, int nr,
                      std::initializer_list<VeldGetal> velden, const Plek& plek = Plek::current());

  // The labels of what the script did to the journal; undoing the last of them gives back the files.
  std::vector<std::string> Labels(const std::string& draaiboek, const Taak& taak);
  // Plays the script once for each operation on the files that can fail, on the same files; `na` is
  // called behind each.
  void BijElkeStoring(const std::string& draaiboek, const Taak& taak,
                      const std::function<void(bool gelukt)>& na);
};

}  // namespace lb77
