// Carries platform requests over HTTP: POST with JSON bodies, "Authorization: Bearer <token>",
// "Idempotency-Key", and an "X-Request-Id" on every reply so a client can quote it.
#pragma once

#include <httplib.h>

#include <cstddef>
#include <string>

namespace quorvel::emulator
{
	class Platform;

	class HttpServer
	{
	public:
		/** The largest request body served; a larger one gets 413 body_too_large. */
		static constexpr std::size_t maxBodyBytes = std::size_t(1) << 20;
		/** Each kept-alive connection holds a worker, so there are enough for a browser, a few game
		    clients and a benchmark's clients at once. */
		static constexpr std::size_t workerCount = 32;

		explicit HttpServer(Platform& platform, bool logRequests = false);

		/** Binds at once, so that clients may connect before run(); port 0 lets the system pick.
		    Returns the port, or throws when the address cannot be bound. */
		int bind(const std::string& host, int port);

		/** Serves until stop(); call after bind(). */
		void run();
		/** Ends run() once it has started accepting. */
		void stop();
		bool isRunning() const { return server.is_running(); }

	private:
		Platform& platform;
		httplib::Server server;
	};
}
