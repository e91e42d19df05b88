// QuorvelEmulator: a local stand-in for the game-inventory platform.
//   --port N    port on 127.0.0.1 (default 8787; 0 picks a free one)
//   --db PATH   SQLite file that keeps state between runs (default: in memory)
//   --seed      put a few stacks into the demo player's stash
//   --catalog PATH  the item catalog (default Content/Items/Catalog.json)
#include "Api/HttpServer.h"
#include "Domain/Platform.h"
#include "Domain/Seed.h"

#include <charconv>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

namespace
{
	struct Options
	{
		int port = 8787;
		std::string database = ":memory:";
		bool seed = false;
		std::string catalog = "Content/Items/Catalog.json";
	};

	int usage()
	{
		std::cerr << "usage: QuorvelEmulator [--port N] [--db PATH] [--seed] [--catalog PATH]\n";
		return 2;
	}

	bool parsePort(std::string_view text, int& port)
	{
		const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
		return error == std::errc() && end == text.data() + text.size() && port >= 0 && port <= 65535;
	}
}

int main(int argc, char** argv)
{
	Options options;
	for (int i = 1; i < argc; ++i)
	{
		const std::string_view argument = argv[i];
		const bool hasValue = i + 1 < argc;
		if (argument == "--port" && hasValue && parsePort(argv[i + 1], options.port))
		{
			++i;
		}
		else if (argument == "--db" && hasValue)
		{
			options.database = argv[++i];
		}
		else if (argument == "--seed")
		{
			options.seed = true;
		}
		else if (argument == "--catalog" && hasValue)
		{
			options.catalog = argv[++i];
		}
		else
		{
			return usage();
		}
	}

	try
	{
		using namespace quorvel::emulator;
		Platform platform(options.database, PlatformSettings{.catalog = ItemCatalog::load(options.catalog)});
		if (options.seed)
		{
			std::cout << "seeded " << seedDemoStash(platform.database(), platform.catalog()) << " stack(s) into the demo stash\n";
		}
		HttpServer server(platform, true);
		const int port = server.bind("127.0.0.1", options.port);
		// Scripts and tests wait for this line to learn the port.
		std::cout << "listening on http://127.0.0.1:" << port << std::endl;
		server.run();
	}
	catch (const std::exception& error)
	{
		std::cerr << "QuorvelEmulator: " << error.what() << "\n";
		return 1;
	}
	return 0;
}
