// The ids of the records of a GEDCOM file, and the record numbers that they were given.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace lb77 {

// One row for each record, in file order. Ids are 22 characters wide: longer ones are cut.
class GedIdTabel {
 public:
  // Adds a row. An id that is there already gets a row of its own all the same.
  void Voeg(std::string_view id, std::int16_t nr);

  // The number in row `rij`, from 0; 0 when there is no such row.
  [[nodiscard]] std::int16_t Nr(std::size_t rij) const;

  // The number that a pointer ‘@id@’ means: that of the first row with the id. Blanks at its end do
  // not count. 0 for an id that
  // is not there and for a text that is no pointer.
  [[nodiscard]] std::int16_t NrVan(std::string_view verwijzing) const;

  [[nodiscard]] std::size_t Aantal() const { return rijen_.size(); }

 private:
  struct Rij {
    std::string id;
    std::int16_t nr = 0;
  };
  std::deque<Rij> rijen_;  // keeps its elements where they are, for the views of the index
  std::unordered_map<std::string_view, std::int16_t> eerste_;
};

}  // namespace lb77
