// One tiny header per edge case: Cases/<Case>.h parses into Baselines/<Case>.json, and
// Errors/<Case>.h fails with exactly the lines in Errors/<Case>.expected.
#include "Parser.h"
#include "TestFiles.h"

#include <gtest/gtest.h>

using namespace HeaderTool;
using namespace HeaderToolTests;

namespace
{
	std::string Lines(const std::vector<std::string>& Errors)
	{
		std::string Text;
		for (const std::string& Error : Errors)
		{
			Text += Error + "\n";
		}
		return Text;
	}

	std::string CaseName(const testing::TestParamInfo<std::string>& Info)
	{
		return Info.param;
	}

	class HeaderCase : public testing::TestWithParam<std::string>
	{
	};

	class ErrorCase : public testing::TestWithParam<std::string>
	{
	};
}

TEST_P(HeaderCase, ParsesAndValidatesIntoItsStoredBaseline)
{
	const std::filesystem::path Header = TestDir / "Cases" / (GetParam() + ".h");
	FModuleModel Module;
	Module.ModuleName = "HeaderToolTests";
	Module.Headers.emplace_back();
	std::vector<std::string> Errors;
	ASSERT_TRUE(ParseHeader(Header.string(), Module.Headers.back(), Errors)) << Lines(Errors);
	ASSERT_TRUE(ValidateModule(Module, Errors)) << Lines(Errors);

	const std::string Json = DumpAsJson(Module.Headers.back());
	const std::filesystem::path Baseline = TestDir / "Baselines" / (GetParam() + ".json");
	if (UpdatingBaselines())
	{
		WriteText(Baseline, Json);
	}
	EXPECT_EQ(ReadText(Baseline), Json) << "rerun with HEADER_TOOL_UPDATE_BASELINES=1 to accept the new output";
}

INSTANTIATE_TEST_SUITE_P(Cases, HeaderCase, testing::ValuesIn(Stems("Cases", ".h")), CaseName);

TEST_P(ErrorCase, FailsWithExactlyTheExpectedErrorLines)
{
	const std::filesystem::path Header = TestDir / "Errors" / (GetParam() + ".h");
	FModuleModel Module;
	Module.Headers.emplace_back();
	std::vector<std::string> Errors;
	if (ParseHeader(Header.string(), Module.Headers.back(), Errors))
	{
		ValidateModule(Module, Errors);
	}
	ASSERT_FALSE(Errors.empty());

	// Errors name the header as it was given; the stored lines name it relative to Errors/.
	const std::string Prefix = (TestDir / "Errors").string() + "/";
	for (std::string& Error : Errors)
	{
		ASSERT_TRUE(Error.starts_with(Prefix)) << Error;
		Error.erase(0, Prefix.size());
	}
	const std::filesystem::path Expected = TestDir / "Errors" / (GetParam() + ".expected");
	if (UpdatingBaselines())
	{
		WriteText(Expected, Lines(Errors));
	}
	EXPECT_EQ(ReadText(Expected), Lines(Errors));
}

INSTANTIATE_TEST_SUITE_P(Errors, ErrorCase, testing::ValuesIn(Stems("Errors", ".h")), CaseName);

TEST(Baselines, EveryStoredExpectationBelongsToACase)
{
	EXPECT_EQ(Stems("Baselines", ".json"), Stems("Cases", ".h"));
	EXPECT_EQ(Stems("Errors", ".expected"), Stems("Errors", ".h"));
}
