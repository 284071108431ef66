// The page: wires the controls to the engine session compiled to
// WebAssembly, runs the tick timer, and shows the frames the session draws.
"use strict";

const $ = (id) => document.getElementById(id);
const ToolNames = ["No tool", "Food", "Brick", "Remove ants", "Nest"];
const ToolIcons = [
  '<path d="M5 3l14 9-6 1 4 7-3 1-4-7-5 4z" fill="currentColor"/>',
  '<circle cx="12" cy="12" r="7" fill="#109810" stroke="#0b5d0b" stroke-width="2"/>',
  '<rect x="3" y="7" width="18" height="10" fill="#646496"/><path d="M3 12h18M12 7v5M8 12v5M16 12v5" stroke="#fff" stroke-width="1.2"/>',
  '<ellipse cx="12" cy="13" rx="3" ry="5" fill="#8a5a3c"/><circle cx="12" cy="6" r="2.5" fill="#8a5a3c"/><path d="M4 4l16 16" stroke="#c0392b" stroke-width="2.5"/>',
  '<circle cx="12" cy="12" r="8" fill="#323232"/><circle cx="12" cy="12" r="3" fill="#b9ac91"/>',
];
const MapPixels = 250;
const StatusEverySeconds = 0.25;
const ChartEverySeconds = 0.5;

function cssColour(packed) {
  return `rgb(${packed & 255},${(packed >> 8) & 255},${(packed >> 16) & 255})`;
}

class Page {
  constructor(module) {
    this.module = module;
    this.session = new module.Session(MapPixels);
    this.terrain = $("terrain");
    this.terrainContext = this.terrain.getContext("2d");
    this.map = $("map");
    this.mapContext = this.map.getContext("2d");
    this.shownFrame = -1;
    this.timerDue = 0;
    this.statusAt = 0;
    this.chartAt = 0;
    this.charts = null;
    this.pointer = null;  // the active terrain pointer: {id, buttons, pan, x, y}
    this.buildControls();
    this.watchSize();
    this.refresh();
    requestAnimationFrame(() => this.frame());
    this.scheduleTimer();
  }

  // --- controls ---
  buildControls() {
    const s = this.session;
    const act = (id, fn) => $(id).addEventListener("click", () => { fn(); this.refresh(); });
    act("btnNew", () => s.New());
    act("btnNewSeed", () => { $("txtSeed").value = $("txtSeed").value || "1"; $("dlgSeed").showModal(); });
    $("dlgSeed").addEventListener("close", () => {
      if ($("dlgSeed").returnValue !== "ok") return;
      if (!s.NewWithSeed($("txtSeed").value.trim())) {
        this.message("The seed must be a whole number from 0 to 18446744073709551615.");
      }
      this.refresh();
    });
    act("btnOpen", () => $("fileOpen").click());
    $("fileOpen").addEventListener("change", async () => {
      const file = $("fileOpen").files[0];
      $("fileOpen").value = "";
      if (!file) return;
      const fault = s.OpenText(await file.text());
      if (fault) this.message(fault);
      this.shownFrame = -1;
      this.refresh();
    });
    act("btnSave", () => this.download("keldor-world.json", s.SaveText(), "application/json"));
    act("btnPlay", () => s.PlayPause());
    act("btnStep", () => s.Step());
    const labels = s.SpeedLabels();
    labels.forEach((label, i) => $("selSpeed").add(new Option(label, String(i))));
    $("selSpeed").addEventListener("change", () => { s.SetSpeed(Number($("selSpeed").value)); this.refresh(); });
    act("btnOdor", () => s.ToggleOdor());
    act("btnAnts", () => s.ToggleAnts());
    act("btnZoomIn", () => s.ZoomIn());
    act("btnZoomOut", () => s.ZoomOut());
    act("btnOptions", () => this.openOptions());
    act("btnCharts", () => { $("dlgCharts").show(); this.drawCharts(); });
    act("btnGuide", () => $("dlgGuide").showModal());
    act("btnCsv", () => this.download("keldor-run.csv", s.ChartCsv(), "text/csv"));
    act("btnPalette", () => s.TogglePalette());
    ToolNames.forEach((name, i) => {
      const b = document.createElement("button");
      b.title = name;
      b.dataset.tool = String(i);
      b.innerHTML = `<svg viewBox="0 0 24 24" aria-hidden="true">${ToolIcons[i]}</svg>`;
      b.addEventListener("click", () => { s.SelectTool(i); this.refresh(); });
      $("palette").append(b);
    });
    this.buildOptions();
    this.buildTerrainPointer();
    this.buildMapPointer();
    this.buildScrolling();
    document.addEventListener("keydown", (e) => this.key(e));
  }

