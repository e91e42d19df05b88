// The preview page in a real browser: Debian's Chromium driven by Playwright, against the preview
// program with its own in-process emulator, started fresh for this run on ports the system picks.
// Positions to press come from the program's layout answer, as the page's own come from its hit tests.
import { after, before, test } from "node:test";
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { createInterface } from "node:readline";
import { chromium } from "playwright-core";

const program = process.env.QUORVEL_PREVIEW;
const project = process.env.QUORVEL_PROJECT ?? process.cwd();
const browserPath = process.env.QUORVEL_CHROMIUM ?? "/usr/bin/chromium";

let preview;
let browser;
let page;
let pageUrl;
let platformUrl;
let layout;

/** Starts the preview and resolves with the page's and the platform's addresses from what it prints. */
function startPreview() {
	assert.ok(program, "QUORVEL_PREVIEW names the preview program to test");
	preview = spawn(program, ["--port", "0", "--emulator-db", ":memory:", "--project", project], { stdio: ["ignore", "pipe", "inherit"] });
	const lines = createInterface({ input: preview.stdout });
	return new Promise((resolve, reject) => {
		const timer = setTimeout(() => reject(new Error("the preview printed no address within 120 s")), 120_000);
		let page;
		lines.on("line", (line) => {
			page ??= line.match(/^Preview: (http:\/\/127\.0\.0\.1:\d+\/)$/)?.[1];
			const platform = line.match(/^Platform inspection page: (http:\/\/127\.0\.0\.1:\d+)\/$/)?.[1];
			if (page && platform) {
				clearTimeout(timer);
				resolve([page, platform]);
			}
		});
		preview.on("exit", (code) => reject(new Error(`the preview ended early with ${code}`)));
	});
}

async function json(url, options) {
	const response = await fetch(url, options);
	assert.ok(response.ok, `${url}: HTTP ${response.status}`);
	return response.json();
}

/** The page position of a point given in frame pixels. */
async function onPage([x, y]) {
	const box = await page.locator("#frame").boundingBox();
	const size = await page.locator("#frame").evaluate((image) => [image.naturalWidth, image.naturalHeight]);
	return [box.x + (x * box.width) / size[0], box.y + (y * box.height) / size[1]];
}

function cellCentre(panelName, column, row) {
	const panel = layout.panels.find((entry) => entry.name === panelName);
	return [panel.origin[0] + (column + 0.5) * panel.pitch, panel.origin[1] + (row + 0.5) * panel.pitch];
}

function slotCentre(slot) {
	const [x, y, width, height] = layout.character[slot];
	return [x + width / 2, y + height / 2];
}

/** Drags with the mouse from one frame point to another and resolves with the move's outcome text. */
async function drag(from, to) {
	const previous = await page.locator("#move").textContent();
	const [fromX, fromY] = await onPage(from);
	const [toX, toY] = await onPage(to);
	await page.mouse.move(fromX, fromY);
	await page.mouse.down();
	await page.locator(".stage.dragging").waitFor();
	await page.mouse.move((fromX + toX) / 2, (fromY + toY) / 2, { steps: 4 });
	await page.mouse.move(toX, toY, { steps: 4 });
	await page.mouse.up();
	await page.waitForFunction((before) => {
		const move = document.getElementById("move");
		return move.textContent !== before && move.textContent !== "Waiting for the platform…";
	}, previous);
	return page.locator("#move");
}

async function character() {
	return page.locator("#character li").evaluateAll((entries) => entries.map((entry) => `${entry.dataset.item} x${entry.dataset.quantity}`));
}

async function platformStacks(kind) {
	const state = await json(`${platformUrl}/admin/state`);
	const container = state.containers.find((entry) => entry.kind === kind);
	return state.stacks.filter((stack) => stack.container_id === container?.id);
}

before(async () => {
	[pageUrl, platformUrl] = await startPreview();
	browser = await chromium.launch({
		executablePath: browserPath,
		args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking", "--disable-component-update", "--disable-sync"],
	});
	page = await browser.newPage({ viewport: { width: 1600, height: 1100 } });
	await page.goto(pageUrl);
	await page.waitForFunction(() => {
		const lines = [...document.querySelectorAll("#statuses li")].map((entry) => entry.textContent);
		return document.getElementById("frame").naturalWidth > 0 && lines.length === 2 && lines.every((line) => /stack\(s\)|slots$/.test(line));
	}, null, { timeout: 60_000 });
	layout = await json(`${pageUrl}api/layout`);
});

