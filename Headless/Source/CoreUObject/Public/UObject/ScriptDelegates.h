// Dynamic (script) delegates: bound to an object and a function name, called through ProcessEvent.
#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtr.h"

template<typename TWeakPtr = FWeakObjectPtr>
class TScriptDelegate
{
public:
	TScriptDelegate() = default;

	void BindUFunction(UObject* InObject, const FName& InFunctionName)
	{
		Object = InObject;
		FunctionName = InFunctionName;
	}

	/** Bound to a live object that has the named function. */
	template<class UObjectTemplate = UObject>
	bool IsBound() const
	{
		if (FunctionName.IsNone())
		{
			return false;
		}
		UObjectTemplate* Target = (UObjectTemplate*)Object.Get();
		return Target && Target->FindFunction(FunctionName) != nullptr;
	}

	bool IsBoundToObject(const void* InUserObject) const
	{
		return InUserObject && (const void*)Object.Get() == InUserObject;
	}

	bool IsBoundToObjectEvenIfUnreachable(const void* InUserObject) const
	{
		return InUserObject && (const void*)Object.GetEvenIfUnreachable() == InUserObject;
	}

	/** An entry the invocation list may drop: no function, or its object is gone. */
	bool IsCompactable() const
	{
		return FunctionName.IsNone() || !Object.Get(true);
	}

	void Unbind()
	{
		Object.Reset();
		FunctionName = NAME_None;
	}

	void Clear()
	{
		Unbind();
	}

	UObject* GetUObject()
	{
		return Object.Get();
	}
	const UObject* GetUObject() const
	{
		return Object.Get();
	}
	UObject* GetUObjectEvenIfUnreachable() const
	{
		return Object.GetEvenIfUnreachable();
	}

	FName GetFunctionName() const
	{
		return FunctionName;
	}

	/** Runs the bound function with a parameter block in the signature's layout. */
	template<class UObjectTemplate = UObject>
	void ProcessDelegate(void* Parameters) const
	{
		checkf(Object.IsValid(), "ProcessDelegate() called with no object bound to delegate");
		checkf(!FunctionName.IsNone(), "ProcessDelegate() called with no function name set");
		UObjectTemplate* Target = (UObjectTemplate*)Object.Get();
		UFunction* Function = Target->FindFunctionChecked(FunctionName);
		Target->ProcessEvent(Function, Parameters);
	}

	bool operator==(const TScriptDelegate& Other) const
	{
		return Object == Other.Object && FunctionName == Other.FunctionName;
	}
	bool operator!=(const TScriptDelegate& Other) const
	{
		return !(*this == Other);
	}

	friend uint32 GetTypeHash(const TScriptDelegate& Delegate)
	{
		return HashCombine(GetTypeHash(Delegate.Object), GetTypeHash(Delegate.FunctionName));
	}

protected:
	TWeakPtr Object;
	FName FunctionName;
};

template<typename TWeakPtr = FWeakObjectPtr>
class TMulticastScriptDelegate
{
public:
	using FScriptDelegateType = TScriptDelegate<TWeakPtr>;

	TMulticastScriptDelegate() = default;

	bool IsBound() const
	{
		return InvocationList.Num() > 0;
	}

	bool Contains(const FScriptDelegateType& InDelegate) const
	{
		for (const FScriptDelegateType& Entry : InvocationList)
		{
			if (Entry == InDelegate)
			{
				return true;
			}
		}
		return false;
	}

	bool Contains(const UObject* InObject, FName InFunctionName) const
	{
		for (const FScriptDelegateType& Entry : InvocationList)
		{
			if (Entry.GetFunctionName() == InFunctionName && Entry.IsBoundToObjectEvenIfUnreachable(InObject))
			{
				return true;
			}
		}
		return false;
	}

	/** Appends the binding, even if it is already there. */
	void Add(const FScriptDelegateType& InDelegate)
	{
		CompactInvocationList();
		InvocationList.Add(InDelegate);
	}

	void AddUnique(const FScriptDelegateType& InDelegate)
	{
		CompactInvocationList();
		if (!Contains(InDelegate))
		{
			InvocationList.Add(InDelegate);
		}
	}

	void Remove(const FScriptDelegateType& InDelegate)
	{
		RemoveFirstWhere([&InDelegate](const FScriptDelegateType& Entry) { return Entry == InDelegate; });
		CompactInvocationList();
	}

	void Remove(const UObject* InObject, FName InFunctionName)
	{
		RemoveFirstWhere([InObject, InFunctionName](const FScriptDelegateType& Entry)
		{
			return Entry.GetFunctionName() == InFunctionName && Entry.IsBoundToObjectEvenIfUnreachable(InObject);
		});
		CompactInvocationList();
	}

	void RemoveAll(const UObject* Object)
	{
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			if (InvocationList[Index].IsBoundToObjectEvenIfUnreachable(Object))
			{
				InvocationList.RemoveAtSwap(Index);
			}
		}
		CompactInvocationList();
	}

	void Clear()
	{
		InvocationList.Empty();
	}

	/**
	 * Calls every binding with the same parameter block. Works on a copy of the list taken now, so
	 * bindings a handler adds or removes count from the next broadcast; skips entries whose object
	 * or function is gone, and drops entries whose object is gone once all calls are made.
	 */
	template<class UObjectTemplate = UObject>
	void ProcessMulticastDelegate(void* Parameters) const
	{
		if (InvocationList.Num() == 0)
		{
			return;
		}
		const TArray<FScriptDelegateType> Snapshot = InvocationList;
		for (const FScriptDelegateType& Entry : Snapshot)
		{
			if (Entry.GetFunctionName().IsNone())
			{
				continue;
			}
			UObjectTemplate* Target = (UObjectTemplate*)Entry.GetUObject();
			if (Target == nullptr)
			{
				continue;
			}
			UFunction* Function = Target->FindFunction(Entry.GetFunctionName());
			if (Function == nullptr)
			{
				continue;
			}
			Target->ProcessEvent(Function, Parameters);
		}
		const_cast<TMulticastScriptDelegate*>(this)->CompactInvocationList();
	}

	TArray<UObject*> GetAllObjects() const
	{
		TArray<UObject*> Result;
		for (const FScriptDelegateType& Entry : InvocationList)
		{
			if (UObject* Object = const_cast<UObject*>(Entry.GetUObject()))
			{
				Result.Add(Object);
			}
		}
		return Result;
	}

	const TArray<FScriptDelegateType>& GetInvocationList() const
	{
		return InvocationList;
	}

protected:
	void CompactInvocationList() const
	{
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			if (InvocationList[Index].IsCompactable())
			{
				InvocationList.RemoveAtSwap(Index);
			}
		}
	}

	template<typename PredicateType>
	void RemoveFirstWhere(PredicateType Predicate)
	{
		for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
		{
			if (Predicate(InvocationList[Index]))
			{
				InvocationList.RemoveAtSwap(Index);
				return;
			}
		}
	}

	mutable TArray<FScriptDelegateType> InvocationList;
};

typedef TScriptDelegate<> FScriptDelegate;
typedef TMulticastScriptDelegate<> FMulticastScriptDelegate;
