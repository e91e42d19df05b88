#include "Internationalization/Regex.h"

#include "ICUUtilities.h"

#include <unicode/regex.h>

class FRegexPatternImplementation
{
public:
	/** Null when the pattern did not compile. */
	std::unique_ptr<icu::RegexPattern> Pattern;
};

class FRegexMatcherImplementation
{
public:
	FRegexMatcherImplementation(const std::shared_ptr<const FRegexPatternImplementation>& InPattern, FString&& InInput)
		: Pattern(InPattern)
		, Input(MoveTemp(InInput))
		, InputText(UE::ICUUtilities::ConvertString(Input))
	{
		if (Pattern && Pattern->Pattern)
		{
			UErrorCode Status = U_ZERO_ERROR;
			Matcher.reset(Pattern->Pattern->matcher(InputText, Status));
			if (U_FAILURE(Status))
			{
				Matcher.reset();
			}
		}
	}

	// The matcher keeps pointers to the pattern and the text, so both live here with it.
	std::shared_ptr<const FRegexPatternImplementation> Pattern;
	FString Input;
	icu::UnicodeString InputText;
	std::unique_ptr<icu::RegexMatcher> Matcher;
	bool bHasMatch = false;
};

FRegexPattern::FRegexPattern(const FString& SourceString, ERegexPatternFlags Flags)
{
	auto NewImplementation = std::make_shared<FRegexPatternImplementation>();
	UErrorCode Status = U_ZERO_ERROR;
	UParseError ParseError;
	const uint32_t IcuFlags = EnumHasAnyFlags(Flags, ERegexPatternFlags::CaseInsensitive) ? UREGEX_CASE_INSENSITIVE : 0;
	NewImplementation->Pattern.reset(icu::RegexPattern::compile(UE::ICUUtilities::ConvertString(SourceString), IcuFlags, ParseError, Status));
	if (U_FAILURE(Status))
	{
		NewImplementation->Pattern.reset();
	}
	Implementation = MoveTemp(NewImplementation);
}

FRegexPattern::~FRegexPattern() = default;

FRegexMatcher::FRegexMatcher(const FRegexPattern& Pattern, const FString& Input)
	: FRegexMatcher(Pattern, FString(Input))
{
}

FRegexMatcher::FRegexMatcher(const FRegexPattern& Pattern, FString&& Input)
	: Implementation(std::make_unique<FRegexMatcherImplementation>(Pattern.Implementation, MoveTemp(Input)))
{
}

FRegexMatcher::FRegexMatcher(FRegexMatcher&&) = default;
FRegexMatcher& FRegexMatcher::operator=(FRegexMatcher&&) = default;
FRegexMatcher::~FRegexMatcher() = default;

bool FRegexMatcher::FindNext()
{
	if (!Implementation || !Implementation->Matcher)
	{
		return false;
	}
	Implementation->bHasMatch = Implementation->Matcher->find();
	return Implementation->bHasMatch;
}

int32 FRegexMatcher::GetMatchBeginning()
{
	return GetCaptureGroupBeginning(0);
}

int32 FRegexMatcher::GetMatchEnding()
{
	return GetCaptureGroupEnding(0);
}

int32 FRegexMatcher::GetCaptureGroupBeginning(int32 Index)
{
	if (!Implementation || !Implementation->Matcher || !Implementation->bHasMatch)
	{
		return INDEX_NONE;
	}
	UErrorCode Status = U_ZERO_ERROR;
	const int32 Position = Implementation->Matcher->start(Index, Status);
	return U_SUCCESS(Status) ? Position : INDEX_NONE;
}

int32 FRegexMatcher::GetCaptureGroupEnding(int32 Index)
{
	if (!Implementation || !Implementation->Matcher || !Implementation->bHasMatch)
	{
		return INDEX_NONE;
	}
	UErrorCode Status = U_ZERO_ERROR;
	const int32 Position = Implementation->Matcher->end(Index, Status);
	return U_SUCCESS(Status) ? Position : INDEX_NONE;
}

FString FRegexMatcher::GetCaptureGroup(int32 Index)
{
	const int32 Beginning = GetCaptureGroupBeginning(Index);
	const int32 Ending = GetCaptureGroupEnding(Index);
	if (Beginning == INDEX_NONE || Ending == INDEX_NONE)
	{
		return FString();
	}
	return Implementation->Input.Mid(Beginning, Ending - Beginning);
}

int32 FRegexMatcher::GetBeginLimit()
{
	return Implementation && Implementation->Matcher ? int32(Implementation->Matcher->regionStart()) : 0;
}

int32 FRegexMatcher::GetEndLimit()
{
	return Implementation && Implementation->Matcher ? int32(Implementation->Matcher->regionEnd()) : 0;
}

void FRegexMatcher::SetLimits(int32 BeginIndex, int32 EndIndex)
{
	if (!Implementation || !Implementation->Matcher)
	{
		return;
	}
	const int32 Length = Implementation->Input.Len();
	const int32 Begin = BeginIndex < 0 ? 0 : (BeginIndex > Length ? Length : BeginIndex);
	const int32 End = EndIndex < Begin ? Begin : (EndIndex > Length ? Length : EndIndex);
	UErrorCode Status = U_ZERO_ERROR;
	Implementation->Matcher->region(Begin, End, Status);
	Implementation->bHasMatch = false;
}
