// The session as the page's JavaScript sees it (Embind): plain numbers,
// strings, arrays and objects, and the two pixel buffers as views on the
// module's memory.
#include <emscripten/bind.h>
#include <emscripten/val.h>

#include <charconv>

#include "WebSession.h"

namespace keldor::web {

namespace {

using emscripten::val;

val ToArray(const std::vector<std::string>& items) {
  val out = val::array();
  for (const std::string& item : items) out.call<void>("push", item);
  return out;
}

val CanvasPixels(const PixelCanvas& canvas) {
  const size_t bytes = static_cast<size_t>(canvas.Width()) * static_cast<size_t>(canvas.Height()) * 4;
  return val(emscripten::typed_memory_view(bytes, reinterpret_cast<const uint8_t*>(canvas.Pixels())));
}

val CanvasTexts(const PixelCanvas& canvas) {
  val out = val::array();
  for (const TextItem& t : canvas.Texts()) {
    val item = val::object();
    item.set("x", t.X);
    item.set("y", t.Y);
    item.set("size", t.SizePixels);
    item.set("colour", t.Ink.Packed());
    item.set("text", t.Text);
    out.call<void>("push", item);
  }
  return out;
}

val SeriesPoints(const ChartSeries& series) {
  std::vector<ChartPoint> points;
  series.Points(points);
  val ticks = val::array();
  val values = val::array();
  for (const ChartPoint& p : points) {
    ticks.call<void>("push", static_cast<double>(p.Tick));
    values.call<void>("push", p.Value);
  }
  val out = val::object();
  out.set("ticks", ticks);
  out.set("values", values);
  return out;
}

class SessionHandle {
 public:
  explicit SessionHandle(int mapPixels) : s_(mapPixels) {}

  void New() { s_.New(); }
  // The seed as typed: a whole number from 0 to 2^64 - 1; false otherwise.
  bool NewWithSeed(const std::string& text) {
    uint64_t seed = 0;
    const char* end = text.data() + text.size();
    const auto [ptr, error] = std::from_chars(text.data(), end, seed);
    if (text.empty() || error != std::errc() || ptr != end) return false;
    s_.NewWithSeed(seed);
    return true;
  }
  void PlayPause() { s_.PlayPause(); }
  void Step() { s_.Step(); }
  void SetSpeed(int index) {
    if (index >= 0 && index < static_cast<int>(std::size(AllRunSpeeds))) s_.SetSpeed(AllRunSpeeds[index]);
  }
  int Speed() const { return static_cast<int>(s_.Speed()); }
  void Faster() { s_.SetSpeed(keldor::Faster(s_.Speed())); }
  void Slower() { s_.SetSpeed(keldor::Slower(s_.Speed())); }
  val SpeedLabels() const {
    std::vector<std::string> labels;
    for (RunSpeed speed : AllRunSpeeds) labels.emplace_back(SpeedLabel(speed));
    return ToArray(labels);
  }
  void Timer(double now) { s_.Timer(now); }
  int TimerInterval() const { return s_.TimerIntervalMs(); }
  bool TimerEnabled() const { return s_.TimerEnabled(); }
  bool HasWorld() const { return s_.HasWorld(); }
  bool Running() const { return s_.Running(); }
  double Ticks() const { return static_cast<double>(s_.Ticks()); }
  std::string Status(double now) { return s_.Status(now); }
  val TakeMessages() { return ToArray(s_.TakeMessages()); }

