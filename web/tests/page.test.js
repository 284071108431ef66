// The browser edition in a real browser: the page loads cleanly, a seeded
// world equals the batch runner's, world files go both ways between the page
// and keldor-headless, the food tool lays food on the cell clicked, and a
// screenshot shows the world.
"use strict";
const assert = require("node:assert/strict");
const { after, afterEach, beforeEach, test } = require("node:test");
const { execFileSync } = require("child_process");
const fs = require("fs");
const os = require("os");
const path = require("path");
const { openPage } = require("./PageDriver");
const { decodePng, countColour } = require("./PngPixels");

const Headless = process.env.KELDOR_HEADLESS || path.resolve(__dirname, "../../build/bin/keldor-headless");
const Work = fs.mkdtempSync(path.join(os.tmpdir(), "keldor-web-test-"));
// The fields a world file keeps for the window, not the world.
const WindowFields = ["CurrentTool", "CursorCellX", "CursorCellY", "MouseButton", "MouseHeld", "MouseX", "MouseY",
  "ShowAnts", "ShowOdor", "TimerEnabled", "ToolColour", "View", "ViewCentreX", "ViewCentreY", "ZoomX", "ZoomY"];

// A fresh browser for every test, so that one failure cannot leave the next
// a broken page.
let browser;
beforeEach(async () => { browser = await openPage(); });
afterEach(async () => { await browser.close(); });
after(() => fs.rmSync(Work, { recursive: true, force: true }));

function headless(...args) {
  execFileSync(Headless, args, { env: { ...process.env, QT_QPA_PLATFORM: "offscreen" }, stdio: "pipe" });
}
function readJson(file) { return JSON.parse(fs.readFileSync(file, "utf8")); }

// The world and resume fields of a world file; Running is compared apart,
// since Step leaves a world paused and the batch runner's plays.
function worldPart(state) {
  const part = { ...state };
  for (const field of [...WindowFields, "Running"]) delete part[field];
  return part;
}

async function newWithSeed(page, seed) {
  await page.click("#btnNewSeed");
  await page.fill("#txtSeed", String(seed));
  await page.click("#btnSeedOk");
  // The dialog's close event, which makes the world, comes after the click.
  await page.waitForFunction((seed) => window.keldorPage.session.Status(0).startsWith(`Tick 0   Seed ${seed} `), seed);
}

async function stepTicks(page, count) {
  for (let i = 0; i < count; ++i) await page.click("#btnStep");
}

async function save(page, name) {
  const [download] = await Promise.all([page.waitForEvent("download"), page.click("#btnSave")]);
  const file = path.join(Work, name);
  await download.saveAs(file);
  return file;
}

async function open(page, file) {
  await page.setInputFiles("#fileOpen", file);
  await page.waitForFunction((tick) => window.keldorPage.session.Ticks() === tick, readJson(file).Tick);
}

test("the page loads without a console error and shows its controls", async () => {
  const { page, errors } = browser;
  assert.deepEqual(errors, []);
  assert.equal(await page.textContent("#status"), "No world: File > New makes one");
  assert.equal(await page.isDisabled("#btnPlay"), true);
  assert.equal(await page.isDisabled("#btnSave"), true);
});

async function exportCsv(page) {
  await page.click("#btnCharts");
  const [download] = await Promise.all([page.waitForEvent("download"), page.click("#btnCsv")]);
  await page.click("#dlgCharts button[value=close]");
  return fs.readFileSync(await download.path(), "utf8");
}

test("a seeded world's 200 ticks give the batch runner's rows of totals, byte for byte", async () => {
  const { page, errors } = browser;
  await newWithSeed(page, 5);
  await stepTicks(page, 200);
  assert.match(await page.textContent("#status"), /^Tick 200 {3}Seed 5 /);
  const csv = path.join(Work, "batch.csv");
  headless("--seed", "5", "--ticks", "200", "--csv", csv);
  const fromPage = await exportCsv(page);
  assert.equal(fromPage.split("\n").length, 202);  // the header, 200 rows and the last line's end
  assert.equal(fromPage, fs.readFileSync(csv, "utf8"));
  assert.deepEqual(errors, []);
});

// Steps the world `count` ticks and saves it at once, as the Step and Save
// buttons do, in one go: a tick of the timer in a paused world lets the food
// piles give off their scent again, which the next running tick would do
// anyway, but which a file saved in between keeps.
async function stepAndSave(page, count, name) {
  const text = await page.evaluate((count) => {
    const session = window.keldorPage.session;
    for (let i = 0; i < count; ++i) session.Step();
    return session.SaveText();
  }, count);
  const file = path.join(Work, name);
  fs.writeFileSync(file, text);
  return file;
}

