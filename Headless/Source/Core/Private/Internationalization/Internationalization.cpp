#include "Internationalization/Internationalization.h"

#include "Internationalization/TextLocalizationManager.h"

FInternationalization& FInternationalization::Get()
{
	static FInternationalization* const Singleton = new FInternationalization();
	return *Singleton;
}

FInternationalization::FInternationalization()
{
	InvariantCulture = FCulture::Create(FString());
	DefaultCulture = GetCulture(TEXT("en"));
	check(InvariantCulture.IsValid() && DefaultCulture.IsValid());
	CurrentLanguage = DefaultCulture;
	CurrentLocale = DefaultCulture;
}

FCulturePtr FInternationalization::GetCulture(const FString& InCultureName)
{
	std::lock_guard Lock(Mutex);
	if (const auto Found = Cultures.find(InCultureName); Found != Cultures.end())
	{
		return Found->second;
	}
	FCulturePtr Culture = FCulture::Create(InCultureName);
	if (Culture.IsValid())
	{
		Cultures.emplace(InCultureName, Culture.ToSharedRef());
	}
	return Culture;
}

bool FInternationalization::SetCurrentCulture(const FString& InCultureName)
{
	return SetCurrentLanguageAndLocale(InCultureName);
}

bool FInternationalization::SetCurrentLanguageAndLocale(const FString& InCultureName)
{
	const FCulturePtr Culture = GetCulture(InCultureName);
	if (!Culture.IsValid())
	{
		return false;
	}
	{
		std::lock_guard Lock(Mutex);
		CurrentLanguage = Culture;
		CurrentLocale = Culture;
	}
	FTextLocalizationManager::Get().OnCultureChanged();
	return true;
}

bool FInternationalization::SetCurrentLanguage(const FString& InCultureName)
{
	const FCulturePtr Culture = GetCulture(InCultureName);
	if (!Culture.IsValid())
	{
		return false;
	}
	{
		std::lock_guard Lock(Mutex);
		CurrentLanguage = Culture;
	}
	FTextLocalizationManager::Get().OnCultureChanged();
	return true;
}

bool FInternationalization::SetCurrentLocale(const FString& InCultureName)
{
	const FCulturePtr Culture = GetCulture(InCultureName);
	if (!Culture.IsValid())
	{
		return false;
	}
	{
		std::lock_guard Lock(Mutex);
		CurrentLocale = Culture;
	}
	FTextLocalizationManager::Get().OnCultureChanged();
	return true;
}

FCultureRef FInternationalization::GetCurrentCulture() const
{
	return GetCurrentLanguage();
}

FCultureRef FInternationalization::GetCurrentLanguage() const
{
	std::lock_guard Lock(Mutex);
	return CurrentLanguage.ToSharedRef();
}

FCultureRef FInternationalization::GetCurrentLocale() const
{
	std::lock_guard Lock(Mutex);
	return CurrentLocale.ToSharedRef();
}

FCultureRef FInternationalization::GetDefaultCulture() const
{
	return DefaultCulture.ToSharedRef();
}

FCultureRef FInternationalization::GetInvariantCulture() const
{
	return InvariantCulture.ToSharedRef();
}
