// FField: the base of properties, which are not objects; FFieldClass describes their kinds.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/MetaData.h"

class FField;
class UField;
class UStruct;

/** The kind of a field (FIntProperty, FObjectProperty, ...), with its parent kind. */
class COREUOBJECT_API FFieldClass
{
public:
	FFieldClass(const TCHAR* InName, FFieldClass* InSuperClass);

	FName GetFName() const
	{
		return Name;
	}

	FString GetName() const
	{
		return Name.ToString();
	}

	FFieldClass* GetSuperClass() const
	{
		return SuperClass;
	}

	bool IsChildOf(const FFieldClass* InClass) const
	{
		for (const FFieldClass* Class = this; Class; Class = Class->SuperClass)
		{
			if (Class == InClass)
			{
				return true;
			}
		}
		return false;
	}

private:
	FName Name;
	FFieldClass* SuperClass;
};

/** Declares StaticClass() and the typedefs of one field kind. */
#define DECLARE_FIELD(TClass, TSuperClass, TStaticFlags) \
public: \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	static FFieldClass* StaticClass(); \
	virtual FFieldClass* GetClass() const override \
	{ \
		return StaticClass(); \
	}

#define IMPLEMENT_FIELD(TClass) \
	FFieldClass* TClass::StaticClass() \
	{ \
		static FFieldClass Instance(TEXT(#TClass) + 1, TClass::Super::StaticClass()); \
		return &Instance; \
	}

/** Owner of a field: a UStruct (class, struct, function) or another field (an array's inner property). */
class COREUOBJECT_API FFieldVariant
{
public:
	FFieldVariant() = default;
	FFieldVariant(const FField* InField)
		: Field(const_cast<FField*>(InField))
	{
	}
	FFieldVariant(const UObject* InObject)
		: Object(const_cast<UObject*>(InObject))
	{
	}
	FFieldVariant(std::nullptr_t)
	{
	}

	bool IsUObject() const
	{
		return Object != nullptr;
	}

	bool IsValid() const
	{
		return Object != nullptr || Field != nullptr;
	}

	UObject* ToUObject() const
	{
		return Object;
	}

	FField* ToField() const
	{
		return Field;
	}

	FName GetFName() const;

private:
	UObject* Object = nullptr;
	FField* Field = nullptr;
};

class COREUOBJECT_API FField
{
public:
	typedef FField Super;
	typedef FField ThisClass;
	static FFieldClass* StaticClass();

	FField(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	virtual ~FField();

	FField(const FField&) = delete;
	FField& operator=(const FField&) = delete;

	virtual FFieldClass* GetClass() const
	{
		return StaticClass();
	}

	FName GetFName() const
	{
		return NamePrivate;
	}

	FString GetName() const
	{
		return NamePrivate.ToString();
	}

	FString GetFullName() const;
	FString GetPathName() const;

	FFieldVariant GetOwnerVariant() const
	{
		return Owner;
	}

	/** The struct, class or function this field belongs to, through any owning fields. */
	UStruct* GetOwnerStruct() const;
	UClass* GetOwnerClass() const;
	UObject* GetOwnerUObject() const;

	template<typename T>
	T* GetOwner() const
	{
		return Cast<T>(GetOwnerUObject());
	}

	bool IsA(const FFieldClass* FieldType) const
	{
		return GetClass()->IsChildOf(FieldType);
	}

	template<typename T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}

	bool HasMetaData(const TCHAR* Key) const;
	bool HasMetaData(const FName& Key) const;
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue);
	void SetMetaData(const FName& Key, const FString& InValue);
	void RemoveMetaData(const TCHAR* Key);
	bool GetBoolMetaData(const TCHAR* Key) const;
	const FMetaDataMap& GetMetaDataMap() const
	{
		return MetaData;
	}

	/** Next field of the same owner, in declared order. */
	FField* Next = nullptr;

	FFieldVariant Owner;
	FName NamePrivate;
	EObjectFlags FlagsPrivate;

private:
	FMetaDataMap MetaData;
};

template<typename FieldType>
FieldType* CastField(FField* Src)
{
	return Src && Src->IsA(FieldType::StaticClass()) ? static_cast<FieldType*>(Src) : nullptr;
}

template<typename FieldType>
const FieldType* CastField(const FField* Src)
{
	return Src && Src->IsA(FieldType::StaticClass()) ? static_cast<const FieldType*>(Src) : nullptr;
}

template<typename FieldType>
FieldType* CastFieldChecked(FField* Src)
{
	FieldType* Result = CastField<FieldType>(Src);
	check(Result);
	return Result;
}

template<typename FieldType>
const FieldType* CastFieldChecked(const FField* Src)
{
	const FieldType* Result = CastField<FieldType>(Src);
	check(Result);
	return Result;
}

template<typename FieldType>
FieldType* ExactCastField(FField* Src)
{
	return Src && Src->GetClass() == FieldType::StaticClass() ? static_cast<FieldType*>(Src) : nullptr;
}
