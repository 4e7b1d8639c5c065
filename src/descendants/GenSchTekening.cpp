#include "descendants/GenSchTekening.h"

#include "output/Tekenvel.h"
#include "reporting/HTMLPagina.h"

namespace lb77 {
namespace {

void Merk(Tekenvel& vel, int rij, int kolom, std::string_view attribuut, const std::string& doel,
          const std::string& label) {
  if (label.empty()) return;
  vel.Merk(rij, kolom, "<A " + std::string(attribuut) + "=" + TussenQuotes(doel) + ">");
  vel.Merk(rij, kolom + static_cast<int>(label.size()), "</A>");
}

}  // namespace

void MerkDoel(Tekenvel& vel, int rij, int kolom, const std::string& label) {
  Merk(vel, rij, kolom, "NAME", label, label);
}

void MerkLink(Tekenvel& vel, int rij, int kolom, const std::string& label) {
  Merk(vel, rij, kolom, "HREF", "#" + label, label);
}

char SchemaKnoop(int rij, GenRij::Bereik kinderen, char enig) {
  if (kinderen.van == kinderen.tot) return enig;
  if (rij == kinderen.van) return '/';
  return rij == kinderen.tot ? '\\' : '+';
}

}  // namespace lb77
