// The process's current culture. Texts follow the current language for translations and the current
// locale for numbers; SetCurrentCulture sets both. The starting culture is "en".
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Internationalization/Culture.h"
#include "Internationalization/CulturePointer.h"

#include <map>
#include <mutex>

class FInternationalization
{
public:
	static CORE_API FInternationalization& Get();

	static bool IsAvailable()
	{
		return true;
	}

	/** False, leaving everything as it was, when the culture is unknown. */
	CORE_API bool SetCurrentCulture(const FString& InCultureName);
	CORE_API bool SetCurrentLanguage(const FString& InCultureName);
	CORE_API bool SetCurrentLocale(const FString& InCultureName);
	CORE_API bool SetCurrentLanguageAndLocale(const FString& InCultureName);

	/** The current language's culture. */
	CORE_API FCultureRef GetCurrentCulture() const;
	CORE_API FCultureRef GetCurrentLanguage() const;
	CORE_API FCultureRef GetCurrentLocale() const;
	CORE_API FCultureRef GetDefaultCulture() const;
	CORE_API FCultureRef GetInvariantCulture() const;

	/** The culture of that name, created on first request; null when unknown. */
	CORE_API FCulturePtr GetCulture(const FString& InCultureName);

private:
	FInternationalization();

	mutable std::recursive_mutex Mutex;
	std::map<FString, FCultureRef> Cultures;
	FCulturePtr DefaultCulture;
	FCulturePtr InvariantCulture;
	FCulturePtr CurrentLanguage;
	FCulturePtr CurrentLocale;
};
