// Reflected type of a C++ type: specialised by the generated code of each reflected struct and enum.
#pragma once

class UScriptStruct;
class UEnum;
class UClass;

template<typename T>
UScriptStruct* StaticStruct();

template<typename T>
UEnum* StaticEnum();

template<typename T>
UClass* StaticClass()
{
	return T::StaticClass();
}

/** True for enums the header tool reflected. */
template<typename T>
struct TIsUEnumClass
{
	enum
	{
		Value = false
	};
};
