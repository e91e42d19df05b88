#include "Token.h"

#include <cctype>

namespace HeaderTool
{
	namespace
	{
		bool IsIdentStart(char C)
		{
			return std::isalpha(static_cast<unsigned char>(C)) || C == '_';
		}

		bool IsIdentChar(char C)
		{
			return std::isalnum(static_cast<unsigned char>(C)) || C == '_';
		}

		bool IsStringPrefix(std::string_view Ident)
		{
			return Ident == "L" || Ident == "u" || Ident == "U" || Ident == "u8" || Ident == "R" || Ident == "LR"
				|| Ident == "uR" || Ident == "UR" || Ident == "u8R";
		}

		class FTokenizer
		{
		public:
			FTokenizer(std::string_view InSource, std::vector<FToken>& InTokens, FTokenizeError& InError)
				: Source(InSource), Tokens(InTokens), Error(InError)
			{
			}

			bool Run()
			{
				while (Pos < Source.size())
				{
					const char C = Source[Pos];
					if (C == '\n')
					{
						EndLine();
					}
					else if (C == ' ' || C == '\t' || C == '\r' || C == '\f' || C == '\v')
					{
						Advance();
					}
					else if (C == '/' && PeekChar(1) == '/')
					{
						LineComment();
					}
					else if (C == '/' && PeekChar(1) == '*')
					{
						if (!BlockComment())
						{
							return false;
						}
					}
					else if (C == '#' && !bLineHasToken)
					{
						Directive();
					}
					else if (!Token())
					{
						return false;
					}
				}
				FToken End;
				End.Kind = ETokenKind::End;
				End.Line = Line;
				End.Column = Column;
				Tokens.push_back(End);
				return true;
			}

		private:
			std::string_view Source;
			std::vector<FToken>& Tokens;
			FTokenizeError& Error;
			size_t Pos = 0;
			int Line = 1;
			int Column = 1;
			bool bLineHasToken = false;
			bool bLineHasComment = false;
			std::string PendingComment;
			bool bPendingIsLineComment = false;
			int PendingEndLine = 0;

			char PeekChar(size_t Ahead) const
			{
				return Pos + Ahead < Source.size() ? Source[Pos + Ahead] : '\0';
			}

			void Advance()
			{
				if (Source[Pos] == '\n')
				{
					++Line;
					Column = 1;
				}
				else
				{
					++Column;
				}
				++Pos;
			}

			void EndLine()
			{
				// A blank line detaches a comment from whatever follows.
				if (!bLineHasToken && !bLineHasComment)
				{
					PendingComment.clear();
				}
				bLineHasToken = false;
				bLineHasComment = false;
				Advance();
			}

			bool Fail(int AtLine, int AtColumn, std::string Message)
			{
				Error = {AtLine, AtColumn, std::move(Message)};
				return false;
			}

			void LineComment()
			{
				const size_t Start = Pos;
				while (Pos < Source.size() && Source[Pos] != '\n')
				{
					Advance();
				}
				// A comment trailing code documents that code, not the next declaration.
				if (bLineHasToken)
				{
					return;
				}
				const std::string_view Text = Source.substr(Start, Pos - Start);
				if (bPendingIsLineComment && !PendingComment.empty() && PendingEndLine == Line - 1)
				{
					PendingComment += '\n';
					PendingComment += Text;
				}
				else
				{
					PendingComment = Text;
				}
				bPendingIsLineComment = true;
				PendingEndLine = Line;
				bLineHasComment = true;
			}

			bool BlockComment()
			{
				const int StartLine = Line;
				const int StartColumn = Column;
				const size_t Start = Pos;
				Advance();
				Advance();
				while (Pos < Source.size() && !(Source[Pos] == '*' && PeekChar(1) == '/'))
				{
					Advance();
				}
				if (Pos >= Source.size())
				{
					return Fail(StartLine, StartColumn, "unterminated comment");
				}
				Advance();
				Advance();
				if (bLineHasToken)
				{
					return true;
				}
				PendingComment = Source.substr(Start, Pos - Start);
				bPendingIsLineComment = false;
				PendingEndLine = Line;
				bLineHasComment = true;
				return true;
			}

