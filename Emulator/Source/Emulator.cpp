#include "Emulator.h"

#include "Api/HttpServer.h"
#include "Domain/ItemCatalog.h"
#include "Domain/Platform.h"
#include "Store/Database.h"
#include "Store/StateDocument.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace quorvel::emulator
{
	Json readStateFile(const std::string& path)
	{
		std::ifstream file(path, std::ios::binary);
		if (!file)
		{
			throw std::runtime_error(path + ": cannot be read");
		}
		std::ostringstream text;
		text << file.rdbuf();
		try
		{
			return Json::parse(text.str());
		}
		catch (const Json::parse_error& error)
		{
			throw std::runtime_error(path + ": not valid JSON (at byte " + std::to_string(error.byte) + ")");
		}
	}

	std::unique_ptr<Platform> openPlatform(const EmulatorOptions& options, int* seeded)
	{
		// Read everything that can be wrong before touching the database, so a typo changes nothing.
		PlatformSettings settings{
			.catalog = ItemCatalog::load(options.catalog),
			.keyTtlSeconds = options.keyTtlSeconds,
			.clock = options.clock,
		};
		const Json imported = options.importPath.empty() ? Json() : readStateFile(options.importPath);

		if (!Database::isInMemory(options.database))
		{
			const std::filesystem::path folder = std::filesystem::path(options.database).parent_path();
			std::error_code error;
			if (!folder.empty() && !std::filesystem::create_directories(folder, error) && error)
			{
				throw std::runtime_error(folder.string() + ": cannot create the database folder: " + error.message());
			}
		}
		std::unique_ptr<Platform> platform;
		try
		{
			platform = std::make_unique<Platform>(options.database, std::move(settings));
		}
		catch (const std::runtime_error& error)
		{
			throw std::runtime_error(options.database + ": " + error.what());
		}
		// An import replaces every table in one transaction, so it needs no reset, and a bad document
		// leaves the database as it was, --reset or not.
		if (!imported.is_null())
		{
			try
			{
				platform->importState(imported);
			}
			catch (const StateError& error)
			{
				throw std::runtime_error(options.importPath + ": " + error.what());
			}
		}
		else if (options.reset)
		{
			platform->reset();
		}
		const int added = options.seed ? platform->seedDemo() : 0;
		if (seeded)
		{
			*seeded = added;
		}
		return platform;
	}

	Emulator::Emulator(const EmulatorOptions& options)
	{
		if (const std::string problem = faultSettingsProblem(options.faults); !problem.empty())
		{
			throw std::invalid_argument(problem);
		}
		platformState = openPlatform(options, &seeded);
		server = std::make_unique<HttpServer>(*platformState,
			HttpServerOptions{.logRequests = options.logRequests, .faults = options.faults, .faultSeed = options.faultSeed});
		boundPort = server->bind("127.0.0.1", options.port);

		serving = std::thread([this]
		{
			server->run();
			servingEnded = true;
		});
		// httplib's stop() only reaches an accept loop that has started, so the destructor must not
		// run before it has. It starts at once; the wait is for the thread to be scheduled.
		while (!server->isRunning() && !servingEnded)
		{
			std::this_thread::yield();
		}
	}

	Emulator::~Emulator()
	{
		server->stop();
		serving.join();
	}

	std::string Emulator::url() const
	{
		return "http://127.0.0.1:" + std::to_string(boundPort);
	}

	Json Emulator::exportState()
	{
		return platformState->exportState();
	}

	FaultSettings Emulator::faultSettings() const
	{
		return server->faults().settings();
	}

	void Emulator::setFaultSettings(const FaultSettings& settings)
	{
		server->faults().setSettings(settings);
	}

	FaultCounts Emulator::faultCounts() const
	{
		return server->faults().counts();
	}

	std::vector<RequestLogEntry> Emulator::requests() const
	{
		return server->requestLog().newestFirst();
	}
}
