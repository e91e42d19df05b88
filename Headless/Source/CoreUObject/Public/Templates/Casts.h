// Cast<T> and CastChecked<T> between object types, checked against the reflected class.
#pragma once

#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

#include <type_traits>

template<class To, class From>
To* Cast(From* Src)
{
	if constexpr (std::is_base_of_v<To, From>)
	{
		return Src;
	}
	else
	{
		return Src && ((const UObject*)Src)->IsA(To::StaticClass()) ? (To*)Src : nullptr;
	}
}

template<class To, class From>
To* Cast(const TObjectPtr<From>& Src)
{
	return Cast<To>(Src.Get());
}

template<class To, class From>
To* ExactCast(From* Src)
{
	return Src && ((const UObject*)Src)->GetClass() == To::StaticClass() ? (To*)Src : nullptr;
}

enum class ECastCheckedType : uint8
{
	NullAllowed,
	NullChecked
};

template<class To, class From>
To* CastChecked(From* Src, ECastCheckedType CheckType = ECastCheckedType::NullChecked)
{
	if (Src == nullptr)
	{
		check(CheckType == ECastCheckedType::NullAllowed);
		return nullptr;
	}
	To* Result = Cast<To>(Src);
	check(Result != nullptr);
	return Result;
}

template<class To, class From>
To* CastChecked(const TObjectPtr<From>& Src, ECastCheckedType CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<To>(Src.Get(), CheckType);
}
