// The platform emulator as clients meet it: one game client's sequential requests on a kept-alive
// connection, and eight clients granting and consuming at once. Latencies are per request, in
// microseconds; the emulator runs in this process on a port of its own with an in-memory database.
#include "Emulator.h"

#include <benchmark/benchmark.h>
#include <httplib.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace
{
	using quorvel::emulator::Emulator;
	using quorvel::emulator::EmulatorOptions;
	using quorvel::emulator::Json;
	using Clock = std::chrono::steady_clock;

	EmulatorOptions benchmarkOptions()
	{
		return EmulatorOptions{.port = 0, .database = ":memory:"};
	}

	/** A game client: its own kept-alive connection and player. */
	class Client
	{
	public:
		Client(const Emulator& emulator, const std::string& ticket)
			: http("127.0.0.1", emulator.port())
		{
			http.set_keep_alive(true);
			// A request goes out as a header write and a body write; Nagle would hold the second back.
			http.set_tcp_nodelay(true);
			const Json session = post("/v1/game/sessions", {{"provider", "anonymous"}, {"ticket", ticket}});
			headers = {{"Authorization", "Bearer " + session["tokens"]["access_token"].get<std::string>()}};
		}

		Json post(const std::string& path, const Json& body, const std::string& idempotencyKey = {})
		{
			return Json::parse(send(path, body.dump(), idempotencyKey));
		}

		/** The reply's body, unread. */
		std::string send(const std::string& path, const std::string& body, const std::string& idempotencyKey = {})
		{
			httplib::Headers sent = headers;
			if (!idempotencyKey.empty())
			{
				sent.emplace("Idempotency-Key", idempotencyKey);
			}
			const httplib::Result result = http.Post(path.c_str(), sent, body, "application/json");
			if (!result || result->status != 200)
			{
				throw std::runtime_error(path + " failed: " + (result ? result->body : httplib::to_string(result.error())));
			}
			return result->body;
		}

	private:
		httplib::Client http;
		httplib::Headers headers;
	};

	double percentile(std::vector<double> samples, double fraction)
	{
		if (samples.empty())
		{
			return 0;
		}
		const auto at = samples.begin() + static_cast<std::ptrdiff_t>(fraction * static_cast<double>(samples.size() - 1));
		std::nth_element(samples.begin(), at, samples.end());
		return *at;
	}

	double microsecondsSince(Clock::time_point start)
	{
		return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
	}

	void reportLatencies(benchmark::State& state, const std::vector<double>& latencies)
	{
		state.counters["p50_us"] = percentile(latencies, 0.50);
		state.counters["p99_us"] = percentile(latencies, 0.99);
	}

	const Json stashRequest{{"kind", "stash"}, {"layout", "grid"}, {"grid_width", 10}, {"grid_height", 8}};

	/** Sequential ensures on one connection: each one waits for the previous reply, as a game's do. */
	void EnsureOnOneKeptAliveConnection(benchmark::State& state)
	{
		EmulatorOptions options = benchmarkOptions();
		options.seed = true;
		Emulator emulator(options);
		Client client(emulator, "demo_account");
		client.post("/v1/game/containers/ensure", stashRequest);

		const std::string request = stashRequest.dump();
		std::vector<double> latencies;
		for (auto _ : state)
		{
			const Clock::time_point start = Clock::now();
			benchmark::DoNotOptimize(client.send("/v1/game/containers/ensure", request));
			latencies.push_back(microsecondsSince(start));
		}
		reportLatencies(state, latencies);
	}
	BENCHMARK(EnsureOnOneKeptAliveConnection)->Unit(benchmark::kMicrosecond);

	/** Eight clients, each with its own player, connection and keys, each granting a stack and
	    consuming it again as fast as replies come. One iteration is a round of every client's pairs. */
	void GrantAndConsumeFromEightClients(benchmark::State& state)
	{
		constexpr int clientCount = 8;
		constexpr int pairsPerRound = 250;
		Emulator emulator(benchmarkOptions());
		std::vector<std::unique_ptr<Client>> clients;
		std::vector<std::string> stashes;
		for (int i = 0; i < clientCount; ++i)
		{
			clients.push_back(std::make_unique<Client>(emulator, "bench-" + std::to_string(i)));
			stashes.push_back(clients.back()->post("/v1/game/containers/ensure", stashRequest)["id"]);
		}

		std::vector<std::vector<double>> latencies(clientCount);
		int round = 0;
		std::int64_t requests = 0;
		for (auto _ : state)
		{
			std::vector<std::thread> threads;
			for (int i = 0; i < clientCount; ++i)
			{
				threads.emplace_back([&, i]
				{
					Client& client = *clients[i];
					const Json grant{{"container_id", stashes[i]}, {"item_id", "bandage"}, {"quantity", 1}};
					const std::string prefix = std::to_string(round) + "-" + std::to_string(i) + "-";
					for (int pair = 0; pair < pairsPerRound; ++pair)
					{
						const std::string key = prefix + std::to_string(pair);
						Clock::time_point start = Clock::now();
						const Json granted = client.post("/v1/game/inventory/grant", grant, key + "g");
						latencies[i].push_back(microsecondsSince(start));
						start = Clock::now();
						client.post("/v1/game/inventory/consume", {{"instance_id", granted["instance"]["id"]}}, key + "c");
						latencies[i].push_back(microsecondsSince(start));
					}
				});
			}
			for (std::thread& thread : threads)
			{
				thread.join();
			}
			++round;
			requests += 2 * clientCount * pairsPerRound;
		}

		std::vector<double> all;
		for (const std::vector<double>& one : latencies)
		{
			all.insert(all.end(), one.begin(), one.end());
		}
		reportLatencies(state, all);
		state.counters["requests_per_s"] = benchmark::Counter(static_cast<double>(requests), benchmark::Counter::kIsRate);
	}
	BENCHMARK(GrantAndConsumeFromEightClients)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);
}

BENCHMARK_MAIN();