  // What the controls show.
  val Controls() const {
    const WindowState& w = s_.Window();
    const ControlState& c = w.Controls;
    val out = val::object();
    out.set("enabled", c.WorldControlsEnabled);
    out.set("playing", c.StopImage == PlayPauseImage::Pause);
    out.set("stopTip", c.StopToolTip);
    out.set("odorTip", c.OdorToolTip);
    out.set("antsTip", c.AntsToolTip);
    out.set("odorShown", w.View.ShowOdor == 1);
    out.set("antsShown", w.View.ShowAnts == 1);
    out.set("paletteOpen", c.PickActionCaption == "^");
    out.set("tool", static_cast<int>(w.View.CurrentTool));
    out.set("population", c.PopulationCaption);
    out.set("zoom", w.View.ZoomX);
    out.set("scaleX", s_.TheWorld().Settings.ScaleX);
    out.set("crossHair", c.CrossHairPointer);
    out.set("cursorCellX", w.CursorCellX);
    out.set("cursorCellY", w.CursorCellY);
    val bars = val::array();
    for (const ScrollBar* bar : {&w.HScroll1, &w.VScroll1}) {
      val b = val::object();
      b.set("min", std::min(bar->Min, bar->Max));
      b.set("max", std::max(bar->Min, bar->Max));
      b.set("value", bar->Value);
      b.set("page", bar->LargeChange);
      bars.call<void>("push", b);
    }
    out.set("scroll", bars);
    return out;
  }

  void ToggleOdor() { s_.ToggleOdor(); }
  void ToggleAnts() { s_.ToggleAnts(); }
  void ZoomIn() { s_.ZoomIn(); }
  void ZoomOut() { s_.ZoomOut(); }
  void ResizeTerrain(int width, int height) { s_.ResizeTerrain(width, height); }
  void ScrollBy(double dx, double dy) { s_.ScrollBy(dx, dy); }
  void SetScroll(int h, int v) { s_.SetScroll(h, v); }
  void NavigateMap(double x, double y) { s_.NavigateMap(x, y); }
  void PointerPressed(double x, double y, int buttons) { s_.PointerPressed(x, y, buttons); }
  void PointerMoved(double x, double y, int buttons) { s_.PointerMoved(x, y, buttons); }
  void PointerReleased(int buttons) { s_.PointerReleased(buttons); }
  void SelectTool(int tool) { s_.SelectTool(tool); }
  void TogglePalette() { s_.TogglePalette(); }

  double FrameNumber() const { return s_.FrameNumber(); }
  int TerrainWidth() const { return s_.Terrain().Width(); }
  int TerrainHeight() const { return s_.Terrain().Height(); }
  int MapSize() const { return s_.Map().Width(); }
  val TerrainPixels() const { return CanvasPixels(s_.Terrain()); }
  val MapPixels() const { return CanvasPixels(s_.Map()); }
  val TerrainTexts() const { return CanvasTexts(s_.Terrain()); }

  // The options panel: the fields as corrected after every change.
  val OpenOptions() { return OptionsFields(s_.OpenOptions()); }
  val TypeOption(const std::string& field, const std::string& text) {
    OptionsForm* form = s_.Options();
    if (form == nullptr) return val::null();
    if (field == "ants") form->AntCountTyped(text);
    else if (field == "size") form->AntSizeTyped(text);
    else if (field == "red") form->ColourTyped(ColourBox::Red, text);
    else if (field == "green") form->ColourTyped(ColourBox::Green, text);
    else if (field == "blue") form->ColourTyped(ColourBox::Blue, text);
    else if (field == "grid") form->GridSizeTyped(text);
    return OptionsFields(*form);
  }
  val MoveOption(const std::string& slider, int value) {
    OptionsForm* form = s_.Options();
    if (form == nullptr) return val::null();
    if (slider == "lifeSpan") form->LifeSpanMoved(value);
    else if (slider == "foodRate") form->FoodRateMoved(value);
    else if (slider == "foodTrace") form->FoodTraceMoved(value);
    else if (slider == "nestTrace") form->NestTraceMoved(value);
    return OptionsFields(*form);
  }
  void CloseOptions(bool ok) { s_.CloseOptions(ok); }

