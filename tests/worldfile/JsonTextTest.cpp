// The document layout and number forms of world files, worked by hand from
// the rules: whole numbers up to 2^53 as integers; otherwise the shortest
// digits d1..dn with value 0.d1..dn x 10^p, written in decimal unless the
// exponent form is shorter (bias 4, +1 when n <= p and n > 1, -1 when n == 1
// and p <= 0).
#include <gtest/gtest.h>

#include <limits>

#include "worldfile/JsonText.h"

namespace keldor {
namespace {

TEST(NumberTextTest, WholeNumbersUpTo2To53AreIntegers) {
  EXPECT_EQ(NumberText(5.0), "5");
  EXPECT_EQ(NumberText(-0.0), "0");
  EXPECT_EQ(NumberText(9007199254740992.0), "9007199254740992");  // 2^53
  // Beyond 2^53 the digits are the shortest: "1", p = 17, 17 > 1 + 4.
  EXPECT_EQ(NumberText(1e16), "1e+16");
  // "15", p = 21 > 2 + 5.
  EXPECT_EQ(NumberText(1.5e20), "1.5e+20");
  // "12345678901234568", p = 18 <= 17 + 5: decimal, padded with a zero.
  EXPECT_EQ(NumberText(123456789012345678.0), "123456789012345680");
}

TEST(NumberTextTest, SmallNumbersTurnToExponentFormPastTheBias) {
  EXPECT_EQ(NumberText(0.001), "0.001");  // "1", p = -2: 1 - p = 3 <= 3
  EXPECT_EQ(NumberText(0.0001), "1e-04");  // p = -3: 4 > 3
  EXPECT_EQ(NumberText(0.00012), "0.00012");  // "12", p = -3: 4 <= 4
  EXPECT_EQ(NumberText(0.000012), "1.2e-05");  // p = -4: 5 > 4
  EXPECT_EQ(NumberText(5e-324), "5e-324");
}

TEST(NumberTextTest, FractionsHaveTheirShortestRoundTripDigits) {
  EXPECT_EQ(NumberText(0.1), "0.1");
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(NumberText(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(NumberText(-2.5), "-2.5");
  EXPECT_EQ(NumberText(170.10000000000002), "170.10000000000002");
  EXPECT_EQ(NumberText(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
}

TEST(JsonTextTest, SortedKeysFourSpacesAndEmptyListsOnTwoLines) {
  nlohmann::json document = nlohmann::json::object();
  document["b"] = nlohmann::json::array();
  document["a"]["y"] = "q\"\\\n\x01";
  document["a"]["x"] = 1.5;
  document["c"] = nlohmann::json::array({nlohmann::json::object({{"k", true}}), nullptr});
  EXPECT_EQ(JsonText(document),
            "{\n"
            "    \"a\": {\n"
            "        \"x\": 1.5,\n"
            "        \"y\": \"q\\\"\\\\\\n\\u0001\"\n"
            "    },\n"
            "    \"b\": [\n"
            "    ],\n"
            "    \"c\": [\n"
            "        {\n"
            "            \"k\": true\n"
            "        },\n"
            "        null\n"
            "    ]\n"
            "}\n");
}

}  // namespace
}  // namespace keldor
