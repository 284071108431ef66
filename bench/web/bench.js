// Speed of the browser edition in headless Chromium beside the desktop
// build's, in one run:
//   cd web && node ../bench/web/bench.js   (after scripts/build-web.sh and the release build)
// The page: the default world (seed 11) at Fastest, ticks a second over 5 s
// with the page's own timer and drawing; and the largest world (grid 181,
// New's nest and nine more of 3000 ants on a ring, as the desktop benchmarks
// build it) drawn and shown tick after tick at zoom 10 and at zoom 2. The
// desktop: sim_bench's default and largest worlds and render_bench's frames.
"use strict";
const path = require("path");
const { execFileSync } = require("child_process");
const { openPage } = require("../../web/tests/PageDriver");
// Run from web/ so that playwright-core resolves: cd web && node ../bench/web/bench.js

const Bin = path.resolve(__dirname, "../../build/bin");

function desktop(binary, filter) {
  const out = execFileSync(path.join(Bin, binary), [`--benchmark_filter=${filter}`, "--benchmark_format=json"], {
    env: { ...process.env, QT_QPA_PLATFORM: "offscreen" }, stdio: ["ignore", "pipe", "ignore"],
  });
  return JSON.parse(out).benchmarks.map((b) => {
    const seconds = b.real_time * { ns: 1e-9, us: 1e-6, ms: 1e-3, s: 1 }[b.time_unit];
    return { name: `${binary} ${b.name}`, perSecond: 1 / seconds };
  });
}

// Ticks a second of the page's own loop at Fastest.
async function fastest(page, seconds) {
  await page.evaluate(() => { const s = window.keldorPage.session; s.NewWithSeed("11"); s.SetSpeed(6); s.PlayPause(); });
  await page.waitForTimeout(1000);
  const start = await page.evaluate(() => [window.keldorPage.session.Ticks(), performance.now()]);
  await page.waitForTimeout(seconds * 1000);
  const end = await page.evaluate(() => [window.keldorPage.session.Ticks(), performance.now()]);
  await page.evaluate(() => { const s = window.keldorPage.session; s.PlayPause(); s.SetSpeed(2); });
  return (end[0] - start[0]) / ((end[1] - start[1]) / 1000);
}

// The largest world, made through the options and the nest tool.
async function buildLargest(page) {
  return page.evaluate(() => {
    const p = window.keldorPage;
    const s = p.session;
    s.OpenOptions();
    s.TypeOption("grid", "181");
    s.TypeOption("ants", "3000");
    s.CloseOptions(true);
    s.NewWithSeed("11");
    const cellSize = 2000 / 181;
    s.SelectTool(4);
    for (let k = 0; k < 9; ++k) {
      const x = 91 + Math.trunc(60 * Math.cos((k * 2 * 3.1415926) / 9));
      const y = 91 + Math.trunc(60 * Math.sin((k * 2 * 3.1415926) / 9));
      const mapPixels = s.MapSize() / 2000;
      s.NavigateMap((x - 0.5) * cellSize * mapPixels, (y - 0.5) * cellSize * mapPixels);
      const c = s.Controls();
      const left = c.scroll[0].value - (s.TerrainWidth() * 15) / 2;
      const top = c.scroll[1].value - (s.TerrainHeight() * 15) / 2;
      s.PointerPressed(((x - 0.5) * cellSize * c.zoom - left) / 15, ((y - 0.5) * cellSize * c.zoom - top) / 15, 1);
      s.PointerReleased(1);
    }
    s.SelectTool(0);
    s.NavigateMap(s.MapSize() / 2, s.MapSize() / 2);
    s.Step();  // the population label shows the count after a tick
    return { population: s.Controls().population };
  });
}

// Ticks a second without drawing: the session's Fastest slices back to back.
async function undrawnTicks(page, seconds) {
  return page.evaluate((seconds) => {
    const s = window.keldorPage.session;
    s.SetSpeed(6);
    s.PlayPause();
    const start = performance.now();
    const first = s.Ticks();
    while (performance.now() - start < seconds * 1000) s.Timer(performance.now() / 1000);
    const rate = (s.Ticks() - first) / ((performance.now() - start) / 1000);
    s.PlayPause();
    s.SetSpeed(2);
    return rate;
  }, seconds);
}

// Drawn ticks a second: each tick drawn by the session and shown on the
// page's canvas, the browser free to paint between them.
async function drawnTicks(page, seconds) {
  return page.evaluate(async (seconds) => {
    const p = window.keldorPage;
    const s = p.session;
    if (!s.Running()) s.PlayPause();
    const start = performance.now();
    const first = s.Ticks();
    while (performance.now() - start < seconds * 1000) {
      s.Timer(performance.now() / 1000);
      p.present();
      await new Promise((resolve) => setTimeout(resolve, 0));
    }
    const rate = (s.Ticks() - first) / ((performance.now() - start) / 1000);
    s.PlayPause();
    return rate;
  }, seconds);
}

(async () => {
  const rows = [];
  const browser = await openPage({ width: 1366, height: 768 });
  const { page } = browser;
  const terrain = await page.evaluate(() => `${window.keldorPage.session.TerrainWidth()}x${window.keldorPage.session.TerrainHeight()}`);
  rows.push({ name: "page: default world at Fastest (drawn ~30/s)", perSecond: await fastest(page, 5) });
  // Each figure starts from the same freshly built world: its population
  // changes quickly, and with it the work of a tick.
  const largest = await buildLargest(page);
  rows.push({ name: `page: largest world (${largest.population} ants), undrawn`, perSecond: await undrawnTicks(page, 5) });
  await buildLargest(page);
  rows.push({ name: `page: largest world, drawn, zoom 10, ${terrain}`, perSecond: await drawnTicks(page, 5) });
  await buildLargest(page);
  await page.evaluate(() => { for (let i = 0; i < 8; ++i) window.keldorPage.session.ZoomOut(); });
  const zoom = await page.evaluate(() => window.keldorPage.session.Controls().zoom);
  rows.push({ name: `page: largest world, drawn, zoom ${zoom}, ${terrain}`, perSecond: await drawnTicks(page, 5) });
  if (browser.errors.length) console.error("console errors:", browser.errors);
  await browser.close();
  rows.push(...desktop("sim_bench", "DefaultWorldAfter500Ticks|LargestWorld"));
  rows.push(...desktop("render_bench", "Default_448x403|Largest_ZoomedOut"));
  for (const row of rows) console.log(`${row.perSecond.toFixed(1).padStart(10)} /s  ${row.name}`);
})();
