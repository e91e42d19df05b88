// The tokenizer's output: what the parsers walk over.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace HeaderTool
{
	enum class ETokenKind
	{
		Identifier,
		Number,
		String,     // Text keeps the quotes and any prefix: "abc", L"abc", R"(abc)"
		Char,
		Symbol,     // one character, except "::"
		End,        // always the last token, so lookahead never runs off the vector
	};

	struct FToken
	{
		ETokenKind Kind = ETokenKind::End;
		std::string Text;
		int Line = 0;
		int Column = 0;
		// The comment block directly above this token, markers included; "" when there is none or
		// a blank line separates them.
		std::string Comment;

		bool Is(std::string_view Expected) const
		{
			return (Kind == ETokenKind::Identifier || Kind == ETokenKind::Symbol) && Text == Expected;
		}
	};

	struct FTokenizeError
	{
		int Line = 0;
		int Column = 0;
		std::string Message;
	};

	// Preprocessor lines are dropped (and "#if 0" regions with them); comments are attached to the token
	// that follows them. Returns false on an unterminated comment, string or character literal.
	bool Tokenize(std::string_view Source, std::vector<FToken>& OutTokens, FTokenizeError& OutError);
}
