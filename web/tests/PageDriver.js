// Drives the built page in Debian's headless Chromium: serves build-web/site
// from a local HTTP server, opens the page and collects console errors.
"use strict";
const fs = require("fs");
const http = require("http");
const os = require("os");
const path = require("path");
const { chromium } = require("playwright-core");

const Site = path.resolve(__dirname, "../../build-web/site");
const Types = { ".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".wasm": "application/wasm" };

function serveSite() {
  const server = http.createServer((req, res) => {
    const name = path.join(Site, decodeURIComponent(new URL(req.url, "http://x").pathname));
    const file = name.endsWith("/") ? path.join(name, "index.html") : name;
    if (!file.startsWith(Site) || !fs.existsSync(file) || fs.statSync(file).isDirectory()) {
      res.writeHead(404);
      res.end();
      return;
    }
    res.writeHead(200, { "Content-Type": Types[path.extname(file)] || "application/octet-stream" });
    fs.createReadStream(file).pipe(res);
  });
  return new Promise((resolve) => server.listen(0, "127.0.0.1", () => resolve(server)));
}

async function openPage({ width = 1366, height = 768 } = {}) {
  const server = await serveSite();
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), "keldor-chromium-"));
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: process.env.KELDOR_CHROMIUM || "/usr/bin/chromium",
    headless: true,
    acceptDownloads: true,
    viewport: { width, height },
    args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
      "--disable-component-update", "--disable-sync"],
  });
  const page = context.pages()[0] || (await context.newPage());
  const errors = [];
  page.on("console", (m) => { if (m.type() === "error") errors.push(m.text()); });
  page.on("pageerror", (e) => errors.push(e.message));
  await page.goto(`http://127.0.0.1:${server.address().port}/`);
  await page.waitForFunction(() => window.keldorPage !== undefined);
  const close = async () => {
    await context.close();
    server.close();
    fs.rmSync(profile, { recursive: true, force: true });
  };
  return { page, errors, close, url: `http://127.0.0.1:${server.address().port}/` };
}

module.exports = { openPage };
