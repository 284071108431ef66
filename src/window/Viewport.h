// The viewport: the two scroll bars that pan the terrain view, the zoom, and
// the rules that keep the view inside the world. Toolkit-free: the desktop
// window mirrors these values onto its widgets.
#pragma once


namespace keldor {

struct WindowState;

// Scroll ranges from the map scale, the view size and the zoom.
void SetScrollRanges(WindowState& window);

// Set a scroll value (clamped into the bar's range) and run its change
// handler, which moves the terrain origin and the view centre.
void SetHorizontalScroll(WindowState& window, int value);
void SetVerticalScroll(WindowState& window, int value);
void HorizontalScrollChanged(WindowState& window);
void VerticalScrollChanged(WindowState& window);

// Put both scroll values at the middle of their ranges (start-up and New).
void CentreScrollBars(WindowState& window);

// Put the view centre back at (ViewCentreX, ViewCentreY), clamped to the ranges.
void RecentreView(WindowState& window);

// The zoom buttons: collapse the tool palette, change the zoom (never below 2),
// keep the view centre and fit the terrain font size into 1..8.
void ZoomIn(WindowState& window);
void ZoomOut(WindowState& window);
// The zoom and view the zoom buttons reach at `zoom` (at least 2): each press
// clamps the view centre at its own zoom, so the steps are taken one by one.
void ZoomTo(WindowState& window, int zoom);

// The viewport part of a window resize: the terrain view's inner size became
// newWidth x newHeight terrain units. Keeps the world point at the centre
// unless that would push the view past the world's edge.
void ResizeTerrainView(WindowState& window, double newWidth, double newHeight);

// Mini-map pointing: centre the terrain view on world point (x, y), clamped.
void NavigateFromMap(WindowState& window, double x, double y);

// The arrow keys: move both scroll bars by `columns` and `rows` of their
// small change (a cell), as their arrow buttons do, clamped to their ranges.
void ScrollBySteps(WindowState& window, int columns, int rows);

// Following an ant: when world point (x, y) lies outside the middle of the
// terrain view (a tenth of the view from any edge), centre the view on it as
// the mini-map does.
void KeepInView(WindowState& window, double x, double y);

}  // namespace keldor
