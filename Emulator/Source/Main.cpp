// QuorvelEmulator: a local stand-in for the game-inventory platform. See usageLine in CommandLine.cpp
// for the options; state is kept in Saved/Emulator/Platform.db unless --db says otherwise.
#include "CommandLine.h"
#include "Domain/Platform.h"
#include "Emulator.h"

#include <csignal>
#include <exception>
#include <fstream>
#include <iostream>

#include <pthread.h>

namespace
{
	using namespace quorvel::emulator;

	int exportState(const EmulatorOptions& options)
	{
		const std::unique_ptr<Platform> platform = openPlatform(options);
		const std::string text = platform->exportState().dump(1, '\t') + "\n";
		if (options.exportPath == "-")
		{
			std::cout << text << std::flush;
			return 0;
		}
		std::ofstream file(options.exportPath, std::ios::binary | std::ios::trunc);
		file << text;
		file.close();
		if (!file)
		{
			throw std::runtime_error(options.exportPath + ": cannot be written");
		}
		std::cout << "wrote the state to " << options.exportPath << "\n";
		return 0;
	}

	int serve(const EmulatorOptions& options)
	{
		// The stop signals are taken by sigwait below, so every thread must block them, from before the first starts.
		sigset_t stopSignals;
		sigemptyset(&stopSignals);
		sigaddset(&stopSignals, SIGINT);
		sigaddset(&stopSignals, SIGTERM);
		sigaddset(&stopSignals, SIGHUP);
		pthread_sigmask(SIG_BLOCK, &stopSignals, nullptr);
		// A client that hangs up mid-reply, or a dropped connection, must cost a failed write, not the process.
		std::signal(SIGPIPE, SIG_IGN);

		Emulator emulator(options);
		if (emulator.seededStacks() > 0)
		{
			std::cout << "seeded " << emulator.seededStacks() << " stack(s) into the demo stash\n";
		}
		std::cout << "state in " << options.database << "\n";
		std::cout << "inspection page at " << emulator.url() << "/\n";
		// Scripts and tests wait for this line to learn the port.
		std::cout << "listening on " << emulator.url() << std::endl;

		int received = 0;
		sigwait(&stopSignals, &received);
		std::cout << "stopping" << std::endl;
		return 0;
	}
}

int main(int argc, char** argv)
{
	const std::vector<std::string> arguments(argv + 1, argv + argc);
	for (const std::string& argument : arguments)
	{
		if (argument == "--help" || argument == "-h")
		{
			std::cout << usageLine << "\n";
			return 0;
		}
	}
	std::string problem;
	std::optional<EmulatorOptions> options = parseCommandLine(arguments, problem);
	if (!options)
	{
		std::cerr << "QuorvelEmulator: " << problem << "\n" << usageLine << "\n";
		return 2;
	}
	options->logRequests = true;

	try
	{
		return options->exportPath.empty() ? serve(*options) : exportState(*options);
	}
	catch (const std::exception& error)
	{
		std::cerr << "QuorvelEmulator: " << error.what() << "\n";
		return 1;
	}
}
