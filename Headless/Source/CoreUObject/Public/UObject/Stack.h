// FFrame: the state of one script function call, which exec thunks read their parameters from.
#pragma once

#include "CoreTypes.h"
#include "UObject/Script.h"

class FProperty;
class FField;
class FFieldClass;

struct FOutParmRec
{
	FProperty* Property;
	uint8* PropAddr;
	FOutParmRec* NextOutParm;
};

struct COREUOBJECT_API FFrame
{
public:
	UFunction* Node;
	UObject* Object;
	/** Bytecode; null for every call made through ProcessEvent, so parameters come from Locals. */
	uint8* Code;
	uint8* Locals;

	FProperty* MostRecentProperty = nullptr;
	uint8* MostRecentPropertyAddress = nullptr;
	uint8* MostRecentPropertyContainer = nullptr;

	FFrame* PreviousFrame = nullptr;
	FOutParmRec* OutParms = nullptr;
	/** The next parameter a thunk will read when there is no bytecode. */
	FField* PropertyChainForCompiledIn;
	UFunction* CurrentNativeFunction = nullptr;
	bool bArrayContextFailed = false;

	FFrame(UObject* InObject, UFunction* InNode, void* InLocals, FFrame* InPreviousFrame = nullptr, FField* InPropertyChainForCompiledIn = nullptr);

	/** Reads the next parameter into Result (a copy). */
	void StepCompiledIn(void* Result, FFieldClass* ExpectedPropertyType);

	template<class TProperty>
	void StepCompiledIn(void* Result)
	{
		StepCompiledIn(Result, TProperty::StaticClass());
	}

	/** The address of the next parameter in the parameter block; TemporaryBuffer when there is none. */
	template<class TProperty, typename TNativeType>
	TNativeType& StepCompiledInRef(void* TemporaryBuffer)
	{
		return *(TNativeType*)StepCompiledInRefInternal(TemporaryBuffer);
	}

	void* StepCompiledInRefInternal(void* TemporaryBuffer);
};
