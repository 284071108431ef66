// The main window's layout in twips: the button bar, the tool palette, the
// terrain view with its scroll bars and the information panel, laid out on
// every resize and whenever a panel is shown or hidden. Toolkit-free: the
// desktop window places its widgets from these rectangles.
#pragma once

#include "model/Colour.h"

namespace keldor {

struct WindowState;

struct TwipRect {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
};

// The smallest outer size of the main window.
inline constexpr double MinWindowWidth = 9465;
inline constexpr double MinWindowHeight = 7545;

// The margins of the layout rules assume a classic desktop frame around the
// client area: 4-pixel borders, a 19-pixel caption and a 20-pixel menu bar
// (twips at 96 dpi). The window's outer size is its client area plus this
// frame, whatever frame the window system really draws, so that the views
// fill the client area alike on every desktop.
inline constexpr double ClassicFrameWidth = 2 * 60;
inline constexpr double ClassicFrameHeight = 2 * 60 + 285 + 300;

// Quick-toggle colours: green while its panel shows, red while hidden.
inline constexpr Colour QuickShownColour{0, 255, 0};
inline constexpr Colour QuickHiddenColour{255, 0, 0};

struct WindowLayout {
  // Outer size of the window.
  double Width = MinWindowWidth;
  double Height = MinWindowHeight;
  // Design-time geometry, used until the first resize.
  TwipRect ButtonBar{135, -90, 3840, 555};
  TwipRect Actions{630, -90, 500, 555};
  TwipRect PickAction{1125, 30, 240, 400};
  TwipRect Quick1{0, 45, 150, 225};
  TwipRect Quick2{0, 315, 150, 225};
  TwipRect Terrain{135, 495, 6720, 6045};
  TwipRect VScroll{6840, 510, 255, 6015};
  TwipRect HScroll{120, 6525, 6720, 255};
  TwipRect Info{7200, 405, 2175, 2625};
};

// Inside the button bar: the command buttons' left edges and their size.
inline constexpr double BarButtonSize = 400;
inline constexpr double BarButtonTop = 135;
inline constexpr double StartLeft = 45;
inline constexpr double StopLeft = 1260;
inline constexpr double ZoomInLeft = 1710;
inline constexpr double ZoomOutLeft = 2115;
inline constexpr double InfoButtonLeft = 2565;
inline constexpr double OdorLeft = 2970;
inline constexpr double AntsLeft = 3375;
// Inside the information panel.
inline constexpr TwipRect MapBox{90, 225, 2000, 2000};

// Lays the window out for an outer size of width x height. A window smaller
// than the minimum is given the minimum size (the caller resizes the real
// window to layout.Width x layout.Height). Nothing happens while minimised.
// The terrain view keeps the same world point at its centre.
void ResizeWindow(WindowState& window, WindowLayout& layout, double width, double height, bool minimised = false);

// View > Buttons and View > Info: show or hide the panel, then lay out again.
void ToggleButtonBar(WindowState& window, WindowLayout& layout);
void ToggleInfoPanel(WindowState& window, WindowLayout& layout);
// The quick toggles at the window's left edge: 1 the button bar, 2 the panel.
void QuickToggle(WindowState& window, WindowLayout& layout, int index);
// The info button of the button bar: collapse the palette, toggle the panel.
void CloseInfoPanel(WindowState& window, WindowLayout& layout);

Colour QuickButtonColour(bool panelVisible);

}  // namespace keldor
