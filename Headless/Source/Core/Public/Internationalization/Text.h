// FText: text meant for people. It keeps how it was made (a localised key, a number, a format pattern
// and its arguments, or a plain string) and builds its display string from that for the current
// culture, so a change of culture shows at the next ToString.
#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "HAL/Platform.h"
#include "Internationalization/CulturePointer.h"
#include "Misc/EnumClassFlags.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

#include <cfloat>

class FFormatArgumentValue;
class FTextFormat;
class ITextData;

namespace ETextFlag
{
	enum Type : uint32
	{
		Transient = (1 << 0),
		CultureInvariant = (1 << 1),
		ConvertedProperty = (1 << 2),
		Immutable = (1 << 3),
		InitializedFromString = (1 << 4),
	};
}

namespace ETextComparisonLevel
{
	enum Type
	{
		/** The current culture's default: tertiary, so case matters. */
		Default,
		/** Base letters only. */
		Primary,
		/** Accents matter too. */
		Secondary,
		/** Case matters too. */
		Tertiary,
		Quaternary,
		Quinary,
	};
}

enum class ETextIdenticalModeFlags : uint8
{
	None = 0,
	/** Also compare how the texts were made, not only whether they share data. */
	DeepCompare = 1 << 0,
	/** Culture-invariant texts compare by their strings. */
	LexicalCompareInvariants = 1 << 1,
};
ENUM_CLASS_FLAGS(ETextIdenticalModeFlags);

enum ERoundingMode : int32
{
	HalfToEven,
	HalfFromZero,
	HalfToZero,
	FromZero,
	ToZero,
	ToNegativeInfinity,
	ToPositiveInfinity,
};

struct FNumberFormattingOptions
{
	CORE_API FNumberFormattingOptions();

	bool AlwaysSign;
	bool UseGrouping;
	ERoundingMode RoundingMode;
	int32 MinimumIntegralDigits;
	int32 MaximumIntegralDigits;
	int32 MinimumFractionalDigits;
	int32 MaximumFractionalDigits;

	FNumberFormattingOptions& SetAlwaysSign(bool InValue)
	{
		AlwaysSign = InValue;
		return *this;
	}

	FNumberFormattingOptions& SetUseGrouping(bool InValue)
	{
		UseGrouping = InValue;
		return *this;
	}

	FNumberFormattingOptions& SetRoundingMode(ERoundingMode InValue)
	{
		RoundingMode = InValue;
		return *this;
	}

	FNumberFormattingOptions& SetMinimumIntegralDigits(int32 InValue)
	{
		MinimumIntegralDigits = InValue;
		return *this;
	}

	FNumberFormattingOptions& SetMaximumIntegralDigits(int32 InValue)
	{
		MaximumIntegralDigits = InValue;
		return *this;
	}

	FNumberFormattingOptions& SetMinimumFractionalDigits(int32 InValue)
	{
		MinimumFractionalDigits = InValue;
		return *this;
	}

	FNumberFormattingOptions& SetMaximumFractionalDigits(int32 InValue)
	{
		MaximumFractionalDigits = InValue;
		return *this;
	}

	CORE_API bool IsIdentical(const FNumberFormattingOptions& Other) const;

	static CORE_API const FNumberFormattingOptions& DefaultWithGrouping();
	static CORE_API const FNumberFormattingOptions& DefaultNoGrouping();
};

typedef TArray<FFormatArgumentValue> FFormatOrderedArguments;
typedef TMap<FString, FFormatArgumentValue> FFormatNamedArguments;

class FText
{
public:
	/** The empty text. */
	CORE_API FText();

	FText(const FText&) = default;
	FText(FText&&) = default;
	FText& operator=(const FText&) = default;
	FText& operator=(FText&&) = default;

	static CORE_API const FText& GetEmpty();

	/** Text shown as given in every culture, never translated. */
	static CORE_API FText FromString(const FString& String);
	static CORE_API FText FromString(FString&& String);
	static CORE_API FText FromStringView(FStringView String);
	static CORE_API FText FromName(const FName& Val);
	static CORE_API FText AsCultureInvariant(const FString& String);
	static CORE_API FText AsCultureInvariant(FString&& String);
	static CORE_API FText AsCultureInvariant(FText Text);

	/** Localisable text: shows the current language's translation of (Namespace, Key) while its source matches. */
	static CORE_API FText AsLocalizable_Advanced(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* String);
	static CORE_API FText AsLocalizable_Advanced(const FString& Namespace, const FString& Key, FString&& String);

