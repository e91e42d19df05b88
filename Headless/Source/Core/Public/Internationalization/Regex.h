// Regular expressions with ICU's syntax, over TCHAR text. Positions are indices into the input
// string. A pattern that does not compile matches nothing.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Misc/EnumClassFlags.h"

#include <memory>

enum class ERegexPatternFlags : uint32
{
	None = 0,
	CaseInsensitive = (1 << 0),
};
ENUM_CLASS_FLAGS(ERegexPatternFlags);

class FRegexPatternImplementation;
class FRegexMatcherImplementation;

class FRegexPattern
{
	friend class FRegexMatcher;

public:
	CORE_API explicit FRegexPattern(const FString& SourceString, ERegexPatternFlags Flags = ERegexPatternFlags::None);

	FRegexPattern(const FRegexPattern&) = default;
	FRegexPattern(FRegexPattern&&) = default;
	FRegexPattern& operator=(const FRegexPattern&) = default;
	FRegexPattern& operator=(FRegexPattern&&) = default;
	CORE_API ~FRegexPattern();

private:
	std::shared_ptr<const FRegexPatternImplementation> Implementation;
};

class FRegexMatcher
{
public:
	CORE_API FRegexMatcher(const FRegexPattern& Pattern, const FString& Input);
	CORE_API FRegexMatcher(const FRegexPattern& Pattern, FString&& Input);

	FRegexMatcher(const FRegexMatcher&) = delete;
	FRegexMatcher& operator=(const FRegexMatcher&) = delete;
	CORE_API FRegexMatcher(FRegexMatcher&&);
	CORE_API FRegexMatcher& operator=(FRegexMatcher&&);
	CORE_API ~FRegexMatcher();

	/** Finds the next match after the previous one, within the limits; false when there is none. */
	CORE_API bool FindNext();

	/** Start and end (one past the last character) of the current match; INDEX_NONE without one. */
	CORE_API int32 GetMatchBeginning();
	CORE_API int32 GetMatchEnding();

	/** Group 0 is the whole match. A group that took no part gives INDEX_NONE and an empty string. */
	CORE_API int32 GetCaptureGroupBeginning(int32 Index);
	CORE_API int32 GetCaptureGroupEnding(int32 Index);
	CORE_API FString GetCaptureGroup(int32 Index);

	CORE_API int32 GetBeginLimit();
	CORE_API int32 GetEndLimit();

	/** Searches only Input[BeginIndex, EndIndex) from now on, restarting at BeginIndex. */
	CORE_API void SetLimits(int32 BeginIndex, int32 EndIndex);

private:
	std::unique_ptr<FRegexMatcherImplementation> Implementation;
};
