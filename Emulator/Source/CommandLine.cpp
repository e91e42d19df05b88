#include "CommandLine.h"

#include <charconv>
#include <limits>
#include <string_view>

namespace quorvel::emulator
{
	const char* const usageLine = "usage: QuorvelEmulator [--port N] [--db FILE | --db :memory:] [--reset] [--seed]"
		" [--catalog FILE] [--export FILE] [--import FILE] [--key-ttl SECONDS] [--fail-rate F] [--retry-after SECONDS]"
		" [--delay-ms N] [--drop-rate F] [--fault-seed N]";

	namespace
	{
		template <typename Number>
		bool parseNumber(std::string_view text, Number& value, Number min, Number max)
		{
			Number parsed{};
			const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
			if (error != std::errc() || end != text.data() + text.size() || !(parsed >= min && parsed <= max))
			{
				return false;
			}
			value = parsed;
			return true;
		}

		class Arguments
		{
		public:
			Arguments(const std::vector<std::string>& arguments, std::string& problem)
				: arguments(arguments), problem(problem)
			{
			}

			bool done() const { return next >= arguments.size(); }
			const std::string& take() { return arguments[next++]; }

			/** The value after `option`, or false with the problem set. */
			bool value(const std::string& option, std::string& text)
			{
				if (done())
				{
					problem = option + " needs a value";
					return false;
				}
				text = take();
				return true;
			}

			template <typename Number>
			bool number(const std::string& option, Number& value, Number min, Number max, const std::string& expected)
			{
				std::string text;
				if (!this->value(option, text))
				{
					return false;
				}
				if (!parseNumber(text, value, min, max))
				{
					problem = option + " takes " + expected + ", not \"" + text + "\"";
					return false;
				}
				return true;
			}

		private:
			const std::vector<std::string>& arguments;
			std::string& problem;
			std::size_t next = 0;
		};
	}

	std::optional<EmulatorOptions> parseCommandLine(const std::vector<std::string>& arguments, std::string& problem)
	{
		constexpr int maxInt = std::numeric_limits<int>::max();
		EmulatorOptions options;
		Arguments in(arguments, problem);
		while (!in.done())
		{
			const std::string option = in.take();
			bool ok = true;
			if (option == "--port")
			{
				ok = in.number(option, options.port, 0, 65535, "a port from 0 to 65535");
			}
			else if (option == "--db")
			{
				ok = in.value(option, options.database);
			}
			else if (option == "--reset")
			{
				options.reset = true;
			}
			else if (option == "--seed")
			{
				options.seed = true;
			}
			else if (option == "--catalog")
			{
				ok = in.value(option, options.catalog);
			}
			else if (option == "--export")
			{
				ok = in.value(option, options.exportPath);
			}
			else if (option == "--import")
			{
				ok = in.value(option, options.importPath);
			}
			else if (option == "--key-ttl")
			{
				ok = in.number<std::int64_t>(option, options.keyTtlSeconds, 1, std::numeric_limits<std::int64_t>::max() / 2,
					"a whole number of seconds, at least 1");
			}
			else if (option == "--fail-rate")
			{
				ok = in.number(option, options.faults.failRate, 0.0, 1.0, "a number from 0 to 1");
			}
			else if (option == "--retry-after")
			{
				ok = in.number(option, options.faults.retryAfterSeconds, 0, maxInt, "a whole number of seconds, 0 or more");
			}
			else if (option == "--delay-ms")
			{
				ok = in.number(option, options.faults.delayMs, 0, maxDelayMs,
					"a whole number of milliseconds from 0 to " + std::to_string(maxDelayMs));
			}
			else if (option == "--drop-rate")
			{
				ok = in.number(option, options.faults.dropRate, 0.0, 1.0, "a number from 0 to 1");
			}
			else if (option == "--fault-seed")
			{
				std::uint64_t seed = 0;
				ok = in.number<std::uint64_t>(option, seed, 0, std::numeric_limits<std::uint64_t>::max(), "a whole number, 0 or more");
				options.faultSeed = seed;
			}
			else
			{
				problem = "unknown option \"" + option + "\"";
				ok = false;
			}
			if (!ok)
			{
				return std::nullopt;
			}
		}
		if (options.database.empty() || options.catalog.empty())
		{
			problem = "--db and --catalog need a file name";
			return std::nullopt;
		}
		return options;
	}
}
