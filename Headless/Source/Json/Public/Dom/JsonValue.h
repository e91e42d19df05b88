// One JSON value. Every kind answers every accessor; the Try forms say whether the value converts,
// the As forms log an error and return a default when it does not.
#pragma once

#include "CoreMinimal.h"
#include "Serialization/JsonTypes.h"

class FJsonObject;

class JSON_API FJsonValue
{
public:
	virtual ~FJsonValue() = default;

	double AsNumber() const;
	FString AsString() const;
	bool AsBool() const;
	const TArray<TSharedPtr<FJsonValue>>& AsArray() const;
	const TSharedPtr<FJsonObject>& AsObject() const;

	virtual bool TryGetNumber(double& OutNumber) const
	{
		return false;
	}

	// Integers round half away from zero and fail, leaving the output alone, outside the type's range.
	bool TryGetNumber(float& OutNumber) const;
	bool TryGetNumber(int8& OutNumber) const;
	bool TryGetNumber(int16& OutNumber) const;
	bool TryGetNumber(int32& OutNumber) const;
	bool TryGetNumber(int64& OutNumber) const;
	bool TryGetNumber(uint8& OutNumber) const;
	bool TryGetNumber(uint16& OutNumber) const;
	bool TryGetNumber(uint32& OutNumber) const;
	bool TryGetNumber(uint64& OutNumber) const;

	virtual bool TryGetString(FString& OutString) const
	{
		return false;
	}

	virtual bool TryGetBool(bool& OutBool) const
	{
		return false;
	}

	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
	{
		return false;
	}

	virtual bool TryGetArray(TArray<TSharedPtr<FJsonValue>>*& OutArray)
	{
		return false;
	}

	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const
	{
		return false;
	}

	virtual bool TryGetObject(TSharedPtr<FJsonObject>*& OutObject)
	{
		return false;
	}

	bool IsNull() const
	{
		return Type == EJson::Null || Type == EJson::None;
	}

	EJson Type = EJson::None;

protected:
	FJsonValue() = default;

	/** Name of the kind, for error messages. */
	virtual FString GetType() const = 0;

	void ErrorMessage(const FString& InType) const;
};

class JSON_API FJsonValueString : public FJsonValue
{
public:
	explicit FJsonValueString(const FString& InString)
		: Value(InString)
	{
		Type = EJson::String;
	}

	using FJsonValue::TryGetNumber;

	/** Succeeds only for numeric text: an optional sign, digits and at most one '.' (no exponent). */
	virtual bool TryGetNumber(double& OutNumber) const override;

	virtual bool TryGetString(FString& OutString) const override
	{
		OutString = Value;
		return true;
	}

	/** Always succeeds: "true", "yes" and "on" (any case) or a non-zero leading integer read as true. */
	virtual bool TryGetBool(bool& OutBool) const override;

protected:
	virtual FString GetType() const override
	{
		return TEXT("String");
	}

	FString Value;
};

class JSON_API FJsonValueNumber : public FJsonValue
{
public:
	explicit FJsonValueNumber(double InNumber)
		: Value(InNumber)
	{
		Type = EJson::Number;
	}

	using FJsonValue::TryGetNumber;

	virtual bool TryGetNumber(double& OutNumber) const override
	{
		OutNumber = Value;
		return true;
	}

	virtual bool TryGetBool(bool& OutBool) const override
	{
		OutBool = Value != 0.0;
		return true;
	}

	/** Fixed notation without trailing zeros: 3 gives "3", 0.1 gives "0.1". */
	virtual bool TryGetString(FString& OutString) const override;

protected:
	virtual FString GetType() const override
	{
		return TEXT("Number");
	}

	double Value;
};

class JSON_API FJsonValueBoolean : public FJsonValue
{
public:
	explicit FJsonValueBoolean(bool InBool)
		: Value(InBool)
	{
		Type = EJson::Boolean;
	}

	using FJsonValue::TryGetNumber;

	virtual bool TryGetNumber(double& OutNumber) const override
	{
		OutNumber = Value ? 1.0 : 0.0;
		return true;
	}

	virtual bool TryGetBool(bool& OutBool) const override
	{
		OutBool = Value;
		return true;
	}

	virtual bool TryGetString(FString& OutString) const override
	{
		OutString = Value ? TEXT("true") : TEXT("false");
		return true;
	}

protected:
	virtual FString GetType() const override
	{
		return TEXT("Boolean");
	}

	bool Value;
};

class JSON_API FJsonValueArray : public FJsonValue
{
public:
	explicit FJsonValueArray(const TArray<TSharedPtr<FJsonValue>>& InArray)
		: Value(InArray)
	{
		Type = EJson::Array;
	}

	explicit FJsonValueArray(TArray<TSharedPtr<FJsonValue>>&& InArray)
		: Value(MoveTemp(InArray))
	{
		Type = EJson::Array;
	}

	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const override
	{
		OutArray = &Value;
		return true;
	}

	virtual bool TryGetArray(TArray<TSharedPtr<FJsonValue>>*& OutArray) override
	{
		OutArray = &Value;
		return true;
	}

protected:
	virtual FString GetType() const override
	{
		return TEXT("Array");
	}

	TArray<TSharedPtr<FJsonValue>> Value;
};

class JSON_API FJsonValueObject : public FJsonValue
{
public:
	explicit FJsonValueObject(TSharedPtr<FJsonObject> InObject)
		: Value(MoveTemp(InObject))
	{
		Type = EJson::Object;
	}

	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const override
	{
		OutObject = &Value;
		return true;
	}

	virtual bool TryGetObject(TSharedPtr<FJsonObject>*& OutObject) override
	{
		OutObject = &Value;
		return true;
	}

protected:
	virtual FString GetType() const override
	{
		return TEXT("Object");
	}

	TSharedPtr<FJsonObject> Value;
};

class JSON_API FJsonValueNull : public FJsonValue
{
public:
	FJsonValueNull()
	{
		Type = EJson::Null;
	}

protected:
	virtual FString GetType() const override
	{
		return TEXT("Null");
	}
};
