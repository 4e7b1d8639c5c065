#include "exchange/Ged551Grammatica.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <utility>

#include "text/Utf8.h"

namespace lb77 {

namespace {

// What may stand below a path, how often, and what its value is: pointer, date, text of a length (in
// characters), none, or one of a list.
struct Plek {
  std::string_view pad;
  int hoogstens;  // 0: any number
  std::string_view waarde;
};
constexpr std::string_view kGebeurtenissen[] = {"INDI-BIRT", "INDI-BAPM", "INDI-DEAT", "INDI-BURI",
                                                "INDI-CREM", "FAM-MARB",  "FAM-MARR",  "FAM-DIV"};
constexpr Plek kPlekken[] = {
    {"HEAD", 1, ""},
    {"HEAD-SOUR", 1, "20"},
    {"HEAD-SOUR-VERS", 1, "15"},
    {"HEAD-SOUR-NAME", 1, "90"},
    {"HEAD-DATE", 1, "date"},
    {"HEAD-DATE-TIME", 1, "12"},
    {"HEAD-SUBM", 1, "@S"},
    {"HEAD-FILE", 1, "90"},
    {"HEAD-COPR", 1, "90"},
    {"HEAD-GEDC", 1, ""},
    {"HEAD-GEDC-VERS", 1, "=5.5.1"},
    {"HEAD-GEDC-FORM", 1, "=LINEAGE-LINKED"},
    {"HEAD-CHAR", 1, "=UTF-8"},
    {"HEAD-LANG", 1, "=Dutch"},
    {"HEAD-PLAC", 1, ""},
    {"HEAD-PLAC-FORM", 1, "120"},
    {"SUBM", 1, ""},
    {"SUBM-NAME", 1, "60"},
    {"SUBM-ADDR", 1, "60"},
    {"SUBM-ADDR-ADR1", 1, "60"},
    {"SUBM-ADDR-CITY", 1, "60"},
    {"SUBM-ADDR-POST", 1, "10"},
    {"SUBM-ADDR-CTRY", 1, "60"},
    {"SUBM-PHON", 3, "25"},
    {"INDI", 0, ""},
    {"INDI-NAME", 0, "120"},
    {"INDI-NAME-GIVN", 1, "120"},
    {"INDI-NAME-SPFX", 1, "30"},
    {"INDI-NAME-SURN", 1, "120"},
    {"INDI-NAME-NOTE", 0, "tekst"},
    {"INDI-SEX", 1, "=M|F|U"},
    {"INDI-OCCU", 0, "90"},
    {"INDI-OCCU-NOTE", 0, "tekst"},
    {"INDI-RELI", 0, "90"},
    {"INDI-RELI-NOTE", 0, "tekst"},
    {"INDI-NOTE", 0, "tekst"},
    {"INDI-FAMC", 0, "@F"},
    {"INDI-FAMS", 0, "@F"},
    {"INDI-BIRT", 0, ""},
    // One each: these are not for the standard but for what we promise.
    {"INDI-BAPM", 1, ""},
    {"INDI-DEAT", 0, ""},
    {"INDI-BURI", 1, ""},
    {"INDI-CREM", 1, ""},
    {"FAM", 0, ""},
    {"FAM-HUSB", 1, "@I"},
    {"FAM-WIFE", 1, "@I"},
    {"FAM-CHIL", 0, "@I"},
    {"FAM-MARB", 0, ""},
    {"FAM-MARR", 0, ""},
    {"FAM-DIV", 0, ""},
    {"FAM-NOTE", 0, "tekst"},
    {"*-TYPE", 1, "90"},
    {"*-DATE", 1, "date"},
    {"*-PLAC", 1, "120"},
    {"*-PLAC-NOTE", 0, "tekst"},
    {"*-NOTE", 0, "tekst"},
    {"TRLR", 1, ""},
};

// The path with its event as "*", for the rows that all events share.
std::string Algemeen(std::string_view pad) {
  for (const std::string_view deze : kGebeurtenissen) {
    if (pad.size() > deze.size() && pad.starts_with(deze) && pad[deze.size()] == '-') {
      return "*" + std::string(pad.substr(deze.size()));
    }
  }
  return std::string(pad);
}

std::size_t Tekens(std::string_view tekst) {
  return static_cast<std::size_t>(std::ranges::count_if(
      tekst, [](char teken) { return (static_cast<unsigned char>(teken) & 0xC0U) != 0x80U; }));
}

bool IsGetal(std::string_view woord, std::size_t kortste, std::size_t langste) {
  return woord.size() >= kortste && woord.size() <= langste &&
         woord.find_first_not_of("0123456789") == std::string_view::npos;
}

std::vector<std::string_view> Woorden(std::string_view tekst) {
  std::vector<std::string_view> uit;
  while (!tekst.empty()) {
    const std::size_t blank = tekst.find(' ');
    uit.push_back(tekst.substr(0, blank));
    tekst.remove_prefix(blank == std::string_view::npos ? tekst.size() : blank + 1);
  }
  return uit;
}

bool IsMaand(std::string_view woord) {
  constexpr std::string_view kMaanden = "JAN FEB MAR APR MAY JUN JUL AUG SEP OCT NOV DEC";
  return woord.size() == 3 && kMaanden.find(woord) % 4 == 0;
}

bool IsDag(std::string_view tekst) {
  auto woorden = Woorden(tekst);
  if (woorden.empty() || !IsGetal(woorden.back(), 3, 4)) return false;
  woorden.pop_back();
  if (woorden.empty()) return true;
  if (!IsMaand(woorden.back())) return false;
  woorden.pop_back();
  return woorden.empty() || (woorden.size() == 1 && IsGetal(woorden[0], 1, 2));
}

bool IsDatum(std::string_view tekst) {
  if (tekst.starts_with('(')) return tekst.ends_with(')') && tekst.size() <= 37;
  if (tekst.starts_with("BET ")) {
    const std::size_t en = tekst.find(" AND ");
    return en != std::string_view::npos && IsDag(tekst.substr(4, en - 4)) &&
           IsDag(tekst.substr(en + 5));
  }
  for (const std::string_view woord : {"BEF ", "AFT ", "ABT "}) {
    if (tekst.starts_with(woord)) return IsDag(tekst.substr(woord.size()));
  }
  return IsDag(tekst);
}

bool IsVerwijzing(std::string_view waarde) {
  return waarde.size() > 2 && waarde.front() == '@' && waarde.back() == '@' &&
         waarde.find('@', 1) == waarde.size() - 1;
}

// Is each "@" of a text doubled?
bool IsVerdubbeld(std::string_view tekst) {
  for (std::size_t i = 0; i < tekst.size(); ++i) {
    if (tekst[i] != '@') continue;
    if (tekst.substr(i, 2) != "@@") return false;
    ++i;
  }
  return true;
}

bool IsWaarde(std::string_view waarde, std::string_view eis) {
  if (eis.empty()) return waarde.empty();
  if (eis.starts_with('@')) return IsVerwijzing(waarde) && waarde[1] == eis[1];
  if (eis == "date") return IsDatum(waarde);
  if (eis == "tekst") return true;
  if (eis.starts_with('=')) {
    const std::string keuzen = "|" + std::string(eis.substr(1)) + "|";
    return keuzen.find("|" + std::string(waarde) + "|") != std::string::npos;
  }
  std::size_t lengte = 0;
  for (const char cijfer : eis) lengte = lengte * 10 + static_cast<std::size_t>(cijfer - '0');
  return !waarde.empty() && Tekens(waarde) <= lengte;
}

class Toetser {
 public:
  void Voer(std::string_view bytes, bool metTerugwegen) {
    constexpr std::string_view kMerk = "\xEF\xBB\xBF";
    if (!bytes.starts_with(kMerk)) Fout("geen volgordeteken");
    bytes.remove_prefix(std::min(kMerk.size(), bytes.size()));
    ToetsUtf8(bytes);
    while (!bytes.empty()) {
      const std::size_t einde = bytes.find("\r\n");
      if (einde == std::string_view::npos) {
        Fout("regel zonder einde");
        return;
      }
      ++nr_;
      Regel(bytes.substr(0, einde));
      bytes.remove_prefix(einde + 2);
    }
    if (pad_.size() != 1 || pad_[0] != "TRLR") Fout("TRLR is niet de laatste regel");
    Verwijzingen(metTerugwegen);
  }

