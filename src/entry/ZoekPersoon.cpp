#include "entry/ZoekPersoon.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "app/Hoofdmodule.h"
#include "entry/OKPersoon.h"
#include "entry/ZoekPrs.h"
#include "store/PersoonVelden.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

// A name to search for, in capitals. The name that it is made of begins with no blank.
struct Zoeknaam {
  Zoeknaam(std::string_view naam, std::size_t breedte)
      : tekst(Hoofdletters(Trim(naam.substr(0, breedte)))), joker(EindigtOp(tekst, "*")) {
    if (joker) tekst.pop_back();
  }
  [[nodiscard]] bool IsLeeg() const { return tekst.empty() && !joker; }
  [[nodiscard]] bool Past(std::string_view naam) const {
    const std::string groot = Hoofdletters(naam);
    return joker || tekst.empty() ? BegintMet(groot, tekst) : groot == tekst;
  }

  std::string tekst;
  bool joker;
};

struct Zoekvraag {
  Zoeknaam voor;
  Zoeknaam achter;
  std::string_view geslacht;
};

// Is the person in the buffer one of those who are searched for?
bool IsTreffer(const PersoonLB77& persoon, const Zoekvraag& zoek) {
  if (persoon.IsVolgRecord()) return false;
  if (zoek.geslacht != "*" && persoon.Geslacht() != zoek.geslacht) return false;
  return zoek.achter.Past(persoon.AchterNaamTrue()) && zoek.voor.Past(persoon.VoorNaamTrue());
}

struct Vondst {
  std::int16_t nr = 0;
  std::string voornaam;
  std::string achternaam;
};

// Nothing while no decision has fallen; a number of 0 is the decision to stop.
std::optional<Vondst> Beproef(Hoofdmodule& hoofd, std::int16_t nr, const Zoekvraag& zoek) {
  if (!hoofd.Persoon.Lees(nr)) {
    if (hoofd.gesprek.Vraag("Doorgaan")) return std::nullopt;
    return Vondst{};
  }
  if (!IsTreffer(hoofd.Persoon, zoek)) return std::nullopt;
  Vondst vondst{nr, hoofd.Persoon.VoorNaamTrue(), hoofd.Persoon.AchterNaamTrue()};
  if (ToonOKPersoon(hoofd, nr, vondst.voornaam, vondst.achternaam)) return vondst;
  if (hoofd.gesprek.Vraag("Verder Zoeken ?")) return std::nullopt;
  return Vondst{};
}

Vondst Doorzoek(Hoofdmodule& hoofd, const Zoekvraag& zoek) {
  const std::int32_t laatste = hoofd.Persoon.AantalRecords();
  for (std::int32_t nr = 2; nr <= laatste; ++nr) {
    if (auto vondst = Beproef(hoofd, static_cast<std::int16_t>(nr), zoek)) return *vondst;
  }
  hoofd.gesprek.Waarschuw("Persoon niet gevonden");
  return {};
}

}  // namespace

std::int32_t VraagZoekPersoon(Hoofdmodule& hoofd) {
  hoofd.volgers.HuidigPersoonNr = 0;
  hoofd.gesprek.Toon<ZoekPrs>(hoofd);
  return hoofd.volgers.HuidigPersoonNr >= 1 ? hoofd.volgers.HuidigPersoonNr : 0;
}

std::int16_t ZoekPersoonOpNaam(Hoofdmodule& hoofd, std::string& voornaam, std::string& achternaam,
                               std::string_view geslacht) {
  voornaam = std::string(Trim(voornaam));
  achternaam = std::string(Trim(achternaam));
  const Zoekvraag zoek{{voornaam, persoonveld::Voornaam.breedte},
                       {achternaam, persoonveld::Achternaam.breedte},
                       geslacht};
  if (zoek.voor.IsLeeg() && zoek.achter.IsLeeg()) return 0;
  Vondst vondst = Doorzoek(hoofd, zoek);
  if (vondst.nr > 0) {
    voornaam = std::move(vondst.voornaam);
    achternaam = std::move(vondst.achternaam);
  }
  return vondst.nr;
}

bool ToonOKPersoon(Hoofdmodule& hoofd, std::int16_t nr, std::string_view voornaam,
                   std::string_view achternaam) {
  hoofd.volgers.HuidigPersoonNr = nr;
  hoofd.gesprek.Toon<OKPersoon>(hoofd, voornaam, achternaam);
  return hoofd.volgers.HuidigPersoonNr == nr;
}

}  // namespace lb77