			// Reads one directive (with its continuation lines); returns its text after the '#'.
			std::string ReadDirective()
			{
				std::string Text;
				Advance();
				while (Pos < Source.size() && Source[Pos] != '\n')
				{
					if (Source[Pos] == '\\' && PeekChar(1) == '\n')
					{
						Advance();
						Advance();
						continue;
					}
					if (Source[Pos] == '\\' && PeekChar(1) == '\r' && PeekChar(2) == '\n')
					{
						Advance();
						Advance();
						Advance();
						continue;
					}
					if (Source[Pos] == '/' && PeekChar(1) == '*')
					{
						while (Pos < Source.size() && !(Source[Pos] == '*' && PeekChar(1) == '/'))
						{
							Advance();
						}
						if (Pos < Source.size())
						{
							Advance();
							Advance();
						}
						Text += ' ';
						continue;
					}
					if (Source[Pos] == '/' && PeekChar(1) == '/')
					{
						while (Pos < Source.size() && Source[Pos] != '\n')
						{
							Advance();
						}
						break;
					}
					Text += Source[Pos];
					Advance();
				}
				return Text;
			}

			static std::vector<std::string> Words(const std::string& Text)
			{
				std::vector<std::string> Result;
				std::string Word;
				for (char C : Text)
				{
					if (IsIdentChar(C))
					{
						Word += C;
					}
					else if (!Word.empty())
					{
						Result.push_back(std::move(Word));
						Word.clear();
					}
				}
				if (!Word.empty())
				{
					Result.push_back(std::move(Word));
				}
				return Result;
			}

			void Directive()
			{
				PendingComment.clear();
				const std::vector<std::string> DirectiveWords = Words(ReadDirective());
				if (DirectiveWords.size() >= 2 && DirectiveWords[0] == "if" && DirectiveWords[1] == "0")
				{
					SkipDisabledRegion();
				}
			}

			// Skips an "#if 0" region up to its #else, #elif or #endif, minding nested conditionals.
			void SkipDisabledRegion()
			{
				int Depth = 1;
				while (Pos < Source.size())
				{
					// At the end of the directive's line: move to the next line start.
					if (Source[Pos] == '\n')
					{
						Advance();
					}
					size_t Probe = Pos;
					while (Probe < Source.size() && (Source[Probe] == ' ' || Source[Probe] == '\t'))
					{
						++Probe;
					}
					if (Probe < Source.size() && Source[Probe] == '#')
					{
						while (Pos < Probe)
						{
							Advance();
						}
						const std::vector<std::string> DirectiveWords = Words(ReadDirective());
						const std::string Keyword = DirectiveWords.empty() ? "" : DirectiveWords[0];
						if (Keyword == "if" || Keyword == "ifdef" || Keyword == "ifndef")
						{
							++Depth;
						}
						else if (Keyword == "endif")
						{
							--Depth;
						}
						else if ((Keyword == "else" || Keyword == "elif") && Depth == 1)
						{
							Depth = 0;
						}
						if (Depth == 0)
						{
							return;
						}
						continue;
					}
					while (Pos < Source.size() && Source[Pos] != '\n')
					{
						Advance();
					}
				}
			}

			void Push(ETokenKind Kind, size_t Start, int StartLine, int StartColumn)
			{
				FToken Token;
				Token.Kind = Kind;
				Token.Text = std::string(Source.substr(Start, Pos - Start));
				Token.Line = StartLine;
				Token.Column = StartColumn;
				Token.Comment = std::move(PendingComment);
				PendingComment.clear();
				Tokens.push_back(std::move(Token));
				bLineHasToken = true;
			}

