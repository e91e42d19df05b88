// A position in the token vector with the small vocabulary the parsers are written in.
#pragma once

#include "Token.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace HeaderTool
{
	// Thrown by the parsers at the first malformed declaration; ParseHeader turns it into an error line.
	struct FParseError
	{
		int Line = 0;
		int Column = 0;
		std::string Message;
	};

	class FTokenCursor
	{
	public:
		// Tokens must end with an End token, as Tokenize leaves them.
		explicit FTokenCursor(const std::vector<FToken>& InTokens);

		const FToken& Peek(size_t Ahead = 0) const;
		const FToken& Next();
		bool AtEnd() const;

		// Whether the next token is Text (an identifier or symbol, never a literal).
		bool Check(std::string_view Text) const;
		// Consumes the next token when it is Text.
		bool Test(std::string_view Text);
		// Consumes Text or throws "expected <Text> <Context>" at the next token.
		const FToken& Expect(std::string_view Text, std::string_view Context);
		const FToken& ExpectIdentifier(std::string_view What);

		// Consumes tokens up to, not including, the first of Terminators found outside (), [] and {}.
		// Throws at Opening when the brackets close early or the tokens run out first, unless
		// bEndTerminates (for a cursor over a slice, such as one parameter list).
		std::vector<FToken> Until(std::initializer_list<std::string_view> Terminators, const FToken& Opening,
			std::string_view OpeningWhat, bool bEndTerminates = false);

		// Consumes a balanced group that starts at the next token ("(", "[" or "{") through its closer.
		std::vector<FToken> Group();

		[[noreturn]] static void Fail(const FToken& At, std::string Message);

	private:
		std::string DescribeFound() const;

		const std::vector<FToken>& Tokens;
		size_t Index = 0;
	};

	// Tokens joined back into text: a space between two words and after commas, none elsewhere.
	std::string JoinTokens(const std::vector<FToken>& Tokens);

	// A string literal's text without prefix, quotes or escapes; any other token's text unchanged.
	std::string Unquote(const FToken& Token);
}
