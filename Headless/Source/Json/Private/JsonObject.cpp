#include "Dom/JsonObject.h"

#include <cmath>
#include <limits>

namespace UE::Json::Private
{
	/** The stored value, looked up without copying the name or the shared pointer; null when absent or stored invalid. */
	const FJsonValue* FindValue(const FJsonObject& Object, FStringView FieldName)
	{
		const TSharedPtr<FJsonValue>* Field = Object.Values.FindByHash(GetTypeHash(FieldName), FieldName);
		return Field != nullptr ? Field->Get() : nullptr;
	}
}

TSharedPtr<FJsonValue> FJsonObject::TryGetField(FStringView FieldName) const
{
	const TSharedPtr<FJsonValue>* Field = Values.FindByHash(GetTypeHash(FieldName), FieldName);
	return Field != nullptr ? *Field : TSharedPtr<FJsonValue>();
}

bool FJsonObject::HasField(FStringView FieldName) const
{
	return UE::Json::Private::FindValue(*this, FieldName) != nullptr;
}

bool FJsonObject::HasTypedField(FStringView FieldName, EJson JsonType) const
{
	const FJsonValue* Field = UE::Json::Private::FindValue(*this, FieldName);
	return Field != nullptr && Field->Type == JsonType;
}

void FJsonObject::SetField(const FString& FieldName, const TSharedPtr<FJsonValue>& Value)
{
	Values.Add(FieldName, Value);
}

void FJsonObject::RemoveField(FStringView FieldName)
{
	Values.Remove(FString(FieldName));
}

double FJsonObject::GetNumberField(FStringView FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsNumber();
}

int32 FJsonObject::GetIntegerField(FStringView FieldName) const
{
	// The engine converts with a plain cast, undefined outside int32; clamping keeps that case defined.
	const double Number = GetNumberField(FieldName);
	if (std::isnan(Number))
	{
		return 0;
	}
	if (Number <= static_cast<double>(std::numeric_limits<int32>::min()))
	{
		return std::numeric_limits<int32>::min();
	}
	if (Number >= static_cast<double>(std::numeric_limits<int32>::max()))
	{
		return std::numeric_limits<int32>::max();
	}
	return static_cast<int32>(Number);
}

namespace UE::Json::Private
{
	template <typename NumberType>
	bool TryGetNumberField(const FJsonObject& Object, FStringView FieldName, NumberType& OutNumber)
	{
		const FJsonValue* Field = FindValue(Object, FieldName);
		return Field != nullptr && Field->TryGetNumber(OutNumber);
	}
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, float& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, double& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, int8& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, int16& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, int32& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, int64& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, uint8& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, uint16& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, uint32& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, uint64& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

void FJsonObject::SetNumberField(const FString& FieldName, double Number)
{
	Values.Add(FieldName, MakeShared<FJsonValueNumber>(Number));
}

FString FJsonObject::GetStringField(FStringView FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsString();
}

bool FJsonObject::TryGetStringField(FStringView FieldName, FString& OutString) const
{
	const FJsonValue* Field = UE::Json::Private::FindValue(*this, FieldName);
	return Field != nullptr && Field->TryGetString(OutString);
}

void FJsonObject::SetStringField(const FString& FieldName, const FString& StringValue)
{
	Values.Add(FieldName, MakeShared<FJsonValueString>(StringValue));
}

bool FJsonObject::GetBoolField(FStringView FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsBool();
}

bool FJsonObject::TryGetBoolField(FStringView FieldName, bool& OutBool) const
{
	const FJsonValue* Field = UE::Json::Private::FindValue(*this, FieldName);
	return Field != nullptr && Field->TryGetBool(OutBool);
}

void FJsonObject::SetBoolField(const FString& FieldName, bool InValue)
{
	Values.Add(FieldName, MakeShared<FJsonValueBoolean>(InValue));
}

const TArray<TSharedPtr<FJsonValue>>& FJsonObject::GetArrayField(FStringView FieldName) const
{
	// The temporary from GetField dies here, but AsArray returns the stored field's array or a static one.
	return GetField<EJson::Array>(FieldName)->AsArray();
}

bool FJsonObject::TryGetArrayField(FStringView FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	const FJsonValue* Field = UE::Json::Private::FindValue(*this, FieldName);
	return Field != nullptr && Field->TryGetArray(OutArray);
}

void FJsonObject::SetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>& Array)
{
	Values.Add(FieldName, MakeShared<FJsonValueArray>(Array));
}

const TSharedPtr<FJsonObject>& FJsonObject::GetObjectField(FStringView FieldName) const
{
	return GetField<EJson::Object>(FieldName)->AsObject();
}

bool FJsonObject::TryGetObjectField(FStringView FieldName, const TSharedPtr<FJsonObject>*& OutObject) const
{
	const FJsonValue* Field = UE::Json::Private::FindValue(*this, FieldName);
	return Field != nullptr && Field->TryGetObject(OutObject);
}

bool FJsonObject::TryGetObjectField(FStringView FieldName, TSharedPtr<FJsonObject>& OutObject) const
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (!TryGetObjectField(FieldName, Object))
	{
		return false;
	}
	OutObject = *Object;
	return true;
}

void FJsonObject::SetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>& JsonObject)
{
	if (JsonObject.IsValid())
	{
		Values.Add(FieldName, MakeShared<FJsonValueObject>(JsonObject));
	}
	else
	{
		Values.Add(FieldName, MakeShared<FJsonValueNull>());
	}
}
