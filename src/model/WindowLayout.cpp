#include "model/WindowLayout.h"

#include "model/Commands.h"
#include "model/Viewport.h"
#include "model/World.h"

namespace keldor {

void ResizeWindow(World& world, WindowLayout& layout, double width, double height, bool minimised) {
  if (minimised) return;
  layout.Width = width < MinWindowWidth ? MinWindowWidth : width;
  layout.Height = height < MinWindowHeight ? MinWindowHeight : height;
  const bool barVisible = world.Controls.ButtonBarVisible;
  const bool infoVisible = world.Controls.InfoVisible;

  layout.Actions.Top = layout.ButtonBar.Top;
  layout.Actions.Left = StartLeft + BarButtonSize + 180;
  layout.Actions.Height = world.Controls.ActionsHeight;

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

  ResizeTerrainView(world, t.Width, t.Height);
}

void ToggleButtonBar(World& world, WindowLayout& layout) {
  world.Controls.ButtonBarVisible = !world.Controls.ButtonBarVisible;
  ResizeWindow(world, layout, layout.Width, layout.Height);
}

void ToggleInfoPanel(World& world, WindowLayout& layout) {
  world.Controls.InfoVisible = !world.Controls.InfoVisible;
  ResizeWindow(world, layout, layout.Width, layout.Height);
}

void QuickToggle(World& world, WindowLayout& layout, int index) {
  if (index == 1) ToggleButtonBar(world, layout);
  if (index == 2) ToggleInfoPanel(world, layout);
}

void CloseInfoPanel(World& world, WindowLayout& layout) {
  CollapsePalette(world);
  ToggleInfoPanel(world, layout);
}

double QuickButtonColour(bool panelVisible) { return panelVisible ? QuickShownColour : QuickHiddenColour; }

}  // namespace keldor
