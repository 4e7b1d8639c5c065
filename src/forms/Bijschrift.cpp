#include "forms/Bijschrift.h"

#include "text/Tekens.h"

namespace lb77 {

std::string ZonderSneltoets(std::string_view bijschrift) {
  std::string uit;
  for (std::size_t i = 0; i < bijschrift.size(); ++i) {
    if (bijschrift[i] == '&' && i + 1 < bijschrift.size()) ++i;
    uit += bijschrift[i];
  }
  return uit;
}

char Sneltoets(std::string_view bijschrift) {
  for (std::size_t i = 0; i + 1 < bijschrift.size(); ++i) {
    if (bijschrift[i] != '&') continue;
    if (bijschrift[i + 1] != '&') return Hoofdletter(bijschrift[i + 1]);
    ++i;
  }
  return 0;
}

}  // namespace lb77
