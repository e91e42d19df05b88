// Carries platform requests over HTTP: POST with JSON bodies, "Authorization: Bearer <token>",
// "Idempotency-Key", and an "X-Request-Id" on every reply so a client can quote it. Beside the
// platform it serves the inspection page at GET / and the admin routes (Api/AdminRoutes.h), and
// injects the faults its FaultInjector chooses into platform requests only.
#pragma once

#include "Api/RequestLog.h"
#include "Faults/FaultInjector.h"

#include <httplib.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace quorvel::emulator
{
	class Platform;

	struct HttpServerOptions
	{
		/** One line per request on stdout. */
		bool logRequests = false;
		FaultSettings faults;
		/** Seeds the fault choices; none picks a seed at random. */
		std::optional<std::uint64_t> faultSeed;
	};

	class HttpServer
	{
	public:
		/** The largest request body served; a larger one gets 413 body_too_large. */
		static constexpr std::size_t maxBodyBytes = std::size_t(1) << 20;
		/** Each kept-alive connection holds a worker, so there are enough for a browser, a few game
		    clients and a benchmark's clients at once. */
		static constexpr std::size_t workerCount = 32;

		explicit HttpServer(Platform& platform, const HttpServerOptions& options = {});

		/** Binds at once, so that clients may connect before run(); port 0 lets the system pick.
		    Returns the port, or throws when the address cannot be bound. */
		int bind(const std::string& host, int port);

		/** Serves until stop(); call after bind(). */
		void run();
		/** Ends run() once it has started accepting; delayed replies are cut short. */
		void stop();
		bool isRunning() const { return server.is_running(); }

		FaultInjector& faults() { return faultInjector; }
		const RequestLog& requestLog() const { return log; }

	private:
		void servePlatform(const httplib::Request& http, httplib::Response& response, const httplib::ContentReader& reader);

		Platform& platform;
		FaultInjector faultInjector;
		RequestLog log;
		httplib::Server server;
		int boundPort = 0;
		bool logRequests = false;
	};
}
