#include "exchange/GedcomKeuring.h"

#include <algorithm>
#include <cstddef>

namespace lb77 {

namespace {

// What the standard has of all that a file of persons and families may hold. A path that ends in "*"
// stands for the lines below an event.
constexpr std::string_view kStandaard[] = {
    "HEAD",           "HEAD-SOUR",      "HEAD-SOUR-VERS",
    "HEAD-DEST",      "HEAD-DATE",      "HEAD-DATE-TIME",
    "HEAD-FILE",      "HEAD-COPR",      "HEAD-GEDC",
    "HEAD-GEDC-VERS", "HEAD-GEDC-FORM", "HEAD-CHAR",
    "HEAD-LANG",      "HEAD-SUBM",      "HEAD-SUBN",
    "SUBN",           "SUBN-SUBM",      "SUBM",
    "SUBM-NAME",      "SUBM-ADDR",      "SUBM-ADDR-CONT",
    "SUBM-ADDR-ADR1", "SUBM-ADDR-ADR2", "SUBM-ADDR-CITY",
    "SUBM-ADDR-POST", "SUBM-ADDR-CTRY", "SUBM-PHON",
    "SUBM-LANG",      "SUBM-CHAN",      "SUBM-CHAN-DATE",
    "INDI",           "INDI-NAME",      "INDI-NAME-GIVN",
    "INDI-NAME-SURN", "INDI-NAME-SPFX", "INDI-NAME-NOTE",
    "INDI-SEX",       "INDI-NOTE",      "INDI-NOTE-CONT",
    "INDI-RELI",      "INDI-RELI-NOTE", "INDI-OCCU",
    "INDI-OCCU-NOTE", "INDI-FAMC",      "INDI-FAMS",
    "INDI-BIRT",      "INDI-BAPM",      "INDI-DEAT",
    "INDI-BURI",      "INDI-CREM",      "*-DATE",
    "*-PLAC",         "*-PLAC-NOTE",    "FAM",
    "FAM-HUSB",       "FAM-WIFE",       "FAM-CHIL",
    "FAM-MARB",       "FAM-MARR",       "FAM-MARC",
    "FAM-DIVF",       "TRLR",
};
constexpr std::string_view kGebeurtenissen[] = {"INDI-BIRT", "INDI-BAPM", "INDI-DEAT",
                                                "INDI-BURI", "INDI-CREM", "FAM-MARB",
                                                "FAM-MARR",  "FAM-MARC",  "FAM-DIVF"};

bool IsStandaard(std::string_view pad) {
  // Text goes on below any text.
  if (pad.ends_with("-CONT") && IsStandaard(pad.substr(0, pad.size() - 5))) return true;
  if (std::ranges::find(kStandaard, pad) != std::end(kStandaard)) return true;
  return std::ranges::any_of(kGebeurtenissen, [pad](std::string_view gebeurtenis) {
    if (!pad.starts_with(std::string(gebeurtenis) + "-")) return false;
    const std::string kort = "*" + std::string(pad.substr(gebeurtenis.size()));
    return std::ranges::find(kStandaard, kort) != std::end(kStandaard);
  });
}

std::string_view Woord(std::string_view& rest) {
  const std::size_t blank = rest.find(' ');
  const std::string_view woord = rest.substr(0, blank);
  rest.remove_prefix(blank == std::string_view::npos ? rest.size() : blank + 1);
  return woord;
}

class Keurder {
 public:
  explicit Keurder(GedcomBeeld& beeld) : beeld_(beeld) {}

  void Regel(std::string_view regel) {
    regel_ = regel;
    std::string_view rest = regel;
    const std::string_view level = Woord(rest);
    std::string_view tag = Woord(rest);
    std::string_view id;
    if (tag.starts_with('@')) {
      id = tag;
      tag = Woord(rest);
    }
    if (level.size() != 1 || level[0] < '0' || level[0] > '9') return Fout("geen level");
    if (tag.empty() || tag.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ12") != tag.npos) {
      return Fout("geen tag");
    }
    const auto diepte = static_cast<std::size_t>(level[0] - '0');
    if (diepte > pad_.size()) return Fout("level overgeslagen");
    if (einde_) Fout("regel achter TRLR");
    if (diepte == 0) Record(id, tag);
    pad_.resize(diepte);
    pad_.emplace_back(tag);
    std::string pad;
    for (const std::string& deel : pad_) pad += (pad.empty() ? "" : "-") + deel;
    ++beeld_.tags[pad];
    if (!IsStandaard(pad)) beeld_.vreemd.insert(pad);
    if (diepte == 1 && rest.size() > 2 && rest.front() == '@' && rest.back() == '@') {
      links_.push_back({id_, std::string(tag), std::string(rest)});
    }
  }

  void Besluit() {
    if (!einde_) Fout("TRLR ontbreekt");
    std::set<std::string> wegen;
    for (const Link& link : links_) wegen.insert(link.van + link.tag + link.naar);
    for (const Link& link : links_) {
      regel_ = link.van + " " + link.tag + " " + link.naar;
      if (!ids_.contains(link.naar)) Fout("verwijzing naar niets");
      const auto terug = [&](std::string_view tag) {
        return wegen.contains(link.naar + std::string(tag) + link.van);
      };
      if (link.tag == "FAMC" && !terug("CHIL")) Fout("geen weg terug");
      if (link.tag == "CHIL" && !terug("FAMC")) Fout("geen weg terug");
      if (link.tag == "FAMS" && !terug("HUSB") && !terug("WIFE")) Fout("geen weg terug");
      if ((link.tag == "HUSB" || link.tag == "WIFE") && !terug("FAMS")) Fout("geen weg terug");
    }
  }

  void Fout(std::string_view tekst) { beeld_.fouten.push_back(std::string(tekst) + ": " + regel_); }

 private:
  struct Link {
    std::string van;
    std::string tag;
    std::string naar;
  };

  void Record(std::string_view id, std::string_view tag) {
    if (pad_.empty() != (tag == "HEAD")) Fout("HEAD is niet de eerste regel");
    einde_ = tag == "TRLR";
    if (id.empty() != (tag == "HEAD" || einde_)) Fout("id");
    if (!id.empty() && !ids_.insert(std::string(id)).second) Fout("id dubbel");
    id_ = id;
  }

  GedcomBeeld& beeld_;
  std::string regel_;
  std::string id_;
  std::vector<std::string> pad_;
  std::set<std::string> ids_;
  std::vector<Link> links_;
  bool einde_ = false;
};

}  // namespace

GedcomBeeld KeurGedcom(std::string_view bytes) {
  GedcomBeeld beeld;
  Keurder keurder(beeld);
  while (!bytes.empty()) {
    const std::size_t einde = bytes.find("\r\n");
    if (einde == std::string_view::npos) {
      keurder.Fout("regel zonder einde");
      break;
    }
    keurder.Regel(bytes.substr(0, einde));
    bytes.remove_prefix(einde + 2);
  }
  keurder.Besluit();
  return beeld;
}

}  // namespace lb77
