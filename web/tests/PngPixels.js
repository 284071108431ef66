// Reads an 8-bit RGB or RGBA PNG (as Chromium's screenshots are) into pixels.
"use strict";
const zlib = require("zlib");

function decodePng(buffer) {
  let offset = 8;
  let width = 0, height = 0, channels = 0;
  const data = [];
  while (offset < buffer.length) {
    const length = buffer.readUInt32BE(offset);
    const type = buffer.toString("ascii", offset + 4, offset + 8);
    const body = buffer.subarray(offset + 8, offset + 8 + length);
    if (type === "IHDR") {
      width = body.readUInt32BE(0);
      height = body.readUInt32BE(4);
      if (body[8] !== 8 || (body[9] !== 2 && body[9] !== 6) || body[12] !== 0) throw new Error("unsupported PNG");
      channels = body[9] === 6 ? 4 : 3;
    } else if (type === "IDAT") {
      data.push(body);
    }
    offset += 12 + length;
  }
  const raw = zlib.inflateSync(Buffer.concat(data));
  const stride = width * channels;
  const out = Buffer.alloc(height * stride);
  for (let y = 0; y < height; ++y) {
    const filter = raw[y * (stride + 1)];
    for (let x = 0; x < stride; ++x) {
      const v = raw[y * (stride + 1) + 1 + x];
      const left = x >= channels ? out[y * stride + x - channels] : 0;
      const up = y > 0 ? out[(y - 1) * stride + x] : 0;
      const upLeft = x >= channels && y > 0 ? out[(y - 1) * stride + x - channels] : 0;
      let p = 0;
      if (filter === 1) p = left;
      else if (filter === 2) p = up;
      else if (filter === 3) p = (left + up) >> 1;
      else if (filter === 4) {
        const e = left + up - upLeft;
        const da = Math.abs(e - left), db = Math.abs(e - up), dc = Math.abs(e - upLeft);
        p = da <= db && da <= dc ? left : db <= dc ? up : upLeft;
      }
      out[y * stride + x] = (v + p) & 255;
    }
  }
  return { width, height, channels, pixels: out };
}

// How many pixels have exactly this colour.
function countColour(png, [r, g, b]) {
  let n = 0;
  for (let i = 0; i < png.pixels.length; i += png.channels) {
    if (png.pixels[i] === r && png.pixels[i + 1] === g && png.pixels[i + 2] === b) ++n;
  }
  return n;
}

module.exports = { decodePng, countColour };
