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
		EXPECT_FALSE(options->seed || options->reset);
	}

	TEST(EmulatorCommandLineTest, EveryOptionIsReadAndALaterOneWins)
	{
		const std::optional<EmulatorOptions> options = parse({"--port", "8787", "--seed", "--port", "0", "--db", ":memory:", "--reset",
			"--catalog", "items.json", "--export", "out.json", "--import", "in.json", "--key-ttl", "60"});
		ASSERT_TRUE(options);
		EXPECT_EQ(options->port, 0);
		EXPECT_EQ(options->database, ":memory:");
		EXPECT_TRUE(options->seed && options->reset);
		EXPECT_EQ(options->catalog, "items.json");
		EXPECT_EQ(options->exportPath, "out.json");
		EXPECT_EQ(options->importPath, "in.json");
		EXPECT_EQ(options->keyTtlSeconds, 60);
	}

	TEST(EmulatorCommandLineTest, AnUnknownOptionOrAValueOutOfRangeIsRefusedWithTheReason)
	{
		const std::pair<std::vector<std::string>, std::string> refused[] = {
			{{"--verbose"}, "unknown option \"--verbose\""},
			{{"--port"}, "--port needs a value"},
			{{"--port", "65536"}, "--port takes a port from 0 to 65535, not \"65536\""},
			{{"--port", "80x"}, "--port takes a port"},
			{{"--key-ttl", "0"}, "--key-ttl takes a whole number of seconds, at least 1"},
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