	// Numbers in the target culture (the current locale by default); without options, grouped with
	// at most three decimals.
	static CORE_API FText AsNumber(double Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(float Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(int8 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(int16 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(int32 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(int64 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(uint8 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(uint16 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(uint32 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static CORE_API FText AsNumber(uint64 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);

	/** Replaces "{0}", "{1}"... (or "{Name}") with the arguments; "`{" is a literal brace; unknown arguments stay as written. */
	static CORE_API FText Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments);
	static CORE_API FText Format(FTextFormat Fmt, FFormatOrderedArguments&& InArguments);
	static CORE_API FText Format(FTextFormat Fmt, const FFormatNamedArguments& InArguments);
	static CORE_API FText Format(FTextFormat Fmt, FFormatNamedArguments&& InArguments);

	template <typename... ArgTypes>
	static FText Format(FTextFormat Fmt, ArgTypes... Args);

	template <typename... ArgTypes>
	static FText FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args);

	/** Name and value pairs: FormatNamed(Fmt, TEXT("Count"), 3, TEXT("Item"), ItemText). */
	template <typename... ArgTypes>
	static FText FormatNamed(FTextFormat Fmt, ArgTypes&&... Args);

	/** The display string for the current culture. */
	CORE_API const FString& ToString() const;
	CORE_API FString BuildSourceString() const;

	CORE_API bool IsEmpty() const;
	CORE_API bool IsEmptyOrWhitespace() const;

	CORE_API FText ToLower() const;
	CORE_API FText ToUpper() const;

	/** Compares display strings with the current language's collation. */
	CORE_API int32 CompareTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	CORE_API int32 CompareToCaseIgnored(const FText& Other) const;
	CORE_API bool EqualTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	CORE_API bool EqualToCaseIgnored(const FText& Other) const;

	/** Whether the two are the same text (same data or the same localised key), not merely equal strings. */
	CORE_API bool IdenticalTo(const FText& Other, ETextIdenticalModeFlags CompareModeFlags = ETextIdenticalModeFlags::None) const;

	bool IsTransient() const
	{
		return (Flags & ETextFlag::Transient) != 0;
	}

	bool IsCultureInvariant() const
	{
		return (Flags & ETextFlag::CultureInvariant) != 0;
	}

	bool IsInitializedFromString() const
	{
		return (Flags & ETextFlag::InitializedFromString) != 0;
	}

	bool IsFromStringTable() const
	{
		return false;
	}

	/** Whether the text has a namespace and key for translators to gather. */
	CORE_API bool ShouldGatherForLocalization() const;

private:
	friend class FTextInspector;
	friend class FTextFormat;

	FText(TSharedRef<ITextData, ESPMode::ThreadSafe> InTextData, uint32 InFlags);

	TSharedRef<ITextData, ESPMode::ThreadSafe> TextData;
	uint32 Flags;
};

namespace EFormatArgumentType
{
	enum Type : uint8
	{
		Int,
		UInt,
		Float,
		Double,
		Text,
		Gender,
	};
}

enum class ETextGender : uint8
{
	Masculine,
	Feminine,
	Neuter,
};

/** One argument of FText::Format: a number (formatted as FText::AsNumber would) or a text. */
class FFormatArgumentValue
{
public:
	FFormatArgumentValue()
		: Type(EFormatArgumentType::Int)
	{
		IntValue = 0;
	}

	FFormatArgumentValue(int32 Value)
		: Type(EFormatArgumentType::Int)
	{
		IntValue = Value;
	}

	FFormatArgumentValue(int64 Value)
		: Type(EFormatArgumentType::Int)
	{
		IntValue = Value;
	}

	FFormatArgumentValue(uint32 Value)
		: Type(EFormatArgumentType::UInt)
	{
		UIntValue = Value;
	}

	FFormatArgumentValue(uint64 Value)
		: Type(EFormatArgumentType::UInt)
	{
		UIntValue = Value;
	}

	FFormatArgumentValue(float Value)
		: Type(EFormatArgumentType::Float)
	{
		FloatValue = Value;
	}

	FFormatArgumentValue(double Value)
		: Type(EFormatArgumentType::Double)
	{
		DoubleValue = Value;
	}

	FFormatArgumentValue(const FText& Value)
		: Type(EFormatArgumentType::Text)
		, TextValue(Value)
	{
		IntValue = 0;
	}

	FFormatArgumentValue(FText&& Value)
		: Type(EFormatArgumentType::Text)
		, TextValue(MoveTemp(Value))
	{
		IntValue = 0;
	}

	FFormatArgumentValue(ETextGender Value)
		: Type(EFormatArgumentType::Gender)
	{
		UIntValue = uint64(Value);
	}

	EFormatArgumentType::Type GetType() const
	{
		return Type;
	}

	int64 GetIntValue() const
	{
		check(Type == EFormatArgumentType::Int);
		return IntValue;
	}

	uint64 GetUIntValue() const
	{
		check(Type == EFormatArgumentType::UInt);
		return UIntValue;
	}

	float GetFloatValue() const
	{
		check(Type == EFormatArgumentType::Float);
		return FloatValue;
	}

	double GetDoubleValue() const
	{
		check(Type == EFormatArgumentType::Double);
		return DoubleValue;
	}

	const FText& GetTextValue() const
	{
		check(Type == EFormatArgumentType::Text);
		return TextValue;
	}

	ETextGender GetGenderValue() const
	{
		check(Type == EFormatArgumentType::Gender);
		return ETextGender(UIntValue);
	}

	/** The argument as Format inserts it, for the current culture. */
	CORE_API FString ToFormattedString() const;

private:
	EFormatArgumentType::Type Type;
	union
	{
		int64 IntValue;
		uint64 UIntValue;
		float FloatValue;
		double DoubleValue;
	};
	FText TextValue;
};

/** A format pattern; made implicitly from the FText that holds it. */
class FTextFormat
{
public:
	FTextFormat() = default;

	FTextFormat(const FText& InText)
		: SourceText(InText)
	{
	}

	static FTextFormat FromString(const FString& InString)
	{
		return FTextFormat(FText::FromString(InString));
	}

	const FText& GetSourceText() const
	{
		return SourceText;
	}

	/** The argument names the pattern uses, in order of first use. */
	CORE_API void GetFormatArgumentNames(TArray<FString>& OutArgumentNames) const;

private:
	FText SourceText;
};

template <typename... ArgTypes>
FText FText::Format(FTextFormat Fmt, ArgTypes... Args)
{
	return FormatOrdered(MoveTemp(Fmt), MoveTemp(Args)...);
}

template <typename... ArgTypes>
FText FText::FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args)
{
	FFormatOrderedArguments Arguments;
	Arguments.Reserve(int32(sizeof...(Args)));
	(Arguments.Emplace(Forward<ArgTypes>(Args)), ...);
	return Format(MoveTemp(Fmt), MoveTemp(Arguments));
}

namespace UE::Text::Private
{
	inline void AddNamedArguments(FFormatNamedArguments&)
	{
	}

	template <typename NameType, typename ValueType, typename... RestTypes>
	void AddNamedArguments(FFormatNamedArguments& Arguments, NameType&& Name, ValueType&& Value, RestTypes&&... Rest)
	{
		Arguments.Add(FString(Forward<NameType>(Name)), FFormatArgumentValue(Forward<ValueType>(Value)));
		AddNamedArguments(Arguments, Forward<RestTypes>(Rest)...);
	}
}

template <typename... ArgTypes>
FText FText::FormatNamed(FTextFormat Fmt, ArgTypes&&... Args)
{
	static_assert(sizeof...(Args) % 2 == 0, "FormatNamed takes name and value pairs");
	FFormatNamedArguments Arguments;
	UE::Text::Private::AddNamedArguments(Arguments, Forward<ArgTypes>(Args)...);
	return Format(MoveTemp(Fmt), MoveTemp(Arguments));
}

/** Read access to what a text was made from, for serialisation and tests. */
class FTextInspector
{
public:
	static CORE_API TOptional<FString> GetNamespace(const FText& Text);
	static CORE_API TOptional<FString> GetKey(const FText& Text);
	/** The source string of a localisable text; for any other text, its display string. */
	static CORE_API const FString* GetSourceString(const FText& Text);
	static CORE_API const FString& GetDisplayString(const FText& Text);
	static CORE_API uint32 GetFlags(const FText& Text);
	static CORE_API bool ShouldGatherForLocalization(const FText& Text);
};

#define NSLOCTEXT(InNamespace, InKey, InTextLiteral) FText::AsLocalizable_Advanced(TEXT(InNamespace), TEXT(InKey), TEXT(InTextLiteral))
#define LOCTEXT(InKey, InTextLiteral) NSLOCTEXT(LOCTEXT_NAMESPACE, InKey, InTextLiteral)
#define INVTEXT(InTextLiteral) FText::AsCultureInvariant(TEXT(InTextLiteral))
