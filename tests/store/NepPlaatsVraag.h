// A user who is asked for places: keeps the questions, and answers from a list.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "store/PlaatsVraag.h"

namespace lb77 {

class NepPlaatsVraag final : public PlaatsVraag {
 public:
  // Answers for the questions to come, in order. A question without one fails the test.
  explicit NepPlaatsVraag(std::deque<bool> antwoorden = {}) : antwoorden_(std::move(antwoorden)) {}
  ~NepPlaatsVraag() override { EXPECT_TRUE(antwoorden_.empty()) << "antwoord niet gebruikt"; }

  [[nodiscard]] bool Bevestig(std::string_view naam, std::string_view prov) override {
    return Antwoord("bevestig " + std::string(naam) + " (" + std::string(prov) + ")");
  }
  [[nodiscard]] bool NogVerder() override { return Antwoord("verder"); }
  [[nodiscard]] bool Toevoegen(std::string_view naam) override {
    return Antwoord("toevoegen " + std::string(naam));
  }
  std::string Provincie(std::string_view naam, std::string_view prov) override {
    vragen.push_back("provincie " + std::string(naam) + " [" + std::string(prov) + "]");
    return "ZH";
  }

  std::vector<std::string> vragen;

 private:
  bool Antwoord(std::string vraag) {
    vragen.push_back(std::move(vraag));
    if (antwoorden_.empty()) {
      ADD_FAILURE() << "vraag zonder antwoord: " << vragen.back();
      return false;
    }
    const bool antwoord = antwoorden_.front();
    antwoorden_.pop_front();
    return antwoord;
  }

  std::deque<bool> antwoorden_;
};

}  // namespace lb77