  std::vector<std::string> fouten;

 private:
  void Fout(std::string_view tekst) {
    fouten.push_back(std::to_string(nr_) + ": " + std::string(tekst) + ": " + regel_);
  }

  void ToetsUtf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
      const Utf8Teken teken = LeesUtf8(bytes, i);
      if (teken.lengte == 0) {
        Fout("geen UTF-8");
        return;
      }
      const bool regeleinde = teken.codepunt == '\r' || teken.codepunt == '\n';
      if ((teken.codepunt < 32 && !regeleinde) || teken.codepunt == 127) Fout("stuurteken");
      i += teken.lengte;
    }
  }

  // Level, id, tag and value, each with one blank between.
  void Regel(std::string_view regel) {
    regel_ = regel;
    if (Tekens(regel) + 2 > 255) Fout("te lang");
    if (regel.find_first_of("\r\n") != std::string_view::npos) Fout("los regeleinde");
    if (regel.ends_with(' ')) Fout("blanco aan het einde");
    std::string_view rest = regel;
    const std::string_view level = Woord(rest);
    if (!IsGetal(level, 1, 2) || (level.size() == 2 && level[0] == '0')) {
      Fout("geen level");
      return;
    }
    const auto diepte = static_cast<std::size_t>(std::stoi(std::string(level)));
    std::string_view tag = Woord(rest);
    std::string_view id;
    if (tag.starts_with('@')) {
      id = tag;
      tag = Woord(rest);
    }
    const std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
    if (tag.empty() || tag.find_first_not_of(letters) != std::string_view::npos) Fout("geen tag");
    if (rest.starts_with(' ')) Fout("blanco aan het begin");
    if (diepte > pad_.size()) {
      Fout("level overgeslagen");
      return;
    }
    Record(diepte, id, tag);
    pad_.resize(diepte);
    Plaats(tag, rest);
    pad_.emplace_back(tag);
  }