  key(e) {
    if (document.querySelector("dialog[open]:modal") || e.target.tagName === "INPUT" || e.target.tagName === "SELECT") return;
    const s = this.session;
    const keys = {
      " ": () => s.PlayPause(), ".": () => s.Step(), "+": () => s.ZoomIn(), "=": () => s.ZoomIn(),
      "-": () => s.ZoomOut(), ArrowLeft: () => s.ScrollBy(-40, 0), ArrowRight: () => s.ScrollBy(40, 0),
      ArrowUp: () => s.ScrollBy(0, -40), ArrowDown: () => s.ScrollBy(0, 40),
      n: () => s.New(), N: () => $("btnNewSeed").click(),
    };
    const run = keys[e.key];
    if (!run || e.ctrlKey || e.metaKey || e.altKey) return;
    e.preventDefault();
    run();
    this.refresh();
  }

  buildOptions() {
    const dialog = $("dlgOptions");
    for (const input of dialog.querySelectorAll("input[data-field]")) {
      input.addEventListener("input", () => this.showOptions(this.session.TypeOption(input.dataset.field, input.value)));
    }
    for (const input of dialog.querySelectorAll("input[data-slider]")) {
      input.addEventListener("input", () => this.showOptions(this.session.MoveOption(input.dataset.slider, Number(input.value))));
    }
    dialog.addEventListener("close", () => { this.session.CloseOptions(dialog.returnValue === "ok"); this.refresh(); });
  }

  openOptions() {
    this.showOptions(this.session.OpenOptions());
    $("dlgOptions").showModal();
  }

  showOptions(fields) {
    if (!fields) return;
    for (const input of $("dlgOptions").querySelectorAll("input[data-field]")) {
      const text = fields[input.dataset.field];
      if (input.value !== text) input.value = text;  // the corrected text, caret at its end
    }
    for (const input of $("dlgOptions").querySelectorAll("input[data-slider]")) {
      input.value = String(fields[input.dataset.slider]);
      input.nextElementSibling.textContent = String(fields[input.dataset.slider]);
    }
    $("optPreview").style.background = cssColour(fields.preview);
  }

  // --- the terrain view: mouse, pen and touch ---
  terrainPoint(e) {
    const r = this.terrain.getBoundingClientRect();
    return { x: (e.clientX - r.left) * this.terrain.width / r.width, y: (e.clientY - r.top) * this.terrain.height / r.height };
  }

  buildTerrainPointer() {
    const t = this.terrain;
    t.addEventListener("contextmenu", (e) => e.preventDefault());
    // Two fingers pinch to zoom: each 25 % change of their distance is one
    // press of a zoom button.
    const touches = new Map();
    let pinch = 0;
    const spread = () => { const [a, b] = [...touches.values()]; return Math.hypot(a.x - b.x, a.y - b.y); };
    t.addEventListener("pointerdown", (e) => {
      if (e.pointerType === "touch") {
        touches.set(e.pointerId, this.terrainPoint(e));
        if (touches.size === 2) {
          if (this.pointer && !this.pointer.pan) this.session.PointerReleased(this.pointer.buttons);
          this.pointer = null;
          pinch = spread();
          return;
        }
      }
      if (this.pointer || !this.session.HasWorld()) return;
      t.setPointerCapture(e.pointerId);
      const p = this.terrainPoint(e);
      const tool = this.session.Controls().tool;
      // A touch with no tool pans the view (a tap still picks); a middle
      // button drag pans with the mouse.
      const pan = e.button === 1 || (e.pointerType === "touch" && tool === 0);
      const buttons = e.button === 2 || (e.pointerType !== "mouse" && $("chkRight").checked) ? 2 : 1;
      this.pointer = { id: e.pointerId, buttons, pan, x: p.x, y: p.y, moved: false };
      if (!pan) this.session.PointerPressed(p.x, p.y, buttons);
      this.refresh();
    });
    t.addEventListener("pointermove", (e) => {
      const p = this.terrainPoint(e);
      if (touches.has(e.pointerId)) touches.set(e.pointerId, p);
      if (touches.size === 2 && pinch > 0) {
        const ratio = spread() / pinch;
        if (ratio > 1.25 || ratio < 0.8) {
          if (ratio > 1) this.session.ZoomIn(); else this.session.ZoomOut();
          pinch = spread();
          this.refresh();
        }
        return;
      }
      const held = this.pointer && this.pointer.id === e.pointerId ? this.pointer : null;
      if (held && held.pan) {
        if (Math.abs(p.x - held.x) + Math.abs(p.y - held.y) > 2) held.moved = true;
        this.session.ScrollBy(held.x - p.x, held.y - p.y);
        held.x = p.x;
        held.y = p.y;
      } else if (!this.pointer || held) {
        this.session.PointerMoved(p.x, p.y, held ? held.buttons : 0);
      }
    });
    const release = (e) => {
      touches.delete(e.pointerId);
      if (touches.size < 2) pinch = 0;
      const held = this.pointer;
      if (!held || held.id !== e.pointerId) return;
      this.pointer = null;
      if (held.pan && !held.moved && e.pointerType === "touch") {
        const p = this.terrainPoint(e);
        this.session.PointerPressed(p.x, p.y, 1);
        this.session.PointerReleased(1);
      } else if (!held.pan) {
        this.session.PointerReleased(held.buttons);
      }
      this.refresh();
    };
    t.addEventListener("pointerup", release);
    t.addEventListener("pointercancel", release);
    t.addEventListener("wheel", (e) => {
      e.preventDefault();
      if (e.ctrlKey) {
        if (e.deltaY < 0) this.session.ZoomIn(); else this.session.ZoomOut();
      } else {
        this.session.ScrollBy(e.shiftKey ? e.deltaY : e.deltaX, e.shiftKey ? 0 : e.deltaY);
      }
      this.refresh();
    }, { passive: false });
  }

