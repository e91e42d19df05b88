#include "Internationalization/Text.h"

#include "ICUUtilities.h"
#include "Internationalization/Internationalization.h"
#include "TextData.h"

#include <unicode/coll.h>

#include <memory>
#include <string>

namespace
{
	using FTextDataRef = TSharedRef<ITextData, ESPMode::ThreadSafe>;

	FTextDataRef MakePlainData(FString&& String)
	{
		return MakeShared<FTextData_Plain>(MoveTemp(String));
	}

	icu::Collator::ECollationStrength ToCollationStrength(ETextComparisonLevel::Type Level)
	{
		switch (Level)
		{
		case ETextComparisonLevel::Primary:
			return icu::Collator::PRIMARY;
		case ETextComparisonLevel::Secondary:
			return icu::Collator::SECONDARY;
		case ETextComparisonLevel::Quaternary:
			return icu::Collator::QUATERNARY;
		case ETextComparisonLevel::Quinary:
			return icu::Collator::IDENTICAL;
		default:
			return icu::Collator::TERTIARY;
		}
	}

	// Collators are costly to open; keep the last one per thread.
	int32 Collate(const FString& A, const FString& B, ETextComparisonLevel::Type Level)
	{
		struct FCache
		{
			std::string LocaleName;
			icu::Collator::ECollationStrength Strength = icu::Collator::TERTIARY;
			std::unique_ptr<icu::Collator> Collator;
		};
		thread_local FCache Cache;

		const FCultureRef Language = FInternationalization::Get().GetCurrentLanguage();
		const icu::Collator::ECollationStrength Strength = ToCollationStrength(Level);
		if (!Cache.Collator || Cache.LocaleName != Language->GetICULocaleName() || Cache.Strength != Strength)
		{
			UErrorCode Status = U_ZERO_ERROR;
			Cache.Collator.reset(icu::Collator::createInstance(UE::ICUUtilities::GetLocale(*Language), Status));
			if (U_FAILURE(Status) || !Cache.Collator)
			{
				Cache.Collator.reset();
				return A.Compare(B, Level == ETextComparisonLevel::Primary || Level == ETextComparisonLevel::Secondary
					? ESearchCase::IgnoreCase : ESearchCase::CaseSensitive);
			}
			Cache.Collator->setStrength(Strength);
			Cache.LocaleName = Language->GetICULocaleName();
			Cache.Strength = Strength;
		}
		UErrorCode Status = U_ZERO_ERROR;
		const UCollationResult Result = Cache.Collator->compare(
			reinterpret_cast<const UChar*>(*A), A.Len(), reinterpret_cast<const UChar*>(*B), B.Len(), Status);
		return int32(Result);
	}
}

FText::FText()
	: TextData(GetEmpty().TextData)
	, Flags(0)
{
}

FText::FText(TSharedRef<ITextData, ESPMode::ThreadSafe> InTextData, uint32 InFlags)
	: TextData(MoveTemp(InTextData))
	, Flags(InFlags)
{
}

const FText& FText::GetEmpty()
{
	static const FText* const Empty = new FText(MakePlainData(FString()), ETextFlag::CultureInvariant);
	return *Empty;
}

FText FText::FromString(const FString& String)
{
	return FromString(FString(String));
}

FText FText::FromString(FString&& String)
{
	return FText(MakePlainData(MoveTemp(String)), ETextFlag::CultureInvariant | ETextFlag::InitializedFromString);
}

FText FText::FromStringView(FStringView String)
{
	return FromString(FString(String));
}

FText FText::FromName(const FName& Val)
{
	return FromString(Val.ToString());
}

FText FText::AsCultureInvariant(const FString& String)
{
	return AsCultureInvariant(FString(String));
}

FText FText::AsCultureInvariant(FString&& String)
{
	return FText(MakePlainData(MoveTemp(String)), ETextFlag::CultureInvariant);
}

FText FText::AsCultureInvariant(FText Text)
{
	Text.Flags |= ETextFlag::CultureInvariant;
	return Text;
}

FText FText::AsLocalizable_Advanced(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* String)
{
	return AsLocalizable_Advanced(FString(Namespace), FString(Key), FString(String));
}

FText FText::AsLocalizable_Advanced(const FString& Namespace, const FString& Key, FString&& String)
{
	return FText(MakeShared<FTextData_Localized>(FString(Namespace), FString(Key), MoveTemp(String)), 0);
}

#define UE_TEXT_AS_NUMBER(Type) \
	FText FText::AsNumber(Type Val, const FNumberFormattingOptions* const Options, const FCulturePtr& TargetCulture) \
	{ \
		return FText(MakeShared<FTextData_AsNumber>(FFormatArgumentValue(Val), Options, TargetCulture), 0); \
	}

UE_TEXT_AS_NUMBER(double)
UE_TEXT_AS_NUMBER(float)
UE_TEXT_AS_NUMBER(int32)
UE_TEXT_AS_NUMBER(int64)
UE_TEXT_AS_NUMBER(uint32)
UE_TEXT_AS_NUMBER(uint64)
#undef UE_TEXT_AS_NUMBER

