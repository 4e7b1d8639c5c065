#include "pictures/Beeldlezer.h"

#include <cstddef>
#include <optional>
#include <string>

#include "descendants/GenSchPersoon.h"
#include "output/Blik.h"
#include "store/Codes.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kOnbekend = "<onbekend>";
constexpr int kMeesteLege = 6;  // periods with nobody that are shown

Geslacht GeslachtVan(const std::string& code) {
  if (IsCode(code, geslacht::kMan)) return Geslacht::Man;
  return IsCode(code, geslacht::kVrouw) ? Geslacht::Vrouw : Geslacht::Onbekend;
}

// "1802-1870"; without either year nothing.
std::string JarenVan(PersoonLB77& persoon, std::int16_t nr) {
  std::string periode(Trim(persoon.Periode(nr)));
  return periode == "-" ? std::string() : periode;
}

std::string NummerVan(const KwstTabel& tabel, int i, Nummering nummering) {
  switch (nummering) {
    case Nummering::Kwartier:
      return tabel.KwNummer(i).Tekst() + ".";
    case Nummering::Persoon:
      return GetalTekst(tabel.Persoon(i));
    case Nummering::Geen:
      break;
  }
  return {};
}

BeeldPersoon LeesKwartier(const KwstTabel& tabel, int i, const KwartierKeuzen& keuzen,
                          const Gegevens& bronnen) {
  BeeldPersoon uit;
  uit.nr = tabel.Persoon(i);
  uit.vorige = i == 0 ? -1 : tabel.KwKindIndex(i) - 1;
  uit.generatie = tabel.Generatie(i);
  uit.moeder = i > 0 && tabel.IsMoeder(i);
  uit.nummer = NummerVan(tabel, i, keuzen.nummers);
  if (tabel.IsHerhaling(i) && keuzen.nummers == Nummering::Kwartier) {
    uit.elders = "= " + tabel.KwNummer(-tabel.KwPersoon(i)).Tekst();
  }
  const auto blik = LeesPersoonBlik(bronnen.persoon, uit.nr);
  if (blik) {
    uit.geslacht = GeslachtVan(blik->geslacht);
    uit.voornamen = blik->voornaam;
    uit.achternaam = blik->achternaam;
    const std::string jaren = keuzen.jaren ? JarenVan(bronnen.persoon, uit.nr) : std::string();
    if (!jaren.empty()) uit.datums.push_back(jaren);
  }
  if (uit.voornamen.empty() && uit.achternaam.empty()) uit.voornamen = kOnbekend;
  return uit;
}

std::string Partnerregel(const SchemaPartner& partner) {
  return partner.teken + " " + partner.naam.Voluit();
}

void NeemTeksten(const SchemaPersoon& bron, BeeldPersoon& naar) {
  naar.nummer = bron.label;
  if (!naar.nummer.empty() && !bron.nummer.empty()) naar.nummer += ' ';
  naar.nummer += bron.nummer;
  naar.voornamen = bron.naam.voornamen;
  naar.achternaam = bron.naam.achternaam;
  for (const std::string& datum : bron.datums) {
    const std::string_view kaal = Trim(datum);
    if (!kaal.empty() && kaal != "-") naar.datums.emplace_back(kaal);
  }
  if (bron.elders) naar.elders = bron.elders->empty() ? "=" : "= " + *bron.elders;
  for (const SchemaPartner& partner : bron.partners) naar.partners.push_back(Partnerregel(partner));
}

}  // namespace

BeeldPersonen LeesKwartieren(const KwstTabel& tabel, const KwartierKeuzen& keuzen,
                             const Gegevens& bronnen) {
  BeeldPersonen uit;
  for (int i = 0; i < tabel.KwstAantal() && tabel.Generatie(i) < keuzen.generaties; ++i) {
    uit.push_back(LeesKwartier(tabel, i, keuzen, bronnen));
  }
  return uit;
}

BeeldPersonen LeesStam(const GenTabel& tabel, const GenOpties& opties, int generaties,
                       const Gegevens& bronnen) {
  BeeldPersonen uit;
  GenSchLezer lezer(tabel, opties, bronnen);
  for (int i = 0; i < tabel.GenAantal() && tabel.Generatie(i) <= generaties; ++i) {
    BeeldPersoon persoon;
    persoon.nr = tabel.Persoon(i);
    persoon.vorige = tabel.GenOuderIndex(i);
    persoon.generatie = tabel.Generatie(i) - 1;
    persoon.geslacht = tabel.IsMan(i)     ? Geslacht::Man
                       : tabel.IsVrouw(i) ? Geslacht::Vrouw
                                          : Geslacht::Onbekend;
    if (const auto tekst = lezer.Lees(i)) NeemTeksten(*tekst, persoon);
    if (persoon.voornamen.empty() && persoon.achternaam.empty()) persoon.voornamen = kOnbekend;
    uit.push_back(std::move(persoon));
  }
  return uit;
}

std::vector<Tijdstaaf> StavenVan(const Tijdbalk& tijdbalk) {
  std::vector<Tijdstaaf> uit;
  std::optional<int> vorige;
  for (const auto& [begin, telling] : tijdbalk.periodes) {
    const int lege = vorige ? (begin - *vorige) / kTijdbalkPeriode - 1 : 0;
    if (lege > kMeesteLege) {
      uit.push_back({"...", 0, 0});
    } else {
      for (int i = 1; i <= lege; ++i) {
        const int leeg = *vorige + i * kTijdbalkPeriode;
        uit.push_back({GetalTekst(leeg) + "-" + GetalTekst(leeg + kTijdbalkPeriode - 1), 0, 0});
      }
    }
    uit.push_back({GetalTekst(begin) + "-" + GetalTekst(begin + kTijdbalkPeriode - 1),
                   telling.aantal, telling.zeker});
    vorige = begin;
  }
  return uit;
}

}  // namespace lb77
