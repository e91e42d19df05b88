// Translations of localisable text, one table per culture.
//
// The engine fills these tables from compiled .locres files. The headless engine has no such files:
// translations are added directly, with AddOrUpdateDisplayStringInLiveTable for the current language
// (as the engine's editor does) or AddHeadlessTranslation for any culture. A translation records the
// source string it was made from and is used only while a text's source still matches it, so an
// outdated translation falls back to the source, as stale .locres entries do in the engine.
#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Templates/SharedPointer.h"

#include <atomic>
#include <map>
#include <mutex>
#include <tuple>

typedef TSharedPtr<const FString, ESPMode::ThreadSafe> FTextConstDisplayStringPtr;

class FTextLocalizationManager
{
public:
	static CORE_API FTextLocalizationManager& Get();

	/** The translation for the current language (or its parents, such as "de" for "de-AT"); null when there is none. */
	CORE_API FTextConstDisplayStringPtr FindDisplayString(const FString& Namespace, const FString& Key, const FString* SourceString = nullptr) const;

	/** Adds a translation for the current language; without a source string it applies whatever the text's source. */
	CORE_API void AddOrUpdateDisplayStringInLiveTable(const FString& Namespace, const FString& Key, const FString& DisplayString, const FString* SourceString = nullptr);

	/** Headless only: adds a translation of (Namespace, Key) made from SourceString, for the named culture. */
	CORE_API void AddHeadlessTranslation(const FString& CultureName, const FString& Namespace, const FString& Key, const FString& SourceString, const FString& LocalizedString);

	/** Headless only: forgets every translation, so tests start from the source strings. */
	CORE_API void ClearHeadlessTranslations();

	/** Changes whenever what texts display may have changed: new translations or another culture. */
	uint32 GetTextRevision() const
	{
		return TextRevision.load(std::memory_order_acquire);
	}

	/** Called by the internationalisation layer when the current language or locale changes. */
	CORE_API void OnCultureChanged();

private:
	FTextLocalizationManager() = default;

	struct FEntry
	{
		FString LocalizedString;
		FString SourceString;
		bool bHasSource = false;
	};

	// Culture, namespace, key; namespaces and keys are case-sensitive, as in the engine.
	using FEntryKey = std::tuple<FString, FString, FString>;
	struct FEntryKeyLess
	{
		bool operator()(const FEntryKey& A, const FEntryKey& B) const;
	};

	void AddEntry(const FString& CultureName, const FString& Namespace, const FString& Key, FEntry&& Entry);

	mutable std::mutex Mutex;
	std::map<FEntryKey, FEntry, FEntryKeyLess> Entries;
	std::atomic<uint32> TextRevision = 1;
};
