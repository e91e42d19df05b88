// The read-only page at GET /, for a person who keeps it open beside the game: the fault settings
// and counts, every player's containers drawn as their grids or rows of slots, and the request log.
// Plain HTML and CSS, nothing fetched from elsewhere; it reloads itself every few seconds.
#pragma once

#include "Api/RequestFields.h"
#include "Api/RequestLog.h"
#include "Faults/FaultSettings.h"

#include <string>
#include <vector>

namespace quorvel::emulator
{
	struct PageContent
	{
		/** The state document (Store/StateDocument.h). */
		Json state;
		FaultSettings faults;
		FaultCounts counts;
		/** Newest first. */
		std::vector<RequestLogEntry> requests;
	};

	/** Every text from the state and the log is escaped: item ids, kinds and tickets are user data. */
	std::string renderInspectionPage(const PageContent& content);
}
