// The program's own name and the authorship texts shown by the splash screen
// and the About box.
#pragma once

namespace keldor {

inline constexpr const char* ApplicationTitle = "Keldor";
inline constexpr const char* AuthorshipText = "Keldor developers";
inline constexpr const char* WebAddressText = "https://keldor.example.org";

}  // namespace keldor
