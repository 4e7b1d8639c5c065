#include "steun/Vergelijkbaar.h"

#include <cstddef>

namespace lb77 {

std::string Vergelijkbaar(std::string tekst) {
#ifdef _WIN32
  for (std::size_t i = tekst.find("\\\\"); i != std::string::npos; i = tekst.find("\\\\", i)) {
    tekst.replace(i, 2, "/");
  }
  // A line feed stays one: "\\n".
  std::size_t schijf = 0;
  while ((schijf = tekst.find(":\\", schijf)) != std::string::npos) {
    while (schijf < tekst.size() && tekst[schijf] != '"' && tekst[schijf] != '\n') {
      if (tekst[schijf] == '\\' && tekst.substr(schijf + 1, 1) != "n") tekst[schijf] = '/';
      ++schijf;
    }
  }
#endif
  return tekst;
}

}  // namespace lb77
