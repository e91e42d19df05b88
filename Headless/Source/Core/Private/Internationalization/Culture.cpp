#include "Internationalization/Culture.h"

#include "Containers/StringConv.h"
#include "ICUUtilities.h"

#include <string>

namespace
{
	bool IsAvailableLocale(const icu::Locale& Locale)
	{
		int32_t Count = 0;
		const icu::Locale* Available = icu::Locale::getAvailableLocales(Count);
		for (int32_t Index = 0; Index < Count; ++Index)
		{
			if (std::string(Available[Index].getName()) == Locale.getName())
			{
				return true;
			}
		}
		return false;
	}

	FString DisplayNameIn(const icu::Locale& Locale, const icu::Locale& DisplayLocale)
	{
		icu::UnicodeString Name;
		Locale.getDisplayName(DisplayLocale, Name);
		return UE::ICUUtilities::ConvertString(Name);
	}
}

FCulturePtr FCulture::Create(const FString& InName)
{
	std::string Tag = (const ANSICHAR*)FTCHARToANSI(*InName).Get();
	for (char& Char : Tag)
	{
		Char = Char == '_' ? '-' : Char;
	}

	icu::Locale Locale = icu::Locale::getRoot();
	if (!Tag.empty())
	{
		UErrorCode Status = U_ZERO_ERROR;
		Locale = icu::Locale::forLanguageTag(Tag, Status);
		if (U_FAILURE(Status) || Locale.isBogus() || !IsAvailableLocale(Locale))
		{
			return nullptr;
		}
	}

	TSharedRef<FCulture, ESPMode::ThreadSafe> Culture = MakeShareable(new FCulture());
	Culture->ICULocaleName = Locale.getName();
	if (!Tag.empty())
	{
		UErrorCode Status = U_ZERO_ERROR;
		const std::string LanguageTag = Locale.toLanguageTag<std::string>(Status);
		Culture->Name = FString(LanguageTag.c_str());
	}
	Culture->EnglishName = Tag.empty() ? FString(TEXT("Invariant Language (Invariant Country)")) : DisplayNameIn(Locale, icu::Locale::getEnglish());
	Culture->NativeName = Tag.empty() ? Culture->EnglishName : DisplayNameIn(Locale, Locale);
	Culture->TwoLetterLanguage = FString(Locale.getLanguage());
	Culture->Region = FString(Locale.getCountry());
	Culture->Script = FString(Locale.getScript());
	return Culture;
}

TArray<FString> FCulture::GetPrioritizedParentCultureNames() const
{
	TArray<FString> Names;
	FString Current = Name;
	while (!Current.IsEmpty())
	{
		Names.Add(Current);
		int32 DashIndex = INDEX_NONE;
		if (!Current.FindLastChar(TEXT('-'), DashIndex))
		{
			break;
		}
		Current.LeftInline(DashIndex);
	}
	return Names;
}
