#include "pictures/Boomplaatsing.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace lb77 {
namespace {

constexpr int kGeen = -1;

// What the algorithm knows of a node, under the names of its paper.
struct Werkknoop {
  int ouder = kGeen;
  int eerste = kGeen;
  int laatste = kGeen;
  int links = kGeen;  // the brother before it
  int rang = 0;       // among its brothers
  int ancestor = kGeen;
  int thread = kGeen;  // the next node of its contour, where it has no child
  double breedte = 0;
  double prelim = 0;
  double mod = 0;
  double change = 0;
  double shift = 0;
};

class Plaatser {
 public:
  Plaatser(const std::vector<Boomknoop>& knopen, const Boomafstand& afstand)
      : w_(knopen.size()), afstand_(afstand) {
    for (std::size_t i = 0; i < knopen.size(); ++i) {
      const int v = static_cast<int>(i);
      K(v).ancestor = v;
      K(v).breedte = knopen[i].breedte;
      K(v).ouder = knopen[i].vorige;
      if (knopen[i].vorige != kGeen) VoegKind(knopen[i].vorige, v);
    }
  }

  // Children stand behind their parents: backward, all subtrees of a node are ready before it.
  [[nodiscard]] std::vector<double> Plaats() {
    for (int v = Aantal() - 1; v >= 0; --v) {
      if (K(v).eerste != kGeen) VoegSamen(v);
    }
    std::vector<double> uit(w_.size());
    std::vector<double> som(w_.size());  // of the modifiers above a node
    double laagste = std::numeric_limits<double>::max();
    for (std::size_t i = 0; i < w_.size(); ++i) {
      if (w_[i].ouder != kGeen) {
        const auto ouder = static_cast<std::size_t>(w_[i].ouder);
        som[i] = som[ouder] + w_[ouder].mod;
      }
      uit[i] = w_[i].prelim + som[i];
      laagste = std::min(laagste, uit[i] - w_[i].breedte / 2);
    }
    for (double& plek : uit) plek -= laagste;
    return uit;
  }

 private:
  [[nodiscard]] Werkknoop& K(int v) { return w_[static_cast<std::size_t>(v)]; }
  [[nodiscard]] int Aantal() const { return static_cast<int>(w_.size()); }

  void VoegKind(int ouder, int v) {
    const int vorige = K(ouder).laatste;
    K(v).links = vorige;
    K(v).rang = vorige == kGeen ? 0 : K(vorige).rang + 1;
    if (vorige == kGeen) K(ouder).eerste = v;
    K(ouder).laatste = v;
  }

  [[nodiscard]] double Tussen(int a, int b) {
    const double wit = K(a).ouder == K(b).ouder ? afstand_.samen : afstand_.apart;
    return (K(a).breedte + K(b).breedte) / 2 + wit;
  }
  [[nodiscard]] int LinkerRand(int v) { return K(v).eerste != kGeen ? K(v).eerste : K(v).thread; }
  [[nodiscard]] int RechterRand(int v) {
    return K(v).laatste != kGeen ? K(v).laatste : K(v).thread;
  }

  // The subtrees below `v`, which are placed each by itself, side by side.
  void VoegSamen(int v) {
    int standaard = K(v).eerste;
    int aantal = 0;
    for (int kind = K(v).eerste; kind != kGeen; kind = Volgende(v, kind)) {
      const double midden =
          K(kind).eerste == kGeen ? 0 : (K(K(kind).eerste).prelim + K(K(kind).laatste).prelim) / 2;
      const int links = K(kind).links;
      K(kind).prelim = links == kGeen ? midden : K(links).prelim + Tussen(links, kind);
      K(kind).mod = K(kind).eerste == kGeen ? 0 : K(kind).prelim - midden;
      standaard = Schuif(kind, standaard);
      ++aantal;
    }
    VerdeelSchuiven(v, aantal);
    if (K(v).ouder == kGeen) K(v).prelim = (K(K(v).eerste).prelim + K(K(v).laatste).prelim) / 2;
  }

  // Children of one node stand together.
  [[nodiscard]] int Volgende(int ouder, int kind) {
    return kind == K(ouder).laatste ? kGeen : kind + 1;
  }

  // Apportion: moves the subtree of `v` clear of those to its left.
  int Schuif(int v, int standaard) {
    if (K(v).links == kGeen) return standaard;
    int vir = v;
    int vor = v;
    int vil = K(v).links;
    int vol = K(K(v).ouder).eerste;
    double sir = K(vir).mod;
    double sor = K(vor).mod;
    double sil = K(vil).mod;
    double sol = K(vol).mod;
    while (RechterRand(vil) != kGeen && LinkerRand(vir) != kGeen) {
      vil = RechterRand(vil);
      vir = LinkerRand(vir);
      vol = LinkerRand(vol);
      vor = RechterRand(vor);
      K(vor).ancestor = v;
      const double schuif = K(vil).prelim + sil - (K(vir).prelim + sir) + Tussen(vil, vir);
      if (schuif > 0) {
        const bool broer = K(K(vil).ancestor).ouder == K(v).ouder;
        Verplaats(broer ? K(vil).ancestor : standaard, v, schuif);
        sir += schuif;
        sor += schuif;
      }
      sil += K(vil).mod;
      sir += K(vir).mod;
      sol += K(vol).mod;
      sor += K(vor).mod;
    }
    if (RechterRand(vil) != kGeen && RechterRand(vor) == kGeen) {
      K(vor).thread = RechterRand(vil);
      K(vor).mod += sil - sor;
    }
    if (LinkerRand(vir) != kGeen && LinkerRand(vol) == kGeen) {
      K(vol).thread = LinkerRand(vir);
      K(vol).mod += sir - sol;
      return v;
    }
    return standaard;
  }

  void Verplaats(int van, int naar, double schuif) {
    const double deel = schuif / (K(naar).rang - K(van).rang);
    K(naar).change -= deel;
    K(naar).shift += schuif;
    K(van).change += deel;
    K(naar).prelim += schuif;
    K(naar).mod += schuif;
  }

  void VerdeelSchuiven(int v, int aantal) {
    double schuif = 0;
    double change = 0;
    for (int kind = K(v).laatste; aantal > 0; --aantal, kind = K(kind).links) {
      K(kind).prelim += schuif;
      K(kind).mod += schuif;
      change += K(kind).change;
      schuif += K(kind).shift + change;
    }
  }

  std::vector<Werkknoop> w_;
  Boomafstand afstand_;
};

}  // namespace

std::vector<double> PlaatsBoom(const std::vector<Boomknoop>& knopen, const Boomafstand& afstand) {
  return Plaatser(knopen, afstand).Plaats();
}

}  // namespace lb77
