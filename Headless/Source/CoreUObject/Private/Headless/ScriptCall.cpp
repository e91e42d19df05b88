#include "Headless/ScriptCall.h"

#include "UObject/UnrealType.h"

namespace
{
	const FString* FindScriptDefault(const UFunction* Function, const FString& Key)
	{
		for (const UFunction* Current = Function; Current; Current = Current->GetSuperFunction())
		{
			if (const FString* Found = Current->FindMetaData(*Key))
			{
				return Found;
			}
		}
		return nullptr;
	}

	// Script defaults are stored as the C++ default was written; reduce the usual spellings to text.
	FString NormalizeDefault(const FString& Written)
	{
		FString Text = Written;
		Text.TrimStartAndEndInline();
		if (Text.StartsWith(TEXT("TEXT(")) && Text.EndsWith(TEXT(")")))
		{
			Text = Text.Mid(5, Text.Len() - 6);
		}
		if (Text.Len() >= 2 && Text.StartsWith(TEXT("\"")) && Text.EndsWith(TEXT("\"")))
		{
			Text = Text.Mid(1, Text.Len() - 2);
		}
		if (Text.Equals(FString(TEXT("NAME_None"))) || Text.Equals(FString(TEXT("nullptr"))))
		{
			return FString(TEXT("None"));
		}
		return Text;
	}
}

namespace UE::Headless
{
	FScriptCall::FScriptCall(UObject* InTarget, FName FunctionName)
		: Target(InTarget)
		, Function(InTarget ? InTarget->FindFunction(FunctionName) : nullptr)
	{
		if (Function)
		{
			Parms = (uint8*)FMemory::Malloc(SIZE_T(Function->GetPropertiesSize()), uint32(Function->GetMinAlignment()));
			Function->InitializeStruct(Parms);
		}
	}

	FScriptCall::~FScriptCall()
	{
		if (Parms)
		{
			Function->DestroyStruct(Parms);
			FMemory::Free(Parms);
		}
	}

	FProperty* FScriptCall::FindParam(FName ParamName) const
	{
		if (Function == nullptr)
		{
			return nullptr;
		}
		for (TFieldIterator<FProperty> It(Function); It; ++It)
		{
			if (It->HasAnyPropertyFlags(CPF_Parm) && It->GetFName() == ParamName)
			{
				return *It;
			}
		}
		return nullptr;
	}

	bool FScriptCall::SetArgument(FName ParamName, const FString& Text)
	{
		FProperty* Param = FindParam(ParamName);
		if (Param == nullptr || Param->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			return false;
		}
		if (Param->ImportText_Direct(*Text, Param->ContainerPtrToValuePtr<void>(Parms), Target, PPF_None) == nullptr)
		{
			return false;
		}
		SetParams.AddUnique(ParamName);
		return true;
	}

	bool FScriptCall::Invoke()
	{
		if (Function == nullptr)
		{
			return false;
		}
		for (TFieldIterator<FProperty> It(Function); It; ++It)
		{
			if (!It->HasAnyPropertyFlags(CPF_Parm) || It->HasAnyPropertyFlags(CPF_ReturnParm) || SetParams.Contains(It->GetFName()))
			{
				continue;
			}
			FString Key(TEXT("CPP_Default_"));
			Key += It->GetName();
			if (const FString* Default = FindScriptDefault(Function, Key))
			{
				const FString Text = NormalizeDefault(*Default);
				if (It->ImportText_Direct(*Text, It->ContainerPtrToValuePtr<void>(Parms), Target, PPF_None) == nullptr)
				{
					return false;
				}
			}
		}
		Target->ProcessEvent(Function, Parms);
		return true;
	}

	FString FScriptCall::GetValueAsText(FName ParamName) const
	{
		FString Result;
		if (FProperty* Param = FindParam(ParamName))
		{
			Param->ExportTextItem_Direct(Result, Param->ContainerPtrToValuePtr<void>(Parms), nullptr, Target, PPF_None);
		}
		return Result;
	}

	void* FScriptCall::GetValuePtr(FName ParamName) const
	{
		FProperty* Param = FindParam(ParamName);
		return Param ? Param->ContainerPtrToValuePtr<void>(Parms) : nullptr;
	}

	bool CallFunctionByName(UObject* Target, FName FunctionName, const TMap<FName, FString>& Arguments, FString* OutReturnValueText)
	{
		FScriptCall Call(Target, FunctionName);
		if (!Call.IsValid())
		{
			return false;
		}
		for (const TPair<FName, FString>& Argument : Arguments)
		{
			if (!Call.SetArgument(Argument.Key, Argument.Value))
			{
				return false;
			}
		}
		if (!Call.Invoke())
		{
			return false;
		}
		if (OutReturnValueText)
		{
			*OutReturnValueText = Call.GetValueAsText(FName(TEXT("ReturnValue")));
		}
		return true;
	}
}
