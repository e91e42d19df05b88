#include "TokenCursor.h"

#include <cctype>

namespace HeaderTool
{
	namespace
	{
		const char* CloserOf(const FToken& Token)
		{
			if (Token.Kind != ETokenKind::Symbol)
			{
				return nullptr;
			}
			if (Token.Text == "(")
			{
				return ")";
			}
			if (Token.Text == "[")
			{
				return "]";
			}
			if (Token.Text == "{")
			{
				return "}";
			}
			return nullptr;
		}

		bool IsCloser(const FToken& Token)
		{
			return Token.Is(")") || Token.Is("]") || Token.Is("}");
		}
	}

	FTokenCursor::FTokenCursor(const std::vector<FToken>& InTokens)
		: Tokens(InTokens)
	{
	}

	const FToken& FTokenCursor::Peek(size_t Ahead) const
	{
		const size_t At = Index + Ahead;
		return At < Tokens.size() ? Tokens[At] : Tokens.back();
	}

	const FToken& FTokenCursor::Next()
	{
		const FToken& Token = Peek();
		if (Index < Tokens.size() - 1)
		{
			++Index;
		}
		return Token;
	}

	bool FTokenCursor::AtEnd() const
	{
		return Peek().Kind == ETokenKind::End;
	}

	bool FTokenCursor::Check(std::string_view Text) const
	{
		return Peek().Is(Text);
	}

	bool FTokenCursor::Test(std::string_view Text)
	{
		if (!Check(Text))
		{
			return false;
		}
		Next();
		return true;
	}

	const FToken& FTokenCursor::Expect(std::string_view Text, std::string_view Context)
	{
		if (!Check(Text))
		{
			Fail(Peek(), "expected '" + std::string(Text) + "' " + std::string(Context) + DescribeFound());
		}
		return Next();
	}

	const FToken& FTokenCursor::ExpectIdentifier(std::string_view What)
	{
		if (Peek().Kind != ETokenKind::Identifier)
		{
			Fail(Peek(), "expected " + std::string(What) + DescribeFound());
		}
		return Next();
	}

	std::string FTokenCursor::DescribeFound() const
	{
		return AtEnd() ? ", found the end of the file" : ", found '" + Peek().Text + "'";
	}

	std::vector<FToken> FTokenCursor::Until(std::initializer_list<std::string_view> Terminators, const FToken& Opening,
		std::string_view OpeningWhat, bool bEndTerminates)
	{
		std::vector<FToken> Result;
		std::vector<const char*> Closers;
		while (!AtEnd())
		{
			const FToken& Token = Peek();
			if (Closers.empty())
			{
				for (std::string_view Terminator : Terminators)
				{
					if (Token.Is(Terminator))
					{
						return Result;
					}
				}
				if (IsCloser(Token))
				{
					Fail(Token, "unbalanced '" + Token.Text + "' in " + std::string(OpeningWhat));
				}
			}
			if (const char* Closer = CloserOf(Token))
			{
				Closers.push_back(Closer);
			}
			else if (IsCloser(Token))
			{
				if (!Token.Is(Closers.back()))
				{
					Fail(Token, "unbalanced '" + Token.Text + "' in " + std::string(OpeningWhat));
				}
				Closers.pop_back();
			}
			Result.push_back(Next());
		}
		if (bEndTerminates && Closers.empty())
		{
			return Result;
		}
		Fail(Opening, std::string(OpeningWhat) + " is not closed");
	}

	std::vector<FToken> FTokenCursor::Group()
	{
		const FToken& Opening = Next();
		const char* Closer = CloserOf(Opening);
		std::vector<FToken> Result = Until({Closer}, Opening, "'" + Opening.Text + "'");
		Next();
		return Result;
	}

	void FTokenCursor::Fail(const FToken& At, std::string Message)
	{
		throw FParseError{At.Line, At.Column, std::move(Message)};
	}

	std::string JoinTokens(const std::vector<FToken>& Tokens)
	{
		std::string Result;
		for (const FToken& Token : Tokens)
		{
			const bool bWord = Token.Kind != ETokenKind::Symbol;
			if (!Result.empty() && bWord)
			{
				const char Last = Result.back();
				if (std::isalnum(static_cast<unsigned char>(Last)) || Last == '_' || Last == '"' || Last == '\'')
				{
					Result += ' ';
				}
			}
			Result += Token.Text;
			if (Token.Is(","))
			{
				Result += ' ';
			}
		}
		return Result;
	}

	std::string Unquote(const FToken& Token)
	{
		const std::string& Text = Token.Text;
		if (Token.Kind != ETokenKind::String)
		{
			return Text;
		}
		const size_t Open = Text.find('"');
		if (Open > 0 && Text[Open - 1] == 'R')
		{
			const size_t Paren = Text.find('(', Open);
			const size_t Close = Text.rfind(')');
			return Text.substr(Paren + 1, Close - Paren - 1);
		}
		std::string Result;
		for (size_t Index = Open + 1; Index + 1 < Text.size(); ++Index)
		{
			char C = Text[Index];
			if (C == '\\' && Index + 2 < Text.size())
			{
				C = Text[++Index];
				C = C == 'n' ? '\n' : C == 't' ? '\t' : C;
			}
			Result += C;
		}
		return Result;
	}
}