  buildMapPointer() {
    const m = this.map;
    const navigate = (e) => {
      const r = m.getBoundingClientRect();
      this.session.NavigateMap((e.clientX - r.left) * m.width / r.width, (e.clientY - r.top) * m.height / r.height);
      this.refresh();
    };
    m.addEventListener("pointerdown", (e) => { m.setPointerCapture(e.pointerId); navigate(e); });
    m.addEventListener("pointermove", (e) => { if (m.hasPointerCapture(e.pointerId)) navigate(e); });
  }

  buildScrolling() {
    const apply = () => { this.session.SetScroll(Number($("hScroll").value), Number($("vScroll").value)); this.refresh(); };
    $("hScroll").addEventListener("input", apply);
    $("vScroll").addEventListener("input", apply);
  }

  watchSize() {
    const fit = () => {
      const r = this.terrain.getBoundingClientRect();
      const w = Math.max(1, Math.floor(r.width));
      const h = Math.max(1, Math.floor(r.height));
      if (w === this.terrain.width && h === this.terrain.height) return;
      this.terrain.width = w;
      this.terrain.height = h;
      this.session.ResizeTerrain(w, h);
      this.shownFrame = -1;
      this.refresh();
    };
    new ResizeObserver(fit).observe(this.terrain);
    fit();
  }

  // --- the tick timer and the frames ---
  scheduleTimer() {
    const s = this.session;
    const interval = s.TimerInterval();
    const now = performance.now();
    if (s.TimerEnabled()) {
      s.Timer(now / 1000);
      this.afterTicks();
    }
    // The next tick is due one interval after this one was, so the timer
    // keeps its rate however long a tick took; a late page catches up once.
    this.timerDue = Math.max(performance.now(), this.timerDue + interval);
    setTimeout(() => this.scheduleTimer(), interval === 0 ? 0 : Math.max(0, this.timerDue - performance.now()));
  }

  afterTicks() {
    const messages = this.session.TakeMessages();
    if (!messages.length) return;
    this.present();
    this.refresh();
    this.message(messages.join("\n"));
  }

  frame() {
    this.present();
    const now = performance.now() / 1000;
    if (now - this.statusAt >= StatusEverySeconds) {
      this.statusAt = now;
      this.refresh();
    }
    if ($("dlgCharts").open && now - this.chartAt >= ChartEverySeconds) {
      this.chartAt = now;
      this.drawCharts();
    }
    requestAnimationFrame(() => this.frame());
  }

  present() {
    const s = this.session;
    const frame = s.FrameNumber();
    if (frame === this.shownFrame) return;
    this.shownFrame = frame;
    const w = s.TerrainWidth(), h = s.TerrainHeight();
    if (w === this.terrain.width && h === this.terrain.height) {
      this.terrainContext.putImageData(imageOf(s.TerrainPixels(), w, h), 0, 0);
      const c = this.terrainContext;
      c.textBaseline = "top";
      for (const t of s.TerrainTexts()) {
        c.font = `${t.size}px sans-serif`;
        c.fillStyle = cssColour(t.colour);
        c.fillText(t.text, t.x, t.y);
      }
    }
    const m = s.MapSize();
    this.mapContext.putImageData(imageOf(s.MapPixels(), m, m), 0, 0);
  }

