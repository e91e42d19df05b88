#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectGlobals.h"

#include <vector>

namespace
{
	void DestroyObjects(const std::vector<UObject*>& Doomed);

	// Marks what it is handed and queues it; a strong reference to a garbage object is cleared instead.
	class FMarkingCollector final : public FReferenceCollector
	{
	public:
		std::vector<UObject*> Pending;

		void Reach(UObject* Object)
		{
			FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(Object);
			if (Item && Item->IsUnreachable())
			{
				Item->ClearFlags(EInternalObjectFlags::Unreachable);
				Pending.push_back(Object);
			}
		}

		virtual void HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) override
		{
			if (InObject == nullptr)
			{
				return;
			}
			FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(InObject);
			if (Item == nullptr || Item->Object != (UObjectBase*)InObject)
			{
				return;
			}
			if (Item->IsGarbage() && InReferencingProperty != nullptr)
			{
				InObject = nullptr;
				return;
			}
			Reach(InObject);
		}
	};

	void MarkReferencesOf(UObject* Object, FMarkingCollector& Collector)
	{
		if (UObject* Outer = Object->GetOuter())
		{
			Collector.Reach(Outer);
		}
		UClass* Class = Object->GetClass();
		Collector.Reach(Class);
		for (TFieldIterator<FProperty> It(Class); It; ++It)
		{
			if (!It->ContainsObjectReference())
			{
				continue;
			}
			for (int32 Index = 0; Index < It->ArrayDim; ++Index)
			{
				It->AddReferencedObjectsInValue(It->ContainerPtrToValuePtr<void>(Object, Index), Collector, Object);
			}
		}
		if (Class->ClassAddReferencedObjects)
		{
			Class->CallAddReferencedObjects(Object, Collector);
		}
	}
}

void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	FMarkingCollector Collector;
	const int32 NumSlots = GUObjectArray.GetObjectArrayNum();
	for (int32 Index = 0; Index < NumSlots; ++Index)
	{
		FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		if (Item->Object)
		{
			Item->SetFlags(EInternalObjectFlags::Unreachable);
		}
	}
	for (int32 Index = 0; Index < NumSlots; ++Index)
	{
		FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		if (Item->Object == nullptr)
		{
			continue;
		}
		UObject* Object = (UObject*)Item->Object;
		const bool bRoot = Item->HasAnyFlags(EInternalObjectFlags::RootSet | EInternalObjectFlags::Native)
			|| (KeepFlags != RF_NoFlags && Object->HasAnyFlags(KeepFlags));
		if (bRoot)
		{
			Collector.Reach(Object);
		}
	}
	while (!Collector.Pending.empty())
	{
		UObject* Object = Collector.Pending.back();
		Collector.Pending.pop_back();
		MarkReferencesOf(Object, Collector);
	}

	// Garbage is never reached through a property (those references were cleared), so it goes
	// unless something holds it as an outer.
	std::vector<UObject*> Doomed;
	for (int32 Index = 0; Index < NumSlots; ++Index)
	{
		FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		if (Item->Object && Item->IsUnreachable())
		{
			Doomed.push_back((UObject*)Item->Object);
		}
	}
	DestroyObjects(Doomed);
}

void PurgeObjectsOnExit()
{
	// As the engine does at shutdown: every object that is not part of the type system goes,
	// rooted or not, so nothing made at run time outlives the process's last reference to it.
	std::vector<UObject*> Doomed;
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		if (Item->Object && !Item->HasAnyFlags(EInternalObjectFlags::Native) && !((UObject*)Item->Object)->HasAnyFlags(RF_ClassDefaultObject))
		{
			Doomed.push_back((UObject*)Item->Object);
		}
	}
	DestroyObjects(Doomed);
}

namespace
{
	void DestroyObjects(const std::vector<UObject*>& Doomed)
	{
		for (UObject* Object : Doomed)
		{
			Object->ConditionalBeginDestroy();
		}
		for (UObject* Object : Doomed)
		{
			Object->ConditionalFinishDestroy();
		}
		for (UObject* Object : Doomed)
		{
			Object->~UObject();
			FMemory::Free(Object);
		}
	}
}