FText FText::AsNumber(int8 Val, const FNumberFormattingOptions* const Options, const FCulturePtr& TargetCulture)
{
	return AsNumber(int32(Val), Options, TargetCulture);
}

FText FText::AsNumber(int16 Val, const FNumberFormattingOptions* const Options, const FCulturePtr& TargetCulture)
{
	return AsNumber(int32(Val), Options, TargetCulture);
}

FText FText::AsNumber(uint8 Val, const FNumberFormattingOptions* const Options, const FCulturePtr& TargetCulture)
{
	return AsNumber(uint32(Val), Options, TargetCulture);
}

FText FText::AsNumber(uint16 Val, const FNumberFormattingOptions* const Options, const FCulturePtr& TargetCulture)
{
	return AsNumber(uint32(Val), Options, TargetCulture);
}

FText FText::Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments)
{
	return Format(MoveTemp(Fmt), FFormatOrderedArguments(InArguments));
}

FText FText::Format(FTextFormat Fmt, FFormatOrderedArguments&& InArguments)
{
	return FText(MakeShared<FTextData_Format>(MoveTemp(Fmt), MoveTemp(InArguments)), 0);
}

FText FText::Format(FTextFormat Fmt, const FFormatNamedArguments& InArguments)
{
	return Format(MoveTemp(Fmt), FFormatNamedArguments(InArguments));
}

FText FText::Format(FTextFormat Fmt, FFormatNamedArguments&& InArguments)
{
	return FText(MakeShared<FTextData_Format>(MoveTemp(Fmt), MoveTemp(InArguments)), 0);
}

const FString& FText::ToString() const
{
	return TextData->GetDisplayString();
}

FString FText::BuildSourceString() const
{
	return TextData->BuildSourceString();
}

bool FText::IsEmpty() const
{
	return ToString().IsEmpty();
}

bool FText::IsEmptyOrWhitespace() const
{
	for (const TCHAR Char : ToString())
	{
		if (!FChar::IsWhitespace(Char))
		{
			return false;
		}
	}
	return true;
}

FText FText::ToLower() const
{
	icu::UnicodeString String = UE::ICUUtilities::ConvertString(ToString());
	String.toLower(UE::ICUUtilities::GetLocale(*FInternationalization::Get().GetCurrentLanguage()));
	return FText(MakePlainData(UE::ICUUtilities::ConvertString(String)), ETextFlag::Transient);
}

FText FText::ToUpper() const
{
	icu::UnicodeString String = UE::ICUUtilities::ConvertString(ToString());
	String.toUpper(UE::ICUUtilities::GetLocale(*FInternationalization::Get().GetCurrentLanguage()));
	return FText(MakePlainData(UE::ICUUtilities::ConvertString(String)), ETextFlag::Transient);
}

int32 FText::CompareTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel) const
{
	return Collate(ToString(), Other.ToString(), ComparisonLevel);
}

int32 FText::CompareToCaseIgnored(const FText& Other) const
{
	return CompareTo(Other, ETextComparisonLevel::Secondary);
}

bool FText::EqualTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel) const
{
	return CompareTo(Other, ComparisonLevel) == 0;
}

bool FText::EqualToCaseIgnored(const FText& Other) const
{
	return CompareToCaseIgnored(Other) == 0;
}

bool FText::IdenticalTo(const FText& Other, ETextIdenticalModeFlags CompareModeFlags) const
{
	if (&TextData.Get() == &Other.TextData.Get())
	{
		return true;
	}
	// Texts made from the same namespace, key and source are one text in the engine: they share a display string.
	const FTextData_Localized* const Mine = dynamic_cast<const FTextData_Localized*>(&TextData.Get());
	const FTextData_Localized* const Theirs = dynamic_cast<const FTextData_Localized*>(&Other.TextData.Get());
	if (Mine && Theirs)
	{
		return Mine->IsSameKeyAs(*Theirs);
	}
	if (EnumHasAnyFlags(CompareModeFlags, ETextIdenticalModeFlags::LexicalCompareInvariants) && IsCultureInvariant() && Other.IsCultureInvariant())
	{
		return ToString().Equals(Other.ToString(), ESearchCase::CaseSensitive);
	}
	return false;
}

bool FText::ShouldGatherForLocalization() const
{
	FString Namespace;
	FString Key;
	return !IsCultureInvariant() && TextData->GetNamespaceAndKey(Namespace, Key) && !TextData->BuildSourceString().IsEmpty();
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	FString Namespace;
	FString Key;
	if (Text.TextData->GetNamespaceAndKey(Namespace, Key))
	{
		return Namespace;
	}
	return TOptional<FString>();
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	FString Namespace;
	FString Key;
	if (Text.TextData->GetNamespaceAndKey(Namespace, Key))
	{
		return Key;
	}
	return TOptional<FString>();
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	const FString* Source = Text.TextData->GetLocalizableSourceString();
	return Source ? Source : &Text.TextData->GetDisplayString();
}

const FString& FTextInspector::GetDisplayString(const FText& Text)
{
	return Text.TextData->GetDisplayString();
}

uint32 FTextInspector::GetFlags(const FText& Text)
{
	return Text.Flags;
}

bool FTextInspector::ShouldGatherForLocalization(const FText& Text)
{
	return Text.ShouldGatherForLocalization();
}
