#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace StashPanelTest
{
	inline FProperty* FindPropertyChecked(const UClass* Class, const TCHAR* Name)
	{
		FProperty* Property = Class->FindPropertyByName(FName(Name));
		check(Property != nullptr);
		return Property;
	}

	template<typename T>
	const T& ValueOf(const UObject* Object, const TCHAR* Name)
	{
		return *FindPropertyChecked(Object->GetClass(), Name)->ContainerPtrToValuePtr<T>(Object);
	}
}

#include "Containers/StringConv.h"

#include <string>

namespace StashPanelTest
{
	/** FString compares without regard to case; tests compare exact text through this. */
	inline std::string Utf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}
}