  // What the controls show, from the session.
  refresh() {
    const s = this.session;
    const c = s.Controls();
    const hasWorld = s.HasWorld();
    for (const id of ["btnPlay", "btnZoomIn", "btnZoomOut", "btnOdor", "btnAnts", "btnPalette"]) $(id).disabled = !c.enabled;
    $("btnStep").disabled = !hasWorld || s.Running();
    $("btnSave").disabled = !hasWorld;
    $("btnPlay").textContent = c.playing ? "Pause" : "Play";
    $("btnPlay").title = `${c.stopTip} (Space)`;
    $("btnOdor").title = c.odorTip;
    $("btnOdor").setAttribute("aria-pressed", String(c.odorShown));
    $("btnAnts").title = c.antsTip;
    $("btnAnts").setAttribute("aria-pressed", String(c.antsShown));
    $("lblZoom").textContent = c.scaleX ? `${+(c.zoom / c.scaleX).toFixed(2)}×` : "";
    $("lblPop").textContent = c.population;
    $("selSpeed").value = String(s.Speed());
    $("palette").classList.toggle("closed", !c.paletteOpen);
    $("btnPalette").textContent = c.paletteOpen ? "▴" : "▾";
    for (const b of $("palette").children) {
      b.setAttribute("aria-pressed", String(Number(b.dataset.tool) === c.tool));
      b.disabled = !c.enabled;
    }
    this.terrain.classList.toggle("tool", c.crossHair);
    $("empty").hidden = hasWorld;
    [$("hScroll"), $("vScroll")].forEach((bar, i) => {
      const v = c.scroll[i];
      bar.min = String(v.min);
      bar.max = String(v.max);
      bar.step = "1";
      if (!bar.matches(":active")) bar.value = String(v.value);  // not under the user's drag
      bar.disabled = !hasWorld;
    });
    const status = s.Status(performance.now() / 1000);
    if ($("status").textContent !== status) $("status").textContent = status;
    this.showInspector();
  }

  showInspector() {
    const report = this.session.Inspect();
    $("inspTitle").textContent = report.title;
    $("inspTitle").classList.toggle("hint", report.lines.length === 0);
    const rows = report.lines.map(([label, value]) => `<tr><td>${escapeHtml(label)}</td><td>${escapeHtml(value)}</td></tr>`);
    const html = rows.join("");
    if ($("inspLines").innerHTML !== html) $("inspLines").innerHTML = html;
  }

  drawCharts() {
    const data = this.session.Charts();
    this.charts = this.charts || {};
    const plot = (key, element, series) => {
      // uPlot wants one x axis: the ticks of all series together, each
      // series with a gap where it has no point (a colony made later).
      const ticks = [...new Set(series.flatMap((one) => one.ticks))].sort((a, b) => a - b);
      const rows = [ticks, ...series.map((one) => {
        const at = new Map(one.ticks.map((tick, i) => [tick, one.values[i]]));
        return ticks.map((tick) => (at.has(tick) ? at.get(tick) : null));
      })];
      const width = Math.max(300, element.clientWidth || 580);
      const signature = series.map((one) => one.name + one.colour).join("|");
      let chart = this.charts[key];
      if (!chart || chart.signature !== signature) {
        if (chart) chart.plot.destroy();
        const palette = ["#2f7d4f", "#c0392b", "#2d6cdf", "#8e44ad"];
        const opts = {
          width, height: 200, legend: { show: true }, scales: { x: { time: false } },
          axes: [{}, { size: 80, values: (u, values) => values.map((v) => v.toLocaleString("en", { notation: "compact" })) }],
          series: [{ label: "tick" }, ...series.map((one, i) => ({
            label: one.name, stroke: one.colour !== undefined ? cssColour(one.colour) : palette[i % palette.length], width: 1.5,
          }))],
        };
        chart = { plot: new uPlot(opts, rows, element), signature };
        this.charts[key] = chart;
      } else {
        chart.plot.setData(rows);
      }
    };
    plot("colonies", $("chartColonies"), data.colonies);
    plot("totals", $("chartTotals"), data.totals);
  }

  message(text) {
    $("txtMessage").textContent = text;
    if (!$("dlgMessage").open) $("dlgMessage").showModal();
  }

  download(name, text, type) {
    const link = document.createElement("a");
    link.href = URL.createObjectURL(new Blob([text], { type }));
    link.download = name;
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 1000);
  }
}

// An ImageData over the session's pixels where they lie in the module's
// memory: putImageData then copies them once, straight onto the canvas.
function imageOf(view, width, height) {
  return new ImageData(new Uint8ClampedArray(view.buffer, view.byteOffset, view.length), width, height);
}

function escapeHtml(text) {
  return String(text).replace(/[&<>"]/g, (ch) => ({ "&": "&amp;", "<": "&lt;", ">": "&gt;", '"': "&quot;" })[ch]);
}

createKeldor().then((module) => { window.keldorPage = new Page(module); });
