#include "Page/InspectionPage.h"

#include "Page/Html.h"

#include <cstdio>
#include <map>

namespace quorvel::emulator
{
	namespace
	{
		// Past this many players the page stops drawing them; a person cannot read more anyway.
		constexpr std::size_t maxPlayersDrawn = 200;

		constexpr const char* style = R"css(
body { font: 14px/1.4 system-ui, sans-serif; margin: 1.5em; color: #222; background: #fafafa; }
h1 { font-size: 1.4em; margin: 0 0 .8em; }
h2 { font-size: 1.15em; border-bottom: 1px solid #ccc; padding-bottom: .2em; margin-top: 1.6em; }
h3 { font-size: 1em; margin: 1em 0 .4em; }
code, .id { font-family: ui-monospace, monospace; font-size: .9em; color: #555; }
table { border-collapse: collapse; }
th, td { text-align: left; padding: .15em .7em .15em 0; vertical-align: top; }
.container { display: inline-block; vertical-align: top; margin: 0 1.5em 1em 0; }
.container h4 { font-size: .95em; margin: 0 0 .3em; font-weight: 600; }
.grid { --cell: 2.6em; display: grid; grid-auto-columns: var(--cell); grid-auto-rows: var(--cell);
	border: 1px solid #888; background-color: #fff; background-size: var(--cell) var(--cell);
	background-image: linear-gradient(to right, #e4e4e4 1px, transparent 1px), linear-gradient(to bottom, #e4e4e4 1px, transparent 1px); }
.stack { margin: 2px; border: 1px solid #4a6fa5; border-radius: 3px; background: #dce7f7; font-size: .75em;
	overflow: hidden; padding: 1px 3px; word-break: break-all; }
.slots { display: flex; flex-wrap: wrap; gap: 3px; list-style: none; padding: 0; margin: 0; max-width: 60em; }
.slots li { width: 5.5em; min-height: 2.6em; border: 1px solid #888; background: #fff; font-size: .75em; padding: 1px 3px; }
.slots li.filled { background: #dce7f7; border-color: #4a6fa5; }
.slots li small { color: #888; display: block; }
.status-ok { color: #1a7f37; } .status-refused { color: #9a6700; } .status-failed { color: #cf222e; font-weight: 600; }
.fault { color: #cf222e; font-weight: 600; }
.empty { color: #888; font-style: italic; }
)css";

		std::string number(const Json& value)
		{
			return escapeHtml(value.dump());
		}

		std::string text(const Json& object, const char* key)
		{
			const auto found = object.find(key);
			return found != object.end() && found->is_string() ? escapeHtml(found->get<std::string>()) : std::string();
		}

		int integer(const Json& object, const char* key)
		{
			const auto found = object.find(key);
			return found != object.end() && found->is_number_integer() ? found->get<int>() : 0;
		}

		const Json& arrayIn(const Json& state, const char* key)
		{
			static const Json none = Json::array();
			const auto found = state.find(key);
			return found != state.end() && found->is_array() ? *found : none;
		}

		std::string stackLabel(const Json& stack)
		{
			return text(stack, "item_id") + " &times; " + std::to_string(integer(stack, "quantity"));
		}

		void drawGrid(std::string& html, const Json& container, const std::vector<const Json*>& stacks)
		{
			const int width = integer(container, "grid_width");
			const int height = integer(container, "grid_height");
			html += "<div class=\"grid\" style=\"grid-template-columns: repeat(" + std::to_string(width)
				+ ", var(--cell)); grid-template-rows: repeat(" + std::to_string(height) + ", var(--cell))\">";
			for (const Json* stack : stacks)
			{
				const bool rotated = stack->value("rotated", false);
				const int w = integer(*stack, rotated ? "base_height" : "base_width");
				const int h = integer(*stack, rotated ? "base_width" : "base_height");
				html += "<div class=\"stack\" style=\"grid-column: " + std::to_string(integer(*stack, "x") + 1) + " / span "
					+ std::to_string(w) + "; grid-row: " + std::to_string(integer(*stack, "y") + 1) + " / span " + std::to_string(h)
					+ "\" title=\"" + text(*stack, "id") + (rotated ? " (rotated)" : "") + "\">" + stackLabel(*stack) + "</div>";
			}
			html += "</div>";
		}

		void drawSlots(std::string& html, const Json& container, const std::vector<const Json*>& stacks)
		{
			std::map<int, const Json*> bySlot;
			for (const Json* stack : stacks)
			{
				bySlot[integer(*stack, "slot_index")] = stack;
			}
			html += "<ol class=\"slots\">";
			for (int slot = 0; slot < integer(container, "slot_count"); ++slot)
			{
				const auto found = bySlot.find(slot);
				if (found == bySlot.end())
				{
					html += "<li><small>" + std::to_string(slot) + "</small></li>";
				}
				else
				{
					html += "<li class=\"filled\" title=\"" + text(*found->second, "id") + "\"><small>" + std::to_string(slot)
						+ "</small>" + stackLabel(*found->second) + "</li>";
				}
			}
			html += "</ol>";
		}

		void drawFaults(std::string& html, const FaultSettings& faults, const FaultCounts& counts)
		{
			html += "<h2>Faults</h2><table>";
			html += "<tr><th>fail rate</th><td>" + number(faults.failRate) + "</td><th>Retry-After</th><td>"
				+ std::to_string(faults.retryAfterSeconds) + " s</td></tr>";
			html += "<tr><th>drop rate</th><td>" + number(faults.dropRate) + "</td><th>delay</th><td>"
				+ std::to_string(faults.delayMs) + " ms</td></tr>";
			html += "<tr><th>failed</th><td>" + std::to_string(counts.failed) + "</td><th>dropped</th><td>"
				+ std::to_string(counts.dropped) + "</td><th>delayed</th><td>" + std::to_string(counts.delayed) + "</td></tr>";
			html += "</table><p class=\"empty\">Change them with PUT /admin/faults, e.g. {\"fail_rate\": 0.2}.</p>";
		}

		void drawPlayers(std::string& html, const Json& state)
		{
			std::map<std::string, std::vector<const Json*>> containersByPlayer;
			for (const Json& container : arrayIn(state, "containers"))
			{
				containersByPlayer[container.value("player_id", "")].push_back(&container);
			}
			std::map<std::string, std::vector<const Json*>> stacksByContainer;
			for (const Json& stack : arrayIn(state, "stacks"))
			{
				stacksByContainer[stack.value("container_id", "")].push_back(&stack);
			}

			const Json& players = arrayIn(state, "players");
			html += "<h2>Players</h2>";
			if (players.empty())
			{
				html += "<p class=\"empty\">Nobody has signed in yet.</p>";
			}
			std::size_t drawn = 0;
			for (const Json& player : players)
			{
				if (drawn++ == maxPlayersDrawn)
				{
					html += "<p class=\"empty\">and " + std::to_string(players.size() - maxPlayersDrawn)
						+ " more players (GET /admin/state has them all)</p>";
					break;
				}
				html += "<section class=\"player\"><h3>" + text(player, "provider") + " / " + text(player, "subject")
					+ " <span class=\"id\">" + text(player, "id") + "</span></h3>";
				const auto containers = containersByPlayer.find(player.value("id", ""));
				if (containers == containersByPlayer.end())
				{
					html += "<p class=\"empty\">no containers yet</p>";
				}
				else
				{
					for (const Json* container : containers->second)
					{
						const std::vector<const Json*>& stacks = stacksByContainer[container->value("id", "")];
						const bool slots = container->value("layout", "") == "slots";
						html += "<div class=\"container\"><h4>" + text(*container, "kind") + " <span class=\"id\">"
							+ (slots ? std::to_string(integer(*container, "slot_count")) + " slots"
								: std::to_string(integer(*container, "grid_width")) + " &times; "
									+ std::to_string(integer(*container, "grid_height")))
							+ " &middot; " + text(*container, "id") + "</span></h4>";
						slots ? drawSlots(html, *container, stacks) : drawGrid(html, *container, stacks);
						html += "</div>";
					}
				}
				html += "</section>";
			}
		}

		const char* statusClass(int status)
		{
			return status >= 500 ? "status-failed" : status >= 400 ? "status-refused" : "status-ok";
		}

		void drawRequests(std::string& html, const std::vector<RequestLogEntry>& requests)
		{
			html += "<h2>Requests <span class=\"id\">newest first</span></h2>";
			if (requests.empty())
			{
				html += "<p class=\"empty\">No platform requests yet.</p>";
				return;
			}
			html += "<table><tr><th>time (UTC)</th><th>path</th><th>status</th><th>fault</th><th>replayed</th>"
				"<th>Idempotency-Key</th><th>player</th><th>ms</th><th>X-Request-Id</th></tr>";
			for (const RequestLogEntry& entry : requests)
			{
				char duration[32];
				std::snprintf(duration, sizeof duration, "%.1f", entry.durationMs);
				html += "<tr><td>" + escapeHtml(utcTimestamp(entry.timeMs).substr(11)) + "</td><td>" + escapeHtml(entry.method)
					+ " " + escapeHtml(entry.path) + "</td><td class=\"" + statusClass(entry.status) + "\">"
					+ std::to_string(entry.status) + "</td><td class=\"fault\">" + escapeHtml(faultName(entry.fault))
					+ "</td><td>" + (entry.replayed ? "replayed" : "") + "</td><td><code>" + escapeHtml(entry.idempotencyKey)
					+ "</code></td><td class=\"id\">" + escapeHtml(entry.playerId) + "</td><td>" + duration
					+ "</td><td class=\"id\">" + escapeHtml(entry.requestId) + "</td></tr>";
			}
			html += "</table>";
		}
	}

	std::string renderInspectionPage(const PageContent& content)
	{
		std::string html = "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
			"<meta http-equiv=\"refresh\" content=\"3\"><title>Quorvel platform emulator</title><style>";
		html += style;
		html += "</style></head><body><h1>Quorvel platform emulator</h1>";
		drawFaults(html, content.faults, content.counts);
		drawPlayers(html, content.state);
		drawRequests(html, content.requests);
		html += "</body></html>\n";
		return html;
	}
}
