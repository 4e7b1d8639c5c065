#include "ancestors/KwstBladTekst.h"

#include <algorithm>

#include "output/Gebeurtenis.h"
#include "store/Codes.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kOnbekend = "?????";

std::string Deel(int getal, std::size_t breedte) {
  return getal == 0 ? std::string(breedte, '?') : NulGevuld(getal, breedte);
}

// "12-05-1850"; what is not known of it is question marks, and a date of nothing else has dashes.
std::string Datum(const Gebeurtenis& gebeurtenis, char scheider) {
  if (!gebeurtenis.DatumBekend()) scheider = '-';
  return Deel(gebeurtenis.dagMaand / 100, 2) + scheider + Deel(gebeurtenis.dagMaand % 100, 2) +
         scheider + Deel(gebeurtenis.jaar, 4);
}

std::string_view Woord(std::string_view corr) {
  if (IsCode(corr, correctie::kCirca)) return "ca. ";
  if (IsCode(corr, correctie::kNa)) return "na ";
  if (IsCode(corr, correctie::kVoor)) return "voor ";
  return "";
}

// Reads the records of a sheet, one place after the other.
class Lezer {
 public:
  Lezer(const KwstBlad& blad, const KwstTabel& tabel, bool ookNrs, const Gegevens& bronnen)
      : blad_(blad), tabel_(tabel), ookNrs_(ookNrs), bronnen_(bronnen) {}

  [[nodiscard]] BladTekst Lees(int p) {
    const BladPlaats& plaats = blad_.Plaats(p);
    BladTekst uit{plaats.KW_Nr.Tekst() + ".", "", std::string(kOnbekend), "", "", "", ""};
    if (LeesPersoon(p)) LeesNaamEnLeven(plaats, uit);
    if (p > 1 && p % 2 == 0 && LeesPersoon(p / 2)) uit.gehuwd = Huwelijk();
    return uit;
  }

 private:
  [[nodiscard]] bool LeesPersoon(int p) {
    const BladPlaats& plaats = blad_.Plaats(p);
    return plaats.bezet && bronnen_.persoon.Lees(tabel_.Persoon(plaats.KW_Index));
  }

  void LeesNaamEnLeven(const BladPlaats& plaats, BladTekst& uit) {
    const PersoonLB77& persoon = bronnen_.persoon;
    uit.voornamen = persoon.VoorNaamTrue();
    uit.achternaam = persoon.AchterNaamTrue();
    if (uit.voornamen.empty() != uit.achternaam.empty()) {
      (uit.voornamen.empty() ? uit.voornamen : uit.achternaam) = kOnbekend;
    } else if (uit.achternaam.empty()) {
      uit.achternaam = kOnbekend;
    }
    if (ookNrs_) uit.achter = "[" + GetalTekst(tabel_.Persoon(plaats.KW_Index)) + "]";
    if (plaats.Kwartier_A) uit.achter += uit.achter.empty() ? ">" : " >";
    const Levensloop leven = LevensloopVan(persoon);
    uit.geboren = Geboren(leven);
    uit.overleden = Overleden(leven);
  }

  // An event, or with a correction of "T" the span from it to the one behind it.
  [[nodiscard]] std::string Regel(std::string_view teken, const Gebeurtenis& een,
                                  const Gebeurtenis& twee, std::string_view corr) {
    const char scheider = bronnen_.schrijfwijze.DatumScheider;
    std::string uit(teken);
    if (IsCode(corr, correctie::kTussen)) {
      uit += " tussen " + Datum(een, scheider) + " en " + Datum(twee, scheider);
    } else {
      uit.append(" ").append(Woord(corr)) += Datum(een, scheider);
    }
    const std::string plaats = bronnen_.plaats.Naam2(een.plaatsNr);
    return plaats.empty() ? uit : uit + " " + plaats;
  }

  [[nodiscard]] std::string Geboren(const Levensloop& leven) {
    const bool gedoopt = !leven.geboorte.Bekend() && leven.doop.Bekend();
    if (gedoopt && !IsCode(leven.gebCorr, correctie::kTussen)) {
      return Regel("~", leven.doop, {}, "");
    }
    return Regel("*", leven.geboorte, leven.doop, leven.gebCorr);
  }

