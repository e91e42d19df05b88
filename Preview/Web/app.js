// The preview's page: it shows the frames the game renders and turns pointer drags into moves.
// It never works out where anything is: every position goes to the game, whose panels answer
// from their own hit tests, and the page only draws what the answers say.

const stage = document.getElementById("stage");
const frame = document.getElementById("frame");
const highlight = document.getElementById("highlight");
const ghost = document.getElementById("ghost");
const faults = document.getElementById("faults");

let shownFrame = -1;
let drag = null;
let hoverInFlight = false;
let pendingHover = null;

/** Every drop's time until its frame was on screen, in milliseconds, for whoever measures the page. */
window.previewLatencies = [];

async function api(path, body, method = body === undefined ? "GET" : "POST") {
	const response = await fetch(path, {
		method,
		headers: body === undefined ? {} : { "Content-Type": "application/json" },
		body: body === undefined ? undefined : JSON.stringify(body),
	});
	if (!response.ok) {
		throw new Error(`${path}: HTTP ${response.status}`);
	}
	return response.json();
}

/** A pointer event's position in the frame's own pixels, whatever size the image is shown at. */
function framePoint(event) {
	const box = frame.getBoundingClientRect();
	return {
		x: (event.clientX - box.left) * (frame.naturalWidth / box.width),
		y: (event.clientY - box.top) * (frame.naturalHeight / box.height),
	};
}

/** Places an overlay over a rectangle given in frame pixels. */
function place(element, [x, y, width, height]) {
	const scale = frame.getBoundingClientRect().width / frame.naturalWidth;
	element.style.left = `${x * scale}px`;
	element.style.top = `${y * scale}px`;
	element.style.width = `${width * scale}px`;
	element.style.height = `${height * scale}px`;
}

/** Shows frame number n once it has loaded; resolves when it is on screen. */
function showFrame(n) {
	if (n === shownFrame) {
		return Promise.resolve();
	}
	return new Promise((resolve) => {
		const image = new Image();
		image.onload = () => {
			frame.src = image.src;
			shownFrame = n;
			resolve();
		};
		image.onerror = () => resolve();
		image.src = `/api/frame.png?frame=${n}`;
	});
}

function fillList(list, items, render) {
	list.replaceChildren(...items.map((item) => {
		const entry = document.createElement("li");
		render(entry, item);
		return entry;
	}));
}

function render(state) {
	fillList(document.getElementById("statuses"), state.panels, (entry, panel) => {
		entry.id = `status-${panel.name}`;
		entry.textContent = `${panel.title}: ${panel.status}`;
		entry.classList.toggle("error", panel.error);
	});
	fillList(document.getElementById("character"), state.character, (entry, stack) => {
		entry.dataset.item = stack.item;
		entry.dataset.quantity = stack.quantity;
		entry.textContent = `${stack.item} x${stack.quantity}`;
	});
	const heard = document.getElementById("heard");
	fillList(heard, state.heard, (entry, line) => {
		entry.textContent = line;
	});
	heard.scrollTop = heard.scrollHeight;
	document.getElementById("retries").textContent = state.retries;
	fillList(document.getElementById("transport"), state.transport, (entry, line) => {
		entry.textContent = line;
	});
	faults.checked = state.faults.enabled;
	const inspect = document.getElementById("inspect");
	inspect.href = `${state.platform}/`;
	return showFrame(state.frame);
}

async function refresh() {
	if (drag) {
		return;
	}
	try {
		await render(await api("/api/state"));
	} catch {
		// The preview has stopped; the page keeps what it last showed.
	}
}

function sendHover(to) {
	pendingHover = to;
	if (hoverInFlight || !drag) {
		return;
	}
	hoverInFlight = true;
	const point = pendingHover;
	pendingHover = null;
	api("/api/hover", { from: drag.from, to: point })
		.then((target) => {
			if (!drag) {
				return;
			}
			highlight.hidden = !target.rect;
			if (target.rect) {
				place(highlight, target.rect);
				highlight.className = target.valid ? "valid" : "occupied";
				highlight.dataset.target = target.panel;
			}
		})
		.catch(() => {})
		.finally(() => {
			hoverInFlight = false;
			if (pendingHover && drag) {
				sendHover(pendingHover);
			}
		});
}

stage.addEventListener("pointerdown", async (event) => {
	if (event.button !== 0 || drag || !frame.naturalWidth) {
		return;
	}
	const from = framePoint(event);
	stage.setPointerCapture(event.pointerId);
	drag = { from, picking: true };
	const picked = await api("/api/pick", { at: from }).catch(() => ({}));
	if (!drag) {
		return;
	}
	if (!picked.stack) {
		drag = null;
		return;
	}
	drag.picking = false;
	stage.classList.add("dragging");
	ghost.textContent = `${picked.stack.item} x${picked.stack.quantity}`;
	ghost.hidden = false;
	moveGhost(event);
});

function moveGhost(event) {
	const box = stage.getBoundingClientRect();
	ghost.style.left = `${event.clientX - box.left}px`;
	ghost.style.top = `${event.clientY - box.top}px`;
}

stage.addEventListener("pointermove", (event) => {
	if (!drag || drag.picking) {
		return;
	}
	moveGhost(event);
	sendHover(framePoint(event));
});

stage.addEventListener("pointerup", async (event) => {
	if (!drag) {
		return;
	}
	const from = drag.from;
	const picking = drag.picking;
	drag = null;
	stage.classList.remove("dragging");
	ghost.hidden = true;
	highlight.hidden = true;
	if (picking) {
		return;
	}
	const started = performance.now();
	const move = document.getElementById("move");
	move.className = "";
	move.textContent = "Waiting for the platform…";
	try {
		const result = await api("/api/drop", { from, to: framePoint(event) });
		move.className = result.outcome;
		const what = result.operation ? `${result.operation}: ${result.outcome}` : "no move";
		move.textContent = result.message ? `${what}. ${result.message}` : `${what}.`;
		if (result.state) {
			await render(result.state);
			const latency = performance.now() - started;
			window.previewLatencies.push(latency);
			move.textContent += ` Frame ${result.state.frame} on screen ${Math.round(latency)} ms after the drop.`;
		}
	} catch (error) {
		move.className = "refused";
		move.textContent = String(error);
	}
});

stage.addEventListener("pointercancel", () => {
	drag = null;
	stage.classList.remove("dragging");
	ghost.hidden = true;
	highlight.hidden = true;
});

faults.addEventListener("change", async () => {
	try {
		await render(await api("/api/faults", { enabled: faults.checked }, "PUT"));
	} catch {
		faults.checked = !faults.checked;
	}
});

await refresh();
setInterval(refresh, 1000);
