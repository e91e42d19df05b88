#include "Api/HttpServer.h"

#include "Api/Replies.h"
#include "Domain/Ids.h"
#include "Domain/Platform.h"

#include <cstdio>
#include <stdexcept>

namespace quorvel::emulator
{
	namespace
	{
		constexpr size_t maxBodyBytes = 1 << 20;
		constexpr const char* jsonType = "application/json";

		// Each kept-alive connection holds a worker, so there are enough for a browser, a few game
		// clients and a benchmark's clients at once; httplib's default is 8.
		constexpr size_t workerCount = 32;

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

		server.Post(R"(/.*)", [this](const httplib::Request& http, httplib::Response& response)
		{
			const Request request{
				.path = http.path,
				.authorization = http.get_header_value("Authorization"),
				.idempotencyKey = http.get_header_value("Idempotency-Key"),
				.body = http.body,
			};
			const Reply reply = this->platform.handle(request);
			response.status = reply.status;
			if (reply.replayed)
			{
				response.set_header("Idempotent-Replayed", "true");
			}
			response.set_content(reply.body.dump(), jsonType);
		});

		// Failures the router produces itself (an unknown method, an oversized body) get the same error shape.
		server.set_error_handler([](const httplib::Request& http, httplib::Response& response)
		{
			if (response.body.empty())
			{
				const std::string code = response.status == 404 ? "not_found" : "http_" + std::to_string(response.status);
				response.set_content(errorJson(code, http.method + " " + http.path + " is not served here").dump(), jsonType);
			}
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
