// The platform emulator as a library: what QuorvelEmulator runs, and what the preview program and
// end-to-end tests embed. Construction opens the database, applies reset, import and seed, binds
// and starts serving on a thread of its own; destruction stops serving and joins that thread.
//
//   quorvel::emulator::Emulator emulator({.port = 0, .database = ":memory:", .seed = true});
//   client.setBaseUrl(emulator.url());
#pragma once

#include "Api/RequestFields.h"
#include "Api/RequestLog.h"
#include "EmulatorOptions.h"
#include "Faults/FaultSettings.h"

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace quorvel::emulator
{
	class HttpServer;
	class Platform;

	/** Opens the options' database with their catalog and applies reset, import and seed, in that
	    order. Throws std::runtime_error with a message a person can act on ("<file>: <problem>").
	    `seeded`, when given, receives the number of demo stacks added. */
	std::unique_ptr<Platform> openPlatform(const EmulatorOptions& options, int* seeded = nullptr);

	/** Reads a state document from a file; throws std::runtime_error naming the file. */
	Json readStateFile(const std::string& path);

	class Emulator
	{
	public:
		/** Serving once constructed; throws std::runtime_error when the database, the catalog, the
		    import or the port cannot be used. */
		explicit Emulator(const EmulatorOptions& options);
		~Emulator();
		Emulator(const Emulator&) = delete;
		Emulator& operator=(const Emulator&) = delete;

		int port() const { return boundPort; }
		/** "http://127.0.0.1:<port>", without a trailing slash. */
		std::string url() const;

		/** The whole state, as GET /admin/state and --export give it. */
		Json exportState();

		FaultSettings faultSettings() const;
		/** Throws std::invalid_argument for unusable settings, keeping the old ones. */
		void setFaultSettings(const FaultSettings& settings);
		FaultCounts faultCounts() const;

		/** The request log, newest first. */
		std::vector<RequestLogEntry> requests() const;

		/** How many demo stacks this start added (0 when not seeding, or seeded before). */
		int seededStacks() const { return seeded; }

		Platform& platform() { return *platformState; }

	private:
		std::unique_ptr<Platform> platformState;
		std::unique_ptr<HttpServer> server;
		std::thread serving;
		std::atomic<bool> servingEnded = false;
		int boundPort = 0;
		int seeded = 0;
	};
}
