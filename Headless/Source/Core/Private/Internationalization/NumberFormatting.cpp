// Numbers through ICU's number formatter, with the culture's own symbols and grouping.
#include "ICUUtilities.h"
#include "Internationalization/Internationalization.h"
#include "TextData.h"

#include <unicode/numberformatter.h>

#include <string>

FNumberFormattingOptions::FNumberFormattingOptions()
	: AlwaysSign(false)
	, UseGrouping(true)
	, RoundingMode(ERoundingMode::HalfToEven)
	, MinimumIntegralDigits(1)
	, MaximumIntegralDigits(DBL_MAX_10_EXP + DBL_DIG + 1)
	, MinimumFractionalDigits(0)
	, MaximumFractionalDigits(3)
{
}

bool FNumberFormattingOptions::IsIdentical(const FNumberFormattingOptions& Other) const
{
	return AlwaysSign == Other.AlwaysSign && UseGrouping == Other.UseGrouping && RoundingMode == Other.RoundingMode
		&& MinimumIntegralDigits == Other.MinimumIntegralDigits && MaximumIntegralDigits == Other.MaximumIntegralDigits
		&& MinimumFractionalDigits == Other.MinimumFractionalDigits && MaximumFractionalDigits == Other.MaximumFractionalDigits;
}

const FNumberFormattingOptions& FNumberFormattingOptions::DefaultWithGrouping()
{
	static const FNumberFormattingOptions Options = FNumberFormattingOptions().SetUseGrouping(true);
	return Options;
}

const FNumberFormattingOptions& FNumberFormattingOptions::DefaultNoGrouping()
{
	static const FNumberFormattingOptions Options = FNumberFormattingOptions().SetUseGrouping(false);
	return Options;
}

namespace
{
	// ICU refuses digit counts above this.
	constexpr int32 MaxIcuDigits = 999;

	int32 ClampDigits(int32 Digits)
	{
		return Digits < 0 ? 0 : (Digits > MaxIcuDigits ? MaxIcuDigits : Digits);
	}

	UNumberFormatRoundingMode ToIcuRounding(ERoundingMode Mode)
	{
		switch (Mode)
		{
		case HalfFromZero:
			return UNUM_ROUND_HALFUP;
		case HalfToZero:
			return UNUM_ROUND_HALFDOWN;
		case FromZero:
			return UNUM_ROUND_UP;
		case ToZero:
			return UNUM_ROUND_DOWN;
		case ToNegativeInfinity:
			return UNUM_ROUND_FLOOR;
		case ToPositiveInfinity:
			return UNUM_ROUND_CEILING;
		default:
			return UNUM_ROUND_HALFEVEN;
		}
	}

	FString FormatWithoutIcu(const FFormatArgumentValue& Value)
	{
		switch (Value.GetType())
		{
		case EFormatArgumentType::Int:
			return LexToString(Value.GetIntValue());
		case EFormatArgumentType::UInt:
			return LexToString(Value.GetUIntValue());
		case EFormatArgumentType::Float:
			return FString::SanitizeFloat(Value.GetFloatValue(), 0);
		default:
			return FString::SanitizeFloat(Value.GetDoubleValue(), 0);
		}
	}
}

namespace UE::Text::Private
{
	FString FormatNumber(const FFormatArgumentValue& Value, const FNumberFormattingOptions& Options, const FCulture& Culture)
	{
		using namespace icu::number;

		const int32 MinFraction = ClampDigits(Options.MinimumFractionalDigits);
		const int32 MaxFraction = ClampDigits(Options.MaximumFractionalDigits < MinFraction ? MinFraction : Options.MaximumFractionalDigits);
		const int32 MinIntegral = ClampDigits(Options.MinimumIntegralDigits);
		const int32 MaxIntegral = Options.MaximumIntegralDigits >= MaxIcuDigits ? -1
			: (Options.MaximumIntegralDigits < MinIntegral ? MinIntegral : Options.MaximumIntegralDigits);

		// Aligned grouping groups every number by the culture's sizes, as the engine's formatter does,
		// rather than leaving four-digit numbers alone where CLDR suggests it.
		const LocalizedNumberFormatter Formatter = NumberFormatter::withLocale(UE::ICUUtilities::GetLocale(Culture))
			.grouping(Options.UseGrouping ? UNUM_GROUPING_ON_ALIGNED : UNUM_GROUPING_OFF)
			.precision(Precision::minMaxFraction(MinFraction, MaxFraction))
			.roundingMode(ToIcuRounding(Options.RoundingMode))
			.integerWidth(IntegerWidth::zeroFillTo(MinIntegral).truncateAt(MaxIntegral))
			.sign(Options.AlwaysSign ? UNUM_SIGN_ALWAYS : UNUM_SIGN_AUTO);

		UErrorCode Status = U_ZERO_ERROR;
		FormattedNumber Formatted;
		switch (Value.GetType())
		{
		case EFormatArgumentType::Int:
			Formatted = Formatter.formatInt(Value.GetIntValue(), Status);
			break;
		case EFormatArgumentType::UInt:
			Formatted = Formatter.formatDecimal(std::to_string(Value.GetUIntValue()), Status);
			break;
		case EFormatArgumentType::Float:
			Formatted = Formatter.formatDouble(Value.GetFloatValue(), Status);
			break;
		case EFormatArgumentType::Double:
			Formatted = Formatter.formatDouble(Value.GetDoubleValue(), Status);
			break;
		default:
			return FString();
		}
		const icu::UnicodeString Result = Formatted.toString(Status);
		if (U_FAILURE(Status))
		{
			return FormatWithoutIcu(Value);
		}
		return UE::ICUUtilities::ConvertString(Result);
	}
}

FString FTextData_AsNumber::BuildDisplayString() const
{
	const FCultureRef Culture = TargetCulture.IsValid() ? TargetCulture.ToSharedRef() : FInternationalization::Get().GetCurrentLocale();
	return UE::Text::Private::FormatNumber(Value, Options, *Culture);
}

FString FTextData_AsNumber::BuildSourceString() const
{
	return UE::Text::Private::FormatNumber(Value, Options, *FInternationalization::Get().GetInvariantCulture());
}
