// Places the nodes of a tree, by the algorithm of Buchheim, Jünger and Leipert ("Improving Walker's
// Algorithm to Run in Linear Time", 2002).
#pragma once

#include <vector>

namespace lb77 {

// A node: the one that it hangs on, which stands before it, or -1; and the room that it takes across
// the direction in which the tree grows.
struct Boomknoop {
  int vorige = -1;
  double breedte = 0;
};

// The distance between two neighbours: children of the same node, and others.
struct Boomafstand {
  double samen = 0;
  double apart = 0;
};

// The middle of each node across the direction of growth, the leftmost edge of all at 0. A node stands
// halfway its first and its last child; brothers keep their order; nodes of one generation never
// overlap; the same subtree has the same shape everywhere. Nodes come generation by generation,
// children in the order of their parents. Without recursion; the time is linear in the nodes.
[[nodiscard]] std::vector<double> PlaatsBoom(const std::vector<Boomknoop>& knopen,
                                             const Boomafstand& afstand);

}  // namespace lb77
