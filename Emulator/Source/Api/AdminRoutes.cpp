#include "Api/AdminRoutes.h"

#include "Api/ApiError.h"
#include "Api/Loopback.h"
#include "Api/Replies.h"
#include "Api/RequestLog.h"
#include "Domain/Platform.h"
#include "Faults/FaultInjector.h"

#include <functional>

namespace quorvel::emulator
{
	namespace
	{
		using AdminHandler = std::function<Json(const httplib::Request&)>;

		void reply(httplib::Response& response, int status, const Json& body)
		{
			response.status = status;
			response.set_content(body.dump(), "application/json");
		}

		httplib::Server::Handler adminOnly(AdminHandler handler)
		{
			return [handler = std::move(handler)](const httplib::Request& request, httplib::Response& response)
			{
				if (!isLoopbackAddress(request.remote_addr))
				{
					reply(response, 403, errorJson("forbidden", "the admin routes answer only on this machine"));
					return;
				}
				try
				{
					reply(response, 200, handler(request));
				}
				catch (const ApiError& error)
				{
					reply(response, error.status, errorJson(error.code, error.what()));
				}
			};
		}

		double rate(const Json& value, const char* key)
		{
			if (!value.is_number())
			{
				throw badRequest(std::string("\"") + key + "\" must be a number from 0 to 1");
			}
			return value.get<double>();
		}
	}

	Json faultsJson(const FaultSettings& settings, const FaultCounts& counts)
	{
		return Json{
			{"fail_rate", settings.failRate},
			{"retry_after", settings.retryAfterSeconds},
			{"delay_ms", settings.delayMs},
			{"drop_rate", settings.dropRate},
			{"counts", {{"failed", counts.failed}, {"delayed", counts.delayed}, {"dropped", counts.dropped}}},
		};
	}

	FaultSettings changedFaultSettings(FaultSettings settings, const Json& body)
	{
		for (const auto& [key, value] : body.items())
		{
			if (key == "fail_rate")
			{
				settings.failRate = rate(value, "fail_rate");
			}
			else if (key == "drop_rate")
			{
				settings.dropRate = rate(value, "drop_rate");
			}
			else if (key == "retry_after")
			{
				settings.retryAfterSeconds = requiredInt(body, "retry_after");
			}
			else if (key == "delay_ms")
			{
				settings.delayMs = requiredInt(body, "delay_ms");
			}
			else
			{
				throw badRequest("unknown setting \"" + key + "\"; the settings are fail_rate, retry_after, delay_ms and drop_rate");
			}
		}
		if (const std::string problem = faultSettingsProblem(settings); !problem.empty())
		{
			throw badRequest(problem);
		}
		return settings;
	}

	void addAdminRoutes(httplib::Server& server, Platform& platform, FaultInjector& faults, RequestLog& log)
	{
		server.Get("/admin/faults", adminOnly([&faults](const httplib::Request&)
		{
			return faultsJson(faults.settings(), faults.counts());
		}));
		server.Put("/admin/faults", adminOnly([&faults](const httplib::Request& request)
		{
			faults.setSettings(changedFaultSettings(faults.settings(), parseBody(request.body)));
			return faultsJson(faults.settings(), faults.counts());
		}));
		server.Get("/admin/state", adminOnly([&platform](const httplib::Request&)
		{
			return platform.exportState();
		}));
		server.Get("/admin/requests", adminOnly([&log](const httplib::Request&)
		{
			return requestLogJson(log.newestFirst());
		}));
	}
}