  [[nodiscard]] std::string Overleden(const Levensloop& leven) {
    const bool tussen = IsCode(leven.ovlCorr, correctie::kTussen);
    if (leven.overlijden.Bekend() || (tussen && leven.begrafenis.Bekend())) {
      return Regel("+", leven.overlijden, leven.begrafenis, leven.ovlCorr);
    }
    if (!leven.begrafenis.Bekend()) return {};
    return Regel(leven.crematie ? "+ crematie" : "+ begr.", leven.begrafenis, {}, "");
  }

  // Of the parents of the person in the buffer: the first known of civil marriage, church and banns.
  [[nodiscard]] std::string Huwelijk() {
    const std::int16_t ouders = bronnen_.persoon.RelNrOuders();
    if (ouders <= 0 || !bronnen_.relatie.Lees(ouders)) return {};
    const Verbintenis bond = VerbintenisVan(bronnen_.relatie);
    const bool tussen = IsCode(bond.corr, correctie::kTussen);
    if (bond.wettig.Bekend() || (tussen && bond.kerk.Bekend())) {
      return Regel("oo", bond.wettig, bond.kerk, bond.corr);
    }
    if (bond.kerk.Bekend() && !bond.scheiding) return Regel("oo", bond.kerk, {}, "");
    if (bond.ondertrouw.Bekend()) return Regel("oo otr.", bond.ondertrouw, {}, "");
    return {};
  }

  const KwstBlad& blad_;
  const KwstTabel& tabel_;
  bool ookNrs_;
  Gegevens bronnen_;
};

// The words of a text; blanks between them do not count.
std::vector<std::string> Woorden(std::string_view tekst) {
  std::vector<std::string> uit;
  for (tekst = Trim(tekst); !tekst.empty(); tekst = TrimLinks(tekst)) {
    const std::size_t einde = std::min(tekst.find(' '), tekst.size());
    uit.emplace_back(tekst.substr(0, einde));
    tekst.remove_prefix(einde);
  }
  return uit;
}

std::string Samen(const std::vector<std::string>& delen) {
  std::string uit;
  for (const std::string& deel : delen) {
    if (!deel.empty() && !uit.empty()) uit += ' ';
    uit += deel;
  }
  return uit;
}

// How much of a word goes on a line of so much room: a double name is broken behind its hyphen.
std::size_t Stuk(std::string_view woord, std::size_t ruimte) {
  if (woord.size() <= ruimte) return woord.size();
  const std::size_t streep = woord.substr(0, ruimte).rfind('-');
  return streep == std::string_view::npos ? ruimte : streep + 1;
}

}  // namespace

std::string BladTekst::Kop() const {
  return Samen({nummer, voornamen, achternaam, achter});
}

std::string BladTekst::Kop(std::size_t breedte) const {
  std::vector<std::string> namen = Woorden(voornamen);
  std::string kop = Kop();
  for (std::size_t i = namen.size(); kop.size() > breedte && i-- > 0;) {
    namen[i] = namen[i].substr(0, 1) + ".";
    kop = Samen({nummer, Samen(namen), achternaam, achter});
  }
  return kop.substr(0, breedte);
}

std::vector<std::string> BladTekst::Gebeurtenissen() const {
  std::vector<std::string> uit;
  for (const std::string& regel : {geboren, overleden, gehuwd}) {
    if (!regel.empty()) uit.push_back(regel);
  }
  return uit;
}

BladTeksten LeesBlad(const KwstBlad& blad, const KwstTabel& tabel, bool ookNrs,
                     const Gegevens& bronnen) {
  Lezer lezer(blad, tabel, ookNrs, bronnen);
  BladTeksten uit;
  for (int p = 1; p <= kBladPlaatsen; ++p) uit[static_cast<std::size_t>(p)] = lezer.Lees(p);
  return uit;
}

std::vector<std::string> BreekTekst(std::string_view tekst, std::size_t breedte,
                                    std::size_t hoogste) {
  constexpr std::string_view kInspringen = "  ";
  std::vector<std::string> uit{""};
  bool leeg = true;  // nothing but the indent on the last line
  for (std::string woord : Woorden(tekst)) {
    while (!woord.empty()) {
      const std::size_t ruimte = breedte - std::min(breedte, uit.back().size() + (leeg ? 0 : 1));
      if (woord.size() <= ruimte || leeg) {
        const std::size_t tot = Stuk(woord, ruimte);
        uit.back() += (leeg ? "" : " ") + woord.substr(0, tot);
        woord.erase(0, tot);
        leeg = false;
      }
      if (woord.empty()) break;
      if (uit.size() == hoogste) return uit;
      uit.emplace_back(kInspringen);
      leeg = true;
    }
  }
  return uit;
}

}  // namespace lb77