test("a seeded world after 200 ticks equals the batch runner's, and files go both ways", async () => {
  const { page, errors } = browser;
  await newWithSeed(page, 7);
  const page200 = await stepAndSave(page, 200, "page200.json");
  headless("--seed", "7", "--ticks", "200", "--json", path.join(Work, "batch200.json"));
  const fromPage = readJson(page200);
  const fromBatch = readJson(path.join(Work, "batch200.json"));
  assert.equal(fromPage.Running, false);
  assert.equal(fromBatch.Running, true);
  assert.equal(fromPage.Tick, 200);
  assert.deepEqual(worldPart(fromPage), worldPart(fromBatch));

  // The page's file continues in the batch runner as in the page.
  const page300 = readJson(await stepAndSave(page, 100, "page300.json"));
  headless("--load", page200, "--play", "--ticks", "100", "--json", path.join(Work, "batch300.json"));
  assert.equal(page300.Tick, 300);
  assert.deepEqual(worldPart(page300), worldPart(readJson(path.join(Work, "batch300.json"))));

  // The same through the Save button's download, after the timer's paused ticks.
  const saved = await save(page, "saved300.json");
  const page350 = readJson(await stepAndSave(page, 50, "page350.json"));
  headless("--load", saved, "--play", "--ticks", "50", "--json", path.join(Work, "batch350.json"));
  assert.deepEqual(worldPart(page350), worldPart(readJson(path.join(Work, "batch350.json"))));

  // The batch runner's file (saved paused) continues in the page, opened
  // through the file picker, as in the batch runner.
  headless("--load", path.join(Work, "batch200.json"), "--paused", "--json", path.join(Work, "batch200p.json"));
  await open(page, path.join(Work, "batch200p.json"));
  const opened300 = readJson(await stepAndSave(page, 100, "opened300.json"));
  assert.equal(opened300.Tick, 300);
  assert.deepEqual(worldPart(opened300), worldPart(readJson(path.join(Work, "batch300.json"))));
  assert.deepEqual(errors, []);
});

async function chooseTool(page, tool) {
  await page.click("#btnPalette");
  await page.click(`#palette button[data-tool="${tool}"]`);
}

async function inspectorRow(page, label) {
  return page.evaluate((label) => {
    const row = [...document.querySelectorAll("#inspLines tr")].find((r) => r.cells[0].textContent === label);
    return row ? row.cells[1].textContent : null;
  }, label);
}

test("a click with the food tool lays food on the cell under it", async () => {
  const { page, errors } = browser;
  await newWithSeed(page, 3);
  // New makes a 30 x 30 grid on the 2000-unit map at zoom 10: a cell is
  // 2000 / 30 world units, 10 terrain units each, 15 terrain units a pixel.
  // Cell X spans (X - 1) to X cell widths; the view's left edge lies half the
  // view's width left of the scroll bar's value.
  const view = await page.evaluate(() => {
    const c = document.getElementById("terrain");
    return { width: c.width, height: c.height, h: Number(document.getElementById("hScroll").value),
      v: Number(document.getElementById("vScroll").value) };
  });
  const cellPixels = ((2000 / 30) * 10) / 15;
  const centre = (cellX, cellY) => ({
    x: (cellX - 0.5) * cellPixels - (view.h - (view.width * 15) / 2) / 15,
    y: (cellY - 0.5) * cellPixels - (view.v - (view.height * 15) / 2) / 15,
  });
  // The first cell beside the nest's without food, as the inspector shows it.
  let cell = null;
  for (const [cx, cy] of [[13, 13], [18, 13], [13, 18], [18, 18], [12, 15], [19, 15]]) {
    await page.click("#terrain", { position: centre(cx, cy) });
    assert.equal(await page.textContent("#inspTitle"), `Cell (${cx}, ${cy})`);
    if (Number(await inspectorRow(page, "Food")) === 0) { cell = [cx, cy]; break; }
  }
  assert.ok(cell, "a cell without food near the nest");

  // The press lays a pile; each tick while the button is held adds the
  // amount a pile is laid with, pi (CellSize / 4)^2 ScaleX, to the cell.
  await chooseTool(page, 1);
  const box = await page.locator("#terrain").boundingBox();
  const at = centre(...cell);
  await page.mouse.move(box.x + at.x, box.y + at.y);
  const frame = await page.evaluate(() => window.keldorPage.session.FrameNumber());
  await page.mouse.down();
  await page.waitForFunction((f) => window.keldorPage.session.FrameNumber() >= f + 2, frame);
  await page.mouse.up();
  await chooseTool(page, 0);
  await page.click("#terrain", { position: at });
  assert.equal(await page.textContent("#inspTitle"), `Cell (${cell[0]}, ${cell[1]})`);
  const food = Number(await inspectorRow(page, "Food"));
  const laid = 3.1415926 * ((2000 / 30 / 4) * (2000 / 30 / 4)) * 10;
  assert.ok(food >= laid - 0.01, `food ${food} is at least one pile's ${laid}`);
  assert.ok(Math.abs(food / laid - Math.round(food / laid)) < 1e-5, `food ${food} is whole piles of ${laid}`);
  assert.match(await page.textContent("#status"), /^Tick 0 /);
  assert.deepEqual(errors, []);
});

