// A period in which a date lies.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// The day as "jjjjmmdd", from the entry form of a date; blanks for a text of another length.
[[nodiscard]] std::string Jaardag(std::string_view datum10);

// From one day up to another, both included; an empty one sets no bound. kept: dates compare as
// texts, so that a part that is not known is 00 and lies before all that it could be: a period up to
// 1850 ends ahead of January 1850.
class Tijdvak {
 public:
  Tijdvak() = default;
  // In their entry form.
  Tijdvak(std::string_view van, std::string_view tot) : van_(Jaardag(van)), tot_(Jaardag(tot)) {}

  [[nodiscard]] bool IsLeeg() const;
  // An empty period holds any date, and no date too; another holds known dates only.
  [[nodiscard]] bool Bevat(std::string_view datum10) const;

 private:
  std::string van_ = Jaardag({});
  std::string tot_ = Jaardag({});
};

}  // namespace lb77
