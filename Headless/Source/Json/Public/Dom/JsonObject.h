// A JSON object: named values, iterated in the order their names were first added. Names are
// FString map keys, so they match without regard to case, as everywhere in the engine.
#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonValue.h"
#include "JsonGlobals.h"

class JSON_API FJsonObject
{
public:
	TMap<FString, TSharedPtr<FJsonValue>> Values;

	/** The field if it exists and is of JsonType (EJson::None: any type); otherwise a logged warning and a null value. */
	template <EJson JsonType>
	TSharedPtr<FJsonValue> GetField(FStringView FieldName) const
	{
		const TSharedPtr<FJsonValue>* Field = Values.FindByHash(GetTypeHash(FieldName), FieldName);
		if (Field != nullptr && Field->IsValid())
		{
			if (JsonType == EJson::None || (*Field)->Type == JsonType)
			{
				return *Field;
			}
			UE_LOG(LogJson, Warning, TEXT("Field %s is of the wrong type."), *FString(FieldName));
		}
		else
		{
			UE_LOG(LogJson, Warning, TEXT("Field %s was not found."), *FString(FieldName));
		}
		return MakeShared<FJsonValueNull>();
	}

	/** The field, or an invalid pointer when there is none. */
	TSharedPtr<FJsonValue> TryGetField(FStringView FieldName) const;

	bool HasField(FStringView FieldName) const;

	template <EJson JsonType>
	bool HasTypedField(FStringView FieldName) const
	{
		return HasTypedField(FieldName, JsonType);
	}

	bool HasTypedField(FStringView FieldName, EJson JsonType) const;

	/** Replacing an existing field keeps its place in the iteration order. */
	void SetField(const FString& FieldName, const TSharedPtr<FJsonValue>& Value);
	void RemoveField(FStringView FieldName);

	double GetNumberField(FStringView FieldName) const;
	/** The number truncated toward zero, clamped to int32's range. */
	int32 GetIntegerField(FStringView FieldName) const;
	bool TryGetNumberField(FStringView FieldName, float& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, double& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, int8& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, int16& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, int32& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, int64& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, uint8& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, uint16& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, uint32& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, uint64& OutNumber) const;
	void SetNumberField(const FString& FieldName, double Number);

	FString GetStringField(FStringView FieldName) const;
	bool TryGetStringField(FStringView FieldName, FString& OutString) const;
	void SetStringField(const FString& FieldName, const FString& StringValue);

	bool GetBoolField(FStringView FieldName) const;
	bool TryGetBoolField(FStringView FieldName, bool& OutBool) const;
	void SetBoolField(const FString& FieldName, bool InValue);

	const TArray<TSharedPtr<FJsonValue>>& GetArrayField(FStringView FieldName) const;
	bool TryGetArrayField(FStringView FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const;
	void SetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>& Array);

	const TSharedPtr<FJsonObject>& GetObjectField(FStringView FieldName) const;
	bool TryGetObjectField(FStringView FieldName, const TSharedPtr<FJsonObject>*& OutObject) const;
	bool TryGetObjectField(FStringView FieldName, TSharedPtr<FJsonObject>& OutObject) const;
	/** An invalid object is stored as a null value. */
	void SetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>& JsonObject);
};
