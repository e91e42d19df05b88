#include "Token.h"

#include <gtest/gtest.h>

using namespace HeaderTool;

namespace
{
	std::vector<FToken> TokensOf(std::string_view Source)
	{
		std::vector<FToken> Tokens;
		FTokenizeError Error;
		EXPECT_TRUE(Tokenize(Source, Tokens, Error)) << Error.Message;
		return Tokens;
	}

	std::vector<std::string> TextsOf(std::string_view Source)
	{
		std::vector<std::string> Texts;
		for (const FToken& Token : TokensOf(Source))
		{
			if (Token.Kind != ETokenKind::End)
			{
				Texts.push_back(Token.Text);
			}
		}
		return Texts;
	}
}

TEST(Tokenizer, TokensCarryTheirOneBasedLineAndColumn)
{
	const std::vector<FToken> Tokens = TokensOf("UCLASS()\n\tint32 Count::Max;");
	ASSERT_EQ(Tokens.size(), 9u);
	EXPECT_EQ(Tokens[0].Text, "UCLASS");
	EXPECT_EQ(Tokens[0].Line, 1);
	EXPECT_EQ(Tokens[0].Column, 1);
	EXPECT_EQ(Tokens[3].Text, "int32");
	EXPECT_EQ(Tokens[3].Line, 2);
	EXPECT_EQ(Tokens[3].Column, 2);
	EXPECT_EQ(Tokens[5].Text, "::");
	EXPECT_EQ(Tokens[5].Column, 13);
	EXPECT_EQ(Tokens.back().Kind, ETokenKind::End);
}

TEST(Tokenizer, LiteralsKeepBracesQuotesAndCommentMarkersInside)
{
	EXPECT_EQ(TextsOf(R"(f("}{\"//", '{', '\'', L"/*", R"x(")}")x", 1.5e-3f, 0x1F'FF))"),
		(std::vector<std::string>{"f", "(", R"("}{\"//")", ",", "'{'", ",", R"('\'')", ",", R"(L"/*")", ",",
			R"(R"x(")}")x")", ",", "1.5e-3f", ",", "0x1F'FF", ")"}));
}

TEST(Tokenizer, CommentsAttachToTheNextTokenUnlessABlankLineOrCodeComesFirst)
{
	const std::vector<FToken> Tokens = TokensOf(
		"/** Doc */\nA\n"
		"// one\n// two\nB\n"
		"/** detached */\n\nC\n"
		"D // trailing\nE\n"
		"/** first */ /** second */ F\n");
	ASSERT_EQ(Tokens.size(), 7u);
	EXPECT_EQ(Tokens[0].Comment, "/** Doc */");
	EXPECT_EQ(Tokens[1].Comment, "// one\n// two");
	EXPECT_EQ(Tokens[2].Comment, "");
	EXPECT_EQ(Tokens[3].Comment, "");
	EXPECT_EQ(Tokens[4].Comment, "");
	EXPECT_EQ(Tokens[5].Comment, "/** second */");
}

TEST(Tokenizer, DropsDirectivesWithTheirContinuationsAndDisabledRegions)
{
	EXPECT_EQ(TextsOf(
		"#define NOISE(X) \\\n  { X }\n"
		"  #include \"A.h\" // comment\n"
		"#if 0\nHidden\n#if 1\nAlsoHidden\n#endif\n#else\nShown\n#endif\n"
		"#if WITH_EDITOR\nEditor\n#endif\n"
		"a # b\n"),
		(std::vector<std::string>{"Shown", "Editor", "a", "#", "b"}));
}

TEST(Tokenizer, DirectivesDetachTheCommentAboveThem)
{
	const std::vector<FToken> Tokens = TokensOf("// Copyright line\n#pragma once\nUCLASS");
	ASSERT_EQ(Tokens.size(), 2u);
	EXPECT_EQ(Tokens[0].Comment, "");
}

TEST(Tokenizer, ReportsUnterminatedCommentsAndLiteralsWhereTheyStart)
{
	const struct
	{
		const char* Source;
		int Line;
		int Column;
		const char* Message;
	} Cases[] = {
		{"a\n  /* open", 2, 3, "unterminated comment"},
		{"x = \"open\ny", 1, 5, "unterminated string literal"},
		{"c = 'x", 1, 5, "unterminated character literal"},
		{"r = R\"d(open)\"", 1, 5, "unterminated raw string literal"},
	};
	for (const auto& Case : Cases)
	{
		std::vector<FToken> Tokens;
		FTokenizeError Error;
		EXPECT_FALSE(Tokenize(Case.Source, Tokens, Error)) << Case.Source;
		EXPECT_EQ(Error.Line, Case.Line) << Case.Source;
		EXPECT_EQ(Error.Column, Case.Column) << Case.Source;
		EXPECT_EQ(Error.Message, Case.Message) << Case.Source;
	}
}
