// A JSON document as text in the layout the world files have always had:
// keys sorted at every level, four spaces of indentation, "key": value, an
// empty list as "[" and "]" on their own lines, and numbers in the shortest
// form that reads back as the same double (whole ones as integers).
#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace keldor {

// The text of a document whose objects keep their keys sorted (nlohmann::json
// does). A number that is not finite is written as null.
std::string JsonText(const nlohmann::json& document);

// A finite double as the document writes it: "5" for a whole number within
// 64 bits ("0" for -0), otherwise the shortest digits that read back as the
// same value, in decimal or exponent form ("0.1", "1e-05", "1.5e+20"),
// whichever is shorter.
std::string NumberText(double value);

}  // namespace keldor