  static std::string_view Woord(std::string_view& rest) {
    const std::size_t blank = rest.find(' ');
    const std::string_view woord = rest.substr(0, blank);
    rest.remove_prefix(blank == std::string_view::npos ? rest.size() : blank + 1);
    return woord;
  }

  void Record(std::size_t diepte, std::string_view id, std::string_view tag) {
    if (diepte > 0) {
      if (!id.empty()) Fout("id onder een record");
      return;
    }
    if ((nr_ == 1) != (tag == "HEAD")) Fout("HEAD is niet de eerste regel");
    if (pad_.size() == 1 && pad_[0] == "TRLR") Fout("regel achter TRLR");
    const bool zonderId = tag == "HEAD" || tag == "TRLR";
    if (id.empty() != zonderId) Fout("id");
    if (!id.empty() && (!IsVerwijzing(id) || id.size() > 22)) Fout("vorm van id");
    if (!id.empty() && !ids_.insert(std::string(id)).second) Fout("id dubbel");
    id_ = id;
    geteld_.clear();
  }

  void Plaats(std::string_view tag, std::string_view waarde) {
    const bool isLink = IsVerwijzing(waarde);
    if (!isLink && !IsVerdubbeld(waarde)) Fout("enkel apenstaartje");
    if (isLink) links_.push_back({id_, std::string(tag), std::string(waarde), nr_});
    std::string pad;
    for (const std::string& deel : pad_) pad += deel + "-";
    Tel(pad, tag);
    if (tag == "CONC" || tag == "CONT") {
      Vervolg(tag, waarde);
      return;
    }
    vorige_ = waarde;
    pad += tag;
    if (pad.find('_') != std::string::npos) return;
    const std::string algemeen = Algemeen(pad);
    const auto* plek = std::ranges::find(kPlekken, algemeen, &Plek::pad);
    if (plek == std::end(kPlekken)) {
      Fout("tag op een verkeerde plaats");
    } else {
      const int keer = geteld_[pad];
      if (plek->hoogstens > 0 && keer > plek->hoogstens) Fout("te vaak");
      if (!IsWaarde(waarde, plek->waarde)) Fout("waarde");
    }
  }

  // A line counts anew below each line above it.
  void Tel(const std::string& ouder, std::string_view tag) {
    const std::string pad = ouder + std::string(tag);
    ++geteld_[pad];
    std::erase_if(geteld_, [&](const auto& rij) { return rij.first.starts_with(pad + "-"); });
  }

  // CONC must cut within a word: blanks at ends get lost.
  void Vervolg(std::string_view tag, std::string_view waarde) {
    if (tag == "CONC" && (waarde.empty() || vorige_.empty())) Fout("CONC zonder tekst");
    vorige_ = waarde;
  }

  void Verwijzingen(bool metTerugwegen) {
    std::set<std::string> wegen;
    for (const auto& link : links_) wegen.insert(link.van + link.tag + link.naar);
    for (const auto& link : links_) {
      nr_ = link.nr;
      regel_ = link.tag + " " + link.naar;
      if (!ids_.contains(link.naar)) Fout("verwijzing naar niets");
      if (!metTerugwegen || link.tag.starts_with('_') || link.tag == "SUBM") continue;
      const auto terug = [&](std::string_view tag) {
        return wegen.contains(link.naar + std::string(tag) + link.van);
      };
      const bool heen = link.tag == "FAMC"   ? terug("CHIL")
                        : link.tag == "CHIL" ? terug("FAMC")
                        : link.tag == "FAMS" ? terug("HUSB") || terug("WIFE")
                                             : terug("FAMS");
      if (!heen) Fout("geen weg terug");
    }
  }

  struct Link {
    std::string van;
    std::string tag;
    std::string naar;
    int nr;
  };
  int nr_ = 0;
  std::string regel_;
  std::string id_;
  std::string vorige_;
  std::vector<std::string> pad_;
  std::map<std::string, int> geteld_;
  std::set<std::string> ids_;
  std::vector<Link> links_;
};

}  // namespace

std::vector<std::string> GrammaticaFouten(std::string_view bytes, bool metTerugwegen) {
  Toetser toetser;
  toetser.Voer(bytes, metTerugwegen);
  return std::move(toetser.fouten);
}

}  // namespace lb77
