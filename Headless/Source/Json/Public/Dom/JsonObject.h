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
	TSharedPtr<FJsonValue> GetField(const FString& FieldName) const
	{
		const TSharedPtr<FJsonValue>* Field = Values.Find(FieldName);
		if (Field != nullptr && Field->IsValid())
		{
			if (JsonType == EJson::None || (*Field)->Type == JsonType)
			{
				return *Field;
			}
			UE_LOG(LogJson, Warning, TEXT("Field %s is of the wrong type."), *FieldName);
		}
		else
		{
			UE_LOG(LogJson, Warning, TEXT("Field %s was not found."), *FieldName);
		}
		return MakeShared<FJsonValueNull>();
	}

	/** The field, or an invalid pointer when there is none. */
	TSharedPtr<FJsonValue> TryGetField(const FString& FieldName) const;

	bool HasField(const FString& FieldName) const;

	template <EJson JsonType>
	bool HasTypedField(const FString& FieldName) const
	{
		return HasTypedField(FieldName, JsonType);
	}

	bool HasTypedField(const FString& FieldName, EJson JsonType) const;

	/** Replacing an existing field keeps its place in the iteration order. */
	void SetField(const FString& FieldName, const TSharedPtr<FJsonValue>& Value);
	void RemoveField(const FString& FieldName);

	double GetNumberField(const FString& FieldName) const;
	/** The number truncated toward zero, clamped to int32's range. */
	int32 GetIntegerField(const FString& FieldName) const;
	bool TryGetNumberField(const FString& FieldName, float& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, double& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, int8& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, int16& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, int32& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, int64& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, uint8& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, uint16& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, uint32& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, uint64& OutNumber) const;
	void SetNumberField(const FString& FieldName, double Number);

	FString GetStringField(const FString& FieldName) const;
	bool TryGetStringField(const FString& FieldName, FString& OutString) const;
	void SetStringField(const FString& FieldName, const FString& StringValue);

	bool GetBoolField(const FString& FieldName) const;
	bool TryGetBoolField(const FString& FieldName, bool& OutBool) const;
	void SetBoolField(const FString& FieldName, bool InValue);

	const TArray<TSharedPtr<FJsonValue>>& GetArrayField(const FString& FieldName) const;
	bool TryGetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const;
	void SetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>& Array);

	const TSharedPtr<FJsonObject>& GetObjectField(const FString& FieldName) const;
	bool TryGetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>*& OutObject) const;
	bool TryGetObjectField(const FString& FieldName, TSharedPtr<FJsonObject>& OutObject) const;
	/** An invalid object is stored as a null value. */
	void SetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>& JsonObject);
};
