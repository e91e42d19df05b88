// What an FText holds: how it was made, and its display string built from that for the current culture.
#pragma once

#include "Internationalization/Text.h"
#include "Internationalization/TextLocalizationManager.h"

#include <functional>
#include <mutex>

class ITextData
{
public:
	virtual ~ITextData() = default;

	virtual const FString& GetDisplayString() const = 0;

	/** The text as its source language shows it. */
	virtual FString BuildSourceString() const
	{
		return GetDisplayString();
	}

	/** The source string of a localisable text; null for any other. */
	virtual const FString* GetLocalizableSourceString() const
	{
		return nullptr;
	}

	virtual bool GetNamespaceAndKey(FString& OutNamespace, FString& OutKey) const
	{
		return false;
	}
};

/** A fixed string: FromString, AsCultureInvariant, the empty text. */
class FTextData_Plain final : public ITextData
{
public:
	explicit FTextData_Plain(FString&& InString)
		: String(MoveTemp(InString))
	{
	}

	virtual const FString& GetDisplayString() const override
	{
		return String;
	}

private:
	FString String;
};

/** A display string rebuilt whenever the text revision moves (culture or translations changed). */
class FTextData_Generated : public ITextData
{
public:
	virtual const FString& GetDisplayString() const override final
	{
		const uint32 Revision = FTextLocalizationManager::Get().GetTextRevision();
		std::lock_guard Lock(CacheMutex);
		if (CachedRevision != Revision)
		{
			CachedDisplayString = BuildDisplayString();
			CachedRevision = Revision;
		}
		return CachedDisplayString;
	}

protected:
	virtual FString BuildDisplayString() const = 0;

private:
	mutable std::mutex CacheMutex;
	mutable FString CachedDisplayString;
	mutable uint32 CachedRevision = 0;
};

/** NSLOCTEXT / LOCTEXT: a namespace, a key and the source-language string. */
class FTextData_Localized final : public FTextData_Generated
{
public:
	FTextData_Localized(FString&& InNamespace, FString&& InKey, FString&& InSource)
		: Namespace(MoveTemp(InNamespace))
		, Key(MoveTemp(InKey))
		, Source(MoveTemp(InSource))
	{
	}

	virtual FString BuildSourceString() const override
	{
		return Source;
	}

	virtual const FString* GetLocalizableSourceString() const override
	{
		return &Source;
	}

	virtual bool GetNamespaceAndKey(FString& OutNamespace, FString& OutKey) const override
	{
		OutNamespace = Namespace;
		OutKey = Key;
		return true;
	}

	bool IsSameKeyAs(const FTextData_Localized& Other) const
	{
		return Namespace.Equals(Other.Namespace) && Key.Equals(Other.Key) && Source.Equals(Other.Source);
	}

protected:
	virtual FString BuildDisplayString() const override
	{
		const FTextConstDisplayStringPtr Translation = FTextLocalizationManager::Get().FindDisplayString(Namespace, Key, &Source);
		return Translation.IsValid() ? *Translation : Source;
	}

private:
	FString Namespace;
	FString Key;
	FString Source;
};

/** FText::AsNumber. */
class FTextData_AsNumber final : public FTextData_Generated
{
public:
	FTextData_AsNumber(FFormatArgumentValue InValue, const FNumberFormattingOptions* InOptions, const FCulturePtr& InTargetCulture)
		: Value(MoveTemp(InValue))
		, Options(InOptions ? *InOptions : FNumberFormattingOptions::DefaultWithGrouping())
		, TargetCulture(InTargetCulture)
	{
	}

	virtual FString BuildSourceString() const override;

protected:
	virtual FString BuildDisplayString() const override;

private:
	FFormatArgumentValue Value;
	FNumberFormattingOptions Options;
	FCulturePtr TargetCulture;
};

/** FText::Format: a pattern and its arguments, ordered or named. */
class FTextData_Format final : public FTextData_Generated
{
public:
	FTextData_Format(FTextFormat InPattern, FFormatOrderedArguments&& InOrdered)
		: Pattern(MoveTemp(InPattern))
		, Ordered(MoveTemp(InOrdered))
	{
	}

	FTextData_Format(FTextFormat InPattern, FFormatNamedArguments&& InNamed)
		: Pattern(MoveTemp(InPattern))
		, Named(MoveTemp(InNamed))
		, bNamed(true)
	{
	}

	virtual FString BuildSourceString() const override;

protected:
	virtual FString BuildDisplayString() const override;

private:
	FString Build(bool bAsSource) const;

	FTextFormat Pattern;
	FFormatOrderedArguments Ordered;
	FFormatNamedArguments Named;
	bool bNamed = false;
};

namespace UE::Text::Private
{
	/** Formats a number argument with ICU for the culture's conventions. */
	FString FormatNumber(const FFormatArgumentValue& Value, const FNumberFormattingOptions& Options, const FCulture& Culture);

	/** Replaces the pattern's arguments with what the lookup finds for their names; null leaves one as written. */
	FString FormatPattern(const FString& Pattern, const std::function<const FFormatArgumentValue*(const FString&)>& Lookup, bool bAsSource);

	/** Argument names in order of first use. */
	void CollectArgumentNames(const FString& Pattern, TArray<FString>& OutNames);
}
