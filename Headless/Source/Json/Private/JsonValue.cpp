#include "Dom/JsonValue.h"
#include "Dom/JsonObject.h"
#include "JsonGlobals.h"

#include <cmath>
#include <limits>
#include <type_traits>

namespace UE::Json::Private
{
	/**
	 * The range test runs on the unrounded number, as the engine's does: 127.4 does not fit an int8.
	 * The 64-bit upper bounds are exclusive because 2^63 and 2^64 are the doubles nearest the limits
	 * and do not fit.
	 */
	template <typename IntType>
	bool TryConvertNumber(const FJsonValue& Value, IntType& OutNumber)
	{
		static_assert(std::is_integral_v<IntType>);
		double Number;
		if (!Value.TryGetNumber(Number))
		{
			return false;
		}
		const double Lowest = static_cast<double>(std::numeric_limits<IntType>::min());
		bool bInRange;
		if constexpr (sizeof(IntType) == 8)
		{
			const double UpperExclusive = std::is_signed_v<IntType> ? 9223372036854775808.0 : 18446744073709551616.0;
			bInRange = Number >= Lowest && Number < UpperExclusive;
		}
		else
		{
			bInRange = Number >= Lowest && Number <= static_cast<double>(std::numeric_limits<IntType>::max());
		}
		if (!bInRange)
		{
			return false;
		}
		OutNumber = static_cast<IntType>(std::round(Number));
		return true;
	}
}

double FJsonValue::AsNumber() const
{
	double Number = 0.0;
	if (!TryGetNumber(Number))
	{
		ErrorMessage(TEXT("Number"));
	}
	return Number;
}

FString FJsonValue::AsString() const
{
	FString String;
	if (!TryGetString(String))
	{
		ErrorMessage(TEXT("String"));
	}
	return String;
}

bool FJsonValue::AsBool() const
{
	bool bBool = false;
	if (!TryGetBool(bBool))
	{
		ErrorMessage(TEXT("Boolean"));
	}
	return bBool;
}

const TArray<TSharedPtr<FJsonValue>>& FJsonValue::AsArray() const
{
	static const TArray<TSharedPtr<FJsonValue>> EmptyArray;
	const TArray<TSharedPtr<FJsonValue>>* Array = &EmptyArray;
	if (!TryGetArray(Array))
	{
		ErrorMessage(TEXT("Array"));
	}
	return *Array;
}

const TSharedPtr<FJsonObject>& FJsonValue::AsObject() const
{
	// A valid empty object, as the engine returns, so that chained reads on a wrong type stay safe.
	static const TSharedPtr<FJsonObject> EmptyObject = MakeShared<FJsonObject>();
	const TSharedPtr<FJsonObject>* Object = &EmptyObject;
	if (!TryGetObject(Object))
	{
		ErrorMessage(TEXT("Object"));
	}
	return *Object;
}

bool FJsonValue::TryGetNumber(float& OutNumber) const
{
	double Number;
	if (!TryGetNumber(Number))
	{
		return false;
	}
	OutNumber = static_cast<float>(Number);
	return true;
}

bool FJsonValue::TryGetNumber(int8& OutNumber) const
{
	return UE::Json::Private::TryConvertNumber(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int16& OutNumber) const
{
	return UE::Json::Private::TryConvertNumber(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int32& OutNumber) const
{
	return UE::Json::Private::TryConvertNumber(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int64& OutNumber) const
{
	return UE::Json::Private::TryConvertNumber(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint8& OutNumber) const
{
	return UE::Json::Private::TryConvertNumber(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint16& OutNumber) const
{
	return UE::Json::Private::TryConvertNumber(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint32& OutNumber) const
{
	return UE::Json::Private::TryConvertNumber(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint64& OutNumber) const
{
	return UE::Json::Private::TryConvertNumber(*this, OutNumber);
}

void FJsonValue::ErrorMessage(const FString& InType) const
{
	UE_LOG(LogJson, Error, TEXT("Json Value of type '%s' used as a '%s'."), *GetType(), *InType);
}

bool FJsonValueString::TryGetNumber(double& OutNumber) const
{
	if (!Value.IsNumeric())
	{
		return false;
	}
	OutNumber = FCString::Atod(*Value);
	return true;
}

bool FJsonValueString::TryGetBool(bool& OutBool) const
{
	OutBool = Value.ToBool();
	return true;
}

bool FJsonValueNumber::TryGetString(FString& OutString) const
{
	OutString = FString::SanitizeFloat(Value, 0);
	return true;
}