  void PickAt(double x, double y) { s_.PickAt(x, y); }
  val Inspect() const {
    const PickReport report = s_.Inspect();
    val lines = val::array();
    for (const auto& [label, value] : report.Lines) {
      val line = val::array();
      line.call<void>("push", label);
      line.call<void>("push", value);
      lines.call<void>("push", line);
    }
    val out = val::object();
    out.set("title", report.Title);
    out.set("lines", lines);
    return out;
  }
  val Charts() const {
    const RunChart& chart = s_.Chart();
    val colonies = val::array();
    for (const RunChart::Colony& colony : chart.Colonies()) {
      val c = SeriesPoints(colony.Population);
      c.set("name", colony.Name);
      c.set("colour", colony.Colour.Packed());
      colonies.call<void>("push", c);
    }
    val totals = val::array();
    for (RunChart::Total total : RunChart::AllTotals) {
      val t = SeriesPoints(chart.TotalSeries(total));
      t.set("name", std::string(RunChart::TotalName(total)));
      totals.call<void>("push", t);
    }
    val out = val::object();
    out.set("colonies", colonies);
    out.set("totals", totals);
    out.set("ticks", static_cast<double>(chart.Ticks()));
    return out;
  }
  std::string ChartCsv() const { return s_.ChartCsv(); }

  std::string SaveText() const { return s_.SaveText(); }
  std::string OpenText(const std::string& text) { return s_.OpenText(text); }

 private:
  static val OptionsFields(const OptionsForm& form) {
    val out = val::object();
    out.set("ants", form.NumAntsText());
    out.set("size", form.AntSizeText());
    out.set("red", form.ColourText(ColourBox::Red));
    out.set("green", form.ColourText(ColourBox::Green));
    out.set("blue", form.ColourText(ColourBox::Blue));
    out.set("grid", form.GridDimXText());
    out.set("lifeSpan", form.LifeSpan());
    out.set("foodRate", form.FoodRate());
    out.set("foodTrace", form.FoodTrace());
    out.set("nestTrace", form.NestTrace());
    out.set("preview", form.PreviewColour().Packed());
    return out;
  }

  WebSession s_;
};

}  // namespace

EMSCRIPTEN_BINDINGS(keldor) {
  emscripten::class_<SessionHandle>("Session")
      .constructor<int>()
#define KELDOR_METHOD(name) .function(#name, &SessionHandle::name)
      KELDOR_METHOD(New) KELDOR_METHOD(NewWithSeed) KELDOR_METHOD(PlayPause) KELDOR_METHOD(Step)
      KELDOR_METHOD(SetSpeed) KELDOR_METHOD(Speed) KELDOR_METHOD(Faster) KELDOR_METHOD(Slower)
      KELDOR_METHOD(SpeedLabels) KELDOR_METHOD(Timer) KELDOR_METHOD(TimerInterval) KELDOR_METHOD(TimerEnabled)
      KELDOR_METHOD(HasWorld) KELDOR_METHOD(Running) KELDOR_METHOD(Ticks) KELDOR_METHOD(Status)
      KELDOR_METHOD(TakeMessages) KELDOR_METHOD(Controls) KELDOR_METHOD(ToggleOdor) KELDOR_METHOD(ToggleAnts)
      KELDOR_METHOD(ZoomIn) KELDOR_METHOD(ZoomOut) KELDOR_METHOD(ResizeTerrain) KELDOR_METHOD(ScrollBy)
      KELDOR_METHOD(SetScroll) KELDOR_METHOD(NavigateMap) KELDOR_METHOD(PointerPressed)
      KELDOR_METHOD(PointerMoved) KELDOR_METHOD(PointerReleased) KELDOR_METHOD(SelectTool)
      KELDOR_METHOD(TogglePalette) KELDOR_METHOD(FrameNumber) KELDOR_METHOD(TerrainWidth)
      KELDOR_METHOD(TerrainHeight) KELDOR_METHOD(MapSize) KELDOR_METHOD(TerrainPixels) KELDOR_METHOD(MapPixels)
      KELDOR_METHOD(TerrainTexts) KELDOR_METHOD(OpenOptions) KELDOR_METHOD(TypeOption) KELDOR_METHOD(MoveOption)
      KELDOR_METHOD(CloseOptions) KELDOR_METHOD(PickAt) KELDOR_METHOD(Inspect) KELDOR_METHOD(Charts)
      KELDOR_METHOD(ChartCsv) KELDOR_METHOD(SaveText) KELDOR_METHOD(OpenText);
#undef KELDOR_METHOD
}

}  // namespace keldor::web
