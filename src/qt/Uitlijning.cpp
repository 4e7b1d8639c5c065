// The part of the layout maker that brings the prompts of a window in line.
#include <QGridLayout>
#include <QLayoutItem>
#include <QWidget>
#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "qt/Opmaker.h"

namespace lb77 {

namespace {

constexpr int kSmalsteScherm = 1008;  // pixels, without the frame of a window
constexpr int kRanden = 40;           // that the edges of a window take
constexpr int kKader = 48;            // that those of a frame in it take

// What the widest thing asks that stands in this column alone.
int Kolombreedte(const QGridLayout& rooster, int kolom) {
  int breedte = 0;
  for (int i = 0; i < rooster.count(); ++i) {
    int regel = 0;
    int begin = 0;
    int regels = 0;
    int kolommen = 0;
    rooster.getItemPosition(i, &regel, &begin, &regels, &kolommen);
    if (begin == kolom && kolommen == 1) {
      breedte = std::max(breedte, rooster.itemAt(i)->sizeHint().width());
    }
  }
  return breedte;
}

// Asked of the grids themselves: what the frames around them know of it may be old.
int Breedste(const std::vector<QGridLayout*>& roosters) {
  int breedte = 0;
  for (const QGridLayout* een : roosters) {
    breedte = std::max(breedte, een->totalMinimumSize().width());
  }
  return breedte;
}

// What a grid asks is known to the frames around it by their own hints, which they keep.
void ZetBreedte(QGridLayout& rooster, int kolom, int breedte, const QWidget& tot) {
  rooster.setColumnMinimumWidth(kolom, breedte);
  for (QWidget* om = rooster.parentWidget(); om && om != &tot; om = om->parentWidget()) {
    if (om->layout()) om->layout()->invalidate();
    om->updateGeometry();
  }
}

}  // namespace

void Opmaker::Onthoud(QGridLayout& rooster, bool velden) {
  if (naast_ == 0) zijden_.push_back({&rooster, diepte_, velden});
}

// Gives the column the same width in all these grids, unless the window would leave the smallest
// screen by it.
void Opmaker::LijnUit(const std::vector<QGridLayout*>& roosters, int kolom) {
  int breedte = 0;
  for (const QGridLayout* een : roosters) breedte = std::max(breedte, Kolombreedte(*een, kolom));
  const int voor = Breedste(roosters);
  for (QGridLayout* een : roosters) {
    // A grid of lists and buttons has no prompts to bring in line.
    if (Kolombreedte(*een, kolom) > 0) ZetBreedte(*een, kolom, breedte, ouder_);
  }
  const int ruimte = kSmalsteScherm - kRanden - kKader;
  if (Breedste(roosters) <= std::max(voor, ruimte)) return;
  for (QGridLayout* een : roosters) ZetBreedte(*een, kolom, 0, ouder_);
}

// The first prompts of all grids at one depth, and the second ones of those that have two.
void Opmaker::LijnAllesUit() {
  std::map<int, std::vector<QGridLayout*>> eerste;
  std::map<std::pair<int, int>, std::vector<QGridLayout*>> tweede;
  for (const Zijde& een : zijden_) {
    eerste[een.diepte].push_back(een.rooster);
    const int kolommen = een.rooster->columnCount();
    if (een.velden && kolommen >= 4) tweede[{een.diepte, kolommen}].push_back(een.rooster);
  }
  for (const auto& [diepte, roosters] : eerste) LijnUit(roosters, 0);
  for (const auto& [soort, roosters] : tweede) LijnUit(roosters, 2);
}

}  // namespace lb77
