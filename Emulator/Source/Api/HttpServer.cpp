#include "Api/HttpServer.h"

#include "Api/AdminRoutes.h"
#include "Api/ApiError.h"
#include "Api/BodyReader.h"
#include "Api/Replies.h"
#include "Domain/Ids.h"
#include "Domain/Platform.h"
#include "Faults/ConnectionDrop.h"
#include "Page/InspectionPage.h"

#include <chrono>
#include <cstdio>
#include <stdexcept>

namespace quorvel::emulator
{
	namespace
	{
		constexpr const char* jsonType = "application/json";

		// Far more than a game session sends on one connection; the count is only there because
		// httplib's keep-alive has one, and its default of 5 makes every client reconnect.
		constexpr std::size_t keepAliveRequests = 100000;


		// What a platform handler adds to the stdout line httplib's logger writes next, on the same worker.
		thread_local std::string platformNote;

		std::int64_t epochMs()
		{
			return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::system_clock::now().time_since_epoch()).count();
		}

		Reply unavailable(const FaultPlan& plan)
		{
			return Reply{.status = 503, .body = errorJson("unavailable", "the platform is unavailable for a moment (an injected fault);"
				" retry after " + std::to_string(plan.retryAfterSeconds) + " s with the same Idempotency-Key")};
		}

		std::string noteFor(const RequestLogEntry& entry)
		{
			std::string note;
			if (!entry.idempotencyKey.empty())
			{
				note += " key=" + entry.idempotencyKey;
			}
			if (entry.replayed)
			{
				note += " replayed";
			}
			if (entry.fault != Fault::none)
			{
				note += " fault=" + std::string(faultName(entry.fault));
			}
			return note;
		}
	}

	HttpServer::HttpServer(Platform& platform, const HttpServerOptions& options)
		: platform(platform), faultInjector(options.faults, options.faultSeed), logRequests(options.logRequests)
	{
		// Replies go out as a header write and a body write; without this the second waits for the
		// client's delayed ACK, some 40 ms, on every request after a connection's first.
		server.set_tcp_nodelay(true);
		// A client keeps its connection for as long as it uses it; an idle one still closes after httplib's 5 s.
		server.set_keep_alive_max_count(keepAliveRequests);
		server.set_payload_max_length(maxBodyBytes);
		server.new_task_queue = [] { return new httplib::ThreadPool(workerCount); };

		server.set_pre_routing_handler([](const httplib::Request&, httplib::Response& response)
		{
			response.set_header("X-Request-Id", newId("req"));
			return httplib::Server::HandlerResponse::Unhandled;
		});

		server.Get("/", [this](const httplib::Request&, httplib::Response& response)
		{
			const PageContent content{
				.state = this->platform.exportState(),
				.faults = faultInjector.settings(),
				.counts = faultInjector.counts(),
				.requests = log.newestFirst(),
			};
			response.set_content(renderInspectionPage(content), "text/html; charset=utf-8");
		});

		addAdminRoutes(server, platform, faultInjector, log);

		server.Post(R"(/.*)", [this](const httplib::Request& http, httplib::Response& response, const httplib::ContentReader& reader)
		{
			servePlatform(http, response, reader);
		});

		// Failures httplib produces itself (an unknown path or method, an unreadable request, a body over
		// the limit outside the platform routes) get the same shape as the platform's own.
		server.set_error_handler([](const httplib::Request& http, httplib::Response& response)
		{
			if (!response.has_header("X-Request-Id"))
			{
				response.set_header("X-Request-Id", newId("req"));
			}
			if (!response.body.empty())
			{
				return;
			}
			const std::string what = http.method + " " + http.path;
			const ApiError error = response.status == 404 ? notFound("not_found", what + " is not served here")
				: response.status == 413 ? bodyTooLarge(maxBodyBytes)
				: ApiError(response.status, "http_" + std::to_string(response.status), what + " was refused before it was read");
			response.set_content(errorJson(error.code, error.what()).dump(), jsonType);
		});

		if (logRequests)
		{
			server.set_logger([](const httplib::Request& http, const httplib::Response& response)
			{
				const std::string line = http.method + " " + http.path + " -> " + std::to_string(response.status) + " "
					+ response.get_header_value("X-Request-Id") + platformNote + "\n";
				platformNote.clear();
				std::fwrite(line.data(), 1, line.size(), stdout);
				std::fflush(stdout);
			});
		}
	}

	void HttpServer::servePlatform(const httplib::Request& http, httplib::Response& response, const httplib::ContentReader& reader)
	{
		const auto started = std::chrono::steady_clock::now();
		RequestLogEntry entry{
			.timeMs = epochMs(),
			.method = http.method,
			.path = http.path,
			.requestId = response.get_header_value("X-Request-Id"),
			.idempotencyKey = http.get_header_value("Idempotency-Key"),
		};

		FaultPlan plan;
		Reply reply;
		try
		{
			const Request request{
				.path = http.path,
				.authorization = http.get_header_value("Authorization"),
				.idempotencyKey = entry.idempotencyKey,
				.body = readBody(http, reader, maxBodyBytes),
			};
			if (Platform::serves(http.path))
			{
				plan = faultInjector.choose();
			}
			reply = plan.fault == Fault::fail ? unavailable(plan) : platform.handle(request);
		}
		catch (const ApiError& error)
		{
			reply = Reply{.status = error.status, .body = errorJson(error.code, error.what())};
		}

		response.status = reply.status;
		if (reply.status == 413)
		{
			// What is left of an oversized chunked body would be read as the next request.
			response.set_header("Connection", "close");
		}
		if (plan.fault == Fault::fail)
		{
			response.set_header("Retry-After", std::to_string(plan.retryAfterSeconds));
		}
		if (reply.replayed)
		{
			response.set_header("Idempotent-Replayed", "true");
		}
		response.set_content(reply.body.dump(), jsonType);

		// The change is committed by now; these faults strike on the way back.
		const int dropped = plan.fault == Fault::drop ? connectionSocket(http.remote_addr, http.remote_port, boundPort) : -1;
		if (plan.fault == Fault::drop && dropped < 0)
		{
			plan.fault = Fault::none;
		}
		if (plan.fault == Fault::delay)
		{
			// The platform's lock was released when handle() returned, so other requests go on meanwhile.
			faultInjector.wait(std::chrono::milliseconds(plan.delayMs));
		}
		faultInjector.count(plan.fault);

		entry.status = reply.status;
		entry.replayed = reply.replayed;
		entry.fault = plan.fault;
		entry.playerId = reply.playerId;
		entry.durationMs = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - started).count();
		if (logRequests)
		{
			platformNote = noteFor(entry);
		}
		log.add(std::move(entry));

		// Last, so that the counts and the log tell of the drop by the time the client notices it.
		if (dropped >= 0)
		{
			closeWithoutReply(dropped);
		}
	}

	int HttpServer::bind(const std::string& host, int port)
	{
		const bool bound = port == 0 ? (port = server.bind_to_any_port(host)) > 0 : server.bind_to_port(host, port);
		if (!bound)
		{
			throw std::runtime_error("cannot listen on " + host + ":" + std::to_string(port));
		}
		boundPort = port;
		return port;
	}

	void HttpServer::run()
	{
		server.listen_after_bind();
	}

	void HttpServer::stop()
	{
		faultInjector.cancelWaits();
		server.stop();
		// Workers serving kept-alive connections would otherwise wait out their idle clients first.
		closeConnectionsTo(boundPort);
	}
}
