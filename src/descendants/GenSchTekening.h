// The two drawings of a descendant chart, in characters. Neither knows a form.
#pragma once

#include "descendants/GenOpties.h"
#include "descendants/GenRij.h"
#include "descendants/GenSchPersoon.h"
#include "descendants/GenTabel.h"
#include "reporting/Verloop.h"

namespace lb77 {

class Tekenvel;
class TekstSchrijver;

// What a drawing needs; all of it outlives it.
struct SchemaBron {
  const GenTabel& tabel;
  const GenRij& rijen;
  const GenOpties& opties;
  GenSchLezer& lezer;
  const Verloop& verloop;
};

// The width of a generation's column in the horizontal form, its connecting piece counted.
[[nodiscard]] int SchemaKolom(const GenOpties& opties);

// Each generation a column, each position a line; the stop is tested before each. The line of a
// parent ends in "<" where it divides; his children hang on the stroke behind it, each by a joint: "/"
// the first, "\" the last, "+" one between them, "=" an only child. A text beside which children are
// drawn goes on beneath itself where its column is full. The writer must not break lines.
[[nodiscard]] Uitslag TekenHorizontaal(const SchemaBron& bron, TekstSchrijver& uit);

// Each generation a group of lines, each position a column, all as wide as the widest block. All
// persons are read, with the stop tested before each, and then drawn.
[[nodiscard]] Uitslag TekenVerticaal(const SchemaBron& bron, TekstSchrijver& uit);

// For both: makes the text `label` at that place a target, or a link to one; an empty one is nothing.
void MerkDoel(Tekenvel& vel, int rij, int kolom, const std::string& label);
void MerkLink(Tekenvel& vel, int rij, int kolom, const std::string& label);
// The joint by which a child at `rij` hangs on the stroke of its brothers and sisters; `enig` is that
// of an only child.
[[nodiscard]] char SchemaKnoop(int rij, GenRij::Bereik kinderen, char enig);

}  // namespace lb77
