// Headers saved on Windows: CRLF line endings must not change the model or move error locations.
#include "Parser.h"
#include "TestFiles.h"

#include <gtest/gtest.h>

using namespace HeaderTool;
using namespace HeaderToolTests;

namespace
{
	std::string WithCrLf(const std::string& Text)
	{
		std::string Result;
		for (char Char : Text)
		{
			Result += Char == '\n' ? "\r\n" : std::string(1, Char);
		}
		return Result;
	}
}

TEST(LineEndings, EveryCaseParsesToTheSameModelWithCrLfAsWithLf)
{
	for (const std::string& Case : Stems("Cases", ".h"))
	{
		const std::string Text = ReadText(TestDir / "Cases" / (Case + ".h"));
		FHeaderModel Lf;
		FHeaderModel CrLf;
		std::vector<std::string> Errors;
		ASSERT_TRUE(ParseHeaderText(Case + ".h", Text, Lf, Errors)) << Errors.back();
		ASSERT_TRUE(ParseHeaderText(Case + ".h", WithCrLf(Text), CrLf, Errors)) << Errors.back();
		EXPECT_EQ(DumpAsJson(CrLf), DumpAsJson(Lf)) << Case;
	}
}

TEST(LineEndings, ErrorsPointAtTheSameLineAndColumnWithCrLf)
{
	for (const std::string& Case : Stems("Errors", ".h"))
	{
		const std::string Text = ReadText(TestDir / "Errors" / (Case + ".h"));
		FHeaderModel Model;
		std::vector<std::string> Lf;
		std::vector<std::string> CrLf;
		ParseHeaderText(Case + ".h", Text, Model, Lf);
		ParseHeaderText(Case + ".h", WithCrLf(Text), Model, CrLf);
		EXPECT_EQ(CrLf, Lf) << Case;
	}
}
