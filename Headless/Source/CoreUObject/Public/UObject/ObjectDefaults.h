// GetDefault<T> and GetMutableDefault<T>: the class default objects, typed.
#pragma once

#include "UObject/Class.h"

template<class T>
T* GetMutableDefault()
{
	return (T*)T::StaticClass()->GetDefaultObject();
}

template<class T>
const T* GetDefault()
{
	return (const T*)T::StaticClass()->GetDefaultObject();
}

template<class T>
const T* GetDefault(UClass* Class)
{
	check(Class->IsChildOf(T::StaticClass()));
	return (const T*)Class->GetDefaultObject();
}
