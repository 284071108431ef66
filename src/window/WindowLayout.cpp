#include "window/WindowLayout.h"

#include "window/Commands.h"
#include "window/Viewport.h"
#include "window/WindowState.h"

namespace keldor {

void ResizeWindow(WindowState& window, WindowLayout& layout, double width, double height, bool minimised) {
  if (minimised) return;
  layout.Width = width < MinWindowWidth ? MinWindowWidth : width;
  layout.Height = height < MinWindowHeight ? MinWindowHeight : height;
  const bool barVisible = window.Controls.ButtonBarVisible;
  const bool infoVisible = window.View.InfoVisible;

  layout.Actions.Top = layout.ButtonBar.Top;
  layout.Actions.Left = StartLeft + BarButtonSize + 180;
  layout.Actions.Height = window.Controls.ActionsHeight;

  TwipRect& t = layout.Terrain;
  t.Top = barVisible ? layout.ButtonBar.Height - 90 : 0;
  t.Width = layout.Width - t.Left - layout.VScroll.Width - (infoVisible ? layout.Info.Width + 90 : 0) - 180;
  // The bar's height is taken off whether or not the bar shows.
  t.Height = layout.Height - t.Top - layout.HScroll.Height - layout.ButtonBar.Height - 180;

  layout.Info.Top = t.Top - 90;
  layout.Info.Left = t.Left + t.Width + layout.VScroll.Width + 90;
  layout.VScroll.Top = t.Top;
  layout.VScroll.Height = t.Height;
  layout.VScroll.Left = t.Left + t.Width;
  layout.HScroll.Width = t.Width;
  layout.HScroll.Top = t.Top + t.Height;

  ResizeTerrainView(window, t.Width, t.Height);
}

void ToggleButtonBar(WindowState& window, WindowLayout& layout) {
  window.Controls.ButtonBarVisible = !window.Controls.ButtonBarVisible;
  ResizeWindow(window, layout, layout.Width, layout.Height);
}

void ToggleInfoPanel(WindowState& window, WindowLayout& layout) {
  window.View.InfoVisible = !window.View.InfoVisible;
  ResizeWindow(window, layout, layout.Width, layout.Height);
}

void QuickToggle(WindowState& window, WindowLayout& layout, int index) {
  if (index == 1) ToggleButtonBar(window, layout);
  if (index == 2) ToggleInfoPanel(window, layout);
}

void CloseInfoPanel(WindowState& window, WindowLayout& layout) {
  CollapsePalette(window);
  ToggleInfoPanel(window, layout);
}

Colour QuickButtonColour(bool panelVisible) { return panelVisible ? QuickShownColour : QuickHiddenColour; }

}  // namespace keldor
