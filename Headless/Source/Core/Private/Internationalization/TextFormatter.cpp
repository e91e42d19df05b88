// FText::Format patterns: "{Name}" is an argument, a backtick escapes the next brace or backtick.
#include "Internationalization/Internationalization.h"
#include "TextData.h"

namespace
{
	constexpr TCHAR EscapeChar = TEXT('`');

	struct FArgumentToken
	{
		int32 Start = 0;
		int32 End = 0;
		FString Name;
	};

	// Finds the argument starting at Index (a '{'), if the brace is closed before another opens.
	bool ReadArgument(const FString& Pattern, int32 Index, FArgumentToken& OutToken)
	{
		for (int32 Cursor = Index + 1; Cursor < Pattern.Len(); ++Cursor)
		{
			if (Pattern[Cursor] == TEXT('{'))
			{
				return false;
			}
			if (Pattern[Cursor] == TEXT('}'))
			{
				OutToken.Start = Index;
				OutToken.End = Cursor + 1;
				OutToken.Name = Pattern.Mid(Index + 1, Cursor - Index - 1);
				return true;
			}
		}
		return false;
	}

	bool IsEscaped(const FString& Pattern, int32 Index)
	{
		if (Pattern[Index] != EscapeChar || Index + 1 >= Pattern.Len())
		{
			return false;
		}
		const TCHAR Next = Pattern[Index + 1];
		return Next == TEXT('{') || Next == TEXT('}') || Next == EscapeChar;
	}

	/** Walks the pattern, handing literal runs and arguments to the visitors. */
	template <typename LiteralVisitor, typename ArgumentVisitor>
	void WalkPattern(const FString& Pattern, LiteralVisitor&& OnLiteral, ArgumentVisitor&& OnArgument)
	{
		int32 Index = 0;
		while (Index < Pattern.Len())
		{
			if (IsEscaped(Pattern, Index))
			{
				OnLiteral(Pattern[Index + 1]);
				Index += 2;
				continue;
			}
			FArgumentToken Token;
			if (Pattern[Index] == TEXT('{') && ReadArgument(Pattern, Index, Token))
			{
				OnArgument(Token);
				Index = Token.End;
				continue;
			}
			OnLiteral(Pattern[Index]);
			++Index;
		}
	}

	const FFormatArgumentValue* FindOrdered(const FFormatOrderedArguments& Arguments, const FString& Name)
	{
		if (Name.IsEmpty() || Name.Len() > 9)
		{
			return nullptr;
		}
		for (const TCHAR Char : Name)
		{
			if (!FChar::IsDigit(Char))
			{
				return nullptr;
			}
		}
		const int32 Index = FCString::Atoi(*Name);
		return Arguments.IsValidIndex(Index) ? &Arguments[Index] : nullptr;
	}
}

namespace UE::Text::Private
{
	FString FormatPattern(const FString& Pattern, const std::function<const FFormatArgumentValue*(const FString&)>& Lookup, bool bAsSource)
	{
		FString Result;
		Result.Reserve(Pattern.Len());
		WalkPattern(Pattern,
			[&Result](TCHAR Char)
			{
				Result.AppendChar(Char);
			},
			[&](const FArgumentToken& Token)
			{
				const FFormatArgumentValue* Argument = Lookup(Token.Name);
				if (Argument == nullptr)
				{
					Result.AppendChars(*Pattern + Token.Start, Token.End - Token.Start);
				}
				else if (bAsSource && Argument->GetType() == EFormatArgumentType::Text)
				{
					Result += Argument->GetTextValue().BuildSourceString();
				}
				else if (bAsSource && Argument->GetType() != EFormatArgumentType::Gender)
				{
					// The source form of a number does not depend on the current locale.
					Result += FormatNumber(*Argument, FNumberFormattingOptions::DefaultWithGrouping(), *FInternationalization::Get().GetInvariantCulture());
				}
				else
				{
					Result += Argument->ToFormattedString();
				}
			});
		return Result;
	}

	void CollectArgumentNames(const FString& Pattern, TArray<FString>& OutNames)
	{
		WalkPattern(Pattern,
			[](TCHAR)
			{
			},
			[&OutNames](const FArgumentToken& Token)
			{
				OutNames.AddUnique(Token.Name);
			});
	}
}

FString FTextData_Format::Build(bool bAsSource) const
{
	const FString PatternString = bAsSource ? Pattern.GetSourceText().BuildSourceString() : Pattern.GetSourceText().ToString();
	if (bNamed)
	{
		return UE::Text::Private::FormatPattern(PatternString,
			[this](const FString& Name)
			{
				return Named.Find(Name);
			}, bAsSource);
	}
	return UE::Text::Private::FormatPattern(PatternString,
		[this](const FString& Name)
		{
			return FindOrdered(Ordered, Name);
		}, bAsSource);
}

FString FTextData_Format::BuildDisplayString() const
{
	return Build(false);
}

FString FTextData_Format::BuildSourceString() const
{
	return Build(true);
}

void FTextFormat::GetFormatArgumentNames(TArray<FString>& OutArgumentNames) const
{
	UE::Text::Private::CollectArgumentNames(SourceText.ToString(), OutArgumentNames);
}

FString FFormatArgumentValue::ToFormattedString() const
{
	switch (Type)
	{
	case EFormatArgumentType::Text:
		return TextValue.ToString();
	case EFormatArgumentType::Gender:
		return FString();
	default:
		return UE::Text::Private::FormatNumber(*this, FNumberFormattingOptions::DefaultWithGrouping(),
			*FInternationalization::Get().GetCurrentLocale());
	}
}
