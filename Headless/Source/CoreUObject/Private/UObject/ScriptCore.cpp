#include "UObject/Stack.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

FFrame::FFrame(UObject* InObject, UFunction* InNode, void* InLocals, FFrame* InPreviousFrame, FField* InPropertyChainForCompiledIn)
	: Node(InNode)
	, Object(InObject)
	, Code(nullptr)
	, Locals((uint8*)InLocals)
	, PreviousFrame(InPreviousFrame)
	, PropertyChainForCompiledIn(InPropertyChainForCompiledIn)
	, CurrentNativeFunction(InNode)
{
}

void FFrame::StepCompiledIn(void* Result, FFieldClass* ExpectedPropertyType)
{
	// Without bytecode, parameters are read in declared order from the parameter block.
	FProperty* Property = (FProperty*)PropertyChainForCompiledIn;
	checkf(Property != nullptr, "Read past the last parameter of the function");
	PropertyChainForCompiledIn = Property->Next;
	MostRecentProperty = Property;
	MostRecentPropertyAddress = Locals ? Property->ContainerPtrToValuePtr<uint8>(Locals) : nullptr;
	MostRecentPropertyContainer = Locals;
	if (Result && MostRecentPropertyAddress)
	{
		Property->CopyCompleteValue(Result, MostRecentPropertyAddress);
	}
}

void* FFrame::StepCompiledInRefInternal(void* TemporaryBuffer)
{
	FProperty* Property = (FProperty*)PropertyChainForCompiledIn;
	checkf(Property != nullptr, "Read past the last parameter of the function");
	PropertyChainForCompiledIn = Property->Next;
	MostRecentProperty = Property;
	MostRecentPropertyAddress = Locals ? Property->ContainerPtrToValuePtr<uint8>(Locals) : nullptr;
	MostRecentPropertyContainer = Locals;
	return MostRecentPropertyAddress ? (void*)MostRecentPropertyAddress : TemporaryBuffer;
}
