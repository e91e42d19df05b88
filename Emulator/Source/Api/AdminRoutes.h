// Routes for tests, the preview and a person at the same machine, never for game clients:
//   GET /admin/faults    {"fail_rate", "retry_after", "delay_ms", "drop_rate",
//                         "counts": {"failed", "delayed", "dropped"}}
//   PUT /admin/faults    any subset of the four settings; replies as GET
//   GET /admin/state     the state document (Store/StateDocument.h)
//   GET /admin/requests  the request log, newest first (Api/RequestLog.h)
// Peers other than loopback get 403.
#pragma once

#include "Api/RequestFields.h"
#include "Faults/FaultSettings.h"

#include <httplib.h>

namespace quorvel::emulator
{
	class FaultInjector;
	class Platform;
	class RequestLog;

	void addAdminRoutes(httplib::Server& server, Platform& platform, FaultInjector& faults, RequestLog& log);

	Json faultsJson(const FaultSettings& settings, const FaultCounts& counts);

	/** The settings with the body's changes; throws ApiError 400 for an unknown key or a bad value,
	    before anything changes. */
	FaultSettings changedFaultSettings(FaultSettings settings, const Json& body);
}
