#include "forms/Rijnaam.h"

#include "text/Getallen.h"

namespace lb77 {

std::string Genummerd(std::string_view naam, int nummer) {
  return std::string(naam) + "(" + GetalTekst(nummer) + ")";
}

std::optional<Rijlid> OntleedRijnaam(std::string_view naam) {
  const std::size_t haak = naam.find('(');
  if (haak == std::string_view::npos || haak == 0 || naam.back() != ')') return std::nullopt;
  const std::string_view cijfers = naam.substr(haak + 1, naam.size() - haak - 2);
  const int nummer = Getalwaarde(cijfers);
  if (cijfers != GetalTekst(nummer)) return std::nullopt;
  return Rijlid{naam.substr(0, haak), nummer};
}

}  // namespace lb77
