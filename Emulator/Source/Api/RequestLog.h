// The last few hundred platform requests, for the inspection page and GET /admin/requests.
// Thread-safe: every server worker adds to it.
#pragma once

#include "Api/RequestFields.h"
#include "Faults/FaultSettings.h"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace quorvel::emulator
{
	struct RequestLogEntry
	{
		/** Milliseconds since the epoch, when the request arrived. */
		std::int64_t timeMs = 0;
		std::string method;
		std::string path;
		int status = 0;
		std::string requestId;
		std::string idempotencyKey;
		bool replayed = false;
		Fault fault = Fault::none;
		std::string playerId{};
		double durationMs = 0;
	};

	class RequestLog
	{
	public:
		static constexpr std::size_t defaultCapacity = 300;

		explicit RequestLog(std::size_t capacity = defaultCapacity);

		/** Keeps the entry, forgetting the oldest once full. */
		void add(RequestLogEntry entry);

		std::vector<RequestLogEntry> newestFirst() const;

	private:
		mutable std::mutex mutex;
		std::vector<RequestLogEntry> ring;
		std::size_t capacity;
		std::size_t next = 0;
	};

	/** {"requests": [...]}, newest first; absent keys, players and faults are null. */
	Json requestLogJson(const std::vector<RequestLogEntry>& entries);

	/** "2025-01-31T12:34:56.789Z". */
	std::string utcTimestamp(std::int64_t timeMs);
}
