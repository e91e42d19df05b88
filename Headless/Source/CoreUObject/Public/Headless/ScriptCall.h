// Headless stand-in for a script call node: calls a reflected function by name with arguments
// given as text. Arguments left out take the function's script defaults (CPP_Default_<Param>
// metadata), as a Blueprint node does; out parameters and the return value are read afterwards.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

namespace UE::Headless
{
	class COREUOBJECT_API FScriptCall
	{
	public:
		FScriptCall(UObject* InTarget, FName FunctionName);
		~FScriptCall();

		FScriptCall(const FScriptCall&) = delete;
		FScriptCall& operator=(const FScriptCall&) = delete;

		/** The object has a function of that name. */
		bool IsValid() const
		{
			return Function != nullptr;
		}

		UFunction* GetFunction() const
		{
			return Function;
		}

		/** Imports Text into the named parameter; false when there is no such parameter or Text is not a value of its type. */
		bool SetArgument(FName ParamName, const FString& Text);

		/** Fills every parameter not set from its default, then runs the function with ProcessEvent. */
		bool Invoke();

		/** A parameter (or "ReturnValue") written as text after the call. */
		FString GetValueAsText(FName ParamName) const;

		/** The address of a parameter (or "ReturnValue") in the parameter block; null when there is none. */
		void* GetValuePtr(FName ParamName) const;

		template<typename T>
		const T& GetValue(FName ParamName) const
		{
			const void* Value = GetValuePtr(ParamName);
			check(Value != nullptr);
			return *(const T*)Value;
		}

	private:
		FProperty* FindParam(FName ParamName) const;

		UObject* Target = nullptr;
		UFunction* Function = nullptr;
		uint8* Parms = nullptr;
		TArray<FName> SetParams;
	};

	/** Calls FunctionName on Target with the given arguments; the rest take their defaults. False when the call could not be made. */
	COREUOBJECT_API bool CallFunctionByName(UObject* Target, FName FunctionName, const TMap<FName, FString>& Arguments, FString* OutReturnValueText = nullptr);
}
