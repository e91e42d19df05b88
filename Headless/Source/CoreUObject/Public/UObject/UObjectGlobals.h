// Creating, finding and collecting objects.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"

class UObjectBase;

/** What NewObject hands the constructor: the memory, class, outer, name and flags of the object being made. */
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer();
	FObjectInitializer(UObject* InObj, UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags);
	~FObjectInitializer();

	UObject* GetObj() const
	{
		return Obj;
	}

	UClass* GetClass() const
	{
		return Class;
	}

	UObject* GetOuter() const
	{
		return Outer;
	}

	FName GetName() const
	{
		return Name;
	}

	EObjectFlags GetFlags() const
	{
		return Flags;
	}

	/** The initializer of the object under construction. */
	static FObjectInitializer& Get();

	template<class TReturnType>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const;

private:
	UObject* Obj = nullptr;
	UClass* Class = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags Flags = RF_NoFlags;
	bool bPushed = false;

	friend class UObjectBase;
};

/** Receives the strong references of one object while the collector marks. */
class COREUOBJECT_API FReferenceCollector
{
public:
	virtual ~FReferenceCollector() = default;

	virtual void HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const class FProperty* InReferencingProperty) = 0;

	template<class UObjectType>
	void AddReferencedObject(UObjectType*& Object, const UObject* ReferencingObject = nullptr, const class FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*(UObject**)&Object, ReferencingObject, ReferencingProperty);
	}

	template<class UObjectType>
	void AddReferencedObject(TObjectPtr<UObjectType>& Object, const UObject* ReferencingObject = nullptr, const class FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*(UObject**)&Object, ReferencingObject, ReferencingProperty);
	}

	template<class ContainerType>
	void AddReferencedObjects(ContainerType& Objects, const UObject* ReferencingObject = nullptr, const class FProperty* ReferencingProperty = nullptr)
	{
		for (auto& Object : Objects)
		{
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
		}
	}
};

COREUOBJECT_API UObject* StaticConstructObject_Internal(UClass* Class, UObject* InOuter, FName Name, EObjectFlags SetFlags);

/** The unique name "<ClassName>_<N>" for a new object of Class inside Parent. */
COREUOBJECT_API FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName InBaseName = FName());

/** Finds an object by outer and name, or by full path ("/Script/Module.Name", "/Game/Dir/Asset.Asset") when InOuter is null. */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool bExactClass = false);
COREUOBJECT_API UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool bExactClass = false);

template<class T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool bExactClass = false)
{
	return (T*)StaticFindObject(T::StaticClass(), Outer, Name, bExactClass);
}

template<class T>
T* FindFirstObject(const TCHAR* Name)
{
	return (T*)StaticFindObject(T::StaticClass(), nullptr, Name, false);
}

COREUOBJECT_API UPackage* GetTransientPackage();
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);

/** Destroys every object not reachable from the root set; objects with any of KeepFlags count as roots. */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags = RF_NoFlags, bool bPerformFullPurge = true);

template<class T>
T* NewObject(UObject* Outer, UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags)
{
	if (Class == nullptr)
	{
		Class = T::StaticClass();
	}
	return (T*)StaticConstructObject_Internal(Class, Outer, Name, Flags);
}

template<class T>
T* NewObject(UObject* Outer = (UObject*)GetTransientPackage())
{
	return (T*)StaticConstructObject_Internal(T::StaticClass(), Outer, NAME_None, RF_NoFlags);
}

template<class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags)
{
	return (T*)StaticConstructObject_Internal(T::StaticClass(), Outer, Name, Flags);
}

template<class TReturnType>
TReturnType* FObjectInitializer::CreateDefaultSubobject(UObject* InOuter, FName SubobjectName, bool bTransient) const
{
	return NewObject<TReturnType>(InOuter, TReturnType::StaticClass(), SubobjectName, EObjectFlags(RF_DefaultSubObject | (bTransient ? RF_Transient : RF_NoFlags)));
}

namespace UE
{
	/** The play-in-editor instance this process runs as; headless builds have none. */
	inline int32 GetPlayInEditorID()
	{
		return -1;
	}
}
