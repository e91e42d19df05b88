#include "Api/HttpServer.h"

#include "Api/ApiError.h"
#include "Api/BodyReader.h"
#include "Api/Replies.h"
#include "Domain/Ids.h"
#include "Domain/Platform.h"

#include <cstdio>
#include <stdexcept>

namespace quorvel::emulator
{
	namespace
	{
		constexpr const char* jsonType = "application/json";

		// Far more than a game session sends on one connection; the count is only there because
		// httplib's keep-alive has one, and its default of 5 makes every client reconnect.
		constexpr size_t keepAliveRequests = 100000;
	}

	HttpServer::HttpServer(Platform& platform, bool logRequests)
		: platform(platform)
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

		server.Post(R"(/.*)", [this](const httplib::Request& http, httplib::Response& response, const httplib::ContentReader& reader)
		{
			Reply reply;
			try
			{
				const Request request{
					.path = http.path,
					.authorization = http.get_header_value("Authorization"),
					.idempotencyKey = http.get_header_value("Idempotency-Key"),
					.body = readBody(http, reader, maxBodyBytes),
				};
				reply = this->platform.handle(request);
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
			if (reply.replayed)
			{
				response.set_header("Idempotent-Replayed", "true");
			}
			response.set_content(reply.body.dump(), jsonType);
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
					+ response.get_header_value("X-Request-Id") + "\n";
				std::fwrite(line.data(), 1, line.size(), stdout);
				std::fflush(stdout);
			});
		}
	}

	int HttpServer::bind(const std::string& host, int port)
	{
		const bool bound = port == 0 ? (port = server.bind_to_any_port(host)) > 0 : server.bind_to_port(host, port);
		if (!bound)
		{
			throw std::runtime_error("cannot listen on " + host + ":" + std::to_string(port));
		}
		return port;
	}

	void HttpServer::run()
	{
		server.listen_after_bind();
	}

	void HttpServer::stop()
	{
		server.stop();
	}
}
