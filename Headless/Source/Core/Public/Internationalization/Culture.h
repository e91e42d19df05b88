// A language and region as ICU knows it. Names use the engine's form: "en", "de-DE", "zh-Hans-CN".
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Internationalization/CulturePointer.h"

#include <string>

class FCulture
{
public:
	/** The culture for a name in the engine's form; null when ICU has no data for it. */
	static CORE_API FCulturePtr Create(const FString& InName);

	const FString& GetName() const
	{
		return Name;
	}

	/** The culture's name in its own language ("Deutsch (Deutschland)"). */
	const FString& GetDisplayName() const
	{
		return NativeName;
	}

	const FString& GetEnglishName() const
	{
		return EnglishName;
	}

	const FString& GetNativeName() const
	{
		return NativeName;
	}

	const FString& GetTwoLetterISOLanguageName() const
	{
		return TwoLetterLanguage;
	}

	const FString& GetRegion() const
	{
		return Region;
	}

	const FString& GetScript() const
	{
		return Script;
	}

	/** The names to try for this culture's data, most specific first ("de-DE", "de"). */
	CORE_API TArray<FString> GetPrioritizedParentCultureNames() const;

	/** ICU's identifier of the locale ("de_DE"), for the formatting code. */
	const std::string& GetICULocaleName() const
	{
		return ICULocaleName;
	}

private:
	FCulture() = default;

	FString Name;
	FString EnglishName;
	FString NativeName;
	FString TwoLetterLanguage;
	FString Region;
	FString Script;
	std::string ICULocaleName;
};
