#include "pictures/SvgSchrijver.h"

#include <cmath>
#include <cstdint>
#include <string_view>

#include "text/Getallen.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

constexpr double kHonderd = 100;
constexpr double kRond = 360;

// At most two decimals, and none that say nothing.
std::string Getal(double getal) {
  const auto honderdsten = static_cast<std::int64_t>(std::llround(getal * kHonderd));
  const std::int64_t positief = honderdsten < 0 ? -honderdsten : honderdsten;
  std::string uit = honderdsten < 0 ? "-" : "";
  uit += GetalTekst(positief / 100);
  if (positief % 100 == 0) return uit;
  uit += '.';
  uit += GetalTekst(positief % 100 / 10);
  if (positief % 10 != 0) uit += GetalTekst(positief % 10);
  return uit;
}

// Without the control characters, which no XML file may hold.
std::string Gecodeerd(std::string_view tekst) {
  std::string uit;
  for (const char teken : tekst) {
    const char32_t punt = CodepuntVan(teken);
    if (punt < 32 || (punt >= 127 && punt < 160)) continue;
    const bool gewoon =
        punt < 127 && teken != '&' && teken != '<' && teken != '>' && teken != '"' && teken != '\'';
    if (gewoon) {
      uit += teken;
    } else {
      uit += "&#" + GetalTekst(static_cast<std::int64_t>(punt)) + ";";
    }
  }
  return uit;
}

std::string Naam(const Kleur& kleur) {
  constexpr std::string_view kCijfers = "0123456789abcdef";
  std::string uit = "#";
  for (const std::uint8_t deel : {kleur.rood, kleur.groen, kleur.blauw}) {
    uit += kCijfers[deel / 16U];
    uit += kCijfers[deel % 16U];
  }
  return uit;
}

std::string Veld(std::string_view naam, const std::string& waarde) {
  return " " + std::string(naam) + "=\"" + waarde + "\"";
}

std::string Veld(std::string_view naam, double waarde) {
  return Veld(naam, Getal(waarde));
}

std::string Plek(Punt punt) {
  return Getal(punt.x) + " " + Getal(punt.y);
}

std::string Verf(const Vorm& vorm) {
  std::string uit = Veld("fill", vorm.vulling ? Naam(*vorm.vulling) : "none");
  if (!vorm.lijn) return uit;
  uit += Veld("stroke", Naam(*vorm.lijn)) + Veld("stroke-width", vorm.dikte);
  if (vorm.gestippeld) uit += Veld("stroke-dasharray", "3 2");
  return uit;
}

std::string Boog(double straal, bool groot, bool mee, Punt naar) {
  return "A" + Getal(straal) + " " + Getal(straal) + " 0 " + (groot ? "1 " : "0 ") +
         (mee ? "1 " : "0 ") + Plek(naar);
}

// An arc of a whole turn would end where it begins and not be drawn: a ring is drawn in two halves.
std::string Omtrek(const Ringdeel& ring) {
  const double midden = (ring.van + ring.tot) / 2;
  std::string uit = "M" + Plek(OpCirkel(ring.midden, ring.buiten, ring.van));
  uit += Boog(ring.buiten, false, true, OpCirkel(ring.midden, ring.buiten, midden));
  uit += Boog(ring.buiten, false, true, OpCirkel(ring.midden, ring.buiten, ring.tot));
  uit += "L" + Plek(OpCirkel(ring.midden, ring.binnen, ring.tot));
  uit += Boog(ring.binnen, false, false, OpCirkel(ring.midden, ring.binnen, midden));
  uit += Boog(ring.binnen, false, false, OpCirkel(ring.midden, ring.binnen, ring.van));
  return uit + "Z";
}

class Schrijver {
 public:
  explicit Schrijver(const Tekening& tekening) : tekening_(tekening) {}

  [[nodiscard]] std::string Schrijf() {
    Kop();
    for (const Vorm& vorm : tekening_.vormen) {
      Wissel(vorm.doel);
      std::visit([&](const auto& wat) { Teken(vorm, wat); }, vorm.wat);
    }
    Wissel(-1);
    return uit_ + "</svg>\n";
  }

 private:
  void Kop() {
    uit_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
           Veld("width", Getal(tekening_.breedte) + "pt") +
           Veld("height", Getal(tekening_.hoogte) + "pt") +
           Veld("viewBox", "0 0 " + Getal(tekening_.breedte) + " " + Getal(tekening_.hoogte)) +
           Veld("font-family", "Liberation Sans, Arial, Helvetica, sans-serif") + ">\n<title>" +
           Gecodeerd(tekening_.titel) + "</title>\n";
  }

  // The group of one person ends where that of another begins.
  void Wissel(int doel) {
    if (doel == doel_) return;
    if (doel_ >= 0) uit_ += "</g>\n";
    doel_ = doel;
    if (doel < 0) return;
    const Doel& wie = tekening_.doelen[static_cast<std::size_t>(doel)];
    uit_ += "<g><title>" + Gecodeerd(wie.naam) + "</title>\n";
  }

  void Teken(const Vorm& vorm, const Rechthoek& vlak) {
    uit_ += "<rect" + Veld("x", vlak.x) + Veld("y", vlak.y) + Veld("width", vlak.breedte) +
            Veld("height", vlak.hoogte);
    if (vlak.straal > 0) uit_ += Veld("rx", vlak.straal);
    uit_ += Verf(vorm) + "/>\n";
  }

  void Teken(const Vorm& vorm, const Ringdeel& ring) {
    if (ring.binnen <= 0 && ring.tot - ring.van >= kRond) {
      uit_ += "<circle" + Veld("cx", ring.midden.x) + Veld("cy", ring.midden.y) +
              Veld("r", ring.buiten) + Verf(vorm) + "/>\n";
      return;
    }
    uit_ += "<path" + Veld("d", Omtrek(ring)) + Verf(vorm) + "/>\n";
  }

  void Teken(const Vorm& vorm, const Lijnstuk& lijn) {
    std::string punten;
    for (const Punt& punt : lijn.punten) {
      if (!punten.empty()) punten += ' ';
      punten += Getal(punt.x) + "," + Getal(punt.y);
    }
    uit_ += "<polyline" + Veld("points", punten) + Verf(vorm) +
            Veld("stroke-linejoin", std::string("round")) + "/>\n";
  }

  void Teken(const Vorm& vorm, const Opschrift& tekst) {
    uit_ += "<text";
    if (tekst.hoek != 0) {
      uit_ += Veld("transform",
                   "translate(" + Plek(tekst.plek) + ") rotate(" + Getal(tekst.hoek) + ")");
    } else {
      uit_ += Veld("x", tekst.plek.x) + Veld("y", tekst.plek.y);
    }
    uit_ += Veld("font-size", tekst.grootte);
    if (tekst.vet) uit_ += Veld("font-weight", std::string("bold"));
    if (tekst.anker == Tekstanker::Midden) uit_ += Veld("text-anchor", std::string("middle"));
    if (tekst.anker == Tekstanker::Eind) uit_ += Veld("text-anchor", std::string("end"));
    uit_ += Verf(vorm) + ">" + Gecodeerd(tekst.tekst) + "</text>\n";
  }

  const Tekening& tekening_;
  std::string uit_;
  int doel_ = -1;
};

}  // namespace

std::string SvgVan(const Tekening& tekening) {
  return Schrijver(tekening).Schrijf();
}

}  // namespace lb77
