#include "Api/RequestLog.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace quorvel::emulator
{
	RequestLog::RequestLog(std::size_t capacity)
		: capacity(std::max<std::size_t>(capacity, 1))
	{
		ring.reserve(capacity);
	}

	void RequestLog::add(RequestLogEntry entry)
	{
		std::lock_guard lock(mutex);
		if (ring.size() < capacity)
		{
			ring.push_back(std::move(entry));
		}
		else
		{
			ring[next] = std::move(entry);
		}
		next = (next + 1) % capacity;
	}

	std::vector<RequestLogEntry> RequestLog::newestFirst() const
	{
		std::lock_guard lock(mutex);
		std::vector<RequestLogEntry> entries;
		entries.reserve(ring.size());
		for (std::size_t i = 0; i < ring.size(); ++i)
		{
			entries.push_back(ring[(next + ring.size() - 1 - i) % ring.size()]);
		}
		return entries;
	}

	Json requestLogJson(const std::vector<RequestLogEntry>& entries)
	{
		const auto orNull = [](const std::string& text) { return text.empty() ? Json() : Json(text); };
		Json requests = Json::array();
		for (const RequestLogEntry& entry : entries)
		{
			requests.push_back({
				{"time", utcTimestamp(entry.timeMs)},
				{"method", entry.method},
				{"path", entry.path},
				{"status", entry.status},
				{"request_id", entry.requestId},
				{"idempotency_key", orNull(entry.idempotencyKey)},
				{"replayed", entry.replayed},
				{"fault", orNull(std::string(faultName(entry.fault)))},
				{"player_id", orNull(entry.playerId)},
				{"duration_ms", entry.durationMs},
			});
		}
		return Json{{"requests", std::move(requests)}};
	}

	std::string utcTimestamp(std::int64_t timeMs)
	{
		const std::time_t seconds = static_cast<std::time_t>(timeMs / 1000);
		std::tm calendar{};
		gmtime_r(&seconds, &calendar);
		char text[32];
		const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &calendar);
		char millis[8];
		std::snprintf(millis, sizeof millis, ".%03dZ", static_cast<int>(timeMs % 1000));
		return std::string(text, length) + millis;
	}
}
