#include "Dom/JsonObject.h"

#include <cmath>
#include <limits>

TSharedPtr<FJsonValue> FJsonObject::TryGetField(const FString& FieldName) const
{
	const TSharedPtr<FJsonValue>* Field = Values.Find(FieldName);
	return Field != nullptr ? *Field : TSharedPtr<FJsonValue>();
}

bool FJsonObject::HasField(const FString& FieldName) const
{
	const TSharedPtr<FJsonValue>* Field = Values.Find(FieldName);
	return Field != nullptr && Field->IsValid();
}

bool FJsonObject::HasTypedField(const FString& FieldName, EJson JsonType) const
{
	const TSharedPtr<FJsonValue>* Field = Values.Find(FieldName);
	return Field != nullptr && Field->IsValid() && (*Field)->Type == JsonType;
}

void FJsonObject::SetField(const FString& FieldName, const TSharedPtr<FJsonValue>& Value)
{
	Values.Add(FieldName, Value);
}

void FJsonObject::RemoveField(const FString& FieldName)
{
	Values.Remove(FieldName);
}

double FJsonObject::GetNumberField(const FString& FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsNumber();
}

int32 FJsonObject::GetIntegerField(const FString& FieldName) const
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
	bool TryGetNumberField(const FJsonObject& Object, const FString& FieldName, NumberType& OutNumber)
	{
		const TSharedPtr<FJsonValue> Field = Object.TryGetField(FieldName);
		return Field.IsValid() && Field->TryGetNumber(OutNumber);
	}
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, float& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, double& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, int8& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, int16& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, int32& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, int64& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, uint8& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, uint16& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, uint32& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, uint64& OutNumber) const
{
	return UE::Json::Private::TryGetNumberField(*this, FieldName, OutNumber);
}

void FJsonObject::SetNumberField(const FString& FieldName, double Number)
{
	Values.Add(FieldName, MakeShared<FJsonValueNumber>(Number));
}

FString FJsonObject::GetStringField(const FString& FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsString();
}

bool FJsonObject::TryGetStringField(const FString& FieldName, FString& OutString) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field.IsValid() && Field->TryGetString(OutString);
}

void FJsonObject::SetStringField(const FString& FieldName, const FString& StringValue)
{
	Values.Add(FieldName, MakeShared<FJsonValueString>(StringValue));
}

bool FJsonObject::GetBoolField(const FString& FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsBool();
}

bool FJsonObject::TryGetBoolField(const FString& FieldName, bool& OutBool) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field.IsValid() && Field->TryGetBool(OutBool);
}

void FJsonObject::SetBoolField(const FString& FieldName, bool InValue)
{
	Values.Add(FieldName, MakeShared<FJsonValueBoolean>(InValue));
}

const TArray<TSharedPtr<FJsonValue>>& FJsonObject::GetArrayField(const FString& FieldName) const
{
	// The temporary from GetField dies here, but AsArray returns the stored field's array or a static one.
	return GetField<EJson::Array>(FieldName)->AsArray();
}

bool FJsonObject::TryGetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	const TSharedPtr<FJsonValue>* Field = Values.Find(FieldName);
	return Field != nullptr && Field->IsValid() && (*Field)->TryGetArray(OutArray);
}

void FJsonObject::SetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>& Array)
{
	Values.Add(FieldName, MakeShared<FJsonValueArray>(Array));
}

const TSharedPtr<FJsonObject>& FJsonObject::GetObjectField(const FString& FieldName) const
{
	return GetField<EJson::Object>(FieldName)->AsObject();
}

bool FJsonObject::TryGetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>*& OutObject) const
{
	const TSharedPtr<FJsonValue>* Field = Values.Find(FieldName);
	return Field != nullptr && Field->IsValid() && (*Field)->TryGetObject(OutObject);
}

bool FJsonObject::TryGetObjectField(const FString& FieldName, TSharedPtr<FJsonObject>& OutObject) const
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
