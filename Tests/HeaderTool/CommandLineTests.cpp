// The HeaderTool executable as the build runs it: exit status, stderr lines and --dump files.
#include "TestFiles.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

using namespace HeaderToolTests;

namespace
{
	struct FRun
	{
		int ExitCode = -1;
		std::string Stderr;
	};

	FRun RunHeaderTool(const std::string& Arguments)
	{
		const std::filesystem::path ErrorFile = std::filesystem::path(testing::TempDir()) / "HeaderToolStderr.txt";
		const std::string Command = std::string("\"") + HEADER_TOOL_EXECUTABLE + "\" " + Arguments + " 2>\"" + ErrorFile.string() + "\"";
		const int Status = std::system(Command.c_str());
		FRun Run;
		Run.ExitCode = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
		Run.Stderr = ReadText(ErrorFile);
		return Run;
	}

	std::string Quoted(const std::filesystem::path& Path)
	{
		return "\"" + Path.string() + "\"";
	}
}

TEST(CommandLine, PrintsEachErrorAsFileLineColumnAndExitsWithOne)
{
	const std::filesystem::path Output = std::filesystem::path(testing::TempDir()) / "HeaderToolErrors";
	const std::filesystem::path Header = TestDir / "Errors" / "UnknownClassSpecifier.h";
	const FRun Run = RunHeaderTool("--module Broken --output " + Quoted(Output) + " " + Quoted(Header));
	EXPECT_EQ(Run.ExitCode, 1);
	EXPECT_EQ(Run.Stderr, Header.string() + ":3:23: error: unknown UCLASS specifier 'Abstrakt'\n");
}

TEST(CommandLine, DumpWritesEachHeadersModelUnderItsBaseName)
{
	const std::filesystem::path Dump = std::filesystem::path(testing::TempDir()) / "HeaderToolDump";
	const std::filesystem::path Output = std::filesystem::path(testing::TempDir()) / "HeaderToolOutput";
	std::filesystem::remove_all(Dump);
	RunHeaderTool("--module Dumped --output " + Quoted(Output) + " --dump " + Quoted(Dump) + " "
		+ Quoted(TestDir / "Cases" / "EnumForms.h") + " " + Quoted(TestDir / "Cases" / "FixedArrays.h"));
	EXPECT_EQ(ReadText(Dump / "EnumForms.json"), ReadText(TestDir / "Baselines" / "EnumForms.json"));
	EXPECT_EQ(ReadText(Dump / "FixedArrays.json"), ReadText(TestDir / "Baselines" / "FixedArrays.json"));
}

TEST(CommandLine, RefusesTwoHeadersWhoseGeneratedFilesWouldCollide)
{
	const std::filesystem::path Output = std::filesystem::path(testing::TempDir()) / "HeaderToolCollide";
	const std::filesystem::path Header = TestDir / "Cases" / "FixedArrays.h";
	const FRun Run = RunHeaderTool("--module Twice --output " + Quoted(Output) + " " + Quoted(Header) + " " + Quoted(Header));
	EXPECT_EQ(Run.ExitCode, 1);
	EXPECT_EQ(Run.Stderr, Header.string() + ":1:1: error: another header of module Twice is also named FixedArrays\n");
}

TEST(CommandLine, RefusesToRunWithoutAModuleAndAnOutputFolder)
{
	EXPECT_EQ(RunHeaderTool("--module OnlyModule").ExitCode, 1);
	EXPECT_EQ(RunHeaderTool("--output /tmp --bogus").ExitCode, 1);
}

TEST(CommandLine, AModuleThatParsesAndValidatesExitsCleanlyWithEveryFileGenerated)
{
	const std::filesystem::path Output = std::filesystem::path(testing::TempDir()) / "HeaderToolClean";
	std::filesystem::remove_all(Output);
	const FRun Run = RunHeaderTool("--module Clean --output " + Quoted(Output) + " " + Quoted(TestDir / "Cases" / "EnumForms.h") + " "
		+ Quoted(TestDir / "Cases" / "FunctionParameters.h"));
	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Stderr, "");
	for (const char* Name : {"EnumForms.generated.h", "EnumForms.gen.cpp", "FunctionParameters.generated.h", "FunctionParameters.gen.cpp",
			 "Clean.init.gen.cpp"})
	{
		EXPECT_TRUE(std::filesystem::exists(Output / Name)) << Name;
	}
}

TEST(CommandLine, AValidationErrorIsReportedAndNothingIsGenerated)
{
	const std::filesystem::path Output = std::filesystem::path(testing::TempDir()) / "HeaderToolInvalid";
	std::filesystem::remove_all(Output);
	const std::filesystem::path Header = TestDir / "Errors" / "EditConditionMissingProperty.h";
	const FRun Run = RunHeaderTool("--module Invalid --output " + Quoted(Output) + " " + Quoted(Header));
	EXPECT_EQ(Run.ExitCode, 1);
	EXPECT_EQ(Run.Stderr,
		Header.string() + ":18:8: error: EditCondition of 'GridWidth' names 'Layout', which is not a property of 'UEditConditionMissing'\n"
		+ Header.string() + ":21:8: error: EditCondition of 'Typo' names 'bVisible', which is not a property of 'UEditConditionMissing'\n");
	EXPECT_FALSE(std::filesystem::exists(Output / "EditConditionMissingProperty.gen.cpp"));
	EXPECT_FALSE(std::filesystem::exists(Output / "Invalid.init.gen.cpp"));
}
