#include "Internationalization/TextLocalizationManager.h"

#include "Internationalization/Culture.h"
#include "Internationalization/Internationalization.h"

FTextLocalizationManager& FTextLocalizationManager::Get()
{
	static FTextLocalizationManager* const Singleton = new FTextLocalizationManager();
	return *Singleton;
}

bool FTextLocalizationManager::FEntryKeyLess::operator()(const FEntryKey& A, const FEntryKey& B) const
{
	// Culture names ignore case ("de-de" is "de-DE"); namespaces and keys do not.
	if (const int32 CultureDiff = std::get<0>(A).Compare(std::get<0>(B), ESearchCase::IgnoreCase))
	{
		return CultureDiff < 0;
	}
	if (const int32 NamespaceDiff = std::get<1>(A).Compare(std::get<1>(B), ESearchCase::CaseSensitive))
	{
		return NamespaceDiff < 0;
	}
	return std::get<2>(A).Compare(std::get<2>(B), ESearchCase::CaseSensitive) < 0;
}

FTextConstDisplayStringPtr FTextLocalizationManager::FindDisplayString(const FString& Namespace, const FString& Key, const FString* SourceString) const
{
	const TArray<FString> CultureNames = FInternationalization::Get().GetCurrentLanguage()->GetPrioritizedParentCultureNames();
	std::lock_guard Lock(Mutex);
	for (const FString& CultureName : CultureNames)
	{
		const auto Found = Entries.find(FEntryKey(CultureName, Namespace, Key));
		if (Found == Entries.end())
		{
			continue;
		}
		const FEntry& Entry = Found->second;
		if (Entry.bHasSource && SourceString && !Entry.SourceString.Equals(*SourceString, ESearchCase::CaseSensitive))
		{
			// Translated from another source: the text changed since, so the translation no longer applies.
			return nullptr;
		}
		return MakeShared<const FString>(Entry.LocalizedString);
	}
	return nullptr;
}

void FTextLocalizationManager::AddOrUpdateDisplayStringInLiveTable(const FString& Namespace, const FString& Key, const FString& DisplayString, const FString* SourceString)
{
	FEntry Entry;
	Entry.LocalizedString = DisplayString;
	Entry.bHasSource = SourceString != nullptr;
	Entry.SourceString = SourceString ? *SourceString : FString();
	AddEntry(FInternationalization::Get().GetCurrentLanguage()->GetName(), Namespace, Key, MoveTemp(Entry));
}

void FTextLocalizationManager::AddHeadlessTranslation(const FString& CultureName, const FString& Namespace, const FString& Key, const FString& SourceString, const FString& LocalizedString)
{
	FEntry Entry;
	Entry.LocalizedString = LocalizedString;
	Entry.SourceString = SourceString;
	Entry.bHasSource = true;
	AddEntry(CultureName, Namespace, Key, MoveTemp(Entry));
}

void FTextLocalizationManager::AddEntry(const FString& CultureName, const FString& Namespace, const FString& Key, FEntry&& Entry)
{
	{
		std::lock_guard Lock(Mutex);
		Entries.insert_or_assign(FEntryKey(CultureName, Namespace, Key), MoveTemp(Entry));
	}
	TextRevision.fetch_add(1, std::memory_order_acq_rel);
}

void FTextLocalizationManager::ClearHeadlessTranslations()
{
	{
		std::lock_guard Lock(Mutex);
		Entries.clear();
	}
	TextRevision.fetch_add(1, std::memory_order_acq_rel);
}

void FTextLocalizationManager::OnCultureChanged()
{
	TextRevision.fetch_add(1, std::memory_order_acq_rel);
}