			bool Quoted(char Quote, int StartLine, int StartColumn)
			{
				Advance();
				while (Pos < Source.size() && Source[Pos] != Quote)
				{
					if (Source[Pos] == '\n')
					{
						break;
					}
					if (Source[Pos] == '\\' && Pos + 1 < Source.size())
					{
						Advance();
					}
					Advance();
				}
				if (Pos >= Source.size() || Source[Pos] != Quote)
				{
					return Fail(StartLine, StartColumn,
						Quote == '"' ? "unterminated string literal" : "unterminated character literal");
				}
				Advance();
				return true;
			}

			bool RawString(int StartLine, int StartColumn)
			{
				Advance();
				std::string Delimiter;
				while (Pos < Source.size() && Source[Pos] != '(' && Source[Pos] != '\n')
				{
					Delimiter += Source[Pos];
					Advance();
				}
				if (Pos >= Source.size() || Source[Pos] != '(')
				{
					return Fail(StartLine, StartColumn, "malformed raw string literal");
				}
				const std::string Closing = ")" + Delimiter + "\"";
				const size_t End = Source.find(Closing, Pos);
				if (End == std::string_view::npos)
				{
					return Fail(StartLine, StartColumn, "unterminated raw string literal");
				}
				while (Pos < End + Closing.size())
				{
					Advance();
				}
				return true;
			}

			bool Token()
			{
				const size_t Start = Pos;
				const int StartLine = Line;
				const int StartColumn = Column;
				const char C = Source[Pos];
				if (IsIdentStart(C))
				{
					while (Pos < Source.size() && IsIdentChar(Source[Pos]))
					{
						Advance();
					}
					const std::string_view Ident = Source.substr(Start, Pos - Start);
					if (Pos < Source.size() && Source[Pos] == '"' && IsStringPrefix(Ident))
					{
						const bool bOk = Ident.back() == 'R' ? RawString(StartLine, StartColumn) : Quoted('"', StartLine, StartColumn);
						if (!bOk)
						{
							return false;
						}
						Push(ETokenKind::String, Start, StartLine, StartColumn);
						return true;
					}
					if (Pos < Source.size() && Source[Pos] == '\'' && IsStringPrefix(Ident) && Ident.back() != 'R')
					{
						if (!Quoted('\'', StartLine, StartColumn))
						{
							return false;
						}
						Push(ETokenKind::Char, Start, StartLine, StartColumn);
						return true;
					}
					Push(ETokenKind::Identifier, Start, StartLine, StartColumn);
					return true;
				}
				if (std::isdigit(static_cast<unsigned char>(C)) || (C == '.' && std::isdigit(static_cast<unsigned char>(PeekChar(1)))))
				{
					// A preprocessing number: digits, letters, '.', digit separators and signed exponents.
					while (Pos < Source.size())
					{
						const char N = Source[Pos];
						const char Prev = Pos > Start ? Source[Pos - 1] : '\0';
						if (IsIdentChar(N) || N == '.' || N == '\'')
						{
							Advance();
						}
						else if ((N == '+' || N == '-')
							&& (Prev == 'e' || Prev == 'E' || Prev == 'p' || Prev == 'P'))
						{
							Advance();
						}
						else
						{
							break;
						}
					}
					Push(ETokenKind::Number, Start, StartLine, StartColumn);
					return true;
				}
				if (C == '"' || C == '\'')
				{
					if (!Quoted(C, StartLine, StartColumn))
					{
						return false;
					}
					Push(C == '"' ? ETokenKind::String : ETokenKind::Char, Start, StartLine, StartColumn);
					return true;
				}
				Advance();
				if (C == ':' && Pos < Source.size() && Source[Pos] == ':')
				{
					Advance();
				}
				Push(ETokenKind::Symbol, Start, StartLine, StartColumn);
				return true;
			}
		};
	}

	bool Tokenize(std::string_view Source, std::vector<FToken>& OutTokens, FTokenizeError& OutError)
	{
		OutTokens.clear();
		return FTokenizer(Source, OutTokens, OutError).Run();
	}
}
