// QuorvelEmulator's options, read into the options an embedded emulator takes.
#include "CommandLine.h"

#include <gtest/gtest.h>

namespace quorvel::emulator::test
{
	namespace
	{
		std::optional<EmulatorOptions> parse(const std::vector<std::string>& arguments, std::string* problem = nullptr)
		{
			std::string ignored;
			return parseCommandLine(arguments, problem ? *problem : ignored);
		}
	}

	TEST(EmulatorCommandLineTest, WithoutOptionsAPersonGetsAFileDatabaseOnPort8787)
	{
		const std::optional<EmulatorOptions> options = parse({});
		ASSERT_TRUE(options);
		EXPECT_EQ(options->port, 8787);
		EXPECT_EQ(options->database, "Saved/Emulator/Platform.db");
		EXPECT_EQ(options->catalog, "Content/Items/Catalog.json");
		EXPECT_EQ(options->keyTtlSeconds, 86400);
		EXPECT_EQ(options->faults.retryAfterSeconds, 1);
		EXPECT_FALSE(options->seed || options->reset);
		EXPECT_FALSE(options->faultSeed);
	}

	TEST(EmulatorCommandLineTest, EveryOptionIsReadAndALaterOneWins)
	{
		const std::optional<EmulatorOptions> options = parse({"--port", "8787", "--seed", "--port", "0", "--db", ":memory:", "--reset",
			"--catalog", "items.json", "--export", "out.json", "--import", "in.json", "--key-ttl", "60", "--fail-rate", "0.25",
			"--retry-after", "0", "--delay-ms", "150", "--drop-rate", "1", "--fault-seed", "18446744073709551615"});
		ASSERT_TRUE(options);
		EXPECT_EQ(options->port, 0);
		EXPECT_EQ(options->database, ":memory:");
		EXPECT_TRUE(options->seed && options->reset);
		EXPECT_EQ(options->catalog, "items.json");
		EXPECT_EQ(options->exportPath, "out.json");
		EXPECT_EQ(options->importPath, "in.json");
		EXPECT_EQ(options->keyTtlSeconds, 60);
		EXPECT_EQ(options->faults.failRate, 0.25);
		EXPECT_EQ(options->faults.retryAfterSeconds, 0);
		EXPECT_EQ(options->faults.delayMs, 150);
		EXPECT_EQ(options->faults.dropRate, 1.0);
		EXPECT_EQ(options->faultSeed, 18446744073709551615ull);
	}

	TEST(EmulatorCommandLineTest, AnUnknownOptionOrAValueOutOfRangeIsRefusedWithTheReason)
	{
		const std::pair<std::vector<std::string>, std::string> refused[] = {
			{{"--verbose"}, "unknown option \"--verbose\""},
			{{"--port"}, "--port needs a value"},
			{{"--port", "65536"}, "--port takes a port from 0 to 65535, not \"65536\""},
			{{"--port", "80x"}, "--port takes a port"},
			{{"--fail-rate", "1.5"}, "--fail-rate takes a number from 0 to 1"},
			{{"--drop-rate", "nan"}, "--drop-rate takes a number from 0 to 1"},
			{{"--delay-ms", "-1"}, "--delay-ms takes a whole number of milliseconds"},
			{{"--delay-ms", "60001"}, "--delay-ms takes a whole number of milliseconds from 0 to 60000"},
			{{"--key-ttl", "0"}, "--key-ttl takes a whole number of seconds, at least 1"},
			{{"--retry-after", "1.5"}, "--retry-after takes a whole number of seconds"},
			{{"--fault-seed", "-3"}, "--fault-seed takes a whole number"},
			{{"--db", ""}, "--db and --catalog need a file name"},
		};
		for (const auto& [arguments, expected] : refused)
		{
			std::string problem;
			EXPECT_FALSE(parse(arguments, &problem)) << expected;
			EXPECT_TRUE(problem.starts_with(expected)) << problem;
		}
	}
}
