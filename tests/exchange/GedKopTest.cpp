#include <gtest/gtest.h>

#include "exchange/GedKop.h"

namespace lb77 {
namespace {

std::string ContextVan(std::string_view tag) {
  return GedContext(GedSoortVan(tag), "X1");
}

TEST(GedKopTest, DeContextNoemtHetRecord) {
  EXPECT_EQ(ContextVan("INDI"), "P-X1");
  EXPECT_EQ(ContextVan("FAM"), "R-X1");
  EXPECT_EQ(ContextVan("SOUR"), "A-X1");
  EXPECT_EQ(ContextVan("SUBN"), "I-Inzending X1");
  EXPECT_EQ(ContextVan("SUBM"), "Z-Inzender X1");
}

TEST(GedKopTest, HoofdEnEindeHebbenGeenId) {
  EXPECT_EQ(ContextVan("HEAD"), "H-Header");
  EXPECT_EQ(ContextVan("TRLR"), "T-Einde");
}

TEST(GedKopTest, ElkAnderLabelIsEenOnbekendRecord) {
  for (const std::string_view tag : {"", "NOTE", "OBJE", "indi", "FAMILY"}) {
    EXPECT_EQ(GedSoortVan(tag), GedSoort::Anders) << tag;
    EXPECT_EQ(ContextVan(tag), "?-X1") << tag;
  }
}

TEST(GedKopTest, EenBewaarplaatsIsBekendEnHeeftGeenContext) {
  EXPECT_EQ(GedSoortVan("REPO"), GedSoort::Bewaarplaats);
  EXPECT_EQ(ContextVan("REPO"), "");
}

}  // namespace
}  // namespace lb77