after(async () => {
	await browser?.close();
	if (preview && preview.exitCode === null) {
		const ended = new Promise((resolve) => preview.once("exit", resolve));
		preview.kill("SIGINT");
		const timer = setTimeout(() => preview.kill("SIGKILL"), 15_000);
		await ended;
		clearTimeout(timer);
	}
});

test("a stack dragged from the stash to the loadout arrives on the page and on the platform", async () => {
	const water = (await platformStacks("stash")).find((stack) => stack.item_id === "water");
	const move = await drag(cellCentre("stash", water.x, water.y), cellCentre("loadout", 1, 0));

	assert.equal(await move.getAttribute("class"), "accepted");
	assert.equal(await page.locator("#status-loadout").textContent(), "LOADOUT: 1 of 12 slots");
	assert.match(await page.locator("#heard").textContent(), /loadout: OnTransferAccepted\(water x3\)/);
	const inLoadout = await platformStacks("loadout");
	assert.deepEqual(inLoadout.map((stack) => [stack.id, stack.slot_index]), [[water.id, 1]]);
	assert.ok(!(await platformStacks("stash")).some((stack) => stack.id === water.id));
});

test("an item dropped on an occupied cell is refused on the status line and the character keeps it", async () => {
	const carried = await character();
	const move = await drag(slotCentre(0), cellCentre("stash", 1, 1));

	assert.equal(await move.getAttribute("class"), "refused");
	const status = page.locator("#status-stash");
	assert.equal(await status.textContent(), "STASH: cell 1, 1 is occupied");
	assert.equal(await status.getAttribute("class"), "error");
	assert.deepEqual(await character(), carried);
	assert.match(await page.locator("#heard").textContent(), /stash: OnStashFailed\(409 cell_occupied/);
});

test("a stack withdrawn onto the character joins it only once the platform has released it", async () => {
	const ammo = (await platformStacks("stash")).find((stack) => stack.item_id === "ammo_556");
	// Slow replies leave time to look at the page while the platform has not answered.
	await json(`${platformUrl}/admin/faults`, { method: "PUT", headers: { "Content-Type": "application/json" }, body: JSON.stringify({ delay_ms: 400 }) });
	try {
		const before = await character();
		const [fromX, fromY] = await onPage(cellCentre("stash", ammo.x, ammo.y));
		const [toX, toY] = await onPage(slotCentre(7));
		await page.mouse.move(fromX, fromY);
		await page.mouse.down();
		await page.locator(".stage.dragging").waitFor();
		await page.mouse.move(toX, toY, { steps: 6 });
		await page.mouse.up();
		await page.locator("#move", { hasText: "Waiting for the platform" }).waitFor();
		const during = await json(`${pageUrl}api/state`);
		assert.ok(during.busy);
		assert.deepEqual(during.character.map((stack) => `${stack.item} x${stack.quantity}`), before);

		await page.locator("#move.accepted").waitFor({ timeout: 30_000 });
		assert.ok((await character()).includes("ammo_556 x90"));
		assert.ok(!(await platformStacks("stash")).some((stack) => stack.id === ammo.id));
	} finally {
		await json(`${platformUrl}/admin/faults`, { method: "PUT", headers: { "Content-Type": "application/json" }, body: JSON.stringify({ delay_ms: 0 }) });
	}
});

test("stacks moved back and forth each come back as a new frame, with the time it took printed", async () => {
	const latencies = [];
	for (let round = 0; round < 8; round += 1) {
		const [source, target] = round % 2 === 0 ? ["loadout", "stash"] : ["stash", "loadout"];
		// The water bottle, two cells high, between the loadout's second slot and the stash's bottom rows.
		const cell = round % 2 === 0 ? [1, 0] : [8, 6];
		const to = round % 2 === 0 ? [8, 6] : [1, 0];
		const frameBefore = (await json(`${pageUrl}api/state`)).frame;
		const move = await drag(cellCentre(source, ...cell), cellCentre(target, ...to));
		assert.equal(await move.getAttribute("class"), "accepted", await move.textContent());
		assert.ok((await json(`${pageUrl}api/state`)).frame > frameBefore);
		latencies.push(await page.evaluate(() => window.previewLatencies.at(-1)));
	}
	latencies.sort((a, b) => a - b);
	const at = (fraction) => latencies[Math.min(latencies.length - 1, Math.floor(fraction * latencies.length))];
	console.log(`drop to frame on screen: p50 ${at(0.5).toFixed(1)} ms, p99 ${at(0.99).toFixed(1)} ms over ${latencies.length} drops`);
});
