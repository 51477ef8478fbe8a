// The release of the benches in MapLibre GL JS, in a browser without a graphics card: the time to the
// first whole map, the frames of the same gestures, the time from a keystroke to the map, and what the
// browser weighs. See README.md for what is not alike.
//
//     node measure.mjs RECORDS.geojson
//
// CHROMIUM names the browser, where it is not /usr/bin/chromium.

import { createServer } from "node:http";
import { readFile, readdir } from "node:fs/promises";
import puppeteer from "puppeteer-core";

const here = new URL("./", import.meta.url);
const library = new URL("node_modules/maplibre-gl/dist/", here);
const files = {
    "/": [new URL("page.html", here), "text/html"],
    "/maplibre-gl.js": [new URL("maplibre-gl.js", library), "text/javascript"],
    "/maplibre-gl.css": [new URL("maplibre-gl.css", library), "text/css"],
    "/records.geojson": [process.argv[2], "application/json"],
};

function serve() {
    const server = createServer(async (request, response) => {
        const found = files[request.url];
        if (found === undefined) {
            response.writeHead(404).end();
            return;
        }
        response.writeHead(200, { "Content-Type": found[1] }).end(await readFile(found[0]));
    });
    return new Promise(resolve => server.listen(0, "127.0.0.1", () => resolve(server)));
}

// Of a process and all that it has started, in megabytes: proportional, so that what they share
// counts once.
async function proportionalMemory(root) {
    const parents = new Map();
    for (const id of (await readdir("/proc")).filter(name => /^\d+$/.test(name))) {
        const stat = await readFile(`/proc/${id}/stat`, "utf8").catch(() => "");
        parents.set(Number(id), Number(stat.slice(stat.lastIndexOf(")") + 2).split(" ")[1]));
    }
    const belongs = id => id === root || (parents.get(id) > 1 && belongs(parents.get(id)));
    let bytes = 0;
    for (const id of [...parents.keys()].filter(belongs)) {
        const rollup = await readFile(`/proc/${id}/smaps_rollup`, "utf8").catch(() => "");
        bytes += 1024 * Number(/^Pss:\s+(\d+)/m.exec(rollup)?.[1] ?? 0);
    }
    return bytes / 1e6;
}

function print(figure, times) {
    const sorted = times.toSorted((a, b) => a - b);
    const at = fraction => sorted[Math.floor(fraction * (sorted.length - 1))].toFixed(2).padStart(8);
    console.log(`${figure.padEnd(24)} median ${at(0.5)} ms   95th percentile ${at(0.95)} ms   longest ${at(1)} ms`);
}

if (process.argv[2] === undefined) {
    console.error("usage: node measure.mjs RECORDS.geojson");
    process.exit(2);
}
const server = await serve();
const browser = await puppeteer.launch({
    executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium",
    args: ["--use-gl=angle", "--use-angle=swiftshader", "--enable-unsafe-swiftshader", "--window-size=960,748"],
    defaultViewport: { width: 960, height: 748 },
    protocolTimeout: 0, // the gestures take minutes on a slow machine
});
try {
    const page = await browser.newPage();
    await page.goto(`http://127.0.0.1:${server.address().port}/`);
    console.log(`${await browser.version()}, ${await page.evaluate(() => maplibregl.getVersion())}`);
    print("first full picture", [await page.evaluate(() => peer.start)]);
    for (const [gesture, times] of Object.entries(await page.evaluate(() => peer.gestures()))) {
        print(gesture, times);
    }
    print("keystroke to map", await page.evaluate(() => peer.filter()));
    console.log(`${"memory".padEnd(24)} ${(await proportionalMemory(browser.process().pid)).toFixed(0)} MB`);
} finally {
    await browser.close();
    server.close();
}