test("after 400 ticks a screenshot shows the ground, the food, the nest, the ants and the map's frame", async () => {
  const { page, errors } = browser;
  await newWithSeed(page, 1);
  await page.evaluate(() => { for (let i = 0; i < 400; ++i) window.keldorPage.session.Step(); });
  await page.waitForFunction(() => { const p = window.keldorPage; return p.shownFrame === p.session.FrameNumber(); });
  await page.waitForFunction(() => document.getElementById("status").textContent.startsWith("Tick 400 "));
  const shot = decodePng(await page.screenshot({ path: path.join(Work, "page400.png") }));
  const terrainPixels = shot.width * shot.height;
  assert.ok(countColour(shot, [185, 172, 145]) > terrainPixels / 10, "the ground");
  assert.ok(countColour(shot, [16, 152, 16]) > 200, "food piles");
  assert.ok(countColour(shot, [50, 50, 50]) > 100, "the nest");
  assert.ok(countColour(shot, [150, 100, 70]) > 20, "ants in the default colony colour");
  assert.ok(countColour(shot, [255, 0, 0]) > 100, "the mini-map's view frame");
  assert.deepEqual(errors, []);
});

test("the options' corrections show as typed, and a world at the population limit gives its message", async () => {
  const { page, errors } = browser;
  await page.click("#btnOptions");
  await page.fill("#optRed", "300");
  assert.equal(await page.inputValue("#optRed"), "255");
  await page.fill("#optAnts", "many");
  assert.equal(await page.inputValue("#optAnts"), "30");
  await page.fill("#optAnts", "2000");
  await page.click("#btnOptionsOk");
  // New's nest holds 2000 ants, the limit, which every tick checks, paused
  // or not: the next tick of the timer gives the message.
  await newWithSeed(page, 2);
  await page.waitForSelector("#dlgMessage[open]");
  assert.equal(await page.textContent("#txtMessage"), "Maximum ant population has been reached.");
  assert.equal(await page.textContent("#lblPop"), "2000");
  await page.click("#dlgMessage button");
  assert.deepEqual(errors, []);
});

test("on a touch screen one finger pans the view, two pinch to zoom, and a tap picks", async () => {
  const { page, errors } = browser;
  await newWithSeed(page, 3);
  const cdp = await page.context().newCDPSession(page);
  await cdp.send("Emulation.setTouchEmulationEnabled", { enabled: true, maxTouchPoints: 2 });
  const touch = (type, ...points) => cdp.send("Input.dispatchTouchEvent", { type, touchPoints: points });
  const box = await page.locator("#terrain").boundingBox();
  const [x, y] = [box.x + 400, box.y + 300];
  const scroll = () => page.evaluate(() => [...document.querySelectorAll(".hscroll, .vscroll")].map((b) => Number(b.value)));
  const [h, v] = await scroll();
  // 100 pixels left and 50 up move the view 15 terrain units a pixel the other way.
  await touch("touchStart", { x, y });
  for (let i = 1; i <= 10; ++i) await touch("touchMove", { x: x - 10 * i, y: y - 5 * i });
  await touch("touchEnd");
  await page.waitForFunction(([h, v]) => {
    const bars = [...document.querySelectorAll(".hscroll, .vscroll")].map((b) => Number(b.value));
    return bars[0] === h && bars[1] === v;
  }, [h + 1500, v + 750]);
  // Fingers 40 pixels apart moving to 60: one step of 25 % or more.
  assert.equal(await page.textContent("#lblZoom"), "1×");
  await touch("touchStart", { x: x - 20, y, id: 1 }, { x: x + 20, y, id: 2 });
  await touch("touchMove", { x: x - 30, y, id: 1 }, { x: x + 30, y, id: 2 });
  await touch("touchEnd");
  await page.waitForFunction(() => document.getElementById("lblZoom").textContent === "1.1×");
  await touch("touchStart", { x, y });
  await touch("touchEnd");
  await page.waitForFunction(() => /^Cell \(\d+, \d+\)$/.test(document.getElementById("inspTitle").textContent));
  await cdp.send("Emulation.setTouchEmulationEnabled", { enabled: false });
  assert.deepEqual(errors, []);
});
