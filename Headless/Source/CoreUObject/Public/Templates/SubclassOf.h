// TSubclassOf<T>: a UClass pointer limited to T and its subclasses.
#pragma once

#include "UObject/Object.h"

template<class T>
class TSubclassOf
{
public:
	TSubclassOf() = default;
	TSubclassOf(std::nullptr_t)
	{
	}
	TSubclassOf(UClass* From)
		: Class(From)
	{
	}

	UClass* Get() const
	{
		return Class && Class->IsChildOf(T::StaticClass()) ? Class : nullptr;
	}
	operator UClass*() const
	{
		return Get();
	}
	UClass* operator*() const
	{
		return Get();
	}
	UClass* operator->() const
	{
		return Get();
	}
	T* GetDefaultObject() const
	{
		UClass* Result = Get();
		return Result ? (T*)Result->GetDefaultObject() : nullptr;
	}

private:
	UClass* Class = nullptr;
};
